#include <qz/common/uQzClasses/QzMemoryStream.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/common/uQzClasses/StreamBuf.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/FileStream.h>

namespace qz {
namespace {

TEST(QzMemoryStream, ABlockIsAMultipleOfTheStepAndLargerThanItsContent) {
    const std::pair<std::size_t, std::size_t> Cases[] = {{0, 16}, {15, 16}, {16, 32}, {31, 48}, {32, 48}};
    for (const auto& [Written, Block] : Cases) {
        TQzMemoryStream Stream(16);
        Stream.WriteBuffer(std::string(Written, 'x').data(), static_cast<std::int64_t>(Written));
        EXPECT_EQ(Stream.FBufferSize, Block) << Written;
    }
    TQzMemoryStream Sized(16);
    Sized.SetSize(32);
    EXPECT_EQ(Sized.FBufferSize, 48u);
    EXPECT_THROW(TQzMemoryStream(0), EAssertionFailed);
    EXPECT_THROW(Sized.CheckSize(SIZE_MAX - 1), std::bad_alloc);
    EXPECT_THROW(Sized.SetSize(INT64_MAX), std::bad_alloc);
}

TEST(QzMemoryStream, SeekStopsAtBothEnds) {
    TQzMemoryStream Stream(16);
    Stream.WriteBuffer("0123456789", 10);
    constexpr std::int64_t cMin = INT64_MIN, cMax = INT64_MAX;
    constexpr TSeekOrigin b = soBeginning, c = soCurrent, e = soEnd;
    const struct {
        std::int64_t From, Offset;
        TSeekOrigin Origin;
        std::int64_t Place;
    } Cases[] = {{0, 1000, b, 10}, {0, 7, b, 7},    {0, -1, b, 0},    {5, -3, c, 2},
                 {5, 6, c, 10},    {5, -6, c, 0},   {5, cMax, c, 10}, {5, cMin, c, 0},
                 {0, 3, e, 7},     {0, 1000, e, 0}, {0, -1, e, 10},   {0, cMin, e, 10}};
    for (const auto& Case : Cases) {
        Stream.Seek(Case.From, soBeginning);
        EXPECT_EQ(Stream.Seek(Case.Offset, Case.Origin), Case.Place)
            << Case.Offset << ' ' << int(Case.Origin);
    }
}

TEST(QzMemoryStream, SizesCutAndLengthenAndKeepThePosition) {
    TQzMemoryStream Stream(4);
    Stream.WriteBuffer("0123456789", 10);
    Stream.SetPosition(8);
    Stream.SetSize(100);
    Stream.SetSize(5);
    EXPECT_EQ(Stream.Position(), 5);
    Stream.SetBufSize(100);
    EXPECT_EQ(Content(Stream), "01234");
    Stream.SetBufSize(3);
    EXPECT_EQ(Content(Stream), "012");
    EXPECT_EQ(Stream.Position(), 3);
}

TEST(QzMemoryStream, AnEarlierContentEndHidesWhatFollows) {
    TQzMemoryStream Stream(16);
    Stream.WriteBuffer("0123456789", 10);
    Stream.SetContentEnd(4);
    EXPECT_EQ(Stream.Size(), 10);
    EXPECT_EQ(Stream.Position(), 4);
    EXPECT_EQ(Stream.Seek(1, soEnd), 3);
    char Buffer[10];
    EXPECT_EQ(Stream.Read(Buffer, 10), 1);
    Stream.WriteBuffer("abcdefghij", 10);
    EXPECT_EQ(Stream.Read(Buffer, 10), 0) << "the position is behind the end that is shown";
    EXPECT_EQ(Stream.Size(), 14);
}

TEST(QzMemoryStream, NumbersAndBytesComeBack) {
    TQzMemoryStream Stream(1);
    Stream.WriteByte(0xFE);
    Stream.WriteWord(0xFEDC);
    Stream.WriteLongWord(0xFEDCBA98);
    Stream.WriteInt64(-2);
    Stream.WriteBytes({1, 2, 3});
    Stream.SetPosition(0);
    EXPECT_EQ(Stream.ReadByte(), 0xFE);
    EXPECT_EQ(Stream.ReadWord(), 0xFEDC);
    EXPECT_EQ(Stream.ReadLongWord(), 0xFEDCBA98u);
    EXPECT_EQ(Stream.ReadInt64(), -2);
    EXPECT_EQ(Stream.ReadBytes(2), (TBytes{1, 2}));
    EXPECT_THROW(Stream.ReadBytes(0), EAssertionFailed);
    EXPECT_EQ(Message([&] { Stream.ReadLongWord(); }), u"Unexpected EOF");
    EXPECT_EQ(Message([&] { Stream.ReadBytes(INT32_MAX); }), u"Unexpected EOF");
}

TEST(QzMemoryStream, WritesWhatLiesInItsOwnBlock) {
    TQzMemoryStream Stream(16);
    Stream.WriteBuffer("0123456789", 10);
    for (int I = 0; I < 12; ++I)
        Stream.Write(Stream.FBufferStart, static_cast<std::int32_t>(Stream.FContentSize));
    EXPECT_EQ(10 << 12, Stream.Size());
    EXPECT_EQ(Content(Stream).substr((10 << 12) - 10), "0123456789");
}

TEST(QzMemoryStream, AWrappedBlockIsOverwrittenInPlaceAndNeverResized) {
    char Block[] = "0123456789";
    {
        TQzMemoryStream Stream(Block, 10);
        EXPECT_EQ(Stream.Size(), 10);
        Stream.SetPosition(8);
        Stream.WriteBuffer("ab", 2);
        const std::function<void()> Steps[] = {[&] { Stream.WriteByte(1); }, [&] { Stream.SetSize(3); },
                                               [&] { Stream.SetBufSize(3); }, [&] { Stream.Clear(); },
                                               [&] { Stream.SetContentEnd(11); }};
        for (const auto& Step : Steps) {
            EXPECT_EQ(Message(Step), u"It is not possible to resize the buffer!");
            EXPECT_EQ(Stream.Position(), 10);
        }
    }
    EXPECT_STREQ(Block, "01234567ab");
}

TEST(StreamBuf, LendsMemoryAndReadsTheRestOfAnythingElse) {
    const auto Own = StreamOf("0123456789");
    const platform::TTemporaryDirectory Directory;
    TFileStream File(Directory / u"file", fmCreate);
    File.WriteBuffer("0123456789", 10);
    void* Buffer = nullptr;
    std::size_t Size = 0;
    for (TStream* Stream : {static_cast<TStream*>(&File), static_cast<TStream*>(Own.get())}) {
        const bool IsFile = Stream == &File;
        Stream->SetPosition(4);
        EXPECT_EQ(QzStreamToReadBuf(*Stream, Buffer, Size), IsFile);
        EXPECT_EQ(std::string(static_cast<char*>(Buffer), Size), "456789");
        EXPECT_EQ(Stream->Position(), IsFile ? 10 : 4);
        if (IsFile)
            QzFreeStreamBuf(Buffer);
    }
    EXPECT_THROW(QzStreamToWriteBuf(*Own, Buffer, SIZE_MAX), std::bad_alloc);
    EXPECT_FALSE(QzStreamToWriteBuf(*Own, Buffer, 3));
    std::memcpy(Buffer, "abc", 3);
    EXPECT_EQ(Content(*Own), "0123abc");
}

} // namespace
} // namespace qz
