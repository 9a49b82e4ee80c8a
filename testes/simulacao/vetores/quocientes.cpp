#include "quocientes.h"

#include "simulacao/nucleo/vetores/vetor.h"

namespace varenta::teste {

template <>
void dividirEmVetores<VARENTA_BITS>(const double* a, double b, double* q, std::size_t n) {
    const DivisorConhecido divisor{b};
    for (std::size_t k = 0; k < n; k += faixas) (Vetor::lido(a + k) / divisor).gravar(q + k);
}

} // namespace varenta::teste
