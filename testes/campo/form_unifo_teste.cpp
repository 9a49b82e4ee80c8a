#include "campo/form_unifo.h"

#include "apoio/ensaios.h"
#include "apoio/pasta_temporaria.h"
#include "campo/leituras_ec.h"
#include "campo/sobreposicao_movel.h"

#include <cmath>
#include <numbers>
#include <numeric>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

/// Two lines, 4 collectors a side, 2 m apart: the second line collects twice the first.
const Colunas ensaio = {{"1", "2"}, {"2", "4"}, {"3", "6"}, {"4", "8"},
                        {"4", "8"}, {"3", "6"}, {"2", "4"}, {"1", "2"}};

class SobreposiçãoDoMóvel : public testing::Test {
  protected:
    void SetUp() override { abrirUnifo(ensaio); }

    static void abrirUnifo(const Colunas& leituras) {
        abrirFormEC("EnsCampo", leituras);
        digitar(formEC, "Text12", "3");
        clicar(formEC, "Command4");
    }
    static Textos linha(const Grade& grade, int linha) {
        Textos textos;
        for (int c = 0; c < grade.colunas; ++c) textos.push_back(grade.célula(linha, c));
        return textos;
    }
};

TEST(SobreporMedida, CadaLinhaSeSobrepõePorSi) {
    // 6 m over 2 m are 3 positions. Right: 4 + 1, 3, 2; left, from the last position back: 4 + 1, 3, 2.
    const LeiturasDoEnsaio leituras{2, {{{4, 3, 2, 1}, {4, 3, 2, 1}}, {{8, 6, 4, 2}, {8, 6, 4, 2}}}, 4};
    const auto soma = sobreporMedida(leituras, 6);
    EXPECT_EQ(soma.linhas[0], (std::vector<double>{7, 6, 7}));
    EXPECT_EQ(soma.linhas[1], (std::vector<double>{14, 12, 14}));
    EXPECT_EQ(soma.média, (std::vector<double>{10.5, 9, 10.5}));
    EXPECT_EQ(soma.valores, (std::vector<double>{7, 6, 7, 14, 12, 14}));
}

TEST(SobreporMedida, ConservaAÁgua) {
    const LeiturasDoEnsaio leituras{3, {{{9.1, 7.3, 4.9, 2.2, 0.4}, {8.8, 7.5, 5.5, 3.1, 0.9}}}, 5};
    double total = 0;
    for (const auto* lado : {&leituras.linhas[0].esquerda, &leituras.linhas[0].direita})
        total = std::accumulate(lado->begin(), lado->end(), total);
    for (const double E : {6.0, 12.0, 18.0, 24.0, 30.0, 36.0}) {
        const auto soma = sobreporMedida(leituras, E);
        EXPECT_NEAR(std::accumulate(soma.média.begin(), soma.média.end(), 0.0), total, 1e-12) << E;
    }
}

TEST(EspaçamentosParaLargura, ComeçamEm6ondeAFórmulaDáZero) {
    // 0.4 x 12 = 4.8 m is less than 6.
    EXPECT_EQ(espaçamentosParaLargura(12), (Textos{"6", "12"}));
    // 0.4 x 40 = 16 m: two whole sixes.
    EXPECT_EQ(espaçamentosParaLargura(40), (Textos{"12", "18", "24", "30", "36"}));
    EXPECT_EQ(espaçamentosParaLargura(4), Textos{});
}

TEST(LâminaCalculada, ÉAVazãoSobreAÁreaPorHora) {
    // 30 m³/h over 24 m x 50 m/h.
    EXPECT_EQ(lâminaCalculada(30, 24, 50), 25);
    EXPECT_EQ(erroDe([] { lâminaCalculada(30, 0, 50); }), "Divisão por zero");
}

TEST(LâminaDoVolume, ÉOVolumeSobreAÁreaDoColetor) {
    // 1 l on a square decimetre is 100 mm.
    EXPECT_NEAR(lâminaDoVolume(1000, 20 / std::sqrt(std::numbers::pi)), 100, 1e-9);
    EXPECT_EQ(erroDe([] { lâminaDoVolume(1, 0); }), "Divisão por zero");
}

