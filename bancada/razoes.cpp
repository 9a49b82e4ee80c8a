/// How many times faster than a plain transcription each width of vectors is, and how close the widest comes
/// to what the processor could do. The works take turns within a round, so that what else the machine does
/// falls on all of them; each figure is the median of the rounds, beside it the spread. Time is the
/// processor's, not the clock's. A width that doesn't give the transcription's bits ends the run.

#include "caso.h"
#include "limite.h"
#include "transcricao.h"

#include "simulacao/nucleo/largura.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace {

using namespace varenta;

constexpr int rodadas = 11;

/// The field of the case with `lado` points a side over the same ground.
struct Campo {
    CondiçõesDoPonto condições;
    std::vector<double> X, Y;
};

Campo campoDe(const DadosDaSimulação& dados, std::size_t lado) {
    Campo campo{dados.condições, {}, {}};
    const double largura = static_cast<double>(dados.S) * ladoDoCampo(dados),
                 passo = largura / static_cast<double>(lado);
    const auto senos = senosDe(dados.condições);
    for (std::size_t j = 0; j < lado; ++j)
        for (std::size_t i = 0; i < lado; ++i) {
            const double x = largura / 2 - (static_cast<double>(j) + 0.5) * passo;
            const double y = (static_cast<double>(i) + 0.5) * passo - largura / 2;
            campo.X.push_back(x * senos.cosseno - y * senos.seno);
            campo.Y.push_back(y * senos.cosseno + x * senos.seno);
        }
    return campo;
}

void transcrever(const Campo& campo, std::span<double> i) {
    const auto& c = campo.condições;
    for (std::size_t k = 0; k < i.size(); ++k)
        i[k] = bancada::intensidadeTranscrita(campo.X[k], campo.Y[k], c.anguloSecoI, c.anguloSecoII,
                                              c.rotacao, c.anguloGiro, c.R, c.A, c.B, c.C, c.D, c.E, c.F, c.W,
                                              c.anguloJato, c.rotVento, c.intensidades);
}

ContagemDoModelo avaliarNoLote(const Campo& campo, Largura largura, std::span<double> i) {
    ContagemDoModelo contagem;
    intensidadesEmPontos(campo.X, campo.Y, campo.condições, i, contagem, largura);
    return contagem;
}

void exigirOsMesmosBits(const std::vector<double>& a, const std::vector<double>& b, Largura largura) {
    const auto iguais = [](double x, double y) {
        return std::bit_cast<std::uint64_t>(x) == std::bit_cast<std::uint64_t>(y);
    };
    if (std::ranges::equal(a, b, iguais)) return;
    std::fprintf(stderr, "razoes: a largura %s dá outros números\n", std::string{nomeDa(largura)}.c_str());
    std::exit(1);
}

/// Seconds of the processor for one run of `trabalho`, which is repeated for 20 ms.
double cronometrar(const std::function<void()>& trabalho) {
    const std::clock_t início = std::clock();
    std::clock_t fim = início;
    int vezes = 0;
    do {
        trabalho();
        ++vezes;
        fim = std::clock();
    } while (fim - início < CLOCKS_PER_SEC / 50);
    return static_cast<double>(fim - início) / CLOCKS_PER_SEC / vezes;
}

struct Medida {
    double mediana, menor, maior;
};

Medida medidaDe(std::vector<double> tempos) {
    std::ranges::sort(tempos);
    return {tempos[tempos.size() / 2], tempos.front(), tempos.back()};
}

/// The times of several works, taken in turns.
std::vector<Medida> alternar(const std::vector<std::function<void()>>& trabalhos) {
    std::vector<std::vector<double>> tempos(trabalhos.size());
    for (int rodada = 0; rodada < rodadas; ++rodada)
        for (std::size_t k = 0; k < trabalhos.size(); ++k) tempos[k].push_back(cronometrar(trabalhos[k]));
    std::vector<Medida> medidas;
    for (auto& t : tempos) medidas.push_back(medidaDe(std::move(t)));
    return medidas;
}

