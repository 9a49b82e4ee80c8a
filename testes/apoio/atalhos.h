#pragma once

#include "comum/atos.h"
#include "comum/erro_execucao.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Short hands that let a test read as input and answer.
namespace varenta::teste {

/// The control of a loaded screen as the target of an act.
inline Alvo alvo(TelaBase& tela, std::string_view nome, std::optional<int> índice = std::nullopt) {
    return {&tela, tela.achar(nome, índice).value()};
}

/// The texts of an array of labels.
inline std::vector<std::string> textos(std::span<const Rotulo> rótulos) {
    std::vector<std::string> textos;
    for (const auto& rótulo : rótulos) textos.push_back(rótulo.texto);
    return textos;
}

/// The text of the run-time error that `operação` raises; empty where it raises none.
template <class Operação>
std::string erroDe(Operação&& operação) {
    try {
        operação();
    } catch (const ErroExecucao& e) {
        return e.what();
    }
    return {};
}

/// The reason for which an act is refused; empty where it isn't.
template <class Operação>
std::string recusaDe(Operação&& operação) {
    try {
        operação();
    } catch (const AtoRecusado& e) {
        return e.what();
    }
    return {};
}

} // namespace varenta::teste
