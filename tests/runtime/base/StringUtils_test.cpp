#include <qz/runtime/base/StringUtils.h>

#include <gtest/gtest.h>

namespace qz {
namespace {

TEST(StringUtils, Comparison) {
    EXPECT_TRUE(SameText(u"aZ[", u"Az["));
    EXPECT_FALSE(SameText(u"[", u"{")); // 32 apart as letters are
    EXPECT_TRUE(AnsiSameText(u"\u00E4", u"\u00C4"));
    EXPECT_LT(CompareText(u"ABC", u"abd"), 0);
    EXPECT_LT(CompareText(u"ab", u"ABC"), 0);
    EXPECT_LT(CompareStr(u"B", u"a"), 0);
    EXPECT_GT(AnsiCompareStr(u"B", u"a"), 0);
}

TEST(StringUtils, Trimming) {
    const UnicodeString Text = u" \t\x1F a b \r\n";
    EXPECT_EQ(TrimLeft(Text), u"a b \r\n");
    EXPECT_EQ(TrimRight(Text), u" \t\x1F a b");
    EXPECT_EQ(Trim(u"  "), u"");
    EXPECT_EQ(Trim(u"\u00A0"), u"\u00A0");
}

TEST(StringUtils, PositionsCountFromOne) {
    struct {
        std::u16string_view Piece, Text;
        int Offset, Expected;
    } const Cases[] = {
        {u"=", u"a=b", 1, 2}, {u"a", u"a=b", 1, 1},  {u"b", u"a=b", 3, 3},  {u"a", u"a=b", 2, 0},
        {u"", u"abc", 1, 0},  {u"a", u"", 1, 0},     {u"a", u"a", 0, 0},    {u"a", u"a", -1, 0},
        {u"a", u"a", 2, 0},   {u"abc", u"ab", 1, 0}, {u"aa", u"aaa", 2, 2},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(Pos(Case.Piece, Case.Text, Case.Offset), Case.Expected)
            << ToUtf8(Case.Piece) << Case.Offset;
}

// Periodic pieces behind their own beginnings, so that a search has to fall back to the right place.
TEST(StringUtils, LongPiecesAreFoundWhereThePlainSearchFindsThem) {
    for (std::size_t Seed = 0; Seed < 256; ++Seed) {
        std::u16string Piece;
        while (Piece.size() < 80)
            Piece += (Seed >> Piece.size() % 7 & 1) != 0 || Piece.size() == Seed % 80 ? u'a' : u'b';
        const std::u16string Text =
            Piece.substr(0, 79 - Seed % 20) + Piece.substr(0, Seed % 77) + Piece + u"b";
        EXPECT_EQ(Pos(Piece, Text), static_cast<int>(Text.find(Piece)) + 1) << Seed;
    }
}

TEST(StringUtils, PiecesAreCutToTheText) {
    struct {
        int Index, Count;
        const char16_t* Copied;
        const char16_t* Left;
    } const Cases[] = {
        {1, 2, u"ab", u"cd"},   {4, 1, u"d", u"abc"},  {5, 1, u"", u"abcd"},          {0, 2, u"ab", u"abcd"},
        {-5, 1, u"a", u"abcd"}, {2, -1, u"", u"abcd"}, {2, 0x7FFFFFFF, u"bcd", u"a"},
    };
    for (const auto& Case : Cases) {
        EXPECT_EQ(Copy(u"abcd", Case.Index, Case.Count), Case.Copied) << Case.Index << ' ' << Case.Count;
        UnicodeString Text = u"abcd";
        Delete(Text, Case.Index, Case.Count);
        EXPECT_EQ(Text, Case.Left) << Case.Index << ' ' << Case.Count;
    }
}

TEST(StringUtils, InsertsAtTheNearerEnd) {
    const std::pair<int, const char16_t*> Cases[] = {
        {2, u"axyb"}, {3, u"abxy"}, {99, u"abxy"}, {-3, u"xyab"}};
    for (const auto& [Index, Expected] : Cases) {
        UnicodeString Text = u"ab";
        Insert(u"xy", Text, Index);
        EXPECT_EQ(Text, Expected);
    }
    UnicodeString Text = u"ab";
    Insert(Text, Text, 2);
    EXPECT_EQ(Text, u"aabb");
}

TEST(StringUtils, Replacing) {
    const TReplaceFlags All = {rfReplaceAll};
    const TReplaceFlags AnyCase = {rfReplaceAll, rfIgnoreCase};
    EXPECT_EQ(StringReplace(u"aXbXc", u"X", u"--"), u"a--bXc");
    EXPECT_EQ(StringReplace(u"aXbXc", u"X", u"", All), u"abc");
    EXPECT_EQ(StringReplace(u"aaa", u"aa", u"aaaa", All), u"aaaaa");
    EXPECT_EQ(StringReplace(u"abc", u"", u"x", All), u"abc");
    EXPECT_EQ(StringReplace(u"\u00C4B\u00E4b", u"\u00E4b", u"x", AnyCase), u"xx");
    EXPECT_EQ(StringReplace(u"StraSSe stra\u00DFe", u"\u00DF", u"x", AnyCase), u"StraSSe straxe");
}

TEST(StringUtils, Quoting) {
    for (const char16_t* Open : {u"'open", u"'", u"'a''", u"'''", u"'a'b'"})
        EXPECT_EQ(AnsiDequotedStr(Open, u'\''), Open) << "no closing quote at the end";
    struct {
        std::u16string_view Text;
        const char16_t* Result;
        std::u16string_view Rest;
    } const Cases[] = {
        {u"'a''b' c", u"a'b", u" c"}, {u"'open", u"open", u""}, {u"plain", u"", u"plain"},
        {u"''x", u"", u"x"},          {u"", u"", u""},          {u"'a''", u"a'", u""},
    };
    for (auto [Text, Result, Rest] : Cases) {
        EXPECT_EQ(AnsiExtractQuotedStr(Text, u'\''), Result);
        EXPECT_EQ(Text, Rest);
    }
}

TEST(StringUtils, EndsAndContents) {
    EXPECT_TRUE(StartsText(u"AB", u"abc") && !StartsStr(u"AB", u"abc") && !StartsText(u"abcd", u"abc"));
    EXPECT_TRUE(EndsText(u"BC", u"abc") && !EndsStr(u"BC", u"abc") && !EndsText(u"xabc", u"abc"));
}

TEST(StringUtils, Identifiers) {
    for (const std::u16string_view Good : {u"a", u"_1", u"Abc9_"})
        EXPECT_TRUE(IsValidIdent(Good)) << ToUtf8(Good);
    for (const std::u16string_view Bad : {u"", u"1a", u"a b", u"\u00E4", u"a.b"})
        EXPECT_FALSE(IsValidIdent(Bad)) << ToUtf8(Bad);
    EXPECT_TRUE(IsValidIdent(u"a.b1", true));
    for (const std::u16string_view Bad : {u".a", u"a.", u"a..b", u"a.1"})
        EXPECT_FALSE(IsValidIdent(Bad, true)) << ToUtf8(Bad);
}

} // namespace
} // namespace qz
