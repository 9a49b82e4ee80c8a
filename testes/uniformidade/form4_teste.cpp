#include "uniformidade/form4.h"

#include "apoio/pasta_temporaria.h"
#include "apoio/simulacao_feita_a_mao.h"
#include "aspersor/form1.h"
#include "shell/form3.h"
#include "uniformidade/relatorios.h"

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

/// `Form4` with a transversal profile made by hand: 2 m between points, depths 1 to 4 mm from the lane
/// outward on the right, 8 mm on the left.
class UniformidadeNoCentro : public testing::Test {
  protected:
    void SetUp() override {
        abrirForm7();
        atos::escolher(alvo(form7, "Combo2"), "2.0");
        atos::clicar(alvo(form7, "Command2"));
        caderno.clear();
    }
    void TearDown() override { atos::soltar(); }

    void avançar() { atos::clicar(alvo(form7, "cmdUniformidade")); }
    void avançarCom(const std::vector<const char*>& lâminas) {
        avançar();
        auto& flexA = form7->flexA;
        flexA.dimensionar(static_cast<int>(lâminas.size()) + 1, 3);
        for (std::size_t k = 0; k < lâminas.size(); ++k)
            flexA.escrever(static_cast<int>(k) + 1, 2, lâminas[k]);
    }
    void clicar(std::string_view nome) { atos::clicar(alvo(form4, nome)); }
    void digitar(std::string texto) { atos::digitar(alvo(form4, "cmbEspaçamento"), std::move(texto)); }
    void calcularMaior() { clicar("Command8"); }
    static Textos linha(const Grade& grade, int l) {
        Textos células;
        for (int c = 0; c < grade.colunas; ++c) células.push_back(grade.célula(l, c));
        return células;
    }
};

TEST_F(UniformidadeNoCentro, CalcularLâminasEscreveOsDadosComOEspaçamentoNoLugarDoÂngulo) {
    EXPECT_TRUE(form4.carregada());
    EXPECT_FALSE(form4.visivel);
    EXPECT_EQ(form4->Label3.texto, "Ângulo: 2.0 graus");
    EXPECT_EQ(form4->Label4.texto, "Velocidade: 50 m/h");
    EXPECT_EQ(form4->Label2.texto, form7->Label19.texto);
    EXPECT_EQ(form4->Label8.texto, "Vazão: " + form1->lblVazão.texto + " m³/h");
    EXPECT_EQ(form4->Label7.texto, "Raio: " + form1->lblRaioAlcance.texto + " m");
}

TEST_F(UniformidadeNoCentro, CalcularLâminasCopiaAPressãoSempreEmMetros) {
    atos::clicar(alvo(form7, "Command4"));
    atos::clicar(alvo(form1, "optKPA"));
    atos::clicar(alvo(form1, "Command3"));
    atos::clicar(alvo(form7, "Command2"));
    EXPECT_EQ(form4->Label1.texto, form7->Label18.texto);
}

TEST_F(UniformidadeNoCentro, AvançarMostraATelaEEscondeAAnterior) {
    avançar();
    EXPECT_TRUE(form4.visivel);
    EXPECT_TRUE(form7.carregada());
    EXPECT_FALSE(form7.visivel);
    EXPECT_TRUE(form4->Caption.starts_with("Uniformidade no Centro da Faixa com Vento - Aspersor KELMO-TX "));
    EXPECT_EQ(form4->Label3.texto, "Ângulo: 240 graus");
    EXPECT_EQ(form4->Label37.texto, "Velocidade do Vento: 0.0 m/s");
    EXPECT_EQ(form4->Label38.texto, "Direção do Vento: 0º");
    EXPECT_EQ(linha(form4->flexGrid_A, 0), (Textos{"E (m)", "CUC (%)", "UD (%)", "I médio (mm)"}));
    EXPECT_EQ(linha(form4->flexGrid_B, 0),
              (Textos{"Distância (m)", "I direita (mm)", "I esquerda (mm)", "I total (mm)"}));
    EXPECT_FALSE(form4->Command10.visivel);
    // The item with the index Int((count + 1) / 2).
    const auto& lista = form4->cmbEspaçamento;
    EXPECT_EQ(lista.texto, lista.itens[(lista.itens.size() + 1) / 2]);
}

TEST_F(UniformidadeNoCentro, OsGráficosNascemSóComAMalha) {
    avançar();
    // 19 + 14 thin and 7 + 5 heavy lines; 22 + 14 and 8 + 5.
    EXPECT_EQ(form4->Picture2.traços.size(), 45u);
    EXPECT_EQ(form4->Picture1.traços.size(), 49u);
    EXPECT_EQ(form4->Label22[0].texto, "0.0");
    EXPECT_EQ(form4->Label23[0].texto, "0.0");
}

