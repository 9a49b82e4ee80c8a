#include "faltas/faltas_plantadas.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"

#include <cstdlib>
#include <new>

namespace varenta::teste {
namespace {

// Plain numbers: the allocations that look at them run before and after everything else.
Falta plantada = Falta::divisão;
long faltam = 0;
bool falhou = false;

bool deveFalhar(Falta falta) {
    if (faltam == 0 || plantada != falta || --faltam > 0) return false;
    return falhou = true;
}

} // namespace

void plantarFalta(Falta falta, long n) {
    plantada = falta;
    falhou = false;
    faltam = n;
}

bool colherFalta() {
    faltam = 0;
    return falhou;
}

} // namespace varenta::teste

using varenta::teste::deveFalhar;
using varenta::teste::Falta;

// The linker sends the core's calls of X to __wrap_X, and those of __real_X to the core's own X.
extern "C" {
double __real__ZN7varenta7dividirEdd(double, double);
double __wrap__ZN7varenta7dividirEdd(double a, double b) {
    if (deveFalhar(Falta::divisão)) throw varenta::ErroExecucao{varenta::divisãoPorZero};
    return __real__ZN7varenta7dividirEdd(a, b);
}

void __real__ZN7varenta13exigirÍndiceEb(bool);
void __wrap__ZN7varenta13exigirÍndiceEb(bool dentro) {
    __real__ZN7varenta13exigirÍndiceEb(dentro && !deveFalhar(Falta::índice));
}
}

void* operator new(std::size_t n) {
    if (deveFalhar(Falta::memória)) throw std::bad_alloc{};
    if (void* lugar = std::malloc(n > 0 ? n : 1)) return lugar;
    throw std::bad_alloc{};
}
void operator delete(void* lugar) noexcept { std::free(lugar); }
void operator delete(void* lugar, std::size_t) noexcept { std::free(lugar); }
