#include "aspersor/grafico_perfil_radial.h"

#include "comum/numeros.h"

namespace varenta {

void lerNoPerfilRadial(TelaBase& tela, std::span<const Rotulo> Label6, std::span<const Rotulo> Label7,
                       Rotulo& Label15, Rotulo& Label16, double x, double y) {
    constexpr auto& malha = malhaDoPerfilRadial;
    if (!malha.contém(x, y)) {
        tela.ponteiro = Ponteiro::padrão;
        return;
    }
    tela.ponteiro = Ponteiro::cruz;
    const double r = lerPrefixo(Label6.back().texto) * (x - malha.esquerda) / malha.largura();
    const double i = lerPrefixo(Label7.back().texto) * (malha.base - y) / malha.altura();
    Label15.texto = "r = " + Format(r, "0.000") + " m";
    Label16.texto = "i = " + Format(i, "0.000") + " mm/h";
}

} // namespace varenta
