#include "janelas/widget_desenho.h"

#include "janelas/paletas.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <utility>
#include <vector>

namespace {

// The plot's ground: both the white light grid and the black heavy one are seen on it.
constexpr QColor fundoDoGráfico{0xc9, 0xd1, 0xd8};
constexpr QColor corDasEscalas{0x26, 0x2b, 0x30};
constexpr int traçoDaEscala = 4;
constexpr int folga = 4;
constexpr int amostraDaLegenda = 26;
constexpr int entreCurvas = 18;

QColor qcor(varenta::Cor cor) {
    return QColor::fromRgb(static_cast<int>(cor & 0xff), static_cast<int>(cor >> 8 & 0xff),
                           static_cast<int>(cor >> 16 & 0xff));
}

/// A curve as the legend names it.
struct Curva {
    QString nome;
    QColor cor;
    Qt::PenStyle estilo;
    bool pontos;
};

Curva lerCurva(const QString& texto) {
    const auto estilo = texto.section(QLatin1Char{':'}, 1);
    return {texto.section(QLatin1Char{'='}, 0, 0),
            QColor{texto.section(QLatin1Char{'='}, 1).section(QLatin1Char{':'}, 0, 0)},
            estilo == QLatin1String{"tracejado"}    ? Qt::DashLine
            : estilo == QLatin1String{"pontilhado"} ? Qt::DotLine
                                                    : Qt::SolidLine,
            estilo == QLatin1String{"pontos"}};
}

std::vector<Curva> lerCurvas(const QStringList& legenda) {
    std::vector<Curva> curvas;
    for (const auto& texto : legenda) curvas.push_back(lerCurva(texto));
    return curvas;
}

/// Paints strokes through the transformation from canvas units to pixels.
class PintorDeTraços {
  public:
    PintorDeTraços(QPainter& pintor, const QTransform& transformação, double densidade,
                   std::vector<Curva> curvas)
        : pintor_{pintor}, transformação_{transformação}, densidade_{densidade}, curvas_{std::move(curvas)} {}

    void operator()(const varenta::Linha& linha) {
        QPointF início = transformação_.map(QPointF{linha.x1, linha.y1});
        QPointF fim = transformação_.map(QPointF{linha.x2, linha.y2});
        if (linha.x1 == linha.x2) início.rx() = fim.rx() = noMeioDoPixel(início.x(), linha.largura);
        if (linha.y1 == linha.y2) início.ry() = fim.ry() = noMeioDoPixel(início.y(), linha.largura);
        const bool reta = linha.x1 == linha.x2 || linha.y1 == linha.y2;
        const auto estilo = estiloDe(linha.cor);
        const bool inteira = estilo == Qt::SolidLine;
        QPen pena{qcor(linha.cor), static_cast<double>(linha.largura), estilo,
                  reta || !inteira ? Qt::FlatCap : Qt::RoundCap};
        if (!inteira) pena.setDashOffset(QPointF{linha.x1, linha.y1} == fimDoTracejado_ ? tracejado_ : 0);
        pintor_.setPen(pena);
        pintor_.drawLine(início, fim);
        if (inteira) return;
        // The dashes of the next segment go on from here.
        tracejado_ = pena.dashOffset() + QLineF{início, fim}.length() / linha.largura;
        fimDoTracejado_ = QPointF{linha.x2, linha.y2};
    }

    void operator()(const varenta::CaixaCheia& caixa) const {
        const QRectF lugar{transformação_.map(QPointF{caixa.x1, caixa.y1}),
                           transformação_.map(QPointF{caixa.x2, caixa.y2})};
        pintor_.setRenderHint(QPainter::Antialiasing, false);
        pintor_.fillRect(lugar.normalized(), qcor(caixa.cor));
        pintor_.setRenderHint(QPainter::Antialiasing, true);
    }

