#include "todas_as_janelas.h"

#include "janelas/janela_ajuda.h"
#include "janelas/linha_de_estado.h"
#include "janelas/paletas.h"
#include "janelas/rotulo_valor.h"
#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTextBlock>
#include <QTextBrowser>
#include <QThread>
#include <QTimer>
#include <QTreeView>

#include <cmath>
#include <map>
#include <set>

namespace varenta::teste {
namespace {

/// What a test says of a widget.
std::string deQuem(const QWidget& widget) {
    return (widget.window()->objectName() + QLatin1Char{'.'} + widget.objectName()).toStdString();
}

bool éFixo(const QObject& objeto) { return objeto.objectName().startsWith(QLatin1String{"fixo"}); }

/// Not a part that Qt makes for itself.
bool éControle(const QWidget& widget) {
    return !widget.objectName().isEmpty() && !widget.objectName().startsWith(QLatin1String{"qt_"});
}

template <class... Tipos>
bool éUm(const QWidget& widget) {
    return (... || (dynamic_cast<const Tipos*>(&widget) != nullptr));
}

bool recebeEntrada(const QWidget& widget) {
    return éControle(widget) && éUm<QLineEdit, QComboBox, QScrollBar, QRadioButton, QCheckBox>(widget);
}

/// A box, a list or a bar, whose value may be a number.
bool recebeValor(const QWidget& widget) {
    return éControle(widget) && éUm<QLineEdit, QComboBox, QScrollBar>(widget);
}

QString textoAcessível(QWidget& widget, QAccessible::Text qual) {
    auto* interface = QAccessible::queryAccessibleInterface(&widget);
    return interface ? interface->text(qual) : QString{};
}

bool alcançaComTab(const QWidget& widget) {
    return éControle(widget) && (widget.focusPolicy() & Qt::TabFocus) && widget.isVisible() &&
           widget.isEnabled();
}

std::vector<QWidget*> controlesDe(const QWidget& janela, bool (*serve)(const QWidget&)) {
    std::vector<QWidget*> escolhidos;
    for (auto* widget : janela.findChildren<QWidget*>())
        if (serve(*widget)) escolhidos.push_back(widget);
    return escolhidos;
}

/// From black on white, 21, to none, 1, as the guidelines for accessible pages reckon it.
double contraste(const QColor& a, const QColor& b) {
    const auto luminância = [](const QColor& cor) {
        const auto canal = [](double c) {
            return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * canal(cor.redF()) + 0.7152 * canal(cor.greenF()) + 0.0722 * canal(cor.blueF());
    };
    const double la = luminância(a), lb = luminância(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

class MãosEOlhos : public TodasAsJanelas {
  protected:
    /// Alone on the screen and active.
    QWidget& mostrarSó(TelaBase& tela) {
        for (const bool mostra : {false, true}) {
            for (auto* outra : telas()) outra->visivel = mostra && outra == &tela;
            janelas->atualizar();
        }
        auto& janelaDaTela = janela(tela);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&janelaDaTela));
        return janelaDaTela;
    }

    const LinhaDeEstado& estado(const TelaBase& tela) const {
        return widget<LinhaDeEstado>(tela, "fixoEstado");
    }
};

TEST_F(MãosEOlhos, todo_controle_tem_nome_para_quem_não_vê) {
    mostrarTodas();
    for (const auto* janela : todas())
        for (auto* widget : controlesDe(*janela, éControle)) {
            if (!éUm<QLineEdit, QComboBox, QScrollBar, QAbstractButton, QTableView, WidgetDesenho,
                     QProgressBar>(*widget))
                continue;
            const auto nome = textoAcessível(*widget, QAccessible::Name);
            EXPECT_FALSE(nome.isEmpty()) << deQuem(*widget);
            EXPECT_FALSE(nome.contains(QLatin1Char{'&'})) << deQuem(*widget);
        }
}

TEST_F(MãosEOlhos, os_nomes_das_entradas_de_uma_janela_são_diferentes) {
    mostrarTodas();
    for (const auto* janela : todas()) {
        std::set<QString> nomes;
        for (auto* widget : controlesDe(*janela, recebeValor)) {
            EXPECT_TRUE(nomes.insert(textoAcessível(*widget, QAccessible::Name)).second) << deQuem(*widget);
        }
    }
}

TEST_F(MãosEOlhos, todo_número_mostrado_diz_o_que_é) {
    for (const auto* janela : todas())
        for (auto* rótulo : janela->findChildren<QLabel*>())
            if (dynamic_cast<RotuloValor*>(rótulo)) {
                EXPECT_FALSE(textoAcessível(*rótulo, QAccessible::Description).isEmpty()) << deQuem(*rótulo);
            }
}

TEST_F(MãosEOlhos, toda_entrada_tem_dica_com_unidade_e_faixa) {
    static const QRegularExpression unidade{
        QStringLiteral("em (m|m/h|m/s|m³/h|mm|cm|s/m|m\\.c\\.a\\.|graus|minutos)\\b|unidade|[Nn]úmero de|"
                       "Coletores em cada lado|qualquer texto")};
    static const QRegularExpression faixa{
        QStringLiteral("\\d|maior que zero|qualquer|pode ficar vazi|raio de alcance")};
    std::size_t quantas = 0;
    for (const auto* janela : todas())
        for (const auto* widget : controlesDe(*janela, recebeEntrada)) {
            ++quantas;
            EXPECT_FALSE(widget->toolTip().isEmpty()) << deQuem(*widget);
            const bool listaDeModos =
                janela->objectName() == QLatin1String{"Form5"} && éUm<QComboBox>(*widget);
            if (!recebeValor(*widget) || listaDeModos) continue;
            EXPECT_TRUE(unidade.match(widget->toolTip()).hasMatch())
                << deQuem(*widget) << ": " << widget->toolTip().toStdString();
            EXPECT_TRUE(faixa.match(widget->toolTip()).hasMatch())
                << deQuem(*widget) << ": " << widget->toolTip().toStdString();
        }
    EXPECT_GT(quantas, 100u);
}

/// Speeds of the wind go in tenths.
TEST_F(MãosEOlhos, a_faixa_na_dica_de_uma_barra_é_a_da_barra) {
    std::size_t quantas = 0;
    for (const auto* janela : todas())
        for (const auto* barra : janela->findChildren<QScrollBar*>()) {
            if (!éControle(*barra)) continue;
            ++quantas;
            const auto inteiros = QStringLiteral("%1 a %2").arg(barra->minimum()).arg(barra->maximum());
            const auto décimos = QStringLiteral("%1 a %2")
                                     .arg(barra->minimum() / 10.0, 0, 'f', 1)
                                     .arg(barra->maximum() / 10.0, 0, 'f', 1);
            EXPECT_TRUE(barra->toolTip().contains(inteiros) || barra->toolTip().contains(décimos))
                << deQuem(*barra) << ": " << barra->toolTip().toStdString();
        }
    EXPECT_EQ(quantas, 11u);
}

/// Where the text of the system itself gives two buttons the same letter, the letter goes from one to the
/// other.
TEST_F(MãosEOlhos, mnemônicos_são_únicos_a_não_ser_os_que_o_próprio_texto_repete) {
    perfilForm->Command6.visivel = perfilForm->Command7.visivel = false;
    mostrarTodas();
    formEC->Command4.visivel = formEC->Command6.visivel = true;
    janelas->atualizar();
    std::set<std::string> repetidos;
    for (const auto* janela : todas()) {
        std::map<QString, bool> usados; // whether by a caption of the layout
        const auto usar = [&](const QString& texto, const QObject& objeto, bool àVista) {
            const auto tecla = QKeySequence::mnemonic(texto).toString();
            if (tecla.isEmpty() || (!àVista && !éFixo(objeto))) return;
            const auto [item, novo] = usados.emplace(tecla, éFixo(objeto));
            if (novo) return;
            EXPECT_FALSE(item->second || éFixo(objeto)) << objeto.objectName().toStdString();
            repetidos.insert((janela->objectName() + QLatin1Char{' '} + tecla).toStdString());
        };
        for (const auto* botão : janela->findChildren<QAbstractButton*>())
            usar(botão->text(), *botão, botão->isVisible());
        for (const auto* grupo : janela->findChildren<QGroupBox*>())
            usar(grupo->title(), *grupo, grupo->isVisible());
        for (const auto* rótulo : janela->findChildren<QLabel*>())
            if (rótulo->buddy()) usar(rótulo->text(), *rótulo, rótulo->isVisible());
        if (const auto* menus = janela->findChild<QMenuBar*>())
            for (const auto* ação : menus->actions()) usar(ação->text(), *ação, true);
    }
    EXPECT_EQ(repetidos, std::set<std::string>{"Form_EC Alt+S"});
}

TEST_F(MãosEOlhos, um_rótulo_com_mnemônico_tem_um_amigo_e_um_sem_amigo_não_tem_mnemônico) {
    for (const auto* janela : todas())
        for (const auto* rótulo : janela->findChildren<QLabel*>())
            if (éFixo(*rótulo) && rótulo->text().contains(QLatin1Char{'&'})) {
                EXPECT_NE(rótulo->buddy(), nullptr) << deQuem(*rótulo);
            }
}

TEST_F(MãosEOlhos, o_mnemônico_de_um_rótulo_leva_à_sua_entrada) {
    std::size_t quantos = 0;
    for (auto* tela : telas()) {
        auto& janelaDaTela = mostrarSó(*tela);
        for (const auto* rótulo : janelaDaTela.findChildren<QLabel*>()) {
            const auto tecla = QKeySequence::mnemonic(rótulo->text());
            if (!éFixo(*rótulo) || tecla.isEmpty() || !rótulo->buddy()->isEnabled()) continue;
            QTest::keyClick(&janelaDaTela, static_cast<Qt::Key>(tecla[0].key()), Qt::AltModifier);
            EXPECT_EQ(QApplication::focusWidget(), rótulo->buddy()) << deQuem(*rótulo);
            ++quantos;
        }
    }
    EXPECT_GT(quantos, 40u);
}

TEST_F(MãosEOlhos, um_mnemônico_de_dois_botões_passa_de_um_a_outro_e_espaço_aperta) {
    auto& janelaDoEnsaio = mostrarSó(formEC);
    formEC->Command4.visivel = true;
    formEC->Command6.visivel = false;
    janelas->atualizar();
    std::set<QString> focados;
    for (int k = 0; k < 2; ++k) {
        QTest::keyClick(&janelaDoEnsaio, Qt::Key_S, Qt::AltModifier);
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        focados.insert(QApplication::focusWidget()->objectName());
    }
    EXPECT_EQ(focados, (std::set<QString>{QStringLiteral("Command1"), QStringLiteral("Command4")}));
    auto& sobreposição = widget<QPushButton>(formEC, "Command4");
    if (!sobreposição.hasFocus()) QTest::keyClick(&janelaDoEnsaio, Qt::Key_S, Qt::AltModifier);
    ASSERT_TRUE(sobreposição.hasFocus());
    QTest::keyClick(&sobreposição, Qt::Key_Space);
    EXPECT_TRUE(formUnifo.visivel);
}

/// One reads the controls of a group together, each below or to the right of the one before it, or at the top
/// of the next column.
TEST_F(MãosEOlhos, Tab_anda_como_se_lê) {
    for (auto* tela : telas()) {
        auto& janelaDaTela = mostrarSó(*tela);
        std::vector<QWidget*> ordem;
        for (auto* widget = janelaDaTela.nextInFocusChain(); widget != &janelaDaTela;
             widget = widget->nextInFocusChain())
            if (alcançaComTab(*widget)) ordem.push_back(widget);
        std::set<const QWidget*> deixados;
        for (std::size_t k = 1; k < ordem.size(); ++k) {
            const auto &antes = *ordem[k - 1], &depois = *ordem[k];
            const QRect a{antes.mapTo(&janelaDaTela, QPoint{}), antes.size()};
            const QRect d{depois.mapTo(&janelaDaTela, QPoint{}), depois.size()};
            const bool mesmaLinha = a.top() <= d.center().y() && d.center().y() <= a.bottom();
            const bool abaixo = d.center().y() > a.bottom();
            EXPECT_TRUE(abaixo || d.left() >= a.right() || (mesmaLinha && d.left() > a.left()))
                << deQuem(antes) << " -> " << deQuem(depois);
            if (antes.parentWidget() != depois.parentWidget()) deixados.insert(antes.parentWidget());
            // The window itself holds the groups, and the buttons after them.
            EXPECT_TRUE(depois.parentWidget() == &janelaDaTela || !deixados.contains(depois.parentWidget()) ||
                        !qobject_cast<const QGroupBox*>(depois.parentWidget()) ||
                        antes.parentWidget()->parentWidget() == depois.parentWidget())
                << deQuem(depois);
        }
    }
}

TEST_F(MãosEOlhos, as_setas_movem_as_barras_para_onde_apontam) {
    std::size_t quantas = 0;
    for (auto* tela : telas()) {
        const auto& janelaDaTela = mostrarSó(*tela);
        for (auto* barra : janelaDaTela.findChildren<QScrollBar*>()) {
            if (!éControle(*barra)) continue;
            ++quantas;
            const auto mudança = [&](Qt::Key tecla) {
                const int antes = barra->value();
                QTest::keyClick(barra, tecla);
                return barra->value() - antes;
            };
            barra->setFocus(Qt::TabFocusReason);
            QTest::keyClick(barra, Qt::Key_PageUp); // away from an end
            EXPECT_LT(mudança(Qt::Key_Left), 0) << deQuem(*barra);
            EXPECT_GT(mudança(Qt::Key_Right), 0) << deQuem(*barra);
            EXPECT_LT(mudança(Qt::Key_Down), 0) << deQuem(*barra);
            EXPECT_GT(mudança(Qt::Key_Up), 0) << deQuem(*barra);
        }
    }
    EXPECT_EQ(quantas, 11u);
}

TEST_F(MãosEOlhos, o_foco_se_vê_em_todos_os_controles) {
    for (auto* tela : telas()) {
        auto& janelaDaTela = mostrarSó(*tela);
        std::size_t quantos = 0;
        for (auto* widget : janelaDaTela.findChildren<QWidget*>()) quantos += alcançaComTab(*widget);
        // Tab itself, as the marks of some styles wait for the keyboard's first use.
        for (std::size_t k = 0; k < quantos; ++k) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &janelaDaTela,
                            Qt::Key_Tab);
            auto* focado = QApplication::focusWidget();
            ASSERT_NE(focado, nullptr) << tela->nome();
            constexpr int emVolta = 3;
            const auto lugar = QRect{focado->mapTo(&janelaDaTela, QPoint{}), focado->size()}.adjusted(
                -emVolta, -emVolta, emVolta, emVolta);
            const auto com = janelaDaTela.grab(lugar).toImage();
            focado->clearFocus();
            const auto sem = janelaDaTela.grab(lugar).toImage();
            EXPECT_NE(com, sem) << deQuem(*focado);
            focado->setFocus(Qt::TabFocusReason);
        }
    }
}

TEST_F(MãosEOlhos, uma_janela_nova_tem_o_foco_no_primeiro_controle_que_age) {
    const std::map<const TelaBase*, QString> primeiros{{&form1, QStringLiteral("Combo1")},
                                                       {&form_grafVen, QStringLiteral("Command1")},
                                                       {&form_graf1, QStringLiteral("Command1")},
                                                       {&form8, QStringLiteral("Command3")},
                                                       {&form6, QStringLiteral("Command1")}};
    iniciarSistema();
    janelas->atualizar();
    clicarMenu("TX20B");
    EXPECT_EQ(janela(form1).focusWidget()->objectName(), primeiros.at(&form1));
    clicar(form1, "Command3");
    EXPECT_EQ(janela(form7).focusWidget()->objectName(), QStringLiteral("Text1"));
    clicar(form7, "Command2");
    clicar(form7, "Command3");
    EXPECT_EQ(janela(form_grafVen).focusWidget()->objectName(), primeiros.at(&form_grafVen));
}

TEST_F(MãosEOlhos, Enter_em_uma_entrada_aperta_o_botão_padrão) {
    mostrarSó(form7);
    caixas.clear();
    form7->flexA.dimensionar(2, 3);
    apagarEDigitar(form7, "Text1", QStringLiteral("40"));
    QTest::keyClick(&widget<QLineEdit>(form7, "Text1"), Qt::Key_Return);
    EXPECT_GT(form7->flexA.linhas, 10);
    EXPECT_EQ(QApplication::focusWidget(), &widget<QLineEdit>(form7, "Text1"));
    EXPECT_EQ(controleComFoco, &form7->Text1);
    form7->flexA.dimensionar(2, 3);
    QTest::keyClick(&widget<QScrollBar>(form7, "HScroll1"), Qt::Key_Enter);
    EXPECT_GT(form7->flexA.linhas, 10);
    form7->flexA.dimensionar(2, 3);
    apagarEDigitar(form7, "Combo2", QStringLiteral("6.0"));
    QTest::keyClick(&widget<QComboBox>(form7, "Combo2"), Qt::Key_Return);
    EXPECT_GT(form7->flexA.linhas, 10);
    EXPECT_TRUE(caixas.empty());
}

TEST_F(MãosEOlhos, Enter_em_outro_botão_aperta_só_a_ele) {
    mostrarSó(form7);
    form7->flexA.dimensionar(2, 3);
    auto& ajuda = widget<QPushButton>(form7, "Command5");
    ajuda.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&ajuda, Qt::Key_Return);
    EXPECT_EQ(ajudas.size(), 1u);
    EXPECT_EQ(form7->flexA.linhas, 2);
}

