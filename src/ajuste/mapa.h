#pragma once

#include "comum/desenho.h"
#include "comum/escala_de_cores.h"

#include <span>

namespace varenta {

/// Paints the map of N x N values (row by row, every `e` m): squares of 16.58291457 units from the corner (x,
/// y) on, which resample the values between the first and the last ones.
void pintarMapa(Desenho& desenho, double x, double y, std::span<const double> valores, int N, double e,
                const EscalaDeCores& escala);

} // namespace varenta
