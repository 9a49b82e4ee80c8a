#pragma once

#include "ajuste/ensaio.h"
#include "ajuste/form_ajven.h"
#include "ajuste/tela_de_ajuste.h"
#include "shell/form3.h"
#include "shell/sistema.h"

#include <vector>

namespace varenta::bancada {

/// The parameters that the simulation starts from.
inline Parametros parâmetros(double R) {
    return {0.0362 * R, 0.0131 * R, -0.0097 * R, 0.0026 * R, 0.4003 * R, -0.3361 * R};
}

inline AspersorDoAjuste aspersor() {
    iniciarSistema();
    form3_TX20c_Click();
    return lerAspersor(telaDeAjuste(Aspersor::doCatálogo));
}

/// The winds of the tests, one after another.
inline VentoDoEnsaio vento(int n) { return {.W = 2.0 + n, .direção = 45.0 * n}; }

/// Readings that a tenth too much water above and a tenth too little below the model make.
inline void observar(auto& ensaio, double R) {
    ContagemDoModelo contagem;
    ensaio.observados = estimados(ensaio, sozinho(parâmetros(R)), contagem);
    double fator = 0.9;
    for (double& observado : ensaio.observados) {
        observado *= fator;
        fator = 2 - fator;
    }
}

/// `quantos` tests of N x N collectors every `e` m.
inline std::vector<EnsaioDeMalha> ensaiosDeMalha(int quantos, int N, double e) {
    const auto a = aspersor();
    std::vector<EnsaioDeMalha> ensaios;
    for (int n = 0; n < quantos; ++n) {
        ensaios.push_back(ensaioDeMalha(a, vento(n), N, e, {}));
        observar(ensaios.back(), a.R);
    }
    return ensaios;
}

/// `quantos` tests with `lado` positions every `e` m on each side.
inline std::vector<EnsaioMóvel> ensaiosMóveis(int quantos, int lado, double e) {
    const auto a = aspersor();
    std::vector<EnsaioMóvel> ensaios;
    for (int n = 0; n < quantos; ++n) {
        ensaios.push_back(ensaioMóvel(a, vento(n), 2 * lado, e, 40, 240, {}));
        observar(ensaios.back(), a.R);
    }
    return ensaios;
}

} // namespace varenta::bancada
