#pragma once

#include "aspersor/perfis_catalogo.h"

#include <array>
#include <cstddef>
#include <span>

/// The radial profile of a sprinkler: 22 points at fixed relative distances, and the smooth curve that the
/// charts draw through them. Pure arithmetic; arrays are indexed from 0, so that element k - 1 is point k.
///
/// Letters: Q flow (m³/h), R reach (m), Pe effective pressure (m.c.a.), I intensity (mm/h); index p the main
/// jet, a the auxiliary one.
namespace varenta {

inline constexpr std::size_t pontosDoPerfil = 22;
using PontosDoPerfil = std::array<double, pontosDoPerfil>;

/// The relative distances 0, then 0.025 + 0.05 x (k - 2) for k = 2 to 21, then 1.
PontosDoPerfil distanciasRelativas();

/// The same distances, got by adding 0.05 step after step from 0.025; the last bits differ.
PontosDoPerfil distanciasRelativasAcumuladas();

/// Two neighbouring rows of a catalogue table with the catalogue pressure of the lower one: an intensity
/// ratio at any pressure between is interpolated by a straight line.
struct FaixaDePressão {
    std::size_t linhaBaixa, linhaAlta;
    double base;
};

/// The rows for an effective pressure, within a block of five rows at 30 to 70 m.c.a.; below 30 the first row
/// stands for both. Raises "Índice fora dos limites" above 70.
FaixaDePressão faixaDeCincoLinhas(double pressao);

/// The rows within a block of four at 40 to 70 m.c.a. Raises "Índice fora dos limites" outside.
FaixaDePressão faixaDeQuatroLinhas(double pressao);

/// The rows of one nozzle. Raises "Índice fora dos limites" for a nozzle that the table lacks.
std::span<const catalogo::LinhaDePerfil> blocoDoBocal(std::span<const catalogo::LinhaDePerfil> tabela,
                                                      int bocal);

/// The interpolated ratios of the nozzle whose rows are `bloco`.
PontosDoPerfil razõesNaPressão(std::span<const catalogo::LinhaDePerfil> bloco, const FaixaDePressão& faixa,
                               double pressao);

/// Carries the intensities of an auxiliary jet, given at its own radii, over to the radius `r`: straight
/// lines between its points. With two segments that meet at `r` the later one counts.
double intensidadeNoRaio(double r, const PontosDoPerfil& raios, const PontosDoPerfil& intensidades);

/// A sampled point of the smooth curve, relative distance against relative intensity.
struct Amostra {
    double x, y;
};

struct CurvaDoPerfil {
    /// 62 samples, the closing point (1, 0) included.
    std::array<Amostra, 62> amostras;
    /// The largest ordinate that the sampling left in its working values, at least 0.
    double maior;
};

/// Samples a natural cubic spline through the points (x, y) every 0.01875 from the start of each segment.
/// Each sample takes the place of the segment's first ordinate before the next one is computed; the curves of
/// all charts have that shape.
CurvaDoPerfil amostrarCurva(const PontosDoPerfil& x, const PontosDoPerfil& y);

} // namespace varenta
