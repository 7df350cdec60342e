// Restrictions: which value breaks which, in which order, and what is left then.
#include <gtest/gtest.h>
#include <qz/common/uQzXSTypes.h>
#include <qz/runtime/text/RegEx.h>

#include "tests/support/Message.h"

namespace qz {
namespace {

// What stands between "The " and "!" in the message.
constexpr auto cLength = u"length of the specified valaue does not match the specified length";
constexpr auto cLong = u"specified value is longer than the max length";
constexpr auto cShort = u"specified value is shorter than the max length";
constexpr auto cPattern = u"specified value does not match the specified pattern";
constexpr auto cLow = u"specified value is smaller than, or equal to, the minimal value";
constexpr auto cHigh = u"specified value is greater than, or equal to, the maximal value";
constexpr auto cBelow = u"specified value is smaller than the minimal value";
constexpr auto cDigits = u"value contains more digits than the maximum amount of allowed digits";
constexpr auto cFraction = u"value contains more digits than the maximum amount of allowed fraction digits";
constexpr auto cNothing = u"";

template <class R, class T> struct TCase {
    typename std::remove_cvref_t<decltype(*R().Restrictions)> Restrictions;
    T Value;
    std::u16string_view Breach;
};

// The assignment and the restrictions by themselves give the same answer.
template <class R, class T> void ExpectBreaches(std::initializer_list<TCase<R, T>> ACases) {
    for (const TCase<R, T>& Case : ACases) {
        SCOPED_TRACE(testing::Message() << "row " << &Case - ACases.begin());
        const UnicodeString Expected = Case.Breach.empty()
            ? u"nothing"
            : u"EArgumentOutOfRangeException: The " + UnicodeString(Case.Breach) + u"!";
        R X;
        X.Restrictions = Case.Restrictions;
        EXPECT_EQ(Raised([&] { X = Case.Value; }), Expected);
        EXPECT_EQ(X.FValue == R(Case.Value).FValue, Case.Breach.empty());
        EXPECT_EQ(Raised([&] { Case.Restrictions.CheckLimits(R(Case.Value).FValue); }), Expected);
    }
}

TEST(XsFacets, EachBreachHasItsMessage) {
    ExpectBreaches<TXsString, const char16_t*>({
        {{.Length = 2, .MaxLength = 1}, u"abc", cLength},
        {{.Length = 2, .MinLength = 2, .MaxLength = 2}, u"\U0001F600", cNothing},
        {{.MinLength = 5, .MaxLength = 3}, u"abcd", cLong},
        {{.MinLength = 5, .Pattern = u"x"}, u"abcd", cShort},
        {{.Pattern = u"b"}, u"abc", cNothing},
        {{.Pattern = u"^b$"}, u"abc", cPattern},
    });
    ExpectBreaches<TXsInteger<std::uint8_t>, int>({
        {{.MinExclusive = 10, .MinInclusive = 20}, 10, cLow},
        {{.MinExclusive = 10}, 11, cNothing},
        {{.MinExclusive = 10}, 200, cNothing},
        {{.MaxExclusive = 10}, 10, cHigh},
        {{.MaxExclusive = 10, .MinInclusive = 9, .MaxInclusive = 9}, 9, cNothing},
        {{.MinInclusive = 10}, 9, cBelow},
        {{.MaxInclusive = 10, .Pattern = u"2"}, 11, cHigh},
        {{.Pattern = u"^1"}, 21, cPattern},
    });
    ExpectBreaches<TXsInteger<std::int64_t>, std::int64_t>({
        {{.MinExclusive = -5}, -6, cLow},
        {{.MaxInclusive = std::int64_t{1} << 40}, (std::int64_t{1} << 40) + 1, cHigh},
        {{.Pattern = u"^-5000000000$"}, -5000000000, cNothing},
    });
    ExpectBreaches<TXsInteger<std::uint64_t>, std::uint64_t>({{{.MinExclusive = 1}, ~0ULL, cNothing}});
    ExpectBreaches<TXsRational<double>, double>({
        {{.TotalDigits = 3}, 12.3, cNothing},
        {{.TotalDigits = 3, .FractionDigits = 1}, 12.34, cDigits},
        {{.TotalDigits = 3}, -12.3, cDigits},
        {{.FractionDigits = 2}, 7.25, cNothing},
        {{.FractionDigits = 2}, -7.25, cFraction},
        {{.FractionDigits = 0}, 7, cNothing},
        {{.FractionDigits = 1, .MaxInclusive = 1}, 7.25, cFraction},
        {{.MinExclusive = 1.5}, 1.5, cLow},
        {{.MaxExclusive = 1.5, .MinInclusive = 9}, 1.5, cHigh},
        {{.MaxInclusive = 1.5}, 1.75, cHigh},
        {{.Pattern = u"^1.5$"}, 1.5, cNothing},
        {{.Pattern = u"^1.5$"}, 2.5, cPattern},
    });
}

// A null number that refuses a value is left with the marker; a text is left as it was.
TEST(XsFacets, WhatIsLeftAfterABreach) {
    TXsInteger<int> X;
    X.Restrictions = {.MaxInclusive = 10};
    EXPECT_THROW(X = 11, EArgumentOutOfRangeException);
    EXPECT_EQ(X, TXsInteger<int>(0));
    X = 10;
    EXPECT_THROW(X += 1, EArgumentOutOfRangeException);
    EXPECT_THROW((void)(X * 2), EArgumentOutOfRangeException);
    EXPECT_EQ((11 + X).FValue, 21);
    EXPECT_EQ((X - 20).FValue, -10);
    EXPECT_THROW((void)-(X - 21), EArgumentOutOfRangeException);
    X.FromString("12"); // is not checked
    EXPECT_EQ(X.FValue, 12);
    EXPECT_THROW((void)+X, EArgumentOutOfRangeException);

    TXsString Text;
    Text.Restrictions = {.MaxLength = 3};
    EXPECT_THROW(Text = "abcd", EArgumentOutOfRangeException);
    EXPECT_TRUE(Text.IsNull());
    Text = "ab";
    EXPECT_THROW(Text += u"cd", EArgumentOutOfRangeException);
    EXPECT_TRUE(Text + u"c" == u"abc" && Text == "ab");
}

TEST(XsFacets, CopiesShareOneBlock) {
    TXsString First;
    First.Restrictions = {.MaxLength = 3, .Pattern = u"^[A-Z]+$"};
    std::vector<TXsString> Copies(1000, First);
    for (TXsString& Copy : Copies)
        Copy = "ABC";
    EXPECT_TRUE(std::all_of(Copies.begin(), Copies.end(), [&](const TXsString& Copy) {
        return &*Copy.Restrictions == &*First.Restrictions &&
            Copy.Restrictions.SharesWith(First.Restrictions);
    }));
    Copies[0].Restrictions.Change([](auto& R) { R.MaxLength.Clear(); });
    EXPECT_NO_THROW(Copies[0] = "ABCD");
    EXPECT_THROW(Copies[1] = "ABCD", EArgumentOutOfRangeException);
    EXPECT_NO_THROW(First.Restrictions = {.Pattern = u"("});
    EXPECT_THROW(First = "x", ERegularExpressionError);
    EXPECT_TRUE(First.IsNull());
}

} // namespace
} // namespace qz
