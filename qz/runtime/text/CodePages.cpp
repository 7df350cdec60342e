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
using TCount = platform::TResult<std::size_t>;
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

// Writes by AWrite what has ALength units, if there is a target. Gives the number of units.
template <class TUnit, class TWrite>
TCount Deliver(std::size_t ALength, std::span<TUnit> ATarget, const TWrite& AWrite) {
    if (!ATarget.empty() && ATarget.size() < ALength)
        return platform::ErrorOfSmallTarget();
    if (!ATarget.empty() && ALength != 0)
        AWrite(ATarget.data());
    return ALength;
}

TCount DecodeUtf8(TSource ASource, std::span<char16_t> ATarget) {
    const std::string_view Text = Chars(ASource);
    // A byte never gives more than a unit: with that much room there is nothing to measure.
    if (ATarget.size() >= Text.size())
        return static_cast<std::size_t>(Utf8ToUtf16(Text, ATarget.data()) - ATarget.data());
    return Deliver(Utf8ToUtf16Length(Text), ATarget, [&](char16_t* ADest) { Utf8ToUtf16(Text, ADest); });
}

TCount EncodeUtf8(std::u16string_view ASource, std::span<char> ATarget) {
    if (ATarget.size() / 3 >= ASource.size())
        return static_cast<std::size_t>(Utf16ToUtf8(ASource, ATarget.data()) - ATarget.data());
    return Deliver(Utf16ToUtf8Length(ASource), ATarget, [&](char* ADest) { Utf16ToUtf8(ASource, ADest); });
}

TCount DecodeUtf16(TSource ASource, bool ASwapped, std::span<char16_t> ATarget) {
    const std::size_t Units = ASource.size() / 2;
    return Deliver(Units, ATarget, [&](char16_t* ADest) {
        if (ASwapped)
            SwapUnits(ASource.data(), Units, ADest);
        else
            std::memcpy(ADest, ASource.data(), Units * 2);
    });
}

TCount EncodeUtf16(std::u16string_view ASource, bool ASwapped, std::span<char> ATarget) {
    return Deliver(ASource.size() * 2, ATarget, [&](char* ADest) {
        if (ASwapped)
            SwapUnits(ASource.data(), ASource.size(), ADest);
        else
            std::memcpy(ADest, ASource.data(), ASource.size() * 2);
    });
}

TCount DecodeUtf32(TSource ASource, std::endian AOrder, std::span<char16_t> ATarget, TDecoding ADecoding) {
    if (ADecoding == TDecoding::Strict && !IsValidUtf32(ASource, AOrder))
        return platform::ErrorOfInvalidText();
    return Deliver(Utf32ToUtf16Length(ASource, AOrder), ATarget,
                   [&](char16_t* ADest) { Utf32ToUtf16(ASource, AOrder, ADest); });
}

TCount EncodeUtf32(std::u16string_view ASource, std::endian AOrder, std::span<char> ATarget) {
    return Deliver(Utf16ToUtf32Length(ASource) * 4, ATarget,
                   [&](char* ADest) { Utf16ToUtf32(ASource, AOrder, reinterpret_cast<std::byte*>(ADest)); });
}

// Has AStep convert into the rest of the target, after the first ADone units are done.
template <class TUnit, class TStep>
TCount FinishBySystem(std::size_t ADone, std::span<TUnit> ATarget, const TStep& AStep) {
    // An empty rest of the target would ask for the length.
    if (!ATarget.empty() && ATarget.size() <= ADone)
        return platform::ErrorOfSmallTarget();
    const TCount Rest = AStep(ATarget.empty() ? ATarget : ATarget.subspan(ADone));
    if (!Rest)
        return Rest;
    return ADone + *Rest;
}

// Latin-1 and ASCII: bytes and units are the same up to a bound; the system converts what lies above it.
TCount DecodeNarrow(std::uint16_t APage, TSource ASource, std::span<char16_t> ATarget, TDecoding ADecoding) {
    const std::string_view Text = Chars(ASource);
    const std::size_t Plain = APage == cLatin1CodePage ? Text.size() : AsciiPrefix(Text);
    const auto Widen = [&](char16_t* ADest) { WidenBytes(Text.substr(0, Plain), ADest); };
    if (Plain == Text.size())
        return Deliver(Plain, ATarget, Widen);
    if (ATarget.size() > Plain)
        Widen(ATarget.data());
    return FinishBySystem(Plain, ATarget, [&](std::span<char16_t> ARest) {
        return platform::CodePageToUtf16(APage, ASource.subspan(Plain), ARest, ADecoding);
    });
}

