#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void form8_Load();
void form8_Command1_Click();
void form8_Command3_Click();

/// Depths over the whole strip: a row for each position along the lane, a column for each one between lanes.
struct RegistroForm8 {
    std::string Caption = "Distribuição de Água na Faixa Irrigada";

    Rotulo Label1, Label2, Label3, Label4, Label5;
    Grade flexGrid_C;

    Botao Command1{.texto = "&Salvar", .aoClicar = form8_Command1_Click};
    Botao Command3{.texto = "&Fechar", .aoClicar = form8_Command3_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label1", Label1);
        visita("Label2", Label2);
        visita("Label3", Label3);
        visita("Label4", Label4);
        visita("Label5", Label5);
        visita("flexGrid_C", flexGrid_C);
        visita("Command1", Command1);
        visita("Command3", Command3);
    }
};

inline Tela<RegistroForm8> form8{
    "Form8", {.aoCarregar = form8_Load, .aoFechar = form8_Command3_Click, .tópicoDaAjuda = topicos::form8}};

} // namespace varenta
