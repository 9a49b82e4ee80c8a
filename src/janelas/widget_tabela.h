#pragma once

#ifndef Q_MOC_RUN // which takes no accents in an enumeration
#include "janelas/modelos.h"
#endif

#include <QTableView>

class QLabel;

/// A table of texts to read, not to edit: a grid of the core, or, with `matrizes`, control arrays of labels
/// as its columns. Tab goes past it, the arrows move within it.
class WidgetTabela : public QTableView {
    Q_OBJECT
    /// Names of the control arrays, a column each, and the columns' headers.
    Q_PROPERTY(QStringList matrizes MEMBER matrizes_)
    Q_PROPERTY(QStringList titulos MEMBER títulos_)
    /// How many rows it would like to show without scrolling.
    Q_PROPERTY(int linhasVisiveis MEMBER linhasVisiveis_)

  public:
    explicit WidgetTabela(QWidget* pai = nullptr);

    void mostrar(const varenta::Grade& grade);
    void mostrar(const QList<QStringList>& colunas);
    /// Lets go of the grid's record.
    void esquecer();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  private:
    void usar(QAbstractItemModel& modelo);
    void ajustarColunas();
    int alturaPara(int linhas) const;
    int larguraDoConteúdo() const;

    QStringList matrizes_, títulos_;
    int linhasVisiveis_ = 8;
    ModeloGrade modeloGrade_;
    ModeloRotulos modeloRotulos_;
    QLabel* canto_;
};
