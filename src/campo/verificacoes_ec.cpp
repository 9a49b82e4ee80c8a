#include "campo/verificacoes_ec.h"

#include "campo/form_ec.h"
#include "campo/sobreposicao_movel.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "comum/verificacoes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace varenta {
namespace {

/// Refuses what a control holds, which keeps it and takes the focus.
template <class Controle>
bool acusar(const Controle& controle, const char* mensagem) {
    plataforma::mensagem(mensagem);
    focar(controle);
    return false;
}

bool numérico(const CaixaTexto& caixa, const char* mensagem) {
    return éNumérico(caixa.texto) || acusar(caixa, mensagem);
}

bool vazãoNumérica() { return numérico(formEC->Text12, "Insira um valor numérico de vazão!"); }
bool velocidadeNumérica() { return numérico(formEC->Text11, "Insira um valor numérico de velocidade!"); }

/// Flow, speed and angle of turn: none of them empty, then none of them 0.
bool condiçõesPresentes() {
    const auto& f = *formEC.operator->();
    const std::array caixas = {&f.Text12, &f.Text11, &f.Text9};
    for (const auto* caixa : caixas)
        if (caixa->texto.empty())
            return acusar(*caixa, "Valor de vazão, velocidade ou ângulo de giro inexistente!");
    for (const auto* caixa : caixas)
        if (lerPrefixo(caixa->texto) == 0)
            return acusar(*caixa, "Valor de vazão, velocidade ou ângulo de giro nulo!");
    return true;
}

bool dentro(const CaixaTexto& caixa, double maior, const char* mensagem) {
    const double valor = lerEstrito(caixa.texto);
    return (valor >= 0 && valor <= maior) || acusar(caixa, mensagem);
}

/// The wind may stay empty, but not one half of it alone. The direction is looked at first.
bool ventoVálido() {
    const auto& f = *formEC.operator->();
    if (f.Text2.texto.empty() && f.Text3.texto.empty()) return true;
    return numérico(f.Text3, "Insira um valor numérico de direção do vento!") &&
           numérico(f.Text2, "Insira um valor numérico de velocidade do vento!") &&
           dentro(f.Text2, 10, "O valor de velocidade do vento deve estar entre 0 - 10 m/s!") &&
           dentro(f.Text3, 360, "O valor de direção do vento deve estar entre 0 - 360º!");
}

/// A list that holds no number would make a file that can't be read again.
bool listaVálida(const Lista& lista, const char* mensagem) {
    return (éNumérico(lista.texto) && lerEstrito(lista.texto) > 0) || acusar(lista, mensagem);
}

/// A list may show another number than the one that made the grid, where that was refused or is none.
bool fezAPlanilha(const Lista& lista, int naPlanilha, const char* mensagem) {
    const bool fez = éNumérico(lista.texto) && std::nearbyint(lerEstrito(lista.texto)) == naPlanilha;
    return fez || acusar(lista, mensagem);
}

bool contagensVálidas() {
    const auto& f = *formEC.operator->();
    return fezAPlanilha(f.Combo1, f.flex_A.colunas - 1, "Número de linhas de coletores inválido!") &&
           fezAPlanilha(f.Combo3, (f.flex_A.linhas - 1) / 2,
                        "Número de coletores em cada lada linha inválido!");
}

bool listasVálidas() {
    const auto& f = *formEC.operator->();
    return contagensVálidas() && listaVálida(f.Combo2, "Distância entre as linhas de coletores inválida!") &&
           listaVálida(f.Combo4, "Espaço entre coletores inválido!");
}

bool célulasVálidas(const VerificaçãoDeTexto& verificação) {
    const auto recusa = primeiraRecusa(std::span{&verificação, 1}, formEC->flex_A);
    if (recusa.mensagem) recusar(formEC_planilha(), recusa);
    return !recusa.mensagem;
}

/// What the overlap and the radial profile have in common; they differ in the spacings that they bear.
bool ensaioVálido(std::span<const double> espaços, const char* recusaDoEspaço) {
    auto& f = *formEC.operator->();
    if (f.Option3.marcada && !éNumérico(f.Text7.texto))
        return recusar(f.Text7, "Diâmetro do coletor com valor numérico inválido!");
    if (!éNumérico(f.Combo4.texto) || std::ranges::find(espaços, lerEstrito(f.Combo4.texto)) == espaços.end())
        return acusar(f.Combo4, recusaDoEspaço);
    return contagensVálidas() && célulasVálidas({éVazio, "Há alguma célula da planilha vazia!"}) &&
           célulasVálidas({nãoÉNumérico, "Insira valores numéricos!"});
}

/// The angle may be left out, as a file that was saved without it says; a given one is an angle.
bool ânguloDeGiroVálido() {
    const auto& texto = formEC->Text9.texto;
    if (texto.empty() || texto == "N/E") return true;
    const bool ângulo = éNumérico(texto) && lerEstrito(texto) >= 0 && lerEstrito(texto) <= 360;
    return ângulo || acusar(formEC->Text9, "O valor de ângulo de giro deve estar entre 0 - 360º!");
}

/// A test narrower than the smallest spacing has none to be overlapped at.
bool larguraSuficiente() {
    const auto& f = *formEC.operator->();
    return !espaçamentosParaLargura((f.flex_A.linhas - 1) * lerPrefixo(f.Combo4.texto)).empty() ||
           acusar(f.Combo3, "A largura molhada do ensaio deve ser de 6 m ou mais!");
}

} // namespace

bool podeSalvarEnsaio() {
    return vazãoNumérica() && velocidadeNumérica() && condiçõesPresentes() && ventoVálido() &&
           listasVálidas() && célulasVálidas({nãoÉNumérico, "Insira um valores numéricos!"});
}

bool podeSobrepor() {
    constexpr std::array espaços = {2.0, 3.0, 6.0};
    return ensaioVálido(espaços, "O espaçamento entre coletores deve ser 2, 3 ou 6 m!") && vazãoNumérica() &&
           velocidadeNumérica() && larguraSuficiente();
}

bool podeGerarPerfil() {
    constexpr std::array espaços = {1.0, 1.5, 2.0, 3.0, 6.0};
    return ensaioVálido(espaços, "O espaçamento entre coletores deve ser 1, 1.5, 2, 3 ou 6 m!") &&
           (formEC->Text12.texto.empty() || vazãoNumérica()) && velocidadeNumérica() && ânguloDeGiroVálido();
}

} // namespace varenta
