#include "simulacao/paleta.h"

#include "comum/numeros.h"

#include <algorithm>

namespace varenta {
namespace {

constexpr Cor corDoZero = 16777215, corDoTopo = 16711680;

} // namespace

double GetRed(Cor c) { return c & 255; }
double GetGreen(Cor c) { return (c & 65280) / 256.0; }
double GetBlue(Cor c) { return (c & 16711680) / 65536.0; }

Paleta::Paleta(double maior) : topo_{Int(maior) + 1} {
    const auto entre = [&](double (*componente)(Cor)) {
        const double início = componente(corDoZero);
        return Canal{início, dividir(componente(corDoTopo) - início, topo_)};
    };
    vermelho_ = entre(GetRed);
    verde_ = entre(GetGreen);
    azul_ = entre(GetBlue);
}

Cor Paleta::canal(const Canal& canal, double valor) {
    return static_cast<Cor>(std::clamp(paraInteiro(canal.início + valor * canal.passo), 0, 255));
}

Cor Paleta::cor(double valor) const {
    return corDe(canal(vermelho_, valor), canal(verde_, valor), canal(azul_, valor));
}

void desenharLegenda(Desenho& desenho, const Paleta& paleta) {
    constexpr int passos = 20;
    constexpr double largura = 495, altura = 277;
    const double passo = paleta.topo() / passos;
    double valor = paleta.topo();
    for (int k = 0; k < passos; ++k) {
        valor -= passo;
        desenho.caixaCheiaDeTamanho(0, k * altura, largura, altura, paleta.cor(valor));
    }
}

} // namespace varenta
