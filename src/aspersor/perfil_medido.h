#pragma once

#include "aspersor/perfil_radial.h"

#include <optional>
#include <span>
#include <vector>

/// From the readings of a test to a radial profile of 22 points: pure arithmetic.
///
/// Letters: r distance from the sprinkler (m), i intensity (m/h or mm/h, as told), R reach (m), Q flow
/// (m³/h). A polyline is a sequence of points by ascending r, joined by straight lines.
namespace varenta {

/// The literals of pi that the measured profiles are computed with; their truncation is part of the numbers.
struct LiteraisDePi {
    double pi, doisPi;
};
inline constexpr LiteraisDePi piDoEnsaioRadial{3.141592654, 6.283185308};
inline constexpr LiteraisDePi piDoEnsaioMóvel{3.14159265358979, 6.28318530717958};

struct PontoMedido {
    double r, i;
};

/// The straight line i = a + b r.
struct Reta {
    double a, b;
};

/// The line through two points, its intercept from the first. Raises "Divisão por zero" or "Estouro" where
/// both have the same r.
Reta retaPor(const PontoMedido& p1, const PontoMedido& p2);

/// The reading that an intensity of 1 m/h gives: as an intensity in mm/h,
double leituraDeUmMetroPorHora();
/// as a depth in mm, over a time in minutes,
double leituraDeUmMetroPorHora(double minutos);
/// as a volume in ml, over a time in minutes, in a round collector of that diameter in cm.
double leituraDeUmMetroPorHora(double minutos, double diâmetro);

/// A closed radial profile: the point at the sprinkler, the readings, and the point (R, 0) at the reach.
struct PerfilFechado {
    std::vector<PontoMedido> pontos;
    double R;
};

/// Closes the profile that the readings (i in any unit, by ascending r) leave open.
///
/// At the sprinkler the line of the first two readings goes on to r = 0; where that is at or below 0, twice
/// the first reading stands there, where it is above twice the largest reading, the largest. At the reach the
/// line of the last two goes on to 0, at most a quarter of their spacing beyond the last.
/// Raises "Índice fora dos limites" for fewer than two readings, "Divisão por zero" where the last two are
/// level.
PerfilFechado fecharPerfil(std::span<const PontoMedido> leituras);

/// The volume under a polyline turned around the sprinkler: m³/h for i in m/h, litres an hour for mm/h.
double volumeSobOPerfil(std::span<const PontoMedido> pontos, const LiteraisDePi& pi);

/// A measured sprinkler: its profile keeps the test's shape, and its scale comes from the flow.
struct PerfilMedido {
    double R;
    /// m³/h
    double Q;
    /// Mean intensity, mm/h.
    double Imedia;
    /// Relative distances and relative intensities, those of a `PerfilRadial`.
    PontosDoPerfil distâncias, razões;
};

/// Divides the polyline by its own mean and reads it at the 22 relative distances; the last one is (1, 0).
/// `volume` is the volume under it, in units of its i. A relative distance outside the polyline gives 0.
/// Raises "Divisão por zero" or "Estouro" where the volume, the reach or a length is 0.
PerfilMedido perfilMedido(std::span<const PontoMedido> pontos, double R, double volume, double Q,
                          const LiteraisDePi& pi);

/// Whether the flow estimated from a profile and the flow applied are more than 10 % apart.
bool vazãoDiverge(double estimada, double aplicada);

} // namespace varenta
