#pragma once

#include <optional>
#include <string>
#include <string_view>

/// What the system asks of the front end that runs it. Each front end links its own definitions: dialogs of a
/// window, the queue of a script, the notebook of a test.
namespace varenta::plataforma {

struct DialogoArquivo {
    /// "Text files|*.TXT|All files|*.*": names and masks, separated by bars.
    std::string filtro;
    /// Which of the filters is chosen at first, from 1.
    int filtroInicial = 1;
    /// Ending of a name typed without one, for saving; without its point.
    std::string extensãoPadrão = {};
};

/// A plain message box with an OK button. What stands beneath the text, in smaller letters, only a window
/// shows.
void mensagem(std::string_view texto, std::string_view detalhe = {});
/// A box with Yes and No; true for Yes.
bool perguntar(std::string_view texto);
/// A quiet notice beside the results, which stops nothing.
void avisar(std::string_view texto);
/// Long work begins (true) or ends: the pointer changes at once. Calls with true and false come in pairs.
void mostrarAmpulheta(bool mostrar);
/// A run-time error has ended an operation.
void erroDeExecucao(std::string_view texto);
/// The path chosen, in UTF-8; nothing where the dialog was cancelled.
std::optional<std::string> arquivoParaAbrir(const DialogoArquivo& diálogo);
std::optional<std::string> arquivoParaSalvar(const DialogoArquivo& diálogo);
/// Shows a topic of the help, without one its index. Raises a run-time error with the reason where it can't.
void ajuda(std::optional<int> tópico);
/// A long run has come further: the value of its bar and the text of its label, of which one has changed.
void progresso(double valor, std::string_view texto);
/// What may take long is still at work, with nothing new to tell: windows may paint themselves. Called often.
void respirar();
/// The program is to end: the main window was closed.
void encerrar();

} // namespace varenta::plataforma
