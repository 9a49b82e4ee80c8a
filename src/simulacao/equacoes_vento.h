#pragma once

#include <cmath>

/// The equations of the wind model and one pass of Newton's method, for any type of number: double where a
/// point stands alone, `Verificado` to find which error a pass met, a vector where many points go at once.
/// `modelo_vento.h` has the legend of the symbols.
///
/// `Divisor` is a number by which more than one other is divided: `Real` itself, or a type that converts to
/// it and knows a quicker way to the same quotients.
namespace varenta::modelo {

using std::fabs;
using std::sqrt;

/// What all points of one set of conditions share.
template <class Real, class Divisor = Real, class Repetido = Divisor>
struct Constantes {
    Real W, A, B, C, D, E, F;
    Real s2; // sin(jet)²
    Divisor R, R2, R3;
};

/// `condições` needs R, W, A to F.
template <class Real, class Divisor = Real, class Repetido = Divisor, class Condições>
Constantes<Real, Divisor, Repetido> constantes(const Condições& condições, double s2) {
    const Real R = condições.R;
    return {.W = condições.W,
            .A = condições.A,
            .B = condições.B,
            .C = condições.C,
            .D = condições.D,
            .E = condições.E,
            .F = condições.F,
            .s2 = s2,
            .R = Divisor{R},
            .R2 = Divisor{R * R},
            .R3 = Divisor{R * R * R}};
}

/// The distance from the sprinkler, and how much wind draws a drop in from there.
template <class Real, class Repetido>
struct Lugar {
    Real r;
    Repetido q;
};

template <class Real, class Divisor, class Repetido>
Lugar<Real, Repetido> lugar(Real x, Real y, const Constantes<Real, Divisor, Repetido>& c) {
    const Real r = sqrt(x * x + y * y);
    return {r, Repetido{sqrt(c.s2 * (x * x) + y * y) / r}};
}

/// The model's terms at a point.
template <class Real, class Repetido>
struct Termos {
    Real r;
    Repetido q;
    Real T, P;
    Real g1, g2, g3, g4;
};

template <class Real, class Divisor, class Repetido>
Termos<Real, Repetido> termos(const Lugar<Real, Repetido>& lugar,
                              const Constantes<Real, Divisor, Repetido>& c) {
    const auto& [W, A, B, C, D, E, F, s2, R, R2, R3] = c;
    const auto& [r, q] = lugar;
    const Real rR = r * R;
    const Real T = (A + B * (r / R) + C * ((r / R) * (r / R))) * W;
    const Real P = D / rR + E / R2 + F * r / R3;
    const Real g1 = B / r + Real{2} * C / R;
    const Real g2 = F / R2 - D / (r * r);
    const Real g3 = D / (r * r) + E / rR + F / R2;
    const Real g4 = D + E * r / R + F * (r * r) / R2;
    return {r, q, T, P, g1, g2, g3, g4};
}

template <class Real, class Divisor, class Repetido>
Termos<Real, Repetido> termos(Real x, Real y, const Constantes<Real, Divisor, Repetido>& c) {
    return termos(lugar(x, y, c), c);
}

template <class Real, class Divisor, class Repetido>
Real derivada11(Real x, const Termos<Real, Repetido>& t, const Constantes<Real, Divisor, Repetido>& c) {
    return Real{1} - (c.W * x / c.R) * (t.g1 + t.g2 * t.q * x + t.g3 * (x * c.s2 / t.q) + t.g4 * (t.q / x));
}

// The minus of the next two stands outside the quotient: the same bits, and the quotients of the other two.
template <class Real, class Divisor, class Repetido>
Real derivada12(Real x, Real y, const Termos<Real, Repetido>& t,
                const Constantes<Real, Divisor, Repetido>& c) {
    return -(c.W * y / c.R) * (t.g1 + t.g2 * t.q * x + t.g3 * (x / t.q));
}

template <class Real, class Divisor, class Repetido>
Real derivada21(Real x, Real y, const Termos<Real, Repetido>& t,
                const Constantes<Real, Divisor, Repetido>& c) {
    return -(c.W * y * x / c.R) * (t.g2 * t.q + t.g3 * (c.s2 / t.q));
}

template <class Real, class Divisor, class Repetido>
Real derivada22(Real y, const Termos<Real, Repetido>& t, const Constantes<Real, Divisor, Repetido>& c) {
    return Real{1} - (c.W * y / c.R) * (t.g2 * t.q * y + t.g3 * (y / t.q) + t.g4 * (t.q / y));
}

/// What a pass of the solution finds: the step's end, the sum of the residuals before it, the determinant.
template <class Real>
struct Passe {
    Real x, y, err, det;
};

template <class Real, class Divisor, class Repetido>
Passe<Real> passeDeNewton(Real x, Real y, Real x0, Real y0, const Lugar<Real, Repetido>& lugar,
                          const Constantes<Real, Divisor, Repetido>& c) {
    const auto t = termos(lugar, c);
    const Real F1 = -((x - t.T - t.P * t.q * t.r * x * c.W) - x0);
    const Real F2 = -((y - t.P * c.W * t.q * t.r * y) - y0);
    const Real J11 = derivada11(x, t, c);
    const Real J12 = derivada12(x, y, t, c);
    const Real J21 = derivada21(x, y, t, c);
    const Real J22 = derivada22(y, t, c);
    const Real det = J11 * J22 - J12 * J21;
    const Real dx = (F1 * J22 - F2 * J12) / det;
    const Real dy = (F2 * J11 - F1 * J21) / det;
    return {x + dx, y + dy, fabs(F1) + fabs(F2), det};
}

template <class Real, class Divisor, class Repetido>
Passe<Real> passeDeNewton(Real x, Real y, Real x0, Real y0, const Constantes<Real, Divisor, Repetido>& c) {
    return passeDeNewton(x, y, x0, y0, lugar(x, y, c), c);
}

/// Above this sum of the residuals (m) the solution makes another pass: 10 raised to -2.
inline constexpr double tolerância = 1e-2;
/// Some 4 passes are usual; near a singular matrix the solution may never settle.
inline constexpr int limiteDePasses = 26;

} // namespace varenta::modelo
