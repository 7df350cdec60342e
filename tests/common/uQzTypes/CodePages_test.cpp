#include <qz/common/uQzTypes.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include "tests/support/SystemPage.h"
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

TEST(QzCodePage, KnowsNamesInAnyCaseAndTheFirstOfTwo) {
    for (const auto& Case :
         Rows(u"UTF-8 => 65001", u"utf-16 => 1200", u"Windows-1252 => 1252", u"iso-8859-1 => 28591",
              u"latin1 => 1252", u"us-ascii => 20127", u"euc-jp => 20932", u"cp866 => 866",
              u"csgb2312  => 936", u"x-x-big5 => 950", u"ibm037 => 37", u" => 0"))
        EXPECT_EQ(QzCodePage(Case[0]), StrToInt(Case[1])) << Case[0];
    for (const char* Name : {"ms_kanji", "utf-8 ", "\xC3\x84", "windows-125"})
        EXPECT_EQ(Message([&] { QzCodePage(Name); }),
                  UnicodeString(u"No CodePage ID found for ") + Name + u"!");
    int Count = 0;
    for (int Number = 0; Number <= 0xFFFF; ++Number) {
        UnicodeString Name;
        const UnicodeString Failure = Message([&] { Name = QzCodePage(static_cast<std::uint16_t>(Number)); });
        if (!Failure.IsEmpty()) {
            ASSERT_EQ(Failure, u"No CodePage Name found for " + IntToStr(Number) + u"!");
            continue;
        }
        ++Count;
        EXPECT_EQ(QzCodePage(Name), Number == 50222 ? 50220 : Number == 51932 ? 20932 : Number) << Name;
    }
    EXPECT_EQ(Count, 142);
}

TEST(QzGetCodePage, FindsMarksAndPlainUtf16) {
    using namespace std::string_literals;
    const std::tuple<std::string, int, int> Cases[] = {{"\xFF\xFE\0\0"s, 12000, 4},
                                                       {"\xFF\xFE\0"s, 1200, 2},
                                                       {"\0\0\xFE\xFFx"s, 12001, 4},
                                                       {"\xEF\xBB\xBF"s, 65001, 3},
                                                       {"\xEF\xBB"s, 0, 0},
                                                       {"\xFE\xFF"s, 1201, 2},
                                                       {"\xFF\xFE"s, 1200, 2},
                                                       {"a\0b"s, 1200, 0},
                                                       {"\0a\0"s, 0, 0},
                                                       {"a\0"s, 0, 0},
                                                       {""s, 0, 0},
                                                       {"abcd"s, 0, 0}};
    for (const auto& [Bytes, CodePage, Position] : Cases) {
        EXPECT_EQ(QzGetCodePage(Bytes.data(), static_cast<std::int32_t>(Bytes.size())), CodePage);
        const auto Stream = StreamOf("head" + Bytes);
        Stream->SetPosition(4);
        EXPECT_EQ(QzGetCodePage(*Stream), CodePage);
        EXPECT_EQ(Stream->Position(), 4 + Position);
    }
    EXPECT_EQ(QzGetCodePage(nullptr, -1), 0);
}

std::string Bytes(const RawByteString& AText) {
    return std::string(AText.View());
}

TEST(QzEncoding, ConvertsBetweenAllKindsOfPages) {
    using namespace std::string_literals;
    const std::u16string Text = u"Z\u20AC\U0001F600";
    const std::pair<std::uint16_t, std::string> Cases[] = {
        {65001, "Z\xE2\x82\xAC\xF0\x9F\x98\x80"s}, {1200, "Z\0\xAC\x20\x3D\xD8\0\xDE"s},
        {1201, "\0Z\x20\xAC\xD8\x3D\xDE\0"s},      {12000, "Z\0\0\0\xAC\x20\0\0\0\xF6\1\0"s},
        {12001, "\0\0\0Z\0\0\x20\xAC\0\1\xF6\0"s},
    };
    for (const auto& [Page, Expected] : Cases) {
        const RawByteString Encoded = TQzEncoding::ConvertW(Text, Page);
        EXPECT_EQ(Bytes(Encoded), Expected) << Page;
        EXPECT_EQ(Encoded.CodePage(), Page);
        EXPECT_EQ(TQzEncoding::ConvertB(Encoded.data(), Encoded.size(), Page), Text) << Page;
        char16_t Target[32];
        const int Length = Encoded.Length();
        EXPECT_EQ(TQzEncoding::ConvertA(Encoded.data(), Length, Page, nullptr, 0), 4) << Page;
        EXPECT_EQ(TQzEncoding::ConvertA(Encoded.data(), Length, Page, Target, 4), 4) << Page;
        EXPECT_EQ(std::u16string(Target, 4), Text);
        EXPECT_THROW(TQzEncoding::ConvertA(Encoded.data(), Length, Page, Target, 3), EOSError);
    }
    EXPECT_EQ(Bytes(TQzEncoding::ConvertB(TEncoding::Unicode().GetBytes(Text), 1200, 437)), "Z???");
    EXPECT_THROW(TQzEncoding::ConvertB("x", 1, 1252, 1200), EAssertionFailed);
    EXPECT_THROW(TQzEncoding::ConvertA("x", 1, 4711), EOSError);
}

