#include <qz/common/uQzTypes.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include "tests/support/SystemPage.h"
#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

TEST(QzCodePage, KnowsNamesInAnyCaseAndTheFirstOfTwo) {
    for (const auto& Case :
         Rows(u"UTF-8 => 65001", u"utf-16 => 1200", u"UCS-2 => 1200", u"UnicodeFFFE => 1201",
              u"utf-32be => 12001", u"Windows-1252 => 1252", u"iso-8859-1 => 28591", u"latin1 => 1252",
              u"us-ascii => 20127", u"ASCII => 1252", u"ISO-2022-JP => 50220", u"csISO2022JP => 50221",
              u"euc-jp => 20932", u"ibm866 => 866", u"cp866 => 866", u"csgb2312  => 936", u"ms_kanji  => 932",
              u"x-x-big5 => 950", u"GB18030 => 54936", u"ibm037 => 37", u"x-iscii-pa => 57011", u" => 0",
              u"iso-ir-149 => 949", u"hebrew => 1255"))
        EXPECT_EQ(QzCodePage(Case[0]), StrToInt(Case[1])) << Case[0];
    for (const char* Name : {"ms_kanji", "utf8", "utf-8 ", "\xC3\x84", "x", "windows-125"})
        EXPECT_EQ(UnicodeString(u"No CodePage ID found for ") + Name + u"!",
                  Message([&] { QzCodePage(Name); }));
    EXPECT_THROW(QzCodePage(UnicodeString(5000, u'a')), Exception);
}

TEST(QzCodePage, NamesEachOfItsNumbersAndFindsThemByIt) {
    int Count = 0;
    for (int Number = 0; Number <= 0xFFFF; ++Number) {
        const auto Page = static_cast<std::uint16_t>(Number);
        UnicodeString Name;
        const UnicodeString Failure = Message([&] { Name = QzCodePage(Page); });
        if (!Failure.IsEmpty()) {
            ASSERT_EQ(u"No CodePage Name found for " + UnicodeString(std::to_string(Number)) + u"!", Failure);
            continue;
        }
        ++Count;
        const int First = Page == 50222 ? 50220 : Page == 51932 ? 20932 : Page;
        EXPECT_EQ(First, QzCodePage(Name)) << Name;
    }
    EXPECT_EQ(Count, 142);
    EXPECT_EQ(QzCodePage(20932), u"EUC-JP");
    EXPECT_EQ(QzCodePage(51932), u"euc-jp");
    EXPECT_EQ(QzCodePage(20002), u"x_Chinese-Eten");
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
                                                       {"\xFF"s, 0, 0},
                                                       {""s, 0, 0},
                                                       {"abcd"s, 0, 0},
                                                       {"\0\0\xFE"s, 0, 0}};
    for (const auto& [Bytes, CodePage, Position] : Cases) {
        EXPECT_EQ(CodePage, QzGetCodePage(Bytes.data(), static_cast<std::int32_t>(Bytes.size())));
        TQzMemoryStream Stream(16);
        Stream.WriteBuffer("head", 4);
        Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
        Stream.SetPosition(4);
        EXPECT_EQ(CodePage, QzGetCodePage(Stream));
        EXPECT_EQ(4 + Position, Stream.Position());
    }
    EXPECT_EQ(QzGetCodePage(nullptr, -1), 0);
}

std::string Bytes(const RawByteString& AText) {
    return std::string(AText.View());
}