/// Where Enter goes from cell to cell it must not start anything else.
TEST_F(MãosEOlhos, as_telas_de_digitação_não_têm_botão_padrão) {
    for (const auto* tela : {static_cast<TelaBase*>(&perfilForm), static_cast<TelaBase*>(&formEC),
                             static_cast<TelaBase*>(&form_E1), static_cast<TelaBase*>(&form_MiE1)})
        for (const auto* botão : janela(*tela).findChildren<QPushButton*>())
            EXPECT_FALSE(botão->isDefault()) << deQuem(*botão);
}

TEST_F(MãosEOlhos, Esc_fecha_o_que_só_mostra_e_nada_que_foi_digitado) {
    const std::set<const TelaBase*> digitadas{&form7,      &form4,  &form5,     &form_AjVen, &form_AjvenOu,
                                              &perfilForm, &perfil, &formUnifo, &form_AjCar, &formEC};
    for (auto* tela : telas()) {
        auto& janelaDaTela = mostrarSó(*tela);
        respostas = {true};
        QTest::keyClick(janelaDaTela.focusWidget() ? janelaDaTela.focusWidget() : &janelaDaTela,
                        Qt::Key_Escape);
        EXPECT_EQ(tela->carregada() && tela->visivel, digitadas.contains(tela)) << tela->nome();
        if (!tela->carregada()) tela->carregar();
    }
}

