#include "com_janelas.h"

#include "ajuste/comparar.h"
#include "ajuste/form_ajcar.h"
#include "ajuste/form_ajuste.h"
#include "ajuste/form_ajven.h"
#include "ajuste/form_ajvenou.h"
#include "ajuste/form_e.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_mie.h"
#include "ajuste/form_migraf.h"
#include "ajuste/operacoes_ensaio.h"
#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "campo/form_ec.h"
#include "campo/form_unifo.h"
#include "shell/form6.h"
#include "simulacao/form_grafven.h"
#include "uniformidade/form5.h"
#include "uniformidade/form8.h"
#include "uniformidade/form9.h"
#include "uniformidade/form_graffinal.h"

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

class Aparência : public ComJanelas {
  protected:
    void SetUp() override {
        ComJanelas::SetUp();
        clicarMenu("TX20B");
        clicar(form1, "Command3");
        clicar(form7, "Command2");
        clicar(form7, "Command3");
        form7.habilitada = true;
        janelas->atualizar();
        clicar(form7, "cmdUniformidade");
        clicar(form4, "Command8");
        clicar(form4, "Command9");
        clicar(form4, "Command5");
        for (const auto* nome : {"Command10", "Command3", "Command12", "Command15"}) clicar(form5, nome);
        abrirTelasDoAjuste();
        abrirTelasDosEnsaios();
        form7.mostrar();
        janelas->atualizar();
    }

    void abrirArquivo(const TelaBase& tela, const char* opção, const char* arquivo) {
        respostas = {true};
        arquivos = {exemplo(arquivo)};
        clicar(tela, opção);
    }

    /// A test of each kind with its results, and then with all entries in sight.
    void abrirTelasDoAjuste() {
        abrirFormAjVen(modeloTX20, Método::malha);
        janelas->atualizar();
        clicar(form_AjVen, "Command4");
        abrirArquivo(form_E1, "Option5", "ensaio_malha_1.txt");
        clicar(form_AjVen, "Command5");
        clicar(form_AjVen, "Command8");
        clicar(form_graf1, "Command2");
        varenta::abrirEnsaio({form_MiE1, *form_MiE1.operator->(), 1}, Aspersor::doCatálogo);
        janelas->atualizar();
        abrirArquivo(form_MiE1, "Option5", "ensaio_movel_1.txt");
        preencherMIgraf(Aspersor::doCatálogo, 1);
        visualizarValoresMóvel(Aspersor::doCatálogo, 1);
        for (const auto* tela :
             {static_cast<const TelaBase*>(&form_E1), static_cast<const TelaBase*>(&form_MiE1)})
            for (const auto* nome : {"Option2", "Option3"}) clicar(*tela, nome);
        form_AjCar.mostrar();
        janelas->atualizar();
    }

    /// A measured sprinkler and a field test with what follows from them, and then with all entries in sight,
    /// and of the buttons that lie on one another those of one road.
    void abrirTelasDosEnsaios() {
        for (auto avançar : {"Command6", "Command8"}) {
            perfilForm.mostrar();
            janelas->atualizar();
            abrirArquivo(perfilForm, "Option2", "ensaio_radial_ml.txt");
            clicar(perfilForm, avançar);
        }
        perfilForm->Command6.visivel = perfilForm->Command7.visivel = false;
        formEC.mostrar();
        janelas->atualizar();
        abrirArquivo(formEC, "Option2", "ensaio_movel_mm.txt");
        clicar(formEC, "Command4");
        formEC->Command4.visivel = false;
        form6.mostrar();
        perfilForm.mostrar();
        formEC.mostrar();
        janelas->atualizar();
        for (const auto* tela :
             {static_cast<const TelaBase*>(&perfilForm), static_cast<const TelaBase*>(&formEC)})
            clicar(*tela, "Option1");
    }

    /// The screens of the road after the main window, in the state that they have on it.
    static std::vector<TelaBase*> telas() {
        return {&form1,      &form7,          &form_grafVen, &form4,          &form5,      &form8,
                &form9,      &form_grafFinal, &form_AjVen,   &form_E1,        &form_MiE1,  &form_AjCar,
                &form_graf1, &form_MIgraf1,   &form_ajuste1, &form_MIajuste1, &perfilForm, &perfil,
                &formEC,     &formUnifo,      &form_AjvenOu, &form6};
    }

    std::vector<QWidget*> todas() const {
        std::vector<QWidget*> janelas{&janela(form3)};
        for (const auto* tela : telas()) janelas.push_back(&janela(*tela));
        return janelas;
    }

    void mostrarTodas() {
        for (auto* rótulo :
             {&form7->lblAviso, &form_grafVen->lblAviso, &form5->lblAviso, &form_grafFinal->lblAviso})
            rótulo->texto = "Aviso: em 12 de 3600 pontos o modelo de vento não convergiu; os valores podem "
                            "não ter sentido físico.";
        for (auto* tela : telas()) tela->mostrar();
        janelas->atualizar();
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
