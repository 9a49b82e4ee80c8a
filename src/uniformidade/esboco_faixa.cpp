#include "uniformidade/esboco_faixa.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "simulacao/diagrama.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "uniformidade/entradas_form5.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"

#include <algorithm>

namespace varenta {
namespace {

/// The canvas, and the room that the plan leaves on it for the lengths' marks at its left.
constexpr double largura = 3000, altura = 5000, margem = 200, meio = largura / 2;

double comprimento(const std::string& texto) {
    try {
        return std::clamp(lerPrefixo(texto), 0.0, 10000.0);
    } catch (const ErroExecucao&) {
        return 0; // past the largest double
    }
}

int graus(const Rotulo& rótulo) { return paraInteiro(lerPrefixo(rótulo.texto)); }

/// A mark for a length along the lane, with its ends.
void desenharCota(Desenho& desenho, double x, double de, double até, Cor cor) {
    constexpr double braço = 60;
    desenho.linha(x, de, x, até, cor);
    desenho.linha(x - braço, de, x + braço, de, cor);
    desenho.linha(x - braço, até, x + braço, até, cor);
}

} // namespace

void desenharEsboço() {
    auto& f = *form5.operator->();
    const double R = comprimento(aspersorEmUso().raio.texto);
    const double Ci = std::min(comprimento(f.txtOutro.texto), R),
                 Cf = std::min(comprimento(f.Text3.texto), R);
    const double Cc = comprimento(f.txtMan.texto), E = comprimento(form4->cmbEspaçamento.texto);
    // The wetted circles reach the reach beyond the lane's ends and, around both lanes, beside them.
    const double escala = std::min((altura - 2 * margem) / std::max(Cc + 2 * R, 1.0),
                                   (largura - 4 * margem) / std::max(E + 2 * R, 1.0));
    const double topo = altura / 2 - Cc / 2 * escala, base = altura / 2 + Cc / 2 * escala;
    const auto setor = setorMolhado(graus(form7->Label24), graus(form7->Label33), graus(form7->Label36));

    auto& desenho = f.Picture3;
    desenho.limpar();
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);
    for (const double lado : {-1.0, 1.0}) {
        const double x = meio + lado * E / 2 * escala;
        desenho.larguraTraco(2);
        desenho.linha(x, topo, x, base, cores::preto);
        desenho.larguraTraco(1);
        for (const double y : {topo, base}) desenharSetor(desenho, {x, y}, R * escala, setor);
    }
    desenho.larguraTraco(2);
    const double x = meio - E / 2 * escala;
    desenharCota(desenho, x, base, base + Ci * escala, cores::vermelho);
    desenharCota(desenho, x, topo, topo - Cf * escala, cores::vermelho);
    desenharCota(desenho, meio, topo, base, cores::azul);

    f.lblCi.texto = "Ci = " + f.txtOutro.texto + " m";
    f.lblCc.texto = "Cc = " + f.txtMan.texto + " m";
    f.lblCf.texto = "Cf = " + f.Text3.texto + " m";
}

} // namespace varenta
