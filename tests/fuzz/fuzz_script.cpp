// tests/fuzz/fuzz_script.cpp - scripts of acts out of arbitrary bytes.
//
// Besides staying alive: a script has acts or an error with its line, and each act has a line.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "play/script.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    const Script S = Script_Read({reinterpret_cast<const char*>(Data), Size});
    if (S.Error.empty() != (S.Bad_Line == 0) || (!S.Error.empty() && !S.Acts.empty())) std::abort();
    Long Before = 0;
    for (const Act& A : S.Acts) {
        if (A.Line <= Before) std::abort();
        Before = A.Line;
    }
    return 0;
}
