#include "janelas/rotulo_aviso.h"

RotuloAviso::RotuloAviso(QWidget* pai) : QLabel{pai} {
    auto cores = palette();
    cores.setColor(QPalette::WindowText, QColor{0x8a, 0x4b, 0x00});
    setPalette(cores);
    setWordWrap(true);
    setProperty("ocultoQuandoVazio", true);
}
