#include "uniformidade/graficos_sobreposicao.h"

#include "comum/numeros.h"
#include "uniformidade/graficos_form4.h"

#include <cmath>

namespace varenta {
namespace {

/// A percentage against the spacing: points below the axis are left out, a segment is drawn where its second
/// point is on it.
void desenharPorcentagem(Desenho& desenho, const std::vector<PontoDoEspaçamento>& pontos,
                         double Estatísticas::*valor, double X0, double passo, Cor cor) {
    constexpr double menor = 10;
    constexpr auto& malha = malhaDosEspaçamentos;
    const auto lugar = [&](const PontoDoEspaçamento& ponto) {
        const double x = malha.esquerda + dividir(malha.largura() * (ponto.E - X0), 8 * passo);
        const double y = std::fabs((ponto.valores.*valor - menor) * malha.altura() / 90 - malha.base);
        return PontoDoDesenho{x, y};
    };
    for (std::size_t k = 0; k < pontos.size(); ++k) {
        if (pontos[k].valores.*valor < menor) continue;
        const auto até = lugar(pontos[k]);
        if (k > 0) {
            const auto de = lugar(pontos[k - 1]);
            desenho.linha(de.x, de.y, até.x, até.y, cor);
        }
    }
    for (const auto& ponto : pontos)
        if (ponto.valores.*valor >= menor) marcarPonto(desenho, lugar(ponto));
}

/// The value at x on an axis that ends in the last tick's.
double naEscala(const MalhaDeGráfico& malha, const Rotulo& fim, double x) {
    return lerPrefixo(fim.texto) * (x - malha.esquerda) / malha.largura();
}

} // namespace

void desenharEspaçamentos(Desenho& Picture2, std::span<Rotulo> Label26,
                          const std::vector<PontoDoEspaçamento>& pontos) {
    if (pontos.empty()) return;
    const double X0 = pontos.front().E - 6, X1 = pontos.back().E + 6;
    const double passo = lerPrefixo(Format((X1 - X0) / 8, "#0.0"));
    escreverEscala(Label26, X0, passo, "#0.0");
    prepararGráfico(Picture2, malhaDosEspaçamentos);
    Picture2.larguraTraco(2);
    desenharPorcentagem(Picture2, pontos, &Estatísticas::CUC, X0, passo, cores::azul);
    desenharPorcentagem(Picture2, pontos, &Estatísticas::UD, X0, passo, cores::verde);
}

double distânciaDaPosição(std::size_t P, double s) { return s / 2 + static_cast<double>(P) * s; }

void desenharSobreposição(Desenho& Picture1, std::span<Rotulo> Label22, std::span<Rotulo> Label23, double s,
                          double maior, std::span<const CurvaDaSobreposição> curvas) {
    constexpr auto& malha = malhaDaSobreposição;
    constexpr auto padrão = "#0.0";
    const auto n = curvas.front().lâminas.size();
    const double tx = lerPrefixo(Format(s * static_cast<double>(n) / 9, padrão));
    const double ty = lerPrefixo(Format(maior / 6, padrão));
    const double origem = lerPrefixo(Label22[0].texto);
    for (std::size_t i = 1; i < Label22.size(); ++i)
        Label22[i].texto = Format(origem + static_cast<double>(i) * tx, padrão);
    for (std::size_t i = 1; i < Label23.size(); ++i)
        Label23[i].texto = Format(origem + static_cast<double>(i) * ty, padrão);

    prepararGráfico(Picture1, malha);
    Picture1.larguraTraco(2);
    for (const auto& curva : curvas)
        desenharCurva(Picture1, curva.cor, n, [&](std::size_t P) {
            const double x = malha.esquerda + dividir(malha.largura() * distânciaDaPosição(P, s), 9 * tx);
            const double y = std::fabs(malha.base - dividir(malha.altura() * curva.lâminas[P], 6 * ty));
            return PontoDoDesenho{x, y};
        });
}

Ponteiro lerSobreposição(const LeituraDeGráfico& leitura, double x, double y) {
    constexpr auto& malha = malhaDaSobreposição;
    if (!malha.contém(x, y)) return apagarLeitura(leitura.x, leitura.y);
    const double i = lerPrefixo(leitura.fimDeY.texto) * (malha.base - y) / malha.altura();
    leitura.x.texto = "d = " + Format(naEscala(malha, leitura.fimDeX, x), "0.000") + " m";
    leitura.y.texto = "I = " + Format(i, "0.000") + " mm";
    return Ponteiro::cruz;
}

Ponteiro lerEspaçamentos(const LeituraDeGráfico& leitura, double x, double y) {
    constexpr auto& malha = malhaDosEspaçamentos;
    if (!malha.contém(x, y)) return apagarLeitura(leitura.x, leitura.y);
    const double UD = 10 + 90 * (malha.base - y) / malha.altura();
    leitura.x.texto = "E = " + Format(naEscala(malha, leitura.fimDeX, x), "0.000") + " m";
    leitura.y.texto = "UD = " + Format(UD, "0.000") + " %";
    return Ponteiro::cruz;
}

} // namespace varenta
