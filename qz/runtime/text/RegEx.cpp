#include <qz/runtime/text/RegEx.h>

#include <algorithm>
#include <chrono>

#include <pcre2.h>

#include <qz/runtime/base/Utf.h>
#include <qz/runtime/objects/DescribeException.h>

namespace qz {
namespace {

constexpr std::uint32_t cMatchLimit = 2'000'000; // steps at one place of the text
constexpr std::uint32_t cHeapLimit = 64 * 1024;  // KiB for choices that are open

// The steps that a whole search may take before it is limited, shared by all start positions.
constexpr std::size_t cSteps = 400'000'000;
constexpr std::size_t cLeastSteps = 500;

// A search that is watched looks at its pace now and then. One that takes long, and gets on more slowly than
// any sound pattern, ends.
constexpr std::size_t cWindow = 2048; // units between two looks, less in a long text
constexpr std::size_t cWindowTimesText = 2'000'000'000;
constexpr std::chrono::seconds cPatience{3};
constexpr double cLeastPace = 200'000; // units a second

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
    std::uint32_t Flags =
        PCRE2_UTF | PCRE2_UCP | PCRE2_MATCH_INVALID_UTF | PCRE2_NEVER_BACKSLASH_C | PCRE2_USE_OFFSET_LIMIT;
    for (const auto& [Option, Flag] : cFlags)
        Flags |= AOptions.Contains(Option) ? Flag : 0;
    return Flags;
}

} // namespace

const TClassRec ERegularExpressionError::ClassRec =
    DescribeException<ERegularExpressionError>(u"ERegularExpressionError", u"System");

struct TRegEx::TCode {
    THandle<pcre2_code, pcre2_code_free> Code;
    THandle<pcre2_match_context, pcre2_match_context_free> Context;
    std::uint32_t MatchFlags = 0;
    bool IsAnchored = false;   // matches where a search starts, if at all
    bool IsOfOnePiece = false; // the pattern may depend on where the search started, or stop it

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
    pcre2_set_heap_limit(Code->Context.get(), cHeapLimit);
    Code->MatchFlags = AOptions.Contains(roNotEmpty) ? PCRE2_NOTEMPTY : 0;
    std::uint32_t Options = 0;
    pcre2_pattern_info(Code->Code.get(), PCRE2_INFO_ALLOPTIONS, &Options);
    Code->IsAnchored = (Options & PCRE2_ANCHORED) != 0;
    Code->IsOfOnePiece =
        Pattern.find(u"\\G") != std::u16string_view::npos || Pattern.find(u"(*") != std::u16string_view::npos;
    // Where the machine has no such compiler, or not for this pattern, the pattern is interpreted.
    pcre2_jit_compile(Code->Code.get(), PCRE2_JIT_COMPLETE);
    FCode = std::move(Code);
}

// The matches of one text, one after the other.
class TRegEx::TSearch {
public:
    TSearch(const TCode& ACode, std::u16string_view AText, std::size_t AStart)
        : FCode(ACode),
          FText(AText),
          FData(ACode.NewMatchData()),
          FContext(pcre2_match_context_copy(ACode.Context.get())),
          FNext(AStart) {
        if (FContext == nullptr)
            throw std::bad_alloc();
    }

    // After an empty match the next one must not be empty at the same place.
    bool Find() {
        if (FNext > FText.size())
            return false;
        bool Found = Try(FNext, FWasEmpty ? PCRE2_NOTEMPTY_ATSTART | PCRE2_ANCHORED : 0);
        if (!Found && FWasEmpty) {
            FNext += IsWithinPair(FNext + 1) ? 2 : 1;
            Found = FNext <= FText.size() && Try(FNext, 0);
        }
        if (!Found)
            return false;
        FWasEmpty = First() == Behind();
        FDone += Behind() - std::min(FNext, Behind()) + 16;
        FNext = Behind();
        CheckPace();
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

    bool IsWithinPair(std::size_t AAt) const {
        return AAt > 0 && AAt < FText.size() && IsHighSurrogate(FText[AAt - 1]) && IsLowSurrogate(FText[AAt]);
    }

    // Looks for a match that begins at AStart or after it.
    bool Try(std::size_t AStart, std::uint32_t AFlags) {
        const std::size_t Rest = FText.size() - AStart;
        if (FCode.IsAnchored || (AFlags & PCRE2_ANCHORED) != 0)
            return Judge(Run(AStart, AFlags, cMatchLimit, PCRE2_UNSET));
        const auto Limit = static_cast<std::uint32_t>(
            std::clamp<std::size_t>(cSteps / (Rest + 1), cLeastSteps, cMatchLimit));
        const int Outcome = Run(AStart, AFlags, Limit, PCRE2_UNSET);
        const bool IsWatched = Outcome == PCRE2_ERROR_MATCHLIMIT && !FCode.IsOfOnePiece;
        return IsWatched ? TryWatched(AStart, AFlags) : Judge(Outcome);
    }

    // The same, a stretch of the text at a time.
    bool TryWatched(std::size_t AStart, std::uint32_t AFlags) {
        const std::size_t Window =
            std::clamp<std::size_t>(cWindowTimesText / (FText.size() + 1), 16, cWindow);
        for (;;) {
            const bool IsLast = FText.size() - AStart <= Window;
            if (Judge(Run(AStart, AFlags, cMatchLimit, IsLast ? PCRE2_UNSET : AStart + Window)))
                return true;
            if (IsLast)
                return false;
            AStart += Window + 1;
            AStart += IsWithinPair(AStart) ? 1 : 0;
            FDone += Window;
            CheckPace();
        }
    }

    int Run(std::size_t AStart, std::uint32_t AFlags, std::uint32_t ALimit, std::size_t ALastStart) {
        pcre2_set_match_limit(FContext.get(), ALimit);
        pcre2_set_offset_limit(FContext.get(), ALastStart);
        const auto Ask = [&](std::uint32_t AMore) {
            return pcre2_match(FCode.Code.get(), Units(FText), FText.size(), AStart,
                               FCode.MatchFlags | AFlags | AMore, FData.get(), FContext.get());
        };
        const int Outcome = Ask(0);
        return Outcome == PCRE2_ERROR_JIT_STACKLIMIT ? Ask(PCRE2_NO_JIT) : Outcome;
    }

    static bool Judge(int AOutcome) {
        if (AOutcome < 0 && AOutcome != PCRE2_ERROR_NOMATCH)
            throw ERegularExpressionError(u"Error in matching the regular expression: %s",
                                          {ErrorText(AOutcome)});
        return AOutcome >= 0;
    }

    void CheckPace() const {
        const std::chrono::duration<double> Taken = std::chrono::steady_clock::now() - FBegin;
        if (Taken > cPatience && static_cast<double>(FDone) < Taken.count() * cLeastPace)
            throw ERegularExpressionError(u"Error in matching the regular expression: time limit exceeded");
    }

    const TCode& FCode;
    std::u16string_view FText;
    TMatchData FData;
    THandle<pcre2_match_context, pcre2_match_context_free> FContext;
    std::size_t FNext;
    bool FWasEmpty = false;
    std::chrono::steady_clock::time_point FBegin = std::chrono::steady_clock::now();
    std::size_t FDone = 0; // units, and a little for each match
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
        Result.FText = AText.ToString();
        Result.FGroups = Search.Groups();
    }
    return Result;
}

