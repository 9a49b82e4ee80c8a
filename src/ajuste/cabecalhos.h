#pragma once

#include "comum/controles.h"

#include <string_view>

/// Headers of the grids of tests and of their estimates: where each row and column stands, in m from the
/// sprinkler or from its lane. Rows and columns beyond the test have none.
namespace varenta {

/// The largest spacing (m) of collectors that a test may have: the headers have room for its positions.
inline constexpr int maiorEspaçamento = 1000;

/// N x N collectors every `e` m: columns from left to right, called "Co" with or without a blank before it,
/// rows from ahead to behind.
void escreverCabeçalhosDaMalha(Grade& grade, std::string_view coluna, int N, double e);

/// Rows of a travelling test: positions every `e` m from left ("Ce") to right ("Cd"), counted from the lane.
void escreverPosições(Grade& grade, int cadaLado, double e);

} // namespace varenta
