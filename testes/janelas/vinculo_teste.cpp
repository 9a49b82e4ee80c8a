#include "com_janelas.h"

#include "apoio/tela_de_teste.h"
#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace varenta::teste {
namespace {

/// A widget of each kind, one below the other.
struct Montador {
    QWidget& janela;
    QString nome;

    template <class Widget>
    Widget* pôr() const {
        auto* widget = new Widget;
        widget->setObjectName(nome);
        janela.layout()->addWidget(widget);
        return widget;
    }

    void operator()(Rotulo*) const { pôr<QLabel>(); }
    void operator()(Quadro*) const { pôr<QGroupBox>(); }
    void operator()(Botao*) const { pôr<QPushButton>(); }
    void operator()(CaixaTexto*) const { pôr<QLineEdit>(); }
    void operator()(Lista* lista) const { pôr<QComboBox>()->setEditable(lista->admiteDigitação); }
    void operator()(Opcao*) const { pôr<QRadioButton>(); }
    void operator()(Verificacao*) const { pôr<QCheckBox>(); }
    void operator()(Rolagem*) const { pôr<QScrollBar>()->setOrientation(Qt::Horizontal); }
    void operator()(Barra*) const { pôr<QProgressBar>(); }
    void operator()(Grade*) const { pôr<WidgetTabela>(); }
    void operator()(Desenho*) const {
        auto* desenho = pôr<WidgetDesenho>();
        desenho->setProperty("area", QRectF{0, 0, 100, 100});
        desenho->setProperty("rotulosX", "rótulos");
    }
    void operator()(ItemMenu* item) const {
        if (item->aoClicar)
            (new QAction{&janela})->setObjectName(nome);
        else
            (new QMenu{&janela})->setObjectName(nome);
    }
};

std::unique_ptr<QWidget> montar() {
    auto janela = std::make_unique<QWidget>();
    new QVBoxLayout{janela.get()};
    for (const auto& elemento : telaDeTeste.elementos())
        if (!elemento.índice)
            std::visit(Montador{*janela, QString::fromStdString(elemento.nome)}, elemento.controle);
    return janela;
}

const ModeloDeJanela modelo{&telaDeTeste, montar};

/// The test screen in a window, every kind of control in it.
class NaTelaDeTeste : public ComJanelas {
  protected:
    void SetUp() override {
        ComJanelas::SetUp();
        telaDeTeste.descarregar();
        telaDeTeste.mostrar();
        janelas.emplace(std::span{&modelo, 1});
        janelas->atualizar();
        eventos.clear();
    }
    void TearDown() override {
        ComJanelas::TearDown();
        telaDeTeste.descarregar();
    }
    template <class Widget>
    Widget& w(const char* nome) const {
        return widget<Widget>(telaDeTeste, nome);
    }
    using Eventos = std::vector<std::string>;
};

TEST_F(NaTelaDeTeste, recusa_um_leiaute_a_que_falta_um_controle) {
    const ModeloDeJanela vazio{&telaDeTeste, [] { return std::make_unique<QWidget>(); }};
    Janelas outras{std::span{&vazio, 1}};
    EXPECT_THROW(outras.atualizar(), std::logic_error);
}

TEST_F(NaTelaDeTeste, mostra_o_que_o_registro_tem) {
    auto& r = *telaDeTeste.operator->();
    r.rótulo = {.texto = "outro"};
    r.quadro = {.texto = "Outro", .habilitado = false};
    r.barra = {.valor = 7.25, .mínimo = 5, .máximo = 9};
    r.caixa.visivel = false;
    r.verificação.marcada = true;
    r.item.habilitado = false;
    r.rolagem.máximo = 300;
    r.rolagem.valor = 250;
    r.lista.itens = {"três", "quatro"};
    r.lista.texto = "quatro";
    r.tabela.dimensionar(3, 4);
    r.tabela.escrever(0, 0, "No");
    r.tabela.escrever(2, 3, "fim");
    janelas->atualizar();
    EXPECT_EQ(w<QLabel>("rótulo").text(), "outro");
    EXPECT_EQ(w<QGroupBox>("quadro").title(), "Outro");
    EXPECT_FALSE(w<QGroupBox>("quadro").isEnabled());
    // The widget counts quarters.
    EXPECT_EQ(w<QProgressBar>("barra").value(), 29);
    EXPECT_EQ(w<QProgressBar>("barra").minimum(), 20);
    EXPECT_EQ(w<QProgressBar>("barra").maximum(), 36);
    EXPECT_TRUE(w<QLineEdit>("caixa").isHidden());
    EXPECT_TRUE(w<QCheckBox>("verificação").isChecked());
    EXPECT_FALSE(w<QAction>("item").isEnabled());
    EXPECT_EQ(w<QScrollBar>("rolagem").value(), 250);
    EXPECT_EQ(w<QComboBox>("lista").currentText(), "quatro");
    EXPECT_EQ(w<QComboBox>("lista").count(), 2);
    const auto* modelo = w<WidgetTabela>("tabela").model();
    EXPECT_EQ(modelo->rowCount(), 2);
    EXPECT_EQ(modelo->columnCount(), 3);
    EXPECT_EQ(modelo->index(1, 2).data(), "fim");
    // Showing is no act of a person.
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(NaTelaDeTeste, mostra_as_opções_por_grupo_mesmo_quando_os_widgets_são_irmãos) {
    EXPECT_TRUE(w<QRadioButton>("opçãoA1").isChecked());
    EXPECT_TRUE(w<QRadioButton>("opçãoB1").isChecked());
    QTest::mouseClick(&w<QRadioButton>("opçãoA2"), Qt::LeftButton, {}, {8, 8});
    EXPECT_FALSE(w<QRadioButton>("opçãoA1").isChecked());
    EXPECT_TRUE(w<QRadioButton>("opçãoA2").isChecked());
    EXPECT_TRUE(w<QRadioButton>("opçãoB1").isChecked());
    EXPECT_EQ(eventos, Eventos{"A2"});
}

TEST_F(NaTelaDeTeste, um_botão_sem_ação_fica_desabilitado) {
    EXPECT_FALSE(w<QPushButton>("semAção").isEnabled());
    EXPECT_TRUE(w<QPushButton>("botão").isEnabled());
}

TEST_F(NaTelaDeTeste, um_menu_que_só_abre_outro_fica_habilitado) {
    EXPECT_TRUE(w<QMenu>("submenu").menuAction()->isEnabled());
}

TEST_F(NaTelaDeTeste, um_erro_de_execução_é_mostrado_e_o_programa_segue) {
    QTest::mouseClick(&w<QPushButton>("falha"), Qt::LeftButton);
    ASSERT_EQ(caixas.size(), 1u);
    EXPECT_EQ(caixas[0], "Divisão por zero");
    QTest::mouseClick(&w<QPushButton>("semMemória"), Qt::LeftButton);
    ASSERT_EQ(caixas.size(), 2u);
    EXPECT_EQ(caixas[1], "Memória insuficiente");
}

TEST_F(NaTelaDeTeste, a_verificação_vira_a_cada_clique) {
    QTest::mouseClick(&w<QCheckBox>("verificação"), Qt::LeftButton, {}, {8, 8});
    EXPECT_TRUE(telaDeTeste->verificação.marcada);
    QTest::mouseClick(&w<QCheckBox>("verificação"), Qt::LeftButton, {}, {8, 8});
    EXPECT_FALSE(telaDeTeste->verificação.marcada);
    EXPECT_EQ(eventos, (Eventos{"verificação", "verificação"}));
}

TEST_F(NaTelaDeTeste, o_item_de_menu_age) {
    w<QAction>("item").trigger();
    EXPECT_EQ(eventos, Eventos{"item"});
}

TEST_F(NaTelaDeTeste, a_tecla_que_a_caixa_usa_não_entra_no_texto) {
    auto& caixa = w<QLineEdit>("caixa");
    caixa.setFocus();
    caixa.setCursorPosition(3);
    QTest::keyClick(&caixa, Qt::Key_Return);
    EXPECT_EQ(eventos, Eventos{"tecla 13"});
    QTest::keyClick(&caixa, Qt::Key_D);
    EXPECT_EQ(eventos, (Eventos{"tecla 13", "tecla 100", "caixa"}));
    EXPECT_EQ(telaDeTeste->caixa.texto, "abcd");
}

TEST_F(NaTelaDeTeste, uma_letra_acentuada_entra_como_texto) {
    auto& caixa = w<QLineEdit>("caixaMuda");
    caixa.setFocus();
    QKeyEvent tecla{QEvent::KeyPress, Qt::Key_Atilde, {}, QStringLiteral("ã")};
    QApplication::sendEvent(&caixa, &tecla);
    EXPECT_EQ(telaDeTeste->caixaMuda.texto, "ã");
}

TEST_F(NaTelaDeTeste, a_célula_clicada_passa_o_foco_à_linha_de_entrada_toda_selecionada) {
    auto& r = *telaDeTeste.operator->();
    r.grade.dimensionar(3, 3);
    r.grade.escrever(2, 0, "2");
    r.grade.escrever(0, 1, "r (m)");
    r.grade.escrever(2, 1, "4.50");
    janelas->atualizar();
    auto& tabela = w<WidgetTabela>("grade");
    const auto lugar = tabela.visualRect(tabela.model()->index(1, 0)).center();
    QTest::mouseClick(tabela.viewport(), Qt::LeftButton, {}, lugar);
    EXPECT_EQ(r.grade.linhaAtual, 2);
    EXPECT_EQ(r.grade.colunaAtual, 1);
    EXPECT_EQ(w<QLabel>("nomeDaCélula").text(), "2 : r (m)");
    auto& entrada = w<QLineEdit>("entrada");
    EXPECT_EQ(janela(telaDeTeste).focusWidget(), &entrada);
    EXPECT_EQ(entrada.selectedText(), "4.50");
    EXPECT_EQ(tabela.currentIndex(), tabela.model()->index(1, 0));
}

TEST_F(NaTelaDeTeste, a_célula_de_uma_grade_que_só_mostra_não_age) {
    auto& tabela = w<WidgetTabela>("tabela");
    QTest::mouseClick(tabela.viewport(), Qt::LeftButton, {},
                      tabela.visualRect(tabela.model()->index(0, 0)).center());
    EXPECT_EQ(eventos, Eventos{});
}

TEST_F(NaTelaDeTeste, o_mouse_sobre_o_desenho_fala_nas_unidades_dele) {
    auto& desenho = w<WidgetDesenho>("desenho");
    desenho.setMinimumSize(200, 200);
    desenho.resize(400, 200);
    // 100 x 100 units in the middle of 400 x 200 pixels: 2 pixels a unit, from x = 100.
    moverMouse(desenho, {100, 0});
    moverMouse(desenho, {200, 150});
    EXPECT_EQ(eventos, (Eventos{"mouse 0.000000 0.000000", "mouse 50.000000 75.000000"}));
    moverMouse(janela(telaDeTeste), {1, 1});
    EXPECT_EQ(eventos.back(), "mouse na tela");
}

TEST_F(NaTelaDeTeste, o_que_o_código_põe_não_conta_como_feito_pela_pessoa) {
    w<QScrollBar>("rolagem").setValue(9);
    w<QLineEdit>("caixa").setText("zz");
    EXPECT_EQ(eventos, Eventos{});
    janelas->atualizar();
    EXPECT_EQ(w<QScrollBar>("rolagem").value(), 5);
    EXPECT_EQ(w<QLineEdit>("caixa").text(), "abc");
}

TEST_F(NaTelaDeTeste, a_barra_arrastada_e_devolvida_não_muda) {
    auto& barra = w<QScrollBar>("rolagem");
    barra.setSliderDown(true);
    barra.setSliderPosition(8);
    EXPECT_EQ(telaDeTeste->rolagem.valor, 8);
    barra.setSliderPosition(5);
    barra.setSliderDown(false);
    EXPECT_EQ(eventos, (Eventos{"rolou", "rolou"}));
}

TEST_F(NaTelaDeTeste, a_tela_descarregada_leva_a_janela_e_a_nova_mostra_o_novo_registro) {
    telaDeTeste->tabela.escrever(1, 1, "velho");
    janelas->atualizar();
    const QPointer<QWidget> antiga{&janela(telaDeTeste)};
    telaDeTeste.descarregar();
    janelas->atualizar();
    EXPECT_EQ(janelas->janela(telaDeTeste), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(antiga.isNull());
    telaDeTeste.mostrar();
    telaDeTeste->tabela.escrever(1, 1, "novo");
    janelas->atualizar();
    EXPECT_EQ(w<WidgetTabela>("tabela").model()->index(0, 0).data(), "novo");
}

TEST_F(NaTelaDeTeste, o_que_ainda_chega_a_uma_janela_descartada_não_alcança_a_nova) {
    auto& antiga = janela(telaDeTeste);
    telaDeTeste.descarregar();
    janelas->atualizar();
    telaDeTeste.mostrar();
    janelas->atualizar();
    QCloseEvent fecha;
    QApplication::sendEvent(&antiga, &fecha);
    EXPECT_TRUE(telaDeTeste.carregada());
    QApplication::sendEvent(&janela(telaDeTeste), &fecha);
    EXPECT_FALSE(telaDeTeste.carregada());
}

TEST_F(NaTelaDeTeste, uma_tela_recarregada_enquanto_escondida_mostra_o_novo_registro) {
    telaDeTeste->desenho.linha(0, 0, 100, 100, cores::vermelho);
    telaDeTeste->tabela.escrever(1, 1, "velho");
    janelas->atualizar();
    const auto antes = w<WidgetDesenho>("desenho").grab().toImage();
    telaDeTeste.esconder();
    janelas->atualizar();
    telaDeTeste.descarregar();
    telaDeTeste.mostrar();
    telaDeTeste->desenho.linha(0, 100, 100, 0, cores::vermelho);
    telaDeTeste->tabela.dimensionar(2, 3);
    janelas->atualizar();
    EXPECT_NE(w<WidgetDesenho>("desenho").grab().toImage(), antes);
    EXPECT_EQ(w<WidgetTabela>("tabela").model()->columnCount(), 2);
    EXPECT_EQ(w<WidgetTabela>("tabela").model()->index(0, 0).data(), "");
}

TEST_F(NaTelaDeTeste, uma_tela_escondida_conserva_a_janela) {
    telaDeTeste.esconder();
    janelas->atualizar();
    EXPECT_FALSE(janela(telaDeTeste).isVisible());
    telaDeTeste.mostrar();
    janelas->atualizar();
    EXPECT_TRUE(janela(telaDeTeste).isVisible());
}

TEST_F(NaTelaDeTeste, o_ponteiro_da_tela_é_o_da_janela) {
    telaDeTeste.ponteiro = Ponteiro::ampulheta;
    janelas->atualizar();
    EXPECT_EQ(janela(telaDeTeste).cursor().shape(), Qt::WaitCursor);
}

TEST_F(NaTelaDeTeste, um_ato_não_começa_dentro_de_outro) {
    int atos = 0;
    janelas->agir([&] {
        ++atos;
        janelas->agir([&] { ++atos; });
    });
    EXPECT_EQ(atos, 1);
}

} // namespace
} // namespace varenta::teste
