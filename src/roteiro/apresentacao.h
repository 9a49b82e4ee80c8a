#pragma once

#include "comum/atos.h"

#include <string>
#include <string_view>

/// What a roteiro prints of a control: lines of text, each with its line end. A text within a line has its
/// line ends written as \n and \r, its tabs as \t, its backslashes as \\.
namespace varenta {

std::string escapar(std::string_view texto);

/// "form1.Combo1 = 30 mm".
std::string apresentarTexto(std::string_view nome, std::string_view texto);

/// What `mostrar` prints of the control, a drawing as its summary alone.
std::string apresentarResumo(const Alvo& alvo);

/// What `mostrar` prints of a control asked for by its own name: a drawing with all of its strokes.
std::string apresentarPorInteiro(const Alvo& alvo);

/// The items of a list, separated by tabs. Raises `ErroDeRoteiro` for any other kind of control.
std::string apresentarItens(const Alvo& alvo);

/// What `estado` prints of the control.
std::string apresentarEstado(const Alvo& alvo);

} // namespace varenta
