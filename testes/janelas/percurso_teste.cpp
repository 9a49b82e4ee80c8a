#include "com_janelas.h"

#include "comum/atos.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QTimer>

#include <filesystem>
#include <fstream>

namespace varenta::teste {
namespace {

Alvo alvo(TelaBase& tela, const char* nome) { return {&tela, tela.achar(nome, std::nullopt).value()}; }

/// The transversal profile of a TX20 of 30 mm at 60 m.c.a. under a wind of 2.5 m/s from 60º, by the acts
/// alone.
std::vector<std::string> perfilPelosAtos() {
    iniciarSistema();
    atos::clicar(alvo(form3, "TX20B"));
    atos::escolher(alvo(form1, "Combo1"), "30 mm");
    atos::rolar(alvo(form1, "hsbPressão"), 60);
    atos::clicar(alvo(form1, "Command3"));
    atos::rolar(alvo(form7, "HScroll2"), 25);
    atos::rolar(alvo(form7, "HScroll1"), 60);
    atos::digitar(alvo(form7, "Text1"), "40");
    atos::clicar(alvo(form7, "Command2"));
    return form7->flexA.células;
}

class Percurso : public ComJanelas {
  protected:
    void abrirForm7() {
        clicarMenu("TX20B");
        clicar(form1, "Command3");
    }
};

TEST_F(Percurso, por_cliques_e_teclas_dá_o_perfil_que_os_atos_dão) {
    const auto esperado = perfilPelosAtos();
    iniciarSistema();
    janelas->atualizar();

    clicarMenu("TX20B");
    auto& bocal = widget<QComboBox>(form1, "Combo1");
    bocal.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&bocal, Qt::Key_Down);
    EXPECT_EQ(form1->Combo1.texto, "30 mm");
    auto& pressão = widget<QScrollBar>(form1, "hsbPressão");
    QTest::keyClick(&pressão, Qt::Key_Right);
    QTest::keyClick(&pressão, Qt::Key_Right);
    EXPECT_EQ(form1->hsbPressão.valor, 60);

    clicar(form1, "Command3");
    EXPECT_TRUE(janela(form7).isVisible());
    EXPECT_FALSE(janela(form1).isVisible());
    for (int k = 0; k < 25; ++k) QTest::keyClick(&widget<QScrollBar>(form7, "HScroll2"), Qt::Key_Right);
    for (int k = 0; k < 6; ++k) QTest::keyClick(&widget<QScrollBar>(form7, "HScroll1"), Qt::Key_PageUp);
    EXPECT_EQ(form7->Label17.texto, "2.5");
    EXPECT_EQ(form7->Label2.texto, "60");
    apagarEDigitar(form7, "Text1", "40");
    clicar(form7, "Command2");

    EXPECT_EQ(form7->flexA.células, esperado);
    EXPECT_TRUE(caixas.empty());
}

TEST_F(Percurso, por_mnemônicos_vai_de_form1_a_Form7_e_volta_até_a_janela_principal) {
    clicarMenu("TX15B");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form1)));
    QTest::keyClick(&janela(form1), Qt::Key_A, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([] { return form7.carregada() && form7.visivel; }));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form7)));
    QTest::keyClick(&janela(form7), Qt::Key_V, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([] { return form1.visivel; }));
    EXPECT_FALSE(form7.carregada());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form1)));
    QTest::keyClick(&janela(form1), Qt::Key_F, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([] { return form3.visivel; }));
    EXPECT_FALSE(form1.carregada());
    EXPECT_TRUE(form3.habilitada);
    EXPECT_TRUE(janela(form3).isVisible());
}

TEST_F(Percurso, pelo_teclado_abre_o_menu_até_o_aspersor) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form3)));
    QTest::keyClick(&janela(form3), Qt::Key_S, Qt::AltModifier);
    auto* simulações = janela(form3).findChild<QMenu*>("Simula_Vento");
    ASSERT_TRUE(QTest::qWaitFor([&] { return simulações->isVisible(); }));
    QTest::keyClick(simulações, Qt::Key_Right);
    auto* aspersores = janela(form3).findChild<QMenu*>("Asp_KELMOb");
    ASSERT_TRUE(QTest::qWaitFor([&] { return aspersores->isVisible(); }));
    QTest::keyClick(aspersores, Qt::Key_Down);
    QTest::keyClick(aspersores, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([] { return form1.carregada(); }));
    EXPECT_EQ(form1->Caption, "Características Técnicas do Aspersor KELMO-TX 20");
    EXPECT_FALSE(janela(form3).isVisible());
}

TEST_F(Percurso, com_Enter_aciona_o_botão_que_tem_o_foco) {
    clicarMenu("TX20B");
    auto& avançar = widget<QWidget>(form1, "Command3");
    avançar.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&avançar, Qt::Key_Return);
    EXPECT_TRUE(form7.visivel);
}

TEST_F(Percurso, mostra_em_cada_janela_a_legenda_da_tela) {
    EXPECT_EQ(janela(form3).windowTitle(), "VARENTA 5.0");
    abrirForm7();
    EXPECT_EQ(janela(form7).windowTitle(),
              "Perfil Transversal de Aplicação de Água com Vento - Aspersor KELMO-TX 20");
}

