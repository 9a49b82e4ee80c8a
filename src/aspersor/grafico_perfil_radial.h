#pragma once

#include "comum/grafico.h"

namespace varenta {

/// The chart of a radial profile, in twips.
inline constexpr MalhaDeGráfico malhaDoPerfilRadial{
    .esquerda = 1155,
    .direita = 6405,
    .topo = 420,
    .base = 3570,
    .finasVerticais = {1365, 210, 24},
    .finasHorizontais = {630, 210, 14},
    .grossasVerticais = {1680, 525, 9},
    .grossasHorizontais = {945, 525, 5},
};

} // namespace varenta
