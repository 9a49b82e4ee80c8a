#include "campo/desenho_ensaio.h"

#include "aspersor/desenho_coletores.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace varenta {
namespace {

constexpr double centro = 150, meio = 100, meiaLargura = 135, meiaAltura = 80;

void desenharCarreador(Desenho& desenho) {
    constexpr double topo = 5, base = 195, farpa = 7;
    desenho.larguraTraco(2);
    desenho.linha(centro, base, centro, topo, cores::azul);
    desenho.linha(centro, topo, centro - farpa, topo + farpa, cores::azul);
    desenho.linha(centro, topo, centro + farpa, topo + farpa, cores::azul);
    desenho.larguraTraco(1);
}

/// Half of the test's extension across the lane and along it, in metres.
struct Extensão {
    double lado, frente;
};

/// Pixels a metre: what both directions have room for.
double escala(const Extensão& extensão) {
    const auto cabe = [](double metade, double metros) {
        return metros > 0 ? metade / metros : std::numeric_limits<double>::max();
    };
    return std::min(cabe(meiaLargura, extensão.lado), cabe(meiaAltura, extensão.frente));
}

} // namespace

void desenharEnsaioMóvel(Desenho& desenho, const ArranjoDoEnsaio& arranjo) {
    desenho.limpar();
    desenharCarreador(desenho);
    // Spacings that are no lengths yet leave the lane alone, as do those that no drawing can hold.
    if (arranjo.espaço <= 0 || arranjo.distância <= 0) return;
    const Extensão extensão{(arranjo.coletores - 0.5) * arranjo.espaço,
                            (arranjo.linhas - 1) * arranjo.distância / 2};
    const double pixels = escala(extensão);
    if (!std::isfinite(extensão.lado * pixels) || !std::isfinite(extensão.frente * pixels)) return;
    // More collectors would only be a bar, and cost the memory of their strokes.
    constexpr int maisColetores = 10'000;
    const bool distinguíveis = std::int64_t{arranjo.linhas} * arranjo.coletores <= maisColetores;
    for (int k = 0; k < arranjo.linhas; ++k) {
        const double y = meio + (k - (arranjo.linhas - 1) / 2.0) * arranjo.distância * pixels;
        const double alcance = extensão.lado * pixels;
        desenho.linha(centro - alcance, y, centro + alcance, y, cores::preto);
        if (!distinguíveis) continue;
        for (int j = 1; j <= arranjo.coletores; ++j) {
            const double x = (j - 0.5) * arranjo.espaço * pixels;
            desenharColetor(desenho, centro - x, y);
            desenharColetor(desenho, centro + x, y);
        }
    }
}

} // namespace varenta
