#include "aspersor/grafico_perfil_radial.h"

#include "comum/numeros.h"

namespace varenta {

void desenharPerfilRadial(const GráficoDoPerfilRadial& gráfico, const CurvaRelativa& relativa) {
    const auto curva = amostrarCurva(relativa.x, relativa.y);
    const double imax = curva.maior * relativa.Imedia;

    constexpr auto padrão = "#0.0";
    const double passoR = lerPrefixo(Format(relativa.alcanceMostrado / 9, padrão));
    const double escalaR = escreverEscala(gráfico.Label6, 0, passoR, padrão);
    const double passoI = lerPrefixo(Format(imax / gráfico.divisor, padrão));
    const double escalaI = escreverEscala(gráfico.Label7, 0, passoI, padrão);

    auto& desenho = gráfico.Picture1;
    const auto& malha = gráfico.malha;
    prepararGráfico(desenho, malha);
    desenho.larguraTraco(2);
    desenharCurva(desenho, cores::azul, curva.amostras.size(), [&](std::size_t n) {
        const auto& amostra = curva.amostras[n];
        const double x = malha.esquerda + dividir(malha.largura() * (amostra.x * relativa.R), escalaR);
        const double y = malha.base - dividir(malha.altura() * (amostra.y * relativa.Imedia), escalaI);
        return PontoDoDesenho{x, y};
    });
}

Ponteiro lerPerfilRadial(const MalhaDeGráfico& malha, const LeituraDoPerfilRadial& leitura, double x,
                         double y) {
    if (!malha.contém(x, y)) return Ponteiro::padrão;
    const double r = lerPrefixo(leitura.fimDeR.texto) * (x - malha.esquerda) / malha.largura();
    const double i = lerPrefixo(leitura.fimDeI.texto) * (malha.base - y) / malha.altura();
    leitura.Label15.texto = "r = " + Format(r, "0.000") + " m";
    leitura.Label16.texto = "i = " + Format(i, "0.000") + " mm/h";
    return Ponteiro::cruz;
}

} // namespace varenta
