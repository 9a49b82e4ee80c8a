#pragma once

#include <QPalette>

/// The colours of the windows where the desktop is light, and of every drawing, which was made for them.
QPalette paletaClara();

/// The colours of the windows where the desktop is dark.
QPalette paletaEscura();

/// Whether a palette writes light on dark.
bool éEscura(const QPalette& paleta);
