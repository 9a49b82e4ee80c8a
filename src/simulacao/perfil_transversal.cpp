#include "simulacao/perfil_transversal.h"

#include "comum/ampulheta.h"
#include "comum/numeros.h"
#include "simulacao/campo_intensidades.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "simulacao/grafico_perfil_transversal.h"

#include <algorithm>
#include <cmath>

namespace varenta {

PerfilTransversal perfilTransversal(const DadosDaSimulação& dados) {
    const double S = dados.S;
    const auto N = static_cast<std::size_t>(ladoDoCampo(dados));
    const auto& campo = campoDeIntensidades(dados, N);

    PerfilTransversal perfil;
    perfil.contagem = campo.contagem;
    std::vector<double> totais(N);
    // The totals run along the lane, from ahead to behind.
    for (std::size_t i = 0; i < N; ++i) {
        perfil.Dist.push_back(-campo.x(i));
        const auto linha = campo.intensidades.linha(i);
        for (std::size_t j = 0; j < N; ++j) totais[j] = finito(totais[j] + linha[j]);
    }

    perfil.Lam.reserve(N);
    for (const double total : totais) {
        perfil.Lam.push_back(dividir(total * S, dados.V));
        perfil.maior = std::max(perfil.maior, perfil.Lam.back());
    }
    return perfil;
}

namespace {

void escreverTabela(Grade& flexA, const PerfilTransversal& perfil) {
    const int N = static_cast<int>(perfil.Lam.size());
    flexA.dimensionar(N + 1, 3);
    flexA.formato("^  No   |^ Distância (m) |^ Lâmina (mm) ");
    for (int i = 1; i <= N; ++i) {
        const auto k = static_cast<std::size_t>(i - 1);
        flexA.escrever(i, 0, std::to_string(i));
        flexA.escrever(i, 1, Format(perfil.Dist[k], "0.00"));
        flexA.escrever(i, 2, Format(perfil.Lam[k], "0.000"));
    }
}

void desenharGráfico(const PerfilTransversal& perfil, double S) {
    const auto N = perfil.Lam.size();
    auto& desenho = form7->Picture2;
    const auto eixos = prepararPerfil(desenho, form7->Label3, form7->Label4, N, S, perfil.maior);
    desenharCurva(desenho, cores::azul, N,
                  [&](std::size_t i) { return eixos.lugar(perfil.Dist[i], perfil.Lam[i]); });
}

/// The chart of the intensities can be had from then on, by the road's own button.
void calcular(const FonteDoAspersor& fonte, Botao& gráficoDeIntensidades) {
    const Ampulheta ampulheta{form7};
    const auto dados = lerSimulação(fonte);
    const auto perfil = perfilTransversal(dados);
    escreverTabela(form7->flexA, perfil);
    avisarDoModelo(form7->lblAviso, perfil.contagem);
    avisarDoÂngulo(form7->lblAviso, fonte);
    desenharGráfico(perfil, dados.S);
    gráficoDeIntensidades.habilitado = true;
}

} // namespace

void calcularPerfilTransversal() { calcular(aspersorDoCatálogo(), form7->Command3); }
void calcularPerfilTransversalOu() { calcular(aspersorMedido(), form7->Command7); }

} // namespace varenta
