#pragma once

/// Failures planted where a calculation can fail by itself: the divisions of `dividir`, the index checks of
/// `exigirÍndice`, the allocations of the whole program.
namespace varenta::teste {

enum class Falta { divisão, índice, memória };

/// From then on the `n`-th (from 1) of that kind fails, once.
void plantarFalta(Falta falta, long n);

/// Plants none any more. Returns whether one has failed since `plantarFalta`.
bool colherFalta();

} // namespace varenta::teste
