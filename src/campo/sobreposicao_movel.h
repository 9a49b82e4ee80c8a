#pragma once

#include "campo/leituras_ec.h"
#include "uniformidade/sobreposicao.h"

#include <string>
#include <vector>

namespace varenta {

/// The lines of a measured profile, each overlapped by itself at one lane spacing: what falls at each of the
/// n positions, line by line, and the mean of the lines.
struct SobreposiçãoMedida {
    std::vector<std::vector<double>> linhas;
    std::vector<double> média;
    /// All values of the lines, one line after another: what the statistics run over.
    std::vector<double> valores;
};

/// Raises "Índice fora dos limites" for a spacing E (m) that leaves no position.
SobreposiçãoMedida sobreporMedida(const LeiturasDoEnsaio& ensaio, double E);

/// The spacings that are offered for a test that is `largura` m wide: those of a sprinkler whose wetted width
/// that is, from 6 m on.
std::vector<std::string> espaçamentosParaLargura(double largura);

/// The depth (mm) that a flow Q (m³/h) gives at a lane spacing E (m) and a speed V (m/h).
double lâminaCalculada(double Q, double E, double V);

/// Opens `FormUnifo` for the test of `Form_EC`: overlaps the profile at every spacing of the list, chooses
/// the best and overlaps it in detail. Raises as the statistics do.
void prepararSobreposicao();

/// Overlaps the measured profile at the spacing of the list's text. Raises as the statistics do.
void sobreporMovel();

/// The report of `FormUnifo`.
std::string relatórioDoMóvel();

} // namespace varenta
