#pragma once

#include <QFocusFrame>

/// Shows which control of a window has the keyboard, around those that the style leaves unmarked: drawings,
/// tables, scroll bars, and default buttons, which look alike with and without it.
class MolduraDoFoco : public QFocusFrame {
  public:
    /// Belongs to the window.
    explicit MolduraDoFoco(QWidget& janela);

  protected:
    void paintEvent(QPaintEvent* evento) override;
};
