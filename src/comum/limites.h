#pragma once

#include <cstddef>
#include <cstdint>

/// How much the system takes in and holds. What a file announces and what a person types are held against the
/// same limits, before any memory is asked for; a reader or a grid that needs a limit finds it here.
namespace varenta {

/// Bytes of a text file: larger ones are refused before anything of them is read. A test of the largest size
/// below has some 20 MB.
inline constexpr std::size_t maiorArquivo = std::size_t{64} << 20;

/// Bytes of a line of a text file or a roteiro, and of a text typed into a box, which would be one. The
/// widest row of readings has some 100 kB; a longer line is no text of this system, and would go into a box
/// of a screen whole.
inline constexpr std::size_t maiorLinha = std::size_t{1} << 20;

/// Answers that a roteiro keeps ready for questions and dialogs that haven't come yet.
inline constexpr std::size_t maisRespostas = 1000;

/// Data rows, and data columns, of a grid that takes entries. A test in the field has some dozens.
inline constexpr int maiorLadoDaPlanilha = 10'000;

/// Data cells of a grid that takes entries: a thousand lines of a thousand collectors on each side.
inline constexpr std::int64_t maisCélulasDaPlanilha = 2'000'000;

/// Collectors on a side, and lines of collectors, of a test under wind.
inline constexpr int maiorContagem = 1000;

/// Cells of any table, those of the strip included.
inline constexpr std::int64_t maisCélulas = 10'000'000;

/// Points on a side of the field of intensities: no sprinkler needs as many, and a wild set of parameters
/// would otherwise keep the program at work without end.
inline constexpr int maiorLadoDoCampo = 4000;

} // namespace varenta
