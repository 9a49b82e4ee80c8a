#pragma once

#include "aspersor/form1.h"
#include "comum/operacoes.h"
#include "shell/form3.h"
#include "shell/sistema.h"
#include "simulacao/campo_intensidades.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"

namespace varenta::bancada {

/// TX20, 38 mm, 60 m.c.a., 1.5 m, wind of 5 m/s from 60 degrees, default parameters, dry angles 60/60: a
/// field of 88 x 88 points.
inline DadosDaSimulação caso() {
    iniciarSistema();
    form3_TX20B_Click();
    escolherItem(form1->Combo1, "38 mm");
    escolherItem(form1->Combo2, "0 mm");
    definirValor(form1->hsbPressão, 60);
    form1_Command3_Click();
    escolherItem(form7->Combo2, "1.5");
    definirValor(form7->HScroll1, 60);
    definirValor(form7->HScroll2, 50);
    return lerSimulação(aspersorDoCatálogo());
}

} // namespace varenta::bancada
