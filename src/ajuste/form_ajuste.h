#pragma once

#include "comum/tela.h"

namespace varenta {

EventosTela eventosDeForm_ajuste1();
EventosTela eventosDeForm_MIajuste1();

/// The estimates for a test as a table. One screen for grid tests, `Form_ajuste1`, and one for travelling
/// tests, `Form_MIajuste1`, each for the test whose values were asked for last.
struct RegistroFormAjuste {
    std::string Caption;

    Rotulo Label20, Label19, Label18; // sprinkler, as on the test's screen
    Rotulo Label17, Label2;           // wind, m/s and degrees
    Quadro Frame4;
    Grade flex_A;

    Botao Command1{.texto = "&Salvar"};
    Botao Command2{.texto = "&Fechar"};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label20", Label20);
        visita("Label19", Label19);
        visita("Label18", Label18);
        visita("Label17", Label17);
        visita("Label2", Label2);
        visita("Frame4", Frame4);
        visita("flex_A", flex_A);
        visita("Command1", Command1);
        visita("Command2", Command2);
    }
};

inline Tela<RegistroFormAjuste> form_ajuste1{"Form_ajuste1", eventosDeForm_ajuste1()};
inline Tela<RegistroFormAjuste> form_MIajuste1{"Form_MIajuste1", eventosDeForm_MIajuste1()};

} // namespace varenta
