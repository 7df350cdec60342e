#include <qz/common/uQzNetEncoding.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include "tests/support/SystemPage.h"
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

TEST(UrlEncoding, EncodesWhatIsUnsafe) {
    const TURLEncoding& Url = TQzNetEncoding::URL();
    for (const auto& Row :
         Rows(u"a b/c => a%20b%2Fc", u"100% => 100%", u" => ", u"\1\x1F => %01%1F",
              u"!#$&'()*+,/:;=?@[] => %21%23%24%26%27%28%29%2A%2B%2C%2F%3A%3B%3D%3F%40%5B%5D",
              u"-._~\"<>\\^`{|}\x7F => -._~\"<>\\^`{|}\x7F")) {
        EXPECT_EQ(Url.Encode(Row[0]), Row[1]);
        EXPECT_EQ(Url.Encode(Row[0], {}, {SpacesAsPlus, EncodePercent}), Row[1]);
        EXPECT_EQ(Url.Decode(Row[1].View() == u"100%" ? u"100%25" : Row[1]), Row[0]);
    }
    EXPECT_EQ(Url.Encode(u"a! b/c", {'/'}), u"a!%20b%2Fc");
    EXPECT_EQ(Url.Encode(u"\"a%b\" \1", {'"', '%', '\1'}), u"ab%20%01") << "what has no escape is dropped";
}

TEST(UrlEncoding, DecodesBytesAsUtf8) {
    const TURLEncoding& Url = TQzNetEncoding::URL();
    for (const auto& Row : Rows(
             u"a%20b => a b", u"%C3%A9 => é", u"%c3%a9%F0%9F%98%80 => é\U0001F600", u"a+b => a+b",
             u"%\t\n41 => A", u"%E9x => \uFFFDx", u"%zz => EConvertError: '$zz' is not a valid integer value",
             u"a%1g => EConvertError: '$1g' is not a valid integer value",
             u"%4\t => EConvertError: '$4\t' is not a valid integer value",
             u"%4 => EQzTextParserEOF: Unexpected EOF", u"abc% => EQzTextParserEOF: Unexpected EOF",
             u"%\1\2 => EQzTextParserEOF: Unexpected EOF")) {
        UnicodeString Result;
        const UnicodeString Fault = Raised([&] { Result = Url.Decode(Row[0], {PlusAsSpaces}); });
        EXPECT_EQ(Fault == u"nothing" ? Result : Fault, Row[1]);
    }
}

TEST(UrlEncoding, TakesOtherCharactersInTheCodePageOfTheSystem) {
    const TURLEncoding& Url = TQzNetEncoding::URL();
    for (const auto& [Page, Encoded, Decoded] : {std::tuple(std::uint16_t{65001}, u"Zoë", u"Zoë"),
                                                 std::tuple(std::uint16_t{1252}, u"ZoÃ«", u"Zo\uFFFD")}) {
        const TSystemPage SystemPage(Page);
        EXPECT_EQ(Url.Encode(u"Zoë"), Encoded);
        EXPECT_EQ(Url.Decode(u"Zoë"), Decoded);
    }
}

} // namespace
} // namespace qz
