#include "apoio/ensaios.h"
#include "aspersor/form1.h"
#include "simulacao/form7.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"

namespace varenta::teste {
namespace {

/// `Form4` on the road of a measured sprinkler.
class CentroDoMedido : public testing::Test {
  protected:
    void SetUp() override {
        abrirPerfilForm();
        digitar(perfilForm, "Text9", "20 x 7");
        digitar(perfilForm, "Text2", "45");
        digitar(perfilForm, "Text8", "24");
        digitar(perfilForm, "Text1", "4.2");
        clicar(perfilForm, "Command8");
        clicar(perfil, "Command6");
    }

    static std::vector<std::string> dados() {
        const auto& f = *form4.operator->();
        return {f.Label1.texto, f.Label2.texto, f.Label3.texto,
                f.Label4.texto, f.Label8.texto, f.Label7.texto};
    }
};

TEST_F(CentroDoMedido, CalcularEscreveOsDadosSemRepetirNomesEUnidades) {
    clicar(form7, "Command8");
    EXPECT_EQ(dados(),
              (std::vector<std::string>{"Pressão: 45 m.c.a.", "Bocais: 20 x 7 mm", "Ângulo: 1.5 graus",
                                        "Velocidade: 50 m/h", "Vazão: 4.2 m³/h", "Raio: 20.00 m"}));
    EXPECT_FALSE(form1.carregada());
}

TEST_F(CentroDoMedido, AvançarMostraOsMesmosDadosComOÂngulo) {
    clicar(form7, "Command9");
    EXPECT_EQ(dados(),
              (std::vector<std::string>{"Pressão: 45 m.c.a.", "Bocais: 20 x 7 mm", "Ângulo: 240 graus",
                                        "Velocidade: 50 m/h", "Vazão: 4.2 m³/h", "Raio: 20.00 m"}));
    EXPECT_EQ(form4.caption(), "Uniformidade no Centro da Faixa com Vento - Aspersor não Especificado");
    // 2 x 20 m: from 12 m, the whole sixes below 16 m, to 36 m.
    EXPECT_EQ(form4->cmbEspaçamento.itens, (std::vector<std::string>{"12", "18", "24", "30", "36"}));
    EXPECT_TRUE(form4->Command10.visivel);
    EXPECT_FALSE(form4->Command5.visivel);
}

TEST_F(CentroDoMedido, OTítuloTemONomeDoAspersor) {
    perfilForm->Text7.texto = "Canhão A";
    clicar(form7, "Command9");
    EXPECT_EQ(form4.caption(), "Uniformidade no Centro da Faixa com Vento - Aspersor Canhão A");
}

TEST_F(CentroDoMedido, AFaixaMostraOsBotõesDoAspersorMedido) {
    clicar(form7, "Command9");
    for (const auto* botão : {"Command8", "Command9", "Command10"}) clicar(form4, botão);
    ASSERT_TRUE(form5.visivel);
    for (const auto* botão : {&form5->Command9, &form5->Command11, &form5->Command16})
        EXPECT_TRUE(botão->visivel) << botão->texto;
    for (const auto* botão : {&form5->Command10, &form5->Command12, &form5->Command15})
        EXPECT_FALSE(botão->visivel) << botão->texto;
}

TEST_F(CentroDoMedido, VoltarEFecharSeguemOCaminho) {
    clicar(form7, "Command9");
    clicar(form4, "Command7");
    EXPECT_TRUE(form7.visivel);
    clicar(form7, "Command9");
    clicar(form4, "Command4");
    for (TelaBase* tela : {static_cast<TelaBase*>(&form4), static_cast<TelaBase*>(&form7),
                           static_cast<TelaBase*>(&perfil), static_cast<TelaBase*>(&perfilForm)})
        EXPECT_FALSE(tela->carregada()) << tela->nome();
    EXPECT_TRUE(form3.visivel);
}

} // namespace
} // namespace varenta::teste
