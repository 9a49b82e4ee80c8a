#pragma once

#include "simulacao/campo_intensidades.h"

#include <vector>

namespace varenta {

/// The depths that a pass of the sprinkler leaves across its lane.
struct PerfilTransversal {
    /// Distances from the lane in m, ascending, negative to the left; and the depth at each, in mm.
    std::vector<double> Dist, Lam;
    /// The largest depth, at least 0.
    double maior = 0;
    ContagemDoModelo contagem;
};

/// Lays a square field of points around the sprinkler, at the centres of cells of side S, and sums the
/// intensities along the lane at each distance from it, one rectangle of S / V hours a point.
/// Raises what the model raises, and "Divisão por zero" or "Estouro" for a speed of 0.
PerfilTransversal perfilTransversal(const DadosDaSimulação& dados);

/// Evaluates the transversal profile for the catalogue sprinkler of `form1`, and fills the table and the
/// chart of `Form7`.
void calcularPerfilTransversal();

/// The same for the measured sprinkler of `Perfil`.
void calcularPerfilTransversalOu();

} // namespace varenta
