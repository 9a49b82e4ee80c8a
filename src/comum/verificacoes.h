#pragma once

#include "comum/controles.h"

#include <span>
#include <string>

namespace varenta {

/// A check of a text that a person typed: what refuses it, and the message then.
struct VerificaçãoDeTexto {
    bool (*recusa)(const std::string& texto);
    const char* mensagem;
};

bool nãoÉNumérico(const std::string& texto);
bool éVazio(const std::string& texto);
/// Whether a numeric text is at or below 0.
bool nãoÉPositivo(const std::string& texto);

/// The message of the first check that refuses the text; null where all accept it.
const char* primeiraRecusa(std::span<const VerificaçãoDeTexto> verificações, const std::string& texto);

/// Refuses a typed text: shows the message, empties the box and gives it the focus. Always false.
bool recusar(CaixaTexto& caixa, const char* mensagem);

/// A cell of a grid that a check refuses; no message where none is refused.
struct RecusaDeCélula {
    const char* mensagem = nullptr;
    int linha = 0, coluna = 0;
};

/// The first data cell that one of the checks refuses, row by row.
RecusaDeCélula primeiraRecusa(std::span<const VerificaçãoDeTexto> verificações, const Grade& grade);

/// Shows the message and leads to the cell, through its entry line where the grid takes entries now.
void recusar(const Planilha& planilha, const RecusaDeCélula& recusa);

} // namespace varenta
