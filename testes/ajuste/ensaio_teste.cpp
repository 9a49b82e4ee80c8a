#include "ajuste/ensaio.h"

#include "apoio/atalhos.h"
#include "comum/numeros.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <numeric>
#include <random>
#include <stdexcept>

namespace varenta {
namespace {

using teste::erroDe;

/// A sprinkler of 40 m whose intensity falls evenly from 20 mm/h to 0 at the reach.
AspersorDoAjuste aspersorDeTeste() {
    AspersorDoAjuste a{.R = 40, .Q = 30, .anguloJato = radianos(24), .intensidades = {}};
    for (std::size_t k = 1; k < 21; ++k)
        a.intensidades[k] = 20 * (1 - (0.025 + 0.05 * static_cast<double>(k - 1)));
    a.intensidades[0] = 20;
    return a;
}

/// The parameters that the simulation starts from, times the reach.
Parametros parâmetrosDeTeste() {
    return {0.0362 * 40, 0.0131 * 40, -0.0097 * 40, 0.0026 * 40, 0.4003 * 40, -0.3361 * 40};
}

TEST(Ensaio, OsLugaresFicamEmTornoDoMeio) {
    // 4 places every 6 m: -9, -3, 3, 9.
    for (int j = 0; j < 4; ++j) {
        EXPECT_EQ(lugarAscendente(6, 4, j), -9 + 6 * j);
        EXPECT_EQ(lugarDescendente(6, 4, j), 9 - 6 * j);
    }
    EXPECT_EQ(lugarAscendente(2, 5, 2), 0); // an odd number has one in the middle
}

TEST(Ensaio, AÁreaDoColetor) { EXPECT_NEAR(áreaDoColetor(8), 50.26548245743, 1e-9); }

TEST(Ensaio, AMalhaCorreDeFrenteParaTrásEDaEsquerdaParaADireita) {
    // Wind from straight ahead: the turn is a whole one, the wind frame is the ground frame, x ahead.
    const auto ensaio = ensaioDeMalha(aspersorDeTeste(), {.W = 2, .direção = 0}, 2, 6, {1, 2, 3, 4});
    const std::vector<double> X = {3, 3, -3, -3}, Y = {-3, 3, -3, 3};
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_NEAR(ensaio.X[k], X[k], 1e-12);
        EXPECT_NEAR(ensaio.Y[k], Y[k], 1e-12);
    }
    // 10 mm/h on cells of 36 m².
    EXPECT_DOUBLE_EQ(ensaio.V, 0.36);
    EXPECT_EQ(ensaio.observados, (std::vector<double>{1, 2, 3, 4}));
}

TEST(Ensaio, OVentoDaDireitaPõeADireitaÀFrenteDoVento) {
    const auto ensaio = ensaioDeMalha(aspersorDeTeste(), {.W = 2, .direção = 90}, 2, 6, {1, 2, 3, 4});
    // The second collector stands ahead to the right, at (3, 3) of the ground: right is now upwind.
    EXPECT_NEAR(ensaio.X[1], 3, 1e-12);
    EXPECT_NEAR(ensaio.Y[1], -3, 1e-12);
}

TEST(Ensaio, OXDaMalhaÉDePrecisãoSimples) {
    // 0.1 x 0.5 is no float; the collector of 1 x 2 to the right stands at the float next to it.
    const auto ensaio = ensaioDeMalha(aspersorDeTeste(), {.W = 0, .direção = 0}, 2, 0.1, {1, 1, 1, 1});
    const double x = static_cast<double>(static_cast<float>(0.1 * -0.5)), y = 0.1 * 0.5;
    const double cosseno = std::cos(doisPiDoModelo), seno = std::sin(doisPiDoModelo);
    EXPECT_NE(x, 0.1 * -0.5);
    EXPECT_EQ(ensaio.X[0], y * cosseno - x * seno);
    EXPECT_EQ(ensaio.Y[0], x * cosseno + y * seno);
}

TEST(Ensaio, AVazãoSeIgualaMultiplicando) {
    auto ensaio = ensaioDeMalha(aspersorDeTeste(), {.W = 2, .direção = 0}, 2, 6, {1, 2, 3, 4});
    EXPECT_DOUBLE_EQ(igualarÀVazão(ensaio, 0.72F), static_cast<double>(0.72F) / 0.36);
    EXPECT_NEAR(ensaio.observados[3], 8, 1e-6);
    auto seco = ensaioDeMalha(aspersorDeTeste(), {.W = 2, .direção = 0}, 2, 6, {0, 0, 0, 0});
    EXPECT_EQ(erroDe([&] { igualarÀVazão(seco, 1); }), "Divisão por zero");
}

TEST(Ensaio, SemVentoAMalhaEstimaOPerfilRadial) {
    const auto ensaio = ensaioDeMalha(aspersorDeTeste(), {.W = 0, .direção = 30}, 16, 6, {});
    ContagemDoModelo contagem;
    const auto i = estimados(ensaio, sozinho(parâmetrosDeTeste()), contagem);
    ASSERT_EQ(i.size(), 256u);
    for (std::size_t k = 0; k < i.size(); ++k) {
        const double r = std::hypot(ensaio.X[k], ensaio.Y[k]);
        EXPECT_NEAR(i[k], r < 40 ? 20 * (1 - r / 40) : 0, 1e-5) << r;
    }
    EXPECT_EQ(contagem.pontos, 256u);
}

TEST(Ensaio, AEstimativaDaMalhaÉADoPontoComOsÂngulosAbertos) {
    const auto ensaio = ensaioDeMalha(aspersorDeTeste(), {.W = 3.5, .direção = 77}, 14, 6, {});
    auto c = ensaio.lote.condições();
    const auto p = parâmetrosDeTeste();
    c.A = p[0], c.B = p[1], c.C = p[2], c.D = p[3], c.E = p[4], c.F = p[5];
    auto comÂngulos = c;
    comÂngulos.setor = Setor::entreÂngulosSecos;
    ContagemDoModelo contagem;
    const auto i = estimados(ensaio, sozinho(p), contagem);
    for (std::size_t k = 0; k < i.size(); ++k) {
        EXPECT_EQ(i[k], intensidadeEmPonto(ensaio.X[k], ensaio.Y[k], c).valor);
        EXPECT_NEAR(i[k], intensidadeEmPonto(ensaio.X[k], ensaio.Y[k], comÂngulos).valor, 1e-9);
    }
}

TEST(Ensaio, ALâminaÉASomaDosPassosVezesOTempoDeCadaUm) {
    auto ensaio = ensaioMóvel(aspersorDeTeste(), {.W = 0, .direção = 0}, 2, 6, 30, 360, {1, 2});
    // Sums 7 and 3, each over 6 m at 30 m/h.
    const auto lâminas = lâminasEstimadas(ensaio, std::vector<double>{5, 2, 3, 0});
    EXPECT_DOUBLE_EQ(lâminas[0], 1.4);
    EXPECT_DOUBLE_EQ(lâminas[1], 0.6);
    // 3 mm on strips of 6 m at 30 m/h: 0.54 m³/h.
    EXPECT_DOUBLE_EQ(ensaio.V, 0.54);
}

TEST(Ensaio, OsPontosMóveisVãoDePosiçãoEmPosição) {
    const auto ensaio = ensaioMóvel(aspersorDeTeste(), {.W = 0, .direção = 0}, 2, 6, 30, 360, {1, 2});
    const std::vector<double> X = {3, -3, 3, -3}, Y = {-3, -3, 3, 3};
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_NEAR(ensaio.X[k], X[k], 1e-12);
        EXPECT_NEAR(ensaio.Y[k], Y[k], 1e-12);
    }
}

