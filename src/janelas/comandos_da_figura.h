#pragma once

namespace varenta {
class TelaBase;
}
class WidgetDesenho;

/// Gives a drawing of a screen its commands "Copiar figura" (Ctrl+C) and "Salvar figura…" (Ctrl+S): in a menu
/// under the mouse or by the menu key, and by their keys while it has the focus. A drawing that shows data
/// can be reached by Tab for that.
void oferecerFigura(WidgetDesenho& desenho, varenta::TelaBase& tela);
