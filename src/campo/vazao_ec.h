#pragma once

#include "comum/verificacoes.h"

#include <array>

namespace varenta {

/// The checks of the flow that a radial profile is scaled to. Those before the profile is made refuse what is
/// no number already.
extern const std::array<VerificaçãoDeTexto, 2> verificaçõesDaVazãoDoEnsaio;

} // namespace varenta
