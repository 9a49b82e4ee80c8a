#pragma once

#include <string_view>

namespace varenta {

/// The spacing of collectors, of 1.5, 2, 3 and 6 m, nearest to 5 % of the reach (m); on a tie the larger one.
double espaçamentoMaisPróximo(double raio);

/// Loads `Form7` for a sprinkler of that reach (a caption): fills the list of spacings, chooses the nearest
/// to 5 % of the reach, and sets the wind to none.
void prepararCondições(std::string_view raioAlcance);

} // namespace varenta
