#include <qz/runtime/base/Utf.h>

#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/base/detail/UtfPaths.h>
#include <qz/runtime/base/detail/UtfScalar.h>

namespace qz {

using detail::BestUtfPath;
using detail::DecodeUtf16;
using detail::DecodeUtf8;

std::size_t Utf8ToUtf16Length(std::string_view AText) noexcept {
    return BestUtfPath().Utf8ToUtf16Length(AText);
}

std::size_t Utf16ToUtf8Length(std::u16string_view AText) noexcept {
    return BestUtfPath().Utf16ToUtf8Length(AText);
}

char16_t* Utf8ToUtf16(std::string_view AText, char16_t* ADest) noexcept {
    return BestUtfPath().Utf8ToUtf16(AText, ADest);
}

char* Utf16ToUtf8(std::u16string_view AText, char* ADest) noexcept {
    return BestUtfPath().Utf16ToUtf8(AText, ADest);
}

std::u16string Utf8ToUtf16(std::string_view AText) {
    std::u16string Result(Utf8ToUtf16Length(AText), u'\0');
    Utf8ToUtf16(AText, Result.data());
    return Result;
}

std::string Utf16ToUtf8(std::u16string_view AText) {
    std::string Result(Utf16ToUtf8Length(AText), '\0');
    Utf16ToUtf8(AText, Result.data());
    return Result;
}

char32_t NextCodePoint(std::string_view AText, std::size_t& APos) noexcept {
    const char* Here = AText.data() + APos;
    const char32_t Code = DecodeUtf8(Here, AText.data() + AText.size());
    APos = static_cast<std::size_t>(Here - AText.data());
    return Code;
}

char32_t NextCodePoint(std::u16string_view AText, std::size_t& APos) noexcept {
    const char16_t* Here = AText.data() + APos;
    const char32_t Code = DecodeUtf16(Here, AText.data() + AText.size());
    APos = static_cast<std::size_t>(Here - AText.data());
    return Code;
}

std::strong_ordering CompareUtf8(std::u16string_view AWide, std::string_view ANarrow) noexcept {
    const char* Here = ANarrow.data();
    const char* End = Here + ANarrow.size();
    std::size_t Done = 0;
    while (Here != End) {
        const char32_t Code =
            static_cast<signed char>(*Here) >= 0 ? static_cast<char32_t>(*Here++) : DecodeUtf8(Here, End);
        const bool IsPair = Code >= 0x10000;
        const char16_t Units[2] = {IsPair ? static_cast<char16_t>(0xD7C0 + (Code >> 10))
                                          : static_cast<char16_t>(Code),
                                   static_cast<char16_t>(0xDC00 + (Code & 0x3FF))};
        for (std::size_t I = 0; I < (IsPair ? 2u : 1u); ++I, ++Done) {
            if (Done == AWide.size())
                return std::strong_ordering::less;
            if (AWide[Done] != Units[I])
                return AWide[Done] <=> Units[I];
        }
    }
    return Done == AWide.size() ? std::strong_ordering::equal : std::strong_ordering::greater;
}

bool IsAscii(std::string_view AText) noexcept {
    return AsciiPrefix(AText) == AText.size();
}

} // namespace qz
