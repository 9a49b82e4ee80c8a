#pragma once

#include "ajuste/controles_ajuste.h"
#include "aspersor/atualizar_aspersor.h"
#include "comum/ajuda.h"

namespace varenta {

void form_AjVen_Load();
void form_AjVen_Fechar();
void form_AjVen_MouseMove();
void form_AjVen_seleção_Change();
void form_AjVen_unidade_Click();
void form_AjVen_Picture1_MouseMove(double x, double y);

/// Fit of the wind parameters for a catalogue sprinkler, which is selected here as on `form1`.
struct RegistroFormAjVen : ControlesDeAjuste {
    std::string Caption = "Características Técnicas do Aspersor KELMO-TX15";

    Lista Combo1{.aoClicar = form_AjVen_seleção_Change};
    /// The caption of the auxiliary nozzle.
    Rotulo Label17{.texto = "Auxiliar:"};
    Lista Combo2{.aoClicar = form_AjVen_seleção_Change};
    Rolagem hsbPressão{.valor = 50,
                       .mínimo = 30,
                       .máximo = 70,
                       .passoPequeno = 5,
                       .passoGrande = 5,
                       .aoMudar = form_AjVen_seleção_Change,
                       .aoRolar = form_AjVen_seleção_Change};
    Opcao optMCA{
        .texto = "m.c.a.", .grupo = "unidade", .marcada = true, .aoClicar = form_AjVen_unidade_Click};
    Opcao optKG{.texto = "kgf/cm²", .grupo = "unidade", .aoClicar = form_AjVen_unidade_Click};
    Opcao optKPA{.texto = "kPa", .grupo = "unidade", .aoClicar = form_AjVen_unidade_Click};
    Rotulo lblPressão{.texto = "50"};
    Rotulo lblVazão, lblInt;

    Desenho Picture1{.aoMoverMouse = form_AjVen_Picture1_MouseMove};
    /// Axis captions of r, 0 to 10, and of i, 0 to 6.
    std::array<Rotulo, 11> Label6;
    std::array<Rotulo, 7> Label7;
    Rotulo Label15{.texto = "r ="};
    Rotulo Label16{.texto = "i ="};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("Combo1", Combo1);
        visita("Label17", Label17);
        visita("Combo2", Combo2);
        visita("hsbPressão", hsbPressão);
        visita("optMCA", optMCA);
        visita("optKG", optKG);
        visita("optKPA", optKPA);
        visita("lblPressão", lblPressão);
        visita("lblVazão", lblVazão);
        visita("lblInt", lblInt);
        percorrerAspersor(visita);
        visita("Picture1", Picture1);
        visita("Label6", Label6, 0);
        visita("Label7", Label7, 0);
        visita("Label15", Label15);
        visita("Label16", Label16);
        percorrerAjuste(visita);
    }
};

inline Tela<RegistroFormAjVen> form_AjVen{"form_AjVen",
                                          {.aoCarregar = form_AjVen_Load,
                                           .aoFechar = form_AjVen_Fechar,
                                           .aoMoverMouse = form_AjVen_MouseMove,
                                           .tópicoDaAjuda = topicos::form_AjVen}};

/// The selection of the sprinkler.
SeleçãoDeAspersor seleçãoDeFormAjVen();

/// Opens `form_AjVen` for a model with its default nozzles and pressure, and leaves the buttons of one
/// method.
void abrirFormAjVen(const ModeloDeAspersor& modelo, Método método);

} // namespace varenta
