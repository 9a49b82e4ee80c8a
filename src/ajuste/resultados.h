#pragma once

#include "ajuste/controles_ajuste.h"

/// What the screens show of a fit once it has ended.
namespace varenta {

/// Hides the comparisons and the lists of estimates, whose parameters are gone.
void esconderResultados();

/// The parameters on the screen are those of a fit with the sprinkler as it is selected now.
void anotarAjuste(Aspersor aspersor);

/// The parameters have gone from the screen.
void esquecerAjuste(Aspersor aspersor);

/// Shows what the parameters on the screen are to be read with: that their fit had no jet angle, or that
/// another nozzle or pressure is selected now. What was not there before is told to the person, too.
void mostrarAvisos(Aspersor aspersor);

} // namespace varenta
