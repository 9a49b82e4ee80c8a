#include "roteiro/linha_de_comando.h"

#include "apoio/pasta_temporaria.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace varenta::teste {
namespace {

struct Resultado {
    int estado;
    std::string saída, erros;
};

Resultado chamar(const std::vector<std::string>& argumentos, const std::string& entrada = {}) {
    std::istringstream fluxo{entrada};
    std::ostringstream saída, erros;
    const int estado = executarLinhaDeComando(argumentos, fluxo, saída, erros);
    return {estado, saída.str(), erros.str()};
}

TEST(LinhaDeComando, SemArquivoOuComOpçãoDesconhecidaMostraOUso) {
    for (const std::vector<std::string>& argumentos :
         {std::vector<std::string>{}, {"--progresso"}, {"--nada", "-"}, {"-x", "-"}, {"-", "--"}}) {
        const auto r = chamar(argumentos, "telas\n");
        EXPECT_EQ(r.estado, 2);
        EXPECT_EQ(r.saída, "");
        EXPECT_TRUE(r.erros.starts_with("uso: varenta-roteiro [--progresso] ARQUIVO…\n")) << r.erros;
    }
}

TEST(LinhaDeComando, AjudaEVersãoNadaExecutam) {
    const auto ajuda = chamar({"--help", "-"}, "telas\n");
    EXPECT_EQ(ajuda.estado, 0);
    EXPECT_TRUE(ajuda.saída.starts_with("uso: varenta-roteiro [--progresso] ARQUIVO…\n")) << ajuda.saída;
    EXPECT_EQ(ajuda.saída.find("Form3"), std::string::npos);
    EXPECT_EQ(ajuda.erros, "");
    const auto versão = chamar({"--progresso", "--version"});
    EXPECT_EQ(versão.estado, 0);
    EXPECT_EQ(versão.saída, "varenta-roteiro 5.0\n"); // the version that the program tells in its window too
}

TEST(LinhaDeComando, TraçoÉAEntradaPadrão) {
    const auto r = chamar({"-"}, "telas\n");
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.saída, "Form3: visível habilitada\n");
    EXPECT_EQ(r.erros, "");
}

TEST(LinhaDeComando, AceitaProgresso) {
    EXPECT_EQ(chamar({"--progresso", "-"}, "telas\n").saída, "Form3: visível habilitada\n");
}

TEST(LinhaDeComando, ComProgressoOsPassosDeUmAjusteAparecem) {
    // Without wind the search ends after its first stage: 100 steps of a quarter, and 35 of the second.
    const PastaTemporaria pasta;
    pasta.gravar("e.TXT", "a\nb\nc\nd\ne\n2\n6\n0\n45\n1\n1\t2\n3\t4\n");
    const auto roteiro =
        pasta.gravar("a.roteiro", "clicar Form3.TX15c\nclicar form_AjVen.Command4\nresponder sim\n"
                                  "arquivo e.TXT\nclicar Form_E1.Option5\n"
                                  "clicar form_AjVen.Command5\n");
    const auto passos = [](const std::string& saída) {
        std::size_t quantos = 0;
        for (auto i = saída.find("progresso: "); i != std::string::npos; i = saída.find("progresso: ", i + 1))
            ++quantos;
        return quantos;
    };
    EXPECT_EQ(passos(chamar({roteiro}).saída), 0u);
    EXPECT_EQ(passos(chamar({"--progresso", roteiro}).saída), 102u); // the deviation's own besides
}

TEST(LinhaDeComando, VáriosArquivosCorremTodosEOPiorEstadoVence) {
    const PastaTemporaria pasta;
    const auto bom = pasta.gravar("bom.roteiro", "clicar Form3.TX20B\ntelas\n");
    const auto errado = pasta.gravar("errado.roteiro", "fazer\n");
    const auto ausente = pasta.caminho("ausente.roteiro");
    const std::string telas = "Form3: oculta desabilitada\nform1: visível habilitada\n";

    EXPECT_EQ(chamar({bom, bom}).estado, 0);
    EXPECT_EQ(chamar({bom, bom}).saída, telas + telas);
    EXPECT_EQ(chamar({ausente, bom}).estado, 1);
    EXPECT_EQ(chamar({ausente, bom}).saída, telas);
    const auto r = chamar({errado, ausente, bom});
    EXPECT_EQ(r.estado, 2);
    EXPECT_EQ(r.saída, telas);
    EXPECT_EQ(r.erros,
              errado + ":1: comando desconhecido: fazer\n" + ausente + ": o arquivo ou a pasta não existe\n");
}

} // namespace
} // namespace varenta::teste
