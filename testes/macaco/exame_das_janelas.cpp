#include "macaco/exame_das_janelas.h"

#include "apoio/estado.h"
#include "janelas/pintura_desenho.h"
#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include <algorithm>
#include <type_traits>
#include <variant>

namespace varenta::teste {
namespace {

/// What a widget shows that its record doesn't have; null for nothing.
using Diferença = const char*;

bool igual(const QString& mostrado, const std::string& texto) {
    return mostrado == QString::fromStdString(texto);
}

/// The widgets that show a text and no more.
template <class Controle>
QString textoMostrado(const QObject& objeto) {
    if constexpr (std::is_same_v<Controle, Rotulo>)
        return static_cast<const QLabel&>(objeto).text();
    else if constexpr (std::is_same_v<Controle, Quadro>)
        return static_cast<const QGroupBox&>(objeto).title();
    else if constexpr (std::is_same_v<Controle, ItemMenu>)
        return static_cast<const QAction&>(objeto).text();
    else if constexpr (std::is_same_v<Controle, CaixaTexto>)
        return static_cast<const QLineEdit&>(objeto).text();
    else if constexpr (std::is_same_v<Controle, Lista>)
        return static_cast<const QComboBox&>(objeto).currentText();
    else
        return static_cast<const QAbstractButton&>(objeto).text();
}

template <class Controle>
Diferença comparar(const QObject& objeto, const Controle& r) {
    return igual(textoMostrado<Controle>(objeto), r.texto) ? nullptr : "text";
}

template <class Controle>
Diferença compararMarcada(const QObject& objeto, const Controle& r) {
    if (static_cast<const QAbstractButton&>(objeto).isChecked() != r.marcada) return "mark";
    return igual(textoMostrado<Controle>(objeto), r.texto) ? nullptr : "text";
}
template <>
Diferença comparar(const QObject& objeto, const Opcao& r) {
    return compararMarcada(objeto, r);
}
template <>
Diferença comparar(const QObject& objeto, const Verificacao& r) {
    return compararMarcada(objeto, r);
}

template <>
Diferença comparar(const QObject& objeto, const Lista& r) {
    const auto& caixa = static_cast<const QComboBox&>(objeto);
    if (caixa.count() != static_cast<int>(r.itens.size())) return "number of items";
    for (int k = 0; k < caixa.count(); ++k)
        if (!igual(caixa.itemText(k), r.itens[static_cast<std::size_t>(k)])) return "item";
    // A text that is no item can't stand in a list that only offers its own.
    const bool oferecido = std::ranges::find(r.itens, r.texto) != r.itens.end();
    if (!caixa.isEditable() && !oferecido) return caixa.currentIndex() == -1 ? nullptr : "choice";
    return igual(caixa.currentText(), r.texto) ? nullptr : "text";
}

template <>
Diferença comparar(const QObject& objeto, const Rolagem& r) {
    const auto& barra = static_cast<const QScrollBar&>(objeto);
    if (barra.minimum() != r.mínimo || barra.maximum() != r.máximo) return "range";
    if (barra.singleStep() != r.passoPequeno || barra.pageStep() != r.passoGrande) return "step";
    return barra.value() == r.valor ? nullptr : "value";
}

template <>
Diferença comparar(const QObject& objeto, const Barra& r) {
    const auto& barra = static_cast<const QProgressBar&>(objeto);
    const double parte = (r.valor - r.mínimo) / (r.máximo - r.mínimo);
    const double mostrada =
        static_cast<double>(barra.value() - barra.minimum()) / (barra.maximum() - barra.minimum());
    return parte - mostrada >= 0 && parte - mostrada < 1.0 / (barra.maximum() - barra.minimum()) ? nullptr
                                                                                                 : "value";
}

template <>
Diferença comparar(const QObject& objeto, const Grade& r) {
    const auto& modelo = *static_cast<const WidgetTabela&>(objeto).model();
    if (modelo.rowCount() != r.linhas - 1 || modelo.columnCount() != r.colunas - 1) return "size";
    for (int c = 1; c < r.colunas; ++c)
        if (!igual(modelo.headerData(c - 1, Qt::Horizontal).toString(), r.célula(0, c))) return "header";
    for (int l = 1; l < r.linhas; ++l) {
        if (!igual(modelo.headerData(l - 1, Qt::Vertical).toString(), r.célula(l, 0))) return "row header";
        for (int c = 1; c < r.colunas; ++c)
            if (!igual(modelo.index(l - 1, c - 1).data().toString(), r.célula(l, c))) return "cell";
    }
    return nullptr;
}

template <>
Diferença comparar(const QObject& objeto, const Desenho& r) {
    const auto traços = static_cast<const WidgetDesenho&>(objeto).conteúdo().traços;
    return resumoDosTraços(traços) == resumoDosTraços(r.traços) ? nullptr : "strokes";
}

bool visível(const QObject& objeto) {
    if (const auto* ação = qobject_cast<const QAction*>(&objeto)) return ação->isVisible();
    return !static_cast<const QWidget&>(objeto).isHidden();
}

bool habilitado(const QObject& objeto) {
    if (const auto* ação = qobject_cast<const QAction*>(&objeto)) return ação->isEnabled();
    const auto& widget = static_cast<const QWidget&>(objeto);
    return widget.isEnabledTo(widget.parentWidget());
}

/// Notices that are hidden while they say nothing.
bool ocultoPorVazio(const QObject& objeto, const RefControle& controle) {
    const auto* const* rótulo = std::get_if<Rotulo*>(&controle);
    return rótulo && (*rótulo)->texto.empty() && objeto.property("ocultoQuandoVazio").toBool();
}

QObject* acharObjeto(const QWidget& janela, const QString& nome) {
    if (const auto* menu = janela.findChild<QMenu*>(nome)) return menu->menuAction();
    if (auto* ação = janela.findChild<QAction*>(nome)) return ação;
    return janela.findChild<QWidget*>(nome);
}

/// The texts of a control array of labels, as far as they are in sight.
QStringList textosDaMatriz(const std::vector<Elemento>& elementos, const std::string& nome) {
    QStringList textos;
    for (const auto& e : elementos)
        if (e.índice && e.nome == nome) {
            const auto& rótulo = *std::get<Rotulo*>(e.controle);
            textos << (rótulo.visivel ? QString::fromStdString(rótulo.texto) : QString{});
        }
    return textos;
}

bool mostraMatrizes(const QWidget& widget, const std::vector<Elemento>& elementos) {
    const auto matriz = [&](const QString& nome) { return textosDaMatriz(elementos, nome.toStdString()); };
    if (const auto* desenho = qobject_cast<const WidgetDesenho*>(&widget)) {
        const auto conteúdo = desenho->conteúdo();
        const auto x = widget.property("rotulosX").toString(), y = widget.property("rotulosY").toString();
        return (x.isEmpty() || conteúdo.escalaX == matriz(x)) &&
               (y.isEmpty() || conteúdo.escalaY == matriz(y));
    }
    const auto& modelo = *static_cast<const WidgetTabela&>(widget).model();
    int coluna = 0;
    for (const auto& nome : widget.property("matrizes").toStringList()) {
        const auto textos = matriz(nome);
        for (int l = 0; l < textos.size(); ++l)
            if (modelo.index(l, coluna).data().toString() != textos[l]) return false;
        ++coluna;
    }
    return true;
}

std::optional<std::uint64_t> versãoDe(const RefControle& controle) {
    if (const auto* const* grade = std::get_if<Grade*>(&controle)) return (*grade)->versão;
    if (const auto* const* desenho = std::get_if<Desenho*>(&controle)) return (*desenho)->versão;
    return std::nullopt;
}

} // namespace

std::string ExameDasJanelas::diferença() {
    for (const auto& modelo : janelasDoPrograma())
        if (auto onde = diferençaDe(*modelo.tela); !onde.empty()) return onde;
    return {};
}

const ExameDasJanelas::Vista& ExameDasJanelas::vistaDe(TelaBase& tela, QWidget& janela,
                                                       const std::vector<Elemento>& elementos) {
    auto& vista = vistas_[&tela];
    if (vista.janela == &janela) return vista;
    vista = {&janela, {}, {}};
    for (const auto& elemento : elementos)
        vista.objetos.push_back(elemento.índice ? nullptr
                                                : acharObjeto(janela, QString::fromStdString(elemento.nome)));
    for (auto* widget : janela.findChildren<QWidget*>())
        if (qobject_cast<WidgetDesenho*>(widget) || !widget->property("matrizes").toStringList().isEmpty())
            vista.comMatrizes.push_back(widget);
    // Widgets of windows that are gone may have had the same addresses.
    comparadas_.clear();
    return vista;
}

std::string ExameDasJanelas::diferençaDe(TelaBase& tela) {
    auto* janela = janelas_.janela(tela);
    if (!tela.carregada()) return janela ? tela.nome() + " has a window, and isn't loaded" : "";
    if (!janela) return tela.nome() + " has no window";
    if (janela->isVisible() != tela.visivel) return tela.nome() + ": visible";
    if (janela->isEnabled() != tela.habilitada) return tela.nome() + ": enabled";
    if (!igual(janela->windowTitle(), tela.caption())) return tela.nome() + ": title";

    const auto elementos = tela.elementos();
    const auto& vista = vistaDe(tela, *janela, elementos);
    for (std::size_t k = 0; k < elementos.size(); ++k) {
        const auto* objeto = vista.objetos[k];
        if (elementos[k].índice) continue;
        const auto dizer = [&](const char* oQuê) {
            return tela.nome() + "." + elementos[k].nomeCompleto() + ": " + oQuê;
        };
        if (!objeto) return dizer("no widget");
        const auto& controle = elementos[k].controle;
        if (visível(*objeto) != (estáVisível(elementos[k]) && !ocultoPorVazio(*objeto, controle)))
            return dizer("visible");
        if (habilitado(*objeto) != estáHabilitado(elementos[k])) return dizer("enabled");
        const auto versão = versãoDe(controle);
        if (versão && comparadas_[objeto] == *versão) continue;
        if (const auto oQuê = std::visit([&](const auto* c) { return comparar(*objeto, *c); }, controle))
            return dizer(oQuê);
        if (versão) comparadas_[objeto] = *versão;
    }
    for (const auto* widget : vista.comMatrizes)
        if (!mostraMatrizes(*widget, elementos))
            return tela.nome() + "." + widget->objectName().toStdString() + ": captions";
    return {};
}

std::string ExameDasJanelas::sobra() const {
    if (QApplication::activeModalWidget()) return "a box left open";
    if (QApplication::activePopupWidget()) return "a menu left open";
    if (QGuiApplication::overrideCursor()) return "the hourglass left over";
    for (const auto* widget : QApplication::topLevelWidgets()) {
        // Menus and the lists of combo boxes are windows, too, that belong to another.
        const auto* raiz = widget;
        while (raiz->parentWidget()) raiz = raiz->parentWidget();
        const bool deTela = std::ranges::any_of(janelasDoPrograma(), [&](const ModeloDeJanela& modelo) {
            return janelas_.janela(*modelo.tela) == raiz;
        });
        if (!deTela && raiz->windowTitle() != QLatin1String{"Ajuda do Varenta"})
            return std::string{"left over: "} + raiz->metaObject()->className() + " " +
                   raiz->objectName().toStdString();
    }
    return {};
}

} // namespace varenta::teste
