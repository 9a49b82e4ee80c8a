#include "uniformidade/form5.h"

#include "comum/ajuda.h"
#include "comum/numeros.h"
#include "comum/operacoes.h"
#include "comum/plataforma.h"
#include "simulacao/fonte_aspersor.h"
#include "simulacao/form7.h"
#include "uniformidade/analise_eficiencia.h"
#include "uniformidade/caminho.h"
#include "uniformidade/entradas_form5.h"
#include "uniformidade/esboco_faixa.h"
#include "uniformidade/form4.h"
#include "uniformidade/form8.h"
#include "uniformidade/form9.h"
#include "uniformidade/form_graffinal.h"
#include "uniformidade/grafico_form5.h"
#include "uniformidade/mapa_faixa.h"
#include "uniformidade/uniformidade_faixa.h"

namespace varenta {
namespace {

/// No later screen may see a strip that doesn't match its inputs.
void desabilitarResultados() {
    auto& f = *form5.operator->();
    desabilitar({&f.Command3, &f.Command11, &f.Command12, &f.Command15, &f.Command16});
    // Their reports would mix these inputs with the results of others.
    if (form8.carregada()) form8->Command1.habilitado = false;
    if (form9.carregada()) form9->Command1.habilitado = false;
}

double raioDeAlcance() { return lerPrefixo(aspersorEmUso().raio.texto); }

void habilitarTempo(const ExtremoDaFaixa& extremo, bool habilitado) {
    extremo.tempo.habilitado = habilitado;
    for (auto* rótulo : extremo.rótulosDoTempo) rótulo->habilitado = habilitado;
}

void aoEscolherModo(const ExtremoDaFaixa& extremo) {
    const auto modo = modoDo(extremo);
    const bool outro = modo == ModoDoExtremo::outroValor;
    extremo.comprimento.habilitado = outro;
    definirTexto(extremo.comprimento, outro                                ? std::string{}
                                      : modo == ModoDoExtremo::igualAoRaio ? Format(raioDeAlcance(), "#0")
                                                                           : paraTexto(0));
    marcar(extremo.parada, false);
    extremo.parada.habilitado = outro;
    desabilitarResultados();
    desenharEsboço();
    if (!outro) return;
    plataforma::mensagem(extremo.pedeComprimento);
    focar(extremo.comprimento);
}

void aoMarcarParada(const ExtremoDaFaixa& extremo) {
    definirTexto(extremo.tempo, "");
    const auto modo = modoDo(extremo);
    const bool marcada = extremo.parada.marcada;
    if (marcada && modo != ModoDoExtremo::movimentação && extremo.comprimento.texto.empty()) {
        marcar(extremo.parada, false);
        plataforma::mensagem(extremo.faltaComprimento);
        return;
    }
    habilitarTempo(extremo, marcada);
    desabilitarResultados();
    if (!marcada) return;
    plataforma::mensagem(
        sugestãoDeParada(modo, lerPrefixo(extremo.comprimento.texto), lerPrefixo(form7->Text1.texto)));
    focar(extremo.tempo);
}

void calcular(bool (*faixa)(), Botao& eficiências, Botao& gráfico) {
    if (!entradasDaFaixaVálidas(raioDeAlcance()) || !faixa()) return;
    for (auto* botão : {&form5->Command3, &eficiências, &gráfico}) botão->habilitado = true;
}

void abrirEficiências(bool (*analisar)()) {
    if (analisar()) form9.mostrar();
}

void abrirMapa(bool (*desenhar)()) {
    if (entradasDaFaixaVálidas(raioDeAlcance()) && desenhar()) form_grafFinal.mostrar();
}

} // namespace

void form5_Load() { associarAjuda(); }

void form5_Fechar() { fecharCaminho(); }

void form5_MouseMove() { form5.ponteiro = Ponteiro::padrão; }

void form5_entrada_Change() {
    desabilitarResultados();
    desenharEsboço();
}

void form5_Combo1_Click() { aoEscolherModo(extremoInicial()); }
void form5_Combo2_Click() { aoEscolherModo(extremoFinal()); }
void form5_chkParada_Click() { aoMarcarParada(extremoInicial()); }
void form5_Check2_Click() { aoMarcarParada(extremoFinal()); }

void form5_Command3_Click() {
    const auto fonte = aspersorEmUso();
    if (fonte.doCatálogo) form8->Caption = "Distribuição de Água na Faixa Irrigada - Aspersor " + fonte.nome;
    form8.mostrar();
}

void form5_Command5_Click() {
    fecharResultados();
    form5.descarregar();
    form4.mostrar();
}

void form5_Command9_Click() { calcular(calcularFaixaOu, form5->Command11, form5->Command16); }
void form5_Command10_Click() { calcular(calcularFaixa, form5->Command12, form5->Command15); }

void form5_Command11_Click() { abrirEficiências(analisarEficienciaOu); }
void form5_Command12_Click() { abrirEficiências(analisarEficiencia); }

void form5_Command15_Click() { abrirMapa(mapaFaixa); }
void form5_Command16_Click() { abrirMapa(mapaFaixaOu); }

void form5_Picture2_MouseMove(double x, double y) {
    constexpr auto& malha = malhaDaFaixa;
    auto& f = *form5.operator->();
    if (!malha.contém(x, y)) {
        form5.ponteiro = apagarLeitura(f.lblEf, f.lblI);
        return;
    }
    form5.ponteiro = Ponteiro::cruz;
    f.lblEf.texto =
        "Ef = " + Format(lerNoEixo(f.Label33, x - malha.esquerda, malha.largura()), "0.000") + " m";
    f.lblI.texto = "I = " + Format(lerNoEixo(f.Label34, malha.base - y, malha.altura()), "0.000") + " mm";
}

} // namespace varenta
