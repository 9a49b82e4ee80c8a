/// Compiled once for each width of vectors, `VARENTA_BITS`. The same operations as the evaluation of one
/// point, `intensidadeEmPonto`, in the same order, on as many points at once as a vector has lanes:
///
/// 1. Newton's method pass by pass over the whole block, with a list of the vectors that still have a lane at
/// work, so that a point which never settles holds up its own vector alone. A lane that is done keeps its
/// solution. A pass begins with two square roots and two quotients, each waiting for the one before: they are
/// made one vector ahead, while the rest of the pass of the vector before keeps the processor's units busy.
/// 2. Which of the solutions lie in the reach; which of these in the sector, unless it is all; for those the
/// profile and the area factor: each step over the vectors that the one before left in its list.
///
/// Whatever isn't finite in a lane that counts makes the whole block be evaluated again, point by point,
/// which raises the error that it should at the point where it should. So nothing is checked within a pass of
/// numbers of usual magnitudes, which can't give anything infinite but in x and y, where it stays.
///
/// The legend of the symbols is in `modelo_vento.h`, the equations in `equacoes_vento.h`.

#include "simulacao/nucleo/nucleo.h"

#include "simulacao/equacoes_vento.h"
#include "simulacao/nucleo/vetores/vetor.h"

#include <utility>

namespace varenta {
namespace {

constexpr std::size_t vetoresDoBloco = maiorBloco / faixas;

/// The points of a block, each number in a row of its own. A point that is evaluated under several sets of
/// parameters stands there once for each, one next to the other.
struct Bloco {
    /// The points, in whole vectors.
    const double *x0, *y0;
    std::size_t n, vetores;
    /// The solutions so far.
    alignas(Registro) double x[maiorBloco], y[maiorBloco];
    /// The relative distances first, then the intensities.
    alignas(Registro) double i[maiorBloco];
};

/// Vectors of a block that have anything to do, and which of their lanes.
struct Lista {
    std::size_t vetor[vetoresDoBloco];
    Máscara faixas[vetoresDoBloco];
    std::size_t quantos = 0;

    /// Without a jump: half of the vectors end here in no order that could be foreseen.
    void juntar(std::size_t v, Máscara m) {
        vetor[quantos] = v;
        faixas[quantos] = m;
        quantos += m.alguma();
    }
};

struct Contas {
    std::size_t passes = 0, semConvergência = 0, fatorNãoPositivo = 0;
    /// Something isn't finite, or may not be.
    bool suspeito = false;
};

/// The lanes of vector `v` that are points of the block.
Máscara ocupadas(const Bloco& b, std::size_t v) {
    static constexpr double lugares[16] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    return Vetor::lido(lugares) < Vetor{static_cast<double>(b.n) - static_cast<double>(v * faixas)};
}

/// R and W, and the parameters of each lane: a vector begins with the first set.
struct CondiçõesDasFaixas {
    explicit CondiçõesDasFaixas(const PreparoDoLote& p)
        : R{p.condições.R}, W{p.condições.W}, A{Vetor::lido(p.parâmetros[0])},
          B{Vetor::lido(p.parâmetros[1])}, C{Vetor::lido(p.parâmetros[2])}, D{Vetor::lido(p.parâmetros[3])},
          E{Vetor::lido(p.parâmetros[4])}, F{Vetor::lido(p.parâmetros[5])} {}

