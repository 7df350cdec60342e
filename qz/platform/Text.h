// Case mapping, collation and character classes in the user's language. Text is UTF-16.
//
//     UpperCase(u"straße");                         // u"STRASSE" on Linux, u"STRAßE" on Windows
//     CompareStrings(u"Öl", u"öl", true) == 0;
//
// The language is read once, at the first call: on Linux from LC_ALL, LC_CTYPE, LANG for case and from
// LC_ALL, LC_COLLATE, LANG for collation, where "C" selects language-neutral rules. Lone surrogates pass
// through. A text of more than 2^29 units raises std::bad_alloc. Any thread.
#pragma once

#include <string>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

// The whole text in upper or lower case. On Linux the result may be longer, by the SpecialCasing of the
// Unicode standard; Windows maps each unit to one unit.
QZ_API std::u16string UpperCase(std::u16string_view AText);
QZ_API std::u16string LowerCase(std::u16string_view AText);

// Maps one unit to one unit, independent of the language. A unit without counterpart gives itself.
QZ_API char16_t UpperChar(char16_t AChar) noexcept;
QZ_API char16_t LowerChar(char16_t AChar) noexcept;

// Negative, 0 or positive if A sorts before, with or after B in the language's collation. AIgnoreCase treats
// letters that differ only in case as equal.
QZ_API int CompareStrings(std::u16string_view A, std::u16string_view B, bool AIgnoreCase);

// The class of one unit. A surrogate has none.
QZ_API bool IsLetter(char16_t AChar) noexcept;
QZ_API bool IsDigit(char16_t AChar) noexcept;
QZ_API bool IsUpper(char16_t AChar) noexcept;
QZ_API bool IsLower(char16_t AChar) noexcept;
QZ_API bool IsWhiteSpace(char16_t AChar) noexcept;

} // namespace qz::platform
