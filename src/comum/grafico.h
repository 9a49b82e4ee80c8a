#pragma once

#include "comum/controles.h"
#include "comum/desenho.h"

#include <functional>
#include <span>
#include <string_view>

/// The pattern of all charts: a fixed rectangle with a light and a heavy grid, tick captions held in labels,
/// a curve, and a read-out that follows the mouse. Numbers are in the canvas's own units.
namespace varenta {

/// Equally spaced lines of a grid: the first one's place, the step, how many.
struct Linhas {
    double primeira, passo;
    int quantas;
};

struct MalhaDeGráfico {
    double esquerda, direita, topo, base;
    Linhas finasVerticais, finasHorizontais;
    Linhas grossasVerticais, grossasHorizontais;

    double largura() const { return direita - esquerda; }
    double altura() const { return base - topo; }
    /// Both bounds included.
    bool contém(double x, double y) const { return x >= esquerda && x <= direita && y >= topo && y <= base; }
};

/// Draws the light grid in white and the heavy one in black over it, with the pen's present width.
void desenharMalha(Desenho& desenho, const MalhaDeGráfico& malha);

/// Begins a chart: clears the surface and draws the grid with width 1.
void prepararGráfico(Desenho& desenho, const MalhaDeGráfico& malha);

struct PontoDoDesenho {
    double x, y;
};

/// Joins `quantos` points by straight segments, with the pen's present width. Each point is computed once and
/// in order, so that the first that can't be placed ends the drawing.
void desenharCurva(Desenho& desenho, Cor cor, std::size_t quantos,
                   const std::function<PontoDoDesenho(std::size_t)>& ponto);

/// Marks a place with a small filled red circle.
void marcarPonto(Desenho& desenho, PontoDoDesenho lugar);

/// The value at `percorrido` of `extensão` along an axis, from its first and its last tick caption as they
/// read.
double lerNoEixo(std::span<const Rotulo> escala, double percorrido, double extensão);

/// The mouse is beside the chart: blanks both captions of its read-out. Returns the pointer to show.
Ponteiro apagarLeitura(Rotulo& x, Rotulo& y);

/// Writes tick captions: `origem` + `passo` x k for k from 0, in the format `padrão`. Returns the last
/// caption's number as it reads, which is the end of the axis.
double escreverEscala(std::span<Rotulo> rótulos, double origem, double passo, std::string_view padrão);

} // namespace varenta
