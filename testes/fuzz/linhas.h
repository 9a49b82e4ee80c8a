#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varenta::fuzz {

using Linhas = std::vector<std::string>;
/// The lines of a text. LF and CR LF both end one; the last may lack its end.
Linhas linhasDe(std::string_view texto);

} // namespace varenta::fuzz
