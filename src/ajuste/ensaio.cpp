#include "ajuste/ensaio.h"

#include "comum/numeros.h"

#include <cstddef>
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

std::vector<double> intensidadesEstimadas(const EnsaioDoAjuste& ensaio, const Parametros& p,
                                          ContagemDoModelo& contagem, Largura largura) {
    auto lote = ensaio.lote;
    lote.definirParâmetros(p);
    std::vector<double> intensidades(ensaio.X.size());
    lote.avaliar(ensaio.X, ensaio.Y, intensidades, contagem, largura);
    return intensidades;
}

std::vector<double> lâminasEstimadas(const EnsaioMóvel& ensaio, std::span<const double> intensidades) {
    const auto passos = static_cast<std::size_t>(ensaio.N);
    std::vector<double> lâminas;
    for (std::size_t j = 0; j < passos; ++j) {
        double total = 0;
        for (const double i : intensidades.subspan(j * passos, passos)) total = total + i;
        lâminas.push_back(dividir(finito(total * ensaio.e), ensaio.v));
    }
    return lâminas;
}

std::vector<double> estimados(const EnsaioDeMalha& ensaio, const Parametros& p, ContagemDoModelo& contagem,
                              Largura largura) {
    return intensidadesEstimadas(ensaio, p, contagem, largura);
}

std::vector<double> estimados(const EnsaioMóvel& ensaio, const Parametros& p, ContagemDoModelo& contagem,
                              Largura largura) {
    return lâminasEstimadas(ensaio, intensidadesEstimadas(ensaio, p, contagem, largura));
}

void somarDesvios(Avaliação& avaliação, std::span<const double> observados,
                  std::span<const double> estimados) {
    double soma = avaliação.soma;
    std::size_t contados = 0;
    for (std::size_t k = 0; k < observados.size(); ++k) {
        const double desvio = observados[k] - estimados[k];
        const double quadrado = desvio * desvio;
        soma = soma + quadrado;
        contados += quadrado > 0;
    }
    // Squares only add up, so that a sum past the largest double is still there at the end.
    avaliação.soma = finito(soma);
    avaliação.contados += contados;
}

} // namespace varenta
