#include "uniformidade/caminho.h"

#include "aspersor/form1.h"
#include "aspersor/perfil.h"
#include "aspersor/perfil_form.h"
#include "simulacao/form7.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/form8.h"
#include "uniformidade/form9.h"
#include "uniformidade/form_graffinal.h"

namespace varenta {

void fecharCaminho() {
    fecharResultados();
    form5.descarregar();
    form4.descarregar();
    form7.descarregar();
    form1.descarregar();
    perfil.descarregar();
    perfilForm.descarregar();
    voltarAoMenu();
}

void fecharResultados() {
    form_grafFinal.descarregar();
    form9.descarregar();
    form8.descarregar();
}

} // namespace varenta
