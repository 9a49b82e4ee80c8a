#include "simulacao/mapa_intensidades.h"

#include "comum/ampulheta.h"
#include "comum/erro_execucao.h"
#include "comum/grafico.h"
#include "comum/numeros.h"
#include "simulacao/diagrama.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "simulacao/form_grafven.h"
#include "simulacao/legenda_mapa.h"

#include <algorithm>
#include <vector>

namespace varenta {
namespace {

/// The frame of the map, in twips.
constexpr double esquerda = 960, topo = 525, lado = 3300;
constexpr PontoDoDesenho centro{2610, 2175};
/// From cell to cell of the picture.
constexpr double h = 16.58291457;

double maiorIntensidade(const CampoDeIntensidades& campo) {
    double maior = 0;
    for (const double i : campo.intensidades.valores()) maior = std::max(maior, i);
    return maior;
}

/// Samples a row of `campo` for every column of it: row c of the result lies at the c-th sample.
Matriz amostrarAoLongo(const CampoDeIntensidades& campo, const std::vector<double>& posicao, double passo) {
    const auto& M = campo.intensidades;
    const std::size_t N = campo.lado();
    Matriz T{ladoDoMapa, N};
    for (std::size_t i = 0; i < N; ++i) {
        double u = posicao[0];
        std::size_t c = 0;
        for (std::size_t k = 0; k + 1 < N; ++k) do {
                exigirÍndice(c < ladoDoMapa);
                const double de = M.linha(k)[i], até = M.linha(k + 1)[i];
                T.linha(c)[i] = de + ((até - de) * (u - posicao[k])) / campo.S;
                u += passo;
                ++c;
            } while (u >= posicao[k] && u <= posicao[k + 1]);
    }
    return T;
}

Matriz amostrarAtravés(const CampoDeIntensidades& campo, const Matriz& T, double passo) {
    const std::size_t N = campo.lado();
    const auto posição = [&](std::size_t k) { return campo.limite() - static_cast<double>(k) * campo.S; };
    Matriz Z{ladoDoMapa, ladoDoMapa};
    for (std::size_t c = 0; c < ladoDoMapa; ++c) {
        double w = campo.limite();
        std::size_t r = 0;
        for (std::size_t k = 0; k + 1 < N; ++k) do {
                exigirÍndice(r < ladoDoMapa);
                const double de = T.linha(c)[k], até = T.linha(c)[k + 1];
                Z.linha(c)[r] = até + ((de - até) * (w - posição(k + 1))) / campo.S;
                w -= passo;
                ++r;
            } while (w <= posição(k) && w >= posição(k + 1));
    }
    return Z;
}

void desenharGradeEAspersor(Desenho& desenho) {
    constexpr double direita = esquerda + lado, base = topo + lado, passo = 550, braço = 90;
    desenho.larguraTraco(1);
    for (int k = 1; k <= 5; ++k)
        desenho.linha(esquerda + passo * k, topo, esquerda + passo * k, base, cores::verde);
    for (int k = 1; k <= 5; ++k)
        desenho.linha(esquerda, topo + passo * k, direita, topo + passo * k, cores::verde);
    desenho.larguraTraco(2);
    desenho.linha(esquerda, topo, direita, topo, cores::preto);
    desenho.linha(direita, topo, direita, base, cores::preto);
    desenho.linha(direita, base, esquerda, base, cores::preto);
    desenho.linha(esquerda, base, esquerda, topo, cores::preto);
    desenho.linha(centro.x - braço, centro.y, centro.x + braço, centro.y, cores::vermelho);
    desenho.linha(centro.x, centro.y - braço, centro.x, centro.y + braço, cores::vermelho);
}

void desenhar(const FonteDoAspersor& fonte) {
    const Ampulheta ampulheta{form7};
    const auto dados = lerSimulação(fonte);
    const auto& campo = campoDeIntensidades(dados, static_cast<std::size_t>(ladoDoCampo(dados)));
    auto& f = *form_grafVen.operator->();
    const double maior = maiorIntensidade(campo);
    f.Label7.texto = "Maior Precipitação: " + Format(maior, "0.000") + " mm/h";
    avisarDoModelo(f.lblAviso, campo.contagem);
    const auto Z = amostrarCampo(campo);

    f.Picture1.limpar();
    f.Picture2.limpar();
    const EscalaDeCores escala{maior};
    f.Picture1.mosaico(escala.mosaico(Z, esquerda - h / 2, topo - h / 2, h, h));
    f.Label15[2].texto = Format(escala.topo(), "0.0") + " mm/h";
    f.Label15[1].texto = Format(escala.topo() / 2, "0.0") + " mm/h";
    desenharLegenda(f.Picture2, escala);
    escreverEscala(f.Label3, -campo.limite(), 2 * campo.limite() / 6, "0.0");
    escreverEscala(f.Label4, -campo.limite(), 2 * campo.limite() / 6, "0.0");
    desenharGradeEAspersor(f.Picture1);
    f.Label8.texto = "Velocidade do Vento: " + form7->Label17.texto + " m/s";
    f.Label9.texto = "Direção do Vento: " + form7->Label2.texto + "º";
    const double direção = radianos(lerPrefixo(form7->Label2.texto));
    desenharSeta(f.Picture1, noRumo(centro, 1025, direção), 500, direção);
    form7.habilitada = false;
}

} // namespace

Matriz amostrarCampo(const CampoDeIntensidades& campo) {
    std::vector<double> posicao(campo.lado());
    for (std::size_t i = 0; i < posicao.size(); ++i) posicao[i] = campo.y(i);
    const double passo = (2 * campo.limite()) / static_cast<double>(ladoDoMapa - 1);
    return amostrarAtravés(campo, amostrarAoLongo(campo, posicao, passo), passo);
}

void desenharIntensidades() { desenhar(aspersorDoCatálogo()); }
void desenharIntensidadesOu() { desenhar(aspersorMedido()); }

} // namespace varenta
