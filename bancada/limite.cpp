#include "limite.h"

#include "simulacao/nucleo/vetores/vetor.h"

#include <utility>

namespace varenta::bancada {
namespace {

constexpr std::size_t fusões = VARENTA_BITS == 128 ? 0 : 22;
constexpr std::size_t produtos = VARENTA_BITS == 128 ? 78 : 54;
constexpr std::size_t divisões = VARENTA_BITS == 128 ? 13 : 10;
constexpr std::size_t somas = VARENTA_BITS == 128 ? 67 : 32; // comparisons among them
constexpr std::size_t raízes = 2;
constexpr std::size_t passos = produtos + fusões;

/// As many products as their latency and two units of them ask for.
struct Números {
    Vetor a[8], s[3], um;
};

/// The compiler must neither drop the operation that gave `x` nor know its result.
void prender(Vetor& x) { asm volatile("" : "+v"(x.v)); }

/// Whether one of `quantas` operations, spread over all steps, falls on the step `k`.
constexpr bool cai(std::size_t quantas, std::size_t k) {
    return k * quantas / passos != (k + 1) * quantas / passos;
}

template <std::size_t k>
[[gnu::always_inline]] inline void passo(Números& n) {
    auto& a = n.a[k % 8];
#if VARENTA_BITS != 128
    if constexpr (cai(fusões, k))
        a = vezesMais(a, n.um, n.um);
    else
#endif
        a = a * n.um;
    prender(a);
    if constexpr (cai(somas, k)) {
        auto& s = n.s[k * somas / passos % 3];
        s = s + n.um;
        prender(s);
    }
    if constexpr (cai(divisões, k)) {
        Vetor quociente = n.um / n.a[(k + 1) % 8];
        prender(quociente);
    }
    if constexpr (cai(raízes, k)) {
        Vetor raiz = sqrt(n.a[(k + 1) % 8]);
        prender(raiz);
    }
}

template <std::size_t... k>
[[gnu::always_inline]] inline void umPasse(Números& n, std::index_sequence<k...>) {
    (passo<k>(n), ...);
}

/// `vezes` operations on two numbers, none of which needs the result of another.
template <class Operação>
void repetir(std::size_t vezes, Operação&& operação) {
    Vetor a = 1.5, b = 1.25;
    for (std::size_t n = 0; n < vezes; n += 8)
        for (int k = 0; k < 8; ++k) {
            prender(a);
            prender(b);
            Vetor resultado = operação(a, b);
            prender(resultado);
        }
}

} // namespace

template <>
void misturar<VARENTA_BITS>(std::size_t passes) {
    Números n;
    n.um = 1.0;
    prender(n.um);
    for (auto& a : n.a) a = 1.5;
    for (auto& s : n.s) s = 1.5;
    for (std::size_t passe = 0; passe < passes; ++passe) umPasse(n, std::make_index_sequence<passos>{});
}

template <>
void dividir<VARENTA_BITS>(std::size_t vezes) {
    repetir(vezes, [](Vetor a, Vetor b) { return a / b; });
}

template <>
void extrairRaízes<VARENTA_BITS>(std::size_t vezes) {
    repetir(vezes, [](Vetor a, Vetor) { return sqrt(a); });
}

} // namespace varenta::bancada
