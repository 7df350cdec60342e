#include <qz/runtime/streams/ZStreams.h>

#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/streams/MemoryStream.h>

namespace qz {
namespace {

using namespace std::string_literals;

// Takes so many bytes and then no more.
class TFullStream : public TMemoryStream {
    QZ_CLASS(TFullStream, TMemoryStream)

public:
    explicit TFullStream(std::int64_t ALimit) : FLimit(ALimit) {}
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override {
        return Size() + ACount > FLimit ? 0 : TMemoryStream::Write(ABuffer, ACount);
    }

private:
    std::int64_t FLimit;
};
constinit const TClassRec TFullStream::ClassRec =
    DescribeClass<TFullStream>(u"TFullStream", {.Unit = u"Test"});

void Put(TStream& AStream, std::string_view ABytes) {
    AStream.WriteBuffer(ABytes.data(), static_cast<std::int64_t>(ABytes.size()));
}

std::string Take(TStream& AStream, std::size_t ACount) {
    std::string Result(ACount, '\0');
    Result.resize(
        static_cast<std::size_t>(AStream.ReadUpTo(Result.data(), static_cast<std::int64_t>(ACount))));
    return Result;
}

// Words in which zlib finds something to do, and noise in which it does not.
std::string Sample(std::size_t ASize) {
    std::mt19937 Random(7);
    std::string Result;
    while (Result.size() < ASize)
        Result += Random() % 2 == 0 ? "compress "s : std::string(1, static_cast<char>(Random()));
    Result.resize(ASize);
    return Result;
}

// Bytes that RFC 1950 and RFC 1951 give for stored and fixed blocks.
TEST(ZStreams, ReadWhatTheStandardsSay) {
    const struct {
        std::int32_t WindowBits;
        std::string Data;
        UnicodeString Result;
    } cCases[] = {
        {-15, "\x01\x05\x00\xFA\xFFhello"s, u"hello"},
        {-15, "\x03\x00"s, u""},
        {15, "\x78\x9C\x4B\x04\x00\x00\x62\x00\x62"s, u"a"},
        {15, "\x78\x9C\x4B\x04\x00\x00\x62\x00\x63"s, u"a, then -3"},
        {15, "\x78\x9C\x4B\x04\x00\x00\x62\x00"s, u"a, then -5"},
        {15, "\x78\x9C"s, u", then -5"},
        {15, "\x78\x9D\x4B\x04"s, u", then -3"},
        {15, "\x78\xBB\x00\x62\x00\x62\x4B\x04"s, u", then 2"},
        {-15, "\x01\x05\x00\xFA\xFEhello"s, u", then -3"},
        {-15, "\x00\x02\x00\xFD\xFFhi\x07"s, u"hi, then -3"},
        {31, "hello"s, u", then -3"},
        {15, ""s, u", then -5"},
    };
    for (const auto& [WindowBits, Data, Expected] : cCases) {
        TMemoryStream Source;
        Put(Source, Data + (Expected.View().find(u"then") == std::u16string_view::npos ? "tail" : ""));
        Source.SetPosition(0);
        TZDecompressionStream Stream(Source, WindowBits);
        UnicodeString Result;
        try {
            char Chars[5];
            while (const std::int32_t Count = Stream.Read(Chars, 5))
                Result += std::string_view(Chars, static_cast<std::size_t>(Count));
            EXPECT_EQ(Take(Source, 5), "tail") << "the source stands after the compressed data";
        } catch (const EZDecompressionError& E) {
            Result += u", then " + UnicodeString(std::to_string(E.ErrorCode()));
        }
        EXPECT_EQ(Result, Expected) << Data;
    }
}

TEST(ZStreams, GiveBackAllThatWasWrittenInAnyFormatAndPieces) {
    for (const std::size_t Size : {0u, 1u, 100u, 65535u, 65536u, 65537u, 1'000'000u}) {
        const std::string Text = Sample(Size);
        for (const std::int32_t WindowBits : {15, 9, -15, 31}) {
            TMemoryStream Packed;
            Put(Packed, "head");
            {
                TZCompressionStream Packer(Packed, WindowBits == 9 ? zcMax : zcFastest, WindowBits);
                for (std::size_t Pos = 0, Step = 1; Pos < Size; Pos += Step, Step = Step * 3 + 1)
                    Put(Packer, std::string_view(Text).substr(Pos, Step));
                EXPECT_EQ(Packer.Position(), static_cast<std::int64_t>(Size));
            }
            Packed.SetPosition(4);
            TZDecompressionStream Unpacker(Packed, WindowBits);
            EXPECT_EQ(Take(Unpacker, Size / 3), Text.substr(0, Size / 3));
            EXPECT_TRUE(Take(Unpacker, Size + 1) == Text.substr(Size / 3));
            EXPECT_EQ(Packed.Position(), Packed.Size());
        }
    }
}

TEST(ZStreams, KnowTheirPlace) {
    const std::string Text = Sample(300'000);
    TMemoryStream Packed;
    TZCompressionStream Packer(Packed);
    Put(Packer, Text);
    EXPECT_EQ(Packer.Seek(std::int64_t{0}, soEnd), 300'000);
    EXPECT_THROW(Packer.SetPosition(1), EZCompressionError);
    EXPECT_THROW(Take(Packer, 1), EZCompressionError);
    Packer.Finish();
    EXPECT_THROW(Put(Packer, "x"), EZCompressionError);
    Packed.SetPosition(0);
    TZDecompressionStream Unpacker(Packed);
    EXPECT_EQ(Unpacker.Size(), 300'000);
    for (const std::size_t Place : {std::size_t{200'000}, std::size_t{5}, std::size_t{299'995}}) {
        EXPECT_EQ(Unpacker.Seek(static_cast<std::int64_t>(Place), soBeginning),
                  static_cast<std::int64_t>(Place));
        EXPECT_EQ(Take(Unpacker, 5), Text.substr(Place, 5));
    }
    EXPECT_EQ(Unpacker.Seek(std::int64_t{-5}, soEnd), 299'995);
    EXPECT_EQ(Unpacker.Seek(std::int64_t{9}, soCurrent), 300'000) << "not beyond the end";
    EXPECT_EQ(Raised([&] { Unpacker.SetPosition(-1); }), u"EZDecompressionError: Invalid stream operation");
    EXPECT_THROW(Put(Unpacker, "x"), EZDecompressionError);
}

TEST(ZStreams, DataWithoutItsEndIsNotEnded) {
    TMemoryStream Packed;
    try {
        TZCompressionStream Packer(Packed);
        Put(Packer, Sample(200'000));
        throw EAbort(u"");
    } catch (const EAbort&) {}
    Packed.SetPosition(0);
    TZDecompressionStream Unpacker(Packed);
    EXPECT_THROW(Take(Unpacker, 200'000), EZDecompressionError);

    TFullStream Full(70'000);
    TZCompressionStream Packer(Full, zcNone);
    EXPECT_THROW(Put(Packer, Sample(200'000)), EWriteError);
    EXPECT_THROW(Put(Packer, "x"), EZCompressionError);
    EXPECT_THROW(Packer.Finish(), EZCompressionError);
    EXPECT_THROW(TZCompressionStream(Full, zcMax, 99), EZCompressionError);
    EXPECT_EQ(Raised([&] { TZDecompressionStream(Full, 99); }), u"EZDecompressionError: stream error");
}

} // namespace
} // namespace qz
