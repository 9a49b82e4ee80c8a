#include "aspersor/catalogo.h"

#include "apoio/atalhos.h"
#include "aspersor/perfis_catalogo.h"
#include "comum/numeros.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace varenta::catalogo {
namespace {

using teste::erroDe;

const std::vector<int> bocaisTX15 = {14, 16, 18, 20, 22, 24, 26, 28};
const std::vector<int> bocaisTX20 = {22, 24, 26, 28, 30, 32, 34, 36, 38};
const std::vector<int> bocaisTX30 = {34, 36, 38, 40, 42, 44};
const std::vector<int> bocaisAuxiliares = {5, 6, 7};

TEST(Catalogo, TX15De18mmSemAuxiliarA50mcaDáVazão26_51ERaio43_11) {
    EXPECT_EQ(pressaoEfetivaTX15(0, 18, 50), 50);
    EXPECT_EQ(Format(vazaoTX15(0, 18, 50), "##0.00"), "26.51");
    // -0.0055 x 2500 + 0.9503 x 50 + 9.3408
    EXPECT_NEAR(raioTX15(18, 50), 43.1058, 1e-12);
    EXPECT_EQ(Format(raioTX15(18, 50), "##0.00"), "43.11");
}

TEST(Catalogo, OKDoParFicaSempreAbaixoDaSomaDosDoisJatos) {
    for (const int auxiliar : bocaisAuxiliares) {
        for (const int principal : bocaisTX15) {
            EXPECT_LT(coefVazaoTX15(auxiliar, principal),
                      coefVazaoTX15(auxiliar, 0) + coefVazaoTX15(0, principal))
                << principal << " x " << auxiliar;
            EXPECT_GT(coefVazaoTX15(auxiliar, principal), coefVazaoTX15(0, principal));
            EXPECT_LT(pressaoEfetivaTX15(auxiliar, principal, 50), 50);
        }
        for (const int principal : bocaisTX20) {
            EXPECT_LT(coefVazaoTX20(auxiliar, principal),
                      coefVazaoTX20(auxiliar, 0) + coefVazaoTX20(0, principal))
                << principal << " x " << auxiliar;
            EXPECT_GT(coefVazaoTX20(auxiliar, principal), coefVazaoTX20(0, principal));
            EXPECT_LT(pressaoEfetivaTX20(auxiliar, principal, 50), 50);
        }
    }
}

TEST(Catalogo, APressãoEfetivaPodeCairAbaixoDos30mca) {
    // (2.77304979899231 / (0.5902528143418 + 2.22634810433041))² x 30, worked with decimals.
    EXPECT_NEAR(pressaoEfetivaTX15(7, 14, 30), 29.079435, 1e-6);
}

TEST(Catalogo, SemAuxiliarAPressãoEfetivaÉAPrópriaPressão) {
    for (const int principal : bocaisTX15) EXPECT_EQ(pressaoEfetivaTX15(0, principal, 47.5), 47.5);
    for (const int principal : bocaisTX20) EXPECT_EQ(pressaoEfetivaTX20(0, principal, 47.5), 47.5);
}

TEST(Catalogo, OMesmoBocalDe22mmÉOutroNoutroModelo) {
    EXPECT_EQ(coefVazaoTX15(0, 22), 5.62415677998719);
    EXPECT_EQ(coefVazaoTX20(0, 22), 3.82519804620459);
    // -0.0065 x 2500 + 1.1508 x 50 + 6.7228 and -0.0073 x 2500 + 1.0065 x 50 + 11.029
    EXPECT_NEAR(raioTX15(22, 50), 48.0128, 1e-12);
    EXPECT_NEAR(raioTX20(22, 50), 43.104, 1e-12);
}

TEST(Catalogo, OBocalAuxiliarVemPrimeiro) {
    EXPECT_EQ(coefVazaoTX15(7, 28), 9.18704460484187);
    EXPECT_EQ(coefVazaoTX20(5, 38), 13.5384314908551);
    EXPECT_EQ(coefVazaoTX15(6, 0), 0.412859078353078);
    EXPECT_EQ(coefVazaoTX20(6, 0), 0.412859078353078);
    EXPECT_EQ(coefVazaoTX15(28, 7), 0);
}

TEST(Catalogo, AVazãoCresceComARaizDaPressão) {
    EXPECT_DOUBLE_EQ(vazaoTX15(6, 18, 64), 4.11924574592113 * 8);
    EXPECT_DOUBLE_EQ(vazaoTX20(7, 28, 36), 6.96594387806484 * 6);
    EXPECT_DOUBLE_EQ(vazaoTX30(44, 49), 21.6508836153901 * 7);
}

TEST(Catalogo, AlcancesComTermoConstanteNegativo) {
    // At 10 m.c.a., worked by hand: a x 100 + b x 10 + c.
    EXPECT_NEAR(raioTX20(36, 10), -1.13 + 17.103 - 2.2434, 1e-12);
    EXPECT_NEAR(raioTX20(38, 10), -0.95 + 15.953 - 0.343, 1e-12);
    EXPECT_NEAR(raioTX30(42, 10), -1.02 + 17.34 - 0.9116, 1e-12);
    EXPECT_NEAR(raioAuxiliar(7, 10), -0.19 + 3.614 + 11, 1e-12);
}

TEST(Catalogo, CombinaçãoForaDoCatálogoDáZero) {
    EXPECT_EQ(coefVazaoTX15(0, 0), 0);
    EXPECT_EQ(coefVazaoTX20(0, 0), 0);
    EXPECT_EQ(coefVazaoTX15(6, 15), 0);
    EXPECT_EQ(coefVazaoTX15(4, 18), 0);
    EXPECT_EQ(coefVazaoTX15(6, 38), 0);
    EXPECT_EQ(coefVazaoTX20(6, 14), 0);
    EXPECT_EQ(pressaoEfetivaTX15(0, 0, 50), 0);
    EXPECT_EQ(pressaoEfetivaTX15(6, 38, 50), 0);
    EXPECT_EQ(pressaoEfetivaTX20(4, 99, 50), 0);
    EXPECT_EQ(vazaoTX15(6, 30, 50), 0);
    EXPECT_EQ(vazaoTX20(8, 28, 50), 0);
    EXPECT_EQ(vazaoTX30(32, 50), 0);
    EXPECT_EQ(raioTX15(30, 50), 0);
    EXPECT_EQ(raioTX20(20, 50), 0);
    EXPECT_EQ(raioTX30(46, 50), 0);
    EXPECT_EQ(raioAuxiliar(0, 50), 0);
    EXPECT_EQ(raioAuxiliar(8, 50), 0);
}

TEST(Catalogo, CadaBocalDaListaTemVazãoEAlcance) {
    for (const int b : bocaisTX15) EXPECT_GT(vazaoTX15(0, b, 30) * raioTX15(b, 30), 0) << b;
    for (const int b : bocaisTX20) EXPECT_GT(vazaoTX20(0, b, 30) * raioTX20(b, 30), 0) << b;
    for (const int b : bocaisTX30) EXPECT_GT(vazaoTX30(b, 40) * raioTX30(b, 40), 0) << b;
    for (const int b : bocaisAuxiliares) EXPECT_GT(vazaoTX15(b, 0, 30) * raioAuxiliar(b, 30), 0) << b;
}

TEST(Catalogo, IntensidadeMédiaEspalhaAVazãoPeloCírculo) {
    // 31.4159265358979 m³/h over a circle of 10 m: 0.1 m/h, 100 mm/h.
    EXPECT_DOUBLE_EQ(intensidadeMedia(10 * pi, 10), 100);
    EXPECT_EQ(erroDe([] { intensidadeMedia(1, 0); }), divisãoPorZero);
    EXPECT_EQ(erroDe([] { intensidadeMedia(0, 0); }), estouro);
}

/// Nozzles in ascending order, each with the pressures given, in ascending order.
template <class Tabela>
void exigirLinhas(const Tabela& tabela, const std::vector<int>& bocais, const std::vector<int>& pressões) {
    ASSERT_EQ(tabela.size(), bocais.size() * pressões.size());
    std::size_t n = 0;
    for (const int bocal : bocais)
        for (const int pressão : pressões) {
            EXPECT_EQ(tabela[n].bocal, bocal);
            EXPECT_EQ(tabela[n].pressão, pressão);
            ++n;
        }
}

TEST(PerfisDoCatalogo, TêmAsSuasLinhasNaOrdemDosBocaisEDasPressões) {
    exigirLinhas(perfisTX15, bocaisTX15, {30, 40, 50, 60, 70});
    exigirLinhas(perfisTX20, bocaisTX20, {30, 40, 50, 60, 70});
    exigirLinhas(perfisTX30, bocaisTX30, {40, 50, 60, 70});
    exigirLinhas(perfisAuxiliares, bocaisAuxiliares, {30, 40, 50, 60, 70});
    EXPECT_EQ(perfisTX15.size(), 40u);
    EXPECT_EQ(perfisTX20.size(), 45u);
    EXPECT_EQ(perfisTX30.size(), 24u);
    EXPECT_EQ(perfisAuxiliares.size(), 15u);
}

/// The mean over the circle of a ratio that runs in straight lines between the points of a profile.
double médiaNoCírculo(const std::array<double, 22>& razões) {
    double soma = 0;
    for (std::size_t k = 0; k < 21; ++k) {
        const double x0 = k == 0 ? 0 : 0.05 * static_cast<double>(k) - 0.025;
        const double x1 = k == 20 ? 1 : 0.05 * static_cast<double>(k) + 0.025;
        const double y0 = razões[k], y1 = razões[k + 1];
        soma += (x1 - x0) / 3 * (x0 * (2 * y0 + y1) + x1 * (y0 + 2 * y1));
    }
    return soma;
}

TEST(PerfisDoCatalogo, CadaLinhaTerminaEmZeroETemMédiaUm) {
    const auto exigir = [](const auto& tabela) {
        for (const auto& linha : tabela) {
            EXPECT_EQ(linha.razões.back(), 0);
            // The measured rows themselves close to 3.1 % at the worst (TX15, 26 mm at 30 m.c.a.).
            EXPECT_NEAR(médiaNoCírculo(linha.razões), 1, 0.032) << linha.bocal << " a " << linha.pressão;
        }
    };
    exigir(perfisTX15);
    exigir(perfisTX20);
    exigir(perfisTX30);
    exigir(perfisAuxiliares);
}

} // namespace
} // namespace varenta::catalogo
