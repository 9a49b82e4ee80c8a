#include "com_janelas.h"

#include "comum/ampulheta.h"
#include "comum/atos.h"
#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"
#include "simulacao/form_grafven.h"
#include "uniformidade/form5.h"
#include "uniformidade/form8.h"
#include "uniformidade/form9.h"
#include "uniformidade/form_graffinal.h"

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>

#include <set>

/// The strip, its table, its maps and its efficiencies, by clicks and keys.
namespace varenta::teste {
namespace {

void clicarPorAto(TelaBase& tela, const char* nome) {
    atos::clicar({&tela, tela.achar(nome, std::nullopt).value()});
}

/// The texts of a strip of 400 m under the defaults of the TX20, overlapped at 72 m, by the acts alone.
std::vector<std::string> textosPelosAtos() {
    iniciarSistema();
    clicarPorAto(form3, "TX20B");
    clicarPorAto(form1, "Command3");
    clicarPorAto(form7, "Command2");
    clicarPorAto(form7, "cmdUniformidade");
    clicarPorAto(form4, "Command8");
    atos::escolher({&form4, form4.achar("cmbEspaçamento", std::nullopt).value()}, "72");
    clicarPorAto(form4, "Command9");
    clicarPorAto(form4, "Command5");
    atos::digitar({&form5, form5.achar("txtMan", std::nullopt).value()}, "400");
    clicarPorAto(form5, "Command10");
    const auto& f = *form5.operator->();
    return {f.Label2.texto, f.Label58.texto, f.Label1.texto,  f.Label3.texto, f.Label60.texto,
            f.Label4.texto, f.Label6.texto,  f.Label63.texto, f.Label8.texto};
}

class JanelasDaFaixa : public ComJanelas {
  protected:
    void abrirForm7() const {
        clicarMenu("TX20B");
        clicar(form1, "Command3");
        clicar(form7, "Command2");
    }

    void abrirForm5() const {
        abrirForm7();
        clicar(form7, "cmdUniformidade");
        clicar(form4, "Command8");
        escolher(form4, "cmbEspaçamento", "72");
        clicar(form4, "Command9");
        clicar(form4, "Command5");
    }

    void calcular() const {
        abrirForm5();
        clicar(form5, "Command10");
    }

    /// With the keys, from the item that is set up or down to the one asked for.
    void escolher(const TelaBase& tela, const char* nome, const QString& item) const {
        auto& caixa = widget<QComboBox>(tela, nome);
        caixa.setFocus(Qt::TabFocusReason);
        for (int passos = caixa.count(); passos > 0 && caixa.currentText() != item; --passos)
            QTest::keyClick(&caixa, caixa.findText(item) < caixa.currentIndex() ? Qt::Key_Up : Qt::Key_Down);
        ASSERT_EQ(caixa.currentText(), item);
    }

