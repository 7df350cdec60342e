#include <qz/runtime/text/CodePages.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cstring>

#include <qz/runtime/base/Utf.h>
#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/Format.h>

namespace qz {
namespace {

using platform::TComposing;
using platform::TDecoding;
using platform::TError;
using TSource = std::span<const std::byte>;

std::atomic<std::uint16_t> SystemPage{0}; // 0 while nobody has asked

struct TMark {
    std::uint16_t CodePage;
    std::string_view Bytes;
};

using namespace std::string_view_literals;
// The marks of UTF-32 stand first, as one of them begins with one of UTF-16.
constexpr TMark cMarks[] = {
    {cUtf32SwappedCodePage, "\0\0\xFE\xFF"sv},
    {cUtf32CodePage, "\xFF\xFE\0\0"sv},
    {cUtf8CodePage, "\xEF\xBB\xBF"sv},
    {cUtf16SwappedCodePage, "\xFE\xFF"sv},
    {cUtf16CodePage, "\xFF\xFE"sv},
};

std::string_view Chars(TSource ASource) noexcept {
    return {reinterpret_cast<const char*>(ASource.data()), ASource.size()};
}

std::endian OrderOf(std::uint16_t APage) noexcept {
    return APage == cUtf32SwappedCodePage ? std::endian::big : std::endian::little;
}

std::size_t Refuse(TError& AError, int ACode) noexcept {
    AError.Code = ACode;
    return 0;
}

// Whether ALength units are asked for rather than written; otherwise whether they fit.
bool IsMeasuring(std::size_t ALength, std::size_t ARoom, TError& AError) noexcept {
    AError.Code = ARoom != 0 && ARoom < ALength ? platform::CodeOfTooSmallTarget() : 0;
    return ARoom < ALength;
}

// Writes by AWrite what has ALength units, if it fits; gives the number written or asked for.
template <class TUnit, class TWrite>
std::size_t Deliver(std::size_t ALength, std::span<TUnit> ATarget, TError& AError, const TWrite& AWrite) {
    if (!IsMeasuring(ALength, ATarget.size(), AError) && ALength != 0)
        AWrite(ATarget.data());
    return AError.Code == 0 ? ALength : 0;
}

std::size_t DecodeUtf8(TSource ASource, std::span<char16_t> ATarget, TError& AError) {
    AError.Code = 0;
    const std::string_view Text = Chars(ASource);
    // A byte never gives more than a unit: with that much room there is nothing to measure.
    if (ATarget.size() >= Text.size())
        return static_cast<std::size_t>(Utf8ToUtf16(Text, ATarget.data()) - ATarget.data());
    return Deliver(Utf8ToUtf16Length(Text), ATarget, AError,
                   [&](char16_t* ADest) { Utf8ToUtf16(Text, ADest); });
}

std::size_t EncodeUtf8(std::u16string_view ASource, std::span<char> ATarget, TError& AError) {
    AError.Code = 0;
    if (ATarget.size() / 3 >= ASource.size())
        return static_cast<std::size_t>(Utf16ToUtf8(ASource, ATarget.data()) - ATarget.data());
    return Deliver(Utf16ToUtf8Length(ASource), ATarget, AError,
                   [&](char* ADest) { Utf16ToUtf8(ASource, ADest); });
}

std::size_t DecodeUtf16(TSource ASource, bool ASwapped, std::span<char16_t> ATarget, TError& AError) {
    const std::size_t Units = ASource.size() / 2;
    return Deliver(Units, ATarget, AError, [&](char16_t* ADest) {
        if (ASwapped)
            SwapUnits(ASource.data(), Units, ADest);
        else
            std::memcpy(ADest, ASource.data(), Units * 2);
    });
}

std::size_t EncodeUtf16(std::u16string_view ASource, bool ASwapped, std::span<char> ATarget, TError& AError) {
    return Deliver(ASource.size() * 2, ATarget, AError, [&](char* ADest) {
        if (ASwapped)
            SwapUnits(ASource.data(), ASource.size(), ADest);
        else
            std::memcpy(ADest, ASource.data(), ASource.size() * 2);
    });
}

std::size_t DecodeUtf32(TSource ASource, std::endian AOrder, std::span<char16_t> ATarget, TDecoding ADecoding,
                        TError& AError) {
    if (ADecoding == TDecoding::Strict && !IsValidUtf32(ASource, AOrder))
        return Refuse(AError, platform::CodeOfInvalidText());
    return Deliver(Utf32ToUtf16Length(ASource, AOrder), ATarget, AError,
                   [&](char16_t* ADest) { Utf32ToUtf16(ASource, AOrder, ADest); });
}

std::size_t EncodeUtf32(std::u16string_view ASource, std::endian AOrder, std::span<char> ATarget,
                        TError& AError) {
    return Deliver(Utf16ToUtf32Length(ASource) * 4, ATarget, AError,
                   [&](char* ADest) { Utf16ToUtf32(ASource, AOrder, reinterpret_cast<std::byte*>(ADest)); });
}

// What is left to convert when the first ADone units are done; AStep converts it into what is left of the target.
template <class TUnit, class TStep>
std::size_t FinishBySystem(std::size_t ADone, std::span<TUnit> ATarget, TError& AError, const TStep& AStep) {
    // An empty rest of the target would ask for the length.
    if (!ATarget.empty() && ATarget.size() <= ADone)
        return Refuse(AError, platform::CodeOfTooSmallTarget());
    const std::size_t Rest = AStep(ATarget.empty() ? ATarget : ATarget.subspan(ADone));
    return AError.Code == 0 ? ADone + Rest : 0;
}

// Latin-1 and ASCII: bytes and units are the same as far as both are below a bound; the system does what goes beyond.
std::size_t DecodeNarrow(std::uint16_t APage, TSource ASource, std::span<char16_t> ATarget,
                         TDecoding ADecoding, TError& AError) {
    const std::string_view Text = Chars(ASource);
    const std::size_t Plain = APage == cLatin1CodePage ? Text.size() : AsciiPrefix(Text);
    const auto Widen = [&](char16_t* ADest) { WidenBytes(Text.substr(0, Plain), ADest); };
    if (Plain == Text.size())
        return Deliver(Plain, ATarget, AError, Widen);
    if (ATarget.size() > Plain)
        Widen(ATarget.data());
    return FinishBySystem(Plain, ATarget, AError, [&](std::span<char16_t> ARest) {
        return platform::CodePageToUtf16(APage, ASource.subspan(Plain), ARest, ADecoding, AError);
    });
}

std::size_t EncodeNarrow(std::uint16_t APage, std::u16string_view ASource, std::span<char> ATarget,
                         TComposing AComposing, TError& AError) {
    std::size_t Plain = APage == cLatin1CodePage ? Latin1Prefix(ASource) : AsciiPrefix(ASource);
    const auto Narrow = [&](char* ADest) { NarrowUnits(ASource.substr(0, Plain), ADest); };
    if (Plain == ASource.size())
        return Deliver(Plain, ATarget, AError, Narrow);
    // The next unit may be a mark that joins the last plain one.
    if (AComposing == TComposing::Composite && Plain != 0)
        --Plain;
    if (ATarget.size() > Plain)
        Narrow(ATarget.data());
    return FinishBySystem(Plain, ATarget, AError, [&](std::span<char> ARest) {
        return platform::Utf16ToCodePage(APage, ASource.substr(Plain), ARest, AComposing, AError);
    });
}

} // namespace

std::uint16_t DefaultSystemCodePage() noexcept {
    std::uint16_t Page = SystemPage.load(std::memory_order_relaxed);
    if (Page == 0) {
        Page = static_cast<std::uint16_t>(platform::SystemCodePage());
        std::uint16_t Nobody = 0;
        if (!SystemPage.compare_exchange_strong(Nobody, Page, std::memory_order_relaxed))
            Page = Nobody;
    }
    return Page;
}

std::uint16_t RealCodePage(std::uint16_t ACodePage) noexcept {
    return ACodePage == cSystemCodePage || ACodePage == cNoCodePage ? DefaultSystemCodePage() : ACodePage;
}

void SetDefaultSystemCodePage(std::uint16_t ACodePage) {
    const bool IsWide = ACodePage == cUtf16CodePage || ACodePage == cUtf16SwappedCodePage ||
        ACodePage == cUtf32CodePage || ACodePage == cUtf32SwappedCodePage;
    if (IsWide || ACodePage == cSystemCodePage || ACodePage == cNoCodePage)
        throw EArgumentException(u"The code page %d cannot be the system's", {ACodePage});
    TError Error;
    const char Sample = 'A';
    DecodeCodePage(ACodePage, std::as_bytes(std::span(&Sample, 1)), {}, TDecoding::Lenient, Error);
    if (Error.Code != 0)
        RaiseCodePageError(ACodePage, Error);
    SystemPage.store(ACodePage, std::memory_order_relaxed);
}

std::size_t DecodeCodePage(std::uint16_t ACodePage, TSource ASource, std::span<char16_t> ATarget,
                           TDecoding ADecoding, TError& AError) {
    const std::uint16_t Page = RealCodePage(ACodePage);
    switch (Page) {
    case cUtf8CodePage: return DecodeUtf8(ASource, ATarget, AError);
    case cUtf16CodePage: return DecodeUtf16(ASource, false, ATarget, AError);
    case cUtf16SwappedCodePage: return DecodeUtf16(ASource, true, ATarget, AError);
    case cUtf32CodePage:
    case cUtf32SwappedCodePage: return DecodeUtf32(ASource, OrderOf(Page), ATarget, ADecoding, AError);
    case cAsciiCodePage:
    case cLatin1CodePage: return DecodeNarrow(Page, ASource, ATarget, ADecoding, AError);
    default: return platform::CodePageToUtf16(Page, ASource, ATarget, ADecoding, AError);
    }
}

std::size_t EncodeCodePage(std::uint16_t ACodePage, std::u16string_view ASource, std::span<char> ATarget,
                           TComposing AComposing, TError& AError) {
    const std::uint16_t Page = RealCodePage(ACodePage);
    switch (Page) {
    case cUtf8CodePage: return EncodeUtf8(ASource, ATarget, AError);
    case cUtf16CodePage: return EncodeUtf16(ASource, false, ATarget, AError);
    case cUtf16SwappedCodePage: return EncodeUtf16(ASource, true, ATarget, AError);
    case cUtf32CodePage:
    case cUtf32SwappedCodePage: return EncodeUtf32(ASource, OrderOf(Page), ATarget, AError);
    case cAsciiCodePage:
    case cLatin1CodePage: return EncodeNarrow(Page, ASource, ATarget, AComposing, AError);
    default: return platform::Utf16ToCodePage(Page, ASource, ATarget, AComposing, AError);
    }
}

UnicodeString CodePageToUnicode(std::uint16_t ACodePage, TSource ASource) {
    if (ASource.empty())
        return {};
    TError Error;
    const std::size_t Length = DecodeCodePage(ACodePage, ASource, {}, TDecoding::Lenient, Error);
    if (Error.Code != 0)
        RaiseCodePageError(ACodePage, Error);
    UnicodeString Result = UnicodeString::ForOverwrite(Length);
    if (Length != 0)
        DecodeCodePage(ACodePage, ASource, {Result.UniqueData(), Length}, TDecoding::Lenient, Error);
    if (Error.Code != 0)
        RaiseCodePageError(ACodePage, Error);
    return Result;
}

std::string_view ByteOrderMark(std::uint16_t ACodePage) noexcept {
    const auto* Mark = std::ranges::find(cMarks, ACodePage, &TMark::CodePage);
    return Mark == std::end(cMarks) ? std::string_view() : Mark->Bytes;
}

std::uint16_t CodePageOfMark(std::string_view ABytes) noexcept {
    const auto* Mark =
        std::ranges::find_if(cMarks, [&](const TMark& A) { return ABytes.starts_with(A.Bytes); });
    return Mark == std::end(cMarks) ? std::uint16_t{0} : Mark->CodePage;
}

void RaiseCodePageError(std::uint16_t ACodePage, TError AError) {
    RaiseOSError(AError.Code, Format(u"Code page: %d", {RealCodePage(ACodePage)}));
}

} // namespace qz
