#pragma once

#include "janelas/janelas.h"

#include <QPointer>

#include <map>
#include <string>
#include <vector>

/// What must hold of the windows after every act.
namespace varenta::teste {

/// Holds the windows against the records of their screens, control by control, with its own reading of what a
/// widget shows.
class ExameDasJanelas {
  public:
    explicit ExameDasJanelas(const Janelas& janelas) : janelas_{janelas} {}

    /// The first window, or control, that shows anything else than its record, and what of it; empty where
    /// there is none.
    std::string diferença();

    /// What stands open that nobody can close, and windows that belong to no screen; empty where there are
    /// none. The window of the help may stand beside those of the screens.
    std::string sobra() const;

    /// Once all windows are gone: nothing is kept of them.
    void esquecer() {
        vistas_.clear();
        comparadas_.clear();
    }

  private:
    /// A window with its widgets and menu actions, in the order of the screen's controls; none for those of
    /// control arrays.
    struct Vista {
        QPointer<QWidget> janela;
        std::vector<QObject*> objetos;
        std::vector<QWidget*> comMatrizes;
    };

    const Vista& vistaDe(TelaBase& tela, QWidget& janela, const std::vector<Elemento>& elementos);
    std::string diferençaDe(TelaBase& tela);

    const Janelas& janelas_;
    std::map<const TelaBase*, Vista> vistas_;
    /// The version of a grid or a drawing that was compared whole last.
    std::map<const QObject*, std::uint64_t> comparadas_;
};

} // namespace varenta::teste
