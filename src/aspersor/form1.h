#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void form1_Load();
void form1_Fechar();
void form1_MouseMove();
void form1_Combo_Click();
void form1_hsbPressão_Change();
void form1_unidade_Click();
void form1_Command1_Click();
void form1_Command3_Click(); // stands in simulacao/, which owns the screen that it opens
void form1_Picture1_MouseMove(double x, double y);

/// Characteristics of a catalogue sprinkler: its captions are what the simulation reads.
struct RegistroForm1 {
    std::string Caption;

    Quadro Frame1{.texto = "Características Técnicas"};
    Lista Combo1{.aoClicar = form1_Combo_Click};
    Lista Combo2{.aoClicar = form1_Combo_Click};
    Rolagem hsbPressão{.valor = 50,
                       .mínimo = 30,
                       .máximo = 70,
                       .passoPequeno = 5,
                       .passoGrande = 5,
                       .aoMudar = form1_hsbPressão_Change,
                       .aoRolar = form1_hsbPressão_Change};
    Opcao optMCA{.texto = "m.c.a.", .grupo = "unidade", .marcada = true, .aoClicar = form1_unidade_Click};
    Opcao optKG{.texto = "kgf/cm²", .grupo = "unidade", .aoClicar = form1_unidade_Click};
    Opcao optKPA{.texto = "kPa", .grupo = "unidade", .aoClicar = form1_unidade_Click};
    Rotulo lblPressão{.texto = "50"};
    Rotulo lblVazão, lblRaioAlcance, lblInt;
    /// The jet angle in degrees, the same for every model, nozzle and pressure.
    Rotulo Label12{.texto = "24"};
    /// The radial profile, 1 to 22.
    std::array<Rotulo, 23> lblRaio, lblIntensidade;

    Quadro Frame3{.texto = "Perfil Radial"};
    Desenho Picture1{.aoMoverMouse = form1_Picture1_MouseMove};
    /// Axis captions of r, 0 to 10, and of i, 0 to 6.
    std::array<Rotulo, 11> Label6;
    std::array<Rotulo, 7> Label7;
    Rotulo Label15{.texto = "r ="};
    Rotulo Label16{.texto = "i ="};

    Botao Command1{.texto = "&Fechar", .aoClicar = form1_Command1_Click};
    Botao Command2{.texto = "Ajuda", .aoClicar = mostrarAjuda<topicos::form1>};
    Botao Command3{.texto = "&Avançar >>", .aoClicar = form1_Command3_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Frame1", Frame1);
        visita("Combo1", Combo1);
        visita("Combo2", Combo2);
        visita("hsbPressão", hsbPressão);
        visita("optMCA", optMCA);
        visita("optKG", optKG);
        visita("optKPA", optKPA);
        visita("lblPressão", lblPressão);
        visita("lblVazão", lblVazão);
        visita("lblRaioAlcance", lblRaioAlcance);
        visita("lblInt", lblInt);
        visita("Label12", Label12);
        visita("lblRaio", lblRaio, 1);
        visita("lblIntensidade", lblIntensidade, 1);
        visita("Frame3", Frame3);
        visita("Picture1", Picture1);
        visita("Label6", Label6, 0);
        visita("Label7", Label7, 0);
        visita("Label15", Label15);
        visita("Label16", Label16);
        visita("Command1", Command1);
        visita("Command2", Command2);
        visita("Command3", Command3);
    }
};

inline Tela<RegistroForm1> form1{"form1",
                                 {.aoCarregar = form1_Load,
                                  .aoFechar = form1_Fechar,
                                  .aoMoverMouse = form1_MouseMove,
                                  .tópicoDaAjuda = topicos::form1}};

} // namespace varenta
