#include "simulacao/form_grafven.h"

#include "comum/ajuda.h"
#include "simulacao/form7.h"
#include "simulacao/mapa_intensidades.h"

namespace varenta {

void form_grafVen_Load() { associarAjuda(); }

void form_grafVen_Command1_Click() {
    form_grafVen.descarregar();
    form7.habilitada = true;
    form7.mostrar();
}

namespace {

void abrirMapa(void (*desenhar)()) {
    form_grafVen.carregar();
    desenhar();
    form_grafVen.mostrar();
}

} // namespace

void form7_Command3_Click() { abrirMapa(desenharIntensidades); }
void form7_Command7_Click() { abrirMapa(desenharIntensidadesOu); }

} // namespace varenta
