#include "ajuste/form_ajvenou.h"

#include "ajuste/form_ajcar.h"
#include "ajuste/form_ajuste.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_migraf.h"
#include "ajuste/tela_de_ajuste.h"
#include "apoio/ajuste_feito_a_mao.h"
#include "apoio/pasta_temporaria.h"
#include "shell/form3.h"

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

bool visivel(std::string_view botão) { return estáVisível(alvo(form_AjvenOu, botão).elemento); }

TEST(FormAjvenOu, RecebeOsTextosDoAspersor) {
    abrirFormAjvenOu(Método::malha);
    EXPECT_EQ(form_AjvenOu->Caption, "Características Técnicas do Aspersor Meu");
    const auto dados = lerAspersor(telaDeAjuste(Aspersor::outro));
    EXPECT_EQ(dados.R, 6);
    EXPECT_EQ(dados.Q, 0.936F);
    EXPECT_EQ(dados.anguloJato, (24 * 3.14159265358979) / 180);
    EXPECT_EQ(dados.intensidades[21], 10);
}

TEST(FormAjvenOu, UmaIntensidadeQueNãoÉNúmeroÉErro) {
    abrirFormAjvenOu(Método::malha);
    form_AjvenOu->lblIntensidade[5].texto.clear();
    EXPECT_EQ(erroDe([] { lerAspersor(telaDeAjuste(Aspersor::outro)); }), "Tipos incompatíveis");
}

TEST(FormAjvenOu, CadaMétodoEscondeOsBotõesDoOutro) {
    abrirFormAjvenOu(Método::malha);
    for (const char* nome : {"Command4", "Command3", "Command6", "Command5", "Command8", "Command9",
                             "Command10", "Command15", "Command7"})
        EXPECT_TRUE(visivel(nome)) << nome;
    for (const char* nome : {"Command11", "Command12", "Command13", "Command14", "Command16", "Command17"})
        EXPECT_FALSE(visivel(nome)) << nome;
    abrirFormAjvenOu(Método::autopropelido);
    for (const char* nome :
         {"Command4", "Command3", "Command6", "Command5", "Command8", "Command9", "Command10"})
        EXPECT_FALSE(visivel(nome)) << nome;
    for (const char* nome : {"Command11", "Command17", "Command14", "Command15", "Command16", "Command7"})
        EXPECT_TRUE(visivel(nome)) << nome;
}

TEST(FormAjvenOu, SalvarParâmetrosNãoTemOperação) {
    abrirFormAjvenOu(Método::malha);
    EXPECT_EQ(recusaDe([] { atos::clicar(alvo(form_AjvenOu, "Command7")); }),
              "Form_AjvenOu.Command7 está desabilitado");
    form_AjvenOu->Command7.habilitado = true; // as a fit leaves it
    caderno.clear();
    atos::clicar(alvo(form_AjvenOu, "Command7"));
    EXPECT_EQ(caderno, Textos{});
}

TEST(FormAjvenOu, OsEnsaiosMostramOAspersorEOsSeusBotões) {
    abrirFormAjvenOu(Método::malha);
    atos::clicar(alvo(form_AjvenOu, "Command4"));
    auto& f = *form_E1.operator->();
    EXPECT_EQ(f.Label20.texto, "ASPERSOR: Meu");
    EXPECT_EQ(f.Label19.texto, "Bocais: 12 mm");
    EXPECT_EQ(f.Label18.texto, "Pressão: 40 m.c.a.");
    EXPECT_TRUE(f.Command6.visivel);
    EXPECT_TRUE(f.Command4.visivel);
    EXPECT_FALSE(f.Command1.visivel);
    EXPECT_FALSE(f.Command5.visivel);

    const std::string pergunta = "pergunta: Verifique se os dados do aspersor conferem com os valores do "
                                 "Ensaio 1: Dados Técnicos: Meu; 12; 40";
    respostas = {false, true};
    atos::clicar(alvo(form_E1, "Command4"));
    EXPECT_TRUE(form_E1.visivel);
    atos::fechar(form_E1);
    EXPECT_FALSE(form_E1.visivel);
    EXPECT_EQ(caderno, (Textos{pergunta, pergunta}));
}

