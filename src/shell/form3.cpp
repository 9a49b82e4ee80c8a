#include "shell/form3.h"

#include "ajuste/form_ajven.h"
#include "aspersor/atualizar_aspersor.h"
#include "aspersor/form1.h"
#include "aspersor/perfil_form.h"
#include "campo/form_ec.h"
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

/// Opens the radial test on one of its three roads, which is told by the button that goes on.
void abrirPerfilForm(Botao RegistroPerfilForm::*avançar) {
    fecharTelas();
    auto& f = *perfilForm.operator->();
    for (auto botão :
         {&RegistroPerfilForm::Command6, &RegistroPerfilForm::Command7, &RegistroPerfilForm::Command8})
        (f.*botão).visivel = botão == avançar;
    perfilForm.mostrar();
    form3.esconder();
}

/// Opens the field test, for the radial profile or for the overlap.
void abrirFormEC(bool paraPerfilRadial) {
    fecharTelas();
    formEC->Command6.visivel = paraPerfilRadial;
    formEC->Command4.visivel = !paraPerfilRadial;
    formEC.mostrar();
    form3.esconder();
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
void form3_Ou_aspB_Click() { abrirPerfilForm(&RegistroPerfilForm::Command8); }
void form3_Ou_aspC_Click() { abrirPerfilForm(&RegistroPerfilForm::Command6); }
void form3_OuAsp_Auto_Click() { abrirPerfilForm(&RegistroPerfilForm::Command7); }
void form3_PerfRad_Click() { abrirFormEC(true); }
void form3_EnsCampo_Click() { abrirFormEC(false); }

void form3_varenta_Click() {
    form6.mostrar();
    form3.esconder();
}

void form3_TX15c_Click() { abrirAjuste(modeloTX15, Método::malha); }
void form3_TX20c_Click() { abrirAjuste(modeloTX20, Método::malha); }
void form3_TX30c_Click() { abrirAjuste(modeloTX30, Método::malha); }
void form3_TX15d_Click() { abrirAjuste(modeloTX15, Método::autopropelido); }
void form3_TX20d_Click() { abrirAjuste(modeloTX20, Método::autopropelido); }
void form3_TX30d_Click() { abrirAjuste(modeloTX30, Método::autopropelido); }

} // namespace varenta
