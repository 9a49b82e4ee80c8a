#include "faltas/chamadas_do_sistema.h"

#include <cerrno>
#include <cstdarg>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace varenta::teste {
namespace {

int faltam = 0; // calls until the one that fails; 0 where none is to fail
int número = 0;
bool paraSempre = false;
std::string_view sempre; // the call that always fails; empty where none does
const char* falhou = nullptr;

/// Whether the call `nome` is the one to fail; errno is set then.
bool deveFalhar(const char* nome) {
    if (nome != sempre) {
        if (faltam == 0) return false;
        if (faltam > 1) {
            --faltam;
            return false;
        }
        if (!paraSempre) faltam = 0;
    }
    falhou = nome;
    errno = número;
    return true;
}

} // namespace

FalhaDaChamada::FalhaDaChamada(int n, int erro, Duração duração) {
    faltam = n;
    paraSempre = duração == deEmDiante;
    número = erro;
    falhou = nullptr;
}

FalhaDaChamada::FalhaDaChamada(const char* nome, int erro) {
    sempre = nome;
    número = erro;
    falhou = nullptr;
}

FalhaDaChamada::~FalhaDaChamada() {
    faltam = 0;
    sempre = {};
}

std::string FalhaDaChamada::qualFalhou() const { return falhou ? falhou : ""; }

} // namespace varenta::teste

// The linker sends the core's calls of X to __wrap_X, and those of __real_X to the system's X.
extern "C" {

using varenta::teste::deveFalhar;

int __real_open(const char*, int, ...);
int __real_access(const char*, int);
int __real_stat(const char*, struct stat*);
int __real_fstat(int, struct stat*);
int __real_fchmod(int, mode_t);
int __real_flock(int, int);
ssize_t __real_read(int, void*, size_t);
ssize_t __real_write(int, const void*, size_t);
int __real_fsync(int);
int __real_close(int);
int __real_linkat(int, const char*, int, const char*, int);
int __real_rename(const char*, const char*);

int __wrap_open(const char* caminho, int modo, ...) {
    if (deveFalhar("open")) return -1;
    va_list resto;
    va_start(resto, modo);
    const int direitos = modo & (O_CREAT | O_TMPFILE) ? va_arg(resto, int) : 0;
    va_end(resto);
    return __real_open(caminho, modo, direitos);
}

int __wrap_access(const char* caminho, int modo) {
    return deveFalhar("access") ? -1 : __real_access(caminho, modo);
}

int __wrap_stat(const char* caminho, struct stat* dados) {
    return deveFalhar("stat") ? -1 : __real_stat(caminho, dados);
}

int __wrap_fstat(int arquivo, struct stat* dados) {
    return deveFalhar("fstat") ? -1 : __real_fstat(arquivo, dados);
}

int __wrap_fchmod(int arquivo, mode_t direitos) {
    return deveFalhar("fchmod") ? -1 : __real_fchmod(arquivo, direitos);
}

int __wrap_flock(int arquivo, int modo) { return deveFalhar("flock") ? -1 : __real_flock(arquivo, modo); }

ssize_t __wrap_read(int arquivo, void* bytes, size_t n) {
    return deveFalhar("read") ? -1 : __real_read(arquivo, bytes, n);
}

ssize_t __wrap_write(int arquivo, const void* bytes, size_t n) {
    static bool curta = false;
    if (curta) {
        curta = false;
        errno = varenta::teste::número;
        return -1;
    }
    if (!deveFalhar("write")) return __real_write(arquivo, bytes, n);
    curta = true;
    return __real_write(arquivo, bytes, n / 2);
}

int __wrap_fsync(int arquivo) { return deveFalhar("fsync") ? -1 : __real_fsync(arquivo); }

// The system lets go of the file even where it reports a failure.
int __wrap_close(int arquivo) {
    const bool falha = deveFalhar("close");
    const int erro = errno;
    const int resultado = __real_close(arquivo);
    if (!falha) return resultado;
    errno = erro;
    return -1;
}

int __wrap_linkat(int deOnde, const char* de, int paraOnde, const char* para, int modo) {
    return deveFalhar("linkat") ? -1 : __real_linkat(deOnde, de, paraOnde, para, modo);
}

int __wrap_rename(const char* de, const char* para) {
    return deveFalhar("rename") ? -1 : __real_rename(de, para);
}
}
