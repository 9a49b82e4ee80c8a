#pragma once

#include <cstddef>

/// What the processor's units could do if nothing waited for anything, by the width of the vectors, as of the
/// kernels; the processor must have it.
namespace varenta::bancada {

/// Makes the arithmetic of `passes` Newton passes of one vector each. Its time is the limit of the kernel's.
/// The mix is the kernel's. The formulas have 43 products, 32 sums, 2 square roots and 20 quotients; of
/// these, 7 take five products, four sums and a comparison each with 128 bits, and 11 take a product and two
/// fused operations each with more, 4 of them by one reciprocal more, a division.
template <int bits>
void misturar(std::size_t passes);

/// `vezes` of them, each for itself.
template <int bits>
void dividir(std::size_t vezes);
template <int bits>
void extrairRaízes(std::size_t vezes);

template <>
void misturar<128>(std::size_t);
template <>
void misturar<256>(std::size_t);
template <>
void misturar<512>(std::size_t);
template <>
void dividir<128>(std::size_t);
template <>
void dividir<256>(std::size_t);
template <>
void dividir<512>(std::size_t);
template <>
void extrairRaízes<128>(std::size_t);
template <>
void extrairRaízes<256>(std::size_t);
template <>
void extrairRaízes<512>(std::size_t);

/// Takes as many cycles: a chain of additions of whole numbers, one a cycle on any processor.
inline void contarCiclos(std::size_t ciclos) {
    std::size_t soma = 0;
    for (std::size_t n = 0; n < ciclos; n += 4)
        for (int k = 0; k < 4; ++k) {
            soma += 1;
            asm volatile("" : "+r"(soma));
        }
}

} // namespace varenta::bancada
