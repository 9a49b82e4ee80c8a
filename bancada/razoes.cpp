/// How many times faster than a plain transcription each width of vectors is, and how close the widest comes
/// to what the processor could do. The works take turns within a round, so that what else the machine does
/// falls on all of them; each figure is the median of the rounds, beside it the spread. Time is the
/// processor's, not the clock's. A width that doesn't give the transcription's bits ends the run.

#include "caso.h"
#include "caso_ajuste.h"
#include "limite.h"
#include "transcricao.h"
#include "transcricao_ajuste.h"

#include "simulacao/lote.h"
#include "simulacao/nucleo/largura.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
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

/// A row of the table of ratios.
struct Trabalho {
    std::string nome;
    /// The transcription first, then each width; each leaves its numbers in `números`.
    std::vector<std::function<void()>> feituras;
    std::vector<double> números;
};

void comparar(Trabalho& trabalho) {
    std::vector<double> esperados;
    for (std::size_t k = 0; k < trabalho.feituras.size(); ++k) {
        trabalho.feituras[k]();
        if (k == 0)
            esperados = trabalho.números;
        else
            exigirOsMesmosBits(esperados, trabalho.números, largurasDisponíveis()[k - 1]);
    }
    imprimirLinha(trabalho.nome.c_str(), alternar(trabalho.feituras));
}

void compararCampo(const Campo& campo) {
    Trabalho t{"campo de 88 x 88 pontos", {}, std::vector<double>(campo.X.size())};
    t.feituras.push_back([&] { transcrever(campo, t.números); });
    for (const auto largura : largurasDisponíveis())
        t.feituras.push_back([&, largura] { avaliarNoLote(campo, largura, t.números); });
    comparar(t);
}

struct Ajustado {
    ResultadoDaBusca resultado;
    std::vector<double> desvios;
    std::size_t avaliações = 0;
};

template <class Ensaio>
Ajustado ajustar(const std::vector<Ensaio>& ensaios, Largura largura) {
    ContagemDoModelo contagem;
    const auto objetivo = objetivoDosEnsaios(ensaios, contagem, largura);
    Ajustado ajustado;
    ajustado.resultado = buscarParametros(
        [&](std::span<const Parametros> pontos) {
            ajustado.avaliações += pontos.size();
            return objetivo(pontos);
        },
        std::is_same_v<Ensaio, EnsaioDeMalha> ? 1e-5 : 1e-7,
        {[&](double desvio) { ajustado.desvios.push_back(desvio); }, [](double) {}});
    return ajustado;
}

/// A whole fit, and all mean deviations on its way.
template <class Ensaio>
void compararAjuste(const char* nome, const std::vector<Ensaio>& ensaios) {
    Trabalho t{nome, {}, {}};
    std::size_t plenas = 0, feitas = 0;
    const auto guardar = [&](const std::vector<double>& desvios, const Parametros& p) {
        t.números = desvios;
        t.números.insert(t.números.end(), p.begin(), p.end());
    };
    t.feituras.push_back([&] {
        const auto ajuste = bancada::ajusteTranscrito(ensaios);
        plenas = ajuste.avaliações;
        guardar(ajuste.desvios, ajuste.p);
    });
    for (const auto largura : largurasDisponíveis())
        t.feituras.push_back([&, largura] {
            const auto ajuste = ajustar(ensaios, largura);
            feitas = ajuste.avaliações;
            guardar(ajuste.desvios, ajuste.resultado.p);
        });
    for (const std::size_t k : {0u, 1u}) t.feituras[k]();
    t.nome += ", " + std::to_string(plenas) + " avaliações, das quais " + std::to_string(feitas) + " feitas";
    comparar(t);
}

/// What measures the limits at a width.
struct Medidores {
    void (*misturar)(std::size_t) = nullptr;
    void (*dividir)(std::size_t) = nullptr;
    void (*extrairRaízes)(std::size_t) = nullptr;
};

Medidores medidoresDa(Largura largura) {
    switch (largura) {
#if defined(VARENTA_VETORES)
    case Largura::bits128:
        return {bancada::misturar<128>, bancada::dividir<128>, bancada::extrairRaízes<128>};
    case Largura::bits256:
        return {bancada::misturar<256>, bancada::dividir<256>, bancada::extrairRaízes<256>};
    case Largura::bits512:
        return {bancada::misturar<512>, bancada::dividir<512>, bancada::extrairRaízes<512>};
#endif
    default:
        return {};
    }
}

