#include <qz/platform/Locale.h>

#include <set>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

bool Has(const std::u16string& AText, std::u16string_view APart) {
    return AText.find(APart) != std::u16string::npos;
}

TEST(Locale, UserSettingsAreWhole) {
    const TLocale Locale = UserLocale();
    EXPECT_TRUE(Has(Locale.ShortDateFormat, u"d") && Has(Locale.ShortDateFormat, u"M") &&
                Has(Locale.ShortDateFormat, u"y"));
    EXPECT_TRUE(Has(Locale.LongDateFormat, u"MMMM") || Has(Locale.LongDateFormat, u"M"));
    EXPECT_TRUE(Has(Locale.LongTimeFormat, u"s"));
    EXPECT_FALSE(Has(Locale.ShortTimeFormat, u"s"));
    EXPECT_NE(Locale.DecimalSeparator, Locale.ThousandSeparator);
    EXPECT_LE(Locale.CurrencyFormat, 3);
    EXPECT_LE(Locale.NegativeCurrencyFormat, 15);
    const auto Distinct = [](const auto& ANames) {
        return std::set<std::u16string>(ANames.begin(), ANames.end()).size();
    };
    EXPECT_EQ(Distinct(Locale.LongMonthNames), 12u);
    EXPECT_EQ(Distinct(Locale.ShortMonthNames), 12u);
    EXPECT_EQ(Distinct(Locale.LongDayNames), 7u);
}

} // namespace
} // namespace qz::platform
