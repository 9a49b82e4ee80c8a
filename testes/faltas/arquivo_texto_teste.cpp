#include "comum/arquivo_texto.h"

#include "apoio/atalhos.h"
#include "apoio/pasta_temporaria.h"
#include "faltas/chamadas_do_sistema.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace varenta {
namespace {

namespace fs = std::filesystem;
using teste::erroDe;
using teste::FalhaDaChamada;
using teste::PastaTemporaria;

/// A save over `velho.txt` (or of a new file) with the n-th call failing, for every n until none is left.
/// Returns the names of the calls that were seen to fail.
std::set<std::string> gravarComCadaFalha(int erro, const std::string& motivo, bool existe,
                                         FalhaDaChamada::Duração duração = FalhaDaChamada::umaVez) {
    const std::string velho = "velho", novo(10'000, 'n');
    std::set<std::string> falhas;
    for (int n = 1;; ++n) {
        const PastaTemporaria pasta;
        if (existe) pasta.gravar("a.txt", velho);
        std::string dito, qual;
        {
            const FalhaDaChamada falha{n, erro, duração};
            dito = erroDe([&] { gravarTexto(pasta.caminho("a.txt"), novo); });
            qual = falha.qualFalhou();
        }
        if (qual.empty()) {
            EXPECT_EQ(dito, "");
            EXPECT_EQ(pasta.bytes("a.txt"), novo);
            return falhas;
        }
        falhas.insert(qual);
        // Whatever failed: the file is what the answer tells, and nothing else is in the folder.
        const bool gravado = dito.empty();
        EXPECT_EQ(dito, gravado ? "" : motivo) << n << " " << qual;
        EXPECT_EQ(pasta.bytes("a.txt"), gravado ? novo : existe ? velho : "") << n << " " << qual;
        EXPECT_EQ(pasta.nomes(), gravado || existe ? std::set<std::string>{"a.txt"} : std::set<std::string>{})
            << n << " " << qual;
    }
}

TEST(GravarTextoComFalhas, CadaChamadaQueFalhaDeixaOVelhoOuONovoInteiroEARespostaCerta) {
    const auto falhas = gravarComCadaFalha(EIO, "falha do disco", true);
    // A file that is there already goes through all of them.
    EXPECT_EQ(falhas, (std::set<std::string>{"stat", "access", "open", "flock", "fchmod", "write", "fsync",
                                             "linkat", "close", "rename"}));
}

TEST(GravarTextoComFalhas, UmArquivoNovoNãoNascePelaMetade) {
    gravarComCadaFalha(ENOSPC, "não há espaço no disco", false);
    gravarComCadaFalha(EROFS, "o disco só admite leitura", false);
}

TEST(GravarTextoComFalhas, UmDiscoQueNãoVoltaDeixaOVelhoOuONovoInteiroEARespostaCerta) {
    for (const bool existe : {true, false})
        gravarComCadaFalha(EIO, "falha do disco", existe, FalhaDaChamada::deEmDiante);
}

TEST(LerTextoComFalhas, CadaChamadaQueFalhaÉDita) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.txt", "lido");
    std::set<std::string> falhas;
    for (int n = 1;; ++n) {
        std::string lido, dito, qual;
        {
            const FalhaDaChamada falha{n, EIO};
            dito = erroDe([&] { lido = lerTexto(caminho); });
            qual = falha.qualFalhou();
        }
        if (qual.empty()) break;
        falhas.insert(qual);
        // What was read is there whatever closing the file reports.
        EXPECT_EQ(dito, qual == "close" ? "" : "falha do disco") << qual;
        EXPECT_EQ(lido, qual == "close" ? "lido" : "") << qual;
    }
    EXPECT_EQ(falhas, (std::set<std::string>{"open", "fstat", "read", "close"}));
}

TEST(LerTextoComFalhas, CadaErroDoSistemaÉDitoEmPortuguês) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.txt", "lido");
    const std::pair<int, const char*> motivos[] = {{ENOENT, "o arquivo ou a pasta não existe"},
                                                   {EACCES, "permissão negada"},
                                                   {EPERM, "permissão negada"},
                                                   {EISDIR, "é uma pasta, e não um arquivo"},
                                                   {ENOTDIR, "uma parte do caminho não é uma pasta"},
                                                   {ELOOP, "ligações em círculo"},
                                                   {ENAMETOOLONG, "o nome do arquivo é longo demais"},
                                                   {ENOSPC, "não há espaço no disco"},
                                                   {EDQUOT, "não há espaço no disco"},
                                                   {EFBIG, "o arquivo é grande demais"},
                                                   {EROFS, "o disco só admite leitura"},
                                                   {EIO, "falha do disco"},
                                                   {EINVAL, "não é um arquivo de texto"}};
    for (const auto& [erro, motivo] : motivos) {
        const FalhaDaChamada falha{"read", erro};
        EXPECT_EQ(erroDe([&] { lerTexto(caminho); }), motivo);
    }
    const FalhaDaChamada falha{"read", ENOMEM};
    EXPECT_EQ(erroDe([&] { lerTexto(caminho); }), "erro " + std::to_string(ENOMEM) + " do sistema");
}

