// A parser over a stream in small chunks answers any sequence of operations as one over memory does.

#include "fuzz/Fuzz.h"
#include "tests/common/support/ParserSteps.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    if (ASize < 4)
        return 0;
    const std::uint16_t CodePage = AData[0] % 3 == 0 ? 1252 : AData[0] % 3 == 1 ? 1200 : 65001;
    const std::size_t ChunkSize = AData[1] % 16 + 1;
    // The first part of the input is the text, two bytes of the rest an operation.
    const std::size_t Length = 1 + AData[2] % (ASize - 3);
    const std::string Text(reinterpret_cast<const char*>(AData) + 3, Length);
    qz::TPlainStream Stream(Text);
    qz::TQzTextParser Reference(Text.data(), static_cast<std::ptrdiff_t>(Text.size()), CodePage);
    qz::TChunkedParser Parser(&Stream, CodePage, ChunkSize);
    for (std::size_t I = 3 + Length; I + 1 < ASize; I += 2) {
        if (qz::Try(Reference, AData[I], AData[I + 1]) != qz::Try(Parser, AData[I], AData[I + 1]))
            std::abort();
    }
    return 0;
}
