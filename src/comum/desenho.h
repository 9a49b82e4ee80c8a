#pragma once

#include <cstddef>
#include <cstdint>
#include <variant>
#include <vector>

namespace varenta {

/// A colour: low byte red, next green, next blue.
using Cor = std::uint32_t;

constexpr Cor corDe(unsigned vermelho, unsigned verde, unsigned azul) {
    return vermelho | verde << 8 | azul << 16;
}

namespace cores {
inline constexpr Cor preto = corDe(0, 0, 0);
inline constexpr Cor branco = corDe(255, 255, 255);
inline constexpr Cor vermelho = corDe(255, 0, 0);
inline constexpr Cor verde = corDe(0, 255, 0);
inline constexpr Cor azul = corDe(0, 0, 255);
inline constexpr Cor amarelo = corDe(255, 255, 0);
/// Colours 5 and 9 of the 16-colour palette.
inline constexpr Cor magenta = corDe(170, 0, 170);
inline constexpr Cor azulClaro = corDe(85, 85, 255);
} // namespace cores

/// Mouse pointers of a screen, by the numbers that the system uses for them.
enum class Ponteiro { padrão = 0, cruz = 2, ampulheta = 11 };

enum class EstiloPreenchimento { sólido = 0, transparente = 1 };

struct Linha {
    double x1, y1, x2, y2;
    Cor cor;
    int largura;
};

struct CaixaCheia {
    double x1, y1, x2, y2;
    Cor cor;
};

/// Angles in radians, anticlockwise from the direction of positive x. A negative one also asks for the line
/// from that end to the centre, at its absolute value. A whole circle runs from 0 to 2 pi.
struct Arco {
    double cx, cy, raio;
    Cor cor;
    double início, fim;
    int largura;
    bool preenchido;
};

/// Filled boxes of one size side by side, row by row, as a map has them by the ten thousands.
struct Mosaico {
    /// First corner of the first box, and the size of each.
    double x, y, largura, altura;
    std::size_t colunas;
    /// The colours of all boxes; whole rows.
    std::vector<Cor> cores;

    std::size_t linhas() const { return cores.size() / colunas; }
    CaixaCheia caixa(std::size_t n) const;
};

using Traço = std::variant<Linha, CaixaCheia, Arco, Mosaico>;

/// A number that no drawing and no grid has borne yet: what changes takes a new one, so that a front end
/// knows when to show it anew, even where a screen was closed and came back in the meantime.
std::uint64_t novaVersão();

/// A drawing surface: everything drawn since the last `limpar`, in the surface's own units, the origin at the
/// top left, x to the right, y downward.
struct Desenho {
    void (*aoMoverMouse)(double x, double y) = nullptr;
    bool visivel = true;
    bool habilitado = true;

    std::vector<Traço> traços = {};
    int larguraAtual = 1;
    EstiloPreenchimento estiloAtual = EstiloPreenchimento::transparente;
    /// New with every stroke and every `limpar`.
    std::uint64_t versão = novaVersão();

    void limpar();
    /// Width of what is drawn next, in pixels.
    void larguraTraco(int largura) { larguraAtual = largura; }
    /// Filling of the circles drawn next.
    void estiloPreenchimento(EstiloPreenchimento estilo) { estiloAtual = estilo; }

    void linha(double x1, double y1, double x2, double y2, Cor cor);
    /// A filled box between two corners.
    void caixaCheia(double x1, double y1, double x2, double y2, Cor cor);
    /// A filled box from its first corner, with its width and height.
    void caixaCheiaDeTamanho(double x, double y, double largura, double altura, Cor cor);
    void mosaico(Mosaico mosaico);
    /// A whole circle.
    void arco(double cx, double cy, double raio, Cor cor);
    void arco(double cx, double cy, double raio, Cor cor, double início, double fim);
};

} // namespace varenta
