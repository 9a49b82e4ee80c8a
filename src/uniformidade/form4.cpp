#include "uniformidade/form4.h"

#include "comum/ajuda.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "uniformidade/caminho.h"
#include "uniformidade/graficos_sobreposicao.h"
#include "uniformidade/relatorios.h"
#include "uniformidade/sobreposicao.h"
#include "uniformidade/uniformidade_centro.h"

namespace varenta {
namespace {

bool espaçamentoAceito() {
    auto& lista = form4->cmbEspaçamento;
    const double E = lerPrefixo(lista.texto);
    const char* mensagem = nullptr;
    if (paraInteiro(E) % 6 != 0)
        mensagem = "O valor de espaçamento deve ser múltiplo de seis!";
    else if (dividir(E, espaçamentoDosColetores()) == 0)
        mensagem = "Valor de espaçamento inválido!";
    if (!mensagem) return true;
    plataforma::mensagem(mensagem);
    escolherItem(lista, 0);
    return false;
}

/// Makes room for the overlap at the spacing of the list, if it is accepted.
bool prepararDetalhe() {
    if (!espaçamentoAceito()) return false;
    auto& grade = form4->flexGrid_B;
    for (int c = 0; c < grade.colunas && grade.linhas > 1; ++c) grade.escrever(1, c, "");
    const int n =
        posiçõesEntreCarreadores(lerPrefixo(form4->cmbEspaçamento.texto), espaçamentoDosColetores());
    grade.dimensionar(n + 1, 4);
    return true;
}

} // namespace

void form4_Load() { associarAjuda(); }

void form4_Fechar() { fecharCaminho(); }

void form4_MouseMove() { form4.ponteiro = Ponteiro::padrão; }

void form4_cmbEspaçamento_Change() { desabilitar({&form4->Command5, &form4->Command10}); }

void form4_Command7_Click() {
    form4.descarregar();
    form7.mostrar();
}

void form4_Command8_Click() {
    calcularMaiorCUC();
    escolherEspaçamentoDoMeio();
    form4->Command8.habilitado = false;
    form4->Command9.habilitado = true;
    form4->cmdSalvar.habilitado = true;
}

void form4_Command9_Click() {
    if (!explicarErro("confira o espaçamento: em m, um múltiplo de seis maior que zero", prepararDetalhe))
        return;
    sobreporEspacamento();
    form4->Command5.habilitado = true;
    form4->Command10.habilitado = true;
}

void form4_cmdSalvar_Click() { salvarRelatório(relatórioDoCentro()); }

void form4_Picture1_MouseMove(double x, double y) {
    auto& f = *form4.operator->();
    form4.ponteiro = lerSobreposição({f.Label22.back(), f.Label23.back(), f.Label21, f.Label30}, x, y);
}

void form4_Picture2_MouseMove(double x, double y) {
    auto& f = *form4.operator->();
    form4.ponteiro = lerEspaçamentos({f.Label26.back(), f.Label26.back(), f.Label13, f.Label20}, x, y);
}

} // namespace varenta
