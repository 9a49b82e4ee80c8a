#pragma once

#include <string>

/// The system's calls that the core makes for files, counted, with one of them failing on demand.
namespace varenta::teste {

/// From its making to its end, the `n`-th call (from 1) fails with the number `erro`. A write that is to fail
/// first takes half of what it gets; the one after it fails. Those after the `n`-th fail too, if it is for
/// good.
class FalhaDaChamada {
  public:
    enum Duração { umaVez, deEmDiante };
    FalhaDaChamada(int n, int erro, Duração duração = umaVez);
    /// Every call of that name fails.
    FalhaDaChamada(const char* nome, int erro);
    FalhaDaChamada(const FalhaDaChamada&) = delete;
    FalhaDaChamada& operator=(const FalhaDaChamada&) = delete;
    ~FalhaDaChamada();

    /// The name of the call that failed; empty where fewer were made.
    std::string qualFalhou() const;
};

} // namespace varenta::teste
