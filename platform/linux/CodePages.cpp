#include "platform/CodePages.h"

#include <cerrno>
#include <climits>
#include <clocale>
#include <memory>

#include <langinfo.h>
#include <unicode/ucnv.h>

#include "platform/linux/Charset.h"
#include "platform/linux/LocaleName.h"

namespace qz::platform {

namespace {

constexpr uint32_t cUtf8Page = 65001;

struct TPageName {
    uint32_t Page;
    const char* Name;
};

// Pages that ICU knows under a name which the number doesn't tell.
constexpr TPageName cConverters[] = {
    {708, "ASMO-708"},      {20273, "ibm-273"},     {20277, "ibm-277"},     {20278, "ibm-278"},
    {20280, "ibm-280"},     {20284, "ibm-284"},     {20285, "ibm-285"},     {20290, "ibm-290"},
    {20297, "ibm-297"},     {20420, "ibm-420"},     {20424, "ibm-424"},     {20838, "ibm-838"},
    {20871, "ibm-871"},     {21025, "ibm-1025"},    {20932, "EUC-JP"},      {51932, "EUC-JP"},
    {20936, "EUC-CN"},      {51936, "EUC-CN"},      {52936, "HZ-GB-2312"},  {38598, "ISO-8859-8"},
    {50220, "ISO-2022-JP"}, {50221, "ISO-2022-JP"}, {50222, "ISO-2022-JP"}, {50225, "ISO-2022-KR"},
    {50227, "ISO-2022-CN"},
};

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

using TConverter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

TConverter OpenConverter(const std::string& AName) {
    UErrorCode Status = U_ZERO_ERROR;
    TConverter Result(ucnv_open(AName.c_str(), &Status), ucnv_close);
    return U_SUCCESS(Status) ? std::move(Result) : TConverter(nullptr, ucnv_close);
}

TConverter OpenPage(uint32_t APage) {
    if (APage == 1200 || APage == 1201 || APage == 12000 || APage == 12001)
        return {nullptr, ucnv_close};
    for (const TPageName& Known : cConverters) {
        if (APage == Known.Page)
            return OpenConverter(Known.Name);
    }
    if (APage > 28590 && APage <= 28606)
        return OpenConverter("ISO-8859-" + std::to_string(APage - 28590));
    for (const char* Prefix : {"windows-", "cp", "ibm-"}) {
        if (TConverter Result = OpenConverter(Prefix + std::to_string(APage)))
            return Result;
    }
    return {nullptr, ucnv_close};
}

// A converter in its first state, or null. The thread keeps the last one, as making one is dear.
UConverter* Converter(uint32_t APage) {
    thread_local uint32_t Page = 0;
    thread_local TConverter Kept(nullptr, ucnv_close);
    if (APage == 0)
        APage = SystemCodePage();
    if (Kept && Page == APage) {
        ucnv_reset(Kept.get()); // the last conversion may have ended by an exception
        return Kept.get();
    }
    TConverter Opened = OpenPage(APage);
    if (!Opened)
        return nullptr;
    ucnv_setFallback(Opened.get(), true);
    if (APage != cUtf8Page && APage != 54936) {
        UErrorCode Status = U_ZERO_ERROR;
        ucnv_setSubstString(Opened.get(), u"?", 1, &Status);
    }
    Page = APage;
    Kept = std::move(Opened);
    return Kept.get();
}

int ErrorOf(UErrorCode AStatus) {
    return AStatus == U_MEMORY_ALLOCATION_ERROR ? ENOMEM : EINVAL;
}

// Calls AStep, which moves the three positions on as ICU's streaming converters do, until it has taken the
// whole source, and makes room as it goes.
template <class TOut, class TUnit, class TStep>
bool Stream(TOut& AOut, const TUnit* ASource, size_t ALength, TError& AError, const TStep& AStep) {
    const TUnit* Limit = ASource + ALength;
    AOut.resize(ALength + 16);
    size_t Written = 0;
    for (;;) {
        UErrorCode Status = U_ZERO_ERROR;
        auto* Target = AOut.data() + Written;
        AStep(&Target, AOut.data() + AOut.size(), &ASource, Limit, &Status);
        Written = static_cast<size_t>(Target - AOut.data());
        if (Status != U_BUFFER_OVERFLOW_ERROR) {
            AError.Code = U_SUCCESS(Status) ? 0 : ErrorOf(Status);
            AOut.resize(AError.Code == 0 ? Written : 0);
            return AError.Code == 0;
        }
        AOut.resize(AOut.size() * 2);
    }
}

template <class TOut> UConverter* Prepare(uint32_t APage, size_t ALength, TOut& AOut, TError& AError) {
    AOut.clear();
    UConverter* Result = ALength <= INT_MAX ? Converter(APage) : nullptr;
    AError.Code = Result != nullptr ? 0 : EINVAL;
    return Result;
}

} // namespace

uint32_t SystemCodePage() {
    static const uint32_t Page = AskSystemCodePage();
    return Page;
}

bool CodePageToUtf16(uint32_t APage, std::span<const std::byte> ABytes, std::u16string& AOut,
                     TError& AError) {
    UConverter* Page = Prepare(APage, ABytes.size(), AOut, AError);
    if (Page == nullptr)
        return false;
    const auto Step = [Page](char16_t** ATarget, const char16_t* ATargetLimit, const char** ASource,
                             const char* ASourceLimit, UErrorCode* AStatus) {
        ucnv_toUnicode(Page, ATarget, ATargetLimit, ASource, ASourceLimit, nullptr, true, AStatus);
    };
    return Stream(AOut, reinterpret_cast<const char*>(ABytes.data()), ABytes.size(), AError, Step);
}

bool Utf16ToCodePage(uint32_t APage, std::u16string_view AText, std::string& AOut, TError& AError) {
    UConverter* Page = Prepare(APage, AText.size(), AOut, AError);
    if (Page == nullptr)
        return false;
    const auto Step = [Page](char** ATarget, const char* ATargetLimit, const char16_t** ASource,
                             const char16_t* ASourceLimit, UErrorCode* AStatus) {
        ucnv_fromUnicode(Page, ATarget, ATargetLimit, ASource, ASourceLimit, nullptr, true, AStatus);
    };
    return Stream(AOut, AText.data(), AText.size(), AError, Step);
}

} // namespace qz::platform
