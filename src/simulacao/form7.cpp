#include "simulacao/form7.h"

#include "aspersor/form1.h"
#include "aspersor/perfil.h"
#include "comum/ajuda.h"
#include "comum/arquivos_de_dados.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "simulacao/arquivo_parametros.h"
#include "simulacao/diagrama.h"
#include "simulacao/grafico_perfil_transversal.h"

namespace varenta {
namespace {

/// No later screen may see a profile that doesn't match its inputs.
void desabilitarAvanço() {
    desabilitar({&form7->Command7, &form7->cmdUniformidade, &form7->Command3, &form7->Command9});
}

void redesenharDiagrama() {
    desenharDiagrama(form7->Picture1, form7->HScroll1.valor, form7->HScroll3.valor, form7->HScroll4.valor,
                     form7->HScroll5.valor);
}

void escreverVento() {
    form7->Label17.texto = Format(form7->HScroll2.valor / 10.0, "0.0");
    form7->Label29.texto = "Vento: " + form7->Label17.texto + " m/s";
}

/// The angle through which the sprinkler turns follows from both dry angles as shown.
void escreverGiro() {
    form7->Label35.texto =
        Format(360 - (lerPrefixo(form7->Label24.texto) + lerPrefixo(form7->Label33.texto)), "0");
    form7->Labelang.texto = form7->Label35.texto + "º";
}

void voltarPara(TelaBase& telaDoAspersor) {
    form7.descarregar();
    telaDoAspersor.mostrar();
    telaPrincipal->habilitada = false;
}

} // namespace

void form7_Load() {
    associarAjuda();
    redesenharDiagrama();
}

void form7_Fechar() {
    form7.descarregar();
    voltarAoMenu();
}

void form7_MouseMove() { form7.ponteiro = Ponteiro::padrão; }

void form7_entrada_Change() { desabilitarAvanço(); }

void form7_Text1_Change() {
    form7->Label23.texto = "Velocidade = " + form7->Text1.texto + " m/h";
    desabilitarAvanço();
}

void form7_HScroll1_Change() {
    form7->Label2.texto = Format(form7->HScroll1.valor, "0");
    redesenharDiagrama();
    desabilitarAvanço();
}

void form7_HScroll2_Change() {
    escreverVento();
    desabilitarAvanço();
}

/// Unlike all other events of the scroll bars, this one leaves `Command9` as it is.
void form7_HScroll2_Scroll() {
    escreverVento();
    desabilitar({&form7->Command7, &form7->cmdUniformidade, &form7->Command3});
}

void form7_HScroll3_Change() {
    form7->Label24.texto = Format(form7->HScroll3.valor, "0");
    escreverGiro();
    form7->Label39.texto = form7->Label24.texto + "º";
    redesenharDiagrama();
    desabilitarAvanço();
}

void form7_HScroll4_Change() {
    form7->Label33.texto = Format(form7->HScroll4.valor, "0");
    escreverGiro();
    form7->Label41.texto = form7->Label33.texto + "º";
    redesenharDiagrama();
    desabilitarAvanço();
}

void form7_HScroll5_Change() {
    form7->Label36.texto = Format(form7->HScroll5.valor, "0");
    form7->Label37.texto = "Rotação: " + form7->Label36.texto + "º";
    redesenharDiagrama();
    desabilitarAvanço();
}

void form7_Command1_Click() {
    if (!plataforma::perguntar(perguntaDaExtensão)) return;
    auto& f = *form7.operator->();
    for (auto* caixa : {&f.Text2, &f.Text3, &f.Text4, &f.Text5, &f.Text6, &f.Text7}) definirTexto(*caixa, "");
    if (const auto caminho = pedirArquivoDeDados()) lerArquivoDeParametros(*caminho);
}

void form7_Command4_Click() { voltarPara(form1); }
void form7_Command6_Click() { voltarPara(perfil); }

void form7_cmdSair_Click() {
    form7.descarregar();
    form1.descarregar();
    perfil.descarregar();
    voltarAoMenu();
}

void form7_Picture2_MouseMove(double x, double y) {
    auto& f = *form7.operator->();
    lerNoPerfil(form7, f.Label3, f.Label4, f.Label14d, f.Label14I, x, y);
}

} // namespace varenta
