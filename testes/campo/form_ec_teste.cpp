#include "campo/form_ec.h"

#include "apoio/ensaios.h"
#include "apoio/pasta_temporaria.h"
#include "campo/arquivo_movel.h"
#include "campo/vazao_ec.h"
#include "simulacao/form7.h"

namespace varenta::teste {
namespace {

const std::string não = "mensagem: O arquivo não pode ser aberto, consulte a ajuda!";
const std::string perguntaDoArquivo =
    "pergunta: O arquivo deve estar na extensão: *.TXT separado por tabulações!";

class EnsaioDeCampo : public testing::Test {
  protected:
    void SetUp() override { abrirFormEC("EnsCampo", {{"1", "2"}, {"3", "4"}, {"5", "6"}, {"7", "8"}}); }

    static const std::string& célula(int linha, int coluna) { return formEC->flex_A.célula(linha, coluna); }
    static std::vector<std::string> coluna(int coluna) {
        std::vector<std::string> textos;
        for (int l = 0; l < formEC->flex_A.linhas; ++l) textos.push_back(célula(l, coluna));
        return textos;
    }
    static void esperarRecusa(const char* botão, const std::string& mensagem) {
        caderno.clear();
        clicar(formEC, botão);
        EXPECT_EQ(caderno, std::vector{"mensagem: " + mensagem});
        EXPECT_TRUE(formEC.visivel);
    }
};

TEST_F(EnsaioDeCampo, AbreComAsListasPadrão) {
    recomeçar();
    clicar(form3, "EnsCampo");
    const auto& f = *formEC.operator->();
    EXPECT_EQ(formEC.caption(), "Perfil Móvel Determinado em Campo");
    EXPECT_EQ(f.Combo1.texto + " " + f.Combo2.texto + " " + f.Combo3.texto + " " + f.Combo4.texto,
              "3 6.0 20 2.0");
    EXPECT_EQ(f.Combo1.itens.size(), 10U);
    EXPECT_EQ(f.Combo2.itens.front() + " " + f.Combo2.itens.back(), "1.0 12.0");
    EXPECT_EQ(f.Combo3.itens.front() + " " + f.Combo3.itens.back(), "3 40");
    EXPECT_EQ(f.Combo4.itens, (std::vector<std::string>{"1.0", "1.5", "2.0", "3.0", "6.0"}));
    EXPECT_TRUE(f.Option4.marcada && f.Option1.marcada);
    EXPECT_EQ(f.flex_A.linhas, 41);
    EXPECT_EQ(f.flex_A.colunas, 4);
    EXPECT_EQ(f.lblPreenchidas.texto, "Células preenchidas: 0 de 120");
    EXPECT_EQ(f.Label6.texto, "Ce20 = 39 m : Linha 1 - I(mm)");
    EXPECT_FALSE(form3.visivel);
}

TEST_F(EnsaioDeCampo, CadaItemDoMenuMostraOSeuBotão) {
    EXPECT_TRUE(formEC->Command4.visivel);
    EXPECT_FALSE(formEC->Command6.visivel);
    recomeçar();
    clicar(form3, "PerfRad");
    EXPECT_FALSE(formEC->Command4.visivel);
    EXPECT_TRUE(formEC->Command6.visivel);
}

TEST_F(EnsaioDeCampo, OsCabeçalhosDizemLinhaLadoEDistância) {
    EXPECT_EQ(coluna(0), (std::vector<std::string>{"", "Ce2 = 3 m", "Ce1 = 1 m", "Cd1 = 1 m", "Cd2 = 3 m"}));
    EXPECT_EQ(célula(0, 1), "Linha 1 - I(mm)");
    EXPECT_EQ(célula(0, 2), "Linha 2 - I(mm)");
    escolher(formEC, "Combo4", "1.5");
    EXPECT_EQ(coluna(0),
              (std::vector<std::string>{"", "Ce2 = 2.25 m", "Ce1 = 0.75 m", "Cd1 = 0.75 m", "Cd2 = 2.25 m"}));
    clicar(formEC, "Option3");
    EXPECT_EQ(célula(0, 2), "Linha 2 - I(ml)");
    EXPECT_EQ(célula(1, 1), "1.000") << "unit and spacing keep the readings";
}

TEST_F(EnsaioDeCampo, MudarONúmeroDeLinhasDescartaOQueFoiDigitado) {
    escolher(formEC, "Combo1", "3");
    EXPECT_EQ(formEC->flex_A.colunas, 4);
    EXPECT_EQ(coluna(1), (std::vector<std::string>{"Linha 1 - I(mm)", "", "", "", ""}));
    EXPECT_EQ(formEC->lblPreenchidas.texto, "Células preenchidas: 0 de 12");
}

TEST_F(EnsaioDeCampo, MudarONúmeroDeColetoresDescartaOQueFoiDigitado) {
    escolher(formEC, "Combo3", "3");
    EXPECT_EQ(formEC->flex_A.linhas, 7);
    EXPECT_EQ(célula(1, 0), "Ce3 = 5 m");
    EXPECT_EQ(formEC->lblPreenchidas.texto, "Células preenchidas: 0 de 12");
}

TEST_F(EnsaioDeCampo, EscolherOMesmoNúmeroFicaComOQueFoiDigitado) {
    escolher(formEC, "Combo1", "2");
    EXPECT_EQ(célula(4, 2), "8.000");
}

TEST_F(EnsaioDeCampo, OTextoDeUmaListaValeAoSair) {
    digitar(formEC, "Combo1", "1");
    digitar(formEC, "Combo1", "12");
    EXPECT_EQ(formEC->flex_A.colunas, 3) << "nothing yet, while it is typed";
    atos::moverMouse(formEC);
    EXPECT_EQ(formEC->flex_A.colunas, 3) << "nor for a move of the mouse";
    digitar(formEC, "Text6", "A");
    EXPECT_EQ(formEC->flex_A.colunas, 13);
    EXPECT_EQ(célula(0, 12), "Linha 12 - I(mm)");
}

TEST_F(EnsaioDeCampo, OTextoDeUmaListaValeComEnter) {
    digitar(formEC, "Combo3", "1");
    EXPECT_TRUE(atos::háTextoPorConfirmar());
    atos::confirmar();
    EXPECT_FALSE(atos::háTextoPorConfirmar());
    EXPECT_EQ(formEC->flex_A.linhas, 3);
    digitar(formEC, "Text6", "A");
    EXPECT_FALSE(atos::háTextoPorConfirmar());
}

TEST_F(EnsaioDeCampo, OQueSeDigitavaNumaTelaQueSeFoiNãoVale) {
    digitar(formEC, "Combo3", "7");
    formEC.descarregar();
    form3.mostrar();
    clicar(form3, "EnsCampo");
    EXPECT_EQ(formEC->Combo3.texto, "20");
    EXPECT_EQ(formEC->flex_A.linhas, 41);
}

TEST_F(EnsaioDeCampo, UmaListaSemNúmeroDeixaAPlanilha) {
    for (const auto* texto : {"", "duas", "0", "-1"}) {
        digitar(formEC, "Combo1", texto);
        atos::confirmar();
        EXPECT_EQ(formEC->flex_A.colunas, 3);
        EXPECT_EQ(célula(1, 1), "1.000");
    }
    EXPECT_EQ(caderno, std::vector<std::string>{});
}

const std::string grandeDemais =
    "mensagem: A planilha pode ter no máximo 10000 linhas, 10000 colunas e 2000000 células!";

TEST_F(EnsaioDeCampo, UmaPlanilhaGrandeDemaisÉRecusadaAntesDaMemória) {
    for (const auto* texto : {"5001", "5000000", "1e9", "1e20"}) {
        caderno.clear();
        digitar(formEC, "Combo3", texto);
        atos::confirmar();
        EXPECT_EQ(caderno, std::vector{grandeDemais}) << texto;
        EXPECT_EQ(formEC->flex_A.linhas, 5);
        EXPECT_EQ(célula(1, 1), "1.000");
    }
    // 10,000 rows for 200 lines are the most cells.
    digitar(formEC, "Combo3", "5000");
    digitar(formEC, "Combo1", "200");
    atos::confirmar();
    EXPECT_EQ(formEC->flex_A.linhas, 10001);
    EXPECT_EQ(formEC->flex_A.colunas, 201);
    caderno.clear();
    digitar(formEC, "Combo1", "201");
    atos::confirmar();
    EXPECT_EQ(caderno, std::vector{grandeDemais});
    EXPECT_EQ(formEC->flex_A.colunas, 201);
}

TEST_F(EnsaioDeCampo, MuitosColetoresSeDesenhamComoLinhas) {
    digitar(formEC, "Combo3", "5000");
    atos::confirmar();
    // Two lines of 5,000 collectors a side: each with its two circles, and the lane's three strokes.
    EXPECT_EQ(formEC->Picture1.traços.size(), 3U + 2 * (1 + 20000));
    digitar(formEC, "Combo1", "3");
    atos::confirmar();
    EXPECT_EQ(formEC->Picture1.traços.size(), 3U + 3);
}

TEST_F(EnsaioDeCampo, ListasQueNãoFizeramAPlanilhaNãoSeUsam) {
    digitar(formEC, "Text12", "30");
    const auto recusa = [](const char* nome, const char* texto, const char* mensagem) {
        const auto antes = std::get<Lista*>(formEC.achar(nome, std::nullopt)->controle)->texto;
        for (const auto* botão : {"Command1", "Command4"}) {
            digitar(formEC, nome, texto);
            atos::confirmar();
            esperarRecusa(botão, mensagem);
            EXPECT_EQ(controleComFoco, std::get<Lista*>(formEC.achar(nome, std::nullopt)->controle)) << texto;
        }
        digitar(formEC, nome, antes);
        atos::confirmar();
        EXPECT_EQ(célula(1, 1), "1.000") << texto;
    };
    for (const auto* texto : {"", "duas", "0", "0.4", "5000000", "1e9", "1e20"}) {
        recusa("Combo1", texto, "Número de linhas de coletores inválido!");
        recusa("Combo3", texto, "Número de coletores em cada lada linha inválido!");
    }
}

TEST_F(EnsaioDeCampo, ListasQueNãoFizeramAPlanilhaNãoDãoPerfilRadial) {
    abrirFormEC("PerfRad", {{"1"}, {"2"}, {"2"}, {"1"}});
    digitar(formEC, "Combo3", "1e9");
    atos::confirmar();
    esperarRecusa("Command6", "Número de coletores em cada lada linha inválido!");
}

TEST_F(EnsaioDeCampo, UmEnsaioEstreitoDemaisNãoSeSobrepõe) {
    // One collector a side, 2 m apart: 4 m, and the smallest spacing is 6 m.
    abrirFormEC("EnsCampo", {{"1"}, {"1"}});
    digitar(formEC, "Text12", "30");
    esperarRecusa("Command4", "A largura molhada do ensaio deve ser de 6 m ou mais!");
    escolher(formEC, "Combo4", "3.0");
    respostas = {};
    clicar(formEC, "Command4");
    EXPECT_EQ(formUnifo->cmbEspaçamento.itens, std::vector<std::string>{"6"});
    EXPECT_EQ(respiros, 1); // at each spacing, since there may be thousands
}

// What the entry line holds counts without an Enter.

TEST_F(EnsaioDeCampo, OQueSeDigitouSemEnterVale) {
    digitar(formEC, "Text12", "30");
    const auto digitarNaCélula = [](const char* texto) {
        atos::irParaCélula(alvo(formEC, "flex_A"), 2, 1);
        digitar(formEC, "Text5", texto);
    };
    digitarNaCélula("x");
    esperarRecusa("Command1", "Insira um valores numéricos!");
    digitarNaCélula("");
    esperarRecusa("Command4", "Há alguma célula da planilha vazia!");
    digitarNaCélula("3.25");
    clicar(formEC, "Command4");
    EXPECT_TRUE(formUnifo.visivel);
    EXPECT_EQ(célula(2, 1), "3.250");
}

TEST_F(EnsaioDeCampo, OQueSeDigitouSemEnterValeParaOPerfilRadial) {
    abrirFormEC("PerfRad", {{"1"}, {"2"}, {"2"}, {"1"}});
    atos::irParaCélula(alvo(formEC, "flex_A"), 1, 1);
    digitar(formEC, "Text5", "y");
    esperarRecusa("Command6", "Insira valores numéricos!");
}

TEST_F(EnsaioDeCampo, OQueSeDigitouSemEnterFicaComOutroEspaçoUnidadeOuModo) {
    atos::irParaCélula(alvo(formEC, "flex_A"), 1, 2);
    digitar(formEC, "Text5", "9.1");
    escolher(formEC, "Combo4", "3.0");
    EXPECT_EQ(célula(1, 2), "9.100");
    digitar(formEC, "Text5", "9.2");
    clicar(formEC, "Option3");
    EXPECT_EQ(célula(1, 2), "9.200");
    digitar(formEC, "Text5", "9.3");
    clicar(formEC, "Option1");
    EXPECT_EQ(célula(1, 2), "9.300");
    digitar(formEC, "Text5", "9.4");
    respostas = {false};
    clicar(formEC, "Option2");
    EXPECT_EQ(célula(1, 2), "9.400");
    EXPECT_EQ(formEC->Text5.texto, "9.400");
    EXPECT_EQ(controleComFoco, &formEC->Option1);
}

TEST_F(EnsaioDeCampo, ODiâmetroZeroDizOQueConferir) {
    digitar(formEC, "Text12", "30");
    clicar(formEC, "Option3");
    digitar(formEC, "Text7", "0");
    caderno.clear();
    clicar(formEC, "Command4");
    EXPECT_EQ(caderno,
              std::vector<std::string>{"erro: Divisão por zero: confira o diâmetro do coletor e os volumes"});
    EXPECT_TRUE(formEC.visivel);
}

TEST_F(EnsaioDeCampo, AEntradaFormataAndaEConta) {
    atos::preencherCélula(alvo(formEC, "flex_A"), 1, 2, "1.23456");
    EXPECT_EQ(célula(1, 2), "1.235");
    EXPECT_EQ(formEC->Label6.texto, "Ce1 = 1 m : Linha 1 - I(mm)");
    EXPECT_EQ(formEC->Text5.texto, "3.000");
    atos::preencherCélula(alvo(formEC, "flex_A"), 1, 2, "");
    EXPECT_EQ(formEC->lblPreenchidas.texto, "Células preenchidas: 7 de 8");
}

TEST_F(EnsaioDeCampo, ODesenhoMostraLinhasLadosEspaçoESentido) {
    EXPECT_EQ(formEC->lblEspaço.texto, "eC = 2.0 m");
    EXPECT_EQ(formEC->lblDistância.texto, "eL = 6.0 m");
    // 3 strokes of the lane, and for both lines one stroke and 4 collectors of two circles each. Across 3 m
    // have 135 pixels, along 3 m have 80: 80 / 3 pixels a metre.
    const auto& traços = formEC->Picture1.traços;
    ASSERT_EQ(traços.size(), 3U + 2 * (1 + 8));
    const auto& linha = std::get<Linha>(traços[3]);
    EXPECT_NEAR(linha.x1, 150 - 80, 1e-9);
    EXPECT_NEAR(linha.x2, 150 + 80, 1e-9);
    EXPECT_NEAR(linha.y1, 20, 1e-9);
    EXPECT_NEAR(std::get<Arco>(traços[4]).cx, 150 - 80.0 / 3, 1e-9);
    EXPECT_NEAR(std::get<Linha>(traços[12]).y1, 180, 1e-9);
    escolher(formEC, "Combo2", "1.0");
    EXPECT_EQ(formEC->lblDistância.texto, "eL = 1.0 m");
    // Now the width decides: 45 pixels a metre.
    EXPECT_NEAR(std::get<Linha>(formEC->Picture1.traços[3]).x1, 15, 1e-9);
    EXPECT_NEAR(std::get<Linha>(formEC->Picture1.traços[3]).y1, 100 - 22.5, 1e-9);
}

TEST_F(EnsaioDeCampo, UmaDistânciaQueNãoÉComprimentoDeixaSóOCarreador) {
    digitar(formEC, "Combo4", "x");
    atos::confirmar();
    EXPECT_EQ(formEC->Picture1.traços.size(), 3U);
}

TEST_F(EnsaioDeCampo, UmaDistânciaQueNenhumDesenhoAlcançaDeixaSóOCarreador) {
    escolher(formEC, "Combo1", "7");
    digitar(formEC, "Combo2", "1e308"); // 6 spaces of 1e308 m are past the largest double
    atos::confirmar();
    EXPECT_EQ(formEC->Picture1.traços.size(), 3U);
}

TEST_F(EnsaioDeCampo, UmArquivoRecusadoNoCabeçalhoDeixaAsLeituras) {
    recomeçar();
    clicar(form3, "EnsCampo");
    atos::preencherCélula(alvo(formEC, "flex_A"), 1, 1, "5");
    const PastaTemporaria pasta;
    // Three collectors at 1 m, of which there have to be four.
    arquivos = {pasta.gravar("e.TXT", "a\nb\nc\nd\n10\n30\n210\n1\n6\n3\n1\n1\n1\n1\n1\n1\n1\n1\n1\n1\n")};
    respostas = {true};
    clicar(formEC, "Option2");
    EXPECT_EQ(caderno.back(), "mensagem: O número de coletores em cada linha deve ser maior que 4!");
    EXPECT_EQ(formEC->flex_A.célula(1, 1), "5.000");
    EXPECT_EQ(formEC->Combo3.texto, "20");
}

TEST_F(EnsaioDeCampo, LimparEsvaziaCaixasECélulasEDeixaAsListas) {
    for (const auto* nome :
         {"Text6", "Text8", "Text13", "Text11", "Text12", "Text9", "Text1", "Text7", "Text2", "Text3"})
        digitar(formEC, nome, "1");
    clicar(formEC, "Command2");
    const auto& f = *formEC.operator->();
    EXPECT_EQ(f.Text6.texto + f.Text8.texto + f.Text13.texto + f.Text11.texto + f.Text12.texto +
                  f.Text9.texto + f.Text1.texto + f.Text7.texto + f.Text2.texto + f.Text3.texto +
                  f.Text5.texto,
              "");
    EXPECT_EQ(f.lblPreenchidas.texto, "Células preenchidas: 0 de 8");
    EXPECT_EQ(f.Combo1.texto, "2");
    EXPECT_EQ(célula(1, 0), "Ce2 = 3 m");
}

TEST_F(EnsaioDeCampo, FecharDevolveOMenuECadaAberturaComeçaDeNovo) {
    clicar(formEC, "Command5");
    EXPECT_FALSE(formEC.carregada());
    EXPECT_TRUE(form3.visivel);
    clicar(form3, "EnsCampo");
    EXPECT_EQ(formEC->Combo1.texto, "3");
    atos::fechar(formEC);
    EXPECT_TRUE(form3.visivel);
}

// What is checked before going on.

TEST_F(EnsaioDeCampo, ODiâmetroTemDeSerUmNúmeroParaVolumes) {
    clicar(formEC, "Option3");
    for (const auto* texto : {"", "oito"}) {
        digitar(formEC, "Text7", texto);
        esperarRecusa("Command4", "Diâmetro do coletor com valor numérico inválido!");
        EXPECT_EQ(formEC->Text7.texto, "");
    }
}

TEST_F(EnsaioDeCampo, ASobreposiçãoQuerColetoresA2_3Ou6m) {
    for (const auto* espaço : {"1.0", "1.5"}) {
        escolher(formEC, "Combo4", espaço);
        esperarRecusa("Command4", "O espaçamento entre coletores deve ser 2, 3 ou 6 m!");
    }
}

TEST_F(EnsaioDeCampo, OPerfilRadialQuerColetoresDaLista) {
    abrirFormEC("PerfRad", {{"1"}, {"2"}, {"2"}, {"1"}});
    digitar(formEC, "Combo4", "4");
    esperarRecusa("Command6", "O espaçamento entre coletores deve ser 1, 1.5, 2, 3 ou 6 m!");
    for (const auto* espaço : {"1.0", "1.5", "2.0", "3.0", "6.0"}) {
        abrirFormEC("PerfRad", {{"1"}, {"2"}, {"2"}, {"1"}});
        escolher(formEC, "Combo4", espaço);
        respostas = {true, true};
        clicar(formEC, "Command6");
        EXPECT_TRUE(perfil.visivel) << espaço;
    }
}

TEST_F(EnsaioDeCampo, TodasAsCélulasTêmDeEstarPreenchidasAntesDeSeremNúmeros) {
    atos::preencherCélula(alvo(formEC, "flex_A"), 1, 1, "x");
    atos::preencherCélula(alvo(formEC, "flex_A"), 4, 2, "");
    esperarRecusa("Command4", "Há alguma célula da planilha vazia!");
    EXPECT_EQ(formEC->flex_A.linhaAtual, 4);
    EXPECT_EQ(formEC->flex_A.colunaAtual, 2);
    EXPECT_EQ(controleComFoco, &formEC->Text5);
    atos::preencherCélula(alvo(formEC, "flex_A"), 4, 2, "1");
    esperarRecusa("Command4", "Insira valores numéricos!");
}

TEST_F(EnsaioDeCampo, ASobreposiçãoQuerVazãoEVelocidade) {
    esperarRecusa("Command4", "Insira um valor numérico de vazão!");
    digitar(formEC, "Text12", "N/E");
    esperarRecusa("Command4", "Insira um valor numérico de vazão!");
    digitar(formEC, "Text12", "30");
    digitar(formEC, "Text11", "");
    esperarRecusa("Command4", "Insira um valor numérico de velocidade!");
}

TEST_F(EnsaioDeCampo, OPerfilRadialPassaSemVazãoMasNãoComOutraCoisa) {
    abrirFormEC("PerfRad", {{"1"}, {"2"}, {"2"}, {"1"}});
    digitar(formEC, "Text12", "N/E");
    esperarRecusa("Command6", "Insira um valor numérico de vazão!");
    digitar(formEC, "Text12", "");
    digitar(formEC, "Text11", "");
    esperarRecusa("Command6", "Insira um valor numérico de velocidade!");
}

TEST_F(EnsaioDeCampo, AVazãoQueNãoÉNúmeroTemASuaMensagemNoPerfilRadial) {
    // The check before the profile is made refuses it first.
    EXPECT_STREQ(primeiraRecusa(verificaçõesDaVazãoDoEnsaio, "x"), "Valor numérico de vazão inválido!");
    EXPECT_STREQ(primeiraRecusa(verificaçõesDaVazãoDoEnsaio, "0"), "Valor numérico de vazão inválido!");
    EXPECT_EQ(primeiraRecusa(verificaçõesDaVazãoDoEnsaio, "30"), nullptr);
}

// The file.

class ArquivoDoEnsaioDeCampo : public EnsaioDeCampo {
  protected:
    void SetUp() override {
        EnsaioDeCampo::SetUp();
        digitar(formEC, "Text12", "30.5");
    }

