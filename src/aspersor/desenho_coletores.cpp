#include "aspersor/desenho_coletores.h"

#include <algorithm>

namespace varenta {

void desenharColetor(Desenho& desenho, double x, double y) {
    constexpr double raio = 3;
    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    desenho.arco(x, y, raio, cores::amarelo);
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);
    desenho.arco(x, y, raio, cores::preto);
}

void desenharLinhaDeColetores(Desenho& desenho, std::span<const double> distâncias) {
    constexpr double aspersor = 15, fim = 285, meio = 30;
    desenho.limpar();
    desenho.larguraTraco(1);
    desenho.linha(aspersor, meio, fim, meio, cores::preto);
    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    desenho.arco(aspersor, meio, 6, cores::azulClaro);
    const double maior = distâncias.empty() ? 0 : *std::ranges::max_element(distâncias);
    for (const double r : distâncias)
        if (r > 0) desenharColetor(desenho, aspersor + (fim - aspersor) * (r / maior), meio);
}

} // namespace varenta
