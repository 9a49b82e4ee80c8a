#include "com_janelas.h"

#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>

#include <clocale>
#include <set>

namespace varenta::teste {
namespace {

class Aparência : public ComJanelas {
  protected:
    void SetUp() override {
        ComJanelas::SetUp();
        clicarMenu("TX20B");
        clicar(form1, "Command3");
        clicar(form7, "Command2");
        clicar(form7, "cmdUniformidade");
        clicar(form4, "Command8");
        clicar(form4, "Command9");
        form7.mostrar();
        janelas->atualizar();
    }

    /// All windows of the road, in the state that they have on it.
    std::vector<QWidget*> todas() const {
        return {&janela(form3), &janela(form1), &janela(form7), &janela(form4)};
    }

    static bool éParte(const QWidget* widget) {
        return widget->objectName().isEmpty() || widget->objectName().startsWith("qt_");
    }
};

TEST_F(Aparência, cada_janela_cabe_em_1366_por_768) {
    // What a title bar, a frame and a task bar take away.
    constexpr QSize disponível{1366 - 8, 768 - 80};
    for (const auto* janela : todas()) {
        EXPECT_LE(janela->sizeHint().width(), disponível.width()) << janela->objectName().toStdString();
        EXPECT_LE(janela->sizeHint().height(), disponível.height()) << janela->objectName().toStdString();
    }
}

TEST_F(Aparência, nenhum_rótulo_ou_botão_é_mais_estreito_que_seu_texto) {
    form7->lblAviso.texto = "Aviso";
    for (auto* tela :
         {static_cast<TelaBase*>(&form1), static_cast<TelaBase*>(&form7), static_cast<TelaBase*>(&form4)})
        tela->mostrar();
    janelas->atualizar();
    for (const auto* janela : todas())
        for (const auto* widget : janela->findChildren<QWidget*>()) {
            const bool comTexto =
                qobject_cast<const QLabel*>(widget) || qobject_cast<const QPushButton*>(widget);
            if (!comTexto || !widget->isVisible()) continue;
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), widget->minimumSizeHint().height())
                << widget->objectName().toStdString();
        }
}

TEST_F(Aparência, nenhum_controle_cobre_outro) {
    form1.mostrar();
    janelas->atualizar();
    for (const auto* janela : todas())
        for (const auto* pai : janela->findChildren<QWidget*>()) {
            if (éParte(pai) || qobject_cast<const QComboBox*>(pai) || qobject_cast<const QMenuBar*>(pai))
                continue;
            const auto filhos = pai->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
            for (const auto* a : filhos)
                for (const auto* b : filhos)
                    if (a < b && a->isVisible() && b->isVisible() && !éParte(a) && !éParte(b)) {
                        EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                            << a->objectName().toStdString() << " and " << b->objectName().toStdString();
                    }
        }
}

TEST_F(Aparência, a_tecla_Tab_chega_a_todos_os_controles_e_volta) {
    for (auto* tela :
         {static_cast<TelaBase*>(&form1), static_cast<TelaBase*>(&form7), static_cast<TelaBase*>(&form4)}) {
        form7.visivel = tela == &form7;
        form1.visivel = tela == &form1;
        form4.visivel = tela == &form4;
        janelas->atualizar();
        auto& janelaDaTela = janela(*tela);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janelaDaTela));
        std::set<const QWidget*> esperados, alcançados;
        for (const auto* widget : janelaDaTela.findChildren<QWidget*>())
            // Of a group of options Tab reaches the one that is set; the arrows reach the others.
            if (!éParte(widget) && widget->focusPolicy() & Qt::TabFocus && widget->isVisible() &&
                widget->isEnabled() &&
                !(widget->inherits("QRadioButton") && !widget->property("checked").toBool()))
                esperados.insert(widget);
        for (std::size_t k = 0; k < 2 * esperados.size(); ++k) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &janelaDaTela,
                            Qt::Key_Tab);
            if (QApplication::focusWidget()) alcançados.insert(QApplication::focusWidget());
        }
        EXPECT_GE(esperados.size(), 7u);
        EXPECT_EQ(alcançados, esperados) << tela->nome();
    }
}

