#include <qz/runtime/base/UtfForms.h>

#include <qz/runtime/base/detail/UtfPaths.h>

namespace qz {

using detail::BestUtfPath;

std::size_t AsciiPrefix(std::string_view AText) noexcept {
    return BestUtfPath().AsciiBytes(AText);
}

std::size_t AsciiPrefix(std::u16string_view AText) noexcept {
    return BestUtfPath().AsciiUnits(AText);
}

std::size_t Latin1Prefix(std::u16string_view AText) noexcept {
    return BestUtfPath().Latin1Units(AText);
}

void WidenBytes(std::string_view AText, char16_t* ADest) noexcept {
    BestUtfPath().WidenBytes(AText, ADest);
}

void NarrowUnits(std::u16string_view AText, char* ADest) noexcept {
    BestUtfPath().NarrowUnits(AText, ADest);
}

void SwapUnits(const void* ASource, std::size_t AUnits, void* ADest) noexcept {
    BestUtfPath().SwapUnits(ASource, AUnits, ADest);
}

bool IsValidUtf8(std::string_view AText) noexcept {
    return BestUtfPath().IsValidUtf8(AText);
}

bool IsValidUtf16(std::u16string_view AText) noexcept {
    return BestUtfPath().IsValidUtf16(AText);
}

bool IsValidUtf32(std::span<const std::byte> ABytes, std::endian AOrder) noexcept {
    return BestUtfPath().IsValidUtf32(ABytes, AOrder);
}

std::size_t Utf32ToUtf16Length(std::span<const std::byte> ABytes, std::endian AOrder) noexcept {
    return BestUtfPath().Utf32ToUtf16Length(ABytes, AOrder);
}

char16_t* Utf32ToUtf16(std::span<const std::byte> ABytes, std::endian AOrder, char16_t* ADest) noexcept {
    return BestUtfPath().Utf32ToUtf16(ABytes, AOrder, ADest);
}

std::size_t Utf16ToUtf32Length(std::u16string_view AText) noexcept {
    return BestUtfPath().Utf16ToUtf32Length(AText);
}

std::byte* Utf16ToUtf32(std::u16string_view AText, std::endian AOrder, std::byte* ADest) noexcept {
    return BestUtfPath().Utf16ToUtf32(AText, AOrder, ADest);
}

} // namespace qz
