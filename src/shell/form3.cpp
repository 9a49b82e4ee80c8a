#include "shell/form3.h"

#include "ajuste/form_ajven.h"
#include "aspersor/atualizar_aspersor.h"
#include "aspersor/form1.h"
#include "comum/ajuda.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
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

/// Opens the fit of the wind parameters for a catalogue sprinkler.
void abrirAjuste(const ModeloDeAspersor& modelo, Método método) {
    fecharTelas();
    form3.esconder();
    abrirFormAjVen(modelo, método);
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

void form3_TX15c_Click() { abrirAjuste(modeloTX15, Método::malha); }
void form3_TX20c_Click() { abrirAjuste(modeloTX20, Método::malha); }
void form3_TX30c_Click() { abrirAjuste(modeloTX30, Método::malha); }
void form3_TX15d_Click() { abrirAjuste(modeloTX15, Método::autopropelido); }
void form3_TX20d_Click() { abrirAjuste(modeloTX20, Método::autopropelido); }
void form3_TX30d_Click() { abrirAjuste(modeloTX30, Método::autopropelido); }

} // namespace varenta
