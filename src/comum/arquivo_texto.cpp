#include "comum/arquivo_texto.h"

#include "comum/erro_execucao.h"
#include "comum/limites.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
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
    /// What closing might report has been asked of `fsync` where it counts.
    ~Descritor() { ::close(número_); }

    int número() const { return número_; }

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

// What is left over of a save is removed: no one else's file should ever bear such a name.
constexpr std::string_view inícioDoProvisório = ".varenta-provisorio-";
constexpr std::size_t letrasSorteadas = 12;

/// A name that a save may give to the file it is writing. Saves that run side by side get different ones.
std::string sortearNome() {
    constexpr std::string_view letras = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device sorteio;
    std::uniform_int_distribution<std::size_t> posição{0, letras.size() - 1};
    std::string nome{inícioDoProvisório};
    for (std::size_t n = 0; n < letrasSorteadas; ++n) nome += letras[posição(sorteio)];
    return nome;
}

/// Keeps every other program from taking the file for one that was left behind, for as long as it is open.
/// Where the file system has no locks nobody gets one, and nothing is ever taken for left behind.
bool trancar(int arquivo) { return ::flock(arquivo, LOCK_EX | LOCK_NB) == 0; }

/// Removes what a program killed in the middle of a save left in the folder: provisional files that nobody
/// keeps locked. What can't be looked at or removed stays; no save depends on it.
void varrerRestos(const fs::path& pasta) {
    DIR* aberta = ::opendir(pasta.c_str());
    if (!aberta) return;
    const std::unique_ptr<DIR, int (*)(DIR*)> fechaNoFim{aberta, ::closedir};
    while (const dirent* entrada = ::readdir(aberta)) {
        const std::string_view nome{entrada->d_name};
        if (!nome.starts_with(inícioDoProvisório) ||
            nome.size() != inícioDoProvisório.size() + letrasSorteadas)
            continue;
        const auto caminho = pasta / nome;
        struct stat dados {};
        if (::lstat(caminho.c_str(), &dados) != 0 || !S_ISREG(dados.st_mode)) continue;
        const int resto = ::open(caminho.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW);
        if (resto < 0) continue;
        const Descritor fechaResto{resto};
        if (trancar(resto)) ::unlink(caminho.c_str());
    }
}

/// The file that a save writes before it takes the old one's place, gone with it if it never does. Where the
/// file system allows, it has no name until it is whole, so that a killed program leaves nothing behind.
class Provisório {
  public:
    explicit Provisório(const fs::path& pasta) : pasta_{pasta}, arquivo_{criar()} {}
    Provisório(const Provisório&) = delete;
    Provisório& operator=(const Provisório&) = delete;
    ~Provisório() {
        if (!nome_.empty()) ::unlink(nome_.c_str());
    }

    void escrever(std::string_view bytes, mode_t direitos) {
        trancar(arquivo_.número());
        if (::fchmod(arquivo_.número(), direitos) != 0) falhar(errno);
        while (!bytes.empty()) {
            const auto escritos = ::write(arquivo_.número(), bytes.data(), bytes.size());
            if (escritos < 0 && errno == EINTR) continue;
            if (escritos < 0) falhar(errno);
            if (escritos == 0) falhar(ENOSPC);
            bytes.remove_prefix(static_cast<std::size_t>(escritos));
        }
        if (::fsync(arquivo_.número()) != 0) falhar(errno);
    }

    void tomarOLugarDe(const fs::path& alvo) {
        if (nome_.empty()) darNome();
        // Still open, and so still locked: another program's sweep leaves it alone.
        if (::rename(nome_.c_str(), alvo.c_str()) != 0) falhar(errno);
        nome_.clear();
    }

  private:
    static constexpr const char* abertos = "/proc/self/fd/";

