#include <qz/runtime/text/RegEx.h>

#include <algorithm>

#include <pcre2.h>

#include <qz/runtime/base/Utf.h>
#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

// The steps that a place of the text may take at once: some, and a few for each unit, as one match may take
// the whole text.
constexpr std::size_t cPlaceSteps = 2'000'000;
constexpr std::size_t cPlaceStepsPerUnit = 8;
// A place that takes no more than these is free; the others share the steps of the search.
constexpr std::uint32_t cFreeSteps = 1000;
constexpr std::size_t cSearchSteps = 100'000'000;
constexpr std::size_t cPlacesOfLevel = 16; // the number of places after which fewer steps are tried

constexpr std::size_t cFirstStack = 64 * 1024; // bytes for choices that are open
constexpr std::size_t cMostStack = 512 * 1024 * 1024;

constexpr std::size_t cFirstWindow = 64; // places
constexpr std::size_t cMostWindow = 1024 * 1024;

template <auto Free> struct TFree {
    template <class T> void operator()(T* AObject) const noexcept { Free(AObject); }
};
template <class T, auto Free> using THandle = std::unique_ptr<T, TFree<Free>>;
using TCompileContext = THandle<pcre2_compile_context, pcre2_compile_context_free>;
using TStack = THandle<pcre2_jit_stack, pcre2_jit_stack_free>;
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

// Finds what makes a search depend on where it started, or on what it skipped: \G, (*COMMIT) and (*SKIP).
class TPatternScan {
public:
    TPatternScan(std::u16string_view APattern, bool AIsExtended)
        : FRest(APattern),
          FIsExtended(AIsExtended) {}

    bool NeedsOnePiece() {
        const auto Has = [this](std::u16string_view A) { return FRest.find(A) != std::u16string_view::npos; };
        if (!Has(u"\\G") && !Has(u"(*COMMIT") && !Has(u"(*SKIP"))
            return false;
        if (FIsExtended && FRest.starts_with(u"(*"))
            return true; // it may set the line ends, which end comments
        while (!FRest.empty()) {
            if (FRest.starts_with(u"\\G") || FRest.starts_with(u"(*COMMIT") || FRest.starts_with(u"(*SKIP") ||
                SetsExtended())
                return true;
            SkipOne();
        }
        return false;
    }

private:
    // Whether (?x) or the like stands here. Its scope is not followed.
    bool SetsExtended() const {
        if (!FRest.starts_with(u"(?"))
            return false;
        const std::size_t End = FRest.find_first_not_of(u"^aimnsxJU-", 2);
        return FRest.substr(0, End).find(u'x') != std::u16string_view::npos;
    }

    void SkipOne() {
        if (FRest[0] == u'\\')
            SkipEscape();
        else if (FRest[0] == u'[')
            SkipClass();
        else if (FRest.starts_with(u"(?#"))
            SkipThrough(FRest.find(u')'), 1);
        else if (FRest[0] == u'#' && FIsExtended)
            SkipThrough(FRest.find_first_of(u"\r\n"), 1);
        else
            FRest.remove_prefix(1);
    }

    void SkipThrough(std::size_t AAt, std::size_t ALength) {
        FRest.remove_prefix(AAt == std::u16string_view::npos ? FRest.size() : AAt + ALength);
    }

    void SkipEscape() {
        if (FRest.starts_with(u"\\Q"))
            SkipThrough(FRest.find(u"\\E"), 2);
        else
            FRest.remove_prefix(std::min<std::size_t>(FRest.size(), 2));
    }

    void SkipClass() {
        FRest.remove_prefix(FRest.starts_with(u"[^") ? 2 : 1);
        bool IsFirst = true;
        while (!FRest.empty() && (IsFirst || FRest[0] != u']')) {
            IsFirst = false;
            if (FRest[0] == u'\\')
                SkipEscape();
            else if (FRest.starts_with(u"[:") && FRest.find(u":]") != std::u16string_view::npos)
                SkipThrough(FRest.find(u":]"), 2);
            else
                FRest.remove_prefix(1);
        }
        FRest.remove_prefix(FRest.empty() ? 0 : 1);
    }

