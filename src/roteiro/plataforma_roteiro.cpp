#include "comum/plataforma.h"

#include "roteiro/interprete.h"

#include <stdexcept>

/// The platform of a program without windows: whatever the system asks for, the roteiro that runs answers.
namespace varenta::plataforma {
namespace {

Interprete& ativo() {
    if (auto* interprete = Interprete::ativo()) return *interprete;
    throw std::logic_error{"no roteiro runs"};
}

} // namespace

void mensagem(std::string_view texto, std::string_view) { ativo().mensagem(texto); }

bool perguntar(std::string_view texto) { return ativo().perguntar(texto); }

void avisar(std::string_view texto) { ativo().avisar(texto); }

// A script has no pointer to change while an operation runs.
void mostrarAmpulheta(bool) {}

void erroDeExecucao(std::string_view texto) { ativo().erroDeExecucao(texto); }

std::optional<std::string> arquivoParaAbrir(const DialogoArquivo&) { return ativo().arquivoParaAbrir(); }

std::optional<std::string> arquivoParaSalvar(const DialogoArquivo& diálogo) {
    return ativo().arquivoParaSalvar(diálogo);
}

void ajuda(std::optional<int> tópico) { ativo().ajuda(tópico); }
void progresso(double valor, std::string_view texto) { ativo().progresso(valor, texto); }
void respirar() {}

void encerrar() { ativo().encerrar(); }

} // namespace varenta::plataforma
