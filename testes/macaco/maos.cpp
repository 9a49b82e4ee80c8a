#include "macaco/maos.h"

#include "janelas/janela_ajuda.h"
#include "janelas/widget_desenho.h"
#include "janelas/widget_tabela.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace varenta::teste {
namespace {

/// Events that can be told from all others.
template <class Evento>
class DaFila : public Evento {
  public:
    using Evento::Evento;
};

/// The parts of a widget that a hand takes for the widget itself.
bool éParteDeOutro(const QWidget& widget) {
    const auto* acima = widget.parentWidget();
    return qobject_cast<const QComboBox*>(acima) || qobject_cast<const QAbstractItemView*>(acima) ||
           widget.inherits("QComboBoxPrivateContainer") || widget.objectName().startsWith("qt_");
}

bool serveParaAlgo(const QWidget& widget) {
    return !éParteDeOutro(widget) &&
           (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
            qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QScrollBar*>(&widget) ||
            qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const WidgetDesenho*>(&widget) ||
            qobject_cast<const QMenuBar*>(&widget));
}

std::string nomeDe(const QWidget& widget) {
    const auto nome = widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                                    : widget.objectName();
    return (widget.window()->objectName() + QLatin1Char{'.'} + nome).toStdString();
}

} // namespace

Maos::Maos(Acaso& acaso, const Janelas& janelas, Escriba& escriba)
    : acaso_{acaso}, janelas_{janelas}, escriba_{escriba} {
    for (const auto* nome :
         {"e/colar_ensaio_malha.csv", "e/colar_ensaio_movel.csv", "e/colar_ensaio_radial.csv"})
        blocos_.push_back(acaso_.pasta().bytes(nome));
    for (const auto* bloco :
         {"1.5\t2\n3\t4.25\n", "1,5\t2,5\n", "7\r\n8\r\n9\r\n", "1;2\n3;4", "1\t\t2\n", "\n\n", "a\tb\n",
          "1e400\t2", "\"1\t2\"", "1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12"})
        blocos_.emplace_back(bloco);
}

std::vector<QWidget*> Maos::janelasUsáveis() const {
    std::vector<QWidget*> usáveis;
    for (const auto& modelo : janelasDoPrograma()) {
        auto* janela = janelas_.janela(*modelo.tela);
        if (janela && janela->isVisible() && janela->isEnabled()) usáveis.push_back(janela);
    }
    for (auto* widget : QApplication::topLevelWidgets())
        if (dynamic_cast<JanelaDaAjuda*>(widget) && widget->isVisible()) usáveis.push_back(widget);
    return usáveis;
}

QWidget* Maos::widgetUsável(QWidget& janela) {
    std::erase_if(widgets_, [](const auto& par) { return par.second.empty() || !par.second.front(); });
    auto& todos = widgets_[&janela];
    // Another window may have come to the same address.
    if (todos.empty() || std::ranges::any_of(todos, [](const auto& w) { return w.isNull(); })) {
        todos.clear();
        for (auto* widget : janela.findChildren<QWidget*>())
            if (serveParaAlgo(*widget)) todos.emplace_back(widget);
    }
    std::vector<QWidget*> usáveis;
    for (const auto& widget : todos)
        if (widget->isVisible() && widget->isEnabled()) usáveis.push_back(widget);
    return usáveis.empty() ? nullptr : acaso_.algumDe(usáveis);
}

void Maos::anotar(const QWidget& widget, const std::string& gesto) {
    escriba_.anotarGesto(nomeDe(widget) + ": " + gesto);
}

const char* Maos::agir() {
    const auto janelas = janelasUsáveis();
    auto& janela = *acaso_.algumDe(janelas);
    última_ = &janela;
    auto* widget = acaso_.umEm(12) ? nullptr : widgetUsável(janela);
    const auto* tipo = widget ? usar(*widget) : usarJanela(janela);
    usarMenuAberto();
    return tipo;
}

const char* Maos::usar(QWidget& widget) {
    if (auto* caixa = qobject_cast<QLineEdit*>(&widget)) return usarCaixa(*caixa);
    if (auto* lista = qobject_cast<QComboBox*>(&widget)) return usarLista(*lista);
    if (auto* botão = qobject_cast<QAbstractButton*>(&widget)) return usarBotão(*botão);
    if (auto* barra = qobject_cast<QScrollBar*>(&widget)) return usarBarra(*barra);
    if (auto* tabela = qobject_cast<WidgetTabela*>(&widget)) return usarTabela(*tabela);
    if (auto* desenho = qobject_cast<WidgetDesenho*>(&widget)) return usarDesenho(*desenho);
    if (auto* menus = qobject_cast<QMenuBar*>(&widget)) return usarMenus(*menus);
    return usarOutro(widget);
}

