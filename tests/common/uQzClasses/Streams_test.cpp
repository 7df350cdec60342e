#include <qz/common/uQzClasses/QzStringStream.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/SystemPage.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/WatchedStream.h"
#include <qz/common/uQzClasses/StreamBuf.h>
#include <qz/common/uQzClasses/StreamText.h>
#include <qz/common/uQzClasses/Utf8StreamAdapter.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/runtime/streams/FileStream.h>

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
    TQzStringStream Wide(12000, 16);
    Wide.SetWString(u"a\U0001F600b");
    EXPECT_EQ(Wide.ReadWString(2), u"a\xD83D") << "the second unit is passed with the first";
    EXPECT_EQ(Wide.ReadWString(2), u"b");
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

// Valid UTF-8 is taken as it is, any other is mended.
TEST_F(QzStringStream, LoadsUtf8IntoUtf8) {
    const std::tuple<std::string, bool, UnicodeString> Cases[] = {
        {"\xEF\xBB\xBFä\U0001F600", true, u"ä\U0001F600"},
        {"\xEF\xBB\xBFä", false, u"\uFEFFä"},
        {"ä\xFFz", true, u"ä\uFFFDz"}};
    for (const auto& [Bytes, Detect, Text] : Cases) {
        TQzStringStream Stream(65001, 16);
        Stream.LoadFromStream(StreamOf(Bytes).get(), false, false, Detect, 65001);
        EXPECT_EQ(Content(Stream), ToUtf8(Text)) << Bytes;
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
}

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

TEST(QzMemoryStream, NumbersAndBytesComeBack) {
    TQzMemoryStream Stream(1);
    Stream.WriteWord(0xFEDC);
    Stream.WriteInt64(-2);
    Stream.WriteBytes({1, 2, 3});
    Stream.SetPosition(0);
    EXPECT_EQ(Stream.ReadWord(), 0xFEDC);
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

using namespace std::string_literals;

TEST(Utf8StreamAdapter, ReadsUnitsAndNoByteMoreThanTheyHave) {
    const auto Source = StreamOf("aä€\xF1\x80\x80z");
    TQzUTF8StreamAdapter Adapter(Source.get(), false);
    char16_t Units[16];
    const std::tuple<std::int32_t, std::u16string, std::int64_t> Steps[] = {
        {3, u"a", 1}, {4, u"\u00E4\u20AC", 6}, {1, u"", 6}, {-4, u"", 6}, {32, u"\u1000z", 10}};
    for (const auto& [Size, Text, Place] : Steps) {
        const std::int32_t Got = Adapter.Read(Units, Size);
        EXPECT_EQ(std::u16string(Units, static_cast<std::size_t>(Got / 2)), Text);
        EXPECT_EQ(Source->Position(), Place);
    }
}

TEST(Utf8StreamAdapter, SaysWhatIsWrongWithTheBytes) {
    const UnicodeString Invalid = u"The stream does not contain valid UTF-8 code!";
    const std::tuple<std::string, UnicodeString, std::int64_t> Cases[] = {
        {"ab\x80z", Invalid, 3},
        {"a\xC3", Invalid + u"\r\nThere are 1 or 2 bytes missing!", 2},
        {"a\xE2", Invalid + u"\r\nThere are 1 or 2 bytes missing!", 2},
        {"a\xE2\x82", Invalid + u"\r\nThere is 1 byte missing!", 3}};
    for (const auto& [Bytes, Text, Position] : Cases) {
        const auto Source = StreamOf(Bytes);
        TQzMemoryStream Target(16);
        EXPECT_EQ(Message([&] { QzUTF8DecodeStream(*Source, Target); }), Text);
        EXPECT_EQ(Source->Position(), Position);
    }
}

TEST(Utf8StreamAdapter, WritesAMarkOnce) {
    TQzMemoryStream Target(16);
    TQzUTF8StreamAdapter Adapter(&Target, false);
    EXPECT_EQ(Adapter.Write(u"ä€x", 5), 5) << "two units";
    EXPECT_EQ(Content(Target), "\xEF\xBB\xBFä€");
    int Ends = 0;
    TQzUTF8StreamAdapter(TWatchedStream::Create(Ends).release(), true);
    EXPECT_EQ(Ends, 1) << "it owns the stream";
}

// Texts across the borders of the steps in which they are converted.
TEST(StreamText, RecodesBetweenUtf8AndUtf16) {
    for (const std::size_t Length : {0u, 1u, 511u, 512u, 513u, 4095u, 4096u, 4097u, 20000u}) {
        for (const std::u16string_view Unit : {u"\u20AC", u"\U0001F600"}) {
            std::u16string Text = u"x";
            while (Text.size() < Length)
                Text += Unit;
            const auto Source = StreamOf({reinterpret_cast<const char*>(Text.data()), Text.size() * 2});
            Source->SetPosition(2);
            TQzMemoryStream Narrow(4096);
            QzUTF8EncodeStream(*Source, Narrow, Length % 2 == 0);
            EXPECT_EQ(Content(Narrow), (Length % 2 == 0 ? "\xEF\xBB\xBF" : "") + Utf16ToUtf8(Text.substr(1)));
            Narrow.SetPosition(0);
            if (Unit.size() == 1) {
                EXPECT_EQ(QzUTF8Decode(Narrow), Text.substr(1));
            }
        }
    }
    EXPECT_EQ(Message([&] { QzUTF8Decode(*StreamOf("\xFF\xFEx\0"s)); }),
              u"The sourcestream does not contain unicode data!");
}

} // namespace
} // namespace qz
