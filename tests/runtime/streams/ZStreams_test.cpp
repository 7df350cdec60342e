#include <qz/runtime/streams/ZStreams.h>

#include <random>
#include <string>

#include <gtest/gtest.h>

#include <qz/runtime/streams/MemoryStream.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

using namespace std::string_literals;

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
    return Result.substr(0, ASize);
}

// Bytes that RFC 1950 and RFC 1951 give for stored and fixed blocks. After whole data follows "tail".
TEST(ZStreams, ReadWhatTheStandardsSay) {
    using TCase = std::tuple<std::int32_t, std::string, std::u16string_view>;
    const TCase cCases[] = {{-15, "\x01\x05\x00\xFA\xFFhellotail"s, u"hello, then tail"},
                            {-15, "\x03\x00tail"s, u", then tail"},
                            {15, "\x78\x9C\x4B\x04\x00\x00\x62\x00\x62tail"s, u"a, then tail"},
                            {15, "\x78\x9C\x4B\x04\x00\x00\x62\x00\x63"s, u"a, then -3"},
                            {15, "\x78\x9C\x4B\x04\x00\x00\x62\x00"s, u"a, then -5"},
                            {15, "\x78\xBB\x00\x62\x00\x62\x4B\x04"s, u", then 2"},
                            {-15, "\x00\x02\x00\xFD\xFFhi\x07"s, u"hi, then -3"},
                            {31, "hello"s, u", then -3"},
                            {99, "hello"s, u", then -2"}};
    for (const auto& [WindowBits, Data, Expected] : cCases) {
        TMemoryStream Source;
        Put(Source, Data);
        Source.SetPosition(0);
        UnicodeString Result;
        try {
            TZDecompressionStream Stream(Source, WindowBits);
            char Chars[3];
            while (const std::int32_t Count = Stream.Read(Chars, 3))
                Result += std::string_view(Chars, static_cast<std::size_t>(Count));
            Result += u", then " + UnicodeString(Take(Source, 5));
        } catch (const EZDecompressionError& E) {
            Result += u", then " + IntToStr(E.ErrorCode());
        }
        EXPECT_EQ(Result, Expected);
    }
}

TEST(ZStreams, GiveBackWhatWasWrittenAndKnowTheirPlace) {
    for (const std::size_t Size : {0u, 1u, 65535u, 65536u, 65537u, 1'000'000u}) {
        const std::string Text = Sample(Size);
        for (const std::int32_t WindowBits : {15, -15, 31}) {
            TMemoryStream Packed;
            {
                TZCompressionStream Packer(Packed, zcFastest, WindowBits);
                for (std::size_t Pos = 0, Step = 1; Pos < Size; Pos += Step, Step = Step * 3 + 1)
                    Put(Packer, std::string_view(Text).substr(Pos, Step));
                EXPECT_EQ(Packer.Position(), static_cast<std::int64_t>(Size));
                EXPECT_THROW(Packer.SetPosition(Packer.Size() + 1), EZCompressionError);
            }
            Packed.SetPosition(0);
            TZDecompressionStream Unpacker(Packed, WindowBits);
            EXPECT_TRUE(Take(Unpacker, Size + 1) == Text);
            EXPECT_EQ(Unpacker.Size(), static_cast<std::int64_t>(Size));
            for (const std::size_t Place : {Size / 3, Size / 5, Size}) {
                Unpacker.SetPosition(static_cast<std::int64_t>(Place));
                EXPECT_EQ(Take(Unpacker, 5), Text.substr(Place, 5));
            }
            EXPECT_EQ(Unpacker.Seek(std::int64_t{9}, soCurrent), static_cast<std::int64_t>(Size));
            EXPECT_THROW(Unpacker.SetPosition(-1), EZDecompressionError);
        }
    }
}

class TPipe : public TMemoryStream {
public:
    std::int64_t Seek(std::int64_t AOffset, TSeekOrigin AOrigin) override {
        if (CanSeek || AOffset == 0)
            return TMemoryStream::Seek(AOffset, AOrigin);
        throw EAbort(u"no seek");
    }
    bool CanSeek = true;
};

TEST(ZStreams, ASourceThatCannotSeekLosesNoData) {
    TPipe Source;
    const std::string Data = Sample(300'000);
    TZCompressionStream Packer(Source);
    Put(Packer, Data);
    Packer.Finish();
    Put(Source, "tail");
    Source.SetPosition(0);
    Source.CanSeek = false;
    TZDecompressionStream Unpacker(Source);
    EXPECT_TRUE(Take(Unpacker, Data.size()) == Data);
    char More;
    EXPECT_THROW(Unpacker.Read(&More, 1), EAbort);
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
    TZCompressionStream Packer(Unpacker, zcNone); // which refuses to be written to
    EXPECT_THROW(Put(Packer, Sample(200'000)), EZDecompressionError);
    EXPECT_THROW(Put(Packer, "x"), EZCompressionError);
    EXPECT_THROW(Packer.Finish(), EZCompressionError);
}

} // namespace
} // namespace qz
