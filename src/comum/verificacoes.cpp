#include "comum/verificacoes.h"

#include "comum/numeros.h"

namespace varenta {

bool nãoÉNumérico(const std::string& texto) { return !éNumérico(texto); }
bool éVazio(const std::string& texto) { return texto.empty(); }
bool nãoÉPositivo(const std::string& texto) { return lerEstrito(texto) <= 0; }

const char* primeiraRecusa(std::span<const VerificaçãoDeTexto> verificações, const std::string& texto) {
    for (const auto& [recusa, mensagem] : verificações)
        if (recusa(texto)) return mensagem;
    return nullptr;
}

} // namespace varenta
