// TFormatSettings: the separators, names and patterns by which numbers and dates are written and read.
//
//     FloatToStr(1.5, TFormatSettings::Neutral());           // always "1.5"
//     TFormatSettings Mine = DefaultFormatSettings();        // a copy to change
//     Mine.DecimalSeparator = u',';
//
// A plain value: copy it, change the copy, hand it to the functions that take one.
#pragma once

#include <array>

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

struct TFormatSettings {
    UnicodeString CurrencyString;
    // 0: $1  1: 1$  2: $ 1  3: 1 $
    std::uint8_t CurrencyFormat = 0;
    // 0: ($1)  1: -$1  2: $-1  3: $1-  4: (1$)  5: -1$  6: 1-$  7: 1$-  8: -1 $  9: -$ 1  10: 1 $-  11: $ 1-
    // 12: $ -1  13: 1- $  14: ($ 1)  15: (1 $)
    std::uint8_t NegCurrFormat = 0;
    std::uint8_t CurrencyDecimals = 2;
    char16_t ThousandSeparator = u',';
    char16_t DecimalSeparator = u'.';
    char16_t DateSeparator = u'/';
    char16_t TimeSeparator = u':';
    char16_t ListSeparator = u',';
    // In the letters of FormatDateTime.
    UnicodeString ShortDateFormat;
    UnicodeString LongDateFormat;
    UnicodeString ShortTimeFormat;
    UnicodeString LongTimeFormat;
    UnicodeString TimeAMString;
    UnicodeString TimePMString;
    std::array<UnicodeString, 12> ShortMonthNames; // January first
    std::array<UnicodeString, 12> LongMonthNames;
    std::array<UnicodeString, 7> ShortDayNames; // Sunday first
    std::array<UnicodeString, 7> LongDayNames;
    // A year of two digits lies in the 100 years that begin this many years before the present one.
    std::uint16_t TwoDigitYearCenturyWindow = 50;

    // The current settings of the user's locale; neutral ones in the C locale.
    QZ_API static TFormatSettings Create();
    // The same on every machine: ".", ",", "/", ":", "MM/dd/yyyy", "hh:mm:ss", English names.
    QZ_API static const TFormatSettings& Neutral();

    friend bool operator==(const TFormatSettings&, const TFormatSettings&) = default;
};

// The settings that functions without a settings argument use: those of the system's locale, read at first
// use.
QZ_API const TFormatSettings& DefaultFormatSettings();

// Replaces them. Safe at any time: what is being formatted continues with the settings that it began with. So
// each different value is kept to the end of the program, once.
QZ_API void SetDefaultFormatSettings(const TFormatSettings& ASettings);

} // namespace qz
