#pragma once

#include <QScrollBar>

/// A horizontal scroll bar that enters a number: it takes the keyboard focus, and its Right arrow
/// raises the value.
class BarraRolagem : public QScrollBar {
  public:
    explicit BarraRolagem(QWidget* pai = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};
