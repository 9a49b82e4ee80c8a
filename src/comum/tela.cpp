#include "comum/tela.h"

#include <algorithm>

namespace varenta {
namespace {

/// Screens are global objects of many files: the list must exist before the first of them.
std::vector<TelaBase*>& registro() {
    static std::vector<TelaBase*> telas;
    return telas;
}

} // namespace

TelaBase::TelaBase(std::string nome, EventosTela eventos) : nome_{std::move(nome)}, eventos_{eventos} {
    registro().push_back(this);
}

const std::vector<TelaBase*>& TelaBase::todas() { return registro(); }

void TelaBase::carregar() {
    if (carregada()) return;
    criar();
    visivel = false;
    habilitada = true;
    ponteiro = Ponteiro::padrão;
    if (!eventos_.aoCarregar) return;
    try {
        eventos_.aoCarregar();
    } catch (...) {
        // Half a screen would be taken for a whole one from then on.
        destruir();
        throw;
    }
}

void TelaBase::descarregar() {
    if (!carregada()) return;
    esconder();
    destruir();
}

void TelaBase::esconder() {
    visivel = false;
    const auto todos = elementos();
    if (std::ranges::any_of(todos, [](const Elemento& e) { return e.endereço() == controleComFoco; }))
        controleComFoco = nullptr;
}

void TelaBase::mostrar() {
    carregar();
    visivel = true;
}

std::optional<Elemento> TelaBase::achar(std::string_view nome, std::optional<int> índice) {
    for (auto& e : elementos())
        if (e.nome == nome && e.índice == índice) return e;
    return std::nullopt;
}

void voltarAoMenu() {
    telaPrincipal->habilitada = true;
    telaPrincipal->mostrar();
}

} // namespace varenta