TEST_F(MãosEOlhos, Esc_em_um_ensaio_pergunta_como_Fechar) {
    auto& janelaDoEnsaio = mostrarSó(form_E1);
    caixas.clear();
    respostas = {false};
    QTest::keyClick(&janelaDoEnsaio, Qt::Key_Escape);
    ASSERT_EQ(caixas.size(), 1u);
    EXPECT_TRUE(caixas[0].startsWith("Verifique se os dados do aspersor conferem"));
    EXPECT_TRUE(form_E1.visivel);
}

TEST_F(MãosEOlhos, as_setas_movem_o_ponto_lido_de_um_gráfico) {
    auto& janelaDaFaixa = mostrarSó(form5);
    janelaDaFaixa.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janelaDaFaixa));
    auto& gráfico = widget<WidgetDesenho>(form5, "Picture2");
    gráfico.setFocus(Qt::TabFocusReason);
    const auto quadro = gráfico.quadroDosEixos();
    const auto lido = [&] { return estado(form5).text(); };
    const auto sobOPonteiro = [&](QPoint ponto) {
        moverMouse(gráfico, ponto);
        return lido();
    };
    const auto semLeitura = lido();
    QTest::keyClick(&gráfico, Qt::Key_Right);
    QTest::keyClick(&gráfico, Qt::Key_Up, Qt::ControlModifier);
    const auto pelasSetas = lido();
    EXPECT_NE(pelasSetas, semLeitura);
    EXPECT_EQ(pelasSetas, sobOPonteiro(quadro.center() + QPoint{1, -10}));
    // It doesn't leave the axes.
    for (int k = 0; k < 2000 / 10; ++k) QTest::keyClick(&gráfico, Qt::Key_Left, Qt::ControlModifier);
    const auto naBorda = lido();
    EXPECT_EQ(naBorda, sobOPonteiro({quadro.x(), quadro.center().y()}));
    QTest::keyClick(&gráfico, Qt::Key_Down);
    ASSERT_TRUE(gráfico.hasFocus());
    auto& comprimento = widget<QLineEdit>(form5, "txtMan");
    comprimento.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return lido() == comprimento.toolTip(); })) << lido().toStdString();
    EXPECT_TRUE(comprimento.hasFocus());
}

