#pragma once

#include <QLabel>

/// A number that the system shows: to the right in a field of its own, as wide as the longest number that is
/// usual on the screens, so that nothing moves when it changes.
class RotuloValor : public QLabel {
  public:
    explicit RotuloValor(QWidget* pai = nullptr);

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;
};
