#include "apoio/pasta_temporaria.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

/// `comparar_roteiros PROGRAMA RAIZ PASTA…`: a test for each *.roteiro below the folders, which are given
/// relative to the root. PROGRAMA runs it, and what it prints is held against the files beside it: *.esperado
/// (standard output), *.erros (standard error, the roteiro's path as its name alone; empty where the file is
/// missing) and *.status (exit status; 0 where the file is missing). *.opcoes holds an option that the
/// program is given before the roteiro. *.progresso is the standard output with the steps of long
/// runs too. *.gravados names the files that it saves, each with the file that must
/// equal it. The roteiros run in a copy of the folders, so that what they save
/// leaves the originals alone.
namespace varenta::teste {
namespace {

namespace fs = std::filesystem;

std::string bytesDe(const fs::path& caminho) {
    std::ifstream arquivo{caminho, std::ios::binary};
    if (!arquivo) throw std::runtime_error{"can't read " + caminho.string()};
    return {std::istreambuf_iterator<char>{arquivo}, {}};
}

std::string bytesOu(const fs::path& caminho, const std::string& ausente) {
    return fs::exists(caminho) ? bytesDe(caminho) : ausente;
}

std::vector<std::string> linhasDe(const std::string& texto) {
    std::vector<std::string> linhas;
    std::istringstream fluxo{texto};
    for (std::string linha; std::getline(fluxo, linha);) linhas.push_back(linha);
    if (!texto.empty() && texto.back() != '\n') linhas.back() += " [sem fim de linha]";
    return linhas;
}

/// Fails the test with the first lines in which two texts differ.
void comparar(const char* onde, const std::string& esperado, const std::string& obtido) {
    if (esperado == obtido) return;
    const auto e = linhasDe(esperado), o = linhasDe(obtido);
    std::string texto;
    int mostradas = 0;
    for (std::size_t i = 0; i < std::max(e.size(), o.size()) && mostradas < 5; ++i) {
        const auto esperada = i < e.size() ? e[i] : "[fim]", obtida = i < o.size() ? o[i] : "[fim]";
        if (esperada == obtida) continue;
        texto +=
            "linha " + std::to_string(i + 1) + "\n  esperado: " + esperada + "\n  obtido:   " + obtida + '\n';
        ++mostradas;
    }
    ADD_FAILURE() << "na " << onde << ", " << texto;
}

/// Each line that begins with the roteiro's path begins with its name instead.
std::string reduzirCaminho(const std::string& erros, const fs::path& roteiro) {
    std::string reduzido;
    for (std::size_t i = 0; i < erros.size();) {
        const auto fim = std::min(erros.find('\n', i), erros.size() - 1) + 1;
        auto linha = erros.substr(i, fim - i);
        if (linha.starts_with(roteiro.string()))
            linha.replace(0, roteiro.string().size(), roteiro.filename().string());
        reduzido += linha;
        i = fim;
    }
    return reduzido;
}

struct Resultado {
    int estado;
    std::string saída, erros;
};

Resultado executar(const std::string& programa, std::string opção, const fs::path& roteiro) {
    const PastaTemporaria pasta;
    const auto saída = pasta.caminho("saida"), erros = pasta.caminho("erros");
    posix_spawn_file_actions_t ações;
    posix_spawn_file_actions_init(&ações);
    posix_spawn_file_actions_addopen(&ações, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&ações, STDOUT_FILENO, saída.c_str(), O_WRONLY | O_CREAT, 0600);
    posix_spawn_file_actions_addopen(&ações, STDERR_FILENO, erros.c_str(), O_WRONLY | O_CREAT, 0600);
    std::string primeiro = programa, último = roteiro.string();
    std::vector<char*> argumentos = {primeiro.data(), último.data(), nullptr};
    if (!opção.empty()) argumentos.insert(argumentos.begin() + 1, opção.data());
    pid_t processo = 0;
    const int falha = posix_spawn(&processo, programa.c_str(), &ações, nullptr, argumentos.data(), environ);
    posix_spawn_file_actions_destroy(&ações);
    if (falha != 0) throw std::runtime_error{"can't run " + programa};
    int fim = 0;
    if (::waitpid(processo, &fim, 0) != processo) throw std::runtime_error{"no end of " + programa};
    // As a shell tells the end by a signal.
    const int estado = WIFEXITED(fim) ? WEXITSTATUS(fim) : 128 + WTERMSIG(fim);
    return {estado, pasta.bytes("saida"), pasta.bytes("erros")};
}

class CasoDeRoteiro : public testing::Test {
  public:
    CasoDeRoteiro(std::string programa, fs::path roteiro)
        : programa_{std::move(programa)}, roteiro_{std::move(roteiro)} {}

