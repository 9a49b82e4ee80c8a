#pragma once

#include "comum/controles.h"
#include "comum/tela.h"

#include <initializer_list>
#include <string>
#include <string_view>

/// The operations that set a control's value, choice, option or text and raise its event. The system's own
/// code and what a person does go through the same ones.
namespace varenta {

/// Sets the text of a box; raises Change if it differs.
void definirTexto(CaixaTexto& caixa, std::string texto);

/// Sets the text of a list as typing does; raises Change if it differs.
void definirTexto(Lista& lista, std::string texto);

/// Picks the item with that index and raises Click, always. Raises "Valor de propriedade inválido" where the
/// list has no such item.
void escolherItem(Lista& lista, int índice);

/// Picks the item with that text. Raises "Valor de propriedade inválido" where there is none.
void escolherItem(Lista& lista, std::string_view texto);

/// The index of the item that the list's text is, -1 where it is none.
int índiceDoItem(const Lista& lista, std::string_view texto);

/// Sets an option, turns off the others of its group on the same screen, and raises Click, always.
void marcar(TelaBase& tela, Opcao& opção);

/// Sets a check box; raises Click if it changes.
void marcar(Verificacao& verificação, bool marcada);

/// Sets the value of a scroll bar; raises Change if it differs. Raises "Valor de propriedade inválido"
/// outside the bar's range.
void definirValor(Rolagem& rolagem, int valor);

/// Sets the range and the steps of a scroll bar. A value outside the new range moves to its nearer end.
void definirFaixa(Rolagem& rolagem, int mínimo, int máximo, int passoGrande, int passoPequeno);

/// Disables all of the buttons.
void desabilitar(std::initializer_list<Botao*> botões);

} // namespace varenta
