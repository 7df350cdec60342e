// Any bytes become well-formed text, which survives the way to UTF-8 and back.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "runtime/text/UnicodeString.h"

namespace {

void Require(bool ACondition) {
    if (!ACondition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const std::string_view Bytes(reinterpret_cast<const char*>(AData), ASize);
    const std::u16string Wide = qz::Utf8ToUtf16(Bytes);
    Require(Wide.size() == qz::Utf8ToUtf16Length(Bytes) && Wide.size() <= ASize);
    Require(qz::UnicodeString(Bytes) == Wide);
    const std::string Narrow = qz::Utf16ToUtf8(Wide);
    Require(Narrow.size() == qz::Utf16ToUtf8Length(Wide) && qz::Utf8ToUtf16(Narrow) == Wide);
    std::size_t Codes = 0;
    for (std::size_t Pos = 0; Pos < Bytes.size(); ++Codes)
        qz::NextCodePoint(Bytes, Pos);
    std::size_t SameCodes = 0;
    for (std::size_t Pos = 0; Pos < Wide.size(); ++SameCodes)
        qz::NextCodePoint(std::u16string_view(Wide), Pos);
    Require(Codes == SameCodes);

    std::u16string Units(ASize / 2, u'\0');
    if (!Units.empty())
        std::memcpy(Units.data(), AData, Units.size() * 2);
    const std::string Mended = qz::Utf16ToUtf8(Units);
    Require(qz::Utf16ToUtf8(qz::Utf8ToUtf16(Mended)) == Mended);
    return 0;
}
