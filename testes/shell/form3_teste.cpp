#include "shell/form3.h"

#include "ajuste/form_ajven.h"
#include "apoio/atalhos.h"
#include "apoio/plataforma_teste.h"
#include "aspersor/form1.h"
#include "comum/ajuda.h"
#include "simulacao/form7.h"

#include <gtest/gtest.h>

#include <tuple>

namespace varenta::teste {
namespace {

class TelaPrincipal : public testing::Test {
  protected:
    void SetUp() override { recomeçar(); }
};

TEST_F(TelaPrincipal, OMenuTemOsSeusItensLegendasENíveis) {
    using Item = std::tuple<std::string, std::string, int>;
    std::vector<Item> itens;
    for (const auto& e : form3.elementos())
        if (auto* const* item = std::get_if<ItemMenu*>(&e.controle))
            itens.emplace_back(e.nome, (*item)->texto, (*item)->nível);
    EXPECT_EQ(itens, (std::vector<Item>{{"Simula_Vento", "&Simulações", 0},
                                        {"Asp_KELMOb", "Aspersores KELMO", 1},
                                        {"TX15B", "TX15", 2},
                                        {"TX20B", "TX20", 2},
                                        {"TX30B", "TX30", 2},
                                        {"Ou_aspB", "Outro Aspersor", 1},
                                        {"EntDa", "&Ensaios Autopropelido", 0},
                                        {"PerfRad", "Gerar Perfil Radial", 1},
                                        {"EnsCampo", "Sobreposição Lateral", 1},
                                        {"Ajuste", "Ajustar Parâmetros - Vento", 0},
                                        {"Met_malha", "Método: Malha", 1},
                                        {"Asp_Kc", "Aspersores KELMO", 2},
                                        {"TX15c", "TX15", 3},
                                        {"TX20c", "TX20", 3},
                                        {"TX30c", "TX30", 3},
                                        {"Ou_aspC", "Outro Aspersor", 2},
                                        {"Met_auto", "Método: Autopropelido", 1},
                                        {"Asp_kelmoD", "Aspersores KELMO", 2},
                                        {"TX15d", "TX15", 3},
                                        {"TX20d", "TX20", 3},
                                        {"TX30d", "TX30", 3},
                                        {"OuAsp_Auto", "Outro Aspersor", 2},
                                        {"ajuda", "&Ajuda", 0},
                                        {"varenta", "Sobre o Varenta", 1},
                                        {"ajudaProg", "Ajuda do Programa", 1}}));
    EXPECT_EQ(form3.caption(), "VARENTA 5.0");
}

TEST_F(TelaPrincipal, AbreVisívelEHabilitadaSemOutraTela) {
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
    EXPECT_FALSE(form1.carregada());
    EXPECT_FALSE(form7.carregada());
    EXPECT_EQ(controleComFoco, nullptr);
}

TEST_F(TelaPrincipal, CarregarNomeiaOArquivoDeAjuda) {
    arquivoDeAjuda.clear();
    recomeçar();
    EXPECT_EQ(arquivoDeAjuda, "C:\\Arquivos de programas\\Varenta\\VARENTA VERSÃO 5.0.hlp");
}

TEST_F(TelaPrincipal, ItensQueSóAbremUmSubmenuNãoSeClicam) {
    for (const char* nome : {"Simula_Vento", "Asp_KELMOb", "EntDa", "Ajuste", "Met_malha", "Asp_Kc",
                             "Met_auto", "Asp_kelmoD", "ajuda"})
        EXPECT_NE(recusaDe([&] { atos::clicar(alvo(form3, nome)); }), "") << nome;
}

TEST_F(TelaPrincipal, UmItemDeAspersorEscondeAPrincipalEMostraOAspersor) {
    for (const char* nome : {"TX15B", "TX20B", "TX30B"}) {
        recomeçar();
        atos::clicar(alvo(form3, nome));
        EXPECT_TRUE(form1.visivel);
        EXPECT_FALSE(form3.visivel);
        EXPECT_FALSE(form3.habilitada);
        EXPECT_EQ(recusaDe([&] { atos::clicar(alvo(form3, nome)); }), "Form3 está oculta");
    }
}

TEST_F(TelaPrincipal, UmItemDeAjusteEscondeAPrincipalEMostraOAjuste) {
    for (const char* nome : {"TX15c", "TX20c", "TX30c", "TX15d", "TX20d", "TX30d"}) {
        recomeçar();
        atos::clicar(alvo(form3, nome));
        EXPECT_TRUE(form_AjVen.visivel) << nome;
        EXPECT_FALSE(form3.visivel);
        atos::clicar(alvo(form_AjVen, "Command1"));
        EXPECT_FALSE(form_AjVen.carregada());
        EXPECT_TRUE(form3.visivel);
    }
}

TEST_F(TelaPrincipal, UmItemFechaAsOutrasTelasAntesDeAbrirASua) {
    atos::clicar(alvo(form3, "TX15B"));
    atos::clicar(alvo(form1, "Command3"));
    // The close box gives the main window back and leaves the sprinkler's screen loaded behind.
    form7->Text1.texto = "99";
    form1->Combo1.texto = "28 mm";
    voltarAoMenu();
    atos::clicar(alvo(form3, "TX15B"));
    EXPECT_FALSE(form7.carregada());
    EXPECT_EQ(form1->Combo1.texto, "18 mm");
}

TEST_F(TelaPrincipal, NadaDoQueUmaTelaCalculouSobreviveAoSeuFechamento) {
    atos::clicar(alvo(form3, "TX15B"));
    atos::clicar(alvo(form1, "Command3"));
    atos::clicar(alvo(form7, "cmdSair"));
    form7.carregar();
    form1.carregar();
    EXPECT_EQ(form7->flexA.linhas, 2);
    EXPECT_EQ(form7->flexA.célula(1, 2), "");
    EXPECT_EQ(form1->lblVazão.texto, "");
    EXPECT_EQ(form1->Caption, "");
}

TEST_F(TelaPrincipal, FecharDescarregaTodasAsTelasEEncerraSemPergunta) {
    form1.carregar();
    form7.carregar();
    atos::fechar(form3);
    EXPECT_FALSE(form1.carregada());
    EXPECT_FALSE(form7.carregada());
    EXPECT_FALSE(form3.carregada());
    EXPECT_EQ(caderno, std::vector<std::string>{"encerrar"});
}

} // namespace
} // namespace varenta::teste
