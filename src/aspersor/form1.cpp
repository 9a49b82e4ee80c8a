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
    const LeituraDoPerfilRadial leitura{f.Label6.back(), f.Label7.back(), f.Label15, f.Label16};
    form1.ponteiro = lerPerfilRadial(malhaDoPerfilRadial, leitura, x, y);
}

} // namespace varenta
