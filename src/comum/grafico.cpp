#include "comum/grafico.h"

#include "comum/numeros.h"

namespace varenta {
namespace {

void desenharVerticais(Desenho& desenho, const MalhaDeGráfico& malha, const Linhas& linhas, Cor cor) {
    for (int k = 0; k < linhas.quantas; ++k) {
        const double x = linhas.primeira + linhas.passo * k;
        desenho.linha(x, malha.topo, x, malha.base, cor);
    }
}

void desenharHorizontais(Desenho& desenho, const MalhaDeGráfico& malha, const Linhas& linhas, Cor cor) {
    for (int k = 0; k < linhas.quantas; ++k) {
        const double y = linhas.primeira + linhas.passo * k;
        desenho.linha(malha.esquerda, y, malha.direita, y, cor);
    }
}

} // namespace

void desenharMalha(Desenho& desenho, const MalhaDeGráfico& malha) {
    desenharVerticais(desenho, malha, malha.finasVerticais, cores::branco);
    desenharHorizontais(desenho, malha, malha.finasHorizontais, cores::branco);
    desenharVerticais(desenho, malha, malha.grossasVerticais, cores::preto);
    desenharHorizontais(desenho, malha, malha.grossasHorizontais, cores::preto);
}

void prepararGráfico(Desenho& desenho, const MalhaDeGráfico& malha) {
    desenho.limpar();
    desenho.larguraTraco(1);
    desenharMalha(desenho, malha);
}

void desenharCurva(Desenho& desenho, Cor cor, std::size_t quantos,
                   const std::function<PontoDoDesenho(std::size_t)>& ponto) {
    if (quantos < 2) return;
    auto de = ponto(0);
    for (std::size_t n = 1; n < quantos; ++n) {
        const auto até = ponto(n);
        desenho.linha(de.x, de.y, até.x, até.y, cor);
        de = até;
    }
}

void marcarPonto(Desenho& desenho, PontoDoDesenho lugar) {
    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    desenho.arco(lugar.x, lugar.y, 2, cores::vermelho);
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);
}

double lerNoEixo(std::span<const Rotulo> escala, double percorrido, double extensão) {
    const double início = lerPrefixo(escala.front().texto), fim = lerPrefixo(escala.back().texto);
    return início + (fim - início) * percorrido / extensão;
}

Ponteiro apagarLeitura(Rotulo& x, Rotulo& y) {
    x.texto.clear();
    y.texto.clear();
    return Ponteiro::padrão;
}

double escreverEscala(std::span<Rotulo> rótulos, double origem, double passo, std::string_view padrão) {
    for (std::size_t k = 0; k < rótulos.size(); ++k)
        rótulos[k].texto = Format(origem + passo * static_cast<double>(k), padrão);
    return lerPrefixo(rótulos.back().texto);
}

} // namespace varenta
