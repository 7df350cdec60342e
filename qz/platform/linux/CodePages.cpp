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

constexpr std::uint32_t cUtf8Page = 65001;

std::uint32_t AskSystemCodePage() {
    const std::string Name = detail::PosixLocaleName("LC_CTYPE");
    if (const locale_t Locale = newlocale(LC_CTYPE_MASK, Name.c_str(), locale_t{})) {
        const std::uint32_t Page = detail::CodePageOfCharset(nl_langinfo_l(CODESET, Locale));
        freelocale(Locale);
        return Page;
    }
    // Not installed, but its name may tell: "ja_JP.eucJP@modifier".
    const std::size_t Dot = Name.find('.');
    return Dot == std::string::npos
        ? cUtf8Page
        : detail::CodePageOfCharset(Name.substr(Dot + 1, Name.find('@') - Dot - 1));
}

std::uint32_t RealPage(std::uint32_t APage) {
    return APage == 0 ? SystemCodePage() : APage;
}

// Null for a page that has no tables. Fails where they cannot be made.
TResult<const detail::TCodePage*> TablesOf(std::uint32_t APage) {
    if (const detail::TCodePage* Tables = detail::FindCodePageTables(APage))
        return Tables;
    if (!detail::HasCodePageTables(APage))
        return nullptr;
    return detail::MakeCodePageTables(APage);
}

} // namespace

std::uint32_t SystemCodePage() {
    static const std::uint32_t Page = AskSystemCodePage();
    return Page;
}

std::uint32_t CodePageMaxCharSize(std::uint32_t APage) {
    const std::uint32_t Page = RealPage(APage);
    const TResult<const detail::TCodePage*> Tables = TablesOf(Page);
    if (*Tables != nullptr)
        return (*Tables)->IsDouble() ? 2 : 1;
    if (Tables.Code() == ENOMEM)
        throw std::bad_alloc(); // else the page would count as an unknown one
    return detail::StreamMaxCharSize(Page);
}

TResult<std::size_t> CodePageToUtf16(std::uint32_t APage, std::span<const std::byte> ASource,
                                     std::span<char16_t> ATarget, TDecoding ADecoding) {
    if (ASource.size() > INT_MAX)
        return TError(EINVAL);
    const std::uint32_t Page = RealPage(APage);
    const TResult<const detail::TCodePage*> Tables = TablesOf(Page);
    if (!Tables)
        return Tables.Error();
    return *Tables != nullptr ? detail::TablesToUtf16(**Tables, ASource, ATarget, ADecoding)
                              : detail::StreamToUtf16(Page, ASource, ATarget, ADecoding);
}

TResult<std::size_t> Utf16ToCodePage(std::uint32_t APage, std::u16string_view ASource,
                                     std::span<char> ATarget, TComposing AComposing) {
    if (ASource.size() > INT_MAX)
        return TError(EINVAL);
    const std::uint32_t Page = RealPage(APage);
    const TResult<const detail::TCodePage*> Tables = TablesOf(Page);
    if (!Tables)
        return Tables.Error();
    return *Tables != nullptr ? detail::TablesFromUtf16(**Tables, ASource, ATarget, AComposing)
                              : detail::StreamFromUtf16(Page, ASource, ATarget);
}

} // namespace qz::platform
