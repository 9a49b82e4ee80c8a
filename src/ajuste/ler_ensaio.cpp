#include "ajuste/ler_ensaio.h"

#include "ajuste/form_e.h"
#include "ajuste/form_mie.h"
#include "ajuste/verificacoes_ensaio.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"

#include <string>
#include <utility>

namespace varenta {
namespace {

VentoDoEnsaio lerVento(const ControlesDeEnsaio& f) {
    return {.W = lerPrefixo(f.Label17.texto), .direção = lerPrefixo(f.Label2.texto)};
}

double leitura(const Grade& grade, int linha, int coluna) {
    return lerPrefixo(leituraDaCélula(grade, linha, coluna));
}

/// Runs `operação`; its run-time errors say `explicação` of the test `n`.
template <class Operação>
double explicarNoEnsaio(const char* explicação, int n, Operação&& operação) {
    return explicarErro((explicação + std::to_string(n)).c_str(), operação);
}

/// What turns a reading into mm/h, from the time of the test in minutes and the collector's diameter in cm.
double fatorDaMalha(const RegistroFormE& f, int n) {
    const double T = lerPrefixo(f.Text6.texto);
    if (f.Option4.marcada)
        return explicarNoEnsaio("confira o tempo do Ensaio ", n, [&] { return dividir(60, T); });
    if (f.Option3.marcada)
        return explicarNoEnsaio("confira o tempo e o diâmetro do coletor do Ensaio ", n,
                                [&] { return dividir(600, T * áreaDoColetor(lerPrefixo(f.Text7.texto))); });
    return 1;
}

/// What turns a reading into mm.
double fatorMóvel(const RegistroFormMiE& f, int n) {
    if (!f.Option3.marcada) return 1;
    return explicarNoEnsaio("confira o diâmetro do coletor do Ensaio ", n,
                            [&] { return dividir(10, áreaDoColetor(lerPrefixo(f.Text7.texto))); });
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
    const double fator = fatorDaMalha(f, n);
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
    const double fator = fatorMóvel(f, n);
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

double igualarEnsaioÀVazão(int n, EnsaioDoAjuste& ensaio, float Q) {
    const auto explicação = "as leituras do Ensaio " + std::to_string(n) +
                            " não somam água que se possa igualar à vazão do aspersor";
    return explicarErro(explicação.c_str(), [&] { return igualarÀVazão(ensaio, Q); });
}

} // namespace varenta
