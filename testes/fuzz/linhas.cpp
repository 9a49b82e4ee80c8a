#include "fuzz/linhas.h"

#include <algorithm>

namespace varenta::fuzz {

Linhas linhasDe(std::string_view texto) {
    Linhas linhas;
    while (!texto.empty()) {
        const auto quebra = std::min(texto.find('\n'), texto.size());
        auto linha = texto.substr(0, quebra);
        texto.remove_prefix(std::min(quebra + 1, texto.size()));
        if (linha.ends_with('\r')) linha.remove_suffix(1);
        linhas.emplace_back(linha);
    }
    return linhas;
}

} // namespace varenta::fuzz
