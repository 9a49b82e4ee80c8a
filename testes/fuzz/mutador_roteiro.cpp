#include "comum/tela.h"
#include "shell/sistema.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

/// Scripts out of the program's own names: bytes changed at random hardly ever name a control.

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* dados, std::size_t tamanho, std::size_t máximo);

namespace varenta::fuzz {
namespace {

/// Every control of every screen, as a script names it, and every screen.
std::vector<std::string> todosOsNomes() {
    std::vector<std::string> nomes;
    iniciarSistema();
    for (auto* tela : telasEmOrdem()) {
        tela->carregar();
        nomes.push_back(tela->nome());
        for (const auto& elemento : tela->elementos())
            nomes.push_back(tela->nome() + '.' + elemento.nomeCompleto());
    }
    iniciarSistema();
    return nomes;
}

template <class Lista>
const auto& umDe(const Lista& lista, std::minstd_rand& gerador) {
    return lista[gerador() % lista.size()];
}

std::string umaLinha(std::minstd_rand& gerador) {
    static const auto nomes = todosOsNomes();
    static const std::array<std::string, 16> comandos = {
        "clicar",    "escolher", "digitar",       "rolar",   "arrastar", "celula", "mover", "fechar",
        "responder", "arquivo",  "responder sim", "mostrar", "estado",   "foco",   "telas", "clicar"};
    static const std::array<std::string, 16> argumentos = {
        "1",          "2",         "3",         "40",        "-1",
        "1e400",      "sim",       "não",       "6.0",       "\"\"",
        "radial.txt", "campo.txt", "malha.txt", "movel.txt", "parametros.txt",
        "cancelar"};
    std::string linha = umDe(comandos, gerador);
    if (gerador() % 8 != 0) linha += ' ' + umDe(nomes, gerador);
    for (auto quantos = gerador() % 4; quantos > 0; --quantos) linha += ' ' + umDe(argumentos, gerador);
    return linha + '\n';
}

/// Puts a line before or in place of another.
std::string comOutraLinha(std::string texto, std::minstd_rand& gerador) {
    const auto lugar = texto.empty() ? 0 : texto.find('\n', gerador() % texto.size());
    const auto início = lugar == std::string::npos || texto.empty() ? texto.size() : lugar + 1;
    const auto fim = gerador() % 2 == 0 ? início : std::min(texto.find('\n', início), texto.size() - 1) + 1;
    return texto.replace(início, fim - início, umaLinha(gerador));
}

} // namespace
} // namespace varenta::fuzz

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* dados, std::size_t tamanho, std::size_t máximo,
                                               unsigned semente) {
    std::minstd_rand gerador{semente};
    if (gerador() % 4 == 0) return LLVMFuzzerMutate(dados, tamanho, máximo);
    const auto texto = varenta::fuzz::comOutraLinha({reinterpret_cast<const char*>(dados), tamanho}, gerador);
    if (texto.size() > máximo) return LLVMFuzzerMutate(dados, tamanho, máximo);
    std::memcpy(dados, texto.data(), texto.size());
    return texto.size();
}
