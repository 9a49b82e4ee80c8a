#include "simulacao/perfil_em.h"

#include "comum/numeros.h"

namespace varenta {
double intensidadeRelativa(const PontosDoPerfil& intensidades, double u) {
    constexpr std::size_t último = pontosDoPerfil - 2;
    for (std::size_t k = 0; k <= último; ++k) {
        if (!(u >= limitesDoPerfil[k] && (u < limitesDoPerfil[k + 1] || (k == último && u == 1)))) continue;
        return (u - limitesDoPerfil[k]) * (intensidades[k + 1] - intensidades[k]) / larguraDoSegmento(k) +
               intensidades[k];
    }
    return 0;
}

double perfilRadialEm(const PontosDoPerfil& intensidades, double rho, double anguloGiro) {
    const double i = rho < 1 ? intensidadeRelativa(intensidades, rho) : 0;
    return i * dividir(360, anguloGiro);
}

PontosDoPerfil intensidadesDosRótulos(std::span<const Rotulo> lblIntensidade) {
    PontosDoPerfil intensidades{};
    for (std::size_t k = 0; k < pontosDoPerfil; ++k) intensidades[k] = lerEstrito(lblIntensidade[k].texto);
    return intensidades;
}

} // namespace varenta
