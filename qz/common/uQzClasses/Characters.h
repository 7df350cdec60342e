// The characters that parsers meet, by name: cQzSpace and cQzSpaceW in 16 bits, cQzSpaceA in 8.
//
//     Parser.SkipWhile(sopEq, cQzSpaceW);
#pragma once

namespace qz {

#define QZ_CHARACTER(AName, AValue)                 \
    inline constexpr char16_t AName = u##AValue;    \
    inline constexpr char16_t AName##W = u##AValue; \
    inline constexpr char AName##A = AValue

// clang-format off
QZ_CHARACTER(cQzAmp,        '&');
QZ_CHARACTER(cQzAt,         '@');
QZ_CHARACTER(cQzApos,       '\'');
QZ_CHARACTER(cQzEqual,      '=');
QZ_CHARACTER(cQzGt,         '>');
QZ_CHARACTER(cQzLt,         '<');
QZ_CHARACTER(cQzQuest,      '?');
QZ_CHARACTER(cQzQuote,      '"');
QZ_CHARACTER(cQzSlash,      '/');
QZ_CHARACTER(cQzBackSlash,  '\\');
QZ_CHARACTER(cQzSpace,      ' ');
QZ_CHARACTER(cQzExcl,       '!');
QZ_CHARACTER(cQzLine,       '-');
QZ_CHARACTER(cQzComma,      ',');
QZ_CHARACTER(cQzDot,        '.');
QZ_CHARACTER(cQzColon,      ':');
QZ_CHARACTER(cQzSemiColon,  ';');
QZ_CHARACTER(cQzBracketO,   '[');
QZ_CHARACTER(cQzBracketC,   ']');
QZ_CHARACTER(cQzBraceO,     '{');
QZ_CHARACTER(cQzBraceC,     '}');
QZ_CHARACTER(cQzRBracketO,  '(');
QZ_CHARACTER(cQzRBracketC,  ')');
QZ_CHARACTER(cQzPercent,    '%');
QZ_CHARACTER(cQzDollar,     '$');
QZ_CHARACTER(cQzPlus,       '+');
QZ_CHARACTER(cQzHash,       '#');
QZ_CHARACTER(cQzCR,         '\r');
QZ_CHARACTER(cQzLF,         '\n');
QZ_CHARACTER(cQzEOF,        '\0');
QZ_CHARACTER(cQz0,          '0');
QZ_CHARACTER(cQz1,          '1');
QZ_CHARACTER(cQz2,          '2');
QZ_CHARACTER(cQz3,          '3');
QZ_CHARACTER(cQz4,          '4');
QZ_CHARACTER(cQz5,          '5');
QZ_CHARACTER(cQz6,          '6');
QZ_CHARACTER(cQz7,          '7');
QZ_CHARACTER(cQz8,          '8');
QZ_CHARACTER(cQz9,          '9');
QZ_CHARACTER(cQzCA,         'A');
QZ_CHARACTER(cQzCB,         'B');
QZ_CHARACTER(cQzCC,         'C');
QZ_CHARACTER(cQzCD,         'D');
QZ_CHARACTER(cQzCE,         'E');
QZ_CHARACTER(cQzCF,         'F');
QZ_CHARACTER(cQzCS,         'S');
QZ_CHARACTER(cQzSs,         's');
// clang-format on

#undef QZ_CHARACTER

} // namespace qz