TEST(Ensaio, SemVentoALâminaÉSimétricaEOGiroMantémAVazão) {
    const auto estimar = [](double giro) {
        ContagemDoModelo contagem;
        return estimados(ensaioMóvel(aspersorDeTeste(), {.W = 0, .direção = 0}, 40, 2, 30, giro, {}),
                         sozinho(parâmetrosDeTeste()), contagem);
    };
    const auto inteiro = estimar(360), parte = estimar(240);
    for (std::size_t j = 0; j < 20; ++j) EXPECT_NEAR(inteiro[j], inteiro[39 - j], 1e-9);
    const double soma = std::accumulate(inteiro.begin(), inteiro.end(), 0.0);
    EXPECT_NEAR(std::accumulate(parte.begin(), parte.end(), 0.0), soma, 0.02 * soma);
    // A cone of 20 mm/h and 40 m holds a third of a cylinder: pi 1600 x 20 / 3 / 1000 m³/h, and the strips of
    // 2 m at 30 m/h carry it away.
    EXPECT_NEAR(soma * 2 * 30 / 1000, 33.51, 0.1);
}

TEST(Ensaio, OsDesviosSomamNaOrdemESóContamOndeHáDesvio) {
    Avaliação a;
    somarDesvios({&a, 1}, std::vector<double>{1, 0, 5}, std::vector<double>{3, 0, 4});
    EXPECT_EQ(a, (Avaliação{5, 2}));
    somarDesvios({&a, 1}, std::vector<double>{1}, std::vector<double>{2});
    EXPECT_EQ(a, (Avaliação{6, 3}));
    EXPECT_EQ(erroDe([&] {
                  somarDesvios({&a, 1}, std::vector<double>{1e200}, std::vector<double>{0});
              }),
              "Estouro");
}

