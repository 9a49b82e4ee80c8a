#pragma once

#include "comum/grafico.h"

namespace varenta {

/// The point at a distance from `centro` in the direction `rumo`: radians clockwise from upward.
PontoDoDesenho noRumo(PontoDoDesenho centro, double distância, double rumo);

/// The wind's arrow in red: from its point `ponta` a shaft in the direction `rumo`, from which the wind
/// comes, and two barbs.
void desenharSeta(Desenho& desenho, PontoDoDesenho ponta, double haste, double rumo);

/// The ends of the wetted sector on a plan whose upward direction is the sprinkler's ahead: radians
/// anticlockwise from the right, within one turn, running from `início` to `fim`.
struct ExtremosDoSetor {
    double início, fim;
};

/// The wetted sector of the dry angles and the rotation, in whole degrees.
ExtremosDoSetor setorMolhado(int anguloSecoI, int anguloSecoII, int rotacao);

/// A sector with its radial lines.
void desenharSetor(Desenho& desenho, PontoDoDesenho centro, double raio, const ExtremosDoSetor& setor);
/// Draws the wind in twips, with the pen's present width: an arrow that blows from the bearing `direção`
/// (radians) to the centre of the rose at (1455, 1125).
void desenharVento(Desenho& desenho, double direção);

/// Draws the sprinkler's diagram in twips: the wind at its rose, the wetted sector at two places of the
/// travel lane, three rows of collectors. All angles in whole degrees: the wind's bearing, the dry angles,
/// the rotation.
void desenharDiagrama(Desenho& desenho, int direção, int anguloSecoI, int anguloSecoII, int rotacao);

} // namespace varenta
