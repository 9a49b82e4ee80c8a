#include "janelas/moldura_do_foco.h"

#include "janelas/widget_desenho.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

namespace {

constexpr int espessura = 2;

bool precisaDeMoldura(const QWidget* widget) {
    if (const auto* botão = qobject_cast<const QPushButton*>(widget)) return botão->isDefault();
    return qobject_cast<const WidgetDesenho*>(widget) || qobject_cast<const QTableView*>(widget) ||
           qobject_cast<const QScrollBar*>(widget);
}

} // namespace

MolduraDoFoco::MolduraDoFoco(QWidget& janela) : QFocusFrame{&janela} {
    hide();
    connect(qApp, &QApplication::focusChanged, this, [this, &janela](QWidget*, QWidget* agora) {
        const bool daJanela = agora && agora->window() == &janela;
        setWidget(daJanela && precisaDeMoldura(agora) ? agora : nullptr);
    });
}

void MolduraDoFoco::paintEvent(QPaintEvent*) {
    QPainter pintor{this};
    pintor.setPen(QPen{palette().color(QPalette::Highlight), espessura});
    pintor.drawRect(rect().adjusted(1, 1, -1, -1));
}
