// Any bytes, taken as each form of Unicode, become on every path what the plain reference makes of them.
#include <cstring>
#include <string>
#include <vector>

#include "fuzz/Fuzz.h"
#include "tests/runtime/base/UtfReference.h"
#include <qz/runtime/base/Utf.h>
#include <qz/runtime/base/detail/UtfPaths.h>

namespace {

using qz::detail::TUtfPath;

void TryWide(const TUtfPath& APath, std::u16string_view AWide) {
    bool IsValid = false;
    const std::u32string Codes = qz::reference::FromUtf16(AWide, IsValid);
    Require(APath.IsValidUtf16(AWide) == IsValid);
    std::string Narrow(APath.Utf16ToUtf8Length(AWide), '\0');
    Require(APath.Utf16ToUtf8(AWide, Narrow.data()) == Narrow.data() + Narrow.size());
    Require(Narrow == qz::reference::ToUtf8(Codes));
    std::vector<std::byte> Values(4 * APath.Utf16ToUtf32Length(AWide));
    Require(APath.Utf16ToUtf32(AWide, std::endian::big, Values.data()) == Values.data() + Values.size());
    Require(TextOf(reinterpret_cast<const std::uint8_t*>(Values.data()), Values.size()) ==
            qz::reference::ToUtf32(Codes, std::endian::big));
}

void TryBytes(const TUtfPath& APath, std::string_view ABytes) {
    bool IsValid = false;
    const std::u16string Wide = qz::reference::ToUtf16(qz::reference::FromUtf8(ABytes, IsValid));
    std::u16string Units(APath.Utf8ToUtf16Length(ABytes), u'\0');
    Require(APath.Utf8ToUtf16(ABytes, Units.data()) == Units.data() + Units.size());
    Require(Units == Wide && APath.IsValidUtf8(ABytes) == IsValid);
    const auto Values = std::as_bytes(std::span(ABytes));
    Units.resize(APath.Utf32ToUtf16Length(Values, std::endian::little));
    Require(APath.Utf32ToUtf16(Values, std::endian::little, Units.data()) == Units.data() + Units.size());
    Require(Units == qz::reference::ToUtf16(qz::reference::FromUtf32(ABytes, std::endian::little, IsValid)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const std::string_view Bytes = TextOf(AData, ASize);
    std::u16string Units(ASize / 2, u'\0');
    std::memcpy(Units.data(), AData, Units.size() * 2);
    for (const TUtfPath* Path : qz::detail::UtfPaths()) {
        TryBytes(*Path, Bytes);
        TryWide(*Path, Units);
    }
    const std::u16string Wide = qz::Utf8ToUtf16(Bytes);
    for (std::size_t Pos = 0, WidePos = 0; Pos < Bytes.size();)
        Require(qz::NextCodePoint(Bytes, Pos) == qz::NextCodePoint(std::u16string_view(Wide), WidePos));
    return 0;
}
