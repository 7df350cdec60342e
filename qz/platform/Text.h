// Letter case, order and kinds of characters, by the rules of the user's language. Text is UTF-16.
//
//     UpperCase(u"straße");                         // u"STRASSE" on Linux, u"STRAßE" on Windows
//     CompareStrings(u"Öl", u"öl", true) == 0;
//
// The language is taken from the system at the first call and kept: on Linux from LC_ALL, LC_CTYPE, LANG for
// case and LC_ALL, LC_COLLATE, LANG for order, where "C" stands for the rules that hold for no language in
// particular. All functions may be called from any thread. Lone surrogates pass through. A text of more than
// 2^29 units raises std::bad_alloc.
#pragma once

#include <string>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz::platform {

// The whole text in the other case. The result may be longer than the text where the system maps one letter
// to several (Linux does, after the Unicode standard's SpecialCasing; Windows maps one to one).
QZ_API std::u16string UpperCase(std::u16string_view AText);
QZ_API std::u16string LowerCase(std::u16string_view AText);

// One unit to one unit, the same in every language. A unit without such a counterpart gives itself.
QZ_API char16_t UpperChar(char16_t AChar) noexcept;
QZ_API char16_t LowerChar(char16_t AChar) noexcept;

// Less than 0, 0 or more than 0, as A sorts before, with or behind B in the language's alphabetical order,
// which is not the order of the units. AIgnoreCase takes letters that differ in case only as equal.
QZ_API int CompareStrings(std::u16string_view A, std::u16string_view B, bool AIgnoreCase);

// The kind of one unit. A surrogate is none of these.
QZ_API bool IsLetter(char16_t AChar) noexcept;
QZ_API bool IsDigit(char16_t AChar) noexcept;
QZ_API bool IsUpper(char16_t AChar) noexcept;
QZ_API bool IsLower(char16_t AChar) noexcept;
QZ_API bool IsWhiteSpace(char16_t AChar) noexcept;

} // namespace qz::platform
