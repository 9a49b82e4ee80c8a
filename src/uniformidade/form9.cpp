#include "uniformidade/form9.h"

#include "comum/ajuda.h"
#include "comum/numeros.h"
#include "uniformidade/graficos_form9.h"
#include "uniformidade/relatorios.h"

namespace varenta {

void form9_Load() { associarAjuda(); }

void form9_MouseMove() { form9.ponteiro = Ponteiro::padrão; }

void form9_Esconder() { form9.esconder(); }

void form9_Command1_Click() { salvarRelatório(relatórioDasEficiências()); }

void form9_Picture1_MouseMove(double x, double y) {
    constexpr auto& malha = malhaDaÁrea;
    auto& f = *form9.operator->();
    if (!malha.contém(x, y)) {
        form9.ponteiro = Ponteiro::padrão;
        f.lblIr1.texto.clear();
        f.lblAD.texto.clear();
        return;
    }
    form9.ponteiro = Ponteiro::cruz;
    const double de = lerPrefixo(f.Label26.front().texto), até = lerPrefixo(f.Label26.back().texto);
    const double Ir = de + (até - de) * (malha.base - y) / malha.altura();
    f.lblIr1.texto = "Ir = " + Format(Ir, "0.000") + " mm";
    f.lblAD.texto = "ADobs. e ADest. = " + Format((x - malha.esquerda) / malha.largura(), "0.000");
}

void form9_Picture2_MouseMove(double x, double y) {
    constexpr auto& malha = malhaDasEficiências;
    auto& f = *form9.operator->();
    if (!malha.contém(x, y)) {
        form9.ponteiro = Ponteiro::padrão;
        f.lblIr2.texto.clear();
        f.lblEf.texto.clear();
        return;
    }
    form9.ponteiro = Ponteiro::cruz;
    const double de = lerPrefixo(f.Label27.front().texto), até = lerPrefixo(f.Label27.back().texto);
    const double Ir = de + (até - de) * (x - malha.esquerda) / malha.largura();
    f.lblIr2.texto = "Ir = " + Format(Ir, "0.000") + " mm";
    f.lblEf.texto =
        "Ef. Apl. ou Ef. Arm. = " + Format(100 * (malha.base - y) / malha.altura(), "0.000") + " %";
}

} // namespace varenta