std::vector<TMatch> TRegEx::Matches(const TStringArg& AText) const {
    std::vector<TMatch> Result;
    UnicodeString Text;
    for (TSearch Search(*FCode, AText, 0); Search.Find();) {
        if (Result.empty())
            Text = AText.ToString();
        TMatch& Match = Result.emplace_back();
        Match.FText = Text;
        Match.FGroups = Search.Groups();
    }
    return Result;
}

// The group that a place of the replacement names, from after its dollar sign; AAt moves past it. -1 when
// nothing is named there.
int TRegEx::GroupAt(std::u16string_view AReplacement, std::size_t& AAt) const {
    const auto IsDigit = [](char16_t AChar) { return AChar >= u'0' && AChar <= u'9'; };
    if (AAt < AReplacement.size() && IsDigit(AReplacement[AAt]))
        return AReplacement[AAt++] - u'0';
    const std::size_t End = AReplacement.find(u'}', AAt);
    if (AAt >= AReplacement.size() || AReplacement[AAt] != u'{' || End == std::u16string_view::npos)
        return -1;
    const UnicodeString Name = AReplacement.substr(AAt + 1, End - AAt - 1);
    AAt = End + 1;
    int Group = 0;
    if (Name.size() <= 5 && !Name.IsEmpty() && std::ranges::all_of(Name.View(), IsDigit)) {
        for (const char16_t Digit : Name.View())
            Group = Group * 10 + (Digit - u'0');
    } else {
        Group =
            pcre2_substring_number_from_name(FCode->Code.get(), reinterpret_cast<PCRE2_SPTR>(Name.data()));
    }
    std::uint32_t Count = 0;
    pcre2_pattern_info(FCode->Code.get(), PCRE2_INFO_CAPTURECOUNT, &Count);
    if (Group < 0 || static_cast<std::uint32_t>(Group) > Count)
        throw ERegularExpressionError(u"The regular expression has no group %s", {Name});
    return Group;
}

UnicodeString TRegEx::Replace(const TStringArg& AText, const TStringArg& AReplacement) const {
    const std::u16string_view Text = AText;
    const std::u16string_view Replacement = AReplacement;
    UnicodeString Result;
    std::size_t Start = 0;
    for (TSearch Search(*FCode, Text, 0); Search.Find(); Start = Search.Behind()) {
        Result += Text.substr(Start, Search.First() - Start);
        const std::vector<TGroup> Groups = Search.Groups();
        for (std::size_t At = 0; At < Replacement.size();) {
            const std::size_t Dollar = std::min(Replacement.find(u'$', At), Replacement.size());
            Result += Replacement.substr(At, Dollar - At);
            At = Dollar + 1;
            if (Dollar == Replacement.size())
                break;
            const int Group = GroupAt(Replacement, At);
            if (Group < 0) {
                Result += u'$';
                At += At < Replacement.size() && Replacement[At] == u'$' ? 1 : 0;
            } else if (static_cast<std::size_t>(Group) < Groups.size()) {
                const TGroup& Place = Groups[static_cast<std::size_t>(Group)];
                if (Place.Success)
                    Result += Text.substr(static_cast<std::size_t>(Place.Index - 1),
                                          static_cast<std::size_t>(Place.Length));
            }
        }
    }
    Result += Text.substr(Start);
    return Result;
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