TEST_F(SobreposiçãoDoMóvel, ATabelaTemOsEspaçamentosComAsSuasFiguras) {
    const auto& f = *formUnifo.operator->();
    EXPECT_EQ(f.cmbEspaçamento.itens, (Textos{"6", "12"}));
    EXPECT_EQ(linha(f.flexGrid_A, 0), (Textos{"E (m)", "CUC (%)", "UD (%)", "I médio (mm)"}));
    // 6 m: 7, 6, 7, 14, 12, 14: mean 10, deviations 3 + 4 + 3 + 4 + 2 + 4 = 20; a quarter of 6 is 1.5, so
    // two: (6 + 7) / 2 = 6.5.
    EXPECT_EQ(linha(f.flexGrid_A, 1), (Textos{"6", "66.67", "65.00", "10.00"}));
    // 12 m: 4, 3, 2 + 1, 1 + 2, 3, 4 in the first line: mean 5 over both, deviations 10 x (1 + 2 + 2 + ...):
    // 1 + 2 + 2 + 2 + 2 + 1 and 3 + 1 + 1 + 1 + 1 + 3 = 20 over 60; the lowest quarter is three times 3.
    EXPECT_EQ(linha(f.flexGrid_A, 2), (Textos{"12", "66.67", "60.00", "5.00"}));
}

TEST_F(SobreposiçãoDoMóvel, ComCUCIguaisFicaOMenorEspaçamento) {
    const auto& f = *formUnifo.operator->();
    EXPECT_EQ(f.lblMaiorCUC.texto, "MAIOR CUC!");
    EXPECT_EQ(f.lblE.texto, "E = 6  m");
    EXPECT_EQ(f.cmbEspaçamento.texto, "6");
    EXPECT_EQ(f.Label16.texto, "66.67");
}

TEST_F(SobreposiçãoDoMóvel, ODetalheTemDistânciaLinhasEMédia) {
    const auto& f = *formUnifo.operator->();
    EXPECT_EQ(linha(f.flexGrid_B, 0),
              (Textos{"Distância (m)", "Linha  1 - I(mm)", "Linha  2 - I(mm)", "Média - I(mm)"}));
    EXPECT_EQ(f.flexGrid_B.linhas, 4);
    EXPECT_EQ(linha(f.flexGrid_B, 1), (Textos{"1.00", "7.000", "14.000", "10.500"}));
    EXPECT_EQ(linha(f.flexGrid_B, 2), (Textos{"3.00", "6.000", "12.000", "9.000"}));
    EXPECT_EQ(linha(f.flexGrid_B, 3), (Textos{"5.00", "7.000", "14.000", "10.500"}));
    EXPECT_EQ(f.Label17.texto, "10.00");
    EXPECT_EQ(f.Label33.texto, "65.00");
    // 3 m³/h over 6 m x 50 m/h.
    EXPECT_EQ(f.lblCalculado.texto, "10.00");
    EXPECT_EQ(formUnifo.caption(), "Sobreposição do Perfil Móbel do Aspersor:");
}

TEST_F(SobreposiçãoDoMóvel, SobreporMostraOEspaçamentoEscolhido) {
    escolher(formUnifo, "cmbEspaçamento", "12");
    clicar(formUnifo, "cmdCUC");
    const auto& f = *formUnifo.operator->();
    EXPECT_EQ(formUnifo.caption(), "Sobreposição para o Espaçamento: 12 m");
    EXPECT_EQ(f.flexGrid_B.linhas, 7);
    EXPECT_EQ(linha(f.flexGrid_B, 3), (Textos{"5.00", "3.000", "6.000", "4.500"}));
    EXPECT_EQ(f.Label16.texto, "66.67");
    EXPECT_EQ(f.Label33.texto, "60.00");
    EXPECT_EQ(f.Label17.texto, "5.00");
    EXPECT_EQ(f.lblCalculado.texto, "5.00");
    EXPECT_EQ(f.lblE.texto, "E = 6  m") << "the best one stays told";
}

