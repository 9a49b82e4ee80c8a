#include "uniformidade/uniformidade_centro.h"

#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "simulacao/form7.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/graficos_form4.h"
#include "uniformidade/sobreposicao.h"

#include <algorithm>
#include <cmath>

namespace varenta {
namespace {

/// The transversal profile as `Form7` shows it: the depths of each side, from the lane outward.
struct PerfilMostrado {
    double s;
    std::vector<double> direita, esquerda;
};

PerfilMostrado lerPerfil() {
    const auto& flexA = form7->flexA;
    const int N = (flexA.linhas - 1) / 2;
    PerfilMostrado perfil{simples(lerPrefixo(form7->Combo2.texto)), {}, {}};
    for (int j = 1; j <= N; ++j) {
        perfil.direita.push_back(lerPrefixo(flexA.célula(N + j, 2)));
        perfil.esquerda.push_back(lerPrefixo(flexA.célula(N + 1 - j, 2)));
    }
    return perfil;
}

/// One spacing of the list with its figures.
struct Ponto {
    double E;
    Estatísticas valores;
};

/// A percentage against the spacing: points below the axis are left out, a segment is drawn where its second
/// point is on it.
void desenharPorcentagem(const std::vector<Ponto>& pontos, double Estatísticas::*valor, double X0,
                         double passo, Cor cor) {
    constexpr double menor = 10;
    constexpr auto& malha = malhaDosEspaçamentos;
    auto& desenho = form4->Picture2;
    const auto lugar = [&](const Ponto& ponto) {
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
    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    for (const auto& ponto : pontos)
        if (ponto.valores.*valor >= menor) {
            const auto [x, y] = lugar(ponto);
            desenho.arco(x, y, 2, cores::vermelho);
        }
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);
}

void desenharEspaçamentos(const std::vector<Ponto>& pontos) {
    if (pontos.empty()) return;
    const double X0 = pontos.front().E - 6, X1 = pontos.back().E + 6;
    const double passo = lerPrefixo(Format((X1 - X0) / 8, "#0.0"));
    escreverEscala(form4->Label26, X0, passo, "#0.0");
    prepararGráfico(form4->Picture2, malhaDosEspaçamentos);
    form4->Picture2.larguraTraco(2);
    desenharPorcentagem(pontos, &Estatísticas::CUC, X0, passo, cores::azul);
    desenharPorcentagem(pontos, &Estatísticas::UD, X0, passo, cores::verde);
}

/// The position P (from 0) stands at s/2 + P x s from the lane.
double distânciaDaPosição(std::size_t P, double s) { return s / 2 + static_cast<double>(P) * s; }

void desenharSobreposição(const Sobreposição& soma, double s) {
    constexpr auto& malha = malhaDaSobreposição;
    constexpr auto padrão = "#0.0";
    const auto n = soma.total.size();
    const double maior = *std::ranges::max_element(soma.total);
    const double tx = lerPrefixo(Format(s * static_cast<double>(n) / 9, padrão));
    const double ty = lerPrefixo(Format(maior / 6, padrão));
    const double origem = lerPrefixo(form4->Label22[0].texto);
    for (std::size_t i = 1; i < form4->Label22.size(); ++i)
        form4->Label22[i].texto = Format(origem + static_cast<double>(i) * tx, padrão);
    for (std::size_t i = 1; i < form4->Label23.size(); ++i)
        form4->Label23[i].texto = Format(origem + static_cast<double>(i) * ty, padrão);

    auto& desenho = form4->Picture1;
    prepararGráfico(desenho, malha);
    desenho.larguraTraco(2);
    const auto curva = [&](const std::vector<double>& lâminas, Cor cor) {
        desenharCurva(desenho, cor, n, [&](std::size_t P) {
            const double x = malha.esquerda + dividir(malha.largura() * distânciaDaPosição(P, s), 9 * tx);
            const double y = std::fabs(malha.base - dividir(malha.altura() * lâminas[P], 6 * ty));
            return PontoDoDesenho{x, y};
        });
    };
    curva(soma.esquerda, cores::vermelho);
    curva(soma.direita, cores::verde);
    curva(soma.total, cores::azul);
}

} // namespace

std::vector<std::string> espaçamentosParaRaio(double R) {
    std::vector<std::string> textos;
    for (double E = 6 * Int(2 * R * 0.4 / 6); E <= 2 * R; E += 6) textos.push_back(paraTexto(E));
    return textos;
}

void calcularMaiorCUC() {
    const auto perfil = lerPerfil();
    auto& f = *form4.operator->();
    f.Label6.texto = paraTexto(0);
    const int itens = static_cast<int>(f.cmbEspaçamento.itens.size());
    f.flexGrid_A.dimensionar(itens + 1, 4);

    std::vector<Ponto> pontos;
    std::size_t q = 0;
    for (int k = 1; k <= itens; ++k) {
        escolherItem(f.cmbEspaçamento, k - 1);
        const double E = lerPrefixo(f.cmbEspaçamento.texto);
        const auto soma = sobrepor(perfil.direita, perfil.esquerda, posiçõesEntreCarreadores(E, perfil.s));
        if (soma.total.size() >= 2) q = menorQuarto(soma.total.size());
        const auto valores = calcularEstatísticas(soma.total, q);
        f.flexGrid_A.escrever(k, 0, Format(E, "0"));
        f.flexGrid_A.escrever(k, 1, Format(valores.CUC, "0.00"));
        f.flexGrid_A.escrever(k, 2, Format(valores.UD, "0.00"));
        f.flexGrid_A.escrever(k, 3, Format(valores.media, "0.00"));
        if (valores.CUC > lerPrefixo(f.Label6.texto)) {
            f.Label6.texto = Format(valores.CUC, "##0.00");
            f.Label5.texto = "Espaçamento:  " + paraTexto(E) + "  m";
        }
        pontos.push_back({E, valores});
    }
    desenharEspaçamentos(pontos);
}

void sobreporEspacamento() {
    const auto perfil = lerPerfil();
    auto& f = *form4.operator->();
    const double E = lerPrefixo(f.cmbEspaçamento.texto);
    const auto soma = sobrepor(perfil.direita, perfil.esquerda, posiçõesEntreCarreadores(E, perfil.s));
    for (std::size_t P = 0; P < soma.total.size(); ++P) {
        const int linha = static_cast<int>(P) + 1;
        f.flexGrid_B.escrever(linha, 1, Format(soma.direita[P], "#0.000"));
        f.flexGrid_B.escrever(linha, 2, Format(soma.esquerda[P], "#0.000"));
        f.flexGrid_B.escrever(linha, 0, Format(distânciaDaPosição(P, perfil.s), "0.00"));
        f.flexGrid_B.escrever(linha, 3, Format(soma.total[P], "#0.000"));
    }
    const auto valores = calcularEstatísticas(soma.total, menorQuarto(soma.total.size()));
    f.Label17.texto = Format(valores.media, "##0.00");
    f.Label33.texto = Format(valores.UD, "##0.00");
    f.Label16.texto = Format(valores.CUC, "##0.00");
    form5->Label7.texto = f.Label17.texto;
    form5->Label5.texto = f.Label16.texto;
    desenharSobreposição(soma, perfil.s);
}

} // namespace varenta
