#include "comum/texto_tabela.h"

#include "comum/arquivos_de_dados.h"
#include "comum/numeros.h"

#include <algorithm>

namespace varenta {
namespace {

std::string comoEstá(std::string_view texto) { return std::string{texto}; }

std::string célulaCsv(std::string_view texto) {
    auto célula = comVírgula(texto);
    if (célula.find_first_of(";\"\r\n") == std::string::npos) return célula;
    std::string entreAspas = "\"";
    for (const char c : célula) {
        if (c == '"') entreAspas += c;
        entreAspas += c;
    }
    entreAspas += '"';
    return entreAspas;
}

/// Without the end of its last line.
std::string_view semFimDeLinha(std::string_view texto) {
    if (texto.ends_with('\n')) texto.remove_suffix(1);
    if (texto.ends_with('\r')) texto.remove_suffix(1);
    return texto;
}

} // namespace

const FormatoDeTabela formatoDeCópia{"", "\t", "\n", comVírgula};
const FormatoDeTabela formatoCsv{"\xEF\xBB\xBF", ";", "\r\n", célulaCsv};
const FormatoDeTabela formatoDeTexto{"", "\t", "\r\n", comoEstá};

std::string comPonto(std::string_view texto) {
    std::string novo{texto};
    const auto sinal = novo.find_first_of(",.");
    if (sinal != std::string::npos && sinal == novo.find_last_of(",.")) novo[sinal] = '.';
    return novo;
}

std::string comVírgula(std::string_view texto) {
    std::string novo{texto};
    if (éNumérico(texto)) std::ranges::replace(novo, '.', ',');
    return novo;
}

void acrescentarLinha(std::string& texto, std::span<const std::string> células,
                      const FormatoDeTabela& formato) {
    std::string_view separador;
    for (const auto& célula : células) {
        texto += separador;
        texto += formato.célula(célula);
        separador = formato.separador;
    }
    texto += formato.fimDeLinha;
}

Bloco separarBloco(std::string_view texto) {
    const char separador = texto.find('\t') == std::string_view::npos ? ';' : '\t';
    Bloco bloco;
    std::size_t colunas = 0;
    for (const auto& linha : separarColunas(semFimDeLinha(texto), '\n')) {
        auto& células = bloco.emplace_back(separarColunas(semFimDeLinha(linha), separador));
        for (auto& célula : células) célula = comPonto(célula);
        colunas = std::max(colunas, células.size());
    }
    for (auto& células : bloco) células.resize(colunas);
    return bloco;
}

bool éBloco(std::string_view texto) {
    return semFimDeLinha(texto).find_first_of("\t;\n") != std::string_view::npos;
}

} // namespace varenta
