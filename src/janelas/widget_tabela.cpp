#include "janelas/widget_tabela.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

// Up to so many columns share the width there is; more of them scroll.
constexpr int colunasQueRepartem = 6;
constexpr int folgaDoTexto = 4;

} // namespace

WidgetTabela::WidgetTabela(QWidget* pai) : QTableView{pai}, canto_{new QLabel} {
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    verticalHeader()->setHighlightSections(false);
    horizontalHeader()->setHighlightSections(false);

    // The corner holds the header of the column of row numbers.
    canto_->setAlignment(Qt::AlignCenter);
    canto_->setTextFormat(Qt::PlainText);
    auto* botãoDoCanto = findChild<QAbstractButton*>(QString{}, Qt::FindDirectChildrenOnly);
    auto* disposição = new QVBoxLayout{botãoDoCanto};
    disposição->setContentsMargins({});
    disposição->addWidget(canto_);
}

void WidgetTabela::mostrar(const varenta::Grade& grade) {
    modeloGrade_.alinharADireita(aDireita_);
    usar(modeloGrade_);
    modeloGrade_.mostrar(grade);
    canto_->setText(modeloGrade_.títuloDoCanto());
    verticalHeader()->setMinimumWidth(canto_->sizeHint().width() + 2 * folgaDoTexto);
    ajustarColunas();
}

void WidgetTabela::mostrar(const QList<QStringList>& colunas) {
    modeloRotulos_.definirTítulos(títulos_);
    usar(modeloRotulos_);
    modeloRotulos_.mostrar(colunas);
    ajustarColunas();
}

void WidgetTabela::esquecer() { modeloGrade_.esquecer(); }

void WidgetTabela::usar(QAbstractItemModel& modelo) {
    if (model() == &modelo) return;
    setModel(&modelo);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
}

void WidgetTabela::ajustarColunas() {
    auto& cabeçalho = *horizontalHeader();
    const bool repartem = model()->columnCount() <= colunasQueRepartem;
    // Not by their contents, for which Qt would measure every cell.
    const auto modo = repartem ? QHeaderView::Stretch : QHeaderView::Interactive;
    if (cabeçalho.sectionResizeMode(0) != modo) cabeçalho.setSectionResizeMode(modo);
    if (repartem) return;
    if (const int largura = larguraDasColunas(); cabeçalho.defaultSectionSize() != largura)
        cabeçalho.setDefaultSectionSize(largura);
}

int WidgetTabela::larguraDasColunas() const {
    const auto maisLongo = modeloGrade_.textoMaisLongo();
    // Another text of as many characters may be all digits, and wider.
    const auto dígitos = QString{maisLongo.size(), QLatin1Char{'0'}};
    int maior = 2 * folgaDoTexto +
                qMax(fontMetrics().horizontalAdvance(maisLongo), fontMetrics().horizontalAdvance(dígitos));
    for (int c = 0; c < model()->columnCount(); ++c)
        maior = qMax(maior, horizontalHeader()->sectionSizeHint(c));
    return maior;
}

int WidgetTabela::alturaPara(int linhas) const {
    return horizontalHeader()->sizeHint().height() + linhas * (fontMetrics().height() + 4) + 2 * frameWidth();
}

int WidgetTabela::larguraDoConteúdo() const {
    const int lateral = qMax(verticalHeader()->sizeHint().width(), verticalHeader()->minimumWidth());
    const int largura = lateral + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    const int colunas = model() ? model()->columnCount() : 0;
    if (colunas > colunasQueRepartem)
        return largura + qMin(colunas, colunasVisiveis_) * horizontalHeader()->defaultSectionSize();
    int maisLarga = 0;
    for (int c = 0; c < colunas; ++c) maisLarga = qMax(maisLarga, horizontalHeader()->sectionSizeHint(c));
    return largura + colunas * maisLarga;
}

QSize WidgetTabela::sizeHint() const { return {larguraDoConteúdo(), alturaPara(linhasVisiveis_)}; }

QSize WidgetTabela::minimumSizeHint() const {
    return {larguraDoConteúdo(), alturaPara(qMin(linhasVisiveis_, 4))};
}
