#pragma once

#include <QLabel>

/// The quiet notice beside the results: it takes room only while it has something to say.
class RotuloAviso : public QLabel {
  public:
    explicit RotuloAviso(QWidget* pai = nullptr);
};
