#include "simulacao/modelo_vento.h"

#include "comum/numeros.h"
#include "comum/verificado.h"
#include "simulacao/perfil_em.h"

#include <cmath>

namespace varenta {
namespace {

using std::sqrt;

/// Above this sum of the residuals (m) the solution makes another pass: 10 raised to -2.
constexpr double tolerância = 1e-2;
/// Some 4 passes are usual; near a singular matrix the solution may never settle.
constexpr int limiteDePasses = 26;

/// The model's terms at a point. `Real` is double, or `Verificado` to find which error a pass met.
template <class Real>
struct Termos {
    Real r, q, T, P;
    Real g1, g2, g3, g4;
};

template <class Real>
Termos<Real> termos(Real x, Real y, Real s2, const CondiçõesDoPonto& c) {
    const Real R = c.R, W = c.W, A = c.A, B = c.B, C = c.C, D = c.D, E = c.E, F = c.F;
    const Real r = sqrt(x * x + y * y);
    const Real q = sqrt(s2 * (x * x) + y * y) / r;
    const Real T = (A + B * (r / R) + C * ((r / R) * (r / R))) * W;
    const Real P = D / (r * R) + E / (R * R) + F * r / (R * R * R);
    const Real g1 = B / r + Real{2} * C / R;
    const Real g2 = F / (R * R) - D / (r * r);
    const Real g3 = D / (r * r) + E / (R * r) + F / (R * R);
    const Real g4 = D + E * r / R + F * (r * r) / (R * R);
    return {r, q, T, P, g1, g2, g3, g4};
}

template <class Real>
Real derivada11(Real x, const Termos<Real>& t, Real s2, Real W, Real R) {
    return Real{1} - (W * x / R) * (t.g1 + t.g2 * t.q * x + t.g3 * (x * s2 / t.q) + t.g4 * (t.q / x));
}

template <class Real>
Real derivada12(Real x, Real y, const Termos<Real>& t, Real W, Real R) {
    return (-y * W / R) * (t.g1 + t.g2 * t.q * x + t.g3 * (x / t.q));
}

template <class Real>
Real derivada21(Real x, Real y, const Termos<Real>& t, Real s2, Real W, Real R) {
    return (-W * y * x / R) * (t.g2 * t.q + t.g3 * (s2 / t.q));
}

template <class Real>
Real derivada22(Real y, const Termos<Real>& t, Real W, Real R) {
    return Real{1} - (W * y / R) * (t.g2 * t.q * y + t.g3 * (y / t.q) + t.g4 * (t.q / y));
}

/// What a pass of the solution finds: the step's end, the sum of the residuals before it, the determinant.
template <class Real>
struct Passe {
    Real x, y, err, det;
};

template <class Real>
Passe<Real> passeDeNewton(Real x, Real y, Real x0, Real y0, Real s2, const CondiçõesDoPonto& c) {
    const Real W = c.W, R = c.R;
    const auto t = termos(x, y, s2, c);
    const Real F1 = -((x - t.T - t.P * t.q * t.r * x * W) - x0);
    const Real F2 = -((y - t.P * W * t.q * t.r * y) - y0);
    const Real J11 = derivada11(x, t, s2, W, R);
    const Real J12 = derivada12(x, y, t, W, R);
    const Real J21 = derivada21(x, y, t, s2, W, R);
    const Real J22 = derivada22(y, t, W, R);
    const Real det = J11 * J22 - J12 * J21;
    const Real dx = (F1 * J22 - F2 * J12) / det;
    const Real dy = (F2 * J11 - F1 * J21) / det;
    const Real err = std::fabs(static_cast<double>(F1)) + std::fabs(static_cast<double>(F2));
    return {x + dx, y + dy, err, det};
}

/// What all points of one set of conditions share.
struct Senos {
    explicit Senos(const CondiçõesDoPonto& c)
        : s2{std::sin(c.anguloJato) * std::sin(c.anguloJato)}, cosseno{std::cos(c.rotVento)},
          seno{std::sin(c.rotVento)} {}

