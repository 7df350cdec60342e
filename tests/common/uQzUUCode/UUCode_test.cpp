#include <qz/common/uQzUUCode.h>

#include <string>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/streams/Streams.h>

namespace qz {
namespace {

// A text of lines that bars separate.
std::string TextOf(const UnicodeString& ALines, std::string_view ALineEnd) {
    std::string Result;
    for (const char Char : std::string(ALines))
        Char == '|' ? Result += ALineEnd : Result += Char;
    return Result;
}

// The bytes, or what stands before the fault and the fault, by each form of the decoder.
UnicodeString Decoded(const std::function<TQzUUData(TStream&)>& ADecode) {
    TQzMemoryStream Target(16);
    TQzUUData Data;
    UnicodeString Fault = Raised([&] { Data = ADecode(Target); });
    if (Fault == u"nothing")
        Fault = Data.FileName + u" " + UnicodeString(std::to_string(Data.Mode));
    return UnicodeString(Content(Target)) + u"; " + Fault;
}

TEST(UUCode, WritesWhatTheFormatSays) {
    const auto Encoded = [](std::string_view AText) {
        return std::string(QzUUEncode(AnsiString(AText), u"f", 644).View());
    };
    EXPECT_EQ(Encoded(""), "begin 644 f\r\n`\r\nend");
    EXPECT_EQ(Encoded("Cat"), "begin 644 f\r\n#0V%T\r\n`\r\nend");
    EXPECT_EQ(Encoded("A"), "begin 644 f\r\n!00  \r\n`\r\nend");
    EXPECT_EQ(Encoded(std::string(46, '\xFF')),
              "begin 644 f\r\nM" + std::string(60, '_') + "\r\n!_P  \r\n`\r\nend");
}

TEST(UUCode, ReadsBackAnyBytesOfAnyLength) {
    for (std::size_t Size = 1; Size < 140'000; Size = Size < 200 ? Size + 1 : Size * 2 + 61) {
        std::string Bytes(Size, '\0');
        for (std::size_t I = 0; I < Size; ++I)
            Bytes[I] = static_cast<char>(I * I * 31 + I / 7);
        TMemoryStream Text;
        QzUUEncode(*StreamOf(Bytes), Text, u"naïve name.bin", 65535);
        Text.SetPosition(0);
        TQzMemoryStream Target(4096), Again(4096);
        const TQzUUData Data = QzUUDecode(Text, Target);
        ASSERT_TRUE(Content(Target) == Bytes) << Size;
        EXPECT_EQ(Data.FileName, u"naïve name.bin");
        EXPECT_EQ(Data.Mode, 65535);
        TStringList Lines;
        Lines.SetText(
            UnicodeString(std::string_view(static_cast<const char*>(Text.Memory()), Text.Content().size())));
        QzUUDecode(Lines, Again);
        ASSERT_TRUE(Content(Again) == Bytes) << Size;
    }
}

TEST(UUCode, ReadsWhatTheRulesAllowAndRefusesTheRest) {
    for (const auto& Row : Rows(
             u"begin 644 a b|#0V%T|`|end => Cat; a b 644", u"BEGIN 0007 |#0V%T|`|END|more => Cat;  7",
             u"begin 644|#0V%T|`|end => Cat;  644", u"begin 1 x|!00``|`|end => A; x 1",
             u"begin 1 x|!00|`|end => A; x 1", u"begin 1 x|\"04(|`|end => AB; x 1",
             u"begin 1 x|#0V%Tignored|`|end => Cat; x 1", u"begin 1 x|`|`|end => ; x 1",
             u"begin 1 x|#0V%T|#0V%T|`|end => CatCat; x 1", u"begin 1 x|`|end => ; Exception: Unexpected EOF",
             u"begin 1 x|#0V%T| => Cat; Exception: Unexpected EOF",
             u"begin 1 x => ; Exception: Unexpected EOF", u" => ; Exception: Unexpected EOF",
             u"begin 1 x|#0V%T => Cat; Exception: Unexpected EOF",
             u"begin 1 x|#0V%T|` => Cat; Exception: Unexpected EOF",
             u"begin 1 x|#0V%T|` |end => Cat; Exception: Unexpected EOF",
             u"begin 1 x|#0V%T||`|end => Cat; Exception: Invalid UUData",
             u"begin 1 x||`|end => ; Exception: Invalid UUData", u"begin => ; Exception: Invalid UUData",
             u"begin  => ; Exception: Invalid UUData", u"begin 0 x => ; Exception: Invalid UUData",
             u"begin 65536 x => ; Exception: Invalid UUData", u"begin -1 x => ; Exception: Invalid UUData",
             u"begin $1 x => ; Exception: Invalid UUData",
             u"first|begin 1 x => ; Exception: Invalid UUData")) {
        for (const std::string_view LineEnd : {"\r\n", "\n", "\r"}) {
            const std::string Text = TextOf(Row[0], LineEnd);
            TStringList Lines;
            Lines.SetText(UnicodeString(Text));
            EXPECT_EQ(Decoded([&](TStream& ATarget) { return QzUUDecode(AnsiString(Text), ATarget); }),
                      Row[1]);
            EXPECT_EQ(Decoded([&](TStream& ATarget) { return QzUUDecode(*StreamOf(Text), ATarget); }),
                      Row[1]);
            EXPECT_EQ(Decoded([&](TStream& ATarget) { return QzUUDecode(Lines, ATarget); }), Row[1]);
        }
    }
}

// A line of one character promises up to 63 bytes. What is missing counts as blanks.
TEST(UUCode, ALineThatPromisesMoreThanItHoldsGivesZeros) {
    for (int First = 0; First < 256; ++First) {
        const std::string Text = "begin 1 x\n" + std::string(1, static_cast<char>(First)) + "0V%T0\n`\nend";
        if (First == '\n' || First == '\r')
            continue;
        const auto Count = static_cast<std::size_t>(First - 32) & 63;
        std::string Expected = "Cat\x40" + std::string(60, '\0');
        TQzMemoryStream Target(16);
        QzUUDecode(AnsiString(Text), Target);
        EXPECT_EQ(Content(Target), Expected.substr(0, Count)) << First;
    }
}

TEST(UUCode, FindsAFileByItsNameAndKnowsMarks) {
    const AnsiString Text(std::string_view("Hello\nbegin 1 a\n#0V%T\n`\nend\nbegin 2 Two\n!00  \n`\nend\n"));
    const auto Find = [&](std::u16string_view AName) {
        return Decoded([&](TStream& ATarget) { return QzUUDecode(Text, AName, ATarget); });
    };
    EXPECT_EQ(Find(u"tWO"), u"A; Two 2");
    EXPECT_EQ(Find(u"HELL"), u"; Exception: Invalid UUData");
    EXPECT_EQ(Find(u"none"), u"; Exception: Unexpected EOF");
    for (const std::uint16_t Page : {std::uint16_t{65001}, std::uint16_t{1200}, std::uint16_t{1201}}) {
        TStringStream Stream(u"\uFEFFbegin 1 Zoë\n#0V%T\n`\nend", TEncoding(Page));
        EXPECT_EQ(Decoded([&](TStream& ATarget) { return QzUUDecode(Stream, ATarget); }), u"Cat; Zoë 1");
    }
}

} // namespace
} // namespace qz
