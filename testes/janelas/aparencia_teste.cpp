#include "todas_as_janelas.h"

#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>

#include <clocale>
#include <map>
#include <set>

namespace varenta::teste {
namespace {

using Aparência = TodasAsJanelas;

TEST_F(Aparência, cada_janela_cabe_em_1366_por_768) {
    // What a title bar, a frame and a task bar take away.
    constexpr QSize disponível{1366 - 8, 768 - 80};
    for (const auto* janela : todas()) {
        EXPECT_LE(janela->sizeHint().width(), disponível.width()) << janela->objectName().toStdString();
        EXPECT_LE(janela->sizeHint().height(), disponível.height()) << janela->objectName().toStdString();
    }
}

TEST_F(Aparência, nenhum_rótulo_ou_botão_é_mais_estreito_que_seu_texto) {
    mostrarTodas();
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
    mostrarTodas();
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
    const std::map<const TelaBase*, std::size_t> aoMenos{
        {&form1, 7},          {&form7, 7},       {&form_grafVen, 1},   {&form4, 7},        {&form5, 9},
        {&form8, 3},          {&form9, 4},       {&form_grafFinal, 1}, {&form_AjVen, 10},  {&form_E1, 13},
        {&form_MiE1, 16},     {&form_AjCar, 0},  {&form_graf1, 2},     {&form_MIgraf1, 2}, {&form_ajuste1, 3},
        {&form_MIajuste1, 3}, {&perfilForm, 16}, {&perfil, 5},         {&formEC, 22},      {&formUnifo, 8},
        {&form_AjvenOu, 7},   {&form6, 1}};
    for (auto* tela : telas()) {
        for (auto* outra : telas()) outra->visivel = outra == tela;
        janelas->atualizar();
        auto& janelaDaTela = janela(*tela);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janelaDaTela));
        std::set<std::string> esperados, alcançados;
        for (const auto* widget : janelaDaTela.findChildren<QWidget*>())
            // Of a group of options Tab reaches the one that is set; the arrows reach the others.
            if (!éParte(widget) && widget->focusPolicy() & Qt::TabFocus && widget->isVisible() &&
                widget->isEnabled() &&
                !(widget->inherits("QRadioButton") && !widget->property("checked").toBool()))
                esperados.insert(widget->objectName().toStdString());
        for (std::size_t k = 0; k < 2 * esperados.size(); ++k) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &janelaDaTela,
                            Qt::Key_Tab);
            if (const auto* widget = QApplication::focusWidget())
                alcançados.insert(widget->objectName().toStdString());
        }
        EXPECT_GE(esperados.size(), aoMenos.at(tela)) << tela->nome();
        EXPECT_EQ(alcançados, esperados) << tela->nome();
    }
}

TEST_F(Aparência, a_ordem_de_Tab_em_Form7_vai_das_entradas_ao_esquema_ao_gráfico_e_aos_botões) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form7)));
    widget<QWidget>(form7, "Text1").setFocus(Qt::TabFocusReason);
    std::vector<std::string> ordem;
    for (int k = 0; k < 19; ++k) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ordem.push_back(QApplication::focusWidget()->objectName().toStdString());
    }
    const std::vector<std::string> esperada{"Combo2",   "HScroll1", "HScroll2", "HScroll3", "HScroll4",
                                            "HScroll5", "Text2",    "Text3",    "Text4",    "Text5",
                                            "Text6",    "Text7",    "Picture1", "Picture2", "flexA",
                                            "Command1", "Command5", "cmdSair",  "Command4"};
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
    for (auto* tela : telas())
        for (const auto& elemento : tela->elementos())
            if (auto* const* botão = std::get_if<Botao*>(&elemento.controle); botão && !(*botão)->aoClicar) {
                (*botão)->habilitado = true;
                janelas->atualizar();
                EXPECT_FALSE(widget<QWidget>(*tela, elemento.nome.c_str()).isEnabled()) << elemento.nome;
            }
}

TEST_F(Aparência, mnemônicos_não_se_repetem_entre_os_botões_à_vista) {
    mostrarTodas();
    for (const auto* janela : todas()) {
        std::set<QString> usados;
        for (const auto* botão : janela->findChildren<QPushButton*>()) {
            const auto tecla = QKeySequence::mnemonic(botão->text()).toString();
            if (!botão->isVisible() || tecla.isEmpty()) continue;
            EXPECT_TRUE(usados.insert(tecla).second)
                << janela->objectName().toStdString() << ' ' << tecla.toStdString();
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
    mostrarTodas();
    const auto antes = QApplication::font();
    auto maior = antes;
    maior.setPointSizeF(antes.pointSizeF() * 1.5);
    QApplication::setFont(maior);
    janelas->atualizar();
    for (const auto* tela : telas()) {
        const auto& janelaDaTela = janela(*tela);
        const auto cabe = [](const QWidget* widget) {
            return widget->width() >= widget->minimumSizeHint().width();
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return cabe(&janelaDaTela); })) << tela->nome();
        for (const auto* rótulo : janelaDaTela.findChildren<QLabel*>())
            if (rótulo->isVisible()) {
                EXPECT_TRUE(QTest::qWaitFor([&] { return cabe(rótulo); }, 1000))
                    << rótulo->text().toStdString();
            }
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
