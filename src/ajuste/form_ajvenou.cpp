#include "ajuste/form_ajvenou.h"

#include "ajuste/operacoes_ajuste.h"
#include "comum/ajuda.h"

namespace varenta {

void form_AjvenOu_Load() {
    associarAjuda();
    ligarControlesDeAjuste<Aspersor::outro>();
}

void form_AjvenOu_Fechar() { encerrarAjuste(Aspersor::outro); }

void prepararFormAjvenOu(const TextosDoAspersor& textos, Método método) {
    auto& f = *form_AjvenOu.operator->();
    f.Caption = textos.título;
    f.lblAspersor.texto = textos.aspersor;
    f.lblBocais.texto = textos.bocais;
    f.lblPressão.texto = textos.pressão;
    f.lblRaioAlcance.texto = textos.raio;
    f.Label17.texto = textos.vazão;
    f.Label11.texto = textos.anguloJato;
    for (std::size_t k = 0; k < textos.lblRaio.size(); ++k) {
        f.lblRaio[k + 1].texto = textos.lblRaio[k];
        f.lblIntensidade[k + 1].texto = textos.lblIntensidade[k];
    }
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
