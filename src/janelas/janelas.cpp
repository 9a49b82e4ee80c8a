#include "janelas/janelas.h"

#include "comum/atos.h"
#include "janelas/dialogos.h"
#include "janelas/vinculo.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace {

/// Sets a flag for as long as it lives.
class Enquanto {
  public:
    explicit Enquanto(bool& sinal) : sinal_{sinal} { sinal_ = true; }
    ~Enquanto() { sinal_ = false; }
    Enquanto(const Enquanto&) = delete;
    Enquanto& operator=(const Enquanto&) = delete;

  private:
    bool& sinal_;
};

// A window manager moves a window by the width of its frame; what a person moves goes further.
constexpr int folgaDaMoldura = 48;

} // namespace

QRect lugarNaTela(QSize tamanho, QPoint meio) {
    const auto* tela = QGuiApplication::screenAt(meio);
    const QRect disponível = (tela ? tela : QGuiApplication::primaryScreen())->availableGeometry();
    QRect lugar{{}, tamanho};
    lugar.moveCenter(meio);
    lugar.moveRight(std::min(lugar.right(), disponível.right()));
    lugar.moveBottom(std::min(lugar.bottom(), disponível.bottom()));
    lugar.moveLeft(std::max(lugar.left(), disponível.left()));
    lugar.moveTop(std::max(lugar.top(), disponível.top()));
    return lugar;
}

Janelas::Janelas(std::span<const ModeloDeJanela> modelos) : modelos_{modelos} {
    varenta::antesDeCadaDialogo = [this] { atualizar(); };
}

Janelas::~Janelas() {
    varenta::antesDeCadaDialogo = nullptr;
    for (const auto& [tela, vínculo] : vínculos_) delete &vínculo->janela();
}

QWidget* Janelas::janela(const varenta::TelaBase& tela) const {
    const auto vínculo = vínculos_.find(&tela);
    return vínculo == vínculos_.end() ? nullptr : &vínculo->second->janela();
}

void Janelas::agir(const std::function<void()>& ato) {
    if (agindo_ || atualizando_) return;
    QElapsedTimer relógio;
    relógio.start();
    varenta::começarAto();
    {
        const Enquanto agora{agindo_};
        try {
            ato();
        } catch (const varenta::AtoRecusado&) {
            // The widget offered what its control no longer admits: what follows sets the widget right.
        }
    }
    atualizar();
    if (relógio.elapsed() > varenta::tempoDeUmaEsperaMs) varenta::pintarSemOuvir();
}

void Janelas::atualizar() {
    if (atualizando_) return;
    const Enquanto agora{atualizando_};
    conferirExistência();
    for (const auto& [tela, vínculo] : vínculos_) vínculo->atualizar();
    mostrarEEsconder();
    levarFoco();
}

void Janelas::conferirExistência() {
    for (const auto& modelo : modelos_) {
        if (!modelo.tela->carregada() || vínculos_.contains(modelo.tela)) continue;
        auto janela = modelo.criar();
        vínculos_.emplace(modelo.tela, new Vinculo{*modelo.tela, *janela, *this});
        // From here on `Vinculo::descartar` sees to the window.
        connect(new QShortcut{QKeySequence{QKeySequence::HelpContents}, janela.release()},
                &QShortcut::activated, this,
                [this, tela = modelo.tela] { agir([tela] { varenta::atos::pedirAjuda(*tela); }); });
    }
}

void Janelas::mostrarEEsconder() {
    // The new window first, so that there is no moment without one.
    for (const auto& [tela, vínculo] : vínculos_) {
        auto& janela = vínculo->janela();
        if (!tela->carregada() || !tela->visivel || janela.isVisible()) continue;
        colocar(janela);
        vínculo->darFocoInicial();
        janela.show();
        janela.activateWindow();
    }
    for (auto item = vínculos_.begin(); item != vínculos_.end();) {
        const auto& [tela, vínculo] = *item;
        if (!tela->carregada()) {
            esquecerLugar(vínculo->janela());
            vínculo->descartar();
            item = vínculos_.erase(item);
            continue;
        }
        if (!tela->visivel) vínculo->janela().hide();
        ++item;
    }
}

QPoint Janelas::meioDaÚltima() const {
    const auto* ativa = QApplication::activeWindow();
    const auto* última = lugares_.contains(ativa) ? ativa : última_;
    if (!última) return meioDeixado_.value_or(QGuiApplication::primaryScreen()->availableGeometry().center());
    const auto meio = última->frameGeometry().center();
    const auto& lugar = lugares_.at(última);
    return (meio - lugar.dado).manhattanLength() > folgaDaMoldura ? meio : lugar.pedido;
}

void Janelas::esquecerLugar(const QWidget& janela) {
    if (última_ == &janela) {
        meioDeixado_ = meioDaÚltima();
        última_ = nullptr;
    }
    lugares_.erase(&janela);
}

/// A window that appears takes the place of the one before it, as far as it fits on the screen, and the size
/// that it had, if it was seen before.
void Janelas::colocar(QWidget& janela) {
    const auto meio = meioDaÚltima();
    if (!janela.testAttribute(Qt::WA_Resized)) janela.resize(janela.sizeHint());
    const QRect lugar = lugarNaTela(janela.size(), meio);
    janela.move(lugar.topLeft());
    última_ = &janela;
    lugares_[última_] = {lugar.center(), meio};
}

void Janelas::levarFoco() {
    for (const auto& [tela, vínculo] : vínculos_)
        if (tela->visivel) vínculo->levarFoco();
}
