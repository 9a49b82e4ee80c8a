#include "aspersor/perfil.h"
#include "comum/operacoes.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "simulacao/perfil_transversal.h"
#include "simulacao/preparar_form7.h"

namespace varenta {

void perfil_Command6_Click() {
    prepararCondições(perfil->Label17.texto);
    form7->Caption = "Perfil Transversal de Aplicação de Água com Vento - Aspersor " + aspersorMedido().nome;
    form7->Label20.texto = perfil->Label11.texto;
    form7->Label19.texto = perfil->Label13.texto;
    form7->Label18.texto = perfil->Label1.texto;
    form7->Label27.texto = "Vazão: " + perfil->Label2.texto + " m³/h";
    form7->Label28.texto = "Raio: " + perfil->Label17.texto + " m";
    calcularPerfilTransversalOu();
    form7->Command9.habilitado = true;
    for (auto* botão : {&form7->cmdUniformidade, &form7->Command2, &form7->Command3, &form7->Command4})
        botão->visivel = false;
    definirValor(form7->HScroll3, 60);
    perfil.esconder();
    form7.mostrar();
}

} // namespace varenta
