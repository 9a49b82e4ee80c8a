#include "ajuste/resultados.h"

#include "ajuste/form_ajuste.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_migraf.h"
#include "ajuste/tela_de_ajuste.h"
#include "comum/plataforma.h"

#include <string>
#include <vector>

namespace varenta {
namespace {

std::string bocaisEPressão(Aspersor aspersor) {
    const auto ficha = fichaDoAspersor(aspersor);
    return ficha.bocais + "; " + ficha.pressão;
}

std::vector<std::string> avisos(Aspersor aspersor) {
    const auto& c = telaDeAjuste(aspersor).controles;
    std::vector<std::string> textos;
    if (c.ajustadoCom.empty()) return textos;
    if (c.Label11.texto.empty()) textos.emplace_back("Ângulo do jato não informado: o ajuste usa 0º.");
    if (c.ajustadoCom != bocaisEPressão(aspersor))
        textos.emplace_back("Os parâmetros foram ajustados com outro bocal ou pressão.");
    return textos;
}

} // namespace

void esconderResultados() {
    for (int n = 1; n <= 3; ++n) {
        form_graf(n).esconder();
        form_MIgraf(n).esconder();
    }
    form_ajuste1.esconder();
    form_MIajuste1.esconder();
}

void anotarAjuste(Aspersor aspersor) {
    auto& c = telaDeAjuste(aspersor).controles;
    c.ajustadoCom = bocaisEPressão(aspersor);
    c.lblAviso.texto.clear();
    mostrarAvisos(aspersor);
}

void esquecerAjuste(Aspersor aspersor) {
    telaDeAjuste(aspersor).controles.ajustadoCom.clear();
    mostrarAvisos(aspersor);
}

void mostrarAvisos(Aspersor aspersor) {
    auto& lblAviso = telaDeAjuste(aspersor).controles.lblAviso;
    std::string texto;
    for (const auto& aviso : avisos(aspersor)) {
        if (!texto.empty()) texto += "\n";
        texto += "Aviso: " + aviso;
        if (lblAviso.texto.find(aviso) == std::string::npos) plataforma::avisar(aviso);
    }
    lblAviso.texto = texto;
}

} // namespace varenta
