#include "com_janelas.h"

#include "ajuste/form_ajven.h"
#include "ajuste/form_e.h"
#include "apoio/pasta_temporaria.h"
#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "campo/form_ec.h"
#include "janelas/widget_tabela.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include <algorithm>
#include <fstream>
#include <utility>

/// Tables on their way to and from a spreadsheet, by keys, clicks and the clipboard.
namespace varenta::teste {
namespace {

constexpr auto nadaCopiado = "nada foi copiado";

class Tabelas : public ComJanelas {
  protected:
    void SetUp() override {
        ComJanelas::SetUp();
        copiarFora(nadaCopiado);
    }

    WidgetTabela& tabela(const TelaBase& tela, const char* nome) const {
        return widget<WidgetTabela>(tela, nome);
    }

    /// What another program leaves in the clipboard, and what this one did.
    static void copiarFora(const QString& texto) { QApplication::clipboard()->setText(texto); }
    static QString copiado() { return QApplication::clipboard()->text(); }

    static void clicarCélula(WidgetTabela& tabela, int linha, int coluna, Qt::KeyboardModifiers teclas = {}) {
        QTest::mouseClick(tabela.viewport(), Qt::LeftButton, teclas, centro(tabela, linha, coluna));
    }

    static QPoint centro(const WidgetTabela& tabela, int linha, int coluna) {
        return tabela.visualRect(tabela.model()->index(linha, coluna)).center();
    }

    /// From the first cell to the last with the button held, a row at a time.
    static void arrastar(WidgetTabela& tabela, std::pair<int, int> de, std::pair<int, int> até) {
        auto& vista = *tabela.viewport();
        QTest::mousePress(&vista, Qt::LeftButton, {}, centro(tabela, de.first, de.second));
        for (int l = de.first; l <= até.first; ++l)
            moverMouse(vista, centro(tabela, l, até.second), Qt::LeftButton);
        QTest::mouseRelease(&vista, Qt::LeftButton, {}, centro(tabela, até.first, até.second));
    }

    static QMenu* menuAberto() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    /// The texts of the commands as one reads them.
    static QStringList comandos(const QMenu& menu) {
        QStringList textos;
        for (const auto* ação : menu.actions())
            if (!ação->isSeparator()) textos << lido(*ação);
        return textos;
    }

    static QString lido(const QAction& ação) {
        return ação.text().section(QLatin1Char{'\t'}, 0, 0).remove(QLatin1Char{'&'});
    }

    /// Picks a command of the open menu with the keyboard.
    static void escolherComando(const QString& texto) {
        auto* menu = menuAberto();
        ASSERT_NE(menu, nullptr);
        for (auto* ação : menu->actions())
            if (lido(*ação) == texto) {
                EXPECT_TRUE(ação->isEnabled()) << texto.toStdString();
                menu->setActiveAction(ação);
                QTest::keyClick(menu, Qt::Key_Return);
                return;
            }
        ADD_FAILURE() << "no command " << texto.toStdString();
    }

    static void abrirMenuComOMouse(WidgetTabela& tabela, QPoint lugar) {
        QContextMenuEvent evento{QContextMenuEvent::Mouse, lugar, tabela.viewport()->mapToGlobal(lugar)};
        QApplication::sendEvent(tabela.viewport(), &evento);
    }

    void ativar(const TelaBase& tela) const {
        janela(tela).activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(tela)));
    }

    /// What a record's text looks like in a spreadsheet.
    static QString comVírgulas(std::string texto) {
        return QString::fromStdString(texto).replace(QLatin1Char{'.'}, QLatin1Char{','});
    }

    static std::string lerBytes(const QString& caminho) {
        std::ifstream arquivo{caminho.toStdString(), std::ios::binary};
        return {std::istreambuf_iterator<char>{arquivo}, {}};
    }

