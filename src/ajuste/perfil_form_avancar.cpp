#include "ajuste/form_ajvenou.h"
#include "aspersor/avancar_perfil_form.h"
#include "aspersor/perfil_form.h"
#include "comum/numeros.h"

#include <span>

namespace varenta {
namespace {

/// Goes on from the radial test to the fit of the wind parameters.
void avançar(Método método) {
    const auto medido = avançarPerfilForm();
    if (!medido) return;
    const auto& f = *perfilForm.operator->();
    const DadosDoAspersor dados{.nome = f.Text7.texto,
                                .bocais = f.Text9.texto,
                                .pressão = f.Text2.texto,
                                .nomeDaPressão = "Pressão",
                                .vazão = f.Text1.texto,
                                .anguloJato = f.Text8.texto,
                                .padrãoDoRaio = "##0.000",
                                .divisor = 3};
    prepararFormAjvenOu({.título = captionDoAspersor(dados.nome),
                         .aspersor = textoDoNome(dados),
                         .bocais = textoDosBocais(dados),
                         .pressão = textoDaPressão(dados),
                         .raio = Format(medido->R, "##0.00"),
                         .vazão = dados.vazão,
                         .anguloJato = dados.anguloJato},
                        método);
    auto& alvo = *form_AjvenOu.operator->();
    escreverPontos(*medido, dados.padrãoDoRaio, std::span{alvo.lblRaio}.subspan(1),
                   std::span{alvo.lblIntensidade}.subspan(1),
                   {.Picture1 = alvo.Picture1,
                    .Label6 = alvo.Label6,
                    .Label7 = alvo.Label7,
                    .malha = malhaDoPerfilMedido,
                    .divisor = dados.divisor});
    perfilForm.esconder();
    form_AjvenOu.mostrar();
}

} // namespace

void perfilForm_Command6_Click() { avançar(Método::malha); }
void perfilForm_Command7_Click() { avançar(Método::autopropelido); }

} // namespace varenta
