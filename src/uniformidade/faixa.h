#pragma once

#include "simulacao/campo_intensidades.h"
#include "uniformidade/sobreposicao.h"

#include <vector>

/// The field of depths of a whole irrigated strip: the cart's footprint, carried along the lane with its
/// stops, and overlapped with the neighbouring lanes.
///
/// Rows run along the lane, row a (from 1) at y(a) = (a - 1) x s - W1; the cart runs from y = s to y = Cc.
/// Letters: s spacing of the points (m), Nn points across, N = Nn / 2, P positions of the cart, M = Nn + P
/// rows, n positions between lanes, W1 = (N - 0.5) x s, R reach (m).
namespace varenta {

/// How the strip is travelled.
struct DadosDaFaixa {
    DadosDaSimulação simulação;
    double Cc;  // length of the carrier lane, m
    double E;   // spacing between lanes, m
    double W0;  // distance of the outermost point of the transversal profile, m
    double Tpi; // stop at the start, hours
    float Tpf;  // stop at the end, hours
};

struct Faixa {
    int N;
    double s;
    /// M rows by n positions: depths in mm.
    Matriz lâminas;
    /// Position along the lane (m) and mean depth (mm) of each row; see `calcularFaixaIrrigada`.
    std::vector<double> y, média;
    ContagemDoModelo contagem;
};

/// Builds the field with the cart at P positions in turn, each applying s / V hours of the footprint, but the
/// first and the last only the time of their stops; then overlaps the lanes row by row. The mean of a row
/// adds a position's depth at each visit of the lane's left side, as it stands then. Raises what the model
/// raises, "Índice fora dos limites" where no position lies between the lanes, and "Memória insuficiente" for
/// a field larger than any table.
Faixa calcularFaixaIrrigada(const DadosDaFaixa& dados);

/// The rows, from 1, that bound the bands of the strip. They may lie outside the field.
struct BandasDaFaixa {
    int início;      // where the strip begins
    int fimDoInício; // where the band of its start ends
    int inícioDoFim; // where the band of its end begins
    int fim;         // where the strip ends
};

/// The bands of a strip that begins at the signed position `de` (m, 0 where the cart starts) and ends at
/// `até`, on a carrier lane of the length `Cc`.
BandasDaFaixa bandasDaFaixa(int N, double s, double R, double Cc, double de, double até);

/// Statistics of the rows b0 to b1 (from 1, both included). Raises "Índice fora dos limites" for a row that
/// the field lacks, and as `calcularEstatísticas`.
Estatísticas estatísticasDaBanda(const Faixa& faixa, int b0, int b1);

/// Rows and columns of the strip's map.
inline constexpr std::size_t linhasDoMapaDaFaixa = 500, colunasDoMapaDaFaixa = 300;

/// The field resampled to the map's rows and columns by linear interpolation, between columns first and then
/// between rows; the outermost samples are the outermost rows and columns themselves. The field has at least
/// one row and one column.
Matriz ampliarFaixa(const Matriz& lâminas);

} // namespace varenta
