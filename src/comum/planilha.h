#pragma once

#include "comum/controles.h"
#include "comum/texto_tabela.h"

#include <string>
#include <string_view>

namespace varenta {

inline constexpr int teclaEnter = 13;

/// A grid together with the text box that stands in for its current cell. A screen with such a grid makes
/// this view of its own controls on demand and lends it to the functions below.
struct Planilha {
    Grade& grade;
    CaixaTexto& entrada;
    /// Shows the name of the current cell: its row's number, " : " and its column's header.
    Rotulo& nomeDaCélula;
    /// The box with the number of data rows, where the screen has one: entries wait until it is numeric.
    CaixaTexto* contagem;
    /// Typing mode: the entry line is in sight. Off while the grid shows a file that was loaded: it takes no
    /// entry then.
    bool digitação;
    /// The format in which a data column (from 1) writes its numbers.
    std::string_view (*padrãoDaColuna)(int coluna);
    /// A cell was written through the entry line.
    Acao aoMudar = nullptr;
};

/// The current cell was entered: the entry line takes its text and the cell's name is shown.
void entrarNaCélula(const Planilha& planilha);

/// The current cell is left: what the entry line holds goes to the cell, a number in its column's format, a
/// text that is no number as typed (a later check answers it), an empty one empties the cell.
void sairDaCélula(const Planilha& planilha);

/// The current cell is left if it was being typed into, and entered for typing. To be done before the entry
/// line shows: one in sight holds what its cell does.
void voltarADigitar(Planilha planilha);

/// Gives the grid its size. Where the current cell moves with it, the entry line takes the new one's text, so
/// that nothing of the old one is written there.
void dimensionar(const Planilha& planilha, int linhas, int colunas);

/// The message that refuses a grid of so many data rows and columns; empty where it may be so large. To be
/// asked before the numbers that a person typed, or a file holds, are made whole and memory is.
std::string recusaDoTamanho(double linhas, double colunas);

/// Empties all data cells.
void esvaziarDados(Grade& grade);

/// "Células preenchidas: 3 de 10", of the data cells.
std::string textoDePreenchidas(const Grade& grade);

/// Shows the name of the current cell, which its headers make, and leaves the entry line as it is.
void nomearCélula(const Planilha& planilha);

/// Leaves the current cell and enters another. Raises "Índice fora dos limites" outside the grid.
void irParaCélula(const Planilha& planilha, int linha, int coluna);

/// Types a block into the grid, cell by cell through the entry line, its first cell into the current one, and
/// comes back to that. A block that the grid has no room for, or with a cell that holds no number (an empty
/// one neither), is refused whole by a message that names the cell.
void colar(const Planilha& planilha, const Bloco& bloco);

/// The grid has got the focus: it passes to the entry line with its whole text selected.
void receberFoco(const Planilha& planilha);

/// A key pressed in the entry line. Enter takes the value over and moves on: to the next column, after the
/// last one to the first data column of the next row; in the last cell of all it stays. While the row count
/// is no number, any key is answered by a message instead. Returns whether the key was used up.
bool teclar(const Planilha& planilha, int tecla);

} // namespace varenta
