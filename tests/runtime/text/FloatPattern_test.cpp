#include <qz/runtime/text/FloatPattern.h>

#include <gtest/gtest.h>

#include "tests/support/Rows.h"
#include <qz/runtime/text/FloatText.h>

namespace qz {
namespace {

TEST(FloatPattern, EachPattern) {
    const TFormatSettings& Neutral = TFormatSettings::Neutral();
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
