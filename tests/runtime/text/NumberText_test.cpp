#include <qz/runtime/text/NumberText.h>

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/Message.h"

namespace qz {
namespace {

constexpr auto cMin64 = std::numeric_limits<std::int64_t>::min();
constexpr auto cMax64 = std::numeric_limits<std::int64_t>::max();

TEST(NumberText, Writes) {
    EXPECT_EQ(IntToStr(cMin64), u"-9223372036854775808");
    EXPECT_EQ(UIntToStr(~std::uint64_t{0}), u"18446744073709551615");
    EXPECT_EQ(IntToHex(-1), u"FFFFFFFF");
    EXPECT_EQ(IntToHex(std::uint64_t{0xABCDEF}), u"0000000000ABCDEF");
    EXPECT_EQ(IntToHex(1, 1000).size(), 255u);
    for (std::int64_t Power = 1; Power <= cMax64 / 10; Power *= 10)
        for (const std::int64_t Value : {Power - 1, Power, -Power})
            EXPECT_EQ(std::string(IntToStr(Value)), std::to_string(Value));
}

TEST(NumberText, ReadsIntegers) {
    const std::pair<const char16_t*, std::int64_t> Narrow[] = {
        {u"0", 0},     {u" \t42", 42}, {u"-0", 0},     {u"+7", 7},      {u"$1F", 31},
        {u"0x1f", 31}, {u"xFf", 255},  {u"-$10", -16}, {u"0000012", 12}};
    for (const auto& [Text, Value] : Narrow)
        EXPECT_EQ(StrToInt(Text), Value) << ToUtf8(Text);
    for (const std::int64_t Value : {cMin64, std::int64_t{INT32_MIN} - 1, std::int64_t{INT32_MIN},
                                     std::int64_t{INT32_MAX}, std::int64_t{INT32_MAX} + 1, cMax64}) {
        const UnicodeString Text = std::to_string(Value);
        const bool Is32 = Value == static_cast<std::int32_t>(Value);
        std::int32_t Short = 5;
        EXPECT_EQ(StrToInt64(Text), Value);
        EXPECT_EQ(TryStrToInt(Text, Short), Is32) << Text;
        EXPECT_EQ(Short, Is32 ? Value : 0);
    }
    EXPECT_EQ(StrToInt64(u"$FFFFFFFFFFFFFFFF"), -1);
    EXPECT_EQ(StrToInt("$FFFFFFFF"), -1);
    EXPECT_EQ(StrToUInt64(u"18446744073709551615"), ~std::uint64_t{0});
}

TEST(NumberText, RefusesWhatIsNoInteger) {
    for (const char16_t* Text : {u"", u" ", u"-", u"+-1", u"1 ", u"1.0", u"$", u"0x", u"$G", u"1a", u"--1",
                                 u"\u0661", u"9223372036854775808", u"-9223372036854775809",
                                 u"$10000000000000000", u"99999999999999999999999"}) {
        std::int64_t Value = 5;
        EXPECT_FALSE(TryStrToInt64(Text, Value)) << ToUtf8(Text);
        EXPECT_EQ(Value, 0);
    }
    std::uint64_t Value;
    EXPECT_FALSE(TryStrToUInt64(u"18446744073709551616", Value));
    EXPECT_FALSE(TryStrToUInt64(u"-1", Value));
    EXPECT_EQ(Raised([] { StrToInt(u"4x"); }), u"EConvertError: '4x' is not a valid integer value");
}

TEST(NumberText, Booleans) {
    EXPECT_EQ(BoolToStr(true), u"-1");
    EXPECT_EQ(BoolToStr(true, true), u"True");
    for (const char16_t* Text : {u"TRUE", u"-1", u"2", u"1E3"})
        EXPECT_TRUE(StrToBool(Text)) << ToUtf8(Text);
    EXPECT_FALSE(StrToBool(u"False") || StrToBool(u"00"));
    EXPECT_TRUE(StrToBoolDef(u"yes", true));
    EXPECT_THROW(StrToBool(u""), EConvertError);
}

} // namespace
} // namespace qz
