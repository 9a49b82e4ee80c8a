#include "comum/verificacoes.h"

#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/planilha.h"
#include "comum/plataforma.h"

namespace varenta {

bool nãoÉNumérico(const std::string& texto) { return !éNumérico(texto); }
bool éVazio(const std::string& texto) { return texto.empty(); }
bool nãoÉPositivo(const std::string& texto) { return lerEstrito(texto) <= 0; }

const char* primeiraRecusa(std::span<const VerificaçãoDeTexto> verificações, const std::string& texto) {
    for (const auto& [recusa, mensagem] : verificações)
        if (recusa(texto)) return mensagem;
    return nullptr;
}

bool recusar(CaixaTexto& caixa, const char* mensagem) {
    plataforma::mensagem(mensagem);
    definirTexto(caixa, "");
    focar(caixa);
    return false;
}

RecusaDeCélula primeiraRecusa(std::span<const VerificaçãoDeTexto> verificações, const Grade& grade) {
    for (int linha = 1; linha < grade.linhas; ++linha)
        for (int coluna = 1; coluna < grade.colunas; ++coluna)
            if (const char* mensagem = primeiraRecusa(verificações, grade.célula(linha, coluna)))
                return {mensagem, linha, coluna};
    return {};
}

void recusar(const Planilha& planilha, const RecusaDeCélula& recusa) {
    plataforma::mensagem(recusa.mensagem);
    if (!planilha.digitação) {
        focar(planilha.grade);
        return;
    }
    irParaCélula(planilha, recusa.linha, recusa.coluna);
    receberFoco(planilha);
}

} // namespace varenta
