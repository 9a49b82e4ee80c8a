#include "ajuste/busca.h"

#include "comum/numeros.h"

#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace varenta {
namespace {

constexpr std::size_t n = 6;

/// The step of the numerical derivatives, in the parameters' own unit.
constexpr double h = 0.001;

/// Parameters, each computed from its number.
template <class Fórmula>
Parametros cada(Fórmula&& fórmula) {
    Parametros p;
    for (std::size_t k = 0; k < n; ++k) p[k] = fórmula(k);
    return p;
}

/// The point with some parameters moved.
Parametros deslocado(Parametros p, std::size_t k, double passo) {
    p[k] = p[k] + passo;
    return p;
}

/// A point with what it is worth.
struct Ponto {
    Parametros p;
    Avaliação valor;
};

/// A row of the simplex.
struct Vértice {
    Vértice() = default;
    Vértice(const Ponto& ponto) : p{ponto.p}, soma{ponto.valor.soma}, valor{ponto.valor} {}
    Vértice(const Parametros& p_, double somaAlheia) : p{p_}, soma{somaAlheia} {}

    Parametros p;
    /// Places it among the others. It may be another point's: see `novoVértice`.
    double soma = 0;
    /// What `p` itself is worth, where that is known.
    std::optional<Avaliação> valor;
};
using Simplex = std::array<Vértice, n + 1>;

class Busca {
  public:
    Busca(const Objetivo& objetivo, double tolerância, const OuvinteDaBusca& ouvinte)
        : tolerância{tolerância}, objetivo_{objetivo}, ouvinte_{ouvinte} {}

    std::vector<Avaliação> avaliar(std::span<const Parametros> pontos) const { return objetivo_(pontos); }
    Ponto avaliar(const Parametros& p) const { return {p, objetivo_({&p, 1}).front()}; }
    Ponto avaliar(const Vértice& vértice) const {
        return vértice.valor ? Ponto{vértice.p, *vértice.valor} : avaliar(vértice.p);
    }

    /// Tells the mean deviation if it is the smallest so far.
    void comparar(const Avaliação& avaliação) {
        const double D = desvioMédio(avaliação);
        if (!(desvio_ > D)) return;
        desvio_ = D;
        ouvinte_.desvio(D);
    }
    double desvio() const { return desvio_; }

    void começar(int etapa) const {
        if (ouvinte_.etapa) ouvinte_.etapa(etapa);
    }
    void contar(double progresso) { progresso_ = progresso; }
    void avançar(double passo) { mostrar(progresso_ + passo); }
    void mostrar(double progresso) {
        progresso_ = progresso;
        ouvinte_.barra(progresso_);
    }

    const double tolerância;

