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

#include <type_traits>

namespace varenta {
namespace {

using modelo::constantes;

constexpr std::size_t vetoresDoBloco = maiorBloco / faixas;

/// The points of a block, each number in a row of its own; the rest of the last vector repeats its last
/// point.
struct Bloco {
    alignas(Registro) double x0[maiorBloco], y0[maiorBloco];
    alignas(Registro) double x[maiorBloco], y[maiorBloco];
    alignas(Registro) double i[maiorBloco];
    std::size_t n, vetores;
};

/// The vectors that a pass takes at once. With 32 registers there is room for two, whose long chains of
/// quotients then fill each other's gaps; with 16 they would be in each other's way.
constexpr std::size_t juntos = VARENTA_BITS == 512 ? 2 : 1;
using Grupo = std::conditional_t<juntos == 2, Dupla<Vetor>, Vetor>;

struct Contas {
    std::size_t passes = 0, semConvergência = 0, fatorNãoPositivo = 0;
    /// A determinant isn't finite.
    bool suspeito = false;
};

void preencher(Bloco& b, const double* x, const double* y, std::size_t n) {
    b.n = n;
    b.vetores = (n + faixas - 1) / faixas;
    for (std::size_t k = 0; k < n; ++k) {
        b.x0[k] = b.x[k] = x[k];
        b.y0[k] = b.y[k] = y[k];
    }
    for (std::size_t k = n; k < b.vetores * faixas; ++k) {
        b.x0[k] = b.x[k] = x[n - 1];
        b.y0[k] = b.y[k] = y[n - 1];
    }
}

/// The lanes of vector `v` that are points of the block.
Máscara ocupadas(const Bloco& b, std::size_t v) {
    static constexpr double lugares[16] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    return Vetor::lido(lugares) < Vetor{static_cast<double>(b.n) - static_cast<double>(v * faixas)};
}

/// Whether x and y of all lanes lie within 2^-32 and 2^32 in magnitude. With the constants in that range too
/// every quotient by a known divisor lies within 2^-200 and 2^200, and the determinant is finite.
bool magnitudesUsuais(Vetor x, Vetor y) {
    constexpr double menor = 0x1p-64, maior = 0x1p64; // of the squares
    const Vetor x2 = x * x, y2 = y * y;
    return ((x2 >= Vetor{menor}) & (y2 >= Vetor{menor}) & (x2 + y2 <= Vetor{maior})).todas();
}

/// A pass of any magnitudes. Apart from the usual one, so that the two don't share the registers.
[[gnu::noinline, gnu::flatten]] modelo::Passe<Grupo> passeQualquer(Grupo x, Grupo y, Grupo x0, Grupo y0,
                                                                   const PreparoDoLote& p) {
    return modelo::passeDeNewton(x, y, x0, y0, constantes<Grupo>(*p.condições, p.senos.s2));
}

/// Stage 1: the solutions, in b.x and b.y.
[[gnu::flatten]] void resolver(Bloco& b, const PreparoDoLote& p, Contas& contas) {
    const auto conhecidas = constantes<Grupo, DivisorConhecido<Grupo>>(*p.condições, p.senos.s2);
    Máscara ativas[vetoresDoBloco];
    std::size_t lista[vetoresDoBloco];
    std::size_t restam = b.vetores;
    for (std::size_t v = 0; v < restam; ++v) {
        ativas[v] = ocupadas(b, v);
        lista[v] = v;
    }
    const auto dar = [&](std::size_t v, Vetor x, Vetor y, Vetor err) {
        const std::size_t k = v * faixas;
        onde(ativas[v], x, Vetor::lido(b.x + k)).gravar(b.x + k);
        onde(ativas[v], y, Vetor::lido(b.y + k)).gravar(b.y + k);
        contas.passes += ativas[v].quantas();
        ativas[v] = ativas[v] & (err > Vetor{modelo::tolerância});
        lista[restam] = v;
        restam += ativas[v].alguma();
    };
    for (int passe = 0; passe < modelo::limiteDePasses && restam > 0; ++passe) {
        const std::size_t nesta = restam;
        restam = 0;
        for (std::size_t n = 0; n < nesta; n += juntos) {
            const bool sobra = n + juntos > nesta; // the last one goes with itself
            const std::size_t v = lista[n], w = lista[sobra ? n : n + juntos - 1];
            const auto lidos = [&](const double* linha) {
                return Grupo::lidos(linha + v * faixas, linha + w * faixas);
            };
            const Grupo x = lidos(b.x), y = lidos(b.y), x0 = lidos(b.x0), y0 = lidos(b.y0);
            const bool usuais = p.divisoresConhecidos && magnitudesUsuais(x.parte(0), y.parte(0)) &&
                                magnitudesUsuais(x.parte(1), y.parte(1));
            const auto fim =
                usuais ? modelo::passeDeNewton(x, y, x0, y0, conhecidas) : passeQualquer(x, y, x0, y0, p);
            if (!usuais)
                contas.suspeito |= (ativas[v] & !finitas(fim.det.parte(0))).alguma() ||
                                   (ativas[w] & !finitas(fim.det.parte(1))).alguma();
            dar(v, fim.x.parte(0), fim.y.parte(0), fim.err.parte(0));
            if (juntos == 2 && !sobra) dar(w, fim.x.parte(1), fim.y.parte(1), fim.err.parte(1));
        }
    }
    for (std::size_t n = 0; n < restam; ++n) contas.semConvergência += ativas[lista[n]].quantas();
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
        // Right, or one too far just below a limit: at the limits themselves the sum is whole or above.
        auto k = static_cast<unsigned>(r[l] * 20 + 0.5);
        k -= r[l] < perfil.limite[k];
        limite[l] = perfil.limite[k];
        variação[l] = perfil.variação[k];
        largura[l] = perfil.largura[k];
        início[l] = perfil.início[k];
    }
    return (rho - Vetor::lido(limite)) * Vetor::lido(variação) / Vetor::lido(largura) + Vetor::lido(início);
}

/// What of the radial profile solutions find: the relative distance, in the lanes that find any.
struct NoAlcance {
    Vetor rho;
    Máscara molhadas;
    /// A quotient of the sector test may overflow.
    bool suspeito;
};

/// Of the solutions (x, y) at the squared distances r2, in the lanes of `dentro`, which are within the reach.
NoAlcance localizar(Vetor x, Vetor y, Vetor r2, Máscara dentro, const PreparoDoLote& p) {
    const auto& c = *p.condições;
    const Vetor R{c.R}, zero{0.0};
    if (c.setor == Setor::círculoInteiro) return {sqrt(r2) / R, dentro, false};
    const Vetor xs = x * Vetor{p.senos.cosseno} + y * Vetor{p.senos.seno};
    const Vetor ys = y * Vetor{p.senos.cosseno} - x * Vetor{p.senos.seno};
    const Vetor d2 = xs * xs + ys * ys;
    if (c.setor == Setor::semCunhaÀFrente) {
        const Vetor lado = fabs(ys);
        const Máscara seca = (xs > zero) & (lado / R < Vetor{p.cunha.seno}) &
                             (lado * Vetor{p.cunha.cotangente} < xs) & (xs < sqrt(R * R - ys * ys));
        const Vetor rho = onde(xs == zero, zero, sqrt(d2) / R);
        return {rho, dentro & !seca & (rho <= Vetor{1.0}), false};
    }
    dentro = dentro & (d2 < Vetor{p.foraDoAlcance});
    if ((dentro & (fabs(ys) < Vetor{0x1p-900})).alguma()) return {zero, dentro, true};
    dentro = noSetor(xs, ys, dentro, p);
    return {dentro.alguma() ? sqrt(d2) / R : zero, dentro, false};
}

/// J11 J22 of the solutions.
template <class Constantes>
Vetor fatorDeÁrea(Vetor x, Vetor y, const Constantes& c) {
    const auto t = modelo::termos(x, y, c);
    return modelo::derivada11(x, t, c) * modelo::derivada22(y, t, c);
}

/// Stage 2: the intensities, in b.i. False where something isn't finite.
[[gnu::flatten]] bool avaliar(Bloco& b, const PreparoDoLote& p, Contas& contas) {
    const auto verdadeiras = constantes<Vetor>(*p.condições, p.senos.s2);
    const auto conhecidas = constantes<Vetor, DivisorConhecido<Vetor>>(*p.condições, p.senos.s2);
    const Vetor zero{0.0};
    for (std::size_t v = 0; v < b.vetores; ++v) {
        const std::size_t k = v * faixas;
        zero.gravar(b.i + k);
        const Máscara pontos = ocupadas(b, v);
        const Vetor x = Vetor::lido(b.x + k), y = Vetor::lido(b.y + k);
        const Vetor r2 = x * x + y * y;
        if ((pontos & !finitas(r2)).alguma()) return false;
        const Máscara dentro = pontos & (r2 < Vetor{p.foraDoAlcance});
        if (!dentro.alguma()) continue;
        const auto lugar = localizar(x, y, r2, dentro, p);
        if (lugar.suspeito) return false;
        if (!lugar.molhadas.alguma()) continue;
        const Vetor i = noPerfil(onde(lugar.molhadas, lugar.rho, zero), p.perfil) * Vetor{p.escala};
        const Máscara molhadas = lugar.molhadas & !(i == zero);
        if (!molhadas.alguma()) continue;
        const Vetor fator = p.divisoresConhecidos && magnitudesUsuais(x, y) ? fatorDeÁrea(x, y, conhecidas)
                                                                            : fatorDeÁrea(x, y, verdadeiras);
        const Vetor valor = i / fator;
        if ((molhadas & !(finitas(valor) & finitas(fator))).alguma()) return false;
        onde(molhadas, valor, zero).gravar(b.i + k);
        contas.fatorNãoPositivo += (molhadas & !(fator > zero)).quantas();
    }
    return true;
}

} // namespace

template <>
bool avaliarBloco<VARENTA_BITS>(const PreparoDoLote& preparo, const double* x, const double* y, double* i,
                                std::size_t n, ContagemDoModelo& contagem) {
    Bloco b;
    preencher(b, x, y, n);
    Contas contas;
    resolver(b, preparo, contas);
    if (contas.suspeito || !avaliar(b, preparo, contas)) return false;

    for (std::size_t k = 0; k < n; ++k) i[k] = b.i[k];
    contagem.pontos += n;
    contagem.passes += contas.passes;
    contagem.semConvergência += contas.semConvergência;
    contagem.fatorNãoPositivo += contas.fatorNãoPositivo;
    contagem.emVetores += n;
    if (contagem.faixas < faixas) contagem.faixas = faixas;
    return true;
}

} // namespace varenta
