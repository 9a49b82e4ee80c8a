#include "simulacao/diagrama.h"

#include "simulacao/modelo_vento.h"

#include <array>
#include <cmath>

namespace varenta {
namespace {

constexpr double quartoDeVolta = 1.570796326794895;
constexpr double voltaEUmQuarto = 7.853981633974475;

/// A sector with its radial lines: the canvas asks for them by negative angles.
void setor(Desenho& desenho, double cx, double cy, double raio, double início, double fim) {
    desenho.arco(cx, cy, raio, cores::azulClaro, -início, -fim);
}

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
    constexpr double cx = 1455, cy = 1125, raio = 450, haste = 400, barbela = 120;
    const double x = cx + raio * std::sin(direção), y = cy - raio * std::cos(direção);
    const auto para = [&](double comprimento, double rumo) {
        desenho.linha(x, y, x + comprimento * std::sin(rumo), y - comprimento * std::cos(rumo),
                      cores::vermelho);
    };
    desenho.linha(cx, cy, x, y, cores::azul);
    para(haste, direção);
    para(barbela, direção - radianos(30));
    para(barbela, direção + radianos(30));
}

void desenharDiagrama(Desenho& desenho, int direção, int anguloSecoI, int anguloSecoII, int rotacao) {
    const double dir = radianos(direção), a1 = radianos(anguloSecoI), a2 = radianos(anguloSecoII),
                 rot = radianos(rotacao);
    desenho.limpar();
    desenho.larguraTraco(2);
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);

    if (direção != 0) {
        double rumo = doisPiDoModelo + quartoDeVolta - dir;
        if (rumo > doisPiDoModelo) rumo -= doisPiDoModelo;
        setor(desenho, 1455, 1125, 300, rumo, quartoDeVolta);
    }
    desenharVento(desenho, dir);

    const double início = emUmaVolta(quartoDeVolta + a1 + rot);
    const double fim = emUmaVolta((anguloSecoII >= 90 ? voltaEUmQuarto : quartoDeVolta) - a2 + rot);
    for (const double y : std::array{3290.0, 5840.0}) setor(desenho, 1455, y, 1000, início, fim);

    desenho.estiloPreenchimento(EstiloPreenchimento::sólido);
    desenharColetores(desenho, 15, cores::amarelo);
    desenho.larguraTraco(1);
    desenho.estiloPreenchimento(EstiloPreenchimento::transparente);
    desenharColetores(desenho, 25, cores::preto);
}

} // namespace varenta
