#include "janelas/pintura_desenho.h"

#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numbers>
#include <optional>
#include <utility>
#include <vector>

namespace {

// The plot's ground: both the white light grid and the black heavy one are seen on it.
constexpr QColor fundoDoGráfico{0xc9, 0xd1, 0xd8};
constexpr QColor corDasEscalas{0x26, 0x2b, 0x30};
// On paper, where the ground is white: the light grid, the heavy one, and a green that is seen.
constexpr QColor malhaFina{0xe4, 0xe7, 0xea};
constexpr QColor malhaGrossa{0xb4, 0xba, 0xc0};
constexpr QColor verdeNoPapel{0x00, 0x96, 0x00};
constexpr double malhaNoPapel = 0.7;
constexpr double sobraDasCaixas = 0.3;
constexpr int traçoDaEscala = 4;
constexpr int folga = 4;
constexpr int amostraDaLegenda = 26;
constexpr int entreCurvas = 18;
// The most that a curve may rise above a chart's axes, in heights of these.
constexpr double maisAcimaDosEixos = 0.25;

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

/// A curve's colour on a screen or on paper.
QColor noMeio(const QColor& cor, Meio meio) {
    return meio == Meio::papel && cor == QColor{Qt::green} ? verdeNoPapel : cor;
}

/// The part of a segment that lies within the rectangle, if any.
std::optional<QLineF> recortar(const QLineF& segmento, const QRectF& quadro) {
    double início = 0, fim = 1;
    const auto aparar = [&](double passo, double folgaAtéABorda) {
        // Where it crosses one side: from outside it begins there, from inside it ends there.
        if (passo == 0) return folgaAtéABorda >= 0;
        const double lugar = folgaAtéABorda / passo;
        if (passo < 0)
            início = std::max(início, lugar);
        else
            fim = std::min(fim, lugar);
        return início <= fim;
    };
    const bool dentro = aparar(-segmento.dx(), segmento.x1() - quadro.left()) &&
                        aparar(segmento.dx(), quadro.right() - segmento.x1()) &&
                        aparar(-segmento.dy(), segmento.y1() - quadro.top()) &&
                        aparar(segmento.dy(), quadro.bottom() - segmento.y1());
    if (!dentro) return std::nullopt;
    return QLineF{segmento.pointAt(início), segmento.pointAt(fim)};
}

/// The image, spread over a place, without what lies beyond the frame. Boxes of a map end half-way over it.
QImage aparar(const QImage& imagem, const QRectF& lugar, const QRectF& visível) {
    const auto dobro = imagem.scaled(imagem.size() * 2);
    const double x = dobro.width() / lugar.width(), y = dobro.height() / lugar.height();
    return dobro.copy(QRectF{(visível.x() - lugar.x()) * x, (visível.y() - lugar.y()) * y,
                             visível.width() * x, visível.height() * y}
                          .toRect());
}

/// How strokes are to look.
struct Traçado {
    QTransform transformação;
    double densidade;
    std::vector<Curva> curvas;
    Meio meio;
    /// The rectangle that strokes end at; none where they may go everywhere.
    std::optional<QRectF> moldura;
    /// Whether white and black lines are a chart's grid.
    bool temMalha;
};

/// Paints strokes through the transformation from canvas units to pixels.
class PintorDeTraços {
  public:
    PintorDeTraços(QPainter& pintor, Traçado traçado)
        : pintor_{pintor}, traçado_{std::move(traçado)}, transformação_{traçado_.transformação} {}

