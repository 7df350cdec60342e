// The case of letters in a whole text, in its first character or in its words.
//
//     QzCharCase(u"hello wORLD-x", rcUpperCamelCase, u" -");    // "Hello World-X"
//     QzCharCase(u"hello WORLD", rcTitleCase, u"");             // "Hello world"
//
// Letters are those of all languages, by the rules of the user's locale. The functions have no state.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

enum class TQzCharCase : std::uint8_t {
    rcNormal,         // as it is
    rcUpperCase,      // all in upper case
    rcLowerCase,      // all in lower case
    rcTitleCase,      // the first character in upper case, the others in lower case
    rcUpperCamelCase, // each character after a delimiter, and the first, in upper case, the others in lower case
    rcLowerCamelCase,       // the same with the first in lower case
    rcUpperCaseFirstLetter, // the first in upper case, the others as they are
    rcLowerCaseFirstLetter  // the first in lower case, the others as they are
};
using enum TQzCharCase;

// The delimiters, which matter to the camel cases alone, stay in the text. The camel cases convert each
// character for itself, so that a capital sigma at the end of a word gives σ; rcLowerCase gives ς. The
// length may change where the system maps one letter to several. The 8-bit text is converted to 16 bits and
// back unless it stays as it is.
QZ_API WideString QzCharCase(const WideString& AText, TQzCharCase ACase, const WideString& ADelimiters);
QZ_API AnsiString QzCharCase(const AnsiString& AText, TQzCharCase ACase, const AnsiString& ADelimiters);

// Whether the text has none of the letters a to z.
QZ_API bool QzIsUppercase(const TStringArg& AText) noexcept;

} // namespace qz
