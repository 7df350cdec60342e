// How the user writes numbers, amounts, dates and times.
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

// The defaults are the neutral set.
//
// Patterns are made of: d dd ddd dddd (day, with two digits, short and long day name), M MM MMM MMMM (month
// alike), yy yyyy, h hh (hours: 12 of them with tt in the pattern, else 24), H HH (24 hours), m mm, s ss, tt
// (half of the day). All else stands for itself; text in single quotes is literal, two of them are one quote.
struct TLocale {
    std::u16string CurrencyString;
    // Where the currency stands: 0 "$1", 1 "1$", 2 "$ 1", 3 "1 $".
    std::uint8_t CurrencyFormat = 0;
    // And in a negative amount: 0 "($1)", 1 "-$1", 2 "$-1", 3 "$1-", 4 "(1$)", 5 "-1$", 6 "1-$", 7 "1$-", 8
    // "-1 $", 9 "-$ 1", 10 "1 $-", 11 "$ 1-", 12 "$ -1", 13 "1- $", 14 "($ 1)", 15 "(1 $)".
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
    // A year of two digits falls into the hundred years that begin this many years before the current one.
    // Neither system has a setting for it that means the same, so that it is always 50.
    std::uint16_t TwoDigitYearWindow = 50;
};

// The set that belongs to no country: that of the C locale, plus what that one lacks. Asks no system. Any
// thread.
QZ_API TLocale NeutralLocale();

// The settings of the user, asked for anew on each call.
//
// Windows: the user's own regional settings. Linux: numbers from LC_NUMERIC, the currency from LC_MONETARY,
// dates, times and names from LC_TIME, for each of which LC_ALL goes before and LANG behind. The process's
// own locale stays as it is, and the locale need not be installed; C, POSIX and an unknown one give the
// neutral set. There the short date always has four digits of the year, the list separator is ";" where ","
// is the decimal one, and blanks of a special width in time patterns are plain ones. A separator of several
// units is cut to its first. Any thread, as long as none changes the environment.
QZ_API TLocale UserLocale();
// What they say of the decimal separator alone.
QZ_API char16_t UserDecimalSeparator();

} // namespace qz::platform
