#include "campo/perfil_do_movel.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/trigonometria.h"

#include <algorithm>
#include <cmath>

namespace varenta {
namespace {

/// The number of positions up to the last wet one.
std::size_t últimaMolhada(const PerfilMóvel& perfil) {
    std::size_t c = perfil.D.size();
    while (c > 0 && !(perfil.D[c - 1] > 0)) --c;
    return c;
}

/// The whole chord that the sprinkler's wetted circle of radius r has at x.
double corda(double x, double r, double alfa) { return cordaSetor(x, r, alfa) + cordaCheia(x, r); }

/// Where the line of the last two wet positions reaches 0, at least a quarter of a space beyond the last.
double alcance(const PerfilMóvel& perfil, std::size_t c) {
    const auto& x = perfil.x;
    const auto& D = perfil.D;
    const PontoMedido penúltima{elemento(x, c - 2), elemento(D, c - 2)};
    const auto [b, m] = retaPor(penúltima, {x[c - 1], D[c - 1]});
    return std::max(dividir(-b, m), x[c - 1] + 0.25 * perfil.espaço);
}

} // namespace

double cordaCheia(double x, double r) { return dividir(x, r) >= 1 ? 0 : std::sqrt(r * r - x * x); }

double cordaSetor(double x, double r, double alfa) {
    const double relativa = dividir(x, r);
    if (relativa >= 1) return 0;
    if (relativa >= senoECosseno(alfa).seno) return std::sqrt(r * r - x * x);
    return x / tangente(alfa);
}

double centroSegmento(double r, double x) {
    const double meiaCorda = std::sqrt(r * r - x * x);
    const double cubo = meiaCorda * meiaCorda * meiaCorda;
    return dividir(2 * cubo, 3 * (r * r * arcoTangente(meiaCorda / x) - x * meiaCorda));
}

const char* recusaDoPerfilMóvel(const PerfilMóvel& perfil) {
    if (std::ranges::any_of(perfil.D, [](double lâmina) { return lâmina < 0; }))
        return "Os valores de lâmina devem ser positivos!";
    const auto c = últimaMolhada(perfil);
    // One wet position leaves no penultimate one.
    const double penúltima = elemento(perfil.D, c - 2);
    if (penúltima < perfil.D[c - 1])
        return "A média do penúltimo valor deve ser maior que o último valor em cada lado da linha!";
    return nullptr;
}

PerfilInvertido inverterPerfilMóvel(const PerfilMóvel& perfil, double V, double alfa) {
    const auto c = últimaMolhada(perfil);
    const auto& x = perfil.x;
    const double R = alcance(perfil, c);
    // The bound of ring k (from 0) on its outer side.
    const auto fora = [&](std::size_t k) { return k + 1 == c ? R : x[k + 1]; };
    PerfilInvertido invertido{R, std::vector<PontoMedido>(c + 1)};
    auto& anéis = invertido.anéis;
    anéis[c] = {R, 0};
    for (std::size_t j = c; j-- > 0;) {
        double S = 0;
        for (std::size_t k = c - 1; k > j; --k) {
            const double dentro = x[k];
            const double setor = cordaSetor(x[j], fora(k), alfa) - cordaSetor(x[j], dentro, alfa);
            const double cheia = cordaCheia(x[j], fora(k)) - cordaCheia(x[j], dentro);
            S += dividir(setor + cheia, V) * anéis[k].i;
        }
        const double t = dividir(corda(x[j], fora(j), alfa), V);
        anéis[j] = {centroSegmento(fora(j), x[j]), dividir(perfil.D[j] - S, t)};
    }
    return invertido;
}

} // namespace varenta
