#include "apoio/passo.h"

namespace varenta::teste {
namespace {

/// A word as a roteiro writes it.
std::string escrita(const std::string& palavra) {
    std::string entre = "\"";
    for (const char c : palavra) entre.append(c == '"' ? 2 : 1, c);
    return entre + "\"";
}

} // namespace

std::string Passo::texto() const {
    std::string texto;
    for (const bool resposta : respostas) texto += resposta ? "responder sim\n" : "responder não\n";
    for (const auto& arquivo : arquivos)
        texto += "arquivo " + (arquivo ? escrita(*arquivo) : "cancelar") + "\n";
    for (const auto& palavra : palavras)
        texto += (&palavra == &palavras.front() ? palavra : " " + escrita(palavra));
    return texto + "\n";
}

} // namespace varenta::teste