TEST_F(MãosEOlhos, a_linha_de_estado_lê_o_gráfico_sob_o_ponteiro) {
    mostrarSó(form5);
    auto& gráfico = widget<WidgetDesenho>(form5, "Picture2");
    const auto quadro = gráfico.quadroDosEixos();
    moverMouse(gráfico, quadro.center());
    const auto texto = estado(form5).text();
    EXPECT_TRUE(texto.startsWith(widget<QLabel>(form5, "lblEf").text())) << texto.toStdString();
    EXPECT_TRUE(texto.contains(widget<QLabel>(form5, "lblI").text()));
    EXPECT_TRUE(texto.contains("I = ")) << texto.toStdString();
    moverMouse(gráfico, {1, 1});
    EXPECT_EQ(estado(form5).text(), gráfico.accessibleName());
    QEvent saída{QEvent::Leave};
    QApplication::sendEvent(&gráfico, &saída);
    EXPECT_NE(estado(form5).text(), gráfico.accessibleName());
}

TEST_F(MãosEOlhos, a_linha_de_estado_explica_a_entrada_com_o_foco) {
    std::size_t quantas = 0;
    for (auto* tela : telas()) {
        auto& janelaDaTela = mostrarSó(*tela);
        for (auto* widget : controlesDe(janelaDaTela, recebeEntrada)) {
            if (!alcançaComTab(*widget)) continue;
            widget->setFocus(Qt::TabFocusReason);
            const auto& linha = estado(*tela);
            EXPECT_TRUE(linha.text().endsWith(widget->toolTip())) << deQuem(*widget);
            EXPECT_LE(linha.fontMetrics().horizontalAdvance(linha.text()), linha.width()) << deQuem(*widget);
            ++quantas;
        }
    }
    EXPECT_GT(quantas, 70u);
}

