#include "ajuste/busca.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

#include <cmath>

namespace varenta {
namespace {

using teste::erroDe;
using Pontos = std::vector<Parametros>;

constexpr std::array<Parametros, 7> vértices = {{{0.205, 5.217, -4.763, 3.827, 2.466, -3.674},
                                                 {3, 0, -1.1, 0, 12, -8.8},
                                                 {0.12, 3.5, -2.9, 1.95, 5, -4.25},
                                                 {1.4, -0.4, 0.9, 2.7, 2.5, -2.3},
                                                 {1.1, 2.5, -2.5, -1.7, 16.7, -12.1},
                                                 {1, 0.7, -0.2, 2.8, 2.6, -2.5},
                                                 {0.4, 2.7, -2.6, 3, 1.9, -2.1}}};

/// The mean of the seven: the sums of the columns, added up by hand, over 7.
constexpr Parametros centro = {7.225 / 7, 14.217 / 7, -13.163 / 7, 12.577 / 7, 43.166 / 7, -35.724 / 7};

/// Ends a search from within its objective.
struct Parada {};

/// A search whose objective answers from a list, one answer for each time that it is asked, and is stopped
/// when the list ends. Keeps all that was asked and told.
struct BuscaComRoteiro {
    std::vector<Pontos> pedidos;
    std::vector<double> barras, desvios;

