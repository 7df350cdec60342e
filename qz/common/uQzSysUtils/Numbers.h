// Small helpers on numbers, and on numbers within texts.
//
//     QzRound(1.25, 1);                          // 1.3: halves go away from zero
//     QzStringIncrement(u"INV-0099", 1);         // "INV-0100"
//     QzIsBitChecked(5, 3);                      // true: bits are numbered from 1
//
// The functions have no state.
#pragma once

#include <qz/runtime/base/Extended.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

// AValue with ADigits decimals; a negative number of them rounds to tens, hundreds and so on. A half goes
// away from zero. What remains after the last digit is a half when it shows as one in 15 digits, so
// 0.49999999999999994 without decimals is 1; the nearest double of 1.005, though, leaves less than that and
// becomes 1.00. An infinite number and NaN stay.
QZ_API double QzRound(double AValue, std::int32_t ADigits);
QZ_API Extended QzRound(Extended AValue, std::int32_t ADigits);

// Whether the bit of that number is set: 1 is the lowest, 64 the sign. Numbers below 1 name no bit and give
// true, those above 64 false.
QZ_API bool QzIsBitChecked(std::int64_t AValue, std::int32_t ABit) noexcept;

// The number at the end of the text, plus AStep, in at least as many characters as before: "AB99" becomes
// "AB100", "007" with -1 "006". A text of blanks alone becomes the year of today and "00001", whatever the
// step. Raises EConvertError for a text that does not end in a digit, and where the number before or after
// does not fit 64 bits with sign.
QZ_API UnicodeString QzStringIncrement(const TStringArg& AText, std::int32_t AStep);

// In decimal.
QZ_API AnsiString QzIntToAnsiStr(std::int64_t AValue);

} // namespace qz
