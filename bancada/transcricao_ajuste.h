#pragma once

#include "ajuste/ensaio.h"

#include <cstddef>
#include <vector>

/// A fit as plainly as its text can be written down, every sum evaluated whenever it is named: the yardstick
/// of the fits, as `transcricao.h` is of the model. Compiled with -O2, not to be made faster.
namespace varenta::bancada {

struct AjusteTranscrito {
    Parametros p{};
    /// The mean deviations in the order in which they are told; the last is the result's.
    std::vector<double> desvios;
    std::size_t avaliações = 0;
};

AjusteTranscrito ajusteTranscrito(const std::vector<EnsaioDeMalha>& ensaios);
AjusteTranscrito ajusteTranscrito(const std::vector<EnsaioMóvel>& ensaios);

} // namespace varenta::bancada
