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

TEST(EscalaDeCores, MeioDeOnzeÉ127PorqueOPassoNãoÉExato) {
    // 255 / 11 rounds upwards in its last bit, so 5.5 steps go a little past 127.5.
    EXPECT_EQ(EscalaDeCores{10.25}.cor(5.5), corDe(127, 127, 255));
}

TEST(EscalaDeCores, OMosaicoTemACorDeCadaValorNoSeuLugar) {
    Matriz valores{2, 3};
    valores.linha(0)[1] = 4;
    valores.linha(1)[2] = 10;
    const auto mosaico = EscalaDeCores{9.5}.mosaico(valores, 10, 20, 3, 4);
    EXPECT_EQ(mosaico.linhas(), 2u);
    EXPECT_EQ(mosaico.cores, (std::vector<Cor>{cores::branco, corDe(153, 153, 255), cores::branco,
                                               cores::branco, cores::branco, cores::azul}));
    EXPECT_EQ(mosaico.caixa(4).x1, 13);
    EXPECT_EQ(mosaico.caixa(4).y2, 28);
}

TEST(EscalaDeCores, ForaDaEscalaFicaNoSeuFim) {
    const EscalaDeCores escala{9.5};
    EXPECT_EQ(escala.cor(-1), 16777215u);
    EXPECT_EQ(escala.cor(12), 16711680u);
}

} // namespace
} // namespace varenta
