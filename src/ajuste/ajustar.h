#pragma once

#include "ajuste/tela_de_ajuste.h"

/// The two fits: each reads the tests in use from their screens, makes them up to the sprinkler's flow,
/// searches for the parameters that fit them best, and writes those to the captions of the calling screen.
/// While they run `Form_AjCar` shows how far they have come; what they raise leaves all captions as they
/// were.
namespace varenta {

/// Against grid tests, `Form_E1` to `Form_E3`: deviations in mm/h.
void ajustarParametrosMalha(const TelaDeAjuste& tela);

/// Against travelling tests, `Form_MiE1` to `Form_MiE3`: deviations in mm.
void ajustarParametrosAutopropelido(const TelaDeAjuste& tela);

/// How many tests are in use: 1 to 3.
int ensaiosEmUso(const ControlesDeAjuste& controles);

} // namespace varenta
