#pragma once

namespace varenta {

/// Draws the strip's depths as a map on `Form_grafFinal`, for the catalogue sprinkler of `form1` and for the
/// one that `Perfil` holds. False where the lengths of the strip's ends are refused; nothing has changed
/// then. Raises as the strip does.
bool mapaFaixa();
bool mapaFaixaOu();

} // namespace varenta
