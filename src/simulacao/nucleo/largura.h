#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// How many points of the wind model go at once. All widths give the same doubles; the widest that the
/// processor has is used, unless the environment's VARENTA_LARGURA names another.
namespace varenta {

/// `escalar`: point by point, on any machine. The others: bits of the vectors of x86-64.
enum class Largura { escalar, bits128, bits256, bits512 };

/// Its name in VARENTA_LARGURA: "escalar", "128", "256", "512".
std::string_view nomeDa(Largura largura);

/// How many go at once: 1, 2, 4 or 8.
std::size_t faixasDa(Largura largura);

/// Those that this processor can run, the widest last.
std::vector<Largura> largurasDisponíveis();

/// The width of the name `pedida`, the widest available where it is empty. Raises a text that says which ones
/// there are where it is none of them.
Largura escolherLargura(std::string_view pedida, const std::vector<Largura>& disponíveis);

/// What VARENTA_LARGURA asked for when it was first called. Raises as `escolherLargura`.
Largura larguraEmUso();

} // namespace varenta
