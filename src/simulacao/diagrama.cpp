#include "simulacao/diagrama.h"

#include "simulacao/modelo_vento.h"

#include <array>
#include <cmath>

namespace varenta {
namespace {

constexpr double quartoDeVolta = 1.570796326794895;
constexpr double voltaEUmQuarto = 7.853981633974475;

/// An end of the wetted sector, brought back into one turn.
double emUmaVolta(double angulo) {
    if (angulo > doisPiDoModelo) return angulo - doisPiDoModelo;
    if (angulo <= 0) return angulo + doisPiDoModelo;
    return angulo;
}

/// The same circle at the place of every collector, and at the sample beside its caption.
void desenharColetores(Desenho& desenho, double raio, Cor cor) {
    for (const double y : std::array{4090.0, 4590.0, 5090.0})
        for (int k = 0; k < 12; ++k) desenho.arco(80 + 250 * k, y, raio, cor);
    desenho.arco(2230, 6870, raio, cor);
}

} // namespace

void desenharVento(Desenho& desenho, double direção) {
    constexpr PontoDoDesenho centro{1455, 1125};
    const auto ponta = noRumo(centro, 450, direção);
    desenho.linha(centro.x, centro.y, ponta.x, ponta.y, cores::azul);
    desenharSeta(desenho, ponta, 400, direção);
}

PontoDoDesenho noRumo(PontoDoDesenho centro, double distância, double rumo) {
    return {centro.x + distância * std::sin(rumo), centro.y - distância * std::cos(rumo)};
}

void desenharSeta(Desenho& desenho, PontoDoDesenho ponta, double haste, double rumo) {
    constexpr double barbela = 120;
    const auto para = [&](double comprimento, double direção) {
        const auto fim = noRumo(ponta, comprimento, direção);
        desenho.linha(ponta.x, ponta.y, fim.x, fim.y, cores::vermelho);
    };
    para(haste, rumo);
    para(barbela, rumo - radianos(30));
    para(barbela, rumo + radianos(30));
}

ExtremosDoSetor setorMolhado(int anguloSecoI, int anguloSecoII, int rotacao) {
    const double a1 = radianos(anguloSecoI), a2 = radianos(anguloSecoII), rot = radianos(rotacao);
    return {emUmaVolta(quartoDeVolta + a1 + rot),
            emUmaVolta((anguloSecoII >= 90 ? voltaEUmQuarto : quartoDeVolta) - a2 + rot)};
}

void desenharSetor(Desenho& desenho, PontoDoDesenho centro, double raio, const ExtremosDoSetor& setor) {
    // The canvas asks for the radial lines by negative angles.
    desenho.arco(centro.x, centro.y, raio, cores::azulClaro, -setor.início, -setor.fim);
}

void desenharDiagrama(Desenho& desenho, int direção, int anguloSecoI, int anguloSecoII, int rotacao) {
    const double dir = radianos(direção);
    desenho.limpar();
    desenho.larguraTraco(2);
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);

    if (direção != 0) {
        double rumo = doisPiDoModelo + quartoDeVolta - dir;
        if (rumo > doisPiDoModelo) rumo -= doisPiDoModelo;
        desenharSetor(desenho, {1455, 1125}, 300, {rumo, quartoDeVolta});
    }
    desenharVento(desenho, dir);

    const auto setor = setorMolhado(anguloSecoI, anguloSecoII, rotacao);
    for (const double y : std::array{3290.0, 5840.0}) desenharSetor(desenho, {1455, y}, 1000, setor);

    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    desenharColetores(desenho, 15, cores::amarelo);
    desenho.larguraTraco(1);
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);
    desenharColetores(desenho, 25, cores::preto);
}

} // namespace varenta
