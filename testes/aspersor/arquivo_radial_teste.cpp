#include "aspersor/arquivo_radial.h"

#include "apoio/ensaios.h"
#include "apoio/pasta_temporaria.h"
#include "comum/limites.h"

namespace varenta::teste {
namespace {

const std::string cabeçalho = "Canhão A\r\n20 x 7\r\n45\r\n24\r\n4.2\r\n3\r\n";
const std::string pontos = "2.00\t9.000\r\n10.00\t5.000\r\n18.00\t1.000\r\n";
const std::string não = "mensagem: O arquivo não pode ser aberto, consulte a ajuda!";
const std::string perguntaDoArquivo =
    "pergunta: O arquivo deve estar na extensão: *.TXT separado por tabulações!";

class ArquivoDoEnsaioRadial : public testing::Test {
  protected:
    void SetUp() override { abrirPerfilForm(); }

    /// Saves to `nome` and returns the bytes; empty where nothing was saved.
    std::string salvar(const char* nome = "ensaio.txt") {
        arquivos = {pasta.caminho(nome)};
        caderno.clear();
        clicar(perfilForm, "Command4");
        arquivos.clear();
        return pasta.nomes().contains(nome) ? pasta.bytes(nome) : std::string{};
    }
    void esperarQueNãoSalva(const std::string& mensagem) {
        EXPECT_EQ(salvar(), "");
        EXPECT_EQ(caderno, std::vector{"mensagem: " + mensagem});
    }
    void abrir(const std::string& bytes) {
        respostas.push_back(true);
        arquivos = {pasta.gravar("lido.txt", bytes)};
        caderno.clear();
        clicar(perfilForm, "Option2");
    }
    /// Opens a file that is refused with that message, which leaves typing in mm/h.
    void esperarQueNãoAbre(const std::string& bytes, const std::string& mensagem) {
        clicar(perfilForm, "Option3");
        abrir(bytes);
        ASSERT_FALSE(caderno.empty());
        EXPECT_EQ(caderno.back(), mensagem) << bytes;
        EXPECT_TRUE(perfilForm->Option1.marcada);
        EXPECT_TRUE(perfilForm->Text6.visivel);
        EXPECT_TRUE(perfilForm->Option5.marcada);
        EXPECT_EQ(perfilForm->flexGrid.célula(0, 2), "Intensidade - i (mm/h)");
        EXPECT_FALSE(perfilForm->Text3.visivel);
    }
    static void preencherTextos() {
        digitar(perfilForm, "Text7", "Canhão A");
        digitar(perfilForm, "Text9", "20 x 7");
        digitar(perfilForm, "Text2", "45");
        digitar(perfilForm, "Text8", "24");
        digitar(perfilForm, "Text1", "4.2");
    }

