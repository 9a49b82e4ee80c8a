#pragma once

#include "comum/grafico.h"

namespace varenta {

/// `Form4`'s chart of the spacings, in pixels. Its vertical axis is fixed, from 10 to 100 %.
inline constexpr MalhaDeGráfico malhaDosEspaçamentos{
    .esquerda = 56,
    .direita = 336,
    .topo = 7,
    .base = 217,
    .finasVerticais = {70, 14, 19},
    .finasHorizontais = {21, 14, 14},
    .grossasVerticais = {91, 35, 7},
    .grossasHorizontais = {42, 35, 5},
};

/// `Form4`'s chart of the depths between two lanes, in pixels.
inline constexpr MalhaDeGráfico malhaDaSobreposição{
    .esquerda = 63,
    .direita = 378,
    .topo = 7,
    .base = 217,
    .finasVerticais = {77, 14, 22},
    .finasHorizontais = {21, 14, 14},
    .grossasVerticais = {98, 35, 8},
    .grossasHorizontais = {42, 35, 5},
};

} // namespace varenta
