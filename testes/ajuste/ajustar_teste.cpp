#include "ajuste/ajustar.h"

#include "ajuste/busca.h"
#include "ajuste/ensaio.h"
#include "ajuste/ler_ensaio.h"
#include "ajuste/tela_de_ajuste.h"
#include "apoio/ajuste_feito_a_mao.h"

#include <cmath>
#include <string>

namespace varenta::teste {
namespace {

/// Ends a search from within its objective.
struct Parada {};

/// How much the parabola's end of the first step of the descent changes the sum, for the test 1.
template <class Ensaio>
double primeiraMudança(Ensaio (*ler)(int, const AspersorDoAjuste&)) {
    const auto aspersor = lerAspersor(telaDeAjuste(Aspersor::outro));
    std::vector<Ensaio> ensaios{ler(1, aspersor)};
    igualarÀVazão(ensaios[0], aspersor.Q);
    ContagemDoModelo contagem;
    const auto objetivo = objetivoDosEnsaios(ensaios, contagem);

    // The descent asks for the 12 neighbours of where it stands, then for single points, the last of them the
    // end of the parabola, then for 12 again.
    std::vector<Parametros> vizinhos;
    double última = 0;
    const auto vigiado = [&](std::span<const Parametros> pontos) {
        if (pontos.size() == 12 && !vizinhos.empty()) throw Parada{};
        if (pontos.size() == 12) vizinhos.assign(pontos.begin(), pontos.end());
        auto valores = objetivo(pontos);
        última = valores[0].soma;
        return valores;
    };
    try {
        buscarParametros(vigiado, 1e-12, {[](double) {}, [](double) {}});
    } catch (const Parada&) {
    }
    auto início = vizinhos.at(0);
    início[0] -= 0.001;
    return std::fabs(última - objetivo({&início, 1})[0].soma);
}

/// The bar after the first step of the descent, that is where it first stands beyond 25.
double barraDepoisDoPrimeiroPasso() {
    for (const auto& passo : progressos)
        if (passo.valor > 25) return passo.valor;
    return 0;
}

/// Lets the sprinkler water `fator` times as much. The readings follow its flow.
void multiplicarÁgua(double fator) {
    const auto multiplicar = [fator](Rotulo& rótulo) {
        rótulo.texto = paraTexto(fator * lerPrefixo(rótulo.texto));
    };
    multiplicar(form_AjvenOu->Label17);
    for (std::size_t k = 1; k <= 22; ++k) multiplicar(form_AjvenOu->lblIntensidade[k]);
}

/// With less and less water the sums shrink by its square and the search takes the same way: a first step
/// that changes the sum by as much as the tolerance sets the bar to 35.5 just below it, and just above it
/// doesn't.
template <class Ensaio>
void esperarTolerância(double tolerância, Ensaio (*ler)(int, const AspersorDoAjuste&), const char* ajustar) {
    for (const auto& [parte, barra] : {std::pair{0.995, 35.5}, {1.005, 25.5}}) {
        multiplicarÁgua(std::sqrt(parte * tolerância / primeiraMudança(ler)));
        ASSERT_NEAR(primeiraMudança(ler) / tolerância, parte, 0.001);
        progressos.clear();
        atos::clicar(alvo(form_AjvenOu, ajustar));
        EXPECT_EQ(barraDepoisDoPrimeiroPasso(), barra) << parte;
    }
}

TEST(Ajuste, ODaMalhaTemATolerânciaDe1e5) {
    abrirComUmaMalhaQueSeAjusta();
    esperarTolerância(1e-5, lerEnsaioDeMalha, "Command5");
}

TEST(Ajuste, ODoAutopropelidoTemATolerânciaDe1e7) {
    abrirFormAjvenOuComUmCone(Método::autopropelido);
    auto& f = *form_MiE1.operator->();
    f.Combo1.texto = "1";
    f.Combo3.texto = "4";
    f.Combo4.texto = "6.0";
    f.Combo6.texto = "360";
    f.Text1.texto = "60";
    MIErro_plan(1);
    definirValor(f.HScroll2, 20);
    definirValor(f.HScroll1, 90);
    preencher(f, {"1", "3", "6", "7", "5", "4", "1", "0"});
    esperarTolerância(1e-7, lerEnsaioMóvel, "Command17");
}

} // namespace
} // namespace varenta::teste
