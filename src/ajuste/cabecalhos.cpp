#include "ajuste/cabecalhos.h"

#include "ajuste/ensaio.h"
#include "comum/numeros.h"

#include <string>

namespace varenta {

void escreverCabeçalhosDaMalha(Grade& grade, std::string_view coluna, int N, double e) {
    for (int j = 1; j < grade.colunas; ++j)
        grade.escrever(0, j,
                       j > N ? std::string{}
                             : std::string{coluna} + std::to_string(j) + " = " +
                                   Format(lugarAscendente(e, N, j - 1), "0.0") + " m ");
    for (int i = 1; i < grade.linhas; ++i)
        grade.escrever(i, 0,
                       i > N ? std::string{}
                             : "Li" + std::to_string(i) + " = " +
                                   Format(lugarDescendente(e, N, i - 1), "0.0") + " m");
}

void escreverPosições(Grade& grade, int cadaLado, double e) {
    const int N = 2 * cadaLado;
    for (int l = 1; l < grade.linhas; ++l) {
        std::string posição;
        if (l <= cadaLado) posição = "Ce" + std::to_string(cadaLado + 1 - l);
        if (l > cadaLado && l <= N) posição = "Cd" + std::to_string(l - cadaLado);
        if (!posição.empty()) posição += " = " + Format(lugarAscendente(e, N, l - 1), "0.0") + " m";
        grade.escrever(l, 0, posição);
    }
}

} // namespace varenta
