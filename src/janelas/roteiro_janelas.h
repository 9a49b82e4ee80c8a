#pragma once

#include "janelas/janelas.h"

#include <QString>

/// Runs a roteiro through the windows, printing what it prints on standard output. With a folder `imagens`,
/// saves a picture of the screen there at each `mostrar Tela`: "01-form1.png", "02-Form7.png", and so on. The
/// result is the exit status.
int executarNasJanelas(Janelas& janelas, const QString& roteiro, const QString& imagens);
