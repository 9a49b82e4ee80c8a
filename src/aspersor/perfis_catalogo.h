#pragma once

#include <array>

/// The measured radial profiles of the catalogue's sprinklers: for each nozzle (mm) and catalogue pressure
/// (m.c.a.) the ratio of the local intensity to the mean one at the 22 relative distances of a radial
/// profile. Rows follow the nozzles and, within a nozzle, the pressures: 30 to 70 m.c.a. by tens, and 40 to
/// 70 for the TX30.
namespace varenta::catalogo {

struct LinhaDePerfil {
    int bocal;
    int pressão;
    std::array<double, 22> razões;
};

extern const std::array<LinhaDePerfil, 40> perfisTX15;
extern const std::array<LinhaDePerfil, 45> perfisTX20;
extern const std::array<LinhaDePerfil, 24> perfisTX30;
extern const std::array<LinhaDePerfil, 15> perfisAuxiliares;

} // namespace varenta::catalogo
