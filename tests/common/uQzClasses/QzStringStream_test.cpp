#include <qz/common/uQzClasses/QzStringStream.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/SystemPage.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/WatchedStream.h"
#include <qz/common/uQzClasses/StreamText.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

using namespace std::string_literals;

AnsiString Ansi(std::string_view AText) {
    return AnsiString(AText);
}

class QzStringStream : public testing::Test {
protected:
    TSystemPage Page{1252};
};

TEST_F(QzStringStream, KeepsEachTextInItsCodePage) {
    const std::pair<std::uint16_t, std::string> Cases[] = {{0, "\xE4z"s},
                                                           {1252, "\xE4z"s},
                                                           {65001, "\xC3\xA4z"s},
                                                           {1200, "\xE4\0z\0"s},
                                                           {12001, "\0\0\0\xE4\0\0\0z"s}};
    for (const auto& [CodePage, Expected] : Cases) {
        TQzStringStream Stream(CodePage, 16);
        const std::function<void()> Steps[] = {
            [&] { Stream.SetWString(u"äz"); }, [&] { Stream.SetAString(Ansi("\xE4z")); },
            [&] { Stream.SetAsUTF8(UTF8String("äz")); }, [&] { Stream.SetValue(u"äz"); },
            [&] { Stream.SetValue(Ansi("\xE4z")); }};
        for (const auto& Step : Steps) {
            Stream.SetWString(u"longer than before");
            Step();
            EXPECT_EQ(Content(Stream), Expected) << CodePage;
            EXPECT_EQ(Stream.Position(), 0);
        }
        EXPECT_EQ(Stream.WString(), u"äz");
        EXPECT_EQ(Stream.AString().View(), "\xE4z");
        EXPECT_EQ(Stream.AsUTF8(), UTF8String("äz"));
        EXPECT_EQ(Stream.CharCnt(), 2);
        EXPECT_EQ(Message([&] { Stream.SetValue(7); }), u"Unsupported type 3!");
    }
    EXPECT_EQ(TQzStringStream(Ansi("\xE4"), 850).WString(), u"\u00F5");
    EXPECT_EQ(QzCodePageMaxCharSize(12001) * 10 + QzCodePageMaxCharSize(932), 42);
}

TEST_F(QzStringStream, WritesAtThePositionAndAddsTowardsTheEnd) {
    TQzStringStream Stream(65001, 16);
    Stream.Write(u"0123456789");
    Stream.SetPosition(2);
    Stream.Write(Ansi("\xE4"));
    Stream.WriteChar(u'x');
    Stream.WriteChar('\xE4');
    EXPECT_EQ(Content(Stream), "01äxä789");
    Stream.SetPosition(0);
    Stream.Add(u"A");
    EXPECT_EQ(Stream.Position(), 10);
    Stream.SetPosition(1);
    Stream.Add(RawByteString("\x84"), 850);
    Stream.SetPosition(0);
    Stream.AddChar('\xE4');
    Stream.SetPosition(0);
    Stream.AddChar(u'\u20AC');
    EXPECT_EQ(Content(Stream), "Aä\xA4xä789ä€");
    TQzStringStream Wide(1200, 16);
    Wide.Write(Ansi("\x80"));
    Wide.WriteEOF();
    EXPECT_EQ(Content(Wide), "\xAC\x20\0\0"s);
}

TEST_F(QzStringStream, AddsAnotherStreamAndTakesItOver) {
    TQzStringStream Other(Ansi("\x80z"), 0), Stream(65001, 16);
    Other.SetPosition(1);
    Stream.Add(Other);
    EXPECT_EQ(Content(Stream), "€z");
    Other.Add(Stream);
    Stream.Assign(Other);
    Stream.Assign(Stream);
    EXPECT_EQ(Content(Stream), "\x80\x80z");
    EXPECT_EQ(Stream.FCodePage, 0);
    EXPECT_EQ(Stream.Position(), 3);
}