    void operator()(const varenta::Linha& linha) {
        QPointF início = transformação_.map(QPointF{linha.x1, linha.y1});
        QPointF fim = transformação_.map(QPointF{linha.x2, linha.y2});
        if (linha.x1 == linha.x2) início.rx() = fim.rx() = noMeioDoPixel(início.x(), linha.largura);
        if (linha.y1 == linha.y2) início.ry() = fim.ry() = noMeioDoPixel(início.y(), linha.largura);
        const bool reta = linha.x1 == linha.x2 || linha.y1 == linha.y2;
        const auto estilo = estiloDe(linha.cor);
        const bool inteira = estilo == Qt::SolidLine;
        const bool redonda = inteira && (!reta || noPapel()) && !daMalha(linha);
        QPen pena{corDe(linha.cor), static_cast<double>(linha.largura), estilo,
                  redonda ? Qt::RoundCap : Qt::FlatCap};
        if (noPapel() && daMalha(linha)) {
            pena.setColor(linha.cor == varenta::cores::branco ? malhaFina : malhaGrossa);
            pena.setWidthF(malhaNoPapel);
        }
        if (!inteira) pena.setDashOffset(QPointF{linha.x1, linha.y1} == fimDoTracejado_ ? tracejado_ : 0);
        pintor_.setPen(pena);
        desenhar({início, fim});
        if (inteira) return;
        // The dashes of the next segment go on from here.
        tracejado_ = pena.dashOffset() + QLineF{início, fim}.length() / linha.largura;
        fimDoTracejado_ = QPointF{linha.x2, linha.y2};
    }

    void operator()(const varenta::CaixaCheia& caixa) const {
        const QRectF lugar{transformação_.map(QPointF{caixa.x1, caixa.y1}),
                           transformação_.map(QPointF{caixa.x2, caixa.y2})};
        pintor_.setRenderHint(QPainter::Antialiasing, false);
        // On paper two boxes side by side overlap a little, or else a gap would shine through between them.
        const double sobra = noPapel() ? sobraDasCaixas : 0;
        pintor_.fillRect(naMoldura(lugar.normalized().adjusted(-sobra, -sobra, sobra, sobra)),
                         corDe(caixa.cor));
        pintor_.setRenderHint(QPainter::Antialiasing, true);
    }

    /// One box to one pixel of an image, which is then stretched without smoothing.
    void operator()(const varenta::Mosaico& mosaico) const {
        QImage imagem{static_cast<int>(mosaico.colunas), static_cast<int>(mosaico.linhas()),
                      QImage::Format_RGB32};
        for (int l = 0; l < imagem.height(); ++l)
            for (int c = 0; c < imagem.width(); ++c) {
                const auto n = static_cast<std::size_t>(l) * mosaico.colunas + static_cast<std::size_t>(c);
                imagem.setPixelColor(c, l, corDe(mosaico.cores[n]));
            }
        const QRectF lugar{transformação_.map(QPointF{mosaico.x, mosaico.y}),
                           transformação_.map(QPointF{mosaico.x + mosaico.largura * imagem.width(),
                                                      mosaico.y + mosaico.altura * imagem.height()})};
        const QRectF visível = naMoldura(lugar);
        pintor_.drawImage(visível, visível == lugar ? imagem : aparar(imagem, lugar, visível));
    }

