#include "com_janelas.h"

#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace varenta::teste {
namespace {

/// The middle of the thumb of a horizontal scroll bar, or of another part of it.
QPoint parteDe(const QScrollBar& barra, QStyle::SubControl parte) {
    QStyleOptionSlider opção;
    opção.initFrom(&barra);
    opção.orientation = Qt::Horizontal;
    opção.minimum = barra.minimum();
    opção.maximum = barra.maximum();
    opção.pageStep = barra.pageStep();
    opção.singleStep = barra.singleStep();
    opção.sliderPosition = barra.sliderPosition();
    opção.sliderValue = barra.value();
    opção.state |= QStyle::State_Horizontal;
    return barra.style()->subControlRect(QStyle::CC_ScrollBar, &opção, parte, &barra).center();
}

class EmForm1 : public ComJanelas {
  protected:
    void SetUp() override {
        ComJanelas::SetUp();
        clicarMenu("TX20B");
    }
};

class EmForm7 : public EmForm1 {
  protected:
    void SetUp() override {
        EmForm1::SetUp();
        clicar(form1, "Command3");
    }
};

TEST_F(EmForm1, a_lista_mostra_os_itens_e_a_escolha_recalcula) {
    auto& lista = widget<QComboBox>(form1, "Combo1");
    EXPECT_EQ(lista.count(), 9);
    EXPECT_EQ(lista.currentText(), "28 mm");
    const auto vazão = form1->lblVazão.texto;
    lista.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&lista, Qt::Key_Up);
    EXPECT_EQ(form1->Combo1.texto, "26 mm");
    EXPECT_NE(form1->lblVazão.texto, vazão);
    EXPECT_EQ(widget<QLabel>(form1, "lblVazão").text().toStdString(), form1->lblVazão.texto);
}

TEST_F(EmForm1, a_unidade_escolhida_muda_só_a_legenda_da_pressão) {
    clicar(form1, "optKG");
    EXPECT_TRUE(form1->optKG.marcada);
    EXPECT_FALSE(form1->optMCA.marcada);
    EXPECT_FALSE(widget<QRadioButton>(form1, "optMCA").isChecked());
    EXPECT_EQ(widget<QLabel>(form1, "lblPressão").text(), "5.0");
    EXPECT_EQ(form1->hsbPressão.valor, 50);
}

TEST_F(EmForm1, as_setas_da_barra_movem_um_passo) {
    auto& barra = widget<QScrollBar>(form1, "hsbPressão");
    QTest::mouseClick(&barra, Qt::LeftButton, {}, parteDe(barra, QStyle::SC_ScrollBarAddLine));
    EXPECT_EQ(form1->hsbPressão.valor, 55);
    QTest::keyClick(&barra, Qt::Key_Left);
    EXPECT_EQ(form1->hsbPressão.valor, 50);
    QTest::keyClick(&barra, Qt::Key_End);
    EXPECT_EQ(form1->hsbPressão.valor, 70);
    QTest::keyClick(&barra, Qt::Key_Right);
    EXPECT_EQ(form1->hsbPressão.valor, 70);
}

TEST_F(EmForm1, a_tabela_mostra_os_22_pontos) {
    const auto* modelo = widget<WidgetTabela>(form1, "fixoPontos").model();
    ASSERT_EQ(modelo->rowCount(), 22);
    ASSERT_EQ(modelo->columnCount(), 2);
    EXPECT_EQ(modelo->headerData(0, Qt::Horizontal), "Raio (m)");
    EXPECT_EQ(modelo->headerData(1, Qt::Horizontal), "Intensidade (mm/h)");
    for (int k = 1; k <= 22; ++k) {
        const auto i = static_cast<std::size_t>(k);
        EXPECT_EQ(modelo->index(k - 1, 0).data().toString().toStdString(), form1->lblRaio[i].texto);
        EXPECT_EQ(modelo->index(k - 1, 1).data().toString().toStdString(), form1->lblIntensidade[i].texto);
    }
}

TEST_F(EmForm1, o_mouse_sobre_o_gráfico_lê_os_cantos_dos_eixos) {
    auto& gráfico = widget<WidgetDesenho>(form1, "Picture1");
    const QRect eixos = gráfico.quadroDosEixos();
    moverMouse(gráfico, eixos.topLeft());
    EXPECT_EQ(form1->Label15.texto, "r = 0.000 m");
    EXPECT_EQ(form1->Label16.texto, "i = " + form1->Label7[6].texto + "00 mm/h");
    EXPECT_EQ(form1.ponteiro, Ponteiro::cruz);
    EXPECT_EQ(janela(form1).cursor().shape(), Qt::CrossCursor);

    moverMouse(gráfico, QPoint{eixos.left() + eixos.width(), eixos.top() + eixos.height()});
    EXPECT_EQ(form1->Label15.texto, "r = " + form1->Label6[10].texto + "00 m");
    EXPECT_EQ(widget<QLabel>(form1, "Label16").text(), "i = 0.000 mm/h");
}

