#pragma once

#include <cstddef>

namespace varenta::bancada {

/// Makes the arithmetic of `passes` Newton passes of one vector each, with nothing that waits for anything:
/// what the processor's units could do if the pass had no chains. Its time is the limit of the kernel's. The
/// mix is that of the kernel: 43 products, 32 sums, 2 square roots and 20 quotients, of which, where there
/// are fused operations, 15 cost a product and two of these and their divisors 3 divisions. `bits` is the
/// width of the vectors, as of the kernels; the processor must have it.
template <int bits>
void misturar(std::size_t passes);

template <>
void misturar<128>(std::size_t);
template <>
void misturar<256>(std::size_t);
template <>
void misturar<512>(std::size_t);

} // namespace varenta::bancada
