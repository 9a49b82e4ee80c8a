#include "uniformidade/faixa.h"

#include "apoio/aspersores_de_teste.h"
#include "apoio/atalhos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace varenta::teste {
namespace {

using Lâminas = std::vector<double>;

/// The sprinkler of 3 m on points 2 m apart: 4 points across, of which it waters both inner ones (10 mm/h)
/// where it stands 1 m before or past a row. At 40 m/h a step of 2 m applies 0.5 mm. Positions 1 to 5 of the
/// cart, 9 rows from y = -3 m on.
DadosDaFaixa deTrêsMetros(double E, double Tpi = 0, float Tpf = 0) {
    return {.simulação = plano(3, 2, 40), .Cc = 10, .E = E, .W0 = 3, .Tpi = Tpi, .Tpf = Tpf};
}

/// The typical sprinkler at a wind, small enough to be worked cell by cell.
DadosDaFaixa aoVentoComParadas(float S, double Cc, double E) {
    return {.simulação = aoVento(típico(12.3, S)),
            .Cc = Cc,
            .E = E,
            .W0 = 7.5 * static_cast<double>(S),
            .Tpi = 0.4,
            .Tpf = 0.7F};
}

Lâminas linha(const Faixa& faixa, std::size_t a) {
    const auto valores = faixa.lâminas.linha(a - 1);
    return {valores.begin(), valores.end()};
}

Lâminas coluna(const Faixa& faixa, std::size_t P) {
    Lâminas valores;
    for (std::size_t a = 1; a <= faixa.lâminas.linhas(); ++a) valores.push_back(linha(faixa, a)[P - 1]);
    return valores;
}

/// The strip built cell by cell, loop by loop: the field from its end, turned round
/// afterwards, each row overlapped from the lane to the right and then to the left. Indices from 1.
struct FaixaLiteral {
    std::vector<Lâminas> faixa;
    Lâminas y, média;

