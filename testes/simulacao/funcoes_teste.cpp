#include "simulacao/funcoes.h"

#include "comum/erro_execucao.h"

#include <gtest/gtest.h>

using namespace varenta;

// Cells of 2 m around cell 20, worked by hand: p(t) is the whole part of t + 0.5.

TEST(IndiceDistancia, NoZeroÉACélulaDepoisDaOrigem) { EXPECT_EQ(indiceDistancia(20, 0, 2), 21); }

TEST(IndiceDistancia, ParaTrásContaParaBaixoComUmAMais) {
    EXPECT_EQ(indiceDistancia(20, -0.9, 2), 21);
    EXPECT_EQ(indiceDistancia(20, -1, 2), 20); // half a cell goes upwards
    EXPECT_EQ(indiceDistancia(20, -40, 2), 1);
}

TEST(IndiceDistancia, ParaAFrenteContaParaCimaComUmAMais) {
    EXPECT_EQ(indiceDistancia(20, 0.9, 2), 21);
    EXPECT_EQ(indiceDistancia(20, 1, 2), 22);
    EXPECT_EQ(indiceDistancia(20, 40, 2), 41);
}

TEST(IndiceDistanciaPositiva, ContaParaCimaSemOUmAMais) {
    EXPECT_EQ(indiceDistanciaPositiva(20, 0.9, 2), 20);
    EXPECT_EQ(indiceDistanciaPositiva(20, 1, 2), 21);
    EXPECT_EQ(indiceDistanciaPositiva(20, 40, 2), 40);
}

TEST(IndiceDistanciaPositiva, DeZeroOuMenosÉZero) {
    EXPECT_EQ(indiceDistanciaPositiva(20, 0, 2), 0);
    EXPECT_EQ(indiceDistanciaPositiva(20, -40, 2), 0);
}

TEST(IndiceDistancia, LarguraZeroÉErro) {
    EXPECT_THROW(indiceDistancia(20, 5, 0), ErroExecucao);
    EXPECT_THROW(indiceDistancia(20, 0, 0), ErroExecucao);
    EXPECT_THROW(indiceDistanciaPositiva(20, 5, 0), ErroExecucao);
}
