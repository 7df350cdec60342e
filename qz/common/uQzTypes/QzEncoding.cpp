#include <qz/common/uQzTypes/QzEncoding.h>

#include <cstring>
#include <string>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

using platform::TComposing;
using platform::TDecoding;
using TSource = std::span<const std::byte>;

// Bytes before the first terminator of a text in that page.
std::size_t LengthInBytes(const std::byte* ASrc, std::uint16_t ACodePage) {
    const std::size_t Step = ACodePage == cUtf16CodePage || ACodePage == cUtf16SwappedCodePage ? 2
        : QzIsWideCodePage(ACodePage)                                                          ? 4
                                                                                               : 1;
    if (Step == 1)
        return std::strlen(reinterpret_cast<const char*>(ASrc));
    static constexpr std::byte cTerminator[4]{};
    std::size_t Length = 0;
    while (std::memcmp(ASrc + Length, cTerminator, Step) != 0)
        Length += Step;
    return Length;
}

[[noreturn]] void RaiseBadLength(std::int32_t ALen) {
    throw EArgumentOutOfRangeException(u"The length %d is neither a count nor -1", {ALen});
}

TSource BytesOf(const void* ASrc, std::int32_t ALen, std::uint16_t ACodePage) {
    const auto* Bytes = static_cast<const std::byte*>(ASrc);
    if (Bytes == nullptr || ALen == 0)
        return {};
    if (ALen < -1)
        RaiseBadLength(ALen);
    return {Bytes, ALen == -1 ? LengthInBytes(Bytes, ACodePage) : static_cast<std::size_t>(ALen)};
}

std::u16string_view UnitsOf(const char16_t* ASrc, std::int32_t ALen) {
    if (ASrc == nullptr || ALen == 0)
        return {};
    if (ALen < -1)
        RaiseBadLength(ALen);
    return ALen == -1 ? std::u16string_view(ASrc) : std::u16string_view(ASrc, static_cast<std::size_t>(ALen));
}

std::size_t RoomOf(const void* ATarget, std::int32_t ALength) {
    if (ALength < 0)
        RaiseBadLength(ALength);
    return ATarget == nullptr ? 0 : static_cast<std::size_t>(ALength);
}

std::int32_t Checked(std::uint16_t ACodePage, const platform::TResult<std::size_t>& ACount) {
    const std::size_t Count = RequireConverted(ACodePage, ACount);
    if (Count > INT32_MAX)
        RaiseCodePageError(ACodePage, platform::ErrorOfSmallTarget());
    return static_cast<std::int32_t>(Count);
}

RawByteString Encoded(std::u16string_view AText, std::uint16_t ACodePage) {
    return RawByteString::Encoded(AText, ACodePage, TComposing::Composite);
}

} // namespace

QZ_REGISTER_TYPES(TQzEncoding);

constinit const TClassRec TQzEncoding::ClassRec =
    DescribeClass<TQzEncoding>(u"TQzEncoding", {.Unit = u"uQzTypes"});

UnicodeString TQzEncoding::ConvertA(const AnsiString& AText) {
    return CodePageToUnicode(cSystemCodePage, AText.Bytes());
}

UnicodeString TQzEncoding::ConvertA(const RawByteString& AText, std::uint16_t ACodePage) {
    return CodePageToUnicode(ACodePage, AText.Bytes());
}

UnicodeString TQzEncoding::ConvertA(const void* ASrc, std::int32_t ALen, std::uint16_t ACodePage) {
    return CodePageToUnicode(ACodePage, BytesOf(ASrc, ALen, ACodePage));
}

RawByteString TQzEncoding::ConvertA(const void* ASrc, std::int32_t ALen, std::uint16_t ASrcCodePage,
                                    std::uint16_t ADstCodePage) {
    return Encoded(ConvertA(ASrc, ALen, ASrcCodePage), ADstCodePage);
}

std::int32_t TQzEncoding::ConvertA(const void* ASrc, std::int32_t ALen, std::uint16_t ACodePage,
                                   char16_t* ADst, std::int32_t ADstLen) {
    TSource Source = BytesOf(ASrc, ALen, ACodePage);
    // The terminator is converted too: as many zeros as a character of the page has bytes.
    if (ALen == -1 && ASrc != nullptr) {
        const bool IsUtf16 = ACodePage == cUtf16CodePage || ACodePage == cUtf16SwappedCodePage;
        const std::size_t Terminator = !QzIsWideCodePage(ACodePage) ? 1 : IsUtf16 ? 2 : 4;
        Source = {Source.data(), Source.size() + Terminator};
    }
    if (Source.empty())
        return 0;
    return Checked(ACodePage,
                   DecodeCodePage(ACodePage, Source, {ADst, RoomOf(ADst, ADstLen)}, TDecoding::Strict));
}

RawByteString TQzEncoding::ConvertW(const UnicodeString& AText, std::uint16_t ACodePage) {
    return Encoded(AText, ACodePage);
}

RawByteString TQzEncoding::ConvertW(const char16_t* ASrc, std::int32_t ALen, std::uint16_t ACodePage) {
    return Encoded(UnitsOf(ASrc, ALen), ACodePage);
}

std::int32_t TQzEncoding::ConvertW(const char16_t* ASrc, std::int32_t ALen, char* ADst, std::int32_t ADstLen,
                                   std::uint16_t ACodePage) {
    std::u16string_view Source = UnitsOf(ASrc, ALen);
    if (ALen == -1 && ASrc != nullptr)
        Source = {Source.data(), Source.size() + 1};
    if (Source.empty())
        return 0;
    return Checked(ACodePage,
                   EncodeCodePage(ACodePage, Source, {ADst, RoomOf(ADst, ADstLen)}, TComposing::Composite));
}

RawByteString TQzEncoding::ConvertB(const void* ASrc, std::size_t ASize, std::uint16_t ASrcCodePage,
                                    std::uint16_t ADstCodePage) {
    Assert(!QzIsWideCodePage(ADstCodePage), u"An 8-bit text cannot hold the code page");
    if (ASrcCodePage == ADstCodePage)
        return RawByteString(std::string_view(static_cast<const char*>(ASrc), ASize), ADstCodePage);
    // Units that lie where units may lie need not be copied.
    if (ASrcCodePage == cUtf16CodePage && reinterpret_cast<std::uintptr_t>(ASrc) % alignof(char16_t) == 0)
        return Encoded({static_cast<const char16_t*>(ASrc), ASize / 2}, ADstCodePage);
    return Encoded(ConvertB(ASrc, ASize, ASrcCodePage), ADstCodePage);
}

RawByteString TQzEncoding::ConvertB(const TBytes& ABytes, std::uint16_t ASrcCodePage,
                                    std::uint16_t ADstCodePage) {
    return ConvertB(ABytes.data(), ABytes.Length(), ASrcCodePage, ADstCodePage);
}

UnicodeString TQzEncoding::ConvertB(const void* ASrc, std::size_t ASize, std::uint16_t ASrcCodePage) {
    return CodePageToUnicode(ASrcCodePage, {static_cast<const std::byte*>(ASrc), ASize});
}

} // namespace qz
