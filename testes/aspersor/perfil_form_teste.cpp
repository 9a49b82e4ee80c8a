#include "aspersor/perfil_form.h"

#include "apoio/ensaios.h"
#include "aspersor/arquivo_radial.h"
#include "aspersor/avancar_perfil_form.h"

namespace varenta::teste {
namespace {

class EnsaioRadial : public testing::Test {
  protected:
    void SetUp() override { abrirPerfilForm(); }

    static std::string mensagem(const std::string& texto) { return "mensagem: " + texto; }
    static const std::string& célula(int linha, int coluna) {
        return perfilForm->flexGrid.célula(linha, coluna);
    }
    static void avançar() { clicar(perfilForm, "Command8"); }
    /// Goes on and expects one message and nothing else.
    static void esperarRecusa(const std::string& texto) {
        caderno.clear();
        avançar();
        EXPECT_EQ(caderno, std::vector{mensagem(texto)});
        EXPECT_TRUE(perfilForm.visivel);
        EXPECT_FALSE(perfil.visivel);
    }
};

const std::string perguntaPelaVazão = "pergunta: Insira um valor de vazão. Caso você não o faça, o programa "
                                      "estimará a vazão a partir do perfil radial!";
const std::string perguntaPelaDivergência =
    "pergunta: A vazão estimada diferiu em 10% a vazão aplicada, recomenda-se repetir o ensaio. Caso "
    "continue, os valores de intensidade de precipitação sofrerão alterações!";

TEST_F(EnsaioRadial, AbreEmMmPorHoraComUmaLinhaPorDigitar) {
    recomeçar();
    clicar(form3, "Ou_aspB");
    const auto& f = *perfilForm.operator->();
    EXPECT_TRUE(f.Option5.marcada);
    EXPECT_TRUE(f.Option1.marcada);
    EXPECT_EQ(f.Text5.texto, "1");
    EXPECT_EQ(f.flexGrid.linhas, 2);
    EXPECT_EQ(célula(0, 0), "No");
    EXPECT_EQ(célula(0, 1), "Distância - r (m)");
    EXPECT_EQ(célula(0, 2), "Intensidade - i (mm/h)");
    EXPECT_EQ(célula(1, 0), "1");
    EXPECT_FALSE(f.Text3.visivel || f.Text4.visivel || f.Label3.visivel || f.Label4.visivel);
    EXPECT_EQ(f.Label6.texto, "1 : Distância - r (m)");
    EXPECT_EQ(f.Label7.texto, "Digite os Valores:");
    EXPECT_EQ(f.lblPreenchidas.texto, "Células preenchidas: 0 de 2");
    EXPECT_FALSE(form3.visivel);
}

TEST_F(EnsaioRadial, CadaItemDoMenuDeixaUmBotãoDeAvançar) {
    const auto visíveis = [] {
        const auto& f = *perfilForm.operator->();
        return std::vector{f.Command6.visivel, f.Command7.visivel, f.Command8.visivel};
    };
    EXPECT_EQ(visíveis(), (std::vector{false, false, true}));
    abrirPerfilForm(cone, "Ou_aspC");
    EXPECT_EQ(visíveis(), (std::vector{true, false, false}));
    abrirPerfilForm(cone, "OuAsp_Auto");
    EXPECT_EQ(visíveis(), (std::vector{false, true, false}));
}

TEST_F(EnsaioRadial, OItemDoMenuComeçaDeNovo) {
    clicar(perfilForm, "Command3");
    EXPECT_TRUE(form3.visivel);
    EXPECT_FALSE(perfilForm.carregada());
    clicar(form3, "Ou_aspB");
    EXPECT_EQ(perfilForm->Text5.texto, "1");
    EXPECT_EQ(célula(1, 1), "");
}

TEST_F(EnsaioRadial, AUnidadeMudaOCabeçalhoEEsvaziaOsCampos) {
    const auto& f = *perfilForm.operator->();
    clicar(perfilForm, "Option3");
    EXPECT_EQ(célula(0, 2), "Intensidade - i (ml)");
    EXPECT_TRUE(f.Text3.visivel && f.Text4.visivel && f.Label3.visivel && f.Label4.visivel);
    digitar(perfilForm, "Text3", "8");
    digitar(perfilForm, "Text4", "60");
    clicar(perfilForm, "Option4");
    EXPECT_EQ(célula(0, 2), "Intensidade - i (mm)");
    EXPECT_TRUE(f.Text4.visivel && f.Label4.visivel);
    EXPECT_FALSE(f.Text3.visivel || f.Label3.visivel);
    EXPECT_EQ(f.Text3.texto + f.Text4.texto, "");
    digitar(perfilForm, "Text4", "60");
    clicar(perfilForm, "Option5");
    EXPECT_EQ(f.Text4.texto, "");
    EXPECT_EQ(célula(1, 1), "2.00") << "the readings stay";
}

TEST_F(EnsaioRadial, ONúmeroDeDadosDáAsLinhas) {
    digitar(perfilForm, "Text5", "5");
    EXPECT_EQ(perfilForm->flexGrid.linhas, 6);
    EXPECT_EQ(célula(5, 0), "5");
    EXPECT_EQ(célula(3, 1), "18.00");
    // A number rounds half to even.
    digitar(perfilForm, "Text5", "2.5");
    EXPECT_EQ(perfilForm->flexGrid.linhas, 3);
    EXPECT_EQ(caderno, std::vector<std::string>{});
}

TEST_F(EnsaioRadial, UmNúmeroDeDadosQueNãoÉNúmeroDeixaAsLinhas) {
    for (const auto* texto : {"", "abc", "1,5"}) {
        digitar(perfilForm, "Text5", texto);
        EXPECT_EQ(perfilForm->flexGrid.linhas, 4);
        EXPECT_EQ(perfilForm->Text5.texto, texto);
    }
    EXPECT_EQ(caderno, std::vector<std::string>{});
}

TEST_F(EnsaioRadial, UmNúmeroDeDadosQueNãoÉPositivoÉRecusado) {
    for (const auto* texto : {"0", "-3", "0.4"}) {
        caderno.clear();
        controleComFoco = nullptr;
        digitar(perfilForm, "Text5", texto);
        EXPECT_EQ(caderno, std::vector{mensagem("O valor deve ser maior que zero!")}) << texto;
        EXPECT_EQ(perfilForm->Text5.texto, "");
        EXPECT_EQ(controleComFoco, &perfilForm->Text5);
        EXPECT_EQ(perfilForm->flexGrid.linhas, 4);
    }
}

TEST_F(EnsaioRadial, LinhasDemaisSãoRecusadasAntesDaMemória) {
    for (const auto* texto : {"10000.6", "5000000", "1e20"}) {
        caderno.clear();
        digitar(perfilForm, "Text5", texto);
        EXPECT_EQ(caderno,
                  std::vector{mensagem(
                      "A planilha pode ter no máximo 10000 linhas, 10000 colunas e 2000000 células!")})
            << texto;
        EXPECT_EQ(perfilForm->Text5.texto, "");
        EXPECT_EQ(perfilForm->flexGrid.linhas, 4);
        EXPECT_EQ(controleComFoco, &perfilForm->Text5);
    }
    digitar(perfilForm, "Text5", "10000");
    EXPECT_EQ(perfilForm->flexGrid.linhas, 10001);
}

TEST_F(EnsaioRadial, UmNúmeroDeDadosCorrigidoDevolveAsLinhasQueTirou) {
    // From "3" to "13" key by key: "3", "", "1", "13".
    digitar(perfilForm, "Text5", "");
    digitar(perfilForm, "Text5", "1");
    EXPECT_EQ(perfilForm->flexGrid.linhas, 2);
    EXPECT_EQ(perfilForm->lblPreenchidas.texto, "Células preenchidas: 2 de 2");
    digitar(perfilForm, "Text5", "13");
    EXPECT_EQ(perfilForm->flexGrid.linhas, 14);
    EXPECT_EQ(célula(2, 1) + " " + célula(2, 2) + " " + célula(3, 1) + " " + célula(3, 2),
              "10.00 5.000 18.00 1.000");
    EXPECT_EQ(célula(4, 0) + célula(4, 1) + célula(4, 2), "4");
    EXPECT_EQ(perfilForm->lblPreenchidas.texto, "Células preenchidas: 6 de 26");
    // In two steps down and two up.
    for (const auto* texto : {"2", "1", "2", "3"}) digitar(perfilForm, "Text5", texto);
    EXPECT_EQ(célula(2, 1) + " " + célula(3, 1), "10.00 18.00");
    // Only as far as the number has grown.
    digitar(perfilForm, "Text5", "1");
    digitar(perfilForm, "Text5", "2");
    EXPECT_EQ(pontosDaGrade(perfilForm->flexGrid).size(), 2U);
}

TEST_F(EnsaioRadial, OQueLimparEsvaziaNãoVolta) {
    digitar(perfilForm, "Text5", "1");
    clicar(perfilForm, "Command1");
    digitar(perfilForm, "Text5", "3");
    EXPECT_EQ(perfilForm->lblPreenchidas.texto, "Células preenchidas: 0 de 6");
}

// What the entry line holds counts without an Enter.

TEST_F(EnsaioRadial, OQueSeDigitouSemEnterValeAoAvançar) {
    atos::irParaCélula(alvo(perfilForm, "flexGrid"), 3, 2);
    digitar(perfilForm, "Text6", "x");
    esperarRecusa("Insira valores numéricos!");
    EXPECT_EQ(célula(3, 2), "x");
    digitar(perfilForm, "Text6", "0");
    esperarRecusa("O último valor de intensidade de precipitação deve ser diferente de zero!");
    digitar(perfilForm, "Text6", "1");
    respostas = {false};
    avançar();
    EXPECT_EQ(perfilForm->Text1.texto, "4.189");
}

TEST_F(EnsaioRadial, OQueSeDigitouSemEnterFicaAoMudarONúmeroDeDados) {
    atos::irParaCélula(alvo(perfilForm, "flexGrid"), 3, 1);
    digitar(perfilForm, "Text6", "17.5");
    digitar(perfilForm, "Text5", "1");
    digitar(perfilForm, "Text5", "3");
    EXPECT_EQ(célula(3, 1), "17.50");
    EXPECT_EQ(perfilForm->Text6.texto, célula(1, 1));
}

TEST_F(EnsaioRadial, OQueSeDigitouSemEnterFicaAoDesistirDeUmArquivo) {
    atos::irParaCélula(alvo(perfilForm, "flexGrid"), 3, 1);
    digitar(perfilForm, "Text6", "17.5");
    respostas = {false};
    clicar(perfilForm, "Option2");
    EXPECT_EQ(célula(3, 1), "17.50");
    EXPECT_EQ(controleComFoco, &perfilForm->Option1);
    digitar(perfilForm, "Text6", "17.6");
    clicar(perfilForm, "Option1");
    EXPECT_EQ(célula(3, 1), "17.60");
}

TEST_F(EnsaioRadial, EncolherAPlanilhaNãoLevaOTextoDaCélulaQueSeFoi) {
    atos::irParaCélula(alvo(perfilForm, "flexGrid"), 3, 2);
    digitar(perfilForm, "Text5", "2");
    EXPECT_EQ(perfilForm->Text6.texto, "5.000");
    atos::irParaCélula(alvo(perfilForm, "flexGrid"), 1, 1);
    EXPECT_EQ(célula(2, 2), "5.000");
}

TEST_F(EnsaioRadial, AEntradaFormataAndaEConta) {
    atos::preencherCélula(alvo(perfilForm, "flexGrid"), 1, 1, "1.256");
    EXPECT_EQ(célula(1, 1), "1.26");
    EXPECT_EQ(perfilForm->Label6.texto, "1 : Intensidade - i (mm/h)");
    atos::preencherCélula(alvo(perfilForm, "flexGrid"), 1, 2, "7.12349");
    EXPECT_EQ(célula(1, 2), "7.123");
    EXPECT_EQ(perfilForm->Label6.texto, "2 : Distância - r (m)");
    EXPECT_EQ(perfilForm->lblPreenchidas.texto, "Células preenchidas: 6 de 6");
    atos::preencherCélula(alvo(perfilForm, "flexGrid"), 1, 2, "");
    EXPECT_EQ(célula(1, 2), "");
    EXPECT_EQ(perfilForm->lblPreenchidas.texto, "Células preenchidas: 5 de 6");
}

TEST_F(EnsaioRadial, ODesenhoMostraUmColetorACadaDistância) {
    // The farthest stands at the right end, 285; that at half its distance in the middle of 15 and 285.
    preencherEnsaio({{"10", "5"}, {"20", "1"}});
    const auto& traços = perfilForm->Picture1.traços;
    ASSERT_EQ(traços.size(), 2U + 2 * 2U);
    EXPECT_EQ(std::get<Arco>(traços[2]).cx, 150);
    EXPECT_EQ(std::get<Arco>(traços[4]).cx, 285);
    // All stand halfway up the picture of 300 x 60, on the line.
    EXPECT_EQ(std::get<Linha>(traços[0]).y1, 30);
    EXPECT_EQ(std::get<Linha>(traços[0]).y2, 30);
    for (std::size_t k = 1; k < traços.size(); ++k) EXPECT_EQ(std::get<Arco>(traços[k]).cy, 30) << k;
}

TEST_F(EnsaioRadial, LimparEsvaziaTudoMenosONúmeroDeDados) {
    for (const auto* nome : {"Text7", "Text9", "Text2", "Text8", "Text1"}) digitar(perfilForm, nome, "1");
    clicar(perfilForm, "Command1");
    const auto& f = *perfilForm.operator->();
    EXPECT_EQ(f.Text7.texto + f.Text9.texto + f.Text2.texto + f.Text8.texto + f.Text1.texto + f.Text6.texto,
              "");
    EXPECT_EQ(f.lblPreenchidas.texto, "Células preenchidas: 0 de 6");
    EXPECT_EQ(f.Text5.texto, "3");
    EXPECT_TRUE(f.Option1.marcada);
}

TEST_F(EnsaioRadial, DevolveOMenuAoFecharPelaCaixa) {
    atos::fechar(perfilForm);
    EXPECT_FALSE(perfilForm.carregada());
    EXPECT_TRUE(form3.visivel);
}

// What is checked before going on.

TEST_F(EnsaioRadial, OTempoDoEnsaioEmMmTemDeSerUmNúmeroPositivo) {
    clicar(perfilForm, "Option4");
    for (const auto* texto : {"", "abc", "0", "-5"}) {
        digitar(perfilForm, "Text4", texto);
        esperarRecusa("Tempo de ensaio com valor numérico inválido!");
        EXPECT_EQ(perfilForm->Text4.texto, "");
        EXPECT_EQ(controleComFoco, &perfilForm->Text4);
    }
}

TEST_F(EnsaioRadial, TempoEDiâmetroEmMlTêmDeSerNúmerosPositivos) {
    clicar(perfilForm, "Option3");
    for (const auto& [diâmetro, tempo] : std::vector<std::pair<const char*, const char*>>{
             {"", ""}, {"8", ""}, {"", "60"}, {"x", "60"}, {"8", "x"}, {"0", "60"}, {"8", "-1"}}) {
        digitar(perfilForm, "Text3", diâmetro);
        digitar(perfilForm, "Text4", tempo);
        esperarRecusa("Área do coletor ou tempo de ensaio com valor numérico inválido!");
        EXPECT_EQ(perfilForm->Text3.texto + perfilForm->Text4.texto, "");
    }
}

TEST_F(EnsaioRadial, OÂnguloDoJatoDadoTemDeSerUmNúmeroDe10A60) {
    digitar(perfilForm, "Text8", "alto");
    esperarRecusa("Ângulo do jato com valor numérico inválido!");
    EXPECT_EQ(perfilForm->Text8.texto, "");
    EXPECT_EQ(controleComFoco, &perfilForm->Text8);
    for (const auto* texto : {"9.99", "60.01"}) {
        digitar(perfilForm, "Text8", texto);
        esperarRecusa("O valor de ângulo do jato deve estar entre 10 - 60º!");
        EXPECT_EQ(perfilForm->Text8.texto, "");
    }
    for (const auto* texto : {"10", "60", ""}) {
        abrirPerfilForm();
        digitar(perfilForm, "Text8", texto);
        respostas.push_back(false);
        avançar();
        EXPECT_TRUE(perfil.visivel) << texto;
    }
}

TEST_F(EnsaioRadial, AsCélulasSãoConferidasLinhaPorLinhaADistânciaAntes) {
    preencherEnsaio({{"2", ""}, {"x", ""}});
    esperarRecusa("Há alguma célula da planilha vazia!");
    EXPECT_EQ(perfilForm->flexGrid.linhaAtual, 1);
    EXPECT_EQ(perfilForm->flexGrid.colunaAtual, 2);
    EXPECT_EQ(controleComFoco, &perfilForm->Text6);
    preencherEnsaio({{"2", "x"}, {"", ""}});
    esperarRecusa("Insira valores numéricos!");
    preencherEnsaio({{"2", "1"}, {"2", "x"}});
    esperarRecusa("O valores de distância ao aspersor devem ser crescentes!");
    EXPECT_EQ(perfilForm->flexGrid.linhaAtual, 2);
    EXPECT_EQ(perfilForm->flexGrid.colunaAtual, 1);
    preencherEnsaio({{"2", "1"}, {"1.5", "1"}});
    esperarRecusa("O valores de distância ao aspersor devem ser crescentes!");
}

TEST_F(EnsaioRadial, APrimeiraDistânciaNãoPodeSerZero) {
    preencherEnsaio({{"0", "9"}, {"10", "5"}, {"18", "0"}});
    esperarRecusa("O primeiro valor de distância ao aspersor deve ser diferente de zero!");
}

TEST_F(EnsaioRadial, AÚltimaLeituraNãoPodeSerZero) {
    preencherEnsaio({{"2", "9"}, {"10", "5"}, {"18", "0"}});
    esperarRecusa("O último valor de intensidade de precipitação deve ser diferente de zero!");
}

TEST_F(EnsaioRadial, UmaLinhaSóTerminaComErroDeExecução) {
    preencherEnsaio({{"18", "1"}});
    caderno.clear();
    avançar();
    EXPECT_EQ(caderno,
              std::vector<std::string>{"erro: Índice fora dos limites: "
                                       "são precisas duas leituras ao menos, e diferentes as duas últimas"});
    EXPECT_TRUE(perfilForm.visivel);
}

TEST_F(EnsaioRadial, UmFinalPlanoTerminaComErroDeExecução) {
    preencherEnsaio({{"2", "9"}, {"10", "5"}, {"18", "5"}});
    caderno.clear();
    avançar();
    EXPECT_EQ(caderno,
              std::vector<std::string>{"erro: Divisão por zero: "
                                       "são precisas duas leituras ao menos, e diferentes as duas últimas"});
}

TEST_F(EnsaioRadial, UmAlcanceAbaixoDe12mÉRecusado) {
    // 5 m apart, falling to 0 at 11.25 m at the most.
    preencherEnsaio({{"5", "9"}, {"10", "5"}});
    esperarRecusa("Para as simulações, o raio de alcance deve ser superior a 12 m!");
}

TEST_F(EnsaioRadial, UmFinalQueSobeÉRespondidoPelaConferênciaDos12m) {
    // From (10, 1) to (14, 2) the line is 0 at 6 m.
    preencherEnsaio({{"2", "3"}, {"10", "1"}, {"14", "2"}});
    esperarRecusa("Para as simulações, o raio de alcance deve ser superior a 12 m!");
}

TEST_F(EnsaioRadial, SemVazãoOSimDeixaDigitar) {
    respostas.push_back(true);
    avançar();
    EXPECT_EQ(caderno, std::vector{perguntaPelaVazão});
    EXPECT_EQ(perfilForm->Text1.texto, "");
    EXPECT_EQ(controleComFoco, &perfilForm->Text1);
    EXPECT_FALSE(perfil.carregada());
}

TEST_F(EnsaioRadial, SemVazãoONãoAceitaAEstimativaEARazãoÉUm) {
    respostas.push_back(false);
    avançar();
    EXPECT_EQ(caderno, std::vector{perguntaPelaVazão});
    EXPECT_EQ(perfilForm->Text1.texto, "4.189");
    EXPECT_TRUE(perfil.visivel);
}

TEST_F(EnsaioRadial, AVazãoDadaTemDeSerUmNúmeroPositivo) {
    digitar(perfilForm, "Text1", "N/E");
    esperarRecusa("Insira valores numéricos!");
    EXPECT_EQ(perfilForm->Text1.texto, "");
    EXPECT_EQ(controleComFoco, &perfilForm->Text1);
    for (const auto* texto : {"0", "-4"}) {
        digitar(perfilForm, "Text1", texto);
        esperarRecusa("Valor numérico de vazão inválido!");
        EXPECT_EQ(perfilForm->Text1.texto, "");
    }
}

TEST_F(EnsaioRadial, UmaVazãoQueDifereÉPerguntada) {
    // 4.18879 / 3.8 = 1.1023; / 3.81 = 1.0994; / 4.66 = 0.8989; / 4.65 = 0.9008.
    for (const auto* texto : {"3.8", "4.66"}) {
        caderno.clear();
        digitar(perfilForm, "Text1", texto);
        respostas.push_back(false);
        avançar();
        EXPECT_EQ(caderno, std::vector{perguntaPelaDivergência}) << texto;
        EXPECT_FALSE(perfil.carregada());
    }
    for (const auto* texto : {"3.81", "4.65"}) {
        abrirPerfilForm();
        digitar(perfilForm, "Text1", texto);
        avançar();
        EXPECT_EQ(caderno, std::vector<std::string>{}) << texto;
        EXPECT_TRUE(perfil.visivel);
    }
}

// What `Perfil` shows then.

TEST_F(EnsaioRadial, PerfilMostraOConeNaEscalaDaVazão) {
    digitar(perfilForm, "Text1", "8.377580414"); // twice the cone's own
    respostas.push_back(true);
    avançar();
    EXPECT_EQ(caderno, std::vector{perguntaPelaDivergência});
    const auto& p = *perfil.operator->();
    EXPECT_EQ(p.Label17.texto, "20.00");
    EXPECT_EQ(p.Label2.texto, "8.377580414");
    // Twice the cone: 20 mm/h at the sprinkler, a mean of 20/3.
    EXPECT_EQ(p.lblInt.texto, "Intensidade: 6.67 mm/h");
    EXPECT_EQ(p.lblRaio[1].texto, "0.000");
    EXPECT_EQ(p.lblIntensidade[1].texto, "20.000");
    EXPECT_EQ(p.lblRaio[2].texto, "0.500");
    EXPECT_EQ(p.lblIntensidade[2].texto, "19.500");
    EXPECT_EQ(p.lblRaio[12].texto, "10.500");
    EXPECT_EQ(p.lblIntensidade[12].texto, "9.500");
    EXPECT_EQ(p.lblRaio[22].texto, "20.000");
    EXPECT_EQ(p.lblIntensidade[22].texto, "0.000");
}

TEST_F(EnsaioRadial, OsTrêsModosDeMedirDãoOMesmoPerfil) {
    const auto perfilDe = [] {
        respostas.push_back(false);
        avançar();
        return textos(std::span{perfil->lblIntensidade}.subspan(1));
    };
    const auto emMmPorHora = perfilDe();
    // Half an hour: half the millimetres.
    abrirPerfilForm();
    clicar(perfilForm, "Option4");
    preencherEnsaio({{"2", "4.5"}, {"10", "2.5"}, {"18", "0.5"}});
    digitar(perfilForm, "Text4", "30");
    EXPECT_EQ(perfilDe(), emMmPorHora);
    // Two hours in a collector of 20 cm, pi x 100 cm²: 9 mm/h x 2 h x 31.4159 ml/mm.
    abrirPerfilForm();
    clicar(perfilForm, "Option3");
    preencherEnsaio({{"2", "565.487"}, {"10", "314.159"}, {"18", "62.832"}});
    digitar(perfilForm, "Text3", "20");
    digitar(perfilForm, "Text4", "120");
    EXPECT_EQ(perfilDe(), emMmPorHora);
}

TEST_F(EnsaioRadial, OsTextosDizemOQueSeSabeDoAspersor) {
    digitar(perfilForm, "Text7", "Canhão A");
    digitar(perfilForm, "Text9", "20 x 7");
    digitar(perfilForm, "Text2", "45");
    digitar(perfilForm, "Text8", "24");
    digitar(perfilForm, "Text1", "4.2");
    avançar();
    const auto& p = *perfil.operator->();
    EXPECT_EQ(p.Caption, "Características Técnicas do Aspersor Canhão A");
    EXPECT_EQ(p.Label11.texto, "Aspersor: Canhão A");
    EXPECT_EQ(p.Label13.texto, "Bocais: 20 x 7 mm");
    EXPECT_EQ(p.Label1.texto, "Pressão: 45 m.c.a.");
    EXPECT_EQ(p.Label2.texto, "4.2");
    EXPECT_EQ(p.Label12.texto, "Ângulo do Jato: 24º");
    EXPECT_FALSE(perfilForm.visivel);
    EXPECT_TRUE(perfilForm.carregada());
}

TEST_F(EnsaioRadial, OsTextosDizemOQueNãoSeSabe) {
    abrirPerfil();
    const auto& p = *perfil.operator->();
    EXPECT_EQ(p.Caption, "Características Técnicas do Aspersor não Especificado");
    EXPECT_EQ(p.Label11.texto, "Aspersor: Não especificado");
    EXPECT_EQ(p.Label13.texto, "Bocais: N/E");
    EXPECT_EQ(p.Label1.texto, "Pressão: N/E");
    EXPECT_EQ(p.Label12.texto, "Ângulo do Jato: N/E");
}

} // namespace
} // namespace varenta::teste
