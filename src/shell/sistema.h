#pragma once

#include "comum/tela.h"

#include <vector>

namespace varenta {

/// Puts the system into the state in which it starts: nothing loaded but the main window, which shows.
void iniciarSistema();

/// All screens of the program, the main window first, then in the order in which it closes them.
std::vector<TelaBase*> telasEmOrdem();

/// The screen of that name; null if there is none.
TelaBase* telaDeNome(std::string_view nome);

/// Closes every screen but the main window.
void fecharTelas();

} // namespace varenta