TEST(FormAjvenOu, UmEnsaioSeSalvaComOsDadosDoAspersor) {
    abrirFormAjvenOu(Método::malha);
    malhaDeQuatro(1, {"1", "2", "3", "4.5"});
    atos::clicar(alvo(form_AjvenOu, "Command4"));
    const PastaTemporaria pasta;
    arquivos = {pasta.caminho("e.TXT")};
    atos::clicar(alvo(form_E1, "Command6"));
    EXPECT_EQ(
        pasta.bytes("e.TXT"),
        "Meu\r\n12\r\n40\r\n24\r\n0.936\r\n2\r\n6.0\r\n0.0\r\n45\r\n1\r\n1.000\t2.000\r\n3.000\t4.500\r\n");
}

TEST(FormAjvenOu, OEnsaioMóvelNãoTemFimDeLinhaDepoisDaÚltima) {
    abrirFormAjvenOu(Método::autopropelido);
    móvelDeDois(2, {"1", "1.5"});
    form_AjvenOu->Command12.habilitado = true;
    atos::clicar(alvo(form_AjvenOu, "Command12"));
    const PastaTemporaria pasta;
    arquivos = {pasta.caminho("m.TXT")};
    atos::clicar(alvo(form_MiE2, "Command6"));
    EXPECT_EQ(pasta.bytes("m.TXT"), "Meu\r\n12\r\n40\r\n24\r\n0.936\r\n60\r\n360\r\n1\r\n6.0\r\n1\r\n6."
                                    "0\r\n0.0\r\n45\r\n1\r\n1.000\r\n1.500");
}

TEST(FormAjvenOu, OQueNãoSeDigitouDoAspersorTemSubstitutoNoArquivo) {
    abrirFormAjvenOu(Método::malha);
    auto& digitado = *perfilForm.operator->();
    for (auto* caixa : {&digitado.Text7, &digitado.Text9, &digitado.Text2, &digitado.Text8})
        caixa->texto.clear();
    form_AjvenOu->lblBocais.texto = "Bocais: N/E";
    const auto ficha = fichaDoAspersor(Aspersor::outro);
    EXPECT_EQ(ficha.modelo, "Não Especificado");
    EXPECT_EQ(ficha.bocais, "N/E");
    EXPECT_EQ(ficha.pressão, "N/E");
    EXPECT_EQ(ficha.anguloJato, "N/E");
    EXPECT_EQ(ficha.vazão, "0.936");
    EXPECT_EQ(ficha.rótuloDosBocais, "Bocais: N/E");
}

TEST(FormAjvenOu, SemVazãoOAjusteNãoComeça) {
    abrirFormAjvenOu(Método::malha);
    malhaDeQuatro(1, {"1", "2", "3", "4"});
    for (const char* vazão : {"0", "", "-1"}) {
        form_AjvenOu->Label17.texto = vazão;
        atos::clicar(alvo(form_AjvenOu, "Command5"));
    }
    const std::string recusa = "mensagem: O valor de vazão deve ser maior que zero!";
    EXPECT_EQ(caderno, (Textos{recusa, recusa, recusa}));
    caderno.clear();
    abrirFormAjvenOu(Método::autopropelido);
    móvelDeDois(1, {"1", "2"});
    form_AjvenOu->Label17.texto = "0";
    atos::clicar(alvo(form_AjvenOu, "Command17"));
    EXPECT_EQ(caderno, Textos{recusa});
}

TEST(FormAjvenOu, UmAjusteQueNãoPodeContinuarDeixaTudoComoEstava) {
    abrirFormAjvenOu(Método::autopropelido);
    móvelDeDois(1, {"1", "1.5"});
    form_AjvenOu->Label18.texto = "0.1234";
    atos::clicar(alvo(form_AjvenOu, "Command17"));
    ASSERT_EQ(caderno.size(), 2u);
    EXPECT_TRUE(caderno[1].starts_with("erro: Estouro: o ajuste não pôde continuar")) << caderno[1];
    EXPECT_FALSE(form_AjCar.carregada());
    EXPECT_EQ(form_AjvenOu->Label18.texto, "0.1234");
    EXPECT_FALSE(form_AjvenOu->Command14.habilitado);
    EXPECT_FALSE(form_MIgraf1.carregada());
}

