#include "ajuste/form_ajvenou.h"

#include "ajuste/operacoes_ajuste.h"
#include "aspersor/grafico_perfil_radial.h"
#include "aspersor/perfil_form.h"
#include "comum/ajuda.h"

namespace varenta {

void form_AjvenOu_Load() {
    associarAjuda();
    ligarControlesDeAjuste<Aspersor::outro>();
    // Nothing is saved for such a sprinkler; the button's tooltip says so.
    form_AjvenOu->Command7.aoClicar = [] {};
    form_AjvenOu->Command2.aoClicar = mostrarAjuda<topicos::form_AjvenOu>;
}

void form_AjvenOu_Fechar() { encerrarAjuste(Aspersor::outro); }

void form_AjvenOu_MouseMove() { form_AjvenOu.ponteiro = Ponteiro::padrão; }

void form_AjvenOu_Command18_Click() {
    deixarAjuste(Aspersor::outro);
    perfilForm.mostrar();
    telaPrincipal->esconder();
}

void form_AjvenOu_Picture1_MouseMove(double x, double y) {
    auto& f = *form_AjvenOu.operator->();
    const LeituraDoPerfilRadial leitura{f.Label6.back(), f.Label7.back(), f.Label15, f.Label16};
    form_AjvenOu.ponteiro = lerPerfilRadial(malhaDoPerfilMedido, leitura, x, y);
}

void prepararFormAjvenOu(const TextosDoAspersor& textos, Método método) {
    auto& f = *form_AjvenOu.operator->();
    f.Caption = textos.título;
    f.lblAspersor.texto = textos.aspersor;
    f.lblBocais.texto = textos.bocais;
    f.lblPressão.texto = textos.pressão;
    f.lblRaioAlcance.texto = textos.raio;
    f.Label17.texto = textos.vazão;
    f.Label11.texto = textos.anguloJato;
    // The grid method leaves `Command15` in sight, where it can't be used.
    if (método == Método::malha)
        for (auto* botão :
             {&f.Command11, &f.Command12, &f.Command13, &f.Command14, &f.Command16, &f.Command17})
            botão->visivel = false;
    else
        for (auto* botão :
             {&f.Command4, &f.Command3, &f.Command6, &f.Command8, &f.Command9, &f.Command10, &f.Command5})
            botão->visivel = false;
}

} // namespace varenta