    std::string salvar(const char* nome = "ensaio.txt") {
        arquivos = {pasta.caminho(nome)};
        caderno.clear();
        clicar(formEC, "Command1");
        arquivos.clear();
        return pasta.nomes().contains(nome) ? pasta.bytes(nome) : std::string{};
    }
    void esperarQueNãoSalva(const std::string& mensagem) {
        EXPECT_EQ(salvar(), "");
        EXPECT_EQ(caderno, std::vector{"mensagem: " + mensagem});
    }
    void abrir(const std::string& bytes) {
        respostas = {true};
        arquivos = {pasta.gravar("lido.txt", bytes)};
        caderno.clear();
        clicar(formEC, "Option2");
    }
    void esperarQueNãoAbre(const std::string& bytes, const std::string& mensagem = não) {
        clicar(formEC, "Option3");
        abrir(bytes);
        ASSERT_EQ(caderno.size(), 3U) << bytes;
        EXPECT_EQ(caderno.back(), mensagem) << bytes;
        const auto& f = *formEC.operator->();
        EXPECT_TRUE(f.Option1.marcada);
        EXPECT_TRUE(f.Option4.marcada);
        EXPECT_TRUE(f.Text5.visivel);
        EXPECT_EQ(f.Combo1.texto + " " + f.Combo2.texto + " " + f.Combo3.texto + " " + f.Combo4.texto,
                  "3 6.0 20 2.0");
        EXPECT_EQ(f.flex_A.linhas, 41);
        EXPECT_EQ(f.flex_A.colunas, 4);
    }

