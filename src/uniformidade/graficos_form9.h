#pragma once

#include "comum/grafico.h"

namespace varenta {

/// `Form9`'s chart of the required depth against the area that gets it, in pixels; the horizontal axis is
/// fixed, from 0 to 1.
inline constexpr MalhaDeGráfico malhaDaÁrea{
    .esquerda = 67,
    .direita = 417,
    .topo = 7,
    .base = 217,
    .finasVerticais = {84.5, 17.5, 19},
    .finasHorizontais = {24.5, 17.5, 11},
    .grossasVerticais = {102, 35, 9},
    .grossasHorizontais = {42, 35, 5},
};

/// `Form9`'s chart of the efficiencies against the required depth; the vertical axis is fixed, from 0 to 100
/// %.
inline constexpr MalhaDeGráfico malhaDasEficiências{
    .esquerda = 67,
    .direita = 417,
    .topo = 7,
    .base = 217,
    .finasVerticais = {84.5, 17.5, 19},
    .finasHorizontais = {28, 21, 9},
    .grossasVerticais = {102, 35, 9},
    .grossasHorizontais = {49, 42, 4},
};

} // namespace varenta