TEST(QzEncoding, ConvertsBetweenAllKindsOfPages) {
    using namespace std::string_literals;
    const std::u16string Text = u"Zo\u00EB \u20AC \U0001F600";
    const std::pair<int, std::string> Cases[] = {
        {65001, "Zo\xC3\xAB \xE2\x82\xAC \xF0\x9F\x98\x80"s},
        {1200, "Z\0o\0\xEB\0 \0\xAC\x20 \0\x3D\xD8\0\xDE"s},
        {1201, "\0Z\0o\0\xEB\0 \x20\xAC\0 \xD8\x3D\xDE\0"s},
        {12000, "Z\0\0\0o\0\0\0\xEB\0\0\0 \0\0\0\xAC\x20\0\0 \0\0\0\0\xF6\1\0"s},
        {12001, "\0\0\0Z\0\0\0o\0\0\0\xEB\0\0\0 \0\0\x20\xAC\0\0\0 \0\1\xF6\0"s},
    };
    for (const auto& [Page, Expected] : Cases) {
        const auto CodePage = static_cast<std::uint16_t>(Page);
        const RawByteString Encoded = TQzEncoding::ConvertW(Text, CodePage);
        EXPECT_EQ(Bytes(Encoded), Expected) << Page;
        EXPECT_EQ(Page, Encoded.CodePage());
        EXPECT_EQ(Text, TQzEncoding::ConvertB(Encoded.data(), Encoded.size(), CodePage)) << Page;
        EXPECT_EQ(Text, TQzEncoding::ConvertA(Encoded, CodePage)) << Page;
        char16_t Target[32];
        const int Length = Encoded.Length();
        EXPECT_EQ(TQzEncoding::ConvertA(Encoded.data(), Length, CodePage, nullptr, 0), 8) << Page;
        EXPECT_EQ(TQzEncoding::ConvertA(Encoded.data(), Length, CodePage, Target, 8), 8) << Page;
        EXPECT_EQ(Text, std::u16string(Target, 8));
        EXPECT_THROW(TQzEncoding::ConvertA(Encoded.data(), Length, CodePage, Target, 7), EOSError);
    }
    EXPECT_EQ(Bytes(TQzEncoding::ConvertB(TEncoding::Unicode().GetBytes(Text), 1200, 437)), "Zo\x89 ? ??");
    EXPECT_EQ(TQzEncoding::ConvertA(TQzEncoding::ConvertA("Zo\xEB", 3, 1252, 850), 850), u"Zoë");
    EXPECT_THROW(TQzEncoding::ConvertB("x", 1, 1252, 1200), EAssertionFailed);
}

TEST(QzEncoding, LengthMinusOneEndsBeforeTheTerminator) {
    EXPECT_EQ(TQzEncoding::ConvertA("ab", -1, 1252), u"ab");
    EXPECT_EQ(TQzEncoding::ConvertA(u"ab", -1, 1200), u"ab");
    EXPECT_EQ(TQzEncoding::ConvertA(U"ab", -1, 12000), u"ab");
    EXPECT_EQ(Bytes(TQzEncoding::ConvertW(u"ab", -1, 1252)), "ab");
    char16_t Target[4];
    EXPECT_EQ(TQzEncoding::ConvertA("ab", -1, 1252, Target, 4), 3)
        << "the terminator is part of what is filled in";
    EXPECT_EQ(Target[2], u'\0');
    char Narrow[4];
    EXPECT_EQ(TQzEncoding::ConvertW(u"ab", -1, Narrow, 4, 65001), 3);
    EXPECT_STREQ(Narrow, "ab");
    for (const std::uint16_t Page : std::initializer_list<std::uint16_t>{1252, 4711, 65001}) {
        EXPECT_EQ(TQzEncoding::ConvertA("x", 0, Page), u"");
        EXPECT_EQ(TQzEncoding::ConvertA(nullptr, -1, Page), u"");
        EXPECT_EQ(TQzEncoding::ConvertA(nullptr, 5, Page, Target, 4), 0);
        EXPECT_EQ(TQzEncoding::ConvertW(u"x", 0, Narrow, 4, Page), 0);
    }
    EXPECT_THROW(TQzEncoding::ConvertA("x", -2, 1252), EArgumentOutOfRangeException);
    EXPECT_THROW(TQzEncoding::ConvertA("x", 1, 1252, Target, -4), EArgumentOutOfRangeException);
    platform::SetLastError(5);
    EXPECT_EQ(TQzEncoding::ConvertA("+", 1, 65000), u"") << "whatever failed before";
}

TEST(QzEncoding, SaysWhichPageCannotBeConverted) {
    const std::function<void()> Steps[] = {
        [] { TQzEncoding::ConvertA("x", 1, 4711); }, [] { TQzEncoding::ConvertW(u"x", 1, 4711); },
        [] { TQzEncoding::ConvertB("x", 1, 4711, 1252); }, [] { AnsiString("x", 4711).ToUnicode(); }};
    for (const auto& Step : Steps) {
        EXPECT_THROW(Step(), EOSError);
        EXPECT_NE(std::u16string_view::npos, Message(Step).View().find(u"Code page: 4711"));
    }
}

