#pragma once

#include <string>

namespace varenta {

/// The application's help file. Empty until the first screen has been loaded.
inline std::string arquivoDeAjuda;

/// What every screen does on loading: names the help file.
inline void associarAjuda() { arquivoDeAjuda = "C:\\Arquivos de programas\\Varenta\\VARENTA VERSÃO 5.0.hlp"; }

} // namespace varenta
