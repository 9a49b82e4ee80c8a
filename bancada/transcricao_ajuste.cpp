#include "transcricao_ajuste.h"

#include "ajuste/resolver_simetrico.h"
#include "transcricao_modelo.h"

#include <array>
#include <cmath>
#include <utility>

namespace varenta::bancada {
namespace {

constexpr double h = 0.001;

double quadradoDoDesvio(double observado, double estimado) {
    return (observado - estimado) * (observado - estimado);
}

double desvioColetor(const EnsaioDeMalha& t, std::size_t k, const Parametros& p) {
    const auto& c = t.lote.condições();
    const auto [x, y] =
        pontoSemVento(t.X[k], t.Y[k], c.R, c.W, p[0], p[1], p[2], p[3], p[4], p[5], c.anguloJato);
    const double r = std::sqrt(x * x + y * y);
    const double i0 = r >= c.R ? 0 : intensidadeRelativa(r / c.R, c.intensidades, true);
    const double i =
        i0 == 0 ? 0 : i0 / fatorDeÁrea(x, y, c.R, c.W, p[1], p[2], p[3], p[4], p[5], c.anguloJato);
    return quadradoDoDesvio(t.observados[k], i);
}

double intensidadeSetor(double u, double w, double g, double R, const PontosDoPerfil& intensidades) {
    const double beta = 3.14159265358979 * ((360 - g) / 2) / 180;
    double rho = 0;
    if (u < 0) rho = std::sqrt(u * u + w * w);
    if (u > 0) {
        rho = std::sqrt(u * u + w * w);
        if (std::fabs(w) / R < std::sin(beta) && std::fabs(w) * (1 / std::tan(beta)) < std::fabs(u) &&
            std::fabs(u) < std::sqrt(R * R - w * w))
            rho = 5 * R;
    }
    return intensidadeRelativa(rho / R, intensidades, true) * (360 / g);
}

double desvioLinha(const EnsaioMóvel& t, std::size_t j, const Parametros& p) {
    const auto& c = t.lote.condições();
    double total = 0;
    for (std::size_t k = 0; k < static_cast<std::size_t>(t.N); ++k) {
        const std::size_t ponto = j * static_cast<std::size_t>(t.N) + k;
        const auto [x, y] =
            pontoSemVento(t.X[ponto], t.Y[ponto], c.R, c.W, p[0], p[1], p[2], p[3], p[4], p[5], c.anguloJato);
        const double r = std::sqrt(x * x + y * y);
        double i0 = 0;
        if (r < c.R) {
            const double u = x * std::cos(c.rotVento) + y * std::sin(c.rotVento);
            const double w = y * std::cos(c.rotVento) - x * std::sin(c.rotVento);
            i0 = intensidadeSetor(u, w, c.anguloGiro, c.R, c.intensidades);
        }
        if (i0 != 0)
            total = total + i0 / fatorDeÁrea(x, y, c.R, c.W, p[1], p[2], p[3], p[4], p[5], c.anguloJato);
    }
    return quadradoDoDesvio(t.observados[j], total * t.e / t.v);
}

double desvio(const EnsaioDeMalha& t, std::size_t k, const Parametros& p) { return desvioColetor(t, k, p); }
double desvio(const EnsaioMóvel& t, std::size_t j, const Parametros& p) { return desvioLinha(t, j, p); }

/// A row of the simplex, its sum beside it.
using Linha = std::pair<Parametros, double>;
using Tabela = std::array<Linha, 7>;

Parametros combinar(double a, const Parametros& p, double b, const Parametros& q) {
    Parametros m;
    for (std::size_t k = 0; k < 6; ++k) m[k] = a * p[k] + b * q[k];
    return m;
}

template <class Ensaio>
class Ajuste {
  public:
    Ajuste(const std::vector<Ensaio>& ensaios, double tolerância)
        : ensaios_{ensaios}, tolerância_{tolerância} {}

    AjusteTranscrito ajustar() {
        simplex();
        descida();
        newton();
        feito_.p = linha1_;
        return std::move(feito_);
    }

  private:
    double somar(const Parametros& p) {
        double soma = 0;
        m_ = 0;
        ++feito_.avaliações;
        for (const auto& t : ensaios_)
            for (std::size_t k = 0; k < t.observados.size(); ++k) {
                const double quadrado = desvio(t, k, p);
                if (quadrado > 0) ++m_;
                soma = soma + quadrado;
            }
        return soma;
    }

    /// Of the point that was summed last.
    void contar(double soma) {
        const double D = std::sqrt(soma / static_cast<double>(m_));
        if (!(melhorD_ > D)) return;
        melhorD_ = D;
        feito_.desvios.push_back(D);
    }

    void simplex() {
        Tabela S = {{{{0.205, 5.217, -4.763, 3.827, 2.466, -3.674}, 0},
                     {{3, 0, -1.1, 0, 12, -8.8}, 0},
                     {{0.12, 3.5, -2.9, 1.95, 5, -4.25}, 0},
                     {{1.4, -0.4, 0.9, 2.7, 2.5, -2.3}, 0},
                     {{1.1, 2.5, -2.5, -1.7, 16.7, -12.1}, 0},
                     {{1, 0.7, -0.2, 2.8, 2.6, -2.5}, 0},
                     {{0.4, 2.7, -2.6, 3, 1.9, -2.1}, 0}}};
        for (auto& [p, soma] : S) soma = somar(p);
        for (int vez = 0; vez < 100; ++vez) {
            Tabela M;
            for (std::size_t a = 0; a < 7; ++a) {
                M[a] = S[a];
                for (std::size_t b = a; b < 7; ++b)
                    if (M[a].second >= S[b].second) std::swap(M[a], S[b]);
            }
            trocarPior(M);
            S = M;
            contar(somar(S[0].first));
        }
        linha1_ = S[0].first;
        melhor_ = S[0].second;
    }

