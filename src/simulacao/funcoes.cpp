#include "simulacao/funcoes.h"

#include "comum/numeros.h"

#include <cmath>

namespace varenta {
namespace {

double células(double distancia, double passo) { return Int(dividir(std::fabs(distancia), passo) + 0.5); }

} // namespace

double indiceDistancia(double origem, double distancia, double passo) {
    return distancia <= 0 ? origem - células(distancia, passo) + 1 : origem + células(distancia, passo) + 1;
}

double indiceDistanciaPositiva(double origem, double distancia, double passo) {
    return distancia > 0 ? origem + células(distancia, passo) : 0;
}

} // namespace varenta
