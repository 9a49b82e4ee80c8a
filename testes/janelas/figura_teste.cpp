#include "com_janelas.h"

#include "ajuste/form_e.h"
#include "campo/form_unifo.h"
#include "janelas/figura.h"
#include "janelas/figuras_das_telas.h"
#include "janelas/telas.h"
#include "janelas/widget_desenho.h"
#include "roteiro/interprete.h"
#include "uniformidade/form5.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTimer>
#include <QXmlStreamReader>

#include <algorithm>
#include <cctype>
#include <functional>
#include <map>
#include <set>
#include <sstream>

namespace varenta::teste {
namespace {

/// 16 cm at a resolution, as the figures are wide.
int larguraEmPixels(int pontosPorPolegada) { return 604 * pontosPorPolegada / 96; }

/// A road to screens with data, and what its figures must tell.
struct Caminho {
    const char* nome;
    const char* roteiro;
    /// The drawings with data, as "Tela.Desenho".
    std::vector<const char*> desenhos;
    /// What stands in the figures of all of them.
    std::vector<const char*> dados;
};

const Caminho caminhos[] = {
    {"catalogo",
     R"(clicar Form3.TX20B
rolar form1.hsbPressão 60
clicar form1.Command3
escolher Form7.Combo2 6.0
rolar Form7.HScroll1 90
clicar Form7.Command2
clicar Form7.cmdUniformidade
clicar Form4.Command8
escolher Form4.cmbEspaçamento 72
clicar Form4.Command9
clicar Form4.Command5
digitar Form5.txtMan 150
escolher Form5.Combo1 "Outro Valor"
digitar Form5.txtOutro 20
clicar Form5.Command10
clicar Form5.Command3
clicar Form5.Command12
clicar Form5.Command15
)",
     {"form1.Picture1", "Form7.Picture1", "Form7.Picture2", "Form4.Picture1", "Form4.Picture2",
      "Form5.Picture2", "Form5.Picture3", "Form9.Picture1", "Form9.Picture2", "Form_grafFinal.Picture1",
      "Form_grafFinal.Picture2"},
     {"KELMO-TX", "60 m.c.a."}},
    {"mapa",
     R"(clicar Form3.TX20B
clicar form1.Command3
clicar Form7.Command2
clicar Form7.Command3
)",
     {"Form_grafVen.Picture1", "Form_grafVen.Picture2"},
     {"KELMO-TX20", "Bocais: ", "Velocidade do Vento: ", "Direção do Vento: ", "Cruz vermelha: aspersor."}},
    {"malha",
     R"(clicar Form3.TX20c
clicar form_AjVen.Option7
clicar form_AjVen.Command4
responder sim
arquivo ensaio_malha_1.txt
clicar Form_E1.Option5
clicar form_AjVen.Command3
responder sim
arquivo ensaio_malha_2.txt
clicar Form_E2.Option5
clicar form_AjVen.Command6
responder sim
arquivo ensaio_malha_3.txt
clicar Form_E3.Option5
clicar form_AjVen.Command5
clicar form_AjVen.Command8
clicar form_AjVen.Command9
clicar form_AjVen.Command10
)",
     {"form_AjVen.Picture1", "Form_E1.Picture2", "Form_E2.Picture2", "Form_E3.Picture2",
      "Form_graf1.Picture1", "Form_graf1.Picture2", "Form_graf2.Picture1", "Form_graf2.Picture2",
      "Form_graf3.Picture1", "Form_graf3.Picture2"},
     {"KELMO-TX", "50 m.c.a."}},
    {"autopropelido",
     R"(clicar Form3.TX20d
clicar form_AjVen.Option6
clicar form_AjVen.Command11
responder sim
arquivo ensaio_movel_1.txt
clicar Form_MiE1.Option5
clicar form_AjVen.Command12
responder sim
arquivo ensaio_movel_2.txt
clicar Form_MiE2.Option5
clicar form_AjVen.Command17
clicar form_AjVen.Command14
clicar form_AjVen.Command15
)",
     {"form_AjVen.Picture1", "Form_MiE1.Picture2", "Form_MiE2.Picture2", "Form_MIgraf1.Picture1",
      "Form_MIgraf1.Picture2", "Form_MIgraf2.Picture1", "Form_MIgraf2.Picture2"},
     {"KELMO-TX", "m.c.a."}},
    {"medido",
     R"(clicar Form3.Ou_aspB
responder sim
arquivo ensaio_radial_mmh.txt
clicar PerfilForm.Option2
clicar PerfilForm.Command8
clicar Perfil.Command6
rolar Form7.HScroll2 20
clicar Form7.Command8
clicar Form7.Command9
clicar Form4.Command8
clicar Form4.Command9
)",
     {"PerfilForm.Picture1", "Perfil.Picture1", "Form7.Picture1", "Form7.Picture2", "Form4.Picture1",
      "Form4.Picture2"},
     {"Aspersor: Canhão setorial CS-40", "Bocais: 22 x 6 mm", "Pressão: 45 m.c.a.", "20.5 m³/h"}},
    {"ajuste_do_medido",
     R"(clicar Form3.OuAsp_Auto
responder sim
arquivo ensaio_radial_mmh.txt
clicar PerfilForm.Option2
clicar PerfilForm.Command7
)",
     {"Form_AjvenOu.Picture1"},
     {"Aspersor: Canhão setorial CS-40", "Bocais: 22 x 6 mm", "Pressão: 45 m.c.a.", "Vazão: 20.5 m³/h"}},
    {"campo",
     R"(clicar Form3.EnsCampo
responder sim
arquivo ensaio_movel_mm.txt
clicar Form_EC.Option2
clicar Form_EC.Command4
escolher FormUnifo.cmbEspaçamento 36
clicar FormUnifo.cmdCUC
)",
     {"Form_EC.Picture1", "FormUnifo.Picture1", "FormUnifo.Picture2"},
     {"Aspersor: Canhão setorial CS-40", "Bocais: 22 x 6 mm", "Pressão: 45 m.c.a.", "Ângulo",
      "Velocidade do Vento: 0.8 m/s", "Direção do Vento: 120º"}},
};

