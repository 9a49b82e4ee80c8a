/// Prints every bit of the intensities of many fields as one number: all directions of the wind, the points
/// of each field right on the ends of its sector among them. Run on another processor, or as if on another,
/// it must print the same. A second number is made in the same way from the C library's own functions, which
/// may differ.

#include "simulacao/lote.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace {

using namespace varenta;

/// Fowler, Noll and Vo's hash.
struct Mistura {
    std::uint64_t número = 1469598103934665603u;
    void juntar(double valor) { número = (número ^ std::bit_cast<std::uint64_t>(valor)) * 1099511628211u; }
};

CondiçõesDoPonto condições(int direção) {
    CondiçõesDoPonto c{.R = 40,
                       .A = 1.448,
                       .B = 0.524,
                       .C = -0.388,
                       .D = 0.104,
                       .E = 16.012,
                       .F = -13.444,
                       .W = static_cast<double>(direção % 9),
                       .anguloJato = radianos(10 + direção % 20),
                       .rotVento = rotaçãoDoVento(direção),
                       .anguloSecoI = 45,
                       .anguloSecoII = 45,
                       .rotacao = 45.0 * (direção % 8),
                       .anguloGiro = 270,
                       .intensidades = {}};
    for (std::size_t k = 0; k < pontosDoPerfil; ++k) c.intensidades[k] = 20 - 0.7 * static_cast<double>(k);
    return c;
}

} // namespace

int main() {
    Mistura modelo, biblioteca;
    for (int direção = 0; direção <= 360; ++direção) {
        auto c = condições(direção);
        if (direção % 2) c.setor = Setor::semCunhaÀFrente;
        const auto senos = senosDe(c);
        std::vector<double> X, Y;
        for (int i = 0; i < 60; ++i)
            for (int j = 0; j < 60; ++j) {
                const double x = 1.5 * i - 44.25, y = 1.5 * j - 44.25;
                X.push_back(x * senos.cosseno - y * senos.seno);
                Y.push_back(y * senos.cosseno + x * senos.seno);
                biblioteca.juntar(std::atan(x / y));
            }
        biblioteca.juntar(std::sin(c.rotVento));
        std::vector<double> M(X.size());
        ContagemDoModelo contagem;
        intensidadesEmPontos(X, Y, c, M, contagem);
        for (const double valor : M) modelo.juntar(valor);
    }
    std::printf("modelo %016llx\nbiblioteca %016llx\n", static_cast<unsigned long long>(modelo.número),
                static_cast<unsigned long long>(biblioteca.número));
}