    void buscar(std::vector<std::vector<double>> respostas, double tolerância = 1e-5) {
        std::size_t vez = 0;
        const Objetivo objetivo = [&](std::span<const Parametros> pontos) {
            pedidos.emplace_back(pontos.begin(), pontos.end());
            if (vez == respostas.size()) throw Parada{};
            const auto& somas = respostas[vez++];
            std::vector<Avaliação> valores;
            for (std::size_t k = 0; k < pontos.size(); ++k) valores.push_back({somas[k % somas.size()], 1});
            return valores;
        };
        try {
            buscarParametros(
                objetivo, tolerância,
                {[&](double d) { desvios.push_back(d); }, [&](double b) { barras.push_back(b); }});
        } catch (const Parada&) {
        }
    }
};

void esperarPonto(const Parametros& obtido, const Parametros& esperado) {
    for (std::size_t k = 0; k < 6; ++k) EXPECT_NEAR(obtido[k], esperado[k], 1e-13) << k;
}

Parametros misturar(double a, const Parametros& p, double b, const Parametros& q) {
    Parametros m;
    for (std::size_t k = 0; k < 6; ++k) m[k] = a * p[k] + b * q[k];
    return m;
}

const std::vector<double> deUmASete = {1, 2, 3, 4, 5, 6, 7};

/// What is asked for after `novo` took the place of the seventh of the vertices with the sums 1 to 7: the
/// reflection of the sixth, which is the worst now. The row that is shown, the best, is known.
void esperarNoLugarDaPior(const BuscaComRoteiro& b, const Parametros& novo) {
    Parametros centroNovo;
    for (std::size_t k = 0; k < 6; ++k) centroNovo[k] = (7 * centro[k] - vértices[6][k] + novo[k]) / 7;
    esperarPonto(b.pedidos.back()[0], misturar(2, centroNovo, -1, vértices[5]));
}

TEST(Busca, ComeçaPelosSeteVérticesERefleteOPiorNoCentroDeTodos) {
    BuscaComRoteiro b;
    b.buscar({deUmASete});
    ASSERT_EQ(b.pedidos.size(), 2u);
    EXPECT_EQ(b.pedidos[0], Pontos(vértices.begin(), vértices.end()));
    ASSERT_EQ(b.pedidos[1].size(), 1u);
    esperarPonto(b.pedidos[1][0], misturar(2, centro, -1, vértices[6]));
}

TEST(Busca, UmaReflexãoMédiaTomaOLugarDaPior) {
    const auto refletido = misturar(2, centro, -1, vértices[6]);
    for (const double soma : {5.5, 1.0}) { // at the best itself too
        BuscaComRoteiro b;
        b.buscar({deUmASete, {soma}});
        EXPECT_EQ(b.pedidos.size(), 3u);
        esperarNoLugarDaPior(b, refletido);
    }
}

TEST(Busca, UmaReflexãoMelhorQueTodasSeExpande) {
    const auto refletido = misturar(2, centro, -1, vértices[6]);
    BuscaComRoteiro b;
    b.buscar({deUmASete, {0.5}});
    esperarPonto(b.pedidos.back()[0], misturar(2, refletido, -1, centro));
}

TEST(Busca, AExpansãoSóFicaSeVencerAMelhorENãoAReflexão) {
    // Expanded 0.9, worse than the reflection's 0.5 but better than the best: it stays.
    const auto refletido = misturar(2, centro, -1, vértices[6]);
    BuscaComRoteiro fica;
    fica.buscar({deUmASete, {0.5}, {0.9}});
    esperarNoLugarDaPior(fica, misturar(2, refletido, -1, centro));
    BuscaComRoteiro sai;
    sai.buscar({deUmASete, {0.5}, {1}});
    esperarNoLugarDaPior(sai, refletido);
}

TEST(Busca, UmaReflexãoRuimContraiEntreElaEOCentro) {
    const auto refletido = misturar(2, centro, -1, vértices[6]);
    BuscaComRoteiro b;
    b.buscar({deUmASete, {6}});
    esperarPonto(b.pedidos.back()[0], misturar(0.5, refletido, 0.5, centro));
}

TEST(Busca, UmaReflexãoQueNãoVenceAPiorContraiEntreAPiorEOCentro) {
    BuscaComRoteiro b;
    b.buscar({deUmASete, {7}});
    esperarPonto(b.pedidos.back()[0], misturar(0.5, vértices[6], 0.5, centro));
}

TEST(Busca, UmaContraçãoQueFalhaDeixaOCentroComASomaDaReflexão) {
    // The contraction gives 7, no better than the worst: the centre goes in with the reflection's 6.5, never
    // asked for, and is the worst of the next step, which it so is reflected at.
    BuscaComRoteiro b;
    b.buscar({deUmASete, {6.5}, {7}});
    Parametros novo; // the mean of the first six and the centre
    for (std::size_t k = 0; k < 6; ++k) novo[k] = (7 * centro[k] - vértices[6][k] + centro[k]) / 7;
    esperarPonto(b.pedidos.back()[0], misturar(2, novo, -1, centro));
}

TEST(Busca, OsEmpatesCaemNaOrdemInversa) {
    // With seven equal sums each vertex goes before those that were there: the first becomes the worst.
    BuscaComRoteiro b;
    b.buscar({{4}});
    esperarPonto(b.pedidos.back()[0], misturar(2, centro, -1, vértices[0]));
}

TEST(Busca, OCentroQueChegaÀFrenteÉPedidoEleMesmo) {
    // With equal sums everywhere the first step leaves the centre with the reflection's sum, and the next
    // ordering puts it in front: its own sum is needed then, for the deviation.
    BuscaComRoteiro b;
    b.buscar({{4}, {4}, {4}, {4}, {4}, {9}});
    ASSERT_EQ(b.pedidos.size(), 7u);
    esperarPonto(b.pedidos[5][0], centro);
    EXPECT_EQ(b.desvios, std::vector<double>{2});
}

TEST(Busca, ODesvioSóÉContadoQuandoCai) {
    BuscaComRoteiro b;
    b.buscar({{4, 5, 6, 7, 8, 9, 10}, {8.5}, {8.6}, {8.7}});
    // The second step contracts. Row 1 stays the same vertex, so its deviation sqrt(4 / 1) is told once.
    EXPECT_EQ(b.desvios, std::vector<double>{2});
    EXPECT_EQ(b.barras, (std::vector<double>{0.25, 0.5}));
    EXPECT_EQ(b.pedidos.size(), 5u);
}

/// The objective of a simple valley with its floor at `fundo`, and what a search in it tells.
struct BuscaNoVale {
    std::vector<double> barras, desvios;
    std::size_t avaliações = 0;
    ResultadoDaBusca resultado{};

