#include "simulacao/lote.h"

#include "apoio/atalhos.h"
#include "apoio/condicoes_de_teste.h"
#include "comum/erro_execucao.h"
#include "simulacao/nucleo/largura.h"
#include "simulacao/perfil_em.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

/// The batch, at every width that the processor has, against the point-wise reference.
namespace varenta {
namespace {

using teste::condiçõesDeTeste;
using teste::erroDe;
using teste::sortearComuns;

using Sorteio = std::mt19937_64;

double entre(Sorteio& sorteio, double a, double b) { return std::uniform_real_distribution{a, b}(sorteio); }
bool umaEm(Sorteio& sorteio, unsigned quantas) { return sorteio() % quantas == 0; }

constexpr Setor modos[] = {Setor::entreÂngulosSecos, Setor::círculoInteiro, Setor::semCunhaÀFrente};

/// Conditions far from any that a screen would hold: they make the model overflow, divide by zero, stop.
CondiçõesDoPonto sortearAbsurdas(Sorteio& sorteio) {
    auto c = sortearComuns(sorteio, 10);
    for (double* p : {&c.A, &c.B, &c.C, &c.D, &c.E, &c.F, &c.W}) {
        if (umaEm(sorteio, 2)) *p *= std::pow(10, entre(sorteio, -3, 4)) * (umaEm(sorteio, 2) ? -1 : 1);
        if (umaEm(sorteio, 8)) *p = umaEm(sorteio, 2) ? 0.0 : -0.0;
        if (umaEm(sorteio, 40)) *p = std::pow(10, entre(sorteio, 100, 305));
        if (umaEm(sorteio, 40)) *p = std::numeric_limits<double>::denorm_min();
    }
    if (umaEm(sorteio, 6)) c.R *= std::pow(10, entre(sorteio, -4, 3));
    if (umaEm(sorteio, 40)) c.R = umaEm(sorteio, 2) ? 0 : std::pow(10, entre(sorteio, -200, 200));
    if (umaEm(sorteio, 3)) c.anguloJato = radianos(entre(sorteio, 0, 90));
    if (umaEm(sorteio, 20)) c.anguloJato = 0;
    if (umaEm(sorteio, 20)) c.anguloGiro = 0;
    if (umaEm(sorteio, 20)) c.rotacao = entre(sorteio, -2000, 2000);
    if (umaEm(sorteio, 20)) c.anguloSecoI = entre(sorteio, -400, 400);
    if (umaEm(sorteio, 30)) c.intensidades.fill(0);
    if (umaEm(sorteio, 30)) c.intensidades[sorteio() % pontosDoPerfil] = -1e308;
    return c;
}

struct Pontos {
    std::vector<double> x, y;

