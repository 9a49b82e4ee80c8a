#include "simulacao/fonte_aspersor.h"

#include "aspersor/atualizar_aspersor.h"
#include "aspersor/form1.h"
#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "comum/arquivos_de_dados.h"
#include "comum/numeros.h"
#include "comum/plataforma.h"
#include "simulacao/form7.h"
#include "simulacao/perfil_em.h"

namespace varenta {

FonteDoAspersor aspersorDoCatálogo() {
    auto& f = *form1.operator->();
    std::string nome = "KELMO-";
    if (const auto* modelo = modeloDaCaption(f.Caption)) nome += modelo->nomeEspaçado;
    return {
        true, nome, f.lblRaioAlcance, f.lblVazão, f.Label12.texto, std::span{f.lblIntensidade}.subspan(1)};
}

FonteDoAspersor aspersorMedido() {
    auto& p = *perfil.operator->();
    const auto& f = *perfilForm.operator->();
    return {false,         ouSubstituto(f.Text7.texto, "não Especificado"), p.Label17, p.Label2,
            f.Text8.texto, std::span{p.lblIntensidade}.subspan(1)};
}

FonteDoAspersor aspersorEmUso() { return form7->Command2.visivel ? aspersorDoCatálogo() : aspersorMedido(); }

float espaçamentoDosColetores() { return simples(lerPrefixo(form7->Combo2.texto)); }

DadosDaSimulação lerSimulação(const FonteDoAspersor& fonte) {
    DadosDaSimulação dados{};
    auto& c = dados.condições;
    auto& f = *form7.operator->();
    c.R = lerPrefixo(fonte.raio.texto);
    c.A = lerPrefixo(f.Text2.texto) * c.R;
    c.B = lerPrefixo(f.Text3.texto) * c.R;
    c.C = lerPrefixo(f.Text4.texto) * c.R;
    c.D = lerPrefixo(f.Text5.texto) * c.R;
    c.E = lerPrefixo(f.Text6.texto) * c.R;
    c.F = lerPrefixo(f.Text7.texto) * c.R;
    dados.S = espaçamentoDosColetores();
    c.anguloSecoI = lerPrefixo(f.Label24.texto);
    c.anguloSecoII = lerPrefixo(f.Label33.texto);
    c.anguloGiro = 360 - (c.anguloSecoI + c.anguloSecoII);
    c.rotacao = lerPrefixo(f.Label36.texto);
    dados.V = lerPrefixo(f.Text1.texto);
    c.anguloJato = radianos(lerPrefixo(fonte.anguloJato));
    c.rotVento = rotaçãoDoVento(lerPrefixo(f.Label2.texto));
    c.W = simples(lerPrefixo(f.Label17.texto));
    c.intensidades = intensidadesDosRótulos(fonte.lblIntensidade);
    return dados;
}

namespace {

/// A notice is a line of the label, and is told without the label's prefix.
void acrescentarAviso(Rotulo& lblAviso, const std::string& aviso) {
    if (!lblAviso.texto.empty()) lblAviso.texto += "\n";
    lblAviso.texto += "Aviso: " + aviso;
    plataforma::avisar(aviso);
}

} // namespace

void avisarDoModelo(Rotulo& lblAviso, const ContagemDoModelo& contagem) {
    lblAviso.texto.clear();
    const auto avisar = [&](std::size_t quantos, const char* motivo) {
        if (quantos == 0) return;
        acrescentarAviso(lblAviso, "em " + std::to_string(quantos) + " de " +
                                       std::to_string(contagem.pontos) + " pontos " + motivo +
                                       "; os valores podem não ter sentido físico.");
    };
    avisar(contagem.semConvergência, "o modelo de vento não convergiu");
    avisar(contagem.fatorNãoPositivo, "o fator de área do modelo não é positivo");
}

void avisarDoÂngulo(Rotulo& lblAviso, const FonteDoAspersor& fonte) {
    if (fonte.anguloJato.empty())
        acrescentarAviso(lblAviso, "Ângulo do jato não informado: a simulação usa 0º.");
}

} // namespace varenta
