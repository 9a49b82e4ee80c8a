#pragma once

#include "apoio/atalhos.h"
#include "apoio/plataforma_teste.h"
#include "aspersor/form1.h"
#include "shell/form3.h"
#include "simulacao/form7.h"

#include <gtest/gtest.h>

/// `Form7` on the road of a catalogue sprinkler, and a sprinkler small enough to be worked by hand.
namespace varenta::teste {

/// Opens `Form7` as a person does: a menu item of the main window, then "&Avançar >>".
inline void abrirForm7(std::string_view item = "TX15B") {
    recomeçar();
    atos::clicar(alvo(form3, item));
    atos::clicar(alvo(form1, "Command3"));
    caderno.clear();
}

/// Replaces the sprinkler by one of 3 m that waters `intensidade` everywhere and all around, on points 2 m
/// apart, at 40 m/h. The field has 4 x 4 points at -3, -1, 1 and 3 m; only the four around the sprinkler, at
/// 1.41 m, are wetted. So at -1 and 1 m the depth is 2 points x intensity x 2 m / 40 m/h, a tenth of the
/// intensity's number, and at -3 and 3 m it is 0.
inline void aspersorDeTrêsMetros(const std::string& intensidade) {
    form1->lblRaioAlcance.texto = "3.00";
    for (std::size_t k = 1; k <= 22; ++k) form1->lblIntensidade[k].texto = intensidade;
    form7->Combo2.texto = "2.0";
    form7->Text1.texto = "40";
    form7->Label24.texto = form7->Label33.texto = "0";
}

/// Lets the sprinkler give no water at all.
inline void secarAspersor() {
    const std::string zero(1, '0');
    for (auto& rótulo : form1->lblIntensidade) rótulo.texto = zero;
}

} // namespace varenta::teste
