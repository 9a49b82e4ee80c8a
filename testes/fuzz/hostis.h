#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Files that nobody should be made to open, made from one that is good.
namespace varenta::fuzz {

struct Hostil {
    std::string nome;
    std::string bytes;
};

/// The file cut at each of its bytes, the empty file included.
std::vector<Hostil> cortes(std::string_view bom);

/// Each line of the header, and the first and the last of all cells, with each of the texts that no number
/// should be made from in its place.
std::vector<Hostil> trocas(std::string_view bom);

/// Bytes that are no text, other encodings, NULs, lines of 1 MiB, lines without end.
std::vector<Hostil> estranhos(std::string_view bom);

} // namespace varenta::fuzz
