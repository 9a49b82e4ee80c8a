#pragma once

#include "comum/controles.h"

#include <string>

/// The reports that the screens save as text, their lines ended by CR LF.
namespace varenta {

/// Asks for a file and writes the report there; where it can't be written, tells the reason.
void salvarRelatório(const std::string& relatório);

/// The rows of a table as a report writes them, a tab after each cell. The first row with an empty first cell
/// ends the table and is written too, also where the grid has no such row.
std::string linhasDoRelatório(const Grade& grade);

/// The spacings of `Form4`.
std::string relatórioDoCentro();

/// The strip: the run, the figures of start, end and whole, and `Form8`'s table.
std::string relatórioDaFaixa();

/// The same with `Form9`'s table.
std::string relatórioDasEficiências();

} // namespace varenta
