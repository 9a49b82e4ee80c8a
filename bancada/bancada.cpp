/// How long the wind model takes: at one point, over a field, in a whole transversal profile, and the stages
/// after it at their largest. Times are only
/// good for ratios within one run; points per second and Newton passes per point say what was done.

#include "caso.h"

#include "aspersor/form1.h"
#include "comum/operacoes.h"
#include "shell/form3.h"
#include "shell/sistema.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "simulacao/lote.h"
#include "simulacao/mapa_intensidades.h"
#include "simulacao/perfil_transversal.h"
#include "uniformidade/analise_eficiencia.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/mapa_faixa.h"
#include "uniformidade/uniformidade_centro.h"
#include "uniformidade/uniformidade_faixa.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using namespace varenta;
using bancada::caso;

void contar(benchmark::State& estado, const ContagemDoModelo& contagem) {
    estado.counters["pontos/s"] =
        benchmark::Counter(static_cast<double>(contagem.pontos), benchmark::Counter::kIsRate);
    estado.counters["passes/ponto"] =
        static_cast<double>(contagem.passes) / static_cast<double>(contagem.pontos);
}

void umPonto(benchmark::State& estado) {
    const auto dados = caso();
    ContagemDoModelo contagem;
    for (auto _ : estado) {
        const auto ponto = intensidadeEmPonto(-20.25, 12.75, dados.condições);
        benchmark::DoNotOptimize(ponto.valor);
        contagem.pontos += 1;
        contagem.passes += static_cast<std::size_t>(ponto.passes);
    }
    contar(estado, contagem);
}
BENCHMARK(umPonto);

void campoDePontos(benchmark::State& estado) {
    const auto dados = caso();
    const auto N = static_cast<std::size_t>(ladoDoCampo(dados));
    const double borda = dados.S * (static_cast<double>(N) / 2 - 0.5);
    const double cosseno = std::cos(dados.condições.rotVento), seno = std::sin(dados.condições.rotVento);
    std::vector<double> X, Y, M(N * N);
    for (std::size_t i = 0; i < N; ++i)
        for (std::size_t j = 0; j < N; ++j) {
            const double x = borda - static_cast<double>(i) * dados.S;
            const double y = static_cast<double>(j) * dados.S - borda;
            X.push_back(x * cosseno - y * seno);
            Y.push_back(y * cosseno + x * seno);
        }
    ContagemDoModelo contagem;
    for (auto _ : estado) {
        intensidadesEmPontos(X, Y, dados.condições, M, contagem);
        benchmark::DoNotOptimize(M.data());
    }
    contar(estado, contagem);
    estado.counters["N"] = static_cast<double>(N);
}
BENCHMARK(campoDePontos)->Unit(benchmark::kMillisecond);

void perfilTransversalInteiro(benchmark::State& estado) {
    caso();
    for (auto _ : estado) {
        calcularPerfilTransversal();
        benchmark::ClobberMemory();
    }
}
BENCHMARK(perfilTransversalInteiro)->Unit(benchmark::kMillisecond);

/// The largest of all: TX30, 44 mm, 70 m.c.a., 1.5 m, a carrier lane of 999 m, on the screens that lead
/// there.
void abrirMaiorCaso() {
    iniciarSistema();
    form3_TX30B_Click();
    escolherItem(form1->Combo1, "44 mm");
    definirValor(form1->hsbPressão, 70);
    form1_Command3_Click();
    escolherItem(form7->Combo2, "1.5");
    definirValor(form7->HScroll1, 60);
    definirValor(form7->HScroll2, 50);
    form7_Command2_Click();
    form7_cmdUniformidade_Click();
}

void abrirMaiorFaixa() {
    abrirMaiorCaso();
    form4_Command9_Click();
    form4_Command5_Click();
    definirTexto(form5->txtMan, "999");
    form5_Command10_Click();
}

/// Another wind each time, so that no field made before serves.
void mudarVento() { definirValor(form7->HScroll1, (form7->HScroll1.valor + 1) % 360); }

void maiorCUC(benchmark::State& estado) {
    abrirMaiorCaso();
    for (auto _ : estado) {
        calcularMaiorCUC();
        benchmark::ClobberMemory();
    }
}
BENCHMARK(maiorCUC)->Unit(benchmark::kMillisecond);

/// The operation as it is used, its field at hand, and with one to be made first.
void medir(benchmark::State& estado, void (*preparar)(), void (*operação)(), bool campoNovo) {
    preparar();
    for (auto _ : estado) {
        if (campoNovo) mudarVento();
        operação();
        benchmark::ClobberMemory();
    }
}
BENCHMARK_CAPTURE(medir, mapaDoPlano, abrirMaiorCaso, desenharIntensidades, false)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(medir, mapaDoPlano_campoNovo, abrirMaiorCaso, desenharIntensidades, true)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(
    medir, faixa, abrirMaiorFaixa, [] { calcularFaixa(); }, false)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(
    medir, faixa_campoNovo, abrirMaiorFaixa, [] { calcularFaixa(); }, true)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(
    medir, mapaDaFaixa, abrirMaiorFaixa, [] { mapaFaixa(); }, false)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(
    medir, eficiências, abrirMaiorFaixa, [] { analisarEficiencia(); }, false)
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
