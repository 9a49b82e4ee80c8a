#pragma once

#include <string>

namespace varenta {

/// Reads a sprinkler with its wind parameters from a text file into `Form7`, line by line: sprinkler,
/// nozzles, pressure, flow, reach, parameters A to F. The first line that its check refuses ends the reading
/// with its message; what was written before stays.
void lerArquivoDeParametros(const std::string& caminho);

} // namespace varenta
