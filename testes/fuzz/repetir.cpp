#include "fuzz/formatos.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// `repetir ENSAIO PASTA`: tries every file of a folder, in the order of their names, with everything that
/// the trial checks. Needs no fuzzer, so that each build repeats what fuzzing has found.
namespace varenta::fuzz {
namespace {

using Ensaio = void (*)(std::string_view bytes, bool tudo);

const std::map<std::string_view, Ensaio> ensaios = {
    {"radial", experimentarRadial},         {"campo", experimentarCampo},
    {"malha", experimentarMalha},           {"movel", experimentarMovel},
    {"parametros", experimentarParametros}, {"roteiro", experimentarRoteiro},
    {"prefixo", experimentarPrefixo},       {"estrito", experimentarEstrito}};

int repetir(Ensaio ensaio, const std::filesystem::path& pasta) {
    std::vector<std::filesystem::path> arquivos;
    for (const auto& entrada : std::filesystem::directory_iterator{pasta}) arquivos.push_back(entrada.path());
    std::ranges::sort(arquivos);
    int falhas = 0;
    for (const auto& arquivo : arquivos) {
        try {
            ensaio(bytesDoArquivo(arquivo.string()), true);
        } catch (const Defeito& defeito) {
            std::fprintf(stderr, "%s: %s\n", arquivo.c_str(), defeito.what());
            ++falhas;
        }
    }
    std::printf("%zu files, %d failures\n", arquivos.size(), falhas);
    return arquivos.empty() || falhas > 0 ? 1 : 0;
}

} // namespace
} // namespace varenta::fuzz

int main(int argc, char** argv) {
    const auto ensaio = argc == 3 ? varenta::fuzz::ensaios.find(argv[1]) : varenta::fuzz::ensaios.end();
    if (ensaio == varenta::fuzz::ensaios.end()) {
        std::fputs("usage: repetir TRIAL FOLDER\n", stderr);
        return 2;
    }
    return varenta::fuzz::repetir(ensaio->second, argv[2]);
}
