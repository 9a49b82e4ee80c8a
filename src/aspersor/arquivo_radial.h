#pragma once

#include "comum/controles.h"
#include "comum/verificacoes.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// The text file of a radial test: six header lines, the unit of the readings with what it needs, and a line
/// of distance and reading for each point.
namespace varenta {

/// The units of the readings, by their numbers in the file.
enum class UnidadeRadial { mmPorHora = 1, mm = 2, ml = 3 };

struct ArquivoRadial {
    std::string nome, bocais, pressão, anguloJato, vazão, linhas;
    UnidadeRadial unidade;
    /// Test time (min) and collector diameter (cm), as far as the unit needs them.
    std::string tempo, diâmetro;
    /// Distance and reading.
    std::vector<std::array<std::string, 2>> pontos;
};

/// The whole text of the file. What is empty in the first five lines is told as not specified.
std::string textoDoArquivo(const ArquivoRadial& arquivo);

/// The first two columns of data of a grid, row by row.
std::vector<std::array<std::string, 2>> pontosDaGrade(const Grade& grade);

/// The first cell that can't be saved, row by row, the distance before the reading.
RecusaDeCélula recusaAoSalvar(const Grade& flexGrid);

/// The second look at the cells before a save.
RecusaDeCélula recusaNaSegundaPassagem(const Grade& flexGrid);

/// Checks `PerfilForm` and makes the file's text; nothing after the message of a refusal, whose box or cell
/// takes the focus.
std::optional<std::string> textoDoArquivoRadial();

/// Asks for a file and reads it into `PerfilForm`. False where the person thinks better of it, and after the
/// message of a file that is refused. A refusal leaves the header and the unit for mm/h; one of a row of data
/// comes when the boxes show the file's header, and the number of data with it, while the readings still are
/// the old ones.
bool abrirArquivoRadial();

} // namespace varenta
