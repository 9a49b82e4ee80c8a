#include "ajuste/ensaio.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace varenta {
namespace {

CondiçõesDoPonto condiçõesDoEnsaio(const AspersorDoAjuste& aspersor, const VentoDoEnsaio& vento,
                                   double anguloGiro, Setor setor) {
    CondiçõesDoPonto c{};
    c.R = aspersor.R;
    c.W = vento.W;
    c.anguloJato = aspersor.anguloJato;
    c.rotVento = rotaçãoDoVento(vento.direção);
    c.anguloGiro = anguloGiro;
    c.intensidades = aspersor.intensidades;
    c.setor = setor;
    return c;
}

/// Adds the ground point (y ahead, x to the right) to the test's points.
void juntarPonto(EnsaioDoAjuste& ensaio, double y, double x) {
    const auto& [s2, cosseno, seno] = ensaio.lote.senos();
    ensaio.X.push_back(y * cosseno - x * seno);
    ensaio.Y.push_back(x * cosseno + y * seno);
}

/// Calls with the number of sets, 1, 2, 4 or 8, as a constant: what is added up for each of them then waits
/// for nothing of the others.
template <class Fazer>
void comQuantidade(std::size_t conjuntos, Fazer&& fazer) {
    switch (conjuntos) {
    case 8:
        return fazer(std::integral_constant<std::size_t, 8>{});
    case 4:
        return fazer(std::integral_constant<std::size_t, 4>{});
    case 2:
        return fazer(std::integral_constant<std::size_t, 2>{});
    case 1:
        return fazer(std::integral_constant<std::size_t, 1>{});
    default:
        throw std::invalid_argument{"sets of parameters go by 1, 2, 4 or 8"};
    }
}

template <std::size_t conjuntos>
std::vector<double> lâminasDe(const EnsaioMóvel& ensaio, std::span<const double> intensidades) {
    const auto N = static_cast<std::size_t>(ensaio.N);
    std::vector<double> lâminas;
    lâminas.reserve(N * conjuntos);
    const double* intensidade = intensidades.data();
    for (std::size_t posição = 0; posição < N; ++posição) {
        std::array<double, conjuntos> totais{};
        for (std::size_t passo = 0; passo < N; ++passo, intensidade += conjuntos)
            for (std::size_t s = 0; s < conjuntos; ++s) totais[s] = totais[s] + intensidade[s];
        for (const double total : totais) lâminas.push_back(dividir(finito(total * ensaio.e), ensaio.v));
    }
    return lâminas;
}

template <std::size_t conjuntos>
void somar(std::span<Avaliação> avaliações, std::span<const double> observados,
           std::span<const double> estimados) {
    std::array<double, conjuntos> somas, contados{};
    for (std::size_t s = 0; s < conjuntos; ++s) somas[s] = avaliações[s].soma;
    const double* estimado = estimados.data();
    for (const double observado : observados) {
        for (std::size_t s = 0; s < conjuntos; ++s) {
            const double desvio = observado - estimado[s];
            const double quadrado = desvio * desvio;
            somas[s] = somas[s] + quadrado;
            contados[s] += quadrado > 0 ? 1.0 : 0.0;
        }
        estimado += conjuntos;
    }
    // Squares only add up, so that a sum past the largest double is still there at the end.
    for (std::size_t s = 0; s < conjuntos; ++s) {
        avaliações[s].soma = finito(somas[s]);
        avaliações[s].contados += static_cast<std::size_t>(contados[s]);
    }
}

} // namespace

EnsaioDoAjuste::EnsaioDoAjuste(const CondiçõesDoPonto& condições, int N_, double e_)
    : N{N_}, e{e_}, lote{condições} {}

double lugarAscendente(double e, int N, int j) {
    return e * (-static_cast<double>(N) / 2 + 0.5) + e * static_cast<double>(j);
}

double lugarDescendente(double e, int N, int j) {
    return e * (static_cast<double>(N) / 2 - 0.5) - e * static_cast<double>(j);
}

double áreaDoColetor(double d) { return piDoModelo * (d * d) / 4; }

