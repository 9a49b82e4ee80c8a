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

void form7_Command3_Click() {
    form_grafVen.carregar();
    desenharIntensidades();
    form_grafVen.mostrar();
}

} // namespace varenta
