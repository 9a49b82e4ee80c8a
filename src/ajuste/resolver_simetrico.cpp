#include "ajuste/resolver_simetrico.h"

#include "comum/numeros.h"

#include <cstddef>

namespace varenta {
namespace {

constexpr std::size_t n = 6;

struct Fatores {
    Matriz6 L{};
    Vetor6 D{};
};

Fatores fatorar(const Matriz6& H) {
    Fatores f;
    auto& [L, D] = f;
    for (std::size_t j = 0; j < n; ++j) {
        double soma = 0;
        for (std::size_t k = 0; k < j; ++k) soma += L[j][k] * L[j][k] * D[k];
        D[j] = finito(H[j][j] - soma);
        for (std::size_t i = j + 1; i < n; ++i) {
            soma = 0;
            for (std::size_t k = 0; k < j; ++k) soma += L[i][k] * L[j][k] * D[k];
            L[i][j] = dividir(H[i][j] - soma, D[j]);
        }
    }
    return f;
}

} // namespace

Vetor6 resolverSimetrico(const Matriz6& H, const Vetor6& b) {
    const auto [L, D] = fatorar(H);
    Vetor6 x = b;
    for (std::size_t i = 0; i < n; ++i) {
        double soma = 0;
        for (std::size_t k = 0; k < i; ++k) soma += L[i][k] * x[k];
        x[i] = finito(x[i] - soma);
    }
    for (std::size_t i = 0; i < n; ++i) x[i] = dividir(x[i], D[i]);
    for (std::size_t i = n; i-- > 0;) {
        double soma = 0;
        for (std::size_t k = i + 1; k < n; ++k) soma += L[k][i] * x[k];
        x[i] = finito(x[i] - soma);
    }
    return x;
}

} // namespace varenta