    QString rótulo(const TelaBase& tela, const char* nome) const { return widget<QLabel>(tela, nome).text(); }
};

TEST_F(JanelasDaFaixa, o_mapa_do_plano_abre_sobre_Form7_e_volta_a_ela) {
    abrirForm7();
    clicar(form7, "Command3");
    EXPECT_TRUE(janela(form_grafVen).isVisible());
    EXPECT_FALSE(janela(form7).isEnabled());
    EXPECT_EQ(janela(form_grafVen).windowTitle(), "Precipitações Estimadas");
    EXPECT_TRUE(rótulo(form_grafVen, "Label7").startsWith("Maior Precipitação: "));
    clicar(form_grafVen, "Command1");
    EXPECT_EQ(janelas->janela(form_grafVen), nullptr);
    EXPECT_TRUE(janela(form7).isVisible());
    EXPECT_TRUE(janela(form7).isEnabled());
    clicar(form7, "Command3");
    janela(form_grafVen).close();
    EXPECT_FALSE(form_grafVen.carregada());
    EXPECT_TRUE(janela(form7).isEnabled());
}

TEST_F(JanelasDaFaixa, o_mapa_do_plano_mostra_as_cores_dos_valores) {
    abrirForm7();
    // A wind across the lane, so that the sides differ.
    for (const auto* barra : {"HScroll1", "HScroll2"})
        for (int k = 0; k < 5; ++k) QTest::keyClick(&widget(form7, barra), Qt::Key_PageUp);
    clicar(form7, "Command2");
    clicar(form7, "Command3");
    auto& mapa = widget<WidgetDesenho>(form_grafVen, "Picture1");
    const auto imagem = mapa.grab().toImage();
    const auto& mosaico = std::get<Mosaico>(form_grafVen->Picture1.traços.front());
    // Cells in the middle between two lines of the grid, away from the cross and the arrow.
    std::set<Cor> vistas;
    for (const std::size_t linha : {15u, 85u, 115u, 150u})
        for (const std::size_t coluna : {50u, 115u}) {
            const auto n = linha * mosaico.colunas + coluna;
            const auto caixa = mosaico.caixa(n);
            const auto lugar =
                mapa.transformação().map(QPointF{(caixa.x1 + caixa.x2) / 2, (caixa.y1 + caixa.y2) / 2});
            const auto cor = imagem.pixelColor(static_cast<int>(lugar.x()), static_cast<int>(lugar.y()));
            const auto esperada = mosaico.cores[n];
            vistas.insert(esperada);
            EXPECT_EQ(cor,
                      QColor::fromRgb(static_cast<int>(esperada & 255), static_cast<int>(esperada >> 8 & 255),
                                      static_cast<int>(esperada >> 16)))
                << linha << ", " << coluna;
        }
    EXPECT_GT(vistas.size(), 4u);
}

TEST_F(JanelasDaFaixa, por_cliques_e_teclas_dá_o_que_os_atos_dão) {
    const auto esperado = textosPelosAtos();
    iniciarSistema();
    janelas->atualizar();
    abrirForm5();
    EXPECT_FALSE(janela(form4).isVisible());
    EXPECT_EQ(janela(form5).windowTitle(),
              "Uniformidade ao Longo da Faixa Irrigada com Vento - Aspersor KELMO-TX 20");
    apagarEDigitar(form5, "txtMan", "400");
    clicar(form5, "Command10");
    std::vector<std::string> mostrados;
    for (const auto* nome :
         {"Label2", "Label58", "Label1", "Label3", "Label60", "Label4", "Label6", "Label63", "Label8"})
        mostrados.push_back(rótulo(form5, nome).toStdString());
    EXPECT_EQ(mostrados, esperado);
    EXPECT_FALSE(mostrados.front().empty());
    EXPECT_TRUE(caixas.empty());
}

TEST_F(JanelasDaFaixa, a_tabela_as_eficiências_e_o_mapa_abrem_e_fecham_sobre_Form5) {
    calcular();
    clicar(form5, "Command3");
    EXPECT_TRUE(janela(form8).isVisible());
    EXPECT_EQ(janela(form8).windowTitle(), "Distribuição de Água na Faixa Irrigada - Aspersor KELMO-TX 20");
    EXPECT_EQ(rótulo(form8, "Label1"), "CUC = " + rótulo(form5, "Label6") + " %");
    clicar(form8, "Command3");
    EXPECT_FALSE(janela(form8).isVisible());

    clicar(form5, "Command12");
    EXPECT_TRUE(janela(form9).isVisible());
    EXPECT_GT(widget<WidgetTabela>(form9, "flexA").model()->rowCount(), 1);
    clicar(form9, "Command3");
    EXPECT_FALSE(janela(form9).isVisible());

    clicar(form5, "Command15");
    EXPECT_TRUE(janela(form_grafFinal).isVisible());
    EXPECT_EQ(rótulo(form_grafFinal, "Label16"), "CUC - Toda: " + rótulo(form5, "Label6") + "%");
    clicar(form_grafFinal, "Command1");
    EXPECT_EQ(janelas->janela(form_grafFinal), nullptr);

    EXPECT_TRUE(janela(form5).isVisible());
    clicar(form5, "Command5");
    EXPECT_TRUE(janela(form4).isVisible());
    for (const auto* tela :
         {static_cast<TelaBase*>(&form5), static_cast<TelaBase*>(&form8), static_cast<TelaBase*>(&form9)})
        EXPECT_EQ(janelas->janela(*tela), nullptr) << tela->nome();
    EXPECT_TRUE(caixas.empty());
}

TEST_F(JanelasDaFaixa, um_comprimento_digitado_desabilita_os_resultados_e_muda_o_esboço) {
    calcular();
    for (const auto* nome : {"Command3", "Command12", "Command15"})
        EXPECT_TRUE(widget(form5, nome).isEnabled()) << nome;
    const auto antes = widget<WidgetDesenho>(form5, "Picture3").grab().toImage();
    apagarEDigitar(form5, "txtMan", "900");
    for (const auto* nome : {"Command3", "Command12", "Command15"})
        EXPECT_FALSE(widget(form5, nome).isEnabled()) << nome;
    EXPECT_NE(widget<WidgetDesenho>(form5, "Picture3").grab().toImage(), antes);
    EXPECT_EQ(rótulo(form5, "lblCc"), "Cc = 900 m");
}

TEST_F(JanelasDaFaixa, outro_valor_pede_o_comprimento_e_a_parada_o_tempo) {
    abrirForm5();
    EXPECT_FALSE(widget(form5, "txtOutro").isEnabled());
    EXPECT_FALSE(widget(form5, "chkParada").isEnabled());
    escolher(form5, "Combo1", "Outro Valor");
    ASSERT_EQ(caixas.size(), 1u);
    EXPECT_EQ(caixas[0],
              "Insira um valor de comprimento inicial (Ci) de faixa, entre 0 e o raio de alcance!");
    EXPECT_EQ(janela(form5).focusWidget(), &widget<QLineEdit>(form5, "txtOutro"));
    QTest::keyClicks(&widget(form5, "txtOutro"), "25");
    EXPECT_EQ(rótulo(form5, "lblCi"), "Ci = 25 m");
    EXPECT_FALSE(widget(form5, "lblTpi").isEnabled());
    clicar(form5, "chkParada");
    ASSERT_EQ(caixas.size(), 2u);
    // 25 m at 50 m/h.
    EXPECT_EQ(caixas[1], "Insira um valor de tempo de parada! O programa sugere: 30 min!");
    EXPECT_TRUE(widget<QCheckBox>(form5, "chkParada").isChecked());
    EXPECT_TRUE(widget(form5, "lblTpi").isEnabled());
    EXPECT_EQ(janela(form5).focusWidget(), &widget<QLineEdit>(form5, "txtParada"));
}

TEST_F(JanelasDaFaixa, as_leituras_seguem_o_mouse_sobre_os_gráficos) {
    calcular();
    clicar(form5, "Command12");
    const struct {
        const TelaBase& tela;
        const char *desenho, *x, *y;
    } gráficos[] = {{form5, "Picture2", "lblEf", "lblI"},
                    {form9, "Picture1", "lblAD", "lblIr1"},
                    {form9, "Picture2", "lblIr2", "lblEf"}};
    for (const auto& [tela, nome, x, y] : gráficos) {
        auto& desenho = widget<WidgetDesenho>(tela, nome);
        const QRect quadro = desenho.quadroDosEixos();
        moverMouse(desenho, QPointF{quadro.topLeft()});
        const auto doCanto = rótulo(tela, x) + rótulo(tela, y);
        moverMouse(desenho, QPointF{quadro.center()});
        EXPECT_NE(rótulo(tela, x) + rótulo(tela, y), doCanto) << nome;
        EXPECT_EQ(janela(tela).cursor().shape(), Qt::CrossCursor) << nome;
        moverMouse(desenho, {1, 1});
        EXPECT_EQ(rótulo(tela, x) + rótulo(tela, y), "") << nome;
        EXPECT_EQ(janela(tela).cursor().shape(), Qt::ArrowCursor) << nome;
    }
}

TEST_F(JanelasDaFaixa, as_duas_legendas_dos_mapas_alinham_com_eles) {
    calcular();
    clicar(form5, "Command15");
    form7.mostrar();
    janelas->atualizar();
    clicar(form7, "Command3");
    for (const auto* tela :
         {static_cast<TelaBase*>(&form_grafVen), static_cast<TelaBase*>(&form_grafFinal)}) {
        const auto& mapa = widget<WidgetDesenho>(*tela, "Picture1");
        const auto& legenda = widget<WidgetDesenho>(*tela, "Picture2");
        const auto alturas = [](const WidgetDesenho& desenho) {
            const QRect quadro = desenho.quadroDosEixos();
            return std::pair{desenho.mapTo(desenho.window(), quadro.topLeft()).y(), quadro.height()};
        };
        EXPECT_NEAR(alturas(mapa).first, alturas(legenda).first, 1) << tela->nome();
        EXPECT_NEAR(alturas(mapa).second, alturas(legenda).second, 2) << tela->nome();
    }
}

/// The largest table there is: the longest lane at the closest collectors.
class TabelaDaFaixa : public JanelasDaFaixa {
  protected:
    void SetUp() override {
        JanelasDaFaixa::SetUp();
        clicarMenu("TX30B");
        form1->hsbPressão.valor = 70;
        clicar(form1, "Command3");
        escolher(form7, "Combo2", "1.5");
        clicar(form7, "Command2");
        clicar(form7, "cmdUniformidade");
        clicar(form4, "Command8");
        escolher(form4, "cmbEspaçamento", "90");
        clicar(form4, "Command9");
        clicar(form4, "Command5");
        apagarEDigitar(form5, "txtMan", "999");
        clicar(form5, "Command10");
    }
};

TEST_F(TabelaDaFaixa, abre_logo_e_sem_um_widget_por_célula) {
    QElapsedTimer relógio;
    relógio.start();
    clicar(form5, "Command3");
    QCoreApplication::processEvents();
    auto& tabela = widget<WidgetTabela>(form8, "flexGrid_C");
    tabela.grab();
    // Measuring or making each of the 45,000 cells takes far longer.
    EXPECT_LT(relógio.elapsed(), 1000);
    EXPECT_GT(tabela.model()->rowCount(), 740);
    EXPECT_EQ(tabela.model()->columnCount(), 60);
    EXPECT_TRUE(tabela.viewport()->findChildren<QWidget*>().empty());
    EXPECT_NE(tabela.horizontalHeader()->sectionResizeMode(0), QHeaderView::ResizeToContents);
}

TEST_F(TabelaDaFaixa, tem_as_posições_nos_cabeçalhos_que_ficam_à_vista) {
    clicar(form5, "Command3");
    auto& tabela = widget<WidgetTabela>(form8, "flexGrid_C");
    const auto* modelo = tabela.model();
    EXPECT_EQ(modelo->headerData(0, Qt::Horizontal), "0.75  m");
    EXPECT_EQ(modelo->headerData(59, Qt::Horizontal), "89.25  m");
    EXPECT_EQ(modelo->headerData(0, Qt::Vertical).toString().toStdString(), form8->flexGrid_C.célula(1, 0));
    tabela.scrollToBottom();
    EXPECT_TRUE(tabela.horizontalHeader()->isVisible());
    EXPECT_TRUE(tabela.verticalHeader()->isVisible());
    EXPECT_EQ(tabela.rowAt(tabela.viewport()->height() - 1), modelo->rowCount() - 1);
}

TEST_F(TabelaDaFaixa, tem_lugar_para_cada_número_à_direita) {
    clicar(form5, "Command3");
    auto& tabela = widget<WidgetTabela>(form8, "flexGrid_C");
    const auto* modelo = tabela.model();
    for (int coluna = 0; coluna < modelo->columnCount(); ++coluna) {
        int maior = tabela.horizontalHeader()->sectionSizeHint(coluna);
        for (int linha = 0; linha < modelo->rowCount(); ++linha)
            maior = std::max(maior, tabela.fontMetrics().horizontalAdvance(
                                        modelo->index(linha, coluna).data().toString()));
        EXPECT_GE(tabela.columnWidth(coluna), maior) << coluna;
    }
    EXPECT_EQ(modelo->index(0, 0).data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
              Qt::AlignRight | Qt::AlignVCenter);
}

class PonteiroDeEspera : public JanelasDaFaixa {
  protected:
    static bool espera() {
        const auto* cursor = QGuiApplication::overrideCursor();
        return cursor && cursor->shape() == Qt::WaitCursor;
    }
};

TEST_F(PonteiroDeEspera, dura_o_trabalho_e_volta_depois) {
    abrirForm5();
    {
        const Ampulheta ampulheta{form5};
        EXPECT_TRUE(espera());
        {
            const Ampulheta outra{form7};
            EXPECT_TRUE(espera());
        }
        EXPECT_TRUE(espera());
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(PonteiroDeEspera, não_fica_depois_dos_cálculos) {
    abrirForm7();
    clicar(form7, "Command3");
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    clicar(form_grafVen, "Command1");
    clicar(form7, "cmdUniformidade");
    clicar(form4, "Command8");
    clicar(form4, "Command9");
    clicar(form4, "Command5");
    for (const auto* nome : {"Command10", "Command12", "Command15"}) {
        clicar(form5, nome);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << nome;
        EXPECT_EQ(janela(form5).cursor().shape(), Qt::ArrowCursor) << nome;
    }
}

TEST_F(PonteiroDeEspera, já_se_foi_quando_um_erro_é_mostrado) {
    calcular();
    std::vector<bool> esperas;
    dialogos().erroDeExecucao = [&](const QString& texto) {
        EXPECT_EQ(texto, "Divisão por zero");
        esperas.push_back(espera());
    };
    // Behind the screen's back: the travel lane takes forever.
    form7->Text1.texto = "0";
    clicar(form5, "Command12");
    EXPECT_EQ(esperas, std::vector{false});
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(janela(form5).cursor().shape(), Qt::ArrowCursor);
}

} // namespace
} // namespace varenta::teste