    /// One box to one pixel of an image, which is then stretched without smoothing.
    void operator()(const varenta::Mosaico& mosaico) const {
        QImage imagem{static_cast<int>(mosaico.colunas), static_cast<int>(mosaico.linhas()),
                      QImage::Format_RGB32};
        for (int l = 0; l < imagem.height(); ++l)
            for (int c = 0; c < imagem.width(); ++c) {
                const auto n = static_cast<std::size_t>(l) * mosaico.colunas + static_cast<std::size_t>(c);
                imagem.setPixelColor(c, l, qcor(mosaico.cores[n]));
            }
        const QRectF lugar{transformação_.map(QPointF{mosaico.x, mosaico.y}),
                           transformação_.map(QPointF{mosaico.x + mosaico.largura * imagem.width(),
                                                      mosaico.y + mosaico.altura * imagem.height()})};
        pintor_.drawImage(lugar, imagem);
    }

    void operator()(const varenta::Arco& arco) const {
        constexpr double volta = 2 * std::numbers::pi;
        // Round in a chart too, which is stretched.
        const double raio = arco.raio * std::sqrt(transformação_.m11() * transformação_.m22());
        const QPointF centro = transformação_.map(QPointF{arco.cx, arco.cy});
        const QRectF quadro{centro - QPointF{raio, raio}, QSizeF{2 * raio, 2 * raio}};
        const double início = std::abs(arco.início);
        double giro = std::abs(arco.fim) - início;
        if (giro <= 0) giro += volta;

        pintor_.setPen(QPen{qcor(arco.cor), static_cast<double>(arco.largura), Qt::SolidLine, Qt::FlatCap,
                            Qt::RoundJoin});
        const bool inteiro = giro >= volta;
        const bool raios = arco.início < 0 && arco.fim < 0;
        if (arco.preenchido && (inteiro || raios)) pintor_.setBrush(qcor(arco.cor));

        QPainterPath caminho;
        caminho.arcMoveTo(quadro, graus(início));
        if (arco.início < 0) {
            const QPointF ponta = caminho.currentPosition();
            caminho.moveTo(quadro.center());
            caminho.lineTo(ponta);
        }
        caminho.arcTo(quadro, graus(início), graus(giro));
        if (arco.fim < 0) caminho.lineTo(quadro.center());
        pintor_.drawPath(caminho);
        pintor_.setBrush(Qt::NoBrush);
    }

  private:
    static double graus(double radianos) { return radianos * 180 / std::numbers::pi; }

    /// Where a line along an axis covers whole pixels of the screen.
    double noMeioDoPixel(double lugar, int largura) const {
        const double físico = lugar * densidade_;
        const bool ímpar = std::lround(largura * densidade_) % 2 != 0;
        return (ímpar ? std::floor(físico) + 0.5 : std::round(físico)) / densidade_;
    }

    Qt::PenStyle estiloDe(varenta::Cor cor) const {
        const auto curva = std::ranges::find(curvas_, qcor(cor), &Curva::cor);
        return curva == curvas_.end() ? Qt::SolidLine : curva->estilo;
    }

