#pragma once

#include "simulacao/fonte_aspersor.h"
#include "uniformidade/faixa.h"

#include <optional>

namespace varenta {

/// Reads sprinkler, run, carrier lane, spacing and stops from the screens. Where the lengths of the strip's
/// ends are refused, shows the message and yields nothing.
std::optional<DadosDaFaixa> lerFaixa(const FonteDoAspersor& fonte);

/// Evaluates the strip, for the catalogue sprinkler of `form1` and for the one that `Perfil` holds: fills the
/// figures and the chart of `Form5`, and the table and the captions of `Form8`. False where the lengths of
/// its ends are refused; nothing has changed then. Raises as the strip and its statistics do, at the point
/// where it arises: what was written before stays.
bool calcularFaixa();
bool calcularFaixaOu();

/// Clears `Form5`'s chart and draws its grid.
void prepararGráficoDaFaixa();

} // namespace varenta
