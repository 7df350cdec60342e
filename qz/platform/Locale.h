// The user's formats of numbers, currency, dates and times.
//
//     const TLocale Locale = UserLocale();
//     Locale.DecimalSeparator;  // u',' in Germany
//     Locale.ShortDateFormat;   // u"dd.MM.yyyy"
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include <qz/platform/Export.h>

namespace qz::platform {

// The defaults are those of NeutralLocale.
//
// Patterns consist of: d dd ddd dddd (day, two digits, short and long day name), M MM MMM MMMM (month
// likewise), yy yyyy, h hh (12 hours if the pattern has tt, else 24), H HH (24 hours), m mm, s ss, tt (AM or
// PM). Other characters are literal; so is text in single quotes, where two quotes give one.
struct TLocale {
    std::u16string CurrencyString;
    // Position of the currency: 0 "$1", 1 "1$", 2 "$ 1", 3 "1 $".
    std::uint8_t CurrencyFormat = 0;
    // The same for a negative amount: 0 "($1)", 1 "-$1", 2 "$-1", 3 "$1-", 4 "(1$)", 5 "-1$", 6 "1-$", 7
    // "1$-", 8 "-1 $", 9 "-$ 1", 10 "1 $-", 11 "$ 1-", 12 "$ -1", 13 "1- $", 14 "($ 1)", 15 "(1 $)".
    std::uint8_t NegativeCurrencyFormat = 1;
    std::uint8_t CurrencyDecimals = 2;
    char16_t DecimalSeparator = u'.';
    char16_t ThousandSeparator = u',';
    char16_t ListSeparator = u',';
    char16_t DateSeparator = u'/';
    char16_t TimeSeparator = u':';
    std::u16string ShortDateFormat = u"MM/dd/yyyy";
    std::u16string LongDateFormat = u"dddd, dd MMMM yyyy";
    std::u16string ShortTimeFormat = u"hh:mm";
    std::u16string LongTimeFormat = u"hh:mm:ss";
    std::u16string AMString = u"AM";
    std::u16string PMString = u"PM";
    std::array<std::u16string, 12> ShortMonthNames{u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun",
                                                   u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"};
    std::array<std::u16string, 12> LongMonthNames{u"January",   u"February", u"March",    u"April",
                                                  u"May",       u"June",     u"July",     u"August",
                                                  u"September", u"October",  u"November", u"December"};
    // Sunday first.
    std::array<std::u16string, 7> ShortDayNames{u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
    std::array<std::u16string, 7> LongDayNames{u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                               u"Thursday", u"Friday", u"Saturday"};
    // A two-digit year lies in the 100 years that begin this many years before the current one. Always 50,
    // since the systems have no equivalent setting.
    std::uint16_t TwoDigitYearWindow = 50;
};

// Formats that belong to no country: those of the C locale, completed. Does not query the system. Any thread.
QZ_API TLocale NeutralLocale();

// The user's settings, queried on each call.
//
// Windows: the user's regional settings. Linux: numbers from LC_NUMERIC, the currency from LC_MONETARY,
// dates, times and names from LC_TIME; LC_ALL overrides each, LANG is the fallback. The process locale is not
// changed, and the locale need not be installed; C, POSIX and an unknown locale give NeutralLocale. On Linux
// the short date always has a four-digit year, the list separator is ";" where "," is the decimal separator,
// and special blanks in time patterns become plain ones. A separator of several units is reduced to its
// first. Any thread, as long as none changes the environment.
QZ_API TLocale UserLocale();
// The decimal separator of UserLocale.
QZ_API char16_t UserDecimalSeparator();

} // namespace qz::platform
