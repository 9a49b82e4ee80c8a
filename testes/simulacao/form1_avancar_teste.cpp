#include "apoio/simulacao_feita_a_mao.h"

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

/// "&Avançar >>" of the sprinkler's screen.
class Avançar : public testing::Test {
  protected:
    void SetUp() override { recomeçar(); }
    void abrir(std::string_view item) { atos::clicar(alvo(form3, item)); }
    void avançar() { atos::clicar(alvo(form1, "Command3")); }
};

TEST_F(Avançar, EscreveOAspersorTX15) {
    abrir("TX15B");
    avançar();
    EXPECT_EQ(form7->Caption, "Perfil Transversal de Aplicação de Água com Vento - Aspersor KELMO-TX 15");
    EXPECT_EQ(form7->Label20.texto, "ASPERSOR: KELMO-TX15");
    EXPECT_EQ(form7->Label19.texto, "Bocais: 18 x 6 mm");
    EXPECT_EQ(form7->Label18.texto, "Pressão: 50 m.c.a.");
    EXPECT_EQ(form7->Label27.texto, "Vazão: 29.13 m³/h");
    EXPECT_EQ(form7->Label28.texto, "Raio: 42.70 m");
}

TEST_F(Avançar, EscreveOAspersorTX20SemAuxiliar) {
    abrir("TX20B");
    atos::escolher(alvo(form1, "Combo2"), "0 mm");
    avançar();
    EXPECT_EQ(form7->Caption, "Perfil Transversal de Aplicação de Água com Vento - Aspersor KELMO-TX 20");
    EXPECT_EQ(form7->Label20.texto, "ASPERSOR: KELMO-TX20");
    EXPECT_EQ(form7->Label19.texto, "Bocais: 28 x 0 mm");
}

TEST_F(Avançar, EscreveOAspersorTX30ComUmSóBocal) {
    abrir("TX30B");
    avançar();
    EXPECT_EQ(form7->Caption, "Perfil Transversal de Aplicação de Água com Vento - Aspersor KELMO-TX 30");
    EXPECT_EQ(form7->Label20.texto, "ASPERSOR: KELMO-TX30");
    EXPECT_EQ(form7->Label19.texto, "Bocal: 38 mm");
}

TEST_F(Avançar, APressãoFicaEmMcaMesmoComOutraUnidadeNaTela) {
    abrir("TX15B");
    atos::clicar(alvo(form1, "optKPA"));
    atos::rolar(alvo(form1, "hsbPressão"), 65);
    avançar();
    EXPECT_EQ(form7->Label18.texto, "Pressão: 65 m.c.a.");
    EXPECT_EQ(form1->lblPressão.texto, "637"); // 65 x 9.80665 = 637.43
}

TEST_F(Avançar, NoEmpateDe1_75OEspaçamentoÉ2_0) {
    abrir("TX15B");
    form1->lblRaioAlcance.texto = "35.00";
    avançar();
    EXPECT_EQ(form7->Combo2.texto, "2.0");
}

TEST_F(Avançar, CalculaOPerfilSemVento) {
    abrir("TX15B");
    avançar();
    EXPECT_EQ(form7->Label17.texto, "0.0");
    EXPECT_EQ(form7->Label2.texto, "0");
    // 42.70 m on points of 2 m: from 21 on, the probe at 43 m is dry, so 44 points.
    EXPECT_EQ(form7->flexA.linhas, 45);
    EXPECT_EQ(form7->flexA.célula(1, 1), "-43.00");
    EXPECT_EQ(form7->flexA.célula(44, 1), "43.00");
    EXPECT_EQ(caderno, Textos{});
}

TEST_F(Avançar, EscondeOConjuntoDeBotõesDoOutroAspersor) {
    abrir("TX15B");
    avançar();
    for (const auto* botão : {&form7->Command6, &form7->Command7, &form7->Command8, &form7->Command9})
        EXPECT_FALSE(botão->visivel);
    for (const auto* botão : {&form7->Command2, &form7->Command3, &form7->Command4, &form7->cmdUniformidade,
                              &form7->Command1, &form7->Command5, &form7->cmdSair})
        EXPECT_TRUE(botão->visivel);
}

TEST_F(Avançar, PôrOHScroll3Nos60QueJáMostraNãoDesabilitaOCaminho) {
    abrir("TX15B");
    avançar();
    EXPECT_EQ(form7->HScroll3.valor, 60);
    EXPECT_TRUE(form7->cmdUniformidade.habilitado);
    EXPECT_TRUE(form7->Command3.habilitado);
    EXPECT_EQ(form7->Label39.texto, " 60º");
}

TEST_F(Avançar, EscondeATelaDoAspersorQueFicaCarregada) {
    abrir("TX15B");
    avançar();
    EXPECT_TRUE(form7.visivel);
    EXPECT_FALSE(form1.visivel);
    EXPECT_TRUE(form1.carregada());
    EXPECT_FALSE(form3.visivel);
}

TEST_F(Avançar, UmErroNoCálculoDeixaATelaDoAspersorÀMão) {
    abrir("TX15B");
    const auto legenda = form1->lblIntensidade[5].texto;
    form1->lblIntensidade[5].texto = "?";
    avançar();
    EXPECT_EQ(caderno, Textos{"erro: Tipos incompatíveis"});
    EXPECT_TRUE(form1.visivel);
    EXPECT_FALSE(form7.visivel);
    form1->lblIntensidade[5].texto = legenda;
    avançar();
    EXPECT_TRUE(form7.visivel);
}

} // namespace
} // namespace varenta::teste
