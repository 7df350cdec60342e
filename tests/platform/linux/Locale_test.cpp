#include <qz/platform/Locale.h>

#include <gtest/gtest.h>

#include "tests/support/Variables.h"

namespace qz::platform {
namespace {

struct TCase {
    std::u16string Name;
    std::u16string Separators; // decimal, thousand, list, date, time
    std::u16string ShortDate, ShortTime, March, Currency;
    int Positive, Negative, Decimals;
};

const TCase cCases[] = {
    {u"C", u".,,/:", u"MM/dd/yyyy", u"hh:mm", u"March", u"", 0, 1, 2},
    {u"en_US.UTF-8", u".,,/:", u"M/d/yyyy", u"h:mm tt", u"March", u"$", 0, 1, 2},
    {u"de_DE.UTF-8@euro", u",.;.:", u"dd.MM.yyyy", u"HH:mm", u"März", u"€", 3, 8, 2},
    {u"de_CH", u".’,.:", u"dd.MM.yyyy", u"HH:mm", u"März", u"CHF", 2, 2, 2},
    {u"ja_JP.eucJP", u".,,/:", u"yyyy/MM/dd", u"H:mm", u"3月", u"￥", 0, 1, 0},
    {u"th_TH.UTF-8", u".,,/:", u"d/M/yyyy", u"HH:mm", u"มีนาคม", u"฿", 0, 1, 2},
};

TEST(LocaleLinux, FollowsTheEnvironment) {
    for (const TCase& Case : cCases) {
        TVariables Variables;
        Variables.Set(u"LC_ALL", Case.Name);
        Variables.Set(u"LANG", u"pl_PL.UTF-8");
        const TLocale Locale = UserLocale();
        const std::u16string Separators = {Locale.DecimalSeparator, Locale.ThousandSeparator,
                                           Locale.ListSeparator, Locale.DateSeparator, Locale.TimeSeparator};
        SCOPED_TRACE(std::string(Case.Name.begin(), Case.Name.end()));
        EXPECT_EQ(Separators, Case.Separators);
        EXPECT_EQ(Locale.ShortDateFormat, Case.ShortDate);
        EXPECT_EQ(Locale.ShortTimeFormat, Case.ShortTime);
        EXPECT_EQ(Locale.LongMonthNames[2], Case.March);
        EXPECT_EQ(Locale.CurrencyString, Case.Currency);
        EXPECT_EQ(Locale.CurrencyFormat, Case.Positive);
        EXPECT_EQ(Locale.NegativeCurrencyFormat, Case.Negative);
        EXPECT_EQ(Locale.CurrencyDecimals, Case.Decimals);
    }
}

TEST(LocaleLinux, EachCategoryHasItsVariable) {
    TVariables Variables;
    Variables.Set(u"LC_ALL", u"");
    Variables.Set(u"LC_TIME", u"de_DE.UTF-8");
    Variables.Set(u"LC_NUMERIC", u"C");
    Variables.Set(u"LANG", u"en_GB.UTF-8");
    Variables.Set(u"LC_MONETARY", std::nullopt);
    const TLocale Locale = UserLocale();
    EXPECT_EQ(Locale.LongDayNames[0], u"Sonntag");
    EXPECT_EQ(Locale.DecimalSeparator, u'.');
    EXPECT_EQ(Locale.CurrencyString, u"£");
}

} // namespace
} // namespace qz::platform
