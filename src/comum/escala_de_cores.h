#pragma once

#include "comum/desenho.h"
#include "comum/matriz.h"

namespace varenta {

/// The channels of a colour.
unsigned GetRed(Cor cor);
unsigned GetGreen(Cor cor);
unsigned GetBlue(Cor cor);

/// The colours of a map of intensities: from white for 0 to pure blue for the top of the scale.
class EscalaDeCores {
  public:
    /// The top is the first whole number above the largest value.
    explicit EscalaDeCores(double maior);

    double topo() const { return topo_; }
    /// Each channel rises from its start by (end - start) / top for each unit of the value, rounded half to
    /// even, within 0 to 255.
    Cor cor(double valor) const;
    /// The values as boxes of one size from the corner (x, y) on.
    Mosaico mosaico(const Matriz& valores, double x, double y, double largura, double altura) const;

  private:
    double topo_;
};

} // namespace varenta
