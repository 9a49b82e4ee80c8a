#include "comum/operacoes.h"

#include "comum/erro_execucao.h"

#include <algorithm>

namespace varenta {
namespace {

void disparar(Acao ação) {
    if (ação) ação();
}

} // namespace

void definirTexto(CaixaTexto& caixa, std::string texto) {
    if (caixa.texto == texto) return;
    caixa.texto = std::move(texto);
    disparar(caixa.aoMudar);
}

void definirTexto(Lista& lista, std::string texto) {
    if (lista.texto == texto) return;
    lista.texto = std::move(texto);
    disparar(lista.aoMudar);
}

void escolherItem(Lista& lista, int índice) {
    if (índice < 0 || índice >= static_cast<int>(lista.itens.size()))
        throw ErroExecucao{valorDePropriedadeInválido};
    lista.texto = lista.itens[static_cast<std::size_t>(índice)];
    disparar(lista.aoClicar);
}

void escolherItem(Lista& lista, std::string_view texto) { escolherItem(lista, índiceDoItem(lista, texto)); }

int índiceDoItem(const Lista& lista, std::string_view texto) {
    const auto item = std::ranges::find(lista.itens, texto);
    return item == lista.itens.end() ? -1 : static_cast<int>(item - lista.itens.begin());
}

void marcar(TelaBase& tela, Opcao& opção) {
    for (const auto& e : tela.elementos())
        if (auto* const* outra = std::get_if<Opcao*>(&e.controle); outra && (*outra)->grupo == opção.grupo)
            (*outra)->marcada = *outra == &opção;
    disparar(opção.aoClicar);
}

void marcar(Verificacao& verificação, bool marcada) {
    if (verificação.marcada == marcada) return;
    verificação.marcada = marcada;
    disparar(verificação.aoClicar);
}

void definirValor(Rolagem& rolagem, int valor) {
    if (valor < rolagem.mínimo || valor > rolagem.máximo) throw ErroExecucao{valorDePropriedadeInválido};
    if (rolagem.valor == valor) return;
    rolagem.valor = valor;
    disparar(rolagem.aoMudar);
}

void definirFaixa(Rolagem& rolagem, int mínimo, int máximo, int passoGrande, int passoPequeno) {
    rolagem.mínimo = mínimo;
    rolagem.máximo = máximo;
    rolagem.passoGrande = passoGrande;
    rolagem.passoPequeno = passoPequeno;
    definirValor(rolagem, std::clamp(rolagem.valor, mínimo, máximo));
}

void desabilitar(std::initializer_list<Botao*> botões) {
    for (auto* botão : botões) botão->habilitado = false;
}

} // namespace varenta
