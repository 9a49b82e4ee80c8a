#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void form4_Load();
void form4_Fechar();
void form4_MouseMove();
void form4_cmbEspaçamento_Change();
void form4_Command5_Click();
void form4_Command10_Click();
void form4_Command7_Click();
void form4_Command8_Click();
void form4_Command9_Click();
void form4_cmdSalvar_Click();
void form4_Picture1_MouseMove(double x, double y);
void form4_Picture2_MouseMove(double x, double y);

/// Uniformity at the centre of the strip: every lane spacing of a list, and one in detail.
struct RegistroForm4 {
    std::string Caption = "Uniformidade no Centro da Faixa";

    /// The sprinkler's and the run's data.
    Rotulo Label2, Label1, Label3, Label4, Label8, Label7, Label37, Label38;

    Lista cmbEspaçamento{.admiteDigitação = true,
                         .aoClicar = form4_cmbEspaçamento_Change,
                         .aoMudar = form4_cmbEspaçamento_Change};
    Grade flexGrid_A{.linhas = 2,
                     .colunas = 4,
                     .células = std::vector<std::string>(8),
                     .alinhamentos = std::vector<Alinhamento>(4, Alinhamento::centro)};
    /// The highest coefficient of uniformity so far, and its spacing.
    Rotulo Label6, Label5;
    /// `CUC` and `UD` against the spacing, with the tick captions of the spacing.
    Desenho Picture2{.aoMoverMouse = form4_Picture2_MouseMove};
    std::array<Rotulo, 9> Label26;
    Rotulo Label13{.texto = "E ="};
    Rotulo Label20{.texto = "UD ="};

    Grade flexGrid_B{.linhas = 2,
                     .colunas = 4,
                     .células = std::vector<std::string>(8),
                     .alinhamentos = std::vector<Alinhamento>(4, Alinhamento::centro)};
    /// `CUC`, `UD` and mean depth of the spacing chosen.
    Rotulo Label16, Label33, Label17;
    /// Depths between two lanes, with the tick captions of distance and depth.
    Desenho Picture1{.aoMoverMouse = form4_Picture1_MouseMove};
    std::array<Rotulo, 10> Label22;
    std::array<Rotulo, 7> Label23;
    Rotulo Label21{.texto = "d ="};
    Rotulo Label30{.texto = "I ="};

    Botao Command1{.texto = "Ajuda", .aoClicar = mostrarAjuda<topicos::form4>};
    Botao Command4{.texto = "&Fechar", .aoClicar = form4_Fechar};
    Botao cmdSalvar{.texto = "&Salvar", .aoClicar = form4_cmdSalvar_Click, .habilitado = false};
    Botao Command7{.texto = "<< &Voltar", .aoClicar = form4_Command7_Click};
    Botao Command8{.texto = "Calcular Maior CUC", .aoClicar = form4_Command8_Click};
    Botao Command9{.texto = "Sobrepor", .aoClicar = form4_Command9_Click, .habilitado = false};
    Botao Command5{.texto = "&Avançar >>", .aoClicar = form4_Command5_Click, .habilitado = false};
    Botao Command10{.texto = "&Avançar >>", .aoClicar = form4_Command10_Click, .habilitado = false};

    RegistroForm4() {
        Label22[0].texto = "0.0";
        Label23[0].texto = "0.0";
    }

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label2", Label2);
        visita("Label1", Label1);
        visita("Label3", Label3);
        visita("Label4", Label4);
        visita("Label8", Label8);
        visita("Label7", Label7);
        visita("Label37", Label37);
        visita("Label38", Label38);
        visita("cmbEspaçamento", cmbEspaçamento);
        visita("flexGrid_A", flexGrid_A);
        visita("Label6", Label6);
        visita("Label5", Label5);
        visita("Picture2", Picture2);
        visita("Label26", Label26, 0);
        visita("Label13", Label13);
        visita("Label20", Label20);
        visita("flexGrid_B", flexGrid_B);
        visita("Label16", Label16);
        visita("Label33", Label33);
        visita("Label17", Label17);
        visita("Picture1", Picture1);
        visita("Label22", Label22, 0);
        visita("Label23", Label23, 0);
        visita("Label21", Label21);
        visita("Label30", Label30);
        visita("Command1", Command1);
        visita("Command4", Command4);
        visita("cmdSalvar", cmdSalvar);
        visita("Command7", Command7);
        visita("Command8", Command8);
        visita("Command9", Command9);
        visita("Command5", Command5);
        visita("Command10", Command10);
    }
};

inline Tela<RegistroForm4> form4{"Form4",
                                 {.aoCarregar = form4_Load,
                                  .aoFechar = form4_Fechar,
                                  .aoMoverMouse = form4_MouseMove,
                                  .tópicoDaAjuda = topicos::form4}};

} // namespace varenta
