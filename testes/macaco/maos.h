#pragma once

#include "janelas/janelas.h"
#include "macaco/acaso.h"
#include "macaco/escriba.h"

#include <QPointer>

#include <map>
#include <random>
#include <string>
#include <vector>

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QMenu;
class QMenuBar;
class QScrollBar;
class WidgetDesenho;
class WidgetTabela;

namespace varenta::teste {

/// Keys and mouse at random, in whatever window can be used.
class Maos {
  public:
    Maos(Acaso& acaso, const Janelas& janelas, Escriba& escriba);

    /// One movement. Returns its kind.
    const char* agir();
    /// The window that it was made in.
    const QWidget* última() const { return última_; }
    /// Puts the closing of a window and a click into the queue of events: what a person does while the
    /// program is at work.
    void deixarNaFila();
    /// Whether the event is one that `deixarNaFila` put there.
    static bool éDaFila(const QEvent& evento);

  private:
    std::vector<QWidget*> janelasUsáveis() const;
    QWidget* widgetUsável(QWidget& janela);
    void anotar(const QWidget& widget, const std::string& gesto);

    const char* usar(QWidget& widget);
    const char* usarBotão(QAbstractButton& botão);
    const char* usarCaixa(QLineEdit& caixa);
    const char* usarLista(QComboBox& lista);
    const char* usarBarra(QScrollBar& barra);
    const char* usarTabela(WidgetTabela& tabela);
    const char* usarDesenho(WidgetDesenho& desenho);
    const char* usarMenus(QMenuBar& barra);
    const char* usarJanela(QWidget& janela);
    const char* usarOutro(QWidget& widget);

    void digitar(QWidget& widget, const QString& texto);
    void teclar(QWidget& widget, int tecla, Qt::KeyboardModifiers com = Qt::NoModifier);
    void clicar(QWidget& widget, Qt::KeyboardModifiers com = Qt::NoModifier);
    QPoint lugarEm(const QWidget& widget);
    void encherAÁreaDeTransferência();
    void pedirMenu(QWidget& widget);
    void usarMenuAberto();
    void esperarBotões();

    Acaso& acaso_;
    const Janelas& janelas_;
    Escriba& escriba_;
    const QWidget* última_ = nullptr;
    std::vector<std::string> blocos_;
    /// Apart from the rest, since how often a long run lets the windows paint hangs on the clock.
    std::minstd_rand naFila_;
    /// The widgets of each window that a hand can do something with.
    std::map<const QWidget*, std::vector<QPointer<QWidget>>> widgets_;
};

} // namespace varenta::teste
