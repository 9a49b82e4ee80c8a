#include "ajuste/form_ajuste.h"

#include "comum/ajuda.h"
#include "comum/arquivo_texto.h"
#include "comum/erro_execucao.h"
#include "comum/plataforma.h"

namespace varenta {
namespace {

/// All estimates, without the headers.
std::string textoDaTabela(const Grade& grade) {
    std::string texto;
    for (int l = 1; l < grade.linhas; ++l) {
        for (int c = 1; c < grade.colunas; ++c) {
            if (c > 1) texto += '\t';
            texto += grade.célula(l, c);
        }
        texto += "\r\n";
    }
    return texto;
}

void salvar(const Grade& grade) {
    const auto caminho =
        plataforma::arquivoParaSalvar({.filtro = "Text files|*.TXT|All files|*.*", .extensãoPadrão = "TXT"});
    if (!caminho || caminho->empty()) return;
    try {
        gravarTexto(*caminho, textoDaTabela(grade));
    } catch (const ErroExecucao& e) {
        plataforma::mensagem(std::string{"O arquivo não pôde ser salvo: "} + e.what() + "!");
    }
}

template <Tela<RegistroFormAjuste>& tela>
void carregar() {
    associarAjuda();
    tela->Command1.aoClicar = [] { salvar(tela->flex_A); };
    tela->Command2.aoClicar = [] { tela.descarregar(); };
}

} // namespace

EventosTela eventosDeForm_ajuste1() {
    return {.aoCarregar = carregar<form_ajuste1>, .tópicoDaAjuda = topicos::form_ajuste1};
}
EventosTela eventosDeForm_MIajuste1() {
    return {.aoCarregar = carregar<form_MIajuste1>, .tópicoDaAjuda = topicos::form_MIajuste1};
}

} // namespace varenta
