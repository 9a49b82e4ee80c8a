#include "apoio/estado.h"

#include "comum/tela.h"
#include "shell/sistema.h"

#include <bit>
#include <cctype>
#include <cmath>
#include <map>
#include <string_view>

namespace varenta::teste {
namespace {

/// A 64-bit FNV-1a digest of what it is given.
class Resumo {
  public:
    void somar(std::uint64_t valor) {
        for (int k = 0; k < 8; ++k, valor >>= 8) digestão_ = (digestão_ ^ (valor & 0xFF)) * 1099511628211u;
    }
    void somar(double valor) { somar(std::bit_cast<std::uint64_t>(valor)); }
    std::uint64_t valor() const { return digestão_; }

  private:
    std::uint64_t digestão_ = 14695981039346656037u;
};

/// Every number of a stroke, to the visitor.
template <class Visita>
void números(const Linha& t, Visita visita) {
    for (const double x : {t.x1, t.y1, t.x2, t.y2, double(t.cor), double(t.largura)}) visita(x);
}
template <class Visita>
void números(const CaixaCheia& t, Visita visita) {
    for (const double x : {t.x1, t.y1, t.x2, t.y2, double(t.cor)}) visita(x);
}
template <class Visita>
void números(const Arco& t, Visita visita) {
    for (const double x :
         {t.cx, t.cy, t.raio, double(t.cor), t.início, t.fim, double(t.largura), double(t.preenchido)})
        visita(x);
}
template <class Visita>
void números(const Mosaico& t, Visita visita) {
    for (const double x : {t.x, t.y, t.largura, t.altura, double(t.colunas)}) visita(x);
    for (const auto cor : t.cores) visita(double(cor));
}

/// What a kind of control holds besides its flags.
struct Conteúdo {
    std::string operator()(const Rotulo* c) const { return c->texto; }
    std::string operator()(const Quadro* c) const { return c->texto; }
    std::string operator()(const Botao* c) const { return c->texto; }
    std::string operator()(const ItemMenu* c) const { return c->texto; }
    std::string operator()(const CaixaTexto* c) const { return c->texto; }
    std::string operator()(const Lista* c) const {
        auto texto = c->texto;
        for (const auto& item : c->itens) texto.append("\n  ").append(item);
        return texto;
    }
    std::string operator()(const Opcao* c) const { return c->texto + (c->marcada ? " [x]" : " [ ]"); }
    std::string operator()(const Verificacao* c) const { return c->texto + (c->marcada ? " [x]" : " [ ]"); }
    std::string operator()(const Rolagem* c) const {
        return std::to_string(c->valor) + " in " + std::to_string(c->mínimo) + ".." +
               std::to_string(c->máximo);
    }
    std::string operator()(const Barra* c) const { return std::to_string(c->valor); }
    std::string operator()(const Grade* c) const {
        auto texto = std::to_string(c->linhas) + " x " + std::to_string(c->colunas) + " at " +
                     std::to_string(c->linhaAtual) + ", " + std::to_string(c->colunaAtual);
        for (const auto& célula : c->células) texto.append("|").append(célula);
        return texto;
    }
    std::string operator()(const Desenho* c) const {
        return std::to_string(c->traços.size()) + " strokes " + std::to_string(resumoDosTraços(c->traços));
    }
};

bool letra(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || static_cast<unsigned char>(c) >= 0x80;
}

/// Whether `palavra` stands in the text with no letter or digit beside it.
bool temPalavra(std::string_view texto, std::string_view palavra) {
    for (auto i = texto.find(palavra); i != std::string_view::npos; i = texto.find(palavra, i + 1)) {
        const auto fim = i + palavra.size();
        if ((i == 0 || !letra(texto[i - 1])) && (fim == texto.size() || !letra(texto[fim]))) return true;
    }
    return false;
}

bool mostraNãoFinito(const RefControle& controle) {
    if (auto* const* desenho = std::get_if<Desenho*>(&controle)) {
        bool há = false;
        for (const auto& traço : (*desenho)->traços)
            std::visit([&](const auto& t) { números(t, [&](double x) { há = há || !std::isfinite(x); }); },
                       traço);
        return há;
    }
    if (auto* const* barra = std::get_if<Barra*>(&controle)) return !std::isfinite((*barra)->valor);
    // What a person types stands as it was typed.
    if (std::holds_alternative<CaixaTexto*>(controle) || std::holds_alternative<Lista*>(controle))
        return false;
    if (auto* const* grade = std::get_if<Grade*>(&controle); grade && (*grade)->planilha) return false;
    return nãoÉNúmero(std::visit(Conteúdo{}, controle));
}

bool contradizASi(const RefControle& controle) {
    if (auto* const* r = std::get_if<Rolagem*>(&controle))
        return (*r)->valor < (*r)->mínimo || (*r)->valor > (*r)->máximo;
    if (auto* const* b = std::get_if<Barra*>(&controle))
        return (*b)->valor < (*b)->mínimo || (*b)->valor > (*b)->máximo;
    if (auto* const* g = std::get_if<Grade*>(&controle))
        return (*g)->células.size() != std::size_t((*g)->linhas) * std::size_t((*g)->colunas) ||
               (*g)->alinhamentos.size() != std::size_t((*g)->colunas) || (*g)->linhaAtual < 0 ||
               (*g)->linhaAtual >= (*g)->linhas || (*g)->colunaAtual < 0 ||
               (*g)->colunaAtual >= (*g)->colunas;
    return false;
}

/// The full name of the first control of all loaded screens for which `recusa` holds.
template <class Recusa>
std::string primeiroQue(const Recusa& recusa) {
    for (auto* tela : telasEmOrdem())
        for (const auto& elemento : tela->elementos())
            if (recusa(*tela, elemento)) return tela->nome() + "." + elemento.nomeCompleto();
    return {};
}

} // namespace

std::uint64_t resumoDosTraços(std::span<const Traço> traços) {
    Resumo resumo;
    for (const auto& traço : traços) {
        resumo.somar(std::uint64_t{traço.index()});
        std::visit([&](const auto& t) { números(t, [&](double x) { resumo.somar(x); }); }, traço);
    }
    return resumo.valor();
}

bool nãoÉNúmero(std::string_view texto) {
    for (const auto* palavra : {"nan", "inf", "NaN", "Inf", "NAN", "INF"})
        if (temPalavra(texto, palavra)) return true;
    return false;
}

std::string estadoÀVista() {
    std::string texto;
    for (auto* tela : telasEmOrdem()) {
        if (!tela->carregada()) continue;
        texto += tela->nome() + " \"" + tela->caption() + "\"" + (tela->visivel ? " shown" : " hidden") +
                 (tela->habilitada ? " enabled" : " disabled") +
                 (tela->ponteiro == Ponteiro::ampulheta ? " hourglass" : "") + "\n";
        for (const auto& elemento : tela->elementos()) {
            if (!estáVisível(elemento) && estáHabilitado(elemento)) continue;
            texto += " " + elemento.nomeCompleto() + (estáVisível(elemento) ? " v" : " -") +
                     (estáHabilitado(elemento) ? "e " : "- ") + std::visit(Conteúdo{}, elemento.controle) +
                     "\n";
        }
    }
    return texto;
}

std::string primeiroNãoFinito() {
    return primeiroQue([](TelaBase&, const Elemento& e) { return mostraNãoFinito(e.controle); });
}

std::string primeiroIncoerente() {
    std::map<std::string, int> marcadas;
    return primeiroQue([&](TelaBase& tela, const Elemento& e) {
        if (auto* const* opção = std::get_if<Opcao*>(&e.controle);
            opção && (*opção)->marcada && ++marcadas[tela.nome() + "/" + (*opção)->grupo] > 1)
            return true;
        return contradizASi(e.controle);
    });
}

} // namespace varenta::teste
