// Floats as text and back.
//
//     FloatToStr(0.1 + 0.2);                        // "0.3"
//     FloatToStrF(1234567.891, ffNumber, 15, 2);    // "1,234,567.89"
//     StrToFloat(u" 1.5E3 ");                       // 1500
//
// Significant digits are those nearest to the double; of two as near, those away from zero. Digits after
// the point are rounded half away from zero from the shortest decimal number that reads back as the same
// double: 2.675 with two of them is "2.68", although the double is a little less. A number that rounds to
// zero has no sign. Infinity is "INF" or "-INF", not a number "NAN". Functions without settings use
// DefaultFormatSettings(). All may run on any number of threads.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/text/FormatSettings.h>

namespace qz {

enum class TFloatFormat : std::uint8_t {
    ffGeneral,  // the shortest of the fixed and the scientific form: 1234.5, 1.5E-5
    ffExponent, // one digit, point, digits, "E", sign and exponent: 1.2345E+003
    ffFixed,    // 1234.50
    ffNumber,   // 1,234.50
    ffCurrency  // as ffNumber with the currency, placed as the settings say
};
using enum TFloatFormat;

// General form with the nearest 15 significant digits: scientific from 1E15 on and below 1E-4.
QZ_API UnicodeString FloatToStr(double AValue);
QZ_API UnicodeString FloatToStr(double AValue, const TFormatSettings& ASettings);

// APrecision: significant digits, 1 to 18. ADigits, 0 to 18: digits after the point, or for ffExponent and
// ffGeneral the least digits of the exponent. A number with more than APrecision digits before the point is
// written in general form whatever AFormat says.
QZ_API UnicodeString FloatToStrF(double AValue, TFloatFormat AFormat, int APrecision, int ADigits);
QZ_API UnicodeString FloatToStrF(double AValue, TFloatFormat AFormat, int APrecision, int ADigits,
                                 const TFormatSettings& ASettings);

// Reads blanks, a sign, digits with the decimal separator of the settings, an exponent, blanks; also "INF"
// and "NAN". No thousand separators. A number too large for a double is refused, one too small is 0. Raises
// EConvertError, "'%s' is not a valid floating point value".
QZ_API double StrToFloat(const TStringArg& AText);
QZ_API double StrToFloat(const TStringArg& AText, const TFormatSettings& ASettings);
// Each gives false, and 0 as the value, instead.
QZ_API bool TryStrToFloat(const TStringArg& AText, double& AValue);
QZ_API bool TryStrToFloat(const TStringArg& AText, double& AValue, const TFormatSettings& ASettings);
QZ_API double StrToFloatDef(const TStringArg& AText, double ADefault);
QZ_API double StrToFloatDef(const TStringArg& AText, double ADefault, const TFormatSettings& ASettings);

namespace detail {

// FloatToStrF after the end of a text.
QZ_API void AppendFloat(UnicodeString& AText, double AValue, TFloatFormat AFormat, int APrecision,
                        int ADigits, const TFormatSettings& ASettings);

} // namespace detail

} // namespace qz