TEST(QzEncoding, LengthMinusOneEndsBeforeTheTerminator) {
    EXPECT_EQ(TQzEncoding::ConvertA(u"ab", -1, 1200), u"ab");
    char16_t Target[4];
    EXPECT_EQ(TQzEncoding::ConvertA("ab", -1, 1252, Target, 4), 3)
        << "the terminator is part of what is filled in";
    EXPECT_EQ(Target[2], u'\0');
    char Narrow[4];
    EXPECT_EQ(TQzEncoding::ConvertW(u"ab", -1, Narrow, 4, 65001), 3);
    EXPECT_STREQ(Narrow, "ab");
    for (const std::uint16_t Page : std::initializer_list<std::uint16_t>{1252, 4711, 65001}) {
        EXPECT_EQ(TQzEncoding::ConvertA(nullptr, -1, Page), u"");
        EXPECT_EQ(TQzEncoding::ConvertW(u"x", 0, Narrow, 4, Page), 0);
    }
    EXPECT_THROW(TQzEncoding::ConvertA("x", -2, 1252), EArgumentOutOfRangeException);
    EXPECT_THROW(TQzEncoding::ConvertA("x", 1, 1252, Target, -4), EArgumentOutOfRangeException);
    platform::SetLastError(5);
    EXPECT_EQ(TQzEncoding::ConvertA("+", 1, 65000), u"") << "whatever failed before";
}

TEST(QzEncoding, IsStrictOnlyWhereItFillsATarget) {
    char16_t Target[8];
    EXPECT_THROW(TQzEncoding::ConvertA("a\x81", 2, 932, Target, 8), EOSError); // a lead byte
    const char Overlong[] = "\xC0\xAF\xED\xA0\x80\xF4\x90\x80\x80\xE2\x82";
    EXPECT_EQ(TQzEncoding::ConvertA(Overlong, 11, 65001), UnicodeString(10, u'\uFFFD'));
    EXPECT_EQ(TQzEncoding::ConvertA(Overlong, 11, 65001, nullptr, 0), 10) << "UTF-8 knows no strictness";
    EXPECT_EQ(TQzEncoding::ConvertA("\0\xD8\0\0a\0\0\0xx", 10, 12000), u"\uFFFDa\uFFFD");
    EXPECT_EQ(TQzEncoding::ConvertB("a\0b\0c", 5, 1200), u"ab") << "half a unit is passed over";
    char Narrow[8];
    EXPECT_EQ(TQzEncoding::ConvertW(u"cafe\u0301", 5, Narrow, 8, 28591), 4) << "a mark is joined";
    EXPECT_THROW(TQzEncoding::ConvertW(u"cafe\u0301", 5, Narrow, 3, 28591), EOSError);
}

TEST(QzNormalize, MakesAllFormsAndSimplifies) {
    const TSystemPage Page(65001);
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"e\u0301"), NormalizationC), u"\u00E9");
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"\u00E9"), NormalizationD), u"e\u0301");
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"\uFB01"), NormalizationKC), u"fi");
    EXPECT_EQ(QzSimplifyString(UnicodeString(u"\u00DCb\u00E8rall \U0001F600")), u"Uberall \xD83D\xDE00");
    for (const char16_t* Bad : {u"", u"a\xD800"})
        EXPECT_EQ(Message([&] { QzNormalizeString(UnicodeString(Bad), NormalizationC); }),
                  u"Failed to normalize the given value");
    const TSystemPage Narrow(1252);
    for (const auto& Case :
         Rows(u"\u00E9 => e\u00B4", u"\u20AC => \u0080", u"\u0416 => \u0416", u"\uFF1F => ?"))
        EXPECT_EQ(QzNormalizeString(Case[0], NormalizationD), Case[1])
            << "decomposed units take the system's byte";
    EXPECT_EQ(QzSimplifyString(UnicodeString(u"\u0141\u00F3d\u017A")), u"Lodz");
}

} // namespace
} // namespace qz
