#include "comum/numeros.h"

#include "apoio/atalhos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace varenta {
namespace {

using teste::erroDe;

constexpr double infinito = std::numeric_limits<double>::infinity();
const double nenhumNúmero = std::nan("");
const std::string quatrocentosZeros(400, '0');

TEST(LerPrefixo, LêOMaiorPrefixoNumérico) {
    EXPECT_EQ(lerPrefixo("18 mm"), 18);
    EXPECT_EQ(lerPrefixo("43.11"), 43.11);
    EXPECT_EQ(lerPrefixo("-0.0097"), -0.0097);
    EXPECT_EQ(lerPrefixo("+7"), 7);
    EXPECT_EQ(lerPrefixo("1.5.2"), 1.5);
    EXPECT_EQ(lerPrefixo("1 2"), 1);
    EXPECT_EQ(lerPrefixo("12abc"), 12);
}

TEST(LerPrefixo, PulaOsBrancosDoInício) {
    EXPECT_EQ(lerPrefixo("   2.5"), 2.5);
    EXPECT_EQ(lerPrefixo("\t 2.5"), 2.5);
}

TEST(LerPrefixo, DáZeroParaOQueNãoComeçaPorNúmero) {
    for (const char* texto : {"", " ", "abc", ".", "-", "+", "-.", "e5", ".e5", "--3", "+-3", "- 3", "º60"})
        EXPECT_EQ(lerPrefixo(texto), 0) << '"' << texto << '"';
}

TEST(LerPrefixo, AceitaPontoSemDígitosDeUmDosLados) {
    EXPECT_EQ(lerPrefixo(".5"), 0.5);
    EXPECT_EQ(lerPrefixo("-.5"), -0.5);
    EXPECT_EQ(lerPrefixo("5."), 5);
    EXPECT_EQ(lerPrefixo("5.e1"), 50);
}

TEST(LerPrefixo, ParaNaVírgula) {
    EXPECT_EQ(lerPrefixo("1,5"), 1);
    EXPECT_EQ(lerPrefixo(",5"), 0);
    EXPECT_EQ(lerPrefixo("1.234,5"), 1.234);
}

TEST(LerPrefixo, NuncaAceitaInfNanNemHexadecimal) {
    for (const char* texto : {"inf", "-inf", "INF", "infinity", "nan", "NaN", "nan(1)", "&H10"})
        EXPECT_EQ(lerPrefixo(texto), 0) << texto;
    EXPECT_EQ(lerPrefixo("0x10"), 0);
    EXPECT_EQ(lerPrefixo("1inf"), 1);
    EXPECT_EQ(lerPrefixo("1p3"), 1);
}

TEST(LerPrefixo, LêOExpoenteComEMinúsculoOuMaiúsculo) {
    EXPECT_EQ(lerPrefixo("1e2"), 100);
    EXPECT_EQ(lerPrefixo("1E2"), 100);
    EXPECT_EQ(lerPrefixo("1e+2"), 100);
    EXPECT_EQ(lerPrefixo("15e-1"), 1.5);
    EXPECT_EQ(lerPrefixo("1e2.5"), 100);
    EXPECT_EQ(lerPrefixo("1d2"), 1);
}

TEST(LerPrefixo, DeixaDeLadoOExpoenteIncompleto) {
    for (const char* texto : {"7e", "7E", "7e+", "7e-", "7ex", "7e+x", "7e 2", "7e- 2"})
        EXPECT_EQ(lerPrefixo(texto), 7) << texto;
}

TEST(LerPrefixo, AcusaEstouroAcimaDoMaiorDouble) {
    // The largest double is 1.7976931348623157 x 10^308; half a unit of its last place above it overflows.
    EXPECT_EQ(lerPrefixo("1.7976931348623157e308"), std::numeric_limits<double>::max());
    for (const std::string& texto :
         {std::string{"1.7976931348623159e308"}, std::string{"1e309"}, std::string{"-1e400"},
          std::string{"1e99999999999999999999"}, "1" + quatrocentosZeros, std::string{"0.001e312"},
          "0." + quatrocentosZeros + "1e800", "1" + quatrocentosZeros + "e-50"})
        EXPECT_EQ(erroDe([&] { lerPrefixo(texto); }), estouro) << texto;
}

TEST(LerPrefixo, DáZeroAbaixoDoMenorDouble) {
    // The smallest double is some 4.94 x 10^-324; what is below its half rounds to 0.
    EXPECT_EQ(lerPrefixo("5e-324"), std::numeric_limits<double>::denorm_min());
    for (const std::string& texto :
         {std::string{"2e-324"}, std::string{"1e-400"}, std::string{"-1e-400"},
          std::string{"1e-99999999999999999999"}, "0." + quatrocentosZeros + "1",
          "1" + quatrocentosZeros + "e-800", "0." + quatrocentosZeros + "1e50", std::string{"0e400"},
          std::string{"0.000e99999999999999999999"}, std::string{"-0"}})
        EXPECT_EQ(lerPrefixo(texto), 0) << texto;
}

TEST(LerPrefixo, JuntaDígitosEExpoenteDeQualquerTamanho) {
    EXPECT_EQ(lerPrefixo("1" + quatrocentosZeros + "e-400"), 1);
    EXPECT_EQ(lerPrefixo("0." + quatrocentosZeros + "1e401"), 1);
    EXPECT_EQ(lerPrefixo(quatrocentosZeros + "25"), 25);
    EXPECT_EQ(lerPrefixo("1e" + quatrocentosZeros + "2"), 100);
    EXPECT_EQ(lerPrefixo("0.0001e310"), 1e306);
}

TEST(LerPrefixo, LêODoubleMaisPróximo) {
    // 0.1 + 0.2 is not 0.3: a reader that sums digits would land on the wrong one of the two.
    EXPECT_EQ(lerPrefixo("0.3"), 0.3);
    EXPECT_NE(lerPrefixo("0.3"), 0.1 + 0.2);
    EXPECT_EQ(lerPrefixo("0.30000000000000004"), 0.1 + 0.2);
}

TEST(LerEstrito, AceitaBrancosEmVolta) {
    EXPECT_EQ(lerEstrito("50"), 50);
    EXPECT_EQ(lerEstrito("  -2.5e1\t "), -25);
}

TEST(LerEstrito, AcusaTudoOQueNãoÉNúmeroInteiro) {
    for (const char* texto : {"", " ", "abc", "18 mm", "1,5", "1 2", "1.5.2", "7e", "7e+", "0x10", "inf",
                              "nan", "-", ".", "1\xC2\xA0",
                              "\xC2\xA0"
                              "1"})
        EXPECT_EQ(erroDe([&] { lerEstrito(texto); }), tiposIncompatíveis) << '"' << texto << '"';
    EXPECT_EQ(erroDe([] { lerEstrito(std::string_view{"1\0", 2}); }), tiposIncompatíveis);
}

TEST(LerEstrito, AcusaEstouroAcimaDoMaiorDouble) {
    EXPECT_EQ(erroDe([] { lerEstrito("1e400"); }), estouro);
    EXPECT_EQ(lerEstrito("1e-400"), 0);
}

TEST(ÉNumérico, DizOQueAConversãoEstritaAceita) {
    for (const char* texto : {"0", "50", " 50 ", "-.5", "5.", "1e2", "+3", "1e-400"})
        EXPECT_TRUE(éNumérico(texto)) << texto;
    for (const char* texto : {"", " ", "abc", "1,5", "50 m/h", "1e", "inf", "nan", "0x1", "1e400", "--1"})
        EXPECT_FALSE(éNumérico(texto)) << texto;
}

TEST(Format, CumpreCadaPadrãoDasLegendas) {
    EXPECT_EQ(Format(0, "0"), "0");
    EXPECT_EQ(Format(359.4999, "0"), "359");
    EXPECT_EQ(Format(-360, "0"), "-360");
    EXPECT_EQ(Format(10, "0.0"), "10.0");
    EXPECT_EQ(Format(0.04, "0.0"), "0.0");
    EXPECT_EQ(Format(-43.5, "0.00"), "-43.50");
    EXPECT_EQ(Format(1.2345, "0.000"), "1.234"); // the double is a little under 1.2345
    EXPECT_EQ(Format(-0.0097, "0.0000"), "-0.0097");
    EXPECT_EQ(Format(0.5, "#"), "1");
    EXPECT_EQ(Format(686.4655, "#"), "686");
    EXPECT_EQ(Format(0, "#0"), "0");
    EXPECT_EQ(Format(12, "#0"), "12");
    EXPECT_EQ(Format(4.79, "#0.0"), "4.8");
    EXPECT_EQ(Format(0, "#0.00"), "0.00");
    EXPECT_EQ(Format(123.456, "#0.00"), "123.46");
    EXPECT_EQ(Format(5.94796798868, "#0.000"), "5.948");
    EXPECT_EQ(Format(26.50646254359, "##0.00"), "26.51");
    EXPECT_EQ(Format(0.5, "##0.00"), "0.50");
    EXPECT_EQ(Format(12345.678, "##0.00"), "12345.68");
    EXPECT_EQ(Format(1.077645, "##0.000"), "1.078");
    EXPECT_EQ(Format(7, "#.0"), "7.0");
    EXPECT_EQ(Format(0.5, "#.0"), ".5");
}

TEST(Format, CardinalSóEscreveDígitoSignificativo) {
    EXPECT_EQ(Format(0, "#"), "");
    EXPECT_EQ(Format(0.4, "#"), "");
    EXPECT_EQ(Format(-0.4, "#"), "");
    EXPECT_EQ(Format(0, "#.0"), ".0");
    EXPECT_EQ(Format(-0.5, "#.0"), "-.5");
    EXPECT_EQ(Format(0.96, "#.0"), "1.0");
}

TEST(Format, ZerosÀEsquerdaVêmDoPadrão) {
    EXPECT_EQ(Format(7, "000"), "007");
    EXPECT_EQ(Format(-7, "000"), "-007");
    EXPECT_EQ(Format(0.5, "00.0"), "00.5");
    EXPECT_EQ(Format(1234, "00"), "1234");
}

TEST(Format, ArredondaEmpateExatoParaLongeDoZero) {
    EXPECT_EQ(Format(0.5, "0"), "1");
    EXPECT_EQ(Format(1.5, "0"), "2");
    EXPECT_EQ(Format(2.5, "0"), "3");
    EXPECT_EQ(Format(-0.5, "0"), "-1");
    EXPECT_EQ(Format(-2.5, "0"), "-3");
    EXPECT_EQ(Format(0.25, "0.0"), "0.3");
    EXPECT_EQ(Format(-2.25, "0.0"), "-2.3");
    EXPECT_EQ(Format(0.125, "0.00"), "0.13");
    EXPECT_EQ(Format(0.0625, "0.000"), "0.063");
    EXPECT_EQ(Format(0.03125, "0.0000"), "0.0313");
    EXPECT_EQ(Format(9.5, "0"), "10");
    EXPECT_EQ(Format(4503599627370495.5, "0"), "4503599627370496");
}

TEST(Format, ArredondaOValorBinárioExatoENãoODecimalQueSeLê) {
    EXPECT_EQ(Format(10.2 / 4, "0.0"), "2.5");   // 2.5499999999999998...
    EXPECT_EQ(Format(2.675, "0.00"), "2.67");    // 2.6749999999999998...
    EXPECT_EQ(Format(1.005, "0.00"), "1.00");    // 1.0049999999999998...
    EXPECT_EQ(Format(0.15, "0.0"), "0.1");       // 0.1499999999999999...
    EXPECT_EQ(Format(0.05, "0.0"), "0.1");       // 0.0500000000000000027...
    EXPECT_EQ(Format(0.0005, "0.000"), "0.001"); // 0.00050000000000000001...
    EXPECT_EQ(Format(0.00005, "0.0000"), "0.0001");
    EXPECT_EQ(Format(1000.0005, "##0.000"), "1000.000"); // 1000.00049999999998...
}

TEST(Format, OsVizinhosDeUmEmpateVãoCadaUmParaOSeuLado) {
    EXPECT_EQ(Format(std::nextafter(0.125, 0), "0.00"), "0.12");
    EXPECT_EQ(Format(std::nextafter(0.125, 1), "0.00"), "0.13");
    EXPECT_EQ(Format(std::nextafter(2.5, 0), "0"), "2");
    EXPECT_EQ(Format(std::nextafter(0.5, 0), "#"), "");
}

TEST(Format, NegativoQueArredondaParaZeroNãoTemSinal) {
    EXPECT_EQ(Format(-0.04, "0.0"), "0.0");
    EXPECT_EQ(Format(-0.0004, "0.000"), "0.000");
    EXPECT_EQ(Format(-0.0, "0.00"), "0.00");
    EXPECT_EQ(Format(-0.04, "#.0"), ".0");
    EXPECT_EQ(Format(-0.05, "0.0"), "-0.1"); // -0.05 is a little beyond the tie
}

TEST(Format, EscreveDoMenorAoMaiorDouble) {
    EXPECT_EQ(Format(std::numeric_limits<double>::denorm_min(), "0.0000"), "0.0000");
    EXPECT_EQ(Format(1e22, "0"), "10000000000000000000000"); // 10^22 is a double
    const auto maior = Format(std::numeric_limits<double>::max(), "0.0");
    EXPECT_EQ(maior.size(), 309u + 2u);
    EXPECT_TRUE(maior.starts_with("17976931348623157"));
    EXPECT_TRUE(maior.ends_with(".0"));
}

TEST(Format, AcusaEstouroParaInfinitoENan) {
    EXPECT_EQ(erroDe([] { Format(infinito, "0"); }), estouro);
    EXPECT_EQ(erroDe([] { Format(-infinito, "0.0"); }), estouro);
    EXPECT_EQ(erroDe([] { Format(nenhumNúmero, "#"); }), estouro);
}

/// m / 2^k with `casas` decimals in whole-number arithmetic alone, half away from zero.
std::string porInteiros(std::int64_t m, int k, int casas) {
    std::int64_t escala = 1;
    for (int i = 0; i < casas; ++i) escala *= 10;
    const std::int64_t módulo = m < 0 ? -m : m;
    const std::int64_t divisor = std::int64_t{1} << k;
    const std::int64_t arredondado = (2 * módulo * escala + divisor) / (2 * divisor);
    auto fração = std::to_string(arredondado % escala);
    fração.insert(0, static_cast<std::size_t>(casas) - fração.size(), '0');
    std::string texto = std::to_string(arredondado / escala) + "." + fração;
    if (m < 0 && arredondado != 0) texto.insert(texto.begin(), '-');
    return texto;
}

TEST(Format, ConcordaComAAritméticaDeInteirosEmFraçõesDiádicas) {
    // With few binary places every fourth value or so is an exact tie.
    std::mt19937_64 sorteio{20240501};
    for (int n = 0; n < 200'000; ++n) {
        const int casas = static_cast<int>(sorteio() % 4) + 1;
        const int k = static_cast<int>(sorteio() % 8);
        const auto m = static_cast<std::int64_t>(sorteio() % 2'000'001) - 1'000'000;
        const double valor = std::ldexp(static_cast<double>(m), -k);
        const auto padrão = "0." + std::string(static_cast<std::size_t>(casas), '0');
        ASSERT_EQ(Format(valor, padrão), porInteiros(m, k, casas)) << m << " / 2^" << k;
    }
}

TEST(ParaTexto, EscreveAtéQuinzeDígitosSemZerosNoFim) {
    EXPECT_EQ(paraTexto(0), "0");
    EXPECT_EQ(paraTexto(-0.0), "0");
    EXPECT_EQ(paraTexto(50), "50");
    EXPECT_EQ(paraTexto(0.75), "0.75");
    EXPECT_EQ(paraTexto(-2.5), "-2.5");
    EXPECT_EQ(paraTexto(0.1 + 0.2), "0.3");
    EXPECT_EQ(paraTexto(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(paraTexto(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(paraTexto(123456789012345), "123456789012345");
    EXPECT_EQ(paraTexto(100000), "100000");
}

TEST(ParaTexto, AcusaEstouroParaInfinitoENan) {
    EXPECT_EQ(erroDe([] { paraTexto(infinito); }), estouro);
    EXPECT_EQ(erroDe([] { paraTexto(nenhumNúmero); }), estouro);
}

TEST(Int, ÉOPisoTambémAbaixoDeZero) {
    EXPECT_EQ(Int(2.9), 2);
    EXPECT_EQ(Int(-0.5), -1);
    EXPECT_EQ(Int(-3), -3);
}

TEST(ParaInteiro, ArredondaMeioParaOPar) {
    EXPECT_EQ(paraInteiro(0.5), 0);
    EXPECT_EQ(paraInteiro(1.5), 2);
    EXPECT_EQ(paraInteiro(2.5), 2);
    EXPECT_EQ(paraInteiro(-0.5), 0);
    EXPECT_EQ(paraInteiro(-1.5), -2);
    EXPECT_EQ(paraInteiro(2.51), 3);
    EXPECT_EQ(paraInteiro(49.5), 50);
    EXPECT_EQ(paraInteiro(50.5), 50);
}

TEST(ParaInteiro, AcusaEstouroForaDe32Bits) {
    EXPECT_EQ(paraInteiro(2147483647.25), 2147483647);
    EXPECT_EQ(paraInteiro(-2147483648.5), std::numeric_limits<int>::min()); // the tie goes to the even one
    for (const double x : {2147483647.5, -2147483648.75, 1e300, infinito, nenhumNúmero})
        EXPECT_EQ(erroDe([&] { paraInteiro(x); }), estouro) << x;
}

TEST(Simples, ArredondaParaPrecisãoSimples) {
    EXPECT_EQ(static_cast<double>(simples(1.5)), 1.5);
    // 0.1 in single precision is 13421773 / 2^27.
    EXPECT_EQ(static_cast<double>(simples(0.1)), 13421773.0 / 134217728.0);
    EXPECT_EQ(simples(1e-50), 0);
    // The largest float, (2^24 - 1) x 2^104.
    EXPECT_EQ(static_cast<double>(simples(3.4028234663852886e38)), std::ldexp(16777215, 104));
}

TEST(Simples, AcusaEstouroAcimaDoMaiorFloat) {
    for (const double x : {3.4028236e38, -1e39, infinito, nenhumNúmero})
        EXPECT_EQ(erroDe([&] { simples(x); }), estouro) << x;
}

TEST(Dividir, DizSeFoiDivisãoPorZeroOuEstouro) {
    EXPECT_EQ(dividir(6, 4), 1.5);
    EXPECT_EQ(dividir(0, -2), 0);
    EXPECT_EQ(erroDe([] { dividir(1, 0); }), divisãoPorZero);
    EXPECT_EQ(erroDe([] { dividir(-1, -0.0); }), divisãoPorZero);
    EXPECT_EQ(erroDe([] { dividir(0, 0); }), estouro);
    EXPECT_EQ(erroDe([] { dividir(1e300, 1e-300); }), estouro);
}

TEST(Finito, DeixaPassarSóNúmerosFinitos) {
    EXPECT_EQ(finito(-1.5), -1.5);
    EXPECT_EQ(finito(std::numeric_limits<double>::max()), std::numeric_limits<double>::max());
    for (const double x : {infinito, -infinito, nenhumNúmero})
        EXPECT_EQ(erroDe([&] { finito(x); }), estouro) << x;
}

} // namespace
} // namespace varenta
