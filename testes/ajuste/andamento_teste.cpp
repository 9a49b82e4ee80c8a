#include "ajuste/andamento.h"

#include "ajuste/form_ajcar.h"
#include "apoio/atalhos.h"
#include "apoio/plataforma_teste.h"

#include <gtest/gtest.h>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

class AndamentoDoAjuste : public testing::Test {
  protected:
    void SetUp() override { recomeçar(); }

    /// The sum of a point is its first parameter. Keeps how many points it is asked for at a time.
    Objetivo objetivo() {
        return [this](std::span<const Parametros> pontos) {
            pedidos.push_back(pontos.size());
            std::vector<Avaliação> valores;
            for (const auto& p : pontos) valores.push_back({p[0], 1});
            return valores;
        };
    }

    std::vector<std::size_t> pedidos;
};

TEST_F(AndamentoDoAjuste, MostraSeEnquantoDura) {
    {
        const Andamento andamento{" mm"};
        EXPECT_TRUE(form_AjCar.visivel);
        EXPECT_EQ(form_AjCar->lblEtapa.texto, "Preparação dos ensaios");
        EXPECT_EQ(form_AjCar->Label1.texto, "Desvio médio:");
    }
    EXPECT_FALSE(form_AjCar.carregada());
}

TEST_F(AndamentoDoAjuste, DáOsMesmosValoresEmPartesERespiraDepoisDeCada) {
    Andamento andamento{" mm"};
    std::vector<Parametros> pontos(7);
    for (std::size_t k = 0; k < pontos.size(); ++k) pontos[k][0] = static_cast<double>(k);
    // 20,000 points of the model at a time: three sets of parameters of 6,000 each.
    const auto valores = andamento.vigiar(objetivo(), 6000)(pontos);
    EXPECT_EQ(pedidos, (std::vector<std::size_t>{3, 3, 1}));
    EXPECT_EQ(respiros, 3);
    ASSERT_EQ(valores.size(), 7u);
    for (std::size_t k = 0; k < 7; ++k) EXPECT_EQ(valores[k].soma, static_cast<double>(k));

    pedidos.clear();
    andamento.vigiar(objetivo(), 50'000)(pontos);
    EXPECT_EQ(pedidos, std::vector<std::size_t>(7, 1));
    pedidos.clear();
    andamento.vigiar(objetivo(), 100)(pontos);
    EXPECT_EQ(pedidos, std::vector<std::size_t>{7});
}

TEST_F(AndamentoDoAjuste, DizAEtapaEQuantosConjuntosDeParâmetrosSeAvaliaram) {
    Andamento andamento{" mm"};
    const auto ouvinte = andamento.ouvinte();
    const auto vigiado = andamento.vigiar(objetivo(), 20'000);
    const std::vector<Parametros> pontos(5);
    Textos vistos;
    for (int etapa = 1; etapa <= 3; ++etapa) {
        ouvinte.etapa(etapa);
        vigiado(pontos);
        vistos.push_back(form_AjCar->lblEtapa.texto);
    }
    EXPECT_EQ(vistos, (Textos{"Etapa 1 de 3: simplex. Conjuntos de parâmetros avaliados: 5",
                              "Etapa 2 de 3: descida pelo gradiente. Conjuntos de parâmetros avaliados: 10",
                              "Etapa 3 de 3: método de Newton. Conjuntos de parâmetros avaliados: 15"}));
    // Neither is a step of the progress.
    EXPECT_TRUE(progressos.empty());
}

TEST_F(AndamentoDoAjuste, RelataSóOQueMuda) {
    Andamento andamento{" mm/h"};
    const auto ouvinte = andamento.ouvinte();
    ouvinte.desvio(2);
    ouvinte.barra(0.25);
    ouvinte.desvio(1.9999); // reads as before
    ouvinte.barra(0.25);
    ouvinte.barra(0.5);
    EXPECT_EQ(progressos, (std::vector<PassoDeProgresso>{{0, "Desvio Médio: 2.000 mm/h"},
                                                         {0.25, "Desvio Médio: 2.000 mm/h"},
                                                         {0.5, "Desvio Médio: 2.000 mm/h"}}));
}

TEST_F(AndamentoDoAjuste, OGráficoMostraODesvioAoLongoDaBarra) {
    Andamento andamento{" mm"};
    const auto ouvinte = andamento.ouvinte();
    const auto& f = *form_AjCar.operator->();
    ouvinte.desvio(2);
    ouvinte.barra(14);
    ouvinte.barra(28);
    ouvinte.desvio(1);
    ouvinte.barra(56);
    Textos escala;
    for (const auto& rótulo : f.Label2) escala.push_back(rótulo.texto);
    EXPECT_EQ(escala, (Textos{"0.000", "0.500", "1.000", "1.500", "2.000", "2.500"}));
    // 42 lines of the grid, then the curve: a bar of 56 is 280 wide, a deviation of 2.5 is 175 high.
    ASSERT_EQ(f.Picture1.traços.size(), 44u);
    const auto& primeira = std::get<Linha>(f.Picture1.traços[42]);
    EXPECT_NEAR(primeira.x1, 68 + 70, 1e-9);
    EXPECT_NEAR(primeira.y1, 203 - 140, 1e-9);
    EXPECT_NEAR(primeira.x2, 68 + 140, 1e-9);
    EXPECT_NEAR(primeira.y2, 203 - 140, 1e-9);
    const auto& segunda = std::get<Linha>(f.Picture1.traços[43]);
    EXPECT_NEAR(segunda.x2, 68 + 280, 1e-9);
    EXPECT_NEAR(segunda.y2, 203 - 70, 1e-9);
}

TEST_F(AndamentoDoAjuste, SemDesvioNãoHáGráfico) {
    Andamento andamento{" mm"};
    andamento.ouvinte().barra(0.25); // all deviations above the one that the search begins with
    EXPECT_TRUE(form_AjCar->Picture1.traços.empty());
    EXPECT_EQ(progressos, (std::vector<PassoDeProgresso>{{0.25, "Desvio médio:"}}));
}

} // namespace
} // namespace varenta::teste
