#include "roteiro/apresentacao.h"

#include "comum/numeros.h"
#include "roteiro/erros.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <functional>
#include <type_traits>
#include <variant>

namespace varenta {
namespace {

/// The shortest form that reads back to the same double.
std::string número(double valor) {
    std::array<char, 32> dígitos;
    const auto fim = std::to_chars(dígitos.data(), dígitos.data() + dígitos.size(), valor).ptr;
    return {dígitos.data(), fim};
}

std::string cor(Cor valor) {
    constexpr std::string_view hexadecimais = "0123456789abcdef";
    std::string texto = "#";
    for (const unsigned componente : {valor & 0xFF, valor >> 8 & 0xFF, valor >> 16 & 0xFF}) {
        texto += hexadecimais[componente >> 4];
        texto += hexadecimais[componente & 0xF];
    }
    return texto;
}

std::string apresentarTraço(const Linha& t) {
    return "linha " + número(t.x1) + ' ' + número(t.y1) + ' ' + número(t.x2) + ' ' + número(t.y2) + ' ' +
           cor(t.cor) + ' ' + std::to_string(t.largura) + '\n';
}

std::string apresentarTraço(const CaixaCheia& t) {
    return "caixa " + número(t.x1) + ' ' + número(t.y1) + ' ' + número(t.x2) + ' ' + número(t.y2) + ' ' +
           cor(t.cor) + '\n';
}

std::string apresentarTraço(const Mosaico& t) {
    std::string texto;
    for (std::size_t n = 0; n < t.cores.size(); ++n) texto += apresentarTraço(t.caixa(n));
    return texto;
}

std::string apresentarTraço(const Arco& t) {
    return "arco " + número(t.cx) + ' ' + número(t.cy) + ' ' + número(t.raio) + ' ' + cor(t.cor) + ' ' +
           número(t.início) + ' ' + número(t.fim) + ' ' + std::to_string(t.largura) +
           (t.preenchido ? " sim\n" : " não\n");
}

struct Contagem {
    std::size_t linhas = 0, caixas = 0, arcos = 0;

    void operator()(const Linha&) { ++linhas; }
    void operator()(const CaixaCheia&) { ++caixas; }
    void operator()(const Mosaico& mosaico) { caixas += mosaico.cores.size(); }
    void operator()(const Arco&) { ++arcos; }
};

std::string resumirDesenho(const std::string& nome, const Desenho& desenho) {
    Contagem contagem;
    for (const auto& traço : desenho.traços) std::visit(std::ref(contagem), traço);
    return nome + ": " + std::to_string(contagem.linhas) + " linhas, " + std::to_string(contagem.caixas) +
           " caixas, " + std::to_string(contagem.arcos) + " arcos\n";
}

std::string apresentarGrade(const std::string& nome, const Grade& grade) {
    auto texto = nome + ": " + std::to_string(grade.linhas) + " linhas x " + std::to_string(grade.colunas) +
                 " colunas\n";
    for (int l = 0; l < grade.linhas; ++l)
        for (int c = 0; c < grade.colunas; ++c)
            texto += escapar(grade.célula(l, c)) + (c + 1 < grade.colunas ? '\t' : '\n');
    return texto;
}

const char* nomeDoPonteiro(Ponteiro ponteiro) {
    switch (ponteiro) {
    case Ponteiro::cruz:
        return "cruz";
    case Ponteiro::ampulheta:
        return "ampulheta";
    case Ponteiro::padrão:
        break;
    }
    return "padrão";
}

} // namespace

std::string escapar(std::string_view texto) {
    std::string escapado;
    escapado.reserve(texto.size());
    for (const char c : texto) {
        switch (c) {
        case '\n':
            escapado += "\\n";
            break;
        case '\r':
            escapado += "\\r";
            break;
        case '\t':
            escapado += "\\t";
            break;
        case '\\':
            escapado += "\\\\";
            break;
        default:
            escapado += c;
        }
    }
    return escapado;
}

std::string apresentarTexto(std::string_view nome, std::string_view texto) {
    return std::string{nome} + " = " + escapar(texto) + '\n';
}

std::string apresentarResumo(const Alvo& alvo) {
    const auto nome = alvo.nomeCompleto();
    return std::visit(
        [&](const auto* controle) {
            using Tipo = std::remove_cvref_t<decltype(*controle)>;
            if constexpr (std::is_same_v<Tipo, Desenho>)
                return resumirDesenho(nome, *controle);
            else if constexpr (std::is_same_v<Tipo, Grade>)
                return apresentarGrade(nome, *controle);
            else if constexpr (std::is_same_v<Tipo, Rolagem> || std::is_same_v<Tipo, Barra>)
                return apresentarTexto(nome, paraTexto(controle->valor));
            else
                return apresentarTexto(nome, controle->texto);
        },
        alvo.elemento.controle);
}

std::string apresentarPorInteiro(const Alvo& alvo) {
    auto texto = apresentarResumo(alvo);
    if (const auto* const* desenho = std::get_if<Desenho*>(&alvo.elemento.controle))
        for (const auto& traço : (*desenho)->traços)
            texto += std::visit([](const auto& t) { return apresentarTraço(t); }, traço);
    return texto;
}

std::string apresentarItens(const Alvo& alvo) {
    const auto* const* lista = std::get_if<Lista*>(&alvo.elemento.controle);
    if (!lista) throw ErroDeRoteiro{alvo.nomeCompleto() + " não é uma lista"};
    std::string texto = alvo.nomeCompleto() + ".itens = ";
    const auto& itens = (*lista)->itens;
    for (std::size_t i = 0; i < itens.size(); ++i) {
        if (i > 0) texto += '\t';
        texto += escapar(itens[i]);
    }
    return texto + '\n';
}

std::string apresentarEstado(const Alvo& alvo) {
    const auto& elemento = alvo.elemento;
    std::string texto = alvo.nomeCompleto() + ": " + (estáVisível(elemento) ? "visível" : "oculto") +
                        (estáHabilitado(elemento) ? " habilitado" : " desabilitado");
    std::visit(
        [&](const auto* controle) {
            using Tipo = std::remove_cvref_t<decltype(*controle)>;
            if constexpr (std::is_same_v<Tipo, Desenho>)
                texto += std::string{' '} + nomeDoPonteiro(alvo.tela->ponteiro);
            else if constexpr (std::is_same_v<Tipo, Opcao> || std::is_same_v<Tipo, Verificacao>)
                texto += controle->marcada ? " marcado" : " desmarcado";
        },
        elemento.controle);
    return texto + '\n';
}

} // namespace varenta
