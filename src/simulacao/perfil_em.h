#pragma once

#include "aspersor/perfil_radial.h"
#include "comum/controles.h"

#include <span>

namespace varenta {

/// The lower bound of each segment between two points of the profile, in relative distance, and the end of
/// the last: decimal literals, since sums of 0.05 would fall on other doubles.
inline constexpr PontosDoPerfil limitesDoPerfil = {0,     0.025, 0.075, 0.125, 0.175, 0.225, 0.275, 0.325,
                                                   0.375, 0.425, 0.475, 0.525, 0.575, 0.625, 0.675, 0.725,
                                                   0.775, 0.825, 0.875, 0.925, 0.975, 1};

/// The width of the segment `k`, 0 to 20, as it enters the calculation.
constexpr double larguraDoSegmento(std::size_t k) { return k == 0 || k == 20 ? 0.025 : 0.05; }

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
