#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void form5_Load();
void form5_Fechar();
void form5_MouseMove();
void form5_entrada_Change();
void form5_Combo1_Click();
void form5_Combo2_Click();
void form5_chkParada_Click();
void form5_Check2_Click();
void form5_Command3_Click();
void form5_Command5_Click();
void form5_Command9_Click();
void form5_Command10_Click();
void form5_Command11_Click();
void form5_Command12_Click();
void form5_Command15_Click();
void form5_Command16_Click();
void form5_Picture2_MouseMove(double x, double y);

/// The whole irrigated strip: how it begins and ends, and how evenly it is watered. Its buttons come in
/// pairs, one for a catalogue sprinkler (`Command10`, `Command12`, `Command15`) and one for any other
/// (`Command9`, `Command11`, `Command16`); the screen's opener hides one of them.
struct RegistroForm5 {
    std::string Caption = "Uniformidade ao Longo da Faixa Irrigada";

    /// The run's data.
    Rotulo Label38, Label37, Label40, Label39, Label50, Label51, Label52, Label53, Label54;
    /// Spacing of the collectors, m.
    Rotulo Label43;

    /// Length of the carrier lane, m.
    CaixaTexto txtMan{.texto = "300", .aoMudar = form5_entrada_Change};
    /// How the strip begins: its length before the cart's start, and the stop there.
    Lista Combo1{.itens = {"Igual ao Raio", "Início da Movimentação", "Outro Valor"},
                 .texto = "Início da Movimentação",
                 .aoClicar = form5_Combo1_Click};
    CaixaTexto txtOutro{.aoMudar = form5_entrada_Change};
    Verificacao chkParada{.texto = "Parada no início", .aoClicar = form5_chkParada_Click};
    Rotulo lblTpi{.texto = "Tpi =", .habilitado = false};
    CaixaTexto txtParada{.aoMudar = form5_entrada_Change, .habilitado = false};
    Rotulo lblTpiUnidade{.texto = "min", .habilitado = false};
    /// How it ends, in the same way.
    Lista Combo2{.itens = {"Igual ao Raio", "Fim da Movimentação", "Outro Valor"},
                 .texto = "Fim da Movimentação",
                 .aoClicar = form5_Combo2_Click};
    CaixaTexto Text3{.aoMudar = form5_entrada_Change};
    Verificacao Check2{.texto = "Parada no final", .aoClicar = form5_Check2_Click};
    Rotulo lblTpf{.texto = "Tpf =", .habilitado = false};
    CaixaTexto Text4{.aoMudar = form5_entrada_Change, .habilitado = false};
    Rotulo lblTpfUnidade{.texto = "min", .habilitado = false};

    /// Plan of the lanes with the lengths of start, lane and end, the spacing and the angle.
    Desenho Picture3;
    Rotulo lblCi, lblCc, lblCf;
    Rotulo Label68, Label69;

    /// `CUC`, mean depth and `UD` of the start, the centre, the end and the whole strip.
    Rotulo Label2, Label1, Label58;
    Rotulo Label5, Label7, Label66;
    Rotulo Label3, Label4, Label60;
    Rotulo Label6, Label8, Label63;
    /// Tells at how many points the last calculation can't be trusted; empty where at none.
    Rotulo lblAviso;

    /// Mean depth along the strip, with the tick captions of position and depth.
    Desenho Picture2{.aoMoverMouse = form5_Picture2_MouseMove};
    std::array<Rotulo, 9> Label33;
    std::array<Rotulo, 7> Label34;
    Rotulo lblEf{.texto = "Ef ="};
    Rotulo lblI{.texto = "I ="};

    Botao Command9{.texto = "&Calcular CUC", .aoClicar = form5_Command9_Click};
    Botao Command10{.texto = "&Calcular CUC", .aoClicar = form5_Command10_Click};
    Botao Command3{.texto = "Visulizar Valores", .aoClicar = form5_Command3_Click, .habilitado = false};
    Botao Command11{.texto = "Eficiências", .aoClicar = form5_Command11_Click, .habilitado = false};
    Botao Command12{.texto = "Eficiências", .aoClicar = form5_Command12_Click, .habilitado = false};
    Botao Command15{.texto = "Gráfico", .aoClicar = form5_Command15_Click, .habilitado = false};
    Botao Command16{.texto = "Gráfico", .aoClicar = form5_Command16_Click, .habilitado = false};
    Botao Command4{.texto = "Ajuda", .aoClicar = mostrarAjuda<topicos::form5>};
    Botao Command2{.texto = "&Fechar", .aoClicar = form5_Fechar};
    Botao Command5{.texto = "<< &Voltar", .aoClicar = form5_Command5_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label38", Label38);
        visita("Label37", Label37);
        visita("Label40", Label40);
        visita("Label39", Label39);
        visita("Label50", Label50);
        visita("Label51", Label51);
        visita("Label52", Label52);
        visita("Label53", Label53);
        visita("Label54", Label54);
        visita("Label43", Label43);
        visita("txtMan", txtMan);
        visita("Combo1", Combo1);
        visita("txtOutro", txtOutro);
        visita("chkParada", chkParada);
        visita("lblTpi", lblTpi);
        visita("txtParada", txtParada);
        visita("lblTpiUnidade", lblTpiUnidade);
        visita("Combo2", Combo2);
        visita("Text3", Text3);
        visita("Check2", Check2);
        visita("lblTpf", lblTpf);
        visita("Text4", Text4);
        visita("lblTpfUnidade", lblTpfUnidade);
        visita("Picture3", Picture3);
        visita("lblCi", lblCi);
        visita("lblCc", lblCc);
        visita("lblCf", lblCf);
        visita("Label68", Label68);
        visita("Label69", Label69);
        visita("Label2", Label2);
        visita("Label1", Label1);
        visita("Label58", Label58);
        visita("Label5", Label5);
        visita("Label7", Label7);
        visita("Label66", Label66);
        visita("Label3", Label3);
        visita("Label4", Label4);
        visita("Label60", Label60);
        visita("Label6", Label6);
        visita("Label8", Label8);
        visita("Label63", Label63);
        visita("lblAviso", lblAviso);
        visita("Picture2", Picture2);
        visita("Label33", Label33, 0);
        visita("Label34", Label34, 0);
        visita("lblEf", lblEf);
        visita("lblI", lblI);
        visita("Command9", Command9);
        visita("Command10", Command10);
        visita("Command3", Command3);
        visita("Command11", Command11);
        visita("Command12", Command12);
        visita("Command15", Command15);
        visita("Command16", Command16);
        visita("Command4", Command4);
        visita("Command2", Command2);
        visita("Command5", Command5);
    }
};

inline Tela<RegistroForm5> form5{"Form5",
                                 {.aoCarregar = form5_Load,
                                  .aoFechar = form5_Fechar,
                                  .aoMoverMouse = form5_MouseMove,
                                  .tópicoDaAjuda = topicos::form5}};

} // namespace varenta
