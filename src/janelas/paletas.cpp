#include "janelas/paletas.h"

#include <QColor>

namespace {

struct Cores {
    QColor janela, botão, fundo, fundoAlternado, texto, apagado, realce, realçado, ligação, dica;
};

QPalette paletaDe(const Cores& cores) {
    QPalette paleta{cores.janela, cores.janela};
    paleta.setColor(QPalette::Button, cores.botão);
    paleta.setColor(QPalette::Base, cores.fundo);
    paleta.setColor(QPalette::AlternateBase, cores.fundoAlternado);
    paleta.setColor(QPalette::ToolTipBase, cores.dica);
    for (const auto papel :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        paleta.setColor(papel, cores.texto);
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        paleta.setColor(QPalette::Disabled, papel, cores.apagado);
    paleta.setColor(QPalette::PlaceholderText, cores.apagado);
    paleta.setColor(QPalette::Highlight, cores.realce);
    paleta.setColor(QPalette::HighlightedText, cores.realçado);
    paleta.setColor(QPalette::Link, cores.ligação);
    return paleta;
}

} // namespace

QPalette paletaClara() {
    return paletaDe({.janela = {0xf1, 0xf3, 0xf5},
                     .botão = {0xe6, 0xe9, 0xec},
                     .fundo = Qt::white,
                     .fundoAlternado = {0xf4, 0xf7, 0xfa},
                     .texto = {0x1d, 0x23, 0x29},
                     .apagado = {0x8b, 0x93, 0x9b},
                     .realce = {0x1f, 0x6f, 0xb2},
                     .realçado = Qt::white,
                     .ligação = {0x12, 0x57, 0x93},
                     .dica = {0xff, 0xff, 0xe8}});
}

QPalette paletaEscura() {
    return paletaDe({.janela = {0x2a, 0x2e, 0x32},
                     .botão = {0x3a, 0x40, 0x46},
                     .fundo = {0x1b, 0x1e, 0x21},
                     .fundoAlternado = {0x23, 0x27, 0x2b},
                     .texto = {0xe8, 0xea, 0xec},
                     .apagado = {0x8a, 0x91, 0x98},
                     .realce = {0x3d, 0x8f, 0xd6},
                     .realçado = {0x10, 0x14, 0x18},
                     .ligação = {0x7d, 0xb9, 0xf0},
                     .dica = {0x3a, 0x40, 0x46}});
}

bool éEscura(const QPalette& paleta) {
    return paleta.color(QPalette::Window).lightness() < paleta.color(QPalette::WindowText).lightness();
}
