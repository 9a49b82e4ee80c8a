#pragma once

#include "comum/tela.h"

#include <array>
#include <string>
#include <vector>

namespace varenta {

/// What the result screens of both kinds have in common: deviations, greatest values, wind, the top of the
/// colour scale, and buttons in two sets, one for a catalogue sprinkler (`Command2`, `Command1`) and one for
/// any other (`Command3`, `Command4`). The screens connect the handlers when they load.
struct ControlesDeGraf {
    Rotulo Label16{.texto = "Desvio Médio Geral: "};
    Rotulo Label17; // the test's own mean deviation
    Rotulo Label13, Label15;
    Rotulo Label11, Label12; // wind, speed and bearing
    Rotulo Label14;          // top of the colour scale
    Desenho Picture1, Picture2;
    /// What was compared, as the test's screen had it then, for the figures.
    std::vector<std::string> ensaioComparado;
    /// Coordinates beside the map of `Picture2`, m: along its bottom from left to right, along its left side
    /// from bottom to top.
    std::array<Rotulo, 7> Label5, Label6;

    Botao Command2{.texto = "Visualizar Valores"};
    Botao Command3{.texto = "Visualizar Valores"};
    Botao Command1{.texto = "Fechar"};
    Botao Command4{.texto = "Fechar"};

    template <class Visita>
    void percorrerDesvios(Visita&& visita) {
        visita("Label16", Label16);
        visita("Label17", Label17);
        visita("Label13", Label13);
        visita("Label15", Label15);
    }

    template <class Visita>
    void percorrerMapa(Visita&& visita) {
        visita("Picture2", Picture2);
        visita("Label5", Label5, 0);
        visita("Label6", Label6, 0);
        visita("Label14", Label14);
        visita("Label11", Label11);
        visita("Label12", Label12);
        visita("Command2", Command2);
        visita("Command3", Command3);
        visita("Command1", Command1);
        visita("Command4", Command4);
    }
};

} // namespace varenta
