#include "comum/operacoes.h"

#include "apoio/atalhos.h"
#include "apoio/tela_de_teste.h"

namespace varenta::teste {
namespace {

using Eventos = std::vector<std::string>;

class Operacoes : public ComTelaDeTeste {};

TEST_F(Operacoes, TextoDaCaixaSóLevantaChangeQuandoMuda) {
    definirTexto(telaDeTeste->caixa, "abc");
    EXPECT_EQ(eventos, Eventos{});
    definirTexto(telaDeTeste->caixa, "abd");
    EXPECT_EQ(telaDeTeste->caixa.texto, "abd");
    EXPECT_EQ(eventos, Eventos{"caixa"});
}

TEST_F(Operacoes, TextoDaListaSóLevantaChangeQuandoMuda) {
    definirTexto(telaDeTeste->listaDigitável, "1.5");
    EXPECT_EQ(eventos, Eventos{});
    definirTexto(telaDeTeste->listaDigitável, "2.0");
    definirTexto(telaDeTeste->listaDigitável, "2.5");
    EXPECT_EQ(telaDeTeste->listaDigitável.texto, "2.5");
    EXPECT_EQ(eventos, (Eventos{"digitável mudada", "digitável mudada"}));
}

TEST_F(Operacoes, EscolherUmItemLevantaClickSempre) {
    escolherItem(telaDeTeste->lista, 0);
    escolherItem(telaDeTeste->lista, "um");
    escolherItem(telaDeTeste->lista, "dois");
    EXPECT_EQ(telaDeTeste->lista.texto, "dois");
    EXPECT_EQ(eventos, (Eventos{"lista clicada", "lista clicada", "lista clicada"}));
}

TEST_F(Operacoes, EscolherUmItemQueNãoExisteÉErro) {
    auto& lista = telaDeTeste->lista;
    for (const int índice : {-1, 2})
        EXPECT_EQ(erroDe([&] { escolherItem(lista, índice); }), "Valor de propriedade inválido");
    EXPECT_EQ(erroDe([&] { escolherItem(lista, "três"); }), "Valor de propriedade inválido");
    EXPECT_EQ(lista.texto, "um");
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(Operacoes, ÍndiceDoItemAchaOTextoInteiro) {
    EXPECT_EQ(índiceDoItem(telaDeTeste->lista, "dois"), 1);
    EXPECT_EQ(índiceDoItem(telaDeTeste->lista, "do"), -1);
    EXPECT_EQ(índiceDoItem(telaDeTeste->lista, ""), -1);
}

TEST_F(Operacoes, MarcarUmaOpçãoDesmarcaSóAsDoSeuGrupo) {
    marcar(telaDeTeste, telaDeTeste->opçãoA2);
    EXPECT_FALSE(telaDeTeste->opçãoA1.marcada);
    EXPECT_TRUE(telaDeTeste->opçãoA2.marcada);
    EXPECT_TRUE(telaDeTeste->opçãoB1.marcada);
    EXPECT_EQ(eventos, Eventos{"A2"});
}

TEST_F(Operacoes, MarcarUmaOpçãoJáMarcadaLevantaClickDeNovo) {
    marcar(telaDeTeste, telaDeTeste->opçãoA1);
    marcar(telaDeTeste, telaDeTeste->opçãoA1);
    EXPECT_TRUE(telaDeTeste->opçãoA1.marcada);
    EXPECT_EQ(eventos, (Eventos{"A1", "A1"}));
}

TEST_F(Operacoes, VerificaçãoSóLevantaClickQuandoMuda) {
    marcar(telaDeTeste->verificação, false);
    EXPECT_EQ(eventos, Eventos{});
    marcar(telaDeTeste->verificação, true);
    EXPECT_TRUE(telaDeTeste->verificação.marcada);
    EXPECT_EQ(eventos, Eventos{"verificação"});
}

TEST_F(Operacoes, ValorDaRolagemSóLevantaChangeQuandoMuda) {
    definirValor(telaDeTeste->rolagem, 5);
    EXPECT_EQ(eventos, Eventos{});
    definirValor(telaDeTeste->rolagem, 10);
    definirValor(telaDeTeste->rolagem, 0);
    EXPECT_EQ(eventos, (Eventos{"mudou", "mudou"}));
}

TEST_F(Operacoes, ValorForaDaFaixaDaRolagemÉErro) {
    for (const int valor : {-1, 11})
        EXPECT_EQ(erroDe([&] { definirValor(telaDeTeste->rolagem, valor); }),
                  "Valor de propriedade inválido");
    EXPECT_EQ(telaDeTeste->rolagem.valor, 5);
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(Operacoes, FaixaNovaQueContémOValorNãoOMuda) {
    definirFaixa(telaDeTeste->rolagem, 5, 20, 4, 2);
    const auto& rolagem = telaDeTeste->rolagem;
    EXPECT_EQ(rolagem.valor, 5);
    EXPECT_EQ(rolagem.mínimo, 5);
    EXPECT_EQ(rolagem.máximo, 20);
    EXPECT_EQ(rolagem.passoGrande, 4);
    EXPECT_EQ(rolagem.passoPequeno, 2);
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(Operacoes, FaixaNovaTrazOValorParaASuaPontaMaisPróxima) {
    definirFaixa(telaDeTeste->rolagem, 7, 20, 1, 1);
    EXPECT_EQ(telaDeTeste->rolagem.valor, 7);
    definirFaixa(telaDeTeste->rolagem, 0, 3, 1, 1);
    EXPECT_EQ(telaDeTeste->rolagem.valor, 3);
    EXPECT_EQ(eventos, (Eventos{"mudou", "mudou"}));
}

TEST_F(Operacoes, ControlesSemTratadorMudamEmSilêncio) {
    definirTexto(telaDeTeste->caixaMuda, "x");
    definirValor(telaDeTeste->rolagemMuda, -3);
    EXPECT_EQ(telaDeTeste->caixaMuda.texto, "x");
    EXPECT_EQ(telaDeTeste->rolagemMuda.valor, -3);
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(Operacoes, DesabilitarAlcançaTodosOsBotõesDados) {
    desabilitar({&telaDeTeste->botão, &telaDeTeste->falha});
    EXPECT_FALSE(telaDeTeste->botão.habilitado);
    EXPECT_FALSE(telaDeTeste->falha.habilitado);
    EXPECT_TRUE(telaDeTeste->semMemória.habilitado);
}

} // namespace
} // namespace varenta::teste
