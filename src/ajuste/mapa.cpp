#include "ajuste/mapa.h"

#include <algorithm>

namespace varenta {
namespace {

/// Where a point of the raster lies among the values of a row or a column.
struct Lugar {
    std::size_t antes, depois;
    double fração; // of the way from the one to the other
};

/// The point `k` of the raster, at k h from the first value, with h = e (N - 1) / 199.
Lugar lugarDoPonto(std::size_t k, std::size_t N, double e) {
    if (N < 2) return {0, 0, 0};
    const double h = 2 * (e * (static_cast<double>(N) / 2 - 0.5)) / static_cast<double>(ladoDoMapa - 1);
    const double distância = static_cast<double>(k) * h;
    const auto antes = std::min(static_cast<std::size_t>(distância / e), N - 2);
    return {antes, antes + 1, (distância - static_cast<double>(antes) * e) / e};
}

double entre(double antes, double depois, double fração) { return antes + (depois - antes) * fração; }

} // namespace

std::vector<double> reamostrar(std::span<const double> valores, int N, double e) {
    const auto n = static_cast<std::size_t>(N);
    std::vector<double> linhas(n * ladoDoMapa), mapa(ladoDoMapa * ladoDoMapa);
    for (std::size_t k = 0; k < ladoDoMapa; ++k) {
        const auto [antes, depois, fração] = lugarDoPonto(k, n, e);
        for (std::size_t i = 0; i < n; ++i)
            linhas[i * ladoDoMapa + k] = entre(valores[i * n + antes], valores[i * n + depois], fração);
    }
    for (std::size_t k = 0; k < ladoDoMapa; ++k) {
        const auto [antes, depois, fração] = lugarDoPonto(k, n, e);
        for (std::size_t c = 0; c < ladoDoMapa; ++c)
            mapa[k * ladoDoMapa + c] =
                entre(linhas[antes * ladoDoMapa + c], linhas[depois * ladoDoMapa + c], fração);
    }
    return mapa;
}

void pintarMapa(Desenho& desenho, double x, double y, std::span<const double> valores, int N, double e,
                const EscalaDeCores& escala) {
    constexpr double lado = 16.58291457;
    const auto mapa = reamostrar(valores, N, e);
    desenho.limpar();
    for (std::size_t l = 0; l < ladoDoMapa; ++l)
        for (std::size_t c = 0; c < ladoDoMapa; ++c)
            desenho.caixaCheiaDeTamanho(x + static_cast<double>(c) * lado, y + static_cast<double>(l) * lado,
                                        lado, lado, escala.cor(mapa[l * ladoDoMapa + c]));
}

} // namespace varenta
