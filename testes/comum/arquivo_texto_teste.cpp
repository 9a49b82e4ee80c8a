#include "comum/arquivo_texto.h"

#include "apoio/atalhos.h"
#include "apoio/pasta_temporaria.h"
#include "comum/limites.h"

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace varenta {
namespace {

namespace fs = std::filesystem;
using teste::erroDe;
using teste::PastaTemporaria;

TEST(Decodificar, DeixaUtf8ComoEstá) {
    const std::string texto = "Lâmina – 60º €\r\n";
    EXPECT_EQ(decodificar(texto), texto);
    EXPECT_EQ(decodificar(""), "");
}

TEST(Decodificar, TiraAMarcaDeOrdemSóDoInício) {
    EXPECT_EQ(decodificar("\xEF\xBB\xBF"
                          "Vazão"),
              "Vazão");
    EXPECT_EQ(decodificar("\xEF\xBB\xBF"), "");
    EXPECT_EQ(decodificar("\xEF\xBB\xBF\xEF\xBB\xBF"), "");
    EXPECT_EQ(decodificar("a\xEF\xBB\xBF"
                          "b"),
              "a\xEF\xBB\xBF"
              "b");
}

TEST(Decodificar, AceitaAsPontasDeCadaComprimentoDeUtf8) {
    // U+0080, U+07FF, U+0800, U+D7FF, U+E000, U+FFFF, U+10000, U+10FFFF.
    for (const char* texto : {"\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                              "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(decodificar(texto), texto);
}

TEST(Decodificar, TomaPorWindows1252OsBytes80A9F) {
    std::string bytes;
    for (int b = 0x80; b <= 0x9F; ++b) bytes += static_cast<char>(b);
    // The published code page; its five undefined bytes keep their numbers as control characters.
    EXPECT_EQ(decodificar(bytes), "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ");
}

TEST(Decodificar, TomaPorLatin1OsBytesA0AFF) {
    std::string bytes;
    for (int b = 0xA0; b <= 0xFF; ++b) bytes += static_cast<char>(b);
    EXPECT_EQ(decodificar(bytes), "\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
                                  "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
                                  "àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ");
    EXPECT_EQ(decodificar("N\xE3o Especificado"), "Não Especificado");
}

TEST(Decodificar, FormasLongasDemaisSubstitutosECódigosAlémDoÚltimoSãoWindows1252) {
    EXPECT_EQ(decodificar("\xC0\xAF"), "À¯");
    EXPECT_EQ(decodificar("\xC1\xBF"), "Á¿");
    EXPECT_EQ(decodificar("\xE0\x9F\xBF"), "àŸ¿");
    EXPECT_EQ(decodificar("\xF0\x8F\xBF\xBF"), "ð\u008F¿¿");
    EXPECT_EQ(decodificar("\xED\xA0\x80"), "í\u00A0€");
    EXPECT_EQ(decodificar("\xED\xBF\xBF"), "í¿¿");
    EXPECT_EQ(decodificar("\xF4\x90\x80\x80"), "ô\u0090€€");
    EXPECT_EQ(decodificar("\xF5\x80\x80\x80"), "õ€€€");
    EXPECT_EQ(decodificar("\xFF"), "ÿ");
}

TEST(Decodificar, SequênciaCortadaOuContinuaçãoSoltaFazDeTudoWindows1252) {
    EXPECT_EQ(decodificar("a\xC3"), "aÃ");
    EXPECT_EQ(decodificar("\xE2\x82"), "â‚");
    EXPECT_EQ(decodificar("\x80"), "€");
    EXPECT_EQ(decodificar("\xC3("), "Ã(");
    EXPECT_EQ(decodificar("ã\xE3"), "Ã£ã"); // one bad byte: the good ones before it are read so too
}

TEST(LerTexto, LêOArquivoInteiroDecodificado) {
    const PastaTemporaria pasta;
    EXPECT_EQ(lerTexto(pasta.gravar("utf8.txt", "Vazão\r\n\tº\n")), "Vazão\r\n\tº\n");
    EXPECT_EQ(lerTexto(pasta.gravar("1252.txt", "Vaz\xE3o")), "Vazão");
    EXPECT_EQ(lerTexto(pasta.gravar("marca.txt", "\xEF\xBB\xBF"
                                                 "1")),
              "1");
    EXPECT_EQ(lerTexto(pasta.gravar("vazio.txt", "")), "");
    EXPECT_EQ(lerTexto(pasta.gravar("nulo.txt", std::string_view{"a\0b", 3})), (std::string{"a\0b", 3}));
}

TEST(LerTexto, DizPorQueNãoPodeLer) {
    const PastaTemporaria pasta;
    EXPECT_EQ(erroDe([&] { lerTexto(pasta.caminho("falta.txt")); }), "o arquivo ou a pasta não existe");
    EXPECT_EQ(erroDe([&] { lerTexto(""); }), "o arquivo ou a pasta não existe");
    EXPECT_EQ(erroDe([&] { lerTexto(pasta.caminho("")); }), "é uma pasta, e não um arquivo");
    const auto arquivo = pasta.gravar("a.txt", "1");
    EXPECT_EQ(erroDe([&] { lerTexto(arquivo + "/b.txt"); }), "uma parte do caminho não é uma pasta");
    EXPECT_EQ(erroDe([&] { lerTexto(pasta.caminho(std::string(300, 'x'))); }),
              "o nome do arquivo é longo demais");
}

TEST(LerTexto, RecusaUmCanoSemFicarÀEspera) {
    const PastaTemporaria pasta;
    ASSERT_EQ(::mkfifo(pasta.caminho("cano").c_str(), 0600), 0);
    EXPECT_EQ(erroDe([&] { lerTexto(pasta.caminho("cano")); }), "não é um arquivo de texto");
}

TEST(LerTexto, RecusaOArquivoUmByteMaiorQueOLimite) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("grande.txt", "1");
    fs::resize_file(caminho, maiorArquivo + 1);
    EXPECT_EQ(erroDe([&] { lerTexto(caminho); }), "o arquivo é grande demais");
}

TEST(LerTexto, LêOArquivoDoTamanhoDoLimite) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("limite.txt", "1");
    fs::resize_file(caminho, maiorArquivo);
    EXPECT_EQ(lerTexto(caminho).size(), maiorArquivo);
}

/// All lines of a file with that content.
std::vector<std::string> linhasDe(std::string_view bytes) {
    const PastaTemporaria pasta;
    LeitorDeLinhas leitor{pasta.gravar("linhas.txt", bytes)};
    std::vector<std::string> linhas;
    while (!leitor.fim()) linhas.push_back(leitor.próxima());
    return linhas;
}

TEST(LeitorDeLinhas, LFECRLFTerminamUmaLinha) {
    using Linhas = std::vector<std::string>;
    EXPECT_EQ(linhasDe("a\nb\n"), (Linhas{"a", "b"}));
    EXPECT_EQ(linhasDe("a\r\nb\r\n"), (Linhas{"a", "b"}));
    EXPECT_EQ(linhasDe("a\r\n\r\n\nb\n"), (Linhas{"a", "", "", "b"}));
    EXPECT_EQ(linhasDe("a\rb\n"), (Linhas{"a\rb"}));
}

TEST(LeitorDeLinhas, AÚltimaLinhaPodeNãoTerFim) {
    using Linhas = std::vector<std::string>;
    EXPECT_EQ(linhasDe("a\r\nb"), (Linhas{"a", "b"}));
    EXPECT_EQ(linhasDe("a"), (Linhas{"a"}));
}

TEST(LeitorDeLinhas, UmaLinhaLongaDemaisÉRecusada) {
    EXPECT_EQ(linhasDe(std::string(maiorLinha, 'a') + "\nb").front().size(), maiorLinha);
    for (const auto* fim : {"", "\nb"})
        EXPECT_EQ(erroDe([&] { linhasDe(std::string(maiorLinha + 1, 'a') + fim); }),
                  "a linha é longa demais");
}

TEST(LeitorDeLinhas, DizEmQueLinhaEstáEOQueOImpediu) {
    const PastaTemporaria pasta;
    LeitorDeLinhas leitor;
    EXPECT_EQ(leitor.onde(), "");
    EXPECT_NE(erroDe([&] { leitor.abrir(pasta.caminho("falta.txt")); }), "");
    EXPECT_EQ(leitor.onde(), "Motivo: o arquivo ou a pasta não existe.");
    leitor.abrir(pasta.gravar("duas.txt", "um\r\n" + std::string(maiorLinha + 1, 'x')));
    EXPECT_EQ(leitor.onde(), "");
    leitor.próxima();
    EXPECT_EQ(leitor.onde(), "Linha 1 do arquivo.");
    EXPECT_NE(erroDe([&] { leitor.próxima(); }), "");
    EXPECT_EQ(leitor.onde(), "Linha 2 do arquivo.");
    leitor.abrir(pasta.gravar("uma.txt", "um\n"));
    leitor.próxima();
    EXPECT_NE(erroDe([&] { leitor.próxima(); }), "");
    EXPECT_EQ(leitor.onde(), "O arquivo termina na linha 1.");
    leitor.abrir(pasta.gravar("vazio.txt", ""));
    EXPECT_NE(erroDe([&] { leitor.próxima(); }), "");
    EXPECT_EQ(leitor.onde(), "O arquivo está vazio.");
}

TEST(LeitorDeLinhas, SabeQuandoSóRestamLinhasEmBranco) {
    const PastaTemporaria pasta;
    const auto só = [&](const std::string& resto) {
        LeitorDeLinhas leitor{pasta.gravar("resto.txt", "um\n" + resto)};
        leitor.próxima();
        return leitor.sóRestaBranco();
    };
    for (const auto* branco : {"", "\n", " \t\r\n\r\n", " ", "\r"}) EXPECT_TRUE(só(branco)) << branco;
    for (const auto* resto : {"x", "\n\nx", "\r\r\n", " \v"}) EXPECT_FALSE(só(resto)) << resto;
}

TEST(LeitorDeLinhas, ArquivoVazioNãoTemLinhas) { EXPECT_TRUE(linhasDe("").empty()); }

TEST(LeitorDeLinhas, AcusaALeituraAlémDoFim) {
    const PastaTemporaria pasta;
    LeitorDeLinhas leitor{pasta.gravar("uma.txt", "única\n")};
    EXPECT_EQ(leitor.próxima(), "única");
    EXPECT_TRUE(leitor.fim());
    EXPECT_EQ(erroDe([&] { leitor.próxima(); }), "Entrada após o fim do arquivo");
}

TEST(LeitorDeLinhas, AcusaOArquivoQueNãoPodeLer) {
    const PastaTemporaria pasta;
    EXPECT_EQ(erroDe([&] { LeitorDeLinhas{pasta.caminho("falta.txt")}; }), "o arquivo ou a pasta não existe");
}

TEST(GravarTexto, GravaExatamenteOsBytesDoTexto) {
    const PastaTemporaria pasta;
    gravarTexto(pasta.caminho("novo.txt"), "Lâmina\t1.5\r\nº\r\n");
    EXPECT_EQ(pasta.bytes("novo.txt"), "Lâmina\t1.5\r\nº\r\n");
    gravarTexto(pasta.caminho("vazio.txt"), "");
    EXPECT_EQ(pasta.bytes("vazio.txt"), "");
    EXPECT_EQ(pasta.nomes(), (std::set<std::string>{"novo.txt", "vazio.txt"}));
}

TEST(GravarTexto, SubstituiOArquivoInteiroSemDeixarRestos) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("velho.txt", std::string(1000, 'v'));
    gravarTexto(caminho, "novo");
    EXPECT_EQ(pasta.bytes("velho.txt"), "novo");
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{"velho.txt"});
}