    /// What a person copies of a sample file open in a spreadsheet: the readings, without their headers.
    static QString leiturasDe(const char* arquivo) {
        auto linhas = QString::fromStdString(lerBytes(exemplo(arquivo))).split(QStringLiteral("\r\n"));
        linhas.removeFirst();
        QStringList leituras;
        for (const auto& linha : linhas)
            if (!linha.isEmpty())
                leituras << linha.section(QLatin1Char{';'}, 1).replace(QLatin1Char{';'}, QLatin1Char{'\t'});
        EXPECT_GT(leituras.size(), 10);
        return leituras.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
    }

    void abrirArquivo(const TelaBase& tela, const char* opção, const char* arquivo) {
        respostas = {true};
        arquivos = {exemplo(arquivo)};
        clicar(tela, opção);
    }

    PastaTemporaria pasta;
};

class TabelaDeResultados : public Tabelas {
  protected:
    void SetUp() override {
        Tabelas::SetUp();
        clicarMenu("TX20B");
        ativar(form1);
        t = &tabela(form1, "fixoPontos");
    }

    static QString raio(std::size_t k) { return comVírgulas(form1->lblRaio[k].texto); }
    static QString intensidade(std::size_t k) { return comVírgulas(form1->lblIntensidade[k].texto); }
    static QString linha(std::size_t k) {
        return raio(k) + QLatin1Char{'\t'} + intensidade(k) + QLatin1Char{'\n'};
    }

    WidgetTabela* t = nullptr;
};

TEST_F(TabelaDeResultados, o_mouse_seleciona_e_CtrlC_copia_com_tabulações_e_vírgulas) {
    clicarCélula(*t, 1, 0);
    clicarCélula(*t, 2, 1, Qt::ShiftModifier);
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), linha(2) + linha(3));
    EXPECT_TRUE(copiado().contains(QLatin1Char{','}));
}

TEST_F(TabelaDeResultados, arrastar_seleciona_um_bloco) {
    arrastar(*t, {0, 0}, {3, 1});
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), linha(1) + linha(2) + linha(3) + linha(4));
}

TEST_F(TabelaDeResultados, o_cabeçalho_clicado_seleciona_a_linha_ou_a_coluna_inteira) {
    auto& vertical = *t->verticalHeader();
    QTest::mouseClick(vertical.viewport(), Qt::LeftButton, {},
                      {5, vertical.sectionViewportPosition(2) + vertical.sectionSize(2) / 2});
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), linha(3));

    auto& horizontal = *t->horizontalHeader();
    QTest::mouseClick(horizontal.viewport(), Qt::LeftButton, {},
                      {horizontal.sectionViewportPosition(1) + horizontal.sectionSize(1) / 2, 5});
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    QString coluna;
    for (std::size_t k = 1; k <= 22; ++k) coluna += intensidade(k) + QLatin1Char{'\n'};
    EXPECT_EQ(copiado(), coluna);
}

TEST_F(TabelaDeResultados, o_teclado_seleciona_células_linhas_colunas_e_tudo) {
    t->setFocus(Qt::TabFocusReason);
    QTest::keyClick(t, Qt::Key_Down);
    QTest::keyClick(t, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(t, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), linha(2) + linha(3));

    QTest::keyClick(t, Qt::Key_Up);
    QTest::keyClick(t, Qt::Key_Space, Qt::ShiftModifier);
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), linha(2));

    QTest::keyClick(t, Qt::Key_Space, Qt::ControlModifier);
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado().count(QLatin1Char{'\n'}), 22);
    EXPECT_EQ(copiado().section(QLatin1Char{'\n'}, 1, 1), intensidade(2));

    QTest::keyClick(t, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    QString tudo;
    for (std::size_t k = 1; k <= 22; ++k) tudo += linha(k);
    EXPECT_EQ(copiado(), tudo);
}

TEST_F(TabelaDeResultados, células_soltas_deixam_vazias_as_do_meio) {
    clicarCélula(*t, 0, 0);
    clicarCélula(*t, 2, 1, Qt::ControlModifier);
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), raio(1) + "\t\n\t" + intensidade(3) + "\n");
}

