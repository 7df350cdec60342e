#include <qz/platform/CodePages.h>

#include <algorithm>
#include <climits>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

// The numbers 1 to 3 stand for settings of the system, not for pages; they are no valid pages to it either.
bool IsKnown(std::uint32_t APage) {
    return APage == CP_ACP || IsValidCodePage(APage) != 0;
}

// Fails for an unknown page, also without any text.
TResult<> Check(std::uint32_t APage, std::size_t ALength) {
    return TError(ALength <= INT_MAX && IsKnown(APage) ? 0 : ERROR_INVALID_PARAMETER);
}

// The pages that are converted without flags only; any other value fails there.
bool TakesNoFlags(std::uint32_t APage) {
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

std::uint32_t RealPage(std::uint32_t APage) {
    return APage == CP_ACP ? GetACP() : APage;
}

DWORD FlagsOf(std::uint32_t APage, TDecoding ADecoding) {
    return ADecoding == TDecoding::Strict && !TakesNoFlags(APage) ? MB_ERR_INVALID_CHARS : 0;
}

DWORD FlagsOf(std::uint32_t APage, TComposing AComposing) {
    constexpr DWORD Composite = WC_COMPOSITECHECK | WC_DEFAULTCHAR | WC_SEPCHARS | WC_DISCARDNS;
    return AComposing == TComposing::Composite && !TakesNoFlags(APage) && APage != 54936 ? Composite : 0;
}

int SizeOf(std::size_t ALength) {
    return static_cast<int>(std::min<std::size_t>(ALength, INT_MAX));
}

// The system gives the length, or 0 for a failure and for a text that gives nothing.
TResult<std::size_t> LengthOf(int ALength) {
    if (ALength <= 0 && LastError() != 0)
        return TError(LastError());
    return static_cast<std::size_t>(std::max(ALength, 0));
}

} // namespace

std::uint32_t SystemCodePage() {
    return GetACP();
}

std::uint32_t CodePageMaxCharSize(std::uint32_t APage) {
    CPINFO Info;
    return IsKnown(APage) && GetCPInfo(APage, &Info) != 0 ? Info.MaxCharSize : 0;
}

TResult<std::size_t> CodePageToUtf16(std::uint32_t APage, std::span<const std::byte> ASource,
                                     std::span<char16_t> ATarget, TDecoding ADecoding) {
    if (const TResult<> Checked = Check(APage, ASource.size()); !Checked)
        return Checked.Error();
    if (ASource.empty())
        return std::size_t{0};
    const std::uint32_t Page = RealPage(APage);
    SetLastError(ERROR_SUCCESS); // stays for a text that gives nothing
    const int Length =
        MultiByteToWideChar(Page, FlagsOf(Page, ADecoding), reinterpret_cast<const char*>(ASource.data()),
                            SizeOf(ASource.size()), detail::Wide(ATarget.data()), SizeOf(ATarget.size()));
    return LengthOf(Length);
}

TResult<std::size_t> Utf16ToCodePage(std::uint32_t APage, std::u16string_view ASource,
                                     std::span<char> ATarget, TComposing AComposing) {
    if (const TResult<> Checked = Check(APage, ASource.size()); !Checked)
        return Checked.Error();
    if (ASource.empty())
        return std::size_t{0};
    const std::uint32_t Page = RealPage(APage);
    SetLastError(ERROR_SUCCESS);
    const int Length =
        WideCharToMultiByte(Page, FlagsOf(Page, AComposing), detail::Wide(ASource.data()),
                            SizeOf(ASource.size()), ATarget.data(), SizeOf(ATarget.size()), nullptr, nullptr);
    return LengthOf(Length);
}

} // namespace qz::platform
