#pragma once

#ifndef Q_MOC_RUN // which takes no accents in an enumeration
#include "comum/desenho.h"
#endif

#include <QImage>
#include <QRectF>
#include <QStringList>
#include <QTransform>
#include <QWidget>

#include <cstdint>
#include <optional>

struct ConteudoDoDesenho;
class PinturaDoDesenho;

/// Shows a drawing surface of the core. What it holds is painted once into an image, and only copied until
/// the drawing or the size changes.
///
/// With `eixos` it is a chart: the rectangle of the axes, in canvas units, takes all the room that the tick
/// captions and the axis titles leave, and everything that was drawn is stretched along with it; with
/// `proporcional` too, as a map has it, the rectangle keeps its proportions in the middle of that room.
/// Without `eixos`, it is a picture: `area`, in canvas units, is fitted into the room with its proportions
/// kept, over the resource `figura`. A child with the property `ancora` (a point in canvas units) stays at
/// that point: its middle, or its left or right end as its alignment asks.
class WidgetDesenho : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QRectF area MEMBER area_)
    Q_PROPERTY(QRectF eixos MEMBER eixos_)
    Q_PROPERTY(bool proporcional MEMBER proporcional_)
    Q_PROPERTY(QString figura MEMBER figura_)
    /// Names of the control arrays that hold the tick captions, equally spaced from one end to the other.
    Q_PROPERTY(QString rotulosX MEMBER rotulosX_)
    Q_PROPERTY(QString rotulosY MEMBER rotulosY_)
    /// The tick captions of an axis that no control array holds.
    Q_PROPERTY(QStringList rotulosXFixos MEMBER rotulosXFixos_)
    Q_PROPERTY(QStringList rotulosYFixos MEMBER rotulosYFixos_)
    Q_PROPERTY(QString tituloX MEMBER tituloX_)
    Q_PROPERTY(QString tituloY MEMBER tituloY_)
    /// The curves that are named above the plot, as `name=#rrggbb`. With `:tracejado` or `:pontilhado` after
    /// it, lines of that colour are dashed or dotted, in the plot too; with `:pontos` the sample is a filled
    /// circle.
    Q_PROPERTY(QStringList legenda MEMBER legenda_)
    /// The height that it would like, in lines of text.
    Q_PROPERTY(int linhasDeAltura MEMBER linhasDeAltura_)

  public:
    explicit WidgetDesenho(QWidget* pai = nullptr);

    /// Brings the picture up to date: copies the strokes if the drawing has another version than the one seen
    /// last.
    void mostrar(const varenta::Desenho& desenho);
    /// Forgets which version was seen last: the drawing may belong to a screen that was loaded anew.
    void esquecerVersão() { versão_.reset(); }
    /// The tick captions of both axes, from the origin on.
    void escreverEscalas(const QStringList& x, const QStringList& y);

    /// What it shows, to be painted elsewhere. Its strokes last until `mostrar`.
    ConteudoDoDesenho conteúdo() const;
    int linhasDeAltura() const { return linhasDeAltura_; }

    /// Canvas units to the widget's own.
    QTransform transformação() const;
    /// The rectangle of the axes in the widget, in whole pixels.
    QRect quadroDosEixos() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// The mouse, or the point that the arrows move over a chart with a read-out, moved, in canvas units.
    void mouseMovido(double x, double y);
    void mouseSaiu();

  protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

  private:
    bool éGráfico() const { return !eixos_.isEmpty(); }
    PinturaDoDesenho pintura() const;
    QPointF emUnidades(QPointF ponto) const;
    /// Moves the point that is read by as many pixels, from the middle at first. It stays within the axes.
    void moverPontoLido(QPoint passo);
    void esquecerPontoLido();
    void ancorarFilhos();
    void pintarImagem();

    QRectF area_, eixos_;
    QString figura_, rotulosX_, rotulosY_, tituloX_, tituloY_;
    QStringList rotulosXFixos_, rotulosYFixos_, legenda_;
    bool proporcional_ = false;
    int linhasDeAltura_ = 20;

    std::vector<varenta::Traço> traços_;
    std::optional<std::uint64_t> versão_;
    QStringList escalaX_, escalaY_;
    QImage imagem_;
    std::optional<QPoint> pontoLido_;
};
