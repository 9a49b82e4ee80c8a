#include "aspersor/perfil.h"

#include "apoio/ensaios.h"
#include "aspersor/form1.h"

namespace varenta::teste {
namespace {

class AspersorMedido : public testing::Test {
  protected:
    void SetUp() override { abrirPerfil(); }
};

TEST_F(AspersorMedido, MostraUmSóCaminhoDeVolta) {
    EXPECT_TRUE(perfil->Command2.visivel);
    EXPECT_FALSE(perfil->Command5.visivel);
    EXPECT_FALSE(perfil->Command4.visivel);
}

TEST_F(AspersorMedido, VoltarMostraOEnsaioComoEstava) {
    clicar(perfil, "Command2");
    EXPECT_FALSE(perfil.carregada());
    EXPECT_TRUE(perfilForm.visivel);
    EXPECT_FALSE(form3.visivel);
    EXPECT_EQ(perfilForm->flexGrid.célula(2, 1), "10.00");
    EXPECT_EQ(perfilForm->Text1.texto, "4.189");
}

TEST_F(AspersorMedido, FecharDevolveOMenu) {
    clicar(perfil, "Command1");
    EXPECT_FALSE(perfil.carregada());
    EXPECT_TRUE(form3.visivel);
    abrirPerfil();
    atos::fechar(perfil);
    EXPECT_TRUE(form3.visivel);
}

TEST_F(AspersorMedido, AsEscalasDoGráficoVêmDoAlcanceEDeUmTerçoDoMaiorValor) {
    // 20 / 9 = 2.22, 10.0005 / 3 = 3.33.
    EXPECT_EQ(perfil->Label6[1].texto, "2.2");
    EXPECT_EQ(perfil->Label6[10].texto, "22.0");
    EXPECT_EQ(perfil->Label7[1].texto, "3.3");
    EXPECT_EQ(perfil->Label7[6].texto, "19.8");
}

TEST_F(AspersorMedido, OGráficoTemAMalhaDaTelaEACurvaSobreOCone) {
    const auto& traços = perfil->Picture1.traços;
    ASSERT_EQ(traços.size(), 24U + 14 + 9 + 5 + 61);
    const auto& primeira = std::get<Linha>(traços[0]);
    EXPECT_EQ(primeira.x1, 91);
    EXPECT_EQ(primeira.y1, 28);
    EXPECT_EQ(primeira.y2, 238);
    EXPECT_EQ(std::get<Linha>(traços[24]).y1, 42);
    EXPECT_EQ(std::get<Linha>(traços[24 + 14]).x1, 112);
    EXPECT_EQ(std::get<Linha>(traços[24 + 14 + 9]).y1, 63);
    // From 10.0005 mm/h at the sprinkler to 0 at 20 of 22 m.
    const auto& começo = std::get<Linha>(traços[52]);
    EXPECT_EQ(começo.x1, 77);
    EXPECT_NEAR(começo.y1, 238 - 210 * 10.0005 / 19.8, 1e-3);
    EXPECT_EQ(começo.largura, 2);
    const auto& fim = std::get<Linha>(traços.back());
    EXPECT_NEAR(fim.x2, 77 + 350 * 20.0 / 22, 1e-9);
    EXPECT_EQ(fim.y2, 238);
}

TEST_F(AspersorMedido, OMouseLêOGráficoPelasEscalas) {
    const auto mover = [](double x, double y) { atos::moverMouse(alvo(perfil, "Picture1"), x, y); };
    mover(77 + 175, 238 - 105);
    EXPECT_EQ(perfil->Label15.texto, "r = 11.000 m");
    EXPECT_EQ(perfil->Label16.texto, "i = 9.900 mm/h");
    EXPECT_EQ(perfil.ponteiro, Ponteiro::cruz);
    mover(428, 100);
    EXPECT_EQ(perfil->Label15.texto, "r = 11.000 m");
    EXPECT_EQ(perfil.ponteiro, Ponteiro::padrão);
    mover(427, 28);
    EXPECT_EQ(perfil->Label16.texto, "i = 19.800 mm/h");
    atos::moverMouse(perfil);
    EXPECT_EQ(perfil.ponteiro, Ponteiro::padrão);
}

TEST_F(AspersorMedido, UmPerfilBaixoDemaisParaAEscalaTerminaComErroDeExecução) {
    // 0.14 mm/h over 3 is a step of 0.0.
    abrirPerfilForm({{"2", "0.126"}, {"10", "0.07"}, {"18", "0.014"}});
    respostas.push_back(false);
    clicar(perfilForm, "Command8");
    EXPECT_EQ(caderno.back(), "erro: Divisão por zero: as intensidades são pequenas ou grandes demais para a "
                              "escala do gráfico");
    EXPECT_FALSE(perfil.visivel);
    EXPECT_TRUE(perfilForm.visivel);
}

TEST_F(AspersorMedido, OPerfilDoCatálogoSóPertenceAQuemTemOSeuNome) {
    perfil_cmdPerfil_Click();
    EXPECT_FALSE(form1.carregada());
    // The captions of the catalogue's own screens bear the maker's word and don't match either.
    perfil->Caption = "Características Técnicas do Aspersor KELMO-TX 15";
    perfil_cmdPerfil_Click();
    EXPECT_FALSE(form1.carregada());
    // A measured sprinkler of that name runs the catalogue's routine. No nozzle is chosen there: the share of
    // the pressure that each of two jets gets is 0 / 0.
    perfil->Caption = "Características Técnicas do Aspersor TX 20";
    EXPECT_EQ(erroDe(perfil_cmdPerfil_Click), "Estouro");
}

} // namespace
} // namespace varenta::teste
