#pragma once

#include <QKeyEvent>

/// The menu key, or Shift and F10: Qt makes an event of its own of them only on some desktops.
inline bool éTeclaDeMenu(const QKeyEvent& tecla) {
    return tecla.key() == Qt::Key_Menu ||
           (tecla.key() == Qt::Key_F10 && tecla.modifiers() == Qt::ShiftModifier);
}
