#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace varenta {

/// A table of doubles, row by row, rows and columns counted from 0. New cells are 0.
class Matriz {
  public:
    Matriz() = default;
    Matriz(std::size_t linhas, std::size_t colunas)
        : linhas_{linhas}, colunas_{colunas}, valores_(linhas * colunas) {}

    std::size_t linhas() const { return linhas_; }
    std::size_t colunas() const { return colunas_; }
    std::span<const double> valores() const { return valores_; }
    std::span<double> linha(std::size_t l) { return linhas(l, 1); }
    /// `quantas` rows from `l` on, one after another.
    std::span<double> linhas(std::size_t l, std::size_t quantas) {
        return std::span{valores_}.subspan(l * colunas_, quantas * colunas_);
    }
    std::span<const double> linha(std::size_t l) const {
        return std::span{valores_}.subspan(l * colunas_, colunas_);
    }

  private:
    std::size_t linhas_ = 0, colunas_ = 0;
    std::vector<double> valores_;
};

} // namespace varenta
