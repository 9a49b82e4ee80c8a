#include "macaco/acaso.h"

#include "apoio/estado.h"
#include "comum/arquivo_texto.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace varenta::teste {

Acaso::Acaso(unsigned semente) : sorteio_{semente} {
    std::filesystem::copy(EXEMPLOS, pasta_.caminho("e"), std::filesystem::copy_options::recursive);
    std::filesystem::create_directory(pasta_.caminho("d"));
    for (const auto& entrada : std::filesystem::directory_iterator{pasta_.caminho("e")})
        if (entrada.path().extension() == ".txt") amostras_.push_back(entrada.path().string());
    std::ranges::sort(amostras_);
    for (const auto& amostra : amostras_) {
        const auto bom = lerTexto(amostra);
        danificar(fuzz::cortes(bom));
        danificar(fuzz::trocas(bom));
    }
    // They hold lines of a mebibyte: those of one example do.
    danificar(fuzz::estranhos(lerTexto(algumDe(amostras_))));
}

/// Some of the many damages, other ones with every seed. Words like "nan" are left out: a caption may repeat
/// what a file holds, or what was typed, and would be taken for a result.
void Acaso::danificar(const std::vector<fuzz::Hostil>& danos) {
    for (int n = 0; n < 3; ++n) {
        const auto& bytes = algumDe(danos).bytes;
        if (nãoÉNúmero(bytes)) continue;
        const auto nome = "d/" + std::to_string(danificadas_.size()) + ".txt";
        danificadas_.push_back(pasta_.gravar(nome, bytes));
    }
}

/// No words like "nan" here either.
std::string Acaso::texto() {
    static constexpr std::array textos{
        "0",   "1",      "2",   "3",     "6",     "12",     "18",      "24",         "30",    "40",
        "60",  "210",    "240", "330",   "360",   "361",    "0.5",     "1.5",        "2.75",  "-1",
        "-6",  "1e3",    "1e9", "1e308", "1e400", "-1e400", "1e-320",  "0x10",       "1,5",   "1.2.3",
        "",    " ",      "abc", "12abc", " 7 ",   "10001",  "5000000", "2147483648", "0.001", "99.9",
        "100", "Ângulo", "\"",  "#",     "N/E",   "TX30",   ".",       "+4"};
    if (umEm(2)) return textos[até(12)];
    return algumDe(textos);
}

std::optional<std::string> Acaso::arquivo() {
    switch (até(10)) {
    case 0:
        return std::nullopt;
    case 1:
        return pasta_.caminho("falta/nenhum.txt");
    case 2:
        return pasta_.caminho("e");
    case 3:
    case 4:
        return pasta_.caminho("novo" + std::to_string(até(4)) + ".txt");
    case 5:
        return algumDe(danificadas_);
    default:
        return algumDe(amostras_);
    }
}

} // namespace varenta::teste
