#include "fuzz/formatos.h"

#include "comum/erro_execucao.h"
#include "comum/numeros.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>

/// The two conversions of texts to numbers, and back.
namespace varenta::fuzz {
namespace {

struct Convertido {
    double valor = 0;
    std::string erro;
};

Convertido converter(double (*ler)(std::string_view), std::string_view texto) {
    try {
        return {ler(texto), ""};
    } catch (const ErroExecucao& e) {
        return {0, e.what()};
    }
}

bool mesmosBits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

void conferir(const Convertido& convertido, double valor, const char* erro) {
    exigir(convertido.erro == erro, "another error than \"" + std::string{erro} + '"');
    exigir(std::isfinite(convertido.valor), "a number that isn't finite");
    exigir(*erro || mesmosBits(convertido.valor, valor), "another number");
}

/// What is written is read back: the same text again, and within the digits that it has the same number.
void conferirVolta(double valor) {
    const auto texto = paraTexto(valor);
    const auto lido = númeroDe(texto);
    // Fifteen digits of a number just below the largest one may be a larger one.
    if (!lido) return exigir(std::abs(valor) > 1.797693134862315e308, "a number's text isn't one");
    exigir(std::abs(*lido - valor) <= std::abs(valor) * 1e-14 + 1e-320, "a text far from its number");
    exigir(paraTexto(lerEstrito(texto)) == texto, "a number's text isn't read back");
    for (const auto* padrão : {"0.000", "##0.00", "0", "#.0"}) {
        const auto formatado = Format(valor, padrão);
        exigir(Format(lerPrefixo(formatado), padrão) == formatado, "a formatted number isn't read back");
    }
    exigir(mostra(Format(valor, "0.000"), valor, 3), "a formatted number is far from the number");
}

} // namespace

void experimentarPrefixo(std::string_view bytes, bool) {
    const auto numeral = numeralNoInício(bytes);
    const auto convertido = converter(lerPrefixo, bytes);
    if (!numeral) return conferir(convertido, 0, "");
    conferir(convertido, numeral->valor, numeral->estoura ? estouro : "");
    if (!numeral->estoura) conferirVolta(convertido.valor);
}

void experimentarEstrito(std::string_view bytes, bool) {
    const auto numeral = numeralNoInício(bytes);
    const auto convertido = converter(lerEstrito, bytes);
    const auto número = númeroDe(bytes);
    exigir(éNumérico(bytes) == número.has_value(), "the check and the conversion disagree");
    if (número) {
        conferir(convertido, *número, "");
        exigir(mesmosBits(lerPrefixo(bytes), *número), "the two conversions disagree");
        return conferirVolta(*número);
    }
    conferir(convertido, 0, numeral && numeral->estoura ? estouro : tiposIncompatíveis);
}

} // namespace varenta::fuzz