const char* Maos::usarBotão(QAbstractButton& botão) {
    if (acaso_.umEm(3)) {
        botão.setFocus(Qt::TabFocusReason);
        static constexpr std::array teclas{Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Up,
                                           Qt::Key_Down};
        teclar(botão, acaso_.algumDe(teclas));
        return "button by key";
    }
    clicar(botão);
    return "button by mouse";
}

const char* Maos::usarCaixa(QLineEdit& caixa) {
    if (acaso_.umEm(3))
        clicar(caixa);
    else
        caixa.setFocus(Qt::TabFocusReason);
    switch (acaso_.até(12)) {
    case 0: {
        static constexpr std::array teclas{
            Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace, Qt::Key_Delete,   Qt::Key_Home,  Qt::Key_Down,
            Qt::Key_Up,     Qt::Key_Left,  Qt::Key_Tab,       Qt::Key_PageDown, Qt::Key_Escape};
        teclar(caixa, acaso_.algumDe(teclas));
        return "key in a box";
    }
    case 1: {
        static constexpr std::array teclas{Qt::Key_Z, Qt::Key_C, Qt::Key_X, Qt::Key_A, Qt::Key_S, Qt::Key_Y};
        teclar(caixa, acaso_.algumDe(teclas), Qt::ControlModifier);
        return "command in a box";
    }
    case 2:
    case 3:
        encherAÁreaDeTransferência();
        teclar(caixa, Qt::Key_V, Qt::ControlModifier);
        return "paste into a box";
    case 4: {
        static constexpr std::array teclas{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right};
        teclar(caixa, acaso_.algumDe(teclas), Qt::ControlModifier | Qt::ShiftModifier);
        return "selection from a box";
    }
    case 5:
        pedirMenu(caixa);
        return "menu of a box";
    default:
        if (!acaso_.umEm(4)) teclar(caixa, Qt::Key_A, Qt::ControlModifier);
        digitar(caixa, QString::fromStdString(acaso_.texto()));
        if (acaso_.umEm(3)) teclar(caixa, Qt::Key_Return);
        return "text";
    }
}

const char* Maos::usarLista(QComboBox& lista) {
    if (lista.isEditable() && acaso_.umEm(2)) {
        usarCaixa(*lista.lineEdit());
        return "text in a list";
    }
    lista.setFocus(Qt::TabFocusReason);
    static constexpr std::array teclas{Qt::Key_Up,     Qt::Key_Down, Qt::Key_PageDown,
                                       Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End};
    if (!acaso_.umEm(3)) {
        teclar(lista, acaso_.algumDe(teclas));
        return "key in a list";
    }
    anotar(lista, "opens its items");
    lista.showPopup();
    for (int n = acaso_.entre(0, 4); n > 0; --n) teclar(*lista.view(), acaso_.algumDe(teclas));
    teclar(*lista.view(), acaso_.umEm(3) ? Qt::Key_Escape : Qt::Key_Return);
    lista.hidePopup();
    return "items of a list";
}

const char* Maos::usarBarra(QScrollBar& barra) {
    static constexpr std::array teclas{Qt::Key_Left,     Qt::Key_Right, Qt::Key_PageUp,
                                       Qt::Key_PageDown, Qt::Key_Home,  Qt::Key_End};
    switch (acaso_.até(4)) {
    case 0: {
        const auto de = lugarEm(barra), até = lugarEm(barra);
        anotar(barra, "dragged from " + std::to_string(de.x()) + " to " + std::to_string(até.x()));
        QTest::mousePress(&barra, Qt::LeftButton, {}, de);
        QMouseEvent movimento{QEvent::MouseMove, QPointF{até},   barra.mapToGlobal(QPointF{até}),
                              Qt::NoButton,      Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&barra, &movimento);
        QTest::mouseRelease(&barra, Qt::LeftButton, {}, até);
        return "drag of a bar";
    }
    case 1:
        clicar(barra);
        return "click on a bar";
    case 2: {
        const int passo = acaso_.umEm(2) ? 120 : -120;
        anotar(barra, "wheel " + std::to_string(passo));
        const QPointF meio{barra.rect().center()};
        QWheelEvent roda{meio,           barra.mapToGlobal(meio), {},   {0, passo}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase,       false};
        QApplication::sendEvent(&barra, &roda);
        return "wheel on a bar";
    }
    default:
        barra.setFocus(Qt::TabFocusReason);
        teclar(barra, acaso_.algumDe(teclas));
        return "key on a bar";
    }
}

