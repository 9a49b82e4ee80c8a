#pragma once

#include "comum/controles.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varenta {

/// Handlers of a screen's own events.
struct EventosTela {
    Acao aoCarregar = nullptr;
    /// The close box of its window. Without a handler the screen just unloads.
    Acao aoFechar = nullptr;
    /// The mouse moves over the screen beside its drawings.
    Acao aoMoverMouse = nullptr;
    /// What F1 shows over it; 0 for the index.
    int tópicoDaAjuda = 0;
};

/// What all screens have in common, for the front ends and for the code that closes them all.
class TelaBase {
  public:
    TelaBase(std::string nome, EventosTela eventos);
    TelaBase(const TelaBase&) = delete;
    TelaBase& operator=(const TelaBase&) = delete;
    virtual ~TelaBase() = default;

    /// Every screen of the program, loaded or not, in no particular order.
    static const std::vector<TelaBase*>& todas();

    const std::string& nome() const { return nome_; }
    const EventosTela& eventos() const { return eventos_; }

    virtual bool carregada() const = 0;
    /// Creates the screen with its defaults, hidden; nothing if it is loaded already. Where its handler of
    /// loading raises an error, that error passes on and the screen isn't loaded.
    void carregar();
    /// Discards the screen with all that it holds; nothing if it isn't loaded.
    void descarregar();
    /// Loads it if need be.
    void mostrar();
    /// A hidden screen keeps what it holds, but not the focus.
    void esconder();

    /// The text of the window's title bar. Only of a loaded screen.
    virtual const std::string& caption() const = 0;
    /// All controls in the order in which the screen declares them. Empty if it isn't loaded.
    virtual std::vector<Elemento> elementos() = 0;
    /// The control or the one element of a control array; nothing if there is none. Never loads the screen.
    std::optional<Elemento> achar(std::string_view nome, std::optional<int> índice);

    bool visivel = false;
    bool habilitada = true;
    /// The mouse pointer over the screen.
    Ponteiro ponteiro = Ponteiro::padrão;

  protected:
    virtual void criar() = 0;
    virtual void destruir() = 0;

  private:
    std::string nome_;
    EventosTela eventos_;
};

/// A screen: a record of named controls that comes into being with its defaults on first use and lasts until
/// it is closed. The record has a `Caption` and a template `percorrer(visita)` that calls
/// `visita(name, control)` for each control and `visita(name, array, first index)` for each control array.
template <class Registro>
class Tela final : public TelaBase {
  public:
    explicit Tela(std::string nome, EventosTela eventos = {}) : TelaBase{std::move(nome), eventos} {}

    Registro* operator->() {
        carregar();
        return registro_.get();
    }

    bool carregada() const override { return registro_ != nullptr; }
    const std::string& caption() const override { return registro_->Caption; }

    std::vector<Elemento> elementos() override {
        std::vector<Elemento> todos;
        if (registro_) registro_->percorrer(Coletor{todos});
        return todos;
    }

  protected:
    void criar() override { registro_ = std::make_unique<Registro>(); }
    void destruir() override { registro_.reset(); }

  private:
    struct Coletor {
        std::vector<Elemento>& todos;

        template <class C>
        void operator()(const char* nome, C& controle) const {
            todos.push_back({nome, std::nullopt, &controle});
        }

        /// Elements below the first index exist only so that the others bear their own numbers.
        template <class C, std::size_t N>
        void operator()(const char* nome, std::array<C, N>& controles, int primeiro) const {
            for (std::size_t i = static_cast<std::size_t>(primeiro); i < N; ++i)
                todos.push_back({nome, static_cast<int>(i), &controles[i]});
        }
    };

    std::unique_ptr<Registro> registro_;
};

/// The main window, set by the shell. It lives as long as the program.
inline TelaBase* telaPrincipal = nullptr;

/// Gives control back to the main window: shows and enables it.
void voltarAoMenu();

/// The control that has the focus, by its address; null where none has it.
inline const void* controleComFoco = nullptr;

template <class C>
void focar(const C& controle) {
    controleComFoco = &controle;
}

} // namespace varenta
