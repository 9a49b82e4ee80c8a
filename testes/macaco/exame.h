#pragma once

#include <string>
#include <string_view>

/// What must hold after every act, whichever way it was done.
namespace varenta::teste {

/// What is wrong with the screens' records; empty where nothing is. A program that `encerrado` says has ended
/// needs no screen in sight.
std::string exameDosRegistros(bool encerrado);

/// What is wrong with a text that was saved: bytes that are no text, numbers that are none. Empty where
/// nothing is.
std::string exameDoTextoSalvo(std::string_view texto);

/// How the files of a screen are opened again.
class LeituraDeVolta {
  public:
    virtual ~LeituraDeVolta() = default;

    /// Opens what was saved by the screen of that name, in a system that has just started. What is wrong with
    /// it; empty where it is accepted, and for reports, which no screen opens.
    std::string conferir(std::string_view tela, const std::string& caminho);

  private:
    /// From here on questions are answered by yes, and dialogs by this file.
    virtual void preparar(const std::string& caminho) = 0;
    /// What the person has been told since; empty for nothing.
    virtual std::string recados() = 0;
};

/// Resident memory of this process, in MiB.
double memóriaResidente();

} // namespace varenta::teste
