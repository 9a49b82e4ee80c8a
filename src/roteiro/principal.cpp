#include "comum/arquivo_texto.h"
#include "roteiro/interprete.h"
#include "roteiro/linha_de_comando.h"

#include <algorithm>
#include <iostream>
#include <new>

int main(int quantos, char** argumentos) {
    varenta::falharNoLimiteDeTamanho();
    // With buffers of their own the streams notice a read or a write that fails.
    std::ios::sync_with_stdio(false);
    try {
        return varenta::executarLinhaDeComando({argumentos + std::min(quantos, 1), argumentos + quantos},
                                               std::cin, std::cout, std::cerr);
    } catch (const std::bad_alloc&) {
        // No script was at work: it could not even be read.
        std::cerr << "varenta-roteiro: memória insuficiente\n";
        return varenta::Interprete::falha;
    }
}
