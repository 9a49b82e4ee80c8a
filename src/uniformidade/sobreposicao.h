#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

/// Overlap of neighbouring lanes, and the statistics of evenness, as pure functions.
///
/// Positions between two lanes are counted from 0 here; position P stands at s/2 + P x s from the lane.
namespace varenta {

/// The number of positions between lanes at the spacing E (m), with points every s (m): E / s as a whole
/// number, half to even. Raises "Divisão por zero" for s of 0.
int posiçõesEntreCarreadores(double E, double s);

/// What falls at each position: from the lane's right side, from its left side, and in all.
struct Sobreposição {
    std::vector<double> direita, esquerda, total;
};

/// Adds the depths of both sides of one pass, each from the lane outward, to the `n` positions between lanes:
/// the right side runs from the first position on, the left one from the last position back, and both wrap
/// round as often as they are longer than the spacing. First all of the right, then all of the left.
/// `aoSomarEsquerda` is called with a position's total after each addition from the left.
/// Raises "Índice fora dos limites" for `n` below 1 where there is a depth to add.
Sobreposição sobrepor(std::span<const double> direita, std::span<const double> esquerda, int n,
                      const std::function<void(double)>& aoSomarEsquerda = {});

/// How many values make the lowest quarter of `n`: a quarter of n, rounded half upwards.
std::size_t menorQuarto(std::size_t n);

/// Mean depth (the depths' own unit), distribution uniformity of the lowest quarter (%), and Christiansen's
/// coefficient of uniformity (%).
struct Estatísticas {
    double media, UD, CUC;
};

/// Statistics of the values, with the lowest quarter being the `q` smallest of them. Sums run in the order of
/// the values, that of the lowest quarter upwards from the smallest. Raises "Estouro" for `q` of 0 and for
/// values that are all 0, "Divisão por zero" for other values with a mean of 0.
Estatísticas calcularEstatísticas(std::span<const double> valores, std::size_t q);

} // namespace varenta
