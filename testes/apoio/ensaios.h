#pragma once

#include "apoio/atalhos.h"
#include "apoio/plataforma_teste.h"
#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "campo/form_ec.h"
#include "campo/form_unifo.h"
#include "shell/form3.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

/// Tests of a sprinkler, typed as a person does.
namespace varenta::teste {

inline void clicar(TelaBase& tela, std::string_view nome) { atos::clicar(alvo(tela, nome)); }
inline void digitar(TelaBase& tela, std::string_view nome, std::string texto) {
    atos::digitar(alvo(tela, nome), std::move(texto));
}
inline void escolher(TelaBase& tela, std::string_view nome, std::string_view texto) {
    atos::escolher(alvo(tela, nome), texto);
}

/// A radial test: distances (m) and readings.
using Leituras = std::vector<std::pair<std::string, std::string>>;

inline void preencherEnsaio(const Leituras& leituras) {
    digitar(perfilForm, "Text5", std::to_string(leituras.size()));
    int linha = 0;
    for (const auto& [r, i] : leituras) {
        atos::preencherCélula(alvo(perfilForm, "flexGrid"), ++linha, 1, r);
        atos::preencherCélula(alvo(perfilForm, "flexGrid"), linha, 2, i);
    }
}

/// A cone of 10 mm/h at the sprinkler and 20 m of reach: i = 10 - r/2. Its last reading lies a quarter of
/// its spacing before the reach. Volume 2 pi (10 x 20²/2 - 0.5 x 20³/3) = 4188.79 l/h, flow 4.189 m³/h, mean
/// 10/3 mm/h.
inline const Leituras cone = {{"2", "9"}, {"10", "5"}, {"18", "1"}};

/// `PerfilForm` on the road of the simulation, with a radial test in mm/h.
inline void abrirPerfilForm(const Leituras& leituras = cone, std::string_view item = "Ou_aspB") {
    recomeçar();
    clicar(form3, item);
    preencherEnsaio(leituras);
    caderno.clear();
}

/// `Perfil`, filled from a radial test whose flow is estimated.
inline void abrirPerfil(const Leituras& leituras = cone) {
    abrirPerfilForm(leituras);
    respostas.push_back(false);
    clicar(perfilForm, "Command8");
    caderno.clear();
}

/// A travelling test: by rows from the farthest collector of the left side to that of the right side, the
/// readings of each line.
using Colunas = std::vector<std::vector<std::string>>;

/// `Form_EC` on a road, with one to ten lines of collectors 2 m apart in them, at 50 m/h, turning all round.
inline void abrirFormEC(std::string_view item, const Colunas& leituras) {
    recomeçar();
    clicar(form3, item);
    escolher(formEC, "Combo1", std::to_string(leituras.front().size()));
    digitar(formEC, "Combo3", std::to_string(leituras.size() / 2));
    atos::confirmar();
    int linha = 0;
    for (const auto& valores : leituras) {
        ++linha;
        int coluna = 0;
        for (const auto& valor : valores)
            atos::preencherCélula(alvo(formEC, "flex_A"), linha, ++coluna, valor);
    }
    digitar(formEC, "Text11", "50");
    digitar(formEC, "Text9", "360");
    caderno.clear();
}

} // namespace varenta::teste
