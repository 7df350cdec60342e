#include <qz/platform/Locale.h>

#include <gtest/gtest.h>

#include <string>

#include "tests/support/Variables.h"
#include <qz/platform/CodePages.h>
#include <qz/platform/linux/Charset.h>
#include <qz/platform/linux/LocaleName.h>
#include <qz/platform/linux/LocalePattern.h>

namespace qz::platform {
namespace {

TEST(LocaleLinux, FollowsTheEnvironment) {
    struct TCase {
        std::u16string Name;
        std::u16string Separators; // decimal, thousand, list, date, time
        std::u16string ShortDate, ShortTime, March, Currency;
        int Positive, Negative, Decimals;
    };

    const TCase Cases[] = {
        {u"C", u".,,/:", u"MM/dd/yyyy", u"hh:mm", u"March", u"", 0, 1, 2},
        {u"en_US.UTF-8", u".,,/:", u"M/d/yyyy", u"h:mm tt", u"March", u"$", 0, 1, 2},
        {u"de_DE.UTF-8@euro", u",.;.:", u"dd.MM.yyyy", u"HH:mm", u"März", u"€", 3, 8, 2},
        {u"pt_BR", u",.;/:", u"dd/MM/yyyy", u"HH:mm", u"março", u"R$", 2, 9, 2},
        {u"de_CH", u".’,.:", u"dd.MM.yyyy", u"HH:mm", u"März", u"CHF", 2, 2, 2},
        {u"ja_JP.eucJP", u".,,/:", u"yyyy/MM/dd", u"H:mm", u"3月", u"￥", 0, 1, 0},
        {u"th_TH.UTF-8", u".,,/:", u"d/M/yyyy", u"HH:mm", u"มีนาคม", u"฿", 0, 1, 2},
    };
    for (const TCase& Case : Cases) {
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

using namespace detail;

TEST(LocalePattern, HasThePlainLetters) {
    struct TCase {
        std::u16string Unicode, Plain, Separator;
    };
    const TCase Cases[] = {
        {u"EEEE, MMMM d, y", u"dddd, MMMM d, yyyy", u","},
        {u"h:mm\u202Fa", u"h:mm tt", u":"},
        {u"H 'h' mm 'min' ss 's' zzzz", u"H 'h' mm 'min' ss 's'", u""},
        {u"y\u5E74M\u6708d\u65E5", u"yyyy\u5E74M\u6708d\u65E5", u"\u5E74"},
        {u"G y. MM. dd", u"yyyy. MM. dd", u"."},
        {u"d\u200F/M\u200F/yyyy", u"d/M/yyyy", u"/"},
    };
    for (const TCase& Case : Cases) {
        const std::u16string Plain = PlainPattern(Case.Unicode);
        EXPECT_EQ(Plain, Case.Plain);
        EXPECT_EQ(FirstSeparator(Plain), Case.Separator);
    }
}

TEST(LocalePattern, NamesLocalesAsIcuDoes) {
    const std::pair<const char*, const char*> cNames[] = {{"de_DE.UTF-8@euro", "de_DE"},
                                                          {"sr_RS.UTF-8@latin", "sr_Latn_RS"},
                                                          {"sr@latin", "sr_Latn"},
                                                          {"C.UTF-8", ""},
                                                          {"POSIX", ""},
                                                          {".UTF-8", ""},
                                                          {"xx_XX", ""}};
    for (const auto& [Posix, Icu] : cNames)
        EXPECT_EQ(IcuLocaleName(Posix), Icu) << Posix;
}

TEST(Charset, HasACodePageThatConverts) {
    const std::pair<const char*, uint32_t> Cases[] = {
        {"utf8", 65001},        {"ANSI_X3.4-1968", 65001}, {"", 65001},
        {"NO-SUCH-SET", 65001}, {"iso885915", 28605},      {"ISO-8859-12", 65001},
        {"CP1252", 1252},       {"windows-1251", 1251},    {"eucJP", 20932},
        {"SJIS", 932},          {"GB2312", 51936},         {"KOI8-U", 21866},
        {"TIS-620", 874},       {"CP12x", 65001},
    };
    for (const auto& [Name, Page] : Cases) {
        EXPECT_EQ(CodePageOfCharset(Name), Page) << Name;
        char Byte = '\0';
        EXPECT_EQ(*Utf16ToCodePage(Page, u"x", {&Byte, 1}, TComposing::Plain), 1u) << Name;
        EXPECT_EQ(Byte, 'x') << Name;
    }
}

} // namespace
} // namespace qz::platform
