#pragma once

#include "comum/matriz.h"

#include <array>
#include <cstddef>

/// What the depths of an irrigated strip are worth for a required depth: the area that gets enough, the
/// efficiencies, and the volumes in excess and in deficit, for required depths drawn from a normal
/// distribution around the strip's mean.
namespace varenta {

/// Water of the whole field, in m³.
struct VolumesDaFaixa {
    double total = 0;   // on all cells
    double perdido = 0; // on the rows outside the strip
    double soma = 0;    // of the strip's depths, mm
    double células = 0; // of the strip
};

/// Sums the depths (mm) of all cells of the area `A` (m²); the strip is the rows a0 to a3, from 1.
VolumesDaFaixa somarVolumes(const Matriz& lâminas, double A, int a0, int a3);

/// A required depth and what it asks.
struct LâminaRequerida {
    double Ir = 0;            // mm
    double ADobs = 0;         // observed area that gets at least Ir, % of the strip
    double volumeÚtil = 0;    // m³
    double aplicação = 0;     // application efficiency, %
    double armazenamento = 0; // storage efficiency, %
    double excesso = 0;       // m³
    double déficit = 0;       // m³
    double ADest = 0;         // estimated fraction of the area, 0 to 1
};

inline constexpr std::size_t lâminasRequeridas = 49;

using TabelaDeEficiências = std::array<LâminaRequerida, lâminasRequeridas>;

/// The upper tail of the standard normal distribution at z, by Hastings' polynomial: below 0, where the
/// polynomial turns negative, 1 less it; at most 1. Raises "Divisão por zero" where its denominator is 0.
double caudaNormal(double z);

/// The required depths, from the largest to the smallest, with their efficiencies. `média` is the mean of the
/// strip's depths (mm), `Vt` the volume applied (m³). Raises "Estouro" where no depth differs from
/// the mean, and "Chamada de
/// procedimento ou argumento inválido" where a negative mean makes the base of a power negative.
TabelaDeEficiências analisarFaixa(const Matriz& lâminas, double A, int a0, int a3, double média, double Vt);

/// The first row, from 0, of the candidates that are not above the depth `Ic` (mm) at the centre; all of them
/// for an Ic above all, none (their number) for one below all.
std::size_t primeiraLâminaMostrada(const TabelaDeEficiências& tabela, double Ic);

} // namespace varenta