TEST_F(MãosEOlhos, a_linha_de_estado_diz_a_célula_atual) {
    mostrarSó(formEC);
    auto& leitura = widget<QLineEdit>(formEC, "Text5");
    leitura.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(estado(formEC).text().startsWith(widget<QLabel>(formEC, "Label6").text()));
    const auto antes = estado(formEC).text();
    QTest::keyClick(&leitura, Qt::Key_Return);
    EXPECT_NE(estado(formEC).text(), antes);
    EXPECT_TRUE(estado(formEC).text().startsWith(widget<QLabel>(formEC, "Label6").text()));

    mostrarSó(form4);
    auto& tabela = widget<WidgetTabela>(form4, "flexGrid_A");
    tabela.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&tabela, Qt::Key_Down);
    const auto& grade = form4->flexGrid_A;
    EXPECT_TRUE(estado(form4).text().startsWith(QString::fromStdString(
        grade.célula(tabela.currentIndex().row() + 1, 0) + ", " +
        grade.célula(0, tabela.currentIndex().column() + 1) + ": " +
        grade.célula(tabela.currentIndex().row() + 1, tabela.currentIndex().column() + 1))))
        << estado(form4).text().toStdString();
}

TEST_F(MãosEOlhos, o_botão_que_nada_salva_diz_isso) {
    EXPECT_TRUE(
        widget<QPushButton>(form_AjvenOu, "Command7").toolTip().startsWith("Este botão não faz nada"));
}

TEST_F(MãosEOlhos, uma_janela_abre_onde_estava_a_última) {
    iniciarSistema();
    janelas->atualizar();
    constexpr int moldura = 4; // of a window of the platform without a display
    const auto perto = [](QPoint a, QPoint b) { return (a - b).manhattanLength() <= 2 * moldura; };
    const auto reabrir = [this](TelaBase& tela) {
        tela.esconder();
        janelas->atualizar();
        tela.mostrar();
        janelas->atualizar();
    };
    auto& principal = janela(form3);
    principal.resize(principal.minimumSizeHint() + QSize{7, 5});
    principal.move(60, 40);
    const auto tamanho = principal.size();
    clicarMenu("varenta");
    auto& sobre = janela(form6);
    EXPECT_TRUE(perto(sobre.geometry().center(), principal.geometry().center()));

    // The person moves the small window to a corner, where the larger one does not fit.
    const QRect tela = principal.screen()->availableGeometry();
    sobre.move(tela.bottomRight() - QPoint{sobre.width(), sobre.height()});
    const auto meio = sobre.geometry().center();
    reabrir(form3);
    EXPECT_TRUE(perto(principal.geometry().bottomRight(), tela.bottomRight()));
    EXPECT_EQ(principal.size(), tamanho);
    // What the edge of the screen moved does not move the next one.
    reabrir(form6);
    EXPECT_TRUE(perto(sobre.geometry().center(), meio));
    clicar(form6, "Command1");
    reabrir(form3);
    clicarMenu("varenta");
    EXPECT_TRUE(perto(janela(form6).geometry().center(), meio));
}

