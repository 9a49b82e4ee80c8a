#include "comum/planilha.h"

#include "comum/limites.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"

#include <algorithm>
#include <utility>

namespace varenta {
namespace {

/// What its headers make, as in "2 : Distância - r (m)".
std::string nomeDe(const Grade& grade, int linha, int coluna) {
    return grade.célula(linha, 0) + " : " + grade.célula(0, coluna);
}

/// Answers and returns false while the row count is no number.
bool temContagem(const Planilha& planilha) {
    if (!planilha.contagem || éNumérico(planilha.contagem->texto)) return true;
    plataforma::mensagem("Insira valores numéricos!");
    focar(*planilha.contagem);
    return false;
}

/// A cell of a block, with its place in the grid.
struct CélulaColada {
    int linha, coluna;
    const std::string& texto;
};

std::vector<CélulaColada> lugaresDe(const Bloco& bloco, const Grade& grade) {
    std::vector<CélulaColada> células;
    int linha = grade.linhaAtual;
    for (const auto& textos : bloco) {
        int coluna = grade.colunaAtual;
        for (const auto& texto : textos) células.push_back({linha, coluna++, texto});
        ++linha;
    }
    return células;
}

/// The same amid a message: some headers end in a blank that only widens them.
std::string nomeNaMensagem(const Grade& grade, int linha, int coluna) {
    auto nome = nomeDe(grade, linha, coluna);
    nome.resize(nome.find_last_not_of(' ') + 1);
    return nome;
}

/// Why the block can't be pasted; empty where it can.
std::string recusaDoBloco(const Bloco& bloco, const Grade& grade) {
    const auto colunas = bloco.front().size();
    if (bloco.size() > static_cast<std::size_t>(grade.linhas - grade.linhaAtual) ||
        colunas > static_cast<std::size_t>(grade.colunas - grade.colunaAtual))
        return "Nada foi colado: o bloco, de " + std::to_string(bloco.size()) + " x " +
               std::to_string(colunas) + " células, não cabe a partir da célula " +
               nomeNaMensagem(grade, grade.linhaAtual, grade.colunaAtual) + "!";
    for (const auto& [linha, coluna, texto] : lugaresDe(bloco, grade))
        if (!éNumérico(texto))
            return "Nada foi colado: o valor da célula " + nomeNaMensagem(grade, linha, coluna) +
                   (texto.empty() ? " está vazio!" : " não é um número!");
    return {};
}

/// Makes a cell the current one. What can fail comes first: an entry line that still held the text of the
/// cell before would write it over this one's.
void entrarEm(const Planilha& planilha, int linha, int coluna) {
    auto& grade = planilha.grade;
    auto texto = grade.célula(linha, coluna);
    auto nome = nomeDe(grade, linha, coluna);
    grade.linhaAtual = linha;
    grade.colunaAtual = coluna;
    if (!planilha.digitação) return;
    planilha.nomeDaCélula.texto = std::move(nome);
    definirTexto(planilha.entrada, std::move(texto));
}

} // namespace

void nomearCélula(const Planilha& planilha) {
    const auto& grade = planilha.grade;
    planilha.nomeDaCélula.texto = nomeDe(grade, grade.linhaAtual, grade.colunaAtual);
}

void entrarNaCélula(const Planilha& planilha) {
    if (planilha.digitação) entrarEm(planilha, planilha.grade.linhaAtual, planilha.grade.colunaAtual);
}

void sairDaCélula(const Planilha& planilha) {
    auto& grade = planilha.grade;
    if (!planilha.digitação || grade.linhaAtual < 1 || grade.colunaAtual < 1) return;
    std::string texto = planilha.entrada.texto;
    if (éNumérico(texto)) texto = Format(lerPrefixo(texto), planilha.padrãoDaColuna(grade.colunaAtual));
    grade.escrever(grade.linhaAtual, grade.colunaAtual, std::move(texto));
    if (planilha.aoMudar) planilha.aoMudar();
}

void voltarADigitar(Planilha planilha) {
    sairDaCélula(planilha);
    planilha.digitação = true;
    entrarNaCélula(planilha);
}

void dimensionar(const Planilha& planilha, int linhas, int colunas) {
    auto& grade = planilha.grade;
    const int linha = std::min(grade.linhaAtual, linhas - 1),
              coluna = std::min(grade.colunaAtual, colunas - 1);
    if (grade.linhaAtual != linha || grade.colunaAtual != coluna) entrarEm(planilha, linha, coluna);
    grade.dimensionar(linhas, colunas);
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
    planilha.grade.célula(linha, coluna);
    sairDaCélula(planilha);
    entrarEm(planilha, linha, coluna);
}

void colar(const Planilha& planilha, const Bloco& bloco) {
    if (!temContagem(planilha)) return;
    const auto& grade = planilha.grade;
    if (const auto recusa = recusaDoBloco(bloco, grade); !recusa.empty()) {
        plataforma::mensagem(recusa);
        return;
    }
    const int linha = grade.linhaAtual, coluna = grade.colunaAtual;
    // The screen hears of all cells at once, with the last one: it looks at its whole grid each time.
    auto semAviso = planilha;
    semAviso.aoMudar = nullptr;
    for (const auto& célula : lugaresDe(bloco, grade)) {
        irParaCélula(semAviso, célula.linha, célula.coluna);
        definirTexto(planilha.entrada, célula.texto);
    }
    irParaCélula(planilha, linha, coluna);
    receberFoco(planilha);
}

void receberFoco(const Planilha& planilha) {
    focar(planilha.entrada);
    planilha.entrada.tudoSelecionado = true;
}

bool teclar(const Planilha& planilha, int tecla) {
    if (!temContagem(planilha)) return true;
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
