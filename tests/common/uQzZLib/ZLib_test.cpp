#include <qz/common/uQzZLib.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/runtime/streams/Streams.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

using namespace std::string_literals;

std::string Packed(std::string_view AText, TQzZLibCompressionLevel ALevel) {
    TQzMemoryStream Target(1024);
    ZlCompressStream(*StreamOf(AText), Target, ALevel, true);
    return Content(Target);
}

std::string Unpacked(std::string_view AData, bool AFromStart = true) {
    TQzMemoryStream Target(1024);
    ZlDecompressStream(*StreamOf(AData), Target, AFromStart);
    return Content(Target);
}

TEST(ZLib, LevelsAreThoseOfTheirMapping) {
    std::string Text;
    for (int I = 0; I < 3000; ++I)
        Text += std::to_string(I * I % 977) + " lines of text, ";
    EXPECT_GT(Packed(Text, clNone).size(), Text.size());
    EXPECT_EQ(Packed(Text, clLevel1), Packed(Text, clDefault));
    EXPECT_EQ(Packed(Text, clLevel9), Packed(Text, clDefault));
    // Bits 6 and 7 of the second byte are the level as RFC 1950 classes it.
    EXPECT_EQ(Packed(Text, clFastest)[1] >> 6 & 3, 0);
    EXPECT_EQ(Packed(Text, clDefault)[1] >> 6 & 3, 2);
    EXPECT_EQ(Packed(Text, clMax)[1] >> 6 & 3, 3);
    for (const TQzZLibCompressionLevel Level : {clNone, clFastest, clDefault, clMax})
        EXPECT_TRUE(Unpacked(Packed(Text, Level)) == Text);
}

TEST(ZLib, StartsWhereItIsAskedToAndEndsWithTheData) {
    const auto Source = StreamOf("--text");
    Source->SetPosition(2);
    TQzMemoryStream Data(16), Target(16);
    Data.WriteBuffer("\x03\x00", 2); // an empty text in raw deflate
    ZlCompressStream(*Source, Data, clDefault, false);
    Data.WriteBuffer("tail", 4);
    Data.SetPosition(0);
    ZlDecompressStream(Data, Target, false);
    EXPECT_EQ(Target.GetSize(), 0);
    ZlDecompressStream(Data, Target, false);
    EXPECT_EQ(Content(Target), "text");
    EXPECT_EQ(Data.GetSize() - Data.Position(), 4);
    Target.Clear();
    ZlDecompressStream(Data, Target, -15, true);
    EXPECT_EQ(Data.Position(), 2);
}

TEST(ZLib, FaultsHaveTheirClassAndCode) {
    const struct {
        std::string Data;
        std::int32_t Code;
        UnicodeString Text;
    } cCases[] = {{"", 1, u"Stream end"},
                  {Packed("text", clMax).substr(0, 7), -5, u"Buffer error"},
                  {"x\x9C\xFF\xFF", -3, u"Data error"},
                  {"\x1F\x8B\x08\x00", -3, u"Data error"}, // gzip is read as raw deflate
                  {"x\xBB\x01\x02\x03\x04", 2, u"Need dictionary"}};
    for (const auto& Case : cCases) {
        try {
            Unpacked(Case.Data);
            ADD_FAILURE() << Case.Text;
        } catch (const EQzZLibDecompressionError& E) {
            EXPECT_EQ(E.ErrorCode(), Case.Code);
            EXPECT_EQ(E.Message(), Case.Text);
        }
        EXPECT_THROW(ZlDecompressStreamToString(*StreamOf(Case.Data), true), EQzZLibDecompressionError);
    }
    for (const auto& Row :
         Rows(u"0 => OK", u"-1 => File error", u"-2 => Stream error", u"-4 => Insufficient memory",
              u"-6 => Incompatible version", u"-7 => Error -7", u"3 => Error 3"))
        EXPECT_EQ(EQzZLibException(StrToInt(Row[0])).Message(), Row[1]);
    // What stands before the fault has been written.
    TQzMemoryStream Target(16);
    EXPECT_THROW(ZlDecompressStream(*StreamOf("\x00\x02\x00\xFD\xFFhi\x07"s), Target, true),
                 EQzZLibDecompressionError);
    EXPECT_EQ(Content(Target), "hi");
    EXPECT_THROW(ZlDecompressStream(*StreamOf("x"), Target, 99, true), EQzZLibDecompressionError);
}

TEST(ZLib, TextsAreUtf16) {
    const UnicodeString Text = u"Zoë \U0001F600";
    TQzMemoryStream Data(16);
    for (const UnicodeString& Each : {Text, UnicodeString()}) {
        Data.Clear();
        ZlStringToCompressedStream(Each, Data, clDefault);
        EXPECT_EQ(ZlDecompressStreamToString(Data, true), Each);
        EXPECT_EQ(ZlDecompressStreamToWideString(Data, true), Each);
    }
    EXPECT_EQ(ZlDecompressStreamToString(*StreamOf(Packed("a\0b\0c"s, clNone)), true), u"ab");
    EXPECT_EQ(ZlDecompressStreamToAnsiString(*StreamOf(Packed("a\0b\xFF"s, clNone)), true).View(),
              "a\0b\xFF"s);
}

// A stream that refuses to grow ends the decompression of data that never ends.
TEST(ZLib, TheTargetDecidesHowMuchItTakes) {
    TMemoryStream Data;
    {
        TZCompressionStream Packer(Data, zcFastest);
        const std::string Zeros(1 << 20, '\0');
        for (int I = 0; I < 64; ++I)
            Packer.WriteBuffer(Zeros.data(), 1 << 20);
    }
    EXPECT_LT(Data.Size(), 400'000);
    char Block[100'000];
    TQzMemoryStream Target(Block, sizeof Block);
    EXPECT_EQ(Message([&] { ZlDecompressStream(Data, Target, true); }),
              u"It is not possible to resize the buffer!");
}

} // namespace
} // namespace qz
