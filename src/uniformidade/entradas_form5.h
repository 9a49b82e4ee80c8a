#pragma once

#include "comum/controles.h"
#include "uniformidade/faixa.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace varenta {

struct RegistroForm5;

/// One end of the strip as `Form5` holds it: how it is told, its length, its stop, and its own texts.
struct ExtremoDaFaixa {
    Lista& modo;
    CaixaTexto& comprimento;
    Verificacao& parada;
    CaixaTexto& tempo;
    std::array<Rotulo*, 2> rótulosDoTempo;
    const char* pedeComprimento;
    const char* faltaComprimento;
};

ExtremoDaFaixa extremoInicial();
ExtremoDaFaixa extremoFinal();

/// The ways in which an end is told, as its list has them.
enum class ModoDoExtremo { igualAoRaio, movimentação, outroValor };
ModoDoExtremo modoDo(const ExtremoDaFaixa& extremo);

/// What the check box of a stop answers when it is set: the time in which the cart would have travelled the
/// length (m) at the speed V (m/h), where the end has a length at all.
std::string sugestãoDeParada(ModoDoExtremo modo, double comprimento, double V);

/// The message that refuses the lengths typed for both ends, which lie between 0 and the reach R (m); null
/// where they are good.
const char* recusaDosComprimentos(double R);

/// The shortest carrier lane (m): a whole wetted circle on a grid of the spacing s (m).
double menorCarreador(double R, double s);

/// The message that refuses a carrier lane of the length Cc (m); empty where it is good.
std::string recusaDoCarreador(double Cc, double R, double s);

/// The message for an empty box of the speed, or else of the spacing between lanes; null where both are
/// filled.
const char* recusaDasCondições(const std::string& velocidade, const std::string& espaçamento);

/// Checks stops, carrier lane, speed and spacing for a sprinkler of the reach R (m), in this order. The first
/// failure shows its message, where it has one, and yields false. A stop without a time is turned off.
bool entradasDaFaixaVálidas(double R);

/// The rows that bound the strip's bands, as the screen stands.
BandasDaFaixa lerBandas(int N, double s, double R);

/// What tells the strip: lengths in m and, where there are any, stops in min.
std::vector<std::string> descriçãoDaFaixa();

} // namespace varenta
