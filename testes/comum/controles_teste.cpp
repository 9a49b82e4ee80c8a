#include "comum/controles.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

namespace varenta {
namespace {

using teste::erroDe;

/// A grid of the size given whose cells hold "row,column".
Grade gradeNumerada(int linhas, int colunas) {
    Grade grade;
    grade.dimensionar(linhas, colunas);
    for (int l = 0; l < linhas; ++l)
        for (int c = 0; c < colunas; ++c) grade.escrever(l, c, std::to_string(l) + "," + std::to_string(c));
    return grade;
}

TEST(Grade, AcusaÍndiceForaDosLimitesAoLerEAoEscrever) {
    auto grade = gradeNumerada(3, 2);
    EXPECT_EQ(grade.célula(2, 1), "2,1");
    for (const auto& [l, c] : {std::pair{3, 0}, {0, 2}, {-1, 0}, {0, -1}}) {
        EXPECT_EQ(erroDe([&, l = l, c = c] { grade.célula(l, c); }), "Índice fora dos limites");
        EXPECT_EQ(erroDe([&, l = l, c = c] { grade.escrever(l, c, "x"); }), "Índice fora dos limites");
    }
    EXPECT_EQ(grade.células, gradeNumerada(3, 2).células);
}

TEST(Grade, DimensionarGuardaAsCélulasQueCabemEEsvaziaAsNovas) {
    auto grade = gradeNumerada(2, 2);
    grade.dimensionar(3, 3);
    EXPECT_EQ(grade.células, (std::vector<std::string>{"0,0", "0,1", "", "1,0", "1,1", "", "", "", ""}));
    grade.dimensionar(2, 1);
    EXPECT_EQ(grade.células, (std::vector<std::string>{"0,0", "1,0"}));
    EXPECT_EQ(grade.alinhamentos.size(), 1u);
}

TEST(Grade, DimensionarMantémACélulaAtualDentroDela) {
    auto grade = gradeNumerada(5, 4);
    grade.linhaAtual = 4;
    grade.colunaAtual = 3;
    grade.dimensionar(3, 4);
    EXPECT_EQ(grade.linhaAtual, 2);
    EXPECT_EQ(grade.colunaAtual, 3);
    grade.dimensionar(3, 2);
    EXPECT_EQ(grade.colunaAtual, 1);
}

TEST(Grade, DimensionarRecusaTamanhoSemCélulas) {
    auto grade = gradeNumerada(2, 2);
    EXPECT_EQ(erroDe([&] { grade.dimensionar(0, 2); }), "Valor de propriedade inválido");
    EXPECT_EQ(erroDe([&] { grade.dimensionar(2, -1); }), "Valor de propriedade inválido");
    EXPECT_EQ(grade.linhas, 2);
    EXPECT_EQ(grade.colunas, 2);
}

TEST(Grade, FormatoPõeCabeçalhosEAlinhamentos) {
    auto grade = gradeNumerada(2, 2);
    grade.formato("^  No   |^ Distância (m) |> Lâmina (mm) | Nota ");
    EXPECT_EQ(grade.colunas, 4);
    EXPECT_EQ(grade.linhas, 2);
    EXPECT_EQ(grade.célula(0, 0), "No");
    EXPECT_EQ(grade.célula(0, 1), "Distância (m)");
    EXPECT_EQ(grade.célula(0, 2), "Lâmina (mm)");
    EXPECT_EQ(grade.célula(0, 3), "Nota");
    EXPECT_EQ(grade.alinhamentos, (std::vector{Alinhamento::centro, Alinhamento::centro, Alinhamento::direita,
                                               Alinhamento::esquerda}));
    EXPECT_EQ(grade.célula(1, 1), "1,1");
}

TEST(Grade, FormatoAdmiteColunasVazias) {
    Grade grade;
    grade.formato("^No||^");
    EXPECT_EQ(grade.colunas, 3);
    EXPECT_EQ(grade.célula(0, 0), "No");
    EXPECT_EQ(grade.célula(0, 1), "");
    EXPECT_EQ(grade.célula(0, 2), "");
    EXPECT_EQ(grade.alinhamentos.back(), Alinhamento::centro);
}

TEST(Grade, VersãoCresceACadaMudança) {
    Grade grade;
    auto antes = grade.versão;
    grade.escrever(1, 1, "x");
    EXPECT_GT(grade.versão, antes);
    antes = grade.versão;
    grade.dimensionar(4, 4);
    EXPECT_GT(grade.versão, antes);
}

TEST(ElementoDeTela, NomeCompletoTrazOÍndice) {
    Rotulo rótulo;
    EXPECT_EQ((Elemento{"Label3", 0, &rótulo}.nomeCompleto()), "Label3(0)");
    EXPECT_EQ((Elemento{"Label2", std::nullopt, &rótulo}.nomeCompleto()), "Label2");
    EXPECT_EQ((Elemento{"Label2", std::nullopt, &rótulo}.endereço()), &rótulo);
}

TEST(ElementoDeTela, VisívelEHabilitadoVêmDoControle) {
    CaixaTexto caixa;
    const Elemento elemento{"caixa", std::nullopt, &caixa};
    EXPECT_TRUE(estáVisível(elemento));
    EXPECT_TRUE(estáHabilitado(elemento));
    caixa.visivel = false;
    caixa.habilitado = false;
    EXPECT_FALSE(estáVisível(elemento));
    EXPECT_FALSE(estáHabilitado(elemento));
}

TEST(ElementoDeTela, BotãoEItemSemTratadorEstãoDesabilitados) {
    Botao botão;
    ItemMenu item;
    const Elemento doBotão{"b", std::nullopt, &botão}, doItem{"i", std::nullopt, &item};
    EXPECT_FALSE(estáHabilitado(doBotão));
    EXPECT_FALSE(estáHabilitado(doItem));
    botão.aoClicar = item.aoClicar = [] {};
    EXPECT_TRUE(estáHabilitado(doBotão));
    EXPECT_TRUE(estáHabilitado(doItem));
    botão.habilitado = item.habilitado = false;
    EXPECT_FALSE(estáHabilitado(doBotão));
    EXPECT_FALSE(estáHabilitado(doItem));
}

} // namespace
} // namespace varenta
