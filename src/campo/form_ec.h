#pragma once

#include "comum/ajuda.h"
#include "comum/planilha.h"
#include "comum/tela.h"

namespace varenta {

void formEC_Load();
void formEC_Fechar();
void formEC_Option1_Click();
void formEC_Option2_Click();
void formEC_Command1_Click();
void formEC_Command2_Click();
void formEC_Command4_Click();
void formEC_Command6_Click();
bool formEC_Text5_KeyPress(int tecla);
Planilha formEC_planilha();

/// The cells have changed: counts the filled ones.
void formEC_flex_A_Change();

/// Gives the grid of readings the size and the headers that the lists and the unit ask for, and draws how the
/// collectors stand. Another size begins with empty cells. While the lists hold no numbers the grid stays,
/// and so it does after the message that refuses a size.
void gerarPlanilhaEC();

/// A field test of a travelling sprinkler: lines of collectors across its lane, read after it has passed.
struct RegistroFormEC {
    std::string Caption = "Perfil Móvel Determinado em Campo";

    CaixaTexto Text6, Text8, Text13, Text11, Text12, Text9, Text1;
    Quadro Frame1{.texto = "Precipitações"};
    Opcao Option4{.texto = "Lâmina (mm)", .grupo = "unidade", .marcada = true, .aoClicar = gerarPlanilhaEC};
    Opcao Option3{.texto = "Volume (ml)", .grupo = "unidade", .aoClicar = gerarPlanilhaEC};
    CaixaTexto Text7;
    Lista Combo1{.admiteDigitação = true, .aoClicar = gerarPlanilhaEC, .aoConfirmar = gerarPlanilhaEC};
    Lista Combo2{.admiteDigitação = true, .aoClicar = gerarPlanilhaEC, .aoConfirmar = gerarPlanilhaEC};
    Lista Combo4{.admiteDigitação = true, .aoClicar = gerarPlanilhaEC, .aoConfirmar = gerarPlanilhaEC};
    Lista Combo3{.admiteDigitação = true, .aoClicar = gerarPlanilhaEC, .aoConfirmar = gerarPlanilhaEC};
    Quadro Frame2{.texto = "Condições de Vento"};
    CaixaTexto Text2, Text3;
    Quadro Frame3{.texto = "Entrada de Dados"};
    Opcao Option1{.texto = "Digitar", .grupo = "entrada", .marcada = true, .aoClicar = formEC_Option1_Click};
    Opcao Option2{.texto = "Abrir Arquivo", .grupo = "entrada", .aoClicar = formEC_Option2_Click};
    Rotulo Label7{.texto = "Digite os Valores:"};
    /// The name of the current cell, and its entry line.
    Rotulo Label6;
    CaixaTexto Text5{.aoTeclar = formEC_Text5_KeyPress};
    Grade flex_A{.planilha = formEC_planilha};
    Rotulo lblPreenchidas;
    /// How the collectors stand, seen from above, and the distances that the picture shows.
    Desenho Picture1;
    Rotulo lblEspaço, lblDistância;

    Botao Command1{.texto = "&Salvar", .aoClicar = formEC_Command1_Click};
    Botao Command2{.texto = "&Limpar", .aoClicar = formEC_Command2_Click};
    Botao Command3{.texto = "&Ajuda", .aoClicar = mostrarAjuda<topicos::form_EC>};
    Botao Command4{.texto = "&Sobreposição", .aoClicar = formEC_Command4_Click};
    Botao Command5{.texto = "&Fechar", .aoClicar = formEC_Fechar};
    Botao Command6{.texto = "&Perfil Radial", .aoClicar = formEC_Command6_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Text6", Text6);
        visita("Text8", Text8);
        visita("Text13", Text13);
        visita("Text11", Text11);
        visita("Text12", Text12);
        visita("Text9", Text9);
        visita("Text1", Text1);
        visita("Frame1", Frame1);
        visita("Option4", Option4);
        visita("Option3", Option3);
        visita("Text7", Text7);
        visita("Combo1", Combo1);
        visita("Combo2", Combo2);
        visita("Combo4", Combo4);
        visita("Combo3", Combo3);
        visita("Frame2", Frame2);
        visita("Text2", Text2);
        visita("Text3", Text3);
        visita("Frame3", Frame3);
        visita("Option1", Option1);
        visita("Option2", Option2);
        visita("Label7", Label7);
        visita("Label6", Label6);
        visita("Text5", Text5);
        visita("flex_A", flex_A);
        visita("lblPreenchidas", lblPreenchidas);
        visita("Picture1", Picture1);
        visita("lblEspaço", lblEspaço);
        visita("lblDistância", lblDistância);
        visita("Command1", Command1);
        visita("Command2", Command2);
        visita("Command3", Command3);
        visita("Command4", Command4);
        visita("Command5", Command5);
        visita("Command6", Command6);
    }
};

inline Tela<RegistroFormEC> formEC{
    "Form_EC", {.aoCarregar = formEC_Load, .aoFechar = formEC_Fechar, .tópicoDaAjuda = topicos::form_EC}};

} // namespace varenta
