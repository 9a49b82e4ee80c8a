#pragma once

#include "comum/verificacoes.h"

#include <array>

namespace varenta {

/// The checks of the speed, in their order.
extern const std::array<VerificaçãoDeTexto, 3> verificaçõesDaVelocidade;

/// The checks of a wind parameter.
extern const std::array<bool (*)(const std::string&), 2> recusasDeParâmetro;

/// Checks spacing, speed and parameters of `Form7`, in this order. The first failure shows its message,
/// resets the offending box or gives it the focus, and yields false.
bool entradasDaSimulaçãoVálidas();

} // namespace varenta
