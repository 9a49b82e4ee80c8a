#include "uniformidade/mapa_faixa.h"

#include "comum/ampulheta.h"
#include "comum/numeros.h"
#include "simulacao/legenda_mapa.h"
#include "uniformidade/entradas_form5.h"
#include "uniformidade/form5.h"
#include "uniformidade/form_graffinal.h"
#include "uniformidade/uniformidade_faixa.h"

#include <algorithm>

namespace varenta {
namespace {

double médiaDeTodas(const Matriz& lâminas) {
    double soma = 0;
    for (const double lâmina : lâminas.valores()) soma += lâmina;
    return dividir(soma, static_cast<double>(lâminas.valores().size()));
}

bool desenhar(const FonteDoAspersor& fonte) {
    const auto dados = lerFaixa(fonte);
    if (!dados) return false;
    const Ampulheta ampulheta{form5};
    const auto faixa = calcularFaixaIrrigada(*dados);

    auto& f = *form_grafFinal.operator->();
    f.faixaDesenhada = descriçãoDaFaixa();
    avisarDoModelo(f.lblAviso, faixa.contagem);
    f.Label7.texto = Format(médiaDeTodas(faixa.lâminas), "0.000") + " mm";
    f.Label16.texto = "CUC - Toda: " + form5->Label6.texto + "%";
    f.Label2.texto = "UD - Toda: " + form5->Label63.texto + "%";
    f.Label17.texto = "Imédio - Toda: " + form5->Label8.texto + " mm";
    f.Label1.texto = "Espaçamento do Carreador: " + paraTexto(dados->E) + " m";

    const auto mapa = ampliarFaixa(faixa.lâminas);
    const double maior = std::max(0.0, *std::ranges::max_element(mapa.valores()));
    const EscalaDeCores escala{maior};
    // Rows go down from the top of the canvas, columns to the right; each box is centred on its place.
    constexpr double esquerda = 960, topo = 525, largura = 14.71571906, altura = 15.43086172;
    f.Picture1.limpar();
    f.Picture1.mosaico(escala.mosaico(mapa, esquerda - largura / 2, topo - altura / 2, largura, altura));
    f.Picture2.limpar();
    desenharLegenda(f.Picture2, escala);
    f.Label4.texto = Format(escala.topo(), "0.0");
    f.Label3.texto = Format(0, "0.0");
    f.Label15.texto = "Maior Precipitação: " + Format(maior, "0.0") + " mm/h";
    return true;
}

} // namespace

bool mapaFaixa() { return desenhar(aspersorDoCatálogo()); }
bool mapaFaixaOu() { return desenhar(aspersorMedido()); }

} // namespace varenta
