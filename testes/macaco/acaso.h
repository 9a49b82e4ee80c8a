#pragma once

#include "apoio/pasta_temporaria.h"
#include "fuzz/hostis.h"

#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <vector>

/// What acts at random draw from: numbers, texts that a person may type, files that a person may pick.
namespace varenta::teste {

class Acaso {
  public:
    /// The same seed draws the same.
    explicit Acaso(unsigned semente);

    /// From 0 to n - 1.
    std::size_t até(std::size_t n) { return std::uniform_int_distribution<std::size_t>{0, n - 1}(sorteio_); }
    bool umEm(std::size_t n) { return até(n) == 0; }
    /// Both ends included.
    int entre(int menor, int maior) { return std::uniform_int_distribution{menor, maior}(sorteio_); }
    template <class Sequência>
    const auto& algumDe(const Sequência& sequência) {
        return std::data(sequência)[até(static_cast<std::size_t>(std::size(sequência)))];
    }

    /// A text for a box or a cell, one half of them small numbers.
    std::string texto();
    /// A file for a dialog: one of the examples, a damaged one, one that an act may have saved, none that can
    /// be read or written; nothing for a dialog that is cancelled.
    std::optional<std::string> arquivo();

    /// Where the files stand. The examples in it are copies.
    const PastaTemporaria& pasta() const { return pasta_; }

  private:
    void danificar(const std::vector<fuzz::Hostil>& danos);

    std::mt19937 sorteio_;
    PastaTemporaria pasta_;
    std::vector<std::string> amostras_, danificadas_;
};

} // namespace varenta::teste
