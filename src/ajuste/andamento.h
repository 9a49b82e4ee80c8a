#pragma once

#include "ajuste/busca.h"
#include "comum/grafico.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varenta {

/// `Form_AjCar`, which shows as long as this lasts how far a fit has come: its stage, the smallest mean
/// deviation so far, the bar, and a chart of the one against the other.
class Andamento {
  public:
    /// `unidade` follows the deviation: " mm/h" or " mm".
    explicit Andamento(std::string unidade);
    Andamento(const Andamento&) = delete;
    Andamento& operator=(const Andamento&) = delete;
    ~Andamento();

    /// Listens to the search. Label and bar are told to the platform whenever one of them changes.
    OuvinteDaBusca ouvinte();

    /// The objective, evaluated a few points at a time where each costs `pontosDoModelo` points of the model,
    /// so that the windows are kept alive in between. The values are those of `objetivo`.
    Objetivo vigiar(Objetivo objetivo, std::size_t pontosDoModelo);

  private:
    void mostrarEtapa(int etapa);
    void mostrarDesvio(double D);
    void mostrarBarra(double valor);
    void contar(std::size_t avaliados);
    void desenhar() const;

    std::string unidade_, etapa_;
    std::size_t avaliados_ = 0;
    double desvio_ = 0;
    /// Bar and deviation, each time that the bar has moved.
    std::vector<PontoDoDesenho> passos_;
};

} // namespace varenta