    template <class Vale>
    explicit BuscaNoVale(Vale&& vale, double tolerância = 1e-5) {
        resultado = buscarParametros(
            [&](std::span<const Parametros> pontos) {
                std::vector<Avaliação> valores;
                for (const auto& p : pontos) valores.push_back({vale(p), 4});
                avaliações += pontos.size();
                return valores;
            },
            tolerância, {[&](double d) { desvios.push_back(d); }, [&](double b) { barras.push_back(b); }});
    }
};

constexpr Parametros fundo = {1, 2, -1, 0.5, 10, -7};

double quadrático(const Parametros& p) {
    double soma = 9;
    for (std::size_t k = 0; k < 6; ++k)
        soma += static_cast<double>(k + 1) * (p[k] - fundo[k]) * (p[k] - fundo[k]);
    return soma;
}

TEST(Busca, UmValeQuadráticoÉAchadoAtéOFundo) {
    const BuscaNoVale b{quadrático};
    for (std::size_t k = 0; k < 6; ++k) EXPECT_NEAR(b.resultado.p[k], fundo[k], 1e-6);
    EXPECT_NEAR(b.resultado.desvio, 1.5, 1e-12); // sqrt(9 / 4)
}

TEST(Busca, ABarraVaiDeUmQuartoEmUmQuartoA25EDepoisDe35A56) {
    const BuscaNoVale b{quadrático};
    ASSERT_GT(b.barras.size(), 101u);
    for (std::size_t k = 0; k < 100; ++k) EXPECT_EQ(b.barras[k], 0.25 * static_cast<double>(k + 1));
    EXPECT_EQ(b.barras[100], 25.5);
    EXPECT_EQ(std::count(b.barras.begin(), b.barras.end(), 35.0), 1);
    EXPECT_EQ(b.barras.back(), 56);
    // Ten iterations of the last stage: 37 to 55.
    EXPECT_EQ(b.barras[b.barras.size() - 2], 55);
}

TEST(Busca, OsDesviosContadosSóCaemEOÚltimoÉODoResultado) {
    const BuscaNoVale b{quadrático};
    for (std::size_t k = 1; k < b.desvios.size(); ++k) EXPECT_LT(b.desvios[k], b.desvios[k - 1]);
    EXPECT_EQ(b.desvios.back(), b.resultado.desvio);
}

TEST(Busca, CadaEtapaAvaliaNoMáximoOQueSeEspera) {
    const BuscaNoVale b{quadrático};
    // 7 at the start, 2 in each of 100 steps; in the second stage 12 neighbours and three steps, halvings
    // besides; 73 in each of ten steps of the third.
    EXPECT_LE(b.avaliações, 7u + 200 + 21 * (12 + 3 + 20) + 10 * 73);
}

TEST(Busca, UmValePlanoNãoTemAjuste) {
    EXPECT_EQ(erroDe([] { BuscaNoVale{[](const Parametros&) { return 4.0; }}; }), "Estouro");
}

TEST(Busca, SemNenhumDesvioNãoHáMédia) {
    EXPECT_EQ(erroDe([] { desvioMédio({0, 0}); }), "Estouro");
    EXPECT_EQ(desvioMédio({18, 2}), 3);
}

/// An objective that tells the stages apart by how many points it is asked for: one, the 12 neighbours of a
/// gradient, or the 72 of a Newton step.
struct BuscaPorEtapas {
    std::vector<double> barras;
    Pontos gradientes, sós;
    Parametros newton{};

    /// A where the second stage starts.
    double início() const { return gradientes.front()[0] - 0.001; }

