#include "aspersor/form1.h"
#include "aspersor/perfil.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "simulacao/entradas_form7.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "simulacao/perfil_transversal.h"
#include "uniformidade/form4.h"
#include "uniformidade/form5.h"
#include "uniformidade/graficos_form4.h"
#include "uniformidade/uniformidade_centro.h"

namespace varenta {

namespace {

void escreverDados(const FonteDoAspersor& fonte, const std::string& pressão) {
    form4->Label1.texto = pressão;
    form4->Label2.texto = form7->Label19.texto;
    // The spacing stands here, and not the angle, until the button that goes on writes it again.
    form4->Label3.texto = "Ângulo: " + form7->Combo2.texto + " graus";
    form4->Label4.texto = "Velocidade: " + form7->Text1.texto + " m/h";
    form5->Label52.texto = form4->Label4.texto;
    form4->Label8.texto = "Vazão: " + fonte.vazão.texto + " m³/h";
    form4->Label7.texto = "Raio: " + fonte.raio.texto + " m";
}

} // namespace

void form7_Command2_Click() {
    if (!entradasDaSimulaçãoVálidas()) return;
    calcularPerfilTransversal();
    form7->cmdUniformidade.habilitado = true;
    form7->Command3.habilitado = true;
    marcar(form1, form1->optMCA);
    escreverDados(aspersorDoCatálogo(), "Pressão: " + form1->lblPressão.texto + " m.c.a.");
}

void form7_Command8_Click() {
    if (!entradasDaSimulaçãoVálidas()) return;
    calcularPerfilTransversalOu();
    form7->Command9.habilitado = true;
    form7->Command7.habilitado = true;
    escreverDados(aspersorMedido(), perfil->Label1.texto);
}

namespace {

void abrirForm4(const FonteDoAspersor& fonte) {
    auto& f = *form4.operator->();
    f.Caption = "Uniformidade no Centro da Faixa com Vento - Aspersor " + fonte.nome;
    f.flexGrid_A.formato("^    E (m)     |^  CUC (%)   |^  UD (%)  |^ I médio (mm)");
    f.flexGrid_B.formato("^Distância (m)|^I direita (mm)|^ I esquerda (mm)|^ I total (mm)");
    prepararGráfico(f.Picture1, malhaDaSobreposição);
    prepararGráfico(f.Picture2, malhaDosEspaçamentos);
    f.cmbEspaçamento.itens = espaçamentosParaRaio(lerPrefixo(fonte.raio.texto));
    escolherEspaçamentoDoMeio();
    f.Label1.texto = form7->Label18.texto;
    f.Label2.texto = form7->Label19.texto;
    f.Label3.texto = "Ângulo: " + form7->Label35.texto + " graus";
    f.Label4.texto = "Velocidade: " + form7->Text1.texto + " m/h";
    f.Label8.texto = form7->Label27.texto;
    f.Label7.texto = form7->Label28.texto;
    f.Label37.texto = "Velocidade do Vento: " + form7->Label17.texto + " m/s";
    f.Label38.texto = "Direção do Vento: " + form7->Label2.texto + "º";
    form7.esconder();
    form4.mostrar();
}

} // namespace

void form7_cmdUniformidade_Click() {
    abrirForm4(aspersorDoCatálogo());
    form4->Command10.visivel = false;
}

void form7_Command9_Click() {
    abrirForm4(aspersorMedido());
    form4->Command5.visivel = false;
}

} // namespace varenta
