// Texts taken apart into lists and joined again.
//
//     QzTokenize(u"a,,b;c", Words, u",;");                 // a, b, c
//     QzTokenize(Fields, u"a,,b", u",");                   // by a regular expression: a, the empty text, b
//     QzStringToList(u"a--b", u"--", Words);
//     QzListToString(Words, u", ");
//
// Lists are added to, by Add with its sorting and its rule for duplicates, and never cleared. Characters are
// 16-bit units. The functions have no state; the lists belong to the caller.
#pragma once

#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/text/RegEx.h>

namespace qz {

// What separates words where the caller does not say.
inline constexpr TTextConstant cQzTokenDelimiters = u" ~!@#$%^&*()-=+\\|]}[{'\";:/?.>,<";

// The most characters that QzListToString gives.
inline constexpr std::size_t cQzMaxListText = 999999;

// Adds the runs of characters that are no delimiters. No delimiters means cQzTokenDelimiters. ADelimiterList,
// where given, gets each delimiter of the text, in order, as a text of one character.
QZ_API void QzTokenize(const TStringArg& AText, TStringList& ATarget, const TStringArg& ADelimiters = u"",
                       TStringList* ADelimiterList = nullptr);

// Adds what lies before, between and after the matches of the expression, also where that is empty. An empty
// expression stands for blanks, of which any number separate and none gives an empty token. Raises
// ERegularExpressionError.
QZ_API void QzTokenize(TStringList& ATarget, const TStringArg& AText, const TStringArg& ARegEx,
                       TRegExOptions AOptions = {});

// Adds what lies before, between and after the delimiters, also where that is empty. The delimiter may have
// any length; an empty one separates nothing.
QZ_API void QzStringToList(const TStringArg& AText, const TStringArg& ADelimiter, TStringList& ATarget);

// All lines with the delimiter between, cut after 999999 characters.
QZ_API UnicodeString QzListToString(const TStrings& AList, const TStringArg& ADelimiter);

} // namespace qz
