#pragma once

#include "comum/matriz.h"
#include "simulacao/modelo_vento.h"

namespace varenta {

/// A run of the sprinkler: the conditions of every point, and how the field is laid out and travelled.
struct DadosDaSimulação {
    CondiçõesDoPonto condições;
    /// Spacing of the field's points, m.
    float S;
    /// Speed of travel, m/h.
    double V;
};

/// The number of points a side of the square field, even, at least 2: from the reach it grows until a probe
/// straight downwind of the sprinkler stays dry. Raises "Memória insuficiente" above `maiorLadoDoCampo`.
int ladoDoCampo(const DadosDaSimulação& dados);

/// The intensities of precipitation (mm/h) on the ground around the sprinkler, at the centres of `lado` x
/// `lado` cells of side S (m).
struct CampoDeIntensidades {
    /// Row j lies at x(j) along the lane, from ahead to behind; column i at y(i) across it, from left to
    /// right.
    Matriz intensidades;
    double S;
    ContagemDoModelo contagem;

    std::size_t lado() const { return intensidades.linhas(); }
    /// The outermost coordinate: x(0), and y of the last column.
    double limite() const { return S * (static_cast<double>(lado()) / 2 - 0.5); }
    double x(std::size_t j) const { return limite() - static_cast<double>(j) * S; }
    /// The product is a single-precision one.
    double y(std::size_t i) const {
        return -limite() + static_cast<double>(static_cast<float>(i) * static_cast<float>(S));
    }
};

/// Evaluates the field. The last one made is kept, and given again as long as nothing that it was made from
/// has changed: profile, map, strip and its map share one. Raises what the model raises.
const CampoDeIntensidades& campoDeIntensidades(const DadosDaSimulação& dados, std::size_t lado);

} // namespace varenta
