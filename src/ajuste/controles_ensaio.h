#pragma once

#include "comum/planilha.h"
#include "comum/tela.h"

namespace varenta {

/// What the screens of both kinds of test have in common: sprinkler, wind, unit of the readings, the way of
/// entry, the grid with its entry line, and buttons in two sets, one for a catalogue sprinkler (`Command1`,
/// `Command5`) and one for any other (`Command6`, `Command4`). The screens connect the handlers when they
/// load.
struct ControlesDeEnsaio {
    Rotulo Label20, Label19, Label18;

    Rolagem HScroll2{.valor = 30, .máximo = 100, .passoGrande = 10};
    Rotulo Label17{.texto = "3.0"};
    Rolagem HScroll1{.valor = 45, .máximo = 360, .passoGrande = 10};
    Rotulo Label2{.texto = "45"};
    Desenho Picture2;

    Opcao Option4{.texto = "Lâmina (mm)", .grupo = "unidade"};
    Opcao Option3{.texto = "Volume (mL)", .grupo = "unidade"};
    Rotulo Label14{.texto = "Diâmetro do Coletor (cm)", .visivel = false};
    CaixaTexto Text7{.visivel = false};

    Opcao Option2{.texto = "Digitar valores", .grupo = "entrada", .marcada = true};
    Opcao Option5{.texto = "Abrir Arquivo", .grupo = "entrada"};
    Rotulo Label7{.texto = "Digite os Valores:"};
    Rotulo Label6;
    CaixaTexto Text5;
    Grade flex_A;

    Botao Command1{.texto = "&Salvar"};
    Botao Command6{.texto = "&Salvar"};
    Botao Command2{.texto = "&Limpar"};
    Botao Command3{.texto = "Ajuda"};
    Botao Command5{.texto = "&Fechar"};
    Botao Command4{.texto = "&Fechar"};

    template <class Visita>
    void percorrerAspersor(Visita&& visita) {
        visita("Label20", Label20);
        visita("Label19", Label19);
        visita("Label18", Label18);
    }

    template <class Visita>
    void percorrerVento(Visita&& visita) {
        visita("HScroll2", HScroll2);
        visita("Label17", Label17);
        visita("HScroll1", HScroll1);
        visita("Label2", Label2);
        visita("Picture2", Picture2);
    }

    template <class Visita>
    void percorrerEntrada(Visita&& visita) {
        visita("Label14", Label14);
        visita("Text7", Text7);
        visita("Option2", Option2);
        visita("Option5", Option5);
        visita("Label7", Label7);
        visita("Label6", Label6);
        visita("Text5", Text5);
        visita("flex_A", flex_A);
        visita("Command1", Command1);
        visita("Command6", Command6);
        visita("Command2", Command2);
        visita("Command3", Command3);
        visita("Command5", Command5);
        visita("Command4", Command4);
    }
};

} // namespace varenta
