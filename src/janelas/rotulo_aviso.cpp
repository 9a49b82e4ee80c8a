#include "janelas/rotulo_aviso.h"

#include "janelas/paletas.h"

RotuloAviso::RotuloAviso(QWidget* pai) : QLabel{pai} {
    auto cores = palette();
    cores.setColor(QPalette::WindowText,
                   éEscura(cores) ? QColor{0xf0, 0xb0, 0x60} : QColor{0x8a, 0x4b, 0x00});
    setPalette(cores);
    setWordWrap(true);
    setProperty("ocultoQuandoVazio", true);
}
