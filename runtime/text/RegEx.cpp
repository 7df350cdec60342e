#include "runtime/text/RegEx.h"

#include <algorithm>

#include <pcre2.h>

#include "runtime/errors/DescribeException.h"

namespace qz {
namespace {

constexpr std::uint32_t cMatchLimit = 2'000'000; // steps
constexpr std::uint32_t cDepthLimit = 50'000;    // choices that are open at a time
constexpr std::uint32_t cHeapLimit = 64 * 1024;  // KiB

template <auto Free> struct TFree {
    template <class T> void operator()(T* AObject) const noexcept { Free(AObject); }
};
template <class T, auto Free> using THandle = std::unique_ptr<T, TFree<Free>>;
using TMatchData = THandle<pcre2_match_data, pcre2_match_data_free>;

PCRE2_SPTR Units(std::u16string_view AText) {
    static_assert(sizeof(PCRE2_UCHAR) == sizeof(char16_t));
    return reinterpret_cast<PCRE2_SPTR>(AText.data() == nullptr ? u"" : AText.data());
}

UnicodeString ErrorText(int ACode) {
    PCRE2_UCHAR Buffer[256];
    const int Length = pcre2_get_error_message(ACode, Buffer, std::size(Buffer));
    return Length < 0
        ? UnicodeString(u"unknown error")
        : UnicodeString(reinterpret_cast<const char16_t*>(Buffer), static_cast<std::size_t>(Length));
}

std::uint32_t FlagsOf(TRegExOptions AOptions) {
    constexpr std::pair<TRegExOption, std::uint32_t> cFlags[] = {
        {roIgnoreCase, PCRE2_CASELESS},
        {roMultiLine, PCRE2_MULTILINE},
        {roExplicitCapture, PCRE2_NO_AUTO_CAPTURE},
        {roSingleLine, PCRE2_DOTALL},
        {roIgnorePatternSpace, PCRE2_EXTENDED},
    };
    std::uint32_t Flags = PCRE2_UTF | PCRE2_UCP | PCRE2_MATCH_INVALID_UTF | PCRE2_NEVER_BACKSLASH_C;
    for (const auto& [Option, Flag] : cFlags)
        Flags |= AOptions.Contains(Option) ? Flag : 0;
    return Flags;
}

} // namespace

const TClassRec ERegularExpressionError::ClassRec =
    DescribeException<ERegularExpressionError>(u"ERegularExpressionError", u"Text");

struct TRegEx::TCode {
    THandle<pcre2_code, pcre2_code_free> Code;
    THandle<pcre2_match_context, pcre2_match_context_free> Context;
    std::uint32_t MatchFlags = 0;

    TMatchData NewMatchData() const {
        TMatchData Data(pcre2_match_data_create_from_pattern(Code.get(), nullptr));
        if (Data == nullptr)
            throw std::bad_alloc();
        return Data;
    }
};

TRegEx::TRegEx(const TStringArg& APattern, TRegExOptions AOptions) {
    const std::u16string_view Pattern = APattern;
    int Error = 0;
    PCRE2_SIZE Offset = 0;
    auto Code = std::make_shared<TCode>();
    Code->Code.reset(
        pcre2_compile(Units(Pattern), Pattern.size(), FlagsOf(AOptions), &Error, &Offset, nullptr));
    if (Code->Code == nullptr)
        throw ERegularExpressionError(u"Error in regular expression at offset %d: %s",
                                      {static_cast<std::int64_t>(Offset), ErrorText(Error)});
    Code->Context.reset(pcre2_match_context_create(nullptr));
    if (Code->Context == nullptr)
        throw std::bad_alloc();
    pcre2_set_match_limit(Code->Context.get(), cMatchLimit);
    pcre2_set_depth_limit(Code->Context.get(), cDepthLimit);
    pcre2_set_heap_limit(Code->Context.get(), cHeapLimit);
    Code->MatchFlags = AOptions.Contains(roNotEmpty) ? PCRE2_NOTEMPTY : 0;
    // Where the machine has no such compiler, or not for this pattern, the pattern is interpreted.
    pcre2_jit_compile(Code->Code.get(), PCRE2_JIT_COMPLETE);
    FCode = std::move(Code);
}

// The matches of one text, one behind the other.
class TRegEx::TSearch {
public:
    TSearch(const TCode& ACode, std::u16string_view AText, std::size_t AStart)
        : FCode(ACode),
          FText(AText),
          FData(ACode.NewMatchData()),
          FNext(AStart) {}

    // Behind an empty match the next one must not be empty at the same place.
    bool Find() {
        if (FNext > FText.size())
            return false;
        bool Found = Try(FNext, FWasEmpty ? PCRE2_NOTEMPTY_ATSTART | PCRE2_ANCHORED : 0);
        if (!Found && FWasEmpty) {
            const bool IsPair = FText.size() - FNext >= 2 && (FText[FNext] & 0xFC00) == 0xD800 &&
                (FText[FNext + 1] & 0xFC00) == 0xDC00;
            FNext += IsPair ? 2 : 1;
            Found = FNext <= FText.size() && Try(FNext, 0);
        }
        if (!Found)
            return false;
        FWasEmpty = First() == Behind();
        FNext = Behind();
        return true;
    }
    std::size_t First() const { return std::min(Ends()[0], Ends()[1]); }
    std::size_t Behind() const { return Ends()[1]; }
    // The places of all groups.
    std::vector<TGroup> Groups() const {
        std::vector<TGroup> Result(pcre2_get_ovector_count(FData.get()));
        for (std::size_t I = 0; I < Result.size(); ++I) {
            const PCRE2_SIZE* Pair = Ends() + 2 * I;
            if (Pair[0] != PCRE2_UNSET && Pair[1] >= Pair[0])
                Result[I] = {true, static_cast<int>(Pair[0] + 1), static_cast<int>(Pair[1] - Pair[0])};
        }
        return Result;
    }

private:
    const PCRE2_SIZE* Ends() const { return pcre2_get_ovector_pointer(FData.get()); }

