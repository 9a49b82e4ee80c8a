#include "ajuste/form_migraf.h"

#include "ajuste/comparar.h"
#include "comum/ajuda.h"
#include "simulacao/grafico_perfil_transversal.h"

namespace varenta {
namespace {

/// Hidden, the screen keeps the mean deviation of the whole fit.
template <int n>
void fechar() {
    form_MIgraf(n).esconder();
}

template <int n>
void ler(double x, double y) {
    auto& f = *form_MIgraf(n).operator->();
    lerNoPerfil(form_MIgraf(n), f.Label3, f.Label4, f.Label14d, f.Label14I, x, y);
}

template <int n>
void carregar() {
    associarAjuda();
    auto& f = *form_MIgraf(n).operator->();
    f.Caption = "Ensaio " + std::to_string(n) + ": Precipitações Observadas x Estimadas";
    f.Picture1.aoMoverMouse = ler<n>;
    f.Command2.aoClicar = [] { visualizarValoresMóvel(Aspersor::doCatálogo, n); };
    f.Command3.aoClicar = [] { visualizarValoresMóvel(Aspersor::outro, n); };
    f.Command1.aoClicar = f.Command4.aoClicar = fechar<n>;
}

template <int n>
EventosTela eventos() {
    return {.aoCarregar = carregar<n>,
            .aoFechar = fechar<n>,
            .aoMoverMouse = [] { form_MIgraf(n).ponteiro = Ponteiro::padrão; },
            .tópicoDaAjuda = topicos::form_MIgraf};
}

} // namespace

EventosTela eventosDeForm_MIgraf(int n) {
    return n == 1 ? eventos<1>() : n == 2 ? eventos<2>() : eventos<3>();
}

} // namespace varenta
