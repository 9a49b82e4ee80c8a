#include "uniformidade/eficiencia.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace varenta::teste {
namespace {

Matriz lâminas(std::initializer_list<std::initializer_list<double>> linhas) {
    Matriz matriz{linhas.size(), linhas.begin()->size()};
    std::size_t l = 0;
    for (const auto& linha : linhas) std::ranges::copy(linha, matriz.linha(l++).begin());
    return matriz;
}

/// The strip of rows 2 to 6 (one dry row on either side stays out): mean 60, deviations 60, 10, 40, 40
/// and 10.
Matriz faixaDeSessenta() {
    return lâminas({{7, 3}, {0, 0}, {50, 50}, {100, 100}, {100, 100}, {50, 50}, {9, 1}});
}

TabelaDeEficiências tabelaDeSessenta() { return analisarFaixa(faixaDeSessenta(), 4, 2, 6, 60, 2.5); }

double CVDeSessenta() { return std::sqrt((3600 + 100 + 1600 + 1600 + 100) / 5.0) / 60; }

double L(double CV, double x) { return 1 + (CV / 0.1975) * (std::pow(x, 0.135) - std::pow(1 - x, 0.135)); }

TEST(SomarVolumes, ForaDaFaixaContaNoTotalENoPerdidoEEmNadaMais) {
    const auto volumes = somarVolumes(faixaDeSessenta(), 4, 2, 6);
    EXPECT_NEAR(volumes.total, 620 * 0.004, 1e-12);
    EXPECT_NEAR(volumes.perdido, 20 * 0.004, 1e-12);
    EXPECT_EQ(volumes.soma, 600);
    EXPECT_EQ(volumes.células, 10);
}

TEST(AnalisarFaixa, CélulasForaDaFaixaNãoMudamNenhumaEficiência) {
    auto campo = faixaDeSessenta();
    std::ranges::fill(campo.linha(0), 500);
    std::ranges::fill(campo.linha(6), 0);
    const auto antes = tabelaDeSessenta(), depois = analisarFaixa(campo, 4, 2, 6, 60, 2.5);
    for (std::size_t r = 0; r < lâminasRequeridas; ++r) {
        EXPECT_EQ(antes[r].Ir, depois[r].Ir);
        EXPECT_EQ(antes[r].ADobs, depois[r].ADobs);
        EXPECT_EQ(antes[r].excesso, depois[r].excesso);
        EXPECT_EQ(antes[r].déficit, depois[r].déficit);
        EXPECT_EQ(antes[r].armazenamento, depois[r].armazenamento);
    }
}

TEST(AnalisarFaixa, SãoQuarentaENoveCandidatasComXAcumulado) {
    const auto tabela = tabelaDeSessenta();
    const double CV = CVDeSessenta();
    double x = 0.99;
    for (std::size_t r = 0; r < 47; ++r) {
        EXPECT_NEAR(tabela[r].Ir, 60 * L(CV, x), 1e-11) << r + 1;
        x = x + -0.02;
    }
    EXPECT_NEAR(x, 0.05, 1e-12); // the last two are the next test's
    EXPECT_TRUE(std::ranges::is_sorted(tabela, std::ranges::greater{}, &LâminaRequerida::Ir));
    // 0.99^0.135 - 0.01^0.135 is 0.461614: 1 + 0.623610 / 0.1975 x 0.461614 = 2.457549 means.
    EXPECT_NEAR(tabela[0].Ir, 147.4529, 1e-3);
}

TEST(AnalisarFaixa, FatorAtéZeroÉRefeitoUmaVezComXMaiorEm0_015) {
    const double CV = CVDeSessenta();
    ASSERT_LT(L(CV, 0.03), 0);
    const auto últimas = tabelaDeSessenta();
    EXPECT_NEAR(últimas[47].Ir, 60 * L(CV, 0.065), 1e-9);
    EXPECT_NEAR(últimas[48].Ir, 60 * L(CV, 0.045), 1e-9);
    EXPECT_LT(últimas[48].Ir, 0); // still below 0, and kept so
    // With one depth of 10 to four of 2 (mean 3.6, deviation 3.2) more rows are.
    const auto campo = lâminas({{10, 2, 2, 2, 2}});
    const double outro = 3.2 / 3.6;
    const auto tabela = analisarFaixa(campo, 1, 1, 1, 3.6, 1);
    int refeitas = 0;
    double x = 0.99;
    for (const auto& linha : tabela) {
        const bool refeita = L(outro, x) <= 0;
        refeitas += refeita;
        EXPECT_NEAR(linha.Ir, 3.6 * L(outro, refeita ? x + 0.015 : x), 1e-11) << x;
        x -= 0.02;
    }
    EXPECT_GT(refeitas, 1);
    EXPECT_LT(refeitas, 49);
}

TEST(AnalisarFaixa, AObservaçãoDaPrimeiraCandidataAbaixoDaMédiaFeitaÀMão) {
    // Row 26, at x = 0.49: 59.0683 mm, which 4 of the 10 cells of 4 m² get.
    const auto linha = tabelaDeSessenta()[25];
    const double Ir = 59.068252;
    EXPECT_NEAR(linha.Ir, Ir, 1e-5);
    EXPECT_NEAR(linha.ADobs, 40, 1e-12);
    EXPECT_NEAR(linha.volumeÚtil, (4 * 50 + 4 * Ir) * 0.004, 1e-6);
    EXPECT_NEAR(linha.excesso, 4 * (100 - Ir) * 0.004, 1e-6);
    EXPECT_NEAR(linha.déficit, (4 * (Ir - 50) + 2 * Ir) * 0.004, 1e-6);
    EXPECT_NEAR(linha.aplicação, 69.8037, 1e-4);     // of 2.5 m³
    EXPECT_NEAR(linha.armazenamento, 73.8591, 1e-4); // of 59.0683 mm on 40 m²
    // (59.0683 - 60) / 37.4166 is -0.0249, where half the normal distribution and 0.0099 more lie above.
    EXPECT_NEAR(linha.ADest, 0.50993, 2e-5);
}

TEST(AnalisarFaixa, ÚtilMaisExcessoÉTodaAÁguaDaFaixaEÚtilMaisDéficitTodaALâminaRequerida) {
    std::mt19937 sorteio{5};
    std::uniform_real_distribution<double> lâmina{2, 40};
    Matriz campo{30, 12};
    double soma = 0;
    for (std::size_t a = 0; a < 30; ++a)
        for (auto& d : campo.linha(a)) {
            d = lâmina(sorteio);
            if (a >= 4 && a <= 24) soma += d;
        }
    const double células = 21 * 12, A = 2.25;
    for (const auto& linha : analisarFaixa(campo, A, 5, 25, soma / células, 50)) {
        EXPECT_NEAR(linha.volumeÚtil + linha.excesso, soma * A / 1000, 1e-9);
        EXPECT_NEAR(linha.volumeÚtil + linha.déficit, linha.Ir * células * A / 1000, 1e-9);
        EXPECT_NEAR(linha.aplicação, 100 * linha.volumeÚtil / 50, 1e-9);
        EXPECT_NEAR(linha.armazenamento, 100 * linha.volumeÚtil / (linha.Ir / 1000 * células * A), 1e-9);
    }
}

TEST(AnalisarFaixa, CampoUniformeÉEstouro) {
    EXPECT_EQ(erroDe([] {
                  analisarFaixa(lâminas({{12.5, 12.5}, {12.5, 12.5}}), 4, 1, 2, 12.5, 1);
              }),
              estouro);
}

TEST(AnalisarFaixa, MédiaNegativaÉArgumentoInválido) {
    // Mean -10, deviation 20: already the first factor is below 0, and 1 - 1.005 is no base of a power.
    EXPECT_EQ(erroDe([] { analisarFaixa(lâminas({{-30, 10}}), 4, 1, 1, -10, 1); }), argumentoInválido);
}

TEST(AnalisarFaixa, MédiaZeroÉDivisãoPorZero) {
    EXPECT_EQ(erroDe([] { analisarFaixa(lâminas({{-5, 5}}), 4, 1, 1, 0, 1); }), divisãoPorZero);
}

TEST(CaudaNormal, DeZeroParaCimaÉADistribuiçãoNormalA1EMenos7) {
    // Upper tails from a table of the normal distribution.
    EXPECT_NEAR(caudaNormal(0), 0.5, 1e-7);
    EXPECT_NEAR(caudaNormal(0.5), 0.3085375387, 1e-7);
    EXPECT_NEAR(caudaNormal(1), 0.1586552539, 1e-7);
    EXPECT_NEAR(caudaNormal(1.96), 0.0249978951, 1e-7);
    EXPECT_NEAR(caudaNormal(2), 0.0227501319, 1e-7);
    EXPECT_NEAR(caudaNormal(3), 0.0013498980, 1e-7);
    EXPECT_NEAR(caudaNormal(4), 0.0000316712, 1e-7);
    for (double z = 0; z < 6; z += 0.01)
        EXPECT_NEAR(caudaNormal(z), 0.5 * std::erfc(z / std::sqrt(2.0)), 1e-7) << z;
}

TEST(CaudaNormal, AbaixoDeZeroÉOMesmoPolinômioAtéOTetoDe1) {
    // At -1, t is 1 / 0.7683581 = 1.301477 and the density 0.2419707: 0.842283, where the tail is 0.841345.
    EXPECT_NEAR(caudaNormal(-1), 0.842283, 1e-6);
    EXPECT_EQ(caudaNormal(-2), 1);   // 1.0151
    EXPECT_EQ(caudaNormal(-4.3), 1); // t is 256, the polynomial in the millions
}

TEST(CaudaNormal, AbaixoDeMenos4_317TÉNegativoEOResultado1) {
    for (const double z : {-4.32, -5.0, -8.0, -30.0}) EXPECT_EQ(caudaNormal(z), 1) << z;
}

TEST(CaudaNormal, ODenominadorZeroÉDivisãoPorZero) {
    EXPECT_EQ(erroDe([] { caudaNormal(-1 / 0.2316419); }), divisãoPorZero);
}

/// Candidates of 49, 48 ... 1 mm.
TabelaDeEficiências descendo() {
    TabelaDeEficiências tabela;
    double Ir = 50;
    for (auto& linha : tabela) linha.Ir = Ir -= 1;
    return tabela;
}

TEST(PrimeiraLâminaMostrada, EntreDuasCandidatasÉADebaixo) {
    EXPECT_EQ(descendo()[primeiraLâminaMostrada(descendo(), 30.5)].Ir, 30);
    EXPECT_EQ(descendo()[primeiraLâminaMostrada(descendo(), 48.1)].Ir, 48);
    EXPECT_EQ(descendo()[primeiraLâminaMostrada(descendo(), 1.5)].Ir, 1);
}

TEST(PrimeiraLâminaMostrada, IgualAUmaCandidataÉElaMesma) {
    EXPECT_EQ(primeiraLâminaMostrada(descendo(), 49), 0u);
    EXPECT_EQ(descendo()[primeiraLâminaMostrada(descendo(), 30)].Ir, 30);
    EXPECT_EQ(descendo()[primeiraLâminaMostrada(descendo(), 1)].Ir, 1);
}

TEST(PrimeiraLâminaMostrada, AcimaDeTodasMostraTodasEAbaixoNenhuma) {
    EXPECT_EQ(primeiraLâminaMostrada(descendo(), 49.5), 0u);
    EXPECT_EQ(primeiraLâminaMostrada(descendo(), 0.5), lâminasRequeridas);
}

} // namespace
} // namespace varenta::teste
