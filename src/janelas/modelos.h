#pragma once

#include "comum/controles.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <cstdint>
#include <optional>

/// The cells of a grid's record, read where they stand: the header row as the horizontal header, the first
/// column as the vertical one.
class ModeloGrade : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// The grid must stay alive until the next call or `esquecer`.
    void mostrar(const varenta::Grade& grade);
    void esquecer();
    /// Whatever alignments the grid has for its columns.
    void alinharADireita(bool aDireita) { aDireita_ = aDireita; }
    /// The header of the first column, which has no section of its own.
    QString títuloDoCanto() const;
    /// The cell with the most characters.
    QString textoMaisLongo() const;

    int rowCount(const QModelIndex& pai = {}) const override;
    int columnCount(const QModelIndex& pai = {}) const override;
    QVariant data(const QModelIndex& índice, int papel) const override;
    QVariant headerData(int seção, Qt::Orientation orientação, int papel) const override;

  private:
    Qt::Alignment alinhamento(int coluna) const;

    bool aDireita_ = false;
    const varenta::Grade* grade_ = nullptr;
    std::optional<std::uint64_t> versão_;
};

/// Control arrays of labels side by side as columns of one table.
class ModeloRotulos : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    void definirTítulos(const QStringList& títulos) { títulos_ = títulos; }
    void mostrar(const QList<QStringList>& colunas);

    int rowCount(const QModelIndex& pai = {}) const override;
    int columnCount(const QModelIndex& pai = {}) const override;
    QVariant data(const QModelIndex& índice, int papel) const override;
    QVariant headerData(int seção, Qt::Orientation orientação, int papel) const override;

  private:
    QStringList títulos_;
    QList<QStringList> colunas_;
};
