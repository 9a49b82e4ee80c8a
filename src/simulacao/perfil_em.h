#pragma once

#include "aspersor/perfil_radial.h"
#include "comum/controles.h"

#include <span>

namespace varenta {

/// Intensity (mm/h) at the relative distance `rho` (distance / reach) of a sprinkler that turns through
/// `anguloGiro` degrees: straight lines between the 22 intensities of its full-circle profile, scaled by
/// 360 / `anguloGiro`; 0 where `rho` is below 0, and at 1 and beyond. The abscissae are fixed decimals.
/// Raises "Divisão por zero" for an angle of 0.
double perfilRadialEm(const PontosDoPerfil& intensidades, double rho, double anguloGiro);

/// The intensities that the 22 labels of a profile show. Raises "Tipos incompatíveis" where one is no number.
PontosDoPerfil intensidadesDosRótulos(std::span<const Rotulo> lblIntensidade);

} // namespace varenta
