#include "ajuste/mapa.h"

#include "comum/reamostrar.h"

#include <algorithm>

namespace varenta {

void pintarMapa(Desenho& desenho, double x, double y, std::span<const double> valores, int N, double e,
                const EscalaDeCores& escala) {
    constexpr double lado = 16.58291457;
    const auto n = static_cast<std::size_t>(N);
    Matriz campo{n, n};
    for (std::size_t l = 0; l < n; ++l) std::ranges::copy(valores.subspan(l * n, n), campo.linha(l).begin());
    desenho.limpar();
    desenho.mosaico(escala.mosaico(reamostrar(campo, e, ladoDoMapa, ladoDoMapa), x, y, lado, lado));
}

} // namespace varenta
