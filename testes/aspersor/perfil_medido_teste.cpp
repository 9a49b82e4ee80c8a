#include "aspersor/perfil_medido.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace varenta::teste {
namespace {

constexpr double pi = std::numbers::pi;

using Pontos = std::vector<PontoMedido>;

TEST(FecharPerfil, ALinhaDasDuasPrimeirasChegaAoAspersor) {
    // i = 10 - r/2: 10 at the sprinkler, 0 at 20 m, where a quarter of the last spacing ends too.
    const auto fechado = fecharPerfil(Pontos{{2, 9}, {10, 5}, {18, 1}});
    EXPECT_EQ(fechado.R, 20);
    ASSERT_EQ(fechado.pontos.size(), 5U);
    EXPECT_EQ(fechado.pontos.front().r, 0);
    EXPECT_EQ(fechado.pontos.front().i, 10);
    EXPECT_EQ(fechado.pontos.back().r, 20);
    EXPECT_EQ(fechado.pontos.back().i, 0);
}

TEST(FecharPerfil, AAlturaNoAspersorParteDaPrimeiraLeitura) {
    // From (49, 1) to (98, 0) the line falls by the double nearest to 1/49, of which 49 make 1 - 2^-53: with
    // the 1 of the first reading 2, while from the 0 of the second 98 of them would lead to 2 - 2^-52.
    EXPECT_EQ(fecharPerfil(Pontos{{49, 1}, {98, 0}}).pontos.front().i, 2);
}

TEST(FecharPerfil, UmaLinhaQueCaiAbaixoDeZeroDáODobroDaPrimeiraLeitura) {
    // From (2, 1) to (4, 3) the line starts at -1.
    EXPECT_EQ(fecharPerfil(Pontos{{2, 1}, {4, 3}, {6, 2}}).pontos.front().i, 2);
    // From (2, 1) to (4, 2) it starts at 0.
    EXPECT_EQ(fecharPerfil(Pontos{{2, 1}, {4, 2}, {6, 1}}).pontos.front().i, 2);
}

TEST(FecharPerfil, UmaLinhaAcimaDoDobroDoPicoDáOPico) {
    // From (4, 8) to (5, 2) the line starts at 32, above twice 8.
    EXPECT_EQ(fecharPerfil(Pontos{{4, 8}, {5, 2}, {6, 1}}).pontos.front().i, 8);
    // From (4, 8) to (6, 4) it starts at 16, which is not above.
    EXPECT_EQ(fecharPerfil(Pontos{{4, 8}, {6, 4}, {8, 1}}).pontos.front().i, 16);
    // From (4, 8) to (8, 0.5) it starts at 15.5, below.
    EXPECT_EQ(fecharPerfil(Pontos{{4, 8}, {8, 0.5}, {9, 0.25}}).pontos.front().i, 15.5);
}

TEST(FecharPerfil, OAlcanceParaAUmQuartoDoÚltimoEspaçamento) {
    // The last line falls by 0.1 in 2 m: it reaches 0 at 22 m, far beyond 20.5 m.
    EXPECT_EQ(fecharPerfil(Pontos{{18, 0.2}, {20, 0.1}}).R, 20.5);
    // Falling by 3 in 2 m from 1 it reaches 0 at 20 + 2/3.
    EXPECT_DOUBLE_EQ(fecharPerfil(Pontos{{18, 4}, {20, 1}}).R, 20.5);
    // Falling by 9 it reaches 0 before that.
    EXPECT_DOUBLE_EQ(fecharPerfil(Pontos{{18, 10}, {20, 1}}).R, 20 + 2.0 / 9);
}

TEST(FecharPerfil, UmFinalQueSobeDáONúmeroComoVem) {
    // From (20, 1) to (22, 2) the line is 0 at 18, before the last reading.
    EXPECT_EQ(fecharPerfil(Pontos{{20, 1}, {22, 2}}).R, 18);
}

TEST(FecharPerfil, UmFinalPlanoÉDivisãoPorZero) {
    EXPECT_EQ(erroDe([] { fecharPerfil(Pontos{{18, 1}, {20, 1}}); }), "Divisão por zero");
}

TEST(FecharPerfil, UmaSóLeituraNãoDáAsDuasInclinações) {
    EXPECT_EQ(erroDe([] { fecharPerfil(Pontos{{18, 1}}); }), "Índice fora dos limites");
    EXPECT_EQ(erroDe([] { fecharPerfil(Pontos{}); }), "Índice fora dos limites");
}

TEST(VolumeSobOPerfil, DeUmConeÉUmTerçoDeBaseVezesAltura) {
    const Pontos cone{{0, 0.01}, {20, 0}};
    EXPECT_NEAR(volumeSobOPerfil(cone, piDoEnsaioMóvel), pi * 400 * 0.01 / 3, 1e-12);
}

TEST(VolumeSobOPerfil, ÉAIntegralDeCadaTrecho) {
    // Simpson's rule is exact for i r, a parabola on each piece.
    const Pontos pontos{{0, 3}, {2, 9}, {7, 4.5}, {11, 6}, {15.5, 0}};
    double integral = 0;
    for (std::size_t k = 0; k + 1 < pontos.size(); ++k) {
        const auto [r1, i1] = pontos[k];
        const auto [r2, i2] = pontos[k + 1];
        const double meio = (i1 + i2) / 2 * ((r1 + r2) / 2);
        integral += 2 * pi * (r2 - r1) / 6 * (i1 * r1 + 4 * meio + i2 * r2);
    }
    EXPECT_NEAR(volumeSobOPerfil(pontos, piDoEnsaioMóvel), integral, 1e-10);
    // The literal of the radial test has nine decimals.
    EXPECT_NEAR(volumeSobOPerfil(pontos, piDoEnsaioRadial), integral * (6.283185308 / (2 * pi)), 1e-10);
}

TEST(VolumeSobOPerfil, DoisPontosNaMesmaDistânciaSãoUmErro) {
    EXPECT_EQ(erroDe([] { volumeSobOPerfil(Pontos{{1, 2}, {1, 3}}, piDoEnsaioMóvel); }), "Divisão por zero");
}

TEST(PerfilMedido, DoConeSegueARetaEAMédiaÉUm) {
    const Pontos cone{{0, 0.01}, {20, 0}};
    const double volume = volumeSobOPerfil(cone, piDoEnsaioRadial);
    const auto medido = perfilMedido(cone, 20, volume, 4.2, piDoEnsaioRadial);
    // The cone's relative intensity is 3 (1 - rho).
    EXPECT_NEAR(medido.razões[0], 3, 1e-9);
    for (std::size_t k = 1; k <= 20; ++k) {
        const double rho = 0.025 + 0.05 * static_cast<double>(k - 1);
        EXPECT_NEAR(medido.distâncias[k], rho, 1e-12);
        EXPECT_NEAR(medido.razões[k], 3 * (1 - rho), 1e-9);
    }
    EXPECT_EQ(medido.distâncias[21], 1);
    EXPECT_EQ(medido.razões[21], 0);
    EXPECT_NEAR(medido.Imedia, 4200 / (pi * 400), 1e-8);
}

TEST(PerfilMedido, OVolumeSobOsVinteEDoisPontosÉAVazão) {
    // Rings of 0.05 R around each of the 20 distances, for a profile without corners inside a ring.
    const Pontos pontos{{0, 0.012}, {8, 0.016}, {24, 0.006}, {32, 0}};
    const auto medido =
        perfilMedido(pontos, 32, volumeSobOPerfil(pontos, piDoEnsaioRadial), 25, piDoEnsaioRadial);
    double litros = 0;
    for (std::size_t k = 1; k <= 20; ++k)
        litros += 2 * pi * (32 * medido.distâncias[k]) * (0.05 * 32) * medido.Imedia * medido.razões[k];
    EXPECT_NEAR(litros / 1000, 25, 25 * 0.002);
}

TEST(PerfilMedido, UmPontoForaDaLinhaDáZero) {
    // A line that ends at 18 of 20 m: nothing stands at 0.925 and 0.975.
    const auto medido = perfilMedido(Pontos{{0, 1}, {18, 1}}, 20, 10, 1, piDoEnsaioRadial);
    EXPECT_GT(medido.razões[18], 0);
    EXPECT_EQ(medido.razões[19], 0);
    EXPECT_EQ(medido.razões[20], 0);
}

TEST(PerfilMedido, SemVolumeOuSemAlcanceÉUmErro) {
    EXPECT_EQ(erroDe([] {
                  perfilMedido(Pontos{{0, 1}, {1, 0}}, 1, 0, 1, piDoEnsaioRadial);
              }),
              "Divisão por zero");
    EXPECT_EQ(erroDe([] { perfilMedido(Pontos{{0, 1}, {1, 0}}, 0, 1, 1, piDoEnsaioRadial); }), "Estouro");
}

TEST(LeituraDeUmMetroPorHora, ConverteAsTrêsUnidades) {
    EXPECT_EQ(leituraDeUmMetroPorHora(), 1000);
    // 1 m/h for 30 min is 500 mm.
    EXPECT_EQ(leituraDeUmMetroPorHora(30), 500);
    // 50 cm in a collector of 10 cm: pi x 25 cm² x 50 cm.
    EXPECT_NEAR(leituraDeUmMetroPorHora(30, 10), pi * 25 * 50, 1e-5);
}

TEST(VazãoDiverge, SóAlémDeDezPorCento) {
    EXPECT_FALSE(vazãoDiverge(11, 10));
    EXPECT_TRUE(vazãoDiverge(11.01, 10));
    EXPECT_FALSE(vazãoDiverge(9, 10));
    EXPECT_TRUE(vazãoDiverge(8.99, 10));
    EXPECT_EQ(erroDe([] { vazãoDiverge(1, 0); }), "Divisão por zero");
}

} // namespace
} // namespace varenta::teste
