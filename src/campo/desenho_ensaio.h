#pragma once

#include "comum/desenho.h"

namespace varenta {

/// How the collectors of a travelling test stand: lines across the lane, `distância` m apart, each with
/// `coletores` on either side of the lane, `espaço` m apart.
struct ArranjoDoEnsaio {
    int linhas, coletores;
    double distância, espaço;
};

/// Draws the test from above, to scale, in a picture of 300 x 200: the lane with the direction of travel
/// upward, the lines, and the collectors, the first half a space from the lane.
void desenharEnsaioMóvel(Desenho& desenho, const ArranjoDoEnsaio& arranjo);

} // namespace varenta
