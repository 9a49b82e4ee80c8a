#include "janelas/comandos_da_figura.h"

#include "comum/erro_execucao.h"
#include "janelas/dialogos.h"
#include "janelas/figuras_das_telas.h"
#include "janelas/gravar_copia.h"
#include "janelas/widget_desenho.h"

#include <QAction>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>

#include <algorithm>
#include <optional>

namespace {

constexpr int resoluçãoUsual = 300;

/// A kind of file, as the dialog offers it.
struct FormatoDeFigura {
    const char* nome;
    const char* extensão;
    QByteArray (*bytes)(const Figura& figura);
};

template <int pontosPorPolegada>
QByteArray png(const Figura& figura) {
    return pngDaFigura(figura, pontosPorPolegada);
}

constexpr FormatoDeFigura formatos[] = {
    {"PNG, 96 pontos por polegada", "png", png<96>},
    {"PNG, 150 pontos por polegada", "png", png<150>},
    {"PNG, 300 pontos por polegada", "png", png<resoluçãoUsual>},
    {"PNG, 600 pontos por polegada", "png", png<600>},
    {"SVG, desenho vetorial", "svg", svgDaFigura},
    {"PDF, uma página do tamanho da figura", "pdf", pdfDaFigura},
};
constexpr int formatoInicial = 3;

QString filtros() {
    QStringList todos;
    for (const auto& formato : formatos)
        todos << QStringLiteral("%1 (*.%2)")
                     .arg(QString::fromUtf8(formato.nome), QString::fromUtf8(formato.extensão));
    return todos.join(QStringLiteral(";;"));
}

/// The file to write, and how.
struct Destino {
    QString caminho;
    const FormatoDeFigura* formato;
};

/// The ending of the name tells the format, and only where it is none of them the filter, which then ends the
/// name. The filter always tells a PNG file's resolution.
Destino destinoDe(const varenta::ArquivoEscolhido& escolhido) {
    const auto* doFiltro = &formatos[escolhido.filtro - 1];
    const auto extensão = QFileInfo{escolhido.caminho}.suffix().toLower();
    if (extensão == QLatin1String{doFiltro->extensão}) return {escolhido.caminho, doFiltro};
    if (extensão == QLatin1String{"png"}) return {escolhido.caminho, &formatos[formatoInicial - 1]};
    const auto daExtensão = std::ranges::find(
        formatos, extensão, [](const FormatoDeFigura& f) { return QString::fromUtf8(f.extensão); });
    if (daExtensão != std::end(formatos)) return {escolhido.caminho, &*daExtensão};
    return {escolhido.caminho + QLatin1Char{'.'} + QLatin1String{doFiltro->extensão}, doFiltro};
}

void copiar(const Figura& figura) {
    auto dados = std::make_unique<QMimeData>();
    dados->setImageData(imagemDaFigura(figura, resoluçãoUsual));
    dados->setData(QStringLiteral("image/svg+xml"), svgDaFigura(figura));
    dados->setData(QStringLiteral("application/pdf"), pdfDaFigura(figura));
    QGuiApplication::clipboard()->setMimeData(dados.release());
}

void salvar(const Figura& figura) {
    const auto escolhido = varenta::dialogos().figuraParaSalvar(filtros(), formatoInicial);
    if (!escolhido || escolhido->caminho.isEmpty()) return;
    const auto destino = destinoDe(*escolhido);
    gravarCópia(destino.caminho.toStdString(), destino.formato->bytes(figura).toStdString());
}

void acrescentar(WidgetDesenho& desenho, const QString& texto, const QKeySequence& tecla,
                 varenta::TelaBase& tela, void (*comando)(const Figura&)) {
    auto* ação = new QAction{texto, &desenho};
    ação->setShortcut(tecla);
    ação->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(ação, &QAction::triggered, &desenho,
                     [&desenho, &tela, comando] { comando(figuraDaTela(desenho, tela)); });
    desenho.addAction(ação);
}

} // namespace

void oferecerFigura(WidgetDesenho& desenho, varenta::TelaBase& tela) {
    acrescentar(desenho, QStringLiteral("&Copiar figura"), QKeySequence::Copy, tela, copiar);
    acrescentar(desenho, QStringLiteral("&Salvar figura…"), QKeySequence::Save, tela, salvar);
    desenho.setContextMenuPolicy(Qt::ActionsContextMenu);
    if (temDados(desenho, tela)) desenho.setFocusPolicy(Qt::StrongFocus);
}
