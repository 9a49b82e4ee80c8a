/// Compiled once for each width of vectors, `VARENTA_BITS`. The same operations as the evaluation of one
/// point, `intensidadeEmPonto`, in the same order, on as many points at once as a vector has lanes:
///
/// 1. Newton's method pass by pass over the whole block, with a list of the vectors that still have a lane at
///    work, so that a point which never settles holds up its own vector alone. A lane that is done keeps its
///    solution. The passes of different vectors don't depend on one another and overlap in the processor.
/// 2. For each vector: which of the solutions lie in the reach and the sector, the profile there, and the
/// area
///    factor. Vectors without a wetted lane stop early.
///
/// Whatever isn't finite in a lane that counts makes the whole block be evaluated again, point by point,
/// which raises the error that it should at the point where it should. So nothing is checked within a pass of
/// numbers of usual magnitudes, which can't give anything infinite but in x and y, where it stays.
///
/// The legend of the symbols is in `modelo_vento.h`, the equations in `equacoes_vento.h`.

#include "simulacao/nucleo/nucleo.h"

#include "simulacao/equacoes_vento.h"
#include "simulacao/nucleo/vetores/vetor.h"

namespace varenta {
namespace {

using equações::Constantes;
using equações::constantes;

constexpr std::size_t vetoresDoBloco = maiorBloco / faixas;

/// The points of a block, each number in a row of its own; the rest of the last vector repeats its last
/// point.
struct Bloco {
    alignas(Registro) double x0[maiorBloco], y0[maiorBloco];
    alignas(Registro) double x[maiorBloco], y[maiorBloco];
    alignas(Registro) double i[maiorBloco];
    std::size_t n, vetores;
};

/// What the points of a block have in common, in vectors. `conhecidas` serves for points of usual magnitudes.
struct ConstantesDoBloco {
    Constantes<Vetor> verdadeiras;
    Constantes<Vetor, DivisorConhecido> conhecidas;
};

struct Contas {
    Vetor passes{0.0};
    std::size_t semConvergência = 0, fatorNãoPositivo = 0;
    /// Lanes whose determinant or area factor isn't finite.
    bool suspeito = false;
};

std::size_t quantas(Máscara m) { return static_cast<std::size_t>(__builtin_popcount(m.bits())); }

void preencher(Bloco& b, const double* x, const double* y, std::size_t n) {
    b.n = n;
    b.vetores = (n + faixas - 1) / faixas;
    for (std::size_t k = 0; k < b.vetores * faixas; ++k) {
        const std::size_t de = k < n ? k : n - 1;
        b.x0[k] = b.x[k] = x[de];
        b.y0[k] = b.y[k] = y[de];
    }
}

/// The lanes of vector `v` that are points of the block.
Máscara ocupadas(const Bloco& b, std::size_t v) {
    alignas(Registro) double lugar[faixas];
    for (std::size_t l = 0; l < faixas; ++l) lugar[l] = static_cast<double>(v * faixas + l);
    return Vetor::lido(lugar) < Vetor{static_cast<double>(b.n)};
}

/// Whether x and y of all lanes lie within 2^-32 and 2^32 in magnitude. With the constants in that range too
/// no quotient of the equations leaves 2^-400 to 2^400, and the determinant is finite.
bool magnitudesUsuais(Vetor x, Vetor y) {
    constexpr double menor = 0x1p-64, maior = 0x1p64; // of the squares
    const Vetor x2 = x * x, y2 = y * y;
    return ((x2 >= Vetor{menor}) & (y2 >= Vetor{menor}) & (x2 + y2 <= Vetor{maior})).todas();
}

equações::Passe<Vetor> passe(const Bloco& b, std::size_t k, bool divisoresConhecidos,
                             const ConstantesDoBloco& c, Contas& contas, Máscara ativas) {
    const Vetor x = Vetor::lido(b.x + k), y = Vetor::lido(b.y + k);
    const Vetor x0 = Vetor::lido(b.x0 + k), y0 = Vetor::lido(b.y0 + k);
    if (divisoresConhecidos && magnitudesUsuais(x, y))
        return equações::passeDeNewton(x, y, x0, y0, c.conhecidas);
    const auto p = equações::passeDeNewton(x, y, x0, y0, c.verdadeiras);
    contas.suspeito |= (ativas & !finitas(p.det)).alguma();
    return p;
}

/// Stage 1: the solutions, in b.x and b.y.
void resolver(Bloco& b, bool divisoresConhecidos, const ConstantesDoBloco& c, Contas& contas) {
    Máscara ativas[vetoresDoBloco];
    std::size_t lista[vetoresDoBloco];
    std::size_t restam = b.vetores;
    for (std::size_t v = 0; v < restam; ++v) {
        ativas[v] = ocupadas(b, v);
        lista[v] = v;
    }
    const Vetor tolerância{equações::tolerância};
    for (int passes = 0; passes < equações::limiteDePasses && restam > 0; ++passes) {
        const std::size_t nesta = restam;
        restam = 0;
        for (std::size_t p = 0; p < nesta; ++p) {
            const std::size_t v = lista[p], k = v * faixas;
            const auto fim = passe(b, k, divisoresConhecidos, c, contas, ativas[v]);
            onde(ativas[v], fim.x, Vetor::lido(b.x + k)).gravar(b.x + k);
            onde(ativas[v], fim.y, Vetor::lido(b.y + k)).gravar(b.y + k);
            contas.passes = contas.passes + onde(ativas[v], 1.0, 0.0);
            ativas[v] = ativas[v] & (fim.err > tolerância);
            lista[restam] = v;
            restam += ativas[v].alguma();
        }
    }
    for (std::size_t p = 0; p < restam; ++p) contas.semConvergência += quantas(ativas[lista[p]]);
}

/// The lanes of `candidatas` whose ground point (xs, ys) lies in the wetted sector.
Máscara noSetor(Vetor xs, Vetor ys, Máscara candidatas, const PreparoDoLote& p) {
    const auto& setor = p.setor;
    const Vetor t = xs / (fabs(xs) + fabs(ys));
    const Vetor chave = onde(ys < Vetor{0.0}, Vetor{1.0} - t, Vetor{3.0} + t);
    Máscara molhadas = setor.começaMolhado ? candidatas : candidatas & !candidatas;
    Máscara perto = xs == Vetor{0.0};
    for (std::size_t k = 0; k < setor.quantos; ++k) {
        const Vetor passado = chave - Vetor{setor.chaves[k]};
        perto = perto | (fabs(passado) <= Vetor{LimitesDoSetor::margem});
        if (setor.vira[k]) molhadas = molhadas ^ (passado > Vetor{0.0});
    }
    perto = perto & candidatas;
    molhadas = molhadas & candidatas;
    if (!perto.alguma()) return molhadas;

    const auto& c = *p.condições;
    alignas(Registro) double x[faixas], y[faixas], dentro[faixas];
    xs.gravar(x);
    ys.gravar(y);
    for (std::size_t l = 0; l < faixas; ++l)
        dentro[l] = perto.bits() >> l & 1
                        ? distanciaNoSetor(c.anguloSecoI, c.anguloSecoII, c.rotacao, x[l], y[l], c.R)
                        : 0;
    return (molhadas & !perto) | (perto & (Vetor::lido(dentro) > Vetor{0.0}));
}

/// Straight lines between the points of the profile at rho, 0 to 1 in all lanes.
Vetor noPerfil(Vetor rho, const SegmentosDoPerfil& perfil) {
    alignas(Registro) double limite[faixas], variação[faixas], largura[faixas], início[faixas], r[faixas];
    rho.gravar(r);
    for (std::size_t l = 0; l < faixas; ++l) {
        // Right, or one off next to a limit.
        auto k = static_cast<unsigned>(r[l] * 20 + 0.5);
        k -= r[l] < perfil.limite[k];
        k += r[l] >= perfil.fim[k];
        limite[l] = perfil.limite[k];
        variação[l] = perfil.variação[k];
        largura[l] = perfil.largura[k];
        início[l] = perfil.início[k];
    }
    return (rho - Vetor::lido(limite)) * Vetor::lido(variação) / Vetor::lido(largura) + Vetor::lido(início);
}

/// The relative distances of what the solutions (x, y) at the distances r, in the lanes of `dentro`, find of
/// the radial profile, and the lanes that find any.
struct NoAlcance {
    Vetor rho;
    Máscara molhadas;
    /// A quotient of the sector test may overflow.
    bool suspeito;
};

NoAlcance localizar(Vetor x, Vetor y, Vetor r, Máscara dentro, const PreparoDoLote& p) {
    const auto& c = *p.condições;
    const Vetor R{c.R};
    if (c.setor == ModoDoSetor::círculoInteiro) return {r / R, dentro, false};
    const Vetor xs = x * Vetor{p.senos.cosseno} + y * Vetor{p.senos.seno};
    const Vetor ys = y * Vetor{p.senos.cosseno} - x * Vetor{p.senos.seno};
    const Vetor d = sqrt(xs * xs + ys * ys);
    if (c.setor == ModoDoSetor::semCunhaÀFrente) {
        const Vetor lado = fabs(ys);
        const Máscara seca = (xs > Vetor{0.0}) & (lado / R < Vetor{p.cunha.seno}) &
                             (lado * Vetor{p.cunha.cotangente} < xs) & (xs < sqrt(R * R - ys * ys));
        const Vetor rho = onde(xs == Vetor{0.0}, 0.0, d / R);
        return {rho, dentro & !seca & (rho <= Vetor{1.0}), false};
    }
    const Vetor rho = d / R;
    dentro = dentro & (d < R) & (rho > Vetor{0.0}) & (rho < Vetor{1.0});
    const bool suspeito = (dentro & (fabs(ys) < Vetor{0x1p-900})).alguma();
    return {rho, suspeito ? dentro : noSetor(xs, ys, dentro, p), suspeito};
}

template <class Divisor>
Vetor fatorDeÁrea(Vetor x, Vetor y, const Constantes<Vetor, Divisor>& c) {
    const auto t = equações::termos(x, y, c);
    return equações::derivada11(x, t, c) * equações::derivada22(y, t, c);
}

/// Stage 2 for vector `v`: the intensities, in b.i. False where something isn't finite.
bool avaliar(Bloco& b, std::size_t v, const PreparoDoLote& p, const ConstantesDoBloco& c, Contas& contas) {
    const std::size_t k = v * faixas;
    const Vetor zero{0.0};
    zero.gravar(b.i + k);
    const Máscara pontos = ocupadas(b, v);
    const Vetor x = Vetor::lido(b.x + k), y = Vetor::lido(b.y + k);
    const Vetor r2 = x * x + y * y;
    if ((pontos & !finitas(r2)).alguma()) return false;
    const Vetor r = sqrt(r2);
    const Máscara dentro = pontos & (r < Vetor{p.condições->R});
    if (!dentro.alguma()) return true;
    const auto lugar = localizar(x, y, r, dentro, p);
    if (lugar.suspeito) return false;
    if (!lugar.molhadas.alguma()) return true;
    const Vetor i = noPerfil(onde(lugar.molhadas, lugar.rho, zero), p.perfil) * Vetor{p.escala};
    const Máscara molhadas = lugar.molhadas & !(i == zero);
    if (!molhadas.alguma()) return true;
    const Vetor fator = p.divisoresConhecidos && magnitudesUsuais(x, y) ? fatorDeÁrea(x, y, c.conhecidas)
                                                                        : fatorDeÁrea(x, y, c.verdadeiras);
    const Vetor valor = i / fator;
    onde(molhadas, valor, zero).gravar(b.i + k);
    contas.fatorNãoPositivo += quantas(molhadas & !(fator > zero));
    return !(molhadas & !(finitas(valor) & finitas(fator))).alguma();
}

} // namespace

template <>
bool avaliarBloco<VARENTA_BITS>(const PreparoDoLote& preparo, const double* x, const double* y, double* i,
                                std::size_t n, ContagemDoModelo& contagem) {
    const auto& condições = *preparo.condições;
    const ConstantesDoBloco c{constantes<Vetor>(condições, preparo.senos.s2),
                              constantes<Vetor, DivisorConhecido>(condições, preparo.senos.s2)};
    Bloco b;
    preencher(b, x, y, n);
    Contas contas;
    resolver(b, preparo.divisoresConhecidos, c, contas);
    if (contas.suspeito) return false;
    for (std::size_t v = 0; v < b.vetores; ++v)
        if (!avaliar(b, v, preparo, c, contas)) return false;

    for (std::size_t k = 0; k < n; ++k) i[k] = b.i[k];
    alignas(Registro) double passes[faixas];
    contas.passes.gravar(passes);
    for (const double p : passes) contagem.passes += static_cast<std::size_t>(p);
    contagem.pontos += n;
    contagem.semConvergência += contas.semConvergência;
    contagem.fatorNãoPositivo += contas.fatorNãoPositivo;
    contagem.emVetores += n;
    if (contagem.faixas < faixas) contagem.faixas = faixas;
    return true;
}

} // namespace varenta
