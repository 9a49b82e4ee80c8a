#pragma once

#include "comum/escala_de_cores.h"

namespace varenta {

/// Draws the legend of a map from the top of the canvas downward, a box each: the colours from the top of the
/// scale less a twentieth of it, in such steps, down to 0.
void desenharLegenda(Desenho& desenho, const EscalaDeCores& escala);

} // namespace varenta
