#pragma once

#include <string>
#include <vector>

namespace varenta {

/// The spacings that are offered for a sprinkler of the reach R (m): from 6 x Int(2 x R x 0.4 / 6) every 6 m
/// up to and including 2 x R.
std::vector<std::string> espaçamentosParaRaio(double R);

/// Picks the spacing in the middle of `Form4`'s list, the later of two.
void escolherEspaçamentoDoMeio();

/// Fills `Form4`'s table with `CUC`, `UD` and mean depth at every spacing of the list, which it selects one
/// after another, tells the best, and draws the chart. Raises as the statistics do; a spacing with fewer than
/// two positions takes the lowest quarter's count from the spacing before it.
void calcularMaiorCUC();

/// Overlaps the lanes at the spacing of the list's text: fills the table of positions, the three figures and
/// the chart. Raises as the statistics do, and "Estouro" for fewer than two positions.
void sobreporEspacamento();

} // namespace varenta
