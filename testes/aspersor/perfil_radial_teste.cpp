#include "aspersor/perfil_radial.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace varenta {
namespace {

using teste::erroDe;

/// Point k (from 1) of a profile.
double ponto(const PontosDoPerfil& pontos, std::size_t k) { return pontos.at(k - 1); }

PontosDoPerfil aplicar(double (*função)(double)) {
    auto pontos = distanciasRelativas();
    for (auto& x : pontos) x = função(x);
    return pontos;
}

TEST(DistanciasRelativas, VãoDe0A1PeloCentroDasClasses) {
    for (const auto& rel : {distanciasRelativas(), distanciasRelativasAcumuladas()}) {
        EXPECT_EQ(ponto(rel, 1), 0);
        EXPECT_EQ(ponto(rel, 2), 0.025);
        for (std::size_t k = 3; k <= 21; ++k)
            EXPECT_NEAR(ponto(rel, k), (50.0 * static_cast<double>(k) - 75) / 1000, 1e-14);
        EXPECT_EQ(ponto(rel, 22), 1);
    }
}

TEST(DistanciasRelativas, OPrimeiroEOÚltimoSegmentoTêmMetadeDaLarguraDosOutros) {
    const auto rel = distanciasRelativas();
    EXPECT_NEAR(ponto(rel, 2) - ponto(rel, 1), 0.025, 1e-14);
    EXPECT_NEAR(ponto(rel, 22) - ponto(rel, 21), 0.025, 1e-14);
    for (std::size_t k = 2; k <= 20; ++k) EXPECT_NEAR(ponto(rel, k + 1) - ponto(rel, k), 0.05, 1e-14);
}

TEST(DistanciasRelativas, AsAcumuladasDiferemNosÚltimosBits) {
    EXPECT_NE(distanciasRelativas(), distanciasRelativasAcumuladas());
}

void exigirFaixa(const FaixaDePressão& faixa, std::size_t baixa, std::size_t alta, double base) {
    EXPECT_EQ(faixa.linhaBaixa, baixa);
    EXPECT_EQ(faixa.linhaAlta, alta);
    EXPECT_EQ(faixa.base, base);
}

TEST(FaixaDeCincoLinhas, CadaFaixaContémASuaPontaDeBaixo) {
    exigirFaixa(faixaDeCincoLinhas(30), 0, 1, 30);
    exigirFaixa(faixaDeCincoLinhas(39.999), 0, 1, 30);
    exigirFaixa(faixaDeCincoLinhas(40), 1, 2, 40);
    exigirFaixa(faixaDeCincoLinhas(50), 2, 3, 50);
    exigirFaixa(faixaDeCincoLinhas(59.999), 2, 3, 50);
    exigirFaixa(faixaDeCincoLinhas(60), 3, 4, 60);
    exigirFaixa(faixaDeCincoLinhas(70), 3, 4, 60);
}

TEST(FaixaDeCincoLinhas, Abaixo30SóAPrimeiraLinhaConta) {
    exigirFaixa(faixaDeCincoLinhas(29.999), 0, 0, 30);
    exigirFaixa(faixaDeCincoLinhas(1), 0, 0, 30);
}

TEST(FaixaDeCincoLinhas, Acima70ÉÍndiceForaDosLimites) {
    EXPECT_EQ(erroDe([] { faixaDeCincoLinhas(70.001); }), índiceForaDosLimites);
}

TEST(FaixaDeQuatroLinhas, CadaFaixaContémASuaPontaDeBaixo) {
    exigirFaixa(faixaDeQuatroLinhas(40), 0, 1, 40);
    exigirFaixa(faixaDeQuatroLinhas(49.999), 0, 1, 40);
    exigirFaixa(faixaDeQuatroLinhas(50), 1, 2, 50);
    exigirFaixa(faixaDeQuatroLinhas(60), 2, 3, 60);
    exigirFaixa(faixaDeQuatroLinhas(70), 2, 3, 60);
    for (const double fora : {39.999, 70.001})
        EXPECT_EQ(erroDe([&] { faixaDeQuatroLinhas(fora); }), índiceForaDosLimites);
}

TEST(BlocoDoBocal, TemAsLinhasDoBocal) {
    const auto bloco = blocoDoBocal(catalogo::perfisTX15, 18);
    ASSERT_EQ(bloco.size(), 5u);
    EXPECT_EQ(bloco[0].bocal, 18);
    EXPECT_EQ(bloco[0].pressão, 30);
    EXPECT_EQ(bloco[4].pressão, 70);
    EXPECT_EQ(blocoDoBocal(catalogo::perfisTX30, 44).size(), 4u);
    EXPECT_EQ(blocoDoBocal(catalogo::perfisTX30, 44).front().pressão, 40);
    EXPECT_EQ(erroDe([] { blocoDoBocal(catalogo::perfisTX15, 15); }), índiceForaDosLimites);
}

TEST(RazõesNaPressão, NumaPressãoDoCatálogoSãoAPrópriaLinha) {
    const auto bloco = blocoDoBocal(catalogo::perfisTX15, 18);
    const auto razões = razõesNaPressão(bloco, faixaDeCincoLinhas(50), 50);
    EXPECT_EQ(razões, bloco[2].razões);
    EXPECT_EQ(razões[0], 1.3099);
}

TEST(RazõesNaPressão, EntreDuasPressõesSãoUmaReta) {
    const auto bloco = blocoDoBocal(catalogo::perfisTX15, 18);
    // 18 mm, first points: 1.0129 at 40 and 1.3099 at 50; a quarter of the way is 1.08715.
    EXPECT_NEAR(razõesNaPressão(bloco, faixaDeCincoLinhas(42.5), 42.5)[0], 1.08715, 1e-14);
    // At 70, from the base 60, the last row.
    EXPECT_NEAR(razõesNaPressão(bloco, faixaDeCincoLinhas(70), 70)[10], bloco[4].razões[10], 1e-14);
}

TEST(RazõesNaPressão, Abaixo30NãoHáExtrapolaçãoEACurvaÉSempreAMesma) {
    const auto bloco = blocoDoBocal(catalogo::perfisAuxiliares, 7);
    for (const double Pe : {29.9, 25.0, 10.0})
        EXPECT_EQ(razõesNaPressão(bloco, faixaDeCincoLinhas(Pe), Pe), bloco[0].razões);
}

TEST(IntensidadeNoRaio, ÉUmaRetaEntreOsPontosDoJatoAuxiliar) {
    const auto raios = aplicar([](double x) { return 20 * x; });
    const auto intensidades = aplicar([](double x) { return 3 - 2 * x; });
    for (const double r : {0.0, 0.3, 0.5, 7.7, 19.9, 20.0})
        EXPECT_NEAR(intensidadeNoRaio(r, raios, intensidades), 3 - r / 10, 1e-13);
    EXPECT_EQ(intensidadeNoRaio(20.001, raios, intensidades), 0);
}

TEST(IntensidadeNoRaio, OndeDoisSegmentosSeEncontramValeOSegundo) {
    // The later of two segments that meet starts at the point itself, so the point's own double comes out.
    const auto raios = distanciasRelativas();
    const auto intensidades = aplicar([](double x) { return std::sin(9 * x) + 0.1; });
    for (std::size_t k = 1; k <= 21; ++k)
        EXPECT_EQ(intensidadeNoRaio(ponto(raios, k), raios, intensidades), ponto(intensidades, k));
}

TEST(AmostrarCurva, SãoDuasAmostrasTrêsEmCadaSegmentoDeDentroDuasEAFinal) {
    for (const auto& x : {distanciasRelativas(), distanciasRelativasAcumuladas()}) {
        const auto amostras = amostrarCurva(x, aplicar([](double) { return 1.0; })).amostras;
        ASSERT_EQ(amostras.size(), 62u);
        std::size_t n = 0;
        for (std::size_t k = 1; k <= 21; ++k) {
            const int quantas = k == 1 || k == 21 ? 2 : 3;
            for (int a = 0; a < quantas; ++a)
                EXPECT_NEAR(amostras[n++].x, ponto(x, k) + 0.01875 * a, 1e-14) << k;
        }
        EXPECT_EQ(amostras[n].x, 1);
        EXPECT_EQ(amostras[n].y, 0);
        EXPECT_EQ(n, 61u);
    }
}

TEST(AmostrarCurva, PassaPelosPontosDados) {
    const auto y = aplicar([](double x) { return std::cos(7 * x) + 2 * x; });
    const auto amostras = amostrarCurva(distanciasRelativas(), y).amostras;
    EXPECT_EQ(amostras[0].y, ponto(y, 1));
    for (std::size_t k = 2; k <= 21; ++k) EXPECT_NEAR(amostras[2 + 3 * (k - 2)].y, ponto(y, k), 1e-14);
}

TEST(AmostrarCurva, NumaRetaSóATerceiraAmostraSaiDelaPoisNasceDaSegunda) {
    // On y = 8x no point has a second derivative. In a segment from a: the second sample, 3/8 of the way,
    // lies on the line. The third one, 3/4 of the way, mixes 3/4 of the end with 1/4 of the second sample in
    // place of the start: 8 x (a + 0.0375 + 0.0046875).
    const auto x = distanciasRelativas();
    const auto curva = amostrarCurva(x, aplicar([](double r) { return 8 * r; }));
    EXPECT_NEAR(curva.amostras[1].y, 8 * 0.01875, 1e-13);
    for (std::size_t k = 2; k <= 20; ++k) {
        const std::size_t n = 2 + 3 * (k - 2);
        EXPECT_NEAR(curva.amostras[n].y, 8 * ponto(x, k), 1e-12);
        EXPECT_NEAR(curva.amostras[n + 1].y, 8 * (ponto(x, k) + 0.01875), 1e-12);
        EXPECT_NEAR(curva.amostras[n + 2].y, 8 * (ponto(x, k) + 0.0421875), 1e-12);
    }
    EXPECT_NEAR(curva.amostras[60].y, 8 * 0.99375, 1e-12);
    EXPECT_EQ(curva.maior, 8);
}

TEST(AmostrarCurva, ConcordaComOCasoResolvidoComFraçõesExatas) {
    // y = 1 at the sprinkler and 0 elsewhere, the whole system solved in exact fractions.
    PontosDoPerfil y{};
    y[0] = 1;
    const auto curva = amostrarCurva(distanciasRelativas(), y);
    const double esperados[] = {1, 0.18994895719161553, 0, -0.21559522994011096, -0.16111070180836978, 0};
    for (std::size_t n = 0; n < 6; ++n) EXPECT_NEAR(curva.amostras[n].y, esperados[n], 1e-12) << n;
    // The 1 itself gave way to the segment's second sample, so the largest working value is that one.
    EXPECT_NEAR(curva.maior, 0.18994895719161553, 1e-12);
}

TEST(AmostrarCurva, OMaiorNuncaÉNegativo) {
    EXPECT_EQ(amostrarCurva(distanciasRelativas(), aplicar([](double) { return -1.0; })).maior, 0);
}

/// The second derivatives at both ends of inner segment k, as the two inner samples of it tell them: each
/// sample is B y(k+1) + A y + C M(k) + D M(k+1), with y the sample before it.
std::pair<double, double> segundasDerivadasDe(const CurvaDoPerfil& curva, const PontosDoPerfil& y,
                                              std::size_t k) {
    const std::size_t n = 2 + 3 * (k - 2);
    const auto& a = curva.amostras;
    const double h2 = 0.0025;
    const auto peso = [&](double t) { return (t * t - 1) * (t / 6) * h2; };
    const double e1 = a[n + 1].y - 0.375 * ponto(y, k + 1) - 0.625 * ponto(y, k);
    const double e2 = a[n + 2].y - 0.75 * ponto(y, k + 1) - 0.25 * a[n + 1].y;
    const double c1 = peso(0.625), d1 = peso(0.375), c2 = peso(0.25), d2 = peso(0.75);
    const double det = c1 * d2 - c2 * d1;
    return {(e1 * d2 - e2 * d1) / det, (c1 * e2 - c2 * e1) / det};
}

TEST(AmostrarCurva, AsSegundasDerivadasSãoContínuasECumpremOSistemaDaSplineNatural) {
    std::mt19937 sorteio{7};
    std::uniform_real_distribution<double> qualquer{0, 3};
    const auto x = distanciasRelativas();
    for (int vez = 0; vez < 50; ++vez) {
        PontosDoPerfil y{};
        for (auto& v : y) v = qualquer(sorteio);
        const auto curva = amostrarCurva(x, y);
        std::array<double, 23> m{}; // 1 to 22, natural: 0 at both ends
        for (std::size_t k = 2; k <= 20; ++k) {
            const auto [começo, fim] = segundasDerivadasDe(curva, y, k);
            if (k > 2) {
                EXPECT_NEAR(começo, m[k], 1e-6);
            }
            m[k] = começo;
            m[k + 1] = fim;
        }
        for (std::size_t k = 2; k <= 21; ++k) {
            const double antes = ponto(x, k) - ponto(x, k - 1), depois = ponto(x, k + 1) - ponto(x, k);
            const double direito =
                6 * ((ponto(y, k + 1) - ponto(y, k)) / depois - (ponto(y, k) - ponto(y, k - 1)) / antes);
            EXPECT_NEAR(antes * m[k - 1] + 2 * (antes + depois) * m[k] + depois * m[k + 1], direito, 1e-6);
        }
        // The first and the last segment: a quarter of the way from the sprinkler, and to the reach.
        const double h2 = 0.000625;
        EXPECT_NEAR(curva.amostras[1].y, 0.75 * y[1] + 0.25 * y[0] + (0.5625 - 1) * (0.75 / 6) * h2 * m[2],
                    1e-9);
        EXPECT_NEAR(curva.amostras[60].y,
                    0.75 * y[21] + 0.25 * y[20] + (0.0625 - 1) * (0.25 / 6) * h2 * m[21], 1e-9);
    }
}

} // namespace
} // namespace varenta
