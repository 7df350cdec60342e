#include <qz/runtime/streams/NetEncoding.h>

#include <gtest/gtest.h>

#include "tests/support/Rows.h"
#include <qz/runtime/streams/MemoryStream.h>

namespace qz {
namespace {

// The vectors of RFC 4648, section 10.
TEST(NetEncoding, Base64OfPublishedVectors) {
    for (const auto& Row : Rows(u" => ", u"f => Zg==", u"fo => Zm8=", u"foo => Zm9v", u"foob => Zm9vYg==",
                                u"fooba => Zm9vYmE=", u"foobar => Zm9vYmFy")) {
        EXPECT_EQ(TNetEncoding::Base64().Encode(Row[0]), Row[1]);
        EXPECT_EQ(TNetEncoding::Base64().Decode(Row[1]), Row[0]);
    }
}

TEST(NetEncoding, Base64Lines) {
    const TBytes Zeros(57 * 2);
    const std::u16string Line(76, u'A');
    const UnicodeString Text = TNetEncoding::Base64().EncodeBytesToString(Zeros);
    EXPECT_EQ(Text, Line + u"\r\n" + Line) << "no separator at the end";
    EXPECT_EQ(TNetEncoding::Base64().DecodeStringToBytes(Text), Zeros);
    EXPECT_EQ(TBase64Encoding(0).EncodeBytesToString(Zeros), Line + Line);
    EXPECT_EQ(TBase64Encoding(3, u"\n ").Encode(u"foobar"), u"Zm9\n vYm\n Fy");
    TMemoryStream Stream;
    Stream.WriteBuffer("..foobar", 8);
    Stream.SetPosition(2);
    EXPECT_EQ(TBase64Encoding(4, u"|").Encode(Stream, Stream), 9) << "input and output are one stream";
    EXPECT_EQ(std::string(static_cast<const char*>(Stream.Memory()), 17), "..foobarZm9v|YmFy");
}

TEST(NetEncoding, HtmlEscapesAndReferences) {
    EXPECT_EQ(TNetEncoding::HTML().Encode(u"<a href=\"x\">Zoë & 'Bob'</a>"),
              u"&lt;a href=&quot;x&quot;&gt;Zoë &amp; 'Bob'&lt;/a&gt;");
    for (const auto& Row :
         Rows(u"&lt;&gt;&quot;&amp;&apos; => <>\"&'", u"&amp;lt; => &lt;", u"&#38;#60; => &#60;",
              u"&eacute;&Eacute;&thetasym;&AElig;&zwnj; => éÉϑÆ\u200C", u"&#233;&#xE9;&#X1f600; => éé😀",
              u"&#0;&#xD800;&#x110000;&#99999999999999999999; => \uFFFD\uFFFD\uFFFD\uFFFD",
              u"a & b &; &lt &# &#; &#x; &#xg; &#1x; => a & b &; &lt &# &#; &#x; &#xg; &#1x;",
              u"&LT;&thetasymm;&ét;&&lt; => &LT;&thetasymm;&ét;&<"))
        EXPECT_EQ(TNetEncoding::HTML().Decode(Row[0]), Row[1]);
}

} // namespace
} // namespace qz