TEST_F(MãosEOlhos, cada_janela_aparece_inteira_na_tela) {
    const QRect disponível = QGuiApplication::primaryScreen()->availableGeometry();
    ASSERT_GE(disponível.width(), 1366) << "the windows are for no smaller screen";
    for (auto* tela : telas()) {
        const auto& janelaDaTela = mostrarSó(*tela);
        EXPECT_TRUE(disponível.contains(janelaDaTela.frameGeometry())) << tela->nome();
    }
}

TEST_F(MãosEOlhos, nenhum_texto_fica_cortado) {
    mostrarTodas();
    const auto cabe = [](const QWidget& widget, int largura, const QString& texto) {
        EXPECT_GE(largura, widget.fontMetrics().horizontalAdvance(texto))
            << deQuem(widget) << ": " << texto.toStdString();
    };
    for (const auto* janela : todas())
        for (const auto* widget : janela->findChildren<QWidget*>()) {
            if (!widget->isVisible() || !éControle(*widget) || éUm<LinhaDeEstado>(*widget)) continue;
            if (éUm<QLabel, QAbstractButton, QGroupBox, QComboBox, QLineEdit>(*widget)) {
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << deQuem(*widget);
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << deQuem(*widget);
            }
            if (const auto* grupo = qobject_cast<const QGroupBox*>(widget))
                cabe(*grupo, grupo->width(), grupo->title());
            if (const auto* lista = qobject_cast<const QComboBox*>(widget)) {
                constexpr int setaEBordas = 28;
                for (int k = 0; k < lista->count(); ++k)
                    cabe(*lista, lista->width() - setaEBordas, lista->itemText(k));
            }
            if (const auto* tabela = qobject_cast<const QTableView*>(widget))
                for (int c = 0; c < tabela->model()->columnCount(); ++c) {
                    EXPECT_GE(tabela->columnWidth(c), tabela->horizontalHeader()->sectionSizeHint(c))
                        << deQuem(*widget) << ' ' << c;
                    constexpr int bordasDaCélula = 6;
                    for (int l = 0; l < tabela->model()->rowCount(); ++l)
                        cabe(*tabela, tabela->columnWidth(c) - bordasDaCélula,
                             tabela->model()->index(l, c).data().toString());
                }
        }
}

/// The windows under the colours of a dark desktop.
class TemaEscuro : public MãosEOlhos {
  protected:
    TemaEscuro() { QApplication::setPalette(paletaEscura()); }
    ~TemaEscuro() override { QApplication::setPalette(paletaClara()); }
};

void conferirContraste(const std::vector<QWidget*>& janelas) {
    std::size_t quantos = 0;
    for (const auto* janela : janelas)
        for (const auto* widget : janela->findChildren<QWidget*>()) {
            if (!éControle(*widget) || !widget->isVisible() || !widget->isEnabled()) continue;
            if (!éUm<QLabel, QAbstractButton, QGroupBox, QComboBox, QLineEdit, QTableView>(*widget)) continue;
            if (!widget->styleSheet().isEmpty()) continue; // a sample of a colour
            const auto& paleta = widget->palette();
            EXPECT_GE(
                contraste(paleta.color(widget->foregroundRole()), paleta.color(widget->backgroundRole())),
                4.5)
                << deQuem(*widget);
            ++quantos;
        }
    EXPECT_GT(quantos, 300u);
}

TEST_F(TemaEscuro, os_textos_se_leem) {
    mostrarTodas();
    conferirContraste(todas());
}

TEST_F(MãosEOlhos, os_textos_se_leem_no_tema_claro) {
    mostrarTodas();
    conferirContraste(todas());
}

TEST_F(TemaEscuro, os_desenhos_ficam_no_seu_papel_claro) {
    mostrarTodas();
    for (const auto* janela : todas())
        for (auto* desenho : janela->findChildren<WidgetDesenho*>()) {
            if (desenho->focusPolicy() == Qt::NoFocus) continue; // a picture of its own colours
            const auto imagem = desenho->grab().toImage();
            EXPECT_GT(imagem.pixelColor(0, imagem.height() - 1).lightness(), 200) << deQuem(*desenho);
        }
    EXPECT_LT(janela(form7).grab().toImage().pixelColor(1, 1).lightness(), 80);
}

TEST(JanelaDaAjuda, todo_controle_tem_nome_para_quem_não_vê) {
    const JanelaDaAjuda ajuda;
    std::size_t quantos = 0;
    for (auto* widget : controlesDe(ajuda, éControle)) {
        if (!éUm<QLineEdit, QAbstractItemView, QTextBrowser>(*widget)) continue;
        EXPECT_FALSE(textoAcessível(*widget, QAccessible::Name).isEmpty()) << deQuem(*widget);
        ++quantos;
    }
    EXPECT_EQ(quantos, 6u);
}

TEST_F(TemaEscuro, os_elos_da_ajuda_se_leem_no_seu_papel_claro) {
    JanelaDaAjuda ajuda;
    ajuda.mostrarTópico(std::nullopt);
    const auto& página = *ajuda.findChild<QTextBrowser*>();
    const auto papel = página.palette().color(QPalette::Base);
    std::size_t quantos = 0;
    for (auto bloco = página.document()->begin(); bloco.isValid(); bloco = bloco.next())
        for (auto parte = bloco.begin(); !parte.atEnd(); ++parte) {
            const auto formato = parte.fragment().charFormat();
            if (!formato.isAnchor() || !formato.hasProperty(QTextFormat::ForegroundBrush)) continue;
            EXPECT_GE(contraste(formato.foreground().color(), papel), 4.5)
                << parte.fragment().text().toStdString();
            ++quantos;
        }
    EXPECT_GT(quantos, 5u);
}

