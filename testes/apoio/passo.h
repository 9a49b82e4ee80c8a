#pragma once

#include <optional>
#include <string>
#include <vector>

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

} // namespace varenta::teste
