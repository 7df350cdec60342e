#include <qz/runtime/base/UtfForms.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include <qz/runtime/base/Utf.h>

namespace qz {
namespace {

using namespace std::string_view_literals;

// UtfPaths_test compares each way of converting with a reference; here stands one call of each function.
TEST(UtfForms, EachIsTheOneOfTheBestPath) {
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
    const char16_t High = 0xD83D;
    EXPECT_TRUE(IsValidUtf8("\xC3\xA4") && IsValidUtf16(u"\U0001F600"));
    EXPECT_FALSE(IsValidUtf8("a\xC3") || IsValidUtf16({&High, 1}));
    const auto Bytes = std::as_bytes(std::span("\0\0\0\x41\0\x01\xF6\0"sv));
    EXPECT_TRUE(IsValidUtf32(Bytes, std::endian::big) && !IsValidUtf32(Bytes.first(5), std::endian::big));
    Wide.resize(Utf32ToUtf16Length(Bytes, std::endian::big));
    EXPECT_EQ(Utf32ToUtf16(Bytes, std::endian::big, Wide.data()), Wide.data() + 3);
    EXPECT_EQ(Wide, u"A\U0001F600");
    std::vector<std::byte> Back(4 * Utf16ToUtf32Length(Wide));
    EXPECT_EQ(Utf16ToUtf32(Wide, std::endian::big, Back.data()), Back.data() + Back.size());
    EXPECT_TRUE(std::ranges::equal(Back, Bytes));
}

} // namespace
} // namespace qz
