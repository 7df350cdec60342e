#include <qz/common/uQzUUCode.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/streams/Streams.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

// The bytes with the data of the header, or those before a fault with the fault.
template <class TDecode> UnicodeString Decoded(const TDecode& ADecode) {
    TQzMemoryStream Target(16);
    TQzUUData Data;
    const UnicodeString Fault = Message([&] { Data = ADecode(Target); });
    return UnicodeString(Content(Target)) + u"; " +
        (Fault.IsEmpty() ? Data.FileName + u" " + IntToStr(Data.Mode) : Fault);
}

TEST(UUCode, WritesWhatTheFormatSaysAndReadsItBack) {
    for (const auto& [Bytes, Lines] :
         {std::pair<std::string, std::string>("", ""),
          {"Cat", "#0V%T\r\n"},
          {"A", "!00  \r\n"},
          {std::string(46, '\xFF'), "M" + std::string(60, '_') + "\r\n!_P  \r\n"}})
        EXPECT_EQ(QzUUEncode(AnsiString(Bytes), u"f", 644).View(), "begin 644 f\r\n" + Lines + "`\r\nend");
    std::string Bytes;
    for (std::size_t Size = 1; Size < 140'000; Size = Size < 200 ? Size + 1 : Size * 2 + 61) {
        while (Bytes.size() < Size)
            Bytes += static_cast<char>(Bytes.size() * Bytes.size() * 31 + Bytes.size() / 7);
        TQzMemoryStream Target(4096);
        const AnsiString Text = QzUUEncode(AnsiString(Bytes), u"naïve name", 65535);
        EXPECT_EQ(QzUUDecode(Text, Target).FileName, u"naïve name");
        ASSERT_TRUE(Content(Target) == Bytes) << Size;
    }
}

// Bars separate lines. Missing characters at the end of a line are blanks.
TEST(UUCode, ReadsWhatTheRulesAllowAndRefusesTheRest) {
    for (const auto& Row :
         Rows(u"begin 644 a b|#0V%T|`|end => Cat; a b 644", u"BEGIN 0007 |#0V%T|`|END|more => Cat;  7",
              u"begin 644|#0V%T|`|end => Cat;  644", u"begin 1 x|!00``|`|end => A; x 1",
              u"begin 1 x|!00|`|end => A; x 1", u"begin 1 x|#0V%Tmore|#0V%T|`|end => CatCat; x 1",
              u"begin 1 x|#05(B|`|end => AR\"; x 1", u"begin 1 x|`|`|end => ; x 1",
              u"begin 1 x|`|end => ; Unexpected EOF", u"begin 1 x => ; Unexpected EOF",
              u" => ; Unexpected EOF", u"begin 1 x|#0V%T| => Cat; Unexpected EOF",
              u"begin 1 x|#0V%T|` => Cat; Unexpected EOF", u"begin 1 x|#0V%T|` |end => Cat; Unexpected EOF",
              u"begin 1 x|#0V%T||`|end => Cat; Invalid UUData", u"begin 1 x||`|end => ; Invalid UUData",
              u"begin => ; Invalid UUData", u"begin  => ; Invalid UUData", u"begin 0 x => ; Invalid UUData",
              u"begin 65536 x => ; Invalid UUData", u"begin -1 x => ; Invalid UUData",
              u"begin $1 x => ; Invalid UUData", u"first|begin 1 x => ; Invalid UUData")) {
        for (const std::u16string_view LineEnd : {u"\r\n", u"\n", u"\r"}) {
            const UnicodeString Text = StringReplace(Row[0], u"|", LineEnd, {rfReplaceAll});
            TStringList Lines;
            Lines.SetText(Text);
            TStringStream Wide(Text.IsEmpty() ? Text : u"\uFEFF" + Text, TEncoding::Unicode());
            EXPECT_EQ(Decoded([&](TStream& ATarget) { return QzUUDecode(AnsiString(Text), ATarget); }),
                      Row[1])
                << Row[0];
            EXPECT_EQ(Decoded([&](TStream& ATarget) { return QzUUDecode(Lines, ATarget); }), Row[1])
                << Row[0];
            EXPECT_EQ(Decoded([&](TStream& ATarget) { return QzUUDecode(Wide, ATarget); }), Row[1]) << Row[0];
        }
    }
    for (int First = ' '; First < 128; ++First) {
        TQzMemoryStream Target(16);
        QzUUDecode(AnsiString("begin 1 x\n" + std::string(1, static_cast<char>(First)) + "0V%T0\n`\nend"),
                   Target);
        EXPECT_EQ(Content(Target),
                  ("Cat@" + std::string(60, '\0')).substr(0, static_cast<std::size_t>(First - 32) & 63));
    }
}

TEST(UUCode, EachFormCountsCharacters) {
    const UnicodeString Text = u"begin 1 x\n#0\u00E9V%T\n`\nend";
    TStringList Lines;
    Lines.SetText(Text);
    const UnicodeString Known = Decoded([&](TStream& ATarget) { return QzUUDecode(Lines, ATarget); });
    for (const std::uint16_t Page : {cUtf8CodePage, std::uint16_t{1252}})
        EXPECT_EQ(Decoded([&](TStream& ATarget) {
                      AnsiString Narrow(TQzEncoding::ConvertW(Text, Page).View(), Page);
                      return QzUUDecode(Narrow, ATarget);
                  }),
                  Known);
}

TEST(UUCode, OneStreamMayBeBoth) {
    const std::string Bytes(300'000, 'x');
    const AnsiString Text = QzUUEncode(AnsiString(Bytes), u"x", 1);
    TQzMemoryStream Both(16);
    Both.WriteBuffer(Text.data(), Text.Length());
    Both.SetPosition(0);
    QzUUDecode(Both, Both);
    EXPECT_TRUE(Content(Both) == std::string(Text.View()) + Bytes);
    EXPECT_THROW(QzUUEncode(Text, u"x\n#0V%T\n`\nend", 1), Exception) << "a name with data of its own";
}

TEST(UUCode, FindsAFileByItsName) {
    const AnsiString Text("Hello\nbegin 1 a\n#0V%T\n`\nend\nbegin 2 Two\n!00  \n`\nend\n");
    for (const auto& Row : Rows(u"tWO => A; Two 2", u"HELL => ; Invalid UUData", u"none => ; Unexpected EOF"))
        EXPECT_EQ(Decoded([&](TStream& ATarget) { return QzUUDecode(Text, Row[0], ATarget); }), Row[1]);
}

} // namespace
} // namespace qz
