#include "simulacao/mapa_intensidades.h"

#include "apoio/aspersores_de_teste.h"
#include "apoio/simulacao_feita_a_mao.h"
#include "simulacao/form_grafven.h"
#include "simulacao/perfil_transversal.h"

#include <algorithm>
#include <functional>
#include <random>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

constexpr std::size_t última = ladoDoMapa - 1;

CampoDeIntensidades campoCom(std::size_t N, double S,
                             const std::function<double(double x, double y)>& intensidade) {
    CampoDeIntensidades campo{Matriz{N, N}, S, {}};
    for (std::size_t j = 0; j < N; ++j)
        for (std::size_t i = 0; i < N; ++i)
            campo.intensidades.linha(j)[i] = intensidade(campo.x(j), campo.y(i));
    return campo;
}

/// Grows ahead and, more slowly, to the right.
double rampa(double x, double y) { return 100 + 10 * x + y; }

/// Both passes of the sampling with their arrays counted from 1, as long as no sample is past the last one.
Matriz amostrarLiteral(const CampoDeIntensidades& campo) {
    const int N = static_cast<int>(campo.lado());
    const double S = campo.S, xmax = S * (N / 2.0 - 0.5), s = (2 * xmax) / 199;
    std::vector<double> posicao(static_cast<std::size_t>(N) + 1);
    for (int i = 1; i <= N; ++i)
        posicao[static_cast<std::size_t>(i)] =
            -xmax + static_cast<double>(static_cast<float>(i - 1) * static_cast<float>(S));
    const auto p = [&](int k) { return posicao[static_cast<std::size_t>(k)]; };
    const auto M = [&](int j, int i) {
        return campo.intensidades.linha(static_cast<std::size_t>(j - 1))[static_cast<std::size_t>(i - 1)];
    };
    std::vector<std::vector<double>> T(201, std::vector<double>(static_cast<std::size_t>(N) + 1));
    for (int i = 1; i <= N; ++i) {
        double u = -xmax;
        std::size_t c = 1;
        for (int k = 1; k <= N - 1; ++k) {
            bool primeira = true;
            while (primeira || (u >= p(k) && u <= p(k + 1))) {
                primeira = false;
                T[c][static_cast<std::size_t>(i)] = M(k, i) + ((M(k + 1, i) - M(k, i)) * (u - p(k))) / S;
                u = u + s;
                c = c + 1;
            }
        }
    }
    Matriz Z{200, 200};
    for (std::size_t c = 1; c <= 200; ++c) {
        double w = xmax;
        std::size_t r = 1;
        for (int k = 1; k <= N - 1; ++k) {
            const double pk = xmax - (k - 1) * S, seguinte = xmax - k * S;
            const double t = T[c][static_cast<std::size_t>(k)], t1 = T[c][static_cast<std::size_t>(k) + 1];
            bool primeira = true;
            while (primeira || (w <= pk && w >= seguinte)) {
                primeira = false;
                Z.linha(c - 1)[r - 1] = t1 + ((t - t1) * (w - seguinte)) / S;
                w = w - s;
                r = r + 1;
            }
        }
    }
    return Z;
}

TEST(AmostrarCampo, ALinhaDeCimaFicaÀFrenteEAColunaDaEsquerdaÀEsquerda) {
    // 8 points of 2 m reach from -7 to 7 m; a plane is sampled exactly.
    const auto Z = amostrarCampo(campoCom(8, 2, rampa));
    const double passo = 14.0 / 199;
    EXPECT_NEAR(Z.linha(0)[0], rampa(7, -7), 1e-9);
    EXPECT_NEAR(Z.linha(0)[última], rampa(7, 7), 1e-9);
    EXPECT_NEAR(Z.linha(última)[0], rampa(-7, -7), 1e-9);
    for (std::size_t c = 0; c < ladoDoMapa; ++c)
        for (std::size_t r = 0; r < ladoDoMapa; ++r)
            EXPECT_NEAR(Z.linha(c)[r],
                        rampa(7 - static_cast<double>(c) * passo, -7 + static_cast<double>(r) * passo), 1e-9)
                << c << ' ' << r;
}

