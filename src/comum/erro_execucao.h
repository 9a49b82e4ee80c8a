#pragma once

#include <stdexcept>
#include <string>

namespace varenta {

/// A run-time error of the system: it ends the operation that the user started, with everything that was
/// written before it left as it is. `executarAto` of atos.h tells it to the person; elsewhere it is only
/// caught where a failure has an answer of its own.
class ErroExecucao : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

inline constexpr const char* divisãoPorZero = "Divisão por zero";
inline constexpr const char* estouro = "Estouro";
inline constexpr const char* tiposIncompatíveis = "Tipos incompatíveis";
inline constexpr const char* índiceForaDosLimites = "Índice fora dos limites";
inline constexpr const char* valorDePropriedadeInválido = "Valor de propriedade inválido";
inline constexpr const char* argumentoInválido = "Chamada de procedimento ou argumento inválido";
inline constexpr const char* memóriaInsuficiente = "Memória insuficiente";

/// Raises "Índice fora dos limites" unless the index at hand lies within its limits.
void exigirÍndice(bool dentroDosLimites);

/// Runs `operação`. A run-time error that it raises is told by its name and, after a colon, by what it means
/// there.
template <class Operação>
decltype(auto) explicarErro(const char* explicação, Operação&& operação) {
    try {
        return operação();
    } catch (const ErroExecucao& e) {
        throw ErroExecucao{std::string{e.what()}.append(": ").append(explicação)};
    }
}

/// The element `índice` of `sequência`. Raises "Índice fora dos limites" where there is none.
template <class Sequência>
auto& elemento(Sequência& sequência, std::size_t índice) {
    exigirÍndice(índice < sequência.size());
    return sequência[índice];
}

} // namespace varenta
