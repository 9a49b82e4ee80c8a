#pragma once

#include "comum/matriz.h"

namespace varenta {

/// Rows and columns of the maps of the plane.
inline constexpr std::size_t ladoDoMapa = 200;

/// Resamples values that lie every `e` along rows and columns to a raster of `linhas` x `colunas` points over
/// the same rectangle, its first and last points on the outermost values: straight lines first along each
/// row, then along each column of the raster. A single row or column fills the raster. There is one value at
/// least.
Matriz reamostrar(const Matriz& valores, double e, std::size_t linhas, std::size_t colunas);

} // namespace varenta
