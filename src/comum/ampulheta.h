#pragma once

#include "comum/plataforma.h"
#include "comum/tela.h"

namespace varenta {

/// The hourglass over a screen while long work runs: its pointer changes at once, and back when the work
/// ends, however it ends.
class Ampulheta {
  public:
    explicit Ampulheta(TelaBase& tela) : tela_{tela} {
        tela_.ponteiro = Ponteiro::ampulheta;
        plataforma::mostrarAmpulheta(true);
    }
    ~Ampulheta() {
        plataforma::mostrarAmpulheta(false);
        tela_.ponteiro = Ponteiro::padrão;
    }
    Ampulheta(const Ampulheta&) = delete;
    Ampulheta& operator=(const Ampulheta&) = delete;

  private:
    TelaBase& tela_;
};

} // namespace varenta
