#include "ajuste/tela_de_ajuste.h"

#include "ajuste/form_ajven.h"
#include "ajuste/form_ajvenou.h"
#include "aspersor/atualizar_aspersor.h"
#include "aspersor/perfil_form.h"
#include "comum/arquivos_de_dados.h"
#include "comum/numeros.h"
#include "simulacao/perfil_em.h"

namespace varenta {
namespace {

FichaDoAspersor fichaDoCatálogo() {
    const auto& f = *form_AjVen.operator->();
    FichaDoAspersor ficha;
    const auto* modelo = modeloDaCaption(f.Caption);
    if (!modelo) return ficha;
    ficha.modelo = "KELMO-";
    ficha.modelo += modelo->nome;
    ficha.bocais = bocaisDasListas(*modelo, f.Combo1, f.Combo2);
    ficha.pressão = std::to_string(f.hsbPressão.valor);
    ficha.anguloJato = f.Label11.texto;
    ficha.vazão = f.lblVazão.texto;
    ficha.rótuloDoModelo = "ASPERSOR: " + ficha.modelo;
    ficha.rótuloDosBocais = rótuloDosBocais(*modelo, f.Combo1, f.Combo2);
    ficha.rótuloDaPressão = "Pressão: " + ficha.pressão + " m.c.a.";
    return ficha;
}

FichaDoAspersor fichaDoOutro() {
    const auto& f = *form_AjvenOu.operator->();
    const auto& digitado = *perfilForm.operator->();
    FichaDoAspersor ficha;
    ficha.modelo = ouSubstituto(digitado.Text7.texto, "Não Especificado");
    ficha.bocais = ouSubstituto(digitado.Text9.texto, "N/E");
    ficha.pressão = ouSubstituto(digitado.Text2.texto, "N/E");
    ficha.anguloJato = ouSubstituto(digitado.Text8.texto, "N/E");
    ficha.vazão = ouSubstituto(digitado.Text1.texto, "N/E");
    ficha.rótuloDoModelo = "ASPERSOR: " + ficha.modelo;
    ficha.rótuloDosBocais = f.lblBocais.texto;
    ficha.rótuloDaPressão = f.lblPressão.texto;
    return ficha;
}

} // namespace

TelaDeAjuste telaDeAjuste(Aspersor aspersor) {
    if (aspersor == Aspersor::doCatálogo) {
        auto& f = *form_AjVen.operator->();
        return {aspersor, form_AjVen, f, f.lblVazão};
    }
    auto& f = *form_AjvenOu.operator->();
    return {aspersor, form_AjvenOu, f, f.Label17};
}

FichaDoAspersor fichaDoAspersor(Aspersor aspersor) {
    return aspersor == Aspersor::doCatálogo ? fichaDoCatálogo() : fichaDoOutro();
}

AspersorDoAjuste lerAspersor(const TelaDeAjuste& tela) {
    const auto& c = tela.controles;
    return {.R = lerPrefixo(c.lblRaioAlcance.texto),
            .Q = simples(lerPrefixo(tela.vazão.texto)),
            .anguloJato = radianos(lerPrefixo(c.Label11.texto)),
            .intensidades = intensidadesDosRótulos(std::span{c.lblIntensidade}.subspan(1))};
}

Parametros parametrosMostrados(ControlesDeAjuste& controles, double R) {
    const auto rótulos = controles.resultados();
    Parametros p;
    for (std::size_t k = 0; k < p.size(); ++k) p[k] = lerPrefixo(rótulos[k]->texto) * R;
    return p;
}

BotõesDoMétodo botõesDoMétodo(ControlesDeAjuste& c, Método método) {
    if (método == Método::malha)
        return {
            {&c.Command4, &c.Command3, &c.Command6}, &c.Command5, {&c.Command8, &c.Command9, &c.Command10}};
    return {
        {&c.Command11, &c.Command12, &c.Command13}, &c.Command17, {&c.Command14, &c.Command15, &c.Command16}};
}

} // namespace varenta
