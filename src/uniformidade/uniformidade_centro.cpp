#include "uniformidade/uniformidade_centro.h"

#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/graficos_sobreposicao.h"
#include "uniformidade/sobreposicao.h"

#include <algorithm>
#include <array>

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
    PerfilMostrado perfil{espaçamentoDosColetores(), {}, {}};
    for (int j = 1; j <= N; ++j) {
        perfil.direita.push_back(lerPrefixo(flexA.célula(N + j, 2)));
        perfil.esquerda.push_back(lerPrefixo(flexA.célula(N + 1 - j, 2)));
    }
    return perfil;
}

void desenharDetalhe(const Sobreposição& soma, double s) {
    const std::array curvas = {CurvaDaSobreposição{soma.esquerda, cores::vermelho},
                               CurvaDaSobreposição{soma.direita, cores::verde},
                               CurvaDaSobreposição{soma.total, cores::azul}};
    desenharSobreposição(form4->Picture1, form4->Label22, form4->Label23, s,
                         *std::ranges::max_element(soma.total), curvas);
}

} // namespace

std::vector<std::string> espaçamentosParaRaio(double R) {
    std::vector<std::string> textos;
    for (double E = 6 * Int(2 * R * 0.4 / 6); E <= 2 * R; E += 6) textos.push_back(paraTexto(E));
    return textos;
}

void escolherEspaçamentoDoMeio() {
    auto& lista = form4->cmbEspaçamento;
    escolherItem(lista, static_cast<int>((lista.itens.size() + 1) / 2));
}

void calcularMaiorCUC() {
    const auto perfil = lerPerfil();
    auto& f = *form4.operator->();
    f.Label6.texto = paraTexto(0);
    const int itens = static_cast<int>(f.cmbEspaçamento.itens.size());
    f.flexGrid_A.dimensionar(itens + 1, 4);

    std::vector<PontoDoEspaçamento> pontos;
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
    desenharEspaçamentos(f.Picture2, f.Label26, pontos);
}

void sobreporEspacamento() {
    const auto perfil = lerPerfil();
    auto& f = *form4.operator->();
    const int n = posiçõesEntreCarreadores(lerPrefixo(f.cmbEspaçamento.texto), perfil.s);
    // The theoretical depth isn't shown; but where there is no position, its division is what fails.
    dividir(1000 * lerPrefixo(aspersorEmUso().vazão.texto), perfil.s * n * lerPrefixo(form7->Text1.texto));
    const auto soma = sobrepor(perfil.direita, perfil.esquerda, n);
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
    desenharDetalhe(soma, perfil.s);
}

} // namespace varenta
