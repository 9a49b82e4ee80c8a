#include "aspersor/perfil_radial.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"

#include <algorithm>

namespace varenta {
namespace {

/// Second derivatives of the natural cubic spline through (x, y): 0 at both ends, the tridiagonal system
/// between solved by forward elimination and back substitution.
PontosDoPerfil segundasDerivadas(const PontosDoPerfil& x, const PontosDoPerfil& y) {
    constexpr std::size_t n = pontosDoPerfil;
    PontosDoPerfil diagonal{}, direito{}, m{};
    for (std::size_t k = 1; k + 1 < n; ++k) {
        diagonal[k] = 2 * (x[k + 1] - x[k - 1]);
        direito[k] = 6 * ((y[k + 1] - y[k]) / (x[k + 1] - x[k]) - (y[k] - y[k - 1]) / (x[k] - x[k - 1]));
        if (k > 1) {
            const double h = x[k] - x[k - 1];
            const double fator = h / diagonal[k - 1];
            diagonal[k] -= fator * h;
            direito[k] -= fator * direito[k - 1];
        }
    }
    for (std::size_t k = n - 2; k >= 1; --k) m[k] = (direito[k] - (x[k + 1] - x[k]) * m[k + 1]) / diagonal[k];
    return m;
}

} // namespace

PontosDoPerfil distanciasRelativas() {
    PontosDoPerfil rel{};
    for (std::size_t k = 2; k <= 21; ++k) rel[k - 1] = 0.025 + (static_cast<double>(k) - 2) * 0.05;
    rel[21] = 1;
    return rel;
}

PontosDoPerfil distanciasRelativasAcumuladas() {
    PontosDoPerfil rel{};
    double soma = 0.025;
    for (std::size_t k = 2; k <= 21; ++k) {
        rel[k - 1] = soma;
        soma += 0.05;
    }
    rel[21] = 1;
    return rel;
}

FaixaDePressão faixaDeCincoLinhas(double pressao) {
    if (pressao < 30) return {0, 0, 30};
    if (pressao < 40) return {0, 1, 30};
    if (pressao < 50) return {1, 2, 40};
    if (pressao < 60) return {2, 3, 50};
    if (pressao <= 70) return {3, 4, 60};
    throw ErroExecucao{índiceForaDosLimites};
}

FaixaDePressão faixaDeQuatroLinhas(double pressao) {
    exigirÍndice(pressao >= 40 && pressao <= 70);
    if (pressao < 50) return {0, 1, 40};
    if (pressao < 60) return {1, 2, 50};
    return {2, 3, 60};
}

std::span<const catalogo::LinhaDePerfil> blocoDoBocal(std::span<const catalogo::LinhaDePerfil> tabela,
                                                      int bocal) {
    const auto éDoBocal = [&](const catalogo::LinhaDePerfil& linha) { return linha.bocal == bocal; };
    const auto primeira = std::find_if(tabela.begin(), tabela.end(), éDoBocal);
    exigirÍndice(primeira != tabela.end());
    return {primeira, std::find_if_not(primeira, tabela.end(), éDoBocal)};
}

PontosDoPerfil razõesNaPressão(std::span<const catalogo::LinhaDePerfil> bloco, const FaixaDePressão& faixa,
                               double pressao) {
    const auto& baixa = elemento(bloco, faixa.linhaBaixa).razões;
    const auto& alta = elemento(bloco, faixa.linhaAlta).razões;
    PontosDoPerfil razões{};
    for (std::size_t k = 0; k < pontosDoPerfil; ++k)
        razões[k] = ((alta[k] - baixa[k]) * (pressao - faixa.base)) / 10 + baixa[k];
    return razões;
}

double intensidadeNoRaio(double r, const PontosDoPerfil& raios, const PontosDoPerfil& intensidades) {
    double intensidade = 0;
    for (std::size_t j = 0; j + 1 < pontosDoPerfil; ++j)
        if (r >= raios[j] && r <= raios[j + 1])
            intensidade = intensidades[j] + dividir((r - raios[j]) * (intensidades[j + 1] - intensidades[j]),
                                                    raios[j + 1] - raios[j]);
    return intensidade;
}

CurvaDoPerfil amostrarCurva(const PontosDoPerfil& x, const PontosDoPerfil& y) {
    constexpr double passo = 0.01875;
    const auto m = segundasDerivadas(x, y);
    auto ordenadas = y;
    CurvaDoPerfil curva{};
    std::size_t n = 0;
    for (std::size_t j = 0; j + 1 < pontosDoPerfil; ++j) {
        const double h = x[j + 1] - x[j];
        for (double abscissa = x[j]; abscissa <= x[j + 1]; abscissa += passo) {
            const double a = (x[j + 1] - abscissa) / h;
            const double b = 1 - a;
            const double c = (a * a - 1) * (a / 6) * h * h;
            const double d = (b * b - 1) * (b / 6) * h * h;
            ordenadas[j] = b * ordenadas[j + 1] + a * ordenadas[j] + c * m[j] + d * m[j + 1];
            elemento(curva.amostras, n++) = {abscissa, ordenadas[j]};
        }
    }
    elemento(curva.amostras, n) = {1, 0};
    curva.maior = std::max(0.0, *std::ranges::max_element(ordenadas));
    return curva;
}

} // namespace varenta
