#include "roteiro/palavras.h"

#include "roteiro/erros.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varenta {
namespace {

using Palavras = std::vector<std::string>;

template <class Operação>
std::string erroDe(Operação&& operação) {
    try {
        operação();
    } catch (const ErroDeRoteiro& e) {
        return e.what();
    }
    return {};
}

TEST(SepararPalavras, BrancosETabulaçõesSeparam) {
    EXPECT_EQ(separarPalavras("  rolar \t form1.hsbPressão\t60  "),
              (Palavras{"rolar", "form1.hsbPressão", "60"}));
}

TEST(SepararPalavras, LinhaEmBrancoNãoTemPalavras) {
    EXPECT_EQ(separarPalavras(""), Palavras{});
    EXPECT_EQ(separarPalavras(" \t "), Palavras{});
}

TEST(SepararPalavras, SóOPrimeiroCaractereDaLinhaComentaOResto) {
    EXPECT_EQ(separarPalavras("\t # nada \"disto"), Palavras{});
    EXPECT_EQ(separarPalavras("digitar x #1"), (Palavras{"digitar", "x", "#1"}));
    EXPECT_EQ(separarPalavras("digitar#"), (Palavras{"digitar#"}));
}

TEST(SepararPalavras, PalavraEntreAspasGuardaBrancosOuÉVazia) {
    EXPECT_EQ(separarPalavras("a \"30  mm\" \"\""), (Palavras{"a", "30  mm", ""}));
    EXPECT_EQ(separarPalavras("\"# título\""), (Palavras{"# título"}));
}

TEST(SepararPalavras, DuasAspasDentroDeAspasSãoUma) {
    EXPECT_EQ(separarPalavras("\"1 1/4\"\"\" \"\"\"\" \"a\"\"b\""), (Palavras{"1 1/4\"", "\"", "a\"b"}));
}

TEST(SepararPalavras, AspaNoMeioDaPalavraÉUmCaractereComum) {
    EXPECT_EQ(separarPalavras("digitar 5\" a\"b"), (Palavras{"digitar", "5\"", "a\"b"}));
}

TEST(SepararPalavras, AcusaAspasSemFechamento) {
    EXPECT_EQ(erroDe([] { separarPalavras("a \"b c"); }), "aspas sem fechamento");
    EXPECT_EQ(erroDe([] { separarPalavras("a \"b\"\""); }), "aspas sem fechamento");
    EXPECT_EQ(erroDe([] { separarPalavras("\""); }), "aspas sem fechamento");
}

TEST(SepararPalavras, AcusaTextoColadoÀsAspasDeFechamento) {
    EXPECT_EQ(erroDe([] { separarPalavras("\"a\"b"); }), "texto colado às aspas de fechamento");
}

TEST(LerInteiro, LêDígitosComSinalDeMenos) {
    EXPECT_EQ(lerInteiro("0"), 0);
    EXPECT_EQ(lerInteiro("-360"), -360);
    EXPECT_EQ(lerInteiro("2147483647"), 2147483647);
}

TEST(LerInteiro, AcusaOQueNãoÉInteiro) {
    for (const auto* palavra : {"", "1.5", "1.0", "um", "+1", " 1", "1 ", "0x10", "1e2", "--1"})
        EXPECT_EQ(erroDe([&] { lerInteiro(palavra); }),
                  '"' + std::string{palavra} + "\" não é um número inteiro");
}

TEST(LerInteiro, AcusaNúmeroGrandeDemais) {
    EXPECT_EQ(erroDe([] { lerInteiro("2147483648"); }), "o número 2147483648 é grande demais");
}

TEST(LerNúmero, LêDecimaisComPonto) {
    EXPECT_EQ(lerNúmero("-12.5"), -12.5);
    EXPECT_EQ(lerNúmero("1e3"), 1000);
}

TEST(LerNúmero, AcusaOQueNãoÉNúmero) {
    for (const auto* palavra : {"", "1,5", "x", "1.5m", "nan", "inf"})
        EXPECT_EQ(erroDe([&] { lerNúmero(palavra); }), '"' + std::string{palavra} + "\" não é um número");
}

} // namespace
} // namespace varenta