    Vetor R, W, A, B, C, D, E, F;
};

using ConstantesQuaisquer = modelo::Constantes<Vetor>;
using ConstantesUsuais = modelo::Constantes<Vetor, DivisorConhecido, DivisorRepetido>;

ConstantesQuaisquer constantesQuaisquer(const PreparoDoLote& p) {
    return modelo::constantes<Vetor>(CondiçõesDasFaixas{p}, p.senos.s2);
}
ConstantesUsuais constantesUsuais(const PreparoDoLote& p) {
    return modelo::constantes<Vetor, DivisorConhecido, DivisorRepetido>(CondiçõesDasFaixas{p}, p.senos.s2);
}

/// A pass of any magnitudes. Apart from the usual one, so that the two don't share the registers.
[[gnu::noinline, gnu::flatten]] modelo::Passe<Vetor> passeQualquer(Vetor x, Vetor y, Vetor x0, Vetor y0,
                                                                   const PreparoDoLote& p) {
    return modelo::passeDeNewton(x, y, x0, y0, constantesQuaisquer(p));
}

/// How a pass begins.
struct Começo {
    modelo::Lugar<Vetor, DivisorRepetido> lugar;
    /// Whether x and y of all lanes lie within 2^-32 and 2^32 in magnitude. With the constants in that range
    /// too every quotient by a known divisor lies within 2^-200 and 2^200, and the determinant is finite.
    bool usual;
};

Começo começo(Vetor x, Vetor y, const ConstantesUsuais& c) {
    constexpr double menor = 0x1p-64, maior = 0x1p64; // of the squares
    const Vetor x2 = x * x, y2 = y * y;
    return {modelo::lugar(x, y, c),
            ((x2 >= Vetor{menor}) & (y2 >= Vetor{menor}) & (x2 + y2 <= Vetor{maior})).todas()};
}

/// Stage 1: the solutions, in b.x and b.y.
[[gnu::flatten]] void resolver(Bloco& b, const PreparoDoLote& p, Contas& contas) {
    const auto c = constantesUsuais(p);
    Lista ativos;
    for (std::size_t v = 0; v < b.vetores; ++v) ativos.juntar(v, ocupadas(b, v));
    const double* x = b.x0;
    const double* y = b.y0;
    for (int passe = 0; passe < modelo::limiteDePasses && ativos.quantos > 0; ++passe) {
        const std::size_t nesta = std::exchange(ativos.quantos, 0);
        const auto começar = [&](std::size_t n) {
            const std::size_t k = ativos.vetor[n] * faixas;
            return começo(Vetor::lido(x + k), Vetor::lido(y + k), c);
        };
        auto este = começar(0);
        for (std::size_t n = 0; n < nesta; ++n) {
            const std::size_t v = ativos.vetor[n], k = v * faixas;
            const Máscara ativas = ativos.faixas[n];
            const auto seguinte = começar(n + 1 < nesta ? n + 1 : n);
            nãoAdiar(seguinte.lugar.q);
            const Vetor xk = Vetor::lido(x + k), yk = Vetor::lido(y + k);
            const Vetor x0 = Vetor::lido(b.x0 + k), y0 = Vetor::lido(b.y0 + k);
            auto fim = modelo::passeDeNewton(xk, yk, x0, y0, este.lugar, c);
            if (!este.usual || !p.divisoresConhecidos || duvidoso(fim.x + fim.y)) {
                fim = passeQualquer(xk, yk, x0, y0, p);
                contas.suspeito |= (ativas & !finitas(fim.det)).alguma();
            }
            onde(ativas, fim.x, xk).gravar(b.x + k);
            onde(ativas, fim.y, yk).gravar(b.y + k);
            contas.passes += ativas.quantas();
            ativos.juntar(v, ativas & (fim.err > Vetor{modelo::tolerância}));
            este = seguinte;
        }
        x = b.x;
        y = b.y;
    }
    for (std::size_t n = 0; n < ativos.quantos; ++n) contas.semConvergência += ativos.faixas[n].quantas();
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

    const auto& c = p.condições;
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
    // The segment, or one too far just below a limit: at the limits themselves the sum is whole or above.
    const Vetor lugar = rho * Vetor{20} + Vetor{0.5};
    auto k = truncar(lugar);
    Vetor limite = deTabela(perfil.limite, k);
    const Máscara além = rho < limite;
    if (além.alguma()) {
        k = truncar(onde(além, lugar - Vetor{1}, lugar));
        limite = deTabela(perfil.limite, k);
    }
    return (rho - limite) * Vetor{deTabela(perfil.variação, k)} / Vetor{deTabela(perfil.largura, k)} +
           Vetor{deTabela(perfil.início, k)};
}

/// The solutions within the reach. All intensities are 0 to begin with.
Lista noAlcance(Bloco& b, const PreparoDoLote& p, Contas& contas) {
    Lista lista;
    Máscara ruins = nenhuma();
    for (std::size_t v = 0; v < b.vetores; ++v) {
        const Vetor x = Vetor::lido(b.x + v * faixas), y = Vetor::lido(b.y + v * faixas);
        Vetor{0.0}.gravar(b.i + v * faixas);
        const Vetor r2 = x * x + y * y;
        const Máscara pontos = ocupadas(b, v);
        ruins = ruins | (pontos & !finitas(r2));
        lista.juntar(v, pontos & (r2 < Vetor{p.foraDoAlcance}));
    }
    contas.suspeito |= ruins.alguma();
    return lista;
}

/// Where in the profile a solution reads.
struct Leitura {
    Vetor rho;
    Máscara molhadas;
};

/// Of the ground point (xs, ys), outside the wedge ahead.
Leitura leituraSemCunha(Vetor xs, Vetor ys, Máscara dentro, const PreparoDoLote& p, Contas&) {
    const Vetor R{p.condições.R}, zero{0.0};
    const Vetor lado = fabs(ys);
    const Máscara seca = (xs > zero) & (lado / R < Vetor{p.cunha.seno}) &
                         (lado * Vetor{p.cunha.cotangente} < xs) & (xs < sqrt(R * R - ys * ys));
    const Vetor rho = onde(xs == zero, zero, sqrt(xs * xs + ys * ys) / R);
    return {rho, dentro & !seca & (rho <= Vetor{1.0})};
}

/// Of the ground point (xs, ys), between the dry angles.
Leitura leituraNoSetor(Vetor xs, Vetor ys, Máscara dentro, const PreparoDoLote& p, Contas& contas) {
    const Vetor d2 = xs * xs + ys * ys;
    dentro = dentro & (d2 < Vetor{p.foraDoAlcance});
    // There the quotient of the arc tangent may overflow: the other coordinate is below R, 2^100 at most.
    const Máscara rentes = dentro & (fabs(ys) < Vetor{0x1p-900});
    contas.suspeito |= rentes.alguma();
    return {sqrt(d2) / Vetor{p.condições.R}, noSetor(xs, ys, dentro & !rentes, p)};
}

/// Those of the list that find water: the relative distances, in b.i.
template <class Ler>
Lista molhados(Bloco& b, const Lista& lista, Ler&& ler) {
    Lista molhados;
    for (std::size_t n = 0; n < lista.quantos; ++n) {
        const std::size_t v = lista.vetor[n], k = v * faixas;
        const auto leitura = ler(Vetor::lido(b.x + k), Vetor::lido(b.y + k), lista.faixas[n]);
        onde(leitura.molhadas, leitura.rho, Vetor{0.0}).gravar(b.i + k);
        molhados.juntar(v, leitura.molhadas);
    }
    return molhados;
}

Lista molhados(Bloco& b, const Lista& lista, const PreparoDoLote& p, Contas& contas) {
    const auto noChão = [&](auto&& ler) {
        return molhados(b, lista, [&](Vetor x, Vetor y, Máscara dentro) {
            const Vetor cosseno{p.senos.cosseno}, seno{p.senos.seno};
            return ler(x * cosseno + y * seno, y * cosseno - x * seno, dentro, p, contas);
        });
    };
    return p.condições.setor == Setor::semCunhaÀFrente ? noChão(leituraSemCunha) : noChão(leituraNoSetor);
}

/// J11 J22 at the solution.
template <class Lugar, class Constantes>
Vetor fatorDeÁrea(Vetor x, Vetor y, const Lugar& lugar, const Constantes& c) {
    const auto t = modelo::termos(lugar, c);
    return modelo::derivada11(x, t, c) * modelo::derivada22(y, t, c);
}

/// The same of any magnitudes.
[[gnu::noinline, gnu::flatten]] Vetor fatorQualquer(Vetor x, Vetor y, const PreparoDoLote& p) {
    const auto c = constantesQuaisquer(p);
    return fatorDeÁrea(x, y, modelo::lugar(x, y, c), c);
}

/// The intensities of those of the list, in b.i. `relativa(k, r)` gives the relative distances of the points
/// from b.x[k] on, which lie r m from the sprinkler: 0 to 1 in the lanes of the list.
template <class Relativa>
void intensidades(Bloco& b, const Lista& lista, const PreparoDoLote& p, Contas& contas, Relativa&& relativa) {
    if (lista.quantos == 0) return;
    const auto c = constantesUsuais(p);
    const Vetor zero{0.0};
    Máscara ruins = nenhuma();
    const auto começar = [&](std::size_t n) {
        const std::size_t k = lista.vetor[n] * faixas;
        return começo(Vetor::lido(b.x + k), Vetor::lido(b.y + k), c);
    };
    auto este = começar(0);
    for (std::size_t n = 0; n < lista.quantos; ++n) {
        const auto seguinte = começar(n + 1 < lista.quantos ? n + 1 : n);
        nãoAdiar(seguinte.lugar.q);
        const std::size_t k = lista.vetor[n] * faixas;
        const Vetor x = Vetor::lido(b.x + k), y = Vetor::lido(b.y + k);
        Vetor fator = fatorDeÁrea(x, y, este.lugar, c);
        if (!este.usual || !p.divisoresConhecidos || duvidoso(fator)) fator = fatorQualquer(x, y, p);
        const Vetor rho = onde(lista.faixas[n], relativa(k, este.lugar.r), zero);
        const Vetor i = noPerfil(rho, p.perfil) * Vetor{p.escala};
        const Máscara molhadas = lista.faixas[n] & !(i == zero);
        const Vetor valor = i / fator;
        ruins = ruins | (molhadas & !(finitas(valor) & finitas(fator)));
        onde(molhadas, valor, zero).gravar(b.i + k);
        contas.fatorNãoPositivo += (molhadas & !(fator > zero)).quantas();
        este = seguinte;
    }
    contas.suspeito |= ruins.alguma();
}

/// Stage 2: the intensities, in b.i.
[[gnu::flatten]] void avaliar(Bloco& b, const PreparoDoLote& p, Contas& contas) {
    const Lista dentro = noAlcance(b, p, contas);
    if (p.condições.setor == Setor::círculoInteiro) {
        const Vetor R{p.condições.R};
        intensidades(b, dentro, p, contas, [&](std::size_t, Vetor r) { return r / R; });
    } else {
        intensidades(b, molhados(b, dentro, p, contas), p, contas,
                     [&](std::size_t k, Vetor) { return Vetor::lido(b.i + k); });
    }
}

/// A row of numbers for a block.
class Linha {
  public:
    /// Whole vectors of the row, each of its n numbers `vezes` times: the row itself, or a copy, filled up
    /// with the last.
    const double* emVetoresInteiros(const double* linha, std::size_t n, std::size_t vezes) {
        if (vezes > 1) return repetida(linha, n, vezes);
        if (n % faixas == 0) return linha;
        for (std::size_t k = 0; k < n; ++k) números_[k] = linha[k];
        Vetor{linha[n - 1]}.gravar(números_ + n);
        return números_;
    }

