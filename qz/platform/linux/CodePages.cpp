#include <qz/platform/CodePages.h>

#include <cerrno>
#include <climits>
#include <clocale>
#include <new>

#include <langinfo.h>

#include <qz/platform/linux/Charset.h>
#include <qz/platform/linux/CodePageLoops.h>
#include <qz/platform/linux/CodePageStream.h>
#include <qz/platform/linux/CodePageTables.h>
#include <qz/platform/linux/LocaleName.h>

namespace qz::platform {

namespace {

constexpr uint32_t cUtf8Page = 65001;

uint32_t AskSystemCodePage() {
    const std::string Name = detail::PosixLocaleName("LC_CTYPE");
    if (const locale_t Locale = newlocale(LC_CTYPE_MASK, Name.c_str(), locale_t{})) {
        const uint32_t Page = detail::CodePageOfCharset(nl_langinfo_l(CODESET, Locale));
        freelocale(Locale);
        return Page;
    }
    // Not installed, but its name may tell: "ja_JP.eucJP@modifier".
    const size_t Dot = Name.find('.');
    return Dot == std::string::npos
        ? cUtf8Page
        : detail::CodePageOfCharset(Name.substr(Dot + 1, Name.find('@') - Dot - 1));
}

uint32_t RealPage(uint32_t APage) {
    return APage == 0 ? SystemCodePage() : APage;
}

bool HasGoodLength(size_t ALength, TError& AError) {
    AError.Code = ALength <= INT_MAX ? 0 : EINVAL;
    return AError.Code == 0;
}

// Null for a page that has no tables, without an error, and for one whose tables can't be made.
const detail::TCodePage* TablesOf(uint32_t APage, TError& AError) {
    if (const detail::TCodePage* Tables = detail::FindCodePageTables(APage))
        return Tables;
    AError.Code = 0;
    return detail::HasCodePageTables(APage) ? detail::MakeCodePageTables(APage, AError) : nullptr;
}

} // namespace

uint32_t SystemCodePage() {
    static const uint32_t Page = AskSystemCodePage();
    return Page;
}

int CodeOfTooSmallTarget() noexcept {
    return ENOBUFS;
}

int CodeOfInvalidText() noexcept {
    return EILSEQ;
}

uint32_t CodePageMaxCharSize(uint32_t APage) {
    TError Error;
    const uint32_t Page = RealPage(APage);
    if (const detail::TCodePage* Tables = TablesOf(Page, Error))
        return Tables->IsDouble() ? 2 : 1;
    if (Error.Code == ENOMEM)
        throw std::bad_alloc(); // else the page would count as one that isn't known
    return detail::StreamMaxCharSize(Page);
}

size_t CodePageToUtf16(uint32_t APage, std::span<const std::byte> ASource, std::span<char16_t> ATarget,
                       TDecoding ADecoding, TError& AError) {
    if (!HasGoodLength(ASource.size(), AError))
        return 0;
    const uint32_t Page = RealPage(APage);
    if (const detail::TCodePage* Tables = TablesOf(Page, AError))
        return detail::TablesToUtf16(*Tables, ASource, ATarget, ADecoding, AError);
    return AError.Code == 0 ? detail::StreamToUtf16(Page, ASource, ATarget, ADecoding, AError) : 0;
}

size_t Utf16ToCodePage(uint32_t APage, std::u16string_view ASource, std::span<char> ATarget,
                       TComposing AComposing, TError& AError) {
    if (!HasGoodLength(ASource.size(), AError))
        return 0;
    const uint32_t Page = RealPage(APage);
    if (const detail::TCodePage* Tables = TablesOf(Page, AError))
        return detail::TablesFromUtf16(*Tables, ASource, ATarget, AComposing, AError);
    return AError.Code == 0 ? detail::StreamFromUtf16(Page, ASource, ATarget, AError) : 0;
}

} // namespace qz::platform
