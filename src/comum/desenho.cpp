#include "comum/desenho.h"

#include <numbers>
#include <utility>

namespace varenta {

std::uint64_t novaVersão() {
    static std::uint64_t última = 0;
    return ++última;
}

void Desenho::limpar() {
    traços.clear();
    versão = novaVersão();
}

void Desenho::linha(double x1, double y1, double x2, double y2, Cor cor) {
    traços.push_back(Linha{x1, y1, x2, y2, cor, larguraAtual});
    versão = novaVersão();
}

void Desenho::caixaCheia(double x1, double y1, double x2, double y2, Cor cor) {
    traços.push_back(CaixaCheia{x1, y1, x2, y2, cor});
    versão = novaVersão();
}

void Desenho::caixaCheiaDeTamanho(double x, double y, double largura, double altura, Cor cor) {
    caixaCheia(x, y, x + largura, y + altura, cor);
}

CaixaCheia Mosaico::caixa(std::size_t n) const {
    const std::size_t linha = n / colunas, coluna = n % colunas;
    const double x1 = x + static_cast<double>(coluna) * largura;
    const double y1 = y + static_cast<double>(linha) * altura;
    return {x1, y1, x1 + largura, y1 + altura, cores[n]};
}

void Desenho::mosaico(Mosaico mosaico) {
    traços.push_back(std::move(mosaico));
    versão = novaVersão();
}

void Desenho::arco(double cx, double cy, double raio, Cor cor) {
    arco(cx, cy, raio, cor, 0, 2 * std::numbers::pi);
}

void Desenho::arco(double cx, double cy, double raio, Cor cor, double início, double fim) {
    traços.push_back(
        Arco{cx, cy, raio, cor, início, fim, larguraAtual, estiloAtual == EstiloPreenchimento::sólido});
    versão = novaVersão();
}

} // namespace varenta
