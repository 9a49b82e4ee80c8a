#include "shell/form6.h"

#include "comum/ajuda.h"

namespace varenta {

void form6_Load() { associarAjuda(); }

void form6_Command1_Click() {
    form6.descarregar();
    voltarAoMenu();
}

} // namespace varenta
