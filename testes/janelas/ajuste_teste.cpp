#include "com_janelas.h"

#include "ajuste/form_ajcar.h"
#include "ajuste/form_ajuste.h"
#include "ajuste/form_ajven.h"
#include "ajuste/form_ajvenou.h"
#include "ajuste/form_e.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_mie.h"
#include "ajuste/form_migraf.h"
#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <fstream>
#include <functional>
#include <iterator>
#include <utility>

/// The fits, from the test's readings to a simulation with their parameters, by clicks and keys.
namespace varenta::teste {
namespace {

constexpr std::array resultados{"Label18", "Label19", "Label21", "Label23", "Label25", "Label27"};
constexpr std::array caixas7{"Text2", "Text3", "Text4", "Text5", "Text6", "Text7"};

QString ler(const QString& caminho) {
    std::ifstream arquivo{caminho.toStdString(), std::ios::binary};
    return QString::fromStdString({std::istreambuf_iterator<char>{arquivo}, {}});
}

class JanelasDoAjuste : public ComJanelas {
  protected:
    QString rótulo(const TelaBase& tela, const char* nome) const { return widget<QLabel>(tela, nome).text(); }

    void abrirEnsaio(const char* botão, const TelaBase& ensaio, const char* arquivo) {
        clicar(form_AjVen, botão);
        respostas = {true};
        arquivos = {exemplo(arquivo)};
        clicar(ensaio, "Option5");
    }

    void fechar(const TelaBase& ensaio) {
        respostas = {true};
        clicar(ensaio, "Command5");
    }

    void abrirMalha() {
        clicarMenu("TX20c");
        abrirEnsaio("Command4", form_E1, "ensaio_malha_1.txt");
        caixas.clear();
    }

    /// The captions of a fit's parameters, all of them written.
    QStringList ajustados(const TelaBase& tela) const {
        QStringList textos;
        for (const auto* nome : resultados) textos << rótulo(tela, nome);
        EXPECT_FALSE(textos.contains(""));
        return textos;
    }

    /// The boxes of `Form7` that take them.
    QStringList deForm7() const {
        QStringList textos;
        for (const auto* nome : caixas7) textos << widget<QLineEdit>(form7, nome).text();
        return textos;
    }

    /// The depths that `Form7` tells under a wind of 3 m/s.
    QStringList simular(const char* botão) const {
        auto& vento = widget(form7, "HScroll2");
        QTest::keyClick(&vento, Qt::Key_Home);
        for (int k = 0; k < 30; ++k) QTest::keyClick(&vento, Qt::Key_Right);
        clicar(form7, botão);
        EXPECT_EQ(rótulo(form7, "Label17"), "3.0");
        const auto& tabela = *widget<WidgetTabela>(form7, "flexA").model();
        QStringList lâminas;
        for (int l = 0; l < tabela.rowCount(); ++l)
            lâminas << tabela.data(tabela.index(l, 1), Qt::DisplayRole).toString();
        return lâminas;
    }

    /// Saves the parameters of `form_AjVen`, and reads and simulates them in `Form7`.
    void salvarESimular() {
        const auto arquivo = pasta.filePath("parametros.TXT");
        arquivos = {arquivo};
        clicar(form_AjVen, "Command7");
        const auto parâmetros = ajustados(form_AjVen);
        clicar(form_AjVen, "Command1");
        EXPECT_TRUE(janela(form3).isVisible());

        clicarMenu("TX20B");
        clicar(form1, "Command3");
        const auto antes = simular("Command2");
        respostas = {true};
        arquivos = {arquivo};
        clicar(form7, "Command1");
        EXPECT_EQ(deForm7(), parâmetros);
        conferirLâminas(antes, simular("Command2"));
    }

    /// Other parameters give other depths; there is water in the middle of the lane.
    static void conferirLâminas(const QStringList& antes, const QStringList& depois) {
        ASSERT_GT(depois.size(), 10);
        EXPECT_NE(depois, antes);
        EXPECT_GT(depois[depois.size() / 2].toDouble(), 1);
    }

