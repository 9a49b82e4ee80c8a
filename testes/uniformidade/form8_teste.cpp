#include "uniformidade/form8.h"

#include "apoio/faixa_feita_a_mao.h"
#include "apoio/pasta_temporaria.h"

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

class TabelaDaFaixa : public FaixaFeitaÀMão {
  protected:
    static Textos linha(int l) {
        Textos células;
        for (int c = 0; c < form8->flexGrid_C.colunas; ++c) células.push_back(form8->flexGrid_C.célula(l, c));
        return células;
    }
    void abrir() {
        calcular();
        clicar("Command3");
    }
    static void salvar() { atos::clicar(alvo(form8, "Command1")); }
    /// The run's texts that the report repeats.
    static void escreverDados() {
        form4->Label1.texto = "Pressão: 50 m.c.a.";
        form4->Label2.texto = "Bocais: 18 x 6 mm";
        form4->Label3.texto = "Ângulo: 360 graus";
        form4->Label4.texto = "Velocidade: 40 m/h";
        form4->Label8.texto = "Vazão: 0.16 m³/h";
        form4->Label7.texto = "Raio: 3.00 m";
        form4->Label37.texto = "Velocidade do Vento: 0.0 m/s";
        form4->Label38.texto = "Direção do Vento: 0º";
        form4->Label16.texto = "91.00";
        form4->Label17.texto = "0.60";
        form5->Label39.texto = "Espaçamento: 4 m";
    }
};

TEST_F(TabelaDaFaixa, TemUmaLinhaPorLinhaDoCampoEUmaColunaPorPosição) {
    calcular();
    EXPECT_EQ(form8->flexGrid_C.linhas, 10);
    EXPECT_EQ(form8->flexGrid_C.colunas, 3);
    EXPECT_EQ(linha(0), (Textos{"", "1  m", "3  m"}));
    EXPECT_EQ(linha(1), (Textos{"-3  m", "0.000", "0.000"}));
    EXPECT_EQ(linha(3), (Textos{"1  m", "0.000", "0.000"}));
    EXPECT_EQ(linha(4), (Textos{"3  m", "0.500", "0.500"}));
    EXPECT_EQ(linha(5), (Textos{"5  m", "1.000", "1.000"}));
    EXPECT_EQ(linha(6), (Textos{"7  m", "1.000", "1.000"}));
    EXPECT_EQ(linha(7), (Textos{"9  m", "0.500", "0.500"}));
    EXPECT_EQ(linha(9), (Textos{"13  m", "0.000", "0.000"}));
}

TEST_F(TabelaDaFaixa, PosiçõesEDistânciasTêmSóOsDígitosQuePrecisam) {
    form7->Combo2.texto = "1.5";
    form4->cmbEspaçamento.texto = "6";
    calcularPerfilTransversal();
    calcular();
    // 6 points across from -3.75 m on; four positions between the lanes.
    EXPECT_EQ(linha(0), (Textos{"", "0.75  m", "2.25  m", "3.75  m", "5.25  m"}));
    EXPECT_EQ(linha(1)[0], "-3.75  m");
    EXPECT_EQ(linha(2)[0], "-2.25  m");
}

TEST_F(TabelaDaFaixa, ACadaCálculoÉEsvaziadaERefeita) {
    calcular();
    form8->flexGrid_C.escrever(1, 1, "resto");
    digitar("txtMan", "8");
    form4->cmbEspaçamento.texto = "2";
    calcular();
    EXPECT_EQ(form8->flexGrid_C.linhas, 9);
    EXPECT_EQ(form8->flexGrid_C.colunas, 2);
    EXPECT_EQ(linha(0), (Textos{"", "1  m"}));
    EXPECT_EQ(linha(1), (Textos{"-3  m", "0.000"}));
}

TEST_F(TabelaDaFaixa, OsOutrosAspersoresTêmOSeuNomeNoTítulo) {
    abrirForm5("TX20B");
    abrir();
    EXPECT_EQ(form8->Caption, "Distribuição de Água na Faixa Irrigada - Aspersor KELMO-TX 20");
    abrirForm5("TX30B");
    abrir();
    EXPECT_EQ(form8->Caption, "Distribuição de Água na Faixa Irrigada - Aspersor KELMO-TX 30");
}

TEST_F(TabelaDaFaixa, FecharEACaixaDeFecharEscondemSemPerderNada) {
    abrir();
    atos::clicar(alvo(form8, "Command3"));
    EXPECT_TRUE(form8.carregada());
    EXPECT_FALSE(form8.visivel);
    clicar("Command3");
    EXPECT_TRUE(form8.visivel);
    atos::fechar(form8);
    EXPECT_FALSE(form8.visivel);
    EXPECT_EQ(form8->flexGrid_C.linhas, 10);
    EXPECT_EQ(form8->Label1.texto, "CUC = 46.67 %");
}