  private:
    /// Each number fills a vector, and the next ones overwrite what is too much.
    const double* repetida(const double* linha, std::size_t n, std::size_t vezes) {
        for (std::size_t k = 0; k < n; ++k) Vetor{linha[k]}.gravar(números_ + k * vezes);
        return números_;
    }

    alignas(Registro) double números_[maiorBloco + faixas];
};

} // namespace

template <>
bool avaliarBloco<VARENTA_BITS>(const PreparoDoLote& preparo, const double* x, const double* y, double* i,
                                std::size_t n, ContagemDoModelo& contagem) {
    Linha x0, y0;
    Bloco b;
    b.x0 = x0.emVetoresInteiros(x, n, preparo.conjuntos);
    b.y0 = y0.emVetoresInteiros(y, n, preparo.conjuntos);
    b.n = n * preparo.conjuntos;
    b.vetores = (b.n + faixas - 1) / faixas;
    Contas contas;
    resolver(b, preparo, contas);
    if (!contas.suspeito) avaliar(b, preparo, contas);
    if (contas.suspeito) return false;

    for (std::size_t k = 0; k < b.n; ++k) i[k] = b.i[k];
    contagem.pontos += b.n;
    contagem.passes += contas.passes;
    contagem.semConvergência += contas.semConvergência;
    contagem.fatorNãoPositivo += contas.fatorNãoPositivo;
    contagem.emVetores += b.n;
    if (contagem.faixas < faixas) contagem.faixas = faixas;
    return true;
}

} // namespace varenta