TEST(QzEncoding, IsStrictOnlyWhereItFillsATarget) {
    char16_t Target[8];
    const char Torn[] = "a\x81"; // a lead byte of page 932
    EXPECT_EQ(TQzEncoding::ConvertA(Torn, 2, 932).size(), 2u);
    EXPECT_THROW(TQzEncoding::ConvertA(Torn, 2, 932, Target, 8), EOSError);
    const char Overlong[] = "\xC0\xAF\xED\xA0\x80\xF4\x90\x80\x80\xE2\x82";
    const UnicodeString Lenient = TQzEncoding::ConvertA(Overlong, 11, 65001);
    EXPECT_EQ(UnicodeString(10, u'\uFFFD'), Lenient);
    EXPECT_EQ(TQzEncoding::ConvertA(Overlong, 11, 65001, nullptr, 0), 10) << "UTF-8 knows no strictness";
    EXPECT_EQ(TQzEncoding::ConvertA("\0\xD8\0\0a\0\0\0xx", 10, 12000), u"\uFFFDa\uFFFD");
    EXPECT_THROW(TQzEncoding::ConvertA("\0\xD8\0\0", 4, 12000, Target, 8), EOSError);
    EXPECT_EQ(Bytes(TQzEncoding::ConvertW(u"\xD800", 1, 65001)), "\xEF\xBF\xBD");
    EXPECT_EQ(TQzEncoding::ConvertB("a\0b\0c", 5, 1200), u"ab") << "half a unit is passed over";
}

TEST(QzEncoding, JoinsMarksAndFindsTheNearestInLatin1) {
    EXPECT_EQ(Bytes(TQzEncoding::ConvertW(u"cafe\u0301!", 28591)), "caf\xE9!");
    EXPECT_EQ(Bytes(TQzEncoding::ConvertW(u"cafe\u0301", 1252)), "caf\xE9");
    char Target[8];
    EXPECT_EQ(TQzEncoding::ConvertW(u"cafe\u0301", 5, Target, 8, 28591), 4);
    EXPECT_EQ(TQzEncoding::ConvertW(u"cafe\u0301", 5, nullptr, 0, 28591), 4);
    EXPECT_THROW(TQzEncoding::ConvertW(u"cafe\u0301", 5, Target, 3, 28591), EOSError);
    EXPECT_EQ(Bytes(TQzEncoding::ConvertW(u"\uFF21", 20127)), "A") << "full width";
}

class SystemPage : public testing::TestWithParam<int> {};

TEST_P(SystemPage, IsWhatCodePageZeroStandsFor) {
    const TSystemPage Page(static_cast<std::uint16_t>(GetParam()));
    const UnicodeString Text = GetParam() == 932 ? u"\u65E5\u672C" : u"Zo\u00EB";
    const AnsiString Narrow(Text);
    EXPECT_EQ(Narrow.CodePage(), 0);
    EXPECT_EQ(Text, Narrow.ToUnicode());
    EXPECT_EQ(Text, TQzEncoding::ConvertA(Narrow));
    EXPECT_EQ(Bytes(TQzEncoding::ConvertW(Text, static_cast<std::uint16_t>(GetParam()))),
              Bytes(TQzEncoding::ConvertW(Text, 0)));
    EXPECT_THROW(SetDefaultSystemCodePage(1200), EArgumentException);
    EXPECT_THROW(SetDefaultSystemCodePage(4711), EOSError);
    EXPECT_EQ(GetParam(), DefaultSystemCodePage());
}

INSTANTIATE_TEST_SUITE_P(Pages, SystemPage, testing::Values(65001, 1252, 932));

TEST(QzNormalize, MakesAllFormsAndSimplifies) {
    const TSystemPage Page(65001);
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"e\u0301"), NormalizationC), u"\u00E9");
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"\u00E9"), NormalizationD), u"e\u0301");
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"\uFB01"), NormalizationKC), u"fi");
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"\u00E9"), NormalizationKD), u"e\u0301");
    EXPECT_EQ(QzSimplifyString(UnicodeString(u"\u00DCb\u00E8rall \U0001F600")), u"Uberall \xD83D\xDE00");
    EXPECT_EQ(QzSimplifyString(UnicodeString(u"")), u"");
    for (const char16_t* Bad : {u"", u"a\xD800"})
        EXPECT_EQ(Message([&] { QzNormalizeString(UnicodeString(Bad), NormalizationC); }),
                  u"Failed to normalize the given value");
}

TEST(QzNormalize, DecomposedUnitsTakeTheSystemsByte) {
    const TSystemPage Page(1252);
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"\u00E9"), NormalizationD), u"e\u00B4")
        << "the accent by itself";
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"\u20AC"), NormalizationD), u"\u0080");
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"\u0416"), NormalizationD), u"\u0416") << "the page lacks it";
    EXPECT_EQ(QzNormalizeString(UnicodeString(u"\uFF1F"), NormalizationD), u"?") << "a best fit";
    EXPECT_EQ(QzSimplifyString(UnicodeString(u"\u0416")), u"\u0416");
    EXPECT_EQ(QzSimplifyString(UnicodeString(u"\u0141\u00F3d\u017A")), u"Lodz");
}

} // namespace
} // namespace qz
