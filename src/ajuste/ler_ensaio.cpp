#include "ajuste/ler_ensaio.h"

#include "ajuste/form_e.h"
#include "ajuste/form_mie.h"
#include "ajuste/verificacoes_ensaio.h"
#include "comum/numeros.h"

#include <utility>

namespace varenta {
namespace {

VentoDoEnsaio lerVento(const ControlesDeEnsaio& f) {
    return {.W = lerPrefixo(f.Label17.texto), .direção = lerPrefixo(f.Label2.texto)};
}

double leitura(const Grade& grade, int linha, int coluna) {
    return lerPrefixo(leituraDaCélula(grade, linha, coluna));
}

/// What turns a reading into mm/h, from the time of the test in minutes and the collector's diameter in cm.
double fatorDaMalha(const RegistroFormE& f) {
    const double T = lerPrefixo(f.Text6.texto);
    if (f.Option4.marcada) return dividir(60, T);
    if (f.Option3.marcada) return dividir(600, T * áreaDoColetor(lerPrefixo(f.Text7.texto)));
    return 1;
}

/// What turns a reading into mm.
double fatorMóvel(const RegistroFormMiE& f) {
    return f.Option3.marcada ? dividir(10, áreaDoColetor(lerPrefixo(f.Text7.texto))) : 1;
}

EnsaioDeMalha malhaComo(const RegistroFormE& f, const AspersorDoAjuste& aspersor,
                        std::vector<double> intensidades) {
    return ensaioDeMalha(aspersor, lerVento(f), inteiroDaLista(f.Combo2), lerPrefixo(f.Combo1.texto),
                         std::move(intensidades));
}

EnsaioMóvel móvelComo(const RegistroFormMiE& f, const AspersorDoAjuste& aspersor,
                      std::vector<double> lâminas) {
    return ensaioMóvel(aspersor, lerVento(f), 2 * inteiroDaLista(f.Combo3), lerPrefixo(f.Combo4.texto),
                       lerPrefixo(f.Text1.texto), lerPrefixo(f.Combo6.texto), std::move(lâminas));
}

} // namespace

EnsaioDeMalha lerEnsaioDeMalha(int n, const AspersorDoAjuste& aspersor) {
    const auto& f = *form_E(n).operator->();
    const int N = inteiroDaLista(f.Combo2);
    const double fator = fatorDaMalha(f);
    std::vector<double> intensidades;
    for (int i = 1; i <= N; ++i)
        for (int j = 1; j <= N; ++j) intensidades.push_back(leitura(f.flex_A, i, j) * fator);
    return malhaComo(f, aspersor, std::move(intensidades));
}

EnsaioDeMalha lerMalhaSemLeituras(int n, const AspersorDoAjuste& aspersor) {
    return malhaComo(*form_E(n).operator->(), aspersor, {});
}

EnsaioMóvel lerEnsaioMóvel(int n, const AspersorDoAjuste& aspersor) {
    const auto& f = *form_MiE(n).operator->();
    const int N = 2 * inteiroDaLista(f.Combo3), L = inteiroDaLista(f.Combo1);
    const double fator = fatorMóvel(f);
    std::vector<double> lâminas;
    for (int j = 1; j <= N; ++j) {
        double soma = 0;
        for (int k = 1; k <= L; ++k) soma += leitura(f.flex_A, j, k);
        lâminas.push_back(dividir(soma, L) * fator);
    }
    return móvelComo(f, aspersor, std::move(lâminas));
}

EnsaioMóvel lerMóvelSemLeituras(int n, const AspersorDoAjuste& aspersor) {
    return móvelComo(*form_MiE(n).operator->(), aspersor, {});
}

} // namespace varenta
