#include "ajuste/comparar.h"

#include "ajuste/form_ajuste.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_migraf.h"
#include "apoio/ajuste_feito_a_mao.h"
#include "apoio/pasta_temporaria.h"
#include "comum/escala_de_cores.h"

#include <algorithm>
#include <tuple>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

class ComparaçãoDoAjuste : public testing::Test {
  protected:
    void SetUp() override { abrirFormAjvenOu(Método::malha); }

    /// Presses a button that only a fit enables.
    static void comparar(std::string_view botão) {
        std::get<Botao*>(form_AjvenOu.achar(botão, std::nullopt)->controle)->habilitado = true;
        atos::clicar(alvo(form_AjvenOu, botão));
    }
};

// Without wind the parameters have no effect, and each of the four collectors stands within the reach, at
// 4.24 m: it gets 10 mm/h. 10 mm/h on four cells of 36 m² make 1.44 m³/h.

/// The one map that a drawing consists of.
Mosaico mapaDe(const Desenho& desenho) {
    EXPECT_EQ(desenho.traços.size(), 1u);
    return std::get<Mosaico>(desenho.traços.at(0));
}

TEST_F(ComparaçãoDoAjuste, AMalhaComparaAsPrecipitaçõesNaVazãoDoAspersor) {
    // They catch 5 + 7 + 8 + 6 = 26 mm/h, 0.936 m³/h, which is the flow: the factor is 1. The deviations are
    // 5, 3, 2 and 4: sqrt(54 / 4).
    malhaDeQuatro(1, {"5", "7", "8", "6"});
    form_graf(1)->Label16.texto = "Desvio Médio Geral: 1.234 mm/h";
    comparar("Command8");
    EXPECT_EQ(caderno, Textos{});
    EXPECT_TRUE(form_graf(1).visivel);
    auto& f = *form_graf(1).operator->();
    EXPECT_EQ(f.Caption, "Ensaio 1: Precipitações Observadas x Estimadas");
    EXPECT_EQ(f.Label16.texto, "Desvio Médio Geral: 1.234 mm/h");
    EXPECT_EQ(f.Label17.texto, "Desvio Médio no Ensaio 1: 3.674 mm/h");
    EXPECT_EQ(f.Label13.texto, "Maior Precipitação: 8.000 mm/h");
    EXPECT_EQ(f.Label15.texto, "Maior Precipitação: 10.000 mm/h");
    EXPECT_EQ(f.Label14.texto, "11.0 mm/h");
    EXPECT_EQ(f.Label11.texto, "Velocidade do Vento: 0.0 m/s");
    EXPECT_EQ(f.Label12.texto, "Direção do Vento: 45");
    EXPECT_EQ(f.ensaioComparado, (Textos{"Espaçamento entre Coletores: 6.0 m", "Coletores: 2 x 2"}));
    EXPECT_EQ(textos(f.Label3), (Textos{"-3.0", "-2.0", "-1.0", "0.0", "1.0", "2.0", "3.0"}));
    EXPECT_EQ(textos(f.Label6), textos(f.Label3));
}

