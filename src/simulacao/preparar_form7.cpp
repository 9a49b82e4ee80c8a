#include "simulacao/preparar_form7.h"

#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "simulacao/form7.h"

#include <array>

namespace varenta {

double espaçamentoMaisPróximo(double raio) {
    constexpr std::array espaçamentos = {1.5, 2.0, 3.0, 6.0};
    const double alvo = raio * 0.05;
    const auto distância = [&](double s) { return (alvo - s) * (alvo - s); };
    double melhor = espaçamentos[0];
    for (const double s : espaçamentos)
        if (distância(melhor) >= distância(s)) melhor = s;
    return melhor;
}

void prepararCondições(std::string_view raioAlcance) {
    form7.carregar();
    form7->Combo2.itens = {"1.5", "2.0", "3.0", "6.0"};
    definirTexto(form7->Combo2, Format(espaçamentoMaisPróximo(lerPrefixo(raioAlcance)), "0.0"));
    definirValor(form7->HScroll1, 0);
    definirValor(form7->HScroll2, 0);
}

} // namespace varenta
