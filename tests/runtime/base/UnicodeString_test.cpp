#include <qz/runtime/base/UnicodeString.h>

#include <gtest/gtest.h>

#include <unordered_set>

#include "tests/support/AtOnce.h"
#include <qz/runtime/base/StringArg.h>

namespace qz {
namespace {

inline constexpr TTextConstant cGreeting = u"Hello";

TEST(UnicodeString, IsMadeFromTextOfAnyKind) {
    EXPECT_EQ(UnicodeString("Zo\xC3\xAB"), u"Zo\u00EB");
    EXPECT_EQ(UnicodeString(u8"Zo\u00EB"), u"Zo\u00EB");
    EXPECT_EQ(UnicodeString("a\xFFz"), u"a\uFFFDz");
    EXPECT_EQ(UnicodeString(3, u'x') + UnicodeString(u"abcdef", 3), u"xxxabc");
    EXPECT_TRUE(UnicodeString(static_cast<const char16_t*>(nullptr)).empty());
    EXPECT_TRUE(UnicodeString(static_cast<const char*>(nullptr)).empty());
    EXPECT_EQ(std::string(UnicodeString(u"Zo\u00EB")), "Zo\xC3\xAB");
    EXPECT_EQ(UnicodeString(std::u16string_view(u"a\0b", 3)).size(), 3u);
}

TEST(UnicodeString, EachCommandLeavesTheOtherHandlesAlone) {
    using TCommand = void (*)(UnicodeString&);
    const std::pair<TCommand, const char16_t*> Cases[] = {
        {[](UnicodeString& S) { S += u'x'; }, u"abcx"},
        {[](UnicodeString& S) { S.Append(2, u'y'); }, u"abcyy"},
        {[](UnicodeString& S) { S.SetLength(2); }, u"ab"},
        {[](UnicodeString& S) { S.Clear(); }, u""},
        {[](UnicodeString& S) { S.Reserve(100); }, u"abc"},
        {[](UnicodeString& S) { *S.AppendRoom(1) = u'z'; }, u"abcz"},
        {[](UnicodeString& S) { S += "\xC3\xA4"; }, u"abc\u00E4"},
        {[](UnicodeString& S) { S = std::move(S) + S; }, u"abcabc"},
        {[](UnicodeString& S) { S[0] = u'A', S[1] = u'B'; }, u"ABc"},
        {[](UnicodeString& S) { S = static_cast<const UnicodeString&>(S); }, u"abc"},
    };
    for (const auto& [Command, Expected] : Cases) {
        UnicodeString Text = u"abc";
        const UnicodeString Other = Text;
        EXPECT_EQ(Other.data(), Text.data());
        Command(Text);
        EXPECT_EQ(Text, Expected);
        EXPECT_EQ(Other, u"abc");
        EXPECT_EQ(Text.c_str()[Text.size()], u'\0');
    }
}

TEST(UnicodeString, ConstantsAreNeitherCountedNorWrittenTo) {
    UnicodeString Text = cGreeting;
    EXPECT_EQ(Text.data(), cGreeting.Text);
    EXPECT_EQ(Text.RefCount(), -1);
    {
        UnicodeString Copy = Text;
        EXPECT_EQ(Copy.data(), cGreeting.Text);
        Copy[0] = u'J';
        Copy += u"!";
        EXPECT_EQ(Copy, u"Jello!");
    }
    EXPECT_EQ(Text, u"Hello");
    Text.SetLength(4);
    EXPECT_EQ(Text, u"Hell");
    static constexpr TTextConstant cNothing = u"";
    EXPECT_EQ(UnicodeString(cNothing).RefCount(), 0);
}

TEST(UnicodeString, LengthensWithZerosUpToItsLimit) {
    UnicodeString Text = u"abc";
    EXPECT_THROW(Text.SetLength(0x40000000), std::length_error);
    EXPECT_THROW(Text.Append(0x7FFFFFFFFFFFFFFF, u'x'), std::length_error);
    EXPECT_EQ(Text, u"abc");
    Text.SetLength(1);
    Text.SetLength(3);
    EXPECT_EQ(Text.View(), std::u16string_view(u"a\0\0", 3));
}

TEST(UnicodeString, IsJoinedComparedByUnitsAndHashed) {
    const UnicodeString A = u"a";
    EXPECT_EQ(A + A + u"b" + "\xC3\xA4" + u'c' + std::string("s") + u8"8" + cGreeting, u"aab\u00E4cs8Hello");
    EXPECT_EQ("\xC3\xA4" + A, u"\u00E4a");
    EXPECT_EQ(u'c' + A, u"ca");
    EXPECT_LT(A, u"aa");
    EXPECT_GT(UnicodeString(u"\uFFFD"), UnicodeString(u"\U00010000")); // units, not code points
    EXPECT_NE(UnicodeString(std::u16string_view(u"a\0", 2)), A);
    const std::unordered_set<UnicodeString> Set{u"x", "x", UnicodeString(1, u'x')};
    EXPECT_EQ(Set.size(), 1u);
}

} // namespace
} // namespace qz
