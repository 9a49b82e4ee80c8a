#pragma once

#include "comum/reamostrar.h"
#include "simulacao/campo_intensidades.h"

namespace varenta {

/// The field sampled at `ladoDoMapa` x `ladoDoMapa` places by linear interpolation, along the lane first and
/// then across it. Row 1 is ahead of the sprinkler, column 1 to its left. The places of the samples are found
/// by adding the step up, so the last ones may fall past the last cell through rounding; they stay 0.
/// Raises "Índice fora dos limites" where the field has more cells than there are samples.
Matriz amostrarCampo(const CampoDeIntensidades& campo);

/// Draws the map of intensities on `Form_grafVen`, and disables `Form7`: for the catalogue sprinkler of
/// `form1`, and for the one that `Perfil` holds.
void desenharIntensidades();
void desenharIntensidadesOu();

} // namespace varenta
