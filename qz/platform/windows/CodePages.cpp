#include <qz/platform/CodePages.h>

#include <algorithm>
#include <climits>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

// The numbers 1 to 3 stand for settings of the system, not for pages; they are no valid pages to it either.
bool IsKnown(uint32_t APage) {
    return APage == CP_ACP || IsValidCodePage(APage) != 0;
}

// Whether there is work to do. An unknown page is an error without any text, too.
bool Prepare(uint32_t APage, size_t ALength, TError& AError) {
    const bool Ok = ALength <= INT_MAX && IsKnown(APage);
    AError.Code = Ok ? 0 : ERROR_INVALID_PARAMETER;
    return Ok && ALength != 0;
}

// The pages that are converted without flags only; any other value fails there.
bool TakesNoFlags(uint32_t APage) {
    switch (APage) {
    case CP_SYMBOL:
    case 50220:
    case 50221:
    case 50222:
    case 50225:
    case 50227:
    case 50229:
    case CP_UTF7:
    case CP_UTF8: return true;
    default: return APage >= 57002 && APage <= 57011;
    }
}

uint32_t RealPage(uint32_t APage) {
    return APage == CP_ACP ? GetACP() : APage;
}

DWORD FlagsOf(uint32_t APage, TDecoding ADecoding) {
    return ADecoding == TDecoding::Strict && !TakesNoFlags(APage) ? MB_ERR_INVALID_CHARS : 0;
}

DWORD FlagsOf(uint32_t APage, TComposing AComposing) {
    constexpr DWORD Composite = WC_COMPOSITECHECK | WC_DEFAULTCHAR | WC_SEPCHARS | WC_DISCARDNS;
    return AComposing == TComposing::Composite && !TakesNoFlags(APage) && APage != 54936 ? Composite : 0;
}

int SizeOf(size_t ALength) {
    return static_cast<int>(std::min<size_t>(ALength, INT_MAX));
}

// The outcome of a conversion of some text, which the system tells by its length, 0 for failure.
size_t Outcome(int ALength, TError& AError) {
    AError.Code = ALength > 0 ? 0 : LastError();
    return ALength > 0 ? static_cast<size_t>(ALength) : 0;
}

} // namespace

uint32_t SystemCodePage() {
    return GetACP();
}

int CodeOfTooSmallTarget() noexcept {
    return ERROR_INSUFFICIENT_BUFFER;
}

int CodeOfInvalidText() noexcept {
    return ERROR_NO_UNICODE_TRANSLATION;
}

uint32_t CodePageMaxCharSize(uint32_t APage) {
    CPINFO Info;
    return IsKnown(APage) && GetCPInfo(APage, &Info) != 0 ? Info.MaxCharSize : 0;
}

size_t CodePageToUtf16(uint32_t APage, std::span<const std::byte> ASource, std::span<char16_t> ATarget,
                       TDecoding ADecoding, TError& AError) {
    if (!Prepare(APage, ASource.size(), AError))
        return 0;
    const uint32_t Page = RealPage(APage);
    SetLastError(ERROR_SUCCESS); // which a text that gives nothing leaves
    const int Length =
        MultiByteToWideChar(Page, FlagsOf(Page, ADecoding), reinterpret_cast<const char*>(ASource.data()),
                            SizeOf(ASource.size()), detail::Wide(ATarget.data()), SizeOf(ATarget.size()));
    return Outcome(Length, AError);
}

size_t Utf16ToCodePage(uint32_t APage, std::u16string_view ASource, std::span<char> ATarget,
                       TComposing AComposing, TError& AError) {
    if (!Prepare(APage, ASource.size(), AError))
        return 0;
    const uint32_t Page = RealPage(APage);
    SetLastError(ERROR_SUCCESS);
    const int Length =
        WideCharToMultiByte(Page, FlagsOf(Page, AComposing), detail::Wide(ASource.data()),
                            SizeOf(ASource.size()), ATarget.data(), SizeOf(ATarget.size()), nullptr, nullptr);
    return Outcome(Length, AError);
}

} // namespace qz::platform
