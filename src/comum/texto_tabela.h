#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Tables as text, on their way between the program and a spreadsheet: there the decimal sign is a comma,
/// in the program it is the point, whatever the machine's locale.
namespace varenta {

/// A typed text with its decimal comma as a point. With another comma or a point besides it stays as it is:
/// nobody can tell what it means, and the check that follows refuses it.
std::string comPonto(std::string_view texto);

/// A number with its point as a comma; a text that is no number as it is.
std::string comVírgula(std::string_view texto);

/// How the rows of a table are written.
struct FormatoDeTabela {
    /// What the whole text begins with.
    std::string_view início, separador, fimDeLinha;
    /// A cell's text as it stands in the row.
    std::string (*célula)(std::string_view texto);
};

/// What goes to the clipboard: tabs and line feeds, numbers with a comma.
extern const FormatoDeTabela formatoDeCópia;
/// UTF-8 with its mark, semicolons, CR LF, numbers with a comma, quotation marks where a cell needs them.
extern const FormatoDeTabela formatoCsv;
/// Tabs and CR LF, cells as they stand on the screen.
extern const FormatoDeTabela formatoDeTexto;

/// Adds a row of a table, with its end.
void acrescentarLinha(std::string& texto, std::span<const std::string> células,
                      const FormatoDeTabela& formato);

/// Cells by rows, all of one length.
using Bloco = std::vector<std::vector<std::string>>;

/// The cells of a text that a spreadsheet copied: tabs between them, or semicolons where there is no tab;
/// LF or CR LF between the rows, of which the last may have its end or not. Decimal commas become points,
/// and what a row lacks are empty cells.
Bloco separarBloco(std::string_view texto);

/// Whether the text has more than one cell.
bool éBloco(std::string_view texto);

} // namespace varenta