TEST(AmostrarCampo, SãoOsLaçosDeCadaPassagemBitPorBit) {
    std::mt19937 sorteio{11};
    std::uniform_real_distribution<double> intensidade{0, 20};
    for (const std::size_t N : std::vector<std::size_t>{2, 8, 10, 44, 60, 198})
        for (const double S : {1.5, 2.0, 3.0, 6.0}) {
            const auto campo = campoCom(N, S, [&](double, double) { return intensidade(sorteio); });
            const auto Z = amostrarCampo(campo), literal = amostrarLiteral(campo);
            EXPECT_TRUE(std::ranges::equal(Z.valores(), literal.valores())) << N << ' ' << S;
        }
}

TEST(AmostrarCampo, AÚltimaAmostraQueOArredondamentoPõeAlémDaÚltimaCélulaFicaZero) {
    // 199 steps of 18 / 199 from -9 add up to a little more than 9.
    double u = -9;
    for (int k = 0; k < 199; ++k) u += 18.0 / 199;
    ASSERT_GT(u, 9);
    const auto Z = amostrarCampo(campoCom(10, 2, rampa));
    EXPECT_NEAR(Z.linha(última - 1)[última - 1], rampa(-9 + 18.0 / 199, 9 - 18.0 / 199), 1e-9);
    for (std::size_t k = 0; k < ladoDoMapa; ++k) {
        EXPECT_EQ(Z.linha(última)[k], 0) << k;
        EXPECT_EQ(Z.linha(k)[última], 0) << k;
    }
}

TEST(AmostrarCampo, MaisCélulasQueAmostrasÉÍndiceFora) {
    EXPECT_EQ(erroDe([] { amostrarCampo(campoCom(202, 2, rampa)); }), índiceForaDosLimites);
}

TEST(AmostrarCampo, SemVentoNemÂnguloSecoOMapaÉSimétricoEmTornoDoCentro) {
    const auto dados = típico(43.1, 2);
    const auto Z = amostrarCampo(campoDeIntensidades(dados, static_cast<std::size_t>(ladoDoCampo(dados))));
    const double maior = *std::ranges::max_element(Z.valores());
    ASSERT_GT(maior, 5);
    for (std::size_t c = 0; c < ladoDoMapa; ++c)
        for (std::size_t r = 0; r < ladoDoMapa; ++r) {
            const double valor = Z.linha(c)[r];
            ASSERT_NEAR(valor, Z.linha(última - c)[r], 1e-9 * maior) << c << ' ' << r;
            ASSERT_NEAR(valor, Z.linha(c)[última - r], 1e-9 * maior) << c << ' ' << r;
            ASSERT_NEAR(valor, Z.linha(r)[c], 1e-9 * maior) << c << ' ' << r;
        }
}

TEST(AmostrarCampo, ÀFrenteÉEmCimaEADireitaÀDireita) {
    // A reach of 13 m on points from -13 to 13 m, and the places 6.5 m from the centre.
    constexpr std::size_t baixo = 50, alto = 149, meio = 99;
    const auto mapa = [](double secoI, double secoII) {
        auto dados = plano(13, 2, 50);
        dados.condições.anguloSecoI = secoI;
        dados.condições.anguloSecoII = secoII;
        dados.condições.anguloGiro = 360 - secoI - secoII;
        return amostrarCampo(campoDeIntensidades(dados, 14));
    };
    const auto secoÀFrente = mapa(60, 60);
    EXPECT_EQ(secoÀFrente.linha(baixo)[meio], 0);
    EXPECT_NEAR(secoÀFrente.linha(alto)[meio], 15, 1e-9); // 360 / 240 of 10 mm/h
    // The second dry angle is counted from ahead to the right.
    const auto secoÀDireita = mapa(0, 180);
    EXPECT_EQ(secoÀDireita.linha(meio)[alto], 0);
    EXPECT_NEAR(secoÀDireita.linha(meio)[baixo], 20, 1e-9);
}