const char* roteiroDe(std::string_view caminho) {
    return std::ranges::find(caminhos, caminho, &Caminho::nome)->roteiro;
}

/// What an SVG file holds.
struct Svg {
    std::vector<QString> textos;
    int imagens = 0, percursos = 0;

    explicit Svg(const QByteArray& bytes) {
        QXmlStreamReader leitor{bytes};
        QString texto;
        while (!leitor.atEnd()) {
            leitor.readNext();
            const auto nome = leitor.name();
            if (leitor.isStartElement()) {
                imagens += nome == QLatin1String{"image"};
                percursos += nome == QLatin1String{"path"} || nome == QLatin1String{"polyline"};
                if (nome == QLatin1String{"text"})
                    textos.push_back(leitor.readElementText(QXmlStreamReader::IncludeChildElements));
            }
        }
        EXPECT_FALSE(leitor.hasError()) << leitor.errorString().toStdString();
    }

    auto quantos(const QString& texto) const { return std::ranges::count(textos, texto); }
    bool contém(const QString& parte) const {
        return std::ranges::any_of(textos, [&](const QString& t) { return t.contains(parte); });
    }
};

QByteArray ler(const QString& caminho) {
    QFile arquivo{caminho};
    EXPECT_TRUE(arquivo.open(QIODevice::ReadOnly)) << caminho.toStdString();
    return arquivo.readAll();
}

class ComFiguras : public ComJanelas {
  protected:
    void percorrer(const std::string& roteiro) {
        std::ostringstream saída, erros;
        Interprete intérprete{saída, erros};
        intérprete.depoisDeCadaComando = [this] { janelas->atualizar(); };
        ASSERT_EQ(intérprete.executarTexto(roteiro, "caso.roteiro", exemplo("").toStdString()), 0)
            << erros.str();
        janelas->atualizar();
    }

    static TelaBase& tela(const std::string& nome) {
        const auto achada = std::ranges::find(TelaBase::todas(), nome, &TelaBase::nome);
        if (achada == TelaBase::todas().end()) throw std::logic_error{nome + " is no screen"};
        return **achada;
    }

    /// "Form4.Picture1".
    WidgetDesenho& desenho(const char* nome) {
        const auto partes = QString::fromUtf8(nome).split(QLatin1Char{'.'});
        return widget<WidgetDesenho>(tela(partes[0].toStdString()), partes[1].toUtf8().constData());
    }

    static QAction& comando(const WidgetDesenho& desenho, const char* nome) {
        for (auto* ação : desenho.actions())
            if (ação->text().remove(QLatin1Char{'&'}) == QString::fromUtf8(nome)) return *ação;
        throw std::logic_error{std::string{nome} + " isn't offered"};
    }

    /// What was written by the filter of that number.
    QByteArray salvar(const WidgetDesenho& desenho, int filtro, const char* extensão) {
        const auto nome = desenho.window()->objectName() + desenho.objectName();
        const auto caminho = pasta.filePath(nome + QLatin1Char{'.'} + QString::fromUtf8(extensão));
        QFile::remove(caminho);
        arquivos = {caminho};
        filtroEscolhido = filtro;
        caixas.clear();
        comando(desenho, "Salvar figura…").trigger();
        EXPECT_EQ(caixas.size(), 1u) << caixas.back().toStdString();
        return ler(caminho);
    }

