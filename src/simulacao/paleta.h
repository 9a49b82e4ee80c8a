#pragma once

#include "comum/controles.h"

#include <cstddef>

/// The colours of the maps: white for 0, pure blue for the top of the scale, and even steps of each channel
/// between them.
namespace varenta {

/// The channels of a colour, 0 to 255.
double GetRed(Cor c);
double GetGreen(Cor c);
double GetBlue(Cor c);

/// The scale of a map whose largest value is `maior`.
class Paleta {
  public:
    explicit Paleta(double maior);

    /// The whole number above the largest value.
    double topo() const { return topo_; }
    /// Each channel is start + value x step, as a whole number, half to even, within 0 to 255.
    Cor cor(double valor) const;

  private:
    struct Canal {
        double início, passo;
    };
    static Cor canal(const Canal& canal, double valor);

    double topo_;
    Canal vermelho_, verde_, azul_;
};

/// Draws a legend from the top of the canvas downward: `topo` / 20 below the top, and on in steps of it down
/// to 0, a box each.
void desenharLegenda(Desenho& desenho, const Paleta& paleta);

} // namespace varenta
