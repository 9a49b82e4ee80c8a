#include "aspersor/form1.h"

#include "aspersor/atualizar_aspersor.h"
#include "aspersor/grafico_perfil_radial.h"
#include "comum/ajuda.h"

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
    auto& f = *form1.operator->();
    lerNoPerfilRadial(form1, f.Label6, f.Label7, f.Label15, f.Label16, x, y);
}

} // namespace varenta
