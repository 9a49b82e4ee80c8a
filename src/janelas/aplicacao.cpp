#include "janelas/aplicacao.h"

#include "comum/plataforma.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QPalette>
#include <QStyleFactory>

#include <clocale>
#include <exception>

/// Outside of any namespace, as the macro asks.
static void carregarRecursos() {
    Q_INIT_RESOURCE(recursos);
    Q_INIT_RESOURCE(ajuda);
    Q_INIT_RESOURCE(telas_da_ajuda);
}

namespace {

/// Light whatever the desktop's theme: the charts and the drawings are made for it.
QPalette paletaClara() {
    QPalette paleta{QColor{0xf1, 0xf3, 0xf5}, QColor{0xf1, 0xf3, 0xf5}};
    paleta.setColor(QPalette::Button, QColor{0xe6, 0xe9, 0xec});
    paleta.setColor(QPalette::Base, Qt::white);
    paleta.setColor(QPalette::AlternateBase, QColor{0xf4, 0xf7, 0xfa});
    const QColor texto{0x1d, 0x23, 0x29};
    for (const auto papel :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        paleta.setColor(papel, texto);
    const QColor apagado{0x8b, 0x93, 0x9b};
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        paleta.setColor(QPalette::Disabled, papel, apagado);
    paleta.setColor(QPalette::Highlight, QColor{0x1f, 0x6f, 0xb2});
    paleta.setColor(QPalette::HighlightedText, Qt::white);
    return paleta;
}

} // namespace

Aplicacao::Aplicacao(int& argc, char** argv) : QApplication{argc, argv} {
    // The application object takes the numbers of the environment's locale: "1.5" would then be read as 1.
    std::setlocale(LC_NUMERIC, "C");
    carregarRecursos();
    setApplicationName(QStringLiteral("Varenta"));
    // What ties the windows to the desktop entry, and so to its icon, where there are no icons of windows.
    setDesktopFileName(QStringLiteral("varenta"));
    setWindowIcon(QIcon{QStringLiteral(":/imagens/varenta.svg")});
    setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    setPalette(paletaClara());
    // Windows hide and show in turn; the program ends when the main one is closed.
    setQuitOnLastWindowClosed(false);
    if (tradução_.load(QStringLiteral("qtbase_pt_BR"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(&tradução_);
}

bool Aplicacao::notify(QObject* objeto, QEvent* evento) {
    try {
        return QApplication::notify(objeto, evento);
    } catch (const std::exception& e) {
        varenta::plataforma::erroDeExecucao(e.what());
        return true;
    }
}
