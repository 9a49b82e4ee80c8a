#pragma once

#include "fuzz/apoio_fuzz.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// The text files that the program reads, each tried through the screen that opens it, as a person does.
namespace varenta::fuzz {

/// What stands in boxes and cells before a file is opened.
inline const std::string digitado = "7";
/// Whether a cell holds that, be it in its column's format by now, or nothing.
inline bool comoEraOuVazia(const std::string& célula) { return célula.empty() || númeroDe(célula) == 7; }

struct Formato {
    TelaBase& tela;
    /// Puts onto the screen, which has just been loaded, what a person had typed before.
    void (*digitar)();
    /// Presses what opens a file.
    void (*abrir)();
    /// The bytes that what the screen shows is saved as; empty where it refuses to save.
    std::string (*salvar)();
    std::string (*fotografar)();
    /// Holds the screen against the lines of the file opened (nothing where it couldn't be read): raises
    /// `Defeito` where anything of it isn't as told. Returns whether the file was read.
    bool (*conferir)(const std::optional<Linhas>& linhas);
    /// A file that is read.
    std::string_view bom;
    /// The lines (from 0) whose numbers size the grid before its rows are read.
    std::vector<std::size_t> contagens = {};
};

std::string salvarCom(const std::function<void()>& pressionar);

const Formato& formatoRadial();
const Formato& formatoDeCampo();
const Formato& formatoDeMalha();
const Formato& formatoMóvel();
const Formato& formatoDeParâmetros();

/// Presses what saves a screen. Returns the bytes saved; none where a message refused.
template <class C>
std::string salvarComo(TelaBase& tela, const char* nome, C& controle) {
    return salvarCom([&] { pressionar(tela, nome, controle); });
}

/// Opens a file by its path over a screen that has just been loaded, and checks what becomes of it. Returns
/// whether it was read.
bool abrirCaminho(const Formato& formato, const std::string& caminho, const std::optional<Linhas>& linhas);

/// Opens the bytes as a file and checks what becomes of them: the state, that of the same file with other
/// line ends, with a byte order mark, without its last line end; what was read is saved and read back; a good
/// file is read afterwards as on a screen as new. All of that with `tudo`, otherwise one of it that the bytes
/// choose.
void experimentarArquivo(const Formato& formato, std::string_view bytes, bool tudo);

// The trials, by the names that they go by in the corpora.
void experimentarRadial(std::string_view bytes, bool tudo);
void experimentarCampo(std::string_view bytes, bool tudo);
void experimentarMalha(std::string_view bytes, bool tudo);
void experimentarMovel(std::string_view bytes, bool tudo);
void experimentarParametros(std::string_view bytes, bool tudo);
void experimentarRoteiro(std::string_view bytes, bool tudo);
void experimentarPrefixo(std::string_view bytes, bool tudo);
void experimentarEstrito(std::string_view bytes, bool tudo);

} // namespace varenta::fuzz
