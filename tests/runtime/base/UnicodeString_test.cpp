#include <qz/runtime/base/UnicodeString.h>

#include <gtest/gtest.h>

#include <sstream>
#include <thread>
#include <unordered_set>

#include <qz/runtime/base/StringArg.h>

namespace qz {
namespace {

inline constexpr TTextConstant cGreeting = u"Hello";

TEST(UnicodeString, IsMadeFromTextOfAnyKind) {
    const std::u16string Expected = u"Zo\u00EB";
    const std::string Narrow = "Zo\xC3\xAB";
    const char16_t* Null = nullptr;
    const char* NullNarrow = nullptr;
    EXPECT_EQ(UnicodeString(Expected), Expected);
    EXPECT_EQ(UnicodeString(std::u16string_view(Expected)), Expected);
    EXPECT_EQ(UnicodeString(Expected.c_str()), Expected);
    EXPECT_EQ(UnicodeString(Narrow), Expected);
    EXPECT_EQ(UnicodeString(Narrow.c_str()), Expected);
    EXPECT_EQ(UnicodeString(u8"Zo\u00EB"), Expected);
    EXPECT_EQ(UnicodeString(3, u'x'), u"xxx");
    EXPECT_EQ(UnicodeString(u"abcdef", 3), u"abc");
    EXPECT_EQ(UnicodeString("a\xFFz"), u"a\uFFFDz");
    EXPECT_TRUE(UnicodeString(Null).empty());
    EXPECT_TRUE(UnicodeString(NullNarrow).empty());
    EXPECT_EQ(std::string(UnicodeString(Expected)), Narrow);
    EXPECT_EQ(UnicodeString(std::u16string_view(u"a\0b", 3)).size(), 3u);
}

TEST(UnicodeString, EachCommandLeavesTheOtherHandlesAlone) {
    using TCommand = void (*)(UnicodeString&);
    const std::pair<TCommand, const char16_t*> Cases[] = {
        {[](UnicodeString& S) { S += u'x'; }, u"abcx"},
        {[](UnicodeString& S) { S.Append(u""); }, u"abc"},
        {[](UnicodeString& S) { S.Append(2, u'y'); }, u"abcyy"},
        {[](UnicodeString& S) { S.SetLength(2); }, u"ab"},
        {[](UnicodeString& S) { S.SetLength(3); }, u"abc"},
        {[](UnicodeString& S) { S.SetLength(0); }, u""},
        {[](UnicodeString& S) { S.Clear(); }, u""},
        {[](UnicodeString& S) { S.Reserve(100); }, u"abc"},
        {[](UnicodeString& S) { *S.AppendRoom(1) = u'z'; }, u"abcz"},
        {[](UnicodeString& S) { *S.UniqueData() = u'A'; }, u"Abc"},
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

TEST(UnicodeString, AppendsPiecesOfItself) {
    for (const std::size_t Room : {0u, 64u}) {
        UnicodeString Text = u"abc";
        Text.Reserve(Room);
        Text += Text;
        EXPECT_EQ(Text, u"abcabc");
        Text.Append(Text.View().substr(4));
        EXPECT_EQ(Text, u"abcabcbc");
        Text.Append(Text.View().substr(Text.size()));
        EXPECT_EQ(Text.size(), 8u);
        for (int I = 0; I < 6; ++I)
            Text.Append(Text);
        EXPECT_EQ(Text.size(), 8u * 64);
        EXPECT_EQ(Text.View().substr(8 * 63), u"abcabcbc");
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
    EXPECT_EQ(std::u16string_view(cGreeting), u"Hello");
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

TEST(UnicodeString, ConcatenatesEveryPairOfKinds) {
    const UnicodeString A = u"a";
    EXPECT_EQ(A + A, u"aa");
    EXPECT_EQ(A + u"b", u"ab");
    EXPECT_EQ(u"b" + A, u"ba");
    EXPECT_EQ(A + "\xC3\xA4", u"a\u00E4");
    EXPECT_EQ("\xC3\xA4" + A, u"\u00E4a");
    EXPECT_EQ(A + u'c', u"ac");
    EXPECT_EQ(u'c' + A, u"ca");
    EXPECT_EQ(A + std::string("s") + u8"8" + cGreeting, u"as8Hello");
    EXPECT_EQ(UnicodeString() + UnicodeString(), u"");
    EXPECT_EQ(A, u"a");
}

TEST(UnicodeString, IsComparedByUnitsHashedStreamedAndViewed) {
    EXPECT_LT(UnicodeString(u"a"), u"b");
    EXPECT_LT(UnicodeString(u"a"), u"aa");
    EXPECT_LT(UnicodeString(), u"a");
    EXPECT_GT(UnicodeString(u"\uFFFD"), UnicodeString(u"\U00010000")); // units, not code points
    EXPECT_EQ(UnicodeString(u"\u00E4"), "\xC3\xA4");
    EXPECT_NE(UnicodeString(std::u16string_view(u"a\0", 2)), UnicodeString(u"a"));
    const std::unordered_set<UnicodeString> Set{u"x", "x", UnicodeString(1, u'x')};
    EXPECT_EQ(Set.size(), 1u);
    std::ostringstream Stream;
    Stream << UnicodeString(u"\u20AC") << UnicodeString();
    EXPECT_EQ(Stream.str(), "\xE2\x82\xAC");
    EXPECT_EQ(TStringArg(*Set.begin()).View().data(), Set.begin()->data());
    EXPECT_TRUE(TStringArg(static_cast<const char16_t*>(nullptr)).View().empty());
}

TEST(UnicodeString, HandlesOfOneTextServeManyThreads) {
    const UnicodeString Text(100, u'x');
    std::vector<std::thread> Threads;
    for (int I = 0; I < 4; ++I)
        Threads.emplace_back([Text] {
            for (int Round = 0; Round < 2000; ++Round) {
                UnicodeString Copy = Text;
                const UnicodeString Other = Copy;
                Copy[5] = u'y';
                ASSERT_EQ(Other[5], u'x');
            }
        });
    for (std::thread& Thread : Threads)
        Thread.join();
    EXPECT_EQ(Text.RefCount(), 1);
}

} // namespace
} // namespace qz