    static constexpr int png96 = 1, png150 = 2, png300 = 3, png600 = 4, filtroSvg = 5, filtroPdf = 6;
    QTemporaryDir pasta;
};

class FigurasDoCaminho : public ComFiguras, public testing::WithParamInterface<Caminho> {
  protected:
    void SetUp() override {
        ComFiguras::SetUp();
        percorrer(GetParam().roteiro);
    }
};

/// The drawing that the figure shows, where one is asked for by its colour scale.
QString principal(const QString& nome) {
    static const std::map<QString, QString> escalas{
        {QStringLiteral("Form_grafVen.Picture2"), QStringLiteral("Form_grafVen.Picture1")},
        {QStringLiteral("Form_grafFinal.Picture2"), QStringLiteral("Form_grafFinal.Picture1")}};
    const auto escala = escalas.find(nome);
    return escala == escalas.end() ? nome : escala->second;
}

TEST_P(FigurasDoCaminho, todo_desenho_com_dados_das_telas_é_dos_esperados) {
    std::set<std::string> achados;
    for (auto* t : TelaBase::todas())
        if (t->carregada())
            for (const auto* d : janela(*t).findChildren<WidgetDesenho*>())
                if (temDados(*d, *t)) achados.insert(t->nome() + "." + d->objectName().toStdString());
    for (const auto* nome : GetParam().desenhos) EXPECT_TRUE(achados.contains(nome)) << nome;
}

TEST_P(FigurasDoCaminho, copiadas_levam_imagem_e_desenho_vetorial) {
    for (const auto* nome : GetParam().desenhos) {
        QGuiApplication::clipboard()->clear();
        comando(desenho(nome), "Copiar figura").trigger();
        const auto* dados = QGuiApplication::clipboard()->mimeData();
        const auto imagem = dados->imageData().value<QImage>();
        EXPECT_NEAR(imagem.width(), larguraEmPixels(300), 1) << nome;
        EXPECT_EQ(imagem.dotsPerMeterX(), 11811) << nome;
        EXPECT_EQ(imagem.dotsPerMeterY(), 11811) << nome;
        EXPECT_TRUE(QSvgRenderer{dados->data("image/svg+xml")}.isValid()) << nome;
        EXPECT_TRUE(dados->data("application/pdf").startsWith("%PDF")) << nome;
    }
}

TEST_P(FigurasDoCaminho, em_SVG_têm_eixos_títulos_legenda_e_dados_uma_vez) {
    for (const auto* nome : GetParam().desenhos) {
        SCOPED_TRACE(nome);
        const auto bytes = salvar(desenho(nome), filtroSvg, "svg");
        ASSERT_TRUE(QSvgRenderer{bytes}.isValid());
        const Svg svg{bytes};
        const auto deQuem = principal(QString::fromUtf8(nome)).toUtf8();
        const auto& mostrado = desenho(deQuem.constData());
        auto& telaDele = tela(deQuem.left(deQuem.indexOf('.')).toStdString());

        std::map<QString, int> esperados;
        const auto contar = [&](const QStringList& textos) {
            for (const auto& texto : textos)
                if (!texto.isEmpty()) ++esperados[texto];
        };
        for (const auto* eixo : {"X", "Y"}) {
            contar(mostrado.property(QByteArray{"rotulos"} + eixo + "Fixos").toStringList());
            const auto matriz = mostrado.property(QByteArray{"rotulos"} + eixo).toString().toStdString();
            for (const auto& elemento : telaDele.elementos())
                if (!matriz.empty() && elemento.nome == matriz)
                    contar({QString::fromStdString(std::get<Rotulo*>(elemento.controle)->texto)});
            contar({mostrado.property(QByteArray{"titulo"} + eixo).toString()});
        }
        for (const auto& curva : mostrado.property("legenda").toStringList())
            contar({curva.section(QLatin1Char{'='}, 0, 0)});
        for (const auto* rótulo : mostrado.findChildren<QLabel*>())
            if (!rótulo->isHidden()) contar({rótulo->text()});
        const bool émapa = mostrado.property("proporcional").toBool();
        const bool temEixos =
            mostrado.property("eixos").isValid() && !mostrado.property("eixos").toRectF().isEmpty();
        if (temEixos) {
            EXPECT_GE(esperados.size(), 3u);
        }
        // A scale of colours beside a map shares texts with its axes at most.
        for (const auto& [texto, vezes] : esperados) {
            if (émapa)
                EXPECT_GE(svg.quantos(texto), vezes) << texto.toStdString();
            else
                EXPECT_EQ(svg.quantos(texto), vezes) << texto.toStdString();
        }
        for (const auto* dado : GetParam().dados) EXPECT_TRUE(svg.contém(QString::fromUtf8(dado))) << dado;
        EXPECT_EQ(svg.imagens, émapa ? 1 : 0);
        EXPECT_GE(svg.percursos, temEixos && !émapa ? 20 : 3);
    }
}

