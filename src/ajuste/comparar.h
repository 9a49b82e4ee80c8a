#pragma once

#include "ajuste/controles_ajuste.h"

/// The comparison of a test's observations with what the model estimates from the parameters shown.
namespace varenta {

/// Fills the result screen of a test and shows it.
void preencherGraf(Aspersor aspersor, int n);
void preencherMIgraf(Aspersor aspersor, int n);

/// Lists the estimates for a test on `Form_ajuste1` or `Form_MIajuste1`, and shows it.
void visualizarValores(Aspersor aspersor, int n);
void visualizarValoresMóvel(Aspersor aspersor, int n);

/// Sets rows and columns of the list from the size of the test `n`, and writes the headers.
void carPlan(int n);
void MIcarPlan(int n);

} // namespace varenta
