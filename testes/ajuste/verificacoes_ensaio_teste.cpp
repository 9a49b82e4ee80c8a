#include "ajuste/verificacoes_ensaio.h"

#include "ajuste/form_ajvenou.h"
#include "apoio/ajuste_feito_a_mao.h"

#include <string>
#include <tuple>
#include <vector>

namespace varenta::teste {
namespace {

using Textos = std::vector<std::string>;

/// Presses a button of the screen of a fit.
void ajustar(std::string_view botão) {
    caderno.clear();
    controleComFoco = nullptr;
    atos::clicar(alvo(form_AjvenOu, botão));
}

/// "&Salvar" of a test of another sprinkler.
void salvar(TelaBase& tela) {
    caderno.clear();
    atos::clicar(alvo(tela, "Command6"));
}

class RecusaNaMalha : public testing::Test {
  protected:
    void SetUp() override {
        abrirFormAjvenOu(Método::malha);
        malhaDeQuatro(1, {"1", "2", "3", "4"});
        atos::clicar(alvo(form_AjvenOu, "Command4"));
        caderno.clear();
    }
};

TEST_F(RecusaNaMalha, ACélulaRecusadaÉAAtualERecebeOFoco) {
    auto& f = *form_E1.operator->();
    for (const auto& [texto, aoAjustar, aoSalvar] :
         {std::tuple{"", "mensagem: Há alguma célula da planilha do Ensaio 1 vazia!",
                     "mensagem: Existem células em branco na planilha, verifique!"},
          {"x", "mensagem: Insira valores numéricos na planilha do Ensaio 1!",
           "mensagem: Insira um valores numéricos!"}}) {
        atos::preencherCélula(alvo(form_E1, "flex_A"), 2, 1, texto);
        irParaCélula(planilhaDoEnsaio(f), 1, 1);
        ajustar("Command5");
        EXPECT_EQ(caderno, Textos{aoAjustar});
        EXPECT_EQ(f.flex_A.linhaAtual, 2);
        EXPECT_EQ(f.flex_A.colunaAtual, 1);
        EXPECT_EQ(f.Text5.texto, texto);
        EXPECT_EQ(controleComFoco, &f.Text5);
        irParaCélula(planilhaDoEnsaio(f), 1, 2);
        salvar(form_E1);
        EXPECT_EQ(caderno, Textos{aoSalvar});
        EXPECT_EQ(f.flex_A.linhaAtual, 2);
        EXPECT_EQ(f.flex_A.colunaAtual, 1);
        EXPECT_EQ(controleComFoco, &f.Text5);
        EXPECT_EQ(f.flex_A.célula(1, 2), "2.000") << "what was left stays";
    }
}

TEST_F(RecusaNaMalha, UmaTelaOcultaNãoRecebeOFocoMasACélulaÉAAtual) {
    auto& f = *form_E1.operator->();
    atos::preencherCélula(alvo(form_E1, "flex_A"), 2, 2, "x");
    irParaCélula(planilhaDoEnsaio(f), 1, 1);
    form_E1.esconder();
    ajustar("Command5");
    EXPECT_EQ(f.flex_A.linhaAtual, 2);
    EXPECT_EQ(f.flex_A.colunaAtual, 2);
    EXPECT_EQ(controleComFoco, &form_AjvenOu->Command5);
}

TEST_F(RecusaNaMalha, ComUmArquivoÀVistaOFocoÉDaPlanilha) {
    auto& f = *form_E1.operator->();
    f.Option2.marcada = false;
    mostrarEntrada(f, false);
    f.flex_A.escrever(2, 1, "");
    ajustar("Command5");
    EXPECT_EQ(f.flex_A.linhaAtual, 2);
    EXPECT_EQ(controleComFoco, &f.flex_A);
}

TEST_F(RecusaNaMalha, UmaCélulaForaDaPlanilhaDeixaAAtual) {
    form_E1->Combo2.texto = "4"; // the grid has 2 x 2
    ajustar("Command5");
    EXPECT_EQ(caderno, Textos{"mensagem: Há alguma célula da planilha do Ensaio 1 vazia!"});
    EXPECT_LE(form_E1->flex_A.linhaAtual, 2);
    EXPECT_LE(form_E1->flex_A.colunaAtual, 2);
}

TEST_F(RecusaNaMalha, AoSalvarACaixaRecebeOFocoEFicaComOTexto) {
    auto& f = *form_E1.operator->();
    marcar(form_E1, f.Option3);
    salvar(form_E1);
    EXPECT_EQ(controleComFoco, &f.Text6);
    f.Text6.texto = "60";
    salvar(form_E1);
    EXPECT_EQ(controleComFoco, &f.Text7);
    f.Text7.texto = "oito";
    salvar(form_E1);
    EXPECT_EQ(controleComFoco, &f.Text7);
    EXPECT_EQ(f.Text7.texto, "oito");
    marcar(form_E1, f.Option4);
    f.Text6.texto = "uma hora";
    salvar(form_E1);
    EXPECT_EQ(controleComFoco, &f.Text6);
    EXPECT_EQ(f.Text6.texto, "uma hora");
}

TEST_F(RecusaNaMalha, AMensagemDizOEnsaioEALista) {
    form_AjvenOu->Option5.marcada = false;
    form_AjvenOu->Option6.marcada = true;
    malhaDeQuatro(2, {"1", "2", "3", "4"});
    form_E2.mostrar();
    auto& f = *form_E2.operator->();
    const std::string
        coletores = "mensagem: O número de coletores do Ensaio 2 deve ser um número inteiro de 1 a 1000!",
        espaçamento = "mensagem: O espaçamento do Ensaio 2 deve ser um número maior que 0 e até 1000 m!";
    for (const auto& [lista, texto, bom, mensagem] : {std::tuple{&f.Combo2, "2.5", "2", coletores},
                                                      {&f.Combo2, "1e400", "2", coletores},
                                                      {&f.Combo1, "", "6.0", espaçamento},
                                                      {&f.Combo1, "0", "6.0", espaçamento},
                                                      {&f.Combo1, "1000.5", "6.0", espaçamento},
                                                      {&f.Combo1, "1e400", "6.0", espaçamento}}) {
        lista->texto = texto;
        ajustar("Command5");
        EXPECT_EQ(caderno, Textos{mensagem}) << texto;
        EXPECT_EQ(controleComFoco, lista) << texto;
        EXPECT_EQ(lista->texto, texto);
        lista->texto = bom;
    }
}

TEST_F(RecusaNaMalha, UmEspaçamentoQueNãoCabeDeixaOsCabeçalhosComoEstavam) {
    auto& f = *form_E1.operator->();
    for (const char* texto : {"1e400", "1e300", "-1e400", "1001"}) {
        atos::digitar(alvo(form_E1, "Combo1"), texto);
        atos::confirmar();
        EXPECT_EQ(f.flex_A.célula(0, 1), "Co1 = -3.0 m ") << texto;
    }
    EXPECT_EQ(caderno, Textos{});
    atos::escolher(alvo(form_E1, "Combo2"), "6");
    EXPECT_EQ(caderno, Textos{"mensagem: Valor inválido!"});
    EXPECT_EQ(f.Combo1.texto, "6.0");
    EXPECT_EQ(f.flex_A.célula(0, 1), "Co1 = -15.0 m ");
    atos::digitar(alvo(form_E1, "Combo1"), "1000");
    atos::confirmar();
    EXPECT_EQ(f.flex_A.célula(0, 1), "Co1 = -2500.0 m ");
}

TEST_F(RecusaNaMalha, AMesmaUnidadeOutraVezNãoEsvaziaAsCaixas) {
    auto& f = *form_E1.operator->();
    atos::clicar(alvo(form_E1, "Option3"));
    f.Text6.texto = "60";
    f.Text7.texto = "8";
    atos::clicar(alvo(form_E1, "Option3"));
    EXPECT_EQ(f.Text6.texto, "60");
    EXPECT_EQ(f.Text7.texto, "8");
    atos::clicar(alvo(form_E1, "Option4"));
    EXPECT_EQ(f.Text6.texto, "");
    EXPECT_EQ(f.Text7.texto, "");
    EXPECT_TRUE(f.Text6.visivel && f.Label8.visivel);
    EXPECT_FALSE(f.Text7.visivel || f.Label14.visivel);
    f.Text6.texto = "60";
    atos::clicar(alvo(form_E1, "Option4"));
    EXPECT_EQ(f.Text6.texto, "60");
    atos::clicar(alvo(form_E1, "Option1"));
    EXPECT_EQ(f.Text6.texto, "");
    EXPECT_FALSE(f.Text6.visivel || f.Label8.visivel);
}

TEST_F(RecusaNaMalha, UmErroDaPreparaçãoDizOQueConferir) {
    auto& f = *form_E1.operator->();
    marcar(form_E1, f.Option4);
    f.Text6.texto = "0";
    ajustar("Command5");
    EXPECT_EQ(caderno, Textos{"erro: Divisão por zero: confira o tempo do Ensaio 1"});
    marcar(form_E1, f.Option3);
    f.Text6.texto = "60";
    f.Text7.texto = "0";
    ajustar("Command5");
    EXPECT_EQ(caderno, Textos{"erro: Divisão por zero: confira o tempo e o diâmetro do coletor do Ensaio 1"});
    marcar(form_E1, f.Option1);
    preencher(f, {"0", "0", "0", "0"});
    const std::string semÁgua =
        "erro: Divisão por zero: as leituras do Ensaio 1 não somam água que se possa igualar à vazão do "
        "aspersor";
    ajustar("Command5");
    EXPECT_EQ(caderno, Textos{semÁgua});
    form_AjvenOu->Command8.habilitado = true;
    ajustar("Command8");
    EXPECT_EQ(caderno, Textos{semÁgua}) << "comparing";
}

class RecusaNoAutopropelido : public testing::Test {
  protected:
    void SetUp() override {
        abrirFormAjvenOu(Método::autopropelido);
        móvelDeDois(1, {"1", "2"});
        atos::clicar(alvo(form_AjvenOu, "Command11"));
        caderno.clear();
    }
};

TEST_F(RecusaNoAutopropelido, AListaRecusadaRecebeOFocoENãoSeEsvazia) {
    auto& f = *form_MiE1.operator->();
    const auto contagem = [](const char* nome) {
        return "mensagem: O número de " + std::string{nome} +
               " do Ensaio 1 deve ser um número inteiro de 1 a 1000!";
    };
    for (const auto& [lista, texto, bom, mensagem] :
         {std::tuple{&f.Combo1, "1.5", "1", contagem("linhas (L)")},
          {&f.Combo3, "", "1", contagem("coletores em cada lado")},
          {&f.Combo4, "1e400", "6.0",
           std::string{"mensagem: O espaço entre coletores (eC) do Ensaio 1 deve ser um número maior que 0 e "
                       "até 1000 m!"}},
          {&f.Combo6, "muito", "360",
           std::string{"mensagem: Valor de ângulo de giro do aspersor inválido no Ensaio 1!"}},
          {&f.Combo6, "179", "360",
           std::string{"mensagem: Ensaio 1: o ângulo de giro do aspersor deve estar entre 180 - 360º!"}}}) {
        lista->texto = texto;
        ajustar("Command17");
        EXPECT_EQ(caderno, Textos{mensagem});
        EXPECT_EQ(controleComFoco, lista) << texto;
        EXPECT_EQ(lista->texto, texto);
        lista->texto = bom;
    }
}

TEST_F(RecusaNoAutopropelido, AoSalvarAVelocidadeEOGiroRecebemOFoco) {
    auto& f = *form_MiE1.operator->();
    f.Text1.texto = "depressa";
    salvar(form_MiE1);
    EXPECT_EQ(controleComFoco, &f.Text1);
    EXPECT_EQ(f.Text1.texto, "depressa");
    f.Text1.texto = "40";
    f.Combo6.texto = "";
    salvar(form_MiE1);
    EXPECT_EQ(controleComFoco, &f.Combo6);
    f.Combo6.texto = "360";
    f.Combo2.texto = "x";
    salvar(form_MiE1);
    EXPECT_EQ(controleComFoco, &f.Combo2);
    EXPECT_EQ(caderno, Textos{"mensagem: A distância entre linhas (eL) do Ensaio 1 deve ser um número maior "
                              "que 0 e até 1000 m!"});
}

/// What the reader of the file refuses isn't saved; a speed that only a fit refuses is.
TEST_F(RecusaNoAutopropelido, NãoSeSalvaOQueNãoSeAbriria) {
    auto& f = *form_MiE1.operator->();
    const auto recusar = [&](const char* velocidade, const char* giro, const Textos& recusa) {
        f.Text1.texto = velocidade;
        f.Combo6.texto = giro;
        salvar(form_MiE1);
        EXPECT_EQ(caderno, recusa) << velocidade << ", " << giro;
    };
    const Textos velocidade{"mensagem: Ensaio 1: a velocidade do aspersor deve estar entre 0 - 200 m/h!"};
    const Textos giro{"mensagem: Ensaio 1: o ângulo de giro do aspersor deve estar entre 180 - 360º!"};
    recusar("0", "360", velocidade);
    recusar("40", "179", giro);
    recusar("40", "361", giro);
    arquivos = {std::nullopt};
    recusar("250", "180", {"salvar: Text files|*.TXT|All files|*.* TXT"});
}

TEST_F(RecusaNoAutopropelido, UmEspaçoQueNãoCabeDeixaOsCabeçalhosComoEstavam) {
    auto& f = *form_MiE1.operator->();
    atos::digitar(alvo(form_MiE1, "Combo4"), "1e400");
    atos::confirmar();
    EXPECT_EQ(f.flex_A.célula(1, 0), "Ce1 = -3.0 m");
    EXPECT_EQ(caderno, Textos{});
    atos::escolher(alvo(form_MiE1, "Combo3"), "3");
    EXPECT_EQ(caderno, Textos{"mensagem: Valor inválido!"});
    EXPECT_EQ(f.Combo4.texto, "2.0");
    EXPECT_EQ(f.flex_A.célula(1, 0), "Ce3 = -5.0 m");
}

TEST_F(RecusaNoAutopropelido, AMesmaUnidadeOutraVezNãoEsvaziaODiâmetro) {
    auto& f = *form_MiE1.operator->();
    atos::clicar(alvo(form_MiE1, "Option3"));
    f.Text7.texto = "8";
    atos::clicar(alvo(form_MiE1, "Option3"));
    EXPECT_EQ(f.Text7.texto, "8");
    EXPECT_EQ(f.flex_A.célula(0, 1), "Linha 1 - I(ml)");
    atos::clicar(alvo(form_MiE1, "Option4"));
    EXPECT_EQ(f.Text7.texto, "");
    EXPECT_EQ(f.flex_A.célula(0, 1), "Linha 1 - I(mm)");
}

TEST_F(RecusaNoAutopropelido, UmErroDaPreparaçãoDizOQueConferir) {
    auto& f = *form_MiE1.operator->();
    marcar(form_MiE1, f.Option3);
    f.Text7.texto = "0";
    ajustar("Command17");
    EXPECT_EQ(caderno, Textos{"erro: Divisão por zero: confira o diâmetro do coletor do Ensaio 1"});
    marcar(form_MiE1, f.Option4);
    preencher(f, {"0", "0"});
    ajustar("Command17");
    EXPECT_EQ(caderno, Textos{"erro: Divisão por zero: as leituras do Ensaio 1 não somam água que se possa "
                              "igualar à vazão do aspersor"});
}

} // namespace
} // namespace varenta::teste
