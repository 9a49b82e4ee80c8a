#include "comum/texto_tabela.h"

#include <gtest/gtest.h>

namespace varenta::teste {
namespace {

TEST(TextoTabela, UmaVírgulaDecimalViraPonto) {
    EXPECT_EQ(comPonto("1,5"), "1.5");
    EXPECT_EQ(comPonto(",5"), ".5");
    EXPECT_EQ(comPonto("12,"), "12.");
    EXPECT_EQ(comPonto("-0,25e-3"), "-0.25e-3");
    EXPECT_EQ(comPonto("2,5 m"), "2.5 m");
    EXPECT_EQ(comPonto("1.5"), "1.5");
    EXPECT_EQ(comPonto("15"), "15");
    EXPECT_EQ(comPonto(""), "");
}

TEST(TextoTabela, VírgulaEPontoOuDuasVírgulasFicamComoEstão) {
    for (const auto* texto : {"1.234,5", "1,234.5", "1,2,3", "1.2.3", ",,"})
        EXPECT_EQ(comPonto(texto), texto);
}

TEST(TextoTabela, SóONúmeroGanhaVírgula) {
    EXPECT_EQ(comVírgula("12.50"), "12,50");
    EXPECT_EQ(comVírgula("-0.336"), "-0,336");
    EXPECT_EQ(comVírgula(".5"), ",5");
    EXPECT_EQ(comVírgula("1.5E-7"), "1,5E-7");
    EXPECT_EQ(comVírgula("36"), "36");
    for (const auto* texto : {"TX30 - 44 mm", "1.2.3", "Ce1 = 1.5 m", "2.5 m", "", "."})
        EXPECT_EQ(comVírgula(texto), texto);
}

TEST(TextoTabela, UmaLinhaEmCadaFormato) {
    const std::vector<std::string> células = {"1.5", "a;b", "diz \"x\"", ""};
    const auto escrita = [&](const FormatoDeTabela& formato) {
        std::string texto{formato.início};
        acrescentarLinha(texto, células, formato);
        acrescentarLinha(texto, std::vector<std::string>{"2.0"}, formato);
        return texto;
    };
    EXPECT_EQ(escrita(formatoDeCópia), "1,5\ta;b\tdiz \"x\"\t\n2,0\n");
    EXPECT_EQ(escrita(formatoCsv), "\xEF\xBB\xBF"
                                   "1,5;\"a;b\";\"diz \"\"x\"\"\";\r\n2,0\r\n");
    EXPECT_EQ(escrita(formatoDeTexto), "1.5\ta;b\tdiz \"x\"\t\r\n2.0\r\n");
}

TEST(TextoTabela, UmBlocoSeparaPorTabulaçãoOuPorPontoEVírgula) {
    const Bloco esperado = {{"1.5", "2"}, {"3", "4.25"}};
    for (const auto* texto : {"1,5\t2\n3\t4,25", "1.5\t2\n3\t4.25\n", "1,5\t2\r\n3\t4,25\r\n",
                              "1,5;2\r\n3;4,25\r\n", "1.5;2\n3;4,25"})
        EXPECT_EQ(separarBloco(texto), esperado) << texto;
    EXPECT_EQ(separarBloco("1;2\t3"), (Bloco{{"1;2", "3"}}));
}

TEST(TextoTabela, SóOÚltimoFimDeLinhaNãoContaComoLinha) {
    EXPECT_EQ(separarBloco("7"), (Bloco{{"7"}}));
    EXPECT_EQ(separarBloco("7\n"), (Bloco{{"7"}}));
    EXPECT_EQ(separarBloco("7\n\n"), (Bloco{{"7"}, {""}}));
    EXPECT_EQ(separarBloco("1\t\n\t2\n"), (Bloco{{"1", ""}, {"", "2"}}));
}

TEST(TextoTabela, UmaLinhaMaisCurtaTemCélulasVazias) {
    EXPECT_EQ(separarBloco("1\t2\n3\n"), (Bloco{{"1", "2"}, {"3", ""}}));
}

TEST(TextoTabela, UmValorSóNãoÉBloco) {
    for (const auto* texto : {"", "1,5", "1.5\r\n", "7\n", "12 mm"}) EXPECT_FALSE(éBloco(texto)) << texto;
    for (const auto* texto : {"1\t2", "1;2", "1\n2", "1\n\n"}) EXPECT_TRUE(éBloco(texto)) << texto;
}

} // namespace
} // namespace varenta::teste
