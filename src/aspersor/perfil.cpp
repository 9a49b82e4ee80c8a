#include "aspersor/perfil.h"

#include "aspersor/atualizar_aspersor.h"
#include "aspersor/form1.h"
#include "aspersor/grafico_perfil_radial.h"
#include "aspersor/perfil_form.h"
#include "comum/ajuda.h"

namespace varenta {

void perfil_Load() { associarAjuda(); }

void perfil_Fechar() {
    perfil.descarregar();
    voltarAoMenu();
}

void perfil_MouseMove() { perfil.ponteiro = Ponteiro::padrão; }

void perfil_Command2_Click() {
    perfil.descarregar();
    perfilForm.mostrar();
    telaPrincipal->esconder();
}

/// These captions lack the maker's word: only a measured sprinkler that bears such a name matches them.
void perfil_cmdPerfil_Click() {
    for (const auto* modelo : {&modeloTX15, &modeloTX20}) {
        if (perfil->Caption != "Características Técnicas do Aspersor " + std::string{modelo->nomeEspaçado})
            continue;
        form1->Caption = modelo->caption;
        atualizarAspersor();
    }
}

void perfil_Picture1_MouseMove(double x, double y) {
    auto& f = *perfil.operator->();
    const LeituraDoPerfilRadial leitura{f.Label6.back(), f.Label7.back(), f.Label15, f.Label16};
    perfil.ponteiro = lerPerfilRadial(malhaDoPerfilMedido, leitura, x, y);
}

} // namespace varenta
