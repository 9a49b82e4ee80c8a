#include "janelas/linha_de_estado.h"

#include "janelas/widget_desenho.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QPainter>
#include <QTableView>

#include <algorithm>

namespace {

constexpr int folgaVertical = 2;
// The line stands at the edge of the window, closer to it than the controls do.
constexpr int margemDeBaixo = 4;

/// The headers of the current cell and what it holds.
QString célulaAtual(const QTableView& tabela) {
    const auto célula = tabela.currentIndex();
    if (!célula.isValid()) return {};
    const auto& modelo = *tabela.model();
    return modelo.headerData(célula.row(), Qt::Vertical).toString() + QStringLiteral(", ") +
           modelo.headerData(célula.column(), Qt::Horizontal).toString() + QStringLiteral(": ") +
           célula.data().toString();
}

/// A caption of a read-out that reads nothing ends in its equals sign.
bool lêAlgo(const QLabel& rótulo) {
    const auto texto = rótulo.text().trimmed();
    return !rótulo.isHidden() && !texto.isEmpty() && !texto.endsWith(QLatin1Char{'='});
}

} // namespace

bool LinhaDeEstado::temOQueDizer(const QWidget& janela) {
    return std::ranges::any_of(janela.findChildren<QWidget*>(), [](const QWidget* widget) {
        return (widget->focusPolicy() & Qt::TabFocus) &&
               (!widget->toolTip().isEmpty() || qobject_cast<const WidgetDesenho*>(widget) ||
                qobject_cast<const QTableView*>(widget));
    });
}

LinhaDeEstado::LinhaDeEstado(QWidget& janela) : QLabel{&janela}, janela_{janela} {
    setObjectName(QStringLiteral("fixoEstado"));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* disposição = qobject_cast<QBoxLayout*>(janela.layout());
    disposição->addWidget(this);
    auto margens = disposição->contentsMargins();
    margens.setBottom(margemDeBaixo);
    disposição->setContentsMargins(margens);

    for (auto* desenho : janela.findChildren<WidgetDesenho*>()) {
        connect(desenho, &WidgetDesenho::mouseMovido, this, [this, desenho] {
            apontado_ = desenho;
            atualizar();
        });
        connect(desenho, &WidgetDesenho::mouseSaiu, this, [this] {
            apontado_ = nullptr;
            atualizar();
        });
    }
    for (auto* tabela : janela.findChildren<QTableView*>()) {
        tabela->installEventFilter(this);
        tabela->viewport()->installEventFilter(this);
    }
    // Not where the focus is lost: it also is while the window and its widgets are being destroyed.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* comFoco) {
        if (comFoco && janela_.isAncestorOf(comFoco)) atualizar();
    });
}

void LinhaDeEstado::atualizar() {
    const QWidget* widget = apontado_ ? apontado_ : janela_.focusWidget();
    const auto texto = widget ? textoDe(*widget) : QString{};
    if (texto == text()) return;
    setText(texto);
    setToolTip(texto);
}

QString LinhaDeEstado::textoDe(const QWidget& widget) const {
    auto partes = leiturasDe(widget);
    if (const auto* tabela = qobject_cast<const QTableView*>(&widget)) partes << célulaAtual(*tabela);
    const bool explicado = !widget.toolTip().isEmpty();
    if (explicado || !partes.isEmpty() || qobject_cast<const WidgetDesenho*>(&widget))
        partes << (explicado ? widget.toolTip() : widget.accessibleName());
    partes.removeAll(QString{});
    return partes.join(QStringLiteral("   |   "));
}

QStringList LinhaDeEstado::leiturasDe(const QWidget& widget) const {
    QStringList leituras;
    for (const auto& nome : widget.property("leitura").toStringList())
        if (const auto* rótulo = janela_.findChild<QLabel*>(nome); rótulo && lêAlgo(*rótulo))
            leituras << rótulo->text().trimmed();
    return leituras;
}

/// The arrows and the mouse move the current cell of a table when they are let go at the latest.
bool LinhaDeEstado::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyRelease || evento->type() == QEvent::MouseButtonRelease) atualizar();
    return QLabel::eventFilter(objeto, evento);
}

QSize LinhaDeEstado::minimumSizeHint() const { return {0, fontMetrics().height() + 2 * folgaVertical}; }

void LinhaDeEstado::paintEvent(QPaintEvent*) {
    QPainter pintor{this};
    pintor.setPen(palette().color(QPalette::WindowText));
    pintor.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter,
                    fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()));
}
