#include <qz/platform/linux/LocalePattern.h>

#include <gtest/gtest.h>

#include <qz/platform/linux/LocaleName.h>

namespace qz::platform::detail {
namespace {

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
    EXPECT_EQ(WithLongYear(u"d/M/yy"), u"d/M/yyyy");
    EXPECT_EQ(WithLongYear(u"yyyy-MM"), u"yyyy-MM");
}

TEST(LocalePattern, FindsCurrencyPositions) {
    struct TCase {
        std::u16string Positive, Negative, Currency;
        int PositiveCode, NegativeCode;
    };
    const TCase Cases[] = {
        {u"1\u00A0€", u"\u22121\u00A0€", u"€", 3, 8},
        {u"1kr.", u"1-kr.", u"kr.", 1, 6},
        {u"\u200F1\u00A0\u20AA", u"\u200F\u200E-1\u00A0\u20AA", u"\u20AA", 3, 8},
        {u"R$ 1", u"- R$ 1", u"R$", 2, 9}, // no such code: the minus in front
        {u"1", u"-1", u"", 0, 1},
    };
    for (const TCase& Case : Cases) {
        const uint8_t Positive = PositiveCurrencyCode(Case.Positive, Case.Currency);
        EXPECT_EQ(Positive, Case.PositiveCode);
        EXPECT_EQ(NegativeCurrencyCode(Case.Negative, Case.Currency, Positive), Case.NegativeCode);
    }
}

TEST(LocalePattern, NamesLocalesAsIcuDoes) {
    const std::pair<const char*, const char*> cCases[] = {{"de_DE.UTF-8@euro", "de_DE"},
                                                          {"sr_RS.UTF-8@latin", "sr_Latn_RS"},
                                                          {"sr@latin", "sr_Latn"},
                                                          {"C.UTF-8", ""},
                                                          {"POSIX", ""},
                                                          {".UTF-8", ""},
                                                          {"xx_XX", ""}};
    for (const auto& [Posix, Icu] : cCases)
        EXPECT_EQ(IcuLocaleName(Posix), Icu) << Posix;
}

} // namespace
} // namespace qz::platform::detail
