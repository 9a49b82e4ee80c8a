#include "comum/numeros.h"

#include "comum/erro_execucao.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

namespace varenta {
namespace {

bool éEspaço(char c) { return c == ' ' || c == '\t'; }
bool éDígito(char c) { return c >= '0' && c <= '9'; }

struct Lido {
    double valor;
    /// Past the largest double.
    bool estoura;
    std::string_view resto;

    bool éTudo() const { return std::ranges::all_of(resto, éEspaço); }
};

/// Whether a decimal numeral that no double holds is too large for one (and not too small): the place of its
/// first significant digit, counted from the point, plus its exponent tells.
bool éGrandeDemais(std::string_view numeral) {
    const auto e = numeral.find_first_of("eE");
    const auto mantissa = numeral.substr(0, e);
    const auto ponto = std::min(mantissa.find('.'), mantissa.size());
    const auto primeiro = mantissa.find_first_of("123456789");
    const auto casa = static_cast<double>(ponto) - static_cast<double>(primeiro);
    if (e == std::string_view::npos) return casa > 0;
    const bool negativo = numeral[e + 1] == '-';
    // An exponent of any length: as a double it is at worst infinite, which keeps the sign right.
    double expoente = 0;
    for (const char c : numeral.substr(e + 1))
        if (éDígito(c)) expoente = expoente * 10 + (c - '0');
    return casa + (negativo ? -expoente : expoente) > 0;
}

std::optional<Lido> lerNumeral(std::string_view texto) {
    std::size_t p = 0;
    while (p < texto.size() && éEspaço(texto[p])) ++p;
    bool negativo = false;
    if (p < texto.size() && (texto[p] == '+' || texto[p] == '-')) negativo = texto[p++] == '-';

    const std::size_t início = p;
    std::size_t dígitos = 0;
    while (p < texto.size() && éDígito(texto[p])) ++p, ++dígitos;
    if (p < texto.size() && texto[p] == '.') {
        ++p;
        while (p < texto.size() && éDígito(texto[p])) ++p, ++dígitos;
    }
    if (dígitos == 0) return std::nullopt;
    if (p < texto.size() && (texto[p] == 'e' || texto[p] == 'E')) {
        std::size_t f = p + 1;
        if (f < texto.size() && (texto[f] == '+' || texto[f] == '-')) ++f;
        if (f < texto.size() && éDígito(texto[f])) {
            while (f < texto.size() && éDígito(texto[f])) ++f;
            p = f;
        }
    }

    const std::string_view numeral = texto.substr(início, p - início);
    double valor = 0;
    const auto [fim, erro] = std::from_chars(numeral.data(), numeral.data() + numeral.size(), valor);
    const bool foraDaFaixa = erro == std::errc::result_out_of_range;
    if (foraDaFaixa) valor = 0;
    return Lido{negativo ? -valor : valor, foraDaFaixa && éGrandeDemais(numeral), texto.substr(p)};
}

double exigirValor(const Lido& lido) {
    if (lido.estoura) throw ErroExecucao{estouro};
    return lido.valor;
}

} // namespace

double lerPrefixo(std::string_view texto) {
    const auto lido = lerNumeral(texto);
    return lido ? exigirValor(*lido) : 0;
}

double lerEstrito(std::string_view texto) {
    const auto lido = lerNumeral(texto);
    if (!lido) throw ErroExecucao{tiposIncompatíveis};
    const double valor = exigirValor(*lido);
    if (!lido->éTudo()) throw ErroExecucao{tiposIncompatíveis};
    return valor;
}

bool éNumérico(std::string_view texto) {
    // Asked of every cell of a grid, most of them empty: without raising anything.
    const auto lido = lerNumeral(texto);
    return lido && !lido->estoura && lido->éTudo();
}

std::string Format(double valor, std::string_view padrão) {
    finito(valor);
    const auto ponto = padrão.find('.');
    const auto inteira = padrão.substr(0, ponto);
    const auto casas = ponto == std::string_view::npos ? 0 : static_cast<int>(padrão.size() - ponto - 1);
    std::size_t mínimo = 0;
    for (const char c : inteira) mínimo += c == '0';

    double módulo = std::fabs(valor);
    // std::to_chars rounds the exact binary value, an exact tie to even. A tie at `casas` decimals is a value
    // with `casas` + 1 binary places of which the last is set; there the next larger double rounds upwards.
    const double escalado = std::ldexp(módulo, casas + 1);
    if (std::isfinite(escalado) && std::floor(escalado) == escalado && std::fmod(escalado, 2) == 1)
        módulo = std::nextafter(módulo, std::numeric_limits<double>::infinity());

    std::array<char, 400> dígitos;
    const auto fim = std::to_chars(dígitos.data(), dígitos.data() + dígitos.size(), módulo,
                                   std::chars_format::fixed, casas)
                         .ptr;
    std::string texto(dígitos.data(), fim);
    const bool zero = texto.find_first_not_of("0.") == std::string::npos;

    auto largura = casas > 0 ? texto.find('.') : texto.size();
    if (texto[0] == '0' && mínimo == 0) {
        texto.erase(0, 1);
        --largura;
    }
    if (largura < mínimo) texto.insert(0, mínimo - largura, '0');
    if (valor < 0 && !zero) texto.insert(0, 1, '-');
    return texto;
}

std::string paraTexto(double valor) {
    finito(valor);
    if (valor == 0) return "0";
    std::array<char, 40> dígitos;
    const auto fim =
        std::to_chars(dígitos.data(), dígitos.data() + dígitos.size(), valor, std::chars_format::general, 15)
            .ptr;
    std::string texto(dígitos.data(), fim);
    if (const auto e = texto.find('e'); e != std::string::npos) texto[e] = 'E';
    return texto;
}

double Int(double x) { return std::floor(x); }

int paraInteiro(double x) {
    // Next to 1.5 x 2^52 doubles are whole numbers, so that the sum rounds x, half to even; without a call of
    // the library, since maps round at every cell. A larger x stays outside the range.
    constexpr double inteiros = 0x1.8p52;
    const double inteiro = (finito(x) + inteiros) - inteiros;
    if (inteiro < std::numeric_limits<int>::min() || inteiro > std::numeric_limits<int>::max())
        throw ErroExecucao{estouro};
    return static_cast<int>(inteiro);
}

float simples(double x) {
    const auto valor = static_cast<float>(finito(x));
    if (!std::isfinite(valor)) throw ErroExecucao{estouro};
    return valor;
}

double dividir(double a, double b) {
    if (b == 0) throw ErroExecucao{a == 0 ? estouro : divisãoPorZero};
    return finito(a / b);
}

double finito(double x) {
    if (!std::isfinite(x)) throw ErroExecucao{estouro};
    return x;
}

} // namespace varenta
