#include "ajuste/form_mie.h"

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
    return {form_MiE(n), *form_MiE(n).operator->(), n};
}

/// Columns and rows beyond the test have no headers.
void escreverCabeçalhos(RegistroFormMiE& f) {
    const int L = inteiroDaLista(f.Combo1);
    const char* unidade = f.Option4.marcada ? " - I(mm)" : " - I(ml)";
    for (int k = 1; k < f.flex_A.colunas; ++k)
        f.flex_A.escrever(0, k, k > L ? std::string{} : "Linha " + std::to_string(k) + unidade);
    escreverPosições(f.flex_A, inteiroDaLista(f.Combo3), lerPrefixo(f.Combo4.texto));
}

void montarPlanilha(RegistroFormMiE& f, int linhas, int colunas) {
    dimensionarPlanilha(f, linhas, colunas);
    escreverCabeçalhos(f);
    entrarNaCélula(planilhaDoEnsaio(f));
}

/// A number typed makes the grid larger, but never smaller: rows and columns beyond it keep their
/// readings and lose their headers, until a list is picked from.
void digitarTamanho(int n) {
    auto& f = *form_MiE(n).operator->();
    if (!éContagem(f.Combo1) || !éContagem(f.Combo3) || !cabeNosCabeçalhos(f.Combo4)) return;
    const int linhas = std::max(2 * inteiroDaLista(f.Combo3) + 1, f.flex_A.linhas);
    const int colunas = std::max(inteiroDaLista(f.Combo1) + 1, f.flex_A.colunas);
    montarPlanilha(f, linhas, colunas);
}

/// One of the lists was picked from: it must show a number, and so must those that make the grid.
void escolher(int n, Lista& lista, const char* padrão) {
    auto& f = *form_MiE(n).operator->();
    corrigirLista(lista, éNumérico(lista.texto), padrão);
    corrigirLista(f.Combo1, éContagem(f.Combo1), "3");
    corrigirLista(f.Combo3, éContagem(f.Combo3), "20");
    corrigirLista(f.Combo4, cabeNosCabeçalhos(f.Combo4), "2.0");
    MIErro_plan(n);
}

void escolherUnidade(int n) {
    auto& f = *form_MiE(n).operator->();
    mostrarDiâmetro(f);
    digitarTamanho(n);
}

/// As on the screen of a grid test.
void voltarAosPadrões(int n) {
    auto& f = *form_MiE(n).operator->();
    definirTexto(f.Combo1, "3");
    definirTexto(f.Combo2, "6.0");
    definirTexto(f.Combo3, "20");
    definirTexto(f.Combo4, "2.0");
    definirTexto(f.Combo6, "");
    definirTexto(f.Text1, "");
    definirValor(f.HScroll2, 30);
    definirValor(f.HScroll1, 45);
    marcar(form_MiE(n), f.Option4);
    marcar(form_MiE(n), f.Option2);
}

void preencher(int n, const ArquivoMóvelComVento& arquivo) {
    auto& f = *form_MiE(n).operator->();
    definirTexto(f.Text1, arquivo.velocidade);
    definirTexto(f.Combo6, paraTexto(arquivo.anguloGiro));
    definirTexto(f.Combo1, std::to_string(arquivo.linhas));
    definirTexto(f.Combo2, Format(arquivo.eL, "0.0"));
    definirTexto(f.Combo3, std::to_string(arquivo.cadaLado));
    definirTexto(f.Combo4, Format(arquivo.eC, "0.0"));
    definirValor(f.HScroll2, paraInteiro(arquivo.W * 10));
    definirValor(f.HScroll1, arquivo.direção);
    marcar(form_MiE(n), arquivo.modo == 1 ? f.Option4 : f.Option3);
    definirTexto(f.Text7, arquivo.diâmetro);
    MIErro_plan(n);
    escreverLeituras(f.flex_A, arquivo.leituras);
    escreverAspersorDoArquivo(f, arquivo);
    mostrarEntrada(f, false);
}