    void operator()(const varenta::Arco& arco) const {
        constexpr double volta = 2 * std::numbers::pi;
        // Round in a chart too, which is stretched.
        const double raio = arco.raio * std::sqrt(transformação_.m11() * transformação_.m22());
        const QPointF centro = transformação_.map(QPointF{arco.cx, arco.cy});
        // A point is whole where its middle is in sight.
        if (traçado_.moldura && !traçado_.moldura->adjusted(-1, -1, 1, 1).contains(centro)) return;
        const QRectF quadro{centro - QPointF{raio, raio}, QSizeF{2 * raio, 2 * raio}};
        const double início = std::abs(arco.início);
        double giro = std::abs(arco.fim) - início;
        if (giro <= 0) giro += volta;

        pintor_.setPen(QPen{corDe(arco.cor), static_cast<double>(arco.largura), Qt::SolidLine, Qt::FlatCap,
                            Qt::RoundJoin});
        const bool inteiro = giro >= volta;
        const bool raios = arco.início < 0 && arco.fim < 0;
        if (arco.preenchido && (inteiro || raios)) pintor_.setBrush(corDe(arco.cor));

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

    bool noPapel() const { return traçado_.meio == Meio::papel; }

    bool daMalha(const varenta::Linha& linha) const {
        return traçado_.temMalha &&
               (linha.cor == varenta::cores::branco || linha.cor == varenta::cores::preto);
    }

    QColor corDe(varenta::Cor cor) const {
        return noMeio(qcor(cor), traçado_.temMalha ? traçado_.meio : Meio::tela);
    }

    void desenhar(const QLineF& segmento) const {
        if (!traçado_.moldura)
            pintor_.drawLine(segmento);
        else if (const auto parte = recortar(segmento, *traçado_.moldura))
            pintor_.drawLine(*parte);
    }

    QRectF naMoldura(const QRectF& lugar) const {
        return traçado_.moldura ? lugar.intersected(*traçado_.moldura) : lugar;
    }

    /// Where a line along an axis covers whole pixels of the screen.
    double noMeioDoPixel(double lugar, int largura) const {
        if (noPapel()) return lugar;
        const double físico = lugar * traçado_.densidade;
        const bool ímpar = std::lround(largura * traçado_.densidade) % 2 != 0;
        return (ímpar ? std::floor(físico) + 0.5 : std::round(físico)) / traçado_.densidade;
    }

    Qt::PenStyle estiloDe(varenta::Cor cor) const {
        const auto curva = std::ranges::find(traçado_.curvas, qcor(cor), &Curva::cor);
        return curva == traçado_.curvas.end() ? Qt::SolidLine : curva->estilo;
    }

    QPainter& pintor_;
    Traçado traçado_;
    const QTransform& transformação_;
    double tracejado_ = 0;
    std::optional<QPointF> fimDoTracejado_;
};

/// What the legend shows of a curve, from `início` to the right.
void pintarAmostra(QPainter& pintor, const Curva& curva, const QColor& cor, QPointF início) {
    constexpr double raio = 3;
    if (curva.pontos) {
        pintor.setPen(Qt::NoPen);
        pintor.setBrush(cor);
        pintor.drawEllipse(início + QPointF{amostraDaLegenda / 2.0, 0}, raio, raio);
        pintor.setBrush(Qt::NoBrush);
    } else {
        pintor.setPen(QPen{cor, 2, curva.estilo, Qt::FlatCap});
        pintor.drawLine(início, início + QPointF{amostraDaLegenda, 0});
    }
}

/// The smallest y that strokes of a chart have: its lines and points, since what else there is ends at the
/// axes.
double maisAlto(std::span<const varenta::Traço> traços) {
    double y = std::numeric_limits<double>::infinity();
    for (const auto& traço : traços) {
        if (const auto* linha = std::get_if<varenta::Linha>(&traço)) y = std::min({y, linha->y1, linha->y2});
        if (const auto* arco = std::get_if<varenta::Arco>(&traço)) y = std::min(y, arco->cy);
    }
    return y;
}

int maisLargo(const QFontMetrics& medidas, const QStringList& textos, const QString& usual) {
    int maior = medidas.horizontalAdvance(usual);
    for (const auto& texto : textos) maior = std::max(maior, medidas.horizontalAdvance(texto));
    return maior;
}

} // namespace

PinturaDoDesenho::PinturaDoDesenho(ConteudoDoDesenho conteúdo, QSizeF tamanho, const QFontMetrics& medidas,
                                   Meio meio)
    : conteúdo_{std::move(conteúdo)}, tamanho_{tamanho}, medidas_{medidas}, meio_{meio} {}

QMargins PinturaDoDesenho::margens() const {
    const int números = maisLargo(medidas_, conteúdo_.escalaY, QStringLiteral("00.0"));
    const int metade = (maisLargo(medidas_, conteúdo_.escalaX, QStringLiteral("-00.0")) + 1) / 2;
    return {medidas_.height() + números + traçoDaEscala + 3 * folga,
            folgaDoTopo() + (conteúdo_.legenda.isEmpty() ? 0 : medidas_.height() + folga), metade + folga,
            2 * medidas_.height() + traçoDaEscala + 3 * folga};
}

int PinturaDoDesenho::folgaDoTopo() const { return medidas_.height() / 2 + folga; }

int PinturaDoDesenho::subidaDaCurva(int altura) const {
    if (conteúdo_.proporcional) return 0;
    const auto& eixos = conteúdo_.eixos;
    const double acima =
        std::min(eixos.top() - maisAlto(conteúdo_.traços), maisAcimaDosEixos * eixos.height());
    if (acima <= 0) return 0;
    // The axes and what rises above them share the height and the room that is there anyway.
    const double sala = altura + folgaDoTopo() - folga / 2.0;
    return std::max(0, altura - static_cast<int>(sala * eixos.height() / (eixos.height() + acima)));
}

QRect PinturaDoDesenho::lugarDosTraços() const {
    const QRect quadro = quadroDosEixos();
    if (conteúdo_.proporcional) return quadro;
    const int topo = QRect{{}, tamanho_.toSize()}.marginsRemoved(margens()).top() - folgaDoTopo();
    return {QPoint{quadro.left(), topo}, QPoint{quadro.right() + margens().right(), quadro.bottom()}};
}

int PinturaDoDesenho::larguraDaLegenda() const {
    int largura = 0;
    for (const auto& curva : lerCurvas(conteúdo_.legenda))
        largura +=
            (largura ? entreCurvas : 0) + amostraDaLegenda + folga + medidas_.horizontalAdvance(curva.nome);
    return largura;
}

QSize PinturaDoDesenho::menorTamanhoDoGráfico() const {
    const auto margens = this->margens();
    const auto x = maisLargo(medidas_, conteúdo_.escalaX, QStringLiteral("-00.0")) + 2 * folga;
    const auto nx = std::max<qsizetype>(conteúdo_.escalaX.size(), 1),
               ny = std::max<qsizetype>(conteúdo_.escalaY.size(), 1);
    return {std::max(static_cast<int>(nx) * x, larguraDaLegenda()) + margens.left() + margens.right(),
            static_cast<int>(ny) * (medidas_.height() + 2 * folga) + margens.top() + margens.bottom()};
}

QRect PinturaDoDesenho::quadroDosEixos() const {
    QRect quadro = QRect{{}, tamanho_.toSize()}.marginsRemoved(margens());
    if (conteúdo_.proporcional) {
        const QPoint meio = quadro.center();
        quadro.setSize(conteúdo_.eixos.size().scaled(quadro.size(), Qt::KeepAspectRatio).toSize());
        quadro.moveCenter(meio);
    }
    quadro.setTop(quadro.top() + subidaDaCurva(quadro.height()));
    return {quadro.topLeft(), quadro.size().expandedTo({1, 1})};
}

QTransform PinturaDoDesenho::transformação() const {
    QTransform t;
    if (conteúdo_.éGráfico()) {
        const auto& eixos = conteúdo_.eixos;
        const QRect quadro = quadroDosEixos();
        t.translate(quadro.left(), quadro.top());
        t.scale(quadro.width() / eixos.width(), quadro.height() / eixos.height());
        t.translate(-eixos.left(), -eixos.top());
        return t;
    }
    const auto& area = conteúdo_.area;
    const double escala = std::min(tamanho_.width() / area.width(), tamanho_.height() / area.height());
    t.translate(tamanho_.width() / 2.0, tamanho_.height() / 2.0);
    t.scale(escala, escala);
    t.translate(-area.center().x(), -area.center().y());
    return t;
}

void PinturaDoDesenho::pintar(QPainter& pintor, double densidade) const {
    if (conteúdo_.éGráfico()) pintarFundo(pintor);
    if (!conteúdo_.figura.isEmpty())
        QSvgRenderer{conteúdo_.figura}.render(&pintor, transformação().mapRect(conteúdo_.area));
    pintor.save();
    // Below the axes and to their left, where the captions stand, a curve that leaves the scale ends.
    if (conteúdo_.éGráfico() && meio_ == Meio::tela)
        pintor.setClipRect(lugarDosTraços().adjusted(0, -1, 1, 2));
    pintarTraços(pintor, densidade);
    pintor.restore();
    if (conteúdo_.éGráfico()) pintarEscalas(pintor);
    if (conteúdo_.éGráfico()) pintarLegenda(pintor);
}

void PinturaDoDesenho::pintarFundo(QPainter& pintor) const {
    if (meio_ == Meio::tela) pintor.fillRect(quadroDosEixos(), fundoDoGráfico);
}

void PinturaDoDesenho::pintarTraços(QPainter& pintor, double densidade) const {
    const bool gráfico = conteúdo_.éGráfico(), noPapel = meio_ == Meio::papel;
    Traçado traçado{transformação(),
                    densidade,
                    lerCurvas(conteúdo_.legenda),
                    meio_,
                    gráfico && noPapel ? std::optional{QRectF{lugarDosTraços()}} : std::nullopt,
                    gráfico && !conteúdo_.proporcional};
    PintorDeTraços pintar{pintor, std::move(traçado)};
    for (const auto& traço : conteúdo_.traços) std::visit(std::ref(pintar), traço);
}

void PinturaDoDesenho::pintarEscalas(QPainter& pintor) const {
    const QRect quadro = quadroDosEixos();
    const int altura = medidas_.height();
    pintor.setPen(QPen{corDasEscalas, 1});
    pintor.setRenderHint(QPainter::Antialiasing, false);
    pintor.drawRect(quadro);

    const auto lugar = [](int início, int comprimento, qsizetype k, qsizetype quantos) {
        return início +
               static_cast<int>(std::lround(static_cast<double>(comprimento) * static_cast<double>(k) /
                                            static_cast<double>(std::max<qsizetype>(quantos - 1, 1))));
    };
    const auto& escalaX = conteúdo_.escalaX;
    const auto& escalaY = conteúdo_.escalaY;
    const QRect tudo = quadro.marginsAdded(margens());
    const int base = quadro.y() + quadro.height();
    for (qsizetype k = 0; k < escalaX.size(); ++k) {
        const int x = lugar(quadro.x(), quadro.width(), k, escalaX.size());
        const int largura = medidas_.horizontalAdvance(escalaX[k]);
        pintor.drawLine(x, base, x, base + traçoDaEscala);
        pintor.drawText(QRect{x - largura / 2, base + traçoDaEscala + folga / 2, largura + 1, altura},
                        Qt::AlignCenter | Qt::TextDontClip, escalaX[k]);
    }
    for (qsizetype k = 0; k < escalaY.size(); ++k) {
        const int y = lugar(base, -quadro.height(), k, escalaY.size());
        pintor.drawLine(quadro.x() - traçoDaEscala, y, quadro.x(), y);
        pintor.drawText(QRect{0, y - altura / 2, quadro.x() - traçoDaEscala - folga, altura},
                        Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip, escalaY[k]);
    }
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.drawText(QRect{quadro.x(), tudo.y() + tudo.height() - altura - folga / 2, quadro.width(), altura},
                    Qt::AlignCenter | Qt::TextDontClip, conteúdo_.tituloX);
    const int metade = static_cast<int>(tamanho_.height() / 2);
    pintor.save();
    pintor.translate(QPoint{tudo.x() + altura / 2 + folga / 2, quadro.center().y()});
    pintor.rotate(-90);
    pintor.drawText(QRect{-metade, -altura / 2, 2 * metade, altura}, Qt::AlignCenter | Qt::TextDontClip,
                    conteúdo_.tituloY);
    pintor.restore();
}

void PinturaDoDesenho::pintarLegenda(QPainter& pintor) const {
    const QRect quadro = quadroDosEixos();
    int x = quadro.x() + (quadro.width() - larguraDaLegenda()) / 2;
    const int y = lugarDosTraços().top() - medidas_.height() - folga + folga / 2;
    for (const auto& curva : lerCurvas(conteúdo_.legenda)) {
        pintarAmostra(pintor, curva, noMeio(curva.cor, meio_),
                      {static_cast<double>(x), y + std::floor(medidas_.height() / 2.0)});
        x += amostraDaLegenda + folga;
        const int largura = medidas_.horizontalAdvance(curva.nome);
        pintor.setPen(corDasEscalas);
        pintor.drawText(QRect{x, y, largura + 1, medidas_.height()}, Qt::AlignVCenter | Qt::TextDontClip,
                        curva.nome);
        x += largura + entreCurvas;
    }
}
