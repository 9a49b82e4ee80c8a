/// How long the fits take, with what one of them asks of the model: evaluations, Newton passes per
/// evaluation, the share that stopped at the limit of passes, points per second.

#include "ajuste/ensaio.h"
#include "ajuste/form_ajven.h"
#include "ajuste/tela_de_ajuste.h"
#include "shell/form3.h"
#include "shell/sistema.h"

#include <benchmark/benchmark.h>

namespace {

using namespace varenta;

/// The parameters that the simulation starts from.
Parametros parâmetros(double R) {
    return {0.0362 * R, 0.0131 * R, -0.0097 * R, 0.0026 * R, 0.4003 * R, -0.3361 * R};
}

AspersorDoAjuste aspersor() {
    iniciarSistema();
    form3_TX20c_Click();
    return lerAspersor(telaDeAjuste(Aspersor::doCatálogo));
}

/// The winds of the tests, one after another.
VentoDoEnsaio vento(int n) { return {.W = 2.0 + n, .direção = 45.0 * n}; }

/// Readings that a tenth too much water above and a tenth too little below the model make.
void observar(auto& ensaio, double R) {
    ContagemDoModelo contagem;
    ensaio.observados = estimados(ensaio, parâmetros(R), contagem);
    double fator = 0.9;
    for (double& observado : ensaio.observados) {
        observado *= fator;
        fator = 2 - fator;
    }
}

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
    const auto a = aspersor();
    const int N = static_cast<int>(estado.range(1));
    std::vector<EnsaioDeMalha> ensaios;
    for (int n = 0; n < estado.range(0); ++n) {
        ensaios.push_back(ensaioDeMalha(a, vento(n), N, static_cast<double>(estado.range(2)), {}));
        observar(ensaios.back(), a.R);
    }
    ajustar(estado, ensaios, 1e-5);
}
BENCHMARK(ajusteDaMalha)->Args({1, 14, 6})->Args({3, 60, 2})->Unit(benchmark::kMillisecond);

/// Arguments: tests, collectors on each side, spacing.
void ajusteDoAutopropelido(benchmark::State& estado) {
    const auto a = aspersor();
    const int N = 2 * static_cast<int>(estado.range(1));
    std::vector<EnsaioMóvel> ensaios;
    for (int n = 0; n < estado.range(0); ++n) {
        ensaios.push_back(ensaioMóvel(a, vento(n), N, static_cast<double>(estado.range(2)), 40, 240, {}));
        observar(ensaios.back(), a.R);
    }
    ajustar(estado, ensaios, 1e-7);
}
BENCHMARK(ajusteDoAutopropelido)->Args({1, 20, 3})->Args({3, 40, 2})->Unit(benchmark::kMillisecond);

} // namespace
