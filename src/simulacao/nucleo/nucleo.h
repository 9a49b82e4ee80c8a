#pragma once

#include "simulacao/modelo_vento.h"
#include "simulacao/nucleo/largura.h"

#include <cstddef>

/// The intensities of many points at once. `nucleo.cpp` is compiled once for each width of vectors that the
/// processors of the architecture may have; `preparo.cpp` holds what is done once for all points of a batch.
namespace varenta {

/// Points that a kernel takes at a time, of any width.
inline constexpr std::size_t maiorBloco = 512;

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
    double limite[pontosDoPerfil - 1], variação[pontosDoPerfil - 1];
    double largura[pontosDoPerfil - 1], início[pontosDoPerfil - 1];
};

/// One set of conditions, made ready. Plain numbers: code that is compiled for one processor must not bring
/// along functions of the library that others could be given by the linker.
struct PreparoDoLote {
    CondiçõesDoPonto condições;
    Senos senos;
    /// The least x² + y² whose square root isn't below R.
    double foraDoAlcance;
    /// Whether W, B, D, E, F, R and s2 have magnitudes that let known divisors do for true division.
    bool divisoresConhecidos;
    LimitesDoSetor setor;
    CunhaSeca cunha;
    SegmentosDoPerfil perfil;
    double escala; // 360 / `anguloGiro`, or 1 in the full circle
};

/// Makes ready what the kernels read but `divisoresConhecidos`, which hangs on the parameters A to F too.
/// False where the conditions are none for them: no finite scale, or a reach whose square is none of a usual
/// magnitude.
bool preparar(const CondiçõesDoPonto& condições, const Senos& senos, PreparoDoLote& preparo);

/// Whether the magnitudes of all constants let known divisors do for true division.
bool magnitudesUsuais(const CondiçõesDoPonto& condições, double s2);

/// Evaluates the points (x[k], y[k]), 1 to `maiorBloco` of them, into i[k], and adds to `contagem`. False
/// where one of them may have met an error; then nothing is written, and the points are to be evaluated one
/// by one.
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
