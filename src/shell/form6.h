#pragma once

#include "comum/tela.h"

namespace varenta {

void form6_Load();
void form6_Command1_Click();

/// What the program is.
struct RegistroForm6 {
    std::string Caption = "Sobre o Varenta";

    Desenho Picture1, Picture2;
    Rotulo Label6{.texto = "Varenta:"};
    Rotulo Label7{.texto = "Versão 5.0"};
    Rotulo Label9{.texto =
                      "\"Aplicativo para Simulação da Distribuição de Água em Sistemas Autopropelidos de "
                      "Irrigação\""};
    Botao Command1{.texto = "&OK", .aoClicar = form6_Command1_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Picture1", Picture1);
        visita("Picture2", Picture2);
        visita("Label6", Label6);
        visita("Label7", Label7);
        visita("Label9", Label9);
        visita("Command1", Command1);
    }
};

inline Tela<RegistroForm6> form6{"Form6", {.aoCarregar = form6_Load, .aoFechar = form6_Command1_Click}};

} // namespace varenta