TEST_F(TabelaDaFaixa, RelatórioComParadasSaiLetraPorLetra) {
    escreverDados();
    pararNasPontas();
    abrir();
    const PastaTemporaria pasta;
    arquivos = {pasta.caminho("faixa.TXT")};
    salvar();
    EXPECT_EQ(caderno, Textos{"salvar: Text files|*.TXT|All files|*.* TXT"});
    EXPECT_EQ(pasta.bytes("faixa.TXT"), "VARENTA - Versão 4.0\r\n"
                                        "Distribuição de Água na Faixa Irrigada - Aspersor KELMO-TX 15\r\n"
                                        "\r\n"
                                        "Pressão: 50 m.c.a.\r\n"
                                        "Bocais: 18 x 6 mm\r\n"
                                        "Ângulo: 360 graus\r\n"
                                        "Velocidade: 40 m/h\r\n"
                                        "Vazão: 0.16 m³/h\r\n"
                                        "Espaçamento: 4 m\r\n"
                                        "Raio: 3.00 m\r\n"
                                        "Início de Faixa:\r\n"
                                        "Início da Faixa Irrigada: -1 m\r\n"
                                        "Tempo de Parada - Tpi 12 min\r\n"
                                        "CUC 33.33 %\r\n"
                                        "Imédio 1.50 mm\r\n"
                                        "Fim da Faixa:\r\n"
                                        "Final da Faixa Irrigada: 13 m\r\n"
                                        "Tempo de Parada - Tpf 30 min\r\n"
                                        "CUC 33.33 %\r\n"
                                        "Imédio 3.50 mm\r\n"
                                        "Toda Faixa:\r\n"
                                        "Comprimento Carreador - Cc 10 m\r\n"
                                        "CUC Centro da Faixa 91.00 %\r\n"
                                        "Imédio Centro da Faixa 0.60 mm\r\n"
                                        "CUC Toda Faixa 22.06 %\r\n"
                                        "Imédio Toda Faixa 2.13 mm\r\n"
                                        "Velocidade do Vento: 0.0 m/s\r\n"
                                        "Direção do Vento: 0º\r\n"
                                        "\t1  m\t3  m\t\r\n"
                                        "-3  m\t0.000\t0.000\t\r\n"
                                        "-1  m\t0.000\t0.000\t\r\n"
                                        "1  m\t2.000\t2.000\t\r\n"
                                        "3  m\t2.500\t2.500\t\r\n"
                                        "5  m\t1.000\t1.000\t\r\n"
                                        "7  m\t1.000\t1.000\t\r\n"
                                        "9  m\t5.500\t5.500\t\r\n"
                                        "11  m\t5.000\t5.000\t\r\n"
                                        "13  m\t0.000\t0.000\t\r\n"
                                        "\r\n");
}

TEST_F(TabelaDaFaixa, RelatórioSemParadasEscreveZero) {
    abrir();
    const PastaTemporaria pasta;
    arquivos = {pasta.caminho("faixa.TXT")};
    salvar();
    const auto bytes = pasta.bytes("faixa.TXT");
    EXPECT_NE(bytes.find("\r\nTempo de Parada - Tpi 0 min\r\n"), std::string::npos) << bytes;
    EXPECT_NE(bytes.find("\r\nTempo de Parada - Tpf 0 min\r\n"), std::string::npos) << bytes;
}

TEST_F(TabelaDaFaixa, RelatórioSubstituiOArquivoInteiro) {
    abrir();
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("faixa.TXT", std::string(100000, 'x'));
    arquivos = {caminho, pasta.caminho("outro.TXT")};
    salvar();
    salvar();
    EXPECT_EQ(pasta.bytes("faixa.TXT"), pasta.bytes("outro.TXT"));
    EXPECT_EQ(pasta.nomes(), (std::set<std::string>{"faixa.TXT", "outro.TXT"}));
}

TEST_F(TabelaDaFaixa, UmaMudançaEmForm5DesabilitaSalvarAtéONovoCálculo) {
    abrir();
    EXPECT_TRUE(form8->Command1.habilitado);
    digitar("txtMan", "12");
    EXPECT_FALSE(form8->Command1.habilitado);
    calcular();
    EXPECT_TRUE(form8->Command1.habilitado);
}

TEST_F(TabelaDaFaixa, SalvarDesistidoOuImpossívelNãoEscreveNemPerdeNada) {
    abrir();
    const PastaTemporaria pasta;
    arquivos = {std::nullopt, pasta.caminho("falta/faixa.TXT")};
    salvar();
    EXPECT_EQ(caderno.size(), 1u);
    salvar();
    EXPECT_EQ(caderno.back(), "mensagem: O arquivo não pôde ser salvo: o arquivo ou a pasta não existe!");
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{});
    EXPECT_TRUE(form8.visivel);
    EXPECT_EQ(form8->flexGrid_C.linhas, 10);
}

} // namespace
} // namespace varenta::teste
