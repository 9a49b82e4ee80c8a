#include "comum/atos.h"

#include "apoio/atalhos.h"
#include "apoio/tela_de_teste.h"
#include "comum/limites.h"
#include "shell/form3.h"

namespace varenta::teste {
namespace {

using Eventos = std::vector<std::string>;

class Atos : public ComTelaDeTeste {
  protected:
    void TearDown() override {
        atos::soltar();
        ComTelaDeTeste::TearDown();
    }

    Alvo em(std::string_view nome) { return alvo(telaDeTeste, nome); }
    void clicar(std::string_view nome) { atos::clicar(em(nome)); }
};

TEST_F(Atos, ClicarNumBotãoOuItemCorreOSeuTratador) {
    clicar("botão");
    clicar("item");
    EXPECT_EQ(eventos, (Eventos{"botão", "item"}));
}

TEST_F(Atos, ClicarNumaOpçãoAMarca) {
    clicar("opçãoA2");
    EXPECT_TRUE(telaDeTeste->opçãoA2.marcada);
    EXPECT_FALSE(telaDeTeste->opçãoA1.marcada);
    EXPECT_EQ(eventos, Eventos{"A2"});
}

TEST_F(Atos, ClicarNumaVerificaçãoAInverte) {
    clicar("verificação");
    EXPECT_TRUE(telaDeTeste->verificação.marcada);
    clicar("verificação");
    EXPECT_FALSE(telaDeTeste->verificação.marcada);
    EXPECT_EQ(eventos, (Eventos{"verificação", "verificação"}));
}

TEST_F(Atos, EscolherUmItemLevantaClick) {
    atos::escolher(em("lista"), "dois");
    EXPECT_EQ(telaDeTeste->lista.texto, "dois");
    EXPECT_EQ(eventos, Eventos{"lista clicada"});
}

TEST_F(Atos, DigitarTrocaOTextoDaCaixaEDaListaQueOAdmite) {
    atos::digitar(em("caixa"), "300");
    atos::digitar(em("listaDigitável"), "2");
    EXPECT_EQ(telaDeTeste->caixa.texto, "300");
    EXPECT_EQ(telaDeTeste->listaDigitável.texto, "2");
    EXPECT_EQ(eventos, (Eventos{"caixa", "digitável mudada"}));
}

TEST_F(Atos, TeclarDizSeATeclaFoiUsada) {
    EXPECT_TRUE(atos::teclar(em("caixa"), 13));
    EXPECT_FALSE(atos::teclar(em("caixa"), 'a'));
    EXPECT_FALSE(atos::teclar(em("caixaMuda"), 13));
    EXPECT_EQ(eventos, (Eventos{"tecla 13", "tecla 97"}));
    EXPECT_EQ(controleComFoco, &telaDeTeste->caixaMuda);
}

TEST_F(Atos, RolarLevantaUmSóChange) {
    atos::rolar(em("rolagem"), 7);
    atos::rolar(em("rolagem"), 7);
    EXPECT_EQ(telaDeTeste->rolagem.valor, 7);
    EXPECT_EQ(eventos, Eventos{"mudou"});
}

TEST_F(Atos, MoverOMouseDáAsCoordenadasAoDesenho) {
    atos::moverMouse(em("desenho"), 68, 203);
    atos::moverMouse(em("desenhoMudo"), 1, 1);
    atos::moverMouse(telaDeTeste);
    EXPECT_EQ(eventos, (Eventos{"mouse 68.000000 203.000000", "mouse na tela"}));
}

TEST_F(Atos, FecharUmaTelaSemTratadorADescarrega) {
    atos::fechar(telaDeTeste);
    EXPECT_FALSE(telaDeTeste.carregada());
}

TEST_F(Atos, OControleTocadoTomaOFoco) {
    clicar("botão");
    EXPECT_EQ(controleComFoco, &telaDeTeste->botão);
    clicar("opçãoA2");
    EXPECT_EQ(controleComFoco, &telaDeTeste->opçãoA2);
    clicar("verificação");
    EXPECT_EQ(controleComFoco, &telaDeTeste->verificação);
    atos::escolher(em("lista"), "um");
    EXPECT_EQ(controleComFoco, &telaDeTeste->lista);
    atos::digitar(em("listaDigitável"), "9");
    EXPECT_EQ(controleComFoco, &telaDeTeste->listaDigitável);
    atos::digitar(em("caixa"), "9");
    EXPECT_EQ(controleComFoco, &telaDeTeste->caixa);
    atos::rolar(em("rolagem"), 1);
    EXPECT_EQ(controleComFoco, &telaDeTeste->rolagem);
    atos::arrastar(em("rolagemMuda"), 1);
    EXPECT_EQ(controleComFoco, &telaDeTeste->rolagemMuda);
    clicar("item");
    EXPECT_EQ(controleComFoco, &telaDeTeste->rolagemMuda);
}

TEST_F(Atos, ArrastarLevantaScrollACadaValorNovo) {
    for (const int valor : {6, 6, 7}) atos::arrastar(em("rolagem"), valor);
    EXPECT_EQ(telaDeTeste->rolagem.valor, 7);
    EXPECT_EQ(eventos, (Eventos{"rolou", "rolou"}));
}

TEST_F(Atos, SoltarLevantaUmSóChangeSeABarraTerminaNoutroLugar) {
    for (const int valor : {6, 9, 7}) atos::arrastar(em("rolagem"), valor);
    atos::soltar();
    atos::soltar();
    EXPECT_EQ(eventos, (Eventos{"rolou", "rolou", "rolou", "mudou"}));
}

TEST_F(Atos, SoltarOndeComeçouNãoLevantaChange) {
    for (const int valor : {9, 5}) atos::arrastar(em("rolagem"), valor);
    atos::soltar();
    EXPECT_EQ(eventos, (Eventos{"rolou", "rolou"}));
}

TEST_F(Atos, QualquerAtoSeguinteSoltaOPolegarAntesDeAgir) {
    const auto exigeSolto = [&](auto&& ato, const Eventos& depois) {
        const int outro = telaDeTeste->rolagem.valor == 6 ? 7 : 6;
        atos::arrastar(em("rolagem"), outro);
        eventos.clear();
        ato();
        Eventos esperados{"mudou"};
        esperados.insert(esperados.end(), depois.begin(), depois.end());
        EXPECT_EQ(eventos, esperados);
    };
    exigeSolto([&] { clicar("botão"); }, {"botão"});
    exigeSolto([&] { atos::escolher(em("lista"), "um"); }, {"lista clicada"});
    exigeSolto([&] { atos::digitar(em("caixa"), "z"); }, {"caixa"});
    exigeSolto([&] { atos::teclar(em("caixa"), 65); }, {"tecla 65"});
    exigeSolto([&] { atos::rolar(em("rolagemMuda"), 1); }, {});
    exigeSolto([&] { atos::rolar(em("rolagem"), 10); }, {"mudou"});
    exigeSolto([&] { atos::arrastar(em("rolagemMuda"), 2); }, {});
    exigeSolto([&] { atos::irParaCélula(em("grade"), 1, 1); }, {});
    exigeSolto([&] { atos::moverMouse(em("desenhoMudo"), 0, 0); }, {});
    exigeSolto([&] { atos::moverMouse(telaDeTeste); }, {"mouse na tela"});
    exigeSolto([&] { atos::fechar(telaDeTeste); }, {});
}

TEST_F(Atos, UmTextoMaiorDoQueUmaLinhaDeArquivoNãoÉDigitado) {
    const std::string maior(maiorLinha, 'x');
    atos::digitar(em("caixa"), maior);
    EXPECT_TRUE(telaDeTeste->caixa.texto == maior);
    eventos.clear();
    EXPECT_EQ(recusaDe([&] { atos::digitar(em("caixa"), maior + "x"); }),
              "TelaDeTeste.caixa não admite um texto tão longo");
    EXPECT_EQ(recusaDe([&] { atos::digitar(em("listaDigitável"), maior + "x"); }),
              "TelaDeTeste.listaDigitável não admite um texto tão longo");
    EXPECT_TRUE(telaDeTeste->caixa.texto == maior);
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(Atos, PolegarDeUmaTelaDescarregadaÉEsquecido) {
    atos::arrastar(em("rolagem"), 9);
    telaDeTeste.descarregar();
    eventos.clear();
    atos::soltar();
    EXPECT_EQ(eventos, Eventos{});
    EXPECT_FALSE(telaDeTeste.carregada());
}

TEST_F(Atos, TelaNãoCarregadaOcultaOuDesabilitadaRecusaTudo) {
    const auto botão = em("botão"), desenho = em("desenho");
    const auto recusas = [&] {
        const auto recusa = recusaDe([&] { atos::clicar(botão); });
        EXPECT_EQ(recusaDe([&] { atos::moverMouse(desenho, 0, 0); }), recusa);
        EXPECT_EQ(recusaDe([&] { atos::moverMouse(telaDeTeste); }), recusa);
        EXPECT_EQ(recusaDe([&] { atos::fechar(telaDeTeste); }), recusa);
        return recusa;
    };
    telaDeTeste.habilitada = false;
    EXPECT_EQ(recusas(), "TelaDeTeste está desabilitada");
    telaDeTeste.esconder();
    EXPECT_EQ(recusas(), "TelaDeTeste está oculta");
    telaDeTeste.descarregar();
    EXPECT_EQ(recusas(), "TelaDeTeste não está carregada");
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(Atos, ControleOcultoOuDesabilitadoRecusaOAto) {
    telaDeTeste->botão.visivel = false;
    EXPECT_EQ(recusaDe([&] { clicar("botão"); }), "TelaDeTeste.botão está oculto");
    telaDeTeste->caixa.habilitado = false;
    EXPECT_EQ(recusaDe([&] { atos::digitar(em("caixa"), "x"); }), "TelaDeTeste.caixa está desabilitado");
    telaDeTeste->opçãoA2.habilitado = false;
    EXPECT_EQ(recusaDe([&] { clicar("opçãoA2"); }), "TelaDeTeste.opçãoA2 está desabilitado");
    telaDeTeste->verificação.visivel = false;
    EXPECT_EQ(recusaDe([&] { clicar("verificação"); }), "TelaDeTeste.verificação está oculto");
    telaDeTeste->lista.habilitado = false;
    EXPECT_EQ(recusaDe([&] { atos::escolher(em("lista"), "um"); }), "TelaDeTeste.lista está desabilitado");
    telaDeTeste->rolagem.visivel = false;
    EXPECT_EQ(recusaDe([&] { atos::arrastar(em("rolagem"), 1); }), "TelaDeTeste.rolagem está oculto");
    telaDeTeste->desenho.habilitado = false;
    EXPECT_EQ(recusaDe([&] { atos::moverMouse(em("desenho"), 0, 0); }),
              "TelaDeTeste.desenho está desabilitado");
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(Atos, BotãoOuItemSemTratadorRecusaOClique) {
    EXPECT_EQ(recusaDe([&] { clicar("semAção"); }), "TelaDeTeste.semAção está desabilitado");
    EXPECT_EQ(recusaDe([&] { clicar("submenu"); }), "TelaDeTeste.submenu só abre um submenu");
}

TEST_F(Atos, ControleQueNãoConheceOAtoORecusa) {
    for (const char* nome : {"rótulo", "quadro", "caixa", "lista", "rolagem", "barra", "desenho", "grade"})
        EXPECT_EQ(recusaDe([&] { clicar(nome); }), "TelaDeTeste." + std::string{nome} + " não admite clique");
    EXPECT_EQ(recusaDe([&] { atos::escolher(em("caixa"), "x"); }), "TelaDeTeste.caixa não admite escolha");
    EXPECT_EQ(recusaDe([&] { atos::digitar(em("rótulo"), "x"); }), "TelaDeTeste.rótulo não admite digitação");
    EXPECT_EQ(recusaDe([&] { atos::teclar(em("lista"), 13); }), "TelaDeTeste.lista não admite digitação");
    EXPECT_EQ(recusaDe([&] { atos::rolar(em("caixa"), 1); }), "TelaDeTeste.caixa não admite rolagem");
    EXPECT_EQ(recusaDe([&] { atos::arrastar(em("barra"), 1); }), "TelaDeTeste.barra não admite rolagem");
    EXPECT_EQ(recusaDe([&] { atos::preencherCélula(em("caixa"), 1, 1, "x"); }),
              "TelaDeTeste.caixa não admite entrada");
    EXPECT_EQ(recusaDe([&] { atos::moverMouse(em("botão"), 0, 0); }),
              "TelaDeTeste.botão não admite movimento do mouse em coordenadas");
    EXPECT_NE(recusaDe([&] {
                  atos::clicar({&telaDeTeste, {"rótulos", 2, &telaDeTeste->rótulos[2]}});
              }).find("TelaDeTeste.rótulos(2)"),
              std::string::npos);
}

TEST_F(Atos, ListaRecusaItemQueNãoTemEDigitaçãoQueNãoAdmite) {
    EXPECT_EQ(recusaDe([&] { atos::escolher(em("lista"), "três"); }),
              "TelaDeTeste.lista não tem o item \"três\"");
    EXPECT_EQ(recusaDe([&] { atos::digitar(em("lista"), "dois"); }),
              "TelaDeTeste.lista não admite digitação");
    EXPECT_EQ(telaDeTeste->lista.texto, "um");
}

TEST_F(Atos, RolagemRecusaValorForaDaSuaFaixa) {
    for (const int valor : {-1, 11}) {
        EXPECT_EQ(recusaDe([&] { atos::rolar(em("rolagem"), valor); }), "TelaDeTeste.rolagem vai de 0 a 10");
        EXPECT_EQ(recusaDe([&] { atos::arrastar(em("rolagem"), valor); }),
                  "TelaDeTeste.rolagem vai de 0 a 10");
    }
    EXPECT_EQ(telaDeTeste->rolagem.valor, 5);
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(Atos, GradeRecusaCélulaDeCabeçalhoOuForaDela) {
    telaDeTeste->grade.dimensionar(3, 3);
    for (const auto& [linha, coluna] : {std::pair{0, 1}, {1, 0}, {3, 1}, {1, 3}, {-1, 1}, {1, -1}}) {
        const auto recusa = "TelaDeTeste.grade não tem a célula de dados " + std::to_string(linha) + ", " +
                            std::to_string(coluna);
        EXPECT_EQ(recusaDe([&, l = linha, c = coluna] { atos::irParaCélula(em("grade"), l, c); }), recusa);
        EXPECT_EQ(recusaDe([&, l = linha, c = coluna] { atos::preencherCélula(em("grade"), l, c, "1"); }),
                  recusa);
    }
}

TEST_F(Atos, GradeQueSóMostraRecusaEntrada) {
    EXPECT_EQ(recusaDe([&] { atos::preencherCélula(em("tabela"), 1, 1, "1"); }),
              "TelaDeTeste.tabela não admite entrada");
    telaDeTeste->arquivo.marcada = true;
    EXPECT_EQ(recusaDe([&] { atos::preencherCélula(em("grade"), 1, 1, "1"); }),
              "TelaDeTeste.grade não admite entrada");
}

TEST_F(Atos, PreencherCélulaEscreveEAnda) {
    telaDeTeste->grade.dimensionar(3, 3);
    atos::preencherCélula(em("grade"), 1, 2, "1.23456");
    EXPECT_EQ(telaDeTeste->grade.célula(1, 2), "1.235");
    EXPECT_EQ(telaDeTeste->grade.linhaAtual, 2);
    EXPECT_EQ(telaDeTeste->grade.colunaAtual, 1);
    EXPECT_EQ(controleComFoco, &telaDeTeste->entrada);
}

TEST_F(Atos, PreencherCélulaComTextoVazioAEsvazia) {
    telaDeTeste->grade.dimensionar(3, 3);
    telaDeTeste->grade.escrever(1, 1, "5.00");
    atos::preencherCélula(em("grade"), 1, 1, "");
    EXPECT_EQ(telaDeTeste->grade.célula(1, 1), "");
}

TEST_F(Atos, PreencherCélulaSemContagemNuméricaSóDáAMensagem) {
    telaDeTeste->grade.dimensionar(3, 3);
    telaDeTeste->contagem.texto = "x";
    atos::preencherCélula(em("grade"), 1, 1, "7");
    EXPECT_EQ(telaDeTeste->grade.célula(1, 1), "");
    EXPECT_EQ(caderno, (Eventos{"mensagem: Insira valores numéricos!"}));
    EXPECT_EQ(controleComFoco, &telaDeTeste->contagem);
}

TEST_F(Atos, ColarPreencheAPartirDaCélulaAtual) {
    telaDeTeste->grade.dimensionar(3, 3);
    atos::irParaCélula(em("grade"), 1, 2);
    atos::colar(em("grade"), "1,5\r\n2,25\r\n");
    EXPECT_EQ(telaDeTeste->grade.célula(1, 2), "1.500");
    EXPECT_EQ(telaDeTeste->grade.célula(2, 2), "2.250");
    EXPECT_EQ(controleComFoco, &telaDeTeste->entrada);
}

TEST_F(Atos, ColarÉRecusadoOndeNãoSeDigita) {
    EXPECT_EQ(recusaDe([&] { atos::colar(em("tabela"), "1"); }), "TelaDeTeste.tabela não admite entrada");
    EXPECT_EQ(recusaDe([&] { atos::colar(em("caixa"), "1"); }), "TelaDeTeste.caixa não admite entrada");
    telaDeTeste->arquivo.marcada = true;
    EXPECT_EQ(recusaDe([&] { atos::colar(em("grade"), "1"); }), "TelaDeTeste.grade não admite entrada");
    telaDeTeste->arquivo.marcada = false;
    telaDeTeste->grade.habilitado = false;
    EXPECT_EQ(recusaDe([&] { atos::colar(em("grade"), "1"); }), "TelaDeTeste.grade está desabilitado");
}

TEST_F(Atos, ErroDeExecuçãoEncerraOAtoEÉContadoÀPessoa) {
    telaDeTeste.ponteiro = Ponteiro::ampulheta;
    form3.ponteiro = Ponteiro::ampulheta;
    clicar("falha");
    EXPECT_EQ(caderno, Eventos{"erro: Divisão por zero"});
    EXPECT_EQ(eventos, Eventos{"antes da falha"});
    EXPECT_EQ(telaDeTeste.ponteiro, Ponteiro::padrão);
    EXPECT_EQ(form3.ponteiro, Ponteiro::padrão);
    clicar("botão");
    EXPECT_EQ(eventos.back(), "botão");
}

TEST_F(Atos, FaltaDeMemóriaÉContadaComoErroDeExecução) {
    clicar("semMemória");
    EXPECT_EQ(caderno, Eventos{"erro: Memória insuficiente"});
}

TEST_F(Atos, SemErroOPonteiroFicaComoOTratadorODeixou) {
    telaDeTeste.ponteiro = Ponteiro::cruz;
    clicar("botão");
    EXPECT_EQ(telaDeTeste.ponteiro, Ponteiro::cruz);
    EXPECT_EQ(caderno, Eventos{});
}

} // namespace
} // namespace varenta::teste
