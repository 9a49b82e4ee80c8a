#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

#include <array>

namespace varenta {

/// How far a fit has come. It shows only while one is at work.
struct RegistroFormAjCar {
    std::string Caption = "Ajuste dos Parâmetros";

    Rotulo Label1{.texto = "Desvio médio:"};
    Barra ProgressBar1{.máximo = 56};
    Rotulo lblEtapa{.texto = "Preparação dos ensaios"};
    /// The deviation along the bar, with the tick captions of the deviation, 0 to 5.
    Desenho Picture1;
    std::array<Rotulo, 6> Label2;

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label1", Label1);
        visita("ProgressBar1", ProgressBar1);
        visita("lblEtapa", lblEtapa);
        visita("Picture1", Picture1);
        visita("Label2", Label2, 0);
    }
};

inline Tela<RegistroFormAjCar> form_AjCar{"Form_AjCar", {.tópicoDaAjuda = topicos::form_AjCar}};

} // namespace varenta
