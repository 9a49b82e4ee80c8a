#pragma once

#include "simulacao/modelo_vento.h"
#include "simulacao/nucleo/largura.h"
#include "simulacao/nucleo/nucleo.h"

#include <span>

namespace varenta {

/// Many points of the wind model, again and again under one set of conditions but for the parameters A to
/// F: what doesn't hang on these is made once. It costs some 0.5 us, as much as forty points.
class Lote {
  public:
    explicit Lote(const CondiçõesDoPonto& condições);

    /// Other parameters, A to F.
    void definirParâmetros(std::span<const double, 6> p);

    const CondiçõesDoPonto& condições() const { return preparo_.condições; }
    const Senos& senos() const { return preparo_.senos; }

    /// `intensidadesEmPontos` under these conditions.
    void avaliar(std::span<const double> x, std::span<const double> y, std::span<double> i,
                 ContagemDoModelo& contagem, Largura largura = larguraEmUso()) const;

  private:
    PreparoDoLote preparo_;
    /// Whether the kernels do at all.
    bool emVetores_;
};

/// `intensidadeEmPonto` of the points (x[k], y[k]), the same doubles, into `i[k]`; the counts are added to
/// `contagem`. The three spans have one length. Raises what the first failing point raises; then the points
/// before it are done and counted. `largura` changes nothing but the time it takes.
void intensidadesEmPontos(std::span<const double> x, std::span<const double> y,
                          const CondiçõesDoPonto& condições, std::span<double> i, ContagemDoModelo& contagem,
                          Largura largura = larguraEmUso());

} // namespace varenta
