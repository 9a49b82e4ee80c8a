#pragma once

#include "comum/grafico.h"

namespace varenta {

/// `Form5`'s chart of the mean depth along the strip, in pixels.
inline constexpr MalhaDeGráfico malhaDaFaixa{
    .esquerda = 56,
    .direita = 441,
    .topo = 7,
    .base = 217,
    .finasVerticais = {70, 14, 27},
    .finasHorizontais = {21, 14, 14},
    .grossasVerticais = {91, 35, 10},
    .grossasHorizontais = {42, 35, 5},
};

} // namespace varenta