TEST_P(FigurasDoCaminho, em_PDF_são_uma_página_com_letras_e_sem_fotografias) {
    for (const auto* nome : GetParam().desenhos) {
        SCOPED_TRACE(nome);
        const auto bytes = salvar(desenho(nome), filtroPdf, "pdf");
        EXPECT_TRUE(bytes.startsWith("%PDF"));
        EXPECT_EQ(bytes.count("/Type /Page\n"), 1);
        EXPECT_TRUE(bytes.contains("/Type /Font"));
        const auto deQuem = principal(QString::fromUtf8(nome)).toUtf8();
        const bool émapa = desenho(deQuem.constData()).property("proporcional").toBool();
        EXPECT_EQ(bytes.count("/Subtype /Image"), émapa ? 1 : 0);
        EXPECT_FALSE(bytes.contains("/DCTDecode"));
        const auto caixa =
            QRegularExpression{QStringLiteral("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]")}.match(
                QString::fromLatin1(bytes));
        // 16 cm in points of 1/72 inch.
        EXPECT_NEAR(caixa.captured(1).toDouble(), 604 * 72 / 96.0, 1);
    }
}

TEST_P(FigurasDoCaminho, não_dependem_do_tema) {
    const auto clara = QApplication::palette();
    QPalette escura{QColor{0x20, 0x20, 0x20}, QColor{0x30, 0x30, 0x30}};
    escura.setColor(QPalette::WindowText, Qt::white);
    for (const auto* nome : GetParam().desenhos) {
        SCOPED_TRACE(nome);
        const auto noClaro = salvar(desenho(nome), png96, "png");
        QApplication::setPalette(escura);
        const auto noEscuro = salvar(desenho(nome), png96, "png");
        QApplication::setPalette(clara);
        EXPECT_EQ(noClaro, noEscuro);
        const auto imagem = QImage::fromData(noEscuro);
        EXPECT_EQ(imagem.dotsPerMeterX(), 3780);
        const int direita = imagem.width() - 1, base = imagem.height() - 1;
        for (const auto canto : {QPoint{0, 0}, {direita, 0}, {0, base}, {direita, base}})
            EXPECT_EQ(imagem.pixelColor(canto), QColor{Qt::white});
    }
}

/// No part is cut off: a frame of a few pixels around everything stays white.
TEST_P(FigurasDoCaminho, ficam_inteiras_na_folha) {
    for (const auto* nome : GetParam().desenhos) {
        const auto imagem = QImage::fromData(salvar(desenho(nome), png96, "png"));
        bool branca = true;
        for (int x = 0; x < imagem.width(); ++x)
            for (int y = 0; y < imagem.height(); ++y) {
                const bool borda = x < 4 || y < 4 || x >= imagem.width() - 4 || y >= imagem.height() - 4;
                branca = branca && (!borda || imagem.pixelColor(x, y) == QColor{Qt::white});
            }
        EXPECT_TRUE(branca) << nome;
    }
}

INSTANTIATE_TEST_SUITE_P(TodosOsCaminhos, FigurasDoCaminho, testing::ValuesIn(caminhos),
                         [](const auto& info) { return std::string{info.param.nome}; });

class ComandosDaFigura : public ComFiguras {
  protected:
    void SetUp() override {
        ComFiguras::SetUp();
        clicarMenu("TX20B");
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela(form1)));
        perfil = &desenho("form1.Picture1");
    }

    static void escolherNoMenu(const char* nome) {
        QTimer::singleShot(0, [=] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            QStringList textos;
            for (const auto* ação : menu->actions()) textos << ação->text().remove(QLatin1Char{'&'});
            EXPECT_EQ(textos, (QStringList{"Copiar figura", "Salvar figura…"}));
            const auto qual = textos.indexOf(QString::fromUtf8(nome));
            ASSERT_GE(qual, 0);
            menu->setActiveAction(menu->actions()[qual]);
            QTest::keyClick(menu, Qt::Key_Return);
        });
    }

    static bool temImagem() {
        const auto* dados = QGuiApplication::clipboard()->mimeData();
        return dados && dados->hasImage();
    }

    WidgetDesenho* perfil = nullptr;
};

