// FormatFloat: a float written by a pattern.
//
//     FormatFloat("#,##0.00", 1234567.891);          // "1,234,567.89"
//     FormatFloat("0.0E+00", 0.00123);               // "1.2E-03"
//     FormatFloat("0 'ok';0 'short';'none'", -3);    // "3 short"
//
// A pattern has up to three sections, parted by semicolons: for positive and negative numbers and for zero.
// An empty or missing one is taken from the first, which then has a minus in front of negative numbers. In a
// section:
//
//     0               a digit in any case              #      a digit if the number has one there
//     .               where the decimal separator goes; left out when no digit follows
//     ,               anywhere: groups of three before the point
//     E+ E- e+ e-     the scientific form; zeros after it are the least digits of the exponent, "+" keeps its plus
//     '...' "..."     a literal; all other characters stand for themselves
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/text/FormatSettings.h>

namespace qz {

// AValue is rounded as FloatToStrF does, to the digits after the point of the pattern; digits that have no
// place before the point stand in front of the first. A number that its section rounds to zero is written as
// zero. The general form with 15 digits, instead, for an empty first section, for what is no finite number,
// and for more than 18 digits before the point. Both functions are pure and may run on any number of threads.
QZ_API UnicodeString FormatFloat(const TStringArg& APattern, double AValue);
QZ_API UnicodeString FormatFloat(const TStringArg& APattern, double AValue, const TFormatSettings& ASettings);

} // namespace qz
