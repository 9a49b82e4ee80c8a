#pragma once

#include "comum/plataforma.h"

#include <string>

namespace varenta {

/// The application's help file. Empty until the first screen has been loaded.
inline std::string arquivoDeAjuda;

/// What every screen does on loading: names the help file.
inline void associarAjuda() { arquivoDeAjuda = "C:\\Arquivos de programas\\Varenta\\VARENTA VERSÃO 5.0.hlp"; }

/// The help topic of each screen. Those below 30 are the ones that help buttons have always asked for.
namespace topicos {
inline constexpr int form1 = 10;
inline constexpr int form_AjVen = 11;
inline constexpr int form_AjvenOu = 12;
inline constexpr int form7 = 14;
inline constexpr int form4 = 15;
inline constexpr int form5 = 16;
inline constexpr int perfilForm = 17;
inline constexpr int perfil = 18;
inline constexpr int form_MiE = 21;
inline constexpr int formUnifo = 22;
inline constexpr int form9 = 23;
inline constexpr int form_EC = 30;
inline constexpr int form_E = 31;
inline constexpr int form8 = 32;
inline constexpr int form_grafVen = 33;
inline constexpr int form_grafFinal = 34;
inline constexpr int form_ajuste1 = 35;
inline constexpr int form_MIajuste1 = 36;
inline constexpr int form_graf = 37;
inline constexpr int form_MIgraf = 38;
inline constexpr int form_AjCar = 39;
} // namespace topicos

/// The handler of a screen's help button.
template <int tópico>
void mostrarAjuda() {
    plataforma::ajuda(tópico);
}

/// Opens the index of the help, or tells that no help file is named; a failure to open it is told too.
void mostrarÍndiceDaAjuda();

} // namespace varenta