/// How much of the time of the field its arithmetic alone would take. The second stage of a point that gets
/// water is counted as another pass, which it nearly is: 11 divisions and 3 square roots.
void imprimirLimites(const Campo& campo) {
    std::printf(
        "\n| Largura | divisão, ciclos | raiz, ciclos | ciclos por passe no limite | ns por ponto | ciclos "
        "por ponto | no limite | fração |\n|---|---|---|---|---|---|---|---|\n");
    std::vector<double> i(campo.X.size());
    const auto pontos = static_cast<double>(campo.X.size());
    for (const auto largura : largurasDisponíveis()) {
        const auto medidores = medidoresDa(largura);
        if (!medidores.misturar) continue;
        const auto contagem = avaliarNoLote(campo, largura, i);
        const auto molhados = static_cast<std::size_t>(
            std::ranges::count_if(i, [](double intensidade) { return intensidade != 0; }));
        const auto passes = (contagem.passes + molhados) / contagem.faixas;
        constexpr std::size_t vezes = 100'000;
        const auto medidas =
            alternar({[&] { avaliarNoLote(campo, largura, i); }, [&] { medidores.misturar(passes); },
                      [&] { medidores.dividir(vezes); }, [&] { medidores.extrairRaízes(vezes); },
                      [] { bancada::contarCiclos(vezes); }});
        const double ciclo = medidas[4].mediana / vezes;
        const auto cadaUm = [&](const Medida& medida) { return medida.mediana / vezes / ciclo; };
        const double ponto = medidas[0].mediana / pontos, limite = medidas[1].mediana / pontos;
        std::printf("| %s | %.2f | %.2f | %.1f | %.2f | %.1f | %.1f | %.0f%% |\n",
                    std::string{nomeDa(largura)}.c_str(), cadaUm(medidas[2]), cadaUm(medidas[3]),
                    medidas[1].mediana / static_cast<double>(passes) / ciclo, ponto * 1e9, ponto / ciclo,
                    limite / ciclo, 100 * limite / ponto);
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

/// Time of one evaluation of a fit against the size of its tests, at the width in use.
void imprimirAvaliações(const char* cabeçalho, const std::vector<std::pair<int, int>>& tamanhos) {
    std::printf("\n| %s | pontos | us por avaliação | ns por ponto |\n|---|---|---|---|\n", cabeçalho);
    for (const auto& [quantos, N] : tamanhos) {
        const auto ensaios = bancada::ensaiosDeMalha(quantos, N, 84.0 / N);
        ContagemDoModelo contagem;
        const auto objetivo = objetivoDosEnsaios(ensaios, contagem);
        const std::vector<Parametros> ponto = {bancada::parâmetros(60)};
        const auto medidas = alternar({[&] { objetivo(ponto); }});
        const auto pontos = static_cast<double>(quantos * N * N);
        std::printf("| %d de %d x %d | %.0f | %.2f | %.1f |\n", quantos, N, N, pontos,
                    medidas[0].mediana * 1e6, medidas[0].mediana / pontos * 1e9);
    }
}

} // namespace

/// `razoes campo VEZES` evaluates the field that many times at the width in use, `razoes ajuste VEZES` makes
/// the fit of one grid test of 14 x 14, and both print nothing: for tools that count instructions.
int main(int quantos, char** argumentos) {
    const auto dados = bancada::caso();
    const auto campo = campoDe(dados, static_cast<std::size_t>(ladoDoCampo(dados)));
    std::vector<double> i(campo.X.size());
    if (quantos == 3) {
        const auto ensaios = bancada::ensaiosDeMalha(1, 14, 6);
        const bool ajuste = std::string{argumentos[1]} == "ajuste";
        for (int vez = std::atoi(argumentos[2]); vez > 0; --vez)
            if (ajuste)
                ajustar(ensaios, larguraEmUso());
            else
                avaliarNoLote(campo, larguraEmUso(), i);
        return 0;
    }
    std::printf("| Trabalho | transcrição |");
    for (const auto largura : largurasDisponíveis())
        std::printf(" %s |", std::string{nomeDa(largura)}.c_str());
    std::printf("\n|---|---|");
    for (std::size_t k = 0; k < largurasDisponíveis().size(); ++k) std::printf("---|");
    std::printf("\n");
    compararCampo(campo);
    compararAjuste("ajuste da malha, 1 ensaio de 14 x 14", bancada::ensaiosDeMalha(1, 14, 6));
    compararAjuste("ajuste da malha, 3 ensaios de 60 x 60", bancada::ensaiosDeMalha(3, 60, 2));
    compararAjuste("ajuste do autopropelido, 1 ensaio, 20 de cada lado", bancada::ensaiosMóveis(1, 20, 3));
    compararAjuste("ajuste do autopropelido, 3 ensaios, 40 de cada lado", bancada::ensaiosMóveis(3, 40, 2));
    imprimirLimites(campo);
    imprimirCrescimento(dados);
    imprimirAvaliações("N", {{1, 8}, {1, 16}, {1, 32}, {1, 64}, {1, 128}});
    imprimirAvaliações("Ensaios", {{1, 42}, {2, 42}, {3, 42}});
}