TEST_F(SobreposiçãoDoMóvel, UmEspaçamentoForaDaListaTambémSeSobrepõe) {
    digitar(formUnifo, "cmbEspaçamento", "18");
    clicar(formUnifo, "cmdCUC");
    // Nine positions, the middle one dry.
    EXPECT_EQ(linha(formUnifo->flexGrid_B, 5), (Textos{"9.00", "0.000", "0.000", "0.000"}));
    EXPECT_EQ(formUnifo->Label17.texto, "3.33");
}

TEST_F(SobreposiçãoDoMóvel, UmEspaçamentoQueNãoÉMúltiploDeSeisNãoMudaNada) {
    caderno.clear();
    for (const auto* texto : {"7", "8.6"}) {
        caderno.clear();
        digitar(formUnifo, "cmbEspaçamento", texto);
        clicar(formUnifo, "cmdCUC");
        EXPECT_EQ(caderno, Textos{"mensagem: O espaçamento deve ser múltiplo de seis!"});
        EXPECT_EQ(formUnifo->cmbEspaçamento.texto, texto);
        EXPECT_EQ(formUnifo->flexGrid_B.linhas, 4);
        EXPECT_EQ(formUnifo.caption(), "Sobreposição do Perfil Móbel do Aspersor:");
    }
}

TEST_F(SobreposiçãoDoMóvel, UmEspaçamentoNuloVoltaAoPrimeiro) {
    for (const auto* texto : {"0", ""}) {
        caderno.clear();
        escolher(formUnifo, "cmbEspaçamento", "12");
        digitar(formUnifo, "cmbEspaçamento", texto);
        clicar(formUnifo, "cmdCUC");
        EXPECT_EQ(caderno, Textos{"mensagem: Valor de espaçamento inválido!"});
        EXPECT_EQ(formUnifo->cmbEspaçamento.texto, "6");
    }
}

TEST_F(SobreposiçãoDoMóvel, UmEspaçamentoSemPosiçõesOuGrandeDemaisVoltaAoPrimeiro) {
    // 0.4 m and 0.5 m round to a multiple of six, 0, and 2 m hold no position of them; 20,004 m and more ask
    // for more than 10,000 positions.
    for (const auto* texto : {"-6", "-12", "0.4", "0.5", "20004", "6e8", "6e300"}) {
        caderno.clear();
        escolher(formUnifo, "cmbEspaçamento", "12");
        digitar(formUnifo, "cmbEspaçamento", texto);
        clicar(formUnifo, "cmdCUC");
        EXPECT_EQ(caderno, Textos{"mensagem: Valor de espaçamento inválido!"}) << texto;
        EXPECT_EQ(formUnifo->cmbEspaçamento.texto, "6");
        EXPECT_EQ(formUnifo->flexGrid_B.linhas, 4);
    }
    caderno.clear();
    digitar(formUnifo, "cmbEspaçamento", "-7");
    clicar(formUnifo, "cmdCUC");
    EXPECT_EQ(caderno, Textos{"mensagem: O espaçamento deve ser múltiplo de seis!"});
}

TEST_F(SobreposiçãoDoMóvel, OTítuloDizONúmeroENãoOQueSeDigitou) {
    const std::vector<std::pair<const char*, const char*>> casos = {
        {"6.4x", "6.4"}, {" 12 m", "12"}, {"018.0", "18"}};
    for (const auto& [texto, número] : casos) {
        digitar(formUnifo, "cmbEspaçamento", texto);
        clicar(formUnifo, "cmdCUC");
        EXPECT_EQ(formUnifo.caption(), std::string{"Sobreposição para o Espaçamento: "} + número + " m");
    }
}

TEST_F(SobreposiçãoDoMóvel, LâminasBaixasDemaisParaAEscalaDizemPorQue) {
    // At 6 m the largest depth is 0.28 mm; over 6 that is a step of "0.0".
    Colunas fracas = ensaio;
    for (auto& valores : fracas)
        for (auto& valor : valores) valor = "0.0" + valor;
    abrirUnifo(fracas);
    EXPECT_EQ(caderno,
              Textos{"erro: Divisão por zero: as lâminas são pequenas ou grandes demais para a escala do "
                     "gráfico"});
    EXPECT_EQ(linha(formUnifo->flexGrid_B, 1), (Textos{"1.00", "0.070", "0.140", "0.105"}));
    EXPECT_TRUE(formEC.visivel);
}

