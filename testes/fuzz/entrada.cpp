#include "fuzz/formatos.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// The entry that the fuzzer calls with one input after another, for the trial `ENSAIO`.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dados, std::size_t tamanho) {
    try {
        varenta::fuzz::ENSAIO({reinterpret_cast<const char*>(dados), tamanho}, false);
    } catch (const varenta::fuzz::Defeito& defeito) {
        std::fprintf(stderr, "%s\n", defeito.what());
        std::abort();
    }
    return 0;
}