    void trocarPior(Tabela& M) {
        Parametros C{};
        for (std::size_t k = 0; k < 6; ++k) {
            for (const auto& linha : M) C[k] = C[k] + linha.first[k];
            C[k] = C[k] / 7;
        }
        const double F1 = M[0].second, F6 = M[5].second, F7 = M[6].second;
        const auto Rf = combinar(2, C, -1, M[6].first);
        const double Fr = somar(Rf);
        if (Fr >= F1 && Fr < F6) {
            M[6] = {Rf, Fr};
        } else if (Fr < F1) {
            const auto Ex = combinar(2, Rf, -1, C);
            const double Fe = somar(Ex);
            M[6] = Fe < F1 ? Linha{Ex, Fe} : Linha{Rf, Fr};
        } else {
            const auto T = combinar(0.5, Fr < F7 ? Rf : M[6].first, 0.5, C);
            const double Ft = somar(T);
            M[6] = Ft < F7 ? Linha{T, Ft} : Linha{C, Fr};
        }
    }

    double somarDeslocado(Parametros p, std::size_t k, double passoK, std::size_t l = 0, double passoL = 0) {
        p[k] = p[k] + passoK;
        if (passoL != 0) p[l] = p[l] + passoL;
        return somar(p);
    }

    double somarAoLongo(const Parametros& p, double passo, const Parametros& g) {
        return somar(combinar(1, p, -passo, g));
    }

    void guardar(double soma, const Parametros& p) {
        if (!(melhor_ >= soma)) return;
        melhor_ = soma;
        linha1_ = p;
    }

    void descida() {
        auto p = linha1_;
        for (int conta = 0; conta <= 20; ++conta) {
            const double S0 = somar(p);
            Parametros g;
            double norma = 0;
            for (std::size_t k = 0; k < 6; ++k) {
                const double mais = somarDeslocado(p, k, h), menos = somarDeslocado(p, k, -h);
                g[k] = 2 * S0 * ((mais - menos) / 0.002);
                norma = norma + g[k] * g[k];
            }
            norma = std::sqrt(norma);
            if (norma == 0) return;
            for (double& componente : g) componente = componente / norma;
            double lambda = 1, Sa = somarAoLongo(p, lambda, g);
            while (Sa >= S0) {
                lambda = lambda / 2;
                Sa = somarAoLongo(p, lambda, g);
                if (lambda < tolerância_ / 2) return;
            }
            const double mi = lambda / 2, Sb = somarAoLongo(p, mi, g);
            const double c1 = (Sb - S0) / mi, c2 = (Sa - Sb) / (lambda - mi), c3 = (c2 - c1) / lambda;
            const double tau = 0.5 * (mi - c1 / c3);
            const double St = somarAoLongo(p, tau, g);
            p = combinar(1, p, -(Sa > St ? tau : lambda), g);
            const double soma = somar(p);
            contar(soma);
            guardar(soma, p);
        }
    }

    void newton() {
        auto p = linha1_;
        double fator = 2;
        for (int k = 1; k <= 10; ++k) {
            const double S0 = somar(p);
            Matriz6 H;
            Vetor6 b;
            for (std::size_t i = 0; i < 6; ++i) {
                const double mais = somarDeslocado(p, i, h), menos = somarDeslocado(p, i, -h);
                H[i][i] = (mais - 2 * S0 + menos) / 1e-6;
                for (std::size_t j = i + 1; j < 6; ++j) {
                    const double maisMais = somarDeslocado(p, i, h, j, h);
                    const double maisMenos = somarDeslocado(p, i, h, j, -h);
                    const double menosMais = somarDeslocado(p, i, -h, j, h);
                    const double menosMenos = somarDeslocado(p, i, -h, j, -h);
                    H[i][j] = H[j][i] = ((maisMais - maisMenos) - (menosMais - menosMenos)) / (4 * 1e-6);
                }
            }
            // The text sums these once more for the gradient.
            for (std::size_t i = 0; i < 6; ++i)
                b[i] = -((somarDeslocado(p, i, h) - somarDeslocado(p, i, -h)) / 0.002);
            p = combinar(1, p, 1, resolverSimetrico(H, b));
            const double soma = somar(p);
            guardar(soma, p);
            if (soma > fator * melhor_) return;
            fator = fator - 0.1;
            contar(soma);
            if (!(soma > 1e-15)) return;
        }
    }

    const std::vector<Ensaio>& ensaios_;
    double tolerância_;
    std::size_t m_ = 0;
    double melhorD_ = 100000;
    Parametros linha1_{};
    double melhor_ = 0;
    AjusteTranscrito feito_;
};

} // namespace

AjusteTranscrito ajusteTranscrito(const std::vector<EnsaioDeMalha>& ensaios) {
    return Ajuste{ensaios, 1e-5}.ajustar();
}

AjusteTranscrito ajusteTranscrito(const std::vector<EnsaioMóvel>& ensaios) {
    return Ajuste{ensaios, 1e-7}.ajustar();
}

} // namespace varenta::bancada
