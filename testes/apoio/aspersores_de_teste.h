#pragma once

#include "simulacao/campo_intensidades.h"

#include <cmath>
#include <cstddef>

/// Sprinklers that no screen holds, for the pure calculations.
namespace varenta::teste {

inline PontosDoPerfil todos(double intensidade) {
    PontosDoPerfil intensidades;
    intensidades.fill(intensidade);
    return intensidades;
}

/// A sprinkler that waters 10 mm/h everywhere within R and all around, at no wind and with no drift.
inline DadosDaSimulação plano(double R, float S, double V) {
    return {.condições = {.R = R,
                          .A = 0,
                          .B = 0,
                          .C = 0,
                          .D = 0,
                          .E = 0,
                          .F = 0,
                          .W = 0,
                          .anguloJato = radianos(24),
                          .rotVento = rotaçãoDoVento(0),
                          .anguloSecoI = 0,
                          .anguloSecoII = 0,
                          .rotacao = 0,
                          .anguloGiro = 360,
                          .intensidades = todos(10)},
            .S = S,
            .V = V};
}

/// The same with a profile that falls towards the reach, and the parameters that the screens start from.
inline DadosDaSimulação típico(double R = 43.1, float S = 1.5F) {
    auto dados = plano(R, S, 50);
    auto& c = dados.condições;
    c.A = 0.0362 * c.R;
    c.B = 0.0131 * c.R;
    c.C = -0.0097 * c.R;
    c.D = 0.0026 * c.R;
    c.E = 0.4003 * c.R;
    c.F = -0.3361 * c.R;
    for (std::size_t k = 0; k < 22; ++k) c.intensidades[k] = 6 - 0.25 * static_cast<double>(k);
    return dados;
}

/// A wind of 3 m/s from 60 degrees, and a sector that no axis halves.
inline DadosDaSimulação aoVento(DadosDaSimulação dados) {
    auto& c = dados.condições;
    c.W = 3;
    c.rotVento = rotaçãoDoVento(60);
    c.anguloSecoI = 60;
    c.anguloSecoII = 40;
    c.anguloGiro = 260;
    c.rotacao = 20;
    return dados;
}

/// The intensities under the cart cell by cell, rows from behind the sprinkler to ahead of it, columns from
/// left to right: `Nn` x `Nn` points, counted from 0.
inline Matriz pegadaCélulaPorCélula(const DadosDaSimulação& dados, std::size_t Nn) {
    const auto& c = dados.condições;
    const double s = dados.S, W1 = (static_cast<double>(Nn) / 2 - 0.5) * s;
    const double cosseno = std::cos(c.rotVento), seno = std::sin(c.rotVento);
    Matriz pegada{Nn, Nn};
    for (std::size_t i = 0; i < Nn; ++i)
        for (std::size_t k = 0; k < Nn; ++k) {
            const double u = static_cast<double>(i) * s - W1, t = static_cast<double>(k) * s - W1;
            const double x = u * cosseno - t * seno, y = u * seno + t * cosseno;
            pegada.linha(i)[k] = intensidadeEmPonto(x, y, c).valor;
        }
    return pegada;
}

} // namespace varenta::teste
