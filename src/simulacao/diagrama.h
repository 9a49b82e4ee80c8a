#pragma once

#include "comum/desenho.h"

namespace varenta {

/// Draws the wind in twips, with the pen's present width: an arrow that blows from the bearing `direção`
/// (radians) to the centre of the rose at (1455, 1125).
void desenharVento(Desenho& desenho, double direção);

/// Draws the sprinkler's diagram in twips: the wind at its rose, the wetted sector at two places of the
/// travel lane, three rows of collectors. All angles in whole degrees: the wind's bearing, the dry angles,
/// the rotation.
void desenharDiagrama(Desenho& desenho, int direção, int anguloSecoI, int anguloSecoII, int rotacao);

} // namespace varenta
