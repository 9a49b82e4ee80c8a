#pragma once

#include "comum/controles.h"

#include <span>
#include <string>
#include <string_view>

/// The selection of a catalogue sprinkler: model, nozzles and pressure on a screen, and what follows from
/// them on the same screen.
namespace varenta {

/// What a menu item puts on the screen for its model.
struct ModeloDeAspersor {
    /// Caption of the screen; every dispatch on the model compares with it.
    std::string_view caption;
    int primeiroBocal, últimoBocal; // mm, in steps of 2
    bool temAuxiliar;
    std::string_view bocalPrincipal, bocalAuxiliar; // defaults
    int pressãoMínima;                              // m.c.a.; the largest is 70 for all
    /// "TX15", and the same name as captions spell it, "TX 15".
    std::string_view nome, nomeEspaçado;
};

extern const ModeloDeAspersor modeloTX15, modeloTX20, modeloTX30;

/// The model whose caption that is; null for any other caption.
const ModeloDeAspersor* modeloDaCaption(std::string_view caption);

/// The nozzles that both lists show, as bare numbers: "18 x 6", or "38" for a model of one jet.
std::string bocaisDasListas(const ModeloDeAspersor& modelo, const Lista& Combo1, const Lista& Combo2);
/// The same as a caption: "Bocais: 18 x 6 mm", "Bocal: 38 mm".
std::string rótuloDosBocais(const ModeloDeAspersor& modelo, const Lista& Combo1, const Lista& Combo2);

/// The controls of the screen that holds the selection.
struct SeleçãoDeAspersor {
    std::string& Caption;
    Lista& Combo1;
    Lista& Combo2;
    Rolagem& hsbPressão;
    const Opcao& optMCA;
    const Opcao& optKG;
    const Opcao& optKPA;
    Rotulo& lblPressão;
    Rotulo& lblVazão;
    Rotulo& lblRaioAlcance;
    Rotulo& lblInt;
    std::span<Rotulo> lblRaio;        // points 1 to 22
    std::span<Rotulo> lblIntensidade; // points 1 to 22
    Desenho& Picture1;
    std::span<Rotulo> Label6, Label7;
};

/// Fills the lists, picks the default nozzles and sets the range of pressure.
void prepararSeleção(const SeleçãoDeAspersor& seleção, const ModeloDeAspersor& modelo);

/// Writes the pressure in the unit chosen.
void escreverPressão(const SeleçãoDeAspersor& seleção);

/// Evaluates the sprinkler selected, writes flow (m³/h), reach (m), mean intensity (mm/h) and the 22 points
/// of the radial profile, and draws its chart. Nothing for a caption of no model.
void atualizarAspersor(const SeleçãoDeAspersor& seleção);

/// The selection of `form1`, and its evaluation.
SeleçãoDeAspersor seleçãoDeForm1();
void atualizarAspersor();

} // namespace varenta