/// One line of the table: a work done plainly and at each width.
void imprimirLinha(const char* nome, const std::vector<Medida>& medidas) {
    const double plana = medidas[0].mediana;
    std::printf("| %s | 1 (%.4g ms, %.3g a %.3g) |", nome, plana * 1e3, medidas[0].menor * 1e3,
                medidas[0].maior * 1e3);
    for (std::size_t k = 1; k < medidas.size(); ++k)
        std::printf(" %.1f (%.1f a %.1f) |", plana / medidas[k].mediana, plana / medidas[k].maior,
                    plana / medidas[k].menor);
    std::printf("\n");
}

std::vector<std::function<void()>> trabalhosDoCampo(const Campo& campo, std::span<double> i) {
    std::vector<std::function<void()>> trabalhos = {[&campo, i] { transcrever(campo, i); }};
    for (const auto largura : largurasDisponíveis())
        trabalhos.push_back([&campo, i, largura] { avaliarNoLote(campo, largura, i); });
    return trabalhos;
}

std::function<void()> misturaDa(Largura largura, std::size_t passes) {
    switch (largura) {
#if defined(VARENTA_VETORES)
    case Largura::bits128:
        return [passes] { bancada::misturar<128>(passes); };
    case Largura::bits256:
        return [passes] { bancada::misturar<256>(passes); };
    case Largura::bits512:
        return [passes] { bancada::misturar<512>(passes); };
#endif
    default:
        return {};
    }
}

/// How much of the time of the field the arithmetic of its passes alone would take.
void imprimirLimites(const Campo& campo) {
    std::printf("\n| Largura | ns por ponto | um passe, ns por ponto | limite, ns por ponto | fração |\n"
                "|---|---|---|---|---|\n");
    std::vector<double> i(campo.X.size());
    for (const auto largura : largurasDisponíveis()) {
        const auto contagem = avaliarNoLote(campo, largura, i);
        const auto passes = contagem.passes / contagem.faixas;
        const auto mistura = misturaDa(largura, passes);
        if (!mistura) continue;
        const auto medidas = alternar({[&] { avaliarNoLote(campo, largura, i); }, mistura});
        const auto pontos = static_cast<double>(campo.X.size());
        const double ponto = medidas[0].mediana / pontos * 1e9, limite = medidas[1].mediana / pontos * 1e9;
        std::printf("| %s | %.2f | %.2f | %.2f | %.0f%% |\n", std::string{nomeDa(largura)}.c_str(), ponto,
                    limite * pontos / static_cast<double>(passes * contagem.faixas), limite,
                    100 * limite / ponto);
    }
}

/// Time against the number of points, at the width in use.
void imprimirCrescimento(const DadosDaSimulação& dados) {
    std::printf("\n| N | pontos | ms | ns por ponto |\n|---|---|---|---|\n");
    for (const std::size_t lado : {22u, 44u, 88u, 176u, 352u}) {
        const auto campo = campoDe(dados, lado);
        std::vector<double> i(campo.X.size());
        const auto medidas = alternar({[&] { avaliarNoLote(campo, larguraEmUso(), i); }});
        const auto pontos = static_cast<double>(lado * lado);
        std::printf("| %zu | %zu | %.4f | %.1f |\n", lado, lado * lado, medidas[0].mediana * 1e3,
                    medidas[0].mediana / pontos * 1e9);
    }
}

} // namespace

/// `razoes VEZES` evaluates the field that many times at the width in use and prints nothing: for tools that
/// count instructions.
int main(int quantos, char** argumentos) {
    const auto dados = bancada::caso();
    const auto campo = campoDe(dados, static_cast<std::size_t>(ladoDoCampo(dados)));
    std::vector<double> esperado(campo.X.size()), i(campo.X.size());
    if (quantos > 1) {
        for (int vez = std::atoi(argumentos[1]); vez > 0; --vez) avaliarNoLote(campo, larguraEmUso(), i);
        return 0;
    }
    transcrever(campo, esperado);
    std::printf("| Trabalho | transcrição |");
    for (const auto largura : largurasDisponíveis()) {
        avaliarNoLote(campo, largura, i);
        exigirOsMesmosBits(esperado, i, largura);
        std::printf(" %s |", std::string{nomeDa(largura)}.c_str());
    }
    std::printf("\n|---|---|");
    for (std::size_t k = 0; k < largurasDisponíveis().size(); ++k) std::printf("---|");
    std::printf("\n");
    imprimirLinha("campo de 88 x 88 pontos", alternar(trabalhosDoCampo(campo, i)));
    imprimirLimites(campo);
    imprimirCrescimento(dados);
}
