#include "uniformidade/faixa.h"

#include "comum/erro_execucao.h"
#include "comum/limites.h"
#include "comum/numeros.h"
#include "comum/reamostrar.h"
#include "simulacao/funcoes.h"

#include <algorithm>
#include <cstdint>

namespace varenta {
namespace {

/// The depths along the whole lane, row 1 at the strip's start.
Matriz campoDoCarro(const DadosDaFaixa& dados, const Matriz& intensidades, std::size_t P) {
    const std::size_t Nn = intensidades.linhas(), M = Nn + P;
    const double passo = dividir(dados.simulação.S, dados.simulação.V);
    Matriz campo{M, Nn};
    for (std::size_t p = 1; p <= P; ++p) {
        // The field is built from its end and then turned round, so the first position has the end's stop.
        const double w = p == 1 ? static_cast<double>(dados.Tpf) : p == P ? dados.Tpi : passo;
        for (std::size_t i = 0; i < Nn; ++i) {
            // Rows of the footprint run backward here and forward there.
            const auto de = intensidades.linha(Nn - 1 - i);
            const auto para = campo.linha(M - p - i);
            for (std::size_t k = 0; k < Nn; ++k) para[k] += w * de[k];
        }
    }
    return campo;
}

void sobreporFaixas(Faixa& faixa, const Matriz& campo, int n) {
    const auto N = static_cast<std::size_t>(faixa.N);
    const double W1 = (static_cast<double>(faixa.N) - 0.5) * faixa.s;
    faixa.lâminas = Matriz{campo.linhas(), static_cast<std::size_t>(std::max(n, 0))};
    for (std::size_t a = 0; a < campo.linhas(); ++a) {
        const auto linha = campo.linha(a);
        const std::vector<double> esquerda(linha.rend() - static_cast<std::ptrdiff_t>(N), linha.rend());
        double S = 0, c = 0;
        const auto soma = sobrepor(linha.subspan(N), esquerda, n, [&](double lâmina) {
            S += lâmina;
            c += 1;
        });
        std::ranges::copy(soma.total, faixa.lâminas.linha(a).begin());
        faixa.y.push_back(static_cast<double>(a) * faixa.s - W1);
        faixa.média.push_back(dividir(S, c));
    }
}

} // namespace

Faixa calcularFaixaIrrigada(const DadosDaFaixa& dados) {
    const double s = dados.simulação.S;
    const int Nn = paraInteiro(dividir(2 * (dados.W0 + 0.5 * s), s));
    const int n = posiçõesEntreCarreadores(dados.E, s);
    const auto P = static_cast<std::size_t>(paraInteiro(Int(dividir(dados.Cc, s))));

    const auto células = (static_cast<std::int64_t>(P) + Nn) * std::max(n, Nn);
    if (células > maisCélulas) throw ErroExecucao{memóriaInsuficiente};

    const auto& pegada = campoDeIntensidades(dados.simulação, static_cast<std::size_t>(Nn));
    Faixa faixa{Nn / 2, s, {}, {}, {}, pegada.contagem};
    sobreporFaixas(faixa, campoDoCarro(dados, pegada.intensidades, P), n);
    return faixa;
}

BandasDaFaixa bandasDaFaixa(int N, double s, double R, double Cc, double de, double até) {
    return {paraInteiro(indiceDistancia(N, de, s)), paraInteiro(indiceDistanciaPositiva(N, R, s)),
            paraInteiro(indiceDistancia(N, Cc - R, s)), paraInteiro(indiceDistanciaPositiva(N, até, s))};
}

Estatísticas estatísticasDaBanda(const Faixa& faixa, int b0, int b1) {
    std::vector<double> valores;
    for (int a = b0; a <= b1; ++a) {
        exigirÍndice(a >= 1 && static_cast<std::size_t>(a) <= faixa.lâminas.linhas());
        const auto linha = faixa.lâminas.linha(static_cast<std::size_t>(a) - 1);
        valores.insert(valores.end(), linha.begin(), linha.end());
    }
    return calcularEstatísticas(valores, menorQuarto(valores.size()));
}

Matriz ampliarFaixa(const Matriz& lâminas) {
    return reamostrar(lâminas, 1, linhasDoMapaDaFaixa, colunasDoMapaDaFaixa);
}

} // namespace varenta
