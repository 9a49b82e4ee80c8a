#include "ajuste/mapa.h"

#include "comum/reamostrar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace varenta {
namespace {

/// The value at (x, y) of a field known at every `e` from -half, by the bilinear formula of one cell: the
/// four corners, each weighted by the area opposite to it. `y` runs downward.
double bilinear(const std::vector<double>& campo, int N, double e, double x, double y) {
    const double metade = e * (N - 1) / 2;
    const double u = (x + metade) / e, w = (y + metade) / e;
    const int j = std::clamp(static_cast<int>(std::floor(u)), 0, N - 2);
    const int i = std::clamp(static_cast<int>(std::floor(w)), 0, N - 2);
    const double a = u - j, b = w - i;
    const auto em = [&](int l, int c) { return campo[static_cast<std::size_t>(l * N + c)]; };
    return em(i, j) * (1 - a) * (1 - b) + em(i, j + 1) * a * (1 - b) + em(i + 1, j) * (1 - a) * b +
           em(i + 1, j + 1) * a * b;
}

Matriz quadrada(const std::vector<double>& valores, int N) {
    const auto n = static_cast<std::size_t>(N);
    Matriz matriz{n, n};
    for (std::size_t l = 0; l < n; ++l)
        for (std::size_t c = 0; c < n; ++c) matriz.linha(l)[c] = valores[l * n + c];
    return matriz;
}

TEST(Mapa, AReamostragemÉABilinearDoCampo) {
    std::mt19937 sorteio{5};
    std::uniform_real_distribution<double> entre{0, 20};
    for (const auto& [N, e] : {std::pair{2, 6.0}, {6, 3.0}, {14, 6.0}, {60, 2.0}, {7, 2.5}}) {
        std::vector<double> campo(static_cast<std::size_t>(N * N));
        for (double& valor : campo) valor = entre(sorteio);
        const auto reamostrada = reamostrar(quadrada(campo, N), e, 200, 200);
        const auto mapa = reamostrada.valores();
        const double metade = e * (N - 1) / 2, h = 2 * metade / 199;
        for (int l = 0; l < 200; ++l)
            for (int c = 0; c < 200; ++c)
                ASSERT_NEAR(mapa[static_cast<std::size_t>(l * 200 + c)],
                            bilinear(campo, N, e, -metade + c * h, -metade + l * h), 1e-9)
                    << N << ' ' << l << ' ' << c;
    }
}

TEST(Mapa, OsCantosSãoOsDoCampo) {
    const auto reamostrada = reamostrar(quadrada(std::vector<double>{1, 2, 3, 4}, 2), 6, 200, 200);
    const auto mapa = reamostrada.valores();
    EXPECT_EQ(mapa[0], 1);
    EXPECT_NEAR(mapa[199], 2, 1e-12);
    EXPECT_NEAR(mapa[199 * 200], 3, 1e-12);
    EXPECT_NEAR(mapa[199 * 200 + 199], 4, 1e-12);
}

TEST(Mapa, UmSóColetorEnche) {
    const auto reamostrada = reamostrar(quadrada(std::vector<double>{7}, 1), 6, 200, 200);
    const auto mapa = reamostrada.valores();
    EXPECT_EQ(std::count(mapa.begin(), mapa.end(), 7.0), 40'000);
}

TEST(Mapa, PintaQuadradosDoCantoEmDiante) {
    Desenho desenho;
    desenho.linha(0, 0, 1, 1, cores::preto);
    pintarMapa(desenho, 960, 525, std::vector<double>{0, 4, 0, 4}, 2, 6, EscalaDeCores{3.5});
    ASSERT_EQ(desenho.traços.size(), 1u);
    const auto& mosaico = std::get<Mosaico>(desenho.traços[0]);
    ASSERT_EQ(mosaico.cores.size(), 40'000u);
    const auto primeiro = mosaico.caixa(0);
    EXPECT_EQ(primeiro.x1, 960);
    EXPECT_EQ(primeiro.y1, 525);
    EXPECT_EQ(primeiro.x2, 960 + 16.58291457);
    EXPECT_EQ(primeiro.cor, cores::branco);
    const auto segundaLinha = mosaico.caixa(201);
    EXPECT_EQ(segundaLinha.x1, 960 + 16.58291457);
    EXPECT_EQ(segundaLinha.y1, 525 + 16.58291457);
    EXPECT_EQ(mosaico.caixa(199).cor, cores::azul);
}

} // namespace
} // namespace varenta
