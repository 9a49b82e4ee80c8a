#pragma once

#include <QObject>

class QContextMenuEvent;
class QKeyEvent;
class QLineEdit;
class WidgetTabela;

/// Joins the entry line of a grid with its table. The focus stays in the line while the person types, so that
/// what concerns the table is done from there: blocks are pasted into the grid, its selection is extended
/// with Ctrl, Shift and the arrows, copied and saved.
class LinhaDeEntrada : public QObject {
  public:
    /// Belongs to the line.
    LinhaDeEntrada(QLineEdit& linha, WidgetTabela& tabela);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    bool usarTecla(const QKeyEvent& tecla);
    bool estender(const QKeyEvent& tecla);
    /// Pastes the clipboard into the grid where it holds a block; one value is the line's own affair.
    bool colarBloco();
    bool todaSelecionada() const;
    void mostrarMenu(const QPoint& lugar);

    QLineEdit& linha_;
    WidgetTabela& tabela_;
};
