#pragma once

#include "simulacao/modelo_vento.h"

#include <cmath>
#include <cstddef>
#include <random>

/// Sprinklers under wind for the tests of the wind model.
namespace varenta::teste {

/// A profile with a value of its own at every point: 20 mm/h at the sprinkler, falling, 0 at the reach.
inline PontosDoPerfil perfilDeTeste() {
    PontosDoPerfil intensidades{};
    for (std::size_t k = 0; k < 21; ++k) intensidades[k] = 20 - 0.7 * static_cast<double>(k);
    return intensidades;
}

/// A sprinkler of 40 m that waters all around, with the parameters that the screens start from, at no wind.
inline CondiçõesDoPonto condiçõesDeTeste() {
    constexpr double R = 40;
    return {.R = R,
            .A = 0.0362 * R,
            .B = 0.0131 * R,
            .C = -0.0097 * R,
            .D = 0.0026 * R,
            .E = 0.4003 * R,
            .F = -0.3361 * R,
            .W = 0,
            .anguloJato = radianos(24),
            .rotVento = rotaçãoDoVento(0),
            .anguloSecoI = 0,
            .anguloSecoII = 0,
            .rotacao = 0,
            .anguloGiro = 360,
            .intensidades = perfilDeTeste(),
            .setor = Setor::entreÂngulosSecos};
}

/// Random conditions near those of the screens, with wind up to `maiorVento`.
inline CondiçõesDoPonto sortearComuns(std::mt19937_64& sorteio, double maiorVento) {
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution{a, b}(sorteio); };
    auto c = condiçõesDeTeste();
    c.R = entre(15, 65);
    for (double* p : {&c.A, &c.B, &c.C, &c.D, &c.E, &c.F}) *p *= c.R / 40 * entre(0.8, 1.2);
    c.W = entre(0, maiorVento);
    c.rotVento = rotaçãoDoVento(std::floor(entre(0, 361)));
    c.anguloSecoI = std::floor(entre(0, 179));
    c.anguloSecoII = std::floor(entre(0, 179));
    c.rotacao = std::floor(entre(-360, 361));
    c.anguloGiro = 360 - (c.anguloSecoI + c.anguloSecoII);
    for (auto& i : c.intensidades) i = entre(0, 15);
    return c;
}

} // namespace varenta::teste