const char* Maos::usarTabela(WidgetTabela& tabela) {
    switch (acaso_.até(8)) {
    case 0: {
        static constexpr std::array teclas{Qt::Key_C, Qt::Key_A, Qt::Key_V, Qt::Key_S, Qt::Key_Space};
        encherAÁreaDeTransferência();
        teclar(tabela, acaso_.algumDe(teclas), Qt::ControlModifier);
        return "command of a table";
    }
    case 1:
        teclar(tabela, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        return "command of a table";
    case 2:
        pedirMenu(*tabela.viewport());
        return "menu of a table";
    case 3:
        clicar(*tabela.horizontalHeader()->viewport());
        return "header of a table";
    case 4: {
        static constexpr std::array teclas{Qt::Key_Up,   Qt::Key_Down,     Qt::Key_Left,   Qt::Key_Right,
                                           Qt::Key_Home, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_7};
        teclar(tabela, acaso_.algumDe(teclas), acaso_.umEm(3) ? Qt::ShiftModifier : Qt::NoModifier);
        return "key in a table";
    }
    case 5:
        clicar(*tabela.viewport(), acaso_.umEm(2) ? Qt::ShiftModifier : Qt::ControlModifier);
        return "selection in a table";
    default:
        clicar(*tabela.viewport());
        return "cell of a table";
    }
}

const char* Maos::usarDesenho(WidgetDesenho& desenho) {
    // A figure of 300 dots per inch takes as long as hundreds of other acts.
    if (acaso_.umEm(50)) {
        desenho.setFocus(Qt::TabFocusReason);
        teclar(desenho, acaso_.umEm(8) ? Qt::Key_C : Qt::Key_S, Qt::ControlModifier);
        return "command of a drawing";
    }
    if (acaso_.umEm(50)) {
        pedirMenu(desenho);
        return "menu of a drawing";
    }
    if (acaso_.umEm(8)) {
        anotar(desenho, "mouse leaves");
        QEvent sai{QEvent::Leave};
        QApplication::sendEvent(&desenho, &sai);
        return "mouse leaves a drawing";
    }
    const QPointF lugar{lugarEm(desenho)};
    anotar(desenho, "mouse moves");
    QMouseEvent movimento{QEvent::MouseMove, lugar,        desenho.mapToGlobal(lugar),
                          Qt::NoButton,      Qt::NoButton, Qt::NoModifier};
    QApplication::sendEvent(&desenho, &movimento);
    return "mouse on a drawing";
}

const char* Maos::usarMenus(QMenuBar& barra) {
    anotar(barra, "opens a menu");
    barra.setActiveAction(acaso_.algumDe(barra.actions()));
    usarMenuAberto();
    return "menu bar";
}

const char* Maos::usarJanela(QWidget& janela) {
    switch (acaso_.até(10)) {
    case 0:
    case 1:
        anotar(janela, "closes");
        janela.close();
        return "close box";
    case 2:
        teclar(janela, Qt::Key_Escape);
        return "Esc";
    case 3:
        teclar(janela, Qt::Key_Return);
        return "Enter";
    case 4:
        teclar(janela, Qt::Key_F1);
        return "F1";
    case 5: {
        auto* comFoco = janela.focusWidget();
        teclar(comFoco ? *comFoco : janela, acaso_.umEm(2) ? Qt::Key_Tab : Qt::Key_Backtab);
        return "Tab";
    }
    case 6:
        teclar(janela, acaso_.entre(Qt::Key_A, Qt::Key_Z), Qt::AltModifier);
        esperarBotões();
        return "Alt and a letter";
    case 7:
        anotar(janela, "changes its size");
        janela.resize(janela.minimumSizeHint() + QSize{acaso_.entre(0, 400), acaso_.entre(0, 300)});
        return "resize";
    case 8: {
        anotar(janela, "mouse beside the drawings");
        const QPointF lugar{lugarEm(janela)};
        QMouseEvent movimento{QEvent::MouseMove, lugar,        janela.mapToGlobal(lugar),
                              Qt::NoButton,      Qt::NoButton, Qt::NoModifier};
        QApplication::sendEvent(&janela, &movimento);
        return "mouse on a window";
    }
    default:
        anotar(janela, "becomes the active one");
        janela.activateWindow();
        return "activation";
    }
}

/// The lists and pages of the help.
const char* Maos::usarOutro(QWidget& widget) {
    static constexpr std::array teclas{Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_PageDown};
    if (acaso_.umEm(2))
        teclar(widget, acaso_.algumDe(teclas));
    else if (auto* vista = qobject_cast<QAbstractItemView*>(&widget))
        clicar(*vista->viewport());
    return "help";
}

void Maos::digitar(QWidget& widget, const QString& texto) {
    anotar(widget, "types \"" + texto.toStdString() + "\"");
    const QPointer<QWidget> alvo{&widget};
    for (const auto c : texto) {
        if (!alvo) return;
        for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent tecla{tipo, c.toUpper().unicode(), Qt::NoModifier, QString{c}};
            QApplication::sendEvent(alvo, &tecla);
        }
    }
}

