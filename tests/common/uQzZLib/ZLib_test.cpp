#include <qz/common/uQzZLib.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

using namespace std::string_literals;

std::string Packed(std::string_view AText, TQzZLibCompressionLevel ALevel) {
    TQzMemoryStream Target(1024);
    ZlCompressStream(*StreamOf(AText), Target, ALevel, true);
    return Content(Target);
}

TEST(ZLib, LevelsAreThoseOfTheirMapping) {
    std::string Text;
    for (int I = 0; I < 3000; ++I)
        Text += std::to_string(I * I % 977) + " lines of text, ";
    EXPECT_GT(Packed(Text, clNone).size(), Text.size());
    // Bits 6 and 7 of the second byte are the level as RFC 1950 classes it.
    for (const auto& [Level, Class] : {std::pair(clFastest, 0), std::pair(clDefault, 2), std::pair(clMax, 3)})
        EXPECT_EQ(Packed(Text, Level)[1] >> 6 & 3, Class);
    EXPECT_EQ(Packed(Text, clLevel1), Packed(Text, clDefault));
    EXPECT_EQ(Packed(Text, clLevel9), Packed(Text, clDefault));
}

TEST(ZLib, StartsAtThePositionAndStopsAfterTheData) {
    const auto Source = StreamOf("--text"), Data = StreamOf("\x03\x00"s); // an empty text in raw deflate
    Source->SetPosition(2);
    Data->SetPosition(2);
    ZlCompressStream(*Source, *Data, clDefault, false);
    Data->WriteBuffer("tail", 4);
    TQzMemoryStream Target(16);
    ZlDecompressStream(*Data, Target, true);
    EXPECT_EQ(Content(Target), "");
    ZlDecompressStream(*Data, Target, false);
    EXPECT_EQ(Content(Target), "text");
    EXPECT_EQ(Data->GetSize() - Data->Position(), 4);
}

TEST(ZLib, FaultsHaveTheirClassCodeAndText) {
    for (const auto& [Data, Text] :
         {std::pair(""s, u"Stream end"), std::pair("x"s, u"Buffer error"),
          std::pair("x\x9C\xFF\xFF"s, u"Data error"), // gzip is taken for raw deflate:
          std::pair("\x1F\x8B\x08\x00"s, u"Data error"),
          std::pair("x\xBB\x01\x02\x03\x04"s, u"Need dictionary")})
        EXPECT_EQ(Raised([&] { ZlDecompressStreamToString(*StreamOf(Data), true); }),
                  u"EQzZLibDecompressionError: "s + Text);
    for (const auto& Row : Rows(u"2 => Need dictionary", u"1 => Stream end", u"0 => OK", u"-1 => File error",
                                u"-2 => Stream error", u"-3 => Data error", u"-4 => Insufficient memory",
                                u"-5 => Buffer error", u"-6 => Incompatible version", u"-7 => Error -7")) {
        const EQzZLibCompressionError Error(StrToInt(Row[0]));
        EXPECT_EQ(Error.Message(), Row[1]);
        EXPECT_EQ(Error.ErrorCode(), StrToInt(Row[0]));
    }
}

TEST(ZLib, TextsAreUtf16) {
    for (const UnicodeString& Text : {UnicodeString(u"Zoë \U0001F600"), UnicodeString()}) {
        TQzMemoryStream Data(16);
        ZlStringToCompressedStream(Text, Data, clDefault);
        EXPECT_EQ(ZlDecompressStreamToString(Data, true), Text);
        EXPECT_EQ(ZlDecompressStreamToWideString(Data, true), Text);
    }
    const auto Odd = StreamOf(Packed("a\0b\0\xFF"s, clNone));
    EXPECT_EQ(ZlDecompressStreamToString(*Odd, true), u"ab");
    EXPECT_EQ(ZlDecompressStreamToAnsiString(*Odd, true).View(), "a\0b\0\xFF"s);
}

TEST(ZLib, ATargetThatRefusesToGrowEndsTheDecompression) {
    char Block[100'000];
    TQzMemoryStream Target(Block, sizeof Block);
    const auto Data = StreamOf(Packed(std::string(10'000'000, 'x'), clMax));
    EXPECT_LT(Data->GetSize(), 20'000);
    EXPECT_EQ(Message([&] { ZlDecompressStream(*Data, Target, true); }),
              u"It is not possible to resize the buffer!");
}

} // namespace
} // namespace qz