    bool Try(std::size_t AStart, std::uint32_t AFlags) {
        const auto Run = [&](std::uint32_t AMore) {
            return pcre2_match(FCode.Code.get(), Units(FText), FText.size(), AStart,
                               FCode.MatchFlags | AFlags | AMore, FData.get(), FCode.Context.get());
        };
        int Outcome = Run(0);
        if (Outcome == PCRE2_ERROR_JIT_STACKLIMIT)
            Outcome = Run(PCRE2_NO_JIT);
        if (Outcome < 0 && Outcome != PCRE2_ERROR_NOMATCH)
            throw ERegularExpressionError(u"Error in matching the regular expression: %s",
                                          {ErrorText(Outcome)});
        return Outcome >= 0;
    }

    const TCode& FCode;
    std::u16string_view FText;
    TMatchData FData;
    std::size_t FNext;
    bool FWasEmpty = false;
};

TGroup TMatch::Place(int AGroup) const noexcept {
    return AGroup >= 0 && AGroup < GroupCount() ? FGroups[static_cast<std::size_t>(AGroup)] : TGroup{};
}

UnicodeString TMatch::Group(int AGroup) const {
    const TGroup Group = Place(AGroup);
    if (!Group.Success)
        return {};
    return FText.View().substr(static_cast<std::size_t>(Group.Index - 1),
                               static_cast<std::size_t>(Group.Length));
}

bool TRegEx::IsMatch(const TStringArg& AText) const {
    return TSearch(*FCode, AText, 0).Find();
}

TMatch TRegEx::Match(const TStringArg& AText, int AStart) const {
    TMatch Result;
    TSearch Search(*FCode, AText, static_cast<std::size_t>(std::max(AStart, 1) - 1));
    if (Search.Find()) {
        Result.FText = UnicodeString(AText.View());
        Result.FGroups = Search.Groups();
    }
    return Result;
}

std::vector<TMatch> TRegEx::Matches(const TStringArg& AText) const {
    std::vector<TMatch> Result;
    UnicodeString Text;
    for (TSearch Search(*FCode, AText, 0); Search.Find();) {
        if (Result.empty())
            Text = UnicodeString(AText.View());
        TMatch& Match = Result.emplace_back();
        Match.FText = Text;
        Match.FGroups = Search.Groups();
    }
    return Result;
}

UnicodeString TRegEx::Replace(const TStringArg& AText, const TStringArg& AReplacement) const {
    const std::u16string_view Text = AText;
    const std::u16string_view Replacement = AReplacement;
    const TMatchData Data = FCode->NewMatchData();
    constexpr std::uint32_t cFlags =
        PCRE2_SUBSTITUTE_GLOBAL | PCRE2_SUBSTITUTE_OVERFLOW_LENGTH | PCRE2_SUBSTITUTE_UNSET_EMPTY;
    UnicodeString Result = UnicodeString::ForOverwrite(Text.size() + Replacement.size() + 64);
    for (;;) {
        PCRE2_SIZE Length = Result.size();
        const int Outcome =
            pcre2_substitute(FCode->Code.get(), Units(Text), Text.size(), 0, cFlags | FCode->MatchFlags,
                             Data.get(), FCode->Context.get(), Units(Replacement), Replacement.size(),
                             reinterpret_cast<PCRE2_UCHAR*>(Result.UniqueData()), &Length);
        if (Outcome >= 0) {
            Result.SetLength(Length);
            return Result;
        }
        if (Outcome != PCRE2_ERROR_NOMEMORY || Length <= Result.size())
            throw ERegularExpressionError(u"Error in matching the regular expression: %s",
                                          {ErrorText(Outcome)});
        Result = UnicodeString::ForOverwrite(Length);
    }
}

TDynArray<UnicodeString> TRegEx::Split(const TStringArg& AText) const {
    const std::u16string_view Text = AText;
    std::vector<UnicodeString> Pieces;
    std::size_t Start = 0;
    for (TSearch Search(*FCode, Text, 0); Search.Find(); Start = Search.Behind())
        Pieces.emplace_back(Text.substr(Start, Search.First() - Start));
    Pieces.emplace_back(Text.substr(Start));
    return TDynArray<UnicodeString>(std::span<const UnicodeString>(Pieces));
}

UnicodeString TRegEx::Escape(const TStringArg& AText) {
    UnicodeString Result;
    for (const char16_t Char : AText.View()) {
        if (std::u16string_view(u"\\^$.|?*+()[]{}#-&~ \t\r\n").find(Char) != std::u16string_view::npos)
            Result += u'\\';
        Result += Char;
    }
    return Result;
}

} // namespace qz
