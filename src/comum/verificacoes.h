#pragma once

#include <span>
#include <string>

namespace varenta {

/// A check of a text that a person typed: what refuses it, and the message then.
struct VerificaçãoDeTexto {
    bool (*recusa)(const std::string& texto);
    const char* mensagem;
};

bool nãoÉNumérico(const std::string& texto);
bool éVazio(const std::string& texto);
/// Whether a numeric text is at or below 0.
bool nãoÉPositivo(const std::string& texto);

/// The message of the first check that refuses the text; null where all accept it.
const char* primeiraRecusa(std::span<const VerificaçãoDeTexto> verificações, const std::string& texto);

} // namespace varenta
