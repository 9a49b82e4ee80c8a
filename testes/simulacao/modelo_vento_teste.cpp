#include "simulacao/modelo_vento.h"

#include "apoio/atalhos.h"
#include "apoio/condicoes_de_teste.h"
#include "comum/erro_execucao.h"
#include "simulacao/perfil_em.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>
#include <vector>

namespace varenta {
namespace {

using teste::condiçõesDeTeste;
using teste::erroDe;
using teste::perfilDeTeste;
using teste::sortearComuns;

/// The same with all six parameters 0.
CondiçõesDoPonto semParâmetros() {
    auto c = condiçõesDeTeste();
    c.A = c.B = c.C = c.D = c.E = c.F = 0;
    return c;
}

double intensidade(double x, double y, const CondiçõesDoPonto& c) {
    return intensidadeEmPonto(x, y, c).valor;
}

/// The ground point at the distance d and the sprinkler angle theta (degrees), which is also its wind-frame
/// point when the wind comes from straight ahead.
struct NoChão {
    NoChão(double d, double theta) : x{d * std::cos(radianos(theta))}, y{-d * std::sin(radianos(theta))} {}
    double x, y;
};

double noSetor(double secoI, double secoII, double rotação, double theta) {
    const NoChão p{10, theta};
    return distanciaNoSetor(secoI, secoII, rotação, p.x, p.y, 40);
}

TEST(ModeloDeVento, SemVentoASoluçãoÉOPróprioPontoNumSóPasse) {
    const auto c = condiçõesDeTeste();
    for (const auto& [x, y] : {std::pair{12.5, -7.25}, {-0.75, 0.75}, {-39.0, 1.0}, {60.0, 60.0}}) {
        const auto p = pontoSemVento(x, y, c);
        EXPECT_EQ(p.x, x);
        EXPECT_EQ(p.y, y);
        EXPECT_EQ(p.passes, 1);
        EXPECT_TRUE(p.convergiu);
        const auto J = matrizDoModelo(x, y, c);
        EXPECT_EQ(J.J11, 1);
        EXPECT_EQ(J.J12, 0);
        EXPECT_EQ(J.J21, 0);
        EXPECT_EQ(J.J22, 1);
    }
}

TEST(ModeloDeVento, SemVentoAIntensidadeÉOPerfilRadialNoSetorEZeroForaDele) {
    auto c = condiçõesDeTeste();
    c.anguloSecoI = c.anguloSecoII = 60;
    c.anguloGiro = 240;
    for (double theta = 5; theta < 360; theta += 10) { // on no axis and on no end of the sector
        const NoChão p{13, theta};
        const bool molhado = theta > 60 && theta < 300;
        EXPECT_NEAR(intensidade(p.x, p.y, c), molhado ? perfilRadialEm(c.intensidades, 13.0 / 40, 240) : 0,
                    1e-9)
            << theta;
    }
}

TEST(ModeloDeVento, ComOsSeisParâmetrosEmZeroOVentoNãoTemEfeito) {
    auto parado = semParâmetros(), ventoso = semParâmetros();
    ventoso.W = 7;
    for (const auto& [x, y] : {std::pair{12.5, -7.25}, {-30.0, 20.0}, {1.0, 35.0}, {50.0, 1.0}}) {
        const auto p = pontoSemVento(x, y, ventoso);
        EXPECT_EQ(p.x, x);
        EXPECT_EQ(p.y, y);
        EXPECT_EQ(p.passes, 1);
        EXPECT_EQ(intensidade(x, y, ventoso), intensidade(x, y, parado));
    }
}

TEST(ModeloDeVento, ComÂngulosSecosDe60Theta30FicaSecoETheta90RecebeOPerfil) {
    auto c = condiçõesDeTeste();
    c.anguloSecoI = c.anguloSecoII = 60;
    c.anguloGiro = 240;
    const NoChão seco{20, 30}, molhado{20, 90 - 1e-7}; // at 90 itself the point stands on an axis
    EXPECT_EQ(intensidade(seco.x, seco.y, c), 0);
    // Half of the reach lies half of the way between points 11 (at 0.475) and 12: 20 - 0.7 x 10.5 = 12.65.
    EXPECT_NEAR(intensidade(molhado.x, molhado.y, c), 12.65 * 1.5, 1e-9);
    c.anguloGiro = 360;
    EXPECT_NEAR(intensidade(molhado.x, molhado.y, c), 12.65, 1e-9);
}

TEST(ModeloDeVento, ForaDoAlcancePodeReceberÁguaComVentoEDentroPodeFicarSeco) {
    // With A alone the pattern moves bodily by A x W = 5 m downwind, and the area does not change.
    auto c = semParâmetros();
    const double longe = -41, perto = 39;
    EXPECT_EQ(intensidade(longe, 1, c), 0);
    EXPECT_GT(intensidade(perto, 1, c), 0);
    const double noPerfil = perfilRadialEm(c.intensidades, std::hypot(36, 1) / 40, 360);
    c.A = 2.5;
    c.W = 2;
    EXPECT_NEAR(intensidade(longe, 1, c), noPerfil, 1e-12);
    EXPECT_EQ(intensidade(perto, 1, c), 0);
}

TEST(ModeloDeVento, VentoDe90LevaAÁguaParaOLadoEsquerdo) {
    // The wind frame of a ground point (x, y): the right side (positive y) is where the wind comes from.
    const double rotVento = rotaçãoDoVento(90);
    EXPECT_NEAR(0 * std::cos(rotVento) - 10 * std::sin(rotVento), 10, 1e-12);
    auto c = semParâmetros();
    c.A = 2.5;
    c.W = 2;
    c.rotVento = rotVento;
    const auto noChão = [&](double x, double y) {
        return intensidade(x * std::cos(rotVento) - y * std::sin(rotVento),
                           y * std::cos(rotVento) + x * std::sin(rotVento), c);
    };
    EXPECT_GT(noChão(1, -43), 0);
    EXPECT_EQ(noChão(1, 43), 0);
    EXPECT_EQ(noChão(1, 36), 0);
}

TEST(ModeloDeVento, OPontoComVentoDeUmCasoFeitoÀMão) {
    // R 10, W 2, jet of 30 degrees (sin² 1/4), A 1, B 2, C 3, D 4, E 5, F 6, the point (3, 4), r 5:
    // q = sqrt(9/4 + 16)/5 = 0.8544003745; T = (1 + 2 x 0.5 + 3 x 0.25) x 2 = 5.5;
    // P = 4/50 + 5/100 + 30/1000 = 0.16; P q r = 0.6835202996.
    CondiçõesDoPonto c{.R = 10,
                       .A = 1,
                       .B = 2,
                       .C = 3,
                       .D = 4,
                       .E = 5,
                       .F = 6,
                       .W = 2,
                       .anguloJato = radianos(30),
                       .rotVento = 0,
                       .anguloSecoI = 0,
                       .anguloSecoII = 0,
                       .rotacao = 0,
                       .anguloGiro = 360,
                       .intensidades = {}};
    const double pqr = 0.16 * std::sqrt(18.25);
    const auto p = pontoComVento(3, 4, c);
    EXPECT_NEAR(p.xv, 3 - 5.5 - pqr * 3 * 2, 1e-12);
    EXPECT_NEAR(p.yv, 4 - pqr * 4 * 2, 1e-12);
}

TEST(ModeloDeVento, AMatrizÉADerivadaDoPontoComVento) {
    std::mt19937_64 sorteio{11};
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution{a, b}(sorteio); };
    constexpr double h = 1e-4;
    for (int vez = 0; vez < 20'000; ++vez) {
        auto c = sortearComuns(sorteio, 10);
        c.anguloJato = radianos(entre(5, 85));
        const NoChão p{entre(1, 1.2 * c.R), entre(0, 360)};
        const auto J = matrizDoModelo(p.x, p.y, c);
        const auto direita = pontoComVento(p.x + h, p.y, c), esquerda = pontoComVento(p.x - h, p.y, c);
        const auto acima = pontoComVento(p.x, p.y + h, c), abaixo = pontoComVento(p.x, p.y - h, c);
        ASSERT_NEAR(J.J11, (direita.xv - esquerda.xv) / (2 * h), 1e-6);
        ASSERT_NEAR(J.J21, (direita.yv - esquerda.yv) / (2 * h), 1e-6);
        ASSERT_NEAR(J.J12, (acima.xv - abaixo.xv) / (2 * h), 1e-6);
        ASSERT_NEAR(J.J22, (acima.yv - abaixo.yv) / (2 * h), 1e-6);
    }
}

TEST(ModeloDeVento, AÁguaDaSoluçãoCaiNoPontoPedidoDentroDoResíduo) {
    std::mt19937_64 sorteio{12};
    int convergidos = 0;
    for (int vez = 0; vez < 50'000; ++vez) {
        const auto c = sortearComuns(sorteio, 6);
        const auto entre = [&](double a, double b) { return std::uniform_real_distribution{a, b}(sorteio); };
        const NoChão p{entre(0.5, 1.3 * c.R), entre(0, 360)};
        const auto s = pontoSemVento(p.x, p.y, c);
        ASSERT_LE(s.passes, 26);
        if (!s.convergiu) {
            ASSERT_EQ(s.passes, 26);
            continue;
        }
        ++convergidos;
        const auto volta = pontoComVento(s.x, s.y, c);
        ASSERT_LE(std::fabs(volta.xv - p.x) + std::fabs(volta.yv - p.y), 0.01)
            << "W " << c.W << " R " << c.R << " em " << p.x << ", " << p.y;
    }
    EXPECT_GT(convergidos, 49'000);
}

TEST(ModeloDeVento, AIntensidadeÉOPerfilDivididoPelaDiagonalDaMatriz) {
    std::mt19937_64 sorteio{13};
    int molhados = 0;
    for (int vez = 0; vez < 2'000; ++vez) {
        auto c = sortearComuns(sorteio, 5);
        c.anguloSecoI = c.anguloSecoII = c.rotacao = 0;
        c.anguloGiro = 360;
        const auto entre = [&](double a, double b) { return std::uniform_real_distribution{a, b}(sorteio); };
        const NoChão p{entre(1, 1.1 * c.R), entre(0, 360)};
        const auto s = pontoSemVento(p.x, p.y, c);
        const auto J = matrizDoModelo(s.x, s.y, c);
        const double i = perfilRadialEm(c.intensidades, std::hypot(s.x, s.y) / c.R, 360);
        molhados += i > 0;
        ASSERT_NEAR(intensidade(p.x, p.y, c), i / (J.J11 * J.J22), 1e-9 * (1 + std::fabs(i)));
    }
    EXPECT_GT(molhados, 1'000);
}

TEST(ModeloDeVento, SoluçãoQueNãoAssentaParaNoPasse26EDizQueNãoConvergiu) {
    std::mt19937_64 sorteio{14};
    int paradas = 0;
    for (int vez = 0; vez < 50'000; ++vez) {
        const auto c = sortearComuns(sorteio, 10);
        const auto entre = [&](double a, double b) { return std::uniform_real_distribution{a, b}(sorteio); };
        const auto s = pontoSemVento(entre(-60, 60), entre(-60, 60), c);
        ASSERT_TRUE(s.passes >= 1 && s.passes <= 26);
        if (s.convergiu) continue;
        ++paradas;
        ASSERT_EQ(s.passes, 26);
    }
    EXPECT_GT(paradas, 0);
}

TEST(ModeloDeVento, CoordenadaExatamenteZeroÉDivisãoPorZero) {
    for (const double W : {0.0, 3.0}) {
        auto c = condiçõesDeTeste();
        c.W = W;
        for (const auto& [x, y] : {std::pair{0.0, 5.0}, {5.0, 0.0}, {0.0, -5.0}, {-5.0, 0.0}, {0.0, 0.0}}) {
            // At the sprinkler itself the first division is 0 / 0, and that is an overflow.
            const auto esperado = x == 0 && y == 0 ? estouro : divisãoPorZero;
            EXPECT_EQ(erroDe([&, x = x, y = y] { pontoSemVento(x, y, c); }), esperado) << x << ", " << y;
            EXPECT_EQ(erroDe([&, x = x, y = y] { intensidadeEmPonto(x, y, c); }), esperado) << x << ", " << y;
        }
    }
}

TEST(ModeloDeVento, AlcanceZeroÉDivisãoPorZero) {
    auto c = condiçõesDeTeste();
    c.R = 0;
    EXPECT_EQ(erroDe([&] { intensidadeEmPonto(1, 1, c); }), divisãoPorZero);
}

TEST(ModeloDeVento, OQuePassaDoMaiorDoubleÉEstouro) {
    auto c = condiçõesDeTeste();
    c.W = 5;
    EXPECT_EQ(erroDe([&] { intensidadeEmPonto(1e200, 1, c); }), estouro);
    c.A = 1e308;
    EXPECT_EQ(erroDe([&] { intensidadeEmPonto(10, 10, c); }), estouro);
}

TEST(ModeloDeVento, MatrizSingularÉDivisãoPorZeroOuEstouroENuncaUmNúmero) {
    // With B alone, xv = x - B r W / R: at B W / R = r / x the matrix is exactly singular. At (3, 4) with
    // R 5 and W 1, B = 25 / 3 is no double, so take (4, 3), R 4, W 1, B = 5: J11 = 1 - (x / R)(B / r) = 0.
    auto c = semParâmetros();
    c.R = 4;
    c.W = 1;
    c.B = 5;
    const auto J = matrizDoModelo(4, 3, c);
    EXPECT_EQ(J.J11, 0);
    EXPECT_EQ(J.J21, 0);
    EXPECT_EQ(erroDe([&] { pontoSemVento(4, 3, c); }), divisãoPorZero);
}

TEST(ModeloDeVento, FatorDeÁreaNegativoÉAnotadoEOValorSegueNegativo) {
    std::mt19937_64 sorteio{15};
    int negativos = 0;
    for (int vez = 0; vez < 50'000; ++vez) {
        const auto c = sortearComuns(sorteio, 10);
        const auto entre = [&](double a, double b) { return std::uniform_real_distribution{a, b}(sorteio); };
        const double x = entre(-60, 60), y = entre(-60, 60);
        const auto i = intensidadeEmPonto(x, y, c);
        if (i.valor == 0) {
            ASSERT_TRUE(i.fatorPositivo);
            continue;
        }
        const auto s = pontoSemVento(x, y, c);
        const auto J = matrizDoModelo(s.x, s.y, c);
        ASSERT_EQ(i.fatorPositivo, J.J11 * J.J22 > 0);
        ASSERT_EQ(i.valor < 0, J.J11 * J.J22 < 0);
        negativos += i.valor < 0;
    }
    EXPECT_GT(negativos, 0);
}

TEST(DistanciaNoSetor, ContaThetaDoEixoDaFrentePeloLadoEsquerdo) {
    // One narrow wetted sector around each quadrant's middle: 90 degrees from I on.
    EXPECT_NEAR(noSetor(0, 270, 0, 45), 10, 1e-12);
    EXPECT_NEAR(noSetor(90, 180, 0, 135), 10, 1e-12);
    EXPECT_NEAR(noSetor(180, 90, 0, 225), 10, 1e-12);
    EXPECT_NEAR(noSetor(270, 0, 0, 315), 10, 1e-12);
    for (const double theta : {135.0, 225.0, 315.0}) EXPECT_EQ(noSetor(0, 270, 0, theta), 0);
    for (const double theta : {45.0, 135.0, 315.0}) EXPECT_EQ(noSetor(180, 90, 0, theta), 0);
}

TEST(DistanciaNoSetor, ARotaçãoSomaÀsDuasPontas) {
    // 60 and 60: wetted from 60 to 300; turned by 20, from 80 to 320.
    EXPECT_EQ(noSetor(60, 60, 20, 79), 0);
    EXPECT_NEAR(noSetor(60, 60, 20, 81), 10, 1e-12);
    EXPECT_NEAR(noSetor(60, 60, 20, 319), 10, 1e-12);
    EXPECT_EQ(noSetor(60, 60, 20, 321), 0);
}

TEST(DistanciaNoSetor, SetorQuePassaDeUmaVoltaMolhaOComeçoDela) {
    // 60 and 60 turned by 90: from 150 to 390, so that the first 30 degrees are wetted.
    EXPECT_NEAR(noSetor(60, 60, 90, 20), 10, 1e-12);
    EXPECT_NEAR(noSetor(60, 60, 90, 29), 10, 1e-12);
    EXPECT_EQ(noSetor(60, 60, 90, 31), 0);
    EXPECT_EQ(noSetor(60, 60, 90, 149), 0);
    EXPECT_NEAR(noSetor(60, 60, 90, 151), 10, 1e-12);
    EXPECT_NEAR(noSetor(60, 60, 90, 350), 10, 1e-12);
}

TEST(DistanciaNoSetor, SetorQueComeçaAbaixoDeZeroMolhaOFimDaVolta) {
    // 60 and 60 turned by -90: from -30 to 210, so that the last 30 degrees are wetted.
    EXPECT_NEAR(noSetor(60, 60, -90, 340), 10, 1e-12);
    EXPECT_NEAR(noSetor(60, 60, -90, 331), 10, 1e-12);
    EXPECT_EQ(noSetor(60, 60, -90, 329), 0);
    EXPECT_EQ(noSetor(60, 60, -90, 211), 0);
    EXPECT_NEAR(noSetor(60, 60, -90, 209), 10, 1e-12);
    EXPECT_NEAR(noSetor(60, 60, -90, 10), 10, 1e-12);
}

TEST(DistanciaNoSetor, OAlcanceNãoPertenceAoSetor) {
    EXPECT_EQ(distanciaNoSetor(0, 0, 0, 3, 4, 5), 0);
    EXPECT_EQ(distanciaNoSetor(0, 0, 0, 3, 4, 4.9), 0);
    EXPECT_EQ(distanciaNoSetor(0, 0, 0, 3, 4, 5.1), 5);
}

TEST(DistanciaNoSetor, PontoSobreUmEixoDáZero) {
    for (const auto& [x, y] : {std::pair{0.0, 5.0}, {0.0, -5.0}, {5.0, 0.0}, {-5.0, 0.0}, {0.0, 0.0}})
        EXPECT_EQ(distanciaNoSetor(0, 0, 0, x, y, 40), 0);
}

TEST(IntensidadeSetor, EmVoltaInteiraNenhumPontoFicaSeco) {
    const auto perfil = perfilDeTeste();
    for (double theta = 1; theta < 360; theta += 1) {
        const NoChão p{20, theta};
        EXPECT_EQ(intensidadeSetor(perfil, p.x, p.y, 360, 40),
                  intensidadeRelativa(perfil, std::sqrt(p.x * p.x + p.y * p.y) / 40));
    }
}

TEST(IntensidadeSetor, ACunhaSecaFicaÀFrenteEOMolhadoRecebeAVazãoDoCírculo) {
    const auto perfil = perfilDeTeste();
    // 240 degrees leave 60 dry on either side of straight ahead. At 20 of 40 m the profile has 12.65 mm/h.
    for (double theta = 1; theta < 360; theta += 2) {
        const NoChão p{20, theta};
        const bool seco = theta < 60 || theta > 300;
        EXPECT_NEAR(intensidadeSetor(perfil, p.x, p.y, 240, 40), seco ? 0 : 12.65 * 1.5, 1e-9) << theta;
    }
}

TEST(IntensidadeSetor, ConcordaComOSetorEntreÂngulosSecosIguais) {
    std::mt19937_64 sorteio{15};
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution{a, b}(sorteio); };
    const auto perfil = perfilDeTeste();
    for (int vez = 0; vez < 20'000; ++vez) {
        const double giro = std::floor(entre(180, 361)), seco = (360 - giro) / 2;
        const NoChão p{entre(0.5, 39.9), entre(0, 360)};
        const double d = distanciaNoSetor(seco, seco, 0, p.x, p.y, 40);
        ASSERT_NEAR(intensidadeSetor(perfil, p.x, p.y, giro, 40),
                    d == 0 ? 0 : perfilRadialEm(perfil, d / 40, giro), 1e-9);
    }
}

TEST(IntensidadeSetor, UmPontoComUZeroLêOLugarDoAspersor) {
    EXPECT_EQ(intensidadeSetor(perfilDeTeste(), 0, 30, 180, 40), 20 * 2.0);
    EXPECT_EQ(intensidadeSetor(perfilDeTeste(), 0, 30, 360, 40), 20);
}

TEST(IntensidadeSetor, AlémDoAlcanceÉZero) {
    EXPECT_EQ(intensidadeSetor(perfilDeTeste(), -40.001, 0, 240, 40), 0);
    EXPECT_EQ(intensidadeSetor(perfilDeTeste(), 41, 1, 240, 40), 0);
}

} // namespace
} // namespace varenta
