#include "com_janelas.h"

#include "ajuste/form_ajvenou.h"
#include "apoio/pasta_temporaria.h"
#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "campo/form_ec.h"
#include "campo/form_unifo.h"
#include "comum/limites.h"
#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"
#include "shell/form6.h"

#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <utility>

/// The tests of a sprinkler, radial and travelling, from the readings to what follows from them, by clicks
/// and keys.
namespace varenta::teste {
namespace {

class JanelasDosEnsaios : public ComJanelas {
  protected:
    QString rótulo(const TelaBase& tela, const char* nome) const { return widget<QLabel>(tela, nome).text(); }

    QString célula(const TelaBase& tela, const char* tabela, int linha, int coluna) const {
        const auto& modelo = *widget<WidgetTabela>(tela, tabela).model();
        return modelo.data(modelo.index(linha, coluna), Qt::DisplayRole).toString();
    }

    void abrirArquivo(const TelaBase& tela, const char* arquivo) {
        respostas = {true};
        arquivos = {exemplo(arquivo)};
        clicar(tela, "Option2");
    }

    bool visível(const TelaBase& tela, const char* nome) const {
        return widget<QWidget>(tela, nome).isVisible();
    }
};

TEST_F(JanelasDosEnsaios, leituras_digitadas_dão_o_perfil_radial_e_a_simulação) {
    clicarMenu("Ou_aspB");
    apagarEDigitar(perfilForm, "Text7", "CS-40");
    apagarEDigitar(perfilForm, "Text8", "24");
    apagarEDigitar(perfilForm, "Text5", "4");
    QTest::keyClick(&widget<QLineEdit>(perfilForm, "Text5"), Qt::Key_Tab);
    EXPECT_EQ(janela(perfilForm).focusWidget(), &widget<QLineEdit>(perfilForm, "Text6"));
    for (const auto* leitura : {"4", "20", "8", "18", "12", "12", "16", "6"}) {
        apagarEDigitar(perfilForm, "Text6", leitura);
        QTest::keyClick(&widget<QLineEdit>(perfilForm, "Text6"), Qt::Key_Return);
    }
    EXPECT_EQ(célula(perfilForm, "flexGrid", 3, 0), "16.00");
    EXPECT_EQ(célula(perfilForm, "flexGrid", 3, 1), "6.000");
    EXPECT_EQ(rótulo(perfilForm, "lblPreenchidas"), "Células preenchidas: 8 de 8");

    // Without a flow the volume under the profile stands for it.
    respostas = {false};
    clicar(perfilForm, "Command8");
    ASSERT_EQ(caixas.size(), 1u);
    EXPECT_TRUE(caixas[0].startsWith("Insira um valor de vazão."));
    EXPECT_FALSE(janela(perfilForm).isVisible());
    EXPECT_EQ(janela(perfil).windowTitle(), "Características Técnicas do Aspersor CS-40");
    EXPECT_EQ(rótulo(perfil, "Label11"), "Aspersor: CS-40");
    EXPECT_EQ(rótulo(perfil, "Label12"), "Ângulo do Jato: 24º");
    // The last line reaches 0 at 20 m, which is farther than a quarter of its space.
    EXPECT_EQ(rótulo(perfil, "Label17"), "17.00");
    EXPECT_EQ(célula(perfil, "fixoPontos", 21, 0), "17.000");
    EXPECT_EQ(célula(perfil, "fixoPontos", 0, 1), "22.000");

    clicar(perfil, "Command2");
    EXPECT_FALSE(perfil.carregada());
    EXPECT_EQ(widget<QLineEdit>(perfilForm, "Text7").text(), "CS-40");
    clicar(perfilForm, "Command8");
    clicar(perfil, "Command6");
    EXPECT_EQ(janela(form7).windowTitle(),
              "Perfil Transversal de Aplicação de Água com Vento - Aspersor CS-40");
    EXPECT_EQ(rótulo(form7, "Label28"), "Raio: 17.00 m");
}

TEST_F(JanelasDosEnsaios, a_unidade_das_leituras_pede_os_seus_campos) {
    clicarMenu("Ou_aspB");
    constexpr std::array campos{"Label4", "Text4", "Label3", "Text3"};
    const auto àVista = [&] {
        std::array<bool, campos.size()> estados{};
        for (std::size_t k = 0; k < campos.size(); ++k) estados[k] = visível(perfilForm, campos[k]);
        return estados;
    };
    EXPECT_EQ(àVista(), (std::array{false, false, false, false}));
    clicar(perfilForm, "Option4");
    EXPECT_EQ(àVista(), (std::array{true, true, false, false}));
    clicar(perfilForm, "Option3");
    EXPECT_EQ(àVista(), (std::array{true, true, true, true}));
    // The choice of the unit leaves the one of the entry mode alone.
    EXPECT_TRUE(perfilForm->Option1.marcada);
}

TEST_F(JanelasDosEnsaios, o_número_de_dados_corrigido_tecla_por_tecla_não_perde_leituras) {
    clicarMenu("Ou_aspB");
    apagarEDigitar(perfilForm, "Text5", "12");
    for (const auto* leitura : {"4", "20", "8", "18"}) {
        apagarEDigitar(perfilForm, "Text6", leitura);
        QTest::keyClick(&widget<QLineEdit>(perfilForm, "Text6"), Qt::Key_Return);
    }
    auto& dados = widget<QLineEdit>(perfilForm, "Text5");
    dados.setFocus(Qt::TabFocusReason);
    dados.setCursorPosition(2);
    QTest::keyClick(&dados, Qt::Key_Backspace);
    EXPECT_EQ(widget<WidgetTabela>(perfilForm, "flexGrid").model()->rowCount(), 1);
    QTest::keyClicks(&dados, "3");
    EXPECT_EQ(widget<WidgetTabela>(perfilForm, "flexGrid").model()->rowCount(), 13);
    EXPECT_EQ(célula(perfilForm, "flexGrid", 1, 1), "18.000");
    EXPECT_EQ(rótulo(perfilForm, "lblPreenchidas"), "Células preenchidas: 4 de 26");
    EXPECT_TRUE(caixas.empty());
}

TEST_F(JanelasDosEnsaios, o_que_se_digitou_sem_Enter_vale_para_o_botão_clicado) {
    clicarMenu("Ou_aspB");
    apagarEDigitar(perfilForm, "Text5", "2");
    for (const auto* leitura : {"4", "20", "16"}) {
        apagarEDigitar(perfilForm, "Text6", leitura);
        QTest::keyClick(&widget<QLineEdit>(perfilForm, "Text6"), Qt::Key_Return);
    }
    apagarEDigitar(perfilForm, "Text6", "5");
    respostas = {false};
    clicar(perfilForm, "Command8");
    ASSERT_TRUE(perfil.visivel);
    EXPECT_EQ(rótulo(perfil, "Label17"), "19.00");
}

TEST_F(JanelasDosEnsaios, um_arquivo_aberto_prende_o_tamanho_da_planilha_até_digitar) {
    clicarMenu("EnsCampo");
    const auto livres = [&] {
        int quantas = 0;
        for (const auto* nome : {"Combo1", "Combo2", "Combo3", "Combo4"})
            quantas += widget<QComboBox>(formEC, nome).isEnabled();
        return quantas;
    };
    EXPECT_EQ(livres(), 4);
    abrirArquivo(formEC, "ensaio_movel_mm.txt");
    EXPECT_EQ(livres(), 0);
    clicar(formEC, "Option1");
    EXPECT_EQ(livres(), 4);
}

TEST_F(JanelasDosEnsaios, o_maior_texto_que_um_arquivo_traz_cabe_inteiro_nas_caixas) {
    QFile bom{exemplo("ensaio_movel_mm.txt")};
    ASSERT_TRUE(bom.open(QIODevice::ReadOnly));
    auto linhas = bom.readAll().split('\n');
    linhas[0].fill('x', maiorLinha - 1);
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("longo.txt", linhas.join('\n').toStdString());
    clicarMenu("EnsCampo");
    respostas = {true};
    arquivos = {QString::fromStdString(caminho)};
    clicar(formEC, "Option2");
    EXPECT_TRUE(caixas.back().contains("txt")) << caixas.back().toStdString();
    EXPECT_EQ(formEC->Text6.texto.size(), maiorLinha - 1);
    EXPECT_TRUE(widget<QLineEdit>(formEC, "Text6").text() == QString::fromStdString(formEC->Text6.texto));
    // What is typed into it doesn't cut it off.
    auto& caixa = widget<QLineEdit>(formEC, "Text6");
    caixa.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&caixa, Qt::Key_End);
    QTest::keyClick(&caixa, Qt::Key_Backspace);
    EXPECT_EQ(formEC->Text6.texto.size(), maiorLinha - 2);
    // More than a line of a file holds, which counts bytes, is not taken.
    QGuiApplication::clipboard()->setText(QString{maiorLinha, QChar{u'ã'}});
    QTest::keyClick(&caixa, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&caixa, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(formEC->Text6.texto.size(), maiorLinha - 2);
    EXPECT_TRUE(caixa.text() == QString::fromStdString(formEC->Text6.texto));
}

TEST_F(JanelasDosEnsaios, o_mouse_lê_o_perfil_radial) {
    clicarMenu("Ou_aspB");
    abrirArquivo(perfilForm, "ensaio_radial_ml.txt");
    EXPECT_FALSE(visível(perfilForm, "Text6"));
    clicar(perfilForm, "Command8");
    auto& gráfico = widget<WidgetDesenho>(perfil, "Picture1");
    const auto quadro = gráfico.quadroDosEixos();
    moverMouse(gráfico, {static_cast<double>(quadro.x() + quadro.width()), static_cast<double>(quadro.y())});
    const auto fim = [](const Rotulo& escala) { return QString::fromStdString(escala.texto); };
    EXPECT_EQ(rótulo(perfil, "Label15"), "r = " + fim(perfil->Label6.back()) + "00 m");
    EXPECT_EQ(rótulo(perfil, "Label16"), "i = " + fim(perfil->Label7.back()) + "00 mm/h");
    EXPECT_EQ(janela(perfil).cursor().shape(), Qt::CrossCursor);
    moverMouse(gráfico, {1, 1});
    EXPECT_EQ(janela(perfil).cursor().shape(), Qt::ArrowCursor);
}

TEST_F(JanelasDosEnsaios, o_ajuste_de_outro_aspersor_mostra_os_botões_do_seu_método_e_volta) {
    clicarMenu("OuAsp_Auto");
    abrirArquivo(perfilForm, "ensaio_radial_mmh.txt");
    clicar(perfilForm, "Command7");
    EXPECT_EQ(rótulo(form_AjvenOu, "Label17"), "20.5");
    EXPECT_EQ(rótulo(form_AjvenOu, "lblRaioAlcance"), "32.50");
    for (const auto* nome : {"Command11", "Command12", "Command13", "Command17", "Command14", "Command15"})
        EXPECT_TRUE(visível(form_AjvenOu, nome)) << nome;
    for (const auto* nome : {"Command4", "Command3", "Command6", "Command5", "Command8", "Command9"})
        EXPECT_FALSE(visível(form_AjvenOu, nome)) << nome;
    EXPECT_FALSE(widget<QPushButton>(form_AjvenOu, "Command12").isEnabled());
    clicar(form_AjvenOu, "Option6");
    EXPECT_TRUE(widget<QPushButton>(form_AjvenOu, "Command12").isEnabled());
    EXPECT_FALSE(widget<QPushButton>(form_AjvenOu, "Command13").isEnabled());
    clicar(form_AjvenOu, "Command18");
    EXPECT_FALSE(form_AjvenOu.carregada());
    EXPECT_TRUE(janela(perfilForm).isVisible());
    EXPECT_FALSE(janela(form3).isVisible());
}

TEST_F(JanelasDosEnsaios, o_perfil_móvel_digitado_muda_a_planilha_e_a_figura) {
    clicarMenu("PerfRad");
    auto& linhas = widget<QComboBox>(formEC, "Combo1");
    linhas.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&linhas, Qt::Key_Down);
    EXPECT_EQ(widget<WidgetTabela>(formEC, "flex_A").model()->columnCount(), 4);
    apagarEDigitar(formEC, "Combo4", "3.0");
    QTest::keyClick(&widget<QComboBox>(formEC, "Combo4"), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return rótulo(formEC, "lblEspaço") == "eC = 3.0 m"; }));

    auto& planilha = widget<WidgetTabela>(formEC, "flex_A");
    const auto lugar = planilha.visualRect(planilha.model()->index(1, 2)).center();
    QTest::mouseClick(planilha.viewport(), Qt::LeftButton, {}, lugar);
    EXPECT_EQ(rótulo(formEC, "Label6"), "Ce19 = 55.5 m : Linha 3 - I(mm)");
    QTest::keyClicks(&widget<QLineEdit>(formEC, "Text5"), "7.5");
    QTest::keyClick(&widget<QLineEdit>(formEC, "Text5"), Qt::Key_Return);
    EXPECT_EQ(célula(formEC, "flex_A", 1, 2), "7.500");
    EXPECT_EQ(rótulo(formEC, "lblPreenchidas"), "Células preenchidas: 1 de 160");

    clicar(formEC, "Option3");
    EXPECT_EQ(planilha.model()->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Linha 1 - I(ml)");
}

