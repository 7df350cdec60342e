// TRegEx: a regular expression in the syntax of Perl, over PCRE2.
//
//     const TRegEx Number(u"(\\d+)\\s*(km|mi)", {roIgnoreCase});
//     for (const TMatch& Match : Number.Matches(Text))
//         Use(Match.Value(), Match.Group(1));
//     TRegEx(u"\\s+").Replace(Text, u" ");
//
// Places count 16-bit units from 1. Classes such as \w and \d and the cases of letters are those of
// Unicode; a lone surrogate matches nothing. Copies share the compiled pattern, and any number of threads
// may use one. CR, LF and CR LF end a line. No match begins between CR and LF, unless the pattern itself
// names one of them.
//
// A compiled pattern has at most 65,535 units: some 32,000 letters, fewer with groups and classes. A search
// is limited by steps and memory alone, so a pattern gives the same answer for a text on each run:
// 2,000,000 steps and 8 a unit of the text at one place, 100,000,000 at all places that take more than 1000
// each, and 512 MiB. With (*COMMIT), (*SKIP) or \G all places have equal shares of those, at least 1000.
// Beyond the limits an exception is raised.
#pragma once

#include <memory>
#include <vector>

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/base/Set.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {

enum class TRegExOption : std::uint8_t {
    roNone,
    roIgnoreCase,
    roMultiLine,          // ^ and $ match at every line
    roExplicitCapture,    // only named groups capture
    roCompiled,           // spends more on the pattern and less on each text; done always
    roSingleLine,         // the dot matches line ends too
    roIgnorePatternSpace, // blanks in the pattern, and what follows #, mean nothing
    roNotEmpty            // an empty match is none
};
using enum TRegExOption;
using TRegExOptions = TSet<TRegExOption, 8>;

// A pattern that does not compile: "Error in regular expression at offset 3: missing closing parenthesis". A
// match that went beyond the limits: "Error in matching the regular expression: match limit exceeded".
QZ_PLAIN_EXCEPTION(ERegularExpressionError, Exception);

// A place in the text; of a group that took no part, Success is false and the rest empty.
struct TGroup {
    bool Success = false;
    int Index = 0; // from 1
    int Length = 0;
};

class QZ_API TMatch {
public:
    TMatch() noexcept = default;

    bool Success() const noexcept { return !FGroups.empty(); }
    int Index() const noexcept { return Success() ? FGroups[0].Index : 0; } // from 1
    int Length() const noexcept { return Success() ? FGroups[0].Length : 0; }
    UnicodeString Value() const { return Group(0); }
    // Groups count from 0, the whole match, to GroupCount - 1. A group that is not there is empty.
    int GroupCount() const noexcept { return static_cast<int>(FGroups.size()); }
    TGroup Place(int AGroup) const noexcept;
    UnicodeString Group(int AGroup) const;

private:
    friend class TRegEx;
    UnicodeString FText;
    std::vector<TGroup> FGroups;
};

class QZ_API TRegEx {
public:
    // Raises ERegularExpressionError for a pattern that does not compile.
    explicit TRegEx(const TStringArg& APattern, TRegExOptions AOptions = {});

    bool IsMatch(const TStringArg& AText) const;
    // The first match from AStart (from 1) on; without one Success is false. These raise
    // ERegularExpressionError beyond the limits.
    TMatch Match(const TStringArg& AText, int AStart = 1) const;
    std::vector<TMatch> Matches(const TStringArg& AText) const;
    // The text with every match replaced; $0 to $9, ${10} and ${name} stand for groups, $$ for a dollar sign,
    // as does any other one. A group that took no part is empty. Raises ERegularExpressionError for a group
    // that the pattern does not have, too.
    UnicodeString Replace(const TStringArg& AText, const TStringArg& AReplacement) const;
    // The pieces before, between and after the matches, including empty ones.
    TDynArray<UnicodeString> Split(const TStringArg& AText) const;

    // A pattern that matches the text itself.
    static UnicodeString Escape(const TStringArg& AText);

private:
    struct TCode;
    class TSearch;
    int GroupAt(std::u16string_view AReplacement, std::size_t& AAt) const;
    std::shared_ptr<const TCode> FCode;
};

} // namespace qz