TEST_F(Aparência, a_ordem_de_Tab_em_Form7_vai_das_entradas_ao_cálculo) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form7)));
    widget<QWidget>(form7, "Text1").setFocus(Qt::TabFocusReason);
    std::vector<std::string> ordem;
    for (int k = 0; k < 13; ++k) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ordem.push_back(QApplication::focusWidget()->objectName().toStdString());
    }
    const std::vector<std::string> esperada{"Combo2",   "HScroll1", "HScroll2", "HScroll3", "HScroll4",
                                            "HScroll5", "Text2",    "Text3",    "Text4",    "Text5",
                                            "Text6",    "Text7",    "Command2"};
    EXPECT_EQ(ordem, esperada);
}

TEST_F(Aparência, o_foco_da_pessoa_é_o_da_tela) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form7)));
    QTest::mouseClick(&widget<QWidget>(form7, "Text5"), Qt::LeftButton);
    EXPECT_EQ(controleComFoco, &form7->Text5);
    QTest::keyClick(&widget<QWidget>(form7, "Text5"), Qt::Key_Tab);
    EXPECT_EQ(controleComFoco, &form7->Text6);
}

TEST_F(Aparência, botões_sem_ação_ficam_desabilitados) {
    for (auto* tela :
         {static_cast<TelaBase*>(&form1), static_cast<TelaBase*>(&form7), static_cast<TelaBase*>(&form4)})
        for (const auto& elemento : tela->elementos())
            if (auto* const* botão = std::get_if<Botao*>(&elemento.controle); botão && !(*botão)->aoClicar) {
                (*botão)->habilitado = true;
                janelas->atualizar();
                EXPECT_FALSE(widget<QWidget>(*tela, elemento.nome.c_str()).isEnabled()) << elemento.nome;
            }
}

TEST_F(Aparência, mnemônicos_não_se_repetem_entre_os_botões_à_vista) {
    form1.mostrar();
    janelas->atualizar();
    for (const auto* janela : todas()) {
        std::set<QString> usados;
        for (const auto* botão : janela->findChildren<QPushButton*>()) {
            const auto tecla = QKeySequence::mnemonic(botão->text()).toString();
            if (!botão->isVisible() || tecla.isEmpty()) continue;
            EXPECT_TRUE(usados.insert(tecla).second) << tecla.toStdString();
        }
        for (const auto* ação :
             janela->findChild<QMenuBar*>() ? janela->findChild<QMenuBar*>()->actions() : QList<QAction*>{}) {
            const auto tecla = QKeySequence::mnemonic(ação->text()).toString();
            if (tecla.isEmpty()) continue;
            EXPECT_TRUE(usados.insert(tecla).second) << tecla.toStdString();
        }
    }
}

TEST_F(Aparência, letras_maiores_não_cortam_nada) {
    const auto antes = QApplication::font();
    auto maior = antes;
    maior.setPointSizeF(antes.pointSizeF() * 1.5);
    QApplication::setFont(maior);
    QTest::qWait(100);
    auto& janelaDaTela = janela(form7);
    EXPECT_GE(janelaDaTela.width(), janelaDaTela.minimumSizeHint().width());
    for (const auto* rótulo : janelaDaTela.findChildren<QLabel*>())
        if (rótulo->isVisible()) {
            EXPECT_GE(rótulo->width(), rótulo->minimumSizeHint().width()) << rótulo->text().toStdString();
        }
    QApplication::setFont(antes);
}

TEST(Números, não_dependem_do_idioma_da_máquina) {
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    // Under the run that asks for a locale the environment really has it.
    if (const auto idioma = qgetenv("VARENTA_TESTE_LOCALE"); !idioma.isEmpty()) {
        EXPECT_STREQ(std::setlocale(LC_TIME, nullptr), idioma.constData());
    }
}

} // namespace
} // namespace varenta::teste