    void TestBody() override {
        const auto irmão = [&](const char* terminação) {
            return fs::path{roteiro_}.replace_extension(terminação);
        };
        ASSERT_TRUE(fs::exists(irmão(".esperado"))) << "falta " << irmão(".esperado").filename();
        const auto r = executar(programa_, bytesOu(irmão(".opcoes"), ""), roteiro_);
        comparar("saída", bytesDe(irmão(".esperado")), r.saída);
        comparar("saída de erros", bytesOu(irmão(".erros"), ""), reduzirCaminho(r.erros, roteiro_));
        EXPECT_EQ(r.estado, std::stoi(bytesOu(irmão(".status"), "0"))) << "estado de saída";
        compararGravados(bytesOu(irmão(".gravados"), ""));
        if (fs::exists(irmão(".progresso")))
            comparar("saída com o progresso", bytesDe(irmão(".progresso")),
                     executar(programa_, "--progresso", roteiro_).saída);
    }

  private:
    /// Each line names a file that the roteiro has saved and, after a tab, the one that it must equal.
    void compararGravados(const std::string& pares) const {
        for (const auto& par : linhasDe(pares)) {
            const auto tabulação = par.find('\t');
            const auto gravado = par.substr(0, tabulação), esperado = par.substr(tabulação + 1);
            comparar(gravado.c_str(), bytesDe(roteiro_.parent_path() / esperado),
                     bytesDe(roteiro_.parent_path() / gravado));
        }
    }

    std::string programa_;
    fs::path roteiro_;
};

/// An expectation whose roteiro is gone.
class EsperadoSemRoteiro : public testing::Test {
  public:
    void TestBody() override { FAIL() << "não há o roteiro deste resultado esperado"; }
};

std::string nomeDeTeste(const fs::path& caminho) {
    auto nome = caminho.string();
    for (auto& c : nome)
        if (std::string_view{".- :*?"}.find(c) != std::string_view::npos) c = '_';
    return nome;
}

/// Registers a test for each roteiro of a folder, and one that fails for each expectation without roteiro.
/// Returns how many roteiros there are.
std::size_t registrarPasta(const std::string& programa, const fs::path& cópia, const fs::path& pasta) {
    const std::set<fs::path> esperados{".esperado", ".erros",    ".status",
                                       ".opcoes",   ".gravados", ".progresso"};
    std::set<fs::path> caminhos;
    for (const auto& entrada : fs::recursive_directory_iterator{cópia / pasta})
        caminhos.insert(entrada.path());
    std::size_t roteiros = 0;
    for (const auto& caminho : caminhos) {
        const auto nome = nomeDeTeste(fs::relative(caminho, cópia));
        if (caminho.extension() == ".roteiro") {
            ++roteiros;
            testing::RegisterTest("Roteiros", nome.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                                  [=]() -> testing::Test* {
                                      return new CasoDeRoteiro{programa, caminho};
                                  });
        } else if (esperados.contains(caminho.extension()) &&
                   !fs::exists(fs::path{caminho}.replace_extension(".roteiro"))) {
            testing::RegisterTest("EsperadoSemRoteiro", nome.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                                  []() -> testing::Test* { return new EsperadoSemRoteiro; });
        }
    }
    return roteiros;
}

} // namespace
} // namespace varenta::teste

int main(int quantos, char** argumentos) {
    using namespace varenta::teste;
    testing::InitGoogleTest(&quantos, argumentos);
    if (quantos < 4) {
        std::cerr << "uso: comparar_roteiros PROGRAMA RAIZ PASTA…\n";
        return 2;
    }
    const fs::path raiz{argumentos[2]};
    const PastaTemporaria cópia;
    for (int i = 3; i < quantos; ++i) {
        const fs::path pasta{argumentos[i]};
        if (!fs::is_directory(raiz / pasta)) {
            std::cerr << "não há a pasta " << (raiz / pasta).string() << '\n';
            return 1;
        }
        fs::create_directories(cópia.caminho(pasta.string()));
        fs::copy(raiz / pasta, cópia.caminho(pasta.string()), fs::copy_options::recursive);
        if (registrarPasta(argumentos[1], cópia.caminho(""), pasta) == 0) {
            std::cerr << "não há roteiros em " << (raiz / pasta).string() << '\n';
            return 1;
        }
    }
    return RUN_ALL_TESTS();
}
