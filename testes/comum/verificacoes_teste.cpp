#include "comum/verificacoes.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

#include <array>

namespace varenta {
namespace {

TEST(Verificacoes, CadaRecusaDizOSeu) {
    EXPECT_TRUE(nãoÉNumérico("abc"));
    EXPECT_TRUE(nãoÉNumérico(""));
    EXPECT_FALSE(nãoÉNumérico(" 1.5 "));
    EXPECT_TRUE(éVazio(""));
    EXPECT_FALSE(éVazio(" "));
    EXPECT_TRUE(nãoÉPositivo("0"));
    EXPECT_TRUE(nãoÉPositivo("-0.1"));
    EXPECT_FALSE(nãoÉPositivo("0.1"));
}

TEST(Verificacoes, APrimeiraRecusaDáAMensagem) {
    constexpr std::array verificações = {VerificaçãoDeTexto{nãoÉNumérico, "não é número"},
                                         VerificaçãoDeTexto{nãoÉPositivo, "não é positivo"}};
    EXPECT_STREQ(primeiraRecusa(verificações, "abc"), "não é número");
    EXPECT_STREQ(primeiraRecusa(verificações, "-1"), "não é positivo");
    EXPECT_EQ(primeiraRecusa(verificações, "1"), nullptr);
}

} // namespace
} // namespace varenta
