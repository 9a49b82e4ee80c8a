#pragma once

#include "comum/desenho.h"

#include <span>

/// The small pictures of the entry screens, which show how the collectors of a test stand.
namespace varenta {

/// A collector as all pictures draw it.
void desenharColetor(Desenho& desenho, double x, double y);

/// A radial test, in a picture of 300 x 60: the sprinkler at the left, a collector at each distance (m) that
/// is above 0, to scale, the farthest at the right end.
void desenharLinhaDeColetores(Desenho& desenho, std::span<const double> distâncias);

} // namespace varenta
