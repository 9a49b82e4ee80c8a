#include "ajuste/operacoes_ajuste.h"

#include "ajuste/ajustar.h"
#include "ajuste/comparar.h"
#include "ajuste/form_ajcar.h"
#include "ajuste/form_ajuste.h"
#include "ajuste/form_e.h"
#include "ajuste/form_graf.h"
#include "ajuste/form_mie.h"
#include "ajuste/form_migraf.h"
#include "ajuste/resultados.h"
#include "ajuste/verificacoes_ensaio.h"
#include "comum/numeros.h"
#include "comum/plataforma.h"

namespace varenta {
namespace {

constexpr std::array métodos = {Método::malha, Método::autopropelido};

template <class Registro>
bool ensaioAceito(Tela<Registro>& tela, int n) {
    auto& f = *tela.operator->();
    confirmarEntrada(f);
    return aceito(recusaDoAjuste(f, n), {tela, f, n}, TextoRecusado::sai);
}

template <class Registro>
bool ensaiosAceitos(const ControlesDeAjuste& controles, Tela<Registro>& (*telaDoEnsaio)(int)) {
    for (int n = 1; n <= ensaiosEmUso(controles); ++n)
        if (!ensaioAceito(telaDoEnsaio(n), n)) return false;
    return true;
}

/// The flow of a sprinkler out of the catalogue may be anything.
bool vazãoAceita(Aspersor aspersor, const Rotulo& vazão) {
    if (aspersor == Aspersor::doCatálogo || lerPrefixo(vazão.texto) > 0) return true;
    plataforma::mensagem("O valor de vazão deve ser maior que zero!");
    return false;
}

void habilitarResultados(ControlesDeAjuste& controles, Método método) {
    controles.Command7.habilitado = true;
    const auto botões = botõesDoMétodo(controles, método);
    for (int n = 1; n <= ensaiosEmUso(controles); ++n)
        botões.resultados[static_cast<std::size_t>(n - 1)]->habilitado = true;
}

} // namespace

void escolherQuantidade(Aspersor aspersor, int ensaios) {
    auto& c = telaDeAjuste(aspersor).controles;
    // The buttons tell the number from before.
    if (ensaios == 1 + c.Command3.habilitado + c.Command6.habilitado) return;
    for (const auto método : métodos) {
        const auto botões = botõesDoMétodo(c, método);
        botões.ensaios[1]->habilitado = ensaios >= 2;
        botões.ensaios[2]->habilitado = ensaios >= 3;
        for (auto* botão : botões.resultados) botão->habilitado = false;
    }
    c.Command7.habilitado = false;
    for (auto* rótulo : c.resultados()) rótulo->texto.clear();
    esquecerAjuste(aspersor);
    esconderResultados();
}

void abrirEnsaioDeMalha(Aspersor aspersor, int n) {
    abrirEnsaio({form_E(n), *form_E(n).operator->(), n}, aspersor);
}

void abrirEnsaioMóvel(Aspersor aspersor, int n) {
    abrirEnsaio({form_MiE(n), *form_MiE(n).operator->(), n}, aspersor);
}

void ajustarPelaMalha(Aspersor aspersor) {
    const auto tela = telaDeAjuste(aspersor);
    if (!ensaiosAceitos(tela.controles, form_E) || !vazãoAceita(aspersor, tela.vazão)) return;
    ajustarParametrosMalha(tela);
    habilitarResultados(tela.controles, Método::malha);
}

void ajustarPeloAutopropelido(Aspersor aspersor) {
    const auto tela = telaDeAjuste(aspersor);
    if (!ensaiosAceitos(tela.controles, form_MiE) || !vazãoAceita(aspersor, tela.vazão)) return;
    ajustarParametrosAutopropelido(tela);
    habilitarResultados(tela.controles, Método::autopropelido);
}

void compararMalha(Aspersor aspersor, int n) {
    if (ensaioAceito(form_E(n), n)) preencherGraf(aspersor, n);
}

void compararMóvel(Aspersor aspersor, int n) {
    if (ensaioAceito(form_MiE(n), n)) preencherMIgraf(aspersor, n);
}

void encerrarAjuste(Aspersor aspersor) {
    for (int n = 1; n <= 3; ++n)
        for (TelaBase* tela :
             std::initializer_list<TelaBase*>{&form_E(n), &form_MiE(n), &form_graf(n), &form_MIgraf(n)})
            tela->descarregar();
    form_ajuste1.descarregar();
    form_MIajuste1.descarregar();
    telaDeAjuste(aspersor).tela.descarregar();
    voltarAoMenu();
}

void deixarAjuste(Aspersor aspersor) {
    for (int n = 1; n <= 3; ++n) {
        form_E(n).esconder();
        form_MiE(n).esconder();
    }
    esconderResultados();
    telaDeAjuste(aspersor).tela.descarregar();
}

} // namespace varenta
