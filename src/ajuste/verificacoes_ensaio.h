#pragma once

#include "ajuste/form_e.h"
#include "ajuste/form_mie.h"

#include <optional>
#include <string>

/// What keeps a test from being fitted or saved. The first refusal counts.
namespace varenta {

inline constexpr auto valorInválido = "Valor inválido!";

struct RecusaDeEnsaio {
    std::string mensagem;
    /// The box that holds the offending text; null where it is no box.
    CaixaTexto* caixa = nullptr;
};

/// Before a fit, or the comparison with one, of the test `n`.
std::optional<RecusaDeEnsaio> recusaDoAjuste(RegistroFormE& f, int n);
std::optional<RecusaDeEnsaio> recusaDoAjuste(RegistroFormMiE& f, int n);

/// Before the estimates alone, which need no readings.
std::optional<RecusaDeEnsaio> recusaDasEstimativas(RegistroFormE& f, int n);
std::optional<RecusaDeEnsaio> recusaDasEstimativas(RegistroFormMiE& f, int n);

/// Before saving.
std::optional<RecusaDeEnsaio> recusaDoSalvamento(RegistroFormE& f, int n);
std::optional<RecusaDeEnsaio> recusaDoSalvamento(RegistroFormMiE& f, int n);

/// Tells a refusal, empties the offending box and gives it the focus, if it shows. Returns whether there was
/// none.
bool aceito(const std::optional<RecusaDeEnsaio>& recusa, const TelaBase& tela);

/// The reading in a cell; empty outside the grid, which may be smaller than a number typed says.
std::string leituraDaCélula(const Grade& grade, int linha, int coluna);

/// The whole number that a list shows, by its prefix.
int inteiroDaLista(const Lista& lista);

} // namespace varenta
