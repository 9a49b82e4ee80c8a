#include "shell/sistema.h"

#include "shell/form3.h"

#include <algorithm>
#include <array>

namespace varenta {
namespace {

constexpr std::array ordemDeFechamento = {
    "Form_AjCar",   "Form_ajuste1",   "form_AjVen", "Form_AjvenOu", "Form_E1",    "Form_E2",
    "Form_E3",      "Form_EC",        "Form_graf1", "Form_graf2",   "Form_graf3", "Form_grafFinal",
    "Form_grafVen", "Form_MIajuste1", "Form_MiE1",  "Form_MiE2",    "Form_MiE3",  "Form_MIgraf1",
    "Form_MIgraf2", "Form_MIgraf3",   "form1",      "Form4",        "Form5",      "Form6",
    "Form7",        "Form8",          "Form9",      "FormUnifo",    "Perfil",     "PerfilForm"};

} // namespace

TelaBase* telaDeNome(std::string_view nome) {
    const auto tela = std::ranges::find(TelaBase::todas(), nome, &TelaBase::nome);
    return tela == TelaBase::todas().end() ? nullptr : *tela;
}

std::vector<TelaBase*> telasEmOrdem() {
    std::vector<TelaBase*> telas{&form3};
    for (const auto* nome : ordemDeFechamento)
        if (auto* tela = telaDeNome(nome)) telas.push_back(tela);
    return telas;
}

void fecharTelas() {
    for (auto* tela : telasEmOrdem())
        if (tela != &form3) tela->descarregar();
}

void iniciarSistema() {
    fecharTelas();
    form3.descarregar();
    telaPrincipal = &form3;
    form3.mostrar();
}

} // namespace varenta
