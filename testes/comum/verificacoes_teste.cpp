#include "comum/verificacoes.h"

#include "apoio/atalhos.h"
#include "apoio/tela_de_teste.h"

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

class Recusas : public teste::ComTelaDeTeste {};

TEST_F(Recusas, DeUmaCaixaAEsvaziamELevamAEla) {
    EXPECT_FALSE(recusar(teste::telaDeTeste->caixa, "não serve"));
    EXPECT_EQ(teste::caderno, std::vector<std::string>{"mensagem: não serve"});
    EXPECT_EQ(teste::telaDeTeste->caixa.texto, "");
    EXPECT_EQ(controleComFoco, &teste::telaDeTeste->caixa);
}

TEST_F(Recusas, DeUmaGradeÉAPrimeiraCélulaLinhaPorLinha) {
    constexpr std::array verificações = {VerificaçãoDeTexto{éVazio, "vazia"},
                                         VerificaçãoDeTexto{nãoÉNumérico, "não é número"}};
    Grade grade;
    grade.dimensionar(3, 3);
    for (const int l : {1, 2})
        for (const int c : {1, 2}) grade.escrever(l, c, "1");
    EXPECT_EQ(primeiraRecusa(verificações, grade).mensagem, nullptr);
    grade.escrever(2, 1, "");
    grade.escrever(1, 2, "x");
    const auto recusa = primeiraRecusa(verificações, grade);
    EXPECT_STREQ(recusa.mensagem, "não é número");
    EXPECT_EQ(recusa.linha, 1);
    EXPECT_EQ(recusa.coluna, 2);
}

TEST_F(Recusas, DeUmaCélulaLevamAElaOuÀGradeQueNãoAdmiteEntrada) {
    auto& tela = *teste::telaDeTeste.operator->();
    tela.grade.dimensionar(3, 3);
    recusar(teste::planilhaDeTeste(), {"não serve", 2, 1});
    EXPECT_EQ(tela.grade.linhaAtual, 2);
    EXPECT_EQ(controleComFoco, &tela.entrada);
    tela.arquivo.marcada = true;
    recusar(teste::planilhaDeTeste(), {"não serve", 1, 1});
    EXPECT_EQ(tela.grade.linhaAtual, 2);
    EXPECT_EQ(controleComFoco, &tela.grade);
    EXPECT_EQ(teste::caderno, std::vector<std::string>(2, "mensagem: não serve"));
}

} // namespace
} // namespace varenta
