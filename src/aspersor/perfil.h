#pragma once

#include "aspersor/perfil_medido.h"
#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void perfil_Load();
void perfil_Fechar();
void perfil_MouseMove();
void perfil_Command2_Click();
void perfil_Command4_Click(); // stands in campo/, whose screen it reads
void perfil_Command5_Click(); // stands in campo/
void perfil_Command6_Click(); // stands in simulacao/, which owns the screen that it opens
void perfil_cmdPerfil_Click();
void perfil_Picture1_MouseMove(double x, double y);

/// Characteristics of a measured sprinkler: its captions are what the simulation reads, as `form1`'s are for
/// a catalogue one. `PerfilForm` or `Form_EC` fills it, and the way back that shows leads there.
struct RegistroPerfil {
    std::string Caption = "Características Técnicas do Aspersor";

    Quadro Frame1{.texto = "Características Técnicas"};
    /// Sprinkler, nozzles and pressure as texts, with their names before them.
    Rotulo Label11, Label13, Label1;
    /// Flow (m³/h) and reach (m) as bare numbers.
    Rotulo Label2, Label17;
    /// Jet angle and mean intensity as texts.
    Rotulo Label12, lblInt;
    /// The radial profile, 1 to 22.
    std::array<Rotulo, 23> lblRaio, lblIntensidade;

    Quadro Frame3{.texto = "Perfil Radial"};
    Desenho Picture1{.aoMoverMouse = perfil_Picture1_MouseMove};
    /// Axis captions of r, 0 to 10, and of i, 0 to 6.
    std::array<Rotulo, 11> Label6;
    std::array<Rotulo, 7> Label7;
    Rotulo Label15{.texto = "r ="};
    Rotulo Label16{.texto = "i ="};

    Botao cmdPerfil{.texto = "Perfil", .aoClicar = perfil_cmdPerfil_Click, .visivel = false};
    Botao Command1{.texto = "&Fechar", .aoClicar = perfil_Fechar};
    Botao Command3{.texto = "Ajuda", .aoClicar = mostrarAjuda<topicos::perfil>};
    Botao Command4{.texto = "&Salvar", .aoClicar = perfil_Command4_Click};
    /// Back to the radial test, and to the field test.
    Botao Command2{.texto = "<< &Voltar", .aoClicar = perfil_Command2_Click};
    Botao Command5{.texto = "<< &Voltar", .aoClicar = perfil_Command5_Click};
    Botao Command6{.texto = "&Avançar >>", .aoClicar = perfil_Command6_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Frame1", Frame1);
        visita("Label11", Label11);
        visita("Label13", Label13);
        visita("Label1", Label1);
        visita("Label2", Label2);
        visita("Label17", Label17);
        visita("Label12", Label12);
        visita("lblInt", lblInt);
        visita("lblRaio", lblRaio, 1);
        visita("lblIntensidade", lblIntensidade, 1);
        visita("Frame3", Frame3);
        visita("Picture1", Picture1);
        visita("Label6", Label6, 0);
        visita("Label7", Label7, 0);
        visita("Label15", Label15);
        visita("Label16", Label16);
        visita("cmdPerfil", cmdPerfil);
        visita("Command1", Command1);
        visita("Command3", Command3);
        visita("Command4", Command4);
        visita("Command2", Command2);
        visita("Command5", Command5);
        visita("Command6", Command6);
    }
};

inline Tela<RegistroPerfil> perfil{"Perfil",
                                   {.aoCarregar = perfil_Load,
                                    .aoFechar = perfil_Fechar,
                                    .aoMoverMouse = perfil_MouseMove,
                                    .tópicoDaAjuda = topicos::perfil}};

} // namespace varenta
