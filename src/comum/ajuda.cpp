#include "comum/ajuda.h"

#include "comum/erro_execucao.h"

namespace varenta {

void mostrarÍndiceDaAjuda() {
    if (arquivoDeAjuda.empty()) {
        plataforma::mensagem("Não há uma ajuda associada!");
        return;
    }
    try {
        plataforma::ajuda(std::nullopt);
    } catch (const ErroExecucao& e) {
        plataforma::mensagem(e.what());
    }
}

} // namespace varenta