    std::u16string_view FRest;
    bool FIsExtended;
};

} // namespace

QZ_REGISTER_TYPES(ERegularExpressionError);

const TClassRec ERegularExpressionError::ClassRec =
    DescribeException<ERegularExpressionError>(u"ERegularExpressionError", u"System");

struct TRegEx::TCode {
    THandle<pcre2_code, pcre2_code_free> Code;
    THandle<pcre2_match_context, pcre2_match_context_free> Context;
    std::uint32_t MatchFlags = 0;
    bool IsAnchored = false;   // matches where a search starts, if at all
    bool IsOfOnePiece = false; // the pattern may depend on where the search started, or stop it
    bool PassesLineEnd = true; // no match begins within a CR LF

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
    const TCompileContext Compiling(pcre2_compile_context_create(nullptr));
    if (Compiling == nullptr)
        throw std::bad_alloc();
    pcre2_set_newline(Compiling.get(), PCRE2_NEWLINE_ANYCRLF);
    Code->Code.reset(
        pcre2_compile(Units(Pattern), Pattern.size(), FlagsOf(AOptions), &Error, &Offset, Compiling.get()));
    if (Code->Code == nullptr)
        throw ERegularExpressionError(u"Error in regular expression at offset %d: %s",
                                      {static_cast<std::int64_t>(Offset), ErrorText(Error)});
    Code->Context.reset(pcre2_match_context_create(nullptr));
    if (Code->Context == nullptr)
        throw std::bad_alloc();
    pcre2_set_heap_limit(Code->Context.get(), cMostStack / 1024);
    Code->MatchFlags = AOptions.Contains(roNotEmpty) ? PCRE2_NOTEMPTY : 0;
    std::uint32_t Options = 0;
    pcre2_pattern_info(Code->Code.get(), PCRE2_INFO_ALLOPTIONS, &Options);
    Code->IsAnchored = (Options & PCRE2_ANCHORED) != 0;
    Code->IsOfOnePiece = TPatternScan(Pattern, AOptions.Contains(roIgnorePatternSpace)).NeedsOnePiece();
    std::uint32_t NamesLineEnds = 0;
    pcre2_pattern_info(Code->Code.get(), PCRE2_INFO_HASCRORLF, &NamesLineEnds);
    Code->PassesLineEnd = NamesLineEnds == 0;
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
            FNext = NextPlace(FNext + 1);
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

    // The first place from AAt on at which a match may begin: not within a pair, nor within a line end that
    // the pattern does not name.
    std::size_t NextPlace(std::size_t AAt) const {
        if (AAt == 0 || AAt >= FText.size())
            return AAt;
        const char16_t Before = FText[AAt - 1];
        const bool IsWithin = (IsHighSurrogate(Before) && IsLowSurrogate(FText[AAt])) ||
            (FCode.PassesLineEnd && Before == u'\r' && FText[AAt] == u'\n');
        return AAt + (IsWithin ? 1 : 0);
    }

    std::size_t PlaceLimit() const {
        return std::min<std::size_t>(cPlaceSteps + cPlaceStepsPerUnit * FText.size(), UINT32_MAX);
    }

    // Looks for a match that begins at AStart or after it.
    bool Try(std::size_t AStart, std::uint32_t AFlags) {
        if (FCode.IsAnchored || (AFlags & PCRE2_ANCHORED) != 0)
            return TryPlace(AStart, AFlags);
        if (FCode.IsOfOnePiece) {
            const std::size_t Share = cSearchSteps / (FText.size() - AStart + 1);
            return Judge(
                Run(AStart, AFlags, std::clamp<std::size_t>(Share, cFreeSteps, PlaceLimit()), PCRE2_UNSET));
        }
        const int Outcome = Run(AStart, AFlags, cFreeSteps, PCRE2_UNSET);
        return Outcome == PCRE2_ERROR_MATCHLIMIT ? TryWindows(AStart, AFlags) : Judge(Outcome);
    }

