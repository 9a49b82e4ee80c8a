#include "ajuste/arquivo_ensaio.h"

#include "apoio/pasta_temporaria.h"

#include <gtest/gtest.h>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

constexpr auto nãoAbre = "O arquivo não pode ser aberto, consulte a ajuda!";
constexpr auto emBranco = "O número de coletores em cada linha excede aos valores de dados do arquivo!";
constexpr auto poucasLinhas =
    "O número de linhas de coletores do arquivo não coicide com o número de linhas especificado!";
constexpr auto grande = "O arquivo é muito grande!";

std::string unir(const Textos& linhas, const char* fim = "\r\n") {
    std::string texto;
    for (const auto& linha : linhas) texto += linha + fim;
    return texto;
}

/// The message that answers the file; empty where it is read.
template <class Ler>
std::string recusaDe(Ler&& ler) {
    try {
        ler();
    } catch (const EnsaioRecusado& e) {
        return e.what();
    }
    return {};
}

class ArquivoDeEnsaioDeMalha : public testing::Test {
  protected:
    /// Mode 3, two by two collectors.
    const Textos válidas = {"Modelo", "18 x 6", "50", "24", "29.13", "2",       "6",
                            "3",      "45",     "3",  "60", "8",     "1\t2.25", "3\t4"};

    ArquivoDeMalha ler(const std::string& bytes) { return lerArquivoDeMalha(pasta.gravar("e.TXT", bytes)); }
    std::string recusa(const Textos& linhas) {
        return recusaDe([&] { ler(unir(linhas)); });
    }
    /// The refusal with one line (from 1) replaced.
    std::string recusaCom(std::size_t linha, const std::string& texto) {
        auto linhas = válidas;
        linhas.at(linha - 1) = texto;
        return recusa(linhas);
    }
    PastaTemporaria pasta;
};

TEST_F(ArquivoDeEnsaioDeMalha, LêTodasAsLinhas) {
    const auto a = ler(unir(válidas));
    EXPECT_EQ(a.modelo, "Modelo");
    EXPECT_EQ(a.bocais, "18 x 6");
    EXPECT_EQ(a.pressão, "50");
    EXPECT_EQ(a.N, 2);
    EXPECT_EQ(a.e, 6);
    EXPECT_EQ(a.W, 3);
    EXPECT_EQ(a.direção, 45);
    EXPECT_EQ(a.modo, 3);
    EXPECT_EQ(a.tempo, "60");
    EXPECT_EQ(a.diâmetro, "8");
    EXPECT_EQ(a.leituras, (std::vector<Textos>{{"1.000", "2.250"}, {"3.000", "4.000"}}));
}

TEST_F(ArquivoDeEnsaioDeMalha, OModoDizQuaisLinhasSeguem) {
    const Textos começo(válidas.begin(), válidas.begin() + 9), fim(válidas.end() - 2, válidas.end());
    const auto com = [&](const Textos& modo) {
        auto linhas = começo;
        linhas.insert(linhas.end(), modo.begin(), modo.end());
        linhas.insert(linhas.end(), fim.begin(), fim.end());
        return ler(unir(linhas));
    };
    EXPECT_EQ(com({"1"}).tempo, "");
    EXPECT_EQ(com({"2", "90"}).tempo, "90");
    EXPECT_EQ(com({"2", "90"}).diâmetro, "");
}

TEST_F(ArquivoDeEnsaioDeMalha, AceitaLfSemFimEComLinhasEmBrancoNoFim) {
    const auto esperadas = ler(unir(válidas)).leituras;
    EXPECT_EQ(ler(unir(válidas, "\n")).leituras, esperadas);
    auto texto = unir(válidas, "\n");
    texto.pop_back();
    EXPECT_EQ(ler(texto).leituras, esperadas);
    EXPECT_EQ(ler(unir(válidas) + "\r\n \t\r\n\r\n").leituras, esperadas);
}

TEST_F(ArquivoDeEnsaioDeMalha, RecusaCadaLinhaErradaDoComeço) {
    for (const auto& [linha, textos] :
         std::vector<std::pair<std::size_t, Textos>>{{6, {"", "x", "0", "-2", "2.5"}},
                                                     {7, {"", "x", "0", "1e308", "1000.1", "-1001"}},
                                                     {8, {"", "x", "-0.1", "10.5"}},
                                                     {9, {"", "x", "-1", "361"}},
                                                     {10, {"", "x", "0", "4", "1.5"}},
                                                     {11, {""}},
                                                     {12, {""}}})
        for (const auto& texto : textos) EXPECT_EQ(recusaCom(linha, texto), nãoAbre) << linha << ' ' << texto;
    EXPECT_EQ(recusaCom(7, "1000"), "");
    EXPECT_EQ(recusaCom(8, "10"), "");
    EXPECT_EQ(recusaCom(8, "0"), "");
    EXPECT_EQ(recusaCom(9, "360"), "");
}