    PastaTemporaria pasta;
};

const std::string semLeituras = "Canhão A\r\n20 x 7\r\n45\r\n24\r\n30.5\r\n50\r\n360\r\n";
const std::string leituras = "1.000\t2.000\r\n3.000\t4.000\r\n5.000\t6.000\r\n7.000\t8.000";

TEST_F(ArquivoDoEnsaioDeCampo, EmMmTem14LinhasEAsLeiturasSemFimDeLinha) {
    digitar(formEC, "Text6", "Canhão A");
    digitar(formEC, "Text8", "20 x 7");
    digitar(formEC, "Text13", "45");
    digitar(formEC, "Text1", "24");
    digitar(formEC, "Text2", "2.5");
    digitar(formEC, "Text3", "90");
    EXPECT_EQ(salvar(), semLeituras + "2\r\n6.0\r\n2\r\n2.0\r\n2.5\r\n90\r\n1\r\n" + leituras);
    EXPECT_EQ(caderno, std::vector<std::string>{"salvar: Text files|*.TXT|All files|*.* TXT"});
}

TEST_F(ArquivoDoEnsaioDeCampo, UmaLinhaDeLeiturasRecusadaDeixaAsDeAntesDelaENadaDasAnteriores) {
    abrir(semLeituras + "2\r\n6.0\r\n2\r\n6.0\r\n2.5\r\n90\r\n1\r\n9\t9.5\r\n8\tx\r\n7\t7\r\n6\t6");
    const auto& grade = formEC->flex_A;
    ASSERT_EQ(grade.linhas, 5);
    ASSERT_EQ(grade.colunas, 3);
    EXPECT_EQ(grade.célula(1, 1), "9.000");
    EXPECT_EQ(grade.célula(1, 2), "9.500");
    EXPECT_EQ(grade.célula(2, 1), "8.000");
    for (const auto& [l, c] : {std::pair{2, 2}, {3, 1}, {3, 2}, {4, 1}, {4, 2}})
        EXPECT_EQ(grade.célula(l, c), "") << l << " " << c;
}

TEST_F(ArquivoDoEnsaioDeCampo, EmMlTemODiâmetroEOQueEstáVazioÉNãoEspecificado) {
    clicar(formEC, "Option3");
    digitar(formEC, "Text7", "8");
    EXPECT_EQ(salvar(),
              "Não Especificado\r\nN/E\r\nN/E\r\nN/E\r\n30.5\r\n50\r\n360\r\n2\r\n6.0\r\n2\r\n2.0\r\n\r\n"
              "\r\n2\r\n8\r\n" +
                  leituras);
}

TEST_F(ArquivoDoEnsaioDeCampo, UmTextoSemVazãoVelocidadeEÂnguloOsDizNãoEspecificados) {
    ArquivoDoCampo arquivo{};
    arquivo.unidade = UnidadeMóvel::mm;
    EXPECT_EQ(textoDoArquivo(arquivo),
              "Não Especificado\r\nN/E\r\nN/E\r\nN/E\r\nN/E\r\nN/E\r\nN/E\r\n\r\n\r\n\r\n\r\n\r\n\r\n1\r\n");
}

TEST_F(ArquivoDoEnsaioDeCampo, OQueSeSalvaSeLêNasDuasUnidades) {
    escolher(formEC, "Combo3", "3");
    for (int l = 1; l <= 6; ++l)
        for (int c = 1; c <= 2; ++c)
            atos::preencherCélula(alvo(formEC, "flex_A"), l, c, std::to_string(l) + "." + std::to_string(c));
    digitar(formEC, "Text2", "2.5");
    digitar(formEC, "Text3", "90");
    for (const auto* unidade : {"Option4", "Option3"}) {
        clicar(formEC, unidade);
        if (unidade == std::string{"Option3"}) digitar(formEC, "Text7", "8");
        const auto bytes = salvar();
        clicar(formEC, "Command2");
        escolher(formEC, "Combo1", "5");
        abrir(bytes);
        EXPECT_EQ(caderno,
                  (std::vector<std::string>{perguntaDoArquivo, "abrir: Arquivos Texto (*.TXT)|*.TXT"}));
        EXPECT_TRUE(formEC->Option2.marcada);
        EXPECT_EQ(salvar("outra.txt"), bytes) << unidade;
        clicar(formEC, "Option1");
    }
}

TEST_F(ArquivoDoEnsaioDeCampo, UmArquivoEscritoÀMãoÉLido) {
    // LF, "2" for the item "2.0", a spacing between lines that is in no item, blank lines at the end.
    abrir("A\n20\n45\n24\n30\n40\n270\n1\n4.5\n3\n2\n\n\n2\n8\n10\n20\n30\n40\n50\n60.5555\n\n\n");
    const auto& f = *formEC.operator->();
    EXPECT_EQ(f.Text6.texto + f.Text8.texto + f.Text13.texto + f.Text1.texto, "A204524");
    EXPECT_EQ(f.Text12.texto + " " + f.Text11.texto + " " + f.Text9.texto, "30 40 270");
    EXPECT_EQ(f.Combo1.texto, "1");
    EXPECT_EQ(f.Combo2.texto, "4.5");
    EXPECT_EQ(f.Combo3.texto, "3");
    EXPECT_EQ(f.Combo4.texto, "2.0");
    EXPECT_TRUE(f.Option3.marcada);
    EXPECT_EQ(f.Text7.texto, "8");
    EXPECT_EQ(coluna(1), (std::vector<std::string>{"Linha 1 - I(ml)", "10.000", "20.000", "30.000", "40.000",
                                                   "50.000", "60.556"}));
    EXPECT_EQ(f.lblPreenchidas.texto, "Células preenchidas: 6 de 6");
}

TEST_F(ArquivoDoEnsaioDeCampo, LidoUmArquivoAPlanilhaNãoAdmiteEntradaAtéDigitar) {
    abrir("A\n20\n45\n24\n30\n40\n270\n1\n6\n3\n2\n\n\n1\n1\n2\n3\n4\n5\n6");
    EXPECT_FALSE(formEC->Text5.visivel || formEC->Label6.visivel || formEC->Label7.visivel);
    EXPECT_EQ(recusaDe([] { atos::irParaCélula(alvo(formEC, "flex_A"), 1, 1); }),
              "Form_EC.flex_A não admite entrada");
    clicar(formEC, "Option1");
    EXPECT_TRUE(formEC->Text5.visivel);
    EXPECT_EQ(formEC->Text5.texto, "1.000");
}

TEST_F(ArquivoDoEnsaioDeCampo, AsListasSóSãoLivresAoDigitar) {
    abrir("A\n20\n45\n24\n30\n40\n270\n1\n6\n3\n2\n\n\n1\n1\n2\n3\n4\n5\n6");
    for (const auto* nome : {"Combo1", "Combo2", "Combo3", "Combo4"})
        EXPECT_EQ(recusaDe([&] { digitar(formEC, nome, "1"); }),
                  "Form_EC." + std::string{nome} + " está desabilitado");
    clicar(formEC, "Option1");
    escolher(formEC, "Combo1", "2");
    EXPECT_EQ(formEC->flex_A.colunas, 3);
}

TEST_F(ArquivoDoEnsaioDeCampo, NãoOuCanceladoVoltamADigitar) {
    respostas = {false};
    clicar(formEC, "Option2");
    EXPECT_TRUE(formEC->Option1.marcada);
    EXPECT_EQ(formEC->Text12.texto, "30.5");
    respostas = {true};
    arquivos = {std::nullopt};
    clicar(formEC, "Option2");
    EXPECT_TRUE(formEC->Option1.marcada);
    EXPECT_EQ(formEC->Text12.texto, "");
    EXPECT_EQ(célula(1, 1), "1.000");
}

TEST_F(ArquivoDoEnsaioDeCampo, AsLinhas8A11TêmDeSerNúmeros) {
    const std::vector<std::string> linhas{"1", "6.0", "3", "2.0"};
    for (std::size_t ruim = 0; ruim < linhas.size(); ++ruim)
        for (const auto* texto : {"", "x"}) {
            std::string bytes = semLeituras;
            for (std::size_t k = 0; k < linhas.size(); ++k) bytes += (k == ruim ? texto : linhas[k]) + "\r\n";
            esperarQueNãoAbre(bytes + "\r\n\r\n1\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6");
            EXPECT_EQ(formEC->Text6.texto, "Canhão A") << "what was read before stands";
        }
}

TEST_F(ArquivoDoEnsaioDeCampo, LinhasQueNãoSãoQuantidadesSãoRecusadas) {
    esperarQueNãoAbre(semLeituras + "0\r\n6\r\n3\r\n2\r\n\r\n\r\n1\r\n");
    esperarQueNãoAbre(semLeituras + "1\r\n6\r\n-3\r\n4\r\n\r\n\r\n1\r\n");
    esperarQueNãoAbre(semLeituras + "1\r\n6\r\n2000000000\r\n2\r\n\r\n\r\n1\r\n");
    // Spacings that nothing could be set out at, though the readings do.
    for (const auto* espaços : {"1\r\n0\r\n3\r\n2", "1\r\n6\r\n3\r\n-2", "1\r\n6\r\n3\r\n0"})
        esperarQueNãoAbre(semLeituras + espaços + "\r\n\r\n\r\n1\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6");
}

TEST_F(ArquivoDoEnsaioDeCampo, ContagensQueNãoCabemNaPlanilhaSãoRecusadasAntesDela) {
    for (const auto* contagens : {"10001\r\n6\r\n3", "1\r\n6\r\n5001", "201\r\n6\r\n5000", "1\r\n6\r\n1e300"})
        esperarQueNãoAbre(semLeituras + contagens + "\r\n2\r\n\r\n\r\n1\r\n1");
}

TEST_F(ArquivoDoEnsaioDeCampo, AsContagensValemJuntasENãoComAsDeAntes) {
    // 900 lines of the file's with 5,000 collectors a side from before would be too many cells.
    digitar(formEC, "Combo1", "1");
    digitar(formEC, "Combo3", "5000");
    atos::confirmar();
    std::string linha;
    for (int k = 1; k <= 900; ++k) linha += (k > 1 ? "\t" : "") + std::to_string(k);
    abrir(semLeituras + "900\r\n6\r\n1\r\n6\r\n\r\n\r\n1\r\n" + linha + "\r\n" + linha);
    EXPECT_TRUE(formEC->Option2.marcada);
    EXPECT_EQ(célula(2, 900), "900.000");
}

TEST_F(ArquivoDoEnsaioDeCampo, UmaUnidadeDesconhecidaÉRecusada) {
    for (const auto* unidade : {"3", "", "mm"})
        esperarQueNãoAbre(semLeituras + "1\r\n6\r\n3\r\n2\r\n\r\n\r\n" + unidade +
                          "\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6");
}

TEST_F(ArquivoDoEnsaioDeCampo, UmArquivoQueAcabaNoCabeçalhoOuFaltaÉRecusado) {
    esperarQueNãoAbre("");
    esperarQueNãoAbre(semLeituras + "1\r\n6\r\n3\r\n");
    esperarQueNãoAbre(semLeituras + "1\r\n6\r\n3\r\n2\r\n\r\n\r\n2");
    respostas = {true};
    arquivos = {pasta.caminho("falta.txt")};
    caderno.clear();
    clicar(formEC, "Option2");
    EXPECT_EQ(caderno.back(), não);
}

TEST_F(ArquivoDoEnsaioDeCampo, ColetoresDeMenosSãoRecusadosPeloEspaço) {
    const auto bytes = [](const char* coletores, const char* espaço) {
        return semLeituras + "1\r\n6\r\n" + coletores + "\r\n" + espaço + "\r\n\r\n\r\n1\r\n";
    };
    const std::string início = "mensagem: O número de coletores em cada linha deve ser maior que ";
    esperarQueNãoAbre(bytes("3", "1"), início + "4!");
    esperarQueNãoAbre(bytes("2", "1.5"), início + "3!");
    esperarQueNãoAbre(bytes("2", "2"), início + "3!");
    esperarQueNãoAbre(bytes("1", "3"), início + "2");
    // At 6 m one collector is enough, and none is no count.
    EXPECT_EQ(recusaDosColetores(6, 1), nullptr);
    EXPECT_STREQ(recusaDosColetores(6, 0.5), "O número de coletores em cada linha deve ser maior que 1!");
    EXPECT_EQ(recusaDosColetores(1, 4), nullptr);
    EXPECT_EQ(recusaDosColetores(1.5, 3), nullptr);
    EXPECT_EQ(recusaDosColetores(2, 3), nullptr);
    EXPECT_EQ(recusaDosColetores(3, 2), nullptr);
    EXPECT_EQ(recusaDosColetores(4, 1), nullptr);
}

TEST_F(ArquivoDoEnsaioDeCampo, UmaLeituraQueNãoÉNúmeroDeixaAPlanilhaEmParte) {
    abrir(semLeituras + "1\r\n6\r\n3\r\n2\r\n\r\n\r\n2\r\n8\r\n1\r\n2\r\nx\r\n4\r\n5\r\n6");
    EXPECT_EQ(caderno.back(), não);
    EXPECT_TRUE(formEC->Option1.marcada);
    EXPECT_EQ(coluna(1), (std::vector<std::string>{"Linha 1 - I(ml)", "1.000", "2.000", "", "", "", ""}));
    EXPECT_EQ(formEC->lblPreenchidas.texto, "Células preenchidas: 2 de 6");
    EXPECT_EQ(formEC->Combo3.texto, "3");
}

TEST_F(ArquivoDoEnsaioDeCampo, LeiturasDeOutroTamanhoSãoRecusadas) {
    const auto cabeça = semLeituras + "1\r\n6\r\n3\r\n2\r\n\r\n\r\n1\r\n";
    for (const auto* resto : {"1\r\n2\r\n3\r\n4\r\n5", "1\r\n2\t9\r\n3\r\n4\r\n5\r\n6",
                              "1\r\n\r\n3\r\n4\r\n5\r\n6", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7"}) {
        abrir(cabeça + resto);
        EXPECT_EQ(caderno.back(), não) << resto;
        EXPECT_TRUE(formEC->Option1.marcada);
        EXPECT_EQ(célula(1, 1), "1.000");
    }
}

// What is checked before a save, in this order.

TEST_F(ArquivoDoEnsaioDeCampo, VazãoEVelocidadeTêmDeSerNúmeros) {
    for (const auto* texto : {"", "x"}) {
        digitar(formEC, "Text12", texto);
        digitar(formEC, "Text11", "x");
        esperarQueNãoSalva("Insira um valor numérico de vazão!");
        digitar(formEC, "Text12", "30");
        digitar(formEC, "Text11", texto);
        esperarQueNãoSalva("Insira um valor numérico de velocidade!");
    }
}

TEST_F(ArquivoDoEnsaioDeCampo, VazãoVelocidadeEÂnguloNãoPodemFaltarNemSerZero) {
    digitar(formEC, "Text9", "");
    esperarQueNãoSalva("Valor de vazão, velocidade ou ângulo de giro inexistente!");
    digitar(formEC, "Text9", "360");
    for (const auto* nome : {"Text12", "Text11", "Text9"}) {
        const auto antes = formEC->Text9.texto;
        digitar(formEC, nome, "0");
        esperarQueNãoSalva("Valor de vazão, velocidade ou ângulo de giro nulo!");
        digitar(formEC, nome, "30");
    }
}

TEST_F(ArquivoDoEnsaioDeCampo, OVentoDadoTemDeTerVelocidadeEDireçãoDentroDaFaixa) {
    const auto vento = [](const char* velocidade, const char* direção) {
        digitar(formEC, "Text2", velocidade);
        digitar(formEC, "Text3", direção);
    };
    vento("x", "x");
    esperarQueNãoSalva("Insira um valor numérico de direção do vento!");
    vento("x", "90");
    esperarQueNãoSalva("Insira um valor numérico de velocidade do vento!");
    vento("", "90");
    esperarQueNãoSalva("Insira um valor numérico de velocidade do vento!");
    vento("11", "");
    esperarQueNãoSalva("Insira um valor numérico de direção do vento!");
    for (const auto* velocidade : {"10.1", "-0.1"}) {
        vento(velocidade, "361");
        esperarQueNãoSalva("O valor de velocidade do vento deve estar entre 0 - 10 m/s!");
    }
    for (const auto* direção : {"360.5", "-1"}) {
        vento("10", direção);
        esperarQueNãoSalva("O valor de direção do vento deve estar entre 0 - 360º!");
    }
    for (const auto* direção : {"0", "360"}) {
        vento("0", direção);
        EXPECT_NE(salvar(), "");
    }
}

TEST_F(ArquivoDoEnsaioDeCampo, AsListasTêmDeTerNúmeros) {
    const auto recusa = [&](const char* nome, const char* texto, const char* mensagem) {
        const auto antes = std::get<Lista*>(formEC.achar(nome, std::nullopt)->controle)->texto;
        digitar(formEC, nome, texto);
        esperarQueNãoSalva(mensagem);
        digitar(formEC, nome, antes);
        atos::confirmar();
    };
    for (const auto* texto : {"", "x", "0"}) {
        recusa("Combo1", texto, "Número de linhas de coletores inválido!");
        recusa("Combo3", texto, "Número de coletores em cada lada linha inválido!");
        recusa("Combo2", texto, "Distância entre as linhas de coletores inválida!");
        recusa("Combo4", texto, "Espaço entre coletores inválido!");
    }
}

TEST_F(ArquivoDoEnsaioDeCampo, CadaCélulaTemDeSerUmNúmero) {
    formEC->flex_A.escrever(3, 2, "x");
    esperarQueNãoSalva("Insira um valores numéricos!");
    formEC->flex_A.escrever(3, 2, "");
    atos::irParaCélula(alvo(formEC, "flex_A"), 3, 2);
    formEC->Text5.texto.clear();
    esperarQueNãoSalva("Insira um valores numéricos!");
}

TEST_F(ArquivoDoEnsaioDeCampo, UmaFalhaAoSalvarÉContadaECancelarNãoSalva) {
    arquivos = {std::nullopt, pasta.caminho("não existe/ensaio.txt")};
    caderno.clear();
    clicar(formEC, "Command1");
    EXPECT_EQ(caderno.size(), 1U);
    clicar(formEC, "Command1");
    EXPECT_TRUE(caderno.back().starts_with("mensagem: Ocorreu um erro, o aquivo não pode ser salvo "));
}

TEST_F(ArquivoDoEnsaioDeCampo, PerfilSalvaOsDadosDoEnsaioEOsSeus22Pontos) {
    abrirFormEC("PerfRad", {{"2"}, {"4"}, {"4"}, {"2"}});
    digitar(formEC, "Text6", "Canhão B");
    digitar(formEC, "Text12", "0.849");
    clicar(formEC, "Command6");
    arquivos = {pasta.caminho("perfil.txt")};
    clicar(perfil, "Command4");
    std::string esperado = "Canhão B\r\nN/E\r\nN/E\r\nN/E\r\n0.849\r\n22\r\n1\r\n";
    for (std::size_t k = 1; k <= 22; ++k)
        esperado += perfil->lblRaio[k].texto + "\t" + perfil->lblIntensidade[k].texto + "\r\n";
    EXPECT_EQ(pasta.bytes("perfil.txt"), esperado);
    EXPECT_NE(esperado.find("0.0\t26.19"), std::string::npos);
}

TEST_F(ArquivoDoEnsaioDeCampo, OPerfilSalvoAvançaNoEnsaioRadialSemASuaPrimeiraESuaÚltimaLinha) {
    // 2 mm at 9 m and 4 mm at 3 m reach 0 at 15 m.
    abrirFormEC("PerfRad", {{"2"}, {"4"}, {"4"}, {"2"}});
    escolher(formEC, "Combo4", "6.0");
    digitar(formEC, "Text1", "24");
    digitar(formEC, "Text12", "5");
    respostas = {true};
    clicar(formEC, "Command6");
    arquivos = {pasta.caminho("perfil.txt")};
    clicar(perfil, "Command4");
    const auto bytes = pasta.bytes("perfil.txt");
    const auto abrirNoEnsaioRadial = [&](const std::string& conteúdo) {
        recomeçar();
        clicar(form3, "Ou_aspB");
        respostas = {true, true};
        arquivos = {pasta.gravar("lido.txt", conteúdo)};
        clicar(perfilForm, "Option2");
        EXPECT_TRUE(perfilForm->Option2.marcada);
        caderno.clear();
        clicar(perfilForm, "Command8");
    };
    abrirNoEnsaioRadial(bytes);
    EXPECT_EQ(caderno,
              std::vector<std::string>{
                  "mensagem: O primeiro valor de distância ao aspersor deve ser diferente de zero!"});

    const auto início = bytes.find("22\r\n1\r\n0.0\t");
    ASSERT_NE(início, std::string::npos);
    const auto primeira = início + std::string{"22\r\n1\r\n"}.size();
    const auto segunda = bytes.find('\n', primeira) + 1;
    const auto última = bytes.rfind('\n', bytes.size() - 2) + 1;
    abrirNoEnsaioRadial(bytes.substr(0, início) + "20\r\n1\r\n" + bytes.substr(segunda, última - segunda));
    EXPECT_TRUE(perfil.visivel);
}

TEST_F(ArquivoDoEnsaioDeCampo, ASimulaçãoPeloEnsaioDeCampoNãoLevaOSeuNomeAoTítulo) {
    abrirFormEC("PerfRad", {{"2"}, {"4"}, {"4"}, {"2"}});
    escolher(formEC, "Combo4", "6.0");
    digitar(formEC, "Text6", "Canhão B");
    digitar(formEC, "Text12", "5");
    respostas = {true};
    clicar(formEC, "Command6");
    EXPECT_FALSE(perfilForm.carregada());
    clicar(perfil, "Command6");
    EXPECT_EQ(form7.caption(),
              "Perfil Transversal de Aplicação de Água com Vento - Aspersor não Especificado");
    EXPECT_EQ(form7->Label20.texto, "Aspersor: Canhão B");
    EXPECT_TRUE(perfilForm.carregada());
    EXPECT_FALSE(perfilForm.visivel);
}

} // namespace
} // namespace varenta::teste
