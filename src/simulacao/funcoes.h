#pragma once

/// Cells of a line by their distance from one of them. All numbers are doubles; results are whole.
namespace varenta {

/// The cell of the signed distance `distancia` on a line of cells of width `passo` (the same unit) around the
/// cell `origem`: distances are rounded to whole cells, half upwards, and counted down from `origem` + 1 for
/// 0 and below, up from it above 0. Raises "Divisão por zero" or "Estouro" for a width of 0.
double indiceDistancia(double origem, double distancia, double passo);

/// The cell of a positive distance, counted up from `origem` itself; 0 for any other distance.
double indiceDistanciaPositiva(double origem, double distancia, double passo);

} // namespace varenta
