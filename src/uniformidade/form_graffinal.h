#pragma once

#include "comum/ajuda.h"
#include "comum/tela.h"

namespace varenta {

void form_grafFinal_Load();
void form_grafFinal_Command1_Click();

/// Map of the depths over the whole strip, its start at the top.
struct RegistroFormGrafFinal {
    std::string Caption = "Distribuição de Água na Faixa Irrigada";

    /// What tells the strip that was drawn, for the figures.
    std::vector<std::string> faixaDesenhada;

    Rotulo Label15{.texto = "Maior Precipitação: "};
    /// Mean depth of all cells of the field.
    Rotulo Label7;
    Rotulo Label16, Label2, Label17, Label1;
    Desenho Picture1;
    /// The legend, with the upper and the lower limit of the scale.
    Desenho Picture2;
    Rotulo Label4, Label3;
    /// Tells at how many points the map can't be trusted; empty where at none.
    Rotulo lblAviso;

    Botao Command1{.texto = "Fechar", .aoClicar = form_grafFinal_Command1_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Label15", Label15);
        visita("Label7", Label7);
        visita("Label16", Label16);
        visita("Label2", Label2);
        visita("Label17", Label17);
        visita("Label1", Label1);
        visita("Picture1", Picture1);
        visita("Picture2", Picture2);
        visita("Label4", Label4);
        visita("Label3", Label3);
        visita("lblAviso", lblAviso);
        visita("Command1", Command1);
    }
};

inline Tela<RegistroFormGrafFinal> form_grafFinal{"Form_grafFinal",
                                                  {.aoCarregar = form_grafFinal_Load,
                                                   .aoFechar = form_grafFinal_Command1_Click,
                                                   .tópicoDaAjuda = topicos::form_grafFinal}};

} // namespace varenta
