#include "comum/erro_execucao.h"

namespace varenta {

void exigirÍndice(bool dentroDosLimites) {
    if (!dentroDosLimites) throw ErroExecucao{índiceForaDosLimites};
}

} // namespace varenta
