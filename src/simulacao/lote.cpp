#include "simulacao/lote.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace varenta {
namespace {

/// Fewer points than this are evaluated one by one: a vector of them would be mostly empty.
constexpr std::size_t poucosPontos = 4;

Lote::Conjunto parâmetrosDe(const CondiçõesDoPonto& c) { return {c.A, c.B, c.C, c.D, c.E, c.F}; }

} // namespace

Lote::Lote(const CondiçõesDoPonto& condições)
    : emVetores_{preparar(condições, senosDe(condições), preparo_)} {
    definirParâmetros(parâmetrosDe(condições));
}

void Lote::definirParâmetros(const Conjunto& p) {
    auto& c = preparo_.condições;
    c.A = p[0];
    c.B = p[1];
    c.C = p[2];
    c.D = p[3];
    c.E = p[4];
    c.F = p[5];
    definirConjuntos(preparo_, {&p, 1});
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

bool Lote::emBlocos(AvaliarBloco* núcleo, std::span<const double> x, std::span<const double> y,
                    std::span<double> i, ContagemDoModelo& contagem) const {
    const auto maior = maiorBloco / preparo_.conjuntos;
    for (std::size_t de = 0; de < x.size(); de += maior)
        if (!núcleo(preparo_, &x[de], &y[de], &i[de * preparo_.conjuntos], std::min(maior, x.size() - de),
                    contagem))
            return false;
    return true;
}

void Lote::avaliar(std::span<const Conjunto> conjuntos, std::span<const double> x, std::span<const double> y,
                   std::span<double> i, ContagemDoModelo& contagem, Largura largura) const {
    auto lote = *this;
    if (conjuntos.size() == 1) {
        lote.definirParâmetros(conjuntos.front());
        return lote.avaliar(x, y, i, contagem, largura);
    }
    if (emVetores_ && conjuntos.size() == conjuntosDeUmaVez(conjuntos.size(), largura)) {
        definirConjuntos(lote.preparo_, conjuntos);
        auto contada = contagem;
        if (lote.emBlocos(núcleoDa(largura), x, y, i, contada)) {
            contagem = contada;
            return;
        }
    }
    std::vector<double> deUm(x.size());
    for (std::size_t s = 0; s < conjuntos.size(); ++s) {
        lote.definirParâmetros(conjuntos[s]);
        lote.avaliar(x, y, deUm, contagem, largura);
        for (std::size_t k = 0; k < deUm.size(); ++k) i[k * conjuntos.size() + s] = deUm[k];
    }
}

std::size_t conjuntosDeUmaVez(std::size_t quantos, Largura largura) {
    return std::bit_floor(std::min(quantos, faixasDa(largura)));
}

void intensidadesEmPontos(std::span<const double> x, std::span<const double> y,
                          const CondiçõesDoPonto& condições, std::span<double> i, ContagemDoModelo& contagem,
                          Largura largura) {
    Lote{condições}.avaliar(x, y, i, contagem, largura);
}

} // namespace varenta