TEST_F(UniformidadeNoCentro, BotõesSeguemAOrdemDosCálculos) {
    avançar();
    EXPECT_TRUE(form4->Command8.habilitado);
    EXPECT_FALSE(form4->Command9.habilitado);
    EXPECT_FALSE(form4->cmdSalvar.habilitado);
    EXPECT_FALSE(form4->Command5.habilitado);
    calcularMaior();
    EXPECT_FALSE(form4->Command8.habilitado);
    EXPECT_TRUE(form4->Command9.habilitado);
    EXPECT_TRUE(form4->cmdSalvar.habilitado);
    EXPECT_FALSE(form4->Command5.habilitado);
    clicar("Command9");
    EXPECT_TRUE(form4->Command5.habilitado);
    EXPECT_TRUE(form4->Command10.habilitado);
    atos::escolher(alvo(form4, "cmbEspaçamento"), form4->cmbEspaçamento.itens[0]);
    EXPECT_FALSE(form4->Command5.habilitado);
    EXPECT_FALSE(form4->Command10.habilitado);
    clicar("Command9");
    EXPECT_TRUE(form4->Command5.habilitado);
    digitar("90");
    EXPECT_FALSE(form4->Command5.habilitado);
    EXPECT_FALSE(form4->Command8.habilitado);
}

TEST_F(UniformidadeNoCentro, LâminaUniformeDáCemEmTodosEFicaOMenorEspaçamento) {
    // 3 mm on each of 120 points: at E = 2n every position gets 3 mm from each pass that reaches it, evenly
    // where n divides the 60 points of a side.
    avançarCom(std::vector<const char*>(120, "3.000"));
    form4->cmbEspaçamento.itens = {"12", "24", "30"};
    form4->cmbEspaçamento.texto = "12";
    calcularMaior();
    // 60 / 6 = 10 passes a side, 60 / 12 = 5, 60 / 15 = 4, each of 3 mm, from both sides.
    EXPECT_EQ(linha(form4->flexGrid_A, 1), (Textos{"12", "100.00", "100.00", "60.00"}));
    EXPECT_EQ(linha(form4->flexGrid_A, 2), (Textos{"24", "100.00", "100.00", "30.00"}));
    EXPECT_EQ(linha(form4->flexGrid_A, 3), (Textos{"30", "100.00", "100.00", "24.00"}));
    EXPECT_EQ(form4->Label6.texto, "100.00");
    EXPECT_EQ(form4->Label5.texto, "Espaçamento:  12  m");
    // From 12 - 6 to 30 + 6 in steps of 30 / 8 = 3.75, shown "3.8".
    EXPECT_EQ(textos(form4->Label26),
              (Textos{"6.0", "9.8", "13.6", "17.4", "21.2", "25.0", "28.8", "32.6", "36.4"}));
    // Two segments and three points for each of the two curves.
    EXPECT_EQ(form4->Picture2.traços.size(), 45u + 2 * (2 + 3));
}

TEST_F(UniformidadeNoCentro, SobreporMostraCadaPosiçãoDoEspaçamentoEscolhido) {
    // Left side 8 8 from the lane outward (rows 2, 1), right side 1 2 (rows 3, 4); 6 m make 3 positions.
    avançarCom({"8.000", "8.000", "1.000", "2.000"});
    calcularMaior();
    digitar("6");
    clicar("Command9");
    const auto& tabela = form4->flexGrid_B;
    EXPECT_EQ(tabela.linhas, 4);
    EXPECT_EQ(linha(tabela, 1), (Textos{"1.00", "1.000", "0.000", "1.000"}));
    EXPECT_EQ(linha(tabela, 2), (Textos{"3.00", "2.000", "8.000", "10.000"}));
    EXPECT_EQ(linha(tabela, 3), (Textos{"5.00", "0.000", "8.000", "8.000"}));
    // Mean 19 / 3, one lowest value of 1: UD = 300 / 19; deviations 16/3 + 11/3 + 5/3 = 32/3 over 19.
    EXPECT_EQ(form4->Label17.texto, "6.33");
    EXPECT_EQ(form4->Label33.texto, "15.79");
    EXPECT_EQ(form4->Label16.texto, "43.86");
    // Steps 6 / 9 and 10 / 6 as shown: 0.7 and 1.7.
    EXPECT_EQ(form4->Label22[9].texto, "6.3");
    EXPECT_EQ(form4->Label23[6].texto, "10.2");
    EXPECT_EQ(form4->Picture1.traços.size(), 49u + 3 * 2);
}

