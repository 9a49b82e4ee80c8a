#pragma once

#include "ajuste/controles_ajuste.h"
#include "ajuste/ensaio.h"

#include <array>
#include <string>

namespace varenta {

/// The screen from which a fit of one kind of sprinkler runs.
struct TelaDeAjuste {
    Aspersor aspersor;
    TelaBase& tela;
    ControlesDeAjuste& controles;
    const Rotulo& vazão; // m³/h
};

TelaDeAjuste telaDeAjuste(Aspersor aspersor);

/// The sprinkler as the screens and files of the tests name it.
struct FichaDoAspersor {
    /// First lines of a test file: model, nozzles (mm), pressure (m.c.a.), jet angle (degrees), flow (m³/h).
    /// Those of another sprinkler are the texts of `PerfilForm`, or what stands for one left empty.
    std::string modelo, bocais, pressão, anguloJato, vazão;
    /// The captions `Label20`, `Label19` and `Label18` of a test screen.
    std::string rótuloDoModelo, rótuloDosBocais, rótuloDaPressão;
};

FichaDoAspersor fichaDoAspersor(Aspersor aspersor);

/// What a fit takes of the sprinkler.
AspersorDoAjuste lerAspersor(const TelaDeAjuste& tela);

/// The parameters that the captions of the results show, times the reach R (m).
Parametros parametrosMostrados(ControlesDeAjuste& controles, double R);

/// The buttons of one method, those of the tests and of their results by their numbers.
struct BotõesDoMétodo {
    std::array<Botao*, 3> ensaios;
    Botao* ajustar;
    std::array<Botao*, 3> resultados;
};

BotõesDoMétodo botõesDoMétodo(ControlesDeAjuste& controles, Método método);

} // namespace varenta
