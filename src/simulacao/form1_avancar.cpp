#include "aspersor/atualizar_aspersor.h"
#include "aspersor/form1.h"
#include "comum/operacoes.h"
#include "simulacao/form7.h"
#include "simulacao/perfil_transversal.h"
#include "simulacao/preparar_form7.h"

namespace varenta {
namespace {

void escreverAspersor(const ModeloDeAspersor& modelo) {
    const auto nome = std::string{modelo.nome};
    form7->Caption = "Perfil Transversal de Aplicação de Água com Vento - Aspersor KELMO-" +
                     std::string{modelo.nomeEspaçado};
    form7->Label20.texto = "ASPERSOR: KELMO-" + nome;
    form7->Label19.texto = rótuloDosBocais(modelo, form1->Combo1, form1->Combo2);
}

} // namespace

void form1_Command3_Click() {
    prepararCondições(form1->lblRaioAlcance.texto);
    if (const auto* modelo = modeloDaCaption(form1->Caption)) escreverAspersor(*modelo);
    form7->Label18.texto = "Pressão: " + std::to_string(form1->hsbPressão.valor) + " m.c.a.";
    form7->Label27.texto = "Vazão: " + form1->lblVazão.texto + " m³/h";
    form7->Label28.texto = "Raio: " + form1->lblRaioAlcance.texto + " m";
    calcularPerfilTransversal();
    form7->cmdUniformidade.habilitado = true;
    for (auto* botão : {&form7->Command6, &form7->Command7, &form7->Command8, &form7->Command9})
        botão->visivel = false;
    definirValor(form7->HScroll3, 60);
    form1.esconder();
    form7.mostrar();
}

} // namespace varenta
