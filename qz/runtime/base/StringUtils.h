// The functions on text that everything else uses: case, comparison, trimming, searching, replacing, quoting.
//
//     SameText(u"Unit", Name);                  // ASCII letters in either case
//     Pos(u"=", u"a=b");                        // 2: positions count from 1, 0 means absent
//     StringReplace(Text, u"\n", u"\r\n", {rfReplaceAll});
//     QuotedStr(u"it is");                       // 'it''s'
//
// Positions and lengths count 16-bit units, positions from 1. Arguments outside the text are cut to it. All
// functions are pure and may run on any number of threads.
#pragma once

#include <qz/runtime/base/Set.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

// The letters A to Z alone.
QZ_API UnicodeString UpperCase(const TStringArg& AText);
QZ_API UnicodeString LowerCase(const TStringArg& AText);
constexpr char16_t UpCase(char16_t AChar) noexcept {
    return AChar >= u'a' && AChar <= u'z' ? static_cast<char16_t>(AChar - 32) : AChar;
}
constexpr char16_t LowCase(char16_t AChar) noexcept {
    return AChar >= u'A' && AChar <= u'Z' ? static_cast<char16_t>(AChar + 32) : AChar;
}

// All of Unicode, by the rules of the user's locale; the length may change ("ß" becomes "SS" where the system
// says so).
QZ_API UnicodeString AnsiUpperCase(const TStringArg& AText);
QZ_API UnicodeString AnsiLowerCase(const TStringArg& AText);

namespace detail {
// CompareStr and CompareText of views, to be called by address.
QZ_API int CompareUnits(std::u16string_view ALeft, std::u16string_view ARight) noexcept;
QZ_API int CompareUnitsNoCase(std::u16string_view ALeft, std::u16string_view ARight) noexcept;
// The capital form of a unit, and of each unit of a text: what is compared where case does not count.
QZ_API char16_t UpperUnit(char16_t AChar) noexcept;
QZ_API std::u16string UpperUnits(std::u16string_view AText);
} // namespace detail

// Comparison by 16-bit units: negative, zero or positive. CompareText and SameText take A to Z as a to z.
QZ_API int CompareStr(const TStringArg& ALeft, const TStringArg& ARight) noexcept;
QZ_API int CompareText(const TStringArg& ALeft, const TStringArg& ARight) noexcept;
QZ_API bool SameText(const TStringArg& ALeft, const TStringArg& ARight) noexcept;
inline bool SameStr(const TStringArg& ALeft, const TStringArg& ARight) noexcept {
    return ALeft.View() == ARight.View();
}

// Comparison as a person of the user's locale would sort; AnsiCompareText and AnsiSameText ignore case.
QZ_API int AnsiCompareStr(const TStringArg& ALeft, const TStringArg& ARight);
QZ_API int AnsiCompareText(const TStringArg& ALeft, const TStringArg& ARight);
QZ_API bool AnsiSameText(const TStringArg& ALeft, const TStringArg& ARight);

// Without the characters up to U+0020 at both ends, at the start, at the end.
QZ_API UnicodeString Trim(const TStringArg& AText);
QZ_API UnicodeString TrimLeft(const TStringArg& AText);
QZ_API UnicodeString TrimRight(const TStringArg& AText);
// As Trim, without a copy: the result is part of AText.
QZ_API std::u16string_view TrimView(std::u16string_view AText) noexcept;

// The position of the first occurrence at or after AOffset, or 0; an empty piece occurs nowhere. Searching
// takes time in proportion to the text, whatever the piece.
QZ_API int Pos(const TStringArg& APiece, const TStringArg& AText, int AOffset = 1);
// ACount units from AIndex on, as many as there are.
QZ_API UnicodeString Copy(const TStringArg& AText, int AIndex, int ACount = 0x7FFFFFFF);
// Changes the text in place; an index outside it deletes nothing, or inserts at the nearer end.
QZ_API void Delete(UnicodeString& AText, int AIndex, int ACount);
QZ_API void Insert(const TStringArg& APiece, UnicodeString& AText, int AIndex);

QZ_API bool StartsStr(const TStringArg& APiece, const TStringArg& AText) noexcept;
QZ_API bool StartsText(const TStringArg& APiece, const TStringArg& AText) noexcept;
QZ_API bool EndsStr(const TStringArg& APiece, const TStringArg& AText) noexcept;
QZ_API bool EndsText(const TStringArg& APiece, const TStringArg& AText) noexcept;
QZ_API bool ContainsText(const TStringArg& AText, const TStringArg& APiece);

enum class TReplaceFlag : std::uint8_t { rfReplaceAll, rfIgnoreCase };
using enum TReplaceFlag;
using TReplaceFlags = TSet<TReplaceFlag>;

// Every occurrence of AOld from left to right, or the first without rfReplaceAll, replaced by ANew; what was
// put in is not searched again. rfIgnoreCase ignores case in all of Unicode, unit by unit: two units are the
// same if their capital forms are, by the simple mapping of Unicode and not by the user's locale.
QZ_API UnicodeString StringReplace(const TStringArg& AText, const TStringArg& AOld, const TStringArg& ANew,
                                   TReplaceFlags AFlags = {});

// The text within quotes, each quote in it doubled.
QZ_API UnicodeString QuotedStr(const TStringArg& AText);
QZ_API UnicodeString AnsiQuotedStr(const TStringArg& AText, char16_t AQuote);
// Reads a quoted text at the start of AText and moves AText past its closing quote (or to the end when that
// is missing). A text that does not begin with the quote gives an empty result and stays where it is.
QZ_API UnicodeString AnsiExtractQuotedStr(std::u16string_view& AText, char16_t AQuote);
// The content of a text that is quoted as a whole; any other text unchanged.
QZ_API UnicodeString AnsiDequotedStr(const TStringArg& AText, char16_t AQuote);

QZ_API UnicodeString StringOfChar(char16_t AChar, int ACount);
QZ_API UnicodeString ReverseString(const TStringArg& AText);

// A letter or underscore, then letters, digits and underscores of ASCII; with ADots also parts joined by
// points.
QZ_API bool IsValidIdent(const TStringArg& AText, bool ADots = false) noexcept;

} // namespace qz
