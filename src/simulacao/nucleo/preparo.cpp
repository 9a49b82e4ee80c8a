#include "simulacao/nucleo/nucleo.h"

#include "simulacao/perfil_em.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace varenta {
namespace {

/// The stand-in of an angle between 0 and a full turn. Its last bits don't count: `margem` is far wider.
double chaveDoÂngulo(double theta) {
    const double x = std::cos(theta), y = std::sin(theta);
    const double t = x / (std::fabs(x) + std::fabs(y));
    return theta < piDoModelo ? 1 - t : 3 + t;
}

/// Where each end of the sector can lie within a turn, for each way in which the test may shift theta.
/// Between two neighbours of these angles the test has one answer, that of the angle in their middle.
LimitesDoSetor limitesDoSetor(const PontasDoSetor& pontas) {
    std::vector<double> ângulos;
    for (const double ponta : {pontas.rad1, pontas.rad2})
        for (const double volta : {-doisPiDoModelo, 0.0, doisPiDoModelo}) {
            const double ângulo = ponta + volta;
            if (ângulo >= -LimitesDoSetor::margem && ângulo <= doisPiDoModelo + LimitesDoSetor::margem)
                ângulos.push_back(std::clamp(ângulo, 0.0, doisPiDoModelo));
        }
    std::ranges::sort(ângulos);

    LimitesDoSetor limites{};
    limites.começaMolhado = pontas.contêm((ângulos.empty() ? doisPiDoModelo : ângulos.front()) / 2);
    bool molhado = limites.começaMolhado;
    for (std::size_t k = 0; k < ângulos.size(); ++k) {
        const double depois = k + 1 < ângulos.size() ? ângulos[k + 1] : doisPiDoModelo;
        const bool aSeguir = pontas.contêm((ângulos[k] + depois) / 2);
        limites.chaves[k] = chaveDoÂngulo(ângulos[k]);
        limites.vira[k] = aSeguir != std::exchange(molhado, aSeguir);
    }
    limites.quantos = ângulos.size();
    return limites;
}

SegmentosDoPerfil segmentosDoPerfil(const PontosDoPerfil& intensidades) {
    SegmentosDoPerfil s{};
    for (std::size_t k = 0; k + 1 < pontosDoPerfil; ++k) {
        s.limite[k] = limitesDoPerfil[k];
        s.variação[k] = intensidades[k + 1] - intensidades[k];
        s.largura[k] = larguraDoSegmento(k);
        s.início[k] = intensidades[k];
    }
    return s;
}

bool magnitudeUsual(double a) { return std::fabs(a) >= 0x1p-32 && std::fabs(a) <= 0x1p32; }

/// Of the parameters A to F. The terms of A and C may vanish.
bool magnitudesUsuais(const std::array<double, 6>& p) {
    const auto& [A, B, C, D, E, F] = p;
    return std::fabs(A) <= 0x1p32 && magnitudeUsual(B) && std::fabs(C) <= 0x1p32 && magnitudeUsual(D) &&
           magnitudeUsual(E) && magnitudeUsual(F);
}

double quadradoForaDoAlcance(double R) {
    double r2 = R * R;
    while (std::sqrt(r2) >= R) r2 = std::nextafter(r2, 0);
    while (std::sqrt(r2) < R) r2 = std::nextafter(r2, std::numeric_limits<double>::infinity());
    return r2;
}

} // namespace

void definirConjuntos(PreparoDoLote& preparo, std::span<const std::array<double, 6>> conjuntos) {
    preparo.conjuntos = conjuntos.size();
    for (std::size_t letra = 0; letra < std::size(preparo.parâmetros); ++letra)
        for (std::size_t faixa = 0; faixa < maisFaixas; ++faixa)
            preparo.parâmetros[letra][faixa] = conjuntos[faixa % conjuntos.size()][letra];
    const auto& c = preparo.condições;
    preparo.divisoresConhecidos = magnitudeUsual(c.W) && magnitudeUsual(c.R) &&
                                  magnitudeUsual(preparo.senos.s2) &&
                                  std::ranges::all_of(conjuntos, magnitudesUsuais);
}

bool preparar(const CondiçõesDoPonto& c, const Senos& senos, PreparoDoLote& preparo) {
    preparo.condições = c;
    preparo.senos = senos;
    const bool círculo = c.setor == Setor::círculoInteiro;
    if (!círculo && !std::isfinite(360 / c.anguloGiro)) return false;
    if (!(c.R >= 0x1p-100 && c.R <= 0x1p100)) return false;
    preparo.foraDoAlcance = quadradoForaDoAlcance(c.R);
    preparo.perfil = segmentosDoPerfil(c.intensidades);
    preparo.escala = círculo ? 1 : 360 / c.anguloGiro;
    if (c.setor == Setor::entreÂngulosSecos)
        preparo.setor = limitesDoSetor(pontasDoSetor(c.anguloSecoI, c.anguloSecoII, c.rotacao));
    if (c.setor == Setor::semCunhaÀFrente) preparo.cunha = cunhaSeca(c.anguloGiro);
    return true;
}

} // namespace varenta