TEST(LerTextoComFalhas, UmaLeituraInterrompidaRecomeça) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.txt", "lido");
    const FalhaDaChamada falha{3, EINTR};
    EXPECT_EQ(lerTexto(caminho), "lido");
    EXPECT_EQ(falha.qualFalhou(), "read");
}

TEST(GravarTextoComFalhas, UmaEscritaInterrompidaContinuaDeOndeEstava) {
    std::string novo;
    for (int n = 0; n < 1000; ++n) novo += std::to_string(n) + '\n';
    std::string qual;
    for (int n = 1; qual != "write"; ++n) {
        const PastaTemporaria pasta;
        const FalhaDaChamada falha{n, EINTR};
        const auto dito = erroDe([&] { gravarTexto(pasta.caminho("a.txt"), novo); });
        qual = falha.qualFalhou();
        ASSERT_NE(qual, "");
        if (qual != "write") continue;
        EXPECT_EQ(dito, "");
        EXPECT_EQ(pasta.bytes("a.txt"), novo);
    }
}

TEST(GravarTextoComFalhas, QuandoNenhumNomeEstáLivreOVelhoFica) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.txt", "velho");
    const FalhaDaChamada falha{"linkat", EEXIST};
    EXPECT_EQ(erroDe([&] { gravarTexto(caminho, "novo"); }),
              "erro " + std::to_string(EEXIST) + " do sistema");
    EXPECT_EQ(falha.qualFalhou(), "linkat");
    EXPECT_EQ(pasta.bytes("a.txt"), "velho");
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{"a.txt"});
}

/// Runs `ação` in a process of its own and returns what it exits with.
template <class Ação>
int emOutroProcesso(const Ação& ação) {
    const auto filho = ::fork();
    if (filho == 0) ::_exit(ação());
    int estado = 0;
    ::waitpid(filho, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
}

TEST(LerTextoComFalhas, SemEntradaPadrãoOArquivoAbertoÉOZeroEVale) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.txt", "lido");
    EXPECT_EQ(emOutroProcesso([&] {
                  ::close(STDIN_FILENO);
                  return lerTexto(caminho) == "lido" ? 0 : 1;
              }),
              0);
}

TEST(GravarTextoComFalhas, UmaPastaSóDeLeituraFicaComoEstá) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.txt", "velho");
    fs::permissions(caminho, fs::perms{0666});
    fs::permissions(pasta.caminho(""), fs::perms{0555});
    // The superuser may write anywhere: somebody else has to try.
    const int resultado = emOutroProcesso([&] {
        if (::getuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) return 3;
        return erroDe([&] { gravarTexto(caminho, "novo"); }) == "permissão negada" &&
                       erroDe([&] { gravarTexto(pasta.caminho("outro.txt"), "novo"); }) == "permissão negada"
                   ? 0
                   : 1;
    });
    fs::permissions(pasta.caminho(""), fs::perms{0755});
    EXPECT_EQ(resultado, 0);
    EXPECT_EQ(pasta.bytes("a.txt"), "velho");
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{"a.txt"});
}

