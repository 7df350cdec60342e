// Small helpers on texts and characters: searching, cutting, trimming, padding, replacing.
//
//     QzStripLiterals(u" 'quoted'\r\n");                       // "quoted"
//     QzPadLeft(7, 3, u'0');                                   // "007"
//     QzStringReplace(Text, {u"a", u"b"}, {u"b", u"c"}, {rfReplaceAll});
//     if (QzStrInSet(Extension, {u".txt", u".md"})) ...
//
// Positions and lengths count 16-bit units, positions from 1. The functions have no state.
#pragma once

#include <span>

#include <qz/runtime/base/Set.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {

// What ends a name, and what encloses a text.
inline constexpr TCharSet cQzNameDelimiters{'\n', '\r', ' ', ')', ',', ';'};
inline constexpr TCharSet cQzLiterals{'"', '\''};

// A character above 255 is in no set.
constexpr bool QzCharInSet(std::same_as<char> auto AChar, const TCharSet& ASet) noexcept {
    return ASet.Contains(AChar);
}
constexpr bool QzCharInSet(std::same_as<char16_t> auto AChar, const TCharSet& ASet) noexcept {
    return ASet.Contains(char32_t{AChar});
}
template <class T>
    requires(std::same_as<T, char> || std::same_as<T, char16_t>)
constexpr bool QzIsNameDelimiter(T AChar) noexcept {
    return QzCharInSet(AChar, cQzNameDelimiters);
}
template <class T>
    requires(std::same_as<T, char> || std::same_as<T, char16_t>)
constexpr bool QzIsLiteral(T AChar) noexcept {
    return QzCharInSet(AChar, cQzLiterals);
}

// The first or the last ACount characters, all of them when there are fewer; none for a negative count.
QZ_API UnicodeString QzLeft(const TStringArg& AText, int ACount);
QZ_API UnicodeString QzRight(const TStringArg& AText, int ACount);
// ALength bytes from the position AStart on, as many as there are; in the code page of the text.
QZ_API AnsiString QzAnsiCopy(const AnsiString& AText, int AStart, int ALength);
// The position of the last occurrence, or 0.
QZ_API int QzLastPos(const TStringArg& AText, char16_t AChar) noexcept;
// Whether APiece occurs in AText, in upper or lower case by the rule of QzSameText. An empty piece occurs
// nowhere.
QZ_API bool QzContainsText(const TStringArg& APiece, const TStringArg& AText);
QZ_API bool QzContainsText(const AnsiString& APiece, const AnsiString& AText);
// Whether the text is exactly one of those.
QZ_API bool QzStrInSet(const TStringArg& AText, std::span<const UnicodeString> ATexts) noexcept;
QZ_API bool QzStrInSet(const TStringArg& AText, std::initializer_list<TStringArg> ATexts) noexcept;

// Without the characters up to U+0020 at both ends, at the start, at the end.
inline UnicodeString QzTrim(const TStringArg& AText) {
    return Trim(AText);
}
QZ_API AnsiString QzTrim(const AnsiString& AText);
inline UnicodeString QzTrimLeft(const TStringArg& AText) {
    return TrimLeft(AText);
}
inline UnicodeString QzTrimRight(const TStringArg& AText) {
    return TrimRight(AText);
}
// Without quotes, single or double, and characters up to U+0020 at both ends. Of a text of nothing else the
// last character stays.
QZ_API UnicodeString QzStripLiterals(const TStringArg& AText);
// Without blanks (U+0020) at the ends, and with one where several follow each other; other white space stays.
QZ_API UnicodeString QzNormalizeSpace(const TStringArg& AText);

// At least ALength characters, by APad, a blank for 0, at the left or the right; longer texts are not cut.
// The sign of a number is part of it: -5 becomes "0-5".
QZ_API UnicodeString QzPadLeft(const TStringArg& AText, int ALength, char16_t APad = u' ');
QZ_API UnicodeString QzPadRight(const TStringArg& AText, int ALength, char16_t APad = u' ');
template <std::integral T>
    requires(!std::same_as<T, bool> && !std::same_as<T, char> && !std::same_as<T, char16_t>)
UnicodeString QzPadLeft(T AValue, int ALength, char16_t APad = u' ') {
    return QzPadLeft(IntToStr(AValue), ALength, APad);
}

// Each pair of an old and a new text applied by StringReplace to the result of the pairs before it. Raises
// EAssertionFailed when the arrays differ in length.
QZ_API UnicodeString QzStringReplace(const TStringArg& AText, std::span<const UnicodeString> AOld,
                                     std::span<const UnicodeString> ANew, TReplaceFlags AFlags);
QZ_API UnicodeString QzStringReplace(const TStringArg& AText, std::initializer_list<TStringArg> AOld,
                                     std::initializer_list<TStringArg> ANew, TReplaceFlags AFlags);

} // namespace qz
