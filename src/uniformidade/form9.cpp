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
        form9.ponteiro = apagarLeitura(f.lblIr1, f.lblAD);
        return;
    }
    form9.ponteiro = Ponteiro::cruz;
    f.lblIr1.texto = "Ir = " + Format(lerNoEixo(f.Label26, malha.base - y, malha.altura()), "0.000") + " mm";
    f.lblAD.texto = "ADobs. e ADest. = " + Format((x - malha.esquerda) / malha.largura(), "0.000");
}

void form9_Picture2_MouseMove(double x, double y) {
    constexpr auto& malha = malhaDasEficiências;
    auto& f = *form9.operator->();
    if (!malha.contém(x, y)) {
        form9.ponteiro = apagarLeitura(f.lblIr2, f.lblEf);
        return;
    }
    form9.ponteiro = Ponteiro::cruz;
    f.lblIr2.texto =
        "Ir = " + Format(lerNoEixo(f.Label27, x - malha.esquerda, malha.largura()), "0.000") + " mm";
    f.lblEf.texto =
        "Ef. Apl. ou Ef. Arm. = " + Format(100 * (malha.base - y) / malha.altura(), "0.000") + " %";
}

} // namespace varenta
