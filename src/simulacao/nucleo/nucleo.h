#pragma once

#include "simulacao/modelo_vento.h"
#include "simulacao/nucleo/largura.h"

#include <array>
#include <cstddef>
#include <span>

/// The intensities of many points at once. `nucleo.cpp` is compiled once for each width of vectors that the
/// processors of the architecture may have; `preparo.cpp` holds what is done once for all points of a batch.
namespace varenta {

/// Intensities that a kernel makes at a time, of any width.
inline constexpr std::size_t maiorBloco = 512;
/// Lanes of the widest vector.
inline constexpr std::size_t maisFaixas = 8;

/// Where the wetted sector begins and ends, on a stand-in of the angle theta that costs one division and no
/// arc tangent: 0 on the positive x axis, 1 on the negative y axis, 2 and 3 on the next, 4 after a full turn.
struct LimitesDoSetor {
    static constexpr std::size_t máximo = 6;
    /// Ascending. What lies nearer than `margem` to one of them is for `distanciaNoSetor` to decide.
    double chaves[máximo];
    std::size_t quantos;
    /// Whether what lies below the first of them is wetted; each of them turns it, if `vira` says so.
    bool começaMolhado;
    bool vira[máximo];

    /// On either side. The stand-in and the arc tangent are off by less than 1e-14, and near a limit they
    /// grow at rates within a factor of 2.
    static constexpr double margem = 1e-9;
};

/// The radial profile by segment: i = (rho - limite) x variação / largura + início.
struct SegmentosDoPerfil {
    /// The segments, and what fills whole vectors of any width.
    static constexpr std::size_t lugares = 24;
    static_assert(lugares >= pontosDoPerfil - 1);

    double limite[lugares], variação[lugares], largura[lugares], início[lugares];
};

/// One set of conditions, made ready. Plain numbers: code that is compiled for one processor must not bring
/// along functions of the library that others could be given by the linker.
struct PreparoDoLote {
    CondiçõesDoPonto condições;
    Senos senos;
    /// The sets of parameters under which each point is evaluated, 1, 2, 4 or 8 of them but no more than a
    /// vector has lanes: A to F, each a row with the sets in turn over and over.
    std::size_t conjuntos;
    double parâmetros[6][maisFaixas];
    /// The least x² + y² whose square root isn't below R.
    double foraDoAlcance;
    /// Whether W, R, s2 and the B, D, E and F of all sets have magnitudes that let known divisors do for true
    /// division.
    bool divisoresConhecidos;
    LimitesDoSetor setor;
    CunhaSeca cunha;
    SegmentosDoPerfil perfil;
    double escala; // 360 / `anguloGiro`, or 1 in the full circle
};

/// Makes ready what the kernels read but what hangs on the parameters A to F, `definirConjuntos`.
/// False where the conditions are none for them: no finite scale, or a reach whose square is none of a usual
/// magnitude.
bool preparar(const CondiçõesDoPonto& condições, const Senos& senos, PreparoDoLote& preparo);

/// Sets `conjuntos`, `parâmetros` and `divisoresConhecidos`.
void definirConjuntos(PreparoDoLote& preparo, std::span<const std::array<double, 6>> conjuntos);

/// Evaluates the points (x[k], y[k]), n of them, under each set s into i[k conjuntos + s], which makes 1 to
/// `maiorBloco` intensities, and adds to `contagem`. False where one of them may have met an error; then
/// nothing is written, and the points are to be evaluated one by one.
using AvaliarBloco = bool(const PreparoDoLote& preparo, const double* x, const double* y, double* i,
                          std::size_t n, ContagemDoModelo& contagem);

/// The one with vectors of `bits` bits.
template <int bits>
AvaliarBloco avaliarBloco;

template <>
AvaliarBloco avaliarBloco<128>;
template <>
AvaliarBloco avaliarBloco<256>;
template <>
AvaliarBloco avaliarBloco<512>;

/// That of a width; none for `Largura::escalar`. The processor must have it.
AvaliarBloco* núcleoDa(Largura largura);

} // namespace varenta
