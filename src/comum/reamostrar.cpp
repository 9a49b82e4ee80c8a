#include "comum/reamostrar.h"

#include <algorithm>

namespace varenta {
namespace {

/// Where a point of the raster lies among the values of a row or a column.
struct Lugar {
    std::size_t antes, depois;
    double fração; // of the way from the one to the other
};

/// The point `k` of `pontos`, at k h from the first of `N` values, with h = e (N - 1) / (pontos - 1).
Lugar lugarDoPonto(std::size_t k, std::size_t pontos, std::size_t N, double e) {
    // Rounding keeps neither a single value nor the last one exactly.
    if (N < 2 || k + 1 == pontos) return {N - 1, N - 1, 0};
    const double h = 2 * (e * (static_cast<double>(N) / 2 - 0.5)) / static_cast<double>(pontos - 1);
    const double distância = static_cast<double>(k) * h;
    const auto antes = std::min(static_cast<std::size_t>(distância / e), N - 2);
    return {antes, antes + 1, (distância - static_cast<double>(antes) * e) / e};
}

double entre(double antes, double depois, double fração) { return antes + (depois - antes) * fração; }

} // namespace

Matriz reamostrar(const Matriz& valores, double e, std::size_t linhas, std::size_t colunas) {
    Matriz esticada{valores.linhas(), colunas}, mapa{linhas, colunas};
    for (std::size_t c = 0; c < colunas; ++c) {
        const auto lugar = lugarDoPonto(c, colunas, valores.colunas(), e);
        for (std::size_t l = 0; l < valores.linhas(); ++l) {
            const auto linha = valores.linha(l);
            esticada.linha(l)[c] = entre(linha[lugar.antes], linha[lugar.depois], lugar.fração);
        }
    }
    for (std::size_t l = 0; l < linhas; ++l) {
        const auto lugar = lugarDoPonto(l, linhas, valores.linhas(), e);
        const auto antes = esticada.linha(lugar.antes), depois = esticada.linha(lugar.depois);
        for (std::size_t c = 0; c < colunas; ++c) mapa.linha(l)[c] = entre(antes[c], depois[c], lugar.fração);
    }
    return mapa;
}

} // namespace varenta