    // The same, some places at a time. The windows close in on a place that takes more steps than are free.
    bool TryWindows(std::size_t AStart, std::uint32_t AFlags) {
        for (std::size_t Window = cFirstWindow;;) {
            const bool IsLast = FText.size() - AStart < Window;
            const std::size_t Last = AStart + Window - 1;
            const int Outcome = Run(AStart, AFlags, cFreeSteps, IsLast ? PCRE2_UNSET : Last);
            const bool IsTooMuch = Outcome == PCRE2_ERROR_MATCHLIMIT;
            if (IsTooMuch && Window > 1) {
                Window /= 2;
                continue;
            }
            if (IsTooMuch ? TryPlace(AStart, AFlags | PCRE2_ANCHORED) : Judge(Outcome))
                return true;
            if (IsLast)
                return false;
            AStart = NextPlace(Last + 1);
            Window = IsTooMuch ? 1 : std::min(Window * 2, cMostWindow);
        }
    }

    // Looks for a match that begins at AStart, with as many steps as the previous place took, then with more.
    bool TryPlace(std::size_t AStart, std::uint32_t AFlags) {
        if (++FPlaces % cPlacesOfLevel == 0)
            FLevel = std::max<std::size_t>(FLevel / 2, cFreeSteps);
        for (;; FLevel = std::min(FLevel * 2, PlaceLimit())) {
            const int Outcome = Run(AStart, AFlags, FLevel, PCRE2_UNSET);
            const bool IsTooMuch = Outcome == PCRE2_ERROR_MATCHLIMIT;
            FSteps += FLevel == cFreeSteps && !IsTooMuch ? 0 : FLevel / 2;
            if (!IsTooMuch || FLevel == PlaceLimit() || FSteps > cSearchSteps)
                return Judge(FSteps > cSearchSteps ? PCRE2_ERROR_MATCHLIMIT : Outcome);
        }
    }

    int Run(std::size_t AStart, std::uint32_t AFlags, std::size_t ALimit, std::size_t ALastStart) {
        pcre2_set_match_limit(FContext.get(), static_cast<std::uint32_t>(ALimit));
        pcre2_set_offset_limit(FContext.get(), ALastStart);
        const auto Ask = [&] {
            return pcre2_match(FCode.Code.get(), Units(FText), FText.size(), AStart,
                               FCode.MatchFlags | AFlags, FData.get(), FContext.get());
        };
        const int Outcome = Ask();
        if (Outcome != PCRE2_ERROR_JIT_STACKLIMIT || FStack != nullptr)
            return Outcome;
        FStack.reset(pcre2_jit_stack_create(cFirstStack, cMostStack, nullptr));
        if (FStack == nullptr)
            throw std::bad_alloc();
        pcre2_jit_stack_assign(FContext.get(), nullptr, FStack.get());
        return Ask();
    }

    static bool Judge(int AOutcome) {
        if (AOutcome < 0 && AOutcome != PCRE2_ERROR_NOMATCH)
            throw ERegularExpressionError(u"Error in matching the regular expression: %s",
                                          {ErrorText(AOutcome)});
        return AOutcome >= 0;
    }

    const TCode& FCode;
    std::u16string_view FText;
    TMatchData FData;
    THandle<pcre2_match_context, pcre2_match_context_free> FContext;
    std::size_t FNext;
    bool FWasEmpty = false;
    TStack FStack;          // null until the stack of the thread does not suffice
    std::size_t FSteps = 0; // of places that took more than are free, at least half of them
    std::size_t FLevel = cFreeSteps;
    std::size_t FPlaces = 0;
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
