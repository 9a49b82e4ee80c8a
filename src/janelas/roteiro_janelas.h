#pragma once

#include "janelas/janelas.h"

#include <QString>

/// Runs a roteiro through the windows, printing what it prints on standard output. With a folder `imagens`,
/// saves a picture of the screen there at each `mostrar Tela`: "01-form1.png", "02-Form7.png", and so on. The
/// result is the exit status.
int executarNasJanelas(Janelas& janelas, const QString& roteiro, const QString& imagens);

/// Opens a roteiro for a person: starts the system, asks whether to run it (a roteiro may replace files), and
/// leaves the windows as its last command left them. What went wrong is told in a box. False where the
/// roteiro closed the main window, and so the program.
bool abrirNasJanelas(Janelas& janelas, const QString& roteiro);