  private:
    const Objetivo& objetivo_;
    const OuvinteDaBusca& ouvinte_;
    double desvio_ = 100000;
    double progresso_ = 0;
};

// Stage 1: simplex.

/// The same start for every sprinkler and every test.
constexpr std::array<Parametros, n + 1> verticesIniciais = {{{0.205, 5.217, -4.763, 3.827, 2.466, -3.674},
                                                             {3, 0, -1.1, 0, 12, -8.8},
                                                             {0.12, 3.5, -2.9, 1.95, 5, -4.25},
                                                             {1.4, -0.4, 0.9, 2.7, 2.5, -2.3},
                                                             {1.1, 2.5, -2.5, -1.7, 16.7, -12.1},
                                                             {1, 0.7, -0.2, 2.8, 2.6, -2.5},
                                                             {0.4, 2.7, -2.6, 3, 1.9, -2.1}}};

Simplex simplexInicial(const Busca& busca) {
    const auto valores = busca.avaliar(verticesIniciais);
    Simplex S;
    for (std::size_t v = 0; v < S.size(); ++v) S[v] = Ponto{verticesIniciais[v], valores[v]};
    return S;
}

/// Ascending by the sum. Ties fall as these swaps leave them.
Simplex ordenar(Simplex S) {
    Simplex M;
    for (std::size_t a = 0; a < M.size(); ++a) {
        M[a] = S[a];
        for (std::size_t b = a; b < S.size(); ++b)
            if (M[a].soma >= S[b].soma) std::swap(M[a], S[b]);
    }
    return M;
}

/// The mean of all seven, the worst included.
Parametros centro(const Simplex& M) {
    return cada([&](std::size_t k) {
        double soma = 0;
        for (const auto& vértice : M) soma += vértice.p[k];
        return soma / static_cast<double>(M.size());
    });
}

/// What takes the place of the worst vertex of an ordered simplex.
Vértice novoVértice(const Busca& busca, const Simplex& M) {
    const double melhor = M.front().soma, penúltima = M[n - 1].soma, pior = M[n].soma;
    const auto C = centro(M);
    const auto entre = [&](const Parametros& p) {
        return cada([&](std::size_t k) { return 0.5 * p[k] + 0.5 * C[k]; });
    };

    const auto refletido = busca.avaliar(cada([&](std::size_t k) { return 2 * C[k] - M[n].p[k]; }));
    const double Fr = refletido.valor.soma;
    if (Fr >= melhor && Fr < penúltima) return refletido;
    if (Fr < melhor) {
        const auto expandido = busca.avaliar(cada([&](std::size_t k) { return 2 * refletido.p[k] - C[k]; }));
        return expandido.valor.soma < melhor ? expandido : refletido;
    }
    const auto contraído = busca.avaliar(entre(Fr < pior ? refletido.p : M[n].p));
    if (contraído.valor.soma < pior) return contraído;
    // A contraction that fails leaves the centre, with the sum of the reflected point.
    return {C, Fr};
}

/// The best vertex of the last ordering: one found after it is passed over.
Vértice descerPeloSimplex(Busca& busca) {
    auto S = simplexInicial(busca);
    for (int k = 0; k < 100; ++k) {
        S = ordenar(S);
        S.back() = novoVértice(busca, S);
        auto& primeiro = S.front();
        primeiro.valor = busca.avaliar(primeiro).valor;
        busca.comparar(*primeiro.valor);
        busca.avançar(0.25);
    }
    return S.front();
}

// Stage 2: steepest descent.

void guardarSeMelhor(Vértice& melhor, const Ponto& ponto) {
    if (melhor.soma >= ponto.valor.soma) melhor = ponto;
}

/// The points p + h and p - h of each parameter in turn.
std::vector<Parametros> vizinhosDe(const Parametros& p) {
    std::vector<Parametros> pontos;
    for (std::size_t k = 0; k < n; ++k)
        for (const double passo : {h, -h}) pontos.push_back(deslocado(p, k, passo));
    return pontos;
}

/// (S+ - S-) / 0.002 from what these points are worth.
Vetor6 derivadas(std::span<const Avaliação> vizinhos) {
    return cada([&](std::size_t k) { return (vizinhos[2 * k].soma - vizinhos[2 * k + 1].soma) / 0.002; });
}

/// The direction in which the square of the sum rises, of length 1; nothing where it is flat.
std::optional<Vetor6> direçãoDeSubida(const Busca& busca, const Ponto& p) {
    const auto d = derivadas(busca.avaliar(vizinhosDe(p.p)));
    const auto g = cada([&](std::size_t k) { return finito(2 * p.valor.soma * d[k]); });
    double quadrados = 0;
    for (const double componente : g) quadrados += componente * componente;
    const double norma = std::sqrt(finito(quadrados));
    if (norma == 0) return std::nullopt;
    return cada([&](std::size_t k) { return g[k] / norma; });
}

/// The end of a step down along g: a parabola through three points tells its length. Nothing where the
/// shortest step tried was too short, even if it went down.
struct Passo {
    Ponto fim;
    /// The sum at the parabola's end.
    double somaDaParábola;
};
std::optional<Passo> passoDeDescida(const Busca& busca, const Ponto& p, const Vetor6& g) {
    const auto em = [&](double passo) {
        return busca.avaliar(cada([&](std::size_t k) { return p.p[k] - passo * g[k]; }));
    };
    const double S0 = p.valor.soma;
    double lambda = 1;
    auto a = em(lambda);
    while (a.valor.soma >= S0) {
        lambda = lambda / 2;
        a = em(lambda);
        if (lambda < busca.tolerância / 2) return std::nullopt;
    }
    const double mu = lambda / 2;
    const double Sa = a.valor.soma, Sb = em(mu).valor.soma;
    const double c1 = finito((Sb - S0) / mu);
    const double c2 = finito((Sa - Sb) / (lambda - mu));
    const double c3 = finito((c2 - c1) / lambda);
    const double tau = finito(0.5 * (mu - dividir(c1, c3)));
    const auto t = em(tau);
    return Passo{Sa > t.valor.soma ? t : a, t.valor.soma};
}

void descerPeloGradiente(Busca& busca, Vértice& melhor) {
    auto p = busca.avaliar(melhor);
    for (int k = 0; k <= 20; ++k) {
        const auto g = direçãoDeSubida(busca, p);
        if (!g) break;
        const auto passo = passoDeDescida(busca, p, *g);
        if (!passo) break;
        const double S0 = p.valor.soma;
        p = passo->fim;
        busca.comparar(p.valor);
        // A small change only sets the count of the bar; the stage goes on.
        if (std::fabs(passo->somaDaParábola - S0) < busca.tolerância) busca.contar(35);
        guardarSeMelhor(melhor, p);
        busca.avançar(0.5);
    }
    busca.mostrar(35);
}

// Stage 3: Newton.

/// The points with parameters k and l moved to the four corners (+h, +h), (+h, -h), (-h, +h), (-h, -h).
void juntarCantos(std::vector<Parametros>& pontos, const Parametros& p, std::size_t k, std::size_t l) {
    for (const double passoK : {h, -h})
        for (const double passoL : {h, -h}) pontos.push_back(deslocado(deslocado(p, k, passoK), l, passoL));
}

/// The step to where the gradient vanishes, by central differences.
Vetor6 passoDeNewton(const Busca& busca, const Ponto& p) {
    auto pontos = vizinhosDe(p.p);
    for (std::size_t k = 0; k < n; ++k)
        for (std::size_t l = k + 1; l < n; ++l) juntarCantos(pontos, p.p, k, l);
    const auto valores = busca.avaliar(pontos);

    const auto soma = [&](std::size_t ponto) { return valores[ponto].soma; };
    Matriz6 H;
    std::size_t canto = 2 * n;
    for (std::size_t k = 0; k < n; ++k) {
        H[k][k] = (soma(2 * k) - 2 * p.valor.soma + soma(2 * k + 1)) / 1e-6;
        for (std::size_t l = k + 1; l < n; ++l, canto += 4)
            H[k][l] = H[l][k] =
                ((soma(canto) - soma(canto + 1)) - (soma(canto + 2) - soma(canto + 3))) / (4 * 1e-6);
    }
    const auto g = derivadas(valores);
    return resolverSimetrico(H, cada([&](std::size_t k) { return -g[k]; }));
}

void descerPorNewton(Busca& busca, Vértice& melhor) {
    auto p = busca.avaliar(melhor);
    double fator = 2;
    for (int k = 1; k <= 10; ++k) {
        const auto x = passoDeNewton(busca, p);
        p = busca.avaliar(cada([&](std::size_t i) { return p.p[i] + x[i]; }));
        guardarSeMelhor(melhor, p);
        if (p.valor.soma > fator * melhor.soma) break;
        fator = fator - 0.1;
        busca.comparar(p.valor);
        busca.avançar(2);
        if (!(p.valor.soma > 1e-15)) break;
    }
    busca.mostrar(56);
}

} // namespace

double desvioMédio(const Avaliação& avaliação) {
    return std::sqrt(dividir(avaliação.soma, static_cast<double>(avaliação.contados)));
}

ResultadoDaBusca buscarParametros(const Objetivo& objetivo, double tolerância,
                                  const OuvinteDaBusca& ouvinte) {
    Busca busca{objetivo, tolerância, ouvinte};
    busca.começar(1);
    auto melhor = descerPeloSimplex(busca);
    busca.começar(2);
    descerPeloGradiente(busca, melhor);
    busca.começar(3);
    descerPorNewton(busca, melhor);
    return {melhor.p, busca.desvio()};
}

} // namespace varenta