void Maos::teclar(QWidget& widget, int tecla, Qt::KeyboardModifiers com) {
    anotar(widget, "key " + QKeySequence{QKeyCombination::fromCombined(tecla | static_cast<int>(com))}
                                .toString()
                                .toStdString());
    QTest::keyClick(&widget, static_cast<Qt::Key>(tecla), com);
}

QPoint Maos::lugarEm(const QWidget& widget) {
    return {acaso_.entre(0, std::max(widget.width() - 1, 0)),
            acaso_.entre(0, std::max(widget.height() - 1, 0))};
}

void Maos::clicar(QWidget& widget, Qt::KeyboardModifiers com) {
    // Options and boxes to tick are only hit at their mark and their text.
    const bool comTexto = qobject_cast<QAbstractButton*>(&widget);
    const auto lugar = comTexto ? QPoint{10, widget.height() / 2} : lugarEm(widget);
    anotar(widget, "clicked at " + std::to_string(lugar.x()) + ", " + std::to_string(lugar.y()));
    QTest::mouseClick(&widget, Qt::LeftButton, com, lugar);
}

void Maos::encherAÁreaDeTransferência() {
    if (acaso_.umEm(3)) return; // what was copied last
    const auto texto = acaso_.umEm(2) ? acaso_.texto() : acaso_.algumDe(blocos_);
    QGuiApplication::clipboard()->setText(QString::fromStdString(texto));
}

void Maos::pedirMenu(QWidget& widget) {
    anotar(widget, "menu");
    // Some menus don't return before they are closed.
    QTimer::singleShot(0, &widget, [this] { usarMenuAberto(); });
    const auto lugar = widget.rect().center();
    QContextMenuEvent pedido{QContextMenuEvent::Mouse, lugar, widget.mapToGlobal(lugar)};
    QApplication::sendEvent(&widget, &pedido);
}

void Maos::usarMenuAberto() {
    // Each turn goes one menu deeper or ends; a menu that stays open after that is a defect for the caller.
    for (int n = 0; n < 8; ++n) {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu) return;
        QList<QAction*> usáveis;
        for (auto* ação : menu->actions())
            if (ação->isEnabled() && ação->isVisible() && !ação->isSeparator()) usáveis << ação;
        if (usáveis.isEmpty() || acaso_.umEm(6)) {
            teclar(*menu, Qt::Key_Escape);
            continue;
        }
        auto* escolhida = acaso_.algumDe(usáveis);
        menu->setActiveAction(escolhida);
        escriba_.anotarGesto("menu: " + escolhida->text().toStdString());
        QTest::keyClick(menu, escolhida->menu() ? Qt::Key_Right : Qt::Key_Return);
    }
}

/// A button pressed by its letter comes up a tenth of a second later.
void Maos::esperarBotões() {
    const auto apertado = [this] {
        return std::ranges::any_of(janelasUsáveis(), [](const QWidget* janela) {
            return std::ranges::any_of(janela->findChildren<QAbstractButton*>(), &QAbstractButton::isDown);
        });
    };
    while (apertado()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Maos::deixarNaFila() {
    const auto janelas = janelasUsáveis();
    if (janelas.empty()) return;
    auto& janela = *janelas[naFila_() % janelas.size()];
    QCoreApplication::postEvent(&janela, new DaFila<QCloseEvent>);
    const auto botões = janela.findChildren<QAbstractButton*>();
    if (botões.empty()) return;
    auto* botão = botões[static_cast<qsizetype>(naFila_() % static_cast<std::size_t>(botões.size()))];
    const QPointF lugar{10, botão->height() / 2.0};
    for (const auto tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        QCoreApplication::postEvent(botão,
                                    new DaFila<QMouseEvent>{tipo, lugar, botão->mapToGlobal(lugar),
                                                            Qt::LeftButton, Qt::LeftButton, Qt::NoModifier});
}

bool Maos::éDaFila(const QEvent& evento) {
    return dynamic_cast<const DaFila<QMouseEvent>*>(&evento) ||
           dynamic_cast<const DaFila<QCloseEvent>*>(&evento);
}

} // namespace varenta::teste
