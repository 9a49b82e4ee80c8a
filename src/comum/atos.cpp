#include "comum/atos.h"

#include "comum/ajuda.h"
#include "comum/limites.h"
#include "comum/operacoes.h"
#include "comum/planilha.h"

#include <algorithm>
#include <utility>

namespace varenta {

void retomar() {
    for (auto* tela : TelaBase::todas()) tela->ponteiro = Ponteiro::padrão;
    if (telaPrincipal && std::ranges::none_of(TelaBase::todas(), [](const TelaBase* tela) {
            return tela->carregada() && tela->visivel && tela->habilitada;
        }))
        voltarAoMenu();
}

namespace atos {
namespace {

/// The thumb that is held, with the value at which it was taken.
struct Polegar {
    Alvo alvo;
    Rolagem* rolagem;
    int valorInicial;
};
std::optional<Polegar> polegar;

/// The list whose typed text is not taken over yet.
std::optional<Alvo> listaDigitada;

/// Whether the control still is the one that it was when an act began: its screen may have closed since.
bool aindaExiste(const Alvo& alvo) {
    const auto presente = alvo.tela->achar(alvo.elemento.nome, alvo.elemento.índice);
    return presente && presente->endereço() == alvo.elemento.endereço();
}

void exigirTela(const TelaBase& tela) {
    if (!tela.carregada()) throw AtoRecusado{tela.nome() + " não está carregada"};
    if (!tela.visivel) throw AtoRecusado{tela.nome() + " está oculta"};
    if (!tela.habilitada) throw AtoRecusado{tela.nome() + " está desabilitada"};
}

/// The control as the kind that an act needs, checked to be at hand.
template <class Tipo>
Tipo& exigir(const Alvo& alvo, const char* ato) {
    exigirTela(*alvo.tela);
    auto* const* controle = std::get_if<Tipo*>(&alvo.elemento.controle);
    if (!controle) throw AtoRecusado{alvo.nomeCompleto() + " não admite " + ato};
    if (!estáVisível(alvo.elemento)) throw AtoRecusado{alvo.nomeCompleto() + " está oculto"};
    if (!estáHabilitado(alvo.elemento)) throw AtoRecusado{alvo.nomeCompleto() + " está desabilitado"};
    return **controle;
}

int exigirValor(const Alvo& alvo, const Rolagem& rolagem, int valor) {
    if (valor < rolagem.mínimo || valor > rolagem.máximo)
        throw AtoRecusado{alvo.nomeCompleto() + " vai de " + std::to_string(rolagem.mínimo) + " a " +
                          std::to_string(rolagem.máximo)};
    return valor;
}

Planilha exigirPlanilha(const Alvo& alvo, int linha, int coluna) {
    auto& grade = exigir<Grade>(alvo, "entrada");
    if (!grade.planilha || !grade.planilha().digitação)
        throw AtoRecusado{alvo.nomeCompleto() + " não admite entrada"};
    if (linha < 1 || linha >= grade.linhas || coluna < 1 || coluna >= grade.colunas)
        throw AtoRecusado{alvo.nomeCompleto() + " não tem a célula de dados " + std::to_string(linha) + ", " +
                          std::to_string(coluna)};
    return grade.planilha();
}

/// Ends what a person left half done elsewhere. Moving the mouse is no leaving: a text may still be typed on.
void deixarControle() {
    confirmar();
    soltar();
}

} // namespace

void clicar(const Alvo& alvo) {
    deixarControle();
    const auto& controle = alvo.elemento.controle;
    if (std::holds_alternative<Opcao*>(controle)) {
        auto& opção = exigir<Opcao>(alvo, "clique");
        focar(opção);
        executarAto([&] { marcar(*alvo.tela, opção); });
    } else if (std::holds_alternative<Verificacao*>(controle)) {
        auto& verificação = exigir<Verificacao>(alvo, "clique");
        focar(verificação);
        executarAto([&] { marcar(verificação, !verificação.marcada); });
    } else if (std::holds_alternative<ItemMenu*>(controle)) {
        const auto& item = exigir<ItemMenu>(alvo, "clique");
        if (item.abreSubmenu) throw AtoRecusado{alvo.nomeCompleto() + " só abre um submenu"};
        executarAto(item.aoClicar);
    } else {
        auto& botão = exigir<Botao>(alvo, "clique");
        focar(botão);
        executarAto(botão.aoClicar);
    }
}

void escolher(const Alvo& alvo, std::string_view texto) {
    deixarControle();
    auto& lista = exigir<Lista>(alvo, "escolha");
    const int índice = índiceDoItem(lista, texto);
    if (índice < 0) throw AtoRecusado{alvo.nomeCompleto() + " não tem o item \"" + std::string{texto} + "\""};
    focar(lista);
    executarAto([&] { escolherItem(lista, índice); });
}

void digitar(const Alvo& alvo, std::string texto) {
    // Saved, it would be a line that no reader takes.
    if (texto.size() > maiorLinha) throw AtoRecusado{alvo.nomeCompleto() + " não admite um texto tão longo"};
    if (!listaDigitada || listaDigitada->elemento.endereço() != alvo.elemento.endereço()) deixarControle();
    if (std::holds_alternative<Lista*>(alvo.elemento.controle)) {
        auto& lista = exigir<Lista>(alvo, "digitação");
        if (!lista.admiteDigitação) throw AtoRecusado{alvo.nomeCompleto() + " não admite digitação"};
        focar(lista);
        if (lista.aoConfirmar) listaDigitada = alvo;
        executarAto([&] { definirTexto(lista, std::move(texto)); });
        return;
    }
    auto& caixa = exigir<CaixaTexto>(alvo, "digitação");
    focar(caixa);
    executarAto([&] { definirTexto(caixa, std::move(texto)); });
}

bool teclar(const Alvo& alvo, int tecla) {
    deixarControle();
    auto& caixa = exigir<CaixaTexto>(alvo, "digitação");
    focar(caixa);
    bool usada = false;
    if (caixa.aoTeclar) executarAto([&] { usada = caixa.aoTeclar(tecla); });
    return usada;
}

void rolar(const Alvo& alvo, int valor) {
    deixarControle();
    auto& rolagem = exigir<Rolagem>(alvo, "rolagem");
    exigirValor(alvo, rolagem, valor);
    focar(rolagem);
    executarAto([&] { definirValor(rolagem, valor); });
}

void arrastar(const Alvo& alvo, int valor) {
    if (!polegar || polegar->alvo.elemento.endereço() != alvo.elemento.endereço()) deixarControle();
    auto& rolagem = exigir<Rolagem>(alvo, "rolagem");
    exigirValor(alvo, rolagem, valor);
    focar(rolagem);
    if (!polegar) polegar = Polegar{alvo, &rolagem, rolagem.valor};
    if (rolagem.valor == valor) return;
    rolagem.valor = valor;
    if (rolagem.aoRolar) executarAto(rolagem.aoRolar);
}

bool háTextoPorConfirmar() { return listaDigitada.has_value(); }

void confirmar() {
    const auto alvo = std::exchange(listaDigitada, std::nullopt);
    if (alvo && aindaExiste(*alvo)) executarAto(std::get<Lista*>(alvo->elemento.controle)->aoConfirmar);
}

void soltar() {
    if (!polegar) return;
    const auto solto = *std::exchange(polegar, std::nullopt);
    if (!aindaExiste(solto.alvo)) return;
    if (solto.rolagem->valor != solto.valorInicial && solto.rolagem->aoMudar)
        executarAto(solto.rolagem->aoMudar);
}

void irParaCélula(const Alvo& alvo, int linha, int coluna) {
    deixarControle();
    const auto planilha = exigirPlanilha(alvo, linha, coluna);
    executarAto([&] {
        varenta::irParaCélula(planilha, linha, coluna);
        receberFoco(planilha);
    });
}

void preencherCélula(const Alvo& alvo, int linha, int coluna, std::string texto) {
    deixarControle();
    const auto planilha = exigirPlanilha(alvo, linha, coluna);
    // One operation: where going to the cell fails, nothing is typed into the one before.
    executarAto([&] {
        varenta::irParaCélula(planilha, linha, coluna);
        receberFoco(planilha);
        const int primeiraTecla = texto.empty() ? teclaEnter : static_cast<unsigned char>(texto[0]);
        if (primeiraTecla != teclaEnter && varenta::teclar(planilha, primeiraTecla)) return;
        definirTexto(planilha.entrada, std::move(texto));
        varenta::teclar(planilha, teclaEnter);
    });
}

void colar(const Alvo& alvo, std::string_view texto) {
    deixarControle();
    const auto& grade = exigir<Grade>(alvo, "entrada");
    const auto planilha = exigirPlanilha(alvo, grade.linhaAtual, grade.colunaAtual);
    executarAto([&] { varenta::colar(planilha, separarBloco(texto)); });
}

void moverMouse(const Alvo& alvo, double x, double y) {
    soltar();
    auto& desenho = exigir<Desenho>(alvo, "movimento do mouse em coordenadas");
    if (desenho.aoMoverMouse) executarAto([&] { desenho.aoMoverMouse(x, y); });
}

void moverMouse(TelaBase& tela) {
    soltar();
    exigirTela(tela);
    if (tela.eventos().aoMoverMouse) executarAto(tela.eventos().aoMoverMouse);
}

void pedirAjuda(TelaBase& tela) {
    soltar();
    exigirTela(tela);
    executarAto([&] {
        if (const int tópico = tela.eventos().tópicoDaAjuda)
            plataforma::ajuda(tópico);
        else
            mostrarÍndiceDaAjuda();
    });
}

void fechar(TelaBase& tela) {
    deixarControle();
    exigirTela(tela);
    executarAto([&] {
        if (tela.eventos().aoFechar)
            tela.eventos().aoFechar();
        else
            tela.descarregar();
    });
}

} // namespace atos
} // namespace varenta
