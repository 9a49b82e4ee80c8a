#pragma once

#include "ajuste/controles_ajuste.h"

namespace varenta {

void form_AjvenOu_Load();
void form_AjvenOu_Fechar();

/// Fit of the wind parameters for a sprinkler whose radial profile was measured. Its results can't be saved.
struct RegistroFormAjvenOu : ControlesDeAjuste {
    std::string Caption = "Características Técnicas do Aspersor";

    /// "Aspersor: ", "Bocais: ", "Pressão: " and what is known of each.
    Rotulo lblAspersor, lblBocais, lblPressão;
    Rotulo Label17; // flow, m³/h
    Botao Command18{.texto = "<< &Voltar"};

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("lblAspersor", lblAspersor);
        visita("lblBocais", lblBocais);
        visita("lblPressão", lblPressão);
        visita("Label17", Label17);
        percorrerAspersor(visita);
        percorrerAjuste(visita);
        visita("Command18", Command18);
    }
};

inline Tela<RegistroFormAjvenOu> form_AjvenOu{
    "Form_AjvenOu", {.aoCarregar = form_AjvenOu_Load, .aoFechar = form_AjvenOu_Fechar}};

/// Another sprinkler as its screens tell it, all as texts.
struct TextosDoAspersor {
    std::string título;                    // caption of the screen
    std::string aspersor, bocais, pressão; // "Aspersor: ...", "Bocais: ... mm", "Pressão: ... m.c.a."
    std::string raio, vazão, anguloJato;   // bare numbers: m, m³/h, degrees
    /// Points 1 to 22, m and mm/h.
    std::array<std::string, 22> lblRaio, lblIntensidade;
};

/// Loads `Form_AjvenOu` for a sprinkler and a method, of whose buttons it leaves the one group. The screen
/// does not show yet.
void prepararFormAjvenOu(const TextosDoAspersor& textos, Método método);

} // namespace varenta
