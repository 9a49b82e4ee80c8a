#include "uniformidade/sobreposicao.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"

#include <algorithm>
#include <cmath>

namespace varenta {

int posiçõesEntreCarreadores(double E, double s) { return paraInteiro(dividir(E, s)); }

Sobreposição sobrepor(std::span<const double> direita, std::span<const double> esquerda, int n,
                      const std::function<void(double)>& aoSomarEsquerda) {
    const auto posições = static_cast<std::size_t>(std::max(n, 0));
    Sobreposição soma{std::vector<double>(posições), std::vector<double>(posições),
                      std::vector<double>(posições)};
    std::size_t p = 0;
    for (const double lâmina : direita) {
        elemento(soma.total, p) += lâmina;
        soma.direita[p] += lâmina;
        if (++p == posições) p = 0;
    }
    p = posições - 1;
    for (const double lâmina : esquerda) {
        elemento(soma.total, p) += lâmina;
        soma.esquerda[p] += lâmina;
        if (aoSomarEsquerda) aoSomarEsquerda(soma.total[p]);
        p = p == 0 ? posições - 1 : p - 1;
    }
    return soma;
}

std::size_t menorQuarto(std::size_t n) {
    const double quarto = 0.25 * static_cast<double>(n);
    const double inteiro = Int(quarto);
    return static_cast<std::size_t>(quarto - inteiro >= 0.5 ? inteiro + 1 : inteiro);
}

Estatísticas calcularEstatísticas(std::span<const double> valores, std::size_t q) {
    const auto n = static_cast<double>(valores.size());
    double soma = 0;
    for (const double valor : valores) soma += valor;
    const double media = dividir(soma, n);

    std::vector<double> ordenados(valores.begin(), valores.end());
    std::ranges::sort(ordenados);
    double menores = 0;
    for (std::size_t k = 0; k < q; ++k) menores += elemento(ordenados, k);
    const double mediaDosMenores = dividir(menores, static_cast<double>(q));
    const double UD = dividir(100 * mediaDosMenores, media);

    double desvios = 0;
    for (const double valor : valores) desvios += std::fabs(media - valor);
    const double CUC = 100 * (1 - dividir(desvios, media * n));
    return {finito(media), finito(UD), finito(CUC)};
}

} // namespace varenta
