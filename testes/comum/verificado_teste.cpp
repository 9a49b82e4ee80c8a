#include "comum/verificado.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

namespace varenta {
namespace {

using teste::erroDe;

TEST(Verificado, CalculaComoUmDouble) {
    const Verificado a = 6, b = 4;
    EXPECT_EQ(static_cast<double>(a + b), 10);
    EXPECT_EQ(static_cast<double>(a - b), 2);
    EXPECT_EQ(static_cast<double>(a * b), 24);
    EXPECT_EQ(static_cast<double>(a / b), 1.5);
    EXPECT_EQ(static_cast<double>(-a), -6);
    EXPECT_EQ(static_cast<double>(sqrt(b)), 2);
}

TEST(Verificado, AcusaOErroNaOperaçãoEmQueEleNasce) {
    const Verificado grande = 1e308, zero = 0, um = 1;
    EXPECT_EQ(erroDe([&] { um / zero; }), divisãoPorZero);
    EXPECT_EQ(erroDe([&] { zero / zero; }), estouro);
    EXPECT_EQ(erroDe([&] { grande + grande; }), estouro);
    EXPECT_EQ(erroDe([&] { -grande - grande; }), estouro);
    EXPECT_EQ(erroDe([&] { grande* grande; }), estouro);
}

} // namespace
} // namespace varenta
