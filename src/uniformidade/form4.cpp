#include "uniformidade/form4.h"

#include "comum/ajuda.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "simulacao/form7.h"
#include "uniformidade/caminho.h"
#include "uniformidade/graficos_form4.h"
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
    else if (dividir(E, simples(lerPrefixo(form7->Combo2.texto))) == 0)
        mensagem = "Valor de espaçamento inválido!";
    if (!mensagem) return true;
    plataforma::mensagem(mensagem);
    escolherItem(lista, 0);
    return false;
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
    auto& lista = form4->cmbEspaçamento;
    escolherItem(lista, static_cast<int>((lista.itens.size() + 1) / 2));
    form4->Command8.habilitado = false;
    form4->Command9.habilitado = true;
    form4->cmdSalvar.habilitado = true;
}

void form4_Command9_Click() {
    if (!espaçamentoAceito()) return;
    auto& grade = form4->flexGrid_B;
    for (int c = 0; c < grade.colunas && grade.linhas > 1; ++c) grade.escrever(1, c, "");
    const int n = posiçõesEntreCarreadores(lerPrefixo(form4->cmbEspaçamento.texto),
                                           simples(lerPrefixo(form7->Combo2.texto)));
    grade.dimensionar(n + 1, 4);
    sobreporEspacamento();
    form4->Command5.habilitado = true;
    form4->Command10.habilitado = true;
}

void form4_cmdSalvar_Click() { salvarRelatório(relatórioDoCentro); }

void form4_Picture1_MouseMove(double x, double y) {
    constexpr auto& malha = malhaDaSobreposição;
    auto& f = *form4.operator->();
    if (!malha.contém(x, y)) {
        form4.ponteiro = Ponteiro::padrão;
        f.Label21.texto.clear();
        f.Label30.texto.clear();
        return;
    }
    form4.ponteiro = Ponteiro::cruz;
    const double d = lerPrefixo(f.Label22.back().texto) * (x - malha.esquerda) / malha.largura();
    const double i = lerPrefixo(f.Label23.back().texto) * (malha.base - y) / malha.altura();
    f.Label21.texto = "d = " + Format(d, "0.000") + " m";
    f.Label30.texto = "I = " + Format(i, "0.000") + " mm";
}

void form4_Picture2_MouseMove(double x, double y) {
    constexpr auto& malha = malhaDosEspaçamentos;
    auto& f = *form4.operator->();
    if (!malha.contém(x, y)) {
        form4.ponteiro = Ponteiro::padrão;
        f.Label13.texto.clear();
        f.Label20.texto.clear();
        return;
    }
    form4.ponteiro = Ponteiro::cruz;
    const double E = lerPrefixo(f.Label26.back().texto) * (x - malha.esquerda) / malha.largura();
    const double UD = 10 + 90 * (malha.base - y) / malha.altura();
    f.Label13.texto = "E = " + Format(E, "0.000") + " m";
    f.Label20.texto = "UD = " + Format(UD, "0.000") + " %";
}

} // namespace varenta
