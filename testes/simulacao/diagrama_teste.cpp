#include "simulacao/diagrama.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace varenta {
namespace {

constexpr double grau = std::numbers::pi / 180;

Desenho diagrama(int direção, int secoI, int secoII, int rotação) {
    Desenho desenho;
    desenho.linha(0, 0, 1, 1, cores::verde);
    desenharDiagrama(desenho, direção, secoI, secoII, rotação);
    return desenho;
}

void exigirLinha(const Traço& traço, double x1, double y1, double x2, double y2, Cor cor) {
    const auto& linha = std::get<Linha>(traço);
    EXPECT_NEAR(linha.x1, x1, 1e-6);
    EXPECT_NEAR(linha.y1, y1, 1e-6);
    EXPECT_NEAR(linha.x2, x2, 1e-6);
    EXPECT_NEAR(linha.y2, y2, 1e-6);
    EXPECT_EQ(linha.cor, cor);
    EXPECT_EQ(linha.largura, 2);
}

/// A sector in the light blue with its radial lines, from `início` to `fim` degrees, anticlockwise from the
/// right.
void exigirSetor(const Traço& traço, double cx, double cy, double raio, double início, double fim) {
    const auto& arco = std::get<Arco>(traço);
    EXPECT_EQ(arco.cx, cx);
    EXPECT_EQ(arco.cy, cy);
    EXPECT_EQ(arco.raio, raio);
    EXPECT_EQ(arco.cor, cores::azulClaro);
    EXPECT_NEAR(-arco.início / grau, início, 1e-9);
    EXPECT_NEAR(-arco.fim / grau, fim, 1e-9);
    EXPECT_EQ(arco.largura, 2);
    EXPECT_FALSE(arco.preenchido);
}

/// The wetted sector at both of its places, which the wind (no sector of its own from 0) precedes.
void exigirMolhado(int secoI, int secoII, int rotação, double início, double fim) {
    const auto desenho = diagrama(0, secoI, secoII, rotação);
    exigirSetor(desenho.traços[4], 1455, 3290, 1000, início, fim);
    exigirSetor(desenho.traços[5], 1455, 5840, 1000, início, fim);
}

TEST(Diagrama, ApagaOQueHaviaETemOsTraçosDoVentoDoSetorEDosColetores) {
    // The wind's line and its arrow of three; two sectors; 37 collectors, each a disc and a rim.
    EXPECT_EQ(diagrama(0, 60, 60, 0).traços.size(), 4u + 2u + 2u * 37u);
    EXPECT_EQ(diagrama(90, 60, 60, 0).traços.size(), 1u + 4u + 2u + 2u * 37u);
}

TEST(Diagrama, VentoDe90VemDaDireita) {
    const auto desenho = diagrama(90, 60, 60, 0);
    // From the 0 mark, at the top, clockwise to the right: on the canvas from 360 to 90 degrees.
    exigirSetor(desenho.traços[0], 1455, 1125, 300, 360, 90);
    exigirLinha(desenho.traços[1], 1455, 1125, 1905, 1125, cores::azul);
    exigirLinha(desenho.traços[2], 1905, 1125, 2305, 1125, cores::vermelho);
    // The barbs at bearings 60 and 120: 120 x sin 60 = 103.923, 120 x cos 60 = 60.
    exigirLinha(desenho.traços[3], 1905, 1125, 2008.923048, 1065, cores::vermelho);
    exigirLinha(desenho.traços[4], 1905, 1125, 2008.923048, 1185, cores::vermelho);
}

TEST(Diagrama, VentoDe0VemDaFrenteENãoTemSetorNaRosa) {
    const auto desenho = diagrama(0, 60, 60, 0);
    exigirLinha(desenho.traços[0], 1455, 1125, 1455, 675, cores::azul);
    exigirLinha(desenho.traços[1], 1455, 675, 1455, 275, cores::vermelho);
    exigirLinha(desenho.traços[2], 1455, 675, 1395, 571.076952, cores::vermelho);
    exigirLinha(desenho.traços[3], 1455, 675, 1515, 571.076952, cores::vermelho);
}

TEST(Diagrama, OSetorDaRosaPerdeUmaVoltaQuandoPassaDela) {
    // 360 + 90 - direction: 405 loses a turn, 330 and 90 (of 360 degrees) don't.
    exigirSetor(diagrama(45, 0, 0, 0).traços[0], 1455, 1125, 300, 45, 90);
    exigirSetor(diagrama(120, 0, 0, 0).traços[0], 1455, 1125, 300, 330, 90);
    exigirSetor(diagrama(360, 0, 0, 0).traços[0], 1455, 1125, 300, 90, 90);
}

TEST(Diagrama, OSetorMolhadoVaiDoFimDeUmaCunhaAoComeçoDaOutra) {
    exigirMolhado(60, 60, 0, 150, 30);
    exigirMolhado(0, 0, 0, 90, 90);
    exigirMolhado(45, 89, 0, 135, 1);
}

TEST(Diagrama, ComOSegundoÂnguloDe90OuMaisOFimÉContadoUmaVoltaAdiante) {
    exigirMolhado(60, 90, 0, 150, 360);
    exigirMolhado(178, 178, 0, 268, 272);
}

TEST(Diagrama, PontaAcimaDeUmaVoltaPerdeUmaEPontaAtéZeroGanhaUma) {
    exigirMolhado(60, 60, 300, 90, 330);    // 450 and 330
    exigirMolhado(0, 60, -90, 360, 300);    // 0 and -60
    exigirMolhado(60, 60, 360, 150, 30);    // 510 and 390
    exigirMolhado(60, 60, -360, 150, 30);   // -210 and -330
    exigirMolhado(10, 178, -360, 100, 272); // -260 and -88
}

TEST(Diagrama, OsColetoresSãoDiscosAmarelosComBordaPreta) {
    const auto desenho = diagrama(0, 60, 60, 0);
    const auto exigirCírculos = [&](std::size_t primeiro, double raio, Cor cor, int largura, bool cheio) {
        std::size_t n = primeiro;
        const auto exigir = [&](double cx, double cy) {
            const auto& arco = std::get<Arco>(desenho.traços.at(n++));
            EXPECT_EQ(arco.cx, cx);
            EXPECT_EQ(arco.cy, cy);
            EXPECT_EQ(arco.raio, raio);
            EXPECT_EQ(arco.cor, cor);
            EXPECT_EQ(arco.largura, largura);
            EXPECT_EQ(arco.preenchido, cheio);
            EXPECT_EQ(arco.início, 0);
            EXPECT_DOUBLE_EQ(arco.fim, 360 * grau);
        };
        for (const double cy : {4090.0, 4590.0, 5090.0})
            for (double cx = 80; cx <= 2830; cx += 250) exigir(cx, cy);
        exigir(2230, 6870);
    };
    exigirCírculos(6, 15, cores::amarelo, 2, true);
    exigirCírculos(6 + 37, 25, cores::preto, 1, false);
}

} // namespace
} // namespace varenta
