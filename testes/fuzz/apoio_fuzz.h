#pragma once

#include "comum/controles.h"
#include "comum/operacoes.h"

#include "fuzz/linhas.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// What the trials of arbitrary input share: a platform that answers every question, files in memory, the
/// state of a screen as a text, and a second reading of numbers and lines to hold the program's own against.
namespace varenta::fuzz {

/// What a trial found wrong with the program.
class Defeito : public std::logic_error {
  public:
    using std::logic_error::logic_error;
};

[[noreturn]] void acusar(std::string_view motivo);

inline void exigir(bool certo, std::string_view motivo) {
    if (!certo) acusar(motivo);
}

/// Everything told to the person, as in "mensagem: ...", "pergunta: ...", "erro: ...". Questions are answered
/// by yes.
extern std::vector<std::string> caderno;
/// What the next file dialogs answer.
extern std::string caminhoParaAbrir;

/// A folder of its own for this process, in memory where the system has such a place, gone at its end.
const std::string& pastaDeRascunho();
/// Where files are saved to, within that folder.
std::string caminhoParaSalvar();

/// A file that never reaches a disk.
class ArquivoNaMemória {
  public:
    ArquivoNaMemória();
    ArquivoNaMemória(const ArquivoNaMemória&) = delete;
    ArquivoNaMemória& operator=(const ArquivoNaMemória&) = delete;
    ~ArquivoNaMemória();

    /// Replaces what the file holds, and returns the path under which it can be opened.
    const std::string& gravar(std::string_view bytes);

  private:
    int descritor_;
    std::string caminho_;
};

/// A system as new: no screen loaded but the main window.
void recomeçar();

std::string bytesDoArquivo(const std::string& caminho);

// --- the state of a screen ---

/// Collects the state of controls as they are visited: texts, choices, cells, strokes, what shows and what
/// can be used. Not what changes without being seen, as the version of a grid.
class Fotógrafo {
  public:
    explicit Fotógrafo(std::span<const std::string_view> fora) : fora_{fora} {}

    template <class C>
    void operator()(std::string_view nome, const C& controle) {
        for (const auto ignorado : fora_)
            if (nome == ignorado) return;
        foto_ += '\n';
        foto_ += nome;
        foto_ += controle.visivel ? " v" : " o";
        foto_ += controle.habilitado ? "h " : "d ";
        if (controle.visivel) ver(controle);
    }
    template <class C, std::size_t N>
    void operator()(std::string_view nome, const std::array<C, N>& controles, int) {
        for (const auto& controle : controles) (*this)(nome, controle);
    }

    std::string foto() && { return std::move(foto_); }

  private:
    template <class C>
    requires requires(const C& c) { c.texto; }
    void ver(const C& controle) {
        foto_ += controle.texto;
        if constexpr (requires { controle.marcada; }) foto_ += controle.marcada ? " sim" : " não";
    }
    void ver(const Rolagem& rolagem);
    void ver(const Barra& barra);
    void ver(const Grade& grade);
    void ver(const Desenho& desenho);
    void número(double x);

    std::span<const std::string_view> fora_;
    std::string foto_;
};

/// The state of a screen's record but for the controls named.
template <class Registro>
std::string fotografia(Registro& registro, std::span<const std::string_view> fora = {}) {
    Fotógrafo fotógrafo{fora};
    registro.percorrer(fotógrafo);
    return std::move(fotógrafo).foto();
}

/// Raises `Defeito` with the first line in which two states differ.
void exigirIguais(const std::string& antes, const std::string& depois, std::string_view quando);

/// Presses a control of a screen as a person does, without a search for it by name.
template <class C>
void pressionar(TelaBase& tela, const char* nome, C& controle);

// --- a second reading ---

/// The number at the start of a text.
struct Numeral {
    double valor;
    /// Past the largest double.
    bool estoura;
    /// What follows it.
    std::string_view resto;
};

/// Reads by a grammar written out by hand, and the C library's conversion.
std::optional<Numeral> numeralNoInício(std::string_view texto);
/// The number that the whole text is; nothing where it is none, or one too large.
std::optional<double> númeroDe(std::string_view texto);
/// Whether a cell shows `valor` rounded to so many decimals.
bool mostra(std::string_view célula, double valor, std::size_t casas);

bool emBranco(const std::string& linha);
std::vector<std::string> colunasDe(std::string_view linha);

/// A line that a second reader refuses.
struct LinhaRecusada {};

/// Lines one after another. Each function raises `LinhaRecusada` where the line is missing or doesn't do.
class Cursor {
  public:
    explicit Cursor(const Linhas& linhas) : linhas_{linhas} {}

    bool fim() const { return próxima_ >= linhas_.size(); }
    const std::string& linha() {
        if (fim()) throw LinhaRecusada{};
        return linhas_[próxima_++];
    }
    const std::string& preenchida();
    double número();
    double númeroEntre(double menor, double maior);
    double númeroNãoNulo();
    /// Not 0, and 1000 m at the most.
    double espaçamento();
    double númeroPositivo();
    /// A whole number from 1 to `maior`.
    int contagem(int maior);
    /// A row of exactly so many numbers.
    std::vector<double> leituras(std::size_t quantas);
    /// Raises unless nothing but lines that `vazia` accepts is left.
    void exigirFim(bool (*vazia)(const std::string&));

  private:
    const Linhas& linhas_;
    std::size_t próxima_ = 0;
};

} // namespace varenta::fuzz

#include "comum/atos.h"

namespace varenta::fuzz {

template <class C>
void pressionar(TelaBase& tela, const char* nome, C& controle) {
    atos::clicar({&tela, {nome, std::nullopt, &controle}});
}

} // namespace varenta::fuzz
