#pragma once

#ifndef Q_MOC_RUN // which takes no accents in an enumeration
#include "janelas/modelos.h"
#endif

#include <QTableView>

class QLabel;
class QMenu;

/// A table of texts to read, not to edit: a grid of the core, or, with `matrizes`, control arrays of labels
/// as its columns. Tab goes past it, the arrows move within it. It asks its model only for the cells in view.
/// What is selected can be copied, and the whole table saved; a grid that takes entries has blocks pasted.
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

    /// Shows the current cell of an entry grid (from 0). A selection stays while it is the same one.
    void mostrarCélulaAtual(int linha, int coluna);
    void voltarÀCélulaAtual();
    /// From the current cell of an entry grid to one further than where the selection ends now.
    void estenderSeleção(int linhas, int colunas);
    bool temVáriasSelecionadas() const;
    /// Whether blocks can be pasted now.
    void aceitarEntradas(bool aceita);

    /// The commands of the context menu.
    void acrescentarComandos(QMenu& menu);
    /// Runs a command by its key. Returns whether it was one.
    bool usarTecla(const QKeyEvent& tecla);
    void colar();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// The person goes to a cell (from 0) with the mouse.
    void celulaEscolhida(int linha, int coluna);
    void colarPedido(const QString& texto);

  protected:
    void mousePressEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;

  private:
    void copiar(bool comCabeçalhos) const;
    bool temCélulas() const;
    void salvar() const;
    void mostrarMenu(const QPoint& lugar);
    void usar(QAbstractItemModel& modelo);
    void ajustarColunas();
    /// Of the columns that don't share the width: all alike, and wide enough for any text of the grid.
    int larguraDasColunas() const;
    int alturaPara(int linhas) const;
    int larguraDoConteúdo() const;

    QStringList matrizes_, títulos_;
    int linhasVisiveis_ = 8, colunasVisiveis_ = 6;
    bool aDireita_ = false;
    bool aceitaEntradas_ = false;
    int linhaAtual_ = -1, colunaAtual_ = -1;
    ModeloGrade modeloGrade_;
    ModeloRotulos modeloRotulos_;
    QLabel* canto_;
};
