#include <qz/platform/linux/CodePageTables.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <map>
#include <memory>
#include <mutex>
#include <new>

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include <qz/platform/Fork.h>

namespace qz::platform::detail {

namespace {

constexpr std::size_t cCodes = 0x10000;

// The meaning of a code. An index is a byte, or lead byte * 256 + trail byte.
using TCodeChars = std::vector<char16_t>;
// Character to the character that stands for it.
using TFits = std::map<char16_t, char16_t>;

using TConverter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

const TPageData* FindData(std::uint32_t APage) noexcept {
    const auto Found = std::ranges::lower_bound(CodePageData, APage, {}, &TPageData::Page);
    return Found != CodePageData.end() && Found->Page == APage ? &*Found : nullptr;
}

bool IsLead(const TPageData& AData, std::size_t AByte) {
    for (std::size_t I = 0; I + 1 < AData.Leads.size(); I += 2) {
        const auto First = static_cast<std::uint8_t>(AData.Leads[I]);
        if (AByte >= First && AByte <= static_cast<std::uint8_t>(AData.Leads[I + 1]))
            return true;
    }
    return false;
}

// Calls ASink for each code of the page, lead bytes alone left out.
template <class TSink> void ForEachCode(const TPageData& AData, const TSink& ASink) {
    for (std::size_t Byte = 0; Byte < 256; ++Byte) {
        if (!IsLead(AData, Byte)) {
            ASink(Byte);
            continue;
        }
        for (std::size_t Trail = 0; Trail < 256; ++Trail)
            ASink(Byte * 256 + Trail);
    }
}

char16_t AskConverter(UConverter* AConverter, const TPageData& AData, std::size_t ACode) {
    std::array<char, 3> Bytes = {static_cast<char>(ACode >> 8), static_cast<char>(ACode)};
    std::int32_t First = ACode < 256 ? 1 : 0;
    std::int32_t Length = 2 - First;
    // The third set of EUC has three bytes; this page writes two, and tells it by the trail byte.
    if (AData.Page == 20932 && ACode > 255 && (ACode & 0x80) == 0) {
        Bytes = {'\x8F', Bytes[0], static_cast<char>(ACode | 0x80)};
        First = 0;
        Length = 3;
    }
    std::array<char16_t, 8> Text{};
    UErrorCode Status = U_ZERO_ERROR;
    const std::int32_t Count = ucnv_toUChars(AConverter, Text.data(), static_cast<std::int32_t>(Text.size()),
                                             &Bytes[static_cast<std::size_t>(First)], Length, &Status);
    return U_SUCCESS(Status) && Count == 1 && Text[0] != 0xFFFD ? Text[0] : cNoChar;
}

bool AskIcu(const TPageData& AData, TCodeChars& AChars) {
    UErrorCode Status = U_ZERO_ERROR;
    const TConverter Converter(ucnv_open(AData.Converter, &Status), ucnv_close);
    ucnv_setToUCallBack(Converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &Status);
    if (U_FAILURE(Status))
        return false;
    ForEachCode(AData,
                [&](std::size_t ACode) { AChars[ACode] = AskConverter(Converter.get(), AData, ACode); });
    return true;
}

void Change(const TPageData& AData, TCodeChars& AChars) {
    for (const TCodeRow& Row : AData.Rows) {
        for (std::size_t I = 0; I < Row.Count; ++I)
            AChars[Row.First + I] = Row.Char == cNoChar ? cNoChar : static_cast<char16_t>(Row.Char + I);
    }
    for (const TCharText& Text : AData.Texts)
        std::ranges::copy(Text.Chars, AChars.begin() + Text.First);
}

// The meanings of the page's codes. False if ICU lacks the converter.
bool Decode(const TPageData& AData, TCodeChars& AChars) {
    AChars.assign(cCodes, cNoChar);
    if (AData.Base != 0) {
        TCodeChars Base;
        const TPageData* Found = FindData(AData.Base);
        if (Found == nullptr || !Decode(*Found, Base))
            return false;
        ForEachCode(AData, [&](std::size_t ACode) { AChars[ACode] = Base[ACode]; });
    } else if (!AskIcu(AData, AChars)) {
        return false;
    }
    Change(AData, AChars);
    return true;
}

bool IsWithin(std::span<const TCodeRange> ARanges, std::size_t ACode) {
    return std::ranges::any_of(ARanges, [=](TCodeRange A) { return ACode >= A.First && ACode <= A.Last; });
}

// The best fits of a page and of those that it says it is like. They may name characters that it lacks.
void CollectFits(const TPageData& AData, TFits& AFits) {
    if (const TPageData* Like = AData.FitsLike != 0 ? FindData(AData.FitsLike) : nullptr)
        CollectFits(*Like, AFits);
    for (const TCharText& Text : AData.Fits) {
        for (std::size_t I = 0; I < Text.Chars.size(); ++I) {
            const auto Char = static_cast<char16_t>(Text.First + I);
            if (Text.Chars[I] == cNoChar)
                AFits.erase(Char);
            else
                AFits[Char] = Text.Chars[I];
        }
    }
}

// The code of each character, the default where there is none.
std::vector<std::uint16_t> Encode(const TPageData& AData, const TCodeChars& AChars) {
    std::vector<std::uint16_t> Result(cCodes, AData.Default);
    std::vector<bool> Known(cCodes);
    const auto Set = [&](char16_t AChar, std::size_t ACode) {
        Known[AChar] = true;
        Result[AChar] = static_cast<std::uint16_t>(ACode);
    };
    ForEachCode(AData, [&](std::size_t ACode) {
        const char16_t Char = AChars[ACode];
        if (Char != cNoChar && !IsWithin(AData.DecodedOnly, ACode) &&
            (!Known[Char] || IsWithin(AData.Preferred, ACode)))
            Set(Char, ACode);
    });
    for (const TCharText& Text : AData.Lenient) {
        for (std::size_t I = 0; I < Text.Chars.size(); ++I) {
            if (!IsWithin(AData.DecodedOnly, Text.First + I))
                Set(Text.Chars[I], Text.First + I);
        }
    }
    TFits Fits;
    CollectFits(AData, Fits);
    const std::vector<bool> Own = Known;
    for (const auto& [Char, Fit] : Fits) {
        if (!Own[Char] && Own[Fit])
            Result[Char] = Result[Fit];
    }
    return Result;
}

void FillDecoding(const TPageData& AData, const TCodeChars& AChars, TCodePage& APage) {
    const auto Known = [&](std::size_t ACode) {
        return AChars[ACode] != cNoChar ? AChars[ACode] : APage.UnicodeDefault;
    };
    for (std::size_t Byte = 0; Byte < 256; ++Byte) {
        APage.Single[Byte] = Known(Byte);
        APage.Refused[Byte] = AChars[Byte] == cNoChar ? 1 : 0;
        if (!IsLead(AData, Byte))
            continue;
        APage.Leads[Byte] = static_cast<std::uint8_t>(APage.Pairs.size() + 1);
        TCodeRowChars& Row = APage.Pairs.emplace_back();
        for (std::size_t Trail = 0; Trail < 256; ++Trail)
            Row[Trail] = Known(Byte * 256 + Trail);
    }
    for (const TCharText& Text : AData.Lenient)
        std::ranges::copy(Text.Chars, APage.Single.begin() + Text.First);
    APage.Refuses = std::ranges::count(APage.Refused, 1) != 0;
    const auto InPlace = [&](std::size_t AFirst, std::size_t AEnd) {
        for (std::size_t Byte = AFirst; Byte < AEnd; ++Byte) {
            if (APage.Single[Byte] != Byte || APage.Leads[Byte] != 0)
                return false;
        }
        return true;
    };
    APage.HasAscii = InPlace(0, 0x80);
    APage.HasLatin = APage.HasAscii && InPlace(0xA0, 0x100);
}

std::unique_ptr<const TCodePage> Build(const TPageData& AData) {
    TCodeChars Chars;
    if (!Decode(AData, Chars))
        return nullptr;
    auto Result = std::make_unique<TCodePage>();
    Result->Page = AData.Page;
    Result->Default = AData.Default;
    Result->UnicodeDefault = AData.UnicodeDefault;
    FillDecoding(AData, Chars, *Result);
    std::vector<std::uint16_t> Codes = Encode(AData, Chars);
    if (AData.Leads.empty()) {
        Result->Bytes.resize(cCodes);
        std::ranges::transform(Codes, Result->Bytes.begin(),
                               [](std::uint16_t A) { return static_cast<std::uint8_t>(A); });
    } else {
        Result->Codes = std::move(Codes);
    }
    return Result;
}

constinit std::mutex Making;
[[maybe_unused]] const bool IsWatched = HoldAroundFork(TForkRank::CodePages, [] { return &Making; });

const TCodePage* Keep(std::unique_ptr<const TCodePage> ATables) noexcept {
    std::size_t Slot = FirstCodePageSlot(ATables->Page);
    while (CodePageSlots[Slot].load(std::memory_order_relaxed) != nullptr)
        Slot = (Slot + 1) % cCodePageSlots;
    const TCodePage* Result = ATables.release();
    CodePageSlots[Slot].store(Result, std::memory_order_release);
    return Result;
}

} // namespace

constinit std::array<std::atomic<const TCodePage*>, cCodePageSlots> CodePageSlots{};

bool HasCodePageTables(std::uint32_t APage) noexcept {
    return FindData(APage) != nullptr;
}

TResult<const TCodePage*> MakeCodePageTables(std::uint32_t APage) noexcept {
    const TPageData* Data = FindData(APage);
    if (Data == nullptr)
        return TError(EINVAL);
    try {
        const std::scoped_lock Lock(Making);
        if (const TCodePage* Made = FindCodePageTables(APage))
            return Made;
        std::unique_ptr<const TCodePage> Built = Build(*Data);
        if (Built == nullptr)
            return TError(EINVAL);
        return Keep(std::move(Built));
    } catch (const std::bad_alloc&) {
        return TError(ENOMEM);
    }
}

} // namespace qz::platform::detail
