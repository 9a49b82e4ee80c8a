#include "janelas/janelas.h"

#include "comum/atos.h"
#include "janelas/dialogos.h"
#include "janelas/vinculo.h"

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

/// Gives a window that appears for the first time its size, and its place where the person is looking.
void colocar(QWidget& janela, const QWidget* anterior) {
    const QRect disponível = janela.screen()->availableGeometry();
    janela.resize(janela.sizeHint());
    QRect lugar{{}, janela.size()};
    lugar.moveCenter(anterior ? anterior->geometry().center() : disponível.center());
    lugar.moveRight(std::min(lugar.right(), disponível.right()));
    lugar.moveBottom(std::min(lugar.bottom(), disponível.bottom()));
    lugar.moveLeft(std::max(lugar.left(), disponível.left()));
    lugar.moveTop(std::max(lugar.top(), disponível.top()));
    janela.move(lugar.topLeft());
}

} // namespace

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
    {
        const Enquanto agora{agindo_};
        try {
            ato();
        } catch (const varenta::AtoRecusado&) {
            // The widget offered what its control no longer admits: what follows sets the widget right.
        }
    }
    atualizar();
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
        connect(new QShortcut{QKeySequence{QKeySequence::HelpContents}, janela.get()}, &QShortcut::activated,
                this, [this, tela = modelo.tela] { agir([tela] { varenta::atos::pedirAjuda(*tela); }); });
        janela.release();
    }
}

void Janelas::mostrarEEsconder() {
    const QWidget* anterior = nullptr;
    for (const auto& [tela, vínculo] : vínculos_)
        if (vínculo->janela().isVisible()) anterior = &vínculo->janela();
    // The new window first, so that there is no moment without one.
    for (const auto& [tela, vínculo] : vínculos_) {
        auto& janela = vínculo->janela();
        if (!tela->carregada() || !tela->visivel || janela.isVisible()) continue;
        if (!janela.testAttribute(Qt::WA_Resized)) colocar(janela, anterior);
        janela.show();
        janela.activateWindow();
    }
    for (auto item = vínculos_.begin(); item != vínculos_.end();) {
        const auto& [tela, vínculo] = *item;
        if (!tela->carregada()) {
            vínculo->descartar();
            item = vínculos_.erase(item);
            continue;
        }
        if (!tela->visivel) vínculo->janela().hide();
        ++item;
    }
}

void Janelas::levarFoco() {
    for (const auto& [tela, vínculo] : vínculos_)
        if (tela->visivel) vínculo->levarFoco();
}
