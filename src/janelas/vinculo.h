#pragma once

#include "comum/tela.h"

#include <QObject>
#include <QStringList>
#include <QWidget>

#include <optional>
#include <string>
#include <unordered_map>

class Janelas;
class LinhaDeEstado;
class QKeyEvent;

/// Joins the widgets of a window to the controls of its screen, by name. What the person does goes to the
/// acts of the core; what the record then holds goes back to the widgets, and only where they differ. It
/// lives as long as its window.
class Vinculo : public QObject {
  public:
    /// Belongs to the window from here on. The screen must be loaded. Raises `std::logic_error` where a
    /// control has no widget of its kind.
    Vinculo(varenta::TelaBase& tela, QWidget& janela, Janelas& janelas);

    QWidget& janela() const { return janela_; }

    void atualizar();
    /// The focus goes to the control that has it in the core, if that is one of this window.
    void levarFoco();
    /// In a window that no one has used yet, the first control that takes entries or acts.
    void darFocoInicial();
    /// The screen is gone: hides the window, and deletes it with this object as soon as no event of it is
    /// being handled any more.
    void descartar();

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    struct Ligar;
    struct Mostrar;

    /// Runs an act on the control of that name, if the screen still has it.
    template <class Ato>
    void agir(const std::string& nome, Ato ato);
    std::optional<varenta::Elemento> controleDe(const QObject* objeto) const;
    void esquecerVersões();
    void distribuirMatrizes(const std::unordered_map<std::string, QStringList>& matrizes);
    void ligarEntrada(const std::string& nome, const varenta::Grade& grade);
    void selecionarEntrada();
    void receberFoco(const QObject* objeto);
    bool usarTecla(const QObject* objeto, const QKeyEvent& tecla);
    bool usarTeclaDaJanela(const QKeyEvent& tecla);
    void apertarBotãoPadrão();

    varenta::TelaBase& tela_;
    QWidget& janela_;
    Janelas& janelas_;
    /// Widgets and menu actions by the name of their control, and back.
    std::unordered_map<std::string, QObject*> objetos_;
    std::unordered_map<const QObject*, std::string> nomes_;
    QWidget* comFoco_ = nullptr;
    LinhaDeEstado* estado_ = nullptr;
    bool estavaVisível_ = false;
    bool descartado_ = false;
};
