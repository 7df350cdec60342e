#include <qz/runtime/text/NumberText.h>

#include <gtest/gtest.h>

#include <limits>

#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

constexpr auto cMin64 = std::numeric_limits<std::int64_t>::min();
constexpr auto cMax64 = std::numeric_limits<std::int64_t>::max();

TEST(NumberText, Writes) {
    EXPECT_EQ(IntToStr(0), u"0");
    EXPECT_EQ(IntToStr(cMin64), u"-9223372036854775808");
    EXPECT_EQ(UIntToStr(~std::uint64_t{0}), u"18446744073709551615");
    EXPECT_EQ(IntToHex(255, 4), u"00FF");
    EXPECT_EQ(IntToHex(-1), u"FFFFFFFF");
    EXPECT_EQ(IntToHex(std::uint64_t{0xABCDEF}), u"0000000000ABCDEF");
    EXPECT_EQ(IntToHex(0x12345, 0), u"12345");
    EXPECT_EQ(IntToHex(1, 1000).size(), 255u);
    for (std::int64_t Power = 1; Power <= cMax64 / 10; Power *= 10)
        for (const std::int64_t Value : {Power - 1, Power, -Power})
            EXPECT_EQ(std::string(IntToStr(Value)), std::to_string(Value));
}

TEST(NumberText, ReadsIntegers) {
    struct {
        const char16_t* Text;
        bool Is32;
        std::int64_t Value;
    } const Cases[] = {
        {u"0", true, 0},
        {u" \t42", true, 42},
        {u"-0", true, 0},
        {u"+7", true, 7},
        {u"$1F", true, 31},
        {u"0x1f", true, 31},
        {u"xFf", true, 255},
        {u"-$10", true, -16},
        {u"2147483647", true, 2147483647},
        {u"-2147483648", true, -2147483648LL},
        {u"2147483648", false, 2147483648LL},
        {u"-2147483649", false, -2147483649LL},
        {u"$100000000", false, 0x100000000LL},
        {u"9223372036854775807", false, cMax64},
        {u"-9223372036854775808", false, cMin64},
        {u"$FFFFFFFFFFFFFFFF", false, -1},
        {u"00000000000000000000000000012", true, 12},
    };
    for (const auto& Case : Cases) {
        std::int64_t Wide;
        std::int32_t Narrow;
        EXPECT_TRUE(TryStrToInt64(Case.Text, Wide)) << ToUtf8(Case.Text);
        EXPECT_EQ(Wide, Case.Value);
        EXPECT_EQ(TryStrToInt(Case.Text, Narrow), Case.Is32) << ToUtf8(Case.Text);
        EXPECT_EQ(Narrow, Case.Is32 ? Case.Value : 0);
    }
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
        EXPECT_EQ(StrToInt64Def(Text, 7), 7);
    }
    std::uint64_t Value;
    EXPECT_FALSE(TryStrToUInt64(u"18446744073709551616", Value));
    EXPECT_FALSE(TryStrToUInt64(u"-1", Value));
    try {
        StrToInt(u"4x");
        FAIL();
    } catch (const EConvertError& E) {
        EXPECT_EQ(E.Message(), u"'4x' is not a valid integer value");
    }
}

TEST(NumberText, Booleans) {
    EXPECT_EQ(BoolToStr(true), u"-1");
    EXPECT_EQ(BoolToStr(false), u"0");
    EXPECT_EQ(BoolToStr(true, true), u"True");
    for (const char16_t* Text : {u"TRUE", u"true", u"-1", u"2", u"1E3"})
        EXPECT_TRUE(StrToBool(Text)) << ToUtf8(Text);
    for (const char16_t* Text : {u"False", u"0", u"00"})
        EXPECT_FALSE(StrToBool(Text)) << ToUtf8(Text);
    EXPECT_TRUE(StrToBoolDef(u"yes", true));
    EXPECT_THROW(StrToBool(u""), EConvertError);
}

} // namespace
} // namespace qz
