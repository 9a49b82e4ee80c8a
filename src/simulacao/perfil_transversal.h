#pragma once

#include "simulacao/modelo_vento.h"

#include <vector>

namespace varenta {

/// A run of the sprinkler: the conditions of every point, and how the field is laid out and travelled.
struct DadosDaSimulação {
    CondiçõesDoPonto condições;
    /// Spacing of the field's points, m.
    float S;
    /// Speed of travel, m/h.
    double V;
};

/// A field larger than this a side is refused ("Memória insuficiente"): no sprinkler needs it, and a wild set
/// of parameters would otherwise keep the program at work without end.
inline constexpr int maiorLadoDoCampo = 10000;

/// The number of points a side of the square field, even, at least 2: from the reach it grows until a probe
/// straight downwind of the sprinkler stays dry.
int ladoDoCampo(const DadosDaSimulação& dados);

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
