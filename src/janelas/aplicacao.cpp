#include "janelas/aplicacao.h"

#include "comum/plataforma.h"
#include "janelas/paletas.h"

#include <QHash>
#include <QIcon>
#include <QLibraryInfo>
#include <QStyleFactory>

#include <clocale>
#include <exception>

/// Outside of any namespace, as the macro asks.
static void carregarRecursos() {
    Q_INIT_RESOURCE(recursos);
    Q_INIT_RESOURCE(ajuda);
    Q_INIT_RESOURCE(telas_da_ajuda);
}

QString TraducaoQueFalta::translate(const char* contexto, const char* texto, const char*, int) const {
    static const QHash<QByteArray, QString> tipos{
        {"Folder", QStringLiteral("Pasta")},       {"File", QStringLiteral("Arquivo")},
        {"%1 File", QStringLiteral("Arquivo %1")}, {"Drive", QStringLiteral("Unidade")},
        {"Shortcut", QStringLiteral("Atalho")},    {"Unknown", QStringLiteral("Desconhecido")}};
    return qstrcmp(contexto, "QAbstractFileIconProvider") == 0 ? tipos.value(texto) : QString{};
}

Aplicacao::Aplicacao(int& argc, char** argv) : QApplication{argc, argv} {
    // The application object takes the numbers of the environment's locale: "1.5" would then be read as 1.
    std::setlocale(LC_NUMERIC, "C");
    carregarRecursos();
    setApplicationName(QStringLiteral("Varenta"));
    // What ties the windows to the desktop entry, and so to its icon, where there are no icons of windows.
    setDesktopFileName(QStringLiteral("varenta"));
    setWindowIcon(QIcon{QStringLiteral(":/imagens/varenta.svg")});
    const bool escura = éEscura(palette());
    setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    setPalette(escura ? paletaEscura() : paletaClara());
    // Windows hide and show in turn; the program ends when the main one is closed.
    setQuitOnLastWindowClosed(false);
    if (tradução_.load(QStringLiteral("qtbase_pt_BR"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(&tradução_);
    installTranslator(&traduçãoQueFalta_);
}

bool Aplicacao::notify(QObject* objeto, QEvent* evento) {
    try {
        return QApplication::notify(objeto, evento);
    } catch (const std::exception& e) {
        varenta::plataforma::erroDeExecucao(e.what());
        return true;
    }
}
