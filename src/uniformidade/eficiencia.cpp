#include "uniformidade/eficiencia.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"

#include <algorithm>
#include <cmath>

namespace varenta {
namespace {

bool dentro(std::size_t linha, int a0, int a3) {
    const auto a = static_cast<int>(linha) + 1;
    return a0 <= a && a <= a3;
}

/// Calls `visita` with every depth of the rows a0 to a3.
template <class Visita>
void percorrerFaixa(const Matriz& lâminas, int a0, int a3, Visita&& visita) {
    for (std::size_t a = 0; a < lâminas.linhas(); ++a)
        if (dentro(a, a0, a3))
            for (const double d : lâminas.linha(a)) visita(d);
}

double potência(double base, double expoente) {
    if (base < 0) throw ErroExecucao{argumentoInválido};
    return std::pow(base, expoente);
}

/// How many means the depth is that the fraction `x` of the area gets: an approximation of the normal
/// variate.
double proporçãoDaMédia(double CV, double x) {
    return 1 + dividir(CV, 0.1975) * (potência(x, 0.135) - potência(1 - x, 0.135));
}

void escreverCandidatas(TabelaDeEficiências& tabela, double média, double CV) {
    // The fractions fall by steps that are added up.
    double x = 0.99;
    for (auto& linha : tabela) {
        double L = proporçãoDaMédia(CV, x);
        if (L <= 0) L = proporçãoDaMédia(CV, x + 0.02 - 0.005);
        linha.Ir = finito(média * L);
        x += -0.02;
    }
}

void observar(LâminaRequerida& linha, double d, double A) {
    const double Ir = linha.Ir;
    linha.volumeÚtil += A * std::min(d, Ir) / 1000;
    if (d >= Ir) {
        linha.ADobs += A;
        linha.excesso += A * (d - Ir) / 1000;
    } else {
        linha.déficit += A * (Ir - d) / 1000;
    }
}

} // namespace

VolumesDaFaixa somarVolumes(const Matriz& lâminas, double A, int a0, int a3) {
    VolumesDaFaixa volumes;
    for (std::size_t a = 0; a < lâminas.linhas(); ++a)
        for (const double d : lâminas.linha(a)) {
            volumes.total += d / 1000 * A;
            if (dentro(a, a0, a3)) {
                volumes.soma += d;
                volumes.células += 1;
            } else {
                volumes.perdido += d / 1000 * A;
            }
        }
    return volumes;
}

double caudaNormal(double z) {
    const double t = dividir(1, 1 + 0.2316419 * z);
    const double densidade = (1 / std::sqrt(6.28318530717958)) * std::exp(-(z * z) / 2);
    const double t2 = t * t, t3 = t2 * t, t4 = t3 * t, t5 = t4 * t;
    const double p = densidade * (0.31938153 * t - 0.356563782 * t2 + 1.781477937 * t3 - 1.821255978 * t4 +
                                  1.330274429 * t5);
    return std::min(p >= 0 ? p : 1 - p, 1.0);
}

TabelaDeEficiências analisarFaixa(const Matriz& lâminas, double A, int a0, int a3, double média, double Vt) {
    double desvios = 0, células = 0;
    percorrerFaixa(lâminas, a0, a3, [&](double d) {
        desvios += (d - média) * (d - média);
        células += 1;
    });
    const double desvioPadrão = std::sqrt(dividir(desvios, células));

    TabelaDeEficiências tabela;
    escreverCandidatas(tabela, média, dividir(desvioPadrão, média));
    double área = 0;
    percorrerFaixa(lâminas, a0, a3, [&](double d) {
        for (auto& linha : tabela) observar(linha, d, A);
        área += A;
    });
    for (auto& linha : tabela) {
        linha.ADest = caudaNormal(dividir(linha.Ir - média, desvioPadrão));
        linha.ADobs = dividir(100 * linha.ADobs, área);
        linha.aplicação = dividir(100 * linha.volumeÚtil, Vt);
        linha.armazenamento = dividir(100 * linha.volumeÚtil, linha.Ir / 1000 * área);
    }
    return tabela;
}

std::size_t primeiraLâminaMostrada(const TabelaDeEficiências& tabela, double Ic) {
    for (std::size_t r = 0; r + 1 < tabela.size(); ++r)
        if (tabela[r].Ir >= Ic && Ic >= tabela[r + 1].Ir) return tabela[r].Ir == Ic ? r : r + 1;
    return Ic > tabela.front().Ir ? 0 : tabela.size();
}

} // namespace varenta
