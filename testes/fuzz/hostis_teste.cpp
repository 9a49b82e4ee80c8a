#include "fuzz/hostis.h"

#include "apoio/pasta_temporaria.h"
#include "comum/arquivo_texto.h"
#include "fuzz/formatos.h"
#include "roteiro/interprete.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

/// Hostile files, opened as a person opens them: each leaves the screen as it must, in time and in little
/// memory, and a good file is read afterwards.
namespace varenta::fuzz {
namespace {

#ifdef VARENTA_SANITIZAR
constexpr double maisSegundos = 5;
constexpr long maisMemória = 512 << 10;
#else
constexpr double maisSegundos = 1;
constexpr long maisMemória = 128 << 10;
#endif

/// The largest memory that the process has had since `esquecerOPico`, in KiB.
long picoDeMemória() {
    std::ifstream estado{"/proc/self/status"};
    for (std::string palavra; estado >> palavra;)
        if (long pico = 0; palavra == "VmHWM:" && estado >> pico) return pico;
    throw std::runtime_error{"no VmHWM"};
}

void esquecerOPico() { std::ofstream{"/proc/self/clear_refs"} << '5'; }

struct Leitor {
    const char* nome;
    const Formato& (*formato)();
    std::vector<std::string> amostras;
};

std::string amostra(const std::string& nome) {
    return bytesDoArquivo(std::string{PASTA_DE_EXEMPLOS} + '/' + nome);
}

class ArquivosHostis : public testing::TestWithParam<Leitor> {
  protected:
    const Formato& formato() const { return GetParam().formato(); }

    /// Whether the file was read. Adds a failure where its road isn't as it must be.
    bool tentar(const std::string& nome, const std::string& caminho, const std::optional<Linhas>& linhas) {
        esquecerOPico();
        const long antes = picoDeMemória();
        const auto início = std::chrono::steady_clock::now();
        bool lido = false;
        try {
            lido = abrirCaminho(formato(), caminho, linhas);
        } catch (const Defeito& defeito) {
            ADD_FAILURE() << nome << ": " << defeito.what();
        }
        const std::chrono::duration<double> durou = std::chrono::steady_clock::now() - início;
        EXPECT_LT(durou.count(), maisSegundos) << nome;
        EXPECT_LT(picoDeMemória() - antes, maisMemória) << nome;
        ++quantos;
        return lido;
    }
    void tentarBytes(const Hostil& hostil) {
        tentar(hostil.nome, pasta.gravar("h.txt", hostil.bytes), linhasDe(decodificar(hostil.bytes)));
    }
    void exigirRecusa(const std::string& nome, const std::string& caminho) {
        EXPECT_FALSE(tentar(nome, caminho, std::nullopt)) << nome;
    }
    /// The program goes on: every sample is read.
    void TearDown() override {
        RecordProperty("arquivos", quantos);
        for (const auto& nome : GetParam().amostras) {
            const auto bytes = amostra(nome);
            EXPECT_TRUE(tentar(nome, pasta.gravar("bom.txt", bytes), linhasDe(bytes))) << nome;
        }
    }

