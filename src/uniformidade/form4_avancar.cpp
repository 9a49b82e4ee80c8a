#include "comum/operacoes.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/uniformidade_faixa.h"

#include <initializer_list>

namespace varenta {
namespace {

void abrirForm5(const FonteDoAspersor& fonte) {
    auto& f = *form5.operator->();
    const auto& E = form4->cmbEspaçamento.texto;
    f.Caption = "Uniformidade ao Longo da Faixa Irrigada com Vento - Aspersor " + fonte.nome;
    f.Label5.texto = form4->Label16.texto;
    f.Label7.texto = form4->Label17.texto;
    f.Label66.texto = form4->Label33.texto;
    f.Label43.texto = form7->Combo2.texto;
    f.Label37.texto = form4->Label1.texto;
    f.Label38.texto = form4->Label2.texto;
    f.Label40.texto = "Ângulo: " + form7->Label35.texto + " graus";
    f.Label39.texto = "Espaçamento: " + E + " m";
    f.Label50.texto = form4->Label8.texto;
    f.Label51.texto = form4->Label7.texto;
    f.Label52.texto = form4->Label4.texto;
    f.Label53.texto = form4->Label37.texto;
    f.Label54.texto = form4->Label38.texto;
    f.Label68.texto = "E = " + E + " m";
    f.Label69.texto = form7->Label35.texto + "º";
    escolherItem(f.Combo1, 1);
    escolherItem(f.Combo2, 1);
    prepararGráficoDaFaixa();
    form4.esconder();
    form5.mostrar();
}

void esconder(std::initializer_list<Botao*> botões) {
    for (auto* botão : botões) botão->visivel = false;
}

} // namespace

void form4_Command5_Click() {
    abrirForm5(aspersorDoCatálogo());
    esconder({&form5->Command9, &form5->Command11, &form5->Command16});
}

void form4_Command10_Click() {
    abrirForm5(aspersorMedido());
    esconder({&form5->Command10, &form5->Command12, &form5->Command15});
}

} // namespace varenta
