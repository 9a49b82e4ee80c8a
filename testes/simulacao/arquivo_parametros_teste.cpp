#include "simulacao/arquivo_parametros.h"

#include "apoio/pasta_temporaria.h"
#include "apoio/simulacao_feita_a_mao.h"
#include "comum/arquivo_texto.h"

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

const Textos linhasVálidas = {"TX20 de ensaio", "30 x 6", "55", "61.2345", "52.345", "0.0123456", "0.5", "-1",
                              "1e-3",           "+.25",   "7"};

class ArquivoDeParâmetros : public testing::Test {
  protected:
    void SetUp() override {
        abrirForm7();
        for (auto* caixa : parâmetros()) caixa->texto.clear();
    }

    static std::array<CaixaTexto*, 6> parâmetros() {
        auto& f = *form7.operator->();
        return {&f.Text2, &f.Text3, &f.Text4, &f.Text5, &f.Text6, &f.Text7};
    }
    static Textos textosDosParâmetros() {
        Textos textos;
        for (const auto* caixa : parâmetros()) textos.push_back(caixa->texto);
        return textos;
    }

    /// Reads a file of these lines; returns what is told.
    Textos ler(const Textos& linhas) {
        caderno.clear();
        std::string bytes;
        for (const auto& linha : linhas) bytes += linha + "\r\n";
        lerArquivoDeParametros(pasta.gravar("parametros.TXT", bytes));
        return caderno;
    }
    /// The same with one line (from 1) replaced.
    Textos lerCom(std::size_t linha, std::string texto) {
        auto linhas = linhasVálidas;
        linhas.at(linha - 1) = std::move(texto);
        return ler(linhas);
    }
    /// The first lines only.
    Textos lerAté(std::size_t quantas) {
        return ler(
            Textos(linhasVálidas.begin(), linhasVálidas.begin() + static_cast<std::ptrdiff_t>(quantas)));
    }

    PastaTemporaria pasta;
};

TEST_F(ArquivoDeParâmetros, ArquivoVálidoPreencheAspersorEParâmetros) {
    EXPECT_EQ(ler(linhasVálidas), Textos{});
    EXPECT_EQ(form7->Label20.texto, "ASPERSOR: TX20 de ensaio");
    EXPECT_EQ(form7->Label19.texto, "Bocais: 30 x 6 mm");
    EXPECT_EQ(form7->Label18.texto, "Pressão: 55 m.c.a.");
    EXPECT_EQ(form7->Label27.texto, "Vazão: 61.23 m³/h");
    EXPECT_EQ(form7->Label28.texto, "Raio: 52.34 m"); // the double 52.345 is a little under
    EXPECT_EQ(textosDosParâmetros(), (Textos{"0.0123", "0.5000", "-1.0000", "0.0010", "0.2500", "7.0000"}));
}

TEST_F(ArquivoDeParâmetros, LêTambémWindows1252ComLFESemFimNaÚltimaLinha) {
    std::string bytes = "Irriga\xE7\xE3o";
    for (std::size_t n = 1; n < linhasVálidas.size(); ++n) bytes += "\n" + linhasVálidas[n];
    lerArquivoDeParametros(pasta.gravar("velho.txt", bytes));
    EXPECT_EQ(caderno, Textos{});
    EXPECT_EQ(form7->Label20.texto, "ASPERSOR: Irrigação");
    EXPECT_EQ(form7->Text7.texto, "7.0000");
}

TEST_F(ArquivoDeParâmetros, LinhasAMaisNãoContam) {
    auto linhas = linhasVálidas;
    linhas.push_back("mais uma");
    EXPECT_EQ(ler(linhas), Textos{});
    EXPECT_EQ(form7->Text7.texto, "7.0000");
}

TEST_F(ArquivoDeParâmetros, PressãoNãoNuméricaEncerraALeituraDepoisDeAspersorEBocais) {
    for (const char* texto : {"", "alta", "55 mca", "1e400"}) {
        EXPECT_EQ(lerCom(3, texto), Textos{"mensagem: Valor de pressão inválido!"}) << texto;
        EXPECT_EQ(form7->Label20.texto, "ASPERSOR: TX20 de ensaio");
        EXPECT_EQ(form7->Label19.texto, "Bocais: 30 x 6 mm");
        EXPECT_EQ(form7->Label18.texto, "Pressão: 50 m.c.a.");
        EXPECT_EQ(form7->Label27.texto, "Vazão: 29.13 m³/h");
        EXPECT_EQ(textosDosParâmetros(), Textos(6));
    }
}

TEST_F(ArquivoDeParâmetros, PressãoForaDe30A70TemASuaMensagem) {
    for (const char* texto : {"29.9", "70.1", "-50", "0"})
        EXPECT_EQ(lerCom(3, texto), Textos{"mensagem: O valor de pressão deve estar entre 30 - 70 m.c.a.!"})
            << texto;
    EXPECT_EQ(form7->Label18.texto, "Pressão: 50 m.c.a.");
    for (const char* texto : {"30", "70", "42.5"}) {
        EXPECT_EQ(lerCom(3, texto), Textos{});
        EXPECT_EQ(form7->Label18.texto, std::string{"Pressão: "} + texto + " m.c.a.");
    }
}