    teste::PastaTemporaria pasta;
    int quantos = 0;
};

TEST_P(ArquivosHostis, CortadosEmCadaByte) {
    for (const auto& nome : GetParam().amostras)
        for (const auto& hostil : cortes(amostra(nome))) tentarBytes(hostil);
    EXPECT_GE(quantos, 85);
}

TEST_P(ArquivosHostis, ComTextosQueNãoSãoNúmeros) {
    for (const auto& nome : GetParam().amostras)
        for (const auto& hostil : trocas(amostra(nome))) tentarBytes(hostil);
    EXPECT_GE(quantos, 400);
}

TEST_P(ArquivosHostis, QueNãoSãoTextos) {
    for (const auto& hostil : estranhos(formato().bom)) tentarBytes(hostil);
    EXPECT_GE(quantos, 80);
}

TEST_P(ArquivosHostis, QueNãoSãoArquivos) {
    exigirRecusa("a folder", pasta.caminho(""));
    exigirRecusa("no file", pasta.caminho("ausente.txt"));
    exigirRecusa("no folder", pasta.caminho("ausente/a.txt"));
    exigirRecusa("a file as a folder", pasta.gravar("a.txt", "a") + "/b.txt");
    exigirRecusa("a name too long", pasta.caminho(std::string(5000, 'n')));
    exigirRecusa("a device", "/dev/zero");

    ASSERT_EQ(::mkfifo(pasta.caminho("fila").c_str(), 0600), 0);
    exigirRecusa("a pipe that nobody writes to", pasta.caminho("fila"));

    std::filesystem::create_symlink(pasta.caminho("b"), pasta.caminho("a"));
    std::filesystem::create_symlink(pasta.caminho("a"), pasta.caminho("b"));
    exigirRecusa("a circle of links", pasta.caminho("a"));

    ASSERT_EQ(::truncate(pasta.gravar("enorme", "").c_str(), off_t{1} << 40), 0);
    exigirRecusa("a terabyte", pasta.caminho("enorme"));

    if (::geteuid() != 0) {
        ASSERT_EQ(::chmod(pasta.gravar("proibido", formato().bom).c_str(), 0), 0);
        exigirRecusa("a file that may not be read", pasta.caminho("proibido"));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Leitores, ArquivosHostis,
    testing::Values(
        Leitor{"radial",
               formatoRadial,
               {"ensaio_radial_mmh.txt", "ensaio_radial_mm.txt", "ensaio_radial_ml.txt"}},
        Leitor{"campo", formatoDeCampo, {"ensaio_movel_mm.txt", "ensaio_movel_ml.txt"}},
        Leitor{"malha", formatoDeMalha, {"ensaio_malha_1.txt", "ensaio_malha_2.txt", "ensaio_malha_3.txt"}},
        Leitor{"movel", formatoMóvel, {"ensaio_movel_1.txt", "ensaio_movel_2.txt"}},
        Leitor{"parametros", formatoDeParâmetros, {"parametros_tx20.txt"}}),
    [](const auto& info) { return std::string{info.param.nome}; });

/// What a script makes of its own file's bytes: told with its line, or run; never more than that.
TEST(RoteirosHostis, SãoRecusadosComASuaLinha) {
    const auto bom = amostra("primeira_simulacao.roteiro");
    int quantos = 0;
    const auto tentar = [&](const std::vector<Hostil>& hostis) {
        for (const auto& hostil : hostis) {
            const auto início = std::chrono::steady_clock::now();
            EXPECT_NO_THROW(experimentarRoteiro(hostil.bytes, true)) << hostil.nome;
            const std::chrono::duration<double> durou = std::chrono::steady_clock::now() - início;
            EXPECT_LT(durou.count(), 4 * maisSegundos) << hostil.nome;
            ++quantos;
        }
    };
    tentar(cortes(bom));
    tentar(trocas(bom));
    tentar(estranhos(bom));
    EXPECT_GE(quantos, 1000);
}

TEST(RoteirosHostis, OQueNãoÉArquivoÉDito) {
    const teste::PastaTemporaria pasta;
    ASSERT_EQ(::mkfifo(pasta.caminho("fila").c_str(), 0600), 0);
    ASSERT_EQ(::truncate(pasta.gravar("enorme", "").c_str(), off_t{1} << 40), 0);
    for (const auto& [nome, motivo] :
         std::map<std::string, std::string>{{pasta.caminho(""), "é uma pasta, e não um arquivo"},
                                            {pasta.caminho("ausente"), "o arquivo ou a pasta não existe"},
                                            {pasta.caminho("fila"), "não é um arquivo de texto"},
                                            {"/dev/zero", "não é um arquivo de texto"},
                                            {pasta.caminho("enorme"), "o arquivo é grande demais"}}) {
        std::ostringstream saída, erros;
        EXPECT_EQ(Interprete(saída, erros).executarArquivo(nome), Interprete::falha);
        EXPECT_EQ(erros.str(), nome + ": " + motivo + '\n');
        EXPECT_EQ(saída.str(), "");
    }
}

} // namespace
} // namespace varenta::fuzz
