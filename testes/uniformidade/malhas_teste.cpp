#include "aspersor/grafico_perfil_radial.h"
#include "simulacao/grafico_perfil_transversal.h"
#include "uniformidade/grafico_form5.h"
#include "uniformidade/graficos_form4.h"
#include "uniformidade/graficos_form9.h"

#include <gtest/gtest.h>

#include <string>

namespace varenta::teste {
namespace {

double última(const Linhas& linhas) { return linhas.primeira + linhas.passo * (linhas.quantas - 1); }

/// The grids of all charts: their lines begin one step from the axes and fill the chart.
TEST(Malhas, AsLinhasPartemDosEixosEmPassosIguaisEEnchemOGráfico) {
    for (const auto& malha :
         {malhaDoPerfilRadial, malhaDoPerfilMedido, malhaDoPerfilTransversal, malhaDosEspaçamentos,
          malhaDaSobreposição, malhaDaFaixa, malhaDaÁrea, malhaDasEficiências}) {
        SCOPED_TRACE("chart " + std::to_string(malha.esquerda) + " to " + std::to_string(malha.direita));
        for (const auto& verticais : {malha.finasVerticais, malha.grossasVerticais}) {
            EXPECT_EQ(verticais.primeira, malha.esquerda + verticais.passo);
            EXPECT_LT(última(verticais), malha.direita);
            EXPECT_GE(última(verticais) + verticais.passo, malha.direita);
        }
        for (const auto& horizontais : {malha.finasHorizontais, malha.grossasHorizontais}) {
            EXPECT_EQ(última(horizontais), malha.base - horizontais.passo);
            EXPECT_GT(horizontais.primeira, malha.topo);
            EXPECT_LE(horizontais.primeira, malha.topo + horizontais.passo);
        }
    }
}

} // namespace
} // namespace varenta::teste
