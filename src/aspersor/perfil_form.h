#pragma once

#include "comum/ajuda.h"
#include "comum/planilha.h"
#include "comum/tela.h"

#include <array>
#include <string>
#include <vector>

namespace varenta {

void perfilForm_Load();
void perfilForm_Fechar();
void perfilForm_Option1_Click();
void perfilForm_Option2_Click();
void perfilForm_Option3_Click();
void perfilForm_Option4_Click();
void perfilForm_Option5_Click();
void perfilForm_Text5_Change();
bool perfilForm_Text6_KeyPress(int tecla);
void perfilForm_Command1_Click();
void perfilForm_Command4_Click();
void perfilForm_Command6_Click(); // stands in ajuste/, whose screen it opens
void perfilForm_Command7_Click(); // stands in ajuste/
void perfilForm_Command8_Click();
Planilha perfilForm_planilha();

/// The cells have changed: counts the filled ones and draws the collectors anew.
void perfilForm_flexGrid_Change();

/// The header of the grid for readings in mm/h, which stands where nothing else was chosen.
inline constexpr const char* cabeçalhoEmMmPorHora = "^No   |^ Distância - r (m) |^ Intensidade - i (mm/h)";

/// A radial test of a sprinkler out of the catalogue. Its three buttons "&Avançar >>" lie on top of each
/// other, one a road; the menu item that opens the screen leaves one of them.
struct RegistroPerfilForm {
    std::string Caption = "Perfil Radial do Aspersor";

    CaixaTexto Text7, Text9, Text2, Text8, Text1;
    Opcao Option5{.texto = "mm/h", .grupo = "unidade", .marcada = true, .aoClicar = perfilForm_Option5_Click};
    Opcao Option4{.texto = "mm", .grupo = "unidade", .aoClicar = perfilForm_Option4_Click};
    Opcao Option3{.texto = "ml", .grupo = "unidade", .aoClicar = perfilForm_Option3_Click};
    Rotulo Label4{.texto = "Tempo de Ensaio (min)"};
    CaixaTexto Text4;
    Rotulo Label3{.texto = "Diâmetro do Coletor (cm)"};
    CaixaTexto Text3;
    Opcao Option1{
        .texto = "Digitar", .grupo = "entrada", .marcada = true, .aoClicar = perfilForm_Option1_Click};
    Opcao Option2{.texto = "Abrir Arquivo", .grupo = "entrada", .aoClicar = perfilForm_Option2_Click};
    CaixaTexto Text5{.aoMudar = perfilForm_Text5_Change};
    Rotulo Label7{.texto = "Digite os Valores:"};
    /// The name of the current cell, and its entry line.
    Rotulo Label6;
    CaixaTexto Text6{.aoTeclar = perfilForm_Text6_KeyPress};
    Grade flexGrid{.linhas = 2,
                   .colunas = 3,
                   .células = std::vector<std::string>(6),
                   .alinhamentos = std::vector<Alinhamento>(3, Alinhamento::centro),
                   .planilha = perfilForm_planilha};

    /// The rows that a smaller number of data has taken off the grid's end: they come back when it grows
    /// again.
    std::vector<std::array<std::string, 2>> recolhidas;

    Rotulo lblPreenchidas;
    /// How the collectors stand: the sprinkler at the left, a collector at each distance.
    Desenho Picture1;

    Botao Command1{.texto = "&Limpar", .aoClicar = perfilForm_Command1_Click};
    Botao Command3{.texto = "&Fechar", .aoClicar = perfilForm_Fechar};
    Botao Command4{.texto = "&Salvar", .aoClicar = perfilForm_Command4_Click};
    Botao Command5{.texto = "Ajuda", .aoClicar = mostrarAjuda<topicos::perfilForm>};
    Botao Command6{.texto = "&Avançar >>", .aoClicar = perfilForm_Command6_Click};
    Botao Command7{.texto = "&Avançar >>", .aoClicar = perfilForm_Command7_Click};
    Botao Command8{.texto = "&Avançar >>", .aoClicar = perfilForm_Command8_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Text7", Text7);
        visita("Text9", Text9);
        visita("Text2", Text2);
        visita("Text8", Text8);
        visita("Text1", Text1);
        visita("Option5", Option5);
        visita("Option4", Option4);
        visita("Option3", Option3);
        visita("Label4", Label4);
        visita("Text4", Text4);
        visita("Label3", Label3);
        visita("Text3", Text3);
        visita("Option1", Option1);
        visita("Option2", Option2);
        visita("Text5", Text5);
        visita("Label7", Label7);
        visita("Label6", Label6);
        visita("Text6", Text6);
        visita("flexGrid", flexGrid);
        visita("lblPreenchidas", lblPreenchidas);
        visita("Picture1", Picture1);
        visita("Command1", Command1);
        visita("Command3", Command3);
        visita("Command4", Command4);
        visita("Command5", Command5);
        visita("Command6", Command6);
        visita("Command7", Command7);
        visita("Command8", Command8);
    }
};

inline Tela<RegistroPerfilForm> perfilForm{
    "PerfilForm",
    {.aoCarregar = perfilForm_Load, .aoFechar = perfilForm_Fechar, .tópicoDaAjuda = topicos::perfilForm}};

} // namespace varenta
