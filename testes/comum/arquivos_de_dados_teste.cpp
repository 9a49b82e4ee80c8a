#include "comum/arquivos_de_dados.h"

#include "apoio/pasta_temporaria.h"
#include "apoio/plataforma_teste.h"

#include <gtest/gtest.h>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

TEST(SepararColunas, CadaTabulaçãoSeparaDuas) {
    EXPECT_EQ(separarColunas("1\t2.5\tx"), (Textos{"1", "2.5", "x"}));
    EXPECT_EQ(separarColunas("1\t"), (Textos{"1", ""}));
    EXPECT_EQ(separarColunas("\t\t"), (Textos{"", "", ""}));
    EXPECT_EQ(separarColunas("1 2"), Textos{"1 2"});
    EXPECT_EQ(separarColunas(""), Textos{""});
}

TEST(ArquivosDeDados, UmaLinhaTerminaEmCrLf) {
    std::string texto = "a";
    acrescentarLinha(texto, "b");
    acrescentarLinha(texto, "");
    EXPECT_EQ(texto, "ab\r\n\r\n");
}

TEST(ArquivosDeDados, SóOTextoVazioTemSubstituto) {
    EXPECT_EQ(ouSubstituto("", "N/E"), "N/E");
    EXPECT_EQ(ouSubstituto(" ", "N/E"), " ");
}

TEST(ArquivosDeDados, UmNomeVazioÉComoCancelar) {
    recomeçar();
    arquivos = {std::nullopt, "", "x.txt"};
    EXPECT_EQ(pedirArquivoDeDados(), std::nullopt);
    EXPECT_EQ(pedirArquivoDeDados(), std::nullopt);
    EXPECT_EQ(pedirArquivoDeDados(), "x.txt");
    EXPECT_EQ(caderno, Textos(3, "abrir: Arquivos Texto (*.TXT)|*.TXT"));
}

TEST(ArquivosDeDados, SalvarEscreveOsBytesEContaAFalha) {
    recomeçar();
    const PastaTemporaria pasta;
    arquivos = {pasta.caminho("a.txt"), "", pasta.caminho("falta/a.txt")};
    salvarArquivoDeDados("x\r\n", "Não: ", "!");
    EXPECT_EQ(pasta.bytes("a.txt"), "x\r\n");
    salvarArquivoDeDados("y\r\n", "Não: ", "!");
    EXPECT_EQ(caderno, Textos(2, "salvar: Text files|*.TXT|All files|*.* TXT"));
    salvarArquivoDeDados("y\r\n", "Não: ", "!");
    ASSERT_EQ(caderno.size(), 4U);
    EXPECT_TRUE(caderno[3].starts_with("mensagem: Não: ") && caderno[3].ends_with("!")) << caderno[3];
    EXPECT_GT(caderno[3].size(), std::string{"mensagem: Não: !"}.size());
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{"a.txt"});
}

} // namespace
} // namespace varenta::teste
