/// How long the fits take, with what one of them asks of the model: evaluations, Newton passes per
/// evaluation, the share that stopped at the limit of passes, points per second.

#include "caso_ajuste.h"

#include <benchmark/benchmark.h>

namespace {

using namespace varenta;

template <class Ensaio>
void ajustar(benchmark::State& estado, const std::vector<Ensaio>& ensaios, double tolerância) {
    ContagemDoModelo contagem;
    const auto objetivo = objetivoDosEnsaios(ensaios, contagem);
    for (auto _ : estado) {
        contagem = {};
        const auto resultado = buscarParametros(objetivo, tolerância, {[](double) {}, [](double) {}});
        benchmark::DoNotOptimize(resultado.desvio);
    }
    const auto pontos = static_cast<double>(contagem.pontos);
    estado.counters["avaliações"] = pontos;
    estado.counters["passes/avaliação"] = static_cast<double>(contagem.passes) / pontos;
    estado.counters["no limite"] = static_cast<double>(contagem.semConvergência) / pontos;
    estado.counters["pontos/s"] = benchmark::Counter(pontos, benchmark::Counter::kIsIterationInvariantRate);
}

/// Arguments: tests, collectors a side, spacing.
void ajusteDaMalha(benchmark::State& estado) {
    ajustar(estado,
            bancada::ensaiosDeMalha(static_cast<int>(estado.range(0)), static_cast<int>(estado.range(1)),
                                    static_cast<double>(estado.range(2))),
            1e-5);
}
BENCHMARK(ajusteDaMalha)->Args({1, 14, 6})->Args({3, 60, 2})->Unit(benchmark::kMillisecond);

/// Arguments: tests, collectors on each side, spacing.
void ajusteDoAutopropelido(benchmark::State& estado) {
    ajustar(estado,
            bancada::ensaiosMóveis(static_cast<int>(estado.range(0)), static_cast<int>(estado.range(1)),
                                   static_cast<double>(estado.range(2))),
            1e-7);
}
BENCHMARK(ajusteDoAutopropelido)->Args({1, 20, 3})->Args({3, 40, 2})->Unit(benchmark::kMillisecond);

} // namespace
