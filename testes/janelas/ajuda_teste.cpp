#include "com_janelas.h"

#include "comum/ajuda.h"
#include "comum/erro_execucao.h"
#include "janelas/dialogos.h"
#include "janelas/janela_ajuda.h"

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTextBrowser>

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
