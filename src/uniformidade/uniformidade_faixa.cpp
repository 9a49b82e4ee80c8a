#include "uniformidade/uniformidade_faixa.h"

#include "comum/ampulheta.h"
#include "comum/grafico.h"
#include "comum/numeros.h"
#include "comum/plataforma.h"
#include "simulacao/form7.h"
#include "uniformidade/entradas_form5.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/form8.h"
#include "uniformidade/grafico_form5.h"

#include <algorithm>
#include <cmath>

namespace varenta {
namespace {

/// The time of a stop in hours.
double horasParadas(const ExtremoDaFaixa& extremo) {
    return extremo.parada.marcada ? lerPrefixo(extremo.tempo.texto) / 60 : 0;
}

/// Fills `Form8`'s table: positions between the lanes across, positions along the lane downward.
void escreverTabela(Grade& grade, const Faixa& faixa) {
    const int M = static_cast<int>(faixa.lâminas.linhas()), n = static_cast<int>(faixa.lâminas.colunas());
    grade.dimensionar(1, 1); // empties it
    grade.dimensionar(M + 1, n + 1);
    for (int P = 1; P <= n; ++P) grade.escrever(0, P, paraTexto((P - 0.5) * faixa.s) + "  m");
    for (int a = 1; a <= M; ++a) {
        const auto linha = static_cast<std::size_t>(a) - 1;
        grade.escrever(a, 0, paraTexto(faixa.y[linha]) + "  m");
        for (int P = 1; P <= n; ++P)
            grade.escrever(a, P,
                           Format(faixa.lâminas.linha(linha)[static_cast<std::size_t>(P) - 1], "0.000"));
    }
}

Estatísticas escreverBanda(const Faixa& faixa, int b0, int b1, Rotulo& CUC, Rotulo& média, Rotulo& UD) {
    const auto valores = estatísticasDaBanda(faixa, b0, b1);
    média.texto = Format(valores.media, "##0.00");
    UD.texto = Format(valores.UD, "##0.00");
    CUC.texto = Format(valores.CUC, "##0.00");
    return valores;
}

void escreverCentro() {
    form5->Label5.texto = form4->Label16.texto;
    form5->Label7.texto = form4->Label17.texto;
    form5->Label66.texto = form4->Label33.texto;
}

void escreverBandas(const Faixa& faixa, const BandasDaFaixa& bandas) {
    auto& f = *form5.operator->();
    escreverBanda(faixa, bandas.início, bandas.fimDoInício, f.Label2, f.Label1, f.Label58);
    escreverBanda(faixa, bandas.inícioDoFim, bandas.fim, f.Label3, f.Label4, f.Label60);
    escreverCentro();
    escreverBanda(faixa, bandas.início, bandas.fim, f.Label6, f.Label8, f.Label63);
    form8->Label2.texto = "Imédio = " + f.Label8.texto + " mm";
    form8->Label3.texto = "UD = " + f.Label63.texto + " %";
    form8->Label1.texto = "CUC = " + f.Label6.texto + " %";
    const auto posição = [&](int linha) { return paraTexto((linha - faixa.N - 0.5) * faixa.s); };
    form8->Label4.texto = "Início da Faixa Irrigada: " + posição(bandas.início) + " m";
    form8->Label5.texto = "Final da Faixa Irrigada: " + posição(bandas.fim) + " m";
}

/// The mean curve at a position along the strip, between the two rows that enclose it; nothing beyond them.
std::optional<double> médiaEm(const Faixa& faixa, double posição) {
    for (std::size_t a = 0; a + 1 < faixa.y.size(); ++a)
        if (faixa.y[a] <= posição && posição <= faixa.y[a + 1])
            return faixa.média[a] + (faixa.média[a + 1] - faixa.média[a]) * (posição - faixa.y[a]) /
                                        (faixa.y[a + 1] - faixa.y[a]);
    return std::nullopt;
}

void desenharGráfico(const Faixa& faixa) {
    constexpr auto& malha = malhaDaFaixa;
    auto& f = *form5.operator->();
    const double maior = *std::ranges::max_element(faixa.média);
    const double ty = lerPrefixo(Format(maior / 6, "0.0")), topo = 6 * ty;
    escreverEscala(f.Label34, 0, ty, "#0.0");
    f.Label34[0].texto = Format(0, "0.0");
    const double início = faixa.y.front();
    const double tx = lerPrefixo(Format((std::fabs(início) + faixa.y.back()) / 8, "#0")) + 1;
    f.Label33[0].texto = Format(início, "#0");
    const double extensão =
        std::fabs(início) + escreverEscala(f.Label33, lerPrefixo(f.Label33[0].texto), tx, "#0");

    prepararGráficoDaFaixa();
    auto& desenho = f.Picture2;
    desenho.larguraTraco(2);
    const auto lugar = [&](double y, double média) {
        return PontoDoDesenho{malha.esquerda + dividir(malha.largura() * (y - início), extensão),
                              std::fabs(malha.base - dividir(malha.altura() * média, topo))};
    };
    desenharCurva(desenho, cores::azul, faixa.y.size(),
                  [&](std::size_t a) { return lugar(faixa.y[a], faixa.média[a]); });

    const auto marcarEm = [&](double posição) {
        const auto média = médiaEm(faixa, posição);
        if (!média) return;
        const auto ponto = lugar(posição, *média);
        desenho.linha(ponto.x, malha.base, ponto.x, ponto.y, cores::vermelho);
    };
    const auto começo = extremoInicial(), fim = extremoFinal();
    if (modoDo(começo) != ModoDoExtremo::igualAoRaio) marcarEm(-lerPrefixo(começo.comprimento.texto));
    if (modoDo(fim) != ModoDoExtremo::igualAoRaio)
        marcarEm(lerPrefixo(f.txtMan.texto) + lerPrefixo(fim.comprimento.texto));
}

bool calcular(const FonteDoAspersor& fonte) {
    const auto dados = lerFaixa(fonte);
    if (!dados) return false;
    const Ampulheta ampulheta{form5};
    const auto faixa = calcularFaixaIrrigada(*dados);
    escreverTabela(form8->flexGrid_C, faixa);
    avisarDoModelo(form5->lblAviso, faixa.contagem);
    escreverBandas(faixa, lerBandas(faixa.N, faixa.s, dados->simulação.condições.R));
    desenharGráfico(faixa);
    form8->Command1.habilitado = true;
    return true;
}

} // namespace

std::optional<DadosDaFaixa> lerFaixa(const FonteDoAspersor& fonte) {
    const auto simulação = lerSimulação(fonte);
    if (const char* recusa = recusaDosComprimentos(simulação.condições.R)) {
        plataforma::mensagem(recusa);
        return std::nullopt;
    }
    return DadosDaFaixa{simulação,
                        lerPrefixo(form5->txtMan.texto),
                        lerPrefixo(form4->cmbEspaçamento.texto),
                        std::fabs(lerPrefixo(form7->flexA.célula(1, 1))),
                        horasParadas(extremoInicial()),
                        simples(horasParadas(extremoFinal()))};
}

bool calcularFaixa() { return calcular(aspersorDoCatálogo()); }
bool calcularFaixaOu() { return calcular(aspersorMedido()); }

void prepararGráficoDaFaixa() { prepararGráfico(form5->Picture2, malhaDaFaixa); }

} // namespace varenta
