#pragma once

#ifndef Q_MOC_RUN // which takes no accents in an enumeration
#include "janelas/modelos.h"
#endif

#include <QTableView>

class QLabel;

/// A table of texts to read, not to edit: a grid of the core, or, with `matrizes`, control arrays of labels
/// as its columns. Tab goes past it, the arrows move within it. It asks its model only for the cells in view.
class WidgetTabela : public QTableView {
    Q_OBJECT
    /// Names of the control arrays, a column each, and the columns' headers.
    Q_PROPERTY(QStringList matrizes MEMBER matrizes_)
    Q_PROPERTY(QStringList titulos MEMBER títulos_)
    /// How many rows it would like to show without scrolling.
    Q_PROPERTY(int linhasVisiveis MEMBER linhasVisiveis_)
    /// How many columns, of a table with more of them than share the width.
    Q_PROPERTY(int colunasVisiveis MEMBER colunasVisiveis_)
    /// Whether everything stands to the right, so that the decimals of numbers are one below the other.
    Q_PROPERTY(bool aDireita MEMBER aDireita_)

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
    /// Of the columns that don't share the width: all alike, and wide enough for any text of the grid.
    int larguraDasColunas() const;
    int alturaPara(int linhas) const;
    int larguraDoConteúdo() const;

    QStringList matrizes_, títulos_;
    int linhasVisiveis_ = 8, colunasVisiveis_ = 6;
    bool aDireita_ = false;
    ModeloGrade modeloGrade_;
    ModeloRotulos modeloRotulos_;
    QLabel* canto_;
};
