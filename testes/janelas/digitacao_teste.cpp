#include "com_janelas.h"

#include "aspersor/perfil_form.h"
#include "campo/form_ec.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <functional>
#include <map>
#include <random>
#include <set>
#include <vector>

/// Numbers as people type them, with a comma, in every box and list.
namespace varenta::teste {
namespace {

class Digitação : public ComJanelas {
  protected:
    void SetUp() override {
        ComJanelas::SetUp();
        clicarMenu("TX20B");
        clicar(form1, "Command3");
        caixa = &widget<QLineEdit>(form7, "Text1");
        caixa->setFocus(Qt::TabFocusReason);
        caixa->selectAll();
    }

    void digitar(const QString& texto) const { QTest::keyClicks(caixa, texto); }

    void colar(const QString& texto) const {
        QApplication::clipboard()->setText(texto);
        QTest::keyClick(caixa, Qt::Key_V, Qt::ControlModifier);
    }

    QLineEdit* caixa = nullptr;
};

TEST_F(Digitação, a_vírgula_digitada_vira_ponto_na_caixa_e_no_registro) {
    digitar("62,5");
    EXPECT_EQ(caixa->text(), "62.5");
    EXPECT_EQ(form7->Text1.texto, "62.5");
    EXPECT_EQ(widget<QLabel>(form7, "Label23").text(), "Velocidade = 62.5 m/h");
    EXPECT_EQ(caixa->cursorPosition(), 4);
}

TEST_F(Digitação, a_vírgula_no_meio_deixa_o_cursor_depois_dela) {
    digitar("625");
    caixa->setCursorPosition(2);
    QTest::keyClick(caixa, Qt::Key_Comma);
    EXPECT_EQ(caixa->text(), "62.5");
    EXPECT_EQ(caixa->cursorPosition(), 3);
    digitar("7");
    EXPECT_EQ(form7->Text1.texto, "62.75");
}

TEST_F(Digitação, vírgula_e_ponto_ou_duas_vírgulas_ficam_como_se_digitaram) {
    for (const auto* texto : {"1.234,5", "1,234.5", "1,2,3", "1,,5", "1,.5", ",1."}) {
        caixa->selectAll();
        digitar(texto);
        EXPECT_EQ(caixa->text(), texto);
        EXPECT_EQ(form7->Text1.texto, texto);
    }
}

TEST_F(Digitação, o_segundo_sinal_no_meio_também_devolve_a_vírgula) {
    digitar("1,5");
    caixa->setCursorPosition(0);
    digitar("7.");
    EXPECT_EQ(form7->Text1.texto, "7.1,5");
    // One of them gone, the other is decimal again.
    caixa->setCursorPosition(2);
    QTest::keyClick(caixa, Qt::Key_Backspace);
    EXPECT_EQ(form7->Text1.texto, "71.5");
    EXPECT_EQ(caixa->cursorPosition(), 1);
}

TEST_F(Digitação, um_ponto_digitado_continua_ponto) {
    digitar("1.5");
    caixa->setCursorPosition(0);
    digitar("2,");
    EXPECT_EQ(form7->Text1.texto, "2,1.5");
    EXPECT_EQ(caixa->cursorPosition(), 2);
}

TEST_F(Digitação, o_texto_posto_pelo_sistema_não_lembra_vírgula_alguma) {
    digitar("1,5");
    form7->Text1.texto = "2.5";
    janelas->atualizar();
    caixa->setCursorPosition(3);
    digitar(",");
    EXPECT_EQ(form7->Text1.texto, "2.5,");
}

TEST_F(Digitação, o_texto_posto_pelo_sistema_fica_como_está) {
    form7->Text1.texto = "2,5";
    janelas->atualizar();
    EXPECT_EQ(caixa->text(), "2,5");
    EXPECT_EQ(form7->Text1.texto, "2,5");
}

TEST_F(Digitação, o_que_se_cola_perde_a_vírgula_e_o_fim_de_linha_da_planilha) {
    colar("62,5\r\n");
    EXPECT_EQ(form7->Text1.texto, "62.5");
    EXPECT_EQ(caixa->text(), "62.5");
    EXPECT_EQ(caixa->cursorPosition(), 4);
    caixa->selectAll();
    colar("1.234,5");
    EXPECT_EQ(form7->Text1.texto, "1.234,5");
    caixa->selectAll();
    colar("1\r\n2\t3\r\n");
    EXPECT_EQ(form7->Text1.texto, "1 2 3");
}

TEST_F(Digitação, desfazer_e_refazer_passam_pela_vírgula) {
    const auto textos = [&](QKeySequence::StandardKey qual) {
        QStringList vistos;
        while (qual == QKeySequence::Undo ? caixa->isUndoAvailable() : caixa->isRedoAvailable()) {
            QTest::keySequence(caixa, QKeySequence{qual});
            EXPECT_EQ(form7->Text1.texto, caixa->text().toStdString());
            vistos << caixa->text();
            if (vistos.size() > 9) break;
        }
        return vistos;
    };
    digitar("62,5");
    EXPECT_EQ(textos(QKeySequence::Undo), (QStringList{"62.", "50"}));
    EXPECT_EQ(textos(QKeySequence::Redo), (QStringList{"62.", "62.5"}));
    EXPECT_EQ(textos(QKeySequence::Undo), (QStringList{"62.", "50"}));
    caixa->selectAll();
    colar("7,25\r\n");
    digitar("9");
    EXPECT_EQ(textos(QKeySequence::Undo), (QStringList{"7.25", "50"}));
    EXPECT_EQ(textos(QKeySequence::Redo), (QStringList{"7.25", "7.259"}));
}

TEST_F(Digitação, desfazer_e_refazer_ao_acaso_chegam_sempre_a_um_fim) {
    std::mt19937 sorteio{4};
    const std::vector<std::function<void()>> mãos = {
        [&] { digitar(","); },
        [&] { digitar("."); },
        [&] { digitar("7"); },
        [&] { colar("3,4\n"); },
        [&] { QTest::keyClick(caixa, Qt::Key_Backspace); },
        [&] { QTest::keyClick(caixa, Qt::Key_Home); },
        [&] { QTest::keyClick(caixa, Qt::Key_Right, Qt::ShiftModifier); },
        [&] { QTest::keySequence(caixa, QKeySequence{QKeySequence::Undo}); },
        [&] { QTest::keySequence(caixa, QKeySequence{QKeySequence::Undo}); },
        [&] { QTest::keySequence(caixa, QKeySequence{QKeySequence::Redo}); },
    };
    for (int k = 0; k < 5000; ++k) {
        mãos[sorteio() % mãos.size()]();
        ASSERT_EQ(form7->Text1.texto, caixa->text().toStdString()) << k;
        if (caixa->text().size() > 12) caixa->selectAll();
    }
}

TEST_F(Digitação, desfazer_vai_além_do_segundo_sinal) {
    digitar("1,5");
    digitar(".");
    ASSERT_EQ(form7->Text1.texto, "1,5.");
    for (int k = 0; k < 9 && caixa->isUndoAvailable(); ++k)
        QTest::keySequence(caixa, QKeySequence{QKeySequence::Undo});
    EXPECT_FALSE(caixa->isUndoAvailable());
    EXPECT_EQ(form7->Text1.texto, "50");
    EXPECT_EQ(caixa->text(), "50");
}

TEST_F(Digitação, a_verificação_recusa_o_que_ficou_com_vírgula_e_ponto) {
    digitar("1.234,5");
    clicar(form7, "Command2");
    ASSERT_EQ(caixas.size(), 1u);
    EXPECT_TRUE(caixas[0].contains("elocidade")) << caixas[0].toStdString();
}

TEST_F(Digitação, na_lista_que_se_digita_também) {
    apagarEDigitar(form7, "Combo2", "2,0");
    EXPECT_EQ(form7->Combo2.texto, "2.0");
    auto& lista = *widget<QComboBox>(form7, "Combo2").lineEdit();
    EXPECT_EQ(lista.text(), "2.0");
    lista.setText("20");
    lista.setCursorPosition(1);
    QTest::keyClick(&lista, Qt::Key_Comma);
    EXPECT_EQ(form7->Combo2.texto, "2.0");
    EXPECT_EQ(lista.cursorPosition(), 2);
}

TEST_F(Digitação, na_linha_de_entrada_também) {
    form7.esconder();
    perfilForm.mostrar();
    janelas->atualizar();
    auto& linha = widget<QLineEdit>(perfilForm, "Text6");
    linha.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&linha, "4,25");
    QTest::keyClick(&linha, Qt::Key_Return);
    EXPECT_EQ(perfilForm->flexGrid.célula(1, 1), "4.25");
}

/// Names of boxes that hold any text: sprinkler and nozzles.
const std::set<std::string> livres = {"PerfilForm.Text7", "PerfilForm.Text9", "Form_EC.Text6",
                                      "Form_EC.Text8"};

TEST_F(Digitação, toda_caixa_e_toda_lista_é_de_número_menos_os_nomes) {
    std::set<std::string> achadas;
    int deNúmero = 0;
    for (const auto& modelo : janelasDoPrograma()) {
        modelo.tela->mostrar();
        modelo.tela->habilitada = true;
        for (const auto& elemento : modelo.tela->elementos()) {
            const auto testar = [&](auto& controle) {
                controle.visivel = controle.habilitado = true;
                janelas->atualizar();
                const auto nome = modelo.tela->nome() + "." + elemento.nome;
                auto& alvo = widget(*modelo.tela, elemento.nome.c_str());
                auto* linha = qobject_cast<QLineEdit*>(&alvo);
                if (!linha) linha = alvo.findChild<QLineEdit*>();
                linha->clear();
                linha->insert(QStringLiteral("7,5"));
                const bool livre = livres.contains(nome);
                EXPECT_EQ(controle.texto, livre ? "7,5" : "7.5") << nome;
                EXPECT_EQ(linha->text().toStdString(), controle.texto) << nome;
                livre ? void(achadas.insert(nome)) : void(++deNúmero);
            };
            if (auto* const* texto = std::get_if<CaixaTexto*>(&elemento.controle)) testar(**texto);
            if (auto* const* lista = std::get_if<Lista*>(&elemento.controle);
                lista && (*lista)->admiteDigitação)
                testar(**lista);
        }
    }
    EXPECT_EQ(achadas, livres);
    EXPECT_GT(deNúmero, 60);
}

TEST_F(Digitação, um_nome_fica_com_vírgula_mas_em_uma_linha) {
    form7.esconder();
    perfilForm.mostrar();
    janelas->atualizar();
    caixa = &widget<QLineEdit>(perfilForm, "Text9");
    caixa->setFocus(Qt::TabFocusReason);
    colar("25,4 x 6\n");
    EXPECT_EQ(perfilForm->Text9.texto, "25,4 x 6");
}

} // namespace
} // namespace varenta::teste
