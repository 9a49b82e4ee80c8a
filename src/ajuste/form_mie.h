#pragma once

#include "ajuste/controles_ensaio.h"

namespace varenta {

/// The events of the screen of the test `n`.
EventosTela eventosDeForm_MiE(int n);

/// A travelling test under wind: the readings of lines of collectors across the lane of a moving sprinkler.
/// Three screens of this one kind.
struct RegistroFormMiE : ControlesDeEnsaio {
    std::string Caption;

    Lista Combo1{.texto = "3", .admiteDigitação = true};
    Lista Combo2{.texto = "6.0", .admiteDigitação = true};
    Lista Combo3{.texto = "20", .admiteDigitação = true};
    Lista Combo4{.itens = {"1.0", "1.5", "2.0", "3.0", "6.0"}, .texto = "2.0", .admiteDigitação = true};
    Lista Combo6{.admiteDigitação = true};
    CaixaTexto Text1;

    RegistroFormMiE() { Option4.marcada = true; }

    template <class Visita>
    void percorrer(Visita&& visita) {
        percorrerAspersor(visita);
        visita("Combo1", Combo1);
        visita("Combo2", Combo2);
        visita("Combo3", Combo3);
        visita("Combo4", Combo4);
        visita("Combo6", Combo6);
        visita("Text1", Text1);
        percorrerVento(visita);
        visita("Option4", Option4);
        visita("Option3", Option3);
        percorrerEntrada(visita);
    }
};

inline Tela<RegistroFormMiE> form_MiE1{"Form_MiE1", eventosDeForm_MiE(1)};
inline Tela<RegistroFormMiE> form_MiE2{"Form_MiE2", eventosDeForm_MiE(2)};
inline Tela<RegistroFormMiE> form_MiE3{"Form_MiE3", eventosDeForm_MiE(3)};

/// The screen of the test `n`, 1 to 3.
inline Tela<RegistroFormMiE>& form_MiE(int n) { return n == 1 ? form_MiE1 : n == 2 ? form_MiE2 : form_MiE3; }

/// Sets rows and columns of the test's grid from the numbers of collectors and lines, and writes the headers.
/// Raises as `Erro_plan`.
void MIErro_plan(int n);

} // namespace varenta
