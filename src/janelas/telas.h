#pragma once

#include "comum/tela.h"

#include <QWidget>

#include <memory>
#include <span>

/// A screen and what makes its window: the layout in `telas/` that bears its name (without the number, where
/// several screens of one kind share it), whose widgets bear the names of the screen's controls. What has no
/// control, such as a fixed caption, has a name that begins with "fixo".
struct ModeloDeJanela {
    varenta::TelaBase* tela;
    std::unique_ptr<QWidget> (*criar)();
};

/// All windows of the program.
std::span<const ModeloDeJanela> janelasDoPrograma();
