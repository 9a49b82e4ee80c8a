#pragma once

#include "comum/grafico.h"
#include "comum/tela.h"

#include <span>

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

/// Where the points of a profile fall on the chart.
struct EixosDoPerfil {
    double primeira; // distance of the first point from the lane, m
    double largura;  // of all points, m
    double topo;     // of the axis of the depths, mm

    /// Raises "Divisão por zero" where the depths are too small for the axis.
    PontoDoDesenho lugar(double distância, double lâmina) const;
};

/// Begins the chart of N points every S m across the lane, `maior` being the largest depth: writes the tick
/// captions of the distance and of the depth, draws the grid, and leaves the pen at width 2.
EixosDoPerfil prepararPerfil(Desenho& desenho, std::span<Rotulo> Label3, std::span<Rotulo> Label4,
                             std::size_t N, double S, double maior);

/// The read-out of the chart, which works from the tick captions: the pointer over the screen, distance and
/// depth at the mouse, both 0 beside the chart.
void lerNoPerfil(TelaBase& tela, std::span<const Rotulo> Label3, std::span<const Rotulo> Label4,
                 Rotulo& Label14d, Rotulo& Label14I, double x, double y);

} // namespace varenta
