#include <qz/runtime/text/AnsiString.h>

#include <gtest/gtest.h>

#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

using TLatin1 = TAnsiText<28591>;

static_assert(!std::is_convertible_v<const char*, AnsiString>);
static_assert(!std::is_convertible_v<UnicodeString, UTF8String>);
static_assert(std::is_convertible_v<UTF8String, RawByteString>);

TEST(AnsiString, ConvertsByItsCodePage) {
    const UnicodeString Wide = u"Zo\u00EB \u20AC";
    const UTF8String Utf8(Wide);
    EXPECT_EQ(Utf8.View(), "Zo\xC3\xAB \xE2\x82\xAC");
    const TAnsiText<1252> Western(Utf8);
    EXPECT_EQ(Western.View(), "Zo\xEB \x80");
    EXPECT_EQ(TLatin1(UnicodeString(u"\u4E2D")).View(), "?");
}

TEST(AnsiString, RawBytesKeepTheirPage) {
    const TLatin1 Latin("\xE4");
    const RawByteString Raw = Latin;
    EXPECT_EQ(UTF8String(Raw).View(), "\xC3\xA4");
    RawByteString Relabelled = Raw;
    Relabelled.RelabelCodePage(1251);
    EXPECT_EQ(Relabelled.ToUnicode(), u"\u0434");
    EXPECT_EQ(Raw.ToUnicode(), u"\u00E4");
}

TEST(AnsiString, AnEmptyTextThatGrowsIsInThePageOfItsType) {
    UTF8String Text;
    Text.SetLength(2);
    EXPECT_EQ(Text.CodePage(), 65001);
    std::memcpy(Text.UniqueData(), "\xC3\xA4", 2);
    EXPECT_EQ(Text.ToUnicode(), u"ä");
}

TEST(AnsiString, RefusesAPageThatTheSystemDoesNotKnow) {
    const RawByteString Text(std::string_view("x"), 12345);
    EXPECT_THROW(Text.ToUnicode(), EOSError);
    EXPECT_THROW(TAnsiText<12345>(UnicodeString(u"x")), EOSError);
}

TEST(AnsiString, SharesUntilWrittenTo) {
    UTF8String A("abc");
    UTF8String B = A;
    UTF8String C = A;
    EXPECT_EQ(A.RefCount(), 3);
    C.SetLength(2);
    EXPECT_EQ(C.View(), "ab");
    B += "d";
    *B.UniqueData() = 'A';
    EXPECT_EQ(B.View(), "Abcd");
    B.SetLength(6);
    EXPECT_EQ(B.View(), std::string_view("Abcd\0\0", 6));
    EXPECT_EQ(A.View(), "abc");
    for (int I = 0; I < 5; ++I)
        A += A;
    EXPECT_EQ(A.size(), 96u);
    EXPECT_EQ(A.View().substr(93), "abc");
    EXPECT_EQ(A.c_str()[96], '\0');
}

} // namespace
} // namespace qz