/// `Form7` with the sprinkler of 3 m, its profile calculated, ready for the map.
class MapaDoPlano : public testing::Test {
  protected:
    void SetUp() override { abrirForm7(); }
    void TearDown() override { atos::soltar(); }

    void abrirCom(const std::string& intensidade) {
        aspersorDeTrêsMetros(intensidade);
        calcularPerfilTransversal();
        ampulhetas.clear();
        atos::clicar(alvo(form7, "Command3"));
    }
    static const Linha& traço(std::size_t n) { return std::get<Linha>(form_grafVen->Picture1.traços.at(n)); }
    static void exigir(const Linha& l, double x1, double y1, double x2, double y2, Cor cor, int largura) {
        EXPECT_NEAR(l.x1, x1, 1e-6);
        EXPECT_NEAR(l.y1, y1, 1e-6);
        EXPECT_NEAR(l.x2, x2, 1e-6);
        EXPECT_NEAR(l.y2, y2, 1e-6);
        EXPECT_EQ(l.cor, cor);
        EXPECT_EQ(l.largura, largura);
    }
};

TEST_F(MapaDoPlano, MaiorIntensidade10_25TemTopo11ELegendas11E5_5) {
    abrirCom("10.25");
    EXPECT_EQ(form_grafVen->Caption, "Precipitações Estimadas");
    EXPECT_EQ(form_grafVen->Label7.texto, "Maior Precipitação: 10.250 mm/h");
    EXPECT_EQ(textos(form_grafVen->Label15), (Textos{"0.0 mm/h", "5.5 mm/h", "11.0 mm/h"}));
}

TEST_F(MapaDoPlano, AsEscalasVãoDeBordaABordaEmSextos) {
    abrirCom("10.25");
    const Textos escala{"-3.0", "-2.0", "-1.0", "0.0", "1.0", "2.0", "3.0"};
    EXPECT_EQ(textos(form_grafVen->Label3), escala);
    EXPECT_EQ(textos(form_grafVen->Label4), escala);
}

TEST_F(MapaDoPlano, OMapaTemDuzentasLinhasECaixasDeUmPassoCentradasNoSeuLugar) {
    abrirCom("10.25");
    const auto& mapa = std::get<Mosaico>(form_grafVen->Picture1.traços.at(0));
    EXPECT_EQ(mapa.linhas(), 200u);
    EXPECT_EQ(mapa.colunas, 200u);
    constexpr double h = 16.58291457;
    EXPECT_EQ(mapa.x, 960 - h / 2);
    EXPECT_EQ(mapa.y, 525 - h / 2);
    EXPECT_EQ(mapa.largura, h);
    EXPECT_EQ(mapa.altura, h);
    // At the corner no water; at the centre the value of all four points around it, 10.25 of 11.
    EXPECT_EQ(mapa.cores[0], cores::branco);
    EXPECT_EQ(mapa.cores[99 * 200 + 99], corDe(17, 17, 255)); // 255 x 0.75 / 11 = 17.4
    EXPECT_EQ(form_grafVen->Picture2.traços.size(), 20u);
}

TEST_F(MapaDoPlano, SobreOMapaVêmAGradeAMolduraACruzEOVento) {
    atos::rolar(alvo(form7, "HScroll1"), 90);
    abrirCom("10.25");
    ASSERT_EQ(form_grafVen->Picture1.traços.size(), 1u + 5 + 5 + 4 + 2 + 3);
    exigir(traço(1), 1510, 525, 1510, 3825, cores::verde, 1);
    exigir(traço(5), 3710, 525, 3710, 3825, cores::verde, 1);
    exigir(traço(6), 960, 1075, 4260, 1075, cores::verde, 1);
    exigir(traço(10), 960, 3275, 4260, 3275, cores::verde, 1);
    exigir(traço(11), 960, 525, 4260, 525, cores::preto, 2);
    exigir(traço(13), 4260, 3825, 960, 3825, cores::preto, 2);
    exigir(traço(15), 2520, 2175, 2700, 2175, cores::vermelho, 2);
    exigir(traço(16), 2610, 2085, 2610, 2265, cores::vermelho, 2);
    // From the right, at the bearing 90; the barbs 30 degrees to both sides: 120 x (cos 30, sin 30).
    exigir(traço(17), 3635, 2175, 4135, 2175, cores::vermelho, 2);
    exigir(traço(18), 3635, 2175, 3635 + 103.923048, 2115, cores::vermelho, 2);
    exigir(traço(19), 3635, 2175, 3635 + 103.923048, 2235, cores::vermelho, 2);
    EXPECT_EQ(form_grafVen->Label8.texto, "Velocidade do Vento: 0.0 m/s");
    EXPECT_EQ(form_grafVen->Label9.texto, "Direção do Vento: 90º");
}

