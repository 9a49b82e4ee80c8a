#include "simulacao/modelo_vento.h"

#include "comum/numeros.h"
#include "comum/trigonometria.h"
#include "comum/verificado.h"
#include "simulacao/equacoes_vento.h"
#include "simulacao/perfil_em.h"

#include <cmath>

namespace varenta {
namespace {

using modelo::constantes;
using modelo::derivada11;
using modelo::derivada12;
using modelo::derivada21;
using modelo::derivada22;
using modelo::passeDeNewton;
using modelo::termos;

PontoSemVento resolver(double x0, double y0, double s2, const CondiçõesDoPonto& condições) {
    const auto c = constantes<double>(condições, s2);
    double x = x0, y = y0;
    for (int passes = 1;; ++passes) {
        const auto passe = passeDeNewton(x, y, x0, y0, c);
        if (!std::isfinite(passe.x) || !std::isfinite(passe.y) || !std::isfinite(passe.det)) {
            passeDeNewton<Verificado>(x, y, x0, y0, constantes<Verificado>(condições, s2));
            finito(passe.x + passe.y + passe.det);
        }
        x = passe.x;
        y = passe.y;
        const bool convergiu = !(passe.err > modelo::tolerância);
        if (convergiu || passes == modelo::limiteDePasses) return {x, y, passes, convergiu};
    }
}

/// i / (J11 J22) at the solution.
template <class Real>
Real dividirPeloFator(Real i, Real x, Real y, double s2, const CondiçõesDoPonto& condições, double& fator) {
    const auto c = constantes<Real>(condições, s2);
    const auto t = termos(x, y, c);
    const Real produto = derivada11(x, t, c) * derivada22(y, t, c);
    fator = static_cast<double>(produto);
    return i / produto;
}

/// What falls at the wind-frame point (x, y), at the distance r within the reach, without wind.
double intensidadeSemVento(double x, double y, double r, const Senos& senos, const CondiçõesDoPonto& c) {
    if (c.setor == Setor::círculoInteiro) return intensidadeRelativa(c.intensidades, r / c.R);
    const double xs = x * senos.cosseno + y * senos.seno;
    const double ys = y * senos.cosseno - x * senos.seno;
    if (c.setor == Setor::semCunhaÀFrente) return intensidadeSetor(c.intensidades, xs, ys, c.anguloGiro, c.R);
    const double rho = distanciaNoSetor(c.anguloSecoI, c.anguloSecoII, c.rotacao, xs, ys, c.R) / c.R;
    return rho == 0 ? 0 : perfilRadialEm(c.intensidades, rho, c.anguloGiro);
}

} // namespace

PontoSemVento pontoSemVento(double x0, double y0, const CondiçõesDoPonto& condições) {
    return resolver(x0, y0, senosDe(condições).s2, condições);
}

PontoComVento pontoComVento(double x, double y, const CondiçõesDoPonto& condições) {
    const auto t = termos<Verificado>(x, y, constantes<Verificado>(condições, senosDe(condições).s2));
    const Verificado W = condições.W, vx = x, vy = y;
    return {static_cast<double>(vx - t.T - t.P * t.q * t.r * vx * W),
            static_cast<double>(vy - t.P * t.q * t.r * vy * W)};
}

MatrizDoModelo matrizDoModelo(double x, double y, const CondiçõesDoPonto& condições) {
    const auto c = constantes<double>(condições, senosDe(condições).s2);
    const auto t = termos(x, y, c);
    return {finito(derivada11(x, t, c)), finito(derivada12(x, y, t, c)), finito(derivada21(x, y, t, c)),
            finito(derivada22(y, t, c))};
}

Senos senosDe(const CondiçõesDoPonto& c) {
    const double jato = senoECosseno(c.anguloJato).seno;
    const auto [seno, cosseno] = senoECosseno(c.rotVento);
    return {jato * jato, cosseno, seno};
}

PontasDoSetor pontasDoSetor(double anguloSecoI, double anguloSecoII, double rotacao) {
    return {radianos(anguloSecoI + rotacao), radianos((360 - anguloSecoII) + rotacao)};
}

bool PontasDoSetor::contêm(double theta) const {
    if (rad2 > doisPiDoModelo && theta < rad2 - doisPiDoModelo)
        theta += doisPiDoModelo;
    else if (rad1 < 0 && theta > rad1 + doisPiDoModelo)
        theta -= doisPiDoModelo;
    return theta >= rad1 && theta <= rad2;
}

bool PontasDoSetor::perto(double theta) const {
    constexpr double margem = 1e-10;
    for (const double ponta : {rad1, rad2})
        for (const double volta : {-doisPiDoModelo, 0.0, doisPiDoModelo})
            if (std::fabs(theta - (ponta + volta)) < margem) return true;
    return false;
}

double distanciaNoSetor(double anguloSecoI, double anguloSecoII, double rotacao, double xs, double ys,
                        double R) {
    const double d = std::sqrt(xs * xs + ys * ys);
    if (d >= R || xs == 0 || ys == 0) return 0;
    const auto pontas = pontasDoSetor(anguloSecoI, anguloSecoII, rotacao);
    const double quociente = dividir(xs, ys);
    const auto theta = [&](double arco) { return ys < 0 ? piDoModelo / 2 + arco : arco + 4.712388980384685; };
    const double rápido = theta(std::atan(quociente));
    // Where the last bit decides, it must be that of every machine.
    return pontas.contêm(pontas.perto(rápido) ? theta(arcoTangente(quociente)) : rápido) ? d : 0;
}

CunhaSeca cunhaSeca(double anguloGiro) {
    const double beta = radianos((360 - anguloGiro) / 2);
    return {senoECosseno(beta).seno, cotangente(beta)};
}

double intensidadeSetor(const PontosDoPerfil& intensidades, double u, double w, double anguloGiro, double R) {
    double rho = 0;
    if (u != 0) rho = std::sqrt(u * u + w * w);
    if (u > 0) {
        const auto cunha = cunhaSeca(anguloGiro);
        const double distância = std::fabs(w);
        // In this order: at a full turn the first test keeps the tangent of 0 out of the second.
        if (distância / R < cunha.seno && distância * cunha.cotangente < std::fabs(u) &&
            std::fabs(u) < std::sqrt(R * R - w * w))
            rho = 5 * R;
    }
    return intensidadeRelativa(intensidades, rho / R) * dividir(360, anguloGiro);
}

IntensidadeNoPonto intensidadeEmPonto(double x0, double y0, const Senos& senos, const CondiçõesDoPonto& c) {
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

IntensidadeNoPonto intensidadeEmPonto(double x0, double y0, const CondiçõesDoPonto& condições) {
    return intensidadeEmPonto(x0, y0, senosDe(condições), condições);
}

} // namespace varenta