TEST(GravarTextoComFalhas, UmaPastaQueSumiuÉDita) {
    const PastaTemporaria pasta;
    fs::create_directory(pasta.caminho("some"));
    fs::current_path(pasta.caminho("some"));
    fs::remove(pasta.caminho("some"));
    const auto dito = erroDe([] { gravarTexto("a.txt", "novo"); });
    fs::current_path(fs::temp_directory_path());
    EXPECT_EQ(dito, "o arquivo ou a pasta não existe");
}

TEST(GravarTextoComFalhas, MortoEmQualquerPontoDeixaUmArquivoInteiroENenhumResto) {
    const std::string um(200'000, '1'), dois(300'000, '2');
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("a.txt", um);
    std::mt19937 sorteio{20};
    std::uniform_int_distribution<int> espera{0, 3000};
    for (int n = 0; n < 200; ++n) {
        const auto filho = ::fork();
        if (filho == 0)
            for (;;) {
                gravarTexto(caminho, dois);
                gravarTexto(caminho, um);
            }
        std::this_thread::sleep_for(std::chrono::microseconds{espera(sorteio)});
        ::kill(filho, SIGKILL);
        int estado = 0;
        ::waitpid(filho, &estado, 0);
        ASSERT_TRUE(WIFSIGNALED(estado) && WTERMSIG(estado) == SIGKILL);
        const auto ficou = pasta.bytes("a.txt");
        ASSERT_TRUE(ficou == um || ficou == dois) << "of " << ficou.size() << " bytes, at " << n;
    }
    // One killed between naming and renaming leaves a hidden file, which the next save takes away.
    gravarTexto(caminho, um);
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{"a.txt"});
}

TEST(GravarTextoComFalhas, SóOQueNinguémUsaÉVarrido) {
    const PastaTemporaria pasta;
    pasta.gravar(".varenta-provisorio-abcdef123456", "left behind");
    pasta.gravar(".varenta-backup", "the user's own");
    pasta.gravar(".varenta-provisorio-abcdef1234567", "the user's own");
    fs::create_directory(pasta.caminho(".varenta-provisorio-umapasta0001"));
    // Another program's save, in the middle of its work.
    const int alheio = ::open(pasta.gravar(".varenta-provisorio-defabc654321", "being written").c_str(),
                              O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(alheio, LOCK_EX), 0);
    gravarTexto(pasta.caminho("a.txt"), "novo");
    EXPECT_EQ(pasta.nomes(), (std::set<std::string>{
                                 "a.txt", ".varenta-backup", ".varenta-provisorio-abcdef1234567",
                                 ".varenta-provisorio-umapasta0001", ".varenta-provisorio-defabc654321"}));
    ::close(alheio);
}

TEST(GravarTextoComFalhas, DoisQueGravamAoMesmoTempoNãoSePerturbam) {
    const PastaTemporaria pasta;
    const std::string um(50'000, '1'), dois(50'000, '2');
    const auto gravarMuito = [&](const char* nome, const std::string& texto) {
        const auto filho = ::fork();
        if (filho == 0) {
            for (int n = 0; n < 100; ++n)
                if (!erroDe([&] { gravarTexto(pasta.caminho(nome), texto); }).empty()) ::_exit(1);
            ::_exit(0);
        }
        return filho;
    };
    const auto primeiro = gravarMuito("a.txt", um), segundo = gravarMuito("b.txt", dois);
    for (const auto filho : {primeiro, segundo}) {
        int estado = 0;
        ::waitpid(filho, &estado, 0);
        EXPECT_TRUE(WIFEXITED(estado) && WEXITSTATUS(estado) == 0);
    }
    EXPECT_EQ(pasta.bytes("a.txt"), um);
    EXPECT_EQ(pasta.bytes("b.txt"), dois);
    EXPECT_EQ(pasta.nomes(), (std::set<std::string>{"a.txt", "b.txt"}));
}

} // namespace
} // namespace varenta
