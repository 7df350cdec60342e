#include <qz/common/uQzZLib.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"

namespace qz {
namespace {

using namespace std::string_literals;

std::string Packed(std::string_view AText, TQzZLibCompressionLevel ALevel) {
    TQzMemoryStream Target(1024);
    ZlCompressStream(*StreamOf(AText), Target, ALevel, true);
    return Content(Target);
}

// Bits 6 and 7 of the second byte are the level as RFC 1950 classes it.
TEST(ZLib, LevelsAreThoseOfTheirMapping) {
    for (const auto& [Level, Class] : {std::pair(clNone, 0), std::pair(clFastest, 0), std::pair(clDefault, 2),
                                       std::pair(clMax, 3), std::pair(clLevel1, 2), std::pair(clLevel9, 2)})
        EXPECT_EQ(Packed("text", Level)[1] >> 6 & 3, Class);
    EXPECT_GT(Packed(std::string(1000, 'x'), clNone).size(), 1000u);
}

TEST(ZLib, StartsAtThePositionAndStopsAfterTheData) {
    const auto Source = StreamOf("--text"), Data = StreamOf("\x03\x00"s); // an empty text in raw deflate
    Source->SetPosition(2);
    Data->SetPosition(2);
    ZlCompressStream(*Source, *Data, clDefault, false);
    Data->WriteBuffer("tail", 4);
    EXPECT_EQ(ZlDecompressStreamToAnsiString(*Data, true).View(), "");
    EXPECT_EQ(ZlDecompressStreamToAnsiString(*Data, false).View(), "text");
    EXPECT_EQ(Data->GetSize() - Data->Position(), 4);
}

TEST(ZLib, FaultsHaveTheirClassAndText) {
    for (const auto& Case :
         {std::pair(""s, u"Stream end"), std::pair("x"s, u"Buffer error"),
          std::pair("x\x9C\xFF\xFF"s, u"Data error"), std::pair("\x1F\x8B\x08\x00"s, u"Data error"),
          std::pair("x\xBB\x01\x02\x03\x04"s, u"Need dictionary")})
        EXPECT_EQ(Raised([&] { ZlDecompressStreamToString(*StreamOf(Case.first), true); }),
                  u"EQzZLibDecompressionError: "s + Case.second);
    EXPECT_EQ(EQzZLibException(-6).Message(), u"Incompatible version");
    EXPECT_EQ(EQzZLibException(-7).ErrorCode(), -7);
    char Block[1000];
    TQzMemoryStream Target(Block, sizeof Block);
    const auto Data = StreamOf(Packed(std::string(10'000'000, 'x'), clMax));
    EXPECT_EQ(Message([&] { ZlDecompressStream(*Data, Target, true); }),
              u"It is not possible to resize the buffer!");
}

TEST(ZLib, TextsAreUtf16) {
    for (const UnicodeString& Text : {UnicodeString(u"Zoë \U0001F600"), UnicodeString()}) {
        TQzMemoryStream Data(16);
        ZlStringToCompressedStream(Text, Data, clDefault);
        EXPECT_EQ(ZlDecompressStreamToString(Data, true), Text);
    }
    EXPECT_EQ(ZlDecompressStreamToWideString(*StreamOf(Packed("a\0b\0\xFF"s, clNone)), true), u"ab");
}

} // namespace
} // namespace qz
