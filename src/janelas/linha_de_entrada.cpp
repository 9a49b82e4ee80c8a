#include "janelas/linha_de_entrada.h"

#include "comum/texto_tabela.h"
#include "janelas/teclas.h"
#include "janelas/widget_tabela.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

LinhaDeEntrada::LinhaDeEntrada(QLineEdit& linha, WidgetTabela& tabela)
    : QObject{&linha}, linha_{linha}, tabela_{tabela} {
    linha_.installEventFilter(this);
    // Who types has done with what was selected.
    connect(&linha_, &QLineEdit::textEdited, &tabela_, &WidgetTabela::voltarÀCélulaAtual);
}

bool LinhaDeEntrada::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress && usarTecla(*static_cast<QKeyEvent*>(evento))) return true;
    if (evento->type() == QEvent::ContextMenu) {
        mostrarMenu(static_cast<QContextMenuEvent*>(evento)->globalPos());
        return true;
    }
    return QObject::eventFilter(objeto, evento);
}

bool LinhaDeEntrada::usarTecla(const QKeyEvent& tecla) {
    if (éTeclaDeMenu(tecla)) {
        mostrarMenu(linha_.mapToGlobal(linha_.rect().center()));
        return true;
    }
    if (tecla.matches(QKeySequence::Paste)) return colarBloco();
    // What the line shows selected is the cell itself, unless something was typed or a part was selected.
    const bool daCélula = tabela_.temVáriasSelecionadas() ||
                          (todaSelecionada() && linha_.text() == tabela_.currentIndex().data().toString());
    if (tecla.matches(QKeySequence::Copy)) return daCélula && tabela_.usarTecla(tecla);
    if (tecla.matches(QKeySequence::SelectAll)) return todaSelecionada() && tabela_.usarTecla(tecla);
    return estender(tecla) || tabela_.usarTecla(tecla);
}

bool LinhaDeEntrada::estender(const QKeyEvent& tecla) {
    if (tecla.modifiers() != (Qt::ControlModifier | Qt::ShiftModifier)) return false;
    switch (tecla.key()) {
    case Qt::Key_Up:
        tabela_.estenderSeleção(-1, 0);
        return true;
    case Qt::Key_Down:
        tabela_.estenderSeleção(1, 0);
        return true;
    case Qt::Key_Left:
        tabela_.estenderSeleção(0, -1);
        return true;
    case Qt::Key_Right:
        tabela_.estenderSeleção(0, 1);
        return true;
    default:
        return false;
    }
}

bool LinhaDeEntrada::colarBloco() {
    if (!varenta::éBloco(QGuiApplication::clipboard()->text().toStdString())) return false;
    tabela_.colar();
    return true;
}

bool LinhaDeEntrada::todaSelecionada() const { return linha_.selectedText() == linha_.text(); }

void LinhaDeEntrada::mostrarMenu(const QPoint& lugar) {
    auto* menu = linha_.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Qt's own actions are known by their texts alone.
    for (auto* ação : menu->actions()) {
        if (!ação->text().startsWith(QLineEdit::tr("&Paste"))) continue;
        ação->disconnect(&linha_);
        connect(ação, &QAction::triggered, this, [this] {
            if (!colarBloco()) linha_.paste();
        });
    }
    menu->addSeparator();
    tabela_.acrescentarComandos(*menu->addMenu(QStringLiteral("Planilha")));
    menu->popup(lugar);
}