TEST_F(EmForm1, o_mouse_fora_dos_eixos_ou_do_gráfico_devolve_o_ponteiro) {
    auto& gráfico = widget<WidgetDesenho>(form1, "Picture1");
    moverMouse(gráfico, gráfico.quadroDosEixos().center());
    moverMouse(gráfico, gráfico.quadroDosEixos().topLeft() - QPoint{1, 0});
    EXPECT_EQ(form1.ponteiro, Ponteiro::padrão);

    moverMouse(gráfico, gráfico.quadroDosEixos().center());
    QEvent saída{QEvent::Leave};
    QApplication::sendEvent(&gráfico, &saída);
    EXPECT_EQ(form1.ponteiro, Ponteiro::padrão);

    moverMouse(gráfico, gráfico.quadroDosEixos().center());
    moverMouse(widget<QWidget>(form1, "Frame1"), {2, 2});
    EXPECT_EQ(form1.ponteiro, Ponteiro::padrão);
    EXPECT_EQ(janela(form1).cursor().shape(), Qt::ArrowCursor);
}

TEST_F(EmForm1, o_gráfico_acompanha_o_tamanho_da_janela_na_leitura) {
    auto& gráfico = widget<WidgetDesenho>(form1, "Picture1");
    const int antes = gráfico.quadroDosEixos().width();
    janela(form1).resize(janela(form1).width() + 300, janela(form1).height() + 100);
    QTest::qWait(1);
    const QRect eixos = gráfico.quadroDosEixos();
    EXPECT_GT(eixos.width(), antes + 200);
    moverMouse(gráfico, QPoint{eixos.left() + eixos.width(), eixos.top()});
    EXPECT_EQ(form1->Label15.texto, "r = " + form1->Label6[10].texto + "00 m");
}

TEST_F(EmForm7, o_texto_digitado_chega_ao_registro_e_o_cursor_fica_onde_está) {
    auto& caixa = widget<QLineEdit>(form7, "Text1");
    caixa.setFocus(Qt::TabFocusReason);
    caixa.setCursorPosition(1);
    QTest::keyClick(&caixa, Qt::Key_2);
    EXPECT_EQ(form7->Text1.texto, "520");
    EXPECT_EQ(caixa.cursorPosition(), 2);
    EXPECT_EQ(form7->Label23.texto, "Velocidade = 520 m/h");
    EXPECT_EQ(widget<QLabel>(form7, "Label23").text(), "Velocidade = 520 m/h");
    EXPECT_EQ(controleComFoco, &form7->Text1);
}

TEST_F(EmForm7, digitar_na_lista_guarda_o_texto_e_o_cursor) {
    auto& lista = widget<QComboBox>(form7, "Combo2");
    apagarEDigitar(form7, "Combo2", "12");
    EXPECT_EQ(form7->Combo2.texto, "12");
    lista.lineEdit()->setCursorPosition(1);
    QTest::keyClick(&lista, Qt::Key_Period);
    EXPECT_EQ(form7->Combo2.texto, "1.2");
    EXPECT_EQ(lista.lineEdit()->cursorPosition(), 2);
}

TEST_F(EmForm7, a_lista_não_completa_o_que_se_digita) {
    apagarEDigitar(form7, "Combo2", "1");
    EXPECT_EQ(widget<QComboBox>(form7, "Combo2").currentText(), "1");
    EXPECT_EQ(form7->Combo2.texto, "1");
}

TEST_F(EmForm7, um_item_digitado_por_inteiro_não_conta_como_escolhido_ao_sair) {
    apagarEDigitar(form7, "Combo2", "6.0");
    clicar(form7, "Command2");
    // The road on is open after a calculation; a click of the list would close it again.
    form7->cmdUniformidade.habilitado = true;
    widget<QLineEdit>(form7, "Text1").setFocus(Qt::TabFocusReason);
    EXPECT_EQ(form7->Combo2.texto, "6.0");
    EXPECT_TRUE(form7->cmdUniformidade.habilitado);
}

TEST_F(EmForm7, a_lista_escolhida_por_tecla_mostra_o_item) {
    auto& lista = widget<QComboBox>(form7, "Combo2");
    EXPECT_EQ(lista.currentText(), "2.0");
    lista.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&lista, Qt::Key_Up);
    EXPECT_EQ(lista.currentText().toStdString(), form7->Combo2.texto);
    EXPECT_EQ(form7->Combo2.texto, "1.5");
}