    double s2;            // sin(jet)²
    double cosseno, seno; // of the turn of the wind frame
};

PontoSemVento resolver(double x0, double y0, double s2, const CondiçõesDoPonto& c) {
    double x = x0, y = y0;
    for (int passes = 1;; ++passes) {
        const auto passe = passeDeNewton<double>(x, y, x0, y0, s2, c);
        if (!std::isfinite(passe.x) || !std::isfinite(passe.y) || !std::isfinite(passe.det)) {
            passeDeNewton<Verificado>(x, y, x0, y0, s2, c);
            finito(passe.x + passe.y + passe.det);
        }
        x = passe.x;
        y = passe.y;
        const bool convergiu = !(passe.err > tolerância);
        if (convergiu || passes == limiteDePasses) return {x, y, passes, convergiu};
    }
}

/// i / (J11 J22) at the solution.
template <class Real>
Real dividirPeloFator(Real i, Real x, Real y, Real s2, const CondiçõesDoPonto& c, double& fator) {
    const Real W = c.W, R = c.R;
    const auto t = termos(x, y, s2, c);
    const Real produto = derivada11(x, t, s2, W, R) * derivada22(y, t, W, R);
    fator = static_cast<double>(produto);
    return i / produto;
}

/// What falls at the wind-frame point (x, y), at the distance r within the reach, without wind.
double intensidadeSemVento(double x, double y, double r, const Senos& senos, const CondiçõesDoPonto& c) {
    if (c.setor == ModoDoSetor::círculoInteiro) return intensidadeRelativa(c.intensidades, r / c.R);
    const double xs = x * senos.cosseno + y * senos.seno;
    const double ys = y * senos.cosseno - x * senos.seno;
    if (c.setor == ModoDoSetor::semCunhaÀFrente)
        return intensidadeSetor(c.intensidades, xs, ys, c.anguloGiro, c.R);
    const double rho = distanciaNoSetor(c.anguloSecoI, c.anguloSecoII, c.rotacao, xs, ys, c.R) / c.R;
    return rho == 0 ? 0 : perfilRadialEm(c.intensidades, rho, c.anguloGiro);
}

IntensidadeNoPonto avaliar(double x0, double y0, const Senos& senos, const CondiçõesDoPonto& c) {
    const double s2 = senos.s2;
    const auto [x, y, passes, convergiu] = resolver(x0, y0, s2, c);
    IntensidadeNoPonto ponto{0, passes, convergiu, true};
    const double r = std::sqrt(finito(x * x + y * y));
    if (r >= c.R) return ponto;
    const double i = intensidadeSemVento(x, y, r, senos, c);
    if (i == 0) return ponto;
    double fator = 0;
    ponto.valor = dividirPeloFator<double>(i, x, y, s2, c, fator);
    if (!std::isfinite(ponto.valor) || !std::isfinite(fator)) {
        dividirPeloFator<Verificado>(i, x, y, s2, c, fator);
        finito(ponto.valor + fator);
    }
    ponto.fatorPositivo = fator > 0;
    return ponto;
}

} // namespace

PontoSemVento pontoSemVento(double x0, double y0, const CondiçõesDoPonto& condições) {
    return resolver(x0, y0, Senos{condições}.s2, condições);
}

PontoComVento pontoComVento(double x, double y, const CondiçõesDoPonto& condições) {
    const auto t = termos<Verificado>(x, y, Senos{condições}.s2, condições);
    const Verificado W = condições.W, vx = x, vy = y;
    return {static_cast<double>(vx - t.T - t.P * t.q * t.r * vx * W),
            static_cast<double>(vy - t.P * t.q * t.r * vy * W)};
}

MatrizDoModelo matrizDoModelo(double x, double y, const CondiçõesDoPonto& condições) {
    const double s2 = Senos{condições}.s2, W = condições.W, R = condições.R;
    const auto t = termos<double>(x, y, s2, condições);
    return {finito(derivada11(x, t, s2, W, R)), finito(derivada12(x, y, t, W, R)),
            finito(derivada21(x, y, t, s2, W, R)), finito(derivada22(y, t, W, R))};
}

double distanciaNoSetor(double anguloSecoI, double anguloSecoII, double rotacao, double xs, double ys,
                        double R) {
    const double d = std::sqrt(xs * xs + ys * ys);
    if (d >= R) return 0;
    const double rad1 = radianos(anguloSecoI + rotacao);
    const double rad2 = radianos((360 - anguloSecoII) + rotacao);
    if (xs == 0 || ys == 0) return 0;
    double theta =
        ys < 0 ? piDoModelo / 2 + std::atan(dividir(xs, ys)) : std::atan(dividir(xs, ys)) + 4.712388980384685;
    if (rad2 > doisPiDoModelo && theta < rad2 - doisPiDoModelo)
        theta += doisPiDoModelo;
    else if (rad1 < 0 && theta > rad1 + doisPiDoModelo)
        theta -= doisPiDoModelo;
    return theta >= rad1 && theta <= rad2 ? d : 0;
}

double intensidadeSetor(const PontosDoPerfil& intensidades, double u, double w, double anguloGiro, double R) {
    const double beta = radianos((360 - anguloGiro) / 2);
    double rho = 0;
    if (u != 0) rho = std::sqrt(u * u + w * w);
    if (u > 0) {
        const double distância = std::fabs(w);
        // In this order: at a full turn the first test keeps the tangent of 0 out of the second.
        if (distância / R < std::sin(beta) && distância * (1 / std::tan(beta)) < std::fabs(u) &&
            std::fabs(u) < std::sqrt(R * R - w * w))
            rho = 5 * R;
    }
    return intensidadeRelativa(intensidades, rho / R) * dividir(360, anguloGiro);
}

IntensidadeNoPonto intensidadeEmPonto(double x0, double y0, const CondiçõesDoPonto& condições) {
    return avaliar(x0, y0, Senos{condições}, condições);
}

void intensidadesEmPontos(std::span<const double> x, std::span<const double> y,
                          const CondiçõesDoPonto& condições, std::span<double> i,
                          ContagemDoModelo& contagem) {
    const Senos senos{condições};
    for (std::size_t k = 0; k < i.size(); ++k) {
        const auto ponto = avaliar(x[k], y[k], senos, condições);
        i[k] = ponto.valor;
        contagem.pontos += 1;
        contagem.passes += static_cast<std::size_t>(ponto.passes);
        contagem.semConvergência += !ponto.convergiu;
        contagem.fatorNãoPositivo += !ponto.fatorPositivo;
    }
}

} // namespace varenta
