#pragma once

#include "comum/grafico.h"
#include "comum/tela.h"

#include <span>

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

/// The read-out of the chart, which works from the tick captions: the pointer over the screen, radius and
/// intensity at the mouse. Beside the chart the captions stay.
void lerNoPerfilRadial(TelaBase& tela, std::span<const Rotulo> Label6, std::span<const Rotulo> Label7,
                       Rotulo& Label15, Rotulo& Label16, double x, double y);

} // namespace varenta
