#include "comum/escala_de_cores.h"

#include <gtest/gtest.h>

namespace varenta {
namespace {

TEST(EscalaDeCores, OsCanaisDeUmaCor) {
    EXPECT_EQ(GetRed(0x030201), 1u);
    EXPECT_EQ(GetGreen(0x030201), 2u);
    EXPECT_EQ(GetBlue(0x030201), 3u);
    EXPECT_EQ(GetBlue(16711680), 255u);
}

TEST(EscalaDeCores, OTopoÉOPrimeiroInteiroAcimaDoMaior) {
    EXPECT_EQ(EscalaDeCores{10.25}.topo(), 11);
    EXPECT_EQ(EscalaDeCores{10}.topo(), 11);
    EXPECT_EQ(EscalaDeCores{0}.topo(), 1);
}

TEST(EscalaDeCores, VaiDoBrancoAoAzulPuro) {
    const EscalaDeCores escala{9.5};
    EXPECT_EQ(escala.cor(0), 16777215u);
    EXPECT_EQ(escala.cor(10), 16711680u);
    // 255 - 4 x 25.5 = 153 of red and green.
    EXPECT_EQ(escala.cor(4), corDe(153, 153, 255));
}

TEST(EscalaDeCores, ArredondaOMeioParaOPar) {
    // Top 10: 255 - 3 x 25.5 = 178.5, and 255 - 1 x 25.5 = 229.5.
    const EscalaDeCores escala{9.5};
    EXPECT_EQ(GetRed(escala.cor(3)), 178u);
    EXPECT_EQ(GetRed(escala.cor(1)), 230u);
}

TEST(EscalaDeCores, ForaDaEscalaFicaNoSeuFim) {
    const EscalaDeCores escala{9.5};
    EXPECT_EQ(escala.cor(-1), 16777215u);
    EXPECT_EQ(escala.cor(12), 16711680u);
}

} // namespace
} // namespace varenta
