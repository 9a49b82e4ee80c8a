#pragma once

#include "ajuste/ensaio.h"

/// Reads the tests from their screens, by the numbers' prefixes. A run-time error says after its name what to
/// look at.
namespace varenta {

/// The test of `Form_E1` to `Form_E3`, the readings in mm/h. Raises "Divisão por zero" for a time or a
/// diameter of 0.
EnsaioDeMalha lerEnsaioDeMalha(int n, const AspersorDoAjuste& aspersor);

/// The same without any readings: where its collectors stand, and its wind.
EnsaioDeMalha lerMalhaSemLeituras(int n, const AspersorDoAjuste& aspersor);

/// The test of `Form_MiE1` to `Form_MiE3`, each position's depth being the mean of its lines, in mm. Raises
/// "Divisão por zero" for a diameter of 0.
EnsaioMóvel lerEnsaioMóvel(int n, const AspersorDoAjuste& aspersor);

/// The same without any readings.
EnsaioMóvel lerMóvelSemLeituras(int n, const AspersorDoAjuste& aspersor);

/// `igualarÀVazão` for the test `n`.
double igualarEnsaioÀVazão(int n, EnsaioDoAjuste& ensaio, float Q);

} // namespace varenta
