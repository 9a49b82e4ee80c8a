#pragma once

/// Flow, reach and pressure of the catalogue's sprinklers, as pure arithmetic.
///
/// Nozzles are whole diameters in mm, 0 for none; pressures in m.c.a., fractions allowed; flows in m³/h,
/// reaches in m, flow coefficients K in m³/h per root of m.c.a. Routines that take both nozzles take the
/// auxiliary one first. A combination that the catalogue does not hold gives 0.
namespace varenta::catalogo {

/// The literal that all formulas of the catalogue use; its truncation is part of the numbers.
inline constexpr double pi = 3.14159265358979;

/// K of a pair of nozzles: Q = K x sqrt(pressure).
double coefVazaoTX15(int bocalAuxiliar, int bocalPrincipal);
double coefVazaoTX20(int bocalAuxiliar, int bocalPrincipal);

/// Flow of the pair at the pressure given.
double vazaoTX15(int bocalAuxiliar, int bocalPrincipal, double pressao);
double vazaoTX20(int bocalAuxiliar, int bocalPrincipal, double pressao);
double vazaoTX30(int bocalPrincipal, double pressao);

/// The pressure at which each of two jets acts that share one supply: (K12 / (K1 + K2))² x pressure. Without
/// an auxiliary nozzle the pressure itself.
double pressaoEfetivaTX15(int bocalAuxiliar, int bocalPrincipal, double pressao);
double pressaoEfetivaTX20(int bocalAuxiliar, int bocalPrincipal, double pressao);

/// Reach of the auxiliary jet, of the TX15 and TX20 alike.
double raioAuxiliar(int bocalAuxiliar, double pressao);

/// Reach of the main jet: a parabola in the pressure.
double raioTX15(int bocalPrincipal, double pressao);
double raioTX20(int bocalPrincipal, double pressao);
double raioTX30(int bocalPrincipal, double pressao);

/// Mean intensity in mm/h of a flow spread evenly over a circle of that reach. Raises "Divisão por zero" or
/// "Estouro" for a reach of 0.
double intensidadeMedia(double vazao, double raio);

} // namespace varenta::catalogo
