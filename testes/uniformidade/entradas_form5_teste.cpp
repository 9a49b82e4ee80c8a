#include "uniformidade/entradas_form5.h"

#include <gtest/gtest.h>

namespace varenta {
namespace {

TEST(MenorCarreador, ÉUmCírculoMolhadoInteiroNaMalhaDosColetores) {
    EXPECT_EQ(menorCarreador(42.7, 1.5), 87); // 28 whole spacings of 42.7 m, and one: 2 x 29 x 1.5
    EXPECT_EQ(menorCarreador(42.7, 2), 88);
    EXPECT_EQ(menorCarreador(42.7, 3), 90);
    EXPECT_EQ(menorCarreador(42.7, 6), 96);
    EXPECT_EQ(menorCarreador(42, 6), 96); // a reach of whole spacings counts one more all the same
    EXPECT_EQ(menorCarreador(41.99, 6), 84);
}

TEST(RecusaDoCarreador, VaiDoMenorCarreadorAtéMenosDeMilMetros) {
    EXPECT_EQ(recusaDoCarreador(96, 42.7, 6), "");
    EXPECT_EQ(recusaDoCarreador(999.99, 42.7, 6), "");
    EXPECT_EQ(recusaDoCarreador(95.99, 42.7, 6),
              "O comprimento do carreador deve ser maior ou igual a: 96 m!");
    EXPECT_EQ(recusaDoCarreador(-1, 42.7, 6), "O comprimento do carreador deve ser maior ou igual a: 96 m!");
    EXPECT_EQ(recusaDoCarreador(1000, 42.7, 6), "O comprimento do carreador deve ser menor que 1000 m!");
}

TEST(RecusaDoCarreador, OLimiteDeMilMetrosVemAntes) {
    EXPECT_EQ(recusaDoCarreador(1000, 600, 6), "O comprimento do carreador deve ser menor que 1000 m!");
}

TEST(RecusaDasCondições, PedeAVelocidadeEDepoisOEspaçamento) {
    EXPECT_STREQ(recusaDasCondições("", ""), "Entre com valor de velocidade!");
    EXPECT_STREQ(recusaDasCondições("", "48"), "Entre com valor de velocidade!");
    EXPECT_STREQ(recusaDasCondições("50", ""), "Entre com valor de espaçamento!");
    EXPECT_EQ(recusaDasCondições("50", "48"), nullptr);
}

TEST(SugestãoDeParada, ÉOTempoEmQueOCarroAndariaOComprimento) {
    // 42.7 m at 50 m/h take 51.24 min, 10 m at 40 m/h 15.
    EXPECT_EQ(sugestãoDeParada(ModoDoExtremo::igualAoRaio, 42.7, 50),
              "Insira um valor de tempo de parada! O programa sugere: 51 min!");
    EXPECT_EQ(sugestãoDeParada(ModoDoExtremo::outroValor, 10, 40),
              "Insira um valor de tempo de parada! O programa sugere: 15 min!");
    EXPECT_EQ(sugestãoDeParada(ModoDoExtremo::outroValor, 0, 40),
              "Insira um valor de tempo de parada! O programa sugere: 0 min!");
}

TEST(SugestãoDeParada, OExtremoDaMovimentaçãoNãoTemSugestão) {
    EXPECT_EQ(sugestãoDeParada(ModoDoExtremo::movimentação, 42.7, 50),
              "Insira um valor de tempo de parada! O programa não sugere tempo de parada!");
}

} // namespace
} // namespace varenta