TEST(Ensaio, OObjetivoSomaTodosOsEnsaiosNumaSóSoma) {
    std::vector<double> observados(36, 5.0);
    std::vector<EnsaioDeMalha> ensaios;
    for (const double direção : {10.0, 200.0})
        ensaios.push_back(ensaioDeMalha(aspersorDeTeste(), {.W = 2, .direção = direção}, 6, 6, observados));
    ContagemDoModelo contagem;
    const auto objetivo = objetivoDosEnsaios(ensaios, contagem);
    const std::vector<Parametros> pontos = {parâmetrosDeTeste(), {1, 0, 0, 0, 0, 0}};
    const auto valores = objetivo(pontos);
    ASSERT_EQ(valores.size(), 2u);
    for (std::size_t k = 0; k < 2; ++k) {
        Avaliação esperada;
        for (const auto& ensaio : ensaios)
            somarDesvios({&esperada, 1}, observados, estimados(ensaio, sozinho(pontos[k]), contagem));
        EXPECT_EQ(valores[k], esperada);
    }
}

/// The estimates of several sets in one row, as those of each alone would stand in it.
template <class Ensaio>
std::vector<double> intercalados(const Ensaio& ensaio, const std::vector<Parametros>& conjuntos) {
    std::vector<double> i;
    ContagemDoModelo contagem;
    for (std::size_t s = 0; s < conjuntos.size(); ++s) {
        const auto deste = estimados(ensaio, sozinho(conjuntos[s]), contagem);
        i.resize(deste.size() * conjuntos.size());
        for (std::size_t k = 0; k < deste.size(); ++k) i[k * conjuntos.size() + s] = deste[k];
    }
    return i;
}

TEST(Ensaio, ConjuntosJuntosValemComoCadaUm) {
    auto malha =
        ensaioDeMalha(aspersorDeTeste(), {.W = 3, .direção = 45}, 14, 6, std::vector<double>(14 * 14, 3.5));
    const auto móvel = ensaioMóvel(aspersorDeTeste(), {.W = 2, .direção = 120}, 20, 4, 35, 300,
                                   std::vector<double>(20, 12.0));
    std::vector<Parametros> conjuntos;
    for (std::size_t s = 0; s < 13; ++s) {
        conjuntos.push_back(parâmetrosDeTeste());
        conjuntos.back()[s % 6] += 0.01 * static_cast<double>(s);
        ContagemDoModelo contagem;
        if (std::has_single_bit(conjuntos.size()) && conjuntos.size() <= 8) {
            EXPECT_EQ(estimados(malha, conjuntos, contagem), intercalados(malha, conjuntos));
            EXPECT_EQ(estimados(móvel, conjuntos, contagem), intercalados(móvel, conjuntos));
        } else {
            EXPECT_THROW(estimados(móvel, conjuntos, contagem), std::invalid_argument);
        }
        EXPECT_EQ(objetivoDosEnsaios(std::vector{malha}, contagem)(conjuntos).back(),
                  objetivoDosEnsaios(std::vector{malha}, contagem)(sozinho(conjuntos.back())).front());
    }
}

TEST(Ensaio, DeVáriosPontosFalhaOQueVemPrimeiro) {
    // The first point fails in the second test only; the second one in the first test already.
    const std::vector<Parametros> pontos(2);
    for (const auto largura : largurasDisponíveis()) {
        int juntos = 0;
        const auto erro = erroDe([&] {
            avaliarEmConjuntos(pontos, largura, [&](Conjuntos conjuntos, std::span<Avaliação>) {
                juntos += conjuntos.size() > 1;
                if (conjuntos.size() > 1 || &conjuntos.front() == &pontos[1]) throw ErroExecucao{"o segundo"};
                throw ErroExecucao{"o primeiro"};
            });
        });
        EXPECT_EQ(erro, "o primeiro");
        EXPECT_EQ(juntos, largura == Largura::escalar ? 0 : 1);
    }
}

