#include "simulacao/perfil_em.h"

#include "apoio/atalhos.h"
#include "comum/erro_execucao.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace varenta {
namespace {

using teste::erroDe;

/// Intensities k² at point k, so that no two segments have one slope, and 99 at the reach.
PontosDoPerfil quadrados() {
    PontosDoPerfil intensidades{};
    for (std::size_t k = 1; k <= 22; ++k) intensidades[k - 1] = static_cast<double>(k * k);
    intensidades[21] = 99;
    return intensidades;
}

double em(double rho) { return perfilRadialEm(quadrados(), rho, 360); }

TEST(PerfilRadialEm, Rho0_05EstáNoSegmentoQueComeçaEm0_025) {
    // (0.025 x (I3 - I2)) / 0.05 + I2 with I2 = 4 and I3 = 9.
    EXPECT_EQ(em(0.05), 6.5);
}

TEST(PerfilRadialEm, Rho0_975ÉOValorDoPonto21EUmPoucoAntesÉDoSegmentoAnterior) {
    EXPECT_EQ(em(0.975), 441);
    // 441 - 0.0000001 x (441 - 400) / 0.05; the last segment's line would give 441 + ... at that place.
    EXPECT_NEAR(em(0.9749999), 441 - 0.000082, 1e-9);
    EXPECT_NEAR(em(0.9875), 270, 1e-9); // half of the way from 441 to 99
}

TEST(PerfilRadialEm, ForaDe0A1OValorÉZero) {
    EXPECT_EQ(em(-0.001), 0);
    EXPECT_EQ(em(1), 0);
    EXPECT_EQ(em(1.5), 0);
    EXPECT_GT(em(0.9999999), 98);
}

TEST(PerfilRadialEm, Em0DáOValorDoPrimeiroPonto) {
    EXPECT_EQ(em(0), 1);
    EXPECT_NEAR(em(0.0125), 2.5, 1e-14); // half of the way from 1 to 4
}

TEST(PerfilRadialEm, Com240GrausCadaValorÉUmaVezEMeia) {
    for (const double rho : {0.0, 0.01, 0.05, 0.333, 0.71, 0.975, 0.99})
        EXPECT_EQ(perfilRadialEm(quadrados(), rho, 240), 1.5 * em(rho)) << rho;
    EXPECT_EQ(perfilRadialEm(quadrados(), 1, 240), 0);
}

TEST(PerfilRadialEm, OsLimitesDosSegmentosSãoOsDecimaisEscritos) {
    // The bounds as decimal literals: at each one the point's own value comes out, to the last bit. The line
    // of the segment before would miss it by a bit for many of these profiles.
    const double limites[] = {0.025, 0.075, 0.125, 0.175, 0.225, 0.275, 0.325, 0.375, 0.425, 0.475,
                              0.525, 0.575, 0.625, 0.675, 0.725, 0.775, 0.825, 0.875, 0.925, 0.975};
    std::mt19937 sorteio{3};
    std::uniform_real_distribution<double> qualquer{0, 15};
    for (int vez = 0; vez < 200; ++vez) {
        PontosDoPerfil intensidades{};
        for (auto& i : intensidades) i = qualquer(sorteio);
        for (std::size_t k = 0; k < std::size(limites); ++k)
            ASSERT_EQ(perfilRadialEm(intensidades, limites[k], 360), intensidades[k + 1]) << limites[k];
    }
}

TEST(PerfilRadialEm, ÂnguloDeGiroZeroÉDivisãoPorZeroTambémForaDoAlcance) {
    EXPECT_EQ(erroDe([] { perfilRadialEm(quadrados(), 0.5, 0); }), divisãoPorZero);
    EXPECT_EQ(erroDe([] { perfilRadialEm(quadrados(), 2, 0); }), divisãoPorZero);
}

TEST(IntensidadeRelativa, ÉADoCírculoInteiroETomaTambémOFimDoAlcance) {
    for (const double u : {0.0, 0.01, 0.05, 0.5, 0.975, 0.9999})
        EXPECT_EQ(intensidadeRelativa(quadrados(), u), em(u)) << u;
    EXPECT_NEAR(intensidadeRelativa(quadrados(), 1), 99, 1e-9);
    EXPECT_EQ(intensidadeRelativa(quadrados(), std::nextafter(1.0, 2.0)), 0);
    EXPECT_EQ(intensidadeRelativa(quadrados(), -0.001), 0);
    EXPECT_EQ(intensidadeRelativa(quadrados(), 5), 0);
}

TEST(IntensidadesDosRótulos, LêemCadaLegendaPelaConversãoEstrita) {
    std::array<Rotulo, 22> rótulos;
    for (std::size_t k = 0; k < 22; ++k) rótulos[k].texto = std::to_string(k) + ".250";
    const auto lidas = intensidadesDosRótulos(rótulos);
    EXPECT_EQ(lidas[0], 0.25);
    EXPECT_EQ(lidas[21], 21.25);
    for (const char* texto : {"", "5 mm/h", "abc", "1,5"}) {
        rótulos[7].texto = texto;
        EXPECT_EQ(erroDe([&] { intensidadesDosRótulos(rótulos); }), "Tipos incompatíveis") << texto;
    }
}

} // namespace
} // namespace varenta
