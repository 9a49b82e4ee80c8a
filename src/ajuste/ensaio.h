#pragma once

#include "ajuste/busca.h"
#include "simulacao/lote.h"

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

/// What a fit takes of its tests: the observations, and the points at which the model is asked for its
/// estimates. Pure arithmetic. Collectors, positions and lines are counted from 0 here.
namespace varenta {

/// What a fit takes of the sprinkler.
struct AspersorDoAjuste {
    double R;                    // reach, m
    float Q;                     // flow, m³/h
    double anguloJato;           // radians above the horizontal
    PontosDoPerfil intensidades; // mm/h, full circle
};

/// The wind of a test: speed in m/s, bearing in degrees.
struct VentoDoEnsaio {
    double W, direção;
};

/// The distance from the middle of the place `j` of a row of N places every `e` m, the first at the negative
/// end: e (-N/2 + 0.5) + e j.
double lugarAscendente(double e, int N, int j);
/// The same with the first at the positive end: e (N/2 - 0.5) - e j.
double lugarDescendente(double e, int N, int j);

/// The area (cm²) of a collector of the diameter d (cm).
double áreaDoColetor(double d);

/// A test on a square of N x N points every `e` m around the sprinkler.
struct EnsaioDoAjuste {
    EnsaioDoAjuste(const CondiçõesDoPonto& condições, int N, double e);

    int N;
    double e;
    /// The model under the test's wind, with parameters of 0.
    Lote lote;
    /// One each collector or position: mm/h or mm.
    std::vector<double> observados;
    /// All points in the wind frame, m.
    std::vector<double> X, Y;
    /// What the collectors caught, m³/h.
    double V = 0;
};

/// A grid of collectors around a sprinkler at rest, row by row from the farthest ahead, each row from left to
/// right. Observations in mm/h.
struct EnsaioDeMalha : EnsaioDoAjuste {
    using EnsaioDoAjuste::EnsaioDoAjuste;
};

/// N positions across the lane of a moving sprinkler, from left to right, which passes by in N steps of `e`.
/// The points are those of each position in turn, as the sprinkler sees it from the first step to the last.
/// Observations in mm.
struct EnsaioMóvel : EnsaioDoAjuste {
    using EnsaioDoAjuste::EnsaioDoAjuste;

    double v = 0; // speed of travel, m/h
};

/// The grid test with these intensities (mm/h), N x N of them.
EnsaioDeMalha ensaioDeMalha(const AspersorDoAjuste& aspersor, const VentoDoEnsaio& vento, int N, double e,
                            std::vector<double> intensidades);

/// The travelling test with these depths (mm), N of them, of a sprinkler that turns through `anguloGiro`
/// degrees, its dry wedge ahead.
EnsaioMóvel ensaioMóvel(const AspersorDoAjuste& aspersor, const VentoDoEnsaio& vento, int N, double e,
                        double v, double anguloGiro, std::vector<double> lâminas);

/// Multiplies the observations by Q / V, so that they make up the sprinkler's flow, and returns that factor.
/// Raises "Divisão por zero" for a test that caught nothing.
double igualarÀVazão(EnsaioDoAjuste& ensaio, float Q);

/// Sets of parameters that are evaluated together: 1, 2, 4 or 8 of them (`std::invalid_argument` else). What
/// comes of them stands in one row: all that belongs to the first point or observation, set by set, then all
/// of the second.
using Conjuntos = std::span<const Parametros>;
/// One set alone. It must outlive what this returns.
inline Conjuntos sozinho(const Parametros& p) { return {&p, 1}; }

/// The intensities (mm/h) that the model estimates at all points of a test, in their order; counts are added
/// to `contagem`. Raises as the model does.
std::vector<double> intensidadesEstimadas(const EnsaioDoAjuste& ensaio, Conjuntos conjuntos,
                                          ContagemDoModelo& contagem, Largura largura = larguraEmUso());

/// The depth (mm) at each position from the intensities at its points: their sum, times e / v.
std::vector<double> lâminasEstimadas(const EnsaioMóvel& ensaio, std::span<const double> intensidades,
                                     std::size_t conjuntos = 1);

/// What the model estimates in place of each observation.
std::vector<double> estimados(const EnsaioDeMalha& ensaio, Conjuntos conjuntos, ContagemDoModelo& contagem,
                              Largura largura = larguraEmUso());
std::vector<double> estimados(const EnsaioMóvel& ensaio, Conjuntos conjuntos, ContagemDoModelo& contagem,
                              Largura largura = larguraEmUso());

/// Adds to the evaluation of each set the squared deviations of its estimates from the
/// observations, in their order. Raises "Estouro" where a sum grows past the largest double.
void somarDesvios(std::span<Avaliação> avaliações, std::span<const double> observados,
                  std::span<const double> estimados);

/// What each of `pontos` is worth, by `somar`, which adds to the evaluations of some of them, given together.
/// Raises what it would raise for the points one after another.
std::vector<Avaliação> avaliarEmConjuntos(Conjuntos pontos, Largura largura,
                                          const std::function<void(Conjuntos, std::span<Avaliação>)>& somar);

/// The objective of a fit: all deviations of all tests in one sum. The tests and `contagem` must outlive it.
template <class Ensaio>
Objetivo objetivoDosEnsaios(const std::vector<Ensaio>& ensaios, ContagemDoModelo& contagem,
                            Largura largura = larguraEmUso()) {
    return [&ensaios, &contagem, largura](std::span<const Parametros> pontos) {
        return avaliarEmConjuntos(pontos, largura, [&](Conjuntos conjuntos, std::span<Avaliação> avaliações) {
            for (const auto& ensaio : ensaios)
                somarDesvios(avaliações, ensaio.observados, estimados(ensaio, conjuntos, contagem, largura));
        });
    };
}

} // namespace varenta
