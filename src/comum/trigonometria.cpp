#include "comum/trigonometria.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace varenta {
namespace {

/// A number of twice the precision: a + b exactly, b at most half a unit in the last place of a. Its
/// operations lose less than 2^-100 of the result.
struct Duplo {
    double a, b;
};

/// x + y exactly (Knuth).
constexpr Duplo somaExata(double x, double y) {
    const double s = x + y, deY = s - x;
    return {s, (x - (s - deY)) + (y - deY)};
}

/// x y exactly (Dekker, Veltkamp): each factor in two halves of 26 bits.
constexpr Duplo produtoExato(double x, double y) {
    const auto metade = [](double z) {
        const double t = 0x8000001p0 * z;
        return t - (t - z);
    };
    const double p = x * y, x1 = metade(x), x2 = x - x1, y1 = metade(y), y2 = y - y1;
    return {p, ((x1 * y1 - p) + x1 * y2 + x2 * y1) + x2 * y2};
}

constexpr Duplo operator-(Duplo x) { return {-x.a, -x.b}; }

constexpr Duplo operator+(Duplo x, Duplo y) {
    const Duplo alta = somaExata(x.a, y.a), baixa = somaExata(x.b, y.b);
    const Duplo meia = somaExata(alta.a, alta.b + baixa.a);
    return somaExata(meia.a, meia.b + baixa.b);
}

constexpr Duplo operator-(Duplo x, Duplo y) { return x + -y; }

constexpr Duplo operator*(Duplo x, Duplo y) {
    const Duplo p = produtoExato(x.a, y.a);
    return somaExata(p.a, p.b + (x.a * y.b + x.b * y.a));
}

/// By long division: the quotient of the leading parts, and those of what remains, twice.
constexpr Duplo operator/(Duplo x, Duplo y) {
    const double q1 = x.a / y.a;
    const Duplo resto = x - y * Duplo{q1, 0};
    const double q2 = resto.a / y.a;
    const double q3 = (resto - y * Duplo{q2, 0}).a / y.a;
    return somaExata(q1, q2) + Duplo{q3, 0};
}

/// Sine and cosine.
struct Par {
    Duplo seno, cosseno;
};

/// (pi/4)^31 / 31! < 2^-122.
constexpr int maiorPotência = 31;

/// 1 / k!
constexpr auto inversosDosFatoriais = [] {
    std::array<Duplo, maiorPotência + 1> inversos{};
    inversos[0] = {1, 0};
    for (std::size_t k = 1; k < inversos.size(); ++k)
        inversos[k] = inversos[k - 1] / Duplo{static_cast<double>(k), 0};
    return inversos;
}();

/// The power series of sine and cosine, of an angle up to pi/4 in magnitude, and a little more.
Par séries(Duplo r) {
    const Duplo menosQuadrado = -(r * r);
    Par soma{inversosDosFatoriais[maiorPotência], inversosDosFatoriais[maiorPotência - 1]};
    for (std::size_t k = maiorPotência - 1; k > 0; k -= 2) {
        soma.seno = inversosDosFatoriais[k - 1] + menosQuadrado * soma.seno;
        soma.cosseno = inversosDosFatoriais[k - 2] + menosQuadrado * soma.cosseno;
    }
    return {r * soma.seno, soma.cosseno};
}

Par dobrados(double x) {
    if (!(std::fabs(x) <= 0x1p20)) return {{std::sin(x), 0}, {std::cos(x), 0}};
    // pi/2 in three doubles, each the nearest to what the ones before leave: 2^-163 is left over.
    constexpr double meioPi[] = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54, -0x1.f1976b7ed8fbcp-110};
    const double quadrantes = std::floor(x / meioPi[0] + 0.5);
    Duplo r{x, 0};
    for (const double parte : meioPi) r = r - produtoExato(quadrantes, parte);
    const auto [seno, cosseno] = séries(r);
    switch (static_cast<int>(quadrantes) & 3) {
    case 0:
        return {seno, cosseno};
    case 1:
        return {cosseno, -seno};
    case 2:
        return {-seno, -cosseno};
    default:
        return {-cosseno, seno};
    }
}

} // namespace

SenoECosseno senoECosseno(double x) {
    const auto [seno, cosseno] = dobrados(x);
    return {seno.a, cosseno.a};
}

double tangente(double x) {
    const auto [seno, cosseno] = dobrados(x);
    return seno.a == 0 ? seno.a : (seno / cosseno).a;
}

double cotangente(double x) { return 1 / tangente(x); }

double arcoTangente(double t) {
    // Beyond 2^60 the angle is pi/2 to the last bit, below 2^-40 t^3 / 3 is less than a quarter of it.
    if (std::fabs(t) > 0x1p60) return std::copysign(0x1.921fb54442d18p+0, t);
    if (std::fabs(t) < 0x1p-40) return t;
    // Whatever the library's last bits are, one step from there comes to the same angle: with d, the tangent
    // of the difference, some 2^-52, the third power is lost in the precision.
    const double perto = std::atan(t);
    const auto [seno, cosseno] = dobrados(perto);
    const Duplo T{t, 0};
    return (Duplo{perto, 0} + (T * cosseno - seno) / (cosseno + T * seno)).a;
}

} // namespace varenta
