#include "transcricao.h"

#include "transcricao_modelo.h"

#include <cmath>

namespace varenta::bancada {
namespace {

constexpr double pi = 3.14159265358979;

double distanciaNoSetor(double anguloSecoI, double anguloSecoII, double rotacao, double xs, double ys,
                        double R) {
    const double d = std::sqrt(xs * xs + ys * ys);
    if (d >= R) return 0;
    const double rad1 = ((anguloSecoI + rotacao) * pi) / 180;
    const double rad2 = (((360 - anguloSecoII) + rotacao) * pi) / 180;
    double theta = 0;
    if ((xs > 0 && ys < 0) || (xs < 0 && ys < 0))
        theta = pi / 2 + std::atan(xs / ys);
    else if ((xs < 0 && ys > 0) || (xs > 0 && ys > 0))
        theta = std::atan(xs / ys) + 4.712388980384685;
    else
        return 0;
    if (rad2 > 6.28318530717958 && theta < rad2 - 6.28318530717958)
        theta = theta + 6.28318530717958;
    else if (rad1 < 0 && theta > rad1 + 6.28318530717958)
        theta = theta - 6.28318530717958;
    return theta >= rad1 && theta <= rad2 ? std::sqrt(xs * xs + ys * ys) : 0;
}

} // namespace

double intensidadeTranscrita(double x0, double y0, double anguloSecoI, double anguloSecoII, double rotacao,
                             double anguloGiro, double R, double A, double B, double C, double D, double E,
                             double F, double W, double anguloJato, double rotVento,
                             const PontosDoPerfil& lblIntensidade) {
    const auto [x, y] = pontoSemVento(x0, y0, R, W, A, B, C, D, E, F, anguloJato);
    const double r = std::sqrt(x * x + y * y);
    if (r >= R) return 0;
    const double xs = x * std::cos(rotVento) + y * std::sin(rotVento);
    const double ys = y * std::cos(rotVento) - x * std::sin(rotVento);
    const double d = distanciaNoSetor(anguloSecoI, anguloSecoII, rotacao, xs, ys, R);
    if (d / R == 0) return 0;
    const double i = intensidadeRelativa(d / R, lblIntensidade, false) * (360 / anguloGiro);
    if (i == 0) return 0;
    return i / fatorDeÁrea(x, y, R, W, B, C, D, E, F, anguloJato);
}

} // namespace varenta::bancada