    /// A sprinkler out of the catalogue fitted to one test, and simulated with the parameters typed.
    void ajustarESimularOutro(const char* item, const char* avançar, const char* botãoDoEnsaio,
                              const TelaBase& ensaio, const char* arquivoDoEnsaio, const char* ajustar,
                              const char* comparar, const TelaBase& comparação, const TelaBase& lista) {
        clicarMenu(item);
        respostas = {true};
        arquivos = {exemplo("ensaio_radial_mmh.txt")};
        clicar(perfilForm, "Option2");
        clicar(perfilForm, avançar);
        clicar(form_AjvenOu, botãoDoEnsaio);
        respostas = {true};
        arquivos = {exemplo(arquivoDoEnsaio)};
        clicar(ensaio, "Option5");
        respostas = {true};
        clicar(ensaio, "Command4");
        EXPECT_FALSE(janela(ensaio).isVisible());
        caixas.clear();
        clicar(form_AjvenOu, ajustar);
        ASSERT_EQ(caixas.size(), 2u);
        EXPECT_TRUE(caixas[1].startsWith("O melhor ajuste apresentou")) << caixas[1].toStdString();

        clicar(form_AjvenOu, comparar);
        EXPECT_TRUE(widget<QPushButton>(comparação, "Command3").isVisible());
        EXPECT_FALSE(widget<QPushButton>(comparação, "Command2").isVisible());
        clicar(comparação, "Command3");
        EXPECT_TRUE(janela(lista).isVisible());
        clicar(lista, "Command2");
        clicar(comparação, "Command4");
        caixas.clear();
        clicar(form_AjvenOu, "Command7");
        EXPECT_TRUE(caixas.empty()) << "nothing is saved for such a sprinkler";
        const auto parâmetros = ajustados(form_AjvenOu);
        clicar(form_AjvenOu, "Command1");
        EXPECT_TRUE(janela(form3).isVisible());

        clicarMenu("Ou_aspB");
        respostas = {true};
        arquivos = {exemplo("ensaio_radial_mmh.txt")};
        clicar(perfilForm, "Option2");
        clicar(perfilForm, "Command8");
        clicar(perfil, "Command6");
        const auto antes = simular("Command8");
        for (std::size_t k = 0; k < caixas7.size(); ++k)
            apagarEDigitar(form7, caixas7[k], parâmetros[static_cast<qsizetype>(k)]);
        EXPECT_EQ(deForm7(), parâmetros);
        conferirLâminas(antes, simular("Command8"));
    }

    /// Runs `ato` again and again while a fit paints.
    static void duranteOAjuste(const std::function<void()>& ato, const std::function<void()>& ajustar) {
        QTimer relógio;
        QObject::connect(&relógio, &QTimer::timeout, [&] {
            if (form_AjCar.carregada()) ato();
        });
        relógio.start(0);
        ajustar();
    }

