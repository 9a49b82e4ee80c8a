#pragma once

#include "comum/grafico.h"

namespace varenta {

/// The chart of the transversal profile, in pixels.
inline constexpr MalhaDeGráfico malhaDoPerfilTransversal{
    .esquerda = 68,
    .direita = 348,
    .topo = 28,
    .base = 203,
    .finasVerticais = {82, 14, 19},
    .finasHorizontais = {35, 14, 12},
    .grossasVerticais = {103, 35, 7},
    .grossasHorizontais = {63, 35, 4},
};

} // namespace varenta
