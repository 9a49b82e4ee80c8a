#include "comum/plataforma.h"

#include <cstdio>
#include <cstdlib>

/// A benchmark asks nothing and is told nothing: whatever a run says ends it, since its time would mean
/// nothing.
namespace varenta::plataforma {
namespace {

[[noreturn]] void parar(std::string_view texto) {
    std::fprintf(stderr, "bancada: %.*s\n", static_cast<int>(texto.size()), texto.data());
    std::exit(1);
}

} // namespace

void mensagem(std::string_view texto, std::string_view) { parar(texto); }
bool perguntar(std::string_view texto) { parar(texto); }
void avisar(std::string_view) {}
void mostrarAmpulheta(bool) {}
void progresso(double, std::string_view) {}
void respirar() {}
void erroDeExecucao(std::string_view texto) { parar(texto); }
std::optional<std::string> arquivoParaAbrir(const DialogoArquivo& diálogo) { parar(diálogo.filtro); }
std::optional<std::string> arquivoParaSalvar(const DialogoArquivo& diálogo) { parar(diálogo.filtro); }
void ajuda(std::optional<int>) { parar("ajuda"); }
void encerrar() { parar("encerrado"); }

} // namespace varenta::plataforma
