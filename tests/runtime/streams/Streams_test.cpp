#include <qz/runtime/streams/Streams.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/runtime/objects/Describe.h>

namespace qz {
namespace {

// Gives three bytes at a time and ends before its size says so.
class TShortStream : public TMemoryStream {
    QZ_CLASS(TShortStream, TMemoryStream)

public:
    std::int32_t Read(void* ABuffer, std::int32_t ACount) override {
        return FPosition >= 10 ? 0 : TMemoryStream::Read(ABuffer, std::min(ACount, 3));
    }
};
constinit const TClassRec TShortStream::ClassRec =
    DescribeClass<TShortStream>(u"TShortStream", {.Unit = u"Test"});

std::string Rest(TStream& AStream) {
    std::string Text(static_cast<std::size_t>(AStream.Size() - AStream.Position()), '\0');
    AStream.ReadBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
    return Text;
}

TEST(MemoryStream, WritesReadsAndSeeks) {
    TMemoryStream Stream;
    Stream.WriteBuffer("abcdef", 6);
    EXPECT_EQ(Stream.Seek(-4, soFromEnd), 2);
    EXPECT_EQ(Rest(Stream), "cdef");
    EXPECT_EQ(Stream.Seek(2, soFromCurrent), 8) << "places behind the end are allowed";
    char Byte = 'x';
    EXPECT_EQ(Stream.Read(&Byte, 1), 0);
    Stream.WriteBuffer("!", 1);
    Stream.SetPosition(4);
    EXPECT_EQ(Rest(Stream), std::string("ef\0\0!", 5));
    Stream.SetSize(3);
    EXPECT_EQ(Stream.Position(), 3);
    EXPECT_THROW(Stream.Seek(-1, soFromBeginning), EStreamError);
    EXPECT_THROW(Stream.Seek(0, 3), EStreamError);
    EXPECT_EQ(Stream.Read(&Byte, -1), 0);
    Stream.Clear();
    Stream.WriteBuffer(std::string(300, 'x').data(), 300);
    Stream.SaveToStream(Stream);
    EXPECT_EQ(Stream.Size(), 600);
}

TEST(Stream, CopiesAllTheRestOrSoMuch) {
    TMemoryStream Source, Target;
    const std::string Long(200000, 'x');
    Source.WriteBuffer(Long.data(), 200000);
    Source.WriteBuffer("tail", 4);
    EXPECT_EQ(Target.CopyFrom(Source), 200004) << "from the start, wherever the source stands";
    Source.Seek(-4, soFromEnd);
    EXPECT_EQ(Target.CopyFrom(Source, 2), 2);
    EXPECT_EQ(Target.CopyRest(Source), 2);
    Target.SetPosition(200000);
    EXPECT_EQ(Rest(Target), "tailtail");
    EXPECT_THROW(Target.CopyFrom(Source, 1), EReadError);
}

TEST(Stream, GoesOnUntilAllIsThereOrTheStreamEnds) {
    TShortStream Source;
    Source.WriteBuffer("0123456789abcdef", 16);
    Source.SetPosition(0);
    char Buffer[16];
    Source.ReadBuffer(Buffer, 8);
    EXPECT_EQ(std::string(Buffer, 8), "01234567");
    EXPECT_THROW(Source.ReadBuffer(Buffer, 8), EReadError);
    TMemoryStream Target;
    Target.WriteBuffer("old", 3);
    EXPECT_THROW(Target.LoadFromStream(Source), EReadError);
    Target.SetPosition(0);
    EXPECT_EQ(Rest(Target), "old");
}

class FileStream : public testing::Test {
protected:
    platform::TTemporaryDirectory Directory;
    UnicodeString Name = UnicodeString(Directory / u"file");
};

TEST_F(FileStream, KeepsWhatWasWritten) {
    {
        TFileStream File(Name, fmCreate);
        File.WriteBuffer("content", 7);
        File.SetSize(4);
        File.FlushToDisk();
    }
    TMemoryStream Memory;
    Memory.LoadFromFile(Name);
    Memory.SaveToFile(Name + u"2");
    TFileStream File(Name + u"2", fmOpenRead | fmShareDenyWrite);
    EXPECT_EQ(Rest(File), "cont");
}

TEST_F(FileStream, SaysWhichFileAndWhy) {
    const UnicodeString Missing = Raised([&] { TFileStream File(Name, fmOpenRead); });
    EXPECT_TRUE(Missing.View().starts_with(u"EFOpenError: Cannot open file \"" + Name + u"\". ")) << Missing;
    EXPECT_GT(Missing.size(), Name.size() + 38) << "the reason of the system follows";
    const UnicodeString NoPlace = Message([&] { TFileStream File(Name + u"/x", fmCreate); });
    EXPECT_TRUE(NoPlace.View().starts_with(u"Cannot create file \"")) << NoPlace;
    TFileStream First(Name, fmCreate | fmShareDenyWrite);
    EXPECT_THROW(TFileStream(Name, fmCreate), EFCreateError);
    EXPECT_THROW(TFileStream(Name, fmOpenRead), EFOpenError) << "it would share with nobody";
    TFileStream Reader(Name, fmOpenRead | fmShareDenyNone);
    EXPECT_THROW(Reader.WriteBuffer("x", 1), EWriteError);
}

TEST(StringStream, IsTextInItsEncoding) {
    TStringStream Stream(u"Zoë", TEncoding(1252));
    EXPECT_EQ(Stream.Size(), 3);
    EXPECT_EQ(Stream.ReadString(2), u"Zo");
    Stream.WriteString(u"é and more");
    EXPECT_EQ(Stream.DataString(), u"Zoé and more");
    EXPECT_EQ(Stream.ReadString(9), u"");
    EXPECT_THROW(TStringStream(u"x", TEncoding(4711)), EOSError);
}

} // namespace
} // namespace qz
