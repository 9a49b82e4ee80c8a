#pragma once

#include <cstddef>

namespace varenta::teste {

/// a[k] / b in vectors of `bits` bits, b as a divisor known beforehand, into q[k]. `n` is a multiple of 8.
/// The processor must have the width.
template <int bits>
void dividirEmVetores(const double* a, double b, double* q, std::size_t n);

template <>
void dividirEmVetores<128>(const double*, double, double*, std::size_t);
template <>
void dividirEmVetores<256>(const double*, double, double*, std::size_t);
template <>
void dividirEmVetores<512>(const double*, double, double*, std::size_t);

} // namespace varenta::teste