/// Titles of the table of contents are whole in the window as it opens.
TEST(JanelaDaAjuda, o_conteúdo_mostra_títulos_inteiros_e_cabe_na_tela) {
    JanelaDaAjuda ajuda;
    ajuda.mostrarTópico(std::nullopt);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&ajuda));
    const auto& conteúdo = *ajuda.findChild<QTreeView*>(QStringLiteral("conteudo"));
    const QAbstractItemView& vista = conteúdo;
    EXPECT_GE(conteúdo.viewport()->width(), vista.sizeHintForColumn(0));
    EXPECT_LE(ajuda.frameGeometry().width(), 1366);
    EXPECT_LE(ajuda.frameGeometry().height(), 768);
}

TEST(Paletas, uma_é_clara_e_outra_escura) {
    EXPECT_FALSE(éEscura(paletaClara()));
    EXPECT_TRUE(éEscura(paletaEscura()));
}

/// Qt's own dialog is too narrow for its columns.
TEST(DiálogosDeArquivo, mostram_nomes_tipos_e_datas_inteiros) {
    bool visto = false;
    QTimer::singleShot(0, [&] {
        auto* diálogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(diálogo, nullptr);
        const auto& lista = *diálogo->findChild<QTreeView*>();
        ASSERT_TRUE(QTest::qWaitFor([&] { return lista.model()->rowCount(lista.rootIndex()) > 0; }));
        QCoreApplication::processEvents();
        const QAbstractItemView& vista = lista;
        for (int c = 0; c < lista.model()->columnCount(); ++c)
            EXPECT_GE(lista.columnWidth(c), vista.sizeHintForColumn(c)) << c;
        visto = true;
        diálogo->reject();
    });
    const auto antes = QDir::currentPath();
    QDir::setCurrent(QStringLiteral(PASTA_DE_EXEMPLOS));
    EXPECT_EQ(dialogosDoQt().arquivoParaAbrir(QStringLiteral("Todos (*)")), std::nullopt);
    QDir::setCurrent(antes);
    EXPECT_TRUE(visto);
}

TEST(Tradução, os_diálogos_do_Qt_falam_português) {
    QDialogButtonBox botões{QDialogButtonBox::Cancel | QDialogButtonBox::Discard};
    EXPECT_EQ(botões.button(QDialogButtonBox::Cancel)->text().remove(QLatin1Char{'&'}), "Cancelar");
    EXPECT_EQ(botões.button(QDialogButtonBox::Discard)->text().remove(QLatin1Char{'&'}), "Descartar");
    EXPECT_EQ(QFileIconProvider{}.type(QFileInfo{QDir::tempPath()}), "Pasta");
    QFileDialog diálogo;
    diálogo.setOption(QFileDialog::DontUseNativeDialog);
    EXPECT_EQ(diálogo.labelText(QFileDialog::LookIn).remove(QLatin1Char{'&'}), "Procurar em:");
    EXPECT_EQ(diálogo.labelText(QFileDialog::FileType).remove(QLatin1Char{'&'}), "Arquivos do tipo:");
}

/// Counts how often a widget paints itself while the pointer is an hourglass.
class PinturasNaAmpulheta : public QObject {
  public:
    explicit PinturasNaAmpulheta(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* evento) override {
        quantas += evento->type() == QEvent::Paint && QGuiApplication::overrideCursor();
        return false;
    }
    int quantas = 0;
};

/// Clicks that wait in the queue, as the system's own do while the program is busy.
class CliquesNaFila : public MãosEOlhos {
  protected:
    static void clicarDepois(QWidget& alvo) {
        const QPointF lugar{10, alvo.height() / 2.0};
        for (const auto tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(&alvo,
                                        new QMouseEvent{tipo, lugar, alvo.mapToGlobal(lugar), Qt::LeftButton,
                                                        Qt::LeftButton, Qt::NoModifier});
    }

    /// Clicks on "Ajuda" while the answer to a wrong speed takes as long as told.
    void clicarEnquantoEspera(unsigned long ms) {
        mostrarSó(form7);
        apagarEDigitar(form7, "Text1", QStringLiteral("x"));
        caixas.clear();
        dialogos().mensagem = [this, ms](const QString& texto, const QString&) {
            caixas.push_back(texto);
            clicarDepois(widget<QWidget>(form7, "Command5"));
            QThread::msleep(ms);
        };
        clicar(form7, "Command2");
        QCoreApplication::processEvents();
        EXPECT_EQ(caixas.size(), 1u);
    }
};

TEST_F(CliquesNaFila, durante_um_cálculo_demorado_não_esperam_sua_vez) {
    clicarEnquantoEspera(400);
    EXPECT_TRUE(ajudas.empty());
    clicar(form7, "Command5");
    EXPECT_EQ(ajudas.size(), 1u);
}

TEST_F(CliquesNaFila, logo_depois_de_um_cálculo_curto_valem) {
    clicarEnquantoEspera(0);
    EXPECT_EQ(ajudas.size(), 1u);
}

/// Every act that calculates: a button and its screen, with the road that leads there walked already.
class CálculosDemorados : public CliquesNaFila {
  protected:
    struct Cálculo {
        TelaBase& tela;
        const char* botão;
    };

