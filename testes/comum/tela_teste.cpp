#include "comum/tela.h"

#include "apoio/atalhos.h"
#include "apoio/tela_de_teste.h"
#include "shell/form3.h"

#include <algorithm>

namespace varenta::teste {
namespace {

using Eventos = std::vector<std::string>;

class TelaSobDemanda : public ComTelaDeTeste {};

TEST_F(TelaSobDemanda, NasceComOsSeusPadrõesOcultaEHabilitada) {
    telaDeTeste.descarregar();
    EXPECT_FALSE(telaDeTeste.carregada());
    EXPECT_EQ(telaDeTeste->rótulo.texto, "padrão");
    EXPECT_TRUE(telaDeTeste.carregada());
    EXPECT_FALSE(telaDeTeste.visivel);
    EXPECT_TRUE(telaDeTeste.habilitada);
    EXPECT_EQ(telaDeTeste.ponteiro, Ponteiro::padrão);
    EXPECT_EQ(telaDeTeste.caption(), "Tela de teste");
    EXPECT_EQ(eventos, Eventos{"carregou"});
}

TEST_F(TelaSobDemanda, VoltaAosPadrõesDepoisDeDescarregada) {
    telaDeTeste->rótulo.texto = "mudado";
    telaDeTeste->Caption = "Outro título";
    telaDeTeste.habilitada = false;
    telaDeTeste.ponteiro = Ponteiro::cruz;
    telaDeTeste.descarregar();
    EXPECT_FALSE(telaDeTeste.visivel);
    EXPECT_EQ(telaDeTeste->rótulo.texto, "padrão");
    EXPECT_EQ(telaDeTeste.caption(), "Tela de teste");
    EXPECT_TRUE(telaDeTeste.habilitada);
    EXPECT_EQ(telaDeTeste.ponteiro, Ponteiro::padrão);
}

TEST_F(TelaSobDemanda, CarregarDeNovoNãoMudaNada) {
    telaDeTeste->rótulo.texto = "mudado";
    telaDeTeste.carregar();
    EXPECT_EQ(telaDeTeste->rótulo.texto, "mudado");
    EXPECT_TRUE(telaDeTeste.visivel);
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(TelaSobDemanda, EscondidaContinuaCarregada) {
    telaDeTeste->rótulo.texto = "mudado";
    telaDeTeste.esconder();
    EXPECT_FALSE(telaDeTeste.visivel);
    telaDeTeste.mostrar();
    EXPECT_TRUE(telaDeTeste.visivel);
    EXPECT_EQ(telaDeTeste->rótulo.texto, "mudado");
}

TEST_F(TelaSobDemanda, DescarregadaNãoTemElementosEProcurarNãoACarrega) {
    telaDeTeste.descarregar();
    EXPECT_TRUE(telaDeTeste.elementos().empty());
    EXPECT_FALSE(telaDeTeste.achar("botão", std::nullopt));
    EXPECT_FALSE(telaDeTeste.carregada());
    telaDeTeste.descarregar();
    EXPECT_FALSE(telaDeTeste.carregada());
}

TEST_F(TelaSobDemanda, DáOsElementosNaOrdemEmQueOsDeclara) {
    Eventos nomes;
    for (const auto& elemento : telaDeTeste.elementos()) nomes.push_back(elemento.nomeCompleto());
    nomes.resize(6);
    EXPECT_EQ(nomes, (Eventos{"rótulo", "rótulos(1)", "rótulos(2)", "rótulos(3)", "quadro", "botão"}));
}

TEST_F(TelaSobDemanda, AchaControlesPeloNomeEPeloÍndice) {
    EXPECT_EQ(telaDeTeste.achar("botão", std::nullopt)->endereço(), &telaDeTeste->botão);
    EXPECT_EQ(telaDeTeste.achar("rótulos", 3)->endereço(), &telaDeTeste->rótulos[3]);
    EXPECT_FALSE(telaDeTeste.achar("rótulos", std::nullopt));
    EXPECT_FALSE(telaDeTeste.achar("rótulos", 0));
    EXPECT_FALSE(telaDeTeste.achar("rótulos", 4));
    EXPECT_FALSE(telaDeTeste.achar("botão", 1));
    EXPECT_FALSE(telaDeTeste.achar("Botão", std::nullopt));
}

TEST_F(TelaSobDemanda, PerdeOFocoAoSerDescarregada) {
    focar(telaDeTeste->caixa);
    telaDeTeste.descarregar();
    EXPECT_EQ(controleComFoco, nullptr);
}

TEST_F(TelaSobDemanda, PerdeOFocoAoSerEscondida) {
    telaDeTeste.mostrar();
    focar(telaDeTeste->rótulo);
    telaDeTeste.esconder();
    EXPECT_EQ(controleComFoco, nullptr);
}

TEST_F(TelaSobDemanda, DescarregadaDeixaOFocoDeOutraTela) {
    focar(form3->TX15B);
    telaDeTeste.descarregar();
    EXPECT_EQ(controleComFoco, &form3->TX15B);
}

TEST_F(TelaSobDemanda, TodasAsTelasEstãoNoRegistro) {
    EXPECT_EQ(std::ranges::count(TelaBase::todas(), static_cast<TelaBase*>(&telaDeTeste)), 1);
    EXPECT_EQ(std::ranges::count(TelaBase::todas(), static_cast<TelaBase*>(&form3)), 1);
}

TEST_F(TelaSobDemanda, VoltarAoMenuMostraEHabilitaATelaPrincipal) {
    form3.esconder();
    form3.habilitada = false;
    voltarAoMenu();
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
}

} // namespace
} // namespace varenta::teste
