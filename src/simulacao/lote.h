#pragma once

#include "simulacao/modelo_vento.h"
#include "simulacao/nucleo/largura.h"
#include "simulacao/nucleo/nucleo.h"

#include <array>
#include <cstddef>
#include <span>

namespace varenta {

/// Many points of the wind model, again and again under one set of conditions but for the parameters A to
/// F: what doesn't hang on these is made once. It costs some 0.5 us, as much as forty points.
class Lote {
  public:
    /// A to F.
    using Conjunto = std::array<double, 6>;

    explicit Lote(const CondiçõesDoPonto& condições);

    const CondiçõesDoPonto& condições() const { return preparo_.condições; }
    const Senos& senos() const { return preparo_.senos; }

    /// `intensidadesEmPontos` under these conditions.
    void avaliar(std::span<const double> x, std::span<const double> y, std::span<double> i,
                 ContagemDoModelo& contagem, Largura largura = larguraEmUso()) const;

    /// The same under each of `conjuntos` in place of the conditions' parameters: point k under the set s
    /// goes into i[k conjuntos.size() + s]. Raises what the sets would one after another. As many sets as
    /// `conjuntosDeUmaVez` takes go through the kernels at once, a set in each lane: neighbours in a search
    /// take the same passes, so that no lane waits for another.
    void avaliar(std::span<const Conjunto> conjuntos, std::span<const double> x, std::span<const double> y,
                 std::span<double> i, ContagemDoModelo& contagem, Largura largura = larguraEmUso()) const;

  private:
    void definirParâmetros(const Conjunto& p);
    bool emBlocos(AvaliarBloco* núcleo, std::span<const double> x, std::span<const double> y,
                  std::span<double> i, ContagemDoModelo& contagem) const;

    PreparoDoLote preparo_;
    /// Whether the kernels do at all.
    bool emVetores_;
};

/// How many of `quantos` sets of parameters, 1 or more, are best evaluated at once.
std::size_t conjuntosDeUmaVez(std::size_t quantos, Largura largura);

/// `intensidadeEmPonto` of the points (x[k], y[k]), the same doubles, into `i[k]`; the counts are added to
/// `contagem`. The three spans have one length. Raises what the first failing point raises; then the points
/// before it are done and counted. `largura` changes nothing but the time it takes.
void intensidadesEmPontos(std::span<const double> x, std::span<const double> y,
                          const CondiçõesDoPonto& condições, std::span<double> i, ContagemDoModelo& contagem,
                          Largura largura = larguraEmUso());

} // namespace varenta
