#include "aspersor/form1.h"

#include "aspersor/atualizar_aspersor.h"
#include "aspersor/grafico_perfil_radial.h"
#include "comum/ajuda.h"
#include "comum/numeros.h"

namespace varenta {

void form1_Load() { associarAjuda(); }

void form1_Fechar() {
    form1.descarregar();
    voltarAoMenu();
}

void form1_MouseMove() { form1.ponteiro = Ponteiro::padrão; }

void form1_hsbPressão_Change() {
    escreverPressão(seleçãoDeForm1());
    atualizarAspersor();
}

void form1_Combo_Click() { form1_hsbPressão_Change(); }

void form1_unidade_Click() { escreverPressão(seleçãoDeForm1()); }

void form1_Command1_Click() { form1_Fechar(); }

void form1_Picture1_MouseMove(double x, double y) {
    constexpr auto& malha = malhaDoPerfilRadial;
    if (!malha.contém(x, y)) {
        form1.ponteiro = Ponteiro::padrão;
        return;
    }
    form1.ponteiro = Ponteiro::cruz;
    const double r = lerPrefixo(form1->Label6.back().texto) * (x - malha.esquerda) / malha.largura();
    const double i = lerPrefixo(form1->Label7.back().texto) * (malha.base - y) / malha.altura();
    form1->Label15.texto = "r = " + Format(r, "0.000") + " m";
    form1->Label16.texto = "i = " + Format(i, "0.000") + " mm/h";
}

} // namespace varenta
