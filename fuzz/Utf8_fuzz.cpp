// Any bytes become well-formed text, which survives the way to UTF-8 or UTF-32 and back, on every path with the same
// result.
#include <cstring>
#include <string>
#include <vector>

#include "fuzz/Fuzz.h"
#include <qz/runtime/base/UnicodeString.h>
#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/base/detail/UtfPaths.h>

namespace {

// Each path gives what the chosen one does, and well-formed text comes back as it was.
void TryWide(const qz::detail::TUtfPath& APath, std::u16string_view AWide) {
    const std::string Narrow = qz::Utf16ToUtf8(AWide);
    std::vector<char> Bytes(APath.Utf16ToUtf8Length(AWide));
    Require(APath.Utf16ToUtf8(AWide, Bytes.data()) == Bytes.data() + Bytes.size());
    Require(std::string_view(Bytes.data(), Bytes.size()) == Narrow && APath.IsValidUtf8(Narrow));
    const bool IsValid = APath.IsValidUtf16(AWide);
    Require(IsValid == (qz::Utf8ToUtf16(Narrow) == AWide));

    for (const std::endian Order : {std::endian::little, std::endian::big}) {
        std::vector<std::byte> Values(4 * APath.Utf16ToUtf32Length(AWide));
        Require(APath.Utf16ToUtf32(AWide, Order, Values.data()) == Values.data() + Values.size());
        Require(APath.IsValidUtf32(Values, Order));
        std::vector<char16_t> Back(APath.Utf32ToUtf16Length(Values, Order));
        Require(APath.Utf32ToUtf16(Values, Order, Back.data()) == Back.data() + Back.size());
        const std::u16string_view Same(Back.data(), Back.size());
        Require(qz::Utf16ToUtf8(Same) == Narrow && (!IsValid || Same == AWide));
    }
}

void TryNarrow(const qz::detail::TUtfPath& APath, std::string_view ANarrow) {
    std::vector<char16_t> Units(APath.Utf8ToUtf16Length(ANarrow));
    Require(APath.Utf8ToUtf16(ANarrow, Units.data()) == Units.data() + Units.size());
    const std::u16string_view Wide(Units.data(), Units.size());
    Require(Wide == qz::Utf8ToUtf16(ANarrow));
    Require(APath.IsValidUtf8(ANarrow) == (qz::Utf16ToUtf8(Wide) == ANarrow));
    const auto Bytes = std::as_bytes(std::span(ANarrow));
    for (const std::endian Order : {std::endian::little, std::endian::big}) {
        std::vector<char16_t> Values(APath.Utf32ToUtf16Length(Bytes, Order));
        Require(APath.Utf32ToUtf16(Bytes, Order, Values.data()) == Values.data() + Values.size());
        TryWide(APath, {Values.data(), Values.size()});
    }
    TryWide(APath, Wide);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const std::string_view Bytes = TextOf(AData, ASize);
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
    for (const qz::detail::TUtfPath* Path : qz::detail::UtfPaths()) {
        TryNarrow(*Path, Bytes);
        TryWide(*Path, Units);
    }
    return 0;
}
