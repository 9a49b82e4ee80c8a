#include "simulacao/legenda_mapa.h"

#include <gtest/gtest.h>

#include <cmath>

namespace varenta {
namespace {

TEST(Legenda, TemVinteCaixasUmaSobAOutraDoSegundoValorAoZero) {
    // Under a top of 20 the values are 19, 18 ... 0, and a step of red and green is 12.75.
    Desenho desenho;
    desenharLegenda(desenho, EscalaDeCores{19});
    ASSERT_EQ(desenho.traços.size(), 20u);
    const auto caixa = [&](std::size_t k) { return std::get<CaixaCheia>(desenho.traços[k]); };
    for (std::size_t k = 0; k < 20; ++k) {
        const double linha = static_cast<double>(k);
        EXPECT_EQ(caixa(k).x1, 0);
        EXPECT_EQ(caixa(k).x2, 495);
        EXPECT_EQ(caixa(k).y1, 277 * linha);
        EXPECT_EQ(caixa(k).y2, 277 * (linha + 1));
        const auto claro = static_cast<unsigned>(std::nearbyint(12.75 * (linha + 1)));
        EXPECT_EQ(caixa(k).cor, corDe(claro, claro, 255)) << k;
    }
    EXPECT_EQ(caixa(0).cor, corDe(13, 13, 255));   // 12.75
    EXPECT_EQ(caixa(9).cor, corDe(128, 128, 255)); // 127.5
    EXPECT_EQ(caixa(19).cor, cores::branco);
}

} // namespace
} // namespace varenta
