#include <qz/runtime/text/NumberText.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <map>
#include <random>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/runtime/text/FloatPattern.h>
#include <qz/runtime/text/FloatText.h>

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

constexpr double cInf = std::numeric_limits<double>::infinity();
const TFormatSettings& Neutral = TFormatSettings::Neutral();

TEST(FloatText, GeneralForm) {
    const std::pair<double, const char16_t*> Cases[] = {
        {0, u"0"},           {-0.0, u"0"},      {1, u"1"},       {-1.5, u"-1.5"},
        {1e15, u"1E15"},     {1e-4, u"0.0001"}, {1e-5, u"1E-5"}, {-1e-7, u"-1E-7"},
        {5e-324, u"5E-324"}, {cInf, u"INF"},    {-cInf, u"-INF"}};
    for (const auto& [Value, Expected] : Cases)
        EXPECT_EQ(FloatToStr(Value, Neutral), Expected) << Value;
    EXPECT_EQ(FloatToStr(std::nan(""), Neutral) + FloatToStr(0.1 + 0.2, Neutral), u"NAN0.3");
    EXPECT_EQ(FloatToStr(999999999999999, Neutral), u"999999999999999");
    EXPECT_EQ(FloatToStr(9999999999999995.0, Neutral), u"1E16");
    EXPECT_EQ(FloatToStr(1.7976931348623157e308, Neutral), u"1.79769313486232E308");
}

// The nearest digits, by an independent way to write them. Half of these have 16 digits and end in 5.
TEST(FloatText, RoundsOnce) {
    std::mt19937_64 Random(30);
    for (int I = 0; I < 20'000; ++I) {
        const auto Digits =
            static_cast<double>(std::uniform_int_distribution<std::int64_t>(1, 999'999'999'999'999)(Random));
        const double Power = std::pow(10.0, std::uniform_int_distribution<int>(-40, -13)(Random));
        const double Value = (I % 2 == 0 ? Digits : Digits * 10 + 5) * Power;
        char Expected[32];
        std::snprintf(Expected, sizeof(Expected), "%.14E", Value);
        ASSERT_EQ(FloatToStrF(Value, ffExponent, 15, 2, Neutral), UnicodeString(Expected));
        ASSERT_EQ(FloatToStr(Value, Neutral), FloatToStr(std::strtod(Expected, nullptr), Neutral));
    }
    EXPECT_EQ(FloatToStr(100000000000000.5, Neutral), u"100000000000001")
        << "away from zero where both are as near";
}

// The value, the form with its precision and digits, and the text.
TEST(FloatText, EachForm) {
    const std::map<char16_t, TFloatFormat> Forms = {
        {u'e', ffExponent}, {u'f', ffFixed}, {u'n', ffNumber}, {u'g', ffGeneral}};
    for (const auto& Case :
         Rows(u"0.5 => f => 15 => 0 => 1", u"0.4 => f => 15 => 0 => 0", u"999 => n => 15 => 0 => 999",
              u"1e18 => f => 18 => 2 => 1E18", u"0 => e => 3 => 2 => 0.00E+00",
              u"2.675 => f => 15 => 2 => 2.68", u"-1 => e => 1 => 9 => -1E+0000",
              u"-0.004 => f => 15 => 2 => 0.00", u"-0.005 => f => 15 => 2 => -0.01",
              u"-1000 => n => 15 => 0 => -1,000", u"9.999 => e => 2 => 2 => 1.0E+01",
              u"123456 => f => 3 => 2 => 1.23E5", u"1234.5 => f => 15 => 2 => 1234.50",
              u"999.995 => f => 15 => 2 => 1000.00", u"123456 => g => 3 => 4 => 1.23E0005",
              u"0.0012345 => e => 3 => 0 => 1.23E-3", u"1234.5 => e => 5 => 3 => 1.2345E+003",
              u"1e17 => f => 18 => 2 => 100000000000000000.00",
              u"1234567.891 => n => 15 => 2 => 1,234,567.89"))
        EXPECT_EQ(FloatToStrF(StrToFloat(Case[0], Neutral), Forms.at(Case[1][0]), StrToInt(Case[2]),
                              StrToInt(Case[3]), Neutral),
                  Case[4])
            << Case[0] << ", " << Case[1];
}

TEST(FloatText, PlacesTheCurrency) {
    TFormatSettings Settings = Neutral;
    Settings.CurrencyString = u"Fr";
    const char16_t* const Positive[] = {u"Fr1,234.50", u"1,234.50Fr", u"Fr 1,234.50", u"1,234.50 Fr"};
    for (std::uint8_t I = 0; I < 4; ++I) {
        Settings.CurrencyFormat = I;
        EXPECT_EQ(FloatToStrF(1234.5, ffCurrency, 18, 2, Settings), Positive[I]);
    }
    const char16_t* const Negative[] = {u"(Fr1)", u"-Fr1",  u"Fr-1",   u"Fr1-",  u"(1Fr)", u"-1Fr",
                                        u"1-Fr",  u"1Fr-",  u"-1 Fr",  u"-Fr 1", u"1 Fr-", u"Fr 1-",
                                        u"Fr -1", u"1- Fr", u"(Fr 1)", u"(1 Fr)"};
    for (std::uint8_t I = 0; I < 16; ++I) {
        Settings.NegCurrFormat = I;
        EXPECT_EQ(FloatToStrF(-1, ffCurrency, 18, 0, Settings), Negative[I]);
    }
    Settings.ThousandSeparator = u'\0';
    Settings.DecimalSeparator = u',';
    EXPECT_EQ(FloatToStrF(1234.5, ffNumber, 18, 2, Settings), u"1234,50");
}

