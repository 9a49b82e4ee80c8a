#include "com_janelas.h"

#include "comum/ajuda.h"
#include "comum/erro_execucao.h"
#include "janelas/dialogos.h"
#include "janelas/janela_ajuda.h"

#include <QAction>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextDocument>

#include <algorithm>
#include <set>

namespace varenta::teste {
namespace {

QString ler(const QString& nome) {
    QFile arquivo{QString::fromLatin1(pastaDaAjuda) + nome};
    EXPECT_TRUE(arquivo.open(QIODevice::ReadOnly)) << nome.toStdString();
    return QString::fromUtf8(arquivo.readAll());
}

/// What an attribute holds everywhere in a text.
QStringList valoresDe(const QString& texto, const char* atributo) {
    const QRegularExpression padrão{QStringLiteral("\\b%1=\"([^\"]*)\"").arg(QLatin1String{atributo})};
    QStringList valores;
    for (auto achados = padrão.globalMatch(texto); achados.hasNext();) valores << achados.next().captured(1);
    return valores;
}

bool existe(const QString& nome) { return QFile::exists(QString::fromLatin1(pastaDaAjuda) + nome); }

TEST(Ajuda, TodaPáginaTemTítuloETexto) {
    for (const auto& página : lerPáginasDaAjuda()) {
        EXPECT_FALSE(página.título.isEmpty()) << página.arquivo.toStdString();
        EXPECT_GT(página.texto.size(), 200) << página.arquivo.toStdString();
    }
}

TEST(Ajuda, CadaTópicoTemUmaPáginaESóUma) {
    std::multiset<int> tópicos;
    for (const auto& página : lerPáginasDaAjuda())
        tópicos.insert(página.tópicos.begin(), página.tópicos.end());
    for (const auto* tela : telasEmOrdem()) {
        const int tópico = tela->eventos().tópicoDaAjuda;
        EXPECT_EQ(tópicos.count(tópico), tópico == 0 ? 0u : 1u) << tela->nome() << ' ' << tópico;
    }
}

TEST(Ajuda, TodaTelaTemUmTópicoMenosAPrincipalEASobre) {
    for (const auto* tela : telasEmOrdem())
        EXPECT_EQ(tela->eventos().tópicoDaAjuda == 0, tela->nome() == "Form3" || tela->nome() == "Form6")
            << tela->nome();
}

TEST(Ajuda, TodoEloETodaFiguraExistem) {
    std::size_t elos = 0, figuras = 0;
    for (const auto& página : lerPáginasDaAjuda()) {
        const auto texto = ler(página.arquivo);
        for (const auto& elo : valoresDe(texto, "href")) {
            const auto arquivo = elo.section(QLatin1Char{'#'}, 0, 0),
                       âncora = elo.section(QLatin1Char{'#'}, 1);
            const auto destino = arquivo.isEmpty() ? página.arquivo : arquivo;
            ASSERT_TRUE(existe(destino)) << página.arquivo.toStdString() << ": " << elo.toStdString();
            const auto alvo = ler(destino);
            EXPECT_TRUE(âncora.isEmpty() || valoresDe(alvo, "id").contains(âncora) ||
                        valoresDe(alvo, "name").contains(âncora))
                << página.arquivo.toStdString() << ": " << elo.toStdString();
            ++elos;
        }
        for (const auto& figura : valoresDe(texto, "src")) {
            EXPECT_TRUE(existe(figura)) << página.arquivo.toStdString() << ": " << figura.toStdString();
            ++figuras;
        }
    }
    EXPECT_GT(elos, 100u);
    EXPECT_GT(figuras, 20u);
}

TEST(Ajuda, ABuscaAchaPalavrasSemAcentosEOrdenaPelasMaisCitadas) {
    const auto páginas = lerPáginasDaAjuda();
    const auto achadas = buscarNaAjuda(páginas, QStringLiteral("LAMINA requerida"));
    ASSERT_FALSE(achadas.empty());
    for (const auto* página : achadas) {
        EXPECT_TRUE(página->texto.contains(QLatin1String{"lamina"}));
        EXPECT_TRUE(página->texto.contains(QLatin1String{"requerida"}));
    }
    EXPECT_TRUE(buscarNaAjuda(páginas, QStringLiteral("xyzzy")).empty());
    EXPECT_TRUE(buscarNaAjuda(páginas, QString{}).empty());
}

/// A text of the sources: literals side by side are one. `antes` is what stands before it.
struct Literal {
    QString texto, antes;
};

std::vector<Literal> literaisDoPrograma() {
    // Comments first, since they may hold quotes.
    static const QRegularExpression peças{
        QStringLiteral(R"re(//[^\n]*|"(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*)re")};
    static const QRegularExpression emendas{QStringLiteral("\"\\s*\"")};
    std::vector<Literal> literais;
    QDirIterator arquivos{QStringLiteral(PASTA_DE_EXEMPLOS "../src"),
                          {"*.cpp", "*.h"},
                          QDir::Files,
                          QDirIterator::Subdirectories};
    while (arquivos.hasNext()) {
        QFile arquivo{arquivos.next()};
        EXPECT_TRUE(arquivo.open(QIODevice::ReadOnly));
        const auto fonte = QString::fromUtf8(arquivo.readAll());
        for (auto achados = peças.globalMatch(fonte); achados.hasNext();) {
            const auto achado = achados.next();
            auto texto = achado.captured();
            if (texto.startsWith(QLatin1Char{'/'})) continue;
            texto = texto.sliced(1, texto.size() - 2);
            texto.replace(emendas, {}).replace(QLatin1String{"\\\""}, QLatin1String{"\""});
            texto.replace(QLatin1String{"\\n"}, QLatin1String{" "});
            literais.push_back({texto, fonte.first(achado.capturedStart()).right(60).trimmed()});
        }
    }
    return literais;
}

/// What a person can be told: what ends as a message does, asks something, or explains a run-time error.
bool éMensagem(const Literal& literal) {
    static const QRegularExpression fim{QStringLiteral("[!?]\\s*$|\\? ")};
    static const QRegularExpression explicação{
        QStringLiteral("(explicarErro|explicarNoEnsaio)\\s*\\($|explicação\\s*=$")};
    return literal.texto.size() > 3 && (literal.texto.contains(fim) || literal.antes.contains(explicação));
}

QString comoSeLê(const QString& página) {
    QTextDocument documento;
    documento.setHtml(ler(página));
    return documento.toPlainText().simplified();
}

TEST(Ajuda, TodaMensagemDoProgramaEstáEntreAsMensagens) {
    const auto página = comoSeLê(QStringLiteral("mensagens.html"));
    // A caption beside the best spacing, not a message.
    const QString legenda = QStringLiteral("MAIOR CUC!");
    int quantas = 0;
    for (const auto& literal : literaisDoPrograma()) {
        if (!éMensagem(literal) || literal.texto == legenda) continue;
        ++quantas;
        // Of what went wrong inside a message the page tells the message.
        const auto começo = literal.texto.section(QLatin1String{": "}, 0, 0) + QStringLiteral(": …!");
        if (página.contains(começo)) continue;
        // Where values come in, the page has "…".
        for (const auto& parte : literal.texto.split(QStringLiteral("%1")))
            EXPECT_TRUE(página.contains(parte.simplified())) << literal.texto.toStdString();
    }
    EXPECT_GT(quantas, 100);
}

TEST(Ajuda, AsMensagensDaAjudaSãoDoPrograma) {
    QString programa;
    for (const auto& literal : literaisDoPrograma())
        programa += literal.texto.simplified() + QLatin1Char{'\n'};
    static const QRegularExpression linha{QStringLiteral("<tr><td width=\"60%\">(.*?)</td>")};
    // Values, and where a message is put together.
    static const QRegularExpression valores{
        QStringLiteral("…|: | [dn]o Ensaio|\\b[0-9]+\\b|\\bA\\b|\\bdeve ser\\b|\\bpontos\\b|;|, | por$|serão "
                       "multiplicados por")};
    int quantas = 0;
    for (auto achadas = linha.globalMatch(ler(QStringLiteral("mensagens.html"))); achadas.hasNext();) {
        QTextDocument documento;
        documento.setHtml(achadas.next().captured(1));
        const auto mensagem = documento.toPlainText();
        auto partes = mensagem.split(valores);
        // The longest part is the message's own.
        const auto própria = std::ranges::max_element(partes, {}, &QString::size)->simplified();
        EXPECT_TRUE(programa.contains(própria)) << mensagem.toStdString() << " | " << própria.toStdString();
        ++quantas;
    }
    EXPECT_GT(quantas, 100);
}

TEST(Ajuda, TodoArquivoDeExemploTemSeuNomeNaAjuda) {
    const auto páginas = ler(QStringLiteral("arquivos.html")) + ler(QStringLiteral("roteiros.html"));
    const QDir exemplos{QStringLiteral(PASTA_DE_EXEMPLOS)};
    int quantos = 0;
    for (const auto& arquivo : exemplos.entryList({"*.txt", "*.csv", "*.roteiro"}, QDir::Files)) {
        EXPECT_TRUE(páginas.contains(QStringLiteral("<code>%1</code>").arg(arquivo)))
            << arquivo.toStdString();
        ++quantos;
    }
    EXPECT_GT(quantos, 15);
    // What a script prints is named along with it.
    for (const auto& arquivo : exemplos.entryList({"*.esperado"}, QDir::Files))
        EXPECT_TRUE(exemplos.exists(arquivo.chopped(8) + QStringLiteral("roteiro"))) << arquivo.toStdString();
    EXPECT_TRUE(páginas.contains(QStringLiteral("<code>.esperado</code>")));
}

TEST(Ajuda, AltECtrlFLevamÀCaixaEEnterAbreOPrimeiroAchado) {
    JanelaDaAjuda janela;
    janela.mostrarTópico(std::nullopt);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    auto* busca = janela.findChild<QLineEdit*>(QStringLiteral("busca"));
    auto* filtro = janela.findChild<QLineEdit*>(QStringLiteral("filtroDoIndice"));
    QTest::keyClick(&janela, Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(busca->hasFocus());
    QTest::keyClick(&janela, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(filtro->hasFocus());
    QTest::keyClick(&janela, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(busca->hasFocus());
    // On the tab that is in front already, too.
    janela.findChild<QTextBrowser*>(QStringLiteral("pagina"))->setFocus();
    QTest::keyClick(&janela, Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(busca->hasFocus());

    QTest::keyClicks(busca, QStringLiteral("xyzzy"));
    const auto antes = janela.páginaAtual();
    QTest::keyClick(busca, Qt::Key_Return);
    EXPECT_EQ(janela.páginaAtual(), antes);
    busca->clear();
    QTest::keyClicks(busca, QStringLiteral("lamina requerida"));
    QTest::keyClick(busca, Qt::Key_Return);
    const auto páginas = lerPáginasDaAjuda();
    const auto achadas = buscarNaAjuda(páginas, QStringLiteral("lamina requerida"));
    EXPECT_EQ(janela.páginaAtual(), achadas.front()->arquivo);

    QTest::keyClick(&janela, Qt::Key_N, Qt::AltModifier);
    QTest::keyClicks(filtro, QStringLiteral("deficit"));
    QTest::keyClick(filtro, Qt::Key_Return);
    EXPECT_EQ(janela.páginaAtual(), QStringLiteral("form9.html"));
}

TEST(Ajuda, AJanelaAbreNoMeioEDepoisOndeFoiDeixada) {
    JanelaDaAjuda janela;
    janela.mostrarTópico(std::nullopt);
    const auto meio = QGuiApplication::primaryScreen()->availableGeometry().center();
    EXPECT_LT((janela.geometry().center() - meio).manhattanLength(), 40);
    janela.move(150, 60);
    const auto deixada = janela.pos();
    janela.hide();
    janela.mostrarTópico(topicos::form5);
    EXPECT_EQ(janela.pos(), deixada);
}

TEST(Ajuda, AJanelaMostraOTópicoABuscaEOÍndice) {
    JanelaDaAjuda janela;
    janela.mostrarTópico(topicos::form5);
    EXPECT_EQ(janela.páginaAtual(), QStringLiteral("form5.html"));
    EXPECT_TRUE(janela.isVisible());
    janela.mostrarTópico(std::nullopt);
    EXPECT_EQ(janela.páginaAtual(), lerPáginasDaAjuda().front().arquivo);
    EXPECT_THROW(janela.mostrarTópico(9999), ErroExecucao);

    auto* achados = janela.findChild<QListWidget*>(QStringLiteral("achados"));
    janela.findChild<QLineEdit*>(QStringLiteral("busca"))->setText(QStringLiteral("xyzzy"));
    ASSERT_EQ(achados->count(), 1);
    EXPECT_EQ(achados->item(0)->text(), QStringLiteral("Nada encontrado"));
    janela.findChild<QLineEdit*>(QStringLiteral("busca"))->setText(QStringLiteral("carreador"));
    ASSERT_GT(achados->count(), 3);
    emit achados->itemClicked(achados->item(0));
    EXPECT_EQ(janela.páginaAtual(), achados->item(0)->data(Qt::UserRole).toString());

    auto* índice = janela.findChild<QListWidget*>(QStringLiteral("indice"));
    janela.findChild<QLineEdit*>(QStringLiteral("filtroDoIndice"))->setText(QStringLiteral("vazao"));
    int visíveis = 0;
    for (int k = 0; k < índice->count(); ++k) {
        if (índice->item(k)->isHidden()) continue;
        ++visíveis;
        EXPECT_TRUE(semAcentos(índice->item(k)->text()).contains(QLatin1String{"vazao"}));
    }
    EXPECT_GT(visíveis, 0);
    EXPECT_LT(visíveis, índice->count());
}

TEST(Ajuda, ALetraMudaEnquantoSeLê) {
    JanelaDaAjuda janela;
    janela.mostrarTópico(std::nullopt);
    const auto& página = *janela.findChild<QTextBrowser*>(QStringLiteral("pagina"));
    const int tamanho = página.font().pointSize();
    const auto mudar = [&](const char* comando, int vezes) {
        for (auto* ação : janela.findChildren<QAction*>())
            if (ação->text() == QLatin1String{comando})
                for (int k = 0; k < vezes; ++k) ação->trigger();
        return página.font().pointSize();
    };
    EXPECT_EQ(mudar("Letra maior", 1), tamanho + 1);
    EXPECT_EQ(mudar("Letra menor", 2), tamanho - 1);
    EXPECT_EQ(mudar("Letra menor", 100), 5);
    EXPECT_EQ(mudar("Letra maior", 100), 40);
}

} // namespace
} // namespace varenta::teste
