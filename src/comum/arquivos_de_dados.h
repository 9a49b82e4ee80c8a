#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the screens ask when they read and write the system's text files of data.
namespace varenta {

/// The question before any file is opened.
inline constexpr const char* perguntaDaExtensão =
    "O arquivo deve estar na extensão: *.TXT separado por tabulações!";

/// What comes before the reason where a file of data can't be saved.
inline constexpr const char* falhaAoSalvarDados = "Ocorreu um erro, o aquivo não pode ser salvo ";

/// Asks for the file to open; nothing where the dialog is cancelled or the name is empty.
std::optional<std::string> pedirArquivoDeDados();

/// Asks for a name and writes the text there. A failure is told as `falha` and the reason; a cancelled dialog
/// writes nothing.
void salvarArquivoDeDados(std::string_view texto, std::string_view falha, std::string_view fimDaFalha = "");

/// Writes the text into the file of that name. A failure is told as `falha`, the reason and `fimDaFalha`.
void gravarArquivoDeDados(const std::string& caminho, std::string_view texto, std::string_view falha,
                          std::string_view fimDaFalha);

/// Adds a line of a file, with its end.
void acrescentarLinha(std::string& texto, std::string_view linha);

/// The text, or what stands for it in a file and on screens where it is empty.
std::string ouSubstituto(const std::string& texto, const char* substituto);

/// The cells of a row, separated by tabs or by another sign. A row always has one cell at least.
std::vector<std::string> separarColunas(std::string_view linha, char separador = '\t');

/// Opens a file, and goes back where none was opened, be it that an error, which passes on, cut it short.
template <class Abrir, class Voltar>
void abrirOuVoltar(const Abrir& abrir, const Voltar& voltar) {
    try {
        if (abrir()) return;
    } catch (...) {
        voltar();
        throw;
    }
    voltar();
}

} // namespace varenta
