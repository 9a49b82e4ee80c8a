#include "simulacao/perfil_em.h"

#include "comum/numeros.h"

namespace varenta {
namespace {

/// The lower bound of each segment, and the end of the last: decimal literals, since sums of 0.05 would fall
/// on other doubles.
constexpr PontosDoPerfil limites = {0,     0.025, 0.075, 0.125, 0.175, 0.225, 0.275, 0.325,
                                    0.375, 0.425, 0.475, 0.525, 0.575, 0.625, 0.675, 0.725,
                                    0.775, 0.825, 0.875, 0.925, 0.975, 1};

} // namespace

double intensidadeRelativa(const PontosDoPerfil& intensidades, double u) {
    constexpr std::size_t último = pontosDoPerfil - 2;
    for (std::size_t k = 0; k <= último; ++k) {
        if (!(u >= limites[k] && (u < limites[k + 1] || (k == último && u == 1)))) continue;
        const double largura = k == 0 || k == último ? 0.025 : 0.05;
        return (u - limites[k]) * (intensidades[k + 1] - intensidades[k]) / largura + intensidades[k];
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
