#include "comum/arquivo_texto.h"

#include "comum/erro_execucao.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace varenta {
namespace {

namespace fs = std::filesystem;

/// The code points of the Windows-1252 bytes 80 to 9F.
constexpr std::array<std::uint16_t, 32> windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

[[noreturn]] void falhar(int erro) {
    const char* texto = nullptr;
    switch (erro) {
    case ENOENT:
        texto = "o arquivo ou a pasta não existe";
        break;
    case EACCES:
    case EPERM:
        texto = "permissão negada";
        break;
    case EISDIR:
        texto = "é uma pasta, e não um arquivo";
        break;
    case ENOTDIR:
        texto = "uma parte do caminho não é uma pasta";
        break;
    case ELOOP:
        texto = "ligações em círculo";
        break;
    case ENAMETOOLONG:
        texto = "o nome do arquivo é longo demais";
        break;
    case ENOSPC:
    case EDQUOT:
        texto = "não há espaço no disco";
        break;
    case EFBIG:
        texto = "o arquivo é grande demais";
        break;
    case EROFS:
        texto = "o disco só admite leitura";
        break;
    case EIO:
        texto = "falha do disco";
        break;
    case EINVAL:
        texto = "não é um arquivo de texto";
        break;
    default:
        break;
    }
    throw ErroExecucao{texto ? texto : "erro " + std::to_string(erro) + " do sistema"};
}

/// An open file of the system, closed on every path.
class Descritor {
  public:
    explicit Descritor(int número) : número_{número} {
        if (número_ < 0) falhar(errno);
    }
    Descritor(const Descritor&) = delete;
    Descritor& operator=(const Descritor&) = delete;
    ~Descritor() {
        if (número_ >= 0) ::close(número_);
    }

    int número() const { return número_; }
    /// Closes it and tells whether what was written has arrived.
    bool fechar() { return ::close(std::exchange(número_, -1)) == 0; }

  private:
    int número_;
};

bool éContinuação(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

/// The length of the UTF-8 sequence that `bytes` begins with; 0 where it is none (overlong forms, surrogates
/// and numbers past the last code point included).
std::size_t sequênciaUtf8(std::string_view bytes) {
    const auto b0 = static_cast<unsigned char>(bytes[0]);
    if (b0 < 0x80) return 1;
    const std::size_t n = b0 >= 0xC2 && b0 <= 0xDF   ? 2
                          : b0 >= 0xE0 && b0 <= 0xEF ? 3
                          : b0 >= 0xF0 && b0 <= 0xF4 ? 4
                                                     : 0;
    if (n == 0 || bytes.size() < n) return 0;
    for (std::size_t i = 1; i < n; ++i)
        if (!éContinuação(bytes[i])) return 0;
    const auto b1 = static_cast<unsigned char>(bytes[1]);
    if ((b0 == 0xE0 && b1 < 0xA0) || (b0 == 0xED && b1 > 0x9F) || (b0 == 0xF0 && b1 < 0x90) ||
        (b0 == 0xF4 && b1 > 0x8F))
        return 0;
    return n;
}

bool éUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto n = sequênciaUtf8(bytes);
        if (n == 0) return false;
        bytes.remove_prefix(n);
    }
    return true;
}

void acrescentar(std::string& texto, unsigned código) {
    if (código < 0x80) {
        texto += static_cast<char>(código);
    } else if (código < 0x800) {
        texto += static_cast<char>(0xC0 | código >> 6);
        texto += static_cast<char>(0x80 | (código & 0x3F));
    } else {
        texto += static_cast<char>(0xE0 | código >> 12);
        texto += static_cast<char>(0x80 | (código >> 6 & 0x3F));
        texto += static_cast<char>(0x80 | (código & 0x3F));
    }
}