TEST_F(JanelasDosEnsaios, o_perfil_móvel_dá_o_perfil_radial_e_volta) {
    clicarMenu("PerfRad");
    EXPECT_TRUE(visível(formEC, "Command6"));
    EXPECT_FALSE(visível(formEC, "Command4"));
    abrirArquivo(formEC, "ensaio_movel_mm.txt");
    EXPECT_FALSE(visível(formEC, "Text5"));
    clicar(formEC, "Command6");
    EXPECT_FALSE(janela(formEC).isVisible());
    EXPECT_EQ(rótulo(perfil, "Label1"), "Pressão de Serviço: 45 m.c.a.");
    EXPECT_EQ(rótulo(perfil, "Label2"), "20.500");
    EXPECT_TRUE(visível(perfil, "Command4"));
    EXPECT_TRUE(visível(perfil, "Command5"));
    EXPECT_FALSE(visível(perfil, "Command2"));
    clicar(perfil, "Command5");
    EXPECT_TRUE(janela(formEC).isVisible());
    clicar(formEC, "Command5");
    EXPECT_TRUE(janela(form3).isVisible());
}

TEST_F(JanelasDosEnsaios, o_perfil_móvel_sobreposto_mostra_o_espaçamento_escolhido) {
    clicarMenu("EnsCampo");
    abrirArquivo(formEC, "ensaio_movel_mm.txt");
    clicar(formEC, "Command4");
    EXPECT_EQ(janela(formUnifo).windowTitle(), "Sobreposição do Perfil Móbel do Aspersor:");
    auto& lista = widget<QComboBox>(formUnifo, "cmbEspaçamento");
    EXPECT_EQ(rótulo(formUnifo, "lblE"), "E = " + lista.currentText() + "  m");

    caixas.clear();
    const auto coluna = rótulo(formUnifo, "lblCalculado");
    apagarEDigitar(formUnifo, "cmbEspaçamento", "40");
    clicar(formUnifo, "cmdCUC");
    EXPECT_EQ(caixas, std::vector<QString>{"O espaçamento deve ser múltiplo de seis!"});
    EXPECT_EQ(rótulo(formUnifo, "lblCalculado"), coluna);

    apagarEDigitar(formUnifo, "cmbEspaçamento", "36");
    clicar(formUnifo, "cmdCUC");
    EXPECT_EQ(janela(formUnifo).windowTitle(), "Sobreposição para o Espaçamento: 36 m");
    // 20.5 m³/h at 50 m/h over 36 m.
    EXPECT_EQ(rótulo(formUnifo, "lblCalculado"), "11.39");
    const auto& detalhe = *widget<WidgetTabela>(formUnifo, "flexGrid_B").model();
    EXPECT_EQ(detalhe.rowCount(), 18);
    EXPECT_EQ(detalhe.columnCount(), 4);
    // The figures of the spacing stand in its row of the list too.
    EXPECT_EQ(rótulo(formUnifo, "Label16"), célula(formUnifo, "flexGrid_A", 2, 0));
    EXPECT_EQ(rótulo(formUnifo, "Label33"), célula(formUnifo, "flexGrid_A", 2, 1));

    clicar(formUnifo, "Command2");
    EXPECT_FALSE(formUnifo.carregada());
    EXPECT_TRUE(janela(formEC).isVisible());
}

TEST_F(JanelasDosEnsaios, sobre_o_Varenta_volta_à_janela_principal) {
    clicarMenu("varenta");
    EXPECT_EQ(janela(form6).windowTitle(), "Sobre o Varenta");
    EXPECT_FALSE(janela(form3).isVisible());
    EXPECT_EQ(rótulo(form6, "Label7"), "Versão 5.0");
    clicar(form6, "Command1");
    EXPECT_FALSE(form6.carregada());
    EXPECT_TRUE(janela(form3).isVisible());
}

} // namespace
} // namespace varenta::teste
