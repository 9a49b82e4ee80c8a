#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace varenta {

/// `varenta-roteiro [--progresso] ARQUIVO…`: runs the files one after the other, each against a system that
/// is started anew; "-" is `entrada`. The result is the exit status: the greatest of the files' own (a file
/// that goes wrong doesn't keep the next ones from running), or 2 with the usage on `erros` where the
/// arguments are none that the program knows. `--help` and `--version` print and run nothing.
int executarLinhaDeComando(const std::vector<std::string>& argumentos, std::istream& entrada,
                           std::ostream& saída, std::ostream& erros);

} // namespace varenta
