#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void form7_Load();
void form7_Fechar();
void form7_MouseMove();
void form7_entrada_Change();
void form7_Text1_Change();
void form7_HScroll1_Change();
void form7_HScroll2_Change();
void form7_HScroll2_Scroll();
void form7_HScroll3_Change();
void form7_HScroll4_Change();
void form7_HScroll5_Change();
void form7_Command1_Click();
void form7_Command2_Click(); // stands in uniformidade/, whose screens it writes
void form7_Command3_Click();
void form7_Command4_Click();
void form7_Command7_Click();
void form7_Command6_Click();
void form7_Command8_Click();        // stands in uniformidade/
void form7_Command9_Click();        // stands in uniformidade/
void form7_cmdUniformidade_Click(); // stands in uniformidade/
void form7_cmdSair_Click();
void form7_Picture2_MouseMove(double x, double y);

/// Transversal profile under wind. Its buttons come in two sets, one for a catalogue sprinkler (`Command2`,
/// `Command3`, `cmdUniformidade`, `Command4`) and one for any other (`Command8`, `Command7`, `Command9`,
/// `Command6`); the screen's opener hides one of them.
struct RegistroForm7 {
    std::string Caption = "Perfil Transversal de Aplicação de Água - Com Vento";

    Rotulo Label20, Label19, Label18, Label27, Label28;

    CaixaTexto Text1{.texto = "50", .aoMudar = form7_Text1_Change};
    Lista Combo2{.admiteDigitação = true, .aoClicar = form7_entrada_Change, .aoMudar = form7_entrada_Change};
    CaixaTexto Text2{.texto = "0.0362", .aoMudar = form7_entrada_Change};
    CaixaTexto Text3{.texto = "0.0131", .aoMudar = form7_entrada_Change};
    CaixaTexto Text4{.texto = "-0.0097", .aoMudar = form7_entrada_Change};
    CaixaTexto Text5{.texto = "0.0026", .aoMudar = form7_entrada_Change};
    CaixaTexto Text6{.texto = "0.4003", .aoMudar = form7_entrada_Change};
    CaixaTexto Text7{.texto = "-0.3361", .aoMudar = form7_entrada_Change};
    Rolagem HScroll1{.valor = 0,
                     .mínimo = 0,
                     .máximo = 360,
                     .passoPequeno = 1,
                     .passoGrande = 10,
                     .aoMudar = form7_HScroll1_Change,
                     .aoRolar = form7_HScroll1_Change};
    Rotulo Label2{.texto = "0"};
    Rolagem HScroll2{.valor = 0,
                     .mínimo = 0,
                     .máximo = 100,
                     .passoPequeno = 1,
                     .passoGrande = 10,
                     .aoMudar = form7_HScroll2_Change,
                     .aoRolar = form7_HScroll2_Scroll};
    Rotulo Label17{.texto = "0.0"};
    Rolagem HScroll3{.valor = 60,
                     .mínimo = 0,
                     .máximo = 178,
                     .passoPequeno = 1,
                     .passoGrande = 10,
                     .aoMudar = form7_HScroll3_Change,
                     .aoRolar = form7_HScroll3_Change};
    Rotulo Label24{.texto = "60"};
    Rolagem HScroll4{.valor = 60,
                     .mínimo = 0,
                     .máximo = 178,
                     .passoPequeno = 1,
                     .passoGrande = 10,
                     .aoMudar = form7_HScroll4_Change,
                     .aoRolar = form7_HScroll4_Change};
    Rotulo Label33{.texto = "60"};
    Rolagem HScroll5{.valor = 0,
                     .mínimo = -360,
                     .máximo = 360,
                     .passoPequeno = 1,
                     .passoGrande = 10,
                     .aoMudar = form7_HScroll5_Change,
                     .aoRolar = form7_HScroll5_Change};
    Rotulo Label36{.texto = "0"};
    Rotulo Label35{.texto = "240"};

    Desenho Picture1;
    Rotulo Label23{.texto = "Velocidade = 50 m/h"};
    Rotulo Label29{.texto = "Vento: 0.0 m/s"};
    Rotulo Label37{.texto = "Rotação = 0º"};
    Rotulo Label39{.texto = " 60º"};
    Rotulo Label41{.texto = "60º"};
    Rotulo Labelang{.texto = "240º"};

