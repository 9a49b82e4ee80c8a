#pragma once

#include <stdexcept>
#include <string>
#include <vector>

/// The text files of the tests under wind: a fixed sequence of lines, then one line of readings a row of the
/// grid, separated by tabs. Blank lines at the end are passed over.
namespace varenta {

/// A file that is no test, with the message that answers it and, once it left the reader, where in the file.
struct EnsaioRecusado : std::runtime_error {
    explicit EnsaioRecusado(const std::string& mensagem) : std::runtime_error{mensagem} {}

    std::string onde;
};

/// What both kinds of file have in common.
struct ArquivoDeEnsaio {
    std::string modelo, bocais, pressão;
    double W = 0;    // wind speed, m/s, 0 to 10
    int direção = 0; // of the wind, degrees, 0 to 360
    int modo = 0;    // of the readings: 1, 2, and 3 for a grid test
    /// As the file has it; empty where the mode needs none.
    std::string diâmetro;
    /// Rows of readings, written with three decimals.
    std::vector<std::vector<std::string>> leituras;
};

struct ArquivoDeMalha : ArquivoDeEnsaio {
    int N = 0;
    double e = 0;
    std::string tempo; // as the file has it; empty where the mode needs none
};

struct ArquivoMóvelComVento : ArquivoDeEnsaio {
    std::string velocidade;       // as the file has it
    double anguloGiro = 0;        // degrees, 180 to 360
    int linhas = 0, cadaLado = 0; // lines of collectors, collectors on each side
    double eL = 0, eC = 0;        // m, between lines and within a line
};

/// Reads a file whole. Raise `EnsaioRecusado`.
ArquivoDeMalha lerArquivoDeMalha(const std::string& caminho);
ArquivoMóvelComVento lerArquivoMóvel(const std::string& caminho);

} // namespace varenta
