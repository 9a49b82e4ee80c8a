#include "ajuste/form_e.h"

#include "ajuste/arquivo_ensaio.h"
#include "ajuste/cabecalhos.h"
#include "ajuste/operacoes_ensaio.h"
#include "ajuste/verificacoes_ensaio.h"
#include "comum/ajuda.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"

#include <algorithm>

namespace varenta {
namespace {

template <int n>
TelaDeEnsaio tela() {
    return {form_E(n), *form_E(n).operator->(), n};
}

/// The grid with `lado` rows and columns, headers included.
void montarPlanilha(RegistroFormE& f, int lado) {
    dimensionarPlanilha(f, lado, lado);
    escreverCabeçalhosDaMalha(f.flex_A, "Co", inteiroDaLista(f.Combo2), lerPrefixo(f.Combo1.texto));
    entrarNaCélula(planilhaDoEnsaio(f));
}

/// A number typed makes the grid larger, but never smaller: rows and columns beyond it keep their
/// readings and lose their headers, until a list is picked from.
void digitarTamanho(int n) {
    auto& f = *form_E(n).operator->();
    if (!éContagem(f.Combo2) || !cabeNosCabeçalhos(f.Combo1)) return;
    const int lado = std::max(inteiroDaLista(f.Combo2) + 1, f.flex_A.linhas);
    montarPlanilha(f, lado);
}

void escolherEspaçamento(int n) {
    auto& f = *form_E(n).operator->();
    const double e = lerPrefixo(f.Combo1.texto);
    corrigirLista(f.Combo1, e == 2 || e == 3 || e == 6, "6.0");
    corrigirLista(f.Combo2, éContagem(f.Combo2), "14");
    Erro_plan(n);
}

void escolherTamanho(int n) {
    auto& f = *form_E(n).operator->();
    corrigirLista(f.Combo2, éContagem(f.Combo2), "14");
    corrigirLista(f.Combo1, cabeNosCabeçalhos(f.Combo1), "6.0");
    Erro_plan(n);
}

/// The boxes in sight tell the unit from before: one that is set again empties none of them.
void escolherUnidade(int n) {
    auto& f = *form_E(n).operator->();
    const bool comTempo = !f.Option1.marcada, comDiâmetro = f.Option3.marcada;
    if (f.Text6.visivel == comTempo && f.Text7.visivel == comDiâmetro) return;
    f.Label8.visivel = f.Text6.visivel = comTempo;
    definirTexto(f.Text6, "");
    mostrarDiâmetro(f);
}

/// What was typed stays: the grid keeps its size, as with a smaller number typed.
void voltarAosPadrões(int n) {
    auto& f = *form_E(n).operator->();
    definirTexto(f.Combo1, "6.0");
    definirTexto(f.Combo2, "14");
    definirValor(f.HScroll2, 30);
    definirValor(f.HScroll1, 45);
    marcar(form_E(n), f.Option1);
    marcar(form_E(n), f.Option2);
    digitarTamanho(n);
}

void preencher(int n, const ArquivoDeMalha& arquivo) {
    auto& f = *form_E(n).operator->();
    definirTexto(f.Combo2, std::to_string(arquivo.N));
    definirTexto(f.Combo1, Format(arquivo.e, "0.0"));
    definirValor(f.HScroll2, paraInteiro(arquivo.W * 10));
    definirValor(f.HScroll1, arquivo.direção);
    marcar(form_E(n), arquivo.modo == 1 ? f.Option1 : arquivo.modo == 2 ? f.Option4 : f.Option3);
    definirTexto(f.Text6, arquivo.tempo);
    definirTexto(f.Text7, arquivo.diâmetro);
    Erro_plan(n);
    escreverLeituras(f.flex_A, arquivo.leituras);
    escreverAspersorDoArquivo(f, arquivo);
    mostrarEntrada(f, false);
}

void abrirArquivo(int n) {
    auto& f = *form_E(n).operator->();
    abrirArquivoDeEnsaio({form_E(n), f, n}, {&f.Text6, &f.Text7}, [n](const std::string& caminho) {
        try {
            preencher(n, lerArquivoDeMalha(caminho));
        } catch (const EnsaioRecusado& recusa) {
            plataforma::mensagem(recusa.what(), recusa.onde);
            voltarAosPadrões(n);
        } catch (...) {
            voltarAosPadrões(n);
            throw;
        }
    });
}

std::string textoDoArquivo(RegistroFormE& f, const FichaDoAspersor& ficha) {
    std::vector<std::string> modo = {"1"};
    if (f.Option4.marcada) modo = {"2", f.Text6.texto};
    if (f.Option3.marcada) modo = {"3", f.Text6.texto, f.Text7.texto};
    const int N = inteiroDaLista(f.Combo2);
    return unirLinhas({linhasDoAspersor(ficha),
                       {f.Combo2.texto, f.Combo1.texto, f.Label17.texto, f.Label2.texto},
                       modo,
                       linhasDasLeituras(f.flex_A, N, N),
                       {""}});
}

void salvar(int n, Aspersor aspersor) {
    auto& f = *form_E(n).operator->();
    confirmarEntrada(f);
    if (aceito(recusaDoSalvamento(f, n), {form_E(n), f, n}, TextoRecusado::fica))
        salvarArquivoDeEnsaio(textoDoArquivo(f, fichaDoAspersor(aspersor)));
}

template <int n>
void carregar() {
    associarAjuda();
    auto& f = *form_E(n).operator->();
    f.Caption = "Dados de Precipitação Observados no Ensaio " + std::to_string(n);
    for (int lado = 6; lado <= 60; lado += 2) f.Combo2.itens.push_back(std::to_string(lado));
    ligarEnsaio<tela<n>>();
    f.Combo2.aoClicar = [] { escolherTamanho(n); };
    f.Combo1.aoClicar = [] { escolherEspaçamento(n); };
    f.Combo2.aoConfirmar = f.Combo1.aoConfirmar = [] { digitarTamanho(n); };
    f.Option1.aoClicar = f.Option4.aoClicar = f.Option3.aoClicar = [] { escolherUnidade(n); };
    f.Option5.aoClicar = [] { abrirArquivo(n); };
    f.Command3.aoClicar = mostrarAjuda<topicos::form_E>;
    f.Command1.aoClicar = [] { salvar(n, Aspersor::doCatálogo); };
    f.Command6.aoClicar = [] { salvar(n, Aspersor::outro); };
    escreverDireçãoDoVento(f);
    Erro_plan(n);
}

template <int n>
EventosTela eventos() {
    return {.aoCarregar = carregar<n>,
            .aoFechar = [] { fecharEnsaio(tela<n>()); },
            .tópicoDaAjuda = topicos::form_E};
}

} // namespace

EventosTela eventosDeForm_E(int n) { return n == 1 ? eventos<1>() : n == 2 ? eventos<2>() : eventos<3>(); }

void Erro_plan(int n) {
    auto& f = *form_E(n).operator->();
    montarPlanilha(f, inteiroDaLista(f.Combo2) + 1);
}

} // namespace varenta
