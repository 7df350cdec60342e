#include <qz/runtime/streams/Streams.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>

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
    EXPECT_EQ(2, Stream.Seek(-4, soFromEnd));
    EXPECT_EQ("cdef", Rest(Stream));
    EXPECT_EQ(8, Stream.Seek(2, soFromCurrent)) << "places behind the end are allowed";
    char Byte = 'x';
    EXPECT_EQ(0, Stream.Read(&Byte, 1));
    Stream.WriteBuffer("!", 1);
    Stream.SetPosition(4);
    EXPECT_EQ(std::string("ef\0\0!", 5), Rest(Stream));
    Stream.SetSize(3);
    EXPECT_EQ(3, Stream.Position());
    EXPECT_THROW(Stream.Seek(-1, soFromBeginning), EStreamError);
    EXPECT_THROW(Stream.Seek(0, 3), EStreamError);
    EXPECT_EQ(0, Stream.Read(&Byte, -1));
    EXPECT_EQ(0, Stream.Write(&Byte, -1));
    Stream.Clear();
    EXPECT_EQ(0, Stream.Size());
    Stream.WriteBuffer(std::string(300, 'x').data(), 300);
    Stream.SaveToStream(Stream);
    Stream.SetPosition(0);
    EXPECT_EQ(std::string(600, 'x'), Rest(Stream));
}

TEST(Stream, CopiesAllTheRestOrSoMuch) {
    TMemoryStream Source, Target;
    const std::string Long(200000, 'x');
    Source.WriteBuffer(Long.data(), 200000);
    Source.WriteBuffer("tail", 4);
    EXPECT_EQ(200004, Target.CopyFrom(Source)) << "from the start, wherever the source stands";
    Source.Seek(-4, soFromEnd);
    EXPECT_EQ(2, Target.CopyFrom(Source, 2));
    EXPECT_EQ(2, Target.CopyRest(Source));
    EXPECT_EQ(0, Target.CopyRest(Source)) << "nothing is left, and nothing is copied";
    Target.SetPosition(200000);
    EXPECT_EQ("tailtail", Rest(Target));
    EXPECT_THROW(Target.CopyFrom(Source, 1), EReadError);
}

TEST(Stream, GoesOnUntilAllIsThereOrTheStreamEnds) {
    TShortStream Source;
    Source.WriteBuffer("0123456789abcdef", 16);
    Source.SetPosition(0);
    char Buffer[16];
    Source.ReadBuffer(Buffer, 8);
    EXPECT_EQ("01234567", std::string(Buffer, 8));
    EXPECT_THROW(Source.ReadBuffer(Buffer, 8), EReadError);
    TMemoryStream Target;
    Target.WriteBuffer("old", 3);
    EXPECT_THROW(Target.LoadFromStream(Source), EReadError);
    Target.SetPosition(0);
    EXPECT_EQ("old", Rest(Target));
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
        EXPECT_EQ(4, File.Size());
        EXPECT_EQ(7, File.Position());
        File.FlushToDisk();
    }
    TFileStream File(Name, fmOpenRead | fmShareDenyWrite);
    EXPECT_EQ("cont", Rest(File));
    EXPECT_EQ(1, File.Seek(-3, soFromEnd));
    TMemoryStream Memory;
    Memory.LoadFromFile(Name);
    EXPECT_EQ(4, Memory.Size());
    Memory.SaveToFile(Name + u"2");
    EXPECT_TRUE(platform::FileExists(Name + u"2"));
}

TEST_F(FileStream, SaysWhichFileAndWhy) {
    const UnicodeString Missing = Raised([&] { TFileStream File(Name, fmOpenRead); });
    EXPECT_TRUE(Missing.View().starts_with(u"EFOpenError: Cannot open file \"" + Name + u"\". ")) << Missing;
    EXPECT_GT(Missing.size(), Name.size() + 38) << "the reason of the system follows";
    const UnicodeString NoPlace = Raised([&] { TFileStream File(Name + u"/x", fmCreate); });
    EXPECT_TRUE(NoPlace.View().starts_with(u"EFCreateError: Cannot create file \"")) << NoPlace;
    TFileStream First(Name, fmCreate | fmShareDenyWrite);
    EXPECT_THROW(TFileStream(Name, fmOpenReadWrite | fmShareDenyNone), EFOpenError);
    EXPECT_THROW(TFileStream(Name, fmCreate), EFCreateError);
    EXPECT_THROW(TFileStream(Name, fmOpenRead), EFOpenError) << "it would share with nobody";
    TFileStream Reader(Name, fmOpenRead | fmShareDenyNone);
    EXPECT_THROW(Reader.WriteBuffer("x", 1), EWriteError);
    EXPECT_THROW(Reader.SetPosition(-1), EStreamError);
}

TEST(StringStream, IsTextInItsEncoding) {
    TStringStream Stream(u"Zoë", TEncoding(1252));
    EXPECT_EQ(3, Stream.Size());
    EXPECT_EQ(u"Zo", Stream.ReadString(2));
    Stream.WriteString(u"é and more");
    EXPECT_EQ(u"Zoé and more", Stream.DataString());
    EXPECT_EQ(u"", Stream.ReadString(9));
    TStringStream Wide(TEncoding::BigEndianUnicode().GetBytes(u"ab"), TEncoding::BigEndianUnicode());
    EXPECT_EQ(u"ab", Wide.DataString());
    EXPECT_THROW(TStringStream(u"x", TEncoding(4711)), EOSError);
}

} // namespace
} // namespace qz
