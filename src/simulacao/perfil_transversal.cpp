#include "simulacao/perfil_transversal.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "simulacao/grafico_perfil_transversal.h"

#include <algorithm>
#include <cmath>

namespace varenta {

int ladoDoCampo(const DadosDaSimulação& dados) {
    const double S = dados.S;
    auto sonda = dados.condições;
    sonda.anguloGiro = 360;
    double n = Int(dividir(sonda.R, S));
    double intensidade = 0;
    do {
        n += 1;
        if (2 * n > maiorLadoDoCampo) throw ErroExecucao{memóriaInsuficiente};
        const double p = S * (n - 0.5);
        intensidade = intensidadeEmPonto(-p, S / 2, sonda).valor;
    } while (intensidade > 0);
    return 2 * static_cast<int>(n);
}

PerfilTransversal perfilTransversal(const DadosDaSimulação& dados) {
    const auto& c = dados.condições;
    const double S = dados.S;
    const int lado = ladoDoCampo(dados);
    const auto N = static_cast<std::size_t>(lado);
    const double meio = static_cast<double>(lado) / 2;
    const double cosseno = std::cos(c.rotVento), seno = std::sin(c.rotVento);

    PerfilTransversal perfil;
    perfil.Dist.resize(N);
    std::vector<double> y(N), X(N), Y(N), M(N), totais(N);
    for (std::size_t j = 0; j < N; ++j)
        y[j] = S * (-meio + 0.5) + static_cast<double>(static_cast<float>(j) * dados.S);

    // One row of the field at a time, across the lane. The totals run along the lane, from ahead to behind.
    for (std::size_t i = 0; i < N; ++i) {
        const double x = S * (meio - 0.5) - static_cast<double>(i) * S;
        perfil.Dist[i] = -x;
        for (std::size_t j = 0; j < N; ++j) {
            X[j] = x * cosseno - y[j] * seno;
            Y[j] = y[j] * cosseno + x * seno;
        }
        intensidadesEmPontos(X, Y, c, M, perfil.contagem);
        for (std::size_t j = 0; j < N; ++j) totais[j] = finito(totais[j] + M[j]);
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

void calcular(const FonteDoAspersor& fonte) {
    const auto dados = lerSimulação(fonte);
    const auto perfil = perfilTransversal(dados);
    escreverTabela(form7->flexA, perfil);
    avisarDoModelo(form7->lblAviso, perfil.contagem);
    desenharGráfico(perfil, dados.S);
    form7->Command3.habilitado = true;
}

} // namespace

void calcularPerfilTransversal() { calcular(aspersorDoCatálogo()); }

} // namespace varenta
