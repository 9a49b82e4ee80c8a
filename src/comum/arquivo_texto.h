#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Text files: read whatever their age left them as, written one way, replaced whole or not at all.
namespace varenta {

/// The bytes of a text file as UTF-8 without a byte order mark. Bytes that are no UTF-8 are taken as
/// Windows-1252, with its five undefined bytes as the control characters of the same number.
std::string decodificar(std::string_view bytes);

/// The whole file, decoded; `maiorArquivo` bytes at the most. Raises a run-time error with the reason in
/// Portuguese where it can't be read.
std::string lerTexto(const std::string& caminho);

/// The lines of a text file, one after another. LF and CR LF both end a line; the last one may lack its end.
class LeitorDeLinhas {
  public:
    /// Of no file yet.
    LeitorDeLinhas() = default;
    /// Reads the file. Raises as `lerTexto`.
    explicit LeitorDeLinhas(const std::string& caminho) { abrir(caminho); }
    /// Reads the file, in place of the one before. Raises as `lerTexto`.
    void abrir(const std::string& caminho);

    bool fim() const { return posição_ >= texto_.size(); }
    /// Whether all lines that are left are blank.
    bool sóRestaBranco() const;
    /// The next line without its end. Raises "Entrada após o fim do arquivo" where there is none, and an
    /// error of its own for one longer than `maiorLinha`.
    std::string próxima();

    /// Where the reading stands, as a person is told of a file that is refused: the line that was read last,
    /// the one that the file ends with where more was asked for, or why it couldn't be opened.
    std::string onde() const;

  private:
    std::string texto_;
    std::size_t posição_ = 0, linha_ = 0;
    bool terminou_ = false;
    std::string motivo_;
};

/// From then on a write past the file size that the user was granted fails like one on a full disk, where it
/// would end the program otherwise. For the start of a program.
void falharNoLimiteDeTamanho();

/// Writes `texto` (UTF-8, lines ended by CR LF) in place of the file. The new file takes the old one's name
/// only when it is whole and safely on disk; on failure the old file stays as it was, nothing else is left
/// behind, and a run-time error tells the reason in Portuguese.
void gravarTexto(const std::string& caminho, std::string_view texto);

} // namespace varenta
