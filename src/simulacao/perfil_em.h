#pragma once

#include "aspersor/perfil_radial.h"
#include "comum/controles.h"

#include <span>

namespace varenta {

/// Intensity (mm/h) of a full circle at the relative distance `u` (distance / reach): straight lines between
/// the 22 intensities of the profile; 0 where `u` is below 0 or above 1. The abscissae are fixed decimals.
double intensidadeRelativa(const PontosDoPerfil& intensidades, double u);

/// Intensity (mm/h) at the relative distance `rho` (distance / reach) of a sprinkler that turns through
/// `anguloGiro` degrees: that of a full circle scaled by 360 / `anguloGiro`; 0 at 1, unlike there.
/// Raises "Divisão por zero" for an angle of 0.
double perfilRadialEm(const PontosDoPerfil& intensidades, double rho, double anguloGiro);

/// The intensities that the 22 labels of a profile show. Raises "Tipos incompatíveis" where one is no number.
PontosDoPerfil intensidadesDosRótulos(std::span<const Rotulo> lblIntensidade);

} // namespace varenta
