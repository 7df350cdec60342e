#include <qz/common/uQzClasses.h>
#include <qz/common/uQzNetEncoding.h>

#include <gtest/gtest.h>

#include <set>
#include <unordered_set>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include <qz/runtime/streams/MemoryStream.h>

namespace qz {
namespace {

// Gives three bytes at a time and ends after ten of the fifteen that it promises.
class TSlowStream : public TMemoryStream {
public:
    TSlowStream() {
        WriteBuffer("abcdefghijklmno", 15);
        SetPosition(0);
    }
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override {
        return TMemoryStream::Read(ABuffer, std::min({ACount, 3, static_cast<std::int32_t>(10 - FPosition)}));
    }
};

std::string Text(std::span<const std::byte> ABytes) {
    return {reinterpret_cast<const char*>(ABytes.data()), ABytes.size()};
}

TEST(MemoryBuffer, BlocksGrowAndAreCloned) {
    TQzMemoryBuffer* Empty = QzGetMem(0);
    TQzMemoryBuffer* EmptyClone = QzCloneMem(Empty);
    EXPECT_EQ(EmptyClone->Size, 0u);
    TQzMemoryBuffer* Block = QzGetMem(1000);
    EXPECT_EQ(std::count(Block->Data(), Block->Data() + 1000, 0), 1000);
    Block->Data()[999] = 7;
    QzReallocateMem(Block, 100'000);
    TQzMemoryBuffer* Clone = QzCloneMem(Block);
    Block->Data()[999] = 8;
    EXPECT_EQ(Clone->Size, 100'000u);
    EXPECT_EQ(Clone->Data()[999], 7);
    for (TQzMemoryBuffer** Each : {&Empty, &EmptyClone, &Block, &Clone}) {
        QzFreeMem(*Each);
        EXPECT_EQ(*Each, nullptr);
    }
}

TEST(MemoryBuffer, ContentIsReplacedWholeOrNotAtAll) {
    const Ref<IQzMemoryBuffer> Buffer = QzCreateMemoryBuffer(0);
    EXPECT_EQ(Buffer->GetBuffer(), nullptr);
    EXPECT_TRUE(Buffer->GetAsString(beBase64).IsEmpty());
    EXPECT_TRUE(Buffer->GetAsBytes().IsEmpty());
    Buffer->SetAsString(beHexEncoded, RawByteString("0A0B0C"));
    EXPECT_EQ(Buffer->GetAsBytes(), (TBytes{10, 11, 12}));
    EXPECT_EQ(Message([&] { Buffer->SetAsString(beBase64, RawByteString("TWFuT")); }),
              u"Invalid Base64 data!");
    EXPECT_EQ(Buffer->GetAsString(beBase64Url).View(), "CgsM");
    const void* Same = Buffer->GetBuffer();
    Buffer->SetBufferSize(3);
    EXPECT_EQ(Buffer->GetBuffer(), Same);
    Buffer->SetBufferSize(2);
    EXPECT_EQ(Buffer->GetAsBytes(), (TBytes{10, 11}));
    Buffer->SetAsBytes({});
    EXPECT_EQ(Buffer->GetBuffer(), nullptr);
    Buffer->SetBufferSize(5);
    Buffer->SetBufferSize(0);
    EXPECT_EQ(Buffer->GetBuffer(), nullptr);
    EXPECT_EQ(QzCreateMemoryBuffer(GetMem(4), 4)->GetBufferSize(), 4u) << "takes the block over";
}

TEST(MemoryBuffer, FromStreams) {
    TMemoryStream Stream;
    Stream.WriteBuffer("abcdef", 6);
    const auto From = [&Stream](std::int64_t APosition, std::int64_t ASize) {
        const Ref<IQzMemoryBuffer> Buffer = QzCreateMemoryBuffer(Stream, APosition, ASize);
        return Text({static_cast<const std::byte*>(Buffer->GetBuffer()), Buffer->GetBufferSize()});
    };
    EXPECT_EQ(From(2, -1), "cdef");
    EXPECT_EQ(From(2, 3), "cde");
    EXPECT_EQ(From(4, 9), "ef");
    EXPECT_EQ(From(6, -1) + From(9, 1) + From(0, -5), "");
    TSlowStream Slow;
    EXPECT_EQ(QzCreateMemoryBuffer(Slow, 2, 12)->GetBufferSize(), 8u) << "what arrived";
}

TEST(BufferText, BetweenMemoryArraysStreamsAndText) {
    const TBytes Bytes = {0xFB, 0xEF, 0xFF, 0x01};
    EXPECT_EQ(QzBufToHex(Bytes).View(), "FBEFFF01");
    EXPECT_EQ(QzBufToString(Bytes, beBase64).View(), "++//AQ==");
    EXPECT_EQ(QzBufToString(Bytes.data(), 3, beBase64Url).View(), "--__");
    EXPECT_TRUE(QzBufToString(TBytes(), beBase64).IsEmpty());
    std::size_t Size = 1;
    EXPECT_EQ(QzByteArrToBuf({}, Size), nullptr);
    EXPECT_EQ(Size, 0u);
    const TMemBlock Block(static_cast<std::byte*>(QzHexToBuf(RawByteString("fbEFff0"), Size)));
    EXPECT_EQ(QzBufToByteArr(Block.get(), Size), (TBytes{0xFB, 0xEF, 0xFF}));
    QzReverseBuffer(Block.get(), Size);
    EXPECT_EQ(QzBufToHex(Block.get(), Size).View(), "FFEFFB");
    const auto Stream = StreamOf("0123456789");
    Stream->SetPosition(8);
    EXPECT_EQ(QzBufToHex(*Stream).View(), "3839");
    QzStringToBuf(RawByteString("TWFu"), beBase64, *Stream);
    EXPECT_EQ(Content(*Stream), "01234567Man") << "the stream is not emptied";
    QzHexToBuf(RawByteString("4142"), Stream.get());
    EXPECT_EQ(Content(*Stream), "AB") << "the stream is emptied";
    EXPECT_THROW(QzHexToBuf(RawByteString("41"), nullptr), EAssertionFailed);
}

TEST(Pointers, NumbersAndBack) {
    void* High = QzInt2Ptr(0x123456789ABCDEF0);
    std::uint64_t Low = 0, Upper = 0;
    QzSplitPtr(High, Low, Upper);
    EXPECT_EQ(Low, 0x9ABCDEF0u);
    EXPECT_EQ(Upper, 0x12345678u);
    EXPECT_EQ(QzCombinePtr(Low, Upper), High);
    EXPECT_EQ(QzPtr2UInt(QzOrdinal2Ptr(std::int32_t{-1})), ~std::uint64_t{0});
    EXPECT_EQ(QzPtr2UInt(QzOrdinal2Ptr(std::uint32_t{0xFFFFFFFF})), 0xFFFFFFFFu);
    int Numbers[4];
    int* Here = Numbers + 3;
    QzIncPtr(Here, std::int32_t{-8});
    EXPECT_EQ(Here, Numbers + 1);
    EXPECT_EQ(QzPtrAdd(Here, std::uint64_t{8}), Numbers + 3);
    EXPECT_EQ(QzPtrDiffS(Numbers, Numbers + 2), -8);
    EXPECT_EQ(QzPtrDiff(Numbers, Numbers + 2), ~std::uint64_t{7});
}

TEST(QzBytes, Constructors) {
    EXPECT_EQ(TQzBytes(u"", beBase64), TQzBytes::Empty());
    EXPECT_EQ(TQzBytes::Empty().Buffer(), nullptr);
    EXPECT_EQ(TQzBytes(3), (TBytes{0, 0, 0}));
    EXPECT_EQ(TQzBytes(u"TWFu", beBase64), RawByteString("Man"));
    EXPECT_EQ(TQzBytes(RawByteString("4D616E"), beHexEncoded), RawByteString("Man"));
    EXPECT_EQ(TQzBytes("Man", 2), RawByteString("Ma"));
    EXPECT_TRUE(TQzBytes("Man", -1).empty());
    const TQzBytes Wide(u"ab", false), Narrow(u"a\u00E9", true);
    EXPECT_EQ(Wide, (TBytes{'a', 0, 'b', 0}));
    EXPECT_EQ(Wide.ToString(false), u"ab");
    EXPECT_EQ(TQzBytes(Wide.Buffer(), 3).ToString(false), u"a") << "an odd byte is left out";
    EXPECT_EQ(Narrow, (TBytes{'a', 0xC3, 0xA9}));
    EXPECT_EQ(Narrow.ToString(true), u"a\u00E9");
    EXPECT_EQ(Narrow.Encode(beHexEncoded), u"61C3A9");
    EXPECT_EQ(Message([] { TQzBytes(u"TWFuT", beBase64); }), u"Invalid Base64 data!");
}

TEST(QzBytes, MixesWithTheOtherKindsOfBytes) {
    const TQzBytes Bytes{0, 2};
    EXPECT_EQ(Bytes + RawByteString("a") + TBytes{3}, (TQzBytes{0, 2, 'a', 3}));
    EXPECT_EQ(RawByteString("a") + Bytes, (TBytes{'a', 0, 2}));
    EXPECT_THROW(TQzBytes(nullptr, 2), EAssertionFailed);
    EXPECT_EQ(
        TQzNetEncoding::GetHexEncoding().Decode(TQzBytes(TQzNetEncoding::GetHexEncoding().Encode(Bytes))),
        static_cast<const TBytes&>(Bytes));
}

TEST(QzBytes, SharedUntilCopiedOrResized) {
    const TBytes Array = {1, 2, 3};
    TQzBytes Shared = Array, Copy;
    Copy.CopyFrom(Shared);
    Shared.SetByte(0, 9);
    EXPECT_EQ(Array[0], 9);
    EXPECT_EQ(Copy.Bytes(0), 1);
    Shared.SetSize(4);
    Shared[1] = 8;
    EXPECT_EQ(Shared, (TBytes{9, 8, 3, 0}));
    EXPECT_EQ(Array, (TBytes{9, 2, 3}));
    const TQzBytes Sum = Copy + TBytes{4};
    EXPECT_EQ(Sum, (TBytes{1, 2, 3, 4}));
    EXPECT_EQ(Copy.Size(), 3u);
    Copy += Copy;
    EXPECT_EQ(Text(Copy), std::string("\1\2\3\1\2\3"));
    EXPECT_EQ(RawByteString(Copy).View(), "\1\2\3\1\2\3");
}

TEST(QzBytes, OrderAndHashAreThoseOfTheBytes) {
    const TQzBytes A("ab", 2), B("ab", 2), Longer("abc", 3), High("\xFF", 1);
    EXPECT_TRUE(A == B && A != Longer && A < Longer && Longer < High && TQzBytes() < A);
    EXPECT_EQ((std::unordered_set<TQzBytes>{A, B, Longer}).size(), 2u);
    EXPECT_EQ(*std::set<TQzBytes>({High, Longer, A}).begin(), B);
    EXPECT_EQ(std::string(A.begin(), A.end()), "ab");
}

TEST(QzBytes, StreamsAndMemory) {
    const auto Stream = StreamOf("0123456789");
    Stream->SetPosition(7);
    TQzBytes Bytes;
    Bytes.CopyFrom(*Stream, -1, 2);
    EXPECT_EQ(Text(Bytes), "78");
    Bytes.CopyFrom(*Stream, 5, 0);
    EXPECT_EQ(Text(Bytes), "56789");
    Stream->SetPosition(0);
    Bytes.CopyTo(*Stream);
    EXPECT_EQ(Content(*Stream), "5678956789");
    TSlowStream Slow;
    TQzBytes Arrived;
    Arrived.CopyFrom(Slow, 0, 0);
    EXPECT_EQ(Text(Arrived), "abcdefghij");
    char Target[8] = ".......";
    Bytes.CopyTo(Target, 1, 2);
    EXPECT_STREQ(Target, "67.....");
    Bytes.CopyTo(Target, 2, 0);
    EXPECT_STREQ(Target, "789....");
    Bytes.CopyTo(Target, 4, 100);
    EXPECT_STREQ(Target, "989....");
    Bytes.CopyTo(Target, 5, 1);
    Bytes.CopyTo(Target, 6, 0);
    EXPECT_STREQ(Target, "989....") << "nothing lies there";
}

} // namespace
} // namespace qz
