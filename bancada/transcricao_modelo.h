#pragma once

#include "aspersor/perfil_radial.h"

#include <cmath>
#include <cstddef>

/// What the plain transcriptions of the model and of the fits have in common.
namespace varenta::bancada {

struct Ponto {
    double x, y;
};

inline Ponto pontoSemVento(double x0, double y0, double R, double W, double A, double B, double C, double D,
                           double E, double F, double anguloJato) {
    double x = x0, y = y0, err = 0;
    int contador = 0;
    const double s2 = std::sin(anguloJato) * std::sin(anguloJato);
    do {
        const double r = std::sqrt(x * x + y * y);
        const double q = std::sqrt(s2 * (x * x) + y * y) / r;
        const double T = (A + B * (r / R) + C * ((r / R) * (r / R))) * W;
        const double P = D / (r * R) + E / (R * R) + F * r / (R * R * R);
        const double F1 = -((x - T - P * q * r * x * W) - x0);
        const double F2 = -((y - P * W * q * r * y) - y0);
        const double g1 = B / r + 2 * C / R;
        const double g2 = F / (R * R) - D / (r * r);
        const double g3 = D / (r * r) + E / (R * r) + F / (R * R);
        const double g4 = D + E * r / R + F * (r * r) / (R * R);
        const double J11 = 1 - (W * x / R) * (g1 + g2 * q * x + g3 * (x * s2 / q) + g4 * (q / x));
        const double J12 = (-y * W / R) * (g1 + g2 * q * x + g3 * (x / q));
        const double J21 = (-W * y * x / R) * (g2 * q + g3 * (s2 / q));
        const double J22 = 1 - (W * y / R) * (g2 * q * y + g3 * (y / q) + g4 * (q / y));
        const double det = J11 * J22 - J12 * J21;
        const double dx = (F1 * J22 - F2 * J12) / det;
        const double dy = (F2 * J11 - F1 * J21) / det;
        x = x + dx;
        y = y + dy;
        err = std::fabs(F1) + std::fabs(F2);
        contador = contador + 1;
        if (contador > 25) err = 1e-20;
    } while (err > 1e-2);
    return {x, y};
}

/// J11 J22
inline double fatorDeÁrea(double x, double y, double R, double W, double B, double C, double D, double E,
                          double F, double anguloJato) {
    const double r = std::sqrt(x * x + y * y);
    const double s2 = std::sin(anguloJato) * std::sin(anguloJato);
    const double q = std::sqrt(s2 * (x * x) + y * y) / r;
    const double g1 = B / r + 2 * C / R;
    const double g2 = F / (R * R) - D / (r * r);
    const double g3 = D / (r * r) + E / (R * r) + F / (R * R);
    const double g4 = D + E * r / R + F * (r * r) / (R * R);
    const double J11 = 1 - (W * x / R) * (g1 + g2 * q * x + g3 * (x * s2 / q) + g4 * (q / x));
    const double J22 = 1 - (W * y / R) * (g2 * q * y + g3 * (y / q) + g4 * (q / y));
    return J11 * J22;
}

/// Of a full circle, at a relative distance; the last segment takes the reach itself where `comAlcance`.
inline double intensidadeRelativa(double u, const PontosDoPerfil& I, bool comAlcance) {
    constexpr double a[] = {0,     0.025, 0.075, 0.125, 0.175, 0.225, 0.275, 0.325, 0.375, 0.425, 0.475,
                            0.525, 0.575, 0.625, 0.675, 0.725, 0.775, 0.825, 0.875, 0.925, 0.975, 1};
    for (std::size_t k = 0; k < 21; ++k)
        if (u >= a[k] && (u < a[k + 1] || (comAlcance && k == 20 && u == 1))) {
            const double w = k == 0 || k == 20 ? 0.025 : 0.05;
            return (u - a[k]) * (I[k + 1] - I[k]) / w + I[k];
        }
    return 0;
}

} // namespace varenta::bancada
