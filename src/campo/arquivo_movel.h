#pragma once

#include <string>
#include <vector>

/// The text file of a travelling test: thirteen header lines, the unit of the readings with the collector's
/// diameter where it needs it, and a line of readings for each position across the lane.
namespace varenta {

/// The units of the readings, by their numbers in the file.
enum class UnidadeMóvel { mm = 1, ml = 2 };

/// The file's lines as texts; those that tell of the sprinkler may be empty.
struct ArquivoDoCampo {
    std::string nome, bocais, pressão, anguloJato, vazão, velocidade, anguloGiro;
    std::string linhas, distância, coletores, espaço;
    std::string ventoVelocidade, ventoDireção;
    UnidadeMóvel unidade;
    std::string diâmetro;
    /// Row by row, a reading of each line of collectors.
    std::vector<std::vector<std::string>> leituras;
};

/// The whole text of the file, without a line end after its last row.
std::string textoDoArquivo(const ArquivoDoCampo& arquivo);

/// The message that refuses a test with so many collectors on each side at that spacing (m); null where they
/// are enough.
const char* recusaDosColetores(double espaço, double coletores);

/// The text of the file that `Form_EC` makes.
std::string textoDoEnsaio();

/// Picks the lists' defaults on `Form_EC`.
void escolherListasPadrão();

/// Asks for a file and reads it into `Form_EC`. False where the person thinks better of it, and after the
/// message of a file that is refused: a header that can't be used leaves the lists and the unit at their
/// defaults, readings that can't be used leave the grid filled as far as they went.
bool abrirArquivoMóvel();

} // namespace varenta
