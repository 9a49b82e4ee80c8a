#include "janelas/rotulo_valor.h"

RotuloValor::RotuloValor(QWidget* pai) : QLabel{pai} {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setMargin(2);
}

QSize RotuloValor::minimumSizeHint() const {
    const auto hint = QLabel::minimumSizeHint();
    const int usual =
        fontMetrics().horizontalAdvance(QStringLiteral("0000.00")) + 2 * (frameWidth() + margin());
    return {qMax(hint.width(), usual), hint.height()};
}
