#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

/// How far a fit has come. It shows only while one is at work.
struct RegistroFormAjCar {
    std::string Caption = "Ajuste dos Parâmetros";

    Rotulo Label1{.texto = "Desvio médio:"};
    Barra ProgressBar1{.máximo = 56};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label1", Label1);
        visita("ProgressBar1", ProgressBar1);
    }
};

inline Tela<RegistroFormAjCar> form_AjCar{"Form_AjCar", {.tópicoDaAjuda = topicos::form_AjCar}};

} // namespace varenta
