#include "ajuste/resolver_simetrico.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace varenta {
namespace {

using teste::erroDe;

Matriz6 diagonal(const Vetor6& d) {
    Matriz6 H{};
    for (std::size_t k = 0; k < 6; ++k) H[k][k] = d[k];
    return H;
}

TEST(ResolverSimetrico, UmaDiagonalDivideCadaTermo) {
    EXPECT_EQ(resolverSimetrico(diagonal({1, 2, 4, -8, 0.5, -1}), {3, 3, 3, 4, 5, 6}),
              (Vetor6{3, 1.5, 0.75, -0.5, 10, -6}));
}

TEST(ResolverSimetrico, UmSistemaFeitoÀMão) {
    // L has ones on its diagonal and below it, D is 1 to 6: the element (i, j) of H is the sum of D up to the
    // smaller of both, 1 3 6 10 15 21. With x of ones each b is its row's sum.
    Matriz6 H{};
    Vetor6 b{};
    for (std::size_t i = 0; i < 6; ++i)
        for (std::size_t j = 0; j < 6; ++j) {
            const double m = static_cast<double>(std::min(i, j) + 1);
            H[i][j] = m * (m + 1) / 2;
            b[i] += H[i][j];
        }
    EXPECT_EQ(resolverSimetrico(H, b), (Vetor6{1, 1, 1, 1, 1, 1}));
}

TEST(ResolverSimetrico, ASoluçãoPostaDeVoltaDáOLadoDireito) {
    std::mt19937 sorteio{7};
    std::uniform_real_distribution<double> entre{-1, 1};
    for (int vez = 0; vez < 200; ++vez) {
        Matriz6 H{};
        for (std::size_t i = 0; i < 6; ++i)
            for (std::size_t j = 0; j <= i; ++j) H[i][j] = H[j][i] = entre(sorteio) + (i == j ? 6 : 0);
        Vetor6 b;
        for (double& termo : b) termo = entre(sorteio);
        const auto x = resolverSimetrico(H, b);
        for (std::size_t i = 0; i < 6; ++i) {
            double soma = 0;
            for (std::size_t j = 0; j < 6; ++j) soma += H[i][j] * x[j];
            EXPECT_NEAR(soma, b[i], 1e-13);
        }
    }
}

TEST(ResolverSimetrico, ResolveTambémOQueNãoÉDefinidoPositivo) {
    auto H = diagonal({1, 1, 1, 1, 1, 1});
    H[1][0] = H[0][1] = 2; // eigenvalues 3 and -1
    const auto x = resolverSimetrico(H, {5, 4, 0, 0, 0, 0});
    EXPECT_DOUBLE_EQ(x[0], 1);
    EXPECT_DOUBLE_EQ(x[1], 2);
}

TEST(ResolverSimetrico, UmaMatrizSingularÉErro) {
    EXPECT_EQ(erroDe([] { resolverSimetrico(diagonal({0, 0, 0, 0, 0, 0}), {0, 0, 0, 0, 0, 0}); }), "Estouro");
    EXPECT_EQ(erroDe([] {
                  resolverSimetrico(diagonal({1, 1, 1, 1, 1, 0}), {0, 0, 0, 0, 0, 1});
              }),
              "Divisão por zero");
    auto H = diagonal({0, 1, 1, 1, 1, 1});
    H[1][0] = H[0][1] = 1;
    EXPECT_EQ(erroDe([&] { resolverSimetrico(H, {1, 1, 1, 1, 1, 1}); }), "Divisão por zero");
}

} // namespace
} // namespace varenta