    void SetUp() override {
        CliquesNaFila::SetUp();
        formEC->Command4.visivel = formEC->Command6.visivel = true;
        tempoDeUmaEsperaMs = -1; // every act takes longer
    }
    void TearDown() override {
        tempoDeUmaEsperaMs = esperaUsual_;
        CliquesNaFila::TearDown();
    }

    static std::vector<Cálculo> cálculos() {
        return {{form7, "Command2"},  {form7, "Command3"},   {form4, "Command9"},     {form5, "Command10"},
                {form5, "Command12"}, {form5, "Command15"},  {formEC, "Command6"},    {formEC, "Command4"},
                {perfil, "Command6"}, {formUnifo, "cmdCUC"}, {form_AjVen, "Command8"}};
    }

  private:
    int esperaUsual_ = tempoDeUmaEsperaMs;
};

TEST_F(CálculosDemorados, não_deixam_nada_na_fila_nem_fechar_a_janela) {
    for (const auto& [tela, botão] : cálculos()) {
        auto& janelaDaTela = mostrarSó(tela);
        ajudas.clear();
        ASSERT_TRUE(widget<QPushButton>(tela, botão).isEnabled()) << tela.nome() << '.' << botão;
        for (auto* alvo : janelaDaTela.findChildren<QPushButton*>()) clicarDepois(*alvo);
        QCoreApplication::postEvent(&janelaDaTela, new QCloseEvent);
        QCoreApplication::postEvent(&janelaDaTela, new QKeyEvent{QEvent::KeyPress, Qt::Key_Escape, {}});
        const auto antes = caixas.size();
        clicar(tela, botão);
        const auto depois = caixas.size();
        const bool visível = tela.visivel;
        QCoreApplication::processEvents();
        EXPECT_EQ(caixas.size(), depois) << tela.nome() << '.' << botão;
        EXPECT_LE(depois, antes + 1) << tela.nome() << '.' << botão;
        EXPECT_TRUE(ajudas.empty()) << tela.nome() << '.' << botão;
        EXPECT_TRUE(tela.carregada()) << tela.nome() << '.' << botão;
        EXPECT_EQ(tela.visivel, visível) << tela.nome() << '.' << botão;
    }
}

/// While the field of a profile is worked out, with the hourglass on.
TEST_F(CálculosDemorados, pintam_a_janela_e_recusam_cliques_e_teclas_enquanto_trabalham) {
    tempoDeUmaEsperaMs = 0;
    auto& janelaDaTela = mostrarSó(form7);
    apagarEDigitar(form7, "Combo2", QStringLiteral("3.0"));
    const auto velocidade = form7->Text1.texto;
    int tentativas = 0;
    QTimer relógio;
    QObject::connect(&relógio, &QTimer::timeout, [&] {
        if (!QGuiApplication::overrideCursor()) return;
        ++tentativas;
        EXPECT_EQ(form7.ponteiro, Ponteiro::ampulheta);
        clicar(form7, "Command5");
        clicar(form7, "cmdSair");
        QTest::keyClicks(&widget<QLineEdit>(form7, "Text1"), QStringLiteral("7"));
        janelaDaTela.close();
        janelaDaTela.update();
    });
    relógio.start(0);
    PinturasNaAmpulheta pinturas{janelaDaTela};
    clicar(form7, "Command2");
    relógio.stop();
    EXPECT_GT(tentativas, 0);
    EXPECT_GT(pinturas.quantas, 0);
    EXPECT_TRUE(ajudas.empty());
    EXPECT_TRUE(form7.carregada() && form7.visivel);
    EXPECT_EQ(form7->Text1.texto, velocidade);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

/// A button of the mouse that went down before the calculation must not stay down after it.
TEST_F(CliquesNaFila, não_deixam_uma_barra_apertada) {
    mostrarSó(form7);
    auto& barra = widget<QScrollBar>(form7, "HScroll1");
    QStyleOptionSlider opção;
    opção.initFrom(&barra);
    opção.orientation = Qt::Horizontal;
    opção.minimum = barra.minimum();
    opção.maximum = barra.maximum();
    opção.pageStep = barra.pageStep();
    opção.sliderPosition = opção.sliderValue = barra.value();
    const auto polegar =
        barra.style()
            ->subControlRect(QStyle::CC_ScrollBar, &opção, QStyle::SC_ScrollBarSlider, &barra)
            .center();
    const QPointF lugar{polegar};
    QTest::mousePress(&barra, Qt::LeftButton, {}, polegar);
    ASSERT_TRUE(barra.isSliderDown());
    QCoreApplication::postEvent(&barra,
                                new QMouseEvent{QEvent::MouseButtonRelease, lugar, barra.mapToGlobal(lugar),
                                                Qt::LeftButton, Qt::NoButton, Qt::NoModifier});
    pintarSemOuvir();
    EXPECT_FALSE(barra.isSliderDown());
}

} // namespace
} // namespace varenta::teste
