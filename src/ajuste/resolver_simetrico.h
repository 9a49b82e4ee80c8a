#pragma once

#include <array>

namespace varenta {

using Vetor6 = std::array<double, 6>;
using Matriz6 = std::array<Vetor6, 6>;

/// Solves H x = b for a symmetric H, of which only the lower triangle is read: H = L D Lᵀ without pivoting (L
/// unit lower triangular, D diagonal), forward substitution, division by D, back substitution. Sums run left
/// to right and are then taken from their element. Raises "Divisão por zero" or "Estouro" for a matrix that
/// this can't factor, a singular one among them.
Vetor6 resolverSimetrico(const Matriz6& H, const Vetor6& b);

} // namespace varenta
