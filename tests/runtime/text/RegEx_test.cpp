#include <qz/runtime/text/RegEx.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"

namespace qz {
namespace {

UnicodeString Found(const TRegEx& AExpression, std::u16string_view AText) {
    UnicodeString Result;
    for (const TMatch& Match : AExpression.Matches(AText))
        Result += UnicodeString(std::to_string(Match.Index())) + u":" + Match.Value() + u" ";
    return Result;
}

TEST(RegEx, FindsMatchesAndTheirGroups) {
    const TRegEx Pair(u"(\\w+)=(\\d*)(x)?");
    const TMatch Match = Pair.Match(u"; größe=42;");
    EXPECT_EQ(Match.Index(), 3);
    EXPECT_EQ(Match.Group(1), u"größe");
    EXPECT_FALSE(Match.Place(3).Success);
    EXPECT_EQ(Match.Group(4), u"");
    EXPECT_FALSE(Pair.Match(u"none").Success());
    EXPECT_EQ(Pair.Match(u"a=1 b=", 5).Value(), u"b=");
    EXPECT_FALSE(Pair.Match(u"a=1", 99).Success());
}

TEST(RegEx, GoesOnBehindEmptyMatches) {
    EXPECT_EQ(Found(TRegEx(u""), u"ab"), u"1: 2: 3: ");
    EXPECT_EQ(Found(TRegEx(u"a*"), u"aaba"), u"1:aa 3: 4:a 5: ");
    EXPECT_EQ(Found(TRegEx(u""), u"\U0001F600"), u"1: 3: ") << "not within a pair";
    EXPECT_EQ(Found(TRegEx(u"a*", {roNotEmpty}), u"aaba"), u"1:aa 4:a ");
    EXPECT_EQ(Found(TRegEx(u"z"), u"\xD800z"), u"2:z ") << "lone surrogates are passed over";
}

TEST(RegEx, KeepsToItsOptions) {
    EXPECT_TRUE(TRegEx(u"ä", {roIgnoreCase}).IsMatch(u"Ä"));
    EXPECT_EQ(Found(TRegEx(u"^.$", {roMultiLine}), u"a\nb"), u"1:a 3:b ");
    EXPECT_EQ(Found(TRegEx(u"^.*$", {roMultiLine}), u"a\r\nb\rc\n"), u"1:a 4:b 6:c ");
    EXPECT_EQ(Found(TRegEx(u"$", {roMultiLine}), u"a\r\nb"), u"2: 5: ") << "not within CR LF";
    EXPECT_EQ(Found(TRegEx(u"\n?"), u"\r\n"), u"1: 2:\n 3: ") << "but where the pattern names it";
    EXPECT_TRUE(TRegEx(u"a$").IsMatch(u"a\r\n"));
    EXPECT_FALSE(TRegEx(u"a.b").IsMatch(u"a\nb"));
    EXPECT_TRUE(TRegEx(u"a b # c", {roIgnorePatternSpace}).IsMatch(u"ab"));
    EXPECT_EQ(TRegEx(u"(a)", {roExplicitCapture}).Match(u"a").GroupCount(), 1);
}

TEST(RegEx, ReplacesAndSplits) {
    EXPECT_EQ(TRegEx(u"(\\w)(\\w)").Replace(u"ab $ cd", u"$2-$1"), u"b-a $ d-c");
    EXPECT_EQ(TRegEx(u"(?<name>a)(b)?").Replace(u"a", u"[${name}${2}0 $$ ${ $x]"), u"[a0 $ ${ $x]");
    EXPECT_EQ(TRegEx(u"(a|b)*c?").Replace(UnicodeString(20000, u'a') + u"1", u""), u"1");
    EXPECT_TRUE(TRegEx(u"(?:(a)|b)*$").IsMatch(UnicodeString(20000, u'a')));
    UnicodeString Pairs = u"a";
    while (Pairs.size() < 9000)
        Pairs += u"\U0001F600";
    EXPECT_EQ(TRegEx(u"x").Match(Pairs + u"x").Index(), 9002) << "over stretches that pairs lie across";
    const UnicodeString Long(1000, u'a');
    EXPECT_EQ(TRegEx(u"a").Replace(Long, u"bbbbb"), UnicodeString(5000, u'b'));
    const auto Pieces = TRegEx(u",").Split(u"a,,b,");
    EXPECT_EQ(Pieces, (TDynArray<UnicodeString>{u"a", u"", u"b", u""}));
    EXPECT_TRUE(TRegEx(u"^" + TRegEx::Escape(u"a.b*[c]{2}\\") + u"$").IsMatch(u"a.b*[c]{2}\\"));
}

TEST(RegEx, RaisesForBadAndHostilePatterns) {
    EXPECT_EQ(Raised([] { TRegEx(u"ab(c"); }),
              u"ERegularExpressionError: Error in regular expression at offset 4: "
              u"missing closing parenthesis");
    EXPECT_THROW(TRegEx(u"\\C"), ERegularExpressionError) << "it would tear pairs";
    EXPECT_THROW(TRegEx(u"(a+)+$").IsMatch(UnicodeString(40, u'a') + u"b"), ERegularExpressionError);
    EXPECT_THROW(TRegEx(u"a").Replace(u"a", u"${b}"), ERegularExpressionError);
    EXPECT_THROW(TRegEx(u"(?:a|aa){18}[!?]").IsMatch(UnicodeString(1'000'000, u'a')),
                 ERegularExpressionError);
}

// However long the text, and however slow the pattern is at first.
TEST(RegEx, SearchesAsOneSearch) {
    const UnicodeString Quoted = u"a\"" + UnicodeString(3000, u'x') + u"\"";
    EXPECT_EQ(TRegEx(u"\"[^\"]*\"(*SKIP)(*F)|x").Matches(Quoted).size(), 0u);
    const UnicodeString Far = UnicodeString(2049, u'a') + u"x" + UnicodeString(3000, u'a');
    EXPECT_FALSE(TRegEx(u"\\Gx").IsMatch(Far));
    EXPECT_FALSE(TRegEx(u"a(*COMMIT)z|x").IsMatch(Far));
    EXPECT_FALSE(TRegEx(u"^x").IsMatch(Far));
    EXPECT_FALSE(TRegEx(u"a++[xy]").IsMatch(UnicodeString(1'000'000, u'a')));
    EXPECT_EQ(TRegEx(u"(?:a|aa){12}[!?]|x").Match(UnicodeString(2000, u'a') + u"x").Index(), 2001);
    const UnicodeString Rare = UnicodeString(1'000'000, u'b') + UnicodeString(30, u'a') + u"x";
    for (const char16_t* Harmless : {u"(?:a|aa){12}([(*SKIP]|\\\\G)|x", u"(?:a|aa){12}\\(*SKIP|x",
                                     u"(?:a|aa){12}\\Q(*SKIP\\E|(?#(*SKIP)x", u"(?:a|aa){12}[]\\](*SKIP]|x"})
        EXPECT_EQ(TRegEx(Harmless).Match(Rare).Index(), 1'000'031) << UnicodeString(Harmless);
    const UnicodeString Token = u"\"" + UnicodeString(4'000'000, u'a') + u"\"";
    EXPECT_EQ(TRegEx(u"\"([^\"\\\\]|\\\\.)*\"").Match(Token).Length(), 4'000'002);
}

} // namespace
} // namespace qz
