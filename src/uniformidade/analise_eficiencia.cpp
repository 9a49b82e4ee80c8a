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

#include <algorithm>
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

double horasDeIrrigação() {
    return dividir(lerPrefixo(form5->txtMan.texto), lerPrefixo(form7->Text1.texto)) +
           lerPrefixo(form5->txtParada.texto) / 60 + lerPrefixo(form5->Text4.texto) / 60;
}

void escreverVolumes(double horas, double Vt, const VolumesDaFaixa& volumes) {
    constexpr auto padrão = "#0.00";
    auto& f = *form9.operator->();
    f.Label3.texto = "Volume Total Aplicado: " + Format(Vt, padrão) + " m³";
    f.Label4.texto = "Tempo de Irrigação: " + Format(horas, padrão) + " h";
    f.Label5.texto =
        "Erro Volumétrico: " + Format(dividir(100 * std::fabs(Vt - volumes.total), Vt), padrão) + " %";
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

/// An axis of required depths: it covers 0 and every depth shown, in steps of whole tenths.
struct EixoDeLâminas {
    double início, fim;

    double fração(double Ir) const { return dividir(Ir - início, fim - início); }
};

EixoDeLâminas escreverEixo(std::span<Rotulo> rótulos, std::span<const LâminaRequerida> mostradas) {
    double menor = 0, maior = 0;
    for (const auto& lâmina : mostradas) {
        menor = std::min(menor, lâmina.Ir);
        maior = std::max(maior, lâmina.Ir);
    }
    // Below 0 the first tick is a whole step too, so one division less is left for the depths.
    const auto divisões = static_cast<double>(rótulos.size()) - (menor < 0 ? 2 : 1);
    const double passo = (Int((maior - menor) / divisões * 10) + 1) / 10;
    const double início = passo * Int(menor / passo);
    return {início, escreverEscala(rótulos, início, passo, "0.0")};
}

void desenharÁreas(std::span<const LâminaRequerida> mostradas) {
    constexpr auto& malha = malhaDaÁrea;
    auto& desenho = form9->Picture1;
    const auto eixo = escreverEixo(form9->Label26, mostradas);
    prepararGráfico(desenho, malha);
    desenho.larguraTraco(2);
    const auto lugar = [&](double AD, double Ir) {
        return PontoDoDesenho{malha.esquerda + malha.largura() * AD,
                              malha.base - malha.altura() * eixo.fração(Ir)};
    };
    desenharCurva(desenho, cores::azul, mostradas.size(),
                  [&](std::size_t r) { return lugar(mostradas[r].ADest, mostradas[r].Ir); });
    for (const auto& lâmina : mostradas) marcarPonto(desenho, lugar(lâmina.ADobs / 100, lâmina.Ir));
}

void desenharEficiências(std::span<const LâminaRequerida> mostradas) {
    constexpr auto& malha = malhaDasEficiências;
    auto& desenho = form9->Picture2;
    const auto eixo = escreverEixo(form9->Label27, mostradas);
    prepararGráfico(desenho, malha);
    desenho.larguraTraco(2);
    const auto curva = [&](double LâminaRequerida::*eficiência, Cor cor) {
        const auto lugar = [&](const LâminaRequerida& lâmina) {
            return PontoDoDesenho{malha.esquerda + malha.largura() * eixo.fração(lâmina.Ir),
                                  malha.base - malha.altura() * (lâmina.*eficiência) / 100};
        };
        desenharCurva(desenho, cor, mostradas.size(), [&](std::size_t r) { return lugar(mostradas[r]); });
        for (const auto& lâmina : mostradas) marcarPonto(desenho, lugar(lâmina));
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
    const double s = espaçamentoDosColetores(), A = s * s;
    const auto lâminas = lerLâminas(form8->flexGrid_C);
    // Every point of the profile is one of `Form7`'s rows; half of them lie on each side of the lane.
    const auto bandas = lerBandas((form7->flexA.linhas - 1) / 2, s, R);

    const auto volumes = somarVolumes(lâminas, A, bandas.início, bandas.fim);
    const double horas = horasDeIrrigação(), Vt = horas * lerPrefixo(fonte.vazão.texto);
    form9->faixaAnalisada = descriçãoDaFaixa();
    escreverVolumes(horas, Vt, volumes);
    const auto tabela =
        analisarFaixa(lâminas, A, bandas.início, bandas.fim, dividir(volumes.soma, volumes.células), Vt);
    const auto mostradas =
        std::span{tabela}.subspan(primeiraLâminaMostrada(tabela, lerPrefixo(form5->Label7.texto)));
    escreverTabela(mostradas);
    desenharÁreas(mostradas);
    desenharEficiências(mostradas);
    form9->Command1.habilitado = true;
    return true;
}

} // namespace

bool analisarEficiencia() { return analisar(aspersorDoCatálogo()); }
bool analisarEficienciaOu() { return analisar(aspersorMedido()); }

} // namespace varenta