TEST_F(QzStringStream, ChangesItsCodePageWithOrWithoutItsContent) {
    TQzStringStream Stream(0, 16);
    Stream.ChangeCodePage(1200, false);
    Stream.SetWString(u"ä€");
    EXPECT_EQ(Message([&] { Stream.ChangeCodePage(1252, false); }),
              u"The current codepage cannot be changed without updating the content!");
    Stream.ChangeCodePage(1252, true);
    EXPECT_EQ(Content(Stream), "\xE4\x80");
    EXPECT_EQ(Stream.Position(), 2);
    Stream.ChangeCodePage(850, false);
    EXPECT_EQ(Stream.WString(), u"\u00F5\u00C7");
    EXPECT_THROW(Stream.ChangeCodePage(4711, true), EOSError);
    EXPECT_EQ(Content(Stream), "\xE4\x80");
    EXPECT_EQ(Stream.FCodePage, 850);
    char Block[] = "abc";
    TQzStringStream Wrapped(Block, 3, 1252);
    EXPECT_EQ(Message([&] { Wrapped.ChangeCodePage(65001, true); }),
              u"Updating the content is not allowed (the stream is probably using a wrapped buffer)!");
}

TEST_F(QzStringStream, ReadsCharactersOneByOneAndInRuns) {
    for (const std::uint16_t CodePage : std::initializer_list<std::uint16_t>{65001, 1200, 1201, 12000, 932}) {
        TQzStringStream Stream(CodePage, 16);
        Stream.SetWString(u"aä€\u65E5z");
        const UnicodeString Stored = Stream.WString();
        UnicodeString Read;
        while (Stream.Position() < Stream.Size())
            Read += Stream.ReadChar();
        EXPECT_EQ(Read, Stored) << CodePage;
        EXPECT_EQ(Stream.ReadWChar(), u'\0');
        for (const std::uint32_t Count : {1u, 2u, 100u, 0xFFFFFFFFu}) {
            Stream.SetPosition(0);
            Read = u"";
            while (Stream.Position() < Stream.Size())
                Read += Stream.ReadWString(Count);
            EXPECT_EQ(Read, Stored) << CodePage << ' ' << Count;
        }
    }
    TQzStringStream Plain(Ansi("\x80xyz"), 0);
    EXPECT_EQ(Plain.ReadAString(2).View(), "\x80x");
    EXPECT_EQ(Plain.ReadAChar(), 'y');
    TQzStringStream Wide(u"€x\u0416");
    EXPECT_EQ(Wide.ReadAString(2).View(), "\x80x");
    EXPECT_EQ(Wide.ReadAChar(), '?');
    TQzStringStream Half(RawByteString("a\0b"s), 1200);
    EXPECT_EQ(Half.ReadWString(9), u"a");
}

TEST_F(QzStringStream, ReadsBothHalvesOfAPairInUtf8) {
    const TSystemPage Utf8(65001);
    TQzStringStream Whole(RawByteString("a\U0001F600b\U0001F601"), 0);
    UnicodeString All;
    while (Whole.Position() < Whole.Size())
        All += Whole.ReadWChar();
    EXPECT_EQ(All, u"a\U0001F600b\U0001F601");
    TQzStringStream Wide(12000, 16);
    Wide.SetWString(u"a\U0001F600b");
    EXPECT_EQ(Wide.ReadWString(2), u"a\xD83D") << "the second unit is passed with the first";
    EXPECT_EQ(Wide.ReadWString(2), u"b");
    TQzStringStream Stream(UTF8String("a\U0001F600z\U0001F601"));
    EXPECT_EQ(Stream.ReadString(2), u"a\xD83D");
    EXPECT_EQ(Stream.ReadString(2), u"\xDE00z");
    TQzStringStream Torn(RawByteString("\xC3"), 65001);
    EXPECT_EQ(Torn.ReadChar(), u'\uFFFD');
    EXPECT_EQ(Torn.Position(), 1) << "never after the end";
}

class QzStringStreamFiles : public QzStringStream {
protected:
    const platform::TTemporaryDirectory Directory;
    const UnicodeString Name = UnicodeString(Directory / u"file");
};

TEST_F(QzStringStreamFiles, SavesInAnyCodePageWithItsMark) {
    TQzStringStream Stream(Ansi("\xE4"), 0);
    const std::tuple<std::uint16_t, bool, std::string> Cases[] = {{0, true, "\xE4"},
                                                                  {65001, true, "\xEF\xBB\xBFä"},
                                                                  {65001, false, "ä"},
                                                                  {1200, true, "\xFF\xFE\xE4\0"s},
                                                                  {12001, true, "\0\0\xFE\xFF\0\0\0\xE4"s}};
    for (const auto& [CodePage, HasMark, Expected] : Cases) {
        TQzMemoryStream Target(16);
        Stream.SaveToStream(Target, CodePage, HasMark);
        EXPECT_EQ(Content(Target), Expected);
        Stream.SaveToFile(Name, CodePage, HasMark);
        const auto Bytes = platform::ReadWholeFile(Name);
        EXPECT_EQ(std::string(reinterpret_cast<const char*>(Bytes->data()), Bytes->size()), Expected);
    }
    EXPECT_THROW(Stream.SaveToFile(Name, 4711, true), EOSError);
    EXPECT_THROW(Stream.SaveToFile(Directory.Path()), EFCreateError);
}

