#include <qz/platform/Locale.h>

#include <algorithm>
#include <memory>
#include <mutex>
#include <string_view>

#include <unicode/ucal.h>
#include <unicode/udat.h>
#include <unicode/unum.h>

#include <qz/platform/Fork.h>
#include <qz/platform/linux/LocaleName.h>
#include <qz/platform/linux/LocalePattern.h>

namespace qz::platform {

namespace {

using TDateFormat = std::unique_ptr<UDateFormat, decltype(&udat_close)>;
using TNumberFormat = std::unique_ptr<UNumberFormat, decltype(&unum_close)>;

// ICU's functions of the kind "fill this buffer, give the length".
template <class TFill> std::u16string Text(const TFill& AFill) {
    std::u16string Result(64, u'\0');
    for (;;) {
        UErrorCode Status = U_ZERO_ERROR;
        const std::int32_t Length = AFill(Result.data(), static_cast<std::int32_t>(Result.size()), &Status);
        if (U_FAILURE(Status) && Status != U_BUFFER_OVERFLOW_ERROR)
            return {};
        const bool Fits = static_cast<std::size_t>(Length) <= Result.size();
        Result.resize(static_cast<std::size_t>(Length));
        if (Fits)
            return Result;
    }
}

TNumberFormat OpenNumbers(UNumberFormatStyle AStyle, const std::string& ALocale) {
    UErrorCode Status = U_ZERO_ERROR;
    TNumberFormat Result(unum_open(AStyle, nullptr, 0, ALocale.c_str(), nullptr, &Status), unum_close);
    return U_SUCCESS(Status) ? std::move(Result) : TNumberFormat(nullptr, unum_close);
}

std::u16string Symbol(const TNumberFormat& AFormat, UNumberFormatSymbol ASymbol) {
    return Text([&](char16_t* ABuffer, std::int32_t ASize, UErrorCode* AStatus) {
        return unum_getSymbol(AFormat.get(), ASymbol, ABuffer, ASize, AStatus);
    });
}

void TakeFirst(char16_t& ATarget, std::u16string_view ASource) {
    if (!ASource.empty())
        ATarget = ASource.front();
}

void ReadNumbers(const std::string& ALocale, TLocale& AResult) {
    const TNumberFormat Format = OpenNumbers(UNUM_DECIMAL, ALocale);
    if (!Format)
        return;
    TakeFirst(AResult.DecimalSeparator, Symbol(Format, UNUM_DECIMAL_SEPARATOR_SYMBOL));
    TakeFirst(AResult.ThousandSeparator, Symbol(Format, UNUM_GROUPING_SEPARATOR_SYMBOL));
    AResult.ListSeparator = AResult.DecimalSeparator == u',' ? u';' : u',';
}

std::u16string Amount(const TNumberFormat& AFormat, double AValue) {
    return Text([&](char16_t* ABuffer, std::int32_t ASize, UErrorCode* AStatus) {
        return unum_formatDouble(AFormat.get(), AValue, ABuffer, ASize, nullptr, AStatus);
    });
}

void ReadCurrency(const std::string& ALocale, TLocale& AResult) {
    const TNumberFormat Format = OpenNumbers(UNUM_CURRENCY, ALocale);
    if (!Format)
        return;
    const std::u16string Currency = Symbol(Format, UNUM_CURRENCY_SYMBOL);
    AResult.CurrencyDecimals = static_cast<std::uint8_t>(
        std::clamp(unum_getAttribute(Format.get(), UNUM_MIN_FRACTION_DIGITS), 0, 9));
    unum_setAttribute(Format.get(), UNUM_FRACTION_DIGITS, 0);
    AResult.CurrencyString = Currency;
    AResult.CurrencyFormat = detail::PositiveCurrencyCode(Amount(Format, 1), Currency);
    AResult.NegativeCurrencyFormat =
        detail::NegativeCurrencyCode(Amount(Format, -1), Currency, AResult.CurrencyFormat);
}

TDateFormat OpenDates(UDateFormatStyle ATime, UDateFormatStyle ADate, const std::string& ALocale) {
    UErrorCode Status = U_ZERO_ERROR;
    TDateFormat Result(udat_open(ATime, ADate, ALocale.c_str(), nullptr, 0, nullptr, 0, &Status), udat_close);
    return U_SUCCESS(Status) ? std::move(Result) : TDateFormat(nullptr, udat_close);
}

void ReadPattern(std::u16string& ATarget, UDateFormatStyle ATime, UDateFormatStyle ADate,
                 const std::string& ALocale) {
    const TDateFormat Format = OpenDates(ATime, ADate, ALocale);
    if (!Format)
        return;
    const std::u16string Pattern = Text([&](char16_t* ABuffer, std::int32_t ASize, UErrorCode* AStatus) {
        return udat_toPattern(Format.get(), 0, ABuffer, ASize, AStatus);
    });
    std::u16string Plain = detail::PlainPattern(Pattern);
    if (!Plain.empty())
        ATarget = std::move(Plain);
}

template <std::size_t TCount>
void ReadNames(std::array<std::u16string, TCount>& ATarget, const TDateFormat& AFormat,
               UDateFormatSymbolType AKind, std::int32_t AFirst) {
    for (std::size_t Index = 0; Index < TCount; ++Index) {
        ATarget[Index] = Text([&](char16_t* ABuffer, std::int32_t ASize, UErrorCode* AStatus) {
            return udat_getSymbols(AFormat.get(), AKind, AFirst + static_cast<std::int32_t>(Index), ABuffer,
                                   ASize, AStatus);
        });
    }
}

void ReadAllNames(const std::string& ALocale, TLocale& AResult) {
    const TDateFormat Format = OpenDates(UDAT_SHORT, UDAT_SHORT, ALocale);
    if (!Format)
        return;
    ReadNames(AResult.LongMonthNames, Format, UDAT_STANDALONE_MONTHS, 0);
    ReadNames(AResult.ShortMonthNames, Format, UDAT_STANDALONE_SHORT_MONTHS, 0);
    ReadNames(AResult.LongDayNames, Format, UDAT_STANDALONE_WEEKDAYS, UCAL_SUNDAY);
    ReadNames(AResult.ShortDayNames, Format, UDAT_STANDALONE_SHORT_WEEKDAYS, UCAL_SUNDAY);
    std::array<std::u16string, 2> Halves;
    ReadNames(Halves, Format, UDAT_AM_PMS, UCAL_AM);
    AResult.AMString = Halves[0];
    AResult.PMString = Halves[1];
}

void ReadDates(const std::string& ALocale, TLocale& AResult) {
    // Day and month names and patterns of other calendars would not fit the numbers.
    const std::string Gregorian = ALocale + "@calendar=gregorian";
    ReadPattern(AResult.ShortDateFormat, UDAT_NONE, UDAT_SHORT, Gregorian);
    ReadPattern(AResult.LongDateFormat, UDAT_NONE, UDAT_FULL, Gregorian);
    ReadPattern(AResult.ShortTimeFormat, UDAT_SHORT, UDAT_NONE, Gregorian);
    ReadPattern(AResult.LongTimeFormat, UDAT_MEDIUM, UDAT_NONE, Gregorian);
    AResult.ShortDateFormat = detail::WithLongYear(AResult.ShortDateFormat);
    TakeFirst(AResult.DateSeparator, detail::FirstSeparator(AResult.ShortDateFormat));
    TakeFirst(AResult.TimeSeparator, detail::FirstSeparator(AResult.ShortTimeFormat));
    ReadAllNames(Gregorian, AResult);
}

// The locales of numbers, amounts, and dates and times, as ICU names them; empty for the neutral one.
using TLocaleNames = std::array<std::string, 3>;

TLocaleNames NamesOfEnvironment() {
    const auto Name = [](const char* ACategory) {
        return detail::IcuLocaleName(detail::PosixLocaleName(ACategory));
    };
    return {Name("LC_NUMERIC"), Name("LC_MONETARY"), Name("LC_TIME")};
}

TLocale ReadLocale(const TLocaleNames& ANames) {
    TLocale Result;
    if (!ANames[0].empty())
        ReadNumbers(ANames[0], Result);
    if (!ANames[1].empty())
        ReadCurrency(ANames[1], Result);
    if (!ANames[2].empty())
        ReadDates(ANames[2], Result);
    return Result;
}

constinit std::mutex GLock;
[[maybe_unused]] const bool GIsWatched = HoldAroundFork(TForkRank::Locale, [] { return &GLock; });

// Calls AUse with the locale that the environment names now.
template <class TUse> auto WithUserLocale(const TUse& AUse) {
    // To open a locale in ICU takes a tenth of a millisecond, and what it says does not change with time.
    // Guarded by the lock and never destroyed.
    constinit static std::pair<TLocaleNames, TLocale>* Last = nullptr;
    const TLocaleNames Names = NamesOfEnvironment();
    const std::lock_guard Hold(GLock);
    if (Last == nullptr)
        Last = new std::pair<TLocaleNames, TLocale>;
    if (Last->first != Names)
        *Last = {Names, ReadLocale(Names)};
    return AUse(Last->second);
}

} // namespace

TLocale NeutralLocale() {
    return {};
}

TLocale UserLocale() {
    return WithUserLocale([](const TLocale& ALocale) { return ALocale; });
}

char16_t UserDecimalSeparator() {
    return WithUserLocale([](const TLocale& ALocale) { return ALocale.DecimalSeparator; });
}

} // namespace qz::platform
