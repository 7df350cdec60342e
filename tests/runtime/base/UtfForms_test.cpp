#include <qz/runtime/base/UtfForms.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <qz/runtime/base/Utf.h>

namespace qz {
namespace {

using namespace std::string_view_literals;

TEST(UtfForms, PrefixesAndPlainUnits) {
    EXPECT_EQ(AsciiPrefix("abc\x80z"sv), 3u);
    EXPECT_EQ(AsciiPrefix(u"abc\u0080z"sv), 3u);
    EXPECT_EQ(Latin1Prefix(u"abc\u00FF\u0100z"sv), 4u);
    std::u16string Wide(3, u'\0');
    WidenBytes("a\xE4\xFF", Wide.data());
    EXPECT_EQ(Wide, u"a\u00E4\u00FF");
    std::string Narrow(3, '\0');
    NarrowUnits(Wide, Narrow.data());
    EXPECT_EQ(Narrow, "a\xE4\xFF");
    SwapUnits(Wide.data(), Wide.size(), Wide.data());
    EXPECT_EQ(Wide, u"\u6100\uE400\uFF00");
}

TEST(UtfForms, TellsWhatIsWellFormed) {
    EXPECT_TRUE(IsValidUtf8("") && IsValidUtf8("a\xC3\xA4\xF0\x9F\x98\x80"));
    EXPECT_FALSE(IsValidUtf8("a\xC3") || IsValidUtf8("\xED\xA0\x80") || IsValidUtf8("\xC0\x80"));
    const char16_t High = 0xD83D;
    EXPECT_TRUE(IsValidUtf16(u"") && IsValidUtf16(u"a\U0001F600"));
    EXPECT_FALSE(IsValidUtf16({&High, 1}));
}

TEST(UtfForms, Utf32InBothOrders) {
    struct TCase {
        std::endian Order;
        std::string_view Bytes;
        std::u16string Wide;
    };
    const TCase cCases[] = {
        {std::endian::big, "\0\0\0\x41\0\x01\xF6\0\0\0\x20\xAC"sv, u"A\U0001F600\u20AC"},
        {std::endian::little, "\x41\0\0\0\0\xF6\x01\0\xAC\x20\0\0"sv, u"A\U0001F600\u20AC"},
        {std::endian::big, "\0\x11\0\0\0\0\xD8\0\0\0"sv, u"\uFFFD\uFFFD\uFFFD"},
        {std::endian::little, "\0\xDC\0\0\xFF\xFF\xFF\xFF\x41"sv, u"\uFFFD\uFFFD\uFFFD"},
    };
    for (const TCase& Case : cCases) {
        const auto Bytes = std::as_bytes(std::span(Case.Bytes));
        const bool IsGood = Case.Wide.front() == u'A';
        EXPECT_EQ(IsValidUtf32(Bytes, Case.Order), IsGood);
        std::u16string Wide(Utf32ToUtf16Length(Bytes, Case.Order), u'\0');
        EXPECT_EQ(Utf32ToUtf16(Bytes, Case.Order, Wide.data()), Wide.data() + Wide.size());
        EXPECT_EQ(Wide, Case.Wide);
        if (!IsGood)
            continue;
        std::vector<std::byte> Back(4 * Utf16ToUtf32Length(Wide));
        EXPECT_EQ(Utf16ToUtf32(Wide, Case.Order, Back.data()), Back.data() + Back.size());
        EXPECT_EQ(Back, std::vector(Bytes.begin(), Bytes.end()));
    }
}

} // namespace
} // namespace qz
