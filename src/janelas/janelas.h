#pragma once

#include "janelas/telas.h"

#include <QObject>
#include <QRect>

#include <functional>
#include <map>
#include <optional>
#include <span>

class Vinculo;

/// Where a window of that size stands with its middle there, moved as far as it must be to lie on the screen.
QRect lugarNaTela(QSize tamanho, QPoint meio);

/// The windows of the screens. A window exists as long as its screen is loaded, and shows while the screen is
/// visible. What a person does in any of them goes through `agir`, after which all of them show how their
/// records stand.
class Janelas : public QObject {
  public:
    explicit Janelas(std::span<const ModeloDeJanela> modelos = janelasDoPrograma());
    ~Janelas() override;

    /// Brings every window up to date with its screen.
    void atualizar();
    /// Runs what a person started, then `atualizar`. Nothing while another act is running, or while the
    /// windows are being brought up to date.
    void agir(const std::function<void()>& ato);
    /// Whether a change in a widget comes from `atualizar`, and not from a hand.
    bool atualizando() const { return atualizando_; }

    /// The window of a loaded screen; null if there is none.
    QWidget* janela(const varenta::TelaBase& tela) const;

  private:
    /// Where a window stands, by its middle: where it was put, and where it would be on a larger screen.
    struct Lugar {
        QPoint dado, pedido;
    };

    void colocar(QWidget& janela);
    /// The middle of the window that the person has in front.
    QPoint meioDaÚltima() const;
    void esquecerLugar(const QWidget& janela);
    void conferirExistência();
    void mostrarEEsconder();
    void descartar(Vinculo* vínculo);
    void levarFoco();

    std::span<const ModeloDeJanela> modelos_;
    std::map<const varenta::TelaBase*, Vinculo*> vínculos_;
    std::map<const QWidget*, Lugar> lugares_;
    const QWidget* última_ = nullptr;
    /// Where the last window stood, once it is gone.
    std::optional<QPoint> meioDeixado_;
    bool atualizando_ = false;
    bool agindo_ = false;
};
