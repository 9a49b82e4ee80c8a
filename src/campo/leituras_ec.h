#pragma once

#include <cstddef>
#include <vector>

namespace varenta {

/// The readings of `Form_EC` as depths in mm: for each line of collectors both sides, each from the lane
/// outward.
struct LeiturasDoEnsaio {
    /// Spacing of the collectors, m.
    double espaço;
    struct Linha {
        std::vector<double> esquerda, direita;
    };
    std::vector<Linha> linhas;
    /// Collectors on each side.
    std::size_t coletores;
};

/// The depth (mm) that a volume (ml) is in a round collector of that diameter (cm).
/// Raises "Divisão por zero" or "Estouro" for a diameter of 0.
double lâminaDoVolume(double volume, double diâmetro);

/// Reads the grid. Raises "Tipos incompatíveis" for a cell that is no number.
LeiturasDoEnsaio lerEnsaio();

} // namespace varenta