TCount EncodeNarrow(std::uint16_t APage, std::u16string_view ASource, std::span<char> ATarget,
                    TComposing AComposing) {
    std::size_t Plain = APage == cLatin1CodePage ? Latin1Prefix(ASource) : AsciiPrefix(ASource);
    const auto Narrow = [&](char* ADest) { NarrowUnits(ASource.substr(0, Plain), ADest); };
    if (Plain == ASource.size())
        return Deliver(Plain, ATarget, Narrow);
    // The next unit may be a mark that joins the last plain one.
    if (AComposing == TComposing::Composite && Plain != 0)
        --Plain;
    if (ATarget.size() > Plain)
        Narrow(ATarget.data());
    return FinishBySystem(Plain, ATarget, [&](std::span<char> ARest) {
        return platform::Utf16ToCodePage(APage, ASource.substr(Plain), ARest, AComposing);
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
    const char Sample = 'A';
    RequireConverted(ACodePage,
                     DecodeCodePage(ACodePage, std::as_bytes(std::span(&Sample, 1)), {}, TDecoding::Lenient));
    SystemPage.store(ACodePage, std::memory_order_relaxed);
}

TCount DecodeCodePage(std::uint16_t ACodePage, TSource ASource, std::span<char16_t> ATarget,
                      TDecoding ADecoding) {
    const std::uint16_t Page = RealCodePage(ACodePage);
    switch (Page) {
    case cUtf8CodePage: return DecodeUtf8(ASource, ATarget);
    case cUtf16CodePage: return DecodeUtf16(ASource, false, ATarget);
    case cUtf16SwappedCodePage: return DecodeUtf16(ASource, true, ATarget);
    case cUtf32CodePage:
    case cUtf32SwappedCodePage: return DecodeUtf32(ASource, OrderOf(Page), ATarget, ADecoding);
    case cAsciiCodePage:
    case cLatin1CodePage: return DecodeNarrow(Page, ASource, ATarget, ADecoding);
    default: return platform::CodePageToUtf16(Page, ASource, ATarget, ADecoding);
    }
}

TCount EncodeCodePage(std::uint16_t ACodePage, std::u16string_view ASource, std::span<char> ATarget,
                      TComposing AComposing) {
    const std::uint16_t Page = RealCodePage(ACodePage);
    switch (Page) {
    case cUtf8CodePage: return EncodeUtf8(ASource, ATarget);
    case cUtf16CodePage: return EncodeUtf16(ASource, false, ATarget);
    case cUtf16SwappedCodePage: return EncodeUtf16(ASource, true, ATarget);
    case cUtf32CodePage:
    case cUtf32SwappedCodePage: return EncodeUtf32(ASource, OrderOf(Page), ATarget);
    case cAsciiCodePage:
    case cLatin1CodePage: return EncodeNarrow(Page, ASource, ATarget, AComposing);
    default: return platform::Utf16ToCodePage(Page, ASource, ATarget, AComposing);
    }
}

UnicodeString CodePageToUnicode(std::uint16_t ACodePage, TSource ASource) {
    if (ASource.empty())
        return {};
    const std::size_t Length =
        RequireConverted(ACodePage, DecodeCodePage(ACodePage, ASource, {}, TDecoding::Lenient));
    UnicodeString Result = UnicodeString::ForOverwrite(Length);
    if (Length != 0)
        RequireConverted(
            ACodePage, DecodeCodePage(ACodePage, ASource, {Result.UniqueData(), Length}, TDecoding::Lenient));
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

void RaiseCodePageError(std::uint16_t ACodePage, platform::TError AError) {
    RaiseOSError(AError.Code, Format(u"Code page: %d", {RealCodePage(ACodePage)}));
}

} // namespace qz
