#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

namespace varenta::teste {

/// An empty folder of its own for a test, gone with all that it holds at the end.
class PastaTemporaria {
  public:
    PastaTemporaria() {
        auto modelo = (std::filesystem::temp_directory_path() / "varenta-teste-XXXXXX").string();
        if (!::mkdtemp(modelo.data())) throw std::runtime_error{"no temporary folder"};
        raiz_ = modelo;
    }
    PastaTemporaria(const PastaTemporaria&) = delete;
    PastaTemporaria& operator=(const PastaTemporaria&) = delete;
    ~PastaTemporaria() {
        std::error_code ignorado;
        std::filesystem::remove_all(raiz_, ignorado);
    }

    std::string caminho(std::string_view nome) const { return (raiz_ / nome).string(); }

    /// Writes the bytes as they are, and returns the file's path.
    std::string gravar(std::string_view nome, std::string_view bytes) const {
        std::ofstream{caminho(nome), std::ios::binary}.write(bytes.data(),
                                                             static_cast<std::streamsize>(bytes.size()));
        return caminho(nome);
    }

    std::string bytes(std::string_view nome) const {
        std::ifstream arquivo{caminho(nome), std::ios::binary};
        return {std::istreambuf_iterator<char>{arquivo}, {}};
    }

    std::set<std::string> nomes() const {
        std::set<std::string> nomes;
        for (const auto& entrada : std::filesystem::directory_iterator{raiz_})
            nomes.insert(entrada.path().filename().string());
        return nomes;
    }

  private:
    std::filesystem::path raiz_;
};

} // namespace varenta::teste