    QTemporaryDir pasta;
};

TEST_F(JanelasDoAjuste, pela_malha_vão_dos_ensaios_à_simulação) {
    abrirMalha();
    fechar(form_E1);
    EXPECT_FALSE(janela(form_E1).isVisible());
    caixas.clear();

    clicar(form_AjVen, "Command5");
    ASSERT_EQ(caixas.size(), 2u);
    EXPECT_TRUE(caixas[0].startsWith("Para que as precipitações do Ensaio 1 coicidam"));
    EXPECT_TRUE(caixas[1].startsWith("O melhor ajuste apresentou um desvio médio igual a "));
    EXPECT_FALSE(form_AjCar.carregada());
    EXPECT_TRUE(widget<QPushButton>(form_AjVen, "Command8").isEnabled());
    EXPECT_FALSE(widget<QPushButton>(form_AjVen, "Command9").isEnabled());

    clicar(form_AjVen, "Command8");
    EXPECT_EQ(janela(form_graf1).windowTitle(), "Ensaio 1: Precipitações Observadas x Estimadas");
    EXPECT_EQ(rótulo(form_graf1, "Label16").section(": ", 1), caixas[1].section("igual a ", 1));
    EXPECT_TRUE(widget<QPushButton>(form_graf1, "Command2").isVisible());
    EXPECT_FALSE(widget<QPushButton>(form_graf1, "Command3").isVisible());
    clicar(form_graf1, "Command2");
    const auto& tabela = *widget<WidgetTabela>(form_ajuste1, "flex_A").model();
    ASSERT_EQ(tabela.rowCount(), 18);
    arquivos = {pasta.filePath("estimados.TXT")};
    clicar(form_ajuste1, "Command1");
    const auto linhas = ler(pasta.filePath("estimados.TXT")).split("\r\n");
    ASSERT_EQ(linhas.size(), 19);
    EXPECT_EQ(linhas[8].section('\t', 6, 6), tabela.data(tabela.index(8, 6), Qt::DisplayRole).toString());
    clicar(form_ajuste1, "Command2");
    EXPECT_FALSE(form_ajuste1.carregada());
    clicar(form_graf1, "Command1");
    EXPECT_FALSE(janela(form_graf1).isVisible());

    salvarESimular();
}

TEST_F(JanelasDoAjuste, pela_malha_outro_aspersor_vai_do_ensaio_radial_à_simulação) {
    ajustarESimularOutro("Ou_aspC", "Command6", "Command4", form_E1, "ensaio_malha_1.txt", "Command5",
                         "Command8", form_graf1, form_ajuste1);
}

TEST_F(JanelasDoAjuste, pelo_autopropelido_outro_aspersor_vai_do_ensaio_radial_à_simulação) {
    ajustarESimularOutro("OuAsp_Auto", "Command7", "Command11", form_MiE1, "ensaio_movel_2.txt", "Command17",
                         "Command14", form_MIgraf1, form_MIajuste1);
}

TEST_F(JanelasDoAjuste, pelo_autopropelido_vão_dos_ensaios_à_simulação) {
    clicarMenu("TX20d");
    clicar(form_AjVen, "Option6");
    abrirEnsaio("Command11", form_MiE1, "ensaio_movel_1.txt");
    abrirEnsaio("Command12", form_MiE2, "ensaio_movel_2.txt");
    caixas.clear();
    clicar(form_AjVen, "Command17");
    ASSERT_EQ(caixas.size(), 2u);
    EXPECT_FALSE(widget<QPushButton>(form_AjVen, "Command8").isVisible());
    EXPECT_FALSE(widget<QPushButton>(form_AjVen, "Command16").isEnabled());

    clicar(form_AjVen, "Command15");
    EXPECT_EQ(janela(form_MIgraf2).windowTitle(), "Ensaio 2: Precipitações Observadas x Estimadas");
    auto& gráfico = widget<WidgetDesenho>(form_MIgraf2, "Picture1");
    const auto meio = gráfico.quadroDosEixos().center();
    moverMouse(gráfico, meio);
    EXPECT_NE(rótulo(form_MIgraf2, "Label14I"), "I = 0.000 mm");
    EXPECT_EQ(rótulo(form_MIgraf2, "Label14I"), QString::fromStdString(form_MIgraf2->Label14I.texto));
    clicar(form_MIgraf2, "Command2");
    EXPECT_EQ(janela(form_MIajuste1).windowTitle(), "Dados de Lâmina e Precipitação Estimados no Ensaio 2");
    EXPECT_EQ(widget<WidgetTabela>(form_MIajuste1, "flex_A")
                  .model()
                  ->headerData(0, Qt::Horizontal, Qt::DisplayRole)
                  .toString(),
              "Lâmina (mm)");
    clicar(form_MIajuste1, "Command2");
    salvarESimular();
}

TEST_F(JanelasDoAjuste, as_leituras_digitadas_vão_célula_a_célula) {
    clicarMenu("TX20c");
    clicar(form_AjVen, "Command4");
    apagarEDigitar(form_E1, "Text5", "1.5");
    QTest::keyClick(&widget<QLineEdit>(form_E1, "Text5"), Qt::Key_Return);
    EXPECT_EQ(form_E1->flex_A.célula(1, 1), "1.500");
    const auto& tabela = widget<WidgetTabela>(form_E1, "flex_A");
    EXPECT_EQ(tabela.model()->data(tabela.model()->index(0, 0), Qt::DisplayRole).toString(), "1.500");
    EXPECT_EQ(widget<QLineEdit>(form_E1, "Text5").text(), "");
    EXPECT_FALSE(widget<QLabel>(form_E1, "Label8").isVisible());
    clicar(form_E1, "Option3");
    EXPECT_TRUE(widget<QLabel>(form_E1, "Label8").isVisible());
    EXPECT_TRUE(widget<QLabel>(form_E1, "Label14").isVisible());
    EXPECT_TRUE(widget<QLineEdit>(form_E1, "Text7").isVisible());
}

/// Counts how often a widget painted itself.
class ContagemDePinturas : public QObject {
  public:
    explicit ContagemDePinturas(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* evento) override {
        quantas += evento->type() == QEvent::Paint;
        return false;
    }
    int quantas = 0;
};

TEST_F(JanelasDoAjuste, enquanto_ajustam_a_barra_anda_e_a_janela_se_pinta) {
    abrirMalha();
    std::vector<int> valores;
    std::vector<QString> textos;
    std::optional<ContagemDePinturas> pinturas, pinturasDoGráfico;
    int vistas = 0, vistasDoGráfico = 0;
    QStringList etapas;
    duranteOAjuste(
        [&] {
            const auto& barra = widget<QProgressBar>(form_AjCar, "ProgressBar1");
            if (!pinturas) {
                pinturas.emplace(widget<QProgressBar>(form_AjCar, "ProgressBar1"));
                pinturasDoGráfico.emplace(widget<WidgetDesenho>(form_AjCar, "Picture1"));
            }
            const auto etapa = rótulo(form_AjCar, "lblEtapa").section('.', 0, 0);
            if (!etapas.contains(etapa)) etapas << etapa;
            EXPECT_TRUE(widget<QLabel>(form_AjCar, "lblEtapa").isVisible());
            if (valores.empty() || valores.back() != barra.value()) valores.push_back(barra.value());
            const auto texto = rótulo(form_AjCar, "Label1");
            if (textos.empty() || textos.back() != texto) textos.push_back(texto);
            EXPECT_TRUE(janela(form_AjCar).isVisible());
            vistas = pinturas->quantas;
            vistasDoGráfico = pinturasDoGráfico->quantas;
        },
        [&] { clicar(form_AjVen, "Command5"); });
    // A hundred quarters of the simplex, each a step of the widget.
    ASSERT_GT(valores.size(), 100u);
    constexpr int quartos = 4;
    EXPECT_LT(valores.front(), 5 * quartos);
    EXPECT_EQ(valores.back(), 56 * quartos);
    EXPECT_GT(textos.size(), 3u);
    EXPECT_TRUE(textos.back().startsWith("Desvio Médio: ")) << textos.back().toStdString();
    EXPECT_GT(vistas, 20);
    EXPECT_GT(vistasDoGráfico, 20);
    etapas.removeAll("Preparação dos ensaios");
    EXPECT_EQ(etapas, (QStringList{"Etapa 1 de 3: simplex", "Etapa 2 de 3: descida pelo gradiente",
                                   "Etapa 3 de 3: método de Newton"}));
}

TEST_F(JanelasDoAjuste, enquanto_ajustam_nada_mais_começa_nem_espera_sua_vez) {
    abrirMalha();
    apagarEDigitar(form_E1, "Combo1", "6.0");
    const auto clicarDepois = [](QWidget& alvo) {
        const QPointF lugar{10, alvo.height() / 2.0};
        for (const auto tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(&alvo,
                                        new QMouseEvent{tipo, lugar, alvo.mapToGlobal(lugar), Qt::LeftButton,
                                                        Qt::LeftButton, Qt::NoModifier});
    };
    bool agendados = false;
    dialogos().mensagem = [&](const QString& texto, const QString&) {
        caixas.push_back(texto);
        if (std::exchange(agendados, true)) return;
        // Clicks that wait in the queue when the search begins.
        clicarDepois(widget(form_AjVen, "Command5"));
        clicarDepois(widget(form_AjVen, "Command1"));
        clicarDepois(widget(form_AjVen, "Option7"));
    };
    int tentativas = 0;
    duranteOAjuste(
        [&] {
            ++tentativas;
            clicar(form_AjVen, "Command5");
            clicar(form_AjVen, "Option6");
            clicar(form_E1, "Command2");
            clicar(form_AjVen, "Combo1");
            QTest::keyClicks(&widget(form_E1, "Text5"), "7");
            QTest::keyClick(&janela(form_AjVen), Qt::Key_F, Qt::AltModifier);
        },
        [&] { clicar(form_AjVen, "Command5"); });
    EXPECT_GT(tentativas, 100);
    QCoreApplication::processEvents();

    EXPECT_EQ(caixas.size(), 2u) << "the factor and the deviation of one fit";
    EXPECT_TRUE(form_AjVen.visivel);
    EXPECT_TRUE(form_AjVen->Option5.marcada);
    EXPECT_FALSE(form_E1->flex_A.célula(9, 9).empty());
    EXPECT_FALSE(widget<QLineEdit>(form_E1, "Text5").text().contains("7"));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    // What is done afterwards counts again.
    clicar(form_AjVen, "Option7");
    EXPECT_TRUE(form_AjVen->Option7.marcada);
}

TEST_F(JanelasDoAjuste, enquanto_ajustam_nenhuma_janela_se_fecha) {
    abrirMalha();
    // Before the search begins one waits in the queue.
    dialogos().mensagem = [this](const QString& texto, const QString&) {
        if (caixas.empty()) QCoreApplication::postEvent(&janela(form_AjVen), new QCloseEvent);
        caixas.push_back(texto);
    };
    int tentativas = 0;
    duranteOAjuste(
        [&] {
            ++tentativas;
            for (auto* tela : {static_cast<TelaBase*>(&form_AjCar), static_cast<TelaBase*>(&form_AjVen),
                               static_cast<TelaBase*>(&form_E1)}) {
                EXPECT_FALSE(janela(*tela).close());
                QTest::keyClick(&janela(*tela), Qt::Key_Escape);
                EXPECT_TRUE(tela->visivel) << tela->nome();
            }
        },
        [&] { clicar(form_AjVen, "Command5"); });
    EXPECT_GT(tentativas, 100);
    QCoreApplication::processEvents();
    EXPECT_EQ(caixas.size(), 2u) << "the factor and the deviation of one fit";
    EXPECT_TRUE(form_AjVen.visivel);
    EXPECT_TRUE(form_E1.visivel);
    janela(form_AjVen).close();
    EXPECT_FALSE(form_AjVen.carregada());
}

TEST_F(JanelasDoAjuste, um_ajuste_que_não_pode_continuar_deixa_as_janelas_usáveis) {
    abrirMalha();
    for (int k = 0; k < 30; ++k) QTest::keyClick(&widget(form_E1, "HScroll2"), Qt::Key_Left);
    ASSERT_EQ(rótulo(form_E1, "Label17"), "0.0");
    clicar(form_AjVen, "Command5");
    ASSERT_EQ(caixas.size(), 2u);
    EXPECT_TRUE(caixas[1].contains("o ajuste não pôde continuar")) << caixas[1].toStdString();
    EXPECT_EQ(janelas->janela(form_AjCar), nullptr);
    EXPECT_EQ(rótulo(form_AjVen, "Label18"), "");
    clicar(form_AjVen, "Option6");
    EXPECT_TRUE(widget<QPushButton>(form_AjVen, "Command3").isEnabled());
}

} // namespace
} // namespace varenta::teste
