#pragma once

#include "comum/desenho.h"
#include "comum/escala_de_cores.h"

#include <cstddef>
#include <span>
#include <vector>

/// Maps of a square field of values as a raster of coloured squares.
namespace varenta {

/// Squares of the raster a side.
inline constexpr std::size_t ladoDoMapa = 200;

/// Resamples N x N values (row by row, every `e` m) to a raster of the same square, first and last points on
/// its edges: straight lines first along each row, then along each column of the raster. Row by row.
std::vector<double> reamostrar(std::span<const double> valores, int N, double e);

/// Paints the map of N x N values: squares of 16.58291457 units from the corner (x, y) on.
void pintarMapa(Desenho& desenho, double x, double y, std::span<const double> valores, int N, double e,
                const EscalaDeCores& escala);

} // namespace varenta
