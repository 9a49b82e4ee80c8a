#pragma once

#include "ajuste/controles_graf.h"

namespace varenta {

/// The events of the result screen of the grid test `n`.
EventosTela eventosDeForm_graf(int n);

/// A grid test beside what the fitted model estimates: two maps on one scale, `Picture1` the observations,
/// `Picture2` the estimates. `Label13` and `Label15` tell the greatest value of each. Three screens of this
/// one kind.
struct RegistroFormGraf : ControlesDeGraf {
    std::string Caption;

    /// Coordinates beside the map of `Picture1`, as `Label5` and `Label6` beside the other.
    std::array<Rotulo, 7> Label3, Label4;

    template <class Visita>
    void percorrer(Visita&& visita) {
        percorrerDesvios(visita);
        visita("Picture1", Picture1);
        visita("Label3", Label3, 0);
        visita("Label4", Label4, 0);
        percorrerMapa(visita);
    }
};

inline Tela<RegistroFormGraf> form_graf1{"Form_graf1", eventosDeForm_graf(1)};
inline Tela<RegistroFormGraf> form_graf2{"Form_graf2", eventosDeForm_graf(2)};
inline Tela<RegistroFormGraf> form_graf3{"Form_graf3", eventosDeForm_graf(3)};

/// The screen of the test `n`, 1 to 3.
inline Tela<RegistroFormGraf>& form_graf(int n) {
    return n == 1 ? form_graf1 : n == 2 ? form_graf2 : form_graf3;
}

} // namespace varenta