TEST(Ensaio, ComVáriosEnsaiosOErroÉODoPrimeiroPonto) {
    // A wind of 1e200 makes the first point overflow in the second test only. The second point, all zeros but
    // a B that no wind can make finite, fails in the first test already.
    std::vector<EnsaioDeMalha> ensaios;
    for (const double W : {2.0, 1e200})
        ensaios.push_back(
            ensaioDeMalha(aspersorDeTeste(), {.W = W, .direção = 0}, 6, 6, std::vector(36, 1.0)));
    auto outro = parâmetrosDeTeste();
    outro[1] = 1e308;
    ContagemDoModelo contagem;
    const auto erroCom = [&](const std::vector<EnsaioDeMalha>& estes, const std::vector<Parametros>& pontos,
                             Largura largura) {
        return erroDe([&] { objetivoDosEnsaios(estes, contagem, largura)(pontos); });
    };
    const auto primeiro = erroCom({ensaios[1]}, {parâmetrosDeTeste()}, Largura::escalar);
    ASSERT_EQ(erroCom({ensaios[0]}, {parâmetrosDeTeste()}, Largura::escalar), "");
    ASSERT_NE(primeiro, "");
    ASSERT_NE(erroCom({ensaios[0]}, {outro}, Largura::escalar), "");
    for (const auto largura : largurasDisponíveis())
        EXPECT_EQ(erroCom(ensaios, {parâmetrosDeTeste(), outro}, largura), primeiro) << nomeDa(largura);
}

/// All that a fit tells and finds.
struct TudoDoAjuste {
    std::vector<double> desvios, barras;
    ResultadoDaBusca resultado;
};

template <class Ensaio>
TudoDoAjuste ajustarNaLargura(const Ensaio& ensaio, Largura largura) {
    TudoDoAjuste tudo;
    ContagemDoModelo contagem;
    tudo.resultado = buscarParametros(objetivoDosEnsaios(std::vector{ensaio}, contagem, largura), 1e-5,
                                      {[&](double desvio) { tudo.desvios.push_back(desvio); },
                                       [&](double barra) { tudo.barras.push_back(barra); }});
    return tudo;
}

template <class Ensaio>
void compararAjustesDeTodasAsLarguras(const Ensaio& ensaio) {
    const auto escalar = ajustarNaLargura(ensaio, Largura::escalar);
    EXPECT_GT(escalar.desvios.size(), 5u);
    for (const auto largura : largurasDisponíveis()) {
        const auto este = ajustarNaLargura(ensaio, largura);
        EXPECT_EQ(este.desvios, escalar.desvios) << nomeDa(largura);
        EXPECT_EQ(este.barras, escalar.barras) << nomeDa(largura);
        EXPECT_EQ(este.resultado.p, escalar.resultado.p) << nomeDa(largura);
    }
}

TEST(Ensaio, OAjusteInteiroÉOMesmoEmTodasAsLarguras) {
    ContagemDoModelo contagem;
    auto malha = ensaioDeMalha(aspersorDeTeste(), {.W = 3, .direção = 45}, 8, 10, {});
    malha.observados = estimados(malha, sozinho(parâmetrosDeTeste()), contagem);
    for (std::size_t k = 0; k < malha.observados.size(); k += 2) malha.observados[k] *= 1.2;
    compararAjustesDeTodasAsLarguras(malha);

    auto móvel = ensaioMóvel(aspersorDeTeste(), {.W = 2, .direção = 120}, 12, 7, 35, 300, {});
    móvel.observados = estimados(móvel, sozinho(parâmetrosDeTeste()), contagem);
    for (std::size_t k = 0; k < móvel.observados.size(); k += 2) móvel.observados[k] *= 1.2;
    compararAjustesDeTodasAsLarguras(móvel);
}

TEST(Ensaio, OQueFalhaSóJuntoValeSozinho) {
    const std::vector<Parametros> pontos(12);
    for (const auto largura : largurasDisponíveis()) {
        const auto avaliações =
            avaliarEmConjuntos(pontos, largura, [&](Conjuntos conjuntos, std::span<Avaliação> estas) {
                for (auto& avaliação : estas) avaliação.soma = avaliação.soma + 1;
                if (conjuntos.size() > 1) throw ErroExecucao{"juntos"};
            });
        EXPECT_EQ(avaliações, std::vector(12, Avaliação{.soma = 1, .contados = 0})) << nomeDa(largura);
    }
}

TEST(Ensaio, NosVerdadeirosParâmetrosNãoHáDesvio) {
    auto ensaio = ensaioDeMalha(aspersorDeTeste(), {.W = 3, .direção = 45}, 14, 6, {});
    ContagemDoModelo contagem;
    ensaio.observados = estimados(ensaio, sozinho(parâmetrosDeTeste()), contagem);
    Avaliação a;
    somarDesvios({&a, 1}, ensaio.observados, estimados(ensaio, sozinho(parâmetrosDeTeste()), contagem));
    EXPECT_EQ(a, (Avaliação{0, 0}));
}

} // namespace
} // namespace varenta
