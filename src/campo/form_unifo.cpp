#include "campo/form_unifo.h"

#include "campo/form_ec.h"
#include "campo/sobreposicao_movel.h"
#include "comum/ajuda.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/planilha.h"
#include "comum/plataforma.h"
#include "uniformidade/graficos_sobreposicao.h"
#include "uniformidade/relatorios.h"

#include <cmath>

namespace varenta {
namespace {

double espaçamentoEscolhido() { return lerPrefixo(formUnifo->cmbEspaçamento.texto); }

/// Whether positions fit between two lanes, and a table can hold them.
bool temPosições(double E) {
    const auto& flex_A = formEC->flex_A;
    const double posições = std::nearbyint(dividir(E, lerPrefixo(formEC->Combo4.texto)));
    return posições >= 1 && recusaDoTamanho(posições, flex_A.colunas).empty();
}

/// Whether the spacing can be overlapped. One that isn't a multiple of six changes nothing.
bool espaçamentoAceito() {
    const double E = espaçamentoEscolhido();
    if (std::fmod(std::nearbyint(E), 6) != 0) {
        plataforma::mensagem("O espaçamento deve ser múltiplo de seis!");
        focar(formUnifo->cmbEspaçamento);
        return false;
    }
    if (temPosições(E)) return true;
    plataforma::mensagem("Valor de espaçamento inválido!");
    escolherItem(formUnifo->cmbEspaçamento, 0);
    focar(formUnifo->cmbEspaçamento);
    return false;
}

} // namespace

void formUnifo_Load() { associarAjuda(); }

void formUnifo_Fechar() {
    formUnifo.descarregar();
    formEC.descarregar();
    voltarAoMenu();
}

void formUnifo_MouseMove() { formUnifo.ponteiro = Ponteiro::padrão; }

void formUnifo_Command2_Click() {
    formUnifo.descarregar();
    formEC.mostrar();
}

void formUnifo_cmdCUC_Click() {
    if (!explicarErro("confira o espaçamento: em m, um múltiplo de seis maior que zero", espaçamentoAceito))
        return;
    sobreporMovel();
    formUnifo->Caption = "Sobreposição para o Espaçamento: " + paraTexto(espaçamentoEscolhido()) + " m";
}

void formUnifo_cmdSalvar_Click() { salvarRelatório(relatórioDoMóvel()); }

void formUnifo_Picture1_MouseMove(double x, double y) {
    auto& f = *formUnifo.operator->();
    formUnifo.ponteiro = lerSobreposição({f.Label22.back(), f.Label23.back(), f.Label21, f.Label30}, x, y);
}

void formUnifo_Picture2_MouseMove(double x, double y) {
    auto& f = *formUnifo.operator->();
    formUnifo.ponteiro = lerEspaçamentos({f.Label26.back(), f.Label26.back(), f.Label13, f.Label20}, x, y);
}

} // namespace varenta
