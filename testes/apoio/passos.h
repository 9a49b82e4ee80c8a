#pragma once

#include "apoio/passo.h"

#include <string>
#include <vector>

/// Roteiros as lists of acts, for tests that do something at each of them.
namespace varenta::teste {

/// The acts of a roteiro's text; what it only shows is left out. Paths that dialogs are answered stand
/// relative to `pasta`.
std::vector<Passo> passosDe(const std::string& roteiro, const std::string& pasta);

/// Does it: queues its answers for the tests' platform, in place of any left over, and runs the act. Raises
/// `AtoRecusado` where a person could not do it.
void executar(const Passo& passo);

} // namespace varenta::teste
