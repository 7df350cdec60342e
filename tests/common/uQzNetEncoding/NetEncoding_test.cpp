#include <qz/common/uQzBase64.h>
#include <qz/common/uQzClasses/QzBytes.h>
#include <qz/common/uQzNetEncoding.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/runtime/streams/MemoryStream.h>

namespace qz {
namespace {

constexpr std::u16string_view cInvalid = u"Invalid Base64 data!";

const TQzBase64Encoding& Base64 = TQzNetEncoding::GetBase64ExEncoding();
const TQzBase64UrlEncoding& Url = TQzNetEncoding::GetBase64UrlEncoding();
const TQzHexEncoding& Hex = TQzNetEncoding::GetHexEncoding();

std::string_view Text(const TBytes& ABytes) {
    return {reinterpret_cast<const char*>(ABytes.data()), ABytes.size()};
}

// RFC 4648, section 10, and what the alphabets differ in.
TEST(NetEncodingUnit, EachFormOfPublishedVectors) {
    for (const auto& Row :
         Rows(u" =>  =>  => ", u"f => Zg== => Zg => 66", u"fo => Zm8= => Zm8 => 666F",
              u"foo => Zm9v => Zm9v => 666F6F", u"foobar => Zm9vYmFy => Zm9vYmFy => 666F6F626172",
              u"\x07FB\x07FF => 37vfvw== => 37vfvw => DFBBDFBF",
              u"\u07EF\u00FF => 36/Dvw== => 36_Dvw => DFAFC3BF")) {
        const TNetEncodingEx* const Encodings[] = {&Base64, &Url, &Hex};
        const std::string Plain(Row[0]);
        for (std::size_t I = 0; I < 3; ++I) {
            SCOPED_TRACE(Row[I + 1]);
            const TNetEncodingEx& Each = *Encodings[I];
            const UnicodeString& Encoded = Row[I + 1];
            const std::string Narrow(Encoded);
            EXPECT_EQ(&TQzNetEncoding::GetEncoding(static_cast<TQzBinEncoding>(I == 0 ? 0 : 3 - I)), &Each);
            EXPECT_EQ(Each.Encode(Row[0]), Encoded);
            EXPECT_EQ(Each.EncodeBytesToString(Plain.data(), static_cast<std::int32_t>(Plain.size())),
                      Encoded);
            EXPECT_EQ(Text(Each.Encode(Plain.data(), Plain.size())), Narrow);
            EXPECT_EQ(Each.EncodeA(Plain.data(), Plain.size()).View(), Narrow);
            EXPECT_EQ(Text(Each.Encode(*StreamOf(Plain))), Narrow);
            EXPECT_EQ(Each.Decode(Encoded), Row[0]);
            EXPECT_EQ(Text(Each.DecodeStringToBytes(Encoded)), Plain);
            EXPECT_EQ(Text(Each.Decode(Narrow.data(), Narrow.size())), Plain);
            EXPECT_EQ(Text(Each.Decode(*StreamOf(Narrow))), Plain);
            TMemoryStream File, Back;
            EXPECT_EQ(Each.Encode(*StreamOf(Plain), File), Encoded.Length());
            File.SetPosition(0);
            EXPECT_EQ(Each.Decode(File, Back), static_cast<std::int64_t>(Plain.size()));
            EXPECT_EQ(std::string(static_cast<char*>(Back.Memory()), Back.Content().size()), Plain);
        }
        EXPECT_EQ(Url.Decode(Row[1]), Row[0]) << "each class decodes the text of the other";
        EXPECT_EQ(Base64.Decode(Row[2]), Row[0]);
        EXPECT_EQ(std::string(QzEncodeBase64(Row[0]).View()), std::string(Row[1]));
        EXPECT_EQ(std::string(QzEncodeBase64Url(UTF8String(Row[0])).View()), std::string(Row[2]));
    }
    EXPECT_EQ(QzEncodeBase64(TQzBytes("\xFB\xEF", 2)).View(), "++8=");
    EXPECT_EQ(Message([] { TQzNetEncoding::GetEncoding(static_cast<TQzBinEncoding>(3)); }),
              u"The specified NetEncoding is not supported!");
}

// Lengths are those of the text as it stands, so that five bytes are refused although four of them count.
TEST(NetEncodingUnit, RefusedLengthsAndSkippedBytes) {
    for (const auto& Row :
         Rows(u"TWFu => Man => Man", u"TWE => Ma => Ma", u"TQ => M => M", u"T => ! => ", u"TWFuT => ! => Man",
              u"TW\nFu => ! => Man", u"TW\r\nFu => Man => Man", u"T!W@F*u& => Man => Man",
              u"TWE=bQ== => Ma\x1B => Ma\x1B", u"TWF\u00E9u => Man => Man", u"TWFu\u20AC => Man => Man",
              u"==== =>  => ", u"= => ! => ")) {
        SCOPED_TRACE(Row[0]);
        const RawByteString Narrow{UTF8String(Row[0])};
        const auto Check = [&](auto AStep) {
            UnicodeString Result;
            const UnicodeString Error = Message([&] { Result = UnicodeString(Text(AStep())); });
            EXPECT_EQ(Error.IsEmpty() ? Result : UnicodeString(u"!"), Row[1]);
            EXPECT_EQ(Error, Row[1] == u"!" ? cInvalid : u"");
        };
        Check([&] { return Base64.DecodeStringToBytes(Row[0]); });
        Check([&] { return Base64.Decode(Narrow); });
        Check([&] { return Base64.Decode(*StreamOf(Narrow.View())); });
        Check([&] { return QzDecodeBase64(Row[0]); });
        Check([&] { return QzDecodeBase64(Narrow); });
        Check([&] {
            std::size_t Size = 0;
            const TMemBlock Block(static_cast<std::byte*>(QzDecodeBase64(Narrow, Size)));
            EXPECT_EQ(Block == nullptr, Size == 0);
            return TBytes(std::span(reinterpret_cast<const std::uint8_t*>(Block.get()), Size));
        });
        TQzMemoryStream Target(16);
        EXPECT_EQ(Base64.Decode(*StreamOf(Narrow.View()), Target), Row[2].Length());
        EXPECT_EQ(Content(Target), std::string(Row[2]));
    }
    EXPECT_EQ(Base64.EncodeBytesToString(TBytes(100'000)).View().find_first_not_of(u"A="),
              std::u16string_view::npos);
}

TEST(NetEncodingUnit, Base64BetweenStreams) {
    const auto Target = StreamOf("0123456789");
    Target->SetPosition(2);
    EXPECT_EQ(Base64.Encode(*StreamOf("Man"), *Target), 4);
    EXPECT_EQ(Content(*Target), "01TWFu") << "ends with the result";
    EXPECT_EQ(Target->Position(), 2);
    EXPECT_EQ(Base64.Decode(*Target, *Target), 3) << "input and output are one stream";
    EXPECT_EQ(Content(*Target), "01Man");
    EXPECT_EQ(Base64.Encode(*StreamOf(""), *Target), 0);
    EXPECT_EQ(Content(*Target), "01Man") << "without input nothing is written";
    char Block[5];
    TQzMemoryStream Fixed(Block, 5);
    EXPECT_EQ(Message([&] { Base64.Encode(*StreamOf("Man"), Fixed); }),
              u"It is not possible to resize the buffer!");
    TMemoryStream Plain;
    Plain.WriteBuffer("__", 2);
    EXPECT_EQ(Base64.DecodeStringToStream(u"TW\nFu", Plain), 3);
    EXPECT_EQ(std::string(static_cast<char*>(Plain.Memory()), 5), "__Man");
}

TEST(NetEncodingUnit, HexDigits) {
    for (const auto& Row :
         Rows(u"ab01 => AB01", u"AG => A0", u"ABC => AB", u"z => ", u"x9Fy => 09F0", u"4\u00E94 => 40"))
        EXPECT_EQ(Hex.EncodeBytesToString(Hex.Decode(std::string(Row[0]).data(), Row[0].size())), Row[1]);
    const auto Target = StreamOf("abcdef");
    Target->SetPosition(1);
    EXPECT_EQ(Hex.Encode(*StreamOf("\xAB\1"), *Target), 9) << "the new size without what stands before";
    EXPECT_EQ(Content(*Target), std::string("aAB01f\0\0\0\0", 10));
    EXPECT_EQ(Target->Position(), 5);
    const std::string Long(20001, '1');
    TMemoryStream Decoded;
    EXPECT_EQ(Hex.Decode(*StreamOf(Long), Decoded), 10000);
}

TEST(NetEncodingUnit, CountedEncodingWithLines) {
    const Ref<IQzNetEncoding> Lines = TQzNetEncoding::Base64(4, u"|");
    EXPECT_EQ(Lines->Encode(u"foobar"), u"Zm9v|YmFy");
    EXPECT_EQ(Lines->Decode(u"Zm9v|YmFy"), u"foobar");
    EXPECT_EQ(TQzNetEncoding::Base64(4)->Encode(u"foobar"), u"Zm9v\r\nYmFy");
    EXPECT_EQ(TQzNetEncoding::Base64().EncodeBytesToString(TBytes(60)).Length(), 82);
}

} // namespace
} // namespace qz
