#include "uniformidade/form_graffinal.h"

#include "comum/ajuda.h"

namespace varenta {

void form_grafFinal_Load() { associarAjuda(); }

void form_grafFinal_Command1_Click() { form_grafFinal.descarregar(); }

} // namespace varenta