    explicit FaixaLiteral(const DadosDaFaixa& d) {
        const double s = d.simulação.S;
        const auto Nn = static_cast<std::size_t>(2 * (d.W0 + 0.5 * s) / s), N = Nn / 2;
        const auto P = static_cast<std::size_t>(std::floor(d.Cc / s)), M = Nn + P;
        const auto n = static_cast<std::size_t>(d.E / s);
        const double W1 = (static_cast<double>(N) - 0.5) * s;
        const auto footprint = pegadaCélulaPorCélula(d.simulação, Nn);

        std::vector<Lâminas> campo(M + 1, Lâminas(Nn + 1)), campoInvertido = campo;
        for (std::size_t p = 1; p <= P; ++p) {
            double w = s / d.simulação.V;
            if (p == 1) w = static_cast<double>(d.Tpf);
            if (p == P) w = d.Tpi;
            for (std::size_t k = 1; k <= Nn; ++k)
                for (std::size_t i = 1; i <= Nn; ++i)
                    campo[p - 1 + i][k] += w * footprint.linha(i - 1)[k - 1];
        }
        for (std::size_t a = 1; a <= M; ++a) campoInvertido[M + 1 - a] = campo[a];

        faixa.assign(M + 1, Lâminas(n + 1));
        for (std::size_t a = 1; a <= M; ++a) {
            y.push_back(static_cast<double>(a - 1) * s - W1);
            double S = 0, c = 0;
            std::size_t Pn = 1;
            for (std::size_t j = N + 1; j <= Nn; ++j) {
                faixa[a][Pn] += campoInvertido[a][j];
                Pn = Pn + 1 > n ? 1 : Pn + 1;
            }
            Pn = n;
            for (std::size_t j = N; j >= 1; --j) {
                faixa[a][Pn] += campoInvertido[a][j];
                S += faixa[a][Pn];
                c += 1;
                Pn = Pn == 1 ? n : Pn - 1;
            }
            média.push_back(S / c);
        }
    }
};

TEST(Faixa, FeitaÀMãoSemParadasAPrimeiraEAÚltimaPosiçãoDoCarroNadaAplicam) {
    // Only the positions 2, 3 and 4 apply: each wets two rows, so 1, 2, 2 and 1 steps of 0.5 mm.
    const auto faixa = calcularFaixaIrrigada(deTrêsMetros(4));
    EXPECT_EQ(faixa.N, 2);
    EXPECT_EQ(faixa.y, (Lâminas{-3, -1, 1, 3, 5, 7, 9, 11, 13}));
    // 4 m make two positions: the inner point of the right side falls on the first, that of the left side on
    // the last.
    const Lâminas lâminas{0, 0, 0, 0.5, 1, 1, 0.5, 0, 0};
    EXPECT_EQ(coluna(faixa, 1), lâminas);
    EXPECT_EQ(coluna(faixa, 2), lâminas);
    EXPECT_EQ(faixa.média, lâminas);
    EXPECT_EQ(faixa.contagem.pontos, 16u);
}

TEST(Faixa, FeitaÀMãoComParadasADoInícioFicaNoInícioEADoFimNoFim) {
    // 0.2 h at the start apply 2 mm there, 0.5 h at the end 5 mm, each on two rows.
    const auto faixa = calcularFaixaIrrigada(deTrêsMetros(4, 0.2, 0.5F));
    const Lâminas lâminas{0, 0, 2, 2.5, 1, 1, 5.5, 5, 0};
    EXPECT_EQ(coluna(faixa, 1), lâminas);
    EXPECT_EQ(coluna(faixa, 2), lâminas);
    EXPECT_EQ(faixa.média, lâminas);
}

TEST(Faixa, AMédiaDaCurvaContaCadaPosiçãoComoEstavaACadaVisitaDoLadoEsquerdo) {
    // 5 m reach on 6 points from -5 to 5 m, of which the inner four are wetted. All fall on one position:
    // from the right v + v + 0, from the left 3 v, 4 v and 4 v, whose mean is 11 / 3 v.
    const DadosDaFaixa dados{.simulação = plano(5, 2, 40), .Cc = 12, .E = 2, .W0 = 5, .Tpi = 0, .Tpf = 0};
    const auto faixa = calcularFaixaIrrigada(dados);
    // The positions 2 to 5 wet four rows each: 1, 2, 3, 4, 3, 2, 1 steps of 0.5 mm.
    const Lâminas v{0, 0, 0, 0.5, 1, 1.5, 2, 1.5, 1, 0.5, 0, 0};
    ASSERT_EQ(faixa.média.size(), v.size());
    for (std::size_t a = 0; a < v.size(); ++a) {
        EXPECT_EQ(linha(faixa, a + 1), Lâminas{4 * v[a]}) << a;
        EXPECT_DOUBLE_EQ(faixa.média[a], 11 * v[a] / 3) << a;
    }
}

TEST(Faixa, SãoOsLaçosCélulaPorCélulaBitPorBit) {
    for (const float S : {1.5F, 2.0F, 3.0F})
        for (const double E : {6.0, 12.0, 18.0, 30.0}) {
            const auto dados = aoVentoComParadas(S, 47.3, E);
            const auto faixa = calcularFaixaIrrigada(dados);
            const FaixaLiteral literal{dados};
            ASSERT_EQ(faixa.lâminas.linhas() + 1, literal.faixa.size());
            for (std::size_t a = 1; a < literal.faixa.size(); ++a) {
                const auto& esperada = literal.faixa[a];
                EXPECT_EQ(linha(faixa, a), Lâminas(esperada.begin() + 1, esperada.end())) << S << ' ' << E;
            }
            EXPECT_EQ(faixa.y, literal.y);
            EXPECT_EQ(faixa.média, literal.média);
        }
}

TEST(Faixa, AsLinhasDasPontasRecebemSóParteDaPegada) {
    // Without an overlap (E as wide as the whole footprint) a row shows the field: its right half, then its
    // left half, which belongs to the next lane. The footprint is cut off where it is still wet.
    auto dados = aoVentoComParadas(1.5F, 47.3, 12);
    dados.W0 = 5.25;
    const std::size_t Nn = 8, N = 4;
    const auto pegada = pegadaCélulaPorCélula(dados.simulação, Nn);
    const auto faixa = calcularFaixaIrrigada(dados);
    const auto esperada = [&](std::size_t i, double horas) {
        Lâminas valores(Nn);
        for (std::size_t k = 0; k < N; ++k) {
            valores[k] = horas * pegada.linha(i)[N + k];
            valores[Nn - N + k] = horas * pegada.linha(i)[k];
        }
        return valores;
    };
    // No position reaches the first row; the start's stop reaches the second one with the footprint's last
    // row, the end's stop the last one with its first.
    const auto segunda = linha(faixa, 2), última = linha(faixa, faixa.lâminas.linhas());
    EXPECT_EQ(linha(faixa, 1), Lâminas(Nn));
    EXPECT_EQ(segunda, esperada(Nn - 1, dados.Tpi));
    EXPECT_EQ(última, esperada(0, static_cast<double>(dados.Tpf)));
    EXPECT_GT(*std::ranges::max_element(segunda), 0);
    EXPECT_GT(*std::ranges::max_element(última), 0);
}

TEST(Faixa, AParadaNoFimÉDePrecisãoSimplesEANoInícioDupla) {
    const auto faixa = calcularFaixaIrrigada(deTrêsMetros(4, 0.1, 0.1F));
    EXPECT_EQ(coluna(faixa, 1)[2], 0.1 * 10);
    EXPECT_EQ(coluna(faixa, 1)[7], static_cast<double>(0.1F) * 10);
    EXPECT_NE(coluna(faixa, 1)[2], coluna(faixa, 1)[7]);
}

/// All water on the field, m³.
double volume(const Faixa& faixa) {
    const auto valores = faixa.lâminas.valores();
    return std::accumulate(valores.begin(), valores.end(), 0.0) / 1000 * faixa.s * faixa.s;
}

TEST(Faixa, OVolumeTotalÉVazãoVezesTempoDentroDe3PorCentoParaTodoEspaçamentoEParada) {
    // The flow of a profile that waters 6 mm/h at the sprinkler and 0.75 at the reach, along a straight line
    // but for its flat ends: the volume of that solid over the circle.
    const double R = 43.1;
    double vazão = 0;
    for (double r = 0.005; r < R; r += 0.01) {
        const double lugar = std::clamp(r / R / 0.05 + 0.5, 0.0, 21.0);
        vazão += 2 * std::acos(-1.0) * r * 0.01 * (6 - 0.25 * lugar) / 1000;
    }
    for (const double E : {42.0, 60.0, 84.0})
        for (const double paradas : {0.0, 0.5}) {
            const DadosDaFaixa dados{.simulação = típico(R, 2),
                                     .Cc = 300,
                                     .E = E,
                                     .W0 = 43,
                                     .Tpi = paradas,
                                     .Tpf = static_cast<float>(paradas)};
            const double horas = 300.0 / 50 + 2 * paradas;
            EXPECT_NEAR(volume(calcularFaixaIrrigada(dados)) / (vazão * horas), 1, 0.03) << E << paradas;
        }
}

TEST(Faixa, OEspaçamentoNãoMudaOVolume) {
    auto dados = aoVentoComParadas(1.5F, 47.3, 6);
    const double estreito = volume(calcularFaixaIrrigada(dados));
    dados.E = 30;
    EXPECT_NEAR(volume(calcularFaixaIrrigada(dados)) / estreito, 1, 1e-12);
}

TEST(Faixa, SemPosiçãoEntreOsCarreadoresÉÍndiceFora) {
    EXPECT_EQ(erroDe([] { calcularFaixaIrrigada(deTrêsMetros(0)); }), índiceForaDosLimites);
}

TEST(Faixa, MaiorQueQualquerTabelaÉRecusada) {
    auto comprida = deTrêsMetros(4), larga = comprida;
    comprida.Cc = 1e8;
    larga.E = 1e8;
    EXPECT_EQ(erroDe([&] { calcularFaixaIrrigada(comprida); }), memóriaInsuficiente);
    EXPECT_EQ(erroDe([&] { calcularFaixaIrrigada(larga); }), memóriaInsuficiente);
}

void exigirBandas(const BandasDaFaixa& bandas, int início, int fimDoInício, int inícioDoFim, int fim) {
    EXPECT_EQ(bandas.início, início);
    EXPECT_EQ(bandas.fimDoInício, fimDoInício);
    EXPECT_EQ(bandas.inícioDoFim, inícioDoFim);
    EXPECT_EQ(bandas.fim, fim);
}

TEST(BandasDaFaixa, ContamAsLinhasAPartirDaOrigem) {
    // Rows of 2 m, the cart's start between 10 and 11; in rows R is 6.15, Cc 20, Cc - R 13.85.
    const auto bandas = [](double de, double até) { return bandasDaFaixa(10, 2, 12.3, 40, de, até); };
    exigirBandas(bandas(0, 40), 11, 16, 25, 30);      // from start to end of the cart's way
    exigirBandas(bandas(-12.3, 52.3), 5, 16, 25, 36); // a reach beyond both: 6.15 and 26.15 rows
    exigirBandas(bandas(-5, 43), 8, 16, 25, 32);      // 2.5 rows round to 3, 21.5 to 22
    exigirBandas(bandas(-4.9, 42.9), 9, 16, 25, 31);  // 2.45 to 2, 21.45 to 21
}

TEST(BandasDaFaixa, IgualAoRaioPodePassarUmaLinhaDoCampo) {
    // 5.05 m reach on 6 points, 13.96 m of lane: 6 + 6 rows, and 9.505 rows past the third round to 10.
    EXPECT_EQ(bandasDaFaixa(3, 2, 5.05, 13.96, 0, 13.96 + 5.05).fim, 13);
    const DadosDaFaixa dados{
        .simulação = plano(5.05, 2, 40), .Cc = 13.96, .E = 4, .W0 = 5, .Tpi = 0, .Tpf = 0};
    EXPECT_EQ(calcularFaixaIrrigada(dados).lâminas.linhas(), 12u);
}

/// A strip with the depths given, row by row.
Faixa faixaDe(const std::vector<Lâminas>& linhas) {
    Faixa faixa{0, 1, Matriz{linhas.size(), linhas.front().size()}, {}, {}, {}};
    for (std::size_t a = 0; a < linhas.size(); ++a)
        std::ranges::copy(linhas[a], faixa.lâminas.linha(a).begin());
    return faixa;
}

TEST(EstatísticasDaBanda, ContamTodasAsCélulasDeAmbasAsLinhasETudoEntreElas) {
    // Rows 2 to 4: 10 20 30 20 10 30 make the mean 20; a quarter of 6 is 1.5, so the two smallest: 10 and 10.
    const auto faixa = faixaDe({{90, 90}, {10, 20}, {30, 20}, {10, 30}, {90, 90}});
    const auto valores = estatísticasDaBanda(faixa, 2, 4);
    EXPECT_EQ(valores.media, 20);
    EXPECT_EQ(valores.UD, 50);
    EXPECT_NEAR(valores.CUC, 100.0 * 2 / 3, 1e-12); // deviations of 40 over 120
}

TEST(EstatísticasDaBanda, UmaLinhaSóEUniformeDáCemECem) {
    const auto valores = estatísticasDaBanda(faixaDe({{90, 10}, {12.5, 12.5}}), 2, 2);
    EXPECT_EQ(valores.media, 12.5);
    EXPECT_EQ(valores.UD, 100);
    EXPECT_EQ(valores.CUC, 100);
}

TEST(EstatísticasDaBanda, PoucasCélulasNãoTêmCasoEspecial) {
    // A quarter of one cell is no cell: the mean of none is 0 / 0.
    const auto faixa = faixaDe({{5}, {3}});
    EXPECT_EQ(erroDe([&] { estatísticasDaBanda(faixa, 1, 1); }), estouro);
    EXPECT_EQ(estatísticasDaBanda(faixa, 1, 2).UD, 75); // two cells, of which one: 3 of the mean 4
}

TEST(EstatísticasDaBanda, SóZerosÉEstouroEForaDoCampoÉÍndiceFora) {
    const auto faixa = faixaDe({{0, 0}, {0, 0}, {1, 1}});
    EXPECT_EQ(erroDe([&] { estatísticasDaBanda(faixa, 1, 2); }), estouro);
    EXPECT_EQ(erroDe([&] { estatísticasDaBanda(faixa, 3, 4); }), índiceForaDosLimites);
    EXPECT_EQ(erroDe([&] { estatísticasDaBanda(faixa, 0, 1); }), índiceForaDosLimites);
}

TEST(EstatísticasDaBanda, UmaParadaLongaFazUmaCristaNoFimComCUCBaixoEPoucoEfeitoNoTodo) {
    auto dados =
        DadosDaFaixa{.simulação = típico(12.3, 1.5F), .Cc = 990, .E = 18, .W0 = 12.75, .Tpi = 0, .Tpf = 0};
    const auto bandas = bandasDaFaixa(9, 1.5, 12.3, 990, 0, 990);
    const auto sem = calcularFaixaIrrigada(dados);
    dados.Tpf = 1;
    const auto com = calcularFaixaIrrigada(dados);
    const auto crista = std::ranges::max_element(com.média);
    EXPECT_GT(*crista, 2 * *std::ranges::max_element(sem.média));
    EXPECT_GE(crista - com.média.begin(), bandas.inícioDoFim);
    const auto queda = [&](int b0, int b1) {
        return estatísticasDaBanda(sem, b0, b1).CUC - estatísticasDaBanda(com, b0, b1).CUC;
    };
    const double noFim = queda(bandas.inícioDoFim, bandas.fim), noTodo = queda(bandas.início, bandas.fim);
    EXPECT_GT(noFim, 5);
    EXPECT_LT(std::fabs(noTodo), noFim / 2);
}

TEST(AmpliarFaixa, AsBordasDoMapaSãoAsBordasDoCampoEEntreElasÉLinear) {
    // 3 x 2 cells on a plane: rows 0, 249.5 and 499 of the map are the field's own.
    Matriz campo{3, 2};
    for (std::size_t l = 0; l < 3; ++l)
        for (std::size_t c = 0; c < 2; ++c)
            campo.linha(l)[c] = 4.99 * static_cast<double>(l) + 29.9 * static_cast<double>(c);
    const auto mapa = ampliarFaixa(campo);
    EXPECT_EQ(mapa.linhas(), 500u);
    EXPECT_EQ(mapa.colunas(), 300u);
    for (std::size_t l = 0; l < 500; ++l)
        for (std::size_t c = 0; c < 300; ++c)
            ASSERT_NEAR(mapa.linha(l)[c], 0.02 * static_cast<double>(l) + 0.1 * static_cast<double>(c), 1e-9);
}

TEST(AmpliarFaixa, NãoPassaDosValoresDoCampoNemPerdeOMaior) {
    Matriz campo{2, 3};
    std::ranges::copy(Lâminas{1, 2, 9}, campo.linha(0).begin());
    std::ranges::copy(Lâminas{4, 3, 0}, campo.linha(1).begin());
    const auto mapa = ampliarFaixa(campo);
    EXPECT_NEAR(*std::ranges::max_element(mapa.valores()), 9, 1e-12);
    EXPECT_NEAR(*std::ranges::min_element(mapa.valores()), 0, 1e-12);
}

TEST(AmpliarFaixa, UmaSóLinhaOuColunaSeRepete) {
    Matriz coluna{2, 1}, linha{1, 2};
    std::ranges::copy(Lâminas{1, 3}, linha.linha(0).begin());
    coluna.linha(1)[0] = 499;
    const auto daLinha = ampliarFaixa(linha), daColuna = ampliarFaixa(coluna);
    for (const std::size_t l : std::vector<std::size_t>{0, 250, 499}) {
        EXPECT_EQ(daLinha.linha(l)[0], 1);
        EXPECT_EQ(daLinha.linha(l)[299], 3);
        EXPECT_NEAR(daColuna.linha(l)[0], static_cast<double>(l), 1e-9);
        EXPECT_EQ(daColuna.linha(l)[0], daColuna.linha(l)[299]);
    }
}

} // namespace
} // namespace varenta::teste
