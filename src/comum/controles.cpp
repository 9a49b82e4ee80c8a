#include "comum/controles.h"

#include "comum/erro_execucao.h"

#include <algorithm>
#include <concepts>

namespace varenta {

std::size_t Grade::posição(int linha, int coluna) const {
    exigirÍndice(linha >= 0 && linha < linhas && coluna >= 0 && coluna < colunas);
    return static_cast<std::size_t>(linha) * static_cast<std::size_t>(colunas) +
           static_cast<std::size_t>(coluna);
}

const std::string& Grade::célula(int linha, int coluna) const { return células[posição(linha, coluna)]; }

void Grade::escrever(int linha, int coluna, std::string texto) {
    células[posição(linha, coluna)] = std::move(texto);
    versão = novaVersão();
}

void Grade::dimensionar(int novasLinhas, int novasColunas) {
    if (novasLinhas < 1 || novasColunas < 1) throw ErroExecucao{valorDePropriedadeInválido};
    if (std::int64_t{novasLinhas} * novasColunas > maisCélulas) throw ErroExecucao{memóriaInsuficiente};
    const auto lugar = [](int linha, int coluna, int largura) {
        return static_cast<std::size_t>(linha) * static_cast<std::size_t>(largura) +
               static_cast<std::size_t>(coluna);
    };
    // All memory is taken before anything changes: where there is none, the grid stays as it was.
    std::vector<std::string> novas(lugar(novasLinhas, 0, novasColunas));
    alinhamentos.resize(static_cast<std::size_t>(novasColunas), Alinhamento::esquerda);
    for (int l = 0; l < std::min(linhas, novasLinhas); ++l)
        for (int c = 0; c < std::min(colunas, novasColunas); ++c)
            novas[lugar(l, c, novasColunas)] = std::move(células[lugar(l, c, colunas)]);
    células = std::move(novas);
    linhas = novasLinhas;
    colunas = novasColunas;
    linhaAtual = std::min(linhaAtual, linhas - 1);
    colunaAtual = std::min(colunaAtual, colunas - 1);
    versão = novaVersão();
}

void Grade::formato(std::string_view formato) {
    std::vector<std::string> textos;
    std::vector<Alinhamento> lados;
    for (bool última = false; !última;) {
        const auto barra = formato.find('|');
        última = barra == std::string_view::npos;
        auto texto = formato.substr(0, barra);
        formato = última ? "" : formato.substr(barra + 1);
        auto lado = Alinhamento::esquerda;
        if (texto.starts_with('^') || texto.starts_with('>')) {
            lado = texto[0] == '^' ? Alinhamento::centro : Alinhamento::direita;
            texto.remove_prefix(1);
        }
        const auto início = texto.find_first_not_of(' ');
        const auto fim = texto.find_last_not_of(' ');
        textos.emplace_back(início == std::string_view::npos ? "" : texto.substr(início, fim - início + 1));
        lados.push_back(lado);
    }
    dimensionar(linhas, static_cast<int>(textos.size()));
    alinhamentos = std::move(lados);
    for (int c = 0; c < colunas; ++c) escrever(0, c, std::move(textos[static_cast<std::size_t>(c)]));
}

std::string Elemento::nomeCompleto() const {
    return índice ? nome + "(" + std::to_string(*índice) + ")" : nome;
}

const void* Elemento::endereço() const {
    return std::visit([](auto* c) -> const void* { return c; }, controle);
}

bool estáVisível(const Elemento& elemento) {
    return std::visit([](const auto* c) { return c->visivel; }, elemento.controle);
}

bool estáHabilitado(const Elemento& elemento) {
    return std::visit(
        [](const auto* c) {
            using Tipo = std::remove_cvref_t<decltype(*c)>;
            if constexpr (std::same_as<Tipo, Botao>)
                return c->habilitado && c->aoClicar;
            else if constexpr (std::same_as<Tipo, ItemMenu>)
                return c->habilitado && (c->aoClicar || c->abreSubmenu);
            else
                return c->habilitado;
        },
        elemento.controle);
}

} // namespace varenta
