#include "comum/arquivo_texto.h"
#include "roteiro/linha_de_comando.h"

#include <algorithm>
#include <iostream>

int main(int quantos, char** argumentos) {
    varenta::falharNoLimiteDeTamanho();
    // With buffers of their own the streams notice a read or a write that fails.
    std::ios::sync_with_stdio(false);
    return varenta::executarLinhaDeComando({argumentos + std::min(quantos, 1), argumentos + quantos},
                                           std::cin, std::cout, std::cerr);
}