TEST_F(Percurso, deixa_só_um_dos_jogos_de_botões_em_Form7) {
    abrirForm7();
    for (const auto* nome : {"Command2", "Command3", "cmdUniformidade", "Command4"})
        EXPECT_TRUE(widget<QWidget>(form7, nome).isVisible()) << nome;
    for (const auto* nome : {"Command8", "Command7", "Command9", "Command6"})
        EXPECT_FALSE(widget<QWidget>(form7, nome).isVisible()) << nome;
}

TEST_F(Percurso, avisa_da_velocidade_inválida_e_mostra_a_que_a_tela_repõe) {
    abrirForm7();
    apagarEDigitar(form7, "Text1", "301");
    clicar(form7, "Command2");
    ASSERT_EQ(caixas.size(), 1u);
    EXPECT_EQ(caixas[0], "O valor de velocidade do aspersor deve ser maior que zero e menor que 300 m/h!");
    EXPECT_EQ(widget<QLineEdit>(form7, "Text1").text(), "50");
}

TEST_F(Percurso, leva_o_foco_ao_parâmetro_recusado) {
    abrirForm7();
    apagarEDigitar(form7, "Text4", "x");
    clicar(form7, "Command2");
    ASSERT_EQ(caixas.size(), 1u);
    EXPECT_EQ(caixas[0], "Insira um valor numérico para o parâmetro C!");
    EXPECT_EQ(janela(form7).focusWidget(), &widget<QLineEdit>(form7, "Text4"));
    EXPECT_EQ(widget<QLineEdit>(form7, "Text4").text(), "");
}

TEST_F(Percurso, lê_um_arquivo_de_parâmetros_escolhido_no_diálogo) {
    abrirForm7();
    const auto caminho = std::filesystem::temp_directory_path() / "varenta janelas ção.txt";
    std::ofstream{caminho}
        << "KELMO-TX30\r\n38\r\n50\r\n90.5\r\n60.25\r\n0.1\r\n0.2\r\n0.3\r\n0.4\r\n0.5\r\n-0.6\r\n";
    respostas = {true};
    arquivos = {QString::fromStdString(caminho.string())};
    clicar(form7, "Command1");
    std::filesystem::remove(caminho);
    ASSERT_EQ(caixas.size(), 2u);
    EXPECT_EQ(caixas[0], "O arquivo deve estar na extensão: *.TXT separado por tabulações!");
    EXPECT_EQ(caixas[1], "Arquivos Texto (*.TXT *.txt)");
    EXPECT_EQ(form7->Label27.texto, "Vazão: 90.50 m³/h");
    EXPECT_EQ(widget<QLineEdit>(form7, "Text7").text(), "-0.6000");
}

TEST_F(Percurso, abre_de_novo_o_aspersor_com_os_padrões) {
    clicarMenu("TX20B");
    auto& bocal = widget<QComboBox>(form1, "Combo1");
    bocal.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&bocal, Qt::Key_Down);
    clicar(form1, "Command1");
    clicarMenu("TX20B");
    EXPECT_EQ(widget<QComboBox>(form1, "Combo1").currentText(), "28 mm");
}

class CaixaDeFechar : public ComJanelas {};

TEST_F(CaixaDeFechar, de_form1_volta_à_janela_principal) {
    clicarMenu("TX20B");
    janela(form1).close();
    EXPECT_FALSE(form1.carregada());
    EXPECT_EQ(janelas->janela(form1), nullptr);
    EXPECT_TRUE(janela(form3).isVisible());
    EXPECT_TRUE(janela(form3).isEnabled());
}

TEST_F(CaixaDeFechar, de_Form7_volta_à_janela_principal) {
    clicarMenu("TX20B");
    clicar(form1, "Command3");
    janela(form7).close();
    EXPECT_TRUE(form3.visivel);
    EXPECT_TRUE(form3.habilitada);
    EXPECT_FALSE(form7.visivel);
}

TEST_F(CaixaDeFechar, da_janela_principal_encerra_o_programa) {
    QTimer::singleShot(0, [this] { janela(form3).close(); });
    QTimer::singleShot(5000, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_FALSE(form3.carregada());
}

TEST_F(CaixaDeFechar, de_uma_janela_desabilitada_não_faz_nada) {
    form3.habilitada = false;
    janelas->atualizar();
    janela(form3).close();
    EXPECT_TRUE(form3.carregada());
    EXPECT_TRUE(janela(form3).isVisible());
}

/// The list has the focus then, and loses it in the midst of the window's end.
TEST_F(Percurso, uma_janela_pode_fechar_se_com_os_itens_de_uma_lista_à_vista) {
    abrirForm7();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form7)));
    const QPointer<QWidget> antiga{&janela(form7)};
    auto& lista = widget<QComboBox>(form7, "Combo2");
    lista.showPopup();
    ASSERT_EQ(QApplication::focusWidget(), lista.view());
    antiga->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(antiga.isNull());
    EXPECT_TRUE(janela(form3).isVisible());
}

} // namespace
} // namespace varenta::teste
