#pragma once

#include <QString>

#include <functional>
#include <optional>

/// The boxes that stop the program until the person answers: the one seam through which all of them go.
/// A test, and a roteiro that runs in the windows, answer in the person's place.
namespace varenta {

/// A path, and which of the filters offered was chosen, counted from 1.
struct ArquivoEscolhido {
    QString caminho;
    int filtro;
};

struct Dialogos {
    std::function<void(const QString& texto, const QString& detalhe)> mensagem;
    /// True for Yes.
    std::function<bool(const QString& texto)> perguntar;
    /// The same for what may do harm: No is the answer at hand.
    std::function<bool(const QString& texto)> confirmar = {};
    std::function<void(const QString& texto)> erroDeExecucao;
    /// The path chosen; nothing where the dialog was cancelled. Filters as Qt writes them.
    std::function<std::optional<QString>(const QString& filtros)> arquivoParaAbrir;
    /// `filtroInicial` counts from 1.
    std::function<std::optional<QString>(const QString& filtros, int filtroInicial,
                                         const QString& extensãoPadrão)>
        arquivoParaSalvar;
    /// The same for a figure, whose filters tell more than the ending of the name.
    std::function<std::optional<ArquivoEscolhido>(const QString& filtros, int filtroInicial)>
        figuraParaSalvar;
    /// Shows a topic of the help, without one its index. Raises a run-time error where it can't.
    std::function<void(std::optional<int> tópico)> ajuda;
};

/// Those in use, Qt's own to begin with.
Dialogos& dialogos();
/// Qt's message boxes and file dialogs, over the active window.
Dialogos dialogosDoQt();

/// Called before a box appears and while a long run comes further, so that the windows show how things stand.
inline std::function<void()> antesDeCadaDialogo;

/// An act that takes longer than this, in ms, may have been clicked at more than once. Windows paint
/// themselves while it works, from then on.
inline int tempoDeUmaEsperaMs = 300;

/// A person's act begins.
void começarAto();

/// Lets the windows paint themselves, and drops what the person did up to now: nothing else can be started
/// while a long run or a roteiro is at work, nor once it is over by a click that waited.
void pintarSemOuvir();

/// "Text files|*.TXT|All files|*.*" as Qt's "Text files (*.TXT *.txt);;All files (*)". Masks that a name
/// holds already, in brackets at its end, are not written twice.
QString filtrosDoQt(const QString& filtro);

} // namespace varenta
