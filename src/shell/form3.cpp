#include "shell/form3.h"

#include "aspersor/atualizar_aspersor.h"
#include "aspersor/form1.h"
#include "comum/ajuda.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "shell/form6.h"
#include "shell/sistema.h"

namespace varenta {
namespace {

/// Opens a catalogue sprinkler's screen with the model's lists, default nozzles and range of pressure.
void abrirAspersor(const ModeloDeAspersor& modelo) {
    fecharTelas();
    form1.mostrar();
    form1->Caption = modelo.caption;
    prepararSeleção(seleçãoDeForm1(), modelo);
    atualizarAspersor();
    form3.esconder();
    form3.habilitada = false;
}

} // namespace

void form3_Load() { associarAjuda(); }

void form3_Fechar() {
    fecharTelas();
    form3.descarregar();
    plataforma::encerrar();
}

void form3_TX15B_Click() { abrirAspersor(modeloTX15); }
void form3_TX20B_Click() { abrirAspersor(modeloTX20); }
void form3_TX30B_Click() { abrirAspersor(modeloTX30); }

void form3_varenta_Click() {
    form6.mostrar();
    form3.esconder();
}

} // namespace varenta
