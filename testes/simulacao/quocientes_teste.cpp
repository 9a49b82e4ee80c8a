#include "vetores/quocientes.h"

#include "simulacao/nucleo/largura.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

/// Quotients by divisors known beforehand against the division instruction, at every width of vectors.
namespace varenta {
namespace {

using Sorteio = std::mt19937_64;

void dividirEmVetores(Largura largura, const std::vector<double>& a, double b, std::vector<double>& q) {
    switch (largura) {
#if defined(VARENTA_VETORES)
    case Largura::bits128:
        return teste::dividirEmVetores<128>(a.data(), b, q.data(), a.size());
    case Largura::bits256:
        return teste::dividirEmVetores<256>(a.data(), b, q.data(), a.size());
    case Largura::bits512:
        return teste::dividirEmVetores<512>(a.data(), b, q.data(), a.size());
#endif
    default:
        for (std::size_t k = 0; k < a.size(); ++k) q[k] = a[k] / b;
    }
}

/// Any 53 bits, times a power of two.
double sortear(Sorteio& sorteio, int maiorExpoente) {
    const double significando = static_cast<double>(sorteio() >> 12 | 1ull << 52);
    const auto expoente = std::uniform_int_distribution{-maiorExpoente, maiorExpoente}(sorteio);
    return std::ldexp(sorteio() % 2 ? significando : -significando, expoente - 52);
}

struct Contas {
    std::size_t quocientes = 0, duvidosos = 0;
};

/// Holds the quotients of all widths against true division. Only vectors of 128 bits may leave some in doubt.
void compararQuocientes(const std::vector<double>& a, double b, Contas& contas) {
    std::vector<double> q(a.size());
    for (const auto largura : largurasDisponíveis()) {
        dividirEmVetores(largura, a, b, q);
        for (std::size_t k = 0; k < a.size(); ++k) {
            if (largura == Largura::bits128) {
                contas.quocientes += 1;
                contas.duvidosos += std::isnan(q[k]);
                if (std::isnan(q[k])) continue;
            }
            if (std::bit_cast<std::uint64_t>(q[k]) != std::bit_cast<std::uint64_t>(a[k] / b))
                FAIL() << nomeDa(largura) << ": " << std::hexfloat << a[k] << " / " << b;
        }
    }
}

TEST(Quocientes, DeQuaisquerNúmerosSãoOsDaDivisão) {
    Sorteio sorteio{51};
    Contas contas;
    std::vector<double> a(4096);
    for (int vez = 0; vez < 1000; ++vez) {
        const double b = sortear(sorteio, 200);
        for (double& um : a) um = sortear(sorteio, 200);
        ASSERT_NO_FATAL_FAILURE(compararQuocientes(a, b, contas));
    }
    EXPECT_LT(contas.duvidosos, contas.quocientes / 500'000 + 1);
}

TEST(Quocientes, JuntoDoMeioDeDoisDoublesSãoOsDaDivisão) {
    // a is the double nearest to a middle times b, or one beside it.
    Sorteio sorteio{52};
    Contas contas;
    std::vector<double> a(512);
    for (int vez = 0; vez < 4000; ++vez) {
        const double b = sortear(sorteio, 20);
        for (double& um : a) {
            const double q = std::fabs(sortear(sorteio, 20));
            const long double meio = (static_cast<long double>(q) + std::nextafter(q, 1e300)) / 2;
            um = static_cast<double>(meio * static_cast<long double>(b));
            if (sorteio() % 4 == 0) um = std::nextafter(um, sorteio() % 2 ? 1e300 : -1e300);
        }
        ASSERT_NO_FATAL_FAILURE(compararQuocientes(a, b, contas));
    }
}

TEST(Quocientes, DeNúmerosQuaseRedondosSãoOsDaDivisão) {
    // Significands next to 1, to 2 and to the half way, where estimates are off the most.
    Sorteio sorteio{53};
    Contas contas;
    std::vector<double> a(512);
    const auto quaseRedondo = [&] {
        constexpr double redondos[] = {1, 1.5, 2, 4.0 / 3, 1.25};
        double número = redondos[sorteio() % std::size(redondos)];
        const double lado = sorteio() % 2 ? 3 : 0;
        for (auto passos = sorteio() % 20; passos > 0; --passos) número = std::nextafter(número, lado);
        return número;
    };
    for (int vez = 0; vez < 4000; ++vez) {
        const double b = quaseRedondo();
        for (double& um : a) um = quaseRedondo();
        ASSERT_NO_FATAL_FAILURE(compararQuocientes(a, b, contas));
    }
}

} // namespace
} // namespace varenta
