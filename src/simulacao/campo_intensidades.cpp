#include "simulacao/campo_intensidades.h"

#include "comum/erro_execucao.h"
#include "comum/limites.h"
#include "comum/numeros.h"
#include "comum/plataforma.h"
#include "simulacao/lote.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <vector>

namespace varenta {
namespace {

/// Points that go into one batch: many, so that making it ready costs nothing, and few enough for the memory.
constexpr std::size_t pontosDoLote = 4096;

CampoDeIntensidades calcularCampo(const DadosDaSimulação& dados, std::size_t lado) {
    const Lote lote{dados.condições};
    const auto& senos = lote.senos();
    CampoDeIntensidades campo{Matriz{lado, lado}, dados.S, {}};
    std::vector<double> y(lado), X, Y;
    for (std::size_t i = 0; i < lado; ++i) y[i] = campo.y(i);
    const std::size_t porLote = std::max<std::size_t>(1, pontosDoLote / lado);
    for (std::size_t primeira = 0; primeira < lado; primeira += porLote) {
        plataforma::respirar();
        const std::size_t quantas = std::min(porLote, lado - primeira);
        X.clear();
        Y.clear();
        for (std::size_t j = primeira; j < primeira + quantas; ++j) {
            const double x = campo.x(j);
            for (std::size_t i = 0; i < lado; ++i) {
                X.push_back(x * senos.cosseno - y[i] * senos.seno);
                Y.push_back(y[i] * senos.cosseno + x * senos.seno);
            }
        }
        lote.avaliar(X, Y, campo.intensidades.linhas(primeira, quantas), campo.contagem);
    }
    return campo;
}

/// All that a field is made from, bit by bit.
struct Chave {
    std::array<std::uint64_t, 16> números;
    std::array<std::uint64_t, pontosDoPerfil> intensidades;

    bool operator==(const Chave&) const = default;
};

Chave chaveDo(const DadosDaSimulação& dados, std::size_t lado) {
    const auto& c = dados.condições;
    const std::array<double, 16> números = {
        c.R,          c.A,          c.B,           c.C,
        c.D,          c.E,          c.F,           c.W,
        c.anguloJato, c.rotVento,   c.anguloSecoI, c.anguloSecoII,
        c.rotacao,    c.anguloGiro, dados.S,       static_cast<double>(lado)};
    return {std::bit_cast<std::array<std::uint64_t, 16>>(números),
            std::bit_cast<std::array<std::uint64_t, pontosDoPerfil>>(c.intensidades)};
}

} // namespace

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

const CampoDeIntensidades& campoDeIntensidades(const DadosDaSimulação& dados, std::size_t lado) {
    struct Guardado {
        Chave chave;
        CampoDeIntensidades campo;
    };
    static std::optional<Guardado> último;
    const auto chave = chaveDo(dados, lado);
    if (!último || último->chave != chave) último = Guardado{chave, calcularCampo(dados, lado)};
    return último->campo;
}

} // namespace varenta