TEST_F(TabelaDeResultados, sem_seleção_a_área_de_transferência_fica_como_está) {
    t->clearSelection();
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), nadaCopiado);
}

TEST_F(TabelaDeResultados, o_menu_de_contexto_copia_com_cabeçalhos) {
    clicarCélula(*t, 4, 0);
    abrirMenuComOMouse(*t, centro(*t, 4, 0));
    ASSERT_NE(menuAberto(), nullptr);
    EXPECT_EQ(comandos(*menuAberto()),
              (QStringList{"Copiar", "Copiar com cabeçalhos", "Selecionar tudo", "Salvar tabela…"}));
    escolherComando("Copiar com cabeçalhos");
    EXPECT_EQ(copiado(), "\tRaio (m)\n5\t" + raio(5) + "\n");

    abrirMenuComOMouse(*t, centro(*t, 4, 0));
    escolherComando("Selecionar tudo");
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(copiado().startsWith("\tRaio (m)\tIntensidade (mm/h)\n1\t" + linha(1) + "2\t" + linha(2)));
    EXPECT_EQ(copiado().count(QLatin1Char{'\n'}), 23);
}

TEST_F(TabelaDeResultados, a_tecla_de_menu_e_ShiftF10_abrem_o_menu_na_célula_atual) {
    clicarCélula(*t, 1, 1);
    for (const auto& [tecla, modificador] :
         {std::pair{Qt::Key_Menu, Qt::NoModifier}, std::pair{Qt::Key_F10, Qt::ShiftModifier}}) {
        copiarFora(nadaCopiado);
        QTest::keyClick(t, tecla, modificador);
        ASSERT_NE(menuAberto(), nullptr);
        EXPECT_EQ(menuAberto()->y(), t->viewport()->mapToGlobal(centro(*t, 1, 1)).y());
        escolherComando("Copiar");
        EXPECT_EQ(copiado(), intensidade(2) + "\n");
    }
}

TEST_F(TabelaDeResultados, Esc_fecha_o_menu_sem_nada_fazer) {
    clicarCélula(*t, 1, 1);
    QTest::keyClick(t, Qt::Key_Menu);
    ASSERT_NE(menuAberto(), nullptr);
    QTest::keyClick(menuAberto(), Qt::Key_Escape);
    EXPECT_EQ(menuAberto(), nullptr);
    EXPECT_EQ(copiado(), nadaCopiado);
}

