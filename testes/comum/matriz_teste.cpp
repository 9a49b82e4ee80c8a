#include "comum/matriz.h"

#include <gtest/gtest.h>

#include <vector>

namespace varenta {
namespace {

std::vector<double> lista(std::span<const double> valores) { return {valores.begin(), valores.end()}; }

TEST(Matriz, CélulasNovasSãoZero) {
    const Matriz matriz{2, 3};
    EXPECT_EQ(matriz.linhas(), 2u);
    EXPECT_EQ(matriz.colunas(), 3u);
    EXPECT_EQ(lista(matriz.valores()), std::vector<double>(6, 0.0));
}

TEST(Matriz, OsValoresCorremLinhaPorLinha) {
    Matriz matriz{2, 3};
    for (std::size_t l = 0; l < 2; ++l)
        for (std::size_t c = 0; c < 3; ++c) matriz.linha(l)[c] = static_cast<double>(10 * l + c);
    EXPECT_EQ(lista(matriz.valores()), (std::vector<double>{0, 1, 2, 10, 11, 12}));
    const Matriz& leitura = matriz;
    EXPECT_EQ(lista(leitura.linha(1)), (std::vector<double>{10, 11, 12}));
}

TEST(Matriz, SemTamanhoÉVazia) {
    const Matriz matriz;
    EXPECT_EQ(matriz.linhas(), 0u);
    EXPECT_EQ(matriz.colunas(), 0u);
    EXPECT_TRUE(matriz.valores().empty());
}

} // namespace
} // namespace varenta
