#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void form_grafVen_Load();
void form_grafVen_Command1_Click();

/// Map of the intensities of precipitation over the wetted plane.
struct RegistroFormGrafVen {
    std::string Caption = "Precipitações Estimadas";

    Rotulo Label7{.texto = "Maior Precipitação: "};
    Rotulo Label8{.texto = "Velocidade do Vento: "};
    Rotulo Label9{.texto = "Direção do Vento: "};
    Desenho Picture1;
    /// Tick captions along the bottom, from left to right, and along the left side, from bottom to top.
    std::array<Rotulo, 7> Label3, Label4;
    /// The legend, and its captions: its bottom, middle and top.
    Desenho Picture2;
    std::array<Rotulo, 3> Label15;
    /// Tells at how many points the map can't be trusted; empty where at none.
    Rotulo lblAviso;

    Botao Command1{.texto = "Fechar", .aoClicar = form_grafVen_Command1_Click};

    RegistroFormGrafVen() { Label15[0].texto = "0.0 mm/h"; }

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label7", Label7);
        visita("Label8", Label8);
        visita("Label9", Label9);
        visita("Picture1", Picture1);
        visita("Label3", Label3, 0);
        visita("Label4", Label4, 0);
        visita("Picture2", Picture2);
        visita("Label15", Label15, 0);
        visita("lblAviso", lblAviso);
        visita("Command1", Command1);
    }
};

inline Tela<RegistroFormGrafVen> form_grafVen{"Form_grafVen",
                                              {.aoCarregar = form_grafVen_Load,
                                               .aoFechar = form_grafVen_Command1_Click,
                                               .tópicoDaAjuda = topicos::form_grafVen}};

} // namespace varenta
