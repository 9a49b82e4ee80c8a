#include "janelas/widget_tabela.h"

#include "janelas/teclas.h"

#include "comum/texto_tabela.h"
#include "janelas/texto_da_tabela.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

// Up to so many columns share the width there is; more of them scroll.
constexpr int colunasQueRepartem = 6;
constexpr int folgaDoTexto = 4;

QString dica(bool aceitaEntradas) {
    const auto comandos =
        QStringLiteral("Copiar: Ctrl+C. Salvar tabela: Ctrl+S. Mais: botão direito do mouse.");
    return aceitaEntradas ? QStringLiteral("Colar de uma planilha: Ctrl+V. ") + comandos : comandos;
}

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
    setToolTip(dica(false));
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

void WidgetTabela::mostrarCélulaAtual(int linha, int coluna) {
    if (linhaAtual_ == linha && colunaAtual_ == coluna && currentIndex().isValid()) return;
    linhaAtual_ = linha;
    colunaAtual_ = coluna;
    voltarÀCélulaAtual();
}

void WidgetTabela::voltarÀCélulaAtual() { setCurrentIndex(model()->index(linhaAtual_, colunaAtual_)); }

void WidgetTabela::estenderSeleção(int linhas, int colunas) {
    const int linha = qBound(0, currentIndex().row() + linhas, model()->rowCount() - 1);
    const int coluna = qBound(0, currentIndex().column() + colunas, model()->columnCount() - 1);
    const QItemSelection seleção{model()->index(qMin(linha, linhaAtual_), qMin(coluna, colunaAtual_)),
                                 model()->index(qMax(linha, linhaAtual_), qMax(coluna, colunaAtual_))};
    selectionModel()->setCurrentIndex(model()->index(linha, coluna), QItemSelectionModel::NoUpdate);
    selectionModel()->select(seleção, QItemSelectionModel::ClearAndSelect);
}

bool WidgetTabela::temVáriasSelecionadas() const {
    const auto seleção = selectionModel()->selection();
    return seleção.size() > 1 ||
           (seleção.size() == 1 && (seleção.front().height() > 1 || seleção.front().width() > 1));
}

void WidgetTabela::aceitarEntradas(bool aceita) {
    if (aceitaEntradas_ == aceita) return;
    aceitaEntradas_ = aceita;
    setToolTip(dica(aceita));
    // The focus of a grid that takes entries is its entry line's; one that only shows is reached by Tab.
    setFocusPolicy(aceita ? Qt::ClickFocus : Qt::StrongFocus);
}

void WidgetTabela::acrescentarComandos(QMenu& menu) {
    const auto acrescentar = [&](const QString& texto, bool habilitado, auto comando) {
        menu.addAction(texto, this, comando)->setEnabled(habilitado);
    };
    const bool háSeleção = selectionModel()->hasSelection();
    acrescentar(QStringLiteral("&Copiar\tCtrl+C"), háSeleção, [this] { copiar(false); });
    acrescentar(QStringLiteral("Copiar com ca&beçalhos\tCtrl+Shift+C"), háSeleção, [this] { copiar(true); });
    if (aceitaEntradas_)
        acrescentar(QStringLiteral("C&olar\tCtrl+V"), !QGuiApplication::clipboard()->text().isEmpty(),
                    [this] { colar(); });
    acrescentar(QStringLiteral("Selecionar &tudo\tCtrl+A"), temCélulas(), [this] { selectAll(); });
    menu.addSeparator();
    acrescentar(QStringLiteral("&Salvar tabela…\tCtrl+S"), temCélulas(), [this] { salvar(); });
}

bool WidgetTabela::usarTecla(const QKeyEvent& tecla) {
    if (éTeclaDeMenu(tecla))
        mostrarMenu(viewport()->mapToGlobal(visualRect(currentIndex()).center()));
    else if (tecla.matches(QKeySequence::Copy))
        copiar(false);
    else if (QKeySequence{tecla.keyCombination()} == QKeySequence{Qt::CTRL | Qt::SHIFT | Qt::Key_C})
        copiar(true);
    else if (tecla.matches(QKeySequence::Paste) && aceitaEntradas_)
        colar();
    else if (tecla.matches(QKeySequence::SelectAll))
        selectAll();
    else if (tecla.matches(QKeySequence::Save))
        salvar();
    else
        return false;
    return true;
}

void WidgetTabela::copiar(bool comCabeçalhos) const {
    if (!selectionModel()->hasSelection()) return;
    const ParteDeTabela parte{selectionModel()->selection(), comCabeçalhos, canto_->text()};
    QGuiApplication::clipboard()->setText(
        QString::fromStdString(textoDaTabela(parte, varenta::formatoDeCópia)));
}

void WidgetTabela::colar() {
    const auto texto = QGuiApplication::clipboard()->text();
    if (!texto.isEmpty()) emit colarPedido(texto);
}

bool WidgetTabela::temCélulas() const { return model()->rowCount() > 0 && model()->columnCount() > 0; }

void WidgetTabela::salvar() const {
    if (!temCélulas()) return;
    const QItemSelection tudo{model()->index(0, 0),
                              model()->index(model()->rowCount() - 1, model()->columnCount() - 1)};
    salvarTabela({tudo, true, canto_->text()});
}

void WidgetTabela::mostrarMenu(const QPoint& lugar) {
    auto* menu = new QMenu{this};
    menu->setAttribute(Qt::WA_DeleteOnClose);
    acrescentarComandos(*menu);
    menu->popup(lugar);
}

void WidgetTabela::mousePressEvent(QMouseEvent* evento) {
    const auto célula = indexAt(evento->position().toPoint());
    // Shift and Ctrl only change the selection, and the right button keeps one that it hits.
    const bool sóSeleção = evento->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier) ||
                           (evento->button() == Qt::RightButton && selectionModel()->isSelected(célula));
    const int linha = célula.row(), coluna = célula.column();
    QTableView::mousePressEvent(evento);
    if (linha >= 0 && !sóSeleção) emit celulaEscolhida(linha, coluna);
}

void WidgetTabela::keyPressEvent(QKeyEvent* evento) {
    if (usarTecla(*evento)) return;
    const bool espaço = evento->key() == Qt::Key_Space && currentIndex().isValid();
    if (espaço && evento->modifiers() == Qt::ShiftModifier)
        selectionModel()->select(currentIndex(),
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    else if (espaço && evento->modifiers() == Qt::ControlModifier)
        selectionModel()->select(currentIndex(),
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Columns);
    else
        QTableView::keyPressEvent(evento);
}

void WidgetTabela::contextMenuEvent(QContextMenuEvent* evento) { mostrarMenu(evento->globalPos()); }

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
