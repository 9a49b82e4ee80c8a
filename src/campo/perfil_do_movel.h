#pragma once

#include "aspersor/perfil_medido.h"

#include <span>
#include <vector>

/// The inverse problem: from the depths that a travelling sprinkler leaves across its lane to the intensity
/// at each distance from it, by peeling the wetted circle ring by ring from the rim inward.
///
/// Letters: x distance of a collector from the lane (m), D depth there (mm), R reach (m), V speed of travel
/// (m/h), α half of the dry angle (radians).
namespace varenta {

/// Half of the chord at the distance x from the centre of a circle of radius r; 0 outside.
double cordaCheia(double x, double r);

/// The other half, in a circle with a dry sector: it ends on the sector's edge where that lies within.
double cordaSetor(double x, double r, double alfa);

/// Distance from the centre of the centroid of the circular segment of radius r cut at x, 0 < x < r.
double centroSegmento(double r, double x);

/// The mean depths of both sides at the positions of the collectors, from the lane outward.
struct PerfilMóvel {
    std::vector<double> x, D;
    double espaço;
};

/// Why the depths give no profile: the message to show; null where they do.
const char* recusaDoPerfilMóvel(const PerfilMóvel& perfil);

/// The rings' intensities (mm/h) at their representative radii, closed by 0 at the reach.
struct PerfilInvertido {
    double R;
    std::vector<PontoMedido> anéis;
};

/// Peels the circle. Depths beyond the last wet position don't count; nothing is clipped, so that a ring's
/// intensity can be negative. Raises "Índice fora dos limites" with fewer than two wet positions, "Divisão
/// por zero" or "Estouro" for two equal last depths and for a speed of 0.
PerfilInvertido inverterPerfilMóvel(const PerfilMóvel& perfil, double V, double alfa);

/// Makes the radial profile of `Form_EC`'s test and shows it on `Perfil`, which goes on to the simulation.
void perfilRadialDoMovel();

} // namespace varenta