TEST(GravarTexto, GravaTextosDeMuitosMegabytes) {
    const PastaTemporaria pasta;
    std::string texto;
    for (int n = 0; n < 300'000; ++n) texto += std::to_string(n) + "\t0.000\r\n";
    gravarTexto(pasta.caminho("grande.txt"), texto);
    EXPECT_EQ(pasta.bytes("grande.txt"), texto);
}

TEST(GravarTexto, MantémOsDireitosDoArquivoQueSubstitui) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("velho.txt", "velho");
    for (const auto direitos : {fs::perms{0640}, fs::perms{0755}, fs::perms{0600}}) {
        fs::permissions(caminho, direitos);
        gravarTexto(caminho, "novo");
        EXPECT_EQ(fs::status(caminho).permissions(), direitos);
    }
}

TEST(GravarTexto, DáAoArquivoNovoOsDireitosDeQualquerArquivoNovo) {
    const PastaTemporaria pasta;
    const auto antes = ::umask(027);
    gravarTexto(pasta.caminho("novo.txt"), "novo");
    EXPECT_EQ(::umask(antes), 027u);
    EXPECT_EQ(fs::status(pasta.caminho("novo.txt")).permissions(), fs::perms{0640});
}

TEST(GravarTexto, SegueAsLigaçõesAtéOArquivo) {
    const PastaTemporaria pasta;
    pasta.gravar("alvo.txt", "velho");
    fs::create_symlink("alvo.txt", pasta.caminho("ligação.txt"));
    fs::create_symlink(pasta.caminho("ligação.txt"), pasta.caminho("segunda.txt"));
    gravarTexto(pasta.caminho("segunda.txt"), "novo");
    EXPECT_EQ(pasta.bytes("alvo.txt"), "novo");
    EXPECT_TRUE(fs::is_symlink(pasta.caminho("ligação.txt")));
    EXPECT_TRUE(fs::is_symlink(pasta.caminho("segunda.txt")));
    EXPECT_EQ(pasta.nomes().size(), 3u);
}

