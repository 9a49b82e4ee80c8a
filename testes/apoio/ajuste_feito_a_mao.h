#pragma once

#include "ajuste/controles_ajuste.h"
#include "ajuste/form_ajvenou.h"
#include "ajuste/form_e.h"
#include "ajuste/form_mie.h"
#include "ajuste/operacoes_ensaio.h"
#include "apoio/atalhos.h"
#include "apoio/plataforma_teste.h"
#include "aspersor/perfil_form.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "simulacao/perfil_em.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

/// A sprinkler out of the catalogue and tests small enough to be worked by hand.
namespace varenta::teste {

/// A sprinkler of 6 m that waters 10 mm/h everywhere, of 0.936 m³/h.
inline TextosDoAspersor aspersorDeSeisMetros() {
    return {.título = "Características Técnicas do Aspersor Meu",
            .aspersor = "Aspersor: Meu",
            .bocais = "Bocais: 12 mm",
            .pressão = "Pressão: 40 m.c.a.",
            .raio = "6.00",
            .vazão = "0.936",
            .anguloJato = "24"};
}

inline void abrirFormAjvenOu(Método método) {
    recomeçar();
    auto& digitado = *perfilForm.operator->();
    digitado.Text7.texto = "Meu";
    digitado.Text9.texto = "12";
    digitado.Text2.texto = "40";
    digitado.Text8.texto = "24";
    digitado.Text1.texto = "0.936";
    prepararFormAjvenOu(aspersorDeSeisMetros(), método);
    for (auto& rótulo : form_AjvenOu->lblIntensidade) rótulo.texto = "10.000";
    form_AjvenOu.mostrar();
}

/// Types the readings of a test row by row.
inline void preencher(ControlesDeEnsaio& ensaio, std::initializer_list<const char*> textos) {
    const auto planilha = planilhaDoEnsaio(ensaio);
    irParaCélula(planilha, 1, 1);
    for (const char* texto : textos) {
        ensaio.Text5.texto = texto;
        teclar(planilha, teclaEnter);
    }
}

/// The grid test `n`: 2 x 2 collectors every 6 m, at (3, 3) and so on, without wind.
inline void malhaDeQuatro(int n, std::initializer_list<const char*> leituras) {
    auto& f = *form_E(n).operator->();
    f.Combo2.texto = std::string("2");
    Erro_plan(n);
    definirValor(f.HScroll2, 0);
    preencher(f, leituras);
}

/// The travelling test `n`: one line of one collector on each side every 6 m, at 60 m/h, all around, without
/// wind.
inline void móvelDeDois(int n, std::initializer_list<const char*> leituras) {
    auto& f = *form_MiE(n).operator->();
    f.Combo1.texto = std::string("1");
    f.Combo3.texto = std::string("1");
    f.Combo4.texto = std::string("6.0");
    f.Combo6.texto = std::string("360");
    f.Text1.texto = std::string("60");
    MIErro_plan(n);
    definirValor(f.HScroll2, 0);
    preencher(f, leituras);
}

/// The same for a sprinkler of 20 m whose intensity falls straight from 12 mm/h to none.
inline void abrirFormAjvenOuComUmCone(Método método) {
    abrirFormAjvenOu(método);
    form_AjvenOu->lblRaioAlcance.texto = "20.00";
    form_AjvenOu->Label17.texto = "5.027"; // pi 20² x 12 / 3 l/h
    for (std::size_t k = 1; k <= 22; ++k)
        form_AjvenOu->lblIntensidade[k].texto = Format(12 * (1 - limitesDoPerfil[k - 1]), "0.000");
}

/// The grid method for that sprinkler with a test from which a fit comes to its end: 8 x 8 collectors every
/// 6 m, the same cone carried by 3 m to the left.
inline void abrirComUmaMalhaQueSeAjusta() {
    abrirFormAjvenOuComUmCone(Método::malha);
    auto& f = *form_E1.operator->();
    f.Combo2.texto = "8";
    Erro_plan(1);
    definirValor(f.HScroll2, 20);
    definirValor(f.HScroll1, 90);
    for (int l = 1; l <= 8; ++l)
        for (int c = 1; c <= 8; ++c) {
            const double r = std::hypot(6 * (c - 4.5) + 3, 6 * (4.5 - l));
            irParaCélula(planilhaDoEnsaio(f), l, c);
            f.Text5.texto = Format(std::max(12 * (1 - r / 20), 0.0), "0.000");
        }
}

} // namespace varenta::teste
