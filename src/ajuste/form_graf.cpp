#include "ajuste/form_graf.h"

#include "ajuste/comparar.h"
#include "comum/ajuda.h"

namespace varenta {
namespace {

/// Hidden, the screen keeps the mean deviation of the whole fit.
template <int n>
void fechar() {
    form_graf(n).esconder();
}

template <int n>
void carregar() {
    associarAjuda();
    auto& f = *form_graf(n).operator->();
    f.Caption = "Ensaio " + std::to_string(n) + ": Precipitações Observadas x Estimadas";
    f.Command2.aoClicar = [] { visualizarValores(Aspersor::doCatálogo, n); };
    f.Command3.aoClicar = [] { visualizarValores(Aspersor::outro, n); };
    f.Command1.aoClicar = f.Command4.aoClicar = fechar<n>;
}

template <int n>
EventosTela eventos() {
    return {.aoCarregar = carregar<n>, .aoFechar = fechar<n>, .tópicoDaAjuda = topicos::form_graf};
}

} // namespace

EventosTela eventosDeForm_graf(int n) { return n == 1 ? eventos<1>() : n == 2 ? eventos<2>() : eventos<3>(); }

} // namespace varenta
