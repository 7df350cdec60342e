#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/text/Format.h>

#include <gtest/gtest.h>

#include "tests/support/Message.h"

namespace qz {
namespace {

UnicodeString Neutrally(const char* APattern, TVarRecs AArgs) {
    return Format(APattern, AArgs, TFormatSettings::Neutral());
}

TEST(Format, Integers) {
    EXPECT_EQ(Neutrally("%d|%5d|%-5d|%.3d|%6.3d", {1, 2, 3, 4, -5}), u"1|    2|3    |004|  -005");
    EXPECT_EQ(Neutrally("%u %x %X", {-1, -1, 255}), u"4294967295 FFFFFFFF FF");
    EXPECT_EQ(Neutrally("%d %d", {UINT64_MAX, 4000000000u}), u"18446744073709551615 4000000000");
    EXPECT_EQ(Neutrally("%u %x", {std::int64_t{-1}, std::int64_t{-1}}),
              u"18446744073709551615 FFFFFFFFFFFFFFFF");
    EXPECT_EQ(Neutrally("%.9999d", {-1}).size(), 256u);
}

TEST(Format, Texts) {
    const UnicodeString Wide = u"w\u00EFde";
    EXPECT_EQ(Neutrally("%s %s %s %s", {Wide, "\xC3\xA4", u'c', 'd'}), u"w\u00EFde \u00E4 c d");
    EXPECT_EQ(Neutrally("%S|%6s|%-6s|%.2s|%4.1s", {Wide, Wide, Wide, Wide, Wide}),
              u"w\u00EFde|  w\u00EFde|w\u00EFde  |w\u00EF|   w");
    EXPECT_EQ(Neutrally("%s%%%s", {true, false}), u"True%False");
    EXPECT_EQ(Neutrally("%s", {TAnsiText<28591>("\xE4")}), u"\u00E4");
    EXPECT_EQ(Neutrally("%s", {Exception::ClassRec.Name()}), u"Exception");
    EXPECT_EQ(Neutrally("%p", {reinterpret_cast<void*>(0xAB)}), u"00000000000000AB");
}

TEST(Format, Floats) {
    EXPECT_EQ(Neutrally("%f %.1f %n %g %.3g", {1.5, 0.25, 1234.5, 1e-7, 1234.5}),
              u"1.50 0.3 1,234.50 1E-7 1.23E3");
    EXPECT_EQ(Neutrally("%e|%.4e|%m", {1.5, 1.5, -2}).View().substr(0, 32),
              u"1.50000000000000E+000|1.500E+000");
    EXPECT_EQ(Neutrally("%8.2f|%-8.2f|%f", {3.14159, 3.14159, 3}), u"    3.14|3.14    |3.00");
    EXPECT_EQ(Neutrally("%.0f %f", {UINT64_MAX, Extended(2.5)}), u"1.8446744073709552E19 2.50");
}

TEST(Format, IndexesAndArgumentsAsNumbers) {
    EXPECT_EQ(Neutrally("%1:s %0:s", {u"a", u"b"}), u"b a");
    EXPECT_EQ(Neutrally("%1:s %s %0:s %s", {u"a", u"b", u"c"}), u"b c a b");
    EXPECT_EQ(Neutrally("%*d|%-*d|%*d|%.*f", {4, 1, 4, 2, -4, 3, 1, 0.25}), u"   1|2   |3   |0.3");
    EXPECT_EQ(Neutrally("%0:4d|%0:-4d|%0:.3d", {7}), u"   7|7   |007");
    EXPECT_EQ(Neutrally("%.*s", {-1, u"abc"}), u"abc");
}

TEST(Format, RefusesWhatDoesNotFit) {
    struct {
        const char* Pattern;
        std::initializer_list<TVarRec> Args;
        bool IsMissing;
    } const Cases[] = {
        {"%", {1}, false},         {"a%5", {1}, false},     {"%y", {1}, false},    {"%d", {1.5}, false},
        {"%d", {u"1"}, false},     {"%s", {1}, false},      {"%f", {u"1"}, false}, {"%p", {1}, false},
        {"%*d", {u"x", 1}, false}, {"%99999d", {1}, false}, {"%d", {true}, false}, {"%5-d", {1}, false},
        {"%s", {}, true},          {"%d %d", {1}, true},    {"%1:d", {1}, true},   {"%*d", {1}, true},
    };
    for (const auto& Case : Cases) {
        const UnicodeString Pattern = Case.Pattern;
        EXPECT_EQ(Raised([&] { Neutrally(Case.Pattern, Case.Args); }),
                  u"EConvertError: " +
                      (Case.IsMissing ? u"No argument for format '" + Pattern + u"'"
                                      : u"Format '" + Pattern + u"' invalid or incompatible with argument"));
    }
}

} // namespace
} // namespace qz
