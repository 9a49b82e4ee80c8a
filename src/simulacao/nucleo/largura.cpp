#include "simulacao/nucleo/largura.h"

#include "comum/erro_execucao.h"
#include "simulacao/nucleo/nucleo.h"

#include <algorithm>
#include <cstdlib>

namespace varenta {

std::string_view nomeDa(Largura largura) {
    switch (largura) {
    case Largura::bits128:
        return "128";
    case Largura::bits256:
        return "256";
    case Largura::bits512:
        return "512";
    default:
        return "escalar";
    }
}

std::size_t faixasDa(Largura largura) {
    switch (largura) {
    case Largura::bits128:
        return 2;
    case Largura::bits256:
        return 4;
    case Largura::bits512:
        return 8;
    default:
        return 1;
    }
}

std::vector<Largura> largurasDisponíveis() {
    std::vector<Largura> larguras = {Largura::escalar};
#if defined(VARENTA_VETORES)
    larguras.push_back(Largura::bits128);
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) larguras.push_back(Largura::bits256);
    if (__builtin_cpu_supports("avx512f")) larguras.push_back(Largura::bits512);
#endif
    return larguras;
}

Largura escolherLargura(std::string_view pedida, const std::vector<Largura>& disponíveis) {
    if (pedida.empty()) return disponíveis.back();
    const auto achada = std::ranges::find(disponíveis, pedida, nomeDa);
    if (achada != disponíveis.end()) return *achada;
    std::string texto = "VARENTA_LARGURA: este processador não tem a largura \"";
    texto += pedida;
    texto += "\". Tem:";
    for (const auto largura : disponíveis) (texto += ' ') += nomeDa(largura);
    throw ErroExecucao{texto};
}

Largura larguraEmUso() {
    static const Largura largura = [] {
        const char* pedida = std::getenv("VARENTA_LARGURA");
        return escolherLargura(pedida ? pedida : "", largurasDisponíveis());
    }();
    return largura;
}

AvaliarBloco* núcleoDa(Largura largura) {
    switch (largura) {
#if defined(VARENTA_VETORES)
    case Largura::bits128:
        return avaliarBloco<128>;
    case Largura::bits256:
        return avaliarBloco<256>;
    case Largura::bits512:
        return avaliarBloco<512>;
#endif
    default:
        return nullptr;
    }
}

} // namespace varenta
