#pragma once

#include "comum/grafico.h"
#include "uniformidade/sobreposicao.h"

#include <span>
#include <vector>

/// The two charts of an overlap screen, for a simulated profile and for a measured one.
namespace varenta {

/// A lane spacing (m) with its figures.
struct PontoDoEspaçamento {
    double E;
    Estatísticas valores;
};

/// Draws `CUC` and `UD` against the spacing, and writes the nine ticks of the spacing. Nothing without
/// points.
void desenharEspaçamentos(Desenho& Picture2, std::span<Rotulo> Label26,
                          const std::vector<PontoDoEspaçamento>& pontos);

/// Depths (mm) at the positions between two lanes.
struct CurvaDaSobreposição {
    const std::vector<double>& lâminas;
    Cor cor;
};

/// Draws depths at positions s/2 + P x s from the lane, and writes the ticks from 1 on, from the first tick
/// of the distance. The vertical axis follows `maior`, the largest depth. Raises "Divisão por zero" or
/// "Estouro" where a tick step reads 0.
void desenharSobreposição(Desenho& Picture1, std::span<Rotulo> Label22, std::span<Rotulo> Label23, double s,
                          double maior, std::span<const CurvaDaSobreposição> curvas);

/// The position P (from 0) stands at s/2 + P x s from the lane.
double distânciaDaPosição(std::size_t P, double s);

/// The labels of a read-out: the last tick of each axis that it follows, and the two that show the values.
struct LeituraDeGráfico {
    const Rotulo& fimDeX;
    const Rotulo& fimDeY;
    Rotulo& x;
    Rotulo& y;
};

/// Reads a chart of depths at a place of the mouse; outside the axes both labels are blank. Returns the
/// pointer to show.
Ponteiro lerSobreposição(const LeituraDeGráfico& leitura, double x, double y);

/// The same for a chart of spacings, whose vertical axis is fixed: the last tick of y isn't read.
Ponteiro lerEspaçamentos(const LeituraDeGráfico& leitura, double x, double y);

} // namespace varenta
