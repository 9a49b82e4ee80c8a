#include "janelas/barra_rolagem.h"

BarraRolagem::BarraRolagem(QWidget* pai) : QScrollBar{Qt::Horizontal, pai} {
    setFocusPolicy(Qt::StrongFocus);
    setInvertedControls(false);
    // Its own menu ("scroll here", ...) would move the value without telling it as an action of the person.
    setContextMenuPolicy(Qt::PreventContextMenu);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize BarraRolagem::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 18, QScrollBar::sizeHint().height()};
}

QSize BarraRolagem::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 14, QScrollBar::minimumSizeHint().height()};
}
