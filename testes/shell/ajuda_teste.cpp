#include "comum/ajuda.h"

#include "apoio/atalhos.h"
#include "apoio/plataforma_teste.h"
#include "aspersor/form1.h"
#include "comum/atos.h"
#include "comum/erro_execucao.h"
#include "shell/form3.h"
#include "shell/form6.h"
#include "shell/sistema.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace varenta {
namespace {

using namespace teste;
using Textos = std::vector<std::string>;

class Ajuda : public testing::Test {
  protected:
    void SetUp() override { recomeçar(); }
};

/// The help button of each screen, and the topic that it asks for.
struct BotãoDeAjuda {
    const char* tela;
    const char* botão;
    int tópico;
};

TEST_F(Ajuda, CadaBotãoPedeOTópicoDaSuaTela) {
    for (const auto& [nome, botão, tópico] : {BotãoDeAjuda{"form1", "Command2", 10},
                                              {"form_AjVen", "Command2", 11},
                                              {"Form_AjvenOu", "Command2", 12},
                                              {"Form7", "Command5", 14},
                                              {"Form4", "Command1", 15},
                                              {"Form5", "Command4", 16},
                                              {"PerfilForm", "Command5", 17},
                                              {"Perfil", "Command3", 18},
                                              {"Form_MiE1", "Command3", 21},
                                              {"Form_MiE2", "Command3", 21},
                                              {"Form_MiE3", "Command3", 21},
                                              {"FormUnifo", "Command1", 22},
                                              {"Form9", "Command4", 23}}) {
        auto* tela = telaDeNome(nome);
        tela->mostrar();
        caderno.clear();
        atos::clicar(alvo(*tela, botão));
        EXPECT_EQ(caderno, Textos{"ajuda: " + std::to_string(tópico)}) << nome;
        EXPECT_EQ(tela->eventos().tópicoDaAjuda, tópico) << nome;
        tela->descarregar();
    }
}

TEST_F(Ajuda, F1PedeOTópicoDaTelaETambémOndeNãoHáBotão) {
    for (const auto& [nome, tópico] : std::map<std::string, int>{
             {"form1", 10}, {"Form8", 32}, {"Form_grafVen", 33}, {"Form_grafFinal", 34}}) {
        auto* tela = telaDeNome(nome);
        tela->mostrar();
        caderno.clear();
        atos::pedirAjuda(*tela);
        EXPECT_EQ(caderno, Textos{"ajuda: " + std::to_string(tópico)}) << nome;
        tela->descarregar();
    }
}

TEST_F(Ajuda, F1SobreATelaPrincipalPedeOÍndice) {
    atos::pedirAjuda(form3);
    EXPECT_EQ(caderno, Textos{"ajuda: índice"});
}

TEST_F(Ajuda, OItemDoMenuMostraOÍndiceSemEsconderATelaPrincipal) {
    atos::clicar(alvo(form3, "ajudaProg"));
    EXPECT_EQ(caderno, Textos{"ajuda: índice"});
    EXPECT_TRUE(form3.visivel);
}

TEST_F(Ajuda, SemArquivoAssociadoDizQueNãoHá) {
    arquivoDeAjuda.clear();
    atos::clicar(alvo(form3, "ajudaProg"));
    EXPECT_EQ(caderno, Textos{"mensagem: Não há uma ajuda associada!"});
}

TEST_F(Ajuda, UmaFalhaAoAbrirMostraADescriçãoDoErro) {
    falhaDaAjuda = "A ajuda não pôde ser aberta";
    atos::clicar(alvo(form3, "ajudaProg"));
    EXPECT_EQ(caderno, Textos{"mensagem: A ajuda não pôde ser aberta"});
}

TEST_F(Ajuda, SobreOVarentaEscondeATelaPrincipalENãoFechaOutras) {
    form1.carregar();
    atos::clicar(alvo(form3, "varenta"));
    EXPECT_TRUE(form6.visivel);
    EXPECT_FALSE(form3.visivel);
    EXPECT_TRUE(form1.carregada());
    EXPECT_EQ(form6->Caption, "Sobre o Varenta");
    EXPECT_EQ(form6->Label6.texto, "Varenta:");
    EXPECT_EQ(form6->Label7.texto, "Versão 5.0");
    EXPECT_EQ(form6->Label9.texto, "\"Aplicativo para Simulação da Distribuição de Água em Sistemas "
                                   "Autopropelidos de Irrigação\"");
}

TEST_F(Ajuda, OkDaTelaSobreVoltaÀTelaPrincipal) {
    atos::clicar(alvo(form3, "varenta"));
    form3.habilitada = false;
    atos::clicar(alvo(form6, "Command1"));
    EXPECT_FALSE(form6.carregada());
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
}

} // namespace
} // namespace varenta