TEST_F(UniformidadeNoCentro, EspaçamentoQueNãoÉMúltiploDeSeisÉRecusadoEAListaVaiAoPrimeiro) {
    avançar();
    calcularMaior();
    digitar("50");
    clicar("Command9");
    EXPECT_EQ(caderno, Textos{"mensagem: O valor de espaçamento deve ser múltiplo de seis!"});
    EXPECT_EQ(form4->cmbEspaçamento.texto, form4->cmbEspaçamento.itens[0]);
    EXPECT_FALSE(form4->Command5.habilitado);
}

TEST_F(UniformidadeNoCentro, EspaçamentoZeroÉRecusado) {
    avançar();
    calcularMaior();
    for (const char* texto : {"0", "", "abc"}) {
        caderno.clear();
        digitar(texto);
        clicar("Command9");
        EXPECT_EQ(caderno, Textos{"mensagem: Valor de espaçamento inválido!"}) << texto;
    }
}

TEST_F(UniformidadeNoCentro, SeisVírgulaQuatroDigitadoPassa) {
    avançar();
    calcularMaior();
    digitar("6.4");
    clicar("Command9");
    EXPECT_EQ(caderno, Textos{});
    EXPECT_EQ(form4->flexGrid_B.linhas, 4); // 6.4 / 2 goes to 3 positions
}

TEST_F(UniformidadeNoCentro, EspaçamentoEnormeÉRecusadoSemPedirAMemória) {
    avançar();
    calcularMaior();
    const int linhas = form4->flexGrid_B.linhas;
    digitar("600000000");
    clicar("Command9");
    EXPECT_EQ(caderno,
              Textos{"erro: Memória insuficiente: confira o espaçamento: em m, um múltiplo de seis maior "
                     "que zero"});
    EXPECT_EQ(form4->flexGrid_B.linhas, linhas);
    EXPECT_FALSE(form4->Command5.habilitado);
}

TEST_F(UniformidadeNoCentro, MenosDeDuasPosiçõesÉEstouroDepoisDaTabela) {
    avançar();
    form7->Combo2.texto = "6";
    calcularMaior();
    const auto antes = form4->Label17.texto;
    digitar("6");
    caderno.clear();
    clicar("Command9");
    EXPECT_EQ(caderno, Textos{"erro: Estouro"});
    EXPECT_EQ(form4->flexGrid_B.linhas, 2);
    EXPECT_EQ(form4->flexGrid_B.célula(1, 0), "3.00");
    EXPECT_EQ(form4->Label17.texto, antes);
    EXPECT_FALSE(form4->Command5.habilitado);
}

TEST_F(UniformidadeNoCentro, EspaçamentoSemPosiçõesÉDivisãoPorZeroDaLâminaTeórica) {
    avançar();
    calcularMaior();
    const auto antes = form4->Label17.texto;
    digitar("0.4"); // rounds to 0, which six divides, but isn't 0; over 2 m it makes no position
    clicar("Command9");
    EXPECT_EQ(caderno, Textos{"erro: Divisão por zero"});
    EXPECT_EQ(form4->flexGrid_B.linhas, 1);
    EXPECT_EQ(form4->Label17.texto, antes);
    EXPECT_FALSE(form4->Command5.habilitado);
}

TEST_F(UniformidadeNoCentro, LeituraDaSobreposiçãoValeDentroDoRetânguloEForaFicaVazia) {
    avançarCom({"8.000", "8.000", "1.000", "2.000"});
    calcularMaior();
    digitar("6");
    clicar("Command9");
    const auto mouse = [](double x, double y) { atos::moverMouse(alvo(form4, "Picture1"), x, y); };
    mouse(378, 7); // the ends of the axes: 6.3 m and 10.2 mm
    EXPECT_EQ(form4->Label21.texto, "d = 6.300 m");
    EXPECT_EQ(form4->Label30.texto, "I = 10.200 mm");
    EXPECT_EQ(form4.ponteiro, Ponteiro::cruz);
    mouse(63, 217);
    EXPECT_EQ(form4->Label21.texto, "d = 0.000 m");
    EXPECT_EQ(form4->Label30.texto, "I = 0.000 mm");
    mouse(379, 7);
    EXPECT_EQ(form4->Label21.texto, "");
    EXPECT_EQ(form4->Label30.texto, "");
    EXPECT_EQ(form4.ponteiro, Ponteiro::padrão);
}

