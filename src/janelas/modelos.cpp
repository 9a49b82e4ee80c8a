#include "janelas/modelos.h"

#include <algorithm>

namespace {

QString qtexto(const std::string& texto) { return QString::fromStdString(texto); }

} // namespace

void ModeloGrade::mostrar(const varenta::Grade& grade) {
    if (grade_ == &grade && versão_ == grade.versão) return;
    beginResetModel();
    grade_ = &grade;
    versão_ = grade.versão;
    endResetModel();
}

void ModeloGrade::esquecer() {
    beginResetModel();
    grade_ = nullptr;
    versão_.reset();
    endResetModel();
}

QString ModeloGrade::títuloDoCanto() const { return grade_ ? qtexto(grade_->célula(0, 0)) : QString{}; }

QString ModeloGrade::textoMaisLongo() const {
    return grade_ ? qtexto(*std::ranges::max_element(grade_->células, {}, std::ranges::size)) : QString{};
}

int ModeloGrade::rowCount(const QModelIndex& pai) const {
    return grade_ && !pai.isValid() ? grade_->linhas - 1 : 0;
}

int ModeloGrade::columnCount(const QModelIndex& pai) const {
    return grade_ && !pai.isValid() ? grade_->colunas - 1 : 0;
}

Qt::Alignment ModeloGrade::alinhamento(int coluna) const {
    if (aDireita_) return Qt::AlignRight | Qt::AlignVCenter;
    switch (grade_->alinhamentos[static_cast<std::size_t>(coluna)]) {
    case varenta::Alinhamento::esquerda:
        return Qt::AlignLeft | Qt::AlignVCenter;
    case varenta::Alinhamento::centro:
        return Qt::AlignCenter;
    case varenta::Alinhamento::direita:
        return Qt::AlignRight | Qt::AlignVCenter;
    }
    return Qt::AlignCenter;
}

QVariant ModeloGrade::data(const QModelIndex& índice, int papel) const {
    if (papel == Qt::DisplayRole) return qtexto(grade_->célula(índice.row() + 1, índice.column() + 1));
    if (papel == Qt::TextAlignmentRole) return QVariant::fromValue(alinhamento(índice.column() + 1));
    return {};
}

QVariant ModeloGrade::headerData(int seção, Qt::Orientation orientação, int papel) const {
    const bool horizontal = orientação == Qt::Horizontal;
    // A control that hides makes the layout ask for all headers known so far, before the table is told that
    // its grid has become smaller.
    if (seção + 1 >= (horizontal ? grade_->colunas : grade_->linhas)) return {};
    if (papel == Qt::DisplayRole)
        return qtexto(horizontal ? grade_->célula(0, seção + 1) : grade_->célula(seção + 1, 0));
    if (papel == Qt::TextAlignmentRole) return QVariant::fromValue(alinhamento(horizontal ? seção + 1 : 0));
    return {};
}

void ModeloRotulos::mostrar(const QList<QStringList>& colunas) {
    if (colunas == colunas_) return;
    beginResetModel();
    colunas_ = colunas;
    endResetModel();
}

int ModeloRotulos::rowCount(const QModelIndex& pai) const {
    return colunas_.isEmpty() || pai.isValid() ? 0 : static_cast<int>(colunas_.front().size());
}

int ModeloRotulos::columnCount(const QModelIndex& pai) const {
    return pai.isValid() ? 0 : static_cast<int>(colunas_.size());
}

QVariant ModeloRotulos::data(const QModelIndex& índice, int papel) const {
    if (papel == Qt::DisplayRole) return colunas_[índice.column()].value(índice.row());
    if (papel == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::Alignment{Qt::AlignCenter});
    return {};
}

QVariant ModeloRotulos::headerData(int seção, Qt::Orientation orientação, int papel) const {
    if (papel == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::Alignment{Qt::AlignCenter});
    if (papel != Qt::DisplayRole) return {};
    return orientação == Qt::Horizontal ? títulos_.value(seção) : QString::number(seção + 1);
}
