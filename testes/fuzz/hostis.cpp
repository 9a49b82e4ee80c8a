#include "fuzz/hostis.h"

#include "fuzz/linhas.h"

#include <algorithm>
#include <random>

namespace varenta::fuzz {
namespace {

constexpr std::size_t mebi = std::size_t{1} << 20;

const std::vector<std::string> textosHostis = {"",
                                               " ",
                                               "-1",
                                               "0",
                                               "-0",
                                               "1e-400",
                                               "2147483647",
                                               "2147483648",
                                               "4294967297",
                                               "1000000000000",
                                               "1e12",
                                               "10001",
                                               "1e308",
                                               "-1e308",
                                               "1e400",
                                               "-1e400",
                                               "1e99999999999999999999",
                                               "nan",
                                               "NaN(7)",
                                               "inf",
                                               "-Infinity",
                                               "0x10",
                                               "1,,5",
                                               "1,5",
                                               "1.5.2",
                                               "1 2",
                                               "--1",
                                               "+",
                                               ".",
                                               "1e",
                                               "12abc",
                                               "\xD9\xA1\xD9\xA2",
                                               "\xEF\xBC\x91",
                                               std::string(1, '\0'),
                                               std::string("1\0", 2),
                                               "\t",
                                               "1\t2\t3",
                                               "\xFF\xFE",
                                               "%s%n",
                                               std::string(400, '9'),
                                               "0." + std::string(2000, '0') + "1"};

std::string unir(const Linhas& linhas) {
    std::string texto;
    for (const auto& linha : linhas) texto += linha + "\r\n";
    return texto;
}

/// Each byte of an ASCII text with a NUL after or before it.
std::string utf16(std::string_view texto, bool maiorPrimeiro) {
    std::string bytes;
    for (const char c : texto) {
        const char par[] = {c, '\0'};
        bytes.append({par[maiorPrimeiro ? 1 : 0], par[maiorPrimeiro ? 0 : 1]});
    }
    return bytes;
}

std::string aleatórios(std::size_t quantos, unsigned semente) {
    std::mt19937 gerador{semente};
    std::string bytes(quantos, '\0');
    std::ranges::generate(bytes, [&] { return static_cast<char>(gerador() & 0xFF); });
    return bytes;
}

} // namespace

std::vector<Hostil> cortes(std::string_view bom) {
    std::vector<Hostil> hostis;
    for (std::size_t n = 0; n < bom.size(); ++n)
        hostis.push_back({"cut at " + std::to_string(n), std::string{bom.substr(0, n)}});
    return hostis;
}

std::vector<Hostil> trocas(std::string_view bom) {
    const auto linhas = linhasDe(bom);
    std::vector<Hostil> hostis;
    for (std::size_t l = 0; l < linhas.size(); ++l) {
        const auto tabulação = linhas[l].find('\t');
        const bool deDados = tabulação != std::string::npos;
        if (deDados && linhas[l - 1].find('\t') != std::string::npos && l + 1 < linhas.size()) continue;
        for (const auto& texto : textosHostis) {
            auto outras = linhas;
            outras[l] = deDados ? texto + linhas[l].substr(tabulação) : texto;
            hostis.push_back({"line " + std::to_string(l + 1) + " = " + texto.substr(0, 30), unir(outras)});
        }
    }
    return hostis;
}

std::vector<Hostil> estranhos(std::string_view bom) {
    const std::string texto{bom};
    std::vector<Hostil> hostis = {{"line ends alone", std::string(mebi, '\n')},
                                  {"CR alone", std::string(mebi, '\r')},
                                  {"tabs alone", std::string(mebi, '\t')},
                                  {"NULs alone", std::string(mebi, '\0')},
                                  {"every byte",
                                   [] {
                                       std::string bytes;
                                       for (int b = 0; b < 256; ++b) bytes += static_cast<char>(b);
                                       return bytes;
                                   }()},
                                  {"UTF-16 LE", "\xFF\xFE" + utf16(texto, false)},
                                  {"UTF-16 BE", "\xFE\xFF" + utf16(texto, true)},
                                  {"UTF-16 without a mark", utf16(texto, false)},
                                  {"two marks", "\xEF\xBB\xBF\xEF\xBB\xBF" + texto},
                                  {"half a mark", "\xEF\xBB" + texto},
                                  {"Windows-1252", "\x80\x81\x8D\x8F\x90\x9D\xA0\xFF" + texto},
                                  {"overlong UTF-8", "\xC0\xAF\xE0\x80\xAF" + texto},
                                  {"old line ends",
                                   [&] {
                                       auto cr = texto;
                                       std::erase(cr, '\n');
                                       return cr;
                                   }()},
                                  {"twice", texto + "\r\n" + texto},
                                  {"a million blank lines after it", texto + std::string(mebi, '\n')},
                                  {"a hundred thousand rows more", [&] {
                                       std::string mais = texto + "\r\n";
                                       for (int k = 0; k < 100'000; ++k) mais += "1\t2\r\n";
                                       return mais;
                                   }()}};
    for (unsigned semente = 1; semente <= 20; ++semente)
        hostis.push_back({"random bytes " + std::to_string(semente), aleatórios(4096, semente)});
    const auto linhas = linhasDe(bom);
    for (const char c : {'x', '9', '\t', '\0', '.'})
        for (std::size_t l = 0; l < linhas.size(); ++l) {
            auto outras = linhas;
            outras[l].assign(mebi - 2, c);
            hostis.push_back({"line " + std::to_string(l + 1) + " of 1 MiB", unir(outras)});
        }
    for (std::size_t n = 0; n < texto.size(); n += 7) {
        auto comNul = texto;
        comNul[n] = '\0';
        hostis.push_back({"NUL at " + std::to_string(n), comNul});
    }
    return hostis;
}

} // namespace varenta::fuzz