TEST(FloatText, Reads) {
    const std::pair<const char16_t*, double> Good[] = {
        {u" 1.5E3 ", 1500}, {u"-.5", -0.5}, {u"+2.", 2},      {u"1e-3", 0.001},  {u"0.1", 0.1},
        {u"1E-400", 0},     {u"inf", cInf}, {u"-INF", -cInf}, {u"0e9999999", 0}, {u"1e-9999999", 0}};
    for (const auto& [Text, Expected] : Good)
        EXPECT_EQ(StrToFloat(Text, Neutral), Expected) << ToUtf8(Text);
    for (const char16_t* Bad :
         {u"1E400", u"-1E400", u"1,5", u"", u".", u"-", u"1e", u"e5", u"+-1", u"--1", u"1 2", u"0x10",
          u"1.2.3", u"\u0661", u"1,234.5", u"infinity", u"1e99999999999"}) {
        double Value = 5;
        EXPECT_FALSE(TryStrToFloat(Bad, Value, Neutral)) << ToUtf8(Bad);
        EXPECT_EQ(Value, 0) << ToUtf8(Bad);
    }
    TFormatSettings German = Neutral;
    German.DecimalSeparator = u',';
    EXPECT_EQ(StrToFloat("1,5", German), 1.5);
    EXPECT_TRUE(std::isnan(StrToFloat(u"nan", Neutral)));
    EXPECT_EQ(Raised([] { StrToFloat(u"x", Neutral); }),
              u"EConvertError: 'x' is not a valid floating point value");
}

TEST(FloatPattern, EachPattern) {
    for (const auto& Case :
         Rows(u"1234.5 => 0 => 1235", u"1234.5 => 0.00 => 1234.50", u"12 => #.## => 12",
              u"12.3 => #.## => 12.3", u"0.5 => #.## => .5", u"0 => #.## => ", u"0.004 => 0.## => 0",
              u"1 => 0.0# => 1.0", u"1 => 0.#0# => 1.00", u"-1.5 => 000.00 => -001.50",
              u"12.345 => .00 => 12.35", u"0.5 => .00 => .50", u"1234567.891 => #,##0.00 => 1,234,567.89",
              u"999 => ,0 => 999", u"1000 => 0, => 1,000", u"1234 => 0,000000 => 0,001,234",
              u"12345678 => (##) ###-### => (12) 345-678", u"12345 => # # => 1234 5",
              u"1.25 => 0.0.0 => 1.25", u"1234 => 0.00E+00 => 1.23E+03", u"1234 => 0.00e-0 => 1.23e3",
              u"0.00123 => 0.0E+00 => 1.2E-03", u"9.996 => 00.0E-0000 => 10.0E0000",
              u"1234 => .00E+0 => .12E+4", u"0 => #.0E+0 => .0E+0", u"-1e300 => 0.0E+0 => -1.0E+300",
              u"-5 => 0;(0) => (5)", u"5 => 0;(0) => 5", u"-0.4 => 0;(0) => 0", u"-0.4 => 0;(0);none => none",
              u"-5 => 0;;none => -5", u"0 => 0;;none => none", u"0 => 0;- => 0", u"1.5 => ;x => 1.5",
              u"-1.5 =>  => -1.5", u"7 => '0;#'0\"E+\" => 0;#7E+", u"7 => 0'open => 7open",
              u"7 => 'text' => text", u"7 => 0E => 7E", u"1e18 => 0.00 => 1E18",
              u"1e17 => 0 => 100000000000000000", u"INF => 0.00 => INF"))
        EXPECT_EQ(FormatFloat(Case[1], StrToFloat(Case[0], Neutral), Neutral), Case[2])
            << Case[0] << " by " << Case[1];
}

TEST(FloatPattern, SeparatorsAreThoseOfTheSettings) {
    TFormatSettings Settings = TFormatSettings::Neutral();
    Settings.DecimalSeparator = u',';
    Settings.ThousandSeparator = u'.';
    EXPECT_EQ(FormatFloat("#,##0.00", 1234.5, Settings), u"1.234,50");
    Settings.ThousandSeparator = u'\0';
    EXPECT_EQ(FormatFloat("#,##0.00", 1234.5, Settings), u"1234,50");
}

} // namespace
} // namespace qz
