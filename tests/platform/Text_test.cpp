#include <qz/platform/Text.h>

#include <gtest/gtest.h>

#include <set>

#include "tests/support/AtOnce.h"
#include <qz/platform/Locale.h>

namespace qz::platform {
namespace {

constexpr bool cOnWindows = QZ_TESTS_ON_WINDOWS != 0;

// What no user's language changes.
TEST(Text, MapsCaseOfWholeTexts) {
    struct TCase {
        std::u16string Text, Upper, Lower;
    };
    const TCase Cases[] = {
        {u"", u"", u""},
        {u"@[`{\x7F", u"@[`{\x7F", u"@[`{\x7F"},
        {u"Straße", cOnWindows ? u"STRAßE" : u"STRASSE", u"straße"},
        {std::u16string(u"a\0é", 3), std::u16string(u"A\0É", 3), std::u16string(u"a\0é", 3)},
        {u"é\xD800", u"É\xD800", u"é\xD800"},
        {std::u16string(5000, u'é'), std::u16string(5000, u'É'), std::u16string(5000, u'é')},
    };
    for (const TCase& Case : Cases) {
        EXPECT_EQ(UpperCase(Case.Text), Case.Upper);
        EXPECT_EQ(LowerCase(Case.Text), Case.Lower);
    }
}

TEST(Text, MapsUnitsOneToOne) {
    const std::pair<char16_t, char16_t> cLetters[] = {{u'A', u'a'}, {u'Z', u'z'}, {u'Ÿ', u'ÿ'}, {u'Σ', u'σ'}};
    for (const auto& [Upper, Lower] : cLetters) {
        EXPECT_EQ(UpperChar(Lower), Upper);
        EXPECT_EQ(LowerChar(Upper), Lower);
    }
    for (const char16_t Caseless :
         {u'@', u'[', u'`', u'{', u'\0', char16_t{0xD83D}, char16_t{0xDE00}, u'漢'}) {
        EXPECT_EQ(UpperChar(Caseless), Caseless);
        EXPECT_EQ(LowerChar(Caseless), Caseless);
    }
    EXPECT_EQ(UpperChar(u'ß'), u'ß');
}

TEST(Text, ComparesInAlphabeticalOrder) {
    // Each sorts before the next, unlike their units.
    const std::u16string Ascending[] = {u"", u"a", u"A", u"é", u"f", u"Straße", u"T", u"Z\u0308", u"Ж"};
    for (size_t A = 0; A < std::size(Ascending); ++A) {
        for (size_t B = 0; B < std::size(Ascending); ++B) {
            const int Order = CompareStrings(Ascending[A], Ascending[B], false);
            EXPECT_EQ(Order < 0, A < B) << A << ' ' << B;
            EXPECT_EQ(Order > 0, A > B) << A << ' ' << B;
        }
    }
    EXPECT_EQ(CompareStrings(u"ÄPFEL und Birnen", u"äpfel UND birnen", true), 0);
    EXPECT_NE(CompareStrings(u"ÄPFEL", u"äpfel", false), 0);
    EXPECT_NE(CompareStrings(u"apfel", u"äpfel", true), 0);
    EXPECT_LT(CompareStrings(u"a", u"ab", true), 0);
}

TEST(Text, ThreadsCompareAtTheSameTime) {
    AtOnce(4, [](int) {
        for (int Round = 0; Round < 500; ++Round) {
            ASSERT_EQ(CompareStrings(u"Öl", u"öl", true), 0);
            ASSERT_LT(CompareStrings(u"öl", u"Öl", false), 0);
            ASSERT_EQ(UpperCase(u"öl"), u"ÖL");
        }
    });
}

TEST(Text, KnowsKindsOfUnits) {
    struct TCase {
        char16_t Unit;
        std::string_view Kinds; // letter, digit, upper, lower, white space
    };
    const TCase Cases[] = {{u'a', "L--l-"},           {u'Ж', "L-u--"},
                           {u'漢', "L----"},          {u'7', "-d---"},
                           {u' ', "----w"},           {u'\t', "----w"},
                           {char16_t{0xA0}, "----w"}, {u'_', "-----"},
                           {u'\0', "-----"},          {char16_t{0xD83D}, "-----"}};
    for (const TCase& Case : Cases) {
        std::string Kinds;
        Kinds += IsLetter(Case.Unit) ? 'L' : '-';
        Kinds += IsDigit(Case.Unit) ? 'd' : '-';
        Kinds += IsUpper(Case.Unit) ? 'u' : '-';
        Kinds += IsLower(Case.Unit) ? 'l' : '-';
        Kinds += IsWhiteSpace(Case.Unit) ? 'w' : '-';
        EXPECT_EQ(Kinds, Case.Kinds) << "unit " << static_cast<unsigned>(Case.Unit);
    }
}

bool Has(const std::u16string& AText, std::u16string_view APart) {
    return AText.find(APart) != std::u16string::npos;
}

TEST(Locale, UserSettingsAreWhole) {
    const TLocale Locale = UserLocale();
    EXPECT_TRUE(Has(Locale.ShortDateFormat, u"d") && Has(Locale.ShortDateFormat, u"M") &&
                Has(Locale.ShortDateFormat, u"y"));
    const auto Distinct = [](const auto& ANames) {
        return std::set<std::u16string>(ANames.begin(), ANames.end()).size();
    };
    EXPECT_EQ(Distinct(Locale.LongMonthNames), 12u);
    EXPECT_EQ(Distinct(Locale.ShortMonthNames), 12u);
    EXPECT_EQ(Distinct(Locale.LongDayNames), 7u);
}

} // namespace
} // namespace qz::platform