    PastaTemporaria pasta;
};

TEST_F(ArquivoDoEnsaioRadial, EmMmPorHoraTemSeteLinhasEOsPontos) {
    preencherTextos();
    EXPECT_EQ(salvar(), cabeçalho + "1\r\n" + pontos);
    EXPECT_EQ(caderno, std::vector<std::string>{"salvar: Text files|*.TXT|All files|*.* TXT"});
}

TEST_F(ArquivoDoEnsaioRadial, EmMmTemOTempo) {
    preencherTextos();
    clicar(perfilForm, "Option4");
    digitar(perfilForm, "Text4", "30");
    EXPECT_EQ(salvar(), cabeçalho + "2\r\n30\r\n" + pontos);
}

TEST_F(ArquivoDoEnsaioRadial, EmMlTemOTempoEODiâmetro) {
    preencherTextos();
    clicar(perfilForm, "Option3");
    digitar(perfilForm, "Text4", "30");
    digitar(perfilForm, "Text3", "8.5");
    EXPECT_EQ(salvar(), cabeçalho + "3\r\n30\r\n8.5\r\n" + pontos);
}

TEST_F(ArquivoDoEnsaioRadial, UmaLinhaVaziaÉSalvaComoNãoEspecificadaELidaComoTexto) {
    const auto bytes = salvar();
    EXPECT_EQ(bytes, "Não Especificado\r\nN/E\r\nN/E\r\nN/E\r\nN/E\r\n3\r\n1\r\n" + pontos);
    abrir(bytes);
    const auto& f = *perfilForm.operator->();
    EXPECT_EQ(f.Text7.texto, "Não Especificado");
    EXPECT_EQ(f.Text9.texto + f.Text2.texto + f.Text8.texto + f.Text1.texto, "N/EN/EN/EN/E");
}

TEST_F(ArquivoDoEnsaioRadial, OQueSeSalvaSeLêEmTodasAsUnidades) {
    preencherTextos();
    for (const auto* unidade : {"Option5", "Option4", "Option3"}) {
        clicar(perfilForm, unidade);
        if (unidade != std::string{"Option5"}) digitar(perfilForm, "Text4", "30");
        if (unidade == std::string{"Option3"}) digitar(perfilForm, "Text3", "8.5");
        const auto bytes = salvar();
        clicar(perfilForm, "Command1");
        clicar(perfilForm, "Option5");
        digitar(perfilForm, "Text5", "1");
        abrir(bytes);
        EXPECT_EQ(caderno,
                  (std::vector<std::string>{perguntaDoArquivo, "abrir: Arquivos Texto (*.TXT)|*.TXT"}));
        EXPECT_EQ(salvar("outra.txt"), bytes) << unidade;
        clicar(perfilForm, "Option1");
    }
}

TEST_F(ArquivoDoEnsaioRadial, UmArquivoEscritoÀMãoÉLido) {
    // LF, a number of other decimals, blank lines at the end, Windows-1252.
    abrir("Aspers\xf3r\n20\n45\n24\n10\n2\n3\n60\n8\n1.5\t100\n4.5\t50.1236\n\n\n");
    const auto& f = *perfilForm.operator->();
    EXPECT_EQ(f.Text7.texto, "Aspersór");
    EXPECT_TRUE(f.Option3.marcada);
    EXPECT_EQ(f.Text4.texto, "60");
    EXPECT_EQ(f.Text3.texto, "8");
    EXPECT_EQ(f.Text5.texto, "2");
    EXPECT_EQ(f.flexGrid.linhas, 3);
    EXPECT_EQ(f.flexGrid.célula(1, 1), "1.50");
    EXPECT_EQ(f.flexGrid.célula(1, 2), "100.000");
    EXPECT_EQ(f.flexGrid.célula(2, 2), "50.124");
    EXPECT_EQ(f.flexGrid.célula(2, 0), "2");
    EXPECT_EQ(f.lblPreenchidas.texto, "Células preenchidas: 4 de 4");
}

TEST_F(ArquivoDoEnsaioRadial, LidoUmArquivoAPlanilhaNãoAdmiteEntradaAtéDigitar) {
    abrir(cabeçalho + "1\r\n3\t1\r\n6\t2\r\n9\t3\r\n");
    const auto& f = *perfilForm.operator->();
    EXPECT_TRUE(f.Option2.marcada);
    EXPECT_FALSE(f.Text6.visivel || f.Label6.visivel || f.Label7.visivel);
    EXPECT_EQ(recusaDe([] { atos::irParaCélula(alvo(perfilForm, "flexGrid"), 1, 1); }),
              "PerfilForm.flexGrid não admite entrada");
    perfilForm.ponteiro = Ponteiro::cruz;
    clicar(perfilForm, "Option1");
    EXPECT_TRUE(f.Text6.visivel && f.Label6.visivel && f.Label7.visivel);
    EXPECT_EQ(perfilForm.ponteiro, Ponteiro::padrão);
    // The entry line holds the cell of the file, so that leaving it changes nothing.
    atos::irParaCélula(alvo(perfilForm, "flexGrid"), 2, 1);
    atos::irParaCélula(alvo(perfilForm, "flexGrid"), 3, 1);
    EXPECT_EQ(f.flexGrid.célula(1, 1) + f.flexGrid.célula(2, 1) + f.flexGrid.célula(3, 1), "3.006.009.00");
}

TEST_F(ArquivoDoEnsaioRadial, NãoOuCanceladoVoltamADigitar) {
    preencherTextos();
    respostas = {false};
    clicar(perfilForm, "Option2");
    EXPECT_EQ(caderno, std::vector{perguntaDoArquivo});
    EXPECT_TRUE(perfilForm->Option1.marcada);
    EXPECT_EQ(perfilForm->Text7.texto, "Canhão A");
    // The boxes are emptied before the dialog.
    for (const auto& caminho : {std::optional<std::string>{}, std::optional<std::string>{""}}) {
        preencherTextos();
        respostas = {true};
        arquivos = {caminho};
        clicar(perfilForm, "Option2");
        EXPECT_TRUE(perfilForm->Option1.marcada);
        EXPECT_EQ(perfilForm->Text7.texto, "");
        EXPECT_EQ(perfilForm->flexGrid.célula(1, 1), "2.00");
    }
}

TEST_F(ArquivoDoEnsaioRadial, CadaLinhaDoCabeçalhoTemDeEstarPreenchida) {
    const std::vector<std::string> linhas{"A", "20", "45", "24", "4.2", "3"};
    for (std::size_t vazia = 0; vazia < linhas.size(); ++vazia) {
        std::string bytes;
        for (std::size_t k = 0; k < linhas.size(); ++k) bytes += (k == vazia ? "" : linhas[k]) + "\r\n";
        esperarQueNãoAbre(bytes + "1\r\n" + pontos, não);
        EXPECT_EQ(perfilForm->Text7.texto, "");
        EXPECT_EQ(perfilForm->flexGrid.célula(1, 1), "2.00");
    }
}

TEST_F(ArquivoDoEnsaioRadial, ASextaLinhaTemDeSerUmNúmeroPositivo) {
    for (const auto* linhas : {"três", "0", "-2", "0.4"})
        esperarQueNãoAbre("A\r\n20\r\n45\r\n24\r\n4.2\r\n" + std::string{linhas} + "\r\n1\r\n" + pontos, não);
}

TEST_F(ArquivoDoEnsaioRadial, OTempoEODiâmetroTêmDeSerNúmerosPositivos) {
    for (const auto* resto : {"2\r\n\r\n", "2\r\nx\r\n", "2\r\n0\r\n", "3\r\n60\r\n\r\n", "3\r\n60\r\nx\r\n"})
        esperarQueNãoAbre(cabeçalho + resto + pontos, não);
}

TEST_F(ArquivoDoEnsaioRadial, DeCódigo3SemANonaLinhaÉRecusado) {
    esperarQueNãoAbre(cabeçalho + "3\r\n60\r\n" + pontos, não);
    esperarQueNãoAbre(cabeçalho + "3\r\n60", não);
}

TEST_F(ArquivoDoEnsaioRadial, UmArquivoQueNãoSePodeLerÉRecusado) {
    esperarQueNãoAbre("", não);
    clicar(perfilForm, "Option3");
    respostas = {true};
    arquivos = {pasta.caminho("falta.txt")};
    clicar(perfilForm, "Option2");
    EXPECT_EQ(caderno.back(), não);
    EXPECT_TRUE(perfilForm->Option1.marcada);
}

TEST_F(ArquivoDoEnsaioRadial, UmaLinhaDeTrêsColunasÉRecusada) {
    esperarQueNãoAbre(cabeçalho + "1\r\n2\t9\t1\r\n10\t5\r\n18\t1\r\n",
                      "mensagem: A arquivo *.TXT apresenta mais de duas colunas!");
    // What the header told has been shown by then.
    EXPECT_EQ(perfilForm->Text7.texto, "Canhão A");
}

TEST_F(ArquivoDoEnsaioRadial, UmaLinhaDeUmaColunaÉRecusada) {
    const auto* mensagem =
        "mensagem: O número de colunas do arquivo não coicide com o número de colunas especificado!";
    esperarQueNãoAbre(cabeçalho + "1\r\n2\t9\r\n10\r\n18\t1\r\n", mensagem);
    esperarQueNãoAbre(cabeçalho + "1\r\n2\t9\r\n\r\n18\t1\r\n", mensagem);
}

TEST_F(ArquivoDoEnsaioRadial, UmaCélulaQueNãoÉNúmeroÉRecusada) {
    esperarQueNãoAbre(cabeçalho + "1\r\n2\t9\r\nx\t5\r\n18\t1\r\n",
                      "mensagem: Há valores não numéricos nos dados de distância ao aspersor!");
    esperarQueNãoAbre(cabeçalho + "1\r\n2\t9\r\n10\tx\r\n18\t1\r\n",
                      "mensagem: Há valores não numéricos nos dados de precipitação!");
    esperarQueNãoAbre(cabeçalho + "1\r\n2\t9\r\n10\t\r\n18\t1\r\n",
                      "mensagem: Há valores não numéricos nos dados de precipitação!");
}

TEST_F(ArquivoDoEnsaioRadial, DistânciasForaDeOrdemSãoRecusadas) {
    for (const auto* r : {"2", "1.99"})
        esperarQueNãoAbre(cabeçalho + "1\r\n2\t9\r\n" + r + "\t5\r\n18\t1\r\n",
                          "mensagem: Os valores de distância ao aspersor devem estar em ordem crescente!");
}

TEST_F(ArquivoDoEnsaioRadial, MaisLinhasDoQueAPlanilhaTemSãoDemais) {
    esperarQueNãoAbre(cabeçalho + "1\r\n" + pontos + "19\t1\r\n", "mensagem: O arquivo é muito grande!");
    esperarQueNãoAbre("A\r\n20\r\n45\r\n24\r\n4.2\r\n10001\r\n1\r\n" + pontos,
                      "mensagem: O arquivo é muito grande!");
}

TEST_F(ArquivoDoEnsaioRadial, AsLinhasSãoConferidasAntesDoSeuNúmero) {
    const std::string início = "A\r\n20\r\n45\r\n24\r\n4.2\r\n10001\r\n";
    esperarQueNãoAbre(início + "2\r\nx\r\n" + pontos, não);
    esperarQueNãoAbre(início + "1\r\n2\t9\t1\r\n",
                      "mensagem: A arquivo *.TXT apresenta mais de duas colunas!");
    esperarQueNãoAbre(início + "1\r\n", "mensagem: O arquivo é muito grande!");
    // The header stands in its boxes by then, but for a number of data that no grid can have.
    EXPECT_EQ(perfilForm->Text9.texto, "20");
    EXPECT_EQ(perfilForm->Text5.texto, "3");
    EXPECT_EQ(perfilForm->flexGrid.linhas, 4);
}

TEST_F(ArquivoDoEnsaioRadial, UmArquivoDoMaiorTamanhoÉLido) {
    std::string bytes = "A\n20\n45\n24\n4.2\n10000\n1\n";
    for (int k = 1; k <= 10000; ++k) bytes += std::to_string(k) + "\t1\n";
    abrir(bytes);
    EXPECT_EQ(perfilForm->lblPreenchidas.texto, "Células preenchidas: 20000 de 20000");
    EXPECT_EQ(perfilForm->flexGrid.célula(10000, 1), "10000.00");
}

TEST_F(ArquivoDoEnsaioRadial, UmaLinhaLongaDemaisÉRecusada) {
    esperarQueNãoAbre(std::string(maiorLinha + 1, 'A') + "\r\n20\r\n45\r\n24\r\n4.2\r\n3\r\n1\r\n" + pontos,
                      não);
    EXPECT_EQ(perfilForm->Text7.texto, "");
}

TEST_F(ArquivoDoEnsaioRadial, UmArquivoRecusadoNasLinhasDeixaAsLeiturasDeAntes) {
    esperarQueNãoAbre("Outro\r\n20\r\n45\r\n24\r\n4.2\r\n2\r\n1\r\n2\t9\r\nx\t5\r\n",
                      "mensagem: Há valores não numéricos nos dados de distância ao aspersor!");
    EXPECT_EQ(perfilForm->Text7.texto, "Outro");
    EXPECT_EQ(perfilForm->Text5.texto, "2");
    EXPECT_EQ(perfilForm->flexGrid.linhas, 3);
    EXPECT_EQ(perfilForm->flexGrid.célula(2, 1), "10.00");
    // The third one comes back with its row; after a file that is read it doesn't.
    digitar(perfilForm, "Text5", "3");
    EXPECT_EQ(perfilForm->flexGrid.célula(3, 1), "18.00");
    abrir("A\r\n20\r\n45\r\n24\r\n4.2\r\n2\r\n1\r\n3\t9\r\n6\t5\r\n");
    clicar(perfilForm, "Option1");
    digitar(perfilForm, "Text5", "3");
    EXPECT_EQ(perfilForm->flexGrid.célula(3, 1), "");
}

TEST_F(ArquivoDoEnsaioRadial, ONúmeroDeDadosSóÉLivreAoDigitar) {
    abrir(cabeçalho + "1\r\n" + pontos);
    EXPECT_EQ(recusaDe([] { digitar(perfilForm, "Text5", "1"); }), "PerfilForm.Text5 está desabilitado");
    clicar(perfilForm, "Option1");
    digitar(perfilForm, "Text5", "2");
    EXPECT_EQ(perfilForm->flexGrid.linhas, 3);
}

TEST_F(ArquivoDoEnsaioRadial, UmArquivoRecusadoLevaADigitar) {
    esperarQueNãoAbre("", não);
    EXPECT_EQ(controleComFoco, &perfilForm->Option1);
    EXPECT_TRUE(perfilForm->Text5.habilitado);
    EXPECT_EQ(perfilForm->Text6.texto,
              perfilForm->flexGrid.célula(perfilForm->flexGrid.linhaAtual, perfilForm->flexGrid.colunaAtual));
}

TEST_F(ArquivoDoEnsaioRadial, MenosLinhasDoQueAnunciadasSãoRecusadas) {
    esperarQueNãoAbre(cabeçalho + "1\r\n2\t9\r\n10\t5\r\n", não);
}

// What is checked before a save.

TEST_F(ArquivoDoEnsaioRadial, SemONúmeroDeDadosNãoSalva) {
    for (const auto* texto : {"", "três"}) {
        digitar(perfilForm, "Text5", texto);
        esperarQueNãoSalva("Informe o número de linhas da planilha!");
    }
}

TEST_F(ArquivoDoEnsaioRadial, SemOTempoEmMmNãoSalva) {
    clicar(perfilForm, "Option4");
    esperarQueNãoSalva("Insira um valor numérico de tempo!");
    for (const auto* texto : {"x", "0", "-1"}) {
        digitar(perfilForm, "Text4", texto);
        esperarQueNãoSalva("Valor numérico inválido!");
        EXPECT_EQ(perfilForm->Text4.texto, "");
    }
}

TEST_F(ArquivoDoEnsaioRadial, SemTempoEDiâmetroEmMlNãoSalva) {
    clicar(perfilForm, "Option3");
    digitar(perfilForm, "Text4", "60");
    esperarQueNãoSalva("Ausência de valor numérico de tempo ou diâmetro do coletor!");
    EXPECT_EQ(perfilForm->Text4.texto, "60");
    for (const auto* texto : {"x", "0"}) {
        digitar(perfilForm, "Text4", "60");
        digitar(perfilForm, "Text3", texto);
        esperarQueNãoSalva("Valor numérico de tempo ou diâmetro do coletor inválido!");
        EXPECT_EQ(perfilForm->Text3.texto + perfilForm->Text4.texto, "");
    }
}

TEST_F(ArquivoDoEnsaioRadial, CélulasQueNãoSãoNúmerosNãoSalvam) {
    preencherEnsaio({{"2", "9"}, {"10", "x"}});
    esperarQueNãoSalva("Insira valores numéricos!");
    preencherEnsaio({{"2", "9"}, {"", "5"}});
    esperarQueNãoSalva("Insira valores numéricos!");
}

TEST_F(ArquivoDoEnsaioRadial, DistânciasForaDeOrdemNãoSalvam) {
    preencherEnsaio({{"2", "9"}, {"2", "5"}});
    esperarQueNãoSalva("Os valores de distância ao aspersor devem estar em ordem crescente!");
    EXPECT_EQ(perfilForm->flexGrid.linhaAtual, 2);
    EXPECT_EQ(perfilForm->flexGrid.colunaAtual, 1);
    EXPECT_EQ(controleComFoco, &perfilForm->Text6);
}

TEST_F(ArquivoDoEnsaioRadial, UmaCélulaRecusadaAoSalvarÉAAtual) {
    atos::preencherCélula(alvo(perfilForm, "flexGrid"), 2, 2, "x");
    atos::irParaCélula(alvo(perfilForm, "flexGrid"), 1, 1);
    esperarQueNãoSalva("Insira valores numéricos!");
    EXPECT_EQ(perfilForm->Label6.texto, "2 : Intensidade - i (mm/h)");
    EXPECT_EQ(perfilForm->Text6.texto, "x");
    EXPECT_EQ(controleComFoco, &perfilForm->Text6);
    // Mended without an Enter.
    digitar(perfilForm, "Text6", "5");
    EXPECT_EQ(salvar(), "Não Especificado\r\nN/E\r\nN/E\r\nN/E\r\nN/E\r\n3\r\n1\r\n" + pontos);
}

TEST_F(ArquivoDoEnsaioRadial, ASegundaPassagemTemASuaMensagem) {
    // The first look stops at all that the second one would find.
    Grade grade = perfilForm->flexGrid;
    EXPECT_EQ(recusaNaSegundaPassagem(grade).mensagem, nullptr);
    grade.escrever(2, 2, "x");
    const auto recusa = recusaNaSegundaPassagem(grade);
    EXPECT_STREQ(recusa.mensagem, "Insira um valores numéricos!");
    EXPECT_EQ(std::pair(recusa.linha, recusa.coluna), std::pair(2, 2));
}

TEST_F(ArquivoDoEnsaioRadial, CancelarNãoSalva) {
    arquivos = {std::nullopt};
    clicar(perfilForm, "Command4");
    EXPECT_EQ(caderno, std::vector<std::string>{"salvar: Text files|*.TXT|All files|*.* TXT"});
    EXPECT_TRUE(pasta.nomes().empty());
}

TEST_F(ArquivoDoEnsaioRadial, UmaFalhaAoSalvarÉContada) {
    arquivos = {pasta.caminho("não existe/ensaio.txt")};
    caderno.clear();
    clicar(perfilForm, "Command4");
    ASSERT_EQ(caderno.size(), 2U);
    EXPECT_TRUE(caderno[1].starts_with("mensagem: Ocorreu um erro, o aquivo não pode ser salvo "))
        << caderno[1];
    EXPECT_GT(caderno[1].size(),
              std::string{"mensagem: Ocorreu um erro, o aquivo não pode ser salvo "}.size());
}

} // namespace
} // namespace varenta::teste