TEST(GravarTexto, QuarentaLigaçõesSeguidasSãoAsMaisQueSegue) {
    const PastaTemporaria pasta;
    const auto ligação = [](int n) { return n == 0 ? "alvo.txt" : "ligação" + std::to_string(n); };
    pasta.gravar("alvo.txt", "velho");
    for (int n = 1; n <= 41; ++n) fs::create_symlink(ligação(n - 1), pasta.caminho(ligação(n)));
    gravarTexto(pasta.caminho(ligação(40)), "novo");
    EXPECT_EQ(pasta.bytes("alvo.txt"), "novo");
    EXPECT_EQ(erroDe([&] { gravarTexto(pasta.caminho(ligação(41)), "outro"); }), "ligações em círculo");
    EXPECT_EQ(pasta.bytes("alvo.txt"), "novo");
}

TEST(GravarTexto, UmaLigaçãoSemAlvoFicaLigaçãoEOAlvoNasce) {
    const PastaTemporaria pasta;
    fs::create_symlink("alvo.txt", pasta.caminho("ligação.txt"));
    gravarTexto(pasta.caminho("ligação.txt"), "novo");
    EXPECT_TRUE(fs::is_symlink(pasta.caminho("ligação.txt")));
    EXPECT_EQ(pasta.bytes("alvo.txt"), "novo");
}

