#pragma once

#include "ajuste/form_e.h"
#include "ajuste/form_mie.h"
#include "ajuste/operacoes_ensaio.h"

#include <optional>
#include <string>
#include <variant>

/// What keeps a test from being fitted or saved. The first refusal counts.
namespace varenta {

struct CélulaDoEnsaio {
    int linha, coluna;
};

struct RecusaDeEnsaio {
    std::string mensagem;
    /// What holds the offending text.
    std::variant<CaixaTexto*, const Lista*, CélulaDoEnsaio> lugar;
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

/// What becomes of the text in a refused box.
enum class TextoRecusado { sai, fica };

/// Tells a refusal and leads to its place: a box or a list gets the focus, a cell becomes the current one,
/// and its entry line gets the focus. A hidden screen gets none. Returns whether there was no refusal.
bool aceito(const std::optional<RecusaDeEnsaio>& recusa, const TelaDeEnsaio& ensaio, TextoRecusado texto);

/// The reading in a cell; empty outside the grid, which may be smaller than a number typed says.
std::string leituraDaCélula(const Grade& grade, int linha, int coluna);

/// The whole number that a list shows, by its prefix.
int inteiroDaLista(const Lista& lista);

} // namespace varenta
