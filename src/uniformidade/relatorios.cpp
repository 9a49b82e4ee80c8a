#include "uniformidade/relatorios.h"

#include "comum/arquivos_de_dados.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/form8.h"
#include "uniformidade/form9.h"

#include <initializer_list>
#include <string_view>

namespace varenta {
namespace {

constexpr std::string_view programa = "VARENTA - Versão 4.0";

void linhas(std::string& texto, std::initializer_list<const Rotulo*> rótulos) {
    for (const auto* rótulo : rótulos) acrescentarLinha(texto, rótulo->texto);
}

void linhaDaTabela(std::string& texto, const Grade& grade, int l) {
    for (int c = 0; c < grade.colunas; ++c) {
        texto += grade.célula(l, c);
        texto += '\t';
    }
    acrescentarLinha(texto, "");
}

/// A named value, as in "CUC 85.12 %".
void linhaDeValor(std::string& texto, std::string_view nome, const std::string& valor,
                  std::string_view unidade) {
    texto += nome;
    texto += valor;
    acrescentarLinha(texto, unidade);
}

std::string relatórioComTabela(const Grade& grade) {
    auto& f4 = *form4.operator->();
    auto& f5 = *form5.operator->();
    auto& f8 = *form8.operator->();
    std::string texto;
    acrescentarLinha(texto, programa);
    acrescentarLinha(texto, f8.Caption);
    acrescentarLinha(texto, "");
    linhas(texto, {&f4.Label1, &f4.Label2, &f4.Label3, &f4.Label4, &f4.Label8, &f5.Label39, &f4.Label7});
    acrescentarLinha(texto, "Início de Faixa:");
    linhas(texto, {&f8.Label4});
    linhaDeValor(texto, "Tempo de Parada - Tpi ", ouSubstituto(f5.txtParada.texto, "0"), " min");
    linhaDeValor(texto, "CUC ", f5.Label2.texto, " %");
    linhaDeValor(texto, "Imédio ", f5.Label1.texto, " mm");
    acrescentarLinha(texto, "Fim da Faixa:");
    linhas(texto, {&f8.Label5});
    linhaDeValor(texto, "Tempo de Parada - Tpf ", ouSubstituto(f5.Text4.texto, "0"), " min");
    linhaDeValor(texto, "CUC ", f5.Label3.texto, " %");
    linhaDeValor(texto, "Imédio ", f5.Label4.texto, " mm");
    acrescentarLinha(texto, "Toda Faixa:");
    linhaDeValor(texto, "Comprimento Carreador - Cc ", f5.txtMan.texto, " m");
    linhaDeValor(texto, "CUC Centro da Faixa ", f5.Label5.texto, " %");
    linhaDeValor(texto, "Imédio Centro da Faixa ", f5.Label7.texto, " mm");
    linhaDeValor(texto, "CUC Toda Faixa ", f5.Label6.texto, " %");
    linhaDeValor(texto, "Imédio Toda Faixa ", f5.Label8.texto, " mm");
    linhas(texto, {&f4.Label37, &f4.Label38});
    for (int l = 0; l < grade.linhas; ++l) linhaDaTabela(texto, grade, l);
    acrescentarLinha(texto, "");
    return texto;
}

} // namespace

void salvarRelatório(const std::string& relatório) {
    salvarArquivoDeDados(relatório, "O arquivo não pôde ser salvo: ", "!");
}

std::string linhasDoRelatório(const Grade& grade) {
    std::string texto;
    int l = 0;
    for (; l < grade.linhas && !grade.célula(l, 0).empty(); ++l) linhaDaTabela(texto, grade, l);
    if (l < grade.linhas)
        linhaDaTabela(texto, grade, l);
    else
        acrescentarLinha(texto, std::string(static_cast<std::size_t>(grade.colunas), '\t'));
    return texto;
}

std::string relatórioDoCentro() {
    auto& f = *form4.operator->();
    std::string texto;
    acrescentarLinha(texto, programa);
    acrescentarLinha(texto, "");
    acrescentarLinha(texto, f.Caption);
    acrescentarLinha(texto, "");
    linhas(texto, {&f.Label1, &f.Label2, &f.Label3, &f.Label4, &f.Label8, &f.Label7});
    acrescentarLinha(texto, "");
    linhas(texto, {&f.Label37, &f.Label38});
    acrescentarLinha(texto, "");
    texto += linhasDoRelatório(f.flexGrid_A);
    acrescentarLinha(texto, "");
    return texto;
}

std::string relatórioDaFaixa() { return relatórioComTabela(form8->flexGrid_C); }

std::string relatórioDasEficiências() { return relatórioComTabela(form9->flexA); }

} // namespace varenta
