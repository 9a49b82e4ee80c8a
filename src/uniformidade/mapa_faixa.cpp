#include "uniformidade/mapa_faixa.h"

#include "comum/ampulheta.h"
#include "comum/numeros.h"
#include "simulacao/paleta.h"
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

/// The cells' rows go down from the top of the canvas, its columns to the right; each box is centred on its
/// cell's place.
void desenharMapa(Desenho& desenho, const Matriz& mapa, const Paleta& paleta) {
    constexpr double esquerda = 960, topo = 525, largura = 14.71571906, altura = 15.43086172;
    Mosaico mosaico{esquerda - largura / 2, topo - altura / 2, largura, altura, mapa.colunas(), {}};
    mosaico.cores.reserve(mapa.valores().size());
    for (const double lâmina : mapa.valores()) mosaico.cores.push_back(paleta.cor(lâmina));
    desenho.limpar();
    desenho.mosaico(std::move(mosaico));
}

bool desenhar(const FonteDoAspersor& fonte) {
    const auto dados = lerFaixa(fonte);
    if (!dados) return false;
    const Ampulheta ampulheta{form5};
    const auto faixa = calcularFaixaIrrigada(*dados);

    auto& f = *form_grafFinal.operator->();
    avisarDoModelo(f.lblAviso, faixa.contagem);
    f.Label7.texto = Format(médiaDeTodas(faixa.lâminas), "0.000") + " mm";
    f.Label16.texto = "CUC - Toda: " + form5->Label6.texto + "%";
    f.Label2.texto = "UD - Toda: " + form5->Label63.texto + "%";
    f.Label17.texto = "Imédio - Toda: " + form5->Label8.texto + " mm";
    f.Label1.texto = "Espaçamento do Carreador: " + paraTexto(dados->E) + " m";

    const auto mapa = ampliarFaixa(faixa.lâminas);
    const double maior = std::max(0.0, *std::ranges::max_element(mapa.valores()));
    const Paleta paleta{maior};
    desenharMapa(f.Picture1, mapa, paleta);
    f.Picture2.limpar();
    desenharLegenda(f.Picture2, paleta);
    f.Label4.texto = Format(paleta.topo(), "0.0");
    f.Label3.texto = Format(0, "0.0");
    f.Label15.texto = "Maior Precipitação: " + Format(maior, "0.0") + " mm/h";
    return true;
}

} // namespace

bool mapaFaixa() { return desenhar(aspersorDoCatálogo()); }
bool mapaFaixaOu() { return desenhar(aspersorMedido()); }

} // namespace varenta