TEST_F(UniformidadeNoCentro, LeituraDosEspaçamentosContaAPorcentagemDeDezACem) {
    avançar();
    calcularMaior();
    const auto mouse = [](double x, double y) { atos::moverMouse(alvo(form4, "Picture2"), x, y); };
    mouse(336, 7);
    EXPECT_EQ(form4->Label13.texto, "E = " + form4->Label26[8].texto + "00 m");
    EXPECT_EQ(form4->Label20.texto, "UD = 100.000 %");
    mouse(56, 217);
    EXPECT_EQ(form4->Label20.texto, "UD = 10.000 %");
    mouse(55, 217);
    EXPECT_EQ(form4->Label13.texto, "");
    EXPECT_EQ(form4->Label20.texto, "");
}

TEST_F(UniformidadeNoCentro, RelatórioSaiLetraPorLetra) {
    avançarCom(std::vector<const char*>(120, "3.000"));
    form4->cmbEspaçamento.itens = {"12", "24"};
    form4->cmbEspaçamento.texto = "12";
    form4->Caption = "Título";
    form4->Label1.texto = "Pressão: 50 m.c.a.";
    form4->Label2.texto = "Bocais: 28 x 6 mm";
    form4->Label8.texto = "Vazão: 48.14 m³/h";
    form4->Label7.texto = "Raio: 49.85 m";
    calcularMaior();
    const PastaTemporaria pasta;
    arquivos = {pasta.caminho("relatorio.TXT")};
    clicar("cmdSalvar");
    EXPECT_EQ(caderno, Textos{"salvar: Text files|*.TXT|All files|*.* TXT"});
    EXPECT_EQ(pasta.bytes("relatorio.TXT"), "VARENTA - Versão 4.0\r\n\r\n"
                                            "Título\r\n\r\n"
                                            "Pressão: 50 m.c.a.\r\n"
                                            "Bocais: 28 x 6 mm\r\n"
                                            "Ângulo: 240 graus\r\n"
                                            "Velocidade: 50 m/h\r\n"
                                            "Vazão: 48.14 m³/h\r\n"
                                            "Raio: 49.85 m\r\n\r\n"
                                            "Velocidade do Vento: 0.0 m/s\r\n"
                                            "Direção do Vento: 0º\r\n\r\n"
                                            "E (m)\tCUC (%)\tUD (%)\tI médio (mm)\t\r\n"
                                            "12\t100.00\t100.00\t60.00\t\r\n"
                                            "24\t100.00\t100.00\t30.00\t\r\n"
                                            "\t\t\t\t\r\n"
                                            "\r\n");
}

TEST(LinhasDoRelatório, APrimeiraSemPrimeiraCélulaÉAÚltimaQueSai) {
    Grade grade{.linhas = 3, .colunas = 2, .células = {"12", "99", "", "resto", "18", "98"}};
    EXPECT_EQ(linhasDoRelatório(grade), "12\t99\t\r\n\tresto\t\r\n");
    grade.escrever(1, 0, "15");
    EXPECT_EQ(linhasDoRelatório(grade), "12\t99\t\r\n15\tresto\t\r\n18\t98\t\r\n\t\t\r\n");
}

TEST_F(UniformidadeNoCentro, SalvarDesistidoOuImpossívelNãoPerdeNada) {
    avançar();
    calcularMaior();
    const PastaTemporaria pasta;
    arquivos = {std::nullopt, pasta.caminho("falta/relatorio.TXT")};
    clicar("cmdSalvar");
    EXPECT_EQ(caderno.size(), 1u);
    clicar("cmdSalvar");
    EXPECT_EQ(caderno.back(), "mensagem: O arquivo não pôde ser salvo: o arquivo ou a pasta não existe!");
    EXPECT_TRUE(form4->cmdSalvar.habilitado);
}

TEST_F(UniformidadeNoCentro, VoltarMostraOPerfilEFecharVoltaAoMenu) {
    avançar();
    clicar("Command7");
    EXPECT_FALSE(form4.carregada());
    EXPECT_TRUE(form7.visivel);
    avançar();
    clicar("Command4");
    for (const TelaBase* tela :
         {static_cast<TelaBase*>(&form4), static_cast<TelaBase*>(&form7), static_cast<TelaBase*>(&form1)})
        EXPECT_FALSE(tela->carregada()) << tela->nome();
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
}

} // namespace
} // namespace varenta::teste
