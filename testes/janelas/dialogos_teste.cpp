#include "com_janelas.h"

#include "apoio/pasta_temporaria.h"
#include "campo/form_ec.h"
#include "comum/plataforma.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

namespace varenta::teste {
namespace {

TEST(Filtros, em_pares_de_nome_e_máscara_viram_os_do_Qt) {
    EXPECT_EQ(filtrosDoQt("Arquivos Texto (*.TXT)|*.TXT"), "Arquivos Texto (*.TXT *.txt)");
    EXPECT_EQ(filtrosDoQt("Text files|*.TXT|All files|*.*"), "Text files (*.TXT *.txt);;All files (*)");
}

/// Qt's own boxes, looked at and answered while they wait.
class CaixasDoQt : public ComJanelas {
  protected:
    void SetUp() override {
        ComJanelas::SetUp();
        dialogos() = dialogosDoQt();
    }

    /// Does `responder` to the next box that opens.
    template <class Caixa>
    void aoAbrir(std::function<void(Caixa&)> responder) {
        QTimer::singleShot(0, [=] {
            auto* caixa = qobject_cast<Caixa*>(QApplication::activeModalWidget());
            ASSERT_NE(caixa, nullptr);
            responder(*caixa);
        });
    }

    static void apertar(QMessageBox& caixa, QMessageBox::StandardButton qual) { caixa.button(qual)->click(); }
};

TEST_F(CaixasDoQt, a_mensagem_tem_o_título_do_programa_e_o_texto_puro) {
    aoAbrir<QMessageBox>([](QMessageBox& caixa) {
        EXPECT_EQ(caixa.windowTitle(), "Varenta");
        EXPECT_EQ(caixa.text(), "a < b & c");
        EXPECT_EQ(caixa.textFormat(), Qt::PlainText);
        EXPECT_EQ(caixa.standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(caixa.informativeText(), "");
        apertar(caixa, QMessageBox::Ok);
    });
    plataforma::mensagem("a < b & c");
}

TEST_F(CaixasDoQt, a_recusa_de_um_arquivo_diz_embaixo_em_que_linha) {
    const PastaTemporaria pasta;
    dialogos().perguntar = [](const QString&) { return true; };
    dialogos().arquivoParaAbrir = [&](const QString&) {
        return QString::fromStdString(pasta.gravar("curto.txt", "nome\n22 x 6\n"));
    };
    clicarMenu("EnsCampo");
    aoAbrir<QMessageBox>([](QMessageBox& caixa) {
        EXPECT_EQ(caixa.text(), "O arquivo não pode ser aberto, consulte a ajuda!");
        EXPECT_EQ(caixa.informativeText(), "O arquivo termina na linha 2.");
        apertar(caixa, QMessageBox::Ok);
    });
    clicar(formEC, "Option2");
}

TEST_F(CaixasDoQt, a_pergunta_tem_Sim_e_Não) {
    for (const bool sim : {true, false}) {
        aoAbrir<QMessageBox>([=](QMessageBox& caixa) {
            EXPECT_EQ(caixa.button(QMessageBox::Yes)->text(), "&Sim");
            EXPECT_EQ(caixa.button(QMessageBox::No)->text(), "&Não");
            apertar(caixa, sim ? QMessageBox::Yes : QMessageBox::No);
        });
        EXPECT_EQ(plataforma::perguntar("Continua?"), sim);
    }
}

TEST_F(CaixasDoQt, Enter_na_pergunta_é_Sim_e_no_que_pode_fazer_mal_é_Não) {
    const auto enter = [](QMessageBox& caixa) { QTest::keyClick(&caixa, Qt::Key_Return); };
    aoAbrir<QMessageBox>(enter);
    EXPECT_TRUE(plataforma::perguntar("Continua?"));
    aoAbrir<QMessageBox>(enter);
    EXPECT_FALSE(dialogos().confirmar("Executar?"));
    aoAbrir<QMessageBox>([](QMessageBox& caixa) { apertar(caixa, QMessageBox::Yes); });
    EXPECT_TRUE(dialogos().confirmar("Executar?"));
}

TEST_F(CaixasDoQt, Esc_na_pergunta_é_Não) {
    aoAbrir<QMessageBox>([](QMessageBox& caixa) { QTest::keyClick(&caixa, Qt::Key_Escape); });
    EXPECT_FALSE(plataforma::perguntar("Continua?"));
}

TEST_F(CaixasDoQt, o_erro_de_execução_mostra_seu_texto) {
    aoAbrir<QMessageBox>([](QMessageBox& caixa) {
        EXPECT_EQ(caixa.text(), "Estouro");
        EXPECT_EQ(caixa.icon(), QMessageBox::Critical);
        caixa.accept();
    });
    plataforma::erroDeExecucao("Estouro");
}

TEST_F(CaixasDoQt, o_diálogo_para_salvar_completa_o_nome_e_não_pergunta_de_novo) {
    aoAbrir<QFileDialog>([](QFileDialog& diálogo) {
        EXPECT_EQ(diálogo.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(diálogo.defaultSuffix(), "TXT");
        EXPECT_TRUE(diálogo.testOption(QFileDialog::DontConfirmOverwrite));
        EXPECT_EQ(diálogo.nameFilters(), QStringList{"Text files (*.TXT *.txt)"});
        diálogo.reject();
    });
    EXPECT_EQ(plataforma::arquivoParaSalvar({.filtro = "Text files|*.TXT", .extensãoPadrão = "TXT"}),
              std::nullopt);
}

TEST_F(CaixasDoQt, o_filtro_escolhido_completa_o_nome) {
    aoAbrir<QFileDialog>([](QFileDialog& diálogo) {
        EXPECT_EQ(diálogo.defaultSuffix(), "CSV");
        auto& filtros = *diálogo.findChild<QComboBox*>("fileTypeCombo");
        QTest::keyClick(&filtros, Qt::Key_Down);
        EXPECT_EQ(diálogo.defaultSuffix(), "TXT");
        // Any name will do there: the ending stays.
        QTest::keyClick(&filtros, Qt::Key_Down);
        EXPECT_EQ(diálogo.selectedNameFilter(), "Todos (*)");
        EXPECT_EQ(diálogo.defaultSuffix(), "TXT");
        diálogo.reject();
    });
    EXPECT_EQ(plataforma::arquivoParaSalvar(
                  {.filtro = "Planilha CSV|*.CSV|Texto|*.TXT|Todos|*.*", .extensãoPadrão = "CSV"}),
              std::nullopt);
}

TEST_F(CaixasDoQt, o_diálogo_para_abrir_cancelado_não_dá_nome) {
    aoAbrir<QFileDialog>([](QFileDialog& diálogo) {
        EXPECT_EQ(diálogo.fileMode(), QFileDialog::ExistingFile);
        diálogo.reject();
    });
    EXPECT_EQ(plataforma::arquivoParaAbrir({.filtro = "Text files|*.TXT"}), std::nullopt);
}

TEST_F(CaixasDoQt, os_botões_próprios_do_Qt_estão_em_português) {
    QMessageBox caixa;
    caixa.setStandardButtons(QMessageBox::Cancel);
    EXPECT_EQ(caixa.button(QMessageBox::Cancel)->text().remove('&'), "Cancelar");
}

TEST_F(CaixasDoQt, as_janelas_estão_em_dia_quando_a_caixa_aparece) {
    clicarMenu("TX20B");
    form1->lblVazão.texto = "antes da caixa";
    aoAbrir<QMessageBox>([this](QMessageBox& caixa) {
        EXPECT_EQ(widget<QLabel>(form1, "lblVazão").text(), "antes da caixa");
        caixa.accept();
    });
    plataforma::mensagem("texto");
}

/// Raises what no act catches when it gets an event.
class Desastrado : public QObject {
  public:
    bool event(QEvent*) override { throw std::runtime_error{"inesperado"}; }
};

TEST_F(ComJanelas, uma_exceção_que_escapa_é_mostrada_e_não_encerra_o_programa) {
    Desastrado objeto;
    QEvent evento{QEvent::User};
    QApplication::sendEvent(&objeto, &evento);
    ASSERT_EQ(caixas.size(), 1u);
    EXPECT_EQ(caixas[0], "inesperado");
}

} // namespace
} // namespace varenta::teste
