#pragma once

#include "comum/tela.h"

#include <array>
#include <string>

namespace varenta {

/// Where a sprinkler comes from: each has a screen of its own for the fit, and buttons of its own on the
/// screens that both share.
enum class Aspersor { doCatálogo, outro };

enum class Método { malha, autopropelido };

/// What both screens of a fit have in common: the sprinkler's figures, the choice of one to three tests, the
/// buttons of both methods, of which one group shows, and the results. The screens connect the handlers when
/// they load.
struct ControlesDeAjuste {
    Rotulo lblRaioAlcance; // reach, m
    Rotulo Label11;        // jet angle, degrees
    /// The radial profile, 1 to 22.
    std::array<Rotulo, 23> lblRaio, lblIntensidade;

    Opcao Option5{.texto = "1 Ensaio", .grupo = "ensaios", .marcada = true};
    Opcao Option6{.texto = "2 Ensaios", .grupo = "ensaios"};
    Opcao Option7{.texto = "3 Ensaios", .grupo = "ensaios"};

    Botao Command4{.texto = "Ensaio 1"};
    Botao Command3{.texto = "Ensaio 2", .habilitado = false};
    Botao Command6{.texto = "Ensaio 3", .habilitado = false};
    Botao Command5{.texto = "&Ajustar Parâmetros"};
    Botao Command8{.texto = "Ensaio 1: Ajuste", .habilitado = false};
    Botao Command9{.texto = "Ensaio 2: Ajuste", .habilitado = false};
    Botao Command10{.texto = "Ensaio 3: Ajuste", .habilitado = false};

    Botao Command11{.texto = "Ensaio 1"};
    Botao Command12{.texto = "Ensaio 2", .habilitado = false};
    Botao Command13{.texto = "Ensaio 3", .habilitado = false};
    Botao Command17{.texto = "&Ajustar Parâmetros "};
    Botao Command14{.texto = "Ensaio 1: Ajuste", .habilitado = false};
    Botao Command15{.texto = "Ensaio 2: Ajuste", .habilitado = false};
    Botao Command16{.texto = "Ensaio 3: Ajuste", .habilitado = false};

    /// A/R to F/R.
    Rotulo Label18, Label19, Label21, Label23, Label25, Label27;
    /// What these are to be read with, a line each.
    Rotulo lblAviso;
    /// Nozzles and pressure that these were fitted with; empty where there are none.
    std::string ajustadoCom;

    Botao Command7{.texto = "Salvar Parâmetros", .habilitado = false};
    Botao Command1{.texto = "&Fechar"};
    Botao Command2{.texto = "Ajuda"};

    /// The captions of the results, A/R to F/R.
    std::array<Rotulo*, 6> resultados() {
        return {&Label18, &Label19, &Label21, &Label23, &Label25, &Label27};
    }

    template <class Visita>
    void percorrerAspersor(Visita&& visita) {
        visita("lblRaioAlcance", lblRaioAlcance);
        visita("Label11", Label11);
        visita("lblRaio", lblRaio, 1);
        visita("lblIntensidade", lblIntensidade, 1);
    }

    template <class Visita>
    void percorrerAjuste(Visita&& visita) {
        visita("Option5", Option5);
        visita("Option6", Option6);
        visita("Option7", Option7);
        visita("Command4", Command4);
        visita("Command3", Command3);
        visita("Command6", Command6);
        visita("Command5", Command5);
        visita("Command8", Command8);
        visita("Command9", Command9);
        visita("Command10", Command10);
        visita("Command11", Command11);
        visita("Command12", Command12);
        visita("Command13", Command13);
        visita("Command17", Command17);
        visita("Command14", Command14);
        visita("Command15", Command15);
        visita("Command16", Command16);
        visita("Label18", Label18);
        visita("Label19", Label19);
        visita("Label21", Label21);
        visita("Label23", Label23);
        visita("Label25", Label25);
        visita("Label27", Label27);
        visita("lblAviso", lblAviso);
        visita("Command7", Command7);
        visita("Command1", Command1);
        visita("Command2", Command2);
    }
};

} // namespace varenta
