#pragma once

#include "comum/desenho.h"

#include <QColor>
#include <QFontMetrics>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QTransform>

#include <span>

class QPainter;

/// What a drawing shows: the strokes of the core and what its layout puts around them. `WidgetDesenho` tells
/// what each means.
struct ConteudoDoDesenho {
    QRectF area = {}, eixos = {};
    bool proporcional = false;
    QString figura = {};
    /// The tick captions of both axes, from the origin on.
    QStringList escalaX = {}, escalaY = {};
    QString tituloX = {}, tituloY = {};
    QStringList legenda = {};
    /// Belong to the drawing.
    std::span<const varenta::Traço> traços = {};

    bool éGráfico() const { return !eixos.isEmpty(); }
    /// The size that it would have by itself, in canvas units.
    QSizeF proporções() const { return éGráfico() ? eixos.size() : area.size(); }
};

/// The same content on a screen and in a document: on paper the plot's ground is white, its grid is grey, a
/// bright green is darker, and strokes end at the axes by themselves, since not every file format can clip.
enum class Meio { tela, papel };

/// Lays a drawing out in a rectangle from the origin, and paints it there.
class PinturaDoDesenho {
  public:
    PinturaDoDesenho(ConteudoDoDesenho conteúdo, QSizeF tamanho, const QFontMetrics& medidas,
                     Meio meio = Meio::tela);

    /// What tick captions, axis titles and the legend take of a chart on each side.
    QMargins margens() const;
    /// What a chart needs for its captions not to run into each other, however little else it shows.
    QSize menorTamanhoDoGráfico() const;
    /// The rectangle of the axes, in whole units.
    QRect quadroDosEixos() const;
    /// Canvas units to those of the rectangle.
    QTransform transformação() const;
    /// In the painter's font, which is the one measured. `densidade`: the pixels of a unit.
    void pintar(QPainter& pintor, double densidade = 1) const;

  private:
    int larguraDaLegenda() const;
    QRect lugarDosTraços() const;
    void pintarFundo(QPainter& pintor) const;
    void pintarTraços(QPainter& pintor, double densidade) const;
    void pintarEscalas(QPainter& pintor) const;
    void pintarLegenda(QPainter& pintor) const;

    ConteudoDoDesenho conteúdo_;
    QSizeF tamanho_;
    QFontMetrics medidas_;
    Meio meio_;
};
