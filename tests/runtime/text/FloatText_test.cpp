#include <qz/runtime/text/FloatText.h>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

constexpr double cInfinity = std::numeric_limits<double>::infinity();
const TFormatSettings& Neutral = TFormatSettings::Neutral();

TEST(FloatText, GeneralForm) {
    const std::pair<double, const char16_t*> Cases[] = {
        {0, u"0"},
        {-0.0, u"0"},
        {1, u"1"},
        {-1.5, u"-1.5"},
        {0.1 + 0.2, u"0.3"},
        {1e14, u"100000000000000"},
        {999999999999999, u"999999999999999"},
        {1e15, u"1E15"},
        {9999999999999995, u"1E16"},
        {0.0001, u"0.0001"},
        {0.00001, u"1E-5"},
        {-1.25e-7, u"-1.25E-7"},
        {123456.789, u"123456.789"},
        {1.7976931348623157e308, u"1.79769313486232E308"},
        {5e-324, u"5E-324"},
        {cInfinity, u"INF"},
        {-cInfinity, u"-INF"},
        {std::nan(""), u"NAN"},
    };
    for (const auto& [Value, Expected] : Cases)
        EXPECT_EQ(FloatToStr(Value, Neutral), Expected) << Value;
}

TEST(FloatText, EachForm) {
    struct {
        double Value;
        TFloatFormat Format;
        int Precision;
        int Digits;
        const char16_t* Expected;
    } const Cases[] = {
        {1234.5, ffExponent, 5, 3, u"1.2345E+003"},
        {0.0012345, ffExponent, 3, 0, u"1.23E-3"},
        {0, ffExponent, 3, 2, u"0.00E+00"},
        {9.999, ffExponent, 2, 2, u"1.0E+01"},
        {-1, ffExponent, 1, 9, u"-1E+0000"},
        {1234.5, ffFixed, 15, 2, u"1234.50"},
        {2.675, ffFixed, 15, 2, u"2.68"},
        {-0.004, ffFixed, 15, 2, u"0.00"},
        {-0.005, ffFixed, 15, 2, u"-0.01"},
        {0.5, ffFixed, 15, 0, u"1"},
        {0.4, ffFixed, 15, 0, u"0"},
        {999.995, ffFixed, 15, 2, u"1000.00"},
        {123456, ffFixed, 3, 2, u"1.23E5"},
        {1e17, ffFixed, 18, 2, u"100000000000000000.00"},
        {1e18, ffFixed, 18, 2, u"1E18"},
        {1234567.891, ffNumber, 15, 2, u"1,234,567.89"},
        {999, ffNumber, 15, 0, u"999"},
        {-1000, ffNumber, 15, 0, u"-1,000"},
        {123456, ffGeneral, 3, 4, u"1.23E0005"},
    };
    for (const auto& Case : Cases)
        EXPECT_EQ(FloatToStrF(Case.Value, Case.Format, Case.Precision, Case.Digits, Neutral), Case.Expected)
            << Case.Value;
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
    const std::pair<const char16_t*, double> Cases[] = {
        {u" 1.5E3 ", 1500},
        {u"-.5", -0.5},
        {u"+2.", 2},
        {u"1e-3", 0.001},
        {u"0.1", 0.1},
        {u"1E400", NAN},
        {u"-1E400", NAN},
        {u"1E-400", 0},
        {u"inf", cInfinity},
        {u"-INF", -cInfinity},
        {u"1,5", NAN},
        {u"", NAN},
        {u".", NAN},
        {u"-", NAN},
        {u"1e", NAN},
        {u"e5", NAN},
        {u"+-1", NAN},
        {u"--1", NAN},
        {u"1 2", NAN},
        {u"0x10", NAN},
        {u"1.2.3", NAN},
        {u"\u0661", NAN},
        {u"1,234.5", NAN},
        {u"infinity", NAN},
        {u"1e99999999999", NAN},
        {u"0e99999999999", 0},
        {u"1e-99999999999", 0},
    };
    for (const auto& [Text, Expected] : Cases) {
        double Value = 5;
        EXPECT_EQ(TryStrToFloat(Text, Value, Neutral), !std::isnan(Expected)) << ToUtf8(Text);
        EXPECT_EQ(Value, std::isnan(Expected) ? 0 : Expected) << ToUtf8(Text);
    }
    TFormatSettings German = Neutral;
    German.DecimalSeparator = u',';
    EXPECT_EQ(StrToFloat("1,5", German), 1.5);
    EXPECT_EQ(StrToFloatDef(u"1.5", -1, German), -1);
    EXPECT_TRUE(std::isnan(StrToFloat(u"nan", Neutral)));
    try {
        StrToFloat(u"x", Neutral);
        FAIL();
    } catch (const EConvertError& E) {
        EXPECT_EQ(E.Message(), u"'x' is not a valid floating point value");
    }
}

TEST(FloatText, SeventeenDigitsSurviveTheRoundTrip) {
    std::mt19937_64 Random(7);
    for (int I = 0; I < 20000; ++I) {
        const double Value = std::bit_cast<double>(Random());
        if (!std::isfinite(Value))
            continue;
        const UnicodeString Text = FloatToStrF(Value, ffGeneral, 17, 0, Neutral);
        ASSERT_EQ(StrToFloat(Text, Neutral), Value) << Text;
    }
}

} // namespace
} // namespace qz
