#include "ajuste/ajustar.h"

#include "ajuste/andamento.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_migraf.h"
#include "ajuste/ler_ensaio.h"
#include "ajuste/resultados.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/plataforma.h"

#include <string>
#include <vector>

namespace varenta {
namespace {

/// "1.023", "1.023 e 0.987", "1.023, 0.987 e 1.100".
std::string listar(const std::vector<std::string>& textos) {
    std::string lista;
    for (std::size_t k = 0; k < textos.size(); ++k) {
        if (k > 0) lista += k + 1 < textos.size() ? ", " : " e ";
        lista += textos[k];
    }
    return lista;
}

void informarFatores(const std::vector<std::string>& fatores) {
    std::vector<std::string> números;
    for (std::size_t t = 1; t <= fatores.size(); ++t) números.push_back(std::to_string(t));
    plataforma::mensagem("Para que as precipitações do Ensaio " + listar(números) +
                         " coicidam com a vazão do aspersor, estes valores serão multiplicados" +
                         (fatores.size() > 1 ? ", respectivamente," : "") + " por: " + listar(fatores) +
                         " !");
}

/// The tests in use, made up to the sprinkler's flow.
template <class Ensaio>
std::vector<Ensaio> lerEnsaios(const TelaDeAjuste& tela, const AspersorDoAjuste& aspersor,
                               Ensaio (*ler)(int, const AspersorDoAjuste&)) {
    std::vector<Ensaio> ensaios;
    std::vector<std::string> fatores;
    for (int n = 1; n <= ensaiosEmUso(tela.controles); ++n) {
        ensaios.push_back(ler(n, aspersor));
        fatores.push_back(Format(igualarEnsaioÀVazão(n, ensaios.back(), aspersor.Q), "0.000"));
    }
    informarFatores(fatores);
    return ensaios;
}

/// Searches, and tells in plain words what a run-time error of the search means.
template <class Ensaio>
ResultadoDaBusca buscar(const std::vector<Ensaio>& ensaios, double tolerância, Andamento& andamento) {
    ContagemDoModelo contagem;
    std::size_t pontos = 0;
    for (const auto& ensaio : ensaios) pontos += ensaio.X.size();
    return explicarErro(
        "o ajuste não pôde continuar com estes ensaios. Em geral ajuda informar um vento acima de 0 m/s e "
        "coletores que alcancem além da área molhada, nenhum deles no lugar do aspersor.",
        [&] {
            return buscarParametros(andamento.vigiar(objetivoDosEnsaios(ensaios, contagem), pontos),
                                    tolerância, andamento.ouvinte());
        });
}

void escreverResultado(const TelaDeAjuste& tela, const ResultadoDaBusca& resultado, double R) {
    std::array<std::string, 6> textos;
    for (std::size_t k = 0; k < textos.size(); ++k) textos[k] = Format(dividir(resultado.p[k], R), "0.0000");
    esconderResultados();
    const auto rótulos = tela.controles.resultados();
    for (std::size_t k = 0; k < textos.size(); ++k) rótulos[k]->texto = textos[k];
    anotarAjuste(tela.aspersor);
    plataforma::mensagem("O melhor ajuste apresentou um desvio médio igual a " +
                         Format(resultado.desvio, "0.000") + " mm/h");
}

/// A whole fit. `rótuloDoDesvio` is the caption for the mean deviation on the test's result screen.
template <class Ensaio>
void ajustar(const TelaDeAjuste& tela, Ensaio (*ler)(int, const AspersorDoAjuste&), double tolerância,
             const std::string& unidade, Rotulo& (*rótuloDoDesvio)(int)) {
    Andamento andamento{unidade};
    const auto aspersor = lerAspersor(tela);
    const auto ensaios = lerEnsaios(tela, aspersor, ler);
    const auto resultado = buscar(ensaios, tolerância, andamento);
    escreverResultado(tela, resultado, aspersor.R);
    for (int n = 1; n <= static_cast<int>(ensaios.size()); ++n)
        rótuloDoDesvio(n).texto = "Desvio Médio Geral: " + Format(resultado.desvio, "0.000") + unidade;
}

} // namespace

void ajustarParametrosMalha(const TelaDeAjuste& tela) {
    ajustar(
        tela, lerEnsaioDeMalha, 1e-5, " mm/h", +[](int n) -> Rotulo& { return form_graf(n)->Label16; });
}

void ajustarParametrosAutopropelido(const TelaDeAjuste& tela) {
    ajustar(
        tela, lerEnsaioMóvel, 1e-7, " mm", +[](int n) -> Rotulo& { return form_MIgraf(n)->Label16; });
}

int ensaiosEmUso(const ControlesDeAjuste& controles) {
    return controles.Option7.marcada ? 3 : controles.Option6.marcada ? 2 : 1;
}

} // namespace varenta