TEST_F(SobreposiçãoDoMóvel, UmaSóPosiçãoDeUmaLinhaTerminaComEstouro) {
    // 6 m apart, at 6 m there is one position: no quarter of it.
    abrirFormEC("EnsCampo", {{"1"}, {"2"}, {"2"}, {"1"}});
    escolher(formEC, "Combo4", "6.0");
    digitar(formEC, "Text12", "3");
    clicar(formEC, "Command4");
    EXPECT_EQ(caderno, Textos{"erro: Estouro: "
                              "confira as lâminas e o espaçamento: todas são zero, ou são poucas demais"});
    EXPECT_FALSE(formUnifo.visivel);
    EXPECT_TRUE(formEC.visivel);
}

TEST_F(SobreposiçãoDoMóvel, UmEspaçamentoQueFalhaNãoSeMisturaAoAnterior) {
    abrirFormEC("EnsCampo", {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"5"}, {"4"}, {"3"}, {"2"}, {"1"}});
    escolher(formEC, "Combo4", "6.0");
    digitar(formEC, "Text12", "3");
    clicar(formEC, "Command4");
    ASSERT_TRUE(formUnifo.visivel);
    caderno.clear();
    const auto detalhe = formUnifo->flexGrid_B.células;
    const auto calculada = formUnifo->lblCalculado.texto, cuc = formUnifo->Label16.texto;
    digitar(formUnifo, "cmbEspaçamento", "6"); // one position of one line
    clicar(formUnifo, "cmdCUC");
    ASSERT_EQ(caderno.size(), 1U);
    EXPECT_TRUE(caderno.front().starts_with("erro: Estouro"));
    EXPECT_EQ(formUnifo->flexGrid_B.células, detalhe);
    EXPECT_EQ(formUnifo->lblCalculado.texto, calculada);
    EXPECT_EQ(formUnifo->Label16.texto, cuc);
}

TEST_F(SobreposiçãoDoMóvel, UmEspaçamentoRecusadoRecebeOFoco) {
    abrirFormEC("EnsCampo", {{"1"}, {"2"}, {"3"}, {"3"}, {"2"}, {"1"}});
    digitar(formEC, "Text12", "3");
    clicar(formEC, "Command4");
    ASSERT_TRUE(formUnifo.visivel);
    for (const auto* espaçamento : {"7", "-6"}) {
        controleComFoco = nullptr;
        digitar(formUnifo, "cmbEspaçamento", espaçamento);
        clicar(formUnifo, "cmdCUC");
        EXPECT_EQ(controleComFoco, &formUnifo->cmbEspaçamento) << espaçamento;
    }
}

TEST_F(SobreposiçãoDoMóvel, OEspaçamentoDeUmaPosiçãoTomaOQuartoDoAnterior) {
    // Widths from 6 m on: n is 1, 2, 3, 4 at 6 m between collectors, with two lines 2, 4, 6, 8 values.
    abrirFormEC("EnsCampo", {{"1", "1"}, {"2", "2"}, {"2", "2"}, {"1", "1"}});
    escolher(formEC, "Combo4", "6.0");
    digitar(formEC, "Text12", "3");
    clicar(formEC, "Command4");
    EXPECT_EQ(caderno, Textos{});
    // Everything falls on one position of each line: 6 and 6.
    EXPECT_EQ(linha(formUnifo->flexGrid_A, 1), (Textos{"6", "100.00", "100.00", "6.00"}));
}

TEST_F(SobreposiçãoDoMóvel, LâminasTodasNulasTerminamComEstouro) {
    abrirFormEC("EnsCampo", {{"0"}, {"0"}, {"0"}, {"0"}, {"0"}, {"0"}});
    digitar(formEC, "Text12", "3");
    clicar(formEC, "Command4");
    EXPECT_EQ(caderno, Textos{"erro: Estouro: "
                              "confira as lâminas e o espaçamento: todas são zero, ou são poucas demais"});
}

