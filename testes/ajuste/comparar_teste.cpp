#include "ajuste/comparar.h"

#include "ajuste/form_ajuste.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_migraf.h"
#include "apoio/ajuste_feito_a_mao.h"
#include "apoio/pasta_temporaria.h"

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
    comparar("Command9");
    EXPECT_FALSE(form_graf(2)->Command2.visivel);
    EXPECT_FALSE(form_graf(2)->Command1.visivel);
    atos::clicar(alvo(form_graf(2), "Command3"));
    auto& f = *form_ajuste1.operator->();
    EXPECT_TRUE(form_ajuste1.visivel);
    EXPECT_EQ(f.Caption, "Dados de Precipitação Estimados no Ensaio 2");
    EXPECT_EQ(f.Frame4.texto, "Dados Estimados - Ensaio 2");
    EXPECT_EQ(f.Label20.texto, "ASPERSOR: Meu");
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
    preencher(f.flex_A, {"1", "0", "0", "0", "0", "5", "7", "0", "0", "8", "6", "0", "0", "0", "0", "0"});
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

TEST_F(ComparaçãoDoAutopropelido, AMédiaDasLinhasValeComoLâminaDaPosição) {
    auto& f = *form_MiE(1).operator->();
    móvelDeDois(1, {});
    f.Combo1.texto = "2";
    MIErro_plan(1);
    preencher(f.flex_A, {"0.5", "1.5", "1", "2"});
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