    void juntar(double umX, double umY) {
        x.push_back(umX);
        y.push_back(umY);
    }
};

/// Mostly points around the sprinkler; some on an axis, far away, next to an axis.
Pontos sortearPontos(Sorteio& sorteio, double R, std::size_t quantos, unsigned estranhos = 400) {
    Pontos p;
    const double largura = R > 0 ? 1.4 * R : 10;
    for (std::size_t k = 0; k < quantos; ++k) {
        double x = entre(sorteio, -largura, largura), y = entre(sorteio, -largura, largura);
        switch (sorteio() % estranhos) {
        case 0:
            x = umaEm(sorteio, 2) ? 0.0 : -0.0;
            break;
        case 1:
            y = umaEm(sorteio, 2) ? 0.0 : -0.0;
            break;
        case 2:
            x *= std::pow(10, entre(sorteio, 1, 200));
            break;
        case 3:
            y *= std::pow(10, entre(sorteio, -320, -1));
            break;
        default:
            break;
        }
        p.juntar(x, y);
    }
    return p;
}

/// What the point-wise reference gives at each point: a value or an error.
struct Referência {
    std::vector<IntensidadeNoPonto> valores;
    std::vector<std::string> erros;
};

Referência umAUm(const Pontos& p, const CondiçõesDoPonto& c) {
    Referência r{std::vector<IntensidadeNoPonto>(p.x.size()), std::vector<std::string>(p.x.size())};
    for (std::size_t k = 0; k < p.x.size(); ++k)
        r.erros[k] = erroDe([&] { r.valores[k] = intensidadeEmPonto(p.x[k], p.y[k], c); });
    return r;
}

/// Holds the batch over the points from `de` to the last against the reference: the doubles, the counts, the
/// error of the first point that fails, and that nothing from that point on is written or counted.
/// Gives the place of that point.
void exigirLote(const Pontos& p, const CondiçõesDoPonto& c, const Referência& r, Largura largura,
                std::size_t de, std::size_t& falha) {
    constexpr double intacto = 12345;
    const std::size_t n = p.x.size() - de;
    std::vector<double> i(n + 1, intacto);
    ContagemDoModelo contagem{.pontos = 1000, .semConvergência = 100, .fatorNãoPositivo = 10, .passes = 1};
    const auto erro = erroDe([&] {
        intensidadesEmPontos(std::span{p.x}.subspan(de), std::span{p.y}.subspan(de), c, std::span{i}.first(n),
                             contagem, largura);
    });
    ContagemDoModelo esperada{.pontos = 1000, .semConvergência = 100, .fatorNãoPositivo = 10, .passes = 1};
    for (falha = de; falha < p.x.size() && r.erros[falha].empty(); ++falha) {
        const auto& ponto = r.valores[falha];
        if (std::bit_cast<std::uint64_t>(i[falha - de]) != std::bit_cast<std::uint64_t>(ponto.valor))
            FAIL() << nomeDa(largura) << ": " << i[falha - de] << " em vez de " << ponto.valor << " em "
                   << p.x[falha] << ", " << p.y[falha];
        esperada.pontos += 1;
        esperada.semConvergência += !ponto.convergiu;
        esperada.fatorNãoPositivo += !ponto.fatorPositivo;
        esperada.passes += static_cast<std::size_t>(ponto.passes);
    }
    ASSERT_EQ(erro, falha < p.x.size() ? r.erros[falha] : "") << nomeDa(largura);
    ASSERT_TRUE(std::all_of(i.begin() + static_cast<std::ptrdiff_t>(falha - de), i.end(),
                            [](double valor) { return valor == intacto; }));
    ASSERT_EQ(contagem.pontos, esperada.pontos) << nomeDa(largura);
    ASSERT_EQ(contagem.semConvergência, esperada.semConvergência) << nomeDa(largura);
    ASSERT_EQ(contagem.fatorNãoPositivo, esperada.fatorNãoPositivo) << nomeDa(largura);
    ASSERT_EQ(contagem.passes, esperada.passes) << nomeDa(largura);
}

struct Cobertura {
    std::size_t pontos = 0, molhados = 0, divisões = 0, estouros = 0, semConvergência = 0,
                fatorNãoPositivo = 0;
};

/// All widths on the points, again and again from behind the point that failed.
void compararLarguras(const Pontos& p, const CondiçõesDoPonto& c, Cobertura& cobertura) {
    const auto r = umAUm(p, c);
    for (const auto largura : largurasDisponíveis()) {
        std::size_t falha = 0;
        for (std::size_t de = 0; de < p.x.size(); de = falha + 1)
            ASSERT_NO_FATAL_FAILURE(exigirLote(p, c, r, largura, de, falha));
    }
    for (std::size_t k = 0; k < p.x.size(); ++k) {
        cobertura.divisões += r.erros[k] == divisãoPorZero;
        cobertura.estouros += r.erros[k] == estouro;
        if (!r.erros[k].empty()) continue;
        cobertura.molhados += r.valores[k].valor != 0;
        cobertura.semConvergência += !r.valores[k].convergiu;
        cobertura.fatorNãoPositivo += !r.valores[k].fatorPositivo;
    }
    cobertura.pontos += p.x.size();
}

TEST(NucleoLarguras, CadaLarguraÉUsadaDeFatoEmTodosOsPontos) {
    Sorteio sorteio{2023};
    const auto c = sortearComuns(sorteio, 5);
    Pontos p;
    for (int k = 0; k < 5000; ++k)
        p.juntar(entre(sorteio, 1, c.R), entre(sorteio, 1, c.R)); // off the axes, none fails
    std::vector<double> i(p.x.size());
    for (const auto largura : largurasDisponíveis()) {
        ContagemDoModelo contagem;
        intensidadesEmPontos(p.x, p.y, c, i, contagem, largura);
        EXPECT_EQ(contagem.faixas, faixasDa(largura)) << nomeDa(largura);
        EXPECT_EQ(contagem.emVetores, largura == Largura::escalar ? 0 : p.x.size()) << nomeDa(largura);
    }
}

TEST(NucleoLarguras, DãoOsMesmosDoublesEmUmMilhãoDePontosComuns) {
    Sorteio sorteio{2024};
    Cobertura cobertura;
    while (cobertura.pontos < 1'000'000) {
        auto c = sortearComuns(sorteio, 10);
        c.setor = modos[sorteio() % 3];
        ASSERT_NO_FATAL_FAILURE(compararLarguras(sortearPontos(sorteio, c.R, 1301, 4000), c, cobertura));
    }
    EXPECT_GT(cobertura.molhados, 100'000u);
    EXPECT_GT(cobertura.semConvergência, 0u);
    EXPECT_GT(cobertura.fatorNãoPositivo, 0u);
    EXPECT_GT(cobertura.divisões, 0u);
}

TEST(NucleoLarguras, DãoOsMesmosDoublesEOsMesmosErrosEmPontosAbsurdos) {
    Sorteio sorteio{2025};
    Cobertura cobertura;
    while (cobertura.pontos < 500'000) {
        auto c = sortearAbsurdas(sorteio);
        c.setor = modos[sorteio() % 3];
        ASSERT_NO_FATAL_FAILURE(compararLarguras(sortearPontos(sorteio, c.R, 97), c, cobertura));
    }
    EXPECT_GT(cobertura.molhados, 10'000u);
    EXPECT_GT(cobertura.semConvergência, 1000u);
    EXPECT_GT(cobertura.fatorNãoPositivo, 1000u);
    EXPECT_GT(cobertura.divisões, 1000u);
    EXPECT_GT(cobertura.estouros, 1000u);
}

TEST(NucleoLarguras, DãoOsMesmosDoublesNasPontasDoSetorENosEixos) {
    Sorteio sorteio{2026};
    Cobertura cobertura;
    while (cobertura.pontos < 300'000) {
        auto c = sortearComuns(sorteio, 10);
        if (umaEm(sorteio, 2)) c.W = 0; // then a point's ground angle is known exactly enough to hit an end
        if (umaEm(sorteio, 4)) c.anguloSecoI = c.anguloSecoII = c.rotacao = 0;
        if (umaEm(sorteio, 2)) c.rotVento = rotaçãoDoVento(90.0 * static_cast<double>(sorteio() % 5));
        const double cosseno = std::cos(c.rotVento), seno = std::sin(c.rotVento);
        Pontos p;
        for (int k = 0; k < 200; ++k) {
            const double pontas[] = {c.anguloSecoI + c.rotacao, 360 - c.anguloSecoII + c.rotacao,
                                     90.0 * static_cast<double>(sorteio() % 4)};
            const double perto = umaEm(sorteio, 2) ? 0 : std::pow(10, entre(sorteio, -17, -6));
            const double theta = radianos(pontas[sorteio() % 3]) + (umaEm(sorteio, 2) ? perto : -perto);
            const double d = entre(sorteio, 0.1, 1.1) * c.R;
            // On an axis itself nothing is wetted.
            const double xs = umaEm(sorteio, 8) ? 0 : d * std::cos(theta);
            const double ys = umaEm(sorteio, 8) ? 0 : -d * std::sin(theta);
            p.juntar(xs * cosseno - ys * seno, ys * cosseno + xs * seno);
        }
        ASSERT_NO_FATAL_FAILURE(compararLarguras(p, c, cobertura));
    }
    EXPECT_GT(cobertura.molhados, 30'000u);
}

TEST(NucleoLarguras, DãoOsMesmosDoublesNasBordasDoPerfilEDoAlcance) {
    Sorteio sorteio{2027};
    Cobertura cobertura;
    while (cobertura.pontos < 100'000) {
        auto c = sortearComuns(sorteio, 0); // at calm the solution is the point itself
        c.setor = modos[sorteio() % 3];
        Pontos p;
        for (const double limite : limitesDoPerfil)
            for (int vizinho = -2; vizinho <= 2; ++vizinho)
                for (int vez = 0; vez < 2; ++vez) {
                    double d = limite * c.R;
                    for (int k = 0; k < std::abs(vizinho); ++k) d = std::nextafter(d, vizinho * 1e9);
                    const double theta = vez ? entre(sorteio, 0, 6.28) : 1e-9;
                    p.juntar(d * std::cos(theta), d * std::sin(theta));
                }
        ASSERT_NO_FATAL_FAILURE(compararLarguras(p, c, cobertura));
    }
    EXPECT_GT(cobertura.molhados, 10'000u);
}

/// Eight times the same point.
Pontos repetido(double x, double y) {
    Pontos p;
    for (int k = 0; k < 8; ++k) p.juntar(x, y);
    return p;
}

TEST(NucleoLarguras, ResíduoIgualÀTolerânciaBasta) {
    // A alone: the residual of the first pass is A W = 0.005 x 2, the double of the tolerance exactly, and
    // the differences of x and it are exact too.
    auto c = condiçõesDeTeste();
    c.B = c.C = c.D = c.E = c.F = 0;
    c.W = 2;
    for (const auto& [A, passes] : {std::pair{0.005, 8u}, {std::nextafter(0.005, 1), 16u}}) {
        c.A = A;
        const auto p = repetido(0.015625, 0.01);
        std::vector<double> i(8);
        for (const auto largura : largurasDisponíveis()) {
            ContagemDoModelo contagem;
            intensidadesEmPontos(p.x, p.y, c, i, contagem, largura);
            EXPECT_EQ(contagem.passes, passes) << nomeDa(largura);
        }
    }
}

TEST(NucleoLarguras, DeterminanteInfinitoÉEstouroAindaQueOPassoSejaFinito) {
    // J11 and J22 of some 1e155 each, from C and from D: their product overflows, while the step, divided by
    // it, is 0 and the point stays where it is. Without water there nothing later fails.
    auto c = condiçõesDeTeste();
    c.W = 5;
    c.C = 1e207;
    c.D = 1e156;
    c.intensidades.fill(0);
    const auto p = repetido(1e-50, 1e-50);
    Cobertura cobertura;
    ASSERT_NO_FATAL_FAILURE(compararLarguras(p, c, cobertura));
    EXPECT_EQ(cobertura.estouros, 8u);
}

TEST(NucleoLarguras, QuocienteDoTesteDoSetorQueEstouraÉEstouro) {
    // xs / ys = 20 / 1e-307 is more than the largest double. Both ends of the sector are far from there.
    auto c = condiçõesDeTeste();
    c.rotVento = 0;
    c.anguloSecoI = c.anguloSecoII = 30;
    c.rotacao = 180;
    auto p = repetido(20, 3);
    p.juntar(20, 1e-307);
    Cobertura cobertura;
    ASSERT_NO_FATAL_FAILURE(compararLarguras(p, c, cobertura));
    EXPECT_EQ(cobertura.molhados, 8u);
    EXPECT_EQ(cobertura.estouros, 1u);
}

TEST(NucleoLarguras, QuocienteDoTesteDoSetorQueEstouraComUmAlcanceEnormeÉEstouro) {
    // xs / ys = 2^190 / 2^-850.
    auto c = condiçõesDeTeste();
    c.rotVento = 0;
    c.W = 0;
    c.R = 0x1p200;
    Cobertura cobertura;
    ASSERT_NO_FATAL_FAILURE(compararLarguras(repetido(0x1p190, 0x1p-850), c, cobertura));
    EXPECT_EQ(cobertura.estouros, 8u);
}

/// The determinant of the first pass at (x, y), in the order in which the pass makes it.
double determinanteEm(double x, double y, const CondiçõesDoPonto& c) {
    const auto M = matrizDoModelo(x, y, c);
    return M.J11 * M.J22 - M.J12 * M.J21;
}

/// An x between a and b, at which the determinant has different signs, where it is exactly 0; nothing where
/// the doubles next to the change of sign have none.
std::optional<double> raizDoDeterminante(double a, double b, double y, const CondiçõesDoPonto& c) {
    for (;;) {
        const double meio = a + (b - a) / 2;
        if (meio == a || meio == b) break;
        const double det = determinanteEm(meio, y, c);
        if (det == 0) return meio;
        (determinanteEm(a, y, c) * det < 0 ? b : a) = meio;
    }
    double x = a;
    for (int vizinho = 0; vizinho < 100; ++vizinho) x = std::nextafter(x, -1e9);
    for (int vizinho = 0; vizinho < 200; ++vizinho, x = std::nextafter(x, 1e9))
        if (determinanteEm(x, y, c) == 0) return x;
    return std::nullopt;
}

TEST(NucleoLarguras, DeterminanteDeZeroÉDivisãoPorZero) {
    Sorteio sorteio{2030};
    Cobertura cobertura;
    std::size_t achados = 0;
    for (int vez = 0; vez < 20'000 && achados < 20; ++vez) {
        auto c = sortearComuns(sorteio, 10);
        c.W = entre(sorteio, 5, 40);
        const double y = entre(sorteio, -c.R, c.R);
        const double a = entre(sorteio, -c.R, c.R), b = entre(sorteio, -c.R, c.R);
        if (!(determinanteEm(a, y, c) * determinanteEm(b, y, c) < 0)) continue;
        if (const auto x = raizDoDeterminante(a, b, y, c)) {
            ++achados;
            ASSERT_NO_FATAL_FAILURE(compararLarguras(repetido(*x, y), c, cobertura));
        }
    }
    EXPECT_EQ(achados, 20u);
    EXPECT_EQ(cobertura.divisões, 8 * achados);
}

TEST(NucleoLarguras, QualquerTamanhoEQualquerAlinhamentoValemComoPontoAPonto) {
    Sorteio sorteio{2028};
    Cobertura cobertura;
    for (const std::size_t início : {0u, 500u, 1000u})
        for (std::size_t quantos = início; quantos <= início + 40; ++quantos) {
            const auto c = sortearComuns(sorteio, 6);
            ASSERT_NO_FATAL_FAILURE(compararLarguras(sortearPontos(sorteio, c.R, quantos), c, cobertura));
        }
    const auto c = sortearComuns(sorteio, 6);
    Pontos p;
    for (int k = 0; k < 60; ++k) p.juntar(entre(sorteio, 1, 40), entre(sorteio, 1, 40));
    const auto r = umAUm(p, c);
    for (const auto largura : largurasDisponíveis())
        for (std::size_t de = 0; de < 16; ++de) {
            std::size_t falha = 0;
            ASSERT_NO_FATAL_FAILURE(exigirLote(p, c, r, largura, de, falha));
        }
}

CondiçõesDoPonto comParâmetros(CondiçõesDoPonto c, const Lote::Conjunto& p) {
    c.A = p[0], c.B = p[1], c.C = p[2], c.D = p[3], c.E = p[4], c.F = p[5];
    return c;
}

/// Holds the points under several sets against each point under each set. Gives whether a set failed.
void compararConjuntos(const Pontos& p, const CondiçõesDoPonto& c,
                       const std::vector<Lote::Conjunto>& conjuntos, Largura largura, bool& falhou) {
    std::string erro;
    ContagemDoModelo esperada;
    std::vector<Referência> referências;
    for (const auto& conjunto : conjuntos) {
        referências.push_back(umAUm(p, comParâmetros(c, conjunto)));
        for (const auto& deste : referências.back().erros)
            if (erro.empty()) erro = deste;
        for (const auto& ponto : referências.back().valores) {
            esperada.passes += static_cast<std::size_t>(ponto.passes);
            esperada.semConvergência += !ponto.convergiu;
            esperada.fatorNãoPositivo += !ponto.fatorPositivo;
        }
    }
    std::vector<double> i(p.x.size() * conjuntos.size());
    ContagemDoModelo contagem;
    ASSERT_EQ(erroDe([&] { Lote{c}.avaliar(conjuntos, p.x, p.y, i, contagem, largura); }), erro);
    falhou = !erro.empty();
    if (falhou) return;

    for (std::size_t s = 0; s < conjuntos.size(); ++s)
        for (std::size_t k = 0; k < p.x.size(); ++k)
            ASSERT_EQ(std::bit_cast<std::uint64_t>(i[k * conjuntos.size() + s]),
                      std::bit_cast<std::uint64_t>(referências[s].valores[k].valor))
                << nomeDa(largura) << ", conjunto " << s << " de " << conjuntos.size();
    ASSERT_EQ(contagem.pontos, i.size());
    ASSERT_EQ(contagem.passes, esperada.passes);
    ASSERT_EQ(contagem.semConvergência, esperada.semConvergência);
    ASSERT_EQ(contagem.fatorNãoPositivo, esperada.fatorNãoPositivo);
}

TEST(NucleoLarguras, VáriosConjuntosDeParâmetrosDãoOQueCadaUmDá) {
    Sorteio sorteio{2029};
    const auto larguras = largurasDisponíveis().size();
    std::size_t inteiros = 0, falhos = 0;
    for (int vez = 0; vez < 300; ++vez) {
        const bool absurdos = umaEm(sorteio, 3);
        auto c = sortearComuns(sorteio, 8);
        c.setor = modos[sorteio() % 3];
        std::vector<Lote::Conjunto> conjuntos(1 + sorteio() % 9);
        for (auto& conjunto : conjuntos) {
            const auto outras = absurdos && umaEm(sorteio, 2) ? sortearAbsurdas(sorteio) : c;
            conjunto = {outras.A, outras.B, outras.C, outras.D, outras.E, outras.F};
            conjunto[sorteio() % 6] += entre(sorteio, -0.1, 0.1);
        }
        const auto p = sortearPontos(sorteio, c.R, 1 + sorteio() % 200, 100'000);
        for (const auto largura : largurasDisponíveis()) {
            bool falhou = false;
            ASSERT_NO_FATAL_FAILURE(compararConjuntos(p, c, conjuntos, largura, falhou));
            ++(falhou ? falhos : inteiros);
        }
    }
    EXPECT_GT(inteiros, 200 * larguras);
    EXPECT_GT(falhos, 20 * larguras);
}

TEST(NucleoLarguras, ConjuntosQueEnchemUmVetorVãoDeUmaVez) {
    const auto c = condiçõesDeTeste();
    Pontos p;
    for (int k = 0; k < 30; ++k) p.juntar(1 + k, 31 - k);
    for (const auto largura : largurasDisponíveis()) {
        std::vector<Lote::Conjunto> conjuntos(faixasDa(largura), {c.A, c.B, c.C, c.D, c.E, c.F});
        for (std::size_t s = 0; s < conjuntos.size(); ++s) conjuntos[s][0] += 0.001 * static_cast<double>(s);
        std::vector<double> i(p.x.size() * conjuntos.size());
        ContagemDoModelo contagem;
        Lote{c}.avaliar(conjuntos, p.x, p.y, i, contagem, largura);
        EXPECT_EQ(contagem.faixas, conjuntos.size());
        EXPECT_EQ(contagem.emVetores, largura == Largura::escalar ? 0 : i.size());
    }
}

TEST(Largura, UmaPartidaÉAMaiorPotênciaDe2QueCabeNasFaixas) {
    const auto bits512 = Largura::bits512;
    EXPECT_EQ(conjuntosDeUmaVez(72, bits512), 8u);
    EXPECT_EQ(conjuntosDeUmaVez(7, bits512), 4u);
    EXPECT_EQ(conjuntosDeUmaVez(3, bits512), 2u);
    EXPECT_EQ(conjuntosDeUmaVez(1, bits512), 1u);
    EXPECT_EQ(conjuntosDeUmaVez(72, Largura::bits256), 4u);
    EXPECT_EQ(conjuntosDeUmaVez(72, Largura::bits128), 2u);
    EXPECT_EQ(conjuntosDeUmaVez(72, Largura::escalar), 1u);
}

TEST(Largura, OProcessadorTemSempreAEscalarEAMaisLargaÉAEscolhidaSemPedido) {
    const auto disponíveis = largurasDisponíveis();
    EXPECT_EQ(disponíveis.front(), Largura::escalar);
    EXPECT_TRUE(std::ranges::is_sorted(disponíveis));
    EXPECT_EQ(escolherLargura("", disponíveis), disponíveis.back());
    for (const auto largura : disponíveis) EXPECT_EQ(escolherLargura(nomeDa(largura), disponíveis), largura);
}

TEST(Largura, AQueOProcessadorNãoTemÉRecusadaDizendoQuaisHá) {
    const std::vector disponíveis = {Largura::escalar, Largura::bits128};
    EXPECT_EQ(erroDe([&] { escolherLargura("512", disponíveis); }),
              "VARENTA_LARGURA: este processador não tem a largura \"512\". Tem: escalar 128");
    EXPECT_EQ(erroDe([&] { escolherLargura("larga", disponíveis); }),
              "VARENTA_LARGURA: este processador não tem a largura \"larga\". Tem: escalar 128");
}

} // namespace
} // namespace varenta
