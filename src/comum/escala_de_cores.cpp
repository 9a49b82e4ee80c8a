#include "comum/escala_de_cores.h"

#include "comum/numeros.h"

#include <algorithm>

namespace varenta {

unsigned GetRed(Cor cor) { return cor & 255; }
unsigned GetGreen(Cor cor) { return (cor & 65280) / 256; }
unsigned GetBlue(Cor cor) { return (cor & 16711680) / 65536; }

EscalaDeCores::EscalaDeCores(double maior) : topo_{Int(maior) + 1} {}

Cor EscalaDeCores::cor(double valor) const {
    const auto canal = [&](unsigned início, unsigned fim) {
        const double passo = (static_cast<double>(fim) - static_cast<double>(início)) / topo_;
        const double componente = static_cast<double>(início) + valor * passo;
        return static_cast<unsigned>(paraInteiro(std::clamp(componente, 0.0, 255.0)));
    };
    constexpr Cor início = cores::branco, fim = cores::azul;
    return corDe(canal(GetRed(início), GetRed(fim)), canal(GetGreen(início), GetGreen(fim)),
                 canal(GetBlue(início), GetBlue(fim)));
}

Mosaico EscalaDeCores::mosaico(const Matriz& valores, double x, double y, double largura,
                               double altura) const {
    Mosaico mosaico{x, y, largura, altura, valores.colunas(), {}};
    mosaico.cores.reserve(valores.valores().size());
    for (const double valor : valores.valores()) mosaico.cores.push_back(cor(valor));
    return mosaico;
}

} // namespace varenta
