#pragma once

#include "comum/erro_execucao.h"
#include "comum/plataforma.h"
#include "comum/tela.h"

#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

namespace varenta {

/// What a person can't do, with the reason in Portuguese. Nothing has happened.
class AtoRecusado : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A control on its screen, as the target of an act.
struct Alvo {
    TelaBase* tela;
    Elemento elemento;

    /// "form1.lblRaio(3)".
    std::string nomeCompleto() const { return tela->nome() + "." + elemento.nomeCompleto(); }
};

/// Lets a person go on after an operation that was cut short: every screen has its default pointer again, and
/// if none is left in sight, the main window is.
void retomar();

/// Runs an operation that a person started. A run-time error, or memory running out, ends it here and is told
/// to the person; the program goes on.
template <class Operação>
void executarAto(Operação&& operação) {
    std::string erro;
    try {
        operação();
        return;
    } catch (const ErroExecucao& e) {
        erro = e.what();
    } catch (const std::bad_alloc&) {
        erro = memóriaInsuficiente;
    } catch (const std::length_error&) {
        // More elements than any memory holds.
        erro = memóriaInsuficiente;
    }
    retomar();
    plataforma::erroDeExecucao(erro);
}

/// What a person does to the screens, from a window and from a script alike. Each act raises `AtoRecusado`
/// where a person could not do it: the screen or the control is hidden or disabled, the value is out of
/// range, the list lacks the item, the kind of control doesn't know the act.
namespace atos {

/// A button, a menu item, an option (sets it) or a check box (turns it over).
void clicar(const Alvo& alvo);

/// Picks the item of a list with that text.
void escolher(const Alvo& alvo, std::string_view texto);

/// Replaces the text of a text box, or of a list that admits typing, by one of at most `maiorLinha` bytes.
/// The next act that leaves a list takes its text over.
void digitar(const Alvo& alvo, std::string texto);

/// Whether a list holds a typed text that was not taken over yet.
bool háTextoPorConfirmar();

/// Takes over what was typed into a list, as Enter and leaving the list do.
void confirmar();

/// A key that may act by itself (Enter is 13), in a text box. Returns whether it was used up.
bool teclar(const Alvo& alvo, int tecla);

/// Moves a scroll bar and lets go (Change).
void rolar(const Alvo& alvo, int valor);

/// Moves a scroll bar with the thumb held (Scroll). The next act lets it go.
void arrastar(const Alvo& alvo, int valor);

/// Lets go of a thumb that `arrastar` moved: one Change if the bar ends elsewhere than it began.
void soltar();

/// Goes to a cell of a grid that takes entries.
void irParaCélula(const Alvo& alvo, int linha, int coluna);

/// Goes to a cell, types a text in the grid's entry line and presses Enter.
void preencherCélula(const Alvo& alvo, int linha, int coluna, std::string texto);

/// Pastes what a spreadsheet copied into a grid that takes entries, from its current cell on.
void colar(const Alvo& alvo, std::string_view texto);

/// Moves the mouse over a drawing surface, in its own units.
void moverMouse(const Alvo& alvo, double x, double y);

/// Moves the mouse over a screen beside its drawings.
void moverMouse(TelaBase& tela);

/// Asks for the help of a screen, as F1 does.
void pedirAjuda(TelaBase& tela);

/// The close box of the screen's window.
void fechar(TelaBase& tela);

} // namespace atos
} // namespace varenta
