#pragma once

#include "janelas/pintura_desenho.h"

#include <QByteArray>
#include <QImage>

#include <optional>
#include <vector>

/// A drawing as a figure for a document: on a white sheet as wide as the text of a page, with its title,
/// axes, legend, colour scale and the data of its run.

/// A text at a point of a drawing, in canvas units: its middle, or its left or right end.
struct TextoDoDesenho {
    QString texto;
    QPointF lugar;
    Qt::Alignment alinhamento;
    QColor cor;
    bool negrito;
};

/// A drawing with the texts that its layout puts on it.
struct DesenhoDaFigura {
    ConteudoDoDesenho conteúdo;
    std::vector<TextoDoDesenho> textos;
    /// The height that it would like, in lines of text; a chart has that of its axes.
    int linhasDeAltura = 20;
};

struct Figura {
    QString título;
    DesenhoDaFigura desenho;
    /// The scale of a map's colours, at its right.
    std::optional<DesenhoDaFigura> cores;
    /// What the run was, an entry each, as in "Pressão: 60 m.c.a.".
    QStringList dados;
};

/// 16 cm wide, at `pontosPorPolegada` dots per inch, which the image knows.
QImage imagemDaFigura(const Figura& figura, int pontosPorPolegada);
/// The bytes of a PNG file of that image. Raises "Memória insuficiente" where it can't be made.
QByteArray pngDaFigura(const Figura& figura, int pontosPorPolegada);
/// The bytes of an SVG file: strokes and texts stay what they are, a map's field is one image.
QByteArray svgDaFigura(const Figura& figura);
/// The bytes of a PDF file of one page, no larger than the figure.
QByteArray pdfDaFigura(const Figura& figura);
