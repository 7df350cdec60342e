#include <qz/common/uQzClasses/Utf8StreamAdapter.h>

#include <gtest/gtest.h>

#include "tests/common/support/Streams.h"
#include "tests/support/Message.h"
#include "tests/support/WatchedStream.h"
#include <qz/common/uQzClasses/QzStringStream.h>
#include <qz/common/uQzClasses/StreamText.h>
#include <qz/runtime/base/Utf.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

using namespace std::string_literals;

// Takes so many bytes and no more.
class TSmallStream : public TQzMemoryStream {
    QZ_CLASS(TSmallStream, TQzMemoryStream)

public:
    explicit TSmallStream(std::int64_t ARoom) : TQzMemoryStream(16), FRoom(ARoom) {}
    std::int32_t Write(const void* ABuffer, std::int32_t ACount) override {
        const auto Count = static_cast<std::int32_t>(std::min<std::int64_t>(ACount, FRoom - Size()));
        return TQzMemoryStream::Write(ABuffer, Count);
    }

private:
    std::int64_t FRoom;
};
constinit const TClassRec TSmallStream::ClassRec =
    DescribeClass<TSmallStream>(u"TSmallStream", {.Unit = u"Test"});

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

TEST(Utf8StreamAdapter, WritesAMarkOnceAndTellsWhetherAllWasTaken) {
    TSmallStream Target(10);
    TQzUTF8StreamAdapter Adapter(&Target, false);
    EXPECT_EQ(Adapter.Write(u"ä€x", 5), 5) << "two units";
    EXPECT_EQ(Content(Target), "\xEF\xBB\xBFä€");
    EXPECT_EQ(Adapter.Seek(-2, soCurrent), 14);
    Target.SetPosition(8);
    EXPECT_EQ(Adapter.Write(u"abc", 6), 0);
    TQzMemoryStream Plain(16);
    TQzUTF8StreamAdapter(&Plain, false, false).Write(u"\U0001F600", 4);
    EXPECT_EQ(Content(Plain), "\U0001F600");
    const std::u16string Long(9999, u'\u20AC');
    EXPECT_EQ(TQzUTF8StreamAdapter(&Plain, false, false).Write(Long.data(), 19998), 19998);
    EXPECT_EQ(Plain.Size(), 4 + 3 * 9999);
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
