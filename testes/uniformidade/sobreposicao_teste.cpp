#include "uniformidade/sobreposicao.h"

#include "apoio/atalhos.h"
#include "comum/erro_execucao.h"
#include "uniformidade/uniformidade_centro.h"

#include <gtest/gtest.h>

namespace varenta {
namespace {

using Lâminas = std::vector<double>;

TEST(Sobrepor, PerfilDaLarguraDoEspaçamentoSomaOsDoisLados) {
    // Right side 1 2 3 from the first position on, left side 10 20 30 from the last one back.
    const auto soma = sobrepor(Lâminas{1, 2, 3}, Lâminas{10, 20, 30}, 3);
    EXPECT_EQ(soma.direita, (Lâminas{1, 2, 3}));
    EXPECT_EQ(soma.esquerda, (Lâminas{30, 20, 10}));
    EXPECT_EQ(soma.total, (Lâminas{31, 22, 13}));
}

TEST(Sobrepor, PerfilMaisLargoQueOEspaçamentoDáMaisDeUmaVolta) {
    // Two positions: the right side 1 2 3 4 5 falls on 1 2 1 2 1, the left side 10 20 30 on 2 1 2.
    const auto soma = sobrepor(Lâminas{1, 2, 3, 4, 5}, Lâminas{10, 20, 30}, 2);
    EXPECT_EQ(soma.direita, (Lâminas{9, 6}));
    EXPECT_EQ(soma.esquerda, (Lâminas{20, 40}));
    EXPECT_EQ(soma.total, (Lâminas{29, 46}));
}

TEST(Sobrepor, PerfilMaisEstreitoDeixaPosiçõesSecasNoMeioQueContamNasEstatísticas) {
    const auto soma = sobrepor(Lâminas{4}, Lâminas{2}, 4);
    EXPECT_EQ(soma.total, (Lâminas{4, 0, 0, 2}));
    const auto valores = calcularEstatísticas(soma.total, menorQuarto(4));
    EXPECT_EQ(valores.media, 1.5);
    EXPECT_EQ(valores.UD, 0);
    // |1.5 - 4| + 1.5 + 1.5 + 0.5 = 6, over 1.5 x 4: 100 x (1 - 1).
    EXPECT_EQ(valores.CUC, 0);
}

TEST(Sobrepor, ChamaACadaSomaDaEsquerdaComOTotalDaquelaPosição) {
    Lâminas vistos;
    sobrepor(Lâminas{1, 2}, Lâminas{10, 20, 30}, 2, [&](double total) { vistos.push_back(total); });
    EXPECT_EQ(vistos, (Lâminas{12, 21, 42}));
}

TEST(Sobrepor, SemPosiçõesÉÍndiceFora) {
    for (const int n : {0, -2}) EXPECT_THROW(sobrepor(Lâminas{1}, Lâminas{1}, n), ErroExecucao);
}

TEST(PosicoesEntreCarreadores, OQueNãoDivideVaiParaOInteiroMaisPróximoEEmpateParaOPar) {
    EXPECT_EQ(posiçõesEntreCarreadores(48, 3), 16);
    EXPECT_EQ(posiçõesEntreCarreadores(48.4, 3), 16);
    EXPECT_EQ(posiçõesEntreCarreadores(5, 2), 2); // 2.5
    EXPECT_EQ(posiçõesEntreCarreadores(7, 2), 4); // 3.5
}

TEST(MenorQuarto, DoisACincoDãoUmSeisANoveDoisEDezTrês) {
    for (const std::size_t n : std::vector<std::size_t>{2, 3, 4, 5}) EXPECT_EQ(menorQuarto(n), 1u) << n;
    for (const std::size_t n : std::vector<std::size_t>{6, 7, 8, 9}) EXPECT_EQ(menorQuarto(n), 2u) << n;
    EXPECT_EQ(menorQuarto(10), 3u);
}

TEST(Estatisticas, LâminaUniformeDáCemECem) {
    const auto valores = calcularEstatísticas(Lâminas(8, 12.5), 2);
    EXPECT_EQ(valores.media, 12.5);
    EXPECT_EQ(valores.UD, 100);
    EXPECT_EQ(valores.CUC, 100);
}

TEST(Estatisticas, CasoFeitoÀMão) {
    // Mean of 10 20 30 20 10 30 40 0 is 20; the two smallest are 0 and 10, so UD = 100 x 5 / 20. Deviations
    // 10 0 10 0 10 10 20 20 sum to 80: CUC = 100 x (1 - 80 / 160).
    const auto valores = calcularEstatísticas(Lâminas{10, 20, 30, 20, 10, 30, 40, 0}, 2);
    EXPECT_EQ(valores.media, 20);
    EXPECT_EQ(valores.UD, 25);
    EXPECT_EQ(valores.CUC, 50);
}

TEST(Estatisticas, SemMenorQuartoOuSóComZerosÉEstouro) {
    EXPECT_EQ(teste::erroDe([] { calcularEstatísticas(Lâminas{5}, 0); }), estouro);
    EXPECT_EQ(teste::erroDe([] { calcularEstatísticas(Lâminas{0, 0, 0}, 1); }), estouro);
}

TEST(Estatisticas, MédiaZeroDeValoresQueNãoSãoZeroÉDivisãoPorZero) {
    EXPECT_EQ(teste::erroDe([] { calcularEstatísticas(Lâminas{-4, 4, 2, -2}, 1); }), divisãoPorZero);
}

TEST(EspacamentosParaRaio, VãoDeQuarentaPorCentoDoDiâmetroAoDiâmetroDeSeisEmSeis) {
    // R = 49.85: 2R x 0.4 / 6 = 6.6..., so from 36 to 96 (2R = 99.7).
    EXPECT_EQ(espaçamentosParaRaio(49.85),
              (std::vector<std::string>{"36", "42", "48", "54", "60", "66", "72", "78", "84", "90", "96"}));
    // 2R itself is still offered.
    EXPECT_EQ(espaçamentosParaRaio(30).back(), "60");
}

} // namespace
} // namespace varenta
