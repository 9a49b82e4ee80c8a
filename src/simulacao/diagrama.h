#pragma once

#include "comum/desenho.h"

namespace varenta {

/// Draws the sprinkler's diagram in twips: the wind at its rose, the wetted sector at two places of the
/// travel lane, three rows of collectors. All angles in whole degrees: the wind's bearing, the dry angles,
/// the rotation.
void desenharDiagrama(Desenho& desenho, int direção, int anguloSecoI, int anguloSecoII, int rotacao);

} // namespace varenta