TEST_F(TabelaDeResultados, a_tabela_salva_como_CSV_tem_marca_vírgulas_e_cabeçalhos) {
    arquivos = {QString::fromStdString(pasta.caminho("pontos.csv"))};
    QTest::keyClick(t, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(caixas, std::vector<QString>{"Planilha CSV (*.CSV *.csv);;Texto com tabulações (*.TXT *.txt)"});
    std::string esperado = "\xEF\xBB\xBF;Raio (m);Intensidade (mm/h)\r\n";
    for (std::size_t k = 1; k <= 22; ++k)
        esperado +=
            std::to_string(k) + ";" + raio(k).toStdString() + ";" + intensidade(k).toStdString() + "\r\n";
    EXPECT_EQ(pasta.bytes("pontos.csv"), esperado);
}

TEST_F(TabelaDeResultados, a_tabela_salva_como_texto_tem_tabulações_e_pontos) {
    arquivos = {QString::fromStdString(pasta.caminho("pontos.TXT"))};
    abrirMenuComOMouse(*t, centro(*t, 0, 0));
    escolherComando("Salvar tabela…");
    std::string esperado = "\tRaio (m)\tIntensidade (mm/h)\r\n";
    for (std::size_t k = 1; k <= 22; ++k)
        esperado += std::to_string(k) + "\t" + form1->lblRaio[k].texto + "\t" +
                    form1->lblIntensidade[k].texto + "\r\n";
    EXPECT_EQ(pasta.bytes("pontos.TXT"), esperado);
}

TEST_F(TabelaDeResultados, um_arquivo_que_existe_só_é_substituído_com_um_Sim) {
    const auto caminho = QString::fromStdString(pasta.gravar("pontos.csv", "antes"));
    arquivos = {caminho, caminho};
    respostas = {false, true};
    QTest::keyClick(t, Qt::Key_S, Qt::ControlModifier);
    ASSERT_EQ(caixas.size(), 2u);
    EXPECT_EQ(caixas[1], "O arquivo pontos.csv já existe. Deseja substituí-lo?");
    EXPECT_EQ(pasta.bytes("pontos.csv"), "antes");
    QTest::keyClick(t, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(pasta.bytes("pontos.csv").starts_with("\xEF\xBB\xBF"));
}

TEST_F(TabelaDeResultados, um_diálogo_cancelado_não_grava_e_uma_falha_é_contada) {
    arquivos = {std::nullopt, QString::fromStdString(pasta.caminho("falta/pontos.csv"))};
    QTest::keyClick(t, Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(t, Qt::Key_S, Qt::ControlModifier);
    ASSERT_EQ(caixas.size(), 3u);
    EXPECT_EQ(caixas[2], "O arquivo não pôde ser salvo: o arquivo ou a pasta não existe!");
    EXPECT_TRUE(pasta.nomes().empty());
}

TEST_F(TabelaDeResultados, os_nomes_que_não_são_números_não_ganham_vírgula) {
    clicar(form1, "Command3");
    clicar(form7, "Command2");
    clicar(form7, "cmdUniformidade");
    auto& espaçamentos = tabela(form4, "flexGrid_A");
    ativar(form4);
    espaçamentos.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&espaçamentos, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&espaçamentos, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const auto& grade = form4->flexGrid_A;
    EXPECT_EQ(copiado().count(QLatin1Char{'\n'}), grade.linhas);
    // The header row as it stands, the first row of data with commas.
    EXPECT_TRUE(copiado().startsWith(QString::fromStdString(grade.célula(0, 0)).trimmed() + "\t"));
    EXPECT_TRUE(copiado().section(QLatin1Char{'\n'}, 1, 1).contains(comVírgulas(grade.célula(1, 2))));
}

TEST_F(Tabelas, toda_tabela_do_programa_se_seleciona_se_copia_e_se_salva) {
    int tabelas = 0;
    for (const auto& modelo : janelasDoPrograma()) {
        modelo.tela->mostrar();
        janelas->atualizar();
        for (auto* t : janela(*modelo.tela).findChildren<WidgetTabela*>()) {
            SCOPED_TRACE(modelo.tela->nome() + "." + t->objectName().toStdString());
            ++tabelas;
            const int linhas = t->model()->rowCount(), colunas = t->model()->columnCount();
            ASSERT_GT(linhas * colunas, 0);
            EXPECT_TRUE(t->toolTip().contains("Ctrl+C"));
            QTest::keyClick(t, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
            EXPECT_EQ(copiado().count(QLatin1Char{'\n'}), linhas);
            EXPECT_EQ(copiado().count(QLatin1Char{'\t'}), linhas * (colunas - 1));
            QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
            EXPECT_EQ(copiado().count(QLatin1Char{'\n'}), linhas + 1);
            const auto nome = std::to_string(tabelas) + ".csv";
            arquivos = {QString::fromStdString(pasta.caminho(nome))};
            QTest::keyClick(t, Qt::Key_S, Qt::ControlModifier);
            EXPECT_TRUE(pasta.bytes(nome).starts_with("\xEF\xBB\xBF"));
        }
    }
    EXPECT_GE(tabelas, 21);
}

/// The radial test with rows for the whole sample.
class PlanilhaDeEntrada : public Tabelas {
  protected:
    void SetUp() override {
        Tabelas::SetUp();
        clicarMenu("Ou_aspB");
        ativar(perfilForm);
        apagarEDigitar(perfilForm, "Text5", "16");
        t = &tabela(perfilForm, "flexGrid");
        linha = &widget<QLineEdit>(perfilForm, "Text6");
    }

    void colar(const QString& texto) const {
        copiarFora(texto);
        QTest::keyClick(linha, Qt::Key_V, Qt::ControlModifier);
    }

    static QString célula(int l, int c) { return QString::fromStdString(perfilForm->flexGrid.célula(l, c)); }

    WidgetTabela* t = nullptr;
    QLineEdit* linha = nullptr;
};

TEST_F(PlanilhaDeEntrada, um_bloco_colado_preenche_a_partir_da_célula_clicada) {
    clicarCélula(*t, 1, 0);
    colar("2,5\t6,2\r\n4\t5,8\r\n");
    EXPECT_EQ(caixas, std::vector<QString>{});
    EXPECT_EQ(célula(1, 1), "");
    EXPECT_EQ(célula(2, 1), "2.50");
    EXPECT_EQ(célula(2, 2), "6.200");
    EXPECT_EQ(célula(3, 1), "4.00");
    EXPECT_EQ(célula(3, 2), "5.800");
    EXPECT_EQ(widget<QLabel>(perfilForm, "lblPreenchidas").text(), "Células preenchidas: 4 de 32");
    // The window shows it, back at the first cell of the block.
    EXPECT_EQ(t->model()->index(2, 1).data(), "5.800");
    EXPECT_EQ(linha->text(), "2.50");
    EXPECT_EQ(linha->selectedText(), "2.50");
    EXPECT_EQ(janela(perfilForm).focusWidget(), linha);
}

TEST_F(PlanilhaDeEntrada, todas_as_formas_de_planilha_dão_o_mesmo) {
    for (const auto* texto :
         {"1.5\t2\n3\t4.25", "1,5\t2\n3\t4,25\n", "1,5;2\r\n3;4,25\r\n", "1.5;2\n3;4.25"}) {
        clicar(perfilForm, "Command1");
        clicarCélula(*t, 0, 0);
        colar(texto);
        EXPECT_EQ(célula(1, 1) + célula(1, 2) + célula(2, 1) + célula(2, 2), "1.502.0003.004.250") << texto;
    }
}

TEST_F(PlanilhaDeEntrada, um_bloco_que_não_serve_é_recusado_inteiro_e_a_mensagem_diz_a_célula) {
    clicarCélula(*t, 0, 0);
    colar("1\t2\r\n");
    clicarCélula(*t, 14, 0);
    colar("1\t2\r\n3\t4\r\n5\t6\r\n");
    clicarCélula(*t, 0, 0);
    colar("9\t9\r\n9\tseco\r\n");
    colar("9\t9\r\n\t9\r\n");
    colar("9\t1.234,5\r\n");
    EXPECT_EQ(caixas, (std::vector<QString>{
                          "Nada foi colado: o bloco, de 3 x 2 células, não cabe a partir da célula 15 : "
                          "Distância - r (m)!",
                          "Nada foi colado: o valor da célula 2 : Intensidade - i (mm/h) não é um número!",
                          "Nada foi colado: o valor da célula 2 : Distância - r (m) está vazio!",
                          "Nada foi colado: o valor da célula 1 : Intensidade - i (mm/h) não é um número!"}));
    EXPECT_EQ(célula(1, 1), "1.00");
    EXPECT_EQ(célula(1, 2), "2.000");
    EXPECT_EQ(widget<QLabel>(perfilForm, "lblPreenchidas").text(), "Células preenchidas: 2 de 32");
}

TEST_F(PlanilhaDeEntrada, um_valor_só_entra_na_linha_e_não_na_célula) {
    clicarCélula(*t, 0, 0);
    colar("12,5\r\n");
    EXPECT_EQ(linha->text(), "12.5");
    EXPECT_EQ(célula(1, 1), "");
    QTest::keyClick(linha, Qt::Key_Return);
    EXPECT_EQ(célula(1, 1), "12.50");
}

TEST_F(PlanilhaDeEntrada, o_menu_da_grade_cola_também_um_valor_só) {
    clicarCélula(*t, 2, 1);
    copiarFora("0,75");
    abrirMenuComOMouse(*t, centro(*t, 2, 1));
    ASSERT_NE(menuAberto(), nullptr);
    EXPECT_EQ(comandos(*menuAberto()),
              (QStringList{"Copiar", "Copiar com cabeçalhos", "Colar", "Selecionar tudo", "Salvar tabela…"}));
    escolherComando("Colar");
    EXPECT_EQ(célula(3, 2), "0.750");
}

TEST_F(PlanilhaDeEntrada, o_menu_da_linha_cola_o_bloco_e_leva_aos_comandos_da_planilha) {
    clicarCélula(*t, 0, 0);
    copiarFora("1\t2\n");
    QTest::keyClick(linha, Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = menuAberto();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(lido(*menu->actions().back()), "Planilha");
    EXPECT_EQ(comandos(*menu->actions().back()->menu()).count("Salvar tabela…"), 1);
    escolherComando("Colar");
    EXPECT_EQ(célula(1, 2), "2.000");

    copiarFora("7,5");
    QContextMenuEvent evento{QContextMenuEvent::Mouse, {2, 2}, linha->mapToGlobal(QPoint{2, 2})};
    QApplication::sendEvent(linha, &evento);
    escolherComando("Colar");
    EXPECT_EQ(linha->text(), "7.5");
    EXPECT_EQ(célula(1, 1), "1.00");
}

TEST_F(PlanilhaDeEntrada, o_botão_direito_leva_à_célula_e_conserva_a_seleção_que_acerta) {
    clicarCélula(*t, 0, 0);
    QTest::mouseClick(t->viewport(), Qt::RightButton, {}, centro(*t, 3, 1));
    EXPECT_EQ(perfilForm->flexGrid.linhaAtual, 4);
    EXPECT_EQ(perfilForm->flexGrid.colunaAtual, 2);
    arrastar(*t, {0, 0}, {2, 1});
    QTest::mouseClick(t->viewport(), Qt::RightButton, {}, centro(*t, 2, 1));
    EXPECT_EQ(perfilForm->flexGrid.linhaAtual, 1);
    EXPECT_EQ(t->selectionModel()->selectedIndexes().size(), 6);
}

TEST_F(PlanilhaDeEntrada, um_bloco_arrastado_fica_selecionado_e_se_copia_da_linha) {
    clicarCélula(*t, 0, 0);
    colar("1\t2,5\n3\t4\n");
    arrastar(*t, {0, 0}, {1, 1});
    EXPECT_EQ(perfilForm->flexGrid.linhaAtual, 1);
    moverMouse(janela(perfilForm), {3, 3});
    EXPECT_EQ(t->selectionModel()->selectedIndexes().size(), 4);
    EXPECT_EQ(janela(perfilForm).focusWidget(), linha);
    QTest::keyClick(linha, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), "1,00\t2,500\n3,00\t4,000\n");
    // Who types on has done with the block.
    QTest::keyClick(linha, Qt::Key_9);
    EXPECT_EQ(t->selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(PlanilhaDeEntrada, as_setas_com_Ctrl_e_Shift_estendem_a_seleção_da_linha) {
    clicarCélula(*t, 0, 0);
    colar("1\t2\n3\t4\n5\t6\n");
    for (const auto tecla : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up})
        QTest::keyClick(linha, tecla, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(linha, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(copiado(), "No\tDistância - r (m)\tIntensidade - i (mm/h)\n1\t1,00\t2,000\n2\t3,00\t4,000\n");
    QTest::keyClick(linha, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(linha, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(linha, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), "1,00\n3,00\n");
}

TEST_F(PlanilhaDeEntrada, CtrlC_na_linha_copia_a_célula_ou_o_que_se_digitou) {
    clicarCélula(*t, 0, 0);
    colar("1,5\t2\n");
    QTest::keyClick(linha, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), "1,50\n");
    linha->setSelection(0, 1);
    QTest::keyClick(linha, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), "1");
}

TEST_F(PlanilhaDeEntrada, CtrlA_seleciona_o_texto_da_linha_e_de_novo_a_planilha) {
    clicarCélula(*t, 0, 0);
    colar("1,5\t2\n");
    linha->deselect();
    QTest::keyClick(linha, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(linha->selectedText(), "1.50");
    EXPECT_EQ(t->selectionModel()->selectedIndexes().size(), 1);
    QTest::keyClick(linha, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(t->selectionModel()->selectedIndexes().size(), 32);
}

TEST_F(PlanilhaDeEntrada, sem_número_de_dados_nada_é_colado) {
    clicarCélula(*t, 0, 0);
    perfilForm->Text5.texto = "x";
    janelas->atualizar();
    colar("1\t2\n");
    EXPECT_EQ(caixas, std::vector<QString>{"Insira valores numéricos!"});
    EXPECT_EQ(célula(1, 1), "");
}

TEST_F(PlanilhaDeEntrada, um_arquivo_aberto_se_copia_e_se_salva_mas_não_recebe_nada) {
    abrirArquivo(perfilForm, "Option2", "ensaio_radial_mmh.txt");
    caixas.clear();
    clicarCélula(*t, 1, 0);
    EXPECT_EQ(QApplication::focusWidget(), t);
    clicarCélula(*t, 2, 1, Qt::ShiftModifier);
    moverMouse(janela(perfilForm), {3, 3});
    QTest::keyClick(t, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado(), "4,00\t5,800\n6,00\t5,900\n");
    copiarFora("9\t9\n");
    QTest::keyClick(t, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(célula(2, 1), "4.00");
    abrirMenuComOMouse(*t, centro(*t, 1, 0));
    EXPECT_FALSE(comandos(*menuAberto()).contains("Colar"));
    menuAberto()->close();
    EXPECT_EQ(caixas, std::vector<QString>{});
    // Where nothing is typed the table itself is reached by the keyboard.
    EXPECT_TRUE(t->focusPolicy() & Qt::TabFocus);
    clicar(perfilForm, "Option1");
    EXPECT_FALSE(t->focusPolicy() & Qt::TabFocus);
}

TEST_F(PlanilhaDeEntrada, dez_mil_linhas_são_coladas_sem_demora) {
    apagarEDigitar(perfilForm, "Text5", "10000");
    clicarCélula(*t, 0, 0);
    QString texto;
    for (int k = 1; k <= 10000; ++k) texto += QString::number(k) + "\t0,5\n";
    QElapsedTimer relógio;
    relógio.start();
    colar(texto);
    EXPECT_LT(relógio.elapsed(), 5000);
    EXPECT_EQ(célula(10000, 1), "10000.00");
    EXPECT_EQ(célula(10000, 2), "0.500");
}

TEST_F(Tabelas, do_papel_à_simulação_com_o_ensaio_radial_colado) {
    clicarMenu("Ou_aspB");
    apagarEDigitar(perfilForm, "Text7", "CS-40");
    apagarEDigitar(perfilForm, "Text2", "45");
    apagarEDigitar(perfilForm, "Text8", "24");
    apagarEDigitar(perfilForm, "Text1", "20,5");
    apagarEDigitar(perfilForm, "Text5", "16");
    clicarCélula(tabela(perfilForm, "flexGrid"), 0, 0);
    copiarFora(leiturasDe("colar_ensaio_radial.csv"));
    QTest::keyClick(&widget<QLineEdit>(perfilForm, "Text6"), Qt::Key_V, Qt::ControlModifier);
    const auto colados = perfilForm->flexGrid.células;
    clicar(perfilForm, "Command8");
    EXPECT_EQ(caixas, std::vector<QString>{});
    EXPECT_EQ(widget<QLabel>(perfil, "Label17").text(), "32.50");
    clicar(perfil, "Command6");
    apagarEDigitar(form7, "Text1", "62,5");
    apagarEDigitar(form7, "Combo2", "1,5");
    clicar(form7, "Command2");
    EXPECT_EQ(caixas, std::vector<QString>{});
    EXPECT_EQ(form7->Label23.texto, "Velocidade = 62.5 m/h");

    // And out again: the whole profile in the clipboard.
    auto& resultado = tabela(form7, "flexA");
    QTest::keyClick(&resultado, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&resultado, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copiado().count(QLatin1Char{'\n'}), form7->flexA.linhas - 1);
    EXPECT_GT(form7->flexA.linhas, 40);
    EXPECT_TRUE(copiado().startsWith(comVírgulas(form7->flexA.célula(1, 1)) + "\t"));

    // The file of the same test fills the grid with the same cells.
    clicar(form7, "Command7");
    perfilForm.descarregar();
    perfilForm.mostrar();
    janelas->atualizar();
    abrirArquivo(perfilForm, "Option2", "ensaio_radial_mmh.txt");
    EXPECT_EQ(perfilForm->flexGrid.células, colados);
}

TEST_F(Tabelas, o_ensaio_de_campo_colado_é_o_do_arquivo) {
    clicarMenu("PerfRad");
    apagarEDigitar(formEC, "Combo1", "3");
    apagarEDigitar(formEC, "Combo4", "2,0");
    apagarEDigitar(formEC, "Combo3", "18");
    QTest::keyClick(&widget(formEC, "Combo3"), Qt::Key_Return);
    clicarCélula(tabela(formEC, "flex_A"), 0, 0);
    copiarFora(leiturasDe("colar_ensaio_movel.csv"));
    QTest::keyClick(&widget<QLineEdit>(formEC, "Text5"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(caixas, std::vector<QString>{});
    EXPECT_EQ(widget<QLabel>(formEC, "lblPreenchidas").text(), "Células preenchidas: 108 de 108");
    const auto colados = formEC->flex_A.células;
    abrirArquivo(formEC, "Option2", "ensaio_movel_mm.txt");
    EXPECT_EQ(formEC->flex_A.células, colados);

    // What is saved from the file's grid is the sample that was pasted.
    arquivos = {QString::fromStdString(pasta.caminho("movel.csv"))};
    QTest::keyClick(&tabela(formEC, "flex_A"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(pasta.bytes("movel.csv"), lerBytes(exemplo("colar_ensaio_movel.csv")));
}

TEST_F(Tabelas, o_ensaio_em_malha_colado_é_o_do_arquivo) {
    clicarMenu("TX20c");
    clicar(form_AjVen, "Command4");
    apagarEDigitar(form_E1, "Combo2", "18");
    clicarCélula(tabela(form_E1, "flex_A"), 0, 0);
    copiarFora(leiturasDe("colar_ensaio_malha.csv"));
    QTest::keyClick(&widget<QLineEdit>(form_E1, "Text5"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(caixas, std::vector<QString>{});
    const auto coladas = form_E1->flex_A.células;
    EXPECT_EQ(std::ranges::count(coladas, std::string{}), 1); // the corner
    abrirArquivo(form_E1, "Option5", "ensaio_malha_1.txt");
    EXPECT_EQ(form_E1->flex_A.células, coladas);
    arquivos = {QString::fromStdString(pasta.caminho("malha.csv"))};
    QTest::keyClick(&tabela(form_E1, "flex_A"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(pasta.bytes("malha.csv"), lerBytes(exemplo("colar_ensaio_malha.csv")));

    // A refused cell is named by its headers, without the blanks that widen them.
    caixas.clear();
    clicar(form_E1, "Option2");
    clicarCélula(tabela(form_E1, "flex_A"), 0, 0);
    copiarFora("1\tx\n");
    QTest::keyClick(&widget<QLineEdit>(form_E1, "Text5"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(caixas,
              std::vector<QString>{"Nada foi colado: o valor da célula Li1 = 51.0 m : Co2 = -45.0 m não é "
                                   "um número!"});
}

} // namespace
} // namespace varenta::teste
