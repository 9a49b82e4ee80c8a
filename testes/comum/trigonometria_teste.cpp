#include "comum/trigonometria.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace varenta {
namespace {

// The true values come from the C library's functions of the widest type that there is: quadruple precision,
// with which the nearest double is known for sure, or the type that is a little wider than double.
#if __HAVE_FLOAT128
using Larga = _Float128;
Larga seno(Larga x) { return sinf128(x); }
Larga cosseno(Larga x) { return cosf128(x); }
Larga tangenteLarga(Larga x) { return tanf128(x); }
Larga arco(Larga x) { return atanf128(x); }

bool maisPróximo(double valor, Larga verdadeiro) { return valor == static_cast<double>(verdadeiro); }
#else
using Larga = long double;
static_assert(std::numeric_limits<Larga>::digits >= 64);
Larga seno(Larga x) { return std::sin(x); }
Larga cosseno(Larga x) { return std::cos(x); }
Larga tangenteLarga(Larga x) { return std::tan(x); }
Larga arco(Larga x) { return std::atan(x); }

/// Half a unit in the last place is the best there is; the wider type itself is off by some 2^-11 of a unit.
bool maisPróximo(double valor, Larga verdadeiro) {
    const double módulo = std::fabs(valor);
    const double unidade = std::nextafter(módulo, std::numeric_limits<double>::infinity()) - módulo;
    return std::fabs(valor - verdadeiro) <= (0.5L + 0x1p-11L) * unidade;
}
#endif

TEST(Trigonometria, SenoCossenoETangenteSãoOsDoublesMaisPróximosDosVerdadeiros) {
    std::mt19937_64 sorteio{41};
    std::uniform_real_distribution ângulos{-20.0, 20.0};
    for (int k = 0; k < 1'000'000; ++k) {
        // The directions of the wind in tenths of a degree first.
        const double x = k <= 3600 ? 6.28318530717958 - (k * 0.1 * 3.14159265358979) / 180 : ângulos(sorteio);
        const auto [s, c] = senoECosseno(x);
        ASSERT_TRUE(maisPróximo(s, seno(x))) << x;
        ASSERT_TRUE(maisPróximo(c, cosseno(x))) << x;
        ASSERT_TRUE(maisPróximo(tangente(x), tangenteLarga(x))) << x;
    }
}

TEST(Trigonometria, ArcoTangenteÉODoubleMaisPróximoDoVerdadeiro) {
    std::mt19937_64 sorteio{42};
    std::uniform_real_distribution expoentes{-25.0, 25.0}, usuais{-3.0, 3.0};
    for (int k = 0; k < 1'000'000; ++k) {
        const double t = std::pow(10, (k % 4 ? usuais : expoentes)(sorteio)) * (k % 2 ? -1 : 1);
        ASSERT_TRUE(maisPróximo(arcoTangente(t), arco(t))) << t;
    }
    EXPECT_EQ(arcoTangente(0), 0);
    EXPECT_EQ(arcoTangente(1e308), std::acos(0.0));
}

TEST(Trigonometria, PertoDosMúltiplosDeMeioPiContaOQueOsDoublesDeixamDeFora) {
    // sin(pi - x) is what the double nearest to pi leaves out, 1.2246467991473531772e-16, and cos of pi/2
    // half of it.
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