TEST(GravarTexto, DizPorQueNãoPodeGravarENãoDeixaRestos) {
    const PastaTemporaria pasta;
    EXPECT_EQ(erroDe([&] { gravarTexto(pasta.caminho("falta/novo.txt"), "x"); }),
              "o arquivo ou a pasta não existe");
    EXPECT_EQ(erroDe([&] { gravarTexto(pasta.caminho(""), "x"); }), "é uma pasta, e não um arquivo");
    const auto arquivo = pasta.gravar("a.txt", "velho");
    EXPECT_EQ(erroDe([&] { gravarTexto(arquivo + "/b.txt", "x"); }), "uma parte do caminho não é uma pasta");
    EXPECT_EQ(erroDe([&] { gravarTexto(pasta.caminho(std::string(300, 'x')), "x"); }),
              "o nome do arquivo é longo demais");
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{"a.txt"});
    EXPECT_EQ(pasta.bytes("a.txt"), "velho");
}

TEST(GravarTexto, NãoSubstituiOQueNãoÉArquivo) {
    const PastaTemporaria pasta;
    ASSERT_EQ(::mkfifo(pasta.caminho("cano").c_str(), 0600), 0);
    EXPECT_EQ(erroDe([&] { gravarTexto(pasta.caminho("cano"), "x"); }), "não é um arquivo de texto");
    EXPECT_TRUE(fs::is_fifo(pasta.caminho("cano")));
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{"cano"});
}

/// For its life no file of this process may grow past `bytes`: writing fails as on a full disk.
class DiscoCheio {
  public:
    explicit DiscoCheio(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &limite_);
        falharNoLimiteDeTamanho();
        const rlimit curto{bytes, limite_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &curto);
    }
    DiscoCheio(const DiscoCheio&) = delete;
    DiscoCheio& operator=(const DiscoCheio&) = delete;
    ~DiscoCheio() {
        ::setrlimit(RLIMIT_FSIZE, &limite_);
        std::signal(SIGXFSZ, SIG_DFL);
    }

  private:
    rlimit limite_{};
};

TEST(GravarTexto, EscritaInterrompidaDeixaOArquivoVelhoInteiro) {
    const PastaTemporaria pasta;
    const auto caminho = pasta.gravar("velho.txt", "velho");
    std::string erro;
    {
        const DiscoCheio cheio{4096};
        erro = erroDe([&] { gravarTexto(caminho, std::string(10'000, 'n')); });
    }
    EXPECT_EQ(erro, "o arquivo é grande demais");
    EXPECT_EQ(pasta.bytes("velho.txt"), "velho");
    EXPECT_EQ(pasta.nomes(), std::set<std::string>{"velho.txt"});
}

} // namespace
} // namespace varenta
