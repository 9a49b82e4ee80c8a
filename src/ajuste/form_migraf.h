#pragma once

#include "ajuste/controles_graf.h"

namespace varenta {

/// The events of the result screen of the travelling test `n`.
EventosTela eventosDeForm_MIgraf(int n);

/// A travelling test beside what the fitted model estimates: `Picture1` the depths across the lane, marks for
/// those observed and a line for those estimated, `Picture2` the map of the intensities estimated. `Label13`
/// tells the greatest intensity, `Label20` and `Label15` the greatest depth estimated and observed. Three
/// screens of this one kind.
struct RegistroFormMIgraf : ControlesDeGraf {
    std::string Caption;

    Rotulo Label20;
    Rotulo Label18{.texto = "Estimadas"};
    Rotulo Label19{.texto = "Observadas"};
    /// Tick captions of the distance, 0 to 8, and of the depth, 0 to 5, and the read-out.
    std::array<Rotulo, 9> Label3;
    std::array<Rotulo, 6> Label4;
    Rotulo Label14d{.texto = "d ="};
    Rotulo Label14I{.texto = "I ="};

    template <class Visita>
    void percorrer(Visita&& visita) {
        percorrerDesvios(visita);
        visita("Label20", Label20);
        visita("Picture1", Picture1);
        visita("Label3", Label3, 0);
        visita("Label4", Label4, 0);
        visita("Label14d", Label14d);
        visita("Label14I", Label14I);
        visita("Label18", Label18);
        visita("Label19", Label19);
        percorrerMapa(visita);
    }
};

inline Tela<RegistroFormMIgraf> form_MIgraf1{"Form_MIgraf1", eventosDeForm_MIgraf(1)};
inline Tela<RegistroFormMIgraf> form_MIgraf2{"Form_MIgraf2", eventosDeForm_MIgraf(2)};
inline Tela<RegistroFormMIgraf> form_MIgraf3{"Form_MIgraf3", eventosDeForm_MIgraf(3)};

/// The screen of the test `n`, 1 to 3.
inline Tela<RegistroFormMIgraf>& form_MIgraf(int n) {
    return n == 1 ? form_MIgraf1 : n == 2 ? form_MIgraf2 : form_MIgraf3;
}

} // namespace varenta
