#include <qz/platform/Locale.h>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

// Leaves the target as it is when the system has no such text.
void ReadText(std::u16string& ATarget, LCTYPE AKind) {
    const int Size = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, AKind, nullptr, 0);
    if (Size <= 0)
        return;
    std::u16string Result(static_cast<std::size_t>(Size), u'\0');
    if (GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, AKind, detail::Wide(Result.data()), Size) != Size)
        return;
    Result.pop_back(); // the NUL
    ATarget = std::move(Result);
}

void ReadUnit(char16_t& ATarget, LCTYPE AKind) {
    std::u16string Text;
    ReadText(Text, AKind);
    if (!Text.empty())
        ATarget = Text.front();
}

void ReadNumber(std::uint8_t& ATarget, LCTYPE AKind, DWORD AMaximum) {
    DWORD Number = 0;
    if (GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, AKind | LOCALE_RETURN_NUMBER,
                        reinterpret_cast<wchar_t*>(&Number), sizeof Number / sizeof(wchar_t)) > 0 &&
        Number <= AMaximum)
        ATarget = static_cast<std::uint8_t>(Number);
}

void ReadNames(TLocale& AResult) {
    for (unsigned Month = 0; Month < 12; ++Month) {
        ReadText(AResult.LongMonthNames[Month], LOCALE_SMONTHNAME1 + Month);
        ReadText(AResult.ShortMonthNames[Month], LOCALE_SABBREVMONTHNAME1 + Month);
    }
    for (unsigned Day = 0; Day < 7; ++Day) {
        // The system counts from Monday.
        const unsigned SystemDay = (Day + 6) % 7;
        ReadText(AResult.LongDayNames[Day], LOCALE_SDAYNAME1 + SystemDay);
        ReadText(AResult.ShortDayNames[Day], LOCALE_SABBREVDAYNAME1 + SystemDay);
    }
}

} // namespace

TLocale NeutralLocale() {
    return {};
}

TLocale UserLocale() {
    TLocale Result;
    ReadText(Result.CurrencyString, LOCALE_SCURRENCY);
    ReadNumber(Result.CurrencyFormat, LOCALE_ICURRENCY, 3);
    ReadNumber(Result.NegativeCurrencyFormat, LOCALE_INEGCURR, 15);
    ReadNumber(Result.CurrencyDecimals, LOCALE_ICURRDIGITS, 9);
    ReadUnit(Result.DecimalSeparator, LOCALE_SDECIMAL);
    ReadUnit(Result.ThousandSeparator, LOCALE_STHOUSAND);
    ReadUnit(Result.ListSeparator, LOCALE_SLIST);
    ReadUnit(Result.DateSeparator, LOCALE_SDATE);
    ReadUnit(Result.TimeSeparator, LOCALE_STIME);
    ReadText(Result.ShortDateFormat, LOCALE_SSHORTDATE);
    ReadText(Result.LongDateFormat, LOCALE_SLONGDATE);
    ReadText(Result.ShortTimeFormat, LOCALE_SSHORTTIME);
    ReadText(Result.LongTimeFormat, LOCALE_STIMEFORMAT);
    ReadText(Result.AMString, LOCALE_S1159);
    ReadText(Result.PMString, LOCALE_S2359);
    ReadNames(Result);
    return Result;
}

char16_t UserDecimalSeparator() {
    char16_t Result = u'.';
    ReadUnit(Result, LOCALE_SDECIMAL);
    return Result;
}

} // namespace qz::platform
