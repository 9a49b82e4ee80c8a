#pragma once

#include <string>
#include <string_view>

/// Text to number, number to text and the few roundings that all screens share. Nothing here looks at the
/// machine's locale: the decimal sign is always the point.
namespace varenta {

/// The number at the start of `texto`: blanks (skipped), a sign, digits, a point, an exponent; the longest
/// run of these that makes a number. 0 where there is none. Never takes a comma, hexadecimal forms, "inf" or
/// "nan". Raises "Estouro" where the number grows past the largest double.
double lerPrefixo(std::string_view texto);

/// The number that the whole of `texto` is, surrounded by blanks at most, in the forms of `lerPrefixo`.
/// Raises "Tipos incompatíveis" for anything else, the empty text included, and "Estouro" past the largest
/// double.
double lerEstrito(std::string_view texto);

/// Whether `lerEstrito` takes the text.
bool éNumérico(std::string_view texto);

/// Writes `valor` by a pattern of '#', '0' and one '.': '0' is a digit that always stands, '#' one that
/// stands only when significant. The exact binary value is rounded; only an exact tie goes away from zero.
/// A negative value that rounds to zero has no sign. Raises "Estouro" where the value is not finite.
std::string Format(double valor, std::string_view padrão);

/// Plain number to text: up to 15 significant digits, no trailing zeros, "0.75" with its zero.
/// Raises "Estouro" where the value is not finite.
std::string paraTexto(double valor);

/// The floor of `x`.
double Int(double x);

/// `x` as a whole number, half to even. Raises "Estouro" outside the range of a 32-bit whole number.
int paraInteiro(double x);

/// `x` rounded to single precision. Raises "Estouro" where it grows past the largest float.
float simples(double x);

/// `a` / `b`. Raises "Divisão por zero" for a value other than 0 over 0, "Estouro" for 0 / 0 and for a
/// quotient past the largest double.
double dividir(double a, double b);

/// `x` itself. Raises "Estouro" where it is not finite.
double finito(double x);

} // namespace varenta
