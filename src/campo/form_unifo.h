#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void formUnifo_Load();
void formUnifo_Fechar();
void formUnifo_MouseMove();
void formUnifo_cmdCUC_Click();
void formUnifo_cmdSalvar_Click();
void formUnifo_Command2_Click();
void formUnifo_Picture1_MouseMove(double x, double y);
void formUnifo_Picture2_MouseMove(double x, double y);

/// Overlap of a measured moving profile: every lane spacing of a list, and one in detail.
struct RegistroFormUnifo {
    std::string Caption = "Sobreposição do Perfil Móbel do Aspersor:";

    /// The test's data: sprinkler, nozzles, pressure, angle of turn, speed, flow, and the wind.
    Rotulo lblAspersor, Label2, Label1, Label3, Label4, Label8, Label37, Label38;

    Lista cmbEspaçamento{.admiteDigitação = true};
    Grade flexGrid_A{.linhas = 2,
                     .colunas = 4,
                     .células = std::vector<std::string>(8),
                     .alinhamentos = std::vector<Alinhamento>(4, Alinhamento::centro)};
    Rotulo lblMaiorCUC{.texto = "MAIOR CUC!"};
    /// The best spacing.
    Rotulo lblE{.texto = "E = 12 m"};
    /// `CUC` and `UD` against the spacing, with the tick captions of the spacing.
    Desenho Picture2{.aoMoverMouse = formUnifo_Picture2_MouseMove};
    std::array<Rotulo, 9> Label26;
    Rotulo Label13{.texto = "E ="};
    Rotulo Label20{.texto = "UD ="};

    Grade flexGrid_B;
    /// `CUC` and `UD` of the spacing chosen, and its mean depth, collected and calculated from the flow.
    Rotulo Label16, Label33, Label17, lblCalculado;
    /// Depths between two lanes, with the tick captions of distance and depth.
    Desenho Picture1{.aoMoverMouse = formUnifo_Picture1_MouseMove};
    std::array<Rotulo, 10> Label22;
    std::array<Rotulo, 7> Label23;
    Rotulo Label21{.texto = "d ="};
    Rotulo Label30{.texto = "I ="};

    Botao Command1{.texto = "Ajuda", .aoClicar = mostrarAjuda<topicos::formUnifo>};
    Botao Command4{.texto = "&Fechar", .aoClicar = formUnifo_Fechar};
    Botao cmdSalvar{.texto = "&Salvar", .aoClicar = formUnifo_cmdSalvar_Click};
    Botao Command2{.texto = "<< &Voltar", .aoClicar = formUnifo_Command2_Click};
    Botao cmdCUC{.texto = "Sobrepor", .aoClicar = formUnifo_cmdCUC_Click};

    RegistroFormUnifo() {
        Label22[0].texto = "0.0";
        Label23[0].texto = "0.0";
    }

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("lblAspersor", lblAspersor);
        visita("Label2", Label2);
        visita("Label1", Label1);
        visita("Label3", Label3);
        visita("Label4", Label4);
        visita("Label8", Label8);
        visita("Label37", Label37);
        visita("Label38", Label38);
        visita("cmbEspaçamento", cmbEspaçamento);
        visita("flexGrid_A", flexGrid_A);
        visita("lblMaiorCUC", lblMaiorCUC);
        visita("lblE", lblE);
        visita("Picture2", Picture2);
        visita("Label26", Label26, 0);
        visita("Label13", Label13);
        visita("Label20", Label20);
        visita("flexGrid_B", flexGrid_B);
        visita("Label16", Label16);
        visita("Label33", Label33);
        visita("Label17", Label17);
        visita("lblCalculado", lblCalculado);
        visita("Picture1", Picture1);
        visita("Label22", Label22, 0);
        visita("Label23", Label23, 0);
        visita("Label21", Label21);
        visita("Label30", Label30);
        visita("Command1", Command1);
        visita("Command4", Command4);
        visita("cmdSalvar", cmdSalvar);
        visita("Command2", Command2);
        visita("cmdCUC", cmdCUC);
    }
};

inline Tela<RegistroFormUnifo> formUnifo{"FormUnifo",
                                         {.aoCarregar = formUnifo_Load,
                                          .aoFechar = formUnifo_Fechar,
                                          .aoMoverMouse = formUnifo_MouseMove,
                                          .tópicoDaAjuda = topicos::formUnifo}};

} // namespace varenta
