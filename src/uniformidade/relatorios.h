#pragma once

#include "comum/controles.h"

#include <string>

/// The reports that the screens save as text, their lines ended by CR LF.
namespace varenta {

/// Asks for a file and writes the report there; where it can't be written, tells the reason. The report is
/// made only when a file was chosen.
void salvarRelatório(std::string (*relatório)());

/// The spacings of `Form4`.
std::string relatórioDoCentro();

/// The strip: the run, the figures of start, end and whole, and `Form8`'s table.
std::string relatórioDaFaixa();

/// The same with `Form9`'s table.
std::string relatórioDasEficiências();

} // namespace varenta
