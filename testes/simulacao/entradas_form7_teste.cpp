#include "simulacao/entradas_form7.h"

#include "apoio/simulacao_feita_a_mao.h"

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

constexpr auto espaçamentoInválido =
    "mensagem: O valor de espaçamento entre coletores deve ser 1.5 m, 2.0 m, 3.0 m ou 6.0 m!";
constexpr auto velocidadeNãoNumérica = "mensagem: Insira um valor numérico de velocidade do aspersor!";
constexpr auto velocidadeForaDaFaixa =
    "mensagem: O valor de velocidade do aspersor deve ser maior que zero e menor que 300 m/h!";

class EntradasDaSimulação : public testing::Test {
  protected:
    void SetUp() override { abrirForm7(); }

    void digitar(std::string_view nome, std::string texto) {
        atos::digitar(alvo(form7, nome), std::move(texto));
    }
    void calcular() { atos::clicar(alvo(form7, "Command2")); }
    /// What "&Calcular Lâminas" tells with that text in the box.
    Textos com(std::string_view nome, std::string texto) {
        caderno.clear();
        digitar(nome, std::move(texto));
        calcular();
        return caderno;
    }
};

TEST_F(EntradasDaSimulação, EspaçamentoDigitadoComo2Passa) {
    EXPECT_EQ(com("Combo2", "2"), Textos{});
    EXPECT_EQ(form7->Combo2.texto, "2");
    for (const char* texto : {"1.5", "2.0", "3", "6.00", " 6 m"}) EXPECT_EQ(com("Combo2", texto), Textos{});
}

TEST_F(EntradasDaSimulação, Espaçamento2_5NãoPassaEVaiPara2_0) {
    EXPECT_EQ(com("Combo2", "2.5"), Textos{espaçamentoInválido});
    EXPECT_EQ(com("Combo2", "1e400"), Textos{espaçamentoInválido});
    EXPECT_EQ(form7->Combo2.texto, "2.0");
    EXPECT_FALSE(form7->cmdUniformidade.habilitado);
    for (const char* texto : {"", "abc", "0", "-2", "1.51", "1,5"}) {
        EXPECT_EQ(com("Combo2", texto), Textos{espaçamentoInválido}) << texto;
        EXPECT_EQ(form7->Combo2.texto, "2.0");
    }
}

TEST_F(EntradasDaSimulação, Velocidade300ÉAceita) {
    for (const char* texto : {"300", " 300 ", "3e2", "0.5"}) {
        EXPECT_EQ(com("Text1", texto), Textos{}) << texto;
        EXPECT_EQ(form7->Text1.texto, texto);
    }
}

TEST_F(EntradasDaSimulação, Velocidade300_1EZeroNãoSãoAceitasEVoltaPara50) {
    for (const char* texto : {"300.1", "0", "-1", "0.0", "1e10"}) {
        EXPECT_EQ(com("Text1", texto), Textos{velocidadeForaDaFaixa}) << texto;
        EXPECT_EQ(form7->Text1.texto, "50");
        EXPECT_EQ(form7->Label23.texto, "Velocidade = 50 m/h");
    }
}

TEST_F(EntradasDaSimulação, VelocidadeNãoNuméricaOuVaziaTemAPrimeiraMensagem) {
    for (const char* texto : {"", "abc", "50 m/h", "1,5", "inf", "1e400"}) {
        EXPECT_EQ(com("Text1", texto), Textos{velocidadeNãoNumérica}) << texto;
        EXPECT_EQ(form7->Text1.texto, "50");
    }
}

TEST_F(EntradasDaSimulação, AMensagemDeVelocidadeInválidaEstáNaLinhaQueRecusaOTextoVazio) {
    // No text reaches it past the check before, which refuses the empty text too.
    const auto& linha = verificaçõesDaVelocidade[1];
    EXPECT_TRUE(linha.recusa(""));
    EXPECT_FALSE(linha.recusa("50"));
    EXPECT_STREQ(linha.mensagem, "Valor de velocidade do aspersor inválido!");
    EXPECT_STREQ(primeiraRecusa(std::span{verificaçõesDaVelocidade}.subspan(1), ""),
                 "Valor de velocidade do aspersor inválido!");
}

TEST_F(EntradasDaSimulação, CadaParâmetroNãoNuméricoTemASuaMensagemÉEsvaziadoETomaOFoco) {
    char letra = 'A';
    for (const char* nome : {"Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}) {
        const auto mensagem =
            std::string{"mensagem: Insira um valor numérico para o parâmetro "} + letra++ + "!";
        auto& caixa = *std::get<CaixaTexto*>(alvo(form7, nome).elemento.controle);
        const auto padrão = caixa.texto;
        for (const char* texto : {"abc", "0,5", "1e400", ""}) {
            EXPECT_EQ(com(nome, texto), Textos{mensagem});
            EXPECT_EQ(caixa.texto, "");
            EXPECT_EQ(controleComFoco, &caixa);
        }
        EXPECT_EQ(com(nome, padrão), Textos{});
    }
}

TEST_F(EntradasDaSimulação, ATabelaDosParâmetrosRecusaOQueNãoÉNúmeroEOVazio) {
    EXPECT_TRUE(recusasDeParâmetro[0]("abc"));
    EXPECT_TRUE(recusasDeParâmetro[1](""));
    for (const auto recusa : recusasDeParâmetro) EXPECT_FALSE(recusa("-0.3361"));
}

TEST_F(EntradasDaSimulação, AsVerificaçõesParamNaPrimeiraFalhaNaSuaOrdem) {
    digitar("Combo2", "4");
    digitar("Text1", "0");
    digitar("Text3", "b");
    digitar("Text6", "e");
    for (int vez = 0; vez < 4; ++vez) calcular();
    EXPECT_EQ(caderno, (Textos{espaçamentoInválido, velocidadeForaDaFaixa,
                               "mensagem: Insira um valor numérico para o parâmetro B!",
                               "mensagem: Insira um valor numérico para o parâmetro B!"}));
    EXPECT_EQ(form7->Text6.texto, "e");
}

TEST_F(EntradasDaSimulação, UmaRecusaDeixaATabelaComoEstava) {
    const auto antes = form7->flexA.células;
    const auto traços = form7->Picture2.versão;
    EXPECT_EQ(com("Text4", "x").size(), 1u);
    EXPECT_EQ(form7->flexA.células, antes);
    EXPECT_EQ(form7->Picture2.versão, traços);
}

} // namespace
} // namespace varenta::teste
