#pragma once

#include "aspersor/perfil_radial.h"

/// The intensity at a point as plainly as its formulas can be written down, one routine after another, every
/// number an argument: the yardstick of all that is done for speed. It checks nothing, keeps nothing from one
/// point to the next, and is compiled with -O2. It is not to be made faster.
namespace varenta::bancada {

double intensidadeTranscrita(double x0, double y0, double anguloSecoI, double anguloSecoII, double rotacao,
                             double anguloGiro, double R, double A, double B, double C, double D, double E,
                             double F, double W, double anguloJato, double rotVento,
                             const PontosDoPerfil& lblIntensidade);

} // namespace varenta::bancada
