#include <qz/common/uQzNetEncoding.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include "tests/support/SystemPage.h"

namespace qz {
namespace {

TEST(UrlEncoding, EncodesWhatIsUnsafe) {
    const TURLEncoding& Url = TQzNetEncoding::URL();
    for (const auto& Row :
         Rows(u"a b/c => a%20b%2Fc", u" => ", u"\1\x1F => %01%1F",
              u"!#$&'()*+,/:;=?@[] => %21%23%24%26%27%28%29%2A%2B%2C%2F%3A%3B%3D%3F%40%5B%5D",
              u"-._~\"<>\\^`{|}\x7F => -._~\"<>\\^`{|}\x7F")) {
        EXPECT_EQ(Url.Encode(Row[0], {}, {SpacesAsPlus, EncodePercent}), Row[1]);
        EXPECT_EQ(Url.Decode(Row[1]), Row[0]);
    }
    EXPECT_EQ(Url.Encode(u"100%"), u"100%");
    EXPECT_EQ(Url.Encode(u"\"a%b! c/\" \1", {'"', '%', '/', '\1'}), u"ab!%20c%2F%20%01")
        << "no escape for some";
}

TEST(UrlEncoding, DecodesBytesAsUtf8) {
    for (const auto& Row :
         Rows(u"%c3%A9%F0%9F%98%80 => é\U0001F600", u"a+b => a+b", u"%\t\n41 => A", u"%E9x => \uFFFDx",
              u"a%1g => '$1g' is not a valid integer value", u"%4\t => '$4\t' is not a valid integer value",
              u"%4 => Unexpected EOF", u"abc% => Unexpected EOF", u"%\1\2 => Unexpected EOF")) {
        UnicodeString Result;
        Result += Message([&] { Result = TQzNetEncoding::URL().Decode(Row[0], {PlusAsSpaces}); });
        EXPECT_EQ(Result, Row[1]);
    }
}

TEST(UrlEncoding, TakesOtherCharactersInTheCodePageOfTheSystem) {
    const TSystemPage Page(1252);
    EXPECT_EQ(TQzNetEncoding::URL().Encode(u"Zoë"), u"ZoÃ«");
    EXPECT_EQ(TQzNetEncoding::URL().Decode(u"Zoë"), u"Zo\uFFFD");
}

} // namespace
} // namespace qz
