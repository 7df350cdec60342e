#include <qz/platform/linux/CodePageStream.h>

#include <array>
#include <cerrno>
#include <memory>

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include <qz/platform/linux/Icu.h>

namespace qz::platform::detail {

namespace {

constexpr std::uint32_t cKanaByEscapePage = 50221;
constexpr std::uint32_t cHzPage = 52936;
constexpr std::uint32_t cUtf8Page = 65001;

struct TStreamPage {
    std::uint32_t Page;
    std::uint32_t MaxCharSize; // as Windows counts it
    const char* Converter;
};

// ICU's converters of the pages that have no tables.
constexpr TStreamPage cPages[] = {
    {50220, 5, "ISO-2022-JP"},     {cKanaByEscapePage, 5, "JIS7"}, {50222, 5, "JIS7"},
    {50225, 5, "ISO-2022-KR"},     {50227, 5, "ISO-2022-CN"},      {51932, 3, "EUC-JP"},
    {cHzPage, 5, "HZ-GB-2312"},    {54936, 4, "gb18030"},          {57002, 4, "ISCII,version=0"},
    {57003, 4, "ISCII,version=1"}, {57004, 4, "ISCII,version=5"},  {57005, 4, "ISCII,version=6"},
    {57006, 4, "ISCII,version=1"}, {57007, 4, "ISCII,version=4"},  {57008, 4, "ISCII,version=7"},
    {57009, 4, "ISCII,version=8"}, {57010, 4, "ISCII,version=3"},  {57011, 4, "ISCII,version=2"},
    {65000, 5, "UTF-7"},           {cUtf8Page, 4, "UTF-8"},
};

struct TCloseConverter {
    void operator()(UConverter* AConverter) const noexcept {
        const std::lock_guard Hold(IcuLock());
        ucnv_close(AConverter);
    }
};
using TConverter = std::unique_ptr<UConverter, TCloseConverter>;

TConverter OpenCodePage(std::uint32_t APage) {
    for (const TStreamPage& Known : cPages) {
        if (APage != Known.Page)
            continue;
        UErrorCode Status = U_ZERO_ERROR;
        std::unique_lock Hold(IcuLock());
        UConverter* const Opened = ucnv_open(Known.Converter, &Status);
        Hold.unlock();
        TConverter Result(Opened);
        if (U_SUCCESS(Status))
            return Result;
    }
    return nullptr;
}

// A converter in its first state, or null. The thread keeps the last one, as making one is dear.
UConverter* Converter(std::uint32_t APage) {
    thread_local std::uint32_t Page = 0;
    thread_local TConverter Kept;
    if (Kept && Page == APage) {
        ucnv_reset(Kept.get());
        return Kept.get();
    }
    TConverter Opened = OpenCodePage(APage);
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

TError ErrorOf(UErrorCode AStatus) {
    switch (AStatus) {
    case U_MEMORY_ALLOCATION_ERROR: return ErrorOfMemory();
    case U_BUFFER_OVERFLOW_ERROR: return ErrorOfSmallTarget();
    case U_INVALID_CHAR_FOUND:
    case U_ILLEGAL_CHAR_FOUND:
    case U_TRUNCATED_CHAR_FOUND: return ErrorOfInvalidText();
    default: return TError(EINVAL);
    }
}

// Calls AStep, which moves the target and its own source on as ICU's streaming converters do. What does not
// go into ATarget goes to a place of no interest: to be counted, or to see whether there is anything at all,
// as a converter also asks for room when only an escape sequence is left.
template <class TUnit, class TStep>
TResult<std::size_t> Stream(std::span<TUnit> ATarget, const TStep& AStep) {
    std::array<TUnit, 1024> Scratch;
    std::span<TUnit> Room = ATarget.empty() ? std::span<TUnit>(Scratch) : ATarget;
    for (std::size_t Length = 0;; Room = Scratch) {
        UErrorCode Status = U_ZERO_ERROR;
        TUnit* Target = Room.data();
        AStep(&Target, Room.data() + Room.size(), &Status);
        Length += static_cast<std::size_t>(Target - Room.data());
        if (!ATarget.empty() && Length > ATarget.size())
            Status = U_BUFFER_OVERFLOW_ERROR;
        else if (Status == U_BUFFER_OVERFLOW_ERROR)
            continue;
        if (U_FAILURE(Status))
            return ErrorOf(Status);
        return Length;
    }
}

// Whether the page takes part in strict decoding; see TDecoding.
bool KnowsStrictness(std::uint32_t APage) {
    switch (APage) {
    case 50220:
    case cKanaByEscapePage:
    case 50222:
    case 50225:
    case 50227:
    case 50229:
    case 65000:
    case cUtf8Page: return false;
    default: return APage < 57002 || APage > 57011;
    }
}

// ICU's JIS7 converter shifts to katakana by SO and back by SI. This filter selects katakana by ESC ( I, and
// selects the previous set again where no other selection follows. Bytes come in pieces of any length.
class TKanaByEscape {
public:
    // Calls APut with each byte of the result.
    template <class TPut> void Take(std::string_view ABytes, const TPut& APut) {
        for (const char Byte : ABytes) {
            if (Byte == cShiftOut)
                PutAll("\x1B(I", APut);
            else if (Byte == cShiftIn)
                FPending = true;
            else
                TakeOther(Byte, APut);
        }
    }

    template <class TPut> void End(const TPut& APut) {
        if (FPending)
            PutAll({FSelection.data(), FLength}, APut);
    }

private:
    static constexpr char cShiftOut = '\x0E';
    static constexpr char cShiftIn = '\x0F';
    static constexpr char cEscape = '\x1B';

    template <class TPut> static void PutAll(std::string_view ABytes, const TPut& APut) {
        for (const char Byte : ABytes)
            APut(Byte);
    }

    template <class TPut> void TakeOther(char AByte, const TPut& APut) {
        if (AByte == cEscape) {
            FLength = 0;
            FIsSelecting = true;
        } else {
            End(APut);
        }
        FPending = false;
        APut(AByte);
        if (!FIsSelecting)
            return;
        FSelection[FLength++] = AByte;
        FIsSelecting = FLength < FSelection.size() && (AByte < '0' || AByte > '~');
    }

    std::array<char, 4> FSelection = {cEscape, '(', 'B'}; // the selected set, ASCII at the beginning
    std::size_t FLength = 3;
    bool FIsSelecting = false; // within an escape sequence
    bool FPending = false;     // katakana have ended, and FSelection is not selected again yet
};

// Calls ATake with pieces of the converted bytes.
template <class TTake>
UErrorCode StreamPieces(UConverter* APage, std::u16string_view ASource, bool AIsLast, const TTake& ATake) {
    const char16_t* Source = ASource.data();
    std::array<char, 1024> Scratch;
    UErrorCode Status = U_BUFFER_OVERFLOW_ERROR;
    while (Status == U_BUFFER_OVERFLOW_ERROR) {
        Status = U_ZERO_ERROR;
        char* Target = Scratch.data();
        ucnv_fromUnicode(APage, &Target, Target + Scratch.size(), &Source, ASource.data() + ASource.size(),
                         nullptr, AIsLast, &Status);
        ATake(std::string_view(Scratch.data(), static_cast<std::size_t>(Target - Scratch.data())));
    }
    return Status;
}

// Counts all bytes, and writes those that there is room for.
class TByteCounter {
public:
    explicit TByteCounter(std::span<char> ATarget) : FTarget(ATarget) {}

    void Put(char AByte) {
        if (FLength < FTarget.size())
            FTarget[FLength] = AByte;
        ++FLength;
    }

    void DropLast() { --FLength; }

    TResult<std::size_t> Result(UErrorCode AStatus) const {
        if (U_FAILURE(AStatus))
            return ErrorOf(AStatus);
        if (!FTarget.empty() && FLength > FTarget.size())
            return ErrorOfSmallTarget();
        return FLength;
    }

private:
    std::span<char> FTarget;
    std::size_t FLength = 0;
};

// JIS with katakana by escape sequences.
TResult<std::size_t> StreamKanaByEscape(UConverter* APage, std::u16string_view ASource,
                                        std::span<char> ATarget) {
    TKanaByEscape Filter;
    TByteCounter Bytes(ATarget);
    const auto Put = [&](char AByte) { Bytes.Put(AByte); };
    const UErrorCode Status =
        StreamPieces(APage, ASource, true, [&](std::string_view A) { Filter.Take(A, Put); });
    Filter.End(Put);
    return Bytes.Result(Status);
}

// HZ begins and ends in ASCII. ICU's converter states the mode of the first character even so, and leaves a
// text that ends in Chinese open: a letter before the text and one after it, both dropped, mend that.
TResult<std::size_t> StreamHz(UConverter* APage, std::u16string_view ASource, std::span<char> ATarget) {
    constexpr std::u16string_view Letter = u"a";
    TByteCounter Bytes(ATarget);
    const auto Put = [&](std::string_view A) {
        for (const char Byte : A)
            Bytes.Put(Byte);
    };
    UErrorCode Status = StreamPieces(APage, Letter, false, [](std::string_view) {});
    if (U_SUCCESS(Status))
        Status = StreamPieces(APage, ASource, false, Put);
    if (U_SUCCESS(Status))
        Status = StreamPieces(APage, Letter, true, Put);
    if (U_SUCCESS(Status))
        Bytes.DropLast();
    return Bytes.Result(Status);
}

} // namespace

TResult<std::size_t> StreamToUtf16(std::uint32_t APage, std::span<const std::byte> ASource,
                                   std::span<char16_t> ATarget, TDecoding ADecoding) {
    UConverter* Page = Converter(APage);
    if (Page == nullptr)
        return TError(EINVAL);
    UErrorCode Ignored = U_ZERO_ERROR;
    const bool Strict = ADecoding == TDecoding::Strict && KnowsStrictness(APage);
    ucnv_setToUCallBack(Page, Strict ? UCNV_TO_U_CALLBACK_STOP : UCNV_TO_U_CALLBACK_SUBSTITUTE, nullptr,
                        nullptr, nullptr, &Ignored);
    const char* Source = reinterpret_cast<const char*>(ASource.data());
    const char* Limit = Source + ASource.size();
    return Stream(ATarget, [&](char16_t** AOut, const char16_t* AOutLimit, UErrorCode* AStatus) {
        ucnv_toUnicode(Page, AOut, AOutLimit, &Source, Limit, nullptr, true, AStatus);
    });
}

TResult<std::size_t> StreamFromUtf16(std::uint32_t APage, std::u16string_view ASource,
                                     std::span<char> ATarget) {
    UConverter* Page = Converter(APage);
    if (Page == nullptr)
        return TError(EINVAL);
    if (APage == cKanaByEscapePage)
        return StreamKanaByEscape(Page, ASource, ATarget);
    if (APage == cHzPage)
        return StreamHz(Page, ASource, ATarget);
    const char16_t* Source = ASource.data();
    const char16_t* Limit = Source + ASource.size();
    return Stream(ATarget, [&](char** AOut, const char* AOutLimit, UErrorCode* AStatus) {
        ucnv_fromUnicode(Page, AOut, AOutLimit, &Source, Limit, nullptr, true, AStatus);
    });
}

std::uint32_t StreamMaxCharSize(std::uint32_t APage) {
    for (const TStreamPage& Known : cPages) {
        if (APage == Known.Page)
            return Converter(APage) != nullptr ? Known.MaxCharSize : 0;
    }
    return 0;
}

} // namespace qz::platform::detail
