#include "ajuste/form_ajven.h"

#include "ajuste/form_graf.h"
#include "ajuste/verificacoes_ensaio.h"
#include "apoio/ajuste_feito_a_mao.h"
#include "apoio/pasta_temporaria.h"
#include "aspersor/form1.h"
#include "shell/form3.h"

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

void abrir(std::string_view item) {
    recomeçar();
    atos::clicar(alvo(form3, item));
}

TEST(FormAjVen, AbreComOMesmoAspersorDaTelaDeSimulação) {
    for (const char* modelo : {"TX15", "TX20", "TX30"}) {
        abrir(std::string{modelo} + "B");
        const auto vazão = form1->lblVazão.texto, raio = form1->lblRaioAlcance.texto,
                   caption = form1->Caption;
        const auto intensidades = textos(form1->lblIntensidade), eixo = textos(form1->Label7);
        const auto traços = form1->Picture1.traços.size();
        for (const char* método : {"c", "d"}) {
            abrir(std::string{modelo} + método);
            EXPECT_FALSE(form1.carregada());
            EXPECT_FALSE(form3.visivel);
            EXPECT_TRUE(form_AjVen.visivel);
            EXPECT_EQ(form_AjVen->Caption, caption);
            EXPECT_EQ(form_AjVen->lblVazão.texto, vazão);
            EXPECT_EQ(form_AjVen->lblRaioAlcance.texto, raio);
            EXPECT_EQ(form_AjVen->Label11.texto, "24");
            EXPECT_EQ(textos(form_AjVen->lblIntensidade), intensidades);
            EXPECT_EQ(textos(form_AjVen->Label7), eixo);
            EXPECT_EQ(form_AjVen->Picture1.traços.size(), traços);
        }
    }
}

TEST(FormAjVen, OsDoisMétodosSóDiferemNosBotões) {
    const auto estados = [](std::string_view item) {
        abrir(item);
        std::vector<std::pair<std::string, bool>> todos;
        for (const auto& e : form_AjVen.elementos()) todos.emplace_back(e.nomeCompleto(), estáVisível(e));
        return todos;
    };
    const auto malha = estados("TX15c"), móvel = estados("TX15d");
    std::vector<std::string> diferentes;
    for (std::size_t k = 0; k < malha.size(); ++k)
        if (malha[k] != móvel[k]) diferentes.push_back(malha[k].first);
    EXPECT_EQ(diferentes, (Textos{"Command4", "Command3", "Command6", "Command5", "Command8", "Command9",
                                  "Command10", "Command11", "Command12", "Command13", "Command17",
                                  "Command14", "Command15", "Command16"}));
}

TEST(FormAjVen, BocalEPressãoNãoDesfazemOResultado) {
    abrir("TX20c");
    form_AjVen->Label18.texto = "0.0362";
    form_AjVen->Command8.habilitado = true;
    atos::escolher(alvo(form_AjVen, "Combo1"), "30 mm");
    atos::rolar(alvo(form_AjVen, "hsbPressão"), 60);
    EXPECT_EQ(form_AjVen->Label18.texto, "0.0362");
    EXPECT_TRUE(form_AjVen->Command8.habilitado);
    EXPECT_EQ(form_AjVen->lblPressão.texto, "60");
}

TEST(FormAjVen, OsParâmetrosSeSalvamComOAspersor) {
    abrir("TX15c");
    auto& f = *form_AjVen.operator->();
    const PastaTemporaria pasta;
    int k = 0;
    for (auto* rótulo : f.resultados()) rótulo->texto = "0.000" + std::to_string(++k);
    f.Command7.habilitado = true;
    atos::clicar(alvo(form_AjVen, "optKPA")); // the file is in m.c.a. all the same
    arquivos = {pasta.caminho("p.TXT"), std::nullopt, pasta.caminho("nenhuma/p.TXT")};
    for (int vez = 0; vez < 3; ++vez) atos::clicar(alvo(form_AjVen, "Command7"));
    EXPECT_EQ(pasta.bytes("p.TXT"),
              "KELMO-TX15\r\n18 x 6\r\n50\r\n" + f.lblVazão.texto + "\r\n" + f.lblRaioAlcance.texto +
                  "\r\n0.0001\r\n0.0002\r\n0.0003\r\n0.0004\r\n0.0005\r\n0.0006\r\n\r\n");
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{"p.TXT"});
    EXPECT_EQ(caderno.front(), "salvar: Text files|*.TXT|All files|*.* TXT");
    EXPECT_EQ(caderno.back(), "mensagem: Ao salvar ocorreu um erro o arquivo ou a pasta não existe");

    abrir("TX30c");
    form_AjVen->Command7.habilitado = true;
    arquivos = {pasta.caminho("p30.TXT")};
    atos::clicar(alvo(form_AjVen, "Command7"));
    EXPECT_TRUE(pasta.bytes("p30.TXT").starts_with("KELMO-TX30\r\n38\r\n50\r\n"));
}

TEST(FormAjVen, ComUmEnsaioNadaDosOutrosSeLê) {
    abrir("TX15c");
    form_E(2)->flex_A.escrever(1, 1, "abc");
    malhaDeQuatro(1, {"1", "2", "3", "4"});
    atos::clicar(alvo(form_AjVen, "Command5"));
    // It gets as far as the search, which has no wind to work with.
    ASSERT_EQ(caderno.size(), 2u);
    EXPECT_TRUE(caderno[0].starts_with("mensagem: Para que as precipitações do Ensaio 1 coicidam"));
    EXPECT_TRUE(caderno[1].starts_with("erro: Estouro"));
}

