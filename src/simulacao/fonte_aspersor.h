#pragma once

#include "comum/controles.h"
#include "simulacao/campo_intensidades.h"

#include <span>
#include <string>

namespace varenta {

/// What tells one sprinkler from another: the texts of the screens that hold it. The same bodies serve a
/// catalogue sprinkler and any other, fed from its own screen.
struct FonteDoAspersor {
    bool doCatálogo;
    /// Its name as titles spell it, as in "KELMO-TX 15".
    std::string nome;
    const Rotulo& raio;            // reach, m
    const Rotulo& vazão;           // flow, m³/h
    const std::string& anguloJato; // degrees
    /// The 22 intensities of the radial profile, mm/h.
    std::span<const Rotulo> lblIntensidade;
};

/// The catalogue sprinkler that `form1` holds.
FonteDoAspersor aspersorDoCatálogo();

/// The measured sprinkler that `Perfil` holds, with the jet angle from `PerfilForm`: empty where none was
/// given.
FonteDoAspersor aspersorMedido();

/// The sprinkler of the road that the screens are on: that of the buttons that `Form7` shows.
FonteDoAspersor aspersorEmUso();

/// The spacing of the points of `Form7`, m.
float espaçamentoDosColetores();

/// Reads the sprinkler, and the run from `Form7`.
DadosDaSimulação lerSimulação(const FonteDoAspersor& fonte);

/// Writes to the screen's notice at how many points of a calculation the wind model's values may make no
/// physical sense, and tells the person; empties the notice where at none.
void avisarDoModelo(Rotulo& lblAviso, const ContagemDoModelo& contagem);

/// Adds to the screen's notice that the sprinkler's jet angle isn't known, and tells the person.
void avisarDoÂngulo(Rotulo& lblAviso, const FonteDoAspersor& fonte);

} // namespace varenta
