#pragma once

#include "janelas/figura.h"

namespace varenta {
class TelaBase;
}
class WidgetDesenho;

/// A drawing of a screen's window as a figure, with what the screens of its road know of the run. A map and
/// its colour scale are one figure, whichever of both is asked for. It shows the drawing's own strokes, and
/// must not outlive them.
Figura figuraDaTela(const WidgetDesenho& desenho, varenta::TelaBase& tela);

/// Whether the drawing tells something of a run, and isn't just an illustration.
bool temDados(const WidgetDesenho& desenho, const varenta::TelaBase& tela);