TEST_F(SobreposiçãoDoMóvel, VolumesViramLâminas) {
    // A collector of 20 / sqrt(pi) = 11.28379167 cm has 100 cm²: 10 ml are 1 mm.
    Colunas volumes = ensaio;
    for (auto& valores : volumes)
        for (auto& valor : valores) valor += "0";
    abrirFormEC("EnsCampo", volumes);
    clicar(formEC, "Option3");
    digitar(formEC, "Text7", "11.2837916709551");
    digitar(formEC, "Text12", "3");
    clicar(formEC, "Command4");
    EXPECT_EQ(linha(formUnifo->flexGrid_A, 1), (Textos{"6", "66.67", "65.00", "10.00"}));
}

TEST_F(SobreposiçãoDoMóvel, OsDadosDoEnsaioAcompanham) {
    abrirFormEC("EnsCampo", ensaio);
    digitar(formEC, "Text6", "Canhão B");
    digitar(formEC, "Text8", "22");
    digitar(formEC, "Text12", "3");
    digitar(formEC, "Text2", "1.5");
    digitar(formEC, "Text3", "90");
    clicar(formEC, "Command4");
    const auto& f = *formUnifo.operator->();
    EXPECT_EQ((Textos{f.lblAspersor.texto, f.Label2.texto, f.Label1.texto, f.Label3.texto, f.Label4.texto,
                      f.Label8.texto, f.Label37.texto, f.Label38.texto}),
              (Textos{"Aspersor: Canhão B", "Bocais: 22 mm", "Pressão: N/E", "Ângulo: 360 graus",
                      "Velocidade: 50 m/h", "Vazão: 3 m³/h", "Velocidade do Vento: 1.5 m/s",
                      "Direção do Vento: 90º"}));
}

TEST_F(SobreposiçãoDoMóvel, OsGráficosTêmAsEscalasDoCentro) {
    const auto& f = *formUnifo.operator->();
    // From 0 to 18 m in 8 steps: 2.25, "2.3".
    EXPECT_EQ(f.Label26[0].texto, "0.0");
    EXPECT_EQ(f.Label26[8].texto, "18.4");
    // 6 m in 9 steps: 0.67, "0.7"; 14 mm, the largest of all lines, in 6 steps: 2.33, "2.3".
    EXPECT_EQ(f.Label22[9].texto, "6.3");
    EXPECT_EQ(f.Label23[6].texto, "13.8");
    // 53 strokes of the grid, two segments for each of two lines, in green and in red, and two of their mean,
    // in blue.
    const auto& traços = f.Picture1.traços;
    ASSERT_EQ(traços.size(), 22U + 14 + 8 + 5 + 3 * 2);
    for (std::size_t k = 0; k < traços.size(); ++k)
        EXPECT_EQ(std::get<Linha>(traços[k]).largura, k < 49 ? 1 : 2) << k;
    EXPECT_EQ(std::get<Linha>(traços[49]).cor, cores::verde);
    EXPECT_EQ(std::get<Linha>(traços[51]).cor, cores::vermelho);
    EXPECT_EQ(std::get<Linha>(traços.back()).cor, cores::azul);
    // 1 m at 63 + 315 / 6.3, 10.5 mm at 217 - 210 x 10.5 / 13.8.
    const auto& azul = std::get<Linha>(traços[53]);
    EXPECT_NEAR(azul.x1, 113, 1e-9);
    EXPECT_NEAR(azul.y1, 217 - 210 * 10.5 / 13.8, 1e-9);
}

TEST_F(SobreposiçãoDoMóvel, LinhasVizinhasTêmCoresDiferentes) {
    abrirUnifo({{"1", "2", "3", "4"}, {"2", "4", "6", "8"}, {"2", "4", "6", "8"}, {"1", "2", "3", "4"}});
    // At 6 m two collectors a side make three positions, so two segments a line.
    const auto& traços = formUnifo->Picture1.traços;
    std::vector<Cor> usadas;
    for (std::size_t k = 49; k < traços.size(); k += 2) usadas.push_back(std::get<Linha>(traços[k]).cor);
    EXPECT_EQ(usadas,
              (std::vector<Cor>{cores::verde, cores::vermelho, cores::magenta, cores::verde, cores::azul}));
}

