#include "ajuste/form_ajven.h"

#include "ajuste/operacoes_ajuste.h"
#include "ajuste/resultados.h"
#include "aspersor/grafico_perfil_radial.h"
#include "comum/ajuda.h"
#include "comum/arquivo_texto.h"
#include "comum/erro_execucao.h"
#include "comum/plataforma.h"

namespace varenta {
namespace {

/// Sprinkler and parameters, an item a line, with an empty line at the end.
std::string textoDosParâmetros() {
    auto& f = *form_AjVen.operator->();
    const auto ficha = fichaDoAspersor(Aspersor::doCatálogo);
    std::string texto;
    const auto juntar = [&](const std::string& linha) { texto += linha + "\r\n"; };
    juntar(ficha.modelo);
    juntar(ficha.bocais);
    juntar(ficha.pressão);
    juntar(f.lblVazão.texto);
    juntar(f.lblRaioAlcance.texto);
    for (const auto* rótulo : f.resultados()) juntar(rótulo->texto);
    juntar("");
    return texto;
}

void salvarParâmetros() {
    const auto caminho =
        plataforma::arquivoParaSalvar({.filtro = "Text files|*.TXT|All files|*.*", .extensãoPadrão = "TXT"});
    if (!caminho || caminho->empty()) return;
    try {
        gravarTexto(*caminho, textoDosParâmetros());
    } catch (const ErroExecucao& e) {
        plataforma::mensagem(std::string{"Ao salvar ocorreu um erro "} + e.what());
    }
}

} // namespace

SeleçãoDeAspersor seleçãoDeFormAjVen() {
    auto& f = *form_AjVen.operator->();
    return {.Caption = f.Caption,
            .Combo1 = f.Combo1,
            .Combo2 = f.Combo2,
            .hsbPressão = f.hsbPressão,
            .optMCA = f.optMCA,
            .optKG = f.optKG,
            .optKPA = f.optKPA,
            .lblPressão = f.lblPressão,
            .lblVazão = f.lblVazão,
            .lblRaioAlcance = f.lblRaioAlcance,
            .lblInt = f.lblInt,
            .lblRaio = std::span{f.lblRaio}.subspan(1),
            .lblIntensidade = std::span{f.lblIntensidade}.subspan(1),
            .Picture1 = f.Picture1,
            .Label6 = f.Label6,
            .Label7 = f.Label7};
}

void form_AjVen_Load() {
    associarAjuda();
    form_AjVen->Label11.texto = "24";
    ligarControlesDeAjuste<Aspersor::doCatálogo>();
    form_AjVen->Command7.aoClicar = salvarParâmetros;
    form_AjVen->Command2.aoClicar = mostrarAjuda<topicos::form_AjVen>;
}

void form_AjVen_Fechar() { encerrarAjuste(Aspersor::doCatálogo); }

void form_AjVen_MouseMove() { form_AjVen.ponteiro = Ponteiro::padrão; }

void form_AjVen_seleção_Change() {
    escreverPressão(seleçãoDeFormAjVen());
    atualizarAspersor(seleçãoDeFormAjVen());
    mostrarAvisos(Aspersor::doCatálogo);
}

void form_AjVen_unidade_Click() { escreverPressão(seleçãoDeFormAjVen()); }

void form_AjVen_Picture1_MouseMove(double x, double y) {
    auto& f = *form_AjVen.operator->();
    const LeituraDoPerfilRadial leitura{f.Label6.back(), f.Label7.back(), f.Label15, f.Label16};
    form_AjVen.ponteiro = lerPerfilRadial(malhaDoPerfilRadial, leitura, x, y);
}

void abrirFormAjVen(const ModeloDeAspersor& modelo, Método método) {
    auto& f = *form_AjVen.operator->();
    f.Caption = modelo.caption;
    prepararSeleção(seleçãoDeFormAjVen(), modelo);
    if (!modelo.temAuxiliar) {
        f.Label17.texto.clear();
        f.Combo2.visivel = false;
    }
    atualizarAspersor(seleçãoDeFormAjVen());
    const auto outros = botõesDoMétodo(f, método == Método::malha ? Método::autopropelido : Método::malha);
    for (auto* botão : outros.ensaios) botão->visivel = false;
    outros.ajustar->visivel = false;
    for (auto* botão : outros.resultados) botão->visivel = false;
    form_AjVen.mostrar();
}

} // namespace varenta
