#pragma once

#include "ajuste/resolver_simetrico.h"

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

/// The search for the six parameters of the wind model: a simplex of a fixed number of steps, steepest
/// descent, Newton's method, one after another from the best point so far. It is chaotic, a last bit decides
/// where it ends, so that every sum and product below has its fixed order.
///
/// Letters: p the parameters A to F (those of the screens times the reach); S the sum of the squared
/// deviations at a point; D the mean deviation.
namespace varenta {

/// A to F.
using Parametros = Vetor6;

/// What a point is worth.
struct Avaliação {
    /// The sum of all squared deviations.
    double soma = 0;
    /// How many of them are above 0: places where neither observation nor model has water don't count.
    std::size_t contados = 0;

    bool operator==(const Avaliação&) const = default;
};

/// The mean deviation sqrt(sum / count). Raises "Estouro" where nothing deviates.
double desvioMédio(const Avaliação& avaliação);

/// What each of the points is worth. A run-time error of the model ends the search.
using Objetivo = std::function<std::vector<Avaliação>(std::span<const Parametros>)>;

/// What is told while the search goes on.
struct OuvinteDaBusca {
    /// The mean deviation has fallen.
    std::function<void(double desvio)> desvio;
    /// The bar: 0 to 25 in the first stage, to 35 in the second, 56 at the end.
    std::function<void(double valor)> barra;
    /// A stage begins, 1 to 3. May be left out.
    std::function<void(int número)> etapa = {};
};

struct ResultadoDaBusca {
    Parametros p;
    /// The smallest mean deviation seen at any time, which need not be that of `p`.
    double desvio;
};

/// `tolerância` is that of the second stage: of a change of the sum, and twice the shortest step tried.
/// Raises the objective's errors, and "Divisão por zero" or "Estouro" where a step can't be computed, as in a
/// flat valley.
ResultadoDaBusca buscarParametros(const Objetivo& objetivo, double tolerância, const OuvinteDaBusca& ouvinte);

} // namespace varenta