void abrirArquivo(int n) {
    auto& f = *form_MiE(n).operator->();
    abrirArquivoDeEnsaio({form_MiE(n), f, n}, {&f.Text7}, [n](const std::string& caminho) {
        try {
            preencher(n, lerArquivoMóvel(caminho));
        } catch (const EnsaioRecusado& recusa) {
            plataforma::mensagem(recusa.what(), recusa.onde);
            voltarAosPadrões(n);
        } catch (...) {
            voltarAosPadrões(n);
            throw;
        }
    });
}

/// The last row has no line end.
std::string textoDoArquivo(RegistroFormMiE& f, const FichaDoAspersor& ficha) {
    std::vector<std::string> modo = {"1"};
    if (f.Option3.marcada) modo = {"2", f.Text7.texto};
    return unirLinhas({linhasDoAspersor(ficha),
                       {f.Text1.texto, f.Combo6.texto, f.Combo1.texto, f.Combo2.texto, f.Combo3.texto,
                        f.Combo4.texto, f.Label17.texto, f.Label2.texto},
                       modo,
                       linhasDasLeituras(f.flex_A, 2 * inteiroDaLista(f.Combo3), inteiroDaLista(f.Combo1))});
}

void salvar(int n, Aspersor aspersor) {
    auto& f = *form_MiE(n).operator->();
    confirmarEntrada(f);
    if (aceito(recusaDoSalvamento(f, n), {form_MiE(n), f, n}, TextoRecusado::fica))
        salvarArquivoDeEnsaio(textoDoArquivo(f, fichaDoAspersor(aspersor)));
}

template <int n>
void carregar() {
    associarAjuda();
    auto& f = *form_MiE(n).operator->();
    f.Caption = "Dados de Precipitação Observados no Ensaio " + std::to_string(n);
    for (int k = 1; k <= 10; ++k) f.Combo1.itens.push_back(std::to_string(k));
    for (int k = 1; k <= 12; ++k) f.Combo2.itens.push_back(Format(k, "0.0"));
    for (int k = 3; k <= 40; ++k) f.Combo3.itens.push_back(std::to_string(k));
    for (int k = 180; k <= 360; k += 30) f.Combo6.itens.push_back(std::to_string(k));
    ligarEnsaio<tela<n>>();
    f.Combo1.aoClicar = [] { escolher(n, form_MiE(n)->Combo1, "3"); };
    f.Combo2.aoClicar = [] { escolher(n, form_MiE(n)->Combo2, "6.0"); };
    f.Combo3.aoClicar = [] { escolher(n, form_MiE(n)->Combo3, "20"); };
    f.Combo4.aoClicar = [] { escolher(n, form_MiE(n)->Combo4, "2.0"); };
    f.Combo6.aoClicar = [] { escolher(n, form_MiE(n)->Combo6, ""); };
    f.Combo1.aoConfirmar = f.Combo3.aoConfirmar = f.Combo4.aoConfirmar = [] { digitarTamanho(n); };
    f.Option4.aoClicar = f.Option3.aoClicar = [] { escolherUnidade(n); };
    f.Option5.aoClicar = [] { abrirArquivo(n); };
    f.Command3.aoClicar = mostrarAjuda<topicos::form_MiE>;
    f.Command1.aoClicar = [] { salvar(n, Aspersor::doCatálogo); };
    f.Command6.aoClicar = [] { salvar(n, Aspersor::outro); };
    escreverDireçãoDoVento(f);
    MIErro_plan(n);
}

template <int n>
EventosTela eventos() {
    return {.aoCarregar = carregar<n>,
            .aoFechar = [] { fecharEnsaio(tela<n>()); },
            .tópicoDaAjuda = topicos::form_MiE};
}

} // namespace

EventosTela eventosDeForm_MiE(int n) { return n == 1 ? eventos<1>() : n == 2 ? eventos<2>() : eventos<3>(); }

void MIErro_plan(int n) {
    auto& f = *form_MiE(n).operator->();
    montarPlanilha(f, 2 * inteiroDaLista(f.Combo3) + 1, inteiroDaLista(f.Combo1) + 1);
}

} // namespace varenta
