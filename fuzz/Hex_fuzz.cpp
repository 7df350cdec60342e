// Bytes become digits and the same bytes again; any text decodes to half as many bytes, whose digits decode
// to them.

#include "fuzz/Fuzz.h"
#include <qz/runtime/text/BinaryText.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const auto RoundTrip = [](const qz::TBytes& ABytes) {
        const std::string Digits(qz::HexText(std::as_bytes(std::span(ABytes))));
        Require(Digits.size() == 2 * ABytes.size() && qz::HexBytes(Digits) == ABytes);
    };
    RoundTrip(qz::TBytes(std::span(AData, ASize)));
    const qz::TBytes Decoded = qz::HexBytes(TextOf(AData, ASize));
    Require(Decoded.size() == ASize / 2);
    RoundTrip(Decoded);
    return 0;
}
