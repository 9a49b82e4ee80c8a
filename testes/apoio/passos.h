#pragma once

#include <optional>
#include <string>
#include <vector>

/// Roteiros as lists of acts, for tests that do something at each of them.
namespace varenta::teste {

/// One act of a person, with the answers that it may be asked for.
struct Passo {
    std::vector<bool> respostas;
    /// Nothing for a dialog that is cancelled.
    std::vector<std::optional<std::string>> arquivos;
    /// The words of the command.
    std::vector<std::string> palavras;

    /// The lines of a roteiro that does it.
    std::string texto() const;
};

/// The acts of a roteiro's text; what it only shows is left out. Paths that dialogs are answered stand
/// relative to `pasta`.
std::vector<Passo> passosDe(const std::string& roteiro, const std::string& pasta);

/// Does it: queues its answers for the tests' platform, in place of any left over, and runs the act. Raises
/// `AtoRecusado` where a person could not do it.
void executar(const Passo& passo);

} // namespace varenta::teste
