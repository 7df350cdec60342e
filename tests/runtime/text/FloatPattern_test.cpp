#include <qz/runtime/text/FloatPattern.h>

#include <gtest/gtest.h>

#include <limits>

namespace qz {
namespace {

TEST(FloatPattern, EachPattern) {
    struct {
        const char16_t* Pattern;
        double Value;
        const char16_t* Expected;
    } const Cases[] = {
        {u"0", 1234.5, u"1235"},
        {u"0.00", 1234.5, u"1234.50"},
        {u"#.##", 12, u"12"},
        {u"#.##", 12.3, u"12.3"},
        {u"#.##", 0.5, u".5"},
        {u"#.##", 0, u""},
        {u"0.##", 0.004, u"0"},
        {u"0.0#", 1, u"1.0"},
        {u"0.#0#", 1, u"1.00"},
        {u"000.00", -1.5, u"-001.50"},
        {u".00", 12.345, u"12.35"},
        {u".00", 0.5, u".50"},
        {u"#,##0.00", 1234567.891, u"1,234,567.89"},
        {u",0", 999, u"999"},
        {u"0,", 1000, u"1,000"},
        {u"0,000000", 1234, u"0,001,234"},
        {u"(##) ###-###", 12345678, u"(12) 345-678"},
        {u"# #", 12345, u"1234 5"},
        {u"0.0.0", 1.25, u"1.25"},
        {u"0.00E+00", 1234, u"1.23E+03"},
        {u"0.00e-0", 1234, u"1.23e3"},
        {u"0.0E+00", 0.00123, u"1.2E-03"},
        {u"00.0E-0000", 9.996, u"10.0E0000"},
        {u".00E+0", 1234, u".12E+4"},
        {u"#.0E+0", 0, u".0E+0"},
        {u"0.0E+0", -1e300, u"-1.0E+300"},
        {u"0;(0)", -5, u"(5)"},
        {u"0;(0)", 5, u"5"},
        {u"0;(0)", -0.4, u"0"},
        {u"0;(0);none", -0.4, u"none"},
        {u"0;;none", -5, u"-5"},
        {u"0;;none", 0, u"none"},
        {u"0;-", 0, u"0"},
        {u";x", 1.5, u"1.5"},
        {u"", -1.5, u"-1.5"},
        {u"'0;#'0\"E+\"", 7, u"0;#7E+"},
        {u"0'open", 7, u"7open"},
        {u"'text'", 7, u"text"},
        {u"0E", 7, u"7E"},
        {u"0.00", 1e18, u"1E18"},
        {u"0", 1e17, u"100000000000000000"},
        {u"0.00", std::numeric_limits<double>::infinity(), u"INF"},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(FormatFloat(Case.Pattern, Case.Value, TFormatSettings::Neutral()), Case.Expected)
            << ToUtf8(Case.Pattern) << " of " << Case.Value;
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
