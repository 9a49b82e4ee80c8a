#include "janelas/widget_desenho.h"

#include "janelas/paletas.h"
#include "janelas/pintura_desenho.h"
#include "janelas/teclas.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>

namespace {

// What an arrow with Ctrl moves the point that is read by, in pixels.
constexpr int passoLongo = 10;
constexpr QColor corDoPontoLido{0x26, 0x2b, 0x30};

/// Where an arrow points; no way for any other key.
QPoint direçãoDaSeta(int tecla) {
    switch (tecla) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

WidgetDesenho::WidgetDesenho(QWidget* pai) : QWidget{pai} {
    setMouseTracking(true);
    // In a dark window a drawing stands on a sheet of its own.
    setAutoFillBackground(éEscura(palette()));
    setPalette(paletaClara());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void WidgetDesenho::mostrar(const varenta::Desenho& desenho) {
    if (versão_ == desenho.versão) return;
    versão_ = desenho.versão;
    traços_ = desenho.traços;
    imagem_ = {};
    update();
}

void WidgetDesenho::escreverEscalas(const QStringList& x, const QStringList& y) {
    const auto& horizontal = rotulosXFixos_.isEmpty() ? x : rotulosXFixos_;
    const auto& vertical = rotulosYFixos_.isEmpty() ? y : rotulosYFixos_;
    if (horizontal == escalaX_ && vertical == escalaY_) return;
    escalaX_ = horizontal;
    escalaY_ = vertical;
    imagem_ = {};
    updateGeometry();
    update();
}

ConteudoDoDesenho WidgetDesenho::conteúdo() const {
    return {.area = area_,
            .eixos = eixos_,
            .proporcional = proporcional_,
            .figura = figura_,
            .escalaX = escalaX_,
            .escalaY = escalaY_,
            .tituloX = tituloX_,
            .tituloY = tituloY_,
            .legenda = legenda_,
            .traços = traços_};
}

PinturaDoDesenho WidgetDesenho::pintura() const { return {conteúdo(), size(), fontMetrics()}; }

QRect WidgetDesenho::quadroDosEixos() const { return pintura().quadroDosEixos(); }
QTransform WidgetDesenho::transformação() const { return pintura().transformação(); }

QSize WidgetDesenho::sizeHint() const {
    const auto margens = proporcional_ ? pintura().margens() : QMargins{};
    const auto p = conteúdo().proporções();
    const double altura = linhasDeAltura_ * fontMetrics().height() - margens.top() - margens.bottom();
    return QSizeF{altura * p.width() / p.height(), altura}.toSize().grownBy(margens).expandedTo(
        minimumSizeHint());
}

QSize WidgetDesenho::minimumSizeHint() const {
    if (éGráfico()) return pintura().menorTamanhoDoGráfico();
    const double altura = linhasDeAltura_ * fontMetrics().height() * 0.8;
    return QSizeF{altura * area_.width() / area_.height(), altura}.toSize();
}

bool WidgetDesenho::event(QEvent* evento) {
    switch (evento->type()) {
    case QEvent::LayoutRequest:
        ancorarFilhos();
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
        imagem_ = {};
        updateGeometry();
        ancorarFilhos();
        update();
        break;
    default:
        break;
    }
    return QWidget::event(evento);
}

void WidgetDesenho::ancorarFilhos() {
    for (auto* filho : findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        const auto âncora = filho->property("ancora");
        if (!âncora.isValid()) continue;
        const QPoint ponto = transformação().map(âncora.toPointF()).toPoint();
        const QSize tamanho = filho->sizeHint();
        int esquerda = ponto.x() - tamanho.width() / 2;
        if (filho->alignment() & Qt::AlignLeft) esquerda = ponto.x();
        if (filho->alignment() & Qt::AlignRight) esquerda = ponto.x() - tamanho.width();
        filho->setGeometry({{esquerda, ponto.y() - tamanho.height() / 2}, tamanho});
    }
}

QPointF WidgetDesenho::emUnidades(QPointF ponto) const {
    if (!éGráfico()) return transformação().inverted().map(ponto);
    // Multiplied before it is divided, so that the pixels at the ends of the axes give the ends exactly.
    const QRect quadro = quadroDosEixos();
    return {eixos_.left() + (ponto.x() - quadro.left()) * eixos_.width() / quadro.width(),
            eixos_.top() + (ponto.y() - quadro.top()) * eixos_.height() / quadro.height()};
}

void WidgetDesenho::resizeEvent(QResizeEvent*) { ancorarFilhos(); }

void WidgetDesenho::mouseMoveEvent(QMouseEvent* evento) {
    esquecerPontoLido();
    const QPointF ponto = emUnidades(evento->position());
    emit mouseMovido(ponto.x(), ponto.y());
}

void WidgetDesenho::leaveEvent(QEvent*) { emit mouseSaiu(); }

void WidgetDesenho::focusOutEvent(QFocusEvent* evento) {
    // Later: an act in the middle of a change of focus would bring the keyboard back here.
    if (pontoLido_) QTimer::singleShot(0, this, &WidgetDesenho::mouseSaiu);
    esquecerPontoLido();
    QWidget::focusOutEvent(evento);
}

void WidgetDesenho::moverPontoLido(QPoint passo) {
    const QRect quadro = quadroDosEixos();
    const QPoint ponto = pontoLido_.value_or(quadro.center()) + passo;
    pontoLido_ = QPoint{std::clamp(ponto.x(), quadro.x(), quadro.x() + quadro.width()),
                        std::clamp(ponto.y(), quadro.y(), quadro.y() + quadro.height())};
    update();
    const QPointF lido = emUnidades(*pontoLido_);
    emit mouseMovido(lido.x(), lido.y());
}

void WidgetDesenho::esquecerPontoLido() {
    if (!pontoLido_) return;
    pontoLido_.reset();
    update();
}

/// The arrows, and the menu key where the system makes no event of its own of it.
void WidgetDesenho::keyPressEvent(QKeyEvent* evento) {
    const bool lê = éGráfico() && !property("leitura").toStringList().isEmpty();
    if (const QPoint direção = direçãoDaSeta(evento->key()); lê && !direção.isNull()) {
        moverPontoLido(direção * (evento->modifiers() & Qt::ControlModifier ? passoLongo : 1));
        return;
    }
    if (!éTeclaDeMenu(*evento)) return QWidget::keyPressEvent(evento);
    const QPoint meio = rect().center();
    QContextMenuEvent menu{QContextMenuEvent::Keyboard, meio, mapToGlobal(meio)};
    QCoreApplication::sendEvent(this, &menu);
}

void WidgetDesenho::paintEvent(QPaintEvent*) {
    const double densidade = devicePixelRatioF();
    if (imagem_.size() != size() * densidade || imagem_.devicePixelRatio() != densidade) pintarImagem();
    QPainter pintor{this};
    pintor.drawImage(0, 0, imagem_);
    if (!pontoLido_) return;
    const QRect quadro = quadroDosEixos();
    pintor.setPen(QPen{corDoPontoLido, 1, Qt::DotLine});
    pintor.drawLine(quadro.x(), pontoLido_->y(), quadro.x() + quadro.width(), pontoLido_->y());
    pintor.drawLine(pontoLido_->x(), quadro.y(), pontoLido_->x(), quadro.y() + quadro.height());
}

void WidgetDesenho::pintarImagem() {
    const double densidade = devicePixelRatioF();
    imagem_ = QImage{size() * densidade, QImage::Format_ARGB32_Premultiplied};
    imagem_.setDevicePixelRatio(densidade);
    imagem_.fill(Qt::transparent);
    QPainter pintor{&imagem_};
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setFont(font());
    pintura().pintar(pintor, densidade);
}
