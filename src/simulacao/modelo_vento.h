#pragma once

#include "aspersor/perfil_radial.h"

#include <cstddef>

/// How wind distorts a sprinkler's circular pattern, and the intensity of precipitation that follows.
///
/// A drop that lands at (x, y) without wind, at r = sqrt(x² + y²) from the sprinkler, lands with wind at
///
///     xv = x - T - P q r x W        q = sqrt(sin(jet)² x² + y²) / r
///     yv = y - P q r y W            T = (A + B (r/R) + C (r/R)²) W
///                                   P = D / (r R) + E / R² + F r / R³
///
/// T carries the pattern downwind, P draws it in towards the sprinkler, across the wind (q = 1) more than
/// along it. A simulation asks the inverse, which Newton's method finds: from where comes the water of a
/// point?
///
/// R reach (m), W wind speed (m/s), A to F the fitted parameters (those of the screens times R).
/// Ground frame: x along the lane, positive ahead; y across it, positive to the right. Wind frame: turned so
/// that its x axis points to where the wind comes from. The sprinkler stands at the origin of both.
/// Theta, the angle of a ground point, is 0 on the positive x axis and grows through the negative y axis.
namespace varenta {

/// The literals of all formulas below; their truncation is part of the numbers.
inline constexpr double piDoModelo = 3.14159265358979;
inline constexpr double doisPiDoModelo = 6.28318530717958;

/// Degrees to radians: (degrees x pi) / 180.
inline double radianos(double graus) { return (graus * piDoModelo) / 180; }

/// The turn of the wind frame for a wind from the bearing `direção` (degrees, 0 ahead, 90 right).
inline double rotaçãoDoVento(double direção) { return doisPiDoModelo - radianos(direção); }

/// Which of the water at rest a point can get.
enum class Setor {
    /// That of the wetted sector between both dry angles, in the ground frame.
    entreÂngulosSecos,
    /// All: a full circle, whatever the angles.
    círculoInteiro,
    /// All but that of a wedge of 360 - `anguloGiro` degrees straight ahead, in the ground frame.
    semCunhaÀFrente
};

/// One sprinkler under one wind. Angles of the sector in degrees, the others in radians.
struct CondiçõesDoPonto {
    double R;
    double A, B, C, D, E, F;
    double W;
    double anguloJato; // of the jet above the horizontal
    double rotVento;   // `rotaçãoDoVento` of the wind's direction
    /// The wetted sector runs from I + rotation to 360 - II + rotation, in degrees of theta.
    double anguloSecoI, anguloSecoII, rotacao;
    /// The angle by which the intensities of the full circle are scaled.
    double anguloGiro;
    /// The 22 intensities (mm/h) of the full-circle radial profile.
    PontosDoPerfil intensidades;
    Setor setor = Setor::entreÂngulosSecos;
};

struct PontoSemVento {
    double x, y;
    /// Newton passes made, 26 at the most.
    int passes;
    /// Whether the residuals of the last pass were within the tolerance.
    bool convergiu;
};

/// The wind-frame point whose water lands at the wind-frame point (x0, y0): Newton's method from (x0, y0),
/// with the exact matrix of partial derivatives and Cramer's rule. When the limit of passes stops it, the
/// point reached is the result. Raises "Divisão por zero" or "Estouro", as they arise; a coordinate of
/// exactly 0 is a division by zero.
PontoSemVento pontoSemVento(double x0, double y0, const CondiçõesDoPonto& condições);

/// Where the water of the wind-frame point (x, y) lands with wind.
struct PontoComVento {
    double xv, yv;
};
PontoComVento pontoComVento(double x, double y, const CondiçõesDoPonto& condições);

/// The matrix of partial derivatives of (xv, yv) at (x, y).
struct MatrizDoModelo {
    double J11, J12, J21, J22;
};
MatrizDoModelo matrizDoModelo(double x, double y, const CondiçõesDoPonto& condições);

/// The sines and cosines that all points of one set of conditions share.
struct Senos {
    double s2;            // sin(jet)²
    double cosseno, seno; // of the turn of the wind frame
};
Senos senosDe(const CondiçõesDoPonto& condições);

/// The ends of the wetted sector, in radians of theta.
struct PontasDoSetor {
    double rad1, rad2;

    /// Whether the sector, both ends included, has the angle `theta` of a point, 0 to a full turn. A sector
    /// that crosses the positive x axis has it a turn further on or back.
    bool contêm(double theta) const;
    /// Whether an end is so close that an arc tangent which is off by a little may be on its other side.
    bool perto(double theta) const;
};
PontasDoSetor pontasDoSetor(double anguloSecoI, double anguloSecoII, double rotacao);

/// The distance (m) from the sprinkler of the ground point (xs, ys) if it lies in the wetted sector, both
/// ends included, and inside the reach R; otherwise 0. Angles in degrees. A point on an axis gives 0.
double distanciaNoSetor(double anguloSecoI, double anguloSecoII, double rotacao, double xs, double ys,
                        double R);

/// The dry wedge that a turn of `anguloGiro` degrees leaves: sine and cotangent of its half angle.
struct CunhaSeca {
    double seno, cotangente;
};
CunhaSeca cunhaSeca(double anguloGiro);

/// Intensity (mm/h) at the ground point (u, w) of a sprinkler of the reach R (m) at calm that turns through
/// `anguloGiro` degrees, its dry wedge lying ahead, symmetric about the positive u axis: the full circle's,
/// scaled by 360 / `anguloGiro`; 0 in the wedge and beyond the reach. A point with u of exactly 0 reads as
/// the sprinkler's own place.
double intensidadeSetor(const PontosDoPerfil& intensidades, double u, double w, double anguloGiro, double R);

struct IntensidadeNoPonto {
    double valor; // mm/h
    int passes;
    bool convergiu;
    /// False where the area factor J11 x J22 was needed and was not above 0.
    bool fatorPositivo;
};

/// Intensity of precipitation at the wind-frame point (x0, y0): that of the radial profile at the point from
/// which the water comes, divided by the area factor J11 x J22 (the diagonal alone, on purpose); 0 outside
/// the wetted sector. Raises as `pontoSemVento`.
IntensidadeNoPonto intensidadeEmPonto(double x0, double y0, const CondiçõesDoPonto& condições);
/// The same where `senosDe` them is at hand.
IntensidadeNoPonto intensidadeEmPonto(double x0, double y0, const Senos& senos,
                                      const CondiçõesDoPonto& condições);

/// How far the values of a batch can be trusted.
struct ContagemDoModelo {
    std::size_t pontos = 0;
    /// Points at which the solution stopped at its limit of passes, above the tolerance.
    std::size_t semConvergência = 0;
    /// Points whose area factor was not above 0.
    std::size_t fatorNãoPositivo = 0;
    /// Newton passes in all.
    std::size_t passes = 0;
    /// Points that were evaluated several at a time, and how many at a time at the most.
    std::size_t emVetores = 0, faixas = 1;
};

} // namespace varenta