TEST_F(EmForm7, o_polegar_arrastado_rola_e_solto_muda) {
    auto& barra = widget<QScrollBar>(form7, "HScroll2");
    form7->Command9.habilitado = true;
    const QPoint polegar = parteDe(barra, QStyle::SC_ScrollBarSlider);
    QTest::mousePress(&barra, Qt::LeftButton, {}, polegar);
    moverMouse(barra, polegar + QPoint{20, 0}, Qt::LeftButton);
    EXPECT_GT(form7->HScroll2.valor, 0);
    EXPECT_EQ(barra.value(), form7->HScroll2.valor);
    EXPECT_NE(form7->Label17.texto, "0.0");
    // The Scroll of this bar leaves the other road's button alone, its Change disables it.
    EXPECT_TRUE(form7->Command9.habilitado);
    const int arrastado = form7->HScroll2.valor;
    QTest::mouseRelease(&barra, Qt::LeftButton, {}, polegar + QPoint{20, 0});
    EXPECT_EQ(form7->HScroll2.valor, arrastado);
    EXPECT_FALSE(form7->Command9.habilitado);
}

TEST_F(EmForm7, a_rotação_vai_a_valores_negativos) {
    auto& barra = widget<QScrollBar>(form7, "HScroll5");
    QTest::keyClick(&barra, Qt::Key_Home);
    EXPECT_EQ(form7->HScroll5.valor, -360);
    EXPECT_EQ(widget<QLabel>(form7, "Label37").text(), "Rotação: -360º");
    QTest::keyClick(&barra, Qt::Key_PageUp);
    EXPECT_EQ(form7->HScroll5.valor, -350);
}

TEST_F(EmForm7, a_roda_do_mouse_só_muda_a_barra_que_tem_o_foco) {
    auto& barra = widget<QScrollBar>(form7, "HScroll1");
    const auto girar = [&](QWidget& alvo) {
        const QPointF ponto = alvo.rect().center();
        QWheelEvent roda{ponto, alvo.mapToGlobal(ponto), {},   {0, 120}, Qt::NoButton,
                         {},    Qt::NoScrollPhase,       false};
        QApplication::sendEvent(&alvo, &roda);
    };
    girar(barra);
    EXPECT_EQ(form7->HScroll1.valor, 0);
    auto& lista = widget<QComboBox>(form7, "Combo2");
    const auto antes = form7->Combo2.texto;
    girar(lista);
    EXPECT_EQ(form7->Combo2.texto, antes);

    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form7)));
    barra.setFocus(Qt::TabFocusReason);
    girar(barra);
    EXPECT_NE(form7->HScroll1.valor, 0);
}

TEST_F(EmForm7, a_grade_mostra_o_perfil_com_cabeçalhos) {
    const auto& tabela = widget<WidgetTabela>(form7, "flexA");
    const auto* modelo = tabela.model();
    ASSERT_EQ(modelo->rowCount(), form7->flexA.linhas - 1);
    ASSERT_EQ(modelo->columnCount(), 2);
    EXPECT_EQ(modelo->headerData(0, Qt::Horizontal), "Distância (m)");
    EXPECT_EQ(modelo->headerData(1, Qt::Horizontal), "Lâmina (mm)");
    EXPECT_EQ(modelo->headerData(0, Qt::Vertical), "1");
    EXPECT_EQ(modelo->index(0, 0).data().toString().toStdString(), form7->flexA.célula(1, 1));
    EXPECT_EQ(modelo->index(3, 1).data().toString().toStdString(), form7->flexA.célula(4, 2));
}

TEST_F(EmForm7, o_gráfico_lê_a_distância_dos_dois_lados) {
    auto& gráfico = widget<WidgetDesenho>(form7, "Picture2");
    const QRect eixos = gráfico.quadroDosEixos();
    const QPoint base{eixos.left(), eixos.top() + eixos.height()};
    moverMouse(gráfico, base);
    EXPECT_EQ(form7->Label14d.texto, "d = " + form7->Label3[0].texto + "00 m");
    EXPECT_EQ(form7->Label14I.texto, "I = 0.000 mm");
    moverMouse(gráfico, base + QPoint{eixos.width(), -eixos.height()});
    EXPECT_EQ(form7->Label14d.texto, "d = " + form7->Label3[8].texto + "00 m");
    EXPECT_EQ(form7->Label14I.texto, "I = " + form7->Label4[5].texto + "00 mm");
}

TEST_F(EmForm7, o_aviso_só_ocupa_lugar_quando_há) {
    auto& aviso = widget<QLabel>(form7, "lblAviso");
    EXPECT_FALSE(aviso.isVisible());
    form7->lblAviso.texto = "Aviso: <b>1</b> ponto";
    janelas->atualizar();
    EXPECT_TRUE(aviso.isVisible());
    EXPECT_EQ(aviso.textFormat(), Qt::PlainText);
}

} // namespace
} // namespace varenta::teste