    /// `um(p)` answers a single point once the first stage is over; the sum was 5 until then.
    template <class Um>
    void buscar(Um&& um, double tolerância) {
        const Objetivo objetivo = [&](std::span<const Parametros> pontos) {
            if (pontos.size() == 72) {
                newton = pontos[0];
                throw Parada{};
            }
            std::vector<Avaliação> valores(pontos.size(), Avaliação{5, 1});
            if (pontos.size() == 12) {
                gradientes.push_back(pontos[0]);
                valores[0].soma = 5.002; // the derivative by A is 1, the others 0
            } else if (pontos.size() == 1 && barras.size() == 100) {
                valores[0].soma = um(pontos[0]);
                sós.push_back(pontos[0]);
            }
            return valores;
        };
        try {
            buscarParametros(objetivo, tolerância, {[](double) {}, [&](double b) { barras.push_back(b); }});
        } catch (const Parada&) {
        }
    }
};

TEST(Busca, UmaDescidaQueFalhaLogoDeixaABarraEm35EPartedoMesmoPonto) {
    for (const auto& [tolerância, passos] : {std::pair{1e-5, 19u}, {1e-7, 26u}}) {
        BuscaPorEtapas b;
        b.buscar([](const Parametros&) { return 5.0; }, tolerância);
        // Steps of 1, 1/2, ... to the first below half the tolerance: 2^-18 is below 5e-6, 2^-25 below 5e-8.
        // What the start is worth is known.
        EXPECT_EQ(b.sós.size(), passos);
        EXPECT_NEAR(b.sós[0][0], b.início() - 1, 1e-12);
        EXPECT_EQ(b.gradientes.size(), 1u);
        EXPECT_EQ(b.newton, b.gradientes[0]);
        ASSERT_EQ(b.barras.size(), 101u);
        EXPECT_EQ(b.barras.back(), 35);
    }
}

TEST(Busca, OPassoMaisCurtoÉTentadoEAbandonadoMesmoQueDesça) {
    BuscaPorEtapas b;
    b.buscar([&](const Parametros& p) { return b.início() - p[0] < 5e-6 ? 1.0 : 5.0; }, 1e-5);
    // Only 2^-18 goes down, and it is below the limit: no second gradient.
    EXPECT_EQ(b.gradientes.size(), 1u);
    EXPECT_EQ(b.barras.back(), 35);
}

TEST(Busca, OFimDaParábolaSóValeSeForMenorQueOPasso) {
    // From 5 the step of 1 leads to 4 and that of 1/2 to 3: c1 = -4, c2 = 2, c3 = 6, and the parabola's end
    // is 0.5 (0.5 + 4/6) away. Worth 4 as well, it doesn't take the place of the step.
    const double tau = 0.5 * (0.5 + 4.0 / 6);
    for (const double noFim : {4.0, 3.9}) {
        BuscaPorEtapas b;
        b.buscar(
            [&](const Parametros& p) {
                const double t = b.início() - p[0];
                return t < 0.55 ? 3 : t < 0.9 ? noFim : 4;
            },
            1e-5);
        EXPECT_NEAR(b.sós[2][0], b.início() - tau, 1e-12);
        ASSERT_GT(b.gradientes.size(), 1u);
        EXPECT_NEAR(b.gradientes[1][0], b.início() - (noFim < 4 ? tau : 1) + 0.001, 1e-12);
    }
}

TEST(Busca, UmaMudançaPequenaSóPõeAContagemEm35EADescidaSegue) {
    // The sum falls by 1e-6 with the step of 1, and more at none: the parabola's end changes it by less than
    // the tolerance, so the bar jumps to 35.5, and the stage goes on with another gradient.
    BuscaPorEtapas b;
    b.buscar(
        [&](const Parametros& p) {
            const double t = b.início() - p[0];
            return 5 - 1e-6 * t * (2 - t) - 1e-9 * t;
        },
        1e-5);
    ASSERT_GT(b.barras.size(), 101u);
    EXPECT_EQ(b.barras[100], 35.5);
    EXPECT_GT(b.gradientes.size(), 1u);
    EXPECT_EQ(b.barras.back(), 35);
}

TEST(Busca, DizEmQueEtapaEstá) {
    // A flat objective: the simplex runs, the descent ends at once, Newton has nothing to divide by.
    std::vector<int> etapas;
    std::vector<double> barras;
    const Objetivo objetivo = [](std::span<const Parametros> pontos) {
        return std::vector<Avaliação>(pontos.size(), {4, 1});
    };
    const OuvinteDaBusca ouvinte{.desvio = [](double) {},
                                 .barra = [&](double b) { barras.push_back(b); },
                                 .etapa =
                                     [&](int número) {
                                         etapas.push_back(número);
                                         etapas.push_back(barras.empty() ? 0
                                                                         : static_cast<int>(barras.back()));
                                     }};
    EXPECT_NE(erroDe([&] { buscarParametros(objetivo, 1e-5, ouvinte); }), "");
    // Each with where the bar stands.
    EXPECT_EQ(etapas, (std::vector{1, 0, 2, 25, 3, 35}));
}

} // namespace
} // namespace varenta
