#include "comum/trigonometria.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace varenta {
namespace {

/// How far `valor` is from the true value, that of a wider type, in units of its last place.
double unidades(double valor, long double verdadeiro) {
    const double módulo = std::fabs(valor);
    const double unidade = std::nextafter(módulo, std::numeric_limits<double>::infinity()) - módulo;
    return static_cast<double>(std::fabs(valor - verdadeiro)) / unidade;
}

// Half a unit is the best there is; the wider type itself is off by some 2^-11 of a unit.
constexpr double meia = 0.5 + 0x1p-11;

TEST(Trigonometria, SenoECossenoSãoOsDoublesMaisPróximosDosVerdadeiros) {
    if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP() << "no wider type to compare with";
    std::mt19937_64 sorteio{41};
    std::uniform_real_distribution ângulos{-20.0, 20.0};
    for (int k = 0; k < 200'000; ++k) {
        // The directions of the wind first.
        const double x = k <= 360 ? 6.28318530717958 - (k * 3.14159265358979) / 180 : ângulos(sorteio);
        const auto [seno, cosseno] = senoECosseno(x);
        ASSERT_LE(unidades(seno, std::sin(static_cast<long double>(x))), meia) << x;
        ASSERT_LE(unidades(cosseno, std::cos(static_cast<long double>(x))), meia) << x;
    }
}

TEST(Trigonometria, ArcoTangenteÉODoubleMaisPróximoDoVerdadeiro) {
    if (std::numeric_limits<long double>::digits < 64) GTEST_SKIP() << "no wider type to compare with";
    std::mt19937_64 sorteio{42};
    std::uniform_real_distribution expoentes{-25.0, 25.0};
    for (int k = 0; k < 200'000; ++k) {
        const double t = std::pow(10, expoentes(sorteio)) * (k % 2 ? -1 : 1);
        ASSERT_LE(unidades(arcoTangente(t), std::atan(static_cast<long double>(t))), meia) << t;
    }
    EXPECT_EQ(arcoTangente(0), 0);
    EXPECT_EQ(arcoTangente(1e308), std::acos(0.0));
}

TEST(Trigonometria, PertoDosMúltiplosDeMeioPiContaOQueOsDoublesDeixamDeFora) {
    // sin(pi - x) is what the
    // double nearest to pi leaves out, 1.2246467991473531772e-16, and cos of pi/2 half of it.
    EXPECT_EQ(senoECosseno(0x1.921fb54442d18p+1).seno, 1.2246467991473531772e-16);
    EXPECT_EQ(senoECosseno(0x1.921fb54442d18p+0).cosseno, 6.1232339957367658860e-17);
    EXPECT_EQ(senoECosseno(0).seno, 0);
    EXPECT_EQ(senoECosseno(0).cosseno, 1);
}

TEST(Trigonometria, CotangenteÉOInversoDaTangente) {
    // 40 digits of tan: 0.5463024898437905132551794657802853832976 at 0.5.
    EXPECT_EQ(cotangente(0.5), 1 / 0.5463024898437905132551794657802853832976);
    EXPECT_EQ(cotangente(0), std::numeric_limits<double>::infinity());
}

TEST(Trigonometria, ForaDoAlcanceValeABiblioteca) {
    EXPECT_EQ(senoECosseno(1e10).seno, std::sin(1e10));
    EXPECT_TRUE(std::isnan(senoECosseno(std::numeric_limits<double>::infinity()).cosseno));
}

} // namespace
} // namespace varenta