TEST_F(ComparaçãoDoAjuste, OsDoisMapasTêmUmaSóEscalaECadaUmOSeuLugar) {
    malhaDeQuatro(1, {"5", "7", "8", "6"});
    comparar("Command8");
    const auto observadas = mapaDe(form_graf(1)->Picture1), estimadas = mapaDe(form_graf(1)->Picture2);
    ASSERT_EQ(observadas.cores.size(), 40'000u);
    ASSERT_EQ(estimadas.cores.size(), 40'000u);
    const auto primeira = observadas.caixa(0);
    EXPECT_EQ(primeira.x1, 960);
    EXPECT_EQ(primeira.y1, 525);
    // 5 of 11: 255 - 5 x 255 / 11 = 139.09.
    EXPECT_EQ(primeira.cor, corDe(139, 139, 255));
    const auto outra = estimadas.caixa(0);
    EXPECT_EQ(outra.x1, 5470);
    EXPECT_EQ(outra.y1, 525);
    // 10 of 11: 23.18.
    EXPECT_EQ(outra.cor, corDe(23, 23, 255));
}

TEST_F(ComparaçãoDoAjuste, AsLeiturasSeMultiplicamAntesDaComparação) {
    // 13 mm/h in all are half of the flow: twice each.
    malhaDeQuatro(1, {"2.5", "3.5", "4", "3"});
    comparar("Command8");
    EXPECT_EQ(form_graf(1)->Label17.texto, "Desvio Médio no Ensaio 1: 3.674 mm/h");
}

TEST_F(ComparaçãoDoAjuste, VolumeETempoDãoAMesmaPrecipitação) {
    // 60 min, 8 cm: pi 64 / 4 = 50.265 cm², 1 mm/h is 5.0265 mL.
    auto& f = *form_E(1).operator->();
    malhaDeQuatro(1, {"25.1327", "35.1858", "40.2124", "30.1593"});
    f.Option1.marcada = false;
    f.Option3.marcada = true;
    f.Text6.texto = "60";
    f.Text7.texto = "8";
    comparar("Command8");
    EXPECT_EQ(form_graf(1)->Label17.texto, "Desvio Médio no Ensaio 1: 3.674 mm/h");
}

TEST_F(ComparaçãoDoAjuste, OsParâmetrosVoltamDasLegendasVezesOAlcance) {
    // A wind of 1 m/s from ahead and A/R of 0.25 carry all by 1.5 m: the two collectors behind get the water
    // of (-1.5, 3), those ahead that of (4.5, 3), at 5.41 m still within the reach. Everything has 10 mm/h.
    malhaDeQuatro(1, {"5", "7", "8", "6"});
    definirValor(form_E(1)->HScroll2, 10);
    definirValor(form_E(1)->HScroll1, 0);
    form_AjvenOu->Label18.texto = "0.2500";
    comparar("Command8");
    EXPECT_EQ(form_graf(1)->Label15.texto, "Maior Precipitação: 10.000 mm/h");
    EXPECT_EQ(form_graf(1)->Label17.texto, "Desvio Médio no Ensaio 1: 3.674 mm/h");
    // Carried by 3 m the two ahead would get that of (6, 3), beyond the reach: 5 and 7 deviate by themselves,
    // 8 and 6 by 2 and 4: sqrt(94 / 4).
    form_AjvenOu->Label18.texto = "0.5000";
    comparar("Command8");
    EXPECT_EQ(form_graf(1)->Label17.texto, "Desvio Médio no Ensaio 1: 4.848 mm/h");
}

TEST_F(ComparaçãoDoAjuste, AListaMostraOEstimadoESeSalva) {
    malhaDeQuatro(2, {"5", "7", "8", "6"});
    form_E(2)->Label20.texto = "ASPERSOR: Meu";
    form_E(2)->Label19.texto = "Bocais: 20 x 7 mm";
    form_E(2)->Label18.texto = "Pressão: 45 m.c.a.";
    comparar("Command9");
    EXPECT_FALSE(form_graf(2)->Command2.visivel);
    EXPECT_FALSE(form_graf(2)->Command1.visivel);
    atos::clicar(alvo(form_graf(2), "Command3"));
    auto& f = *form_ajuste1.operator->();
    EXPECT_TRUE(form_ajuste1.visivel);
    EXPECT_EQ(f.Caption, "Dados de Precipitação Estimados no Ensaio 2");
    EXPECT_EQ(f.Frame4.texto, "Dados Estimados - Ensaio 2");
    EXPECT_EQ(f.Label20.texto, "ASPERSOR: Meu");
    EXPECT_EQ(f.Label19.texto, "Bocais: 20 x 7 mm");
    EXPECT_EQ(f.Label18.texto, "Pressão: 45 m.c.a.");
    EXPECT_EQ(f.Label17.texto, "0.0");
    EXPECT_EQ(f.Label2.texto, "45");
    EXPECT_EQ(f.flex_A.célula(0, 1), " Co1 = -3.0 m ");
    EXPECT_EQ(f.flex_A.célula(2, 0), "Li2 = -3.0 m");
    EXPECT_EQ(f.flex_A.célula(1, 1), "10.000");

    const PastaTemporaria pasta;
    arquivos = {pasta.caminho("lista.TXT"), std::nullopt, pasta.caminho("nenhuma/lista.TXT")};
    for (int vez = 0; vez < 3; ++vez) atos::clicar(alvo(form_ajuste1, "Command1"));
    EXPECT_EQ(pasta.bytes("lista.TXT"), "10.000\t10.000\r\n10.000\t10.000\r\n");
    EXPECT_EQ(caderno.front(), "salvar: Text files|*.TXT|All files|*.* TXT");
    EXPECT_EQ(caderno.back(), "mensagem: O arquivo não pôde ser salvo: o arquivo ou a pasta não existe!");
    atos::clicar(alvo(form_ajuste1, "Command2"));
    EXPECT_FALSE(form_ajuste1.carregada());
}

TEST_F(ComparaçãoDoAjuste, AListaNãoPrecisaDasLeituras) {
    malhaDeQuatro(1, {"5", "7", "8", "6"});
    comparar("Command8");
    form_E(1).mostrar();
    atos::clicar(alvo(form_E(1), "Command2"));
    atos::clicar(alvo(form_graf(1), "Command3"));
    EXPECT_EQ(caderno, Textos{});
    EXPECT_EQ(form_ajuste1->flex_A.célula(2, 2), "10.000");
    // Nor a time that the readings would need.
    form_ajuste1.esconder();
    auto& f = *form_E(1).operator->();
    marcar(form_E(1), f.Option3);
    atos::clicar(alvo(form_graf(1), "Command3"));
    EXPECT_EQ(caderno, Textos{});
    EXPECT_TRUE(form_ajuste1.visivel);
}

TEST_F(ComparaçãoDoAjuste, SemOsNúmerosQueAsEstimativasPedemNemListaNemComparação) {
    malhaDeQuatro(1, {"5", "7", "8", "6"});
    comparar("Command8");
    form_graf(1)->Label17.texto = "como estava";
    auto& f = *form_E(1).operator->();
    const std::string contagem = "mensagem: O número de coletores do Ensaio 1 deve ser um número inteiro de "
                                 "1 a 1000!",
                      espaçamento =
                          "mensagem: O espaçamento do Ensaio 1 deve ser um número maior que 0 e até "
                          "1000 m!";
    for (const auto& [lista, texto, bom, mensagem] : {std::tuple{&f.Combo2, "x", "2", contagem},
                                                      {&f.Combo2, "0", "2", contagem},
                                                      {&f.Combo2, "1e9", "2", contagem},
                                                      {&f.Combo1, "-6", "6.0", espaçamento},
                                                      {&f.Combo1, "1e400", "6.0", espaçamento}}) {
        lista->texto = texto;
        caderno.clear();
        atos::clicar(alvo(form_graf(1), "Command3"));
        comparar("Command8");
        EXPECT_EQ(caderno, Textos(2, mensagem)) << texto;
        lista->texto = bom;
    }
    EXPECT_FALSE(form_ajuste1.visivel);
    EXPECT_EQ(form_graf(1)->Label17.texto, "como estava");
}

TEST_F(ComparaçãoDoAjuste, ALinhaDeEntradaContaSemEnter) {
    // 5 typed over the 1 that the first collector had.
    malhaDeQuatro(1, {"1", "7", "8", "6"});
    irParaCélula(planilhaDoEnsaio(*form_E(1).operator->()), 1, 1);
    form_E(1)->Text5.texto = "5";
    comparar("Command8");
    EXPECT_EQ(form_graf(1)->Label17.texto, "Desvio Médio no Ensaio 1: 3.674 mm/h");
    EXPECT_EQ(form_E(1)->flex_A.célula(1, 1), "5.000");
}

TEST_F(ComparaçãoDoAjuste, OsMapasSãoABilinearDosValoresNasSuasCores) {
    // 4 x 4 collectors of the same water: 10 mm/h at the four in the middle, none at the others, which stand
    // at 9 m and farther.
    auto& f = *form_E(1).operator->();
    f.Combo2.texto = "4";
    Erro_plan(1);
    definirValor(f.HScroll2, 0);
    preencher(f, {"1", "2", "3", "4", "5", "9", "7", "8", "6", "4", "2", "0", "1", "3", "5", "7"});
    // 67 mm/h on 36 m²: 2.412 m³/h, which leaves the readings as they are.
    form_AjvenOu->Label17.texto = "2.412";
    comparar("Command8");
    const double leituras[4][4] = {{1, 2, 3, 4}, {5, 9, 7, 8}, {6, 4, 2, 0}, {1, 3, 5, 7}};
    double estimadas[4][4] = {};
    for (int i : {1, 2})
        for (int j : {1, 2}) estimadas[i][j] = 10;
    EXPECT_EQ(form_graf(1)->Label14.texto, "11.0 mm/h");
    const auto conferir = [](const Mosaico& mapa, const double(&campo)[4][4]) {
        ASSERT_EQ(mapa.cores.size(), 40'000u);
        for (int l = 0; l < 200; ++l)
            for (int c = 0; c < 200; ++c) {
                // 199 steps over 3 cells.
                const double y = l * 3 / 199.0, x = c * 3 / 199.0;
                const int i = std::min(static_cast<int>(y), 2), j = std::min(static_cast<int>(x), 2);
                const double b = y - i, a = x - j;
                const double valor = campo[i][j] * (1 - a) * (1 - b) + campo[i][j + 1] * a * (1 - b) +
                                     campo[i + 1][j] * (1 - a) * b + campo[i + 1][j + 1] * a * b;
                // White at 0, blue at 11: red and green fall by 255 / 11 each mm/h.
                const Cor cor = mapa.cores[static_cast<std::size_t>(l * 200 + c)];
                ASSERT_NEAR(GetRed(cor), 255 - valor * 255 / 11, 0.5 + 1e-9) << l << ' ' << c;
                ASSERT_EQ(GetGreen(cor), GetRed(cor));
                ASSERT_EQ(GetBlue(cor), 255u);
            }
    };
    conferir(mapaDe(form_graf(1)->Picture1), leituras);
    conferir(mapaDe(form_graf(1)->Picture2), estimadas);
}

TEST_F(ComparaçãoDoAjuste, FecharEscondeEGuardaODesvioGeral) {
    malhaDeQuatro(1, {"5", "7", "8", "6"});
    form_graf(1)->Label16.texto = "Desvio Médio Geral: 1.234 mm/h";
    comparar("Command8");
    atos::clicar(alvo(form_graf(1), "Command4"));
    EXPECT_TRUE(form_graf(1).carregada());
    EXPECT_FALSE(form_graf(1).visivel);
    comparar("Command8");
    EXPECT_TRUE(form_graf(1).visivel);
    atos::fechar(form_graf(1));
    EXPECT_EQ(form_graf(1)->Label16.texto, "Desvio Médio Geral: 1.234 mm/h");
}

TEST_F(ComparaçãoDoAjuste, CadaTelaÉADoSeuEnsaio) {
    for (int n = 1; n <= 3; ++n) {
        const auto título = "Ensaio " + std::to_string(n) + ": Precipitações Observadas x Estimadas";
        EXPECT_EQ(form_graf(n)->Caption, título);
        EXPECT_EQ(form_MIgraf(n)->Caption, título);
        form_graf(n).mostrar();
        form_MIgraf(n).mostrar();
        atos::fechar(form_graf(n));
        atos::fechar(form_MIgraf(n));
        EXPECT_FALSE(form_graf(n).visivel) << n;
        EXPECT_FALSE(form_MIgraf(n).visivel) << n;
    }
}

TEST_F(ComparaçãoDoAjuste, VerificaOEnsaioAntes) {
    malhaDeQuatro(1, {"5", "7", "x", "10"});
    comparar("Command8");
    EXPECT_EQ(caderno, Textos{"mensagem: Insira valores numéricos na planilha do Ensaio 1!"});
    EXPECT_FALSE(form_graf(1).visivel);
}

TEST_F(ComparaçãoDoAjuste, OndeNemObservaçãoNemModeloTêmÁguaNãoSeConta) {
    // 4 x 4 collectors: the outer ones stand at 9 m and farther, beyond the reach. One of them has 1 mm/h all
    // the same, so that 27 mm/h make the flow, and five deviate: sqrt((54 + 1) / 5).
    auto& f = *form_E(1).operator->();
    f.Combo2.texto = "4";
    Erro_plan(1);
    definirValor(f.HScroll2, 0);
    preencher(f, {"1", "0", "0", "0", "0", "5", "7", "0", "0", "8", "6", "0", "0", "0", "0", "0"});
    form_AjvenOu->Label17.texto = "0.972";
    comparar("Command8");
    EXPECT_EQ(form_graf(1)->Label17.texto, "Desvio Médio no Ensaio 1: 3.317 mm/h");
}

class ComparaçãoDoAutopropelido : public ComparaçãoDoAjuste {
  protected:
    void SetUp() override {
        abrirFormAjvenOu(Método::autopropelido);
        form_AjvenOu->Label17.texto = "0.900";
    }
};

// Each position is passed in two steps of 6 m, from both of which it gets 10 mm/h for 6 / 60 h: 2 mm. Two
// positions of 1 and 1.5 mm on strips of 6 m at 60 m/h make the flow of 0.9 m³/h.

TEST_F(ComparaçãoDoAutopropelido, ComparaAsLâminasNaVazãoDoAspersor) {
    móvelDeDois(1, {"1", "1.5"});
    comparar("Command14");
    EXPECT_EQ(caderno, Textos{});
    EXPECT_TRUE(form_MIgraf(1).visivel);
    auto& f = *form_MIgraf(1).operator->();
    // sqrt((1 + 0.25) / 2).
    EXPECT_EQ(f.Label17.texto, "Desvio Médio no Ensaio 1: 0.791 mm");
    EXPECT_EQ(f.Label13.texto, "Maior Precipitação: 10.000 mm/h");
    EXPECT_EQ(f.Label20.texto, "Maior Lâmina Estimada: 2.000 mm");
    EXPECT_EQ(f.Label15.texto, "Maior Lâmina Observada: 1.500 mm");
    EXPECT_EQ(f.Label14.texto, "11.0 mm/h");
    EXPECT_EQ(mapaDe(f.Picture2).cores.size(), 40'000u);
    EXPECT_EQ(textos(f.Label5), (Textos{"-3.0", "-2.0", "-1.0", "0.0", "1.0", "2.0", "3.0"}));
}

TEST_F(ComparaçãoDoAutopropelido, OGráficoTemUmaLinhaDoEstimadoEMarcasDoObservado) {
    móvelDeDois(1, {"1", "1.5"});
    comparar("Command14");
    auto& f = *form_MIgraf(1).operator->();
    // Largest 2 mm: ticks of 0.5, top 2.5.
    EXPECT_EQ(textos(f.Label4), (Textos{"0.0", "0.5", "1.0", "1.5", "2.0", "2.5"}));
    EXPECT_EQ(f.Label3[0].texto, "-3.0");
    EXPECT_EQ(f.Label3[8].texto, "3.0");
    // 19 + 12 + 7 + 4 lines of the grid, then one of the curve and two marks.
    ASSERT_EQ(f.Picture1.traços.size(), 45u);
    const auto& curva = std::get<Linha>(f.Picture1.traços[42]);
    EXPECT_EQ(curva.cor, cores::azul);
    EXPECT_EQ(curva.x1, 68);
    EXPECT_EQ(curva.x2, 348);
    EXPECT_EQ(curva.y1, 203 - 140); // 2 of 2.5 on 175
    const auto& marca = std::get<Arco>(f.Picture1.traços[43]);
    EXPECT_NEAR(marca.cy, 203 - 70, 1e-5);
    EXPECT_TRUE(marca.preenchido);
    atos::moverMouse(alvo(form_MIgraf(1), "Picture1"), 348, 28);
    EXPECT_EQ(f.Label14d.texto, "d = 3.000 m");
    EXPECT_EQ(f.Label14I.texto, "I = 2.500 mm");
    EXPECT_EQ(form_MIgraf(1).ponteiro, Ponteiro::cruz);
    atos::moverMouse(form_MIgraf(1));
    EXPECT_EQ(form_MIgraf(1).ponteiro, Ponteiro::padrão);
}

TEST_F(ComparaçãoDoAutopropelido, LâminasPequenasDemaisParaOEixoNãoDeixamUmaFiguraDeOutrosValores) {
    móvelDeDois(1, {"1", "1.5"});
    comparar("Command14");
    ASSERT_TRUE(form_MIgraf(1).visivel);
    // A tenth of the water: estimates of 0.04 mm, for which the axis has ticks of 0.0.
    for (auto& rótulo : form_AjvenOu->lblIntensidade) rótulo.texto = "0.200";
    form_AjvenOu->Label17.texto = "0.018";
    comparar("Command14");
    EXPECT_EQ(caderno, Textos{"erro: Divisão por zero"});
    auto& f = *form_MIgraf(1).operator->();
    // Factor 0.02: depths of 0.02 and 0.03, deviations of 0.02 and 0.01.
    EXPECT_EQ(f.Label17.texto, "Desvio Médio no Ensaio 1: 0.016 mm");
    EXPECT_EQ(f.Label13.texto, "Maior Precipitação: 0.200 mm/h");
    EXPECT_EQ(f.Label20.texto, "Maior Lâmina Estimada: 0.040 mm");
    EXPECT_EQ(f.Label15.texto, "Maior Lâmina Observada: 0.030 mm");
    EXPECT_EQ(f.Label14.texto, "1.0 mm/h");
    // The grid of the chart, and no curve; no map.
    EXPECT_EQ(f.Picture1.traços.size(), 42u);
    EXPECT_TRUE(f.Picture2.traços.empty());
}

TEST_F(ComparaçãoDoAutopropelido, AListaNãoPrecisaDasLeiturasMasDaVelocidadeEDoGiro) {
    móvelDeDois(1, {"1", "1.5"});
    comparar("Command14");
    auto& f = *form_MiE(1).operator->();
    form_MiE(1).mostrar();
    atos::clicar(alvo(form_MiE(1), "Command2"));
    atos::clicar(alvo(form_MIgraf(1), "Command3"));
    EXPECT_EQ(caderno, Textos{});
    EXPECT_EQ(form_MIajuste1->flex_A.célula(1, 1), "2.000");
    form_MIajuste1.esconder();
    f.Combo6.texto = "x";
    atos::clicar(alvo(form_MIgraf(1), "Command3"));
    f.Text1.texto = "0";
    atos::clicar(alvo(form_MIgraf(1), "Command3"));
    f.Combo3.texto = "0";
    atos::clicar(alvo(form_MIgraf(1), "Command3"));
    EXPECT_EQ(caderno, (Textos{"mensagem: Valor de ângulo de giro do aspersor inválido no Ensaio 1!",
                               "mensagem: Ensaio 1: a velocidade do aspersor deve estar entre 0 - 200 m/h!",
                               "mensagem: O número de coletores em cada lado do Ensaio 1 deve ser um número "
                               "inteiro de 1 a 1000!"}));
    EXPECT_FALSE(form_MIajuste1.visivel);
}

TEST_F(ComparaçãoDoAutopropelido, AMédiaDasLinhasValeComoLâminaDaPosição) {
    auto& f = *form_MiE(1).operator->();
    móvelDeDois(1, {});
    f.Combo1.texto = "2";
    MIErro_plan(1);
    preencher(f, {"0.5", "1.5", "1", "2"});
    comparar("Command14");
    EXPECT_EQ(form_MIgraf(1)->Label17.texto, "Desvio Médio no Ensaio 1: 0.791 mm");
}

TEST_F(ComparaçãoDoAutopropelido, ACunhaSecaTiraAÁguaDoAspersorQueAindaVemVindo) {
    // Turning 180 degrees the sprinkler waters only behind itself, twice as much: a position that is ahead of
    // it gets none. Each position sees it once from behind.
    móvelDeDois(1, {"1", "1.5"});
    form_MiE(1)->Combo6.texto = "180";
    comparar("Command14");
    auto& f = *form_MIgraf(1).operator->();
    EXPECT_EQ(f.Label13.texto, "Maior Precipitação: 20.000 mm/h");
    EXPECT_EQ(f.Label20.texto, "Maior Lâmina Estimada: 2.000 mm");
    // The map's rows run from the first step, ahead and dry, to the last.
    EXPECT_EQ(mapaDe(f.Picture2).cores.front(), cores::branco);
    EXPECT_NE(mapaDe(f.Picture2).cores.back(), cores::branco);
}

TEST_F(ComparaçãoDoAutopropelido, AListaMostraALâminaEAsPrecipitaçõesDeCadaPasso) {
    móvelDeDois(3, {"1", "1.5"});
    comparar("Command16");
    atos::clicar(alvo(form_MIgraf(3), "Command3"));
    auto& f = *form_MIajuste1.operator->();
    EXPECT_EQ(f.Caption, "Dados de Lâmina e Precipitação Estimados no Ensaio 3");
    EXPECT_EQ(f.Frame4.texto, "Dados Estimados - Ensaio 3");
    Textos células;
    for (int l = 0; l < f.flex_A.linhas; ++l)
        for (int c = 0; c < f.flex_A.colunas; ++c) células.push_back(f.flex_A.célula(l, c));
    EXPECT_EQ(células, (Textos{"", "Lâmina (mm)", " As1 = 3.0 m ", " As2 = -3.0 m ", //
                               "Ce1 = -3.0 m", "2.000", "10.000", "10.000",          //
                               "Cd1 = 3.0 m", "2.000", "10.000", "10.000"}));
}

} // namespace
} // namespace varenta::teste
