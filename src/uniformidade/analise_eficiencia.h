#pragma once

namespace varenta {

/// Fills `Form9` with what the strip of `Form8`'s table is worth for required depths, for the catalogue
/// sprinkler of `form1` and for the one that `Perfil` holds. False where the lengths of the strip's ends are
/// refused; `Form9` is as it was then. Raises as the analysis does, with the volumes written already.
bool analisarEficiencia();
bool analisarEficienciaOu();

} // namespace varenta