TEST(FormAjvenOu, MudarONúmeroDeEnsaiosDesfazOResultadoEEscondeAsComparações) {
    abrirFormAjvenOu(Método::malha);
    malhaDeQuatro(1, {"5", "7", "8", "6"});
    auto& f = *form_AjvenOu.operator->();
    for (auto* rótulo : f.resultados()) rótulo->texto = "0.1000";
    f.Command8.habilitado = f.Command7.habilitado = true;
    atos::clicar(alvo(form_AjvenOu, "Command8"));
    EXPECT_TRUE(form_graf1.visivel);
    atos::clicar(alvo(form_AjvenOu, "Option7"));
    for (const auto* rótulo : f.resultados()) EXPECT_EQ(rótulo->texto, "");
    EXPECT_FALSE(f.Command8.habilitado);
    EXPECT_FALSE(f.Command7.habilitado);
    EXPECT_FALSE(form_graf1.visivel);
    EXPECT_TRUE(f.Command6.habilitado);
    EXPECT_TRUE(f.Command13.habilitado);
}

TEST(FormAjvenOu, MudarONúmeroDeEnsaiosEscondeTambémAsListas) {
    abrirFormAjvenOu(Método::malha);
    form_ajuste1.mostrar();
    form_MIajuste1.mostrar();
    atos::clicar(alvo(form_AjvenOu, "Option6"));
    EXPECT_FALSE(form_ajuste1.visivel);
    EXPECT_FALSE(form_MIajuste1.visivel);
}

TEST(FormAjvenOu, VoltarDeixaOsEnsaiosCarregadosEOcultos) {
    abrirFormAjvenOu(Método::malha);
    malhaDeQuatro(1, {"5", "7", "8", "6"});
    atos::clicar(alvo(form_AjvenOu, "Command4"));
    form_AjvenOu->Command8.habilitado = true;
    atos::clicar(alvo(form_AjvenOu, "Command8"));
    atos::clicar(alvo(form_AjvenOu, "Command18"));
    EXPECT_FALSE(form_AjvenOu.carregada());
    EXPECT_TRUE(perfilForm.visivel);
    EXPECT_FALSE(form3.visivel);
    EXPECT_TRUE(form_E1.carregada());
    EXPECT_FALSE(form_E1.visivel);
    EXPECT_FALSE(form_graf1.visivel);
    EXPECT_EQ(form_E1->flex_A.célula(1, 2), "7.000");
}

TEST(FormAjvenOu, FecharFechaTambémAsTelasQueAbriu) {
    abrirFormAjvenOu(Método::malha);
    atos::clicar(alvo(form_AjvenOu, "Command4"));
    atos::fechar(form_AjvenOu);
    EXPECT_FALSE(form_AjvenOu.carregada());
    EXPECT_FALSE(form_E1.carregada());
    EXPECT_TRUE(form3.visivel);
}

TEST(FormAjvenOu, UmaContagemQueOArquivoNãoAdmiteNãoÉSalva) {
    for (const auto& texto : Textos{"0.4", "6.4", "0", "-2", "1001", "abc", ""}) {
        abrirFormAjvenOu(Método::malha);
        malhaDeQuatro(1, {"1", "2", "3", "4"});
        form_E1.mostrar();
        form_E1->Command6.visivel = true;
        form_E1->Combo2.texto = texto;
        caderno.clear();
        atos::clicar(alvo(form_E1, "Command6"));
        ASSERT_FALSE(caderno.empty()) << texto;
        EXPECT_EQ(caderno.front(),
                  "mensagem: O número de coletores do Ensaio 1 deve ser um número inteiro de 1 a 1000!")
            << texto;
        EXPECT_EQ(controleComFoco, &form_E1->Combo2) << texto;
    }
}

} // namespace
} // namespace varenta::teste
