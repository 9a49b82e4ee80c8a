#pragma once

#include "ajuste/controles_ensaio.h"

namespace varenta {

/// The events of the screen of the test `n`.
EventosTela eventosDeForm_E(int n);

/// A grid test under wind: the readings of a square of collectors around a sprinkler at rest. Three screens
/// of this one kind.
struct RegistroFormE : ControlesDeEnsaio {
    std::string Caption;

    Lista Combo2{.texto = "14", .admiteDigitação = true};
    Lista Combo1{.itens = {"2.0", "3.0", "6.0"}, .texto = "6.0", .admiteDigitação = true};
    Opcao Option1{.texto = "Intensidade (mm/h)", .grupo = "unidade", .marcada = true};
    Rotulo Label8{.texto = "Tempo de Ensaio (min)", .visivel = false};
    CaixaTexto Text6{.visivel = false};

    template <class Visita>
    void percorrer(Visita&& visita) {
        percorrerAspersor(visita);
        visita("Combo2", Combo2);
        visita("Combo1", Combo1);
        percorrerVento(visita);
        visita("Option1", Option1);
        visita("Option4", Option4);
        visita("Option3", Option3);
        visita("Label8", Label8);
        visita("Text6", Text6);
        percorrerEntrada(visita);
    }
};

inline Tela<RegistroFormE> form_E1{"Form_E1", eventosDeForm_E(1)};
inline Tela<RegistroFormE> form_E2{"Form_E2", eventosDeForm_E(2)};
inline Tela<RegistroFormE> form_E3{"Form_E3", eventosDeForm_E(3)};

/// The screen of the test `n`, 1 to 3.
inline Tela<RegistroFormE>& form_E(int n) { return n == 1 ? form_E1 : n == 2 ? form_E2 : form_E3; }

/// Sets rows and columns of the test's grid from the number of collectors a side, and writes the headers.
/// Raises "Memória insuficiente" for more than a grid can hold, "Valor de propriedade inválido" below 0.
void Erro_plan(int n);

} // namespace varenta
