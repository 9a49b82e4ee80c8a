#pragma once

#include "comum/numeros.h"

#include <cmath>

namespace varenta {

/// A double whose operations raise the run-time error of a division by zero or an overflow at the very
/// operation where it arises. A formula written as a template runs on doubles where it must be fast, and is
/// run again on these to find which error it met, once its result is seen to be no finite number.
class Verificado {
  public:
    Verificado(double valor) : valor_{valor} {}
    explicit operator double() const { return valor_; }

    friend Verificado operator-(Verificado a) { return -a.valor_; }
    friend Verificado operator+(Verificado a, Verificado b) { return finito(a.valor_ + b.valor_); }
    friend Verificado operator-(Verificado a, Verificado b) { return finito(a.valor_ - b.valor_); }
    friend Verificado operator*(Verificado a, Verificado b) { return finito(a.valor_ * b.valor_); }
    friend Verificado operator/(Verificado a, Verificado b) { return dividir(a.valor_, b.valor_); }
    friend Verificado fabs(Verificado a) { return std::fabs(a.valor_); }
    friend Verificado sqrt(Verificado a) { return std::sqrt(a.valor_); }

  private:
    double valor_;
};

} // namespace varenta