/// The file that a save replaces: where the name is a link, what the link leads to, there already or not.
fs::path destino(fs::path caminho) {
    constexpr int maisLigações = 40; // a longer chain is a circle
    std::error_code erro;
    for (int n = 0; fs::is_symlink(fs::symlink_status(caminho, erro)); ++n) {
        if (n == maisLigações) falhar(ELOOP);
        const auto alvo = fs::read_symlink(caminho, erro);
        if (erro) falhar(erro.value());
        caminho = caminho.parent_path() / alvo;
    }
    return caminho;
}

void escreverTudo(int arquivo, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto escritos = ::write(arquivo, bytes.data(), bytes.size());
        if (escritos < 0 && errno == EINTR) continue;
        if (escritos < 0) falhar(errno);
        if (escritos == 0) falhar(ENOSPC);
        bytes.remove_prefix(static_cast<std::size_t>(escritos));
    }
}

} // namespace

std::string decodificar(std::string_view bytes) {
    if (éUtf8(bytes)) {
        // More than one would come back as the first line's text, and be lost when that is saved and read.
        while (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
        return std::string{bytes};
    }
    std::string texto;
    texto.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        acrescentar(texto, b >= 0x80 && b < 0xA0 ? windows1252[b - 0x80u] : b);
    }
    return texto;
}

std::string lerTexto(const std::string& caminho) {
    // A pipe without a writer would keep the program waiting for ever: only regular files are read.
    const Descritor arquivo{::open(caminho.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    struct stat dados {};
    if (::fstat(arquivo.número(), &dados) != 0) falhar(errno);
    if (S_ISDIR(dados.st_mode)) falhar(EISDIR);
    if (!S_ISREG(dados.st_mode)) falhar(EINVAL);
    if (static_cast<std::uintmax_t>(dados.st_size) > maiorArquivo) falhar(EFBIG);

    std::string bytes(static_cast<std::size_t>(dados.st_size), '\0');
    std::size_t lidos = 0;
    while (lidos < bytes.size()) {
        const auto n = ::read(arquivo.número(), bytes.data() + lidos, bytes.size() - lidos);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) falhar(errno);
        if (n == 0) break;
        lidos += static_cast<std::size_t>(n);
    }
    bytes.resize(lidos);
    return decodificar(bytes);
}

std::string LeitorDeLinhas::próxima() {
    if (fim()) throw ErroExecucao{"Entrada após o fim do arquivo"};
    const auto quebra = texto_.find('\n', posição_);
    auto linha = texto_.substr(posição_, quebra == std::string::npos ? quebra : quebra - posição_);
    posição_ = quebra == std::string::npos ? texto_.size() : quebra + 1;
    if (linha.ends_with('\r')) linha.pop_back();
    return linha;
}

void gravarTexto(const std::string& caminho, std::string_view texto) {
    const auto caminhoReal = destino(caminho);
    const auto alvo = caminhoReal.string();
    struct stat antigo {};
    const bool existe = ::stat(alvo.c_str(), &antigo) == 0;
    if (existe && S_ISDIR(antigo.st_mode)) falhar(EISDIR);
    if (existe && !S_ISREG(antigo.st_mode)) falhar(EINVAL);
    if (existe && ::access(alvo.c_str(), W_OK) != 0) falhar(errno);

    std::string provisório = (caminhoReal.parent_path() / ".varenta-XXXXXX").string();
    Descritor arquivo{::mkostemp(provisório.data(), O_CLOEXEC)};
    try {
        // mkostemp keeps a new file to its owner: give it the old file's rights, or those of any new file.
        const mode_t máscara = ::umask(0);
        ::umask(máscara);
        if (::fchmod(arquivo.número(), existe ? antigo.st_mode & 07777u : 0666u & ~máscara) != 0)
            falhar(errno);
        escreverTudo(arquivo.número(), texto);
        if (::fsync(arquivo.número()) != 0) falhar(errno);
        if (!arquivo.fechar()) falhar(errno);
        if (::rename(provisório.c_str(), alvo.c_str()) != 0) falhar(errno);
    } catch (...) {
        ::unlink(provisório.c_str());
        throw;
    }
}

} // namespace varenta
