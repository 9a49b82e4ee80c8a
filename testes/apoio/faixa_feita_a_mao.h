#pragma once

#include "apoio/simulacao_feita_a_mao.h"
#include "simulacao/perfil_transversal.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/form8.h"
#include "uniformidade/form9.h"
#include "uniformidade/form_graffinal.h"

/// `Form5` on the road of a catalogue sprinkler, and a strip small enough to be worked by hand.
namespace varenta::teste {

/// Opens `Form5` as a person does, from a menu item on.
inline void abrirForm5(std::string_view item = "TX15B", std::string_view coletores = "6.0") {
    abrirForm7(item);
    atos::escolher(alvo(form7, "Combo2"), coletores);
    atos::clicar(alvo(form7, "Command2"));
    atos::clicar(alvo(form7, "cmdUniformidade"));
    atos::clicar(alvo(form4, "Command8"));
    atos::clicar(alvo(form4, "Command9"));
    atos::clicar(alvo(form4, "Command5"));
    caderno.clear();
    ampulhetas.clear();
}

/// `Form5` over the sprinkler of 3 m, lanes 4 m apart and 10 m long. The cart's five positions stand on rows
/// of 2 m from y = -3 m on, nine in all, each with two positions between the lanes that get the same depth.
/// The rows 4 to 7 get 1, 2, 2 and 1 steps of 0.05 h; a stop at the start falls on the rows 3 and 4, one at
/// the end on 7 and 8. The intensity of 10 mm/h makes 0.5 mm of a step.
class FaixaFeitaÀMão : public testing::Test {
  protected:
    void SetUp() override {
        abrirForm5();
        usar("10");
    }
    void TearDown() override { atos::soltar(); }

    void usar(const std::string& intensidade) {
        aspersorDeTrêsMetros(intensidade);
        calcularPerfilTransversal();
        form4->cmbEspaçamento.texto = "4";
        digitar("txtMan", "10");
        ampulhetas.clear();
    }
    void clicar(std::string_view nome) { atos::clicar(alvo(form5, nome)); }
    void digitar(std::string_view nome, std::string texto) {
        atos::digitar(alvo(form5, nome), std::move(texto));
    }
    void escolher(std::string_view nome, std::string_view item) { atos::escolher(alvo(form5, nome), item); }
    void calcular() { clicar("Command10"); }

    /// 2 m and 12 min at the start: 0.2 h; 3 m and 30 min at the end: 0.5 h.
    void pararNasPontas() {
        escolher("Combo1", "Outro Valor");
        digitar("txtOutro", "2");
        clicar("chkParada");
        digitar("txtParada", "12");
        escolher("Combo2", "Outro Valor");
        digitar("Text3", "3");
        clicar("Check2");
        digitar("Text4", "30");
        caderno.clear();
    }
};

} // namespace varenta::teste