TEST(FormAjVen, ComTrêsEnsaiosDeTamanhosDiferentesOsFatoresSãoTrês) {
    abrir("TX15c");
    form_AjVen->lblVazão.texto = "1.44";
    atos::clicar(alvo(form_AjVen, "Option7"));
    malhaDeQuatro(1, {"10", "10", "10", "10"}); // 1.44 m³/h
    for (int n : {2, 3}) {
        auto& f = *form_E(n).operator->();
        f.Combo2.texto = n == 2 ? "4" : "6";
        Erro_plan(n);
        definirValor(f.HScroll2, 0);
        for (int l = 1; l < f.flex_A.linhas; ++l)
            for (int c = 1; c < f.flex_A.colunas; ++c) f.flex_A.escrever(l, c, "10");
        entrarNaCélula(planilhaDoEnsaio(f));
    }
    atos::clicar(alvo(form_AjVen, "Command5"));
    // 16 and 36 collectors catch 4 and 9 times as much.
    EXPECT_EQ(
        caderno.front(),
        "mensagem: Para que as precipitações do Ensaio 1, 2 e 3 coicidam com a vazão do aspersor, estes "
        "valores serão multiplicados, respectivamente, por: 1.000, 0.250 e 0.111 !");
}

TEST(EnsaioDeMalha, OTextoDasListasÉVerificadoAoEscolher) {
    // What the lists offer always passes; the check is shown on a text set beforehand.
    abrir("TX15c");
    atos::clicar(alvo(form_AjVen, "Command4"));
    auto& f = *form_E1.operator->();
    for (const char* texto : {"5", "x", ""}) {
        f.Combo1.texto = texto;
        f.Combo1.aoClicar();
        EXPECT_EQ(f.Combo1.texto, "6.0");
    }
    f.Combo1.texto = "3";
    f.Combo1.aoClicar();
    EXPECT_EQ(f.Combo1.texto, "3");
    f.Combo2.texto = "x";
    f.Combo2.aoClicar();
    EXPECT_EQ(f.Combo2.texto, "14");
    EXPECT_EQ(caderno, Textos(4, "mensagem: Valor inválido!"));
}

TEST(EnsaioMóvel, OTextoDasListasÉVerificadoAoEscolher) {
    abrir("TX15d");
    atos::clicar(alvo(form_AjVen, "Command11"));
    auto& f = *form_MiE1.operator->();
    const std::vector<std::pair<Lista*, const char*>> listas = {
        {&f.Combo1, "3"}, {&f.Combo2, "6.0"}, {&f.Combo3, "20"}, {&f.Combo4, "2.0"}, {&f.Combo6, ""}};
    for (const auto& [lista, padrão] : listas) {
        lista->texto = "x";
        lista->aoClicar();
        EXPECT_EQ(lista->texto, padrão);
    }
    EXPECT_EQ(caderno, Textos(5, "mensagem: Valor inválido!"));
}

TEST(EnsaioDeMalha, OQueALinhaDeEntradaTemVaiParaASuaCélulaAntesDeAPlanilhaMudar) {
    abrir("TX15c");
    atos::clicar(alvo(form_AjVen, "Command4"));
    atos::irParaCélula(alvo(form_E1, "flex_A"), 2, 3);
    atos::digitar(alvo(form_E1, "Text5"), "7");
    atos::escolher(alvo(form_E1, "Combo2"), "6");
    EXPECT_EQ(form_E1->flex_A.célula(2, 3), "7.000");
    EXPECT_EQ(form_E1->Text5.texto, "7.000");
    EXPECT_EQ(form_E1->Label6.texto, "Li2 = 9.0 m : Co3 = -3.0 m ");
}

TEST(EnsaioDeMalha, UmNúmeroGrandeDemaisDigitadoNãoMudaAPlanilha) {
    abrir("TX15c");
    atos::clicar(alvo(form_AjVen, "Command4"));
    for (const char* texto : {"1001", "0", "-3", "1e9", ""}) {
        atos::digitar(alvo(form_E1, "Combo2"), texto);
        EXPECT_EQ(form_E1->flex_A.linhas, 15) << texto;
    }
    EXPECT_EQ(caderno, Textos{});
}

TEST(EnsaioDeMalha, CélulasForaDaPlanilhaSãoCélulasVazias) {
    abrir("TX15c");
    auto& f = *form_E1.operator->();
    f.Combo2.texto = "16"; // the grid has 14 rows
    for (int l = 1; l <= 14; ++l)
        for (int c = 1; c <= 14; ++c) f.flex_A.escrever(l, c, "1");
    EXPECT_EQ(recusaDoAjuste(f, 1)->mensagem, "Há alguma célula da planilha do Ensaio 1 vazia!");
    EXPECT_EQ(recusaDoSalvamento(f, 1)->mensagem, "Existem células em branco na planilha, verifique!");
    f.Combo2.texto = "14";
    EXPECT_FALSE(recusaDoAjuste(f, 1));
    EXPECT_FALSE(recusaDoSalvamento(f, 1));
}

} // namespace
} // namespace varenta::teste
