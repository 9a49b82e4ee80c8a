#pragma once

#include <stdexcept>

namespace varenta {

/// A mistake in the roteiro, with the reason in Portuguese. It ends the run, also from amidst a handler that
/// asks for an answer that was never queued: nothing but the interpreter catches it.
class ErroDeRoteiro : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What the roteiro brings out can't be written, with the reason in Portuguese. It ends the run too.
class FalhaDeSaída : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace varenta
