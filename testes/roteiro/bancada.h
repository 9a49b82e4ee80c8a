#pragma once

#include "comum/desenho.h"
#include "comum/erro_execucao.h"
#include "comum/numeros.h"
#include "comum/planilha.h"
#include "comum/plataforma.h"
#include "comum/tela.h"
#include "roteiro/interprete.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>
#include <string>
#include <string_view>

/// A screen with a control of every kind, driven by roteiros. Its handlers write into its own controls.
namespace varenta::teste {

void anotar(std::string_view evento);
void mostrarCaminho(const std::optional<std::string>& caminho);
Planilha planilhaDaBancada();

struct RegistroBancada {
    std::string Caption = "Bancada\tde\\teste";

    Rotulo diário;
    Rotulo texto{.texto = "um\r\ndois\t\\três"};
    /// 1 to 3.
    std::array<Rotulo, 4> rótulos;
    Quadro quadro{.texto = "Quadro"};
    Botao botão{.texto = "&Botão", .aoClicar = [] { anotar("botão"); }};
    Botao semAção{.texto = "Sem ação"};
    Botao desabilitado{.aoClicar = [] { anotar("desabilitado"); }, .habilitado = false};
    Botao oculto{.aoClicar = [] { anotar("oculto"); }, .visivel = false};
    Botao avisa{.aoClicar = [] {
        plataforma::mensagem("duas\nlinhas");
        plataforma::avisar("um aviso");
    }};
    Botao falha{.aoClicar = [] { throw ErroExecucao{divisãoPorZero}; }};
    Botao pergunta{.aoClicar = [] { anotar(plataforma::perguntar("Continua?") ? "sim" : "não"); }};
    Botao abre{.aoClicar = [] { mostrarCaminho(plataforma::arquivoParaAbrir({.filtro = "Texto|*.TXT"})); }};
    Botao salva{.aoClicar = [] {
        mostrarCaminho(plataforma::arquivoParaSalvar({.filtro = "Texto|*.TXT", .extensãoPadrão = "TXT"}));
    }};
    Botao demora{.aoClicar = [] { plataforma::progresso(0.25, "um passo\tlongo"); }};
    ItemMenu item{.texto = "&Item", .aoClicar = [] { anotar("item"); }};
    ItemMenu submenu{.texto = "&Submenu", .abreSubmenu = true};
    CaixaTexto caixa{.texto = "abc", .aoMudar = [] { anotar("caixa"); }};
    Lista lista{.itens = {"um", "dois e meio", "a\tb"}, .texto = "um", .aoClicar = [] { anotar("lista"); }};
    Lista livre{.itens = {"1.5"}, .admiteDigitação = true, .aoMudar = [] { anotar("livre"); }};
    Opcao opçãoA{.texto = "Opção A", .grupo = "g", .marcada = true, .aoClicar = [] { anotar("A"); }};
    Opcao opçãoB{.texto = "Opção B", .grupo = "g", .aoClicar = [] { anotar("B"); }};
    Verificacao verificação{.texto = "Verificação", .aoClicar = [] { anotar("verificação"); }};
    Rolagem rolagem{.valor = 5,
                    .mínimo = -10,
                    .máximo = 10,
                    .aoMudar = [] { anotar("Change"); },
                    .aoRolar = [] { anotar("Scroll"); }};
    Rolagem rolagemQuePergunta{.máximo = 10, .aoMudar = [] { plataforma::perguntar("Muda?"); }};
    Barra barra{.valor = 40};
    Desenho desenho{.aoMoverMouse = [](double x, double y) {
        anotar(Format(x, "0.000000") + " " + Format(y, "0.000000"));
    }};
    Grade grade{.linhas = 3,
                .colunas = 3,
                .células = {"No", "d", "i", "1", "", "", "2", "", ""},
                .planilha = planilhaDaBancada};
    Grade tabela{.células = {"a", "b\tc", "d\ne", "f"}};
    CaixaTexto entrada;
    Rotulo nomeDaCélula;

    template <class Visita>
    void percorrer(Visita&& visita) {
        visita("diário", diário);
        visita("texto", texto);
        visita("rótulos", rótulos, 1);
        visita("quadro", quadro);
        visita("botão", botão);
        visita("semAção", semAção);
        visita("desabilitado", desabilitado);
        visita("oculto", oculto);
        visita("avisa", avisa);
        visita("falha", falha);
        visita("pergunta", pergunta);
        visita("abre", abre);
        visita("salva", salva);
        visita("demora", demora);
        visita("item", item);
        visita("submenu", submenu);
        visita("caixa", caixa);
        visita("lista", lista);
        visita("livre", livre);
        visita("opçãoA", opçãoA);
        visita("opçãoB", opçãoB);
        visita("verificação", verificação);
        visita("rolagem", rolagem);
        visita("rolagemQuePergunta", rolagemQuePergunta);
        visita("barra", barra);
        visita("desenho", desenho);
        visita("grade", grade);
        visita("tabela", tabela);
        visita("entrada", entrada);
        visita("nomeDaCélula", nomeDaCélula);
    }
};

inline Tela<RegistroBancada> bancada{"Bancada", {.aoMoverMouse = [] { anotar("mouse na tela"); }}};

inline void anotar(std::string_view evento) {
    auto& diário = bancada->diário.texto;
    if (!diário.empty()) diário += ", ";
    diário += evento;
}

inline void mostrarCaminho(const std::optional<std::string>& caminho) {
    anotar(caminho ? "[" + *caminho + "]" : "cancelado");
}

inline Planilha planilhaDaBancada() {
    auto& b = *bancada.operator->();
    return {b.grade, b.entrada, b.nomeDaCélula,
            nullptr, true,      [](int) -> std::string_view { return "0.00"; }};
}

/// How a roteiro ended and what it printed.
struct Execução {
    int desfecho;
    std::string saída, erros;
};

inline Execução executar(std::string_view texto) {
    std::ostringstream saída, erros;
    const int desfecho = Interprete{saída, erros}.executarTexto(texto, "caso.roteiro", "pasta");
    return {desfecho, saída.str(), erros.str()};
}

/// What a roteiro without mistakes prints.
inline std::string saídaDe(std::string_view texto) {
    const auto execução = executar(texto);
    EXPECT_EQ(execução.desfecho, Interprete::concluído);
    EXPECT_EQ(execução.erros, "");
    return execução.saída;
}

/// What a roteiro that stops at a mistake says on the error stream.
inline std::string erroDe(std::string_view texto) {
    const auto execução = executar(texto);
    EXPECT_EQ(execução.desfecho, Interprete::erroNoRoteiro);
    return execução.erros;
}

/// The bench open and as new.
class ComBancada : public testing::Test {
  protected:
    void SetUp() override { bancada.mostrar(); }
    void TearDown() override { bancada.descarregar(); }
};

} // namespace varenta::teste
