#include "comum/erro_execucao.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace varenta {
namespace {

TEST(ElementoDeSequência, DáOElementoParaLerEEscrever) {
    std::array<int, 3> sequência = {1, 2, 3};
    elemento(sequência, 2) = 7;
    EXPECT_EQ(sequência[2], 7);
    EXPECT_EQ(elemento(sequência, 0), 1);
}

TEST(ElementoDeSequência, AcusaÍndiceForaDosLimites) {
    std::array<int, 3> sequência = {1, 2, 3};
    EXPECT_EQ(teste::erroDe([&] { elemento(sequência, 3); }), "Índice fora dos limites");
    std::vector<int> vazia;
    EXPECT_EQ(teste::erroDe([&] { elemento(vazia, 0); }), "Índice fora dos limites");
}

TEST(ErroExplicado, TemONomeEOQueSignifica) {
    EXPECT_EQ(
        teste::erroDe([] { explicarErro("nada a dividir", [] { throw ErroExecucao{divisãoPorZero}; }); }),
        "Divisão por zero: nada a dividir");
    EXPECT_EQ(explicarErro("nada", [] { return 7; }), 7);
}

} // namespace
} // namespace varenta