    Grade flexA{.linhas = 2,
                .colunas = 3,
                .células = std::vector<std::string>(6),
                .alinhamentos = std::vector<Alinhamento>(3, Alinhamento::centro)};
    /// Tells at how many points the last calculation can't be trusted; empty where at none.
    Rotulo lblAviso;
    Desenho Picture2{.aoMoverMouse = form7_Picture2_MouseMove};
    /// Tick captions of the distance, 0 to 8, and of the depth, 0 to 5.
    std::array<Rotulo, 9> Label3;
    std::array<Rotulo, 6> Label4;
    Rotulo Label14d{.texto = "d ="};
    Rotulo Label14I{.texto = "I ="};

    Botao Command1{.texto = "Abrir Arquivo", .aoClicar = form7_Command1_Click};
    Botao Command2{.texto = "&Calcular Lâminas", .aoClicar = form7_Command2_Click};
    Botao Command8{.texto = "&Calcular Lâminas", .aoClicar = form7_Command8_Click};
    Botao Command3{.texto = "&Gráfico Intensidades", .aoClicar = form7_Command3_Click, .habilitado = false};
    Botao Command7{.texto = "&Gráfico Intensidades", .aoClicar = form7_Command7_Click, .habilitado = false};
    Botao Command4{.texto = "<< &Voltar", .aoClicar = form7_Command4_Click};
    Botao Command6{.texto = "<< &Voltar", .aoClicar = form7_Command6_Click};
    Botao cmdUniformidade{
        .texto = "&Avançar >>", .aoClicar = form7_cmdUniformidade_Click, .habilitado = false};
    Botao Command9{.texto = "&Avançar >>", .aoClicar = form7_Command9_Click, .habilitado = false};
    Botao Command5{.texto = "Ajuda", .aoClicar = mostrarAjuda<topicos::form7>};
    Botao cmdSair{.texto = "&Fechar", .aoClicar = form7_cmdSair_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label20", Label20);
        visita("Label19", Label19);
        visita("Label18", Label18);
        visita("Label27", Label27);
        visita("Label28", Label28);
        visita("Text1", Text1);
        visita("Combo2", Combo2);
        visita("Text2", Text2);
        visita("Text3", Text3);
        visita("Text4", Text4);
        visita("Text5", Text5);
        visita("Text6", Text6);
        visita("Text7", Text7);
        visita("HScroll1", HScroll1);
        visita("Label2", Label2);
        visita("HScroll2", HScroll2);
        visita("Label17", Label17);
        visita("HScroll3", HScroll3);
        visita("Label24", Label24);
        visita("HScroll4", HScroll4);
        visita("Label33", Label33);
        visita("HScroll5", HScroll5);
        visita("Label36", Label36);
        visita("Label35", Label35);
        visita("Picture1", Picture1);
        visita("Label23", Label23);
        visita("Label29", Label29);
        visita("Label37", Label37);
        visita("Label39", Label39);
        visita("Label41", Label41);
        visita("Labelang", Labelang);
        visita("flexA", flexA);
        visita("lblAviso", lblAviso);
        visita("Picture2", Picture2);
        visita("Label3", Label3, 0);
        visita("Label4", Label4, 0);
        visita("Label14d", Label14d);
        visita("Label14I", Label14I);
        visita("Command1", Command1);
        visita("Command2", Command2);
        visita("Command8", Command8);
        visita("Command3", Command3);
        visita("Command7", Command7);
        visita("Command4", Command4);
        visita("Command6", Command6);
        visita("cmdUniformidade", cmdUniformidade);
        visita("Command9", Command9);
        visita("Command5", Command5);
        visita("cmdSair", cmdSair);
    }
};

inline Tela<RegistroForm7> form7{"Form7",
                                 {.aoCarregar = form7_Load,
                                  .aoFechar = form7_Fechar,
                                  .aoMoverMouse = form7_MouseMove,
                                  .tópicoDaAjuda = topicos::form7}};

} // namespace varenta
