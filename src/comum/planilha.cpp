#include "comum/planilha.h"

#include "comum/limites.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"

namespace varenta {

void nomearCélula(const Planilha& planilha) {
    const auto& grade = planilha.grade;
    planilha.nomeDaCélula.texto =
        grade.célula(grade.linhaAtual, 0) + " : " + grade.célula(0, grade.colunaAtual);
}

void entrarNaCélula(const Planilha& planilha) {
    if (!planilha.digitação) return;
    const auto& grade = planilha.grade;
    nomearCélula(planilha);
    definirTexto(planilha.entrada, grade.célula(grade.linhaAtual, grade.colunaAtual));
}

void sairDaCélula(const Planilha& planilha) {
    auto& grade = planilha.grade;
    if (!planilha.digitação || grade.linhaAtual < 1 || grade.colunaAtual < 1) return;
    std::string texto = planilha.entrada.texto;
    if (éNumérico(texto)) texto = Format(lerPrefixo(texto), planilha.padrãoDaColuna(grade.colunaAtual));
    grade.escrever(grade.linhaAtual, grade.colunaAtual, std::move(texto));
    if (planilha.aoMudar) planilha.aoMudar();
}

void dimensionar(const Planilha& planilha, int linhas, int colunas) {
    auto& grade = planilha.grade;
    const int linha = grade.linhaAtual, coluna = grade.colunaAtual;
    grade.dimensionar(linhas, colunas);
    if (grade.linhaAtual != linha || grade.colunaAtual != coluna) entrarNaCélula(planilha);
}

std::string recusaDoTamanho(double linhas, double colunas) {
    constexpr double lado = maiorLadoDaPlanilha;
    if (linhas <= lado && colunas <= lado && linhas * colunas <= static_cast<double>(maisCélulasDaPlanilha))
        return {};
    const auto máximo = std::to_string(maiorLadoDaPlanilha);
    return "A planilha pode ter no máximo " + máximo + " linhas, " + máximo + " colunas e " +
           std::to_string(maisCélulasDaPlanilha) + " células!";
}

void esvaziarDados(Grade& grade) {
    for (int l = 1; l < grade.linhas; ++l)
        for (int c = 1; c < grade.colunas; ++c) grade.escrever(l, c, "");
}

std::string textoDePreenchidas(const Grade& grade) {
    int quantas = 0;
    for (int l = 1; l < grade.linhas; ++l)
        for (int c = 1; c < grade.colunas; ++c) quantas += !grade.célula(l, c).empty();
    return "Células preenchidas: " + std::to_string(quantas) + " de " +
           std::to_string((grade.linhas - 1) * (grade.colunas - 1));
}

void irParaCélula(const Planilha& planilha, int linha, int coluna) {
    auto& grade = planilha.grade;
    grade.célula(linha, coluna);
    sairDaCélula(planilha);
    grade.linhaAtual = linha;
    grade.colunaAtual = coluna;
    entrarNaCélula(planilha);
}

void receberFoco(const Planilha& planilha) {
    focar(planilha.entrada);
    planilha.entrada.tudoSelecionado = true;
}

bool teclar(const Planilha& planilha, int tecla) {
    if (planilha.contagem && !éNumérico(planilha.contagem->texto)) {
        plataforma::mensagem("Insira valores numéricos!");
        focar(*planilha.contagem);
        return true;
    }
    if (tecla != teclaEnter || !planilha.digitação) return false;
    const auto& grade = planilha.grade;
    if (grade.colunaAtual + 1 < grade.colunas)
        irParaCélula(planilha, grade.linhaAtual, grade.colunaAtual + 1);
    else if (grade.linhaAtual + 1 < grade.linhas)
        irParaCélula(planilha, grade.linhaAtual + 1, 1);
    else
        irParaCélula(planilha, grade.linhaAtual, grade.colunaAtual);
    return true;
}

} // namespace varenta