EnsaioDeMalha ensaioDeMalha(const AspersorDoAjuste& aspersor, const VentoDoEnsaio& vento, int N, double e,
                            std::vector<double> intensidades) {
    EnsaioDeMalha ensaio{condiçõesDoEnsaio(aspersor, vento, 360, Setor::círculoInteiro), N, e};
    ensaio.observados = std::move(intensidades);
    for (int i = 0; i < N; ++i)
        for (int j = 0; j < N; ++j)
            juntarPonto(ensaio, lugarDescendente(e, N, i), simples(lugarAscendente(e, N, j)));
    for (const double P : ensaio.observados) ensaio.V += P * e * e / 1000;
    return ensaio;
}

EnsaioMóvel ensaioMóvel(const AspersorDoAjuste& aspersor, const VentoDoEnsaio& vento, int N, double e,
                        double v, double anguloGiro, std::vector<double> lâminas) {
    EnsaioMóvel ensaio{condiçõesDoEnsaio(aspersor, vento, anguloGiro, Setor::semCunhaÀFrente), N, e};
    ensaio.v = v;
    ensaio.observados = std::move(lâminas);
    for (int j = 0; j < N; ++j)
        for (int k = 0; k < N; ++k) juntarPonto(ensaio, lugarDescendente(e, N, k), lugarAscendente(e, N, j));
    for (const double O : ensaio.observados) ensaio.V += O * e * v / 1000;
    return ensaio;
}

double igualarÀVazão(EnsaioDoAjuste& ensaio, float Q) {
    const double c = dividir(Q, finito(ensaio.V));
    for (double& observado : ensaio.observados) observado = observado * c;
    return c;
}

std::vector<double> intensidadesEstimadas(const EnsaioDoAjuste& ensaio, Conjuntos conjuntos,
                                          ContagemDoModelo& contagem, Largura largura) {
    std::vector<double> intensidades(ensaio.X.size() * conjuntos.size());
    ensaio.lote.avaliar(conjuntos, ensaio.X, ensaio.Y, intensidades, contagem, largura);
    return intensidades;
}

std::vector<double> lâminasEstimadas(const EnsaioMóvel& ensaio, std::span<const double> intensidades,
                                     std::size_t conjuntos) {
    std::vector<double> lâminas;
    comQuantidade(conjuntos, [&](auto quantos) { lâminas = lâminasDe<quantos>(ensaio, intensidades); });
    return lâminas;
}

std::vector<double> estimados(const EnsaioDeMalha& ensaio, Conjuntos conjuntos, ContagemDoModelo& contagem,
                              Largura largura) {
    return intensidadesEstimadas(ensaio, conjuntos, contagem, largura);
}

std::vector<double> estimados(const EnsaioMóvel& ensaio, Conjuntos conjuntos, ContagemDoModelo& contagem,
                              Largura largura) {
    return lâminasEstimadas(ensaio, intensidadesEstimadas(ensaio, conjuntos, contagem, largura),
                            conjuntos.size());
}

void somarDesvios(std::span<Avaliação> avaliações, std::span<const double> observados,
                  std::span<const double> estimados) {
    comQuantidade(avaliações.size(),
                  [&](auto quantos) { somar<quantos>(avaliações, observados, estimados); });
}

std::vector<Avaliação> avaliarEmConjuntos(Conjuntos pontos, Largura largura,
                                          const std::function<void(Conjuntos, std::span<Avaliação>)>& somar) {
    std::vector<Avaliação> avaliações(pontos.size());
    const std::span todas{avaliações};
    for (std::size_t de = 0; de < pontos.size();) {
        const auto quantos = conjuntosDeUmaVez(pontos.size() - de, largura);
        try {
            somar(pontos.subspan(de, quantos), todas.subspan(de, quantos));
        } catch (const ErroExecucao&) {
            // Another of these points may have failed before the one that comes first.
            std::ranges::fill(todas.subspan(de, quantos), Avaliação{});
            for (std::size_t k = de; k < de + quantos; ++k) somar(pontos.subspan(k, 1), todas.subspan(k, 1));
        }
        de += quantos;
    }
    return avaliações;
}

} // namespace varenta
