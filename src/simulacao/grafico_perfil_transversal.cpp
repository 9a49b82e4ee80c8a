#include "simulacao/grafico_perfil_transversal.h"

#include "comum/numeros.h"

namespace varenta {

PontoDoDesenho EixosDoPerfil::lugar(double distância, double lâmina) const {
    constexpr auto& malha = malhaDoPerfilTransversal;
    const double x = malha.esquerda + dividir(malha.largura() * (distância - primeira), largura);
    const double y = malha.base - dividir(lâmina * malha.altura(), topo);
    return {x, y};
}

EixosDoPerfil prepararPerfil(Desenho& desenho, std::span<Rotulo> Label3, std::span<Rotulo> Label4,
                             std::size_t N, double S, double maior) {
    const double metade = static_cast<double>(N) / 2 - 0.5;
    const double passo = lerPrefixo(Format(maior / 4, "0.0"));
    escreverEscala(Label4, 0, passo, "0.0");
    escreverEscala(Label3, -metade * S, 2 * metade * S / 8, "0.0");
    prepararGráfico(desenho, malhaDoPerfilTransversal);
    desenho.larguraTraco(2);
    return {.primeira = -metade * S, .largura = 2 * S * metade, .topo = 5 * passo};
}

void lerNoPerfil(TelaBase& tela, std::span<const Rotulo> Label3, std::span<const Rotulo> Label4,
                 Rotulo& Label14d, Rotulo& Label14I, double x, double y) {
    constexpr auto& malha = malhaDoPerfilTransversal;
    double d = 0, i = 0;
    if (malha.contém(x, y)) {
        tela.ponteiro = Ponteiro::cruz;
        // The axis of the distance has its 0 in the middle.
        d = (lerPrefixo(Label3.back().texto) * (x - 208)) / 140;
        i = (lerPrefixo(Label4.back().texto) * (malha.base - y)) / malha.altura();
    } else {
        tela.ponteiro = Ponteiro::padrão;
    }
    Label14d.texto = "d = " + Format(d, "0.000") + " m";
    Label14I.texto = "I = " + Format(i, "0.000") + " mm";
}

} // namespace varenta
