#pragma once

#include "apoio/plataforma_teste.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/planilha.h"
#include "comum/tela.h"

#include <gtest/gtest.h>

#include <array>
#include <new>
#include <string>
#include <vector>

/// A screen with one control of every kind, whose handlers write down that they ran.
namespace varenta::teste {

/// The events of the test screen, in order.
inline std::vector<std::string> eventos;

template <class Nome>
void anotarEvento(Nome nome) {
    eventos.emplace_back(nome);
}

Planilha planilhaDeTeste();

struct RegistroDeTeste {
    std::string Caption = "Tela de teste";

    Rotulo rótulo{.texto = "padrão"};
    /// 1 to 3.
    std::array<Rotulo, 4> rótulos;
    Quadro quadro{.texto = "Quadro"};
    Botao botão{.texto = "Botão", .aoClicar = [] { anotarEvento("botão"); }};
    Botao semAção{.texto = "Sem ação"};
    Botao falha{.texto = "Falha", .aoClicar = [] {
                    anotarEvento("antes da falha");
                    throw ErroExecucao{divisãoPorZero};
                }};
    Botao semMemória{.texto = "Sem memória", .aoClicar = [] { throw std::bad_alloc{}; }};
    ItemMenu item{.texto = "Item", .aoClicar = [] { anotarEvento("item"); }};
    ItemMenu submenu{.texto = "Submenu", .abreSubmenu = true};
    CaixaTexto caixa{.texto = "abc",
                     .aoMudar = [] { anotarEvento("caixa"); },
                     .aoTeclar =
                         [](int tecla) {
                             anotarEvento("tecla " + std::to_string(tecla));
                             return tecla == teclaEnter;
                         }};
    CaixaTexto caixaMuda;
    Lista lista{.itens = {"um", "dois"},
                .texto = "um",
                .aoClicar = [] { anotarEvento("lista clicada"); },
                .aoMudar = [] { anotarEvento("lista mudada"); }};
    Lista listaDigitável{.itens = {"1.5", "2.0"},
                         .texto = "1.5",
                         .admiteDigitação = true,
                         .aoClicar = [] { anotarEvento("digitável clicada"); },
                         .aoMudar = [] { anotarEvento("digitável mudada"); }};
    Opcao opçãoA1{.grupo = "A", .marcada = true, .aoClicar = [] { anotarEvento("A1"); }};
    Opcao opçãoA2{.grupo = "A", .aoClicar = [] { anotarEvento("A2"); }};
    Opcao opçãoB1{.grupo = "B", .marcada = true, .aoClicar = [] { anotarEvento("B1"); }};
    Verificacao verificação{.aoClicar = [] { anotarEvento("verificação"); }};
    Rolagem rolagem{.valor = 5,
                    .mínimo = 0,
                    .máximo = 10,
                    .aoMudar = [] { anotarEvento("mudou"); },
                    .aoRolar = [] { anotarEvento("rolou"); }};
    Rolagem rolagemMuda{.valor = 0, .mínimo = -3, .máximo = 3};
    Barra barra;
    Desenho desenho{.aoMoverMouse = [](double x, double y) {
        anotarEvento("mouse " + Format(x, "0.000000") + " " + Format(y, "0.000000"));
    }};
    Desenho desenhoMudo;

    Grade grade{.planilha = planilhaDeTeste};
    Grade tabela;
    CaixaTexto entrada{.aoMudar = [] { anotarEvento("entrada"); }};
    Rotulo nomeDaCélula;
    CaixaTexto contagem{.texto = "2"};
    /// While it is on, the grid shows a file and takes no entry.
    Opcao arquivo{.grupo = "modo"};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("rótulo", rótulo);
        visita("rótulos", rótulos, 1);
        visita("quadro", quadro);
        visita("botão", botão);
        visita("semAção", semAção);
        visita("falha", falha);
        visita("semMemória", semMemória);
        visita("item", item);
        visita("submenu", submenu);
        visita("caixa", caixa);
        visita("caixaMuda", caixaMuda);
        visita("lista", lista);
        visita("listaDigitável", listaDigitável);
        visita("opçãoA1", opçãoA1);
        visita("opçãoA2", opçãoA2);
        visita("opçãoB1", opçãoB1);
        visita("verificação", verificação);
        visita("rolagem", rolagem);
        visita("rolagemMuda", rolagemMuda);
        visita("barra", barra);
        visita("desenho", desenho);
        visita("desenhoMudo", desenhoMudo);
        visita("grade", grade);
        visita("tabela", tabela);
        visita("entrada", entrada);
        visita("nomeDaCélula", nomeDaCélula);
        visita("contagem", contagem);
        visita("arquivo", arquivo);
    }
};

inline constexpr auto nomeDaTelaDeTeste = "TelaDeTeste";
inline Tela<RegistroDeTeste> telaDeTeste{
    nomeDaTelaDeTeste,
    {.aoCarregar = [] { anotarEvento("carregou"); }, .aoMoverMouse = [] { anotarEvento("mouse na tela"); }}};

/// Column 1 holds distances with two decimals, column 2 readings with three.
inline Planilha planilhaDeTeste() {
    auto& t = *telaDeTeste.operator->();
    return {t.grade,
            t.entrada,
            t.nomeDaCélula,
            &t.contagem,
            !t.arquivo.marcada,
            [](int coluna) -> std::string_view { return coluna == 1 ? "0.00" : "0.000"; }};
}

/// A fresh system with the test screen open over it.
class ComTelaDeTeste : public testing::Test {
  protected:
    void SetUp() override {
        telaDeTeste.descarregar();
        recomeçar();
        telaDeTeste.mostrar();
        eventos.clear();
    }
    void TearDown() override { telaDeTeste.descarregar(); }
};

} // namespace varenta::teste