TEST_F(ComandosDaFigura, estão_num_menu_do_mouse_e_do_teclado) {
    const auto comMouse = [this] {
        QContextMenuEvent evento{QContextMenuEvent::Mouse, perfil->rect().center(),
                                 perfil->mapToGlobal(perfil->rect().center())};
        QApplication::sendEvent(perfil, &evento);
    };
    const auto comMenu = [this] { QTest::keyClick(perfil, Qt::Key_Menu); };
    const auto comF10 = [this] { QTest::keyClick(perfil, Qt::Key_F10, Qt::ShiftModifier); };
    for (const std::function<void()>& abrir : {std::function<void()>{comMouse}, {comMenu}, {comF10}}) {
        QGuiApplication::clipboard()->clear();
        escolherNoMenu("Copiar figura");
        abrir();
        EXPECT_TRUE(temImagem());
    }
}

TEST_F(ComandosDaFigura, têm_teclas_quando_o_desenho_tem_o_foco) {
    QGuiApplication::clipboard()->clear();
    widget<QWidget>(form1, "Combo1").setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(temImagem());

    QTest::mouseClick(perfil, Qt::LeftButton);
    EXPECT_TRUE(perfil->hasFocus());
    EXPECT_EQ(controleComFoco, &form1->Picture1);
    QTest::keyClick(perfil, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(temImagem());

    arquivos = {std::nullopt};
    QTest::keyClick(perfil, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(caixas.size(), 1u);
}

TEST_F(ComandosDaFigura, oferecem_resoluções_e_formatos) {
    arquivos = {std::nullopt};
    comando(*perfil, "Salvar figura…").trigger();
    EXPECT_EQ(caixas.front().split(";;"),
              (QStringList{"PNG, 96 pontos por polegada (*.png)", "PNG, 150 pontos por polegada (*.png)",
                           "PNG, 300 pontos por polegada (*.png)", "PNG, 600 pontos por polegada (*.png)",
                           "SVG, desenho vetorial (*.svg)", "PDF, uma página do tamanho da figura (*.pdf)"}));
    EXPECT_TRUE(QDir{pasta.path()}.isEmpty());
    const std::pair<int, int> pontosDoFiltro[] = {{png96, 96}, {png150, 150}, {png300, 300}, {png600, 600}};
    for (const auto& [filtro, pontos] : pontosDoFiltro) {
        const auto imagem = QImage::fromData(salvar(*perfil, filtro, "png"));
        EXPECT_NEAR(imagem.width(), larguraEmPixels(pontos), 1);
        EXPECT_EQ(imagem.dotsPerMeterX(), qRound(pontos / 0.0254));
    }
}

TEST_F(ComandosDaFigura, seguem_a_extensão_do_nome_e_completam_a_que_falta) {
    const struct {
        int filtro;
        const char *digitado, *gravado;
        QByteArray começo;
    } casos[] = {{png300, "a.svg", "a.svg", "<?xml"},          {png300, "b.PDF", "b.PDF", "%PDF"},
                 {filtroSvg, "c.png", "c.png", "\x89PNG"},     {filtroPdf, "d", "d.pdf", "%PDF"},
                 {filtroSvg, "e v2.5", "e v2.5.svg", "<?xml"}, {png96, "f", "f.png", "\x89PNG"}};
    for (const auto& caso : casos) {
        arquivos = {pasta.filePath(caso.digitado)};
        filtroEscolhido = caso.filtro;
        comando(*perfil, "Salvar figura…").trigger();
        EXPECT_TRUE(ler(pasta.filePath(caso.gravado)).startsWith(caso.começo)) << caso.digitado;
    }
    EXPECT_EQ(QDir{pasta.path()}.entryList(QDir::Files).size(), 6);
}

TEST_F(ComandosDaFigura, substituem_um_arquivo_só_depois_de_perguntar) {
    const auto caminho = pasta.filePath("figura.svg");
    QFile antigo{caminho};
    ASSERT_TRUE(antigo.open(QIODevice::WriteOnly));
    antigo.write("antigo");
    antigo.close();
    filtroEscolhido = filtroSvg;
    for (const bool sim : {false, true}) {
        // The ending that the name lacks counts too.
        arquivos = {pasta.filePath("figura")};
        respostas = {sim};
        comando(*perfil, "Salvar figura…").trigger();
        EXPECT_EQ(caixas.back(), "O arquivo figura.svg já existe. Deseja substituí-lo?");
        EXPECT_EQ(ler(caminho) == "antigo", !sim);
    }
}

TEST_F(ComandosDaFigura, contam_por_que_um_arquivo_não_pôde_ser_salvo) {
    arquivos = {pasta.filePath("inexistente/figura.pdf")};
    filtroEscolhido = filtroPdf;
    comando(*perfil, "Salvar figura…").trigger();
    ASSERT_EQ(caixas.size(), 2u);
    EXPECT_TRUE(caixas.back().startsWith("O arquivo não pôde ser salvo: ")) << caixas.back().toStdString();
    EXPECT_TRUE(caixas.back().endsWith("!"));
    EXPECT_TRUE(QDir{pasta.path()}.isEmpty());
}

TEST_F(ComandosDaFigura, o_diálogo_do_Qt_diz_o_arquivo_e_o_filtro) {
    const auto resposta = [&](int linha) {
        QTimer::singleShot(0, [=, this] {
            auto* diálogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(diálogo, nullptr);
            EXPECT_EQ(diálogo->windowTitle(), "Salvar Figura");
            EXPECT_EQ(diálogo->selectedNameFilter(), "B (*.b)");
            diálogo->selectNameFilter(diálogo->nameFilters()[linha]);
            diálogo->selectFile(pasta.filePath("nome"));
            QMetaObject::invokeMethod(diálogo, "accept");
        });
        return dialogosDoQt().figuraParaSalvar("A (*.a);;B (*.b);;C (*.c)", 2);
    };
    const auto escolhido = resposta(2);
    ASSERT_TRUE(escolhido);
    EXPECT_EQ(escolhido->caminho, pasta.filePath("nome"));
    EXPECT_EQ(escolhido->filtro, 3);
}

/// From the menu to the strip of the default study, not calculated yet.
const std::string atéAFaixa = R"(clicar Form3.TX20B
clicar form1.Command3
clicar Form7.Command2
clicar Form7.cmdUniformidade
clicar Form4.Command8
clicar Form4.Command9
clicar Form4.Command5
)";
/// The default study's strip: its greatest depth is above the last tick of the scale, which is rounded down.
const std::string faixaAcimaDaEscala = atéAFaixa + "clicar Form5.Command10\n";

QImage quadroDoSvg(const QByteArray& svg, QSize tamanho) {
    QImage imagem{tamanho, QImage::Format_RGB32};
    imagem.fill(Qt::white);
    QPainter pintor{&imagem};
    QSvgRenderer{svg}.render(&pintor);
    return imagem;
}

/// How many rows of the blue curve's middle lie above the highest grey line, which is of the heavy or light
/// grid.
int linhasAcimaDaMalha(const QImage& imagem) {
    const auto azul = [](QColor c) { return c.blue() > 200 && c.red() < 80 && c.green() < 80; };
    const auto malha = [](QColor c) { return c.red() > 150 && c.red() < 245 && c.blue() - c.red() < 12; };
    int acima = 0;
    // The title stands in the first tenth.
    for (int y = imagem.height() / 10; y < imagem.height(); ++y) {
        int azuis = 0, cinzas = 0;
        for (int x = imagem.width() / 4; x < imagem.width() * 3 / 4; ++x) {
            azuis += azul(imagem.pixelColor(x, y));
            cinzas += malha(imagem.pixelColor(x, y));
        }
        if (cinzas > imagem.width() / 4) return acima;
        acima += azuis > imagem.width() / 20;
    }
    return acima;
}

TEST_F(ComFiguras, a_curva_que_passa_da_última_marca_está_inteira_na_tela_e_no_papel) {
    percorrer(faixaAcimaDaEscala);
    auto& gráfico = desenho("Form5.Picture2");
    double topo = 1e9;
    QPointF pico;
    for (const auto& traço : form5->Picture2.traços)
        if (const auto* linha = std::get_if<Linha>(&traço); linha && linha->cor == cores::azul)
            if (linha->y1 < topo) {
                topo = linha->y1;
                pico = QPointF{linha->x1, linha->y1};
            }
    ASSERT_LT(topo, 7);
    const auto naTela = gráfico.grab().toImage();
    const auto lugar = gráfico.transformação().map(pico).toPoint();
    ASSERT_LT(lugar.y(), gráfico.quadroDosEixos().top());
    EXPECT_GT(naTela.pixelColor(lugar).blue(), naTela.pixelColor(lugar).red() + 100);

    EXPECT_GT(linhasAcimaDaMalha(imagemDaFigura(figuraDaTela(gráfico, form5), 96)), 0);
    const auto svg = salvar(gráfico, filtroSvg, "svg");
    EXPECT_GT(linhasAcimaDaMalha(quadroDoSvg(svg, QSvgRenderer{svg}.defaultSize())), 0);
}

class DadosDaFigura : public ComFiguras {
  protected:
    QStringList dadosDe(const char* nome) {
        const auto partes = QString::fromUtf8(nome).split(QLatin1Char{'.'});
        return figuraDaTela(desenho(nome), tela(partes[0].toStdString())).dados;
    }
};

TEST_F(DadosDaFigura, entradas_que_mudaram_depois_do_cálculo_não_são_dele) {
    percorrer("clicar Form3.TX20B\nclicar form1.Command3\ndigitar Form7.Text1 40\nclicar Form7.Command2\n");
    EXPECT_TRUE(dadosDe("Form7.Picture2").contains("Velocidade: 40 m/h"));
    form7.mostrar();
    apagarEDigitar(form7, "Text1", "70");
    const auto dados = dadosDe("Form7.Picture2");
    EXPECT_FALSE(dados.join(' ').contains("Velocidade: "));
    EXPECT_TRUE(dados.contains("As entradas mudaram depois do cálculo que a figura mostra."));
    EXPECT_TRUE(dados.contains("ASPERSOR: KELMO-TX20"));
    // The sketch shows the inputs as they are.
    EXPECT_TRUE(dadosDe("Form7.Picture1").contains("Velocidade: 70 m/h"));
}

TEST_F(DadosDaFigura, o_espaçamento_é_o_que_foi_sobreposto) {
    percorrer(R"(clicar Form3.TX20B
clicar form1.Command3
clicar Form7.Command2
clicar Form7.cmdUniformidade
clicar Form4.Command8
escolher Form4.cmbEspaçamento 66
clicar Form4.Command9
)");
    EXPECT_TRUE(dadosDe("Form4.Picture1").contains("Espaçamento entre Carreadores: 66 m"));
    form4->cmbEspaçamento.texto = "72";
    form4->cmbEspaçamento.aoMudar();
    EXPECT_FALSE(dadosDe("Form4.Picture1").join(' ').contains("entre Carreadores"));
}

TEST_F(DadosDaFigura, na_sobreposição_medida_é_o_melhor_até_que_se_sobreponha_outro) {
    percorrer(roteiroDe("campo"));
    EXPECT_TRUE(dadosDe("FormUnifo.Picture1").contains("Sobreposição para o Espaçamento: 36 m"));
    percorrer(R"(clicar Form3.EnsCampo
responder sim
arquivo ensaio_movel_mm.txt
clicar Form_EC.Option2
clicar Form_EC.Command4
)");
    EXPECT_TRUE(dadosDe("FormUnifo.Picture1").contains("Espaçamento: E = 24 m"));
}

TEST_F(DadosDaFigura, de_uma_comparação_dizem_os_coletores_e_o_percurso_comparados) {
    const auto contém = [&](const char* nome, const QStringList& esperados) {
        const auto dados = dadosDe(nome);
        for (const auto& esperado : esperados)
            EXPECT_TRUE(dados.contains(esperado)) << nome << " " << esperado.toStdString();
    };
    percorrer(roteiroDe("malha"));
    const QStringList malha{"Espaçamento entre Coletores: 6.0 m", "Coletores: 18 x 18"};
    for (const auto* nome : {"Form_graf1.Picture1", "Form_graf1.Picture2"}) contém(nome, malha);
    // What the test's screen has afterwards isn't what the figure shows.
    form_E1->Combo1.texto = "3.0";
    contém("Form_graf1.Picture1", malha);

    percorrer(roteiroDe("autopropelido"));
    const QStringList móvel{"Espaçamento entre Coletores: 3.0 m", "Coletores de Cada Lado: 20",
                            "Velocidade: 40 m/h", "Ângulo de Giro: 240º"};
    for (const auto* nome : {"Form_MIgraf1.Picture1", "Form_MIgraf1.Picture2"}) contém(nome, móvel);
}

TEST_F(DadosDaFigura, da_sobreposição_medida_têm_o_espaçamento_dos_coletores) {
    percorrer(roteiroDe("campo"));
    for (const auto* nome : {"FormUnifo.Picture1", "FormUnifo.Picture2"})
        EXPECT_TRUE(dadosDe(nome).contains("Espaçamento entre Coletores: 2.0 m")) << nome;
    EXPECT_TRUE(dadosDe("FormUnifo.Picture2")
                    .contains("Espaçamento de Maior CUC: " +
                              QString::fromStdString(formUnifo->lblE.texto).simplified()));
}

TEST_F(DadosDaFigura, da_faixa_são_os_de_quando_foi_desenhada) {
    percorrer(roteiroDe("catalogo"));
    const QStringList faixa{"Cc = 150 m", "Ci = 20 m", "Cf = 0 m"};
    const char* nomes[] = {"Form9.Picture1", "Form9.Picture2", "Form_grafFinal.Picture1"};
    const auto conferir = [&] {
        for (const auto* nome : nomes)
            for (const auto& esperado : faixa)
                EXPECT_TRUE(dadosDe(nome).contains(esperado)) << nome << esperado.toStdString();
    };
    conferir();
    EXPECT_TRUE(dadosDe("Form5.Picture2").contains("Cc = 150 m"));
    form5->txtMan.texto = "200";
    form5->txtMan.aoMudar();
    EXPECT_FALSE(dadosDe("Form5.Picture2").contains("Cc = 150 m"));
    conferir();
}

TEST_F(DadosDaFigura, da_faixa_têm_as_paradas) {
    percorrer(atéAFaixa + R"(escolher Form5.Combo1 "Outro Valor"
digitar Form5.txtOutro 20
clicar Form5.chkParada
digitar Form5.txtParada 30
clicar Form5.Command10
clicar Form5.Command12
)");
    EXPECT_TRUE(dadosDe("Form9.Picture1").contains("Tpi = 30 min"));
    EXPECT_FALSE(dadosDe("Form9.Picture1").join(' ').contains("Tpf"));
}

TEST_F(DadosDaFigura, a_legenda_ao_lado_do_desenho_tem_suas_cores) {
    percorrer(roteiroDe("autopropelido"));
    const auto figura = figuraDaTela(desenho("Form_MIgraf1.Picture1"), tela("Form_MIgraf1"));
    EXPECT_EQ(figura.título, "Lâminas observadas e estimadas no ensaio 1");
    EXPECT_EQ(figura.desenho.conteúdo.legenda,
              (QStringList{"Estimadas=#0000ff", "Observadas=#ff0000:pontos"}));
}

TEST_F(DadosDaFigura, o_bocal_que_não_há_e_o_que_está_vazio_não_aparecem) {
    percorrer("clicar Form3.TX30B\n");
    const auto dados = dadosDe("form1.Picture1").join("; ");
    EXPECT_TRUE(dados.contains("Bocal Principal: "));
    EXPECT_FALSE(dados.contains("Auxiliar")) << dados.toStdString();
    percorrer("clicar Form3.Ou_aspB\ndigitar PerfilForm.Text7 Teste\n");
    EXPECT_EQ(dadosDe("PerfilForm.Picture1").first(), "Aspersor: Teste");
    EXPECT_FALSE(dadosDe("PerfilForm.Picture1").join(' ').contains("Bocais"));
}

TEST_F(DadosDaFigura, a_unidade_da_pressão_é_a_escolhida) {
    percorrer("clicar Form3.TX20B\nclicar form1.optKPA\n");
    EXPECT_TRUE(dadosDe("form1.Picture1")
                    .contains("Pressão: " + QString::fromStdString(form1->lblPressão.texto) + " kPa"));
}

TEST_F(DadosDaFigura, ilustrações_são_só_o_desenho) {
    const auto& ilustração = desenho("Form3.Picture1");
    EXPECT_FALSE(temDados(ilustração, form3));
    EXPECT_TRUE(QSvgRenderer{salvar(ilustração, filtroSvg, "svg")}.isValid());
    EXPECT_TRUE(figuraDaTela(ilustração, form3).dados.isEmpty());
}

TEST(TodosOsDesenhos, estão_em_algum_dos_caminhos) {
    // The chart of a fit shows only while the fit runs, when a person can ask for nothing.
    std::set<std::string> mostrados{"Form_AjCar.Picture1"}, existentes;
    const auto semNúmero = [](std::string nome) {
        const auto ponto = nome.find('.');
        if (nome.starts_with("Form_") && std::isdigit(static_cast<unsigned char>(nome[ponto - 1])))
            nome.erase(ponto - 1, 1);
        return nome;
    };
    for (const auto& caminho : caminhos)
        for (const auto* nome : caminho.desenhos) mostrados.insert(semNúmero(nome));
    for (const auto& modelo : janelasDoPrograma()) {
        const auto janela = modelo.criar();
        for (const auto* d : janela->findChildren<WidgetDesenho*>())
            if (modelo.tela != &form3 && modelo.tela->nome() != "Form6")
                existentes.insert(semNúmero(modelo.tela->nome() + "." + d->objectName().toStdString()));
    }
    EXPECT_EQ(mostrados, existentes);
}

} // namespace
} // namespace varenta::teste
