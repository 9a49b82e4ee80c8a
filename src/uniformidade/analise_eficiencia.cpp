#include "uniformidade/analise_eficiencia.h"

#include "comum/ampulheta.h"
#include "comum/erro_execucao.h"
#include "comum/grafico.h"
#include "comum/numeros.h"
#include "comum/plataforma.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "uniformidade/eficiencia.h"
#include "uniformidade/entradas_form5.h"
#include "uniformidade/form5.h"
#include "uniformidade/form8.h"
#include "uniformidade/form9.h"
#include "uniformidade/graficos_form9.h"

#include <cmath>
#include <span>

namespace varenta {
namespace {

/// The depths as `Form8` shows them.
Matriz lerLâminas(const Grade& grade) {
    Matriz lâminas{static_cast<std::size_t>(grade.linhas) - 1, static_cast<std::size_t>(grade.colunas) - 1};
    for (int a = 1; a < grade.linhas; ++a)
        for (int P = 1; P < grade.colunas; ++P)
            lâminas.linha(static_cast<std::size_t>(a) - 1)[static_cast<std::size_t>(P) - 1] =
                lerPrefixo(grade.célula(a, P));
    return lâminas;
}

/// The volume applied, m³; `horas` is the time of the whole irrigation.
double volumeAplicado(double horas, const FonteDoAspersor& fonte) {
    return horas * lerPrefixo(fonte.vazão.texto);
}

double horasDeIrrigação() {
    return dividir(lerPrefixo(form5->txtMan.texto), lerPrefixo(form7->Text1.texto)) +
           lerPrefixo(form5->txtParada.texto) / 60 + lerPrefixo(form5->Text4.texto) / 60;
}

void escreverVolumes(double horas, double Vt, const VolumesDaFaixa& volumes) {
    constexpr auto padrão = "#0.00";
    auto& f = *form9.operator->();
    const auto erro = dividir(100 * std::fabs(Vt - volumes.total), Vt);
    f.Label3.texto = "Volume Total Aplicado: " + Format(Vt, padrão) + " m³";
    f.Label4.texto = "Tempo de Irrigação: " + Format(horas, padrão) + " h";
    f.Label5.texto = "Erro Volumétrico: " + Format(erro, padrão) + " %";
    f.Label6.texto = "Volume Perdido nas Extremidades: " + Format(volumes.perdido, padrão) + " m³";
}

void escreverTabela(std::span<const LâminaRequerida> mostradas) {
    auto& grade = form9->flexA;
    grade.dimensionar(static_cast<int>(mostradas.size()) + 1, 7);
    grade.formato(
        "^  No   |^ Lâmina (mm) |^ Área Ad. Irrigada (%) |^ Ef. Aplicação (%) |^ Ef. Armazenamento (%) "
        "|^ Vol. Excesso (m³) |^ Vol. Déficit (m³)");
    int linha = 0;
    for (const auto& lâmina : mostradas) {
        ++linha;
        grade.escrever(linha, 0, std::to_string(linha));
        int coluna = 0;
        for (const double valor : {lâmina.Ir, lâmina.ADobs, lâmina.aplicação, lâmina.armazenamento,
                                   lâmina.excesso, lâmina.déficit})
            grade.escrever(linha, ++coluna, Format(valor, "#0.00"));
    }
}

/// A tick step of whole tenths with which `divisões` of them reach past `maior`.
double passoAté(double maior, int divisões) { return (Int(maior / divisões * 10) + 1) / 10; }

void desenharPontos(Desenho& desenho, std::span<const LâminaRequerida> mostradas,
                    const std::function<PontoDoDesenho(const LâminaRequerida&)>& lugar) {
    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    for (const auto& lâmina : mostradas) {
        const auto [x, y] = lugar(lâmina);
        desenho.arco(x, y, 2, cores::vermelho);
    }
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);
}

void desenharÁreas(std::span<const LâminaRequerida> mostradas, double maior) {
    constexpr auto& malha = malhaDaÁrea;
    auto& desenho = form9->Picture1;
    const double topo = escreverEscala(form9->Label26, 0, passoAté(maior, 6), "0.0");
    prepararGráfico(desenho, malha);
    desenho.larguraTraco(2);
    const auto lugar = [&](double AD, double Ir) {
        return PontoDoDesenho{malha.esquerda + malha.largura() * AD, malha.base - malha.altura() * Ir / topo};
    };
    desenharCurva(desenho, cores::azul, mostradas.size(),
                  [&](std::size_t r) { return lugar(mostradas[r].ADest, mostradas[r].Ir); });
    desenharPontos(desenho, mostradas,
                   [&](const LâminaRequerida& lâmina) { return lugar(lâmina.ADobs / 100, lâmina.Ir); });
}

void desenharEficiências(std::span<const LâminaRequerida> mostradas, double maior) {
    constexpr auto& malha = malhaDasEficiências;
    auto& desenho = form9->Picture2;
    const double direita = escreverEscala(form9->Label27, 0, passoAté(maior, 10), "0.0");
    prepararGráfico(desenho, malha);
    desenho.larguraTraco(2);
    const auto curva = [&](double LâminaRequerida::*eficiência, Cor cor) {
        const auto lugar = [&](const LâminaRequerida& lâmina) {
            return PontoDoDesenho{malha.esquerda + malha.largura() * lâmina.Ir / direita,
                                  malha.base - malha.altura() * (lâmina.*eficiência) / 100};
        };
        desenharCurva(desenho, cor, mostradas.size(), [&](std::size_t r) { return lugar(mostradas[r]); });
        desenharPontos(desenho, mostradas, lugar);
    };
    curva(&LâminaRequerida::aplicação, cores::azul);
    curva(&LâminaRequerida::armazenamento, cores::verde);
}

bool analisar(const FonteDoAspersor& fonte) {
    const double R = lerPrefixo(fonte.raio.texto);
    if (const char* recusa = recusaDosComprimentos(R)) {
        plataforma::mensagem(recusa);
        return false;
    }
    const Ampulheta ampulheta{form5};
    const double s = simples(lerPrefixo(form7->Combo2.texto)), A = s * s;
    const auto lâminas = lerLâminas(form8->flexGrid_C);
    // Every point of the profile is one of `Form7`'s rows; half of them lie on each side of the lane.
    const auto bandas = lerBandas((form7->flexA.linhas - 1) / 2, s, R);

    const auto volumes = somarVolumes(lâminas, A, bandas.início, bandas.fim);
    const double horas = horasDeIrrigação(), Vt = volumeAplicado(horas, fonte);
    escreverVolumes(horas, Vt, volumes);
    const auto tabela =
        analisarFaixa(lâminas, A, bandas.início, bandas.fim, dividir(volumes.soma, volumes.células), Vt);
    const auto mostradas =
        std::span{tabela}.subspan(primeiraLâminaMostrada(tabela, lerPrefixo(form5->Label7.texto)));
    escreverTabela(mostradas);
    const double maior = mostradas.empty() ? 0 : mostradas.front().Ir;
    desenharÁreas(mostradas, maior);
    desenharEficiências(mostradas, maior);
    return true;
}

} // namespace

bool analisarEficiencia() { return analisar(aspersorDoCatálogo()); }
bool analisarEficienciaOu() { return analisar(aspersorMedido()); }

} // namespace varenta
