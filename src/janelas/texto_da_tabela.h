#pragma once

#include <QItemSelection>
#include <QString>

#include <string>

namespace varenta {
struct FormatoDeTabela;
}

/// A part of a table, to be written as text.
struct ParteDeTabela {
    /// Rows and columns that hold something of it are written; what lies between are empty cells.
    QItemSelection seleção;
    bool cabeçalhos;
    /// The header of the column of row headers.
    QString canto;
};

/// The selected cells of a table, a line a row.
std::string textoDaTabela(const ParteDeTabela& parte, const varenta::FormatoDeTabela& formato);

/// Asks for a name and saves the part there: with tabs under a name that ends in ".txt", otherwise as CSV. An
/// existing file is replaced after a question, and a failure told.
void salvarTabela(const ParteDeTabela& parte);
