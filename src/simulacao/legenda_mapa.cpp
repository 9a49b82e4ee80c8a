#include "simulacao/legenda_mapa.h"

namespace varenta {

void desenharLegenda(Desenho& desenho, const EscalaDeCores& escala) {
    constexpr int passos = 20;
    constexpr double largura = 495, altura = 277;
    const double passo = escala.topo() / passos;
    double valor = escala.topo();
    for (int k = 0; k < passos; ++k) {
        valor -= passo;
        desenho.caixaCheiaDeTamanho(0, k * altura, largura, altura, escala.cor(valor));
    }
}

} // namespace varenta
