#include "roteiro/palavras.h"

#include "comum/numeros.h"
#include "roteiro/erros.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace varenta {
namespace {

constexpr std::string_view brancos = " \t";

/// Takes the quoted word that `resto` begins with off it.
std::string tirarPalavraEntreAspas(std::string_view& resto) {
    std::string palavra;
    for (resto.remove_prefix(1);; resto.remove_prefix(1)) {
        const auto aspa = resto.find('"');
        if (aspa == std::string_view::npos) throw ErroDeRoteiro{"aspas sem fechamento"};
        palavra += resto.substr(0, aspa);
        resto.remove_prefix(aspa + 1);
        if (!resto.starts_with('"')) break;
        palavra += '"';
    }
    if (!resto.empty() && brancos.find(resto[0]) == std::string_view::npos)
        throw ErroDeRoteiro{"texto colado às aspas de fechamento"};
    return palavra;
}

} // namespace

std::vector<std::string> separarPalavras(std::string_view linha) {
    std::vector<std::string> palavras;
    for (;;) {
        linha.remove_prefix(std::min(linha.find_first_not_of(brancos), linha.size()));
        if (linha.empty() || (palavras.empty() && linha[0] == '#')) return palavras;
        if (linha[0] == '"') {
            palavras.push_back(tirarPalavraEntreAspas(linha));
        } else {
            palavras.emplace_back(linha.substr(0, linha.find_first_of(brancos)));
            linha.remove_prefix(palavras.back().size());
        }
    }
}

int lerInteiro(std::string_view palavra) {
    int valor = 0;
    const auto* const fimDaPalavra = palavra.data() + palavra.size();
    const auto [fim, erro] = std::from_chars(palavra.data(), fimDaPalavra, valor);
    if (erro == std::errc::invalid_argument || fim != fimDaPalavra)
        throw ErroDeRoteiro{entreAspas(palavra) + " não é um número inteiro"};
    if (erro == std::errc::result_out_of_range)
        throw ErroDeRoteiro{"o número " + std::string{palavra} + " é grande demais"};
    return valor;
}

double lerNúmero(std::string_view palavra) {
    if (!éNumérico(palavra)) throw ErroDeRoteiro{entreAspas(palavra) + " não é um número"};
    return lerEstrito(palavra);
}

std::string entreAspas(std::string_view palavra) { return '"' + std::string{palavra} + '"'; }

} // namespace varenta