TEST_F(ArquivoDeEnsaioDeMalha, RecusaLeiturasQueNãoFecham) {
    EXPECT_EQ(recusaCom(13, "1"), "O número de dados de entrada deve ser igual: 2 !");
    EXPECT_EQ(recusaCom(14, "1\t2\t3"), "O número de dados de entrada deve ser igual: 2 !");
    EXPECT_EQ(recusaCom(13, ""), emBranco);
    EXPECT_EQ(recusaCom(13, "1\tdois"), nãoAbre);
    EXPECT_EQ(recusaCom(13, "1\t"), nãoAbre);
    EXPECT_EQ(recusaCom(13, "1\t1e999"), nãoAbre);
    EXPECT_EQ(recusa(Textos(válidas.begin(), válidas.end() - 1)), poucasLinhas);
    auto amais = válidas;
    amais.push_back("5\t6");
    EXPECT_EQ(recusa(amais), grande);
    EXPECT_EQ(recusaCom(6, "1001"), grande);
}

TEST_F(ArquivoDeEnsaioDeMalha, RecusaUmArquivoQueTerminaCedoOuNãoExiste) {
    for (std::size_t linhas = 0; linhas < 12; ++linhas)
        EXPECT_EQ(recusa(Textos(válidas.begin(), válidas.begin() + static_cast<std::ptrdiff_t>(linhas))),
                  nãoAbre)
            << linhas;
    EXPECT_EQ(recusaDe([&] { lerArquivoDeMalha(pasta.caminho("ausente.TXT")); }), nãoAbre);
}

class ArquivoDeEnsaioMóvel : public testing::Test {
  protected:
    /// Mode 2, one collector on each side, two lines.
    const Textos válidas = {"Modelo", "18 x 6", "50",  "24", "29.13", "40", "210",     "2",   "6",
                            "1",      "1.5",    "2.5", "90", "2",     "8",  "1\t2.25", "3\t4"};

    ArquivoMóvelComVento ler(const Textos& linhas) {
        return lerArquivoMóvel(pasta.gravar("m.TXT", unir(linhas)));
    }
    std::string recusaCom(std::size_t linha, const std::string& texto) {
        auto linhas = válidas;
        linhas.at(linha - 1) = texto;
        return recusaDe([&] { ler(linhas); });
    }
    PastaTemporaria pasta;
};

TEST_F(ArquivoDeEnsaioMóvel, LêTodasAsLinhas) {
    const auto a = ler(válidas);
    EXPECT_EQ(a.velocidade, "40");
    EXPECT_EQ(a.anguloGiro, 210);
    EXPECT_EQ(a.linhas, 2);
    EXPECT_EQ(a.eL, 6);
    EXPECT_EQ(a.cadaLado, 1);
    EXPECT_EQ(a.eC, 1.5);
    EXPECT_EQ(a.W, 2.5);
    EXPECT_EQ(a.direção, 90);
    EXPECT_EQ(a.modo, 2);
    EXPECT_EQ(a.diâmetro, "8");
    EXPECT_EQ(a.leituras, (std::vector<Textos>{{"1.000", "2.250"}, {"3.000", "4.000"}}));
}

TEST_F(ArquivoDeEnsaioMóvel, RecusaCadaLinhaErrada) {
    for (const auto& [linha, textos] :
         std::vector<std::pair<std::size_t, Textos>>{{6, {"", "N/E", "0"}},
                                                     {7, {"", "N/E", "170", "179.9", "361"}},
                                                     {8, {"", "x", "0"}},
                                                     {9, {"", "x", "0", "1e300"}},
                                                     {10, {"", "x", "0"}},
                                                     {11, {"", "x", "0", "1e308", "1000.1"}},
                                                     {12, {"", "x", "-1", "10.5"}},
                                                     {13, {"", "x", "-1", "361"}},
                                                     {14, {"", "x", "0", "3"}},
                                                     {15, {""}}})
        for (const auto& texto : textos) EXPECT_EQ(recusaCom(linha, texto), nãoAbre) << linha << ' ' << texto;
    EXPECT_EQ(recusaCom(7, "180"), "");
    EXPECT_EQ(recusaCom(7, "360"), "");
    EXPECT_EQ(recusaCom(16, "1"), "O número de dados de entrada deve ser igual: 2 !");
    EXPECT_EQ(recusaCom(10, "2"), poucasLinhas);
    EXPECT_EQ(recusaCom(8, "1001"), grande);
}

} // namespace
} // namespace varenta::teste
