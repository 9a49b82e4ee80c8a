#include "uniformidade/form8.h"

#include "comum/ajuda.h"
#include "uniformidade/relatorios.h"

namespace varenta {

void form8_Load() { associarAjuda(); }

void form8_Command1_Click() { salvarRelatório(relatórioDaFaixa()); }

void form8_Command3_Click() { form8.esconder(); }

} // namespace varenta