TEST_F(SobreposiçãoDoMóvel, OMouseLêOsGráficos) {
    const auto& f = *formUnifo.operator->();
    atos::moverMouse(alvo(formUnifo, "Picture1"), 63 + 157.5, 112);
    EXPECT_EQ(f.Label21.texto, "d = 3.150 m");
    EXPECT_EQ(f.Label30.texto, "I = 6.900 mm");
    EXPECT_EQ(formUnifo.ponteiro, Ponteiro::cruz);
    atos::moverMouse(alvo(formUnifo, "Picture2"), 56 + 140, 112);
    EXPECT_EQ(f.Label13.texto, "E = 9.200 m");
    EXPECT_EQ(f.Label20.texto, "UD = 55.000 %");
    atos::moverMouse(alvo(formUnifo, "Picture1"), 0, 0);
    EXPECT_EQ(f.Label21.texto + f.Label30.texto, "");
    EXPECT_EQ(formUnifo.ponteiro, Ponteiro::padrão);
    atos::moverMouse(formUnifo);
}

TEST_F(SobreposiçãoDoMóvel, VoltarMostraOEnsaioEFecharOMenu) {
    clicar(formUnifo, "Command2");
    EXPECT_FALSE(formUnifo.carregada());
    EXPECT_TRUE(formEC.visivel);
    EXPECT_EQ(formEC->flex_A.célula(8, 2), "2.000");
    clicar(formEC, "Command4");
    EXPECT_FALSE(formEC.visivel);
    clicar(formUnifo, "Command4");
    EXPECT_FALSE(formUnifo.carregada());
    EXPECT_FALSE(formEC.carregada());
    EXPECT_TRUE(form3.visivel);
}

TEST_F(SobreposiçãoDoMóvel, ORelatórioTemDadosFigurasEAsDuasTabelas) {
    PastaTemporaria pasta;
    arquivos = {pasta.caminho("sobreposição.txt")};
    caderno.clear();
    clicar(formUnifo, "cmdSalvar");
    EXPECT_EQ(caderno, Textos{"salvar: Text files|*.TXT|All files|*.* TXT"});
    EXPECT_EQ(pasta.bytes("sobreposição.txt"),
              "VARENTA - Versão 4.0\r\n\r\nSobreposição do Perfil Móbel do Aspersor:\r\n\r\n"
              "Aspersor: Não especificado\r\nPressão: N/E\r\nBocais: N/E\r\nÂngulo: 360 graus\r\n"
              "Velocidade: 50 m/h\r\nVazão: 3 m³/h\r\n\r\n"
              "Velocidade do Vento: N/E\r\nDireção do Vento: N/E\r\n\r\n"
              "MAIOR CUC!\tE = 6  m\r\n\r\n"
              "E (m)\tCUC (%)\tUD (%)\tI médio (mm)\t\r\n"
              "6\t66.67\t65.00\t10.00\t\r\n12\t66.67\t60.00\t5.00\t\r\n\t\t\t\t\r\n\r\n"
              "CUC (%)\t66.67\r\nUD (%)\t65.00\r\nI médio (mm) - Coletado\t10.00\r\n"
              "I médio (mm) - Calculado\t10.00\r\n\r\n"
              "Distância (m)\tLinha  1 - I(mm)\tLinha  2 - I(mm)\tMédia - I(mm)\t\r\n"
              "1.00\t7.000\t14.000\t10.500\t\r\n3.00\t6.000\t12.000\t9.000\t\r\n"
              "5.00\t7.000\t14.000\t10.500\t\r\n\t\t\t\t\r\n\r\n");
}

TEST_F(SobreposiçãoDoMóvel, UmRelatórioQueNãoSePodeSalvarÉContado) {
    arquivos = {"/não existe/relatório.txt"};
    caderno.clear();
    clicar(formUnifo, "cmdSalvar");
    EXPECT_TRUE(caderno.back().starts_with("mensagem: O arquivo não pôde ser salvo: ")) << caderno.back();
    EXPECT_TRUE(caderno.back().ends_with("!"));
}

} // namespace
} // namespace varenta::teste
