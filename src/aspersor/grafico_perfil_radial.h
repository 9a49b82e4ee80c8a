#pragma once

#include "aspersor/perfil_radial.h"
#include "comum/grafico.h"
#include "comum/tela.h"

#include <span>

namespace varenta {

/// `form1`'s chart of a radial profile, in twips.
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

/// The same chart on the screens of a measured sprinkler, in pixels.
inline constexpr MalhaDeGráfico malhaDoPerfilMedido{
    .esquerda = 77,
    .direita = 427,
    .topo = 28,
    .base = 238,
    .finasVerticais = {91, 14, 24},
    .finasHorizontais = {42, 14, 14},
    .grossasVerticais = {112, 35, 9},
    .grossasHorizontais = {63, 35, 5},
};

/// The chart of a radial profile on its screen.
struct GráficoDoPerfilRadial {
    Desenho& Picture1;
    /// Tick captions of distance and intensity.
    std::span<Rotulo> Label6, Label7;
    const MalhaDeGráfico& malha;
    /// The tick step of the intensity is the largest intensity divided by this.
    double divisor;
};

/// What the chart shows: relative distances and intensities, with the reach (m) and the mean intensity (mm/h)
/// that they are relative to. The ticks of the distance follow the reach as the screen shows it.
struct CurvaRelativa {
    PontosDoPerfil x, y;
    double R, alcanceMostrado, Imedia;
};

/// Draws the smooth curve through the 22 points, with its axes. Raises "Divisão por zero" or "Estouro" where
/// a tick step reads 0.
void desenharPerfilRadial(const GráficoDoPerfilRadial& gráfico, const CurvaRelativa& relativa);

/// The labels of the read-out: the last tick of each axis, and what shows r and i.
struct LeituraDoPerfilRadial {
    const Rotulo& fimDeR;
    const Rotulo& fimDeI;
    Rotulo& Label15;
    Rotulo& Label16;
};

/// Reads the chart at a place of the mouse; outside the axes the labels stay. Returns the pointer to show.
Ponteiro lerPerfilRadial(const MalhaDeGráfico& malha, const LeituraDoPerfilRadial& leitura, double x,
                         double y);

} // namespace varenta
