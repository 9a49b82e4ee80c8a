#include "aspersor/perfil_medido.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"

#include <algorithm>

namespace varenta {
namespace {

/// The integral of i r over r, from 0, of a line.
double primitiva(const Reta& reta, double r) { return reta.a * (r * r) / 2 + reta.b * (r * r * r) / 3; }

/// The polyline's value at x: the first segment counts whose ends, both included, hold it.
double valorEm(double x, std::span<const PontoMedido> pontos) {
    for (std::size_t k = 0; k + 1 < pontos.size(); ++k) {
        const auto& [r1, i1] = pontos[k];
        const auto& [r2, i2] = pontos[k + 1];
        if (x >= r1 && x <= r2) return i1 + dividir((i2 - i1) * (x - r1), r2 - r1);
    }
    return 0;
}

} // namespace

Reta retaPor(const PontoMedido& p1, const PontoMedido& p2) {
    const double b = dividir(p2.i - p1.i, p2.r - p1.r);
    return {p1.i - b * p1.r, b};
}

double leituraDeUmMetroPorHora() { return 1000; }

double leituraDeUmMetroPorHora(double minutos) { return (minutos / 60) * 1000; }

double leituraDeUmMetroPorHora(double minutos, double diâmetro) {
    const double A = piDoEnsaioRadial.pi * (diâmetro * diâmetro) / 4;
    return A * ((minutos / 60) * 100);
}

PerfilFechado fecharPerfil(std::span<const PontoMedido> leituras) {
    const auto n = leituras.size();
    const auto& primeira = elemento(leituras, 0);
    const auto& segunda = elemento(leituras, 1);
    const double imax = std::ranges::max(leituras, {}, &PontoMedido::i).i;
    double centro = retaPor(primeira, segunda).a;
    if (centro <= 0)
        centro = 2 * primeira.i;
    else if (centro > 2 * imax)
        centro = imax;

    const auto& penúltima = leituras[n - 2];
    const auto& última = leituras[n - 1];
    const auto [a, b] = retaPor(penúltima, última);
    const double limite = 0.25 * (última.r - penúltima.r) + última.r;
    const double R = std::min(dividir(-a, b), limite);

    PerfilFechado perfil{{{0, centro}}, R};
    perfil.pontos.insert(perfil.pontos.end(), leituras.begin(), leituras.end());
    perfil.pontos.push_back({R, 0});
    return perfil;
}

double volumeSobOPerfil(std::span<const PontoMedido> pontos, const LiteraisDePi& pi) {
    double soma = 0;
    for (std::size_t k = 0; k + 1 < pontos.size(); ++k) {
        const auto reta = retaPor(pontos[k], pontos[k + 1]);
        soma += pi.doisPi * (primitiva(reta, pontos[k + 1].r) - primitiva(reta, pontos[k].r));
    }
    return finito(soma);
}

PerfilMedido perfilMedido(std::span<const PontoMedido> pontos, double R, double volume, double Q,
                          const LiteraisDePi& pi) {
    std::vector<PontoMedido> relativos;
    for (const auto& [r, i] : pontos)
        relativos.push_back({dividir(r, R), dividir(pi.pi * i * (R * R), volume)});

    PerfilMedido perfil{R, Q, dividir(Q * 1000, pi.pi * (R * R)), distanciasRelativasAcumuladas(), {}};
    perfil.razões.front() = elemento(relativos, 0).i;
    for (std::size_t k = 1; k + 1 < pontosDoPerfil; ++k)
        perfil.razões[k] = valorEm(perfil.distâncias[k], relativos);
    perfil.razões.back() = 0;
    return perfil;
}

bool vazãoDiverge(double estimada, double aplicada) {
    const double razao = dividir(estimada, aplicada);
    return razao > 1.1 || razao < 0.9;
}

} // namespace varenta