    /// Opens it, nameless if possible; -1 where it can't be opened.
    int criar() {
        // Without this folder a nameless file could not be named later.
        if (::access(abertos, X_OK) == 0) {
            const int semNome = ::open(pasta_.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
            if (semNome >= 0) return semNome;
        }
        return comNomeNovo([](const char* nome) {
            return ::open(nome, O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, 0600);
        });
    }

    void darNome() {
        const auto aberto = abertos + std::to_string(arquivo_.número());
        if (comNomeNovo([&aberto](const char* nome) {
                return ::linkat(AT_FDCWD, aberto.c_str(), AT_FDCWD, nome, AT_SYMLINK_FOLLOW);
            }) < 0)
            falhar(errno);
    }

    /// What `criação` gives for a name that is free; that name is the file's from then on.
    template <class Criação>
    int comNomeNovo(const Criação& criação) {
        for (int tentativas = 100; tentativas > 0; --tentativas) {
            auto nome = (pasta_ / sortearNome()).string();
            const int resultado = criação(nome.c_str());
            if (resultado >= 0) nome_ = std::move(nome);
            if (resultado >= 0 || errno != EEXIST) return resultado;
        }
        return -1;
    }

    fs::path pasta_;
    std::string nome_;
    Descritor arquivo_;
};

} // namespace

void falharNoLimiteDeTamanho() { std::signal(SIGXFSZ, SIG_IGN); }

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

void LeitorDeLinhas::abrir(const std::string& caminho) {
    *this = {};
    try {
        texto_ = lerTexto(caminho);
    } catch (const ErroExecucao& e) {
        motivo_ = e.what();
        throw;
    }
}

bool LeitorDeLinhas::sóRestaBranco() const {
    for (auto k = posição_; k < texto_.size(); ++k) {
        const bool fimDeLinha = texto_[k] == '\r' && (k + 1 == texto_.size() || texto_[k + 1] == '\n');
        if (!fimDeLinha && texto_[k] != '\n' && texto_[k] != ' ' && texto_[k] != '\t') return false;
    }
    return true;
}

std::string LeitorDeLinhas::onde() const {
    if (!motivo_.empty()) return "Motivo: " + motivo_ + ".";
    const auto número = std::to_string(linha_);
    if (terminou_)
        return linha_ == 0 ? "O arquivo está vazio." : "O arquivo termina na linha " + número + ".";
    return linha_ == 0 ? "" : "Linha " + número + " do arquivo.";
}

std::string LeitorDeLinhas::próxima() {
    terminou_ = fim();
    if (terminou_) throw ErroExecucao{"Entrada após o fim do arquivo"};
    ++linha_;
    const auto quebra = texto_.find('\n', posição_);
    const auto fimDaLinha = quebra == std::string::npos ? texto_.size() : quebra;
    if (fimDaLinha - posição_ > maiorLinha) throw ErroExecucao{"a linha é longa demais"};
    auto linha = texto_.substr(posição_, fimDaLinha - posição_);
    posição_ = quebra == std::string::npos ? texto_.size() : quebra + 1;
    if (linha.ends_with('\r')) linha.pop_back();
    return linha;
}

void gravarTexto(const std::string& caminho, std::string_view texto) {
    const auto alvo = destino(caminho);
    struct stat antigo {};
    const bool existe = ::stat(alvo.c_str(), &antigo) == 0;
    if (!existe && errno != ENOENT) falhar(errno);
    if (existe && S_ISDIR(antigo.st_mode)) falhar(EISDIR);
    if (existe && !S_ISREG(antigo.st_mode)) falhar(EINVAL);
    if (existe && ::access(alvo.c_str(), W_OK) != 0) falhar(errno);

    const auto pasta = alvo.has_parent_path() ? alvo.parent_path() : fs::path{"."};
    varrerRestos(pasta);
    // A provisional file is its owner's alone: give it the old file's rights, or those of any new file.
    const mode_t máscara = ::umask(0);
    ::umask(máscara);
    Provisório novo{pasta};
    novo.escrever(texto, existe ? antigo.st_mode & 07777u : 0666u & ~máscara);
    novo.tomarOLugarDe(alvo);
    // The new file is whole and has its name. If the disk lost power before the folder's change reached it,
    // the old one would be back, whole too: so a folder that can't be synchronised is no failure of the save.
    const int aberta = ::open(pasta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (aberta < 0) return;
    const Descritor fechaNoFim{aberta};
    ::fsync(aberta);
}

} // namespace varenta