    QPainter& pintor_;
    const QTransform& transformação_;
    double densidade_;
    std::vector<Curva> curvas_;
    double tracejado_ = 0;
    std::optional<QPointF> fimDoTracejado_;
};

/// What the legend shows of a curve, from `início` to the right.
void pintarAmostra(QPainter& pintor, const Curva& curva, QPointF início) {
    constexpr double raio = 3;
    if (curva.pontos) {
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(curva.cor);
        pintor.drawEllipse(início + QPointF{amostraDaLegenda / 2.0, 0}, raio, raio);
        pintor.setBrush(Qt::NoBrush);
    } else {
        pintor.setPen(QPen{curva.cor, 2, curva.estilo, Qt::FlatCap});
        pintor.drawLine(início, início + QPointF{amostraDaLegenda, 0});
    }
}

int maisLargo(const QFontMetrics& medidas, const QStringList& textos, const QString& usual) {
    int maior = medidas.horizontalAdvance(usual);
    for (const auto& texto : textos) maior = std::max(maior, medidas.horizontalAdvance(texto));
    return maior;
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

QMargins WidgetDesenho::margensDoGráfico() const {
    const auto medidas = fontMetrics();
    const int números = maisLargo(medidas, escalaY_, QStringLiteral("00.0"));
    const int metade = (maisLargo(medidas, escalaX_, QStringLiteral("-00.0")) + 1) / 2;
    return {medidas.height() + números + traçoDaEscala + 3 * folga,
            medidas.height() / 2 + folga + (legenda_.isEmpty() ? 0 : medidas.height() + folga),
            metade + folga, 2 * medidas.height() + traçoDaEscala + 3 * folga};
}

int WidgetDesenho::larguraDaLegenda() const {
    int largura = 0;
    for (const auto& curva : lerCurvas(legenda_))
        largura += (largura ? entreCurvas : 0) + amostraDaLegenda + folga +
                   fontMetrics().horizontalAdvance(curva.nome);
    return largura;
}

QRect WidgetDesenho::quadroDosEixos() const {
    QRect quadro = rect().marginsRemoved(margensDoGráfico());
    if (proporcional_) {
        const QPoint meio = quadro.center();
        quadro.setSize(eixos_.size().scaled(quadro.size(), Qt::KeepAspectRatio).toSize());
        quadro.moveCenter(meio);
    }
    return {quadro.topLeft(), quadro.size().expandedTo({1, 1})};
}

QTransform WidgetDesenho::transformação() const {
    QTransform t;
    if (éGráfico()) {
        const QRect quadro = quadroDosEixos();
        t.translate(quadro.left(), quadro.top());
        t.scale(quadro.width() / eixos_.width(), quadro.height() / eixos_.height());
        t.translate(-eixos_.left(), -eixos_.top());
        return t;
    }
    const double escala = std::min(width() / area_.width(), height() / area_.height());
    t.translate(width() / 2.0, height() / 2.0);
    t.scale(escala, escala);
    t.translate(-area_.center().x(), -area_.center().y());
    return t;
}

QSize WidgetDesenho::sizeHint() const {
    const auto margens = proporcional_ ? margensDoGráfico() : QMargins{};
    const auto p = éGráfico() ? eixos_.size() : area_.size();
    const double altura = linhasDeAltura_ * fontMetrics().height() - margens.top() - margens.bottom();
    return QSizeF{altura * p.width() / p.height(), altura}.toSize().grownBy(margens).expandedTo(
        minimumSizeHint());
}

QSize WidgetDesenho::minimumSizeHint() const {
    const auto medidas = fontMetrics();
    if (!éGráfico()) {
        const double altura = linhasDeAltura_ * medidas.height() * 0.8;
        return QSizeF{altura * area_.width() / area_.height(), altura}.toSize();
    }
    const auto margens = margensDoGráfico();
    const auto x = maisLargo(medidas, escalaX_, QStringLiteral("-00.0")) + 2 * folga;
    const auto nx = std::max<qsizetype>(escalaX_.size(), 1), ny = std::max<qsizetype>(escalaY_.size(), 1);
    return {std::max(static_cast<int>(nx) * x, larguraDaLegenda()) + margens.left() + margens.right(),
            static_cast<int>(ny) * (medidas.height() + 2 * folga) + margens.top() + margens.bottom()};
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
    const QPointF ponto = emUnidades(evento->position());
    emit mouseMovido(ponto.x(), ponto.y());
}

void WidgetDesenho::leaveEvent(QEvent*) { emit mouseSaiu(); }

void WidgetDesenho::paintEvent(QPaintEvent*) {
    const double densidade = devicePixelRatioF();
    if (imagem_.size() != size() * densidade || imagem_.devicePixelRatio() != densidade) pintarImagem();
    QPainter{this}.drawImage(0, 0, imagem_);
}

void WidgetDesenho::pintarImagem() {
    const double densidade = devicePixelRatioF();
    imagem_ = QImage{size() * densidade, QImage::Format_ARGB32_Premultiplied};
    imagem_.setDevicePixelRatio(densidade);
    imagem_.fill(Qt::transparent);
    QPainter pintor{&imagem_};
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setFont(font());
    if (éGráfico()) pintarFundoDoGráfico(pintor);
    if (!figura_.isEmpty()) QSvgRenderer{figura_}.render(&pintor, transformação().mapRect(area_));
    pintor.save();
    // A curve that leaves the scale leaves the picture there, and doesn't run over the captions.
    if (éGráfico()) pintor.setClipRect(quadroDosEixos().adjusted(0, -1, 1, 2));
    pintarTraços(pintor);
    pintor.restore();
    if (éGráfico()) pintarEscalas(pintor);
    if (éGráfico()) pintarLegenda(pintor);
}

void WidgetDesenho::pintarFundoDoGráfico(QPainter& pintor) const {
    pintor.fillRect(quadroDosEixos(), fundoDoGráfico);
}

void WidgetDesenho::pintarTraços(QPainter& pintor) const {
    const auto t = transformação();
    PintorDeTraços pintar{pintor, t, devicePixelRatioF(), lerCurvas(legenda_)};
    for (const auto& traço : traços_) std::visit(std::ref(pintar), traço);
}

void WidgetDesenho::pintarEscalas(QPainter& pintor) const {
    const QRect quadro = quadroDosEixos();
    const auto medidas = pintor.fontMetrics();
    const int altura = medidas.height();
    pintor.setPen(QPen{corDasEscalas, 1});
    pintor.setRenderHint(QPainter::Antialiasing, false);
    pintor.drawRect(quadro);

    const auto lugar = [](int início, int comprimento, qsizetype k, qsizetype quantos) {
        return início +
               static_cast<int>(std::lround(static_cast<double>(comprimento) * static_cast<double>(k) /
                                            static_cast<double>(std::max<qsizetype>(quantos - 1, 1))));
    };
    const QRect tudo = quadro.marginsAdded(margensDoGráfico());
    const int base = quadro.y() + quadro.height();
    for (qsizetype k = 0; k < escalaX_.size(); ++k) {
        const int x = lugar(quadro.x(), quadro.width(), k, escalaX_.size());
        const int largura = medidas.horizontalAdvance(escalaX_[k]);
        pintor.drawLine(x, base, x, base + traçoDaEscala);
        pintor.drawText(QRect{x - largura / 2, base + traçoDaEscala + folga / 2, largura + 1, altura},
                        Qt::AlignCenter, escalaX_[k]);
    }
    for (qsizetype k = 0; k < escalaY_.size(); ++k) {
        const int y = lugar(base, -quadro.height(), k, escalaY_.size());
        pintor.drawLine(quadro.x() - traçoDaEscala, y, quadro.x(), y);
        pintor.drawText(QRect{0, y - altura / 2, quadro.x() - traçoDaEscala - folga, altura},
                        Qt::AlignRight | Qt::AlignVCenter, escalaY_[k]);
    }
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.drawText(QRect{quadro.x(), tudo.y() + tudo.height() - altura - folga / 2, quadro.width(), altura},
                    Qt::AlignCenter, tituloX_);
    pintor.save();
    pintor.translate(tudo.x() + altura / 2 + folga / 2, quadro.center().y());
    pintor.rotate(-90);
    pintor.drawText(QRect{-height() / 2, -altura / 2, height(), altura}, Qt::AlignCenter, tituloY_);
    pintor.restore();
}

void WidgetDesenho::pintarLegenda(QPainter& pintor) const {
    const QRect quadro = quadroDosEixos();
    const auto medidas = pintor.fontMetrics();
    int x = quadro.x() + (quadro.width() - larguraDaLegenda()) / 2;
    const int y = quadro.y() - margensDoGráfico().top() + folga / 2;
    for (const auto& curva : lerCurvas(legenda_)) {
        pintarAmostra(pintor, curva, {static_cast<double>(x), y + std::floor(medidas.height() / 2.0)});
        x += amostraDaLegenda + folga;
        const int largura = medidas.horizontalAdvance(curva.nome);
        pintor.setPen(corDasEscalas);
        pintor.drawText(QRect{x, y, largura + 1, medidas.height()}, Qt::AlignVCenter, curva.nome);
        x += largura + entreCurvas;
    }
}
