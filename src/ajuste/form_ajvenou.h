#pragma once

#include "ajuste/controles_ajuste.h"
#include "comum/ajuda.h"

namespace varenta {

void form_AjvenOu_Load();
void form_AjvenOu_Fechar();
void form_AjvenOu_MouseMove();
void form_AjvenOu_Command18_Click();
void form_AjvenOu_Picture1_MouseMove(double x, double y);

/// Fit of the wind parameters for a sprinkler whose radial profile was measured. Its results can't be saved.
struct RegistroFormAjvenOu : ControlesDeAjuste {
    std::string Caption = "Características Técnicas do Aspersor";

    /// "Aspersor: ", "Bocais: ", "Pressão: " and what is known of each.
    Rotulo lblAspersor, lblBocais, lblPressão;
    Rotulo Label17; // flow, m³/h
    /// The radial profile, with the axis captions of r and i and the read-out.
    Desenho Picture1{.aoMoverMouse = form_AjvenOu_Picture1_MouseMove};
    std::array<Rotulo, 11> Label6;
    std::array<Rotulo, 7> Label7;
    Rotulo Label15{.texto = "r ="};
    Rotulo Label16{.texto = "i ="};
    Botao Command18{.texto = "<< &Voltar", .aoClicar = form_AjvenOu_Command18_Click};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("lblAspersor", lblAspersor);
        visita("lblBocais", lblBocais);
        visita("lblPressão", lblPressão);
        visita("Label17", Label17);
        percorrerAspersor(visita);
        visita("Picture1", Picture1);
        visita("Label6", Label6, 0);
        visita("Label7", Label7, 0);
        visita("Label15", Label15);
        visita("Label16", Label16);
        percorrerAjuste(visita);
        visita("Command18", Command18);
    }
};

inline Tela<RegistroFormAjvenOu> form_AjvenOu{"Form_AjvenOu",
                                              {.aoCarregar = form_AjvenOu_Load,
                                               .aoFechar = form_AjvenOu_Fechar,
                                               .aoMoverMouse = form_AjvenOu_MouseMove,
                                               .tópicoDaAjuda = topicos::form_AjvenOu}};

/// Another sprinkler as its screens tell it, all as texts.
struct TextosDoAspersor {
    std::string título;                    // caption of the screen
    std::string aspersor, bocais, pressão; // "Aspersor: ...", "Bocais: ... mm", "Pressão: ... m.c.a."
    std::string raio, vazão, anguloJato;   // bare numbers: m, m³/h, degrees
};

/// Loads `Form_AjvenOu` for a sprinkler, but for the points of its profile, and for a method, of whose
/// buttons it leaves the one group. The screen does not show yet.
void prepararFormAjvenOu(const TextosDoAspersor& textos, Método método);

} // namespace varenta
