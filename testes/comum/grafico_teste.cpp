#include "comum/grafico.h"

#include <gtest/gtest.h>

namespace varenta {
namespace {

TEST(Grafico, AMalhaÉFinaEBrancaEDepoisGrossaEPreta) {
    // A rectangle 10 to 50 by 20 to 60 with a light line every 8 and a heavy one every 20.
    constexpr MalhaDeGráfico malha{.esquerda = 10,
                                   .direita = 50,
                                   .topo = 20,
                                   .base = 60,
                                   .finasVerticais = {18, 8, 2},
                                   .finasHorizontais = {28, 8, 1},
                                   .grossasVerticais = {30, 20, 1},
                                   .grossasHorizontais = {40, 20, 1}};
    Desenho desenho;
    desenharMalha(desenho, malha);
    const double esperadas[][4] = {
        {18, 20, 18, 60}, {26, 20, 26, 60}, {10, 28, 50, 28}, {30, 20, 30, 60}, {10, 40, 50, 40}};
    ASSERT_EQ(desenho.traços.size(), 5u);
    for (std::size_t n = 0; n < 5; ++n) {
        const auto& linha = std::get<Linha>(desenho.traços[n]);
        EXPECT_EQ(linha.x1, esperadas[n][0]);
        EXPECT_EQ(linha.y1, esperadas[n][1]);
        EXPECT_EQ(linha.x2, esperadas[n][2]);
        EXPECT_EQ(linha.y2, esperadas[n][3]);
        EXPECT_EQ(linha.cor, n < 3 ? cores::branco : cores::preto);
        EXPECT_EQ(linha.largura, 1);
    }
    EXPECT_EQ(malha.largura(), 40);
    EXPECT_EQ(malha.altura(), 40);
}

TEST(Grafico, ORetânguloContémAsSuasBordas) {
    constexpr MalhaDeGráfico malha{.esquerda = 68,
                                   .direita = 348,
                                   .topo = 28,
                                   .base = 203,
                                   .finasVerticais = {},
                                   .finasHorizontais = {},
                                   .grossasVerticais = {},
                                   .grossasHorizontais = {}};
    EXPECT_TRUE(malha.contém(68, 28));
    EXPECT_TRUE(malha.contém(348, 203));
    EXPECT_FALSE(malha.contém(67.5, 100));
    EXPECT_FALSE(malha.contém(348.5, 100));
    EXPECT_FALSE(malha.contém(100, 27.5));
    EXPECT_FALSE(malha.contém(100, 203.5));
}

TEST(Grafico, OPontoMarcadoÉCheioEOQueVemDepoisNão) {
    Desenho desenho;
    marcarPonto(desenho, {10, 20});
    desenho.arco(30, 40, 5, cores::preto);
    ASSERT_EQ(desenho.traços.size(), 2u);
    const auto& ponto = std::get<Arco>(desenho.traços[0]);
    EXPECT_EQ(ponto.cx, 10);
    EXPECT_EQ(ponto.cy, 20);
    EXPECT_EQ(ponto.cor, cores::vermelho);
    EXPECT_TRUE(ponto.preenchido);
    EXPECT_FALSE(std::get<Arco>(desenho.traços[1]).preenchido);
}

TEST(Grafico, AEscalaMultiplicaOPassoEmVezDeOAcumular) {
    // 0.45 x 7 is a little under 3.15; seven sums of 0.45 give a little over.
    std::array<Rotulo, 8> rótulos;
    const double fim = escreverEscala(rótulos, 0, 0.45, "0.0");
    EXPECT_EQ(rótulos[0].texto, "0.0");
    EXPECT_EQ(rótulos[1].texto, "0.5"); // the double 0.45 is a little over
    EXPECT_EQ(rótulos[7].texto, "3.1");
    EXPECT_EQ(fim, 3.1);
}

TEST(Grafico, AEscalaComeçaNaSuaOrigemEDáOFimComoSeLê) {
    std::array<Rotulo, 3> rótulos;
    const double fim = escreverEscala(rótulos, -3, 0.75, "0.0");
    EXPECT_EQ(rótulos[0].texto, "-3.0");
    EXPECT_EQ(rótulos[1].texto, "-2.3"); // a tie
    EXPECT_EQ(rótulos[2].texto, "-1.5");
    EXPECT_EQ(fim, -1.5);
}

} // namespace
} // namespace varenta