TEST_F(ArquivoDeParâmetros, VazãoNãoNuméricaOuNãoPositivaÉInválida) {
    for (const char* texto : {"", "x", "0", "-1"}) {
        EXPECT_EQ(lerCom(4, texto), Textos{"mensagem: Valor de vazão inválido!"}) << texto;
        EXPECT_EQ(form7->Label18.texto, "Pressão: 55 m.c.a.");
        EXPECT_EQ(form7->Label27.texto, "Vazão: 29.13 m³/h");
    }
}

TEST_F(ArquivoDeParâmetros, RaioNãoNuméricoOuNãoPositivoÉInválido) {
    for (const char* texto : {"", "x", "0", "-1"}) {
        EXPECT_EQ(lerCom(5, texto), Textos{"mensagem: Valor de raio de alcance inválido!"}) << texto;
        EXPECT_EQ(form7->Label27.texto, "Vazão: 61.23 m³/h");
        EXPECT_EQ(form7->Label28.texto, "Raio: 42.70 m");
        EXPECT_EQ(textosDosParâmetros(), Textos(6));
    }
}

TEST_F(ArquivoDeParâmetros, CadaParâmetroInválidoTemASuaLetraEOsLidosAntesFicam) {
    const Textos lidos = {"0.0123", "0.5000", "-1.0000", "0.0010", "0.2500", "7.0000"};
    for (std::size_t n = 0; n < 6; ++n)
        for (const char* texto : {"", "x", "0,5"}) {
            for (auto* caixa : parâmetros()) caixa->texto.clear();
            const char letra = static_cast<char>('A' + n);
            EXPECT_EQ(lerCom(6 + n, texto),
                      Textos{std::string{"mensagem: Parâmetro "} + letra + " inválido!"});
            Textos esperados(6);
            std::copy_n(lidos.begin(), n, esperados.begin());
            EXPECT_EQ(textosDosParâmetros(), esperados);
            EXPECT_EQ(form7->Label28.texto, "Raio: 52.34 m");
        }
}

TEST_F(ArquivoDeParâmetros, ArquivoQueTerminaAntesDaHoraÉGrandeDemaisPelaMensagem) {
    for (std::size_t quantas = 0; quantas < 11; ++quantas)
        EXPECT_EQ(lerAté(quantas), Textos{"mensagem: O arquivo é muito grande!"}) << quantas;
    // What ten lines held stays.
    EXPECT_EQ(textosDosParâmetros(), (Textos{"0.0123", "0.5000", "-1.0000", "0.0010", "0.2500", ""}));
    EXPECT_EQ(form7->Label20.texto, "ASPERSOR: TX20 de ensaio");
}

TEST_F(ArquivoDeParâmetros, ArquivoVazioNãoMudaNada) {
    EXPECT_EQ(lerAté(0), Textos{"mensagem: O arquivo é muito grande!"});
    EXPECT_EQ(form7->Label20.texto, "ASPERSOR: KELMO-TX15");
}

TEST_F(ArquivoDeParâmetros, ArquivoQueNãoAbreDizPorQuê) {
    lerArquivoDeParametros(pasta.caminho("falta.TXT"));
    lerArquivoDeParametros(pasta.caminho(""));
    EXPECT_EQ(caderno, (Textos{"mensagem: O arquivo não pôde ser aberto: o arquivo ou a pasta não existe!",
                               "mensagem: O arquivo não pôde ser aberto: é uma pasta, e não um arquivo!"}));
    EXPECT_EQ(form7->Label20.texto, "ASPERSOR: KELMO-TX15");
}

TEST_F(ArquivoDeParâmetros, ParâmetroLidoDesabilitaOCaminhoAdiante) {
    form7->cmdUniformidade.habilitado = form7->Command3.habilitado = true;
    ler(linhasVálidas);
    EXPECT_FALSE(form7->cmdUniformidade.habilitado);
    EXPECT_FALSE(form7->Command3.habilitado);
}

TEST_F(ArquivoDeParâmetros, OQueFoiGravadoComQuatroCasasVoltaIgual) {
    auto linhas = linhasVálidas;
    const Textos parâmetros = {"0.0362", "0.0131", "-0.0097", "0.0026", "0.4003", "-0.3361"};
    std::copy(parâmetros.begin(), parâmetros.end(), linhas.begin() + 5);
    std::string texto;
    for (const auto& linha : linhas) texto += linha + "\r\n";
    gravarTexto(pasta.caminho("ida.TXT"), texto);
    lerArquivoDeParametros(pasta.caminho("ida.TXT"));
    EXPECT_EQ(textosDosParâmetros(), parâmetros);
}

} // namespace
} // namespace varenta::teste
