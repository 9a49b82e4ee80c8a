#pragma once

#include <QLabel>

class WidgetDesenho;

/// The line at the bottom of a window. It tells what the drawing under the pointer reads there, else what the
/// control with the focus takes: its tool tip, the labels that its property `leitura` names, and the current
/// cell of a table. A long text is cut at its end, and whole in the line's own tool tip.
class LinhaDeEstado : public QLabel {
  public:
    /// Goes below everything else that the window lays out. The window must have all of its widgets.
    explicit LinhaDeEstado(QWidget& janela);

    /// Whether a window holds anything that the line could tell of.
    static bool temOQueDizer(const QWidget& janela);

    void atualizar();

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

  private:
    QString textoDe(const QWidget& widget) const;
    QStringList leiturasDe(const QWidget& widget) const;

    QWidget& janela_;
    const WidgetDesenho* apontado_ = nullptr;
};
