#include <qz/common/uQzClasses/QzStringStream.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/SystemPage.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/WatchedStream.h"
#include <qz/common/uQzClasses/StreamText.h>
#include <qz/common/uQzTypes/QzEncoding.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/streams/FileStream.h>

namespace qz {
namespace {

using namespace std::string_literals;

std::string Content(const TQzMemoryStream& AStream) {
    return {reinterpret_cast<const char*>(AStream.FBufferStart), AStream.FContentSize};
}

AnsiString Ansi(std::string_view AText) {
    return AnsiString(AText);
}

class QzStringStream : public testing::Test {
protected:
    TSystemPage Page{1252};
};

TEST_F(QzStringStream, KeepsEachTextInItsCodePage) {
    const std::pair<int, std::string> Cases[] = {
        {0, "\xE4z"s},        {1252, "\xE4z"s},     {65001, "\xC3\xA4z"s},
        {1200, "\xE4\0z\0"s}, {1201, "\0\xE4\0z"s}, {12001, "\0\0\0\xE4\0\0\0z"s},
    };
    for (const auto& [CodePage, Expected] : Cases) {
        TQzStringStream Stream(static_cast<std::uint16_t>(CodePage), 16);
        const std::function<void()> Steps[] = {[&] { Stream.SetWString(u"äz"); },
                                               [&] { Stream.SetAString(Ansi("\xE4z")); },
                                               [&] { Stream.SetAsUTF8(UTF8String("äz")); },
                                               [&] { Stream.SetValue(u"äz"); },
                                               [&] { Stream.SetValue(WideString(UnicodeString(u"äz"))); },
                                               [&] { Stream.SetValue(Ansi("\xE4z")); }};
        for (const auto& Step : Steps) {
            Stream.SetWString(u"longer than before");
            Step();
            EXPECT_EQ(Content(Stream), Expected) << CodePage;
            EXPECT_EQ(Stream.Position(), 0);
        }
        Stream.SetPosition(1);
        EXPECT_EQ(Stream.WString(), u"äz");
        EXPECT_EQ(std::string(Stream.AString().View()), "\xE4z");
        EXPECT_EQ(Stream.AsUTF8(), UTF8String("äz"));
        EXPECT_EQ(std::string(Stream.StringData(850).View()), "\x84z");
        EXPECT_EQ(Stream.CharCnt(), 2);
        EXPECT_EQ(VarType(Stream.Value()), varUString);
        EXPECT_EQ(Stream.Position(), 1);
        EXPECT_EQ(Message([&] { Stream.SetValue(7); }), u"Unsupported type 3!");
        EXPECT_EQ(Content(Stream), Expected);
    }
}

TEST_F(QzStringStream, TakesTextsAsTheyStandWhenMade) {
    EXPECT_EQ(Content(TQzStringStream(u"a\u3042")), "a\0\x42\x30"s);
    EXPECT_EQ(Content(TQzStringStream(UTF8String("\xE3\x81\x82"))), "\xE3\x81\x82");
    TQzStringStream Labelled(1200, 16);
    Labelled.SetValue(AnsiString("\x84", 850));
    EXPECT_EQ(Labelled.WString(), u"\u201E") << "an 8-bit variant is in code page 0";
    TQzStringStream Bytes(Ansi("\xE4"), 850);
    EXPECT_EQ(Bytes.WString(), u"\u00F5");
    EXPECT_EQ(Bytes.Position(), 0);
    EXPECT_EQ(QzCodePageMaxCharSize(1200), 2);
    EXPECT_EQ(QzCodePageMaxCharSize(12001), 4);
    EXPECT_EQ(QzCodePageMaxCharSize(932), 2);
    EXPECT_EQ(QzCodePageMaxCharSize(0), 1);
    EXPECT_EQ(QzCodePageMaxCharSize(4711), 1);
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
    Stream.SetPosition(0);
    Stream.Add(RawByteString("B"), 65001);
    Stream.SetPosition(1);
    Stream.Add(RawByteString("\x84"), 850);
    Stream.SetPosition(0);
    Stream.AddChar('\xE4');
    Stream.SetPosition(0);
    Stream.AddChar(u'\u20AC');
    EXPECT_EQ("BäÃ¤xä789ä€"s.replace(1, 6, "\xC3\xA4\xA4"), Content(Stream));
    Stream.Add(u"");
    Stream.Write(u"");
    Stream.Write(Ansi(""));
    Stream.WriteEOF();
    EXPECT_EQ(Content(Stream).back(), '\0');
    TQzStringStream Wide(1200, 16);
    Wide.Write(Ansi("\x80"));
    Wide.WriteEOF();
    EXPECT_EQ(Content(Wide), "\xAC\x20\0\0"s);
}

TEST_F(QzStringStream, AddsAnotherStreamAndTakesItOver) {
    TQzStringStream Other(0, 16);
    Other.SetAString(Ansi("\x80z"));
    Other.SetPosition(1);
    TQzStringStream Stream(65001, 16);
    Stream.Add(Other);
    EXPECT_EQ(Content(Stream), "€z");
    Other.Add(Stream);
    EXPECT_EQ(Content(Other), "\x80\x80z");
    Stream.Assign(Other);
    EXPECT_EQ(Content(Stream), "\x80\x80z");
    EXPECT_EQ(Stream.FCodePage, 0);
    EXPECT_EQ(Stream.FCodePageMaxCharSize, 1);
    EXPECT_EQ(Stream.Position(), 3);
    Stream.Assign(Stream);
    EXPECT_EQ(Stream.Size(), 3);
}

TEST_F(QzStringStream, ChangesItsCodePageWithOrWithoutItsContent) {
    TQzStringStream Stream(0, 16);
    Stream.ChangeCodePage(1200, false);
    Stream.SetWString(u"ä€");
    EXPECT_EQ(Message([&] { Stream.ChangeCodePage(1252, false); }),
              u"The current codepage cannot be changed without updating the content!");
    EXPECT_EQ(Stream.FCodePage, 1200);
    Stream.ChangeCodePage(1252, true);
    EXPECT_EQ(Content(Stream), "\xE4\x80");
    EXPECT_EQ(Stream.Position(), 2);
    Stream.ChangeCodePage(850, false);
    EXPECT_EQ(Stream.WString(), u"\u00F5\u00C7");
    EXPECT_NE(Message([&] { Stream.ChangeCodePage(1200, false); }), u"");
    EXPECT_THROW(Stream.ChangeCodePage(4711, true), EOSError);
    EXPECT_EQ(Content(Stream), "\xE4\x80");
    EXPECT_EQ(Stream.FCodePage, 850);
    char Block[] = "abc";
    TQzStringStream Wrapped(Block, 3, 1252);
    Wrapped.ChangeCodePage(850, false);
    EXPECT_EQ(Message([&] { Wrapped.ChangeCodePage(65001, true); }),
              u"Updating the content is not allowed (the stream is probably using a wrapped buffer)!");
    Wrapped.Write(u"xyz");
    EXPECT_STREQ(Block, "xyz");
    EXPECT_EQ(Message([&] { Wrapped.WriteChar(u'!'); }), u"It is not possible to resize the buffer!");
}

TEST_F(QzStringStream, ReadsCharactersOneByOne) {
    const UnicodeString Text = u"aä€\u65E5z";
    for (const int CodePage : {65001, 1200, 1201, 12000, 932, 936}) {
        TQzStringStream Stream(static_cast<std::uint16_t>(CodePage), 16);
        Stream.SetWString(Text);
        const UnicodeString Stored = Stream.WString();
        UnicodeString Read;
        while (Stream.Position() < Stream.Size())
            Read += Stream.ReadChar();
        EXPECT_EQ(Stored, Read) << CodePage;
        EXPECT_EQ(Stream.ReadWChar(), u'\0');
        EXPECT_EQ(Stream.ReadAChar(), '\0');
        Stream.SetPosition(0);
        std::string Narrow;
        while (Stream.Position() < Stream.Size())
            Narrow += Stream.ReadAChar();
        EXPECT_EQ(UnicodeString(Stored.View().substr(0, 1)), TQzEncoding::ConvertA(Narrow.data(), 1, 0));
        for (const std::uint32_t Count : {1u, 2u, 3u, 100u, 0xFFFFFFFFu}) {
            Stream.SetPosition(0);
            Read = u"";
            while (Stream.Position() < Stream.Size())
                Read += Stream.ReadWString(Count);
            EXPECT_EQ(Stored, Read) << CodePage << ' ' << Count;
        }
        EXPECT_EQ(Stream.ReadString(5), u"");
        EXPECT_EQ(Stream.ReadString(-1), u"");
    }
}

TEST_F(QzStringStream, ReadsBothHalvesOfAPairInUtf8) {
    const TSystemPage Utf8(65001);
    for (const std::uint16_t CodePage : {std::uint16_t{0}, std::uint16_t{65001}}) {
        TQzStringStream Whole(RawByteString("a\U0001F600b\U0001F601"), CodePage);
        UnicodeString All;
        while (Whole.Position() < Whole.Size())
            All += Whole.ReadWChar();
        EXPECT_EQ(All, u"a\U0001F600b\U0001F601") << CodePage;
    }
    TQzStringStream Wide(12000, 16);
    Wide.SetWString(u"a\U0001F600b");
    EXPECT_EQ(Wide.ReadWString(2), u"a\xD83D") << "the second unit is passed with the first";
    EXPECT_EQ(Wide.ReadWString(2), u"b");
    TQzStringStream Stream(UTF8String("a\U0001F600z\U0001F601"));
    EXPECT_EQ(Stream.ReadString(2), u"a\xD83D");
    EXPECT_EQ(Stream.ReadString(2), u"\xDE00z");
    EXPECT_EQ(Stream.ReadString(9), u"\U0001F601");
    TQzStringStream Torn(RawByteString("\xC3"), 65001);
    EXPECT_EQ(Torn.ReadChar(), u'\uFFFD');
    EXPECT_EQ(Torn.Position(), 1) << "never behind the end";
}

TEST_F(QzStringStream, ReadsRunsInTheSystemsCodePage) {
    TQzStringStream Plain(Ansi("\x80xyz"), 0);
    EXPECT_EQ(std::string(Plain.ReadAString(2).View()), "\x80x");
    EXPECT_EQ(Plain.ReadAChar(), 'y');
    EXPECT_EQ(std::string(Plain.ReadAString(9).View()), "z");
    EXPECT_EQ(std::string(Plain.ReadAString(9).View()), "");
    TQzStringStream Wide(u"€x\u0416");
    EXPECT_EQ(std::string(Wide.ReadAString(2).View()), "\x80x");
    EXPECT_EQ(Wide.ReadAChar(), '?');
    TQzStringStream Half(RawByteString("a\0b"s), 1200);
    EXPECT_EQ(Half.ReadWString(9), u"a");
    EXPECT_EQ(Half.ReadWChar(), u'\0');
}

class QzStringStreamFiles : public QzStringStream {
protected:
    std::string Saved(const TQzStringStream& AStream, std::uint16_t ACodePage, bool AWriteBOM) {
        TQzMemoryStream Target(16);
        AStream.SaveToStream(Target, ACodePage, AWriteBOM);
        AStream.SaveToFile(Name, ACodePage, AWriteBOM);
        TFileStream File(Name, fmOpenRead);
        std::string Text(static_cast<std::size_t>(File.Size()), '\0');
        File.ReadBuffer(Text.data(), File.Size());
        EXPECT_EQ(Content(Target), Text);
        return Text;
    }
    platform::TTemporaryDirectory Directory;
    UnicodeString Name = UnicodeString(Directory / u"file");
};

TEST_F(QzStringStreamFiles, SavesInAnyCodePageWithItsMark) {
    TQzStringStream Stream(Ansi("\xE4"), 0);
    EXPECT_EQ(Saved(Stream, 0, true), "\xE4");
    EXPECT_EQ(Saved(Stream, 65001, true), "\xEF\xBB\xBFä");
    EXPECT_EQ(Saved(Stream, 65001, false), "ä");
    EXPECT_EQ(Saved(Stream, 1200, true), "\xFF\xFE\xE4\0"s);
    EXPECT_EQ(Saved(Stream, 1201, true), "\xFE\xFF\0\xE4"s);
    EXPECT_EQ(Saved(Stream, 12000, true), "\xFF\xFE\0\0\xE4\0\0\0"s);
    EXPECT_EQ(Saved(Stream, 12001, true), "\0\0\xFE\xFF\0\0\0\xE4"s);
    EXPECT_EQ(Saved(Stream, 850, true), "\x84");
    EXPECT_EQ(Saved(TQzStringStream(u"ä"), 1200, false), "\xE4\0"s);
    const TQzStringStream Utf8(RawByteString("\xFF"), 65001);
    EXPECT_EQ(Saved(Utf8, 65001, false), "\xEF\xBF\xBD") << "it goes through UTF-16";
    EXPECT_THROW(Stream.SaveToFile(Name, 4711, true), EOSError);
    EXPECT_THROW(Stream.SaveToFile(Directory.Path()), EFCreateError);
    EXPECT_EQ(Content(Stream), "\xE4");
}

TEST_F(QzStringStreamFiles, LoadsByMarkOrByCodePageAndAppends) {
    TQzStringStream Utf8(UTF8String("ä"));
    Utf8.SaveToFile(Name);
    TQzStringStream Stream(0, 16);
    Stream.LoadFromFile(Name, -1);
    Stream.LoadFromFile(Name, 65001);
    EXPECT_EQ(Content(Stream), "\xE4\xE4");
    for (const int CodePage : {1252, 0})
        EXPECT_EQ(Message([&] { Stream.LoadFromFile(Name, CodePage); }),
                  u"The specified encoding does not match the BOM of the stream!");
    EXPECT_EQ(u"File " + Name + u"x not found.", Message([&] { Stream.LoadFromFile(Name + u"x", -1); }));
    EXPECT_THROW(Stream.LoadFromFile(Name + u"x", -1), EFOpenError);
    EXPECT_EQ(Content(Stream), "\xE4\xE4");
}

struct TLoadCase {
    int StreamPage;
    std::string Bytes;
    int CodePage;
    bool Detect;
    UnicodeString Text;
};

TEST_F(QzStringStreamFiles, LoadsStreamsAsTheyAreLabelled) {
    const TLoadCase Cases[] = {
        {0, "\xE4", -1, false, u"ä"},
        {0, "\xE4", -1, true, u"ä"},
        {0, "\x84", 850, true, u"ä"},
        {65001, "\xE4", -1, false, u"ä"},
        {1200, "\xFF\xFE\xE4\0"s, -1, true, u"ä"},
        {1200, "\xE4\0x"s, 1200, false, u"ä"},
        {65001, "\xFE\xFF\0\xE4"s, -1, true, u"ä"},
        {0, "\0\0\xFE\xFF\0\0\0\xE4"s, 12001, true, u"ä"},
        {65001, "\xEF\xBB\xBFä\U0001F600", -1, true, u"ä\U0001F600"},
        {65001, "\xEF\xBB\xBFä", 65001, false, u"\uFEFFä"},
        {65001, "ä\xFFz", 65001, true, u"ä\uFFFDz"},
        {1200, "a\0\xE4\0"s, -1, true, u"aä"},
        {0, "", -1, true, u""},
    };
    for (const TLoadCase& Case : Cases) {
        TQzMemoryStream Source(16);
        Source.WriteBuffer("skipped", 7);
        Source.WriteBuffer(Case.Bytes.data(), static_cast<std::int64_t>(Case.Bytes.size()));
        Source.SetPosition(7);
        TQzStringStream Stream(static_cast<std::uint16_t>(Case.StreamPage), 16);
        Stream.LoadFromStream(&Source, false, false, Case.Detect, Case.CodePage);
        EXPECT_EQ(Stream.WString(), Case.Text) << Case.Bytes;
        EXPECT_TRUE(Case.StreamPage != 65001 || Content(Stream) == ToUtf8(Case.Text)) << Case.Bytes;
        Source.SetPosition(7);
        EXPECT_EQ(QzStreamToWideString(&Source, false, false, Case.Detect, Case.CodePage), Case.Text)
            << Case.Bytes;
    }
}

TEST_F(QzStringStreamFiles, EndsAStreamThatItIsGivenInAnyCase) {
    int Ends = 0;
    const auto Fresh = [&] {
        auto Stream = TWatchedStream::Create(Ends);
        Stream->WriteBuffer("\xEF\xBB\xBFx", 4);
        return Stream.release();
    };
    TQzStringStream Stream(0, 16);
    Stream.LoadFromStream(Fresh(), true, true, true, -1);
    EXPECT_EQ(Ends, 1);
    EXPECT_THROW(Stream.LoadFromStream(Fresh(), true, true, true, 1252), Exception);
    EXPECT_EQ(QzStreamToWideString(Fresh(), true, true, true, -1), u"x");
    EXPECT_EQ(Message([&] { QzStreamToAnsiString(Fresh(), true, true, true, -1, 1200); }),
              u"The specified encoding is not supported!");
    EXPECT_EQ(std::string(QzStreamToAnsiString(Fresh(), true, true, true, -1, 1252).View()), "x");
    EXPECT_EQ(Ends, 5);
    EXPECT_THROW(QzStreamToWideString(nullptr, true, true, true, -1), EAssertionFailed);
    EXPECT_EQ(Content(Stream), "x");
}

TEST_F(QzStringStreamFiles, LoadsAsAWholeOrNotAtAll) {
    char Block[] = "0123456789";
    TQzStringStream Wrapped(Block, 10, 0);
    TQzMemoryStream Source(16);
    Source.WriteBuffer("abcdefghijk", 11);
    EXPECT_THROW(Wrapped.LoadFromStream(&Source, false, true, false, 0), Exception);
    EXPECT_STREQ(Block, "0123456789");
    Source.SetSize(10);
    Wrapped.LoadFromStream(&Source, false, true, false, 0);
    EXPECT_STREQ(Block, "abcdefghij");
    EXPECT_EQ(Source.Position(), 10);
    EXPECT_THROW(QzStreamToWideString(&Source, false, true, false, 65536 + 850),
                 EArgumentOutOfRangeException);
    TQzStringStream Unknown(4711, 16);
    EXPECT_THROW(Unknown.SetWString(u"x"), EOSError);
    EXPECT_EQ(Unknown.Size(), 0);
}

TEST_F(QzStringStream, StreamsGiveTextByTheirMark) {
    TQzMemoryStream Source(16);
    Source.WriteBuffer("\xFF\xFE\xAC\x20", 4);
    EXPECT_EQ(QzStreamToWideString(&Source, false, true, true, -1), u"€");
    EXPECT_EQ(QzStreamToString(&Source, false, true, true, 1200), u"€");
    EXPECT_EQ(std::string(QzStreamToAnsiString(&Source, false, true, true, -1, 1252).View()), "\x80");
    const RawByteString Same = QzStreamToAnsiString(&Source, false, true, false, 1252, 1252);
    EXPECT_EQ(std::string(Same.View()), "\xFF\xFE\xAC\x20");
    EXPECT_EQ(Same.CodePage(), 1252);
    EXPECT_THROW(QzStreamToString(&Source, false, true, true, 0), Exception);
    EXPECT_EQ(Source.Position(), 2) << "behind the mark";
}

} // namespace
} // namespace qz
