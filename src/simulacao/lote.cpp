#include "simulacao/lote.h"

#include <algorithm>
#include <cstddef>

namespace varenta {
namespace {

/// Fewer points than this are evaluated one by one: a vector of them would be mostly empty.
constexpr std::size_t poucosPontos = 4;

} // namespace

Lote::Lote(const CondiçõesDoPonto& condições)
    : emVetores_{preparar(condições, senosDe(condições), preparo_)} {
    preparo_.divisoresConhecidos = magnitudesUsuais(condições, preparo_.senos.s2);
}

void Lote::definirParâmetros(std::span<const double, 6> p) {
    auto& c = preparo_.condições;
    c.A = p[0];
    c.B = p[1];
    c.C = p[2];
    c.D = p[3];
    c.E = p[4];
    c.F = p[5];
    preparo_.divisoresConhecidos = magnitudesUsuais(c, preparo_.senos.s2);
}

void Lote::avaliar(std::span<const double> x, std::span<const double> y, std::span<double> i,
                   ContagemDoModelo& contagem, Largura largura) const {
    const auto umPorUm = [&](std::size_t de, std::size_t até) {
        for (std::size_t k = de; k < até; ++k) {
            const auto ponto = intensidadeEmPonto(x[k], y[k], preparo_.senos, preparo_.condições);
            i[k] = ponto.valor;
            contagem.pontos += 1;
            contagem.passes += static_cast<std::size_t>(ponto.passes);
            contagem.semConvergência += !ponto.convergiu;
            contagem.fatorNãoPositivo += !ponto.fatorPositivo;
        }
    };
    const auto núcleo = emVetores_ ? núcleoDa(largura) : nullptr;
    if (!núcleo || i.size() < poucosPontos) return umPorUm(0, i.size());
    for (std::size_t de = 0; de < i.size(); de += maiorBloco) {
        const auto n = std::min(maiorBloco, i.size() - de);
        if (!núcleo(preparo_, &x[de], &y[de], &i[de], n, contagem)) umPorUm(de, de + n);
    }
}

void intensidadesEmPontos(std::span<const double> x, std::span<const double> y,
                          const CondiçõesDoPonto& condições, std::span<double> i, ContagemDoModelo& contagem,
                          Largura largura) {
    Lote{condições}.avaliar(x, y, i, contagem, largura);
}

} // namespace varenta