TEST_F(MapaDoPlano, CampoSóDeZerosTemTopo1EUmaSóCor) {
    aspersorDeTrêsMetros("10");
    calcularPerfilTransversal();
    secarAspersor();
    atos::clicar(alvo(form7, "Command3"));
    EXPECT_EQ(form_grafVen->Label7.texto, "Maior Precipitação: 0.000 mm/h");
    EXPECT_EQ(textos(form_grafVen->Label15), (Textos{"0.0 mm/h", "0.5 mm/h", "1.0 mm/h"}));
    const auto& cores = std::get<Mosaico>(form_grafVen->Picture1.traços.at(0)).cores;
    EXPECT_EQ(std::ranges::count(cores, cores::branco), 40000);
}

TEST_F(MapaDoPlano, Form7FicaDesabilitadaAtéFechar) {
    abrirCom("10");
    EXPECT_TRUE(form_grafVen.visivel);
    EXPECT_TRUE(form7.visivel);
    EXPECT_FALSE(form7.habilitada);
    EXPECT_NE(recusaDe([] { atos::clicar(alvo(form7, "Command2")); }), "");
    atos::clicar(alvo(form_grafVen, "Command1"));
    EXPECT_FALSE(form_grafVen.carregada());
    EXPECT_TRUE(form7.habilitada);
    EXPECT_TRUE(form7.visivel);
}

TEST_F(MapaDoPlano, ACaixaDeFecharFazOMesmoQueFechar) {
    abrirCom("10");
    atos::fechar(form_grafVen);
    EXPECT_FALSE(form_grafVen.carregada());
    EXPECT_TRUE(form7.habilitada);
    EXPECT_TRUE(form7.visivel);
}

TEST_F(MapaDoPlano, AAmpulhetaFicaSobreForm7EnquantoDesenha) {
    abrirCom("10");
    EXPECT_EQ(ampulhetas, (std::vector<bool>{true, false}));
    EXPECT_EQ(form7.ponteiro, Ponteiro::padrão);
}

TEST_F(MapaDoPlano, UmErroTiraAAmpulhetaEDeixaForm7Habilitada) {
    aspersorDeTrêsMetros("10");
    calcularPerfilTransversal();
    form1->lblIntensidade[9].texto = std::string("N/E");
    ampulhetas.clear();
    atos::clicar(alvo(form7, "Command3"));
    EXPECT_EQ(caderno, Textos{"erro: Tipos incompatíveis"});
    EXPECT_EQ(ampulhetas, (std::vector<bool>{true, false}));
    EXPECT_EQ(form7.ponteiro, Ponteiro::padrão);
    EXPECT_TRUE(form7.habilitada);
    EXPECT_FALSE(form_grafVen.visivel);
}

TEST_F(MapaDoPlano, AvisaEmQuantosPontosOModeloNãoMereceConfiançaEApagaOAvisoAnterior) {
    atos::rolar(alvo(form7, "HScroll2"), 100);
    atos::rolar(alvo(form7, "HScroll1"), 60);
    calcularPerfilTransversal();
    const auto avisos = caderno;
    ASSERT_FALSE(avisos.empty());
    caderno.clear();
    atos::clicar(alvo(form7, "Command3"));
    EXPECT_EQ(caderno, avisos);
    EXPECT_EQ(form_grafVen->lblAviso.texto, form7->lblAviso.texto);
}

} // namespace
} // namespace varenta::teste