TEST_F(QzStringStreamFiles, LoadsByMarkOrByCodePageAndAppends) {
    TQzStringStream(UTF8String("ä")).SaveToFile(Name);
    TQzStringStream Stream(0, 16);
    Stream.LoadFromFile(Name, -1);
    Stream.LoadFromFile(Name, 65001);
    for (const int CodePage : {1252, 0})
        EXPECT_EQ(Message([&] { Stream.LoadFromFile(Name, CodePage); }),
                  u"The specified encoding does not match the BOM of the stream!");
    EXPECT_EQ(Raised([&] { Stream.LoadFromFile(Name + u"x", -1); }),
              u"EFOpenError: File " + Name + u"x not found.");
    EXPECT_EQ(Content(Stream), "\xE4\xE4");
}

TEST_F(QzStringStream, LoadsStreamsAsTheyAreLabelled) {
    const std::tuple<std::uint16_t, std::string, int, bool> Cases[] = {
        {0, "\xE4", -1, false},          {0, "\x84", 850, true},
        {65001, "\xE4", -1, false},      {1200, "\xFF\xFE\xE4\0"s, -1, true},
        {1200, "\xE4\0x"s, 1200, false}, {0, "\0\0\xFE\xFF\0\0\0\xE4"s, 12001, true}};
    for (const auto& [StreamPage, Bytes, CodePage, Detect] : Cases) {
        const auto Source = StreamOf("skipped" + Bytes);
        Source->SetPosition(7);
        TQzStringStream Stream(StreamPage, 16);
        Stream.LoadFromStream(Source.get(), false, false, Detect, CodePage);
        EXPECT_EQ(Stream.WString(), u"ä") << Bytes;
        Source->SetPosition(7);
        EXPECT_EQ(QzStreamToWideString(Source.get(), false, false, Detect, CodePage), u"ä") << Bytes;
    }
}

TEST_F(QzStringStream, EndsAStreamThatItIsGivenInAnyCase) {
    int Ends = 0;
    const auto Fresh = [&] {
        auto Stream = TWatchedStream::Create(Ends);
        Stream->WriteBuffer("\xEF\xBB\xBFx", 4);
        return Stream.release();
    };
    TQzStringStream Stream(0, 16);
    Stream.LoadFromStream(Fresh(), true, true, true, -1);
    EXPECT_THROW(Stream.LoadFromStream(Fresh(), true, true, true, 1252), Exception);
    EXPECT_EQ(Message([&] { QzStreamToAnsiString(Fresh(), true, true, true, -1, 1200); }),
              u"The specified encoding is not supported!");
    EXPECT_EQ(QzStreamToAnsiString(Fresh(), true, true, true, -1, 1252).View(), "x");
    EXPECT_EQ(Ends, 4);
    EXPECT_THROW(QzStreamToWideString(nullptr, true, true, true, -1), EAssertionFailed);
    EXPECT_EQ(Content(Stream), "x");
    const auto Marked = StreamOf("\xFF\xFE\xAC\x20");
    const RawByteString Same = QzStreamToAnsiString(Marked.get(), false, true, false, 1252, 1252);
    EXPECT_EQ(Same.View(), "\xFF\xFE\xAC\x20");
    EXPECT_THROW(QzStreamToString(Marked.get(), false, true, true, 0), Exception);
    EXPECT_EQ(Marked->Position(), 2) << "after the mark";
}

TEST_F(QzStringStream, LoadsAsAWholeOrNotAtAll) {
    char Block[] = "0123456789";
    TQzStringStream Wrapped(Block, 10, 0);
    const auto Source = StreamOf("abcdefghijk");
    EXPECT_THROW(Wrapped.LoadFromStream(Source.get(), false, true, false, 0), Exception);
    EXPECT_STREQ(Block, "0123456789");
    Source->SetSize(10);
    Wrapped.LoadFromStream(Source.get(), false, true, false, 0);
    EXPECT_STREQ(Block, "abcdefghij");
    EXPECT_EQ(Source->Position(), 10);
    EXPECT_THROW(QzStreamToWideString(Source.get(), false, true, false, 65536 + 850),
                 EArgumentOutOfRangeException);
}

} // namespace
} // namespace qz
