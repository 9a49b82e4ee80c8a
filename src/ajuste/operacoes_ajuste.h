#pragma once

#include "ajuste/tela_de_ajuste.h"

/// What the screens of a fit do, for either kind of sprinkler. Tests are counted from 1.
namespace varenta {

/// The number of tests is chosen: if it is another one, the buttons of the other tests can't be used, and the
/// last result is gone.
void escolherQuantidade(Aspersor aspersor, int ensaios);

void abrirEnsaioDeMalha(Aspersor aspersor, int n);
void abrirEnsaioMóvel(Aspersor aspersor, int n);

/// Checks the tests in use, fits the parameters to them, and lets the results be seen.
void ajustarPelaMalha(Aspersor aspersor);
void ajustarPeloAutopropelido(Aspersor aspersor);

/// Checks the test, and shows its observations beside the estimates of the parameters shown.
void compararMalha(Aspersor aspersor, int n);
void compararMóvel(Aspersor aspersor, int n);

/// Unloads the screen of a fit with all screens that it has opened, and returns to the main window.
void encerrarAjuste(Aspersor aspersor);
/// Unloads the screen of a fit. The screens that it has opened hide; the tests keep what was typed.
void deixarAjuste(Aspersor aspersor);

/// Connects the handlers of the controls that both screens have in common.
template <Aspersor a>
void ligarControlesDeAjuste() {
    auto& c = telaDeAjuste(a).controles;
    c.Option5.aoClicar = [] { escolherQuantidade(a, 1); };
    c.Option6.aoClicar = [] { escolherQuantidade(a, 2); };
    c.Option7.aoClicar = [] { escolherQuantidade(a, 3); };
    c.Command4.aoClicar = [] { abrirEnsaioDeMalha(a, 1); };
    c.Command3.aoClicar = [] { abrirEnsaioDeMalha(a, 2); };
    c.Command6.aoClicar = [] { abrirEnsaioDeMalha(a, 3); };
    c.Command5.aoClicar = [] { ajustarPelaMalha(a); };
    c.Command8.aoClicar = [] { compararMalha(a, 1); };
    c.Command9.aoClicar = [] { compararMalha(a, 2); };
    c.Command10.aoClicar = [] { compararMalha(a, 3); };
    c.Command11.aoClicar = [] { abrirEnsaioMóvel(a, 1); };
    c.Command12.aoClicar = [] { abrirEnsaioMóvel(a, 2); };
    c.Command13.aoClicar = [] { abrirEnsaioMóvel(a, 3); };
    c.Command17.aoClicar = [] { ajustarPeloAutopropelido(a); };
    c.Command14.aoClicar = [] { compararMóvel(a, 1); };
    c.Command15.aoClicar = [] { compararMóvel(a, 2); };
    c.Command16.aoClicar = [] { compararMóvel(a, 3); };
    c.Command1.aoClicar = [] { encerrarAjuste(a); };
}

} // namespace varenta
