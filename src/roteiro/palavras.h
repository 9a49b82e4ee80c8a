#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varenta {

/// The words of a line of a roteiro, separated by blanks or tabs. A word that begins with a double quote runs
/// to the next single one: it may hold blanks or be empty, and `""` within it is one quote. A quote further
/// on in a word is a character like any other. A line that is blank, or whose first character other than a
/// blank is '#', has no words. Raises `ErroDeRoteiro` for a quote that isn't closed and for a text that
/// touches a closing quote.
std::vector<std::string> separarPalavras(std::string_view linha);

/// A whole number, as decimal digits with a '-' before them at most. Raises `ErroDeRoteiro` for anything
/// else.
int lerInteiro(std::string_view palavra);

/// A number, as in `lerEstrito`. Raises `ErroDeRoteiro` for anything else.
double lerNúmero(std::string_view palavra);

/// The word between double quotes, for a message that names it.
std::string entreAspas(std::string_view palavra);

} // namespace varenta
