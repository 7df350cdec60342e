// Made by tools/code-page-tables; not to be changed by hand.
#include <qz/platform/linux/CodePageData.h>

// clang-format off
namespace qz::platform::detail {

using namespace std::string_view_literals;

namespace {

constexpr TCharText cFits37[] = {
    {0x0178, u"Y"sv}, {0x203E, u"\u00AF"sv},
};

constexpr TCharText cTexts437[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv}, {0x00E6, u"\u00B5"sv},
};

constexpr TCharText cFits437[] = {
    {0x00A4, u"\017"sv}, {0x00A6, u"\u258C"sv}, {0x00A8, u"\""sv}, {0x00AE, u"r_"sv}, {0x00B4, u"'"sv},
    {0x00B8, u","sv}, {0x00BE, u"_"sv}, {0x00D0, u"D"sv}, {0x00D7, u"x"sv}, {0x00DE, u"_"sv},
    {0x00F0, u"d"sv}, {0x00FE, u"_"sv}, {0x0189, u"D"sv}, {0x0191, u"\u0192"sv}, {0x01A9, u"\u03A3"sv},
    {0x0278, u"\u03C6"sv}, {0x02BB, u"\uFFFF"sv}, {0x02C7, u"\uFFFF"sv}, {0x02CA, u"'"sv},
    {0x02D8, u"\uFFFF\uFFFF"sv}, {0x0301, u"'"sv}, {0x0305, u"\uFFFF"sv}, {0x0308, u"\""sv}, {0x0327, u","sv},
    {0x0391, u"\u03B1"sv}, {0x0394, u"\u03B4\u03B5"sv}, {0x03A0, u"\u03C0"sv}, {0x03A4, u"\u03C4"sv},
    {0x03BC, u"\u00B5"sv}, {0x2017, u"_`"sv}, {0x201A, u","sv}, {0x201E, u","sv}, {0x2020, u"+\u256A"sv},
    {0x2024, u"\u00B7"sv}, {0x2026, u"."sv}, {0x2033, u"\uFFFF"sv}, {0x2035, u"`"sv}, {0x2070, u"\u00B0"sv},
    {0x20A4, u"\u00A3"sv}, {0x20DD, u"\011"sv}, {0x2122, u"T"sv}, {0x2126, u"\u03A9"sv},
    {0x212B, u"\u00C5"sv}, {0x2205, u"\u03C6"sv}, {0x2211, u"\u03A3"sv}, {0x2213, u"\u00B1"sv},
    {0x22C5, u"\u00B7"sv}, {0x2713, u"\u221A"sv}, {0x275B, u"\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0x3007, u"\011"sv}, {0x301D, u"\uFFFF\uFFFF\uFFFF"sv}, {0x30FB, u"\u00B7\uFFFF"sv},
};

constexpr TCharText cTexts708[] = {
    {0x0080, u"\u2502\u2524\u00E9\u00E2\u2561\u00E0\u2562\u00E7\u00EA\u00EB\u00E8\u00EF\u00EE\u2556"sv},
    {0x008E, u"\u2555\u2563\u2551\u2557\u255D\u00F4\u255C\u255B\u00FB\u00F9\u2510\u2514"sv},
    {0x00A0, u"\uFFFF\u2534\u252C\u251C"sv}, {0x00A5, u"\u2500\u253C\u255E\u255F\u255A\u2554\u2569"sv},
    {0x00AD, u"\u2566\u00AB\u00BB\u2591\u2592\u2593\u2560\u2550\u256C\u2567\u2568\u2564\u2565\u2559"sv},
    {0x00BC, u"\u2558\u2552\u2553"sv}, {0x00C0, u"\u256B"sv}, {0x00DB, u"\u2588\u2584\u258C\u2590\u2580"sv},
    {0x00F9, u"\u256A\u2518\u250C\u00B5\u00A3\u25A0\u00A0"sv},
};

constexpr TCharText cLenient708[] = {
    {0x00A0, u"\uF8C1"sv}, {0x00F3, u"\uF8C2\uF8C3\uF8C4\uF8C5\uF8C6\uF8C7"sv},
};

constexpr TCharText cFits708[] = {
    {0xF8C1, u"\uF8C1\uF8C2\uF8C3\uF8C4\uF8C5\uF8C6\uF8C7"sv},
    {0xFF01, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF0F, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF1D, u"\uFFFF\uFFFF"sv},
    {0xFF20, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF2E, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF3C, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF4A, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF58, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
};

constexpr TCharText cTexts720[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177\200\201"sv}, {0x0084, u"\204"sv},
    {0x0086, u"\206"sv}, {0x008D, u"\215\216\217\220"sv},
};

constexpr TCharText cFits720[] = {
    {0xFE70, u"\u064B\u064B\u064C"sv}, {0xFE74, u"\u064D"sv},
    {0xFE76, u"\u064E\u064E\u064F\u064F\u0650\u0650\u0651\u0651\u0652\u0652\u0621\u0622\u0622\u0623"sv},
    {0xFE84, u"\u0623\u0624\u0624\u0625\u0625\u0626\u0626\u0626\u0626\u0627\u0627\u0628\u0628\u0628"sv},
    {0xFE92, u"\u0628\u0629\u0629\u062A\u062A\u062A\u062A\u062B\u062B\u062B\u062B\u062C\u062C\u062C"sv},
    {0xFEA0, u"\u062C\u062D\u062D\u062D\u062D\u062E\u062E\u062E\u062E\u062F\u062F\u0630\u0630\u0631"sv},
    {0xFEAE, u"\u0631\u0632\u0632\u0633\u0633\u0633\u0633\u0634\u0634\u0634\u0634\u0635\u0635\u0635"sv},
    {0xFEBC, u"\u0635\u0636\u0636\u0636\u0636\u0637\u0637\u0637\u0637\u0638\u0638\u0638\u0638\u0639"sv},
    {0xFECA, u"\u0639\u0639\u0639\u063A\u063A\u063A\u063A\u0641\u0641\u0641\u0641\u0642\u0642\u0642"sv},
    {0xFED8, u"\u0642\u0643\u0643\u0643\u0643\u0644\u0644\u0644\u0644\u0645\u0645\u0645\u0645\u0646"sv},
    {0xFEE6, u"\u0646\u0646\u0646\u0647\u0647\u0647\u0647\u0648\u0648\u0649\u0649\u064A\u064A\u064A"sv},
    {0xFEF4, u"\u064A"sv},
};

constexpr TCharText cTexts737[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv},
};

constexpr TCharText cFits737[] = {
    {0x00A7, u"\025"sv}, {0x00B6, u"\024"sv}, {0x037E, u";"sv}, {0x2022, u"\007"sv}, {0x203C, u"\023"sv},
    {0x2190, u"\033\030\032\031\035\022"sv}, {0x21A8, u"\027"sv}, {0x221F, u"\034"sv}, {0x2302, u"\177"sv},
    {0x25AC, u"\026"sv}, {0x25B2, u"\036"sv}, {0x25BA, u"\020"sv}, {0x25BC, u"\037"sv}, {0x25C4, u"\021"sv},
    {0x25CB, u"\011"sv}, {0x25D8, u"\010\012"sv}, {0x263A, u"\001\002\017"sv}, {0x2640, u"\014"sv},
    {0x2642, u"\013"sv}, {0x2660, u"\006"sv}, {0x2663, u"\005"sv}, {0x2665, u"\003\004"sv},
    {0x266A, u"\015\016"sv},
};

constexpr TCharText cTexts775[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv},
};

constexpr TCharText cFits775[] = {
    {0x00C1, u"\uFFFF\uFFFF"sv}, {0x00C7, u"\uFFFF"sv}, {0x00CB, u"\uFFFF"sv}, {0x00CD, u"\uFFFF\uFFFF"sv},
    {0x00D4, u"\uFFFF"sv}, {0x00DA, u"\uFFFF"sv}, {0x00DD, u"\uFFFF"sv}, {0x00E1, u"\uFFFF\uFFFF"sv},
    {0x00E7, u"\uFFFF"sv}, {0x00EB, u"\uFFFF"sv}, {0x00ED, u"\uFFFF\uFFFF"sv}, {0x00F4, u"\uFFFF"sv},
    {0x00FA, u"\uFFFF"sv}, {0x00FD, u"\uFFFF"sv}, {0x0102, u"\uFFFF\uFFFF"sv},
    {0x010E, u"\uFFFF\uFFFF\uFFFF\uFFFF"sv}, {0x011A, u"\uFFFF\uFFFF"sv}, {0x0139, u"\uFFFF\uFFFF"sv},
    {0x013D, u"\uFFFF\uFFFF"sv}, {0x0147, u"\uFFFF\uFFFF"sv}, {0x0150, u"\uFFFF\uFFFF"sv},
    {0x0154, u"\uFFFF\uFFFF"sv}, {0x0158, u"\uFFFF\uFFFF"sv}, {0x015E, u"\uFFFF\uFFFF"sv},
    {0x0162, u"\uFFFF\uFFFF\uFFFF\uFFFF"sv}, {0x016E, u"\uFFFF\uFFFF\uFFFF\uFFFF"sv}, {0x02C7, u"\uFFFF"sv},
    {0x02D8, u"\uFFFF\uFFFF"sv},
};

constexpr TCharText cTexts850[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv},
};

constexpr TCharText cFits850[] = {
    {0x01A9, u"S"sv}, {0x01B6, u"Z"sv}, {0x01C0, u"\u2502"sv}, {0x0278, u"\u00F8"sv}, {0x02B9, u"\u00B4"sv},
    {0x02CA, u"\u00B4'"sv}, {0x02DB, u"\uFFFF"sv}, {0x02DD, u"\uFFFF"sv}, {0x0300, u"'\u00B4"sv},
    {0x0304, u"\u00AF\u00AF"sv}, {0x0308, u"\u00A8"sv}, {0x0327, u"\u00B8"sv}, {0x0393, u"G"sv},
    {0x0398, u"\u00D8"sv}, {0x03A3, u"S"sv}, {0x03A6, u"F"sv}, {0x03A9, u"O"sv}, {0x03B1, u"a"sv},
    {0x03B4, u"de"sv}, {0x03C0, u"p"sv}, {0x03C3, u"st"sv}, {0x03C6, u"f"sv}, {0x2018, u"'"sv},
    {0x201A, u"'"sv}, {0x201E, u"\""sv}, {0x2020, u"\u253C\u256C"sv}, {0x2024, u"\007"sv},
    {0x2032, u"\u00B4"sv}, {0x2035, u"\u00B4"sv}, {0x2070, u"0"sv}, {0x2078, u"9"sv}, {0x207F, u"n"sv},
    {0x2081, u"\u00B9\u00B2\u00B3"sv}, {0x20A7, u"P"sv}, {0x20DD, u"O"sv}, {0x2126, u"O"sv},
    {0x2205, u"\u00D8"sv}, {0x2211, u"S"sv}, {0x2216, u"/"sv}, {0x221A, u"V"sv}, {0x221E, u"8"sv},
    {0x2223, u"\u2502"sv}, {0x2229, u"n"sv}, {0x2248, u"~"sv}, {0x2261, u"="sv}, {0x2264, u"=="sv},
    {0x2310, u"\u00AC"sv}, {0x2320, u"()"sv}, {0x2552, u"\u2554\u2554"sv}, {0x2555, u"\u2557\u2557"sv},
    {0x2558, u"\u255A\u255A"sv}, {0x255B, u"\u255D\u255D"sv}, {0x255E, u"\u2560\u2560"sv},
    {0x2561, u"\u2563\u2563"sv}, {0x2564, u"\u2566\u2566"sv}, {0x2567, u"\u2569\u2569"sv},
    {0x256A, u"\u256C\u256C"sv}, {0x258C, u"\u2588"sv}, {0x2590, u"\u2588"sv}, {0x2713, u"V"sv},
    {0x2758, u"\u2502"sv}, {0x3007, u"O"sv},
};

constexpr TCharText cTexts852[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv}, {0x00AA, u"\u00AC"sv},
};

constexpr TCharText cFits852[] = {
    {0x00A1, u"!cL"sv}, {0x00A5, u"Y|"sv}, {0x00AA, u"a"sv}, {0x00AF, u"\u2500"sv}, {0x00B2, u"23"sv},
    {0x00B5, u"u"sv}, {0x00B7, u"\007"sv}, {0x00B9, u"1o"sv}, {0x00BC, u"113"sv}, {0x00C6, u"A"sv},
    {0x00E6, u"a"sv}, {0x00E8, u"c"sv}, {0x0131, u"i"sv}, {0x0189, u"\u0110"sv}, {0x02C9, u"\u2500"sv},
    {0x0306, u"\u02D8\u02D9"sv}, {0x030C, u"\u02C7"sv}, {0x03BC, u"u"sv}, {0x2213, u"-"sv}, {0x301B, u"]"sv},
};

constexpr TCharText cTexts855[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv},
};

constexpr TCharText cFits855[] = {
    {0x00A6, u"\uFFFF"sv}, {0x00AC, u"-"sv}, {0x00B0, u"o"sv}, {0x00B5, u"u"sv}, {0x00B7, u"\007"sv},
    {0x00FD, u"\uFFFF"sv}, {0x2020, u"++"sv}, {0x2219, u"\007v"sv}, {0x2552, u"\u2554\u2554"sv},
    {0x2555, u"\u2557\u2557"sv}, {0x2558, u"\u255A\u255A"sv}, {0x255B, u"\u255D\u255D"sv},
    {0x255E, u"\u2560\u2560"sv}, {0x2561, u"\u2563\u2563"sv}, {0x2564, u"\u2566\u2566"sv},
    {0x2567, u"\u2569\u2569"sv}, {0x256A, u"\u256C\u256C"sv}, {0x258C, u"\u2588"sv}, {0x2590, u"\u2588"sv},
    {0x2660, u"\177"sv}, {0x2663, u"\177"sv}, {0x2665, u"\177\177"sv}, {0x266A, u"dd"sv},
};

constexpr TCharText cTexts857[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv},
};

constexpr TCharText cLenient857[] = {
    {0x00D5, u"\uF8BB"sv}, {0x00E7, u"\uF8BC"sv}, {0x00F2, u"\uF8BD"sv},
};

constexpr TCharText cFits857[] = {
    {0x0152, u"Oo"sv}, {0x0189, u"D"sv}, {0x0191, u"Ff"sv}, {0x01B6, u"z"sv}, {0x01C0, u"|"sv},
    {0x01C3, u"!"sv}, {0x0261, u"g"sv}, {0x02B9, u"'\"''"sv}, {0x02C4, u"^"sv}, {0x02C6, u"^^'\026\u00B4`"sv},
    {0x02CD, u"_"sv}, {0x02D8, u"^\u00B7\u00B0\u00B8~\u00A8"sv},
    {0x0300, u"`\u00B4^~\u2500\u2500^\u00B7\u00A8"sv}, {0x030A, u"\u00B0"sv}, {0x030C, u"^"sv},
    {0x030E, u"\""sv}, {0x0327, u"\u00B8"sv}, {0x0331, u"__"sv}, {0x037E, u";"sv}, {0x03B2, u"\u00DF"sv},
    {0x03BC, u"\u00B5"sv}, {0x04BB, u"h"sv}, {0x0589, u":"sv}, {0x066A, u"%"sv}, {0x2000, u"       "sv},
    {0x2010, u"--"sv}, {0x2021, u"\u253C"sv}, {0x2024, u"\007"sv}, {0x2026, u"\007"sv}, {0x2032, u"'\""sv},
    {0x2035, u"\""sv}, {0x2044, u"/"sv}, {0x2070, u"0"sv}, {0x2074, u"45678"sv}, {0x2080, u"0123456789"sv},
    {0x20A4, u"L"sv}, {0x2102, u"C"sv}, {0x2107, u"E"sv}, {0x210A, u"gHHHh"sv}, {0x2110, u"IILl"sv},
    {0x2115, u"N"sv}, {0x2118, u"PPQRRR"sv}, {0x2122, u"t"sv}, {0x2124, u"Z"sv}, {0x2128, u"Z"sv},
    {0x212A, u"KABCeeEF"sv}, {0x2133, u"Mo"sv}, {0x2205, u"O"sv}, {0x2212, u"-\u00B1"sv},
    {0x2215, u"/\\*\u00B0\007"sv}, {0x2223, u"|"sv}, {0x2236, u":"sv}, {0x223C, u"~"sv},
    {0x226A, u"\u00AB\u00BB"sv}, {0x22C5, u"\007"sv}, {0x2303, u"^"sv}, {0x2329, u"<>"sv}, {0x2758, u"|"sv},
    {0x275B, u"''\"\""sv}, {0x3000, u" "sv}, {0x3008, u"<>\u00AB\u00BB"sv}, {0x301A, u"[}"sv},
    {0x301D, u"\"\"\""sv}, {0x30FB, u"\007_"sv}, {0xF8BB, u"\uF8BB\uF8BC\uF8BD"sv},
};

constexpr TCharText cTexts858[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv},
};

constexpr TCharText cTexts860[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv}, {0x00E6, u"\u00B5"sv},
};

constexpr TCharText cFits860[] = {
    {0x0160, u"\\|"sv}, {0x0191, u"F"sv}, {0x01C0, u"|"sv}, {0x0278, u"f"sv}, {0x2010, u"__"sv},
    {0x2013, u"__"sv}, {0x201A, u","sv}, {0x2026, u"."sv}, {0x2035, u"`"sv}, {0x212B, u"A"sv},
    {0x226B, u"\u00BB"sv}, {0x2310, u"\u00AC"sv}, {0x300B, u"\u00BB"sv},
};

constexpr TCharText cTexts861[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv}, {0x00E6, u"\u00B5"sv},
};

constexpr TCharText cFits861[] = {
    {0x00A6, u"\u2502"sv}, {0x00AD, u"_"sv}, {0x00AF, u"\026"sv}, {0x00B4, u"/"sv}, {0x00BE, u"3"sv},
    {0x00D7, u"X"sv}, {0x0110, u"\u00D0"sv}, {0x0189, u"\u00D0"sv}, {0x01A9, u"\u2229"sv},
    {0x01C0, u"\u2502"sv}, {0x0278, u"f"sv}, {0x02C9, u"\026/"sv}, {0x0301, u"/"sv}, {0x0304, u"\026\026"sv},
    {0x2018, u"'"sv}, {0x201A, u"'"sv}, {0x201E, u"\""sv}, {0x2020, u"\u253C"sv}, {0x2024, u"\007"sv},
    {0x2026, u"\007"sv}, {0x2035, u"'"sv}, {0x2070, u"0"sv}, {0x2082, u"\u00B2"sv}, {0x20DD, u"O"sv},
    {0x2118, u"p"sv}, {0x2122, u"t"sv}, {0x2205, u"O"sv}, {0x2212, u"_"sv}, {0x22C5, u"\007"sv},
    {0x2758, u"\u2502"sv}, {0x3007, u"O"sv}, {0x30FB, u"\007"sv},
    {0xFF01, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF0F, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF1D, u"\uFFFF\uFFFF"sv},
    {0xFF20, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF2E, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF3C, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF4A, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF58, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
};

constexpr TCharText cTexts862[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv}, {0x00E6, u"\u00B5"sv},
};

constexpr TCharText cFits862[] = {
    {0x00C4, u"\uFFFF\uFFFF\uFFFF\uFFFF"sv}, {0x00C9, u"\uFFFF"sv}, {0x00D6, u"\uFFFF"sv},
    {0x00DC, u"\uFFFF"sv}, {0x00E0, u"\uFFFF"sv}, {0x00E2, u"\uFFFF"sv},
    {0x00E4, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv}, {0x00EE, u"\uFFFF\uFFFF"sv},
    {0x00F2, u"\uFFFF"sv}, {0x00F4, u"\uFFFF"sv}, {0x00F6, u"\uFFFF"sv}, {0x00F9, u"\uFFFF"sv},
    {0x00FB, u"\uFFFF\uFFFF"sv}, {0x00FF, u"\uFFFF"sv},
};

constexpr TCharText cTexts863[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv}, {0x00E6, u"\u00B5"sv},
};

constexpr TCharText cFits863[] = {
    {0x00AD, u"\026"sv}, {0x00B9, u"3"sv}, {0x02B9, u"\"'"sv}, {0x02CA, u"\u00B4"sv}, {0x02DB, u"\uFFFF"sv},
    {0x02DD, u"\uFFFF"sv}, {0x0301, u"\u00B4"sv}, {0x0308, u"\u00A8"sv}, {0x030E, u"\u00A8"sv},
    {0x0327, u"\u00B8"sv}, {0x2083, u"\u00B3"sv}, {0x20A7, u"P"sv}, {0x212B, u"A"sv}, {0x226B, u"\u00BB"sv},
    {0x300B, u"\u00BB"sv},
};

constexpr TCharText cTexts864[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv}, {0x009B, u"\233\234"sv},
    {0x009F, u"\237"sv}, {0x00D7, u"\uFEC1\uFEC5"sv}, {0x00F1, u"\u0651"sv},
};

constexpr TCharText cLenient864[] = {
    {0x00A6, u"\uF8BE\uF8BF"sv}, {0x00FF, u"\uF8C0"sv},
};

constexpr TCharText cFits864[] = {
    {0x00A7, u"\025"sv}, {0x00B6, u"\024"sv}, {0x0392, u"\u03B2"sv}, {0x03A6, u"\u03C6"sv}, {0x066A, u"%"sv},
    {0x203C, u"\023"sv}, {0x2190, u"\033\030\032\031\035\022"sv}, {0x21A8, u"\027"sv}, {0x221F, u"\034"sv},
    {0x2302, u"\177"sv}, {0x2550, u"\005\006"sv}, {0x2554, u"\015"sv}, {0x2557, u"\014"sv},
    {0x255A, u"\016"sv}, {0x255D, u"\017"sv}, {0x2560, u"\012"sv}, {0x2563, u"\010"sv}, {0x2566, u"\011"sv},
    {0x2569, u"\013"sv}, {0x256C, u"\007"sv}, {0x25AC, u"\026"sv}, {0x25B2, u"\036"sv}, {0x25BA, u"\020"sv},
    {0x25BC, u"\037"sv}, {0x25C4, u"\021"sv}, {0x263A, u"\001"sv}, {0x263C, u"\004"sv},
    {0x266A, u"\002\003"sv}, {0xF8BE, u"\uF8BE\uF8BF\uF8C0"sv},
};

constexpr TCharText cTexts865[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv}, {0x00E6, u"\u00B5"sv},
};

constexpr TCharText cFits865[] = {
    {0x00DE, u"T"sv}, {0x00FE, u"t"sv}, {0x0110, u"D"sv}, {0x0189, u"D"sv}, {0x01A9, u"\u03A3"sv},
    {0x0278, u"\u03C6"sv}, {0x226B, u"<"sv}, {0x300B, u">"sv},
};

constexpr TCharText cTexts866[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177"sv},
};

constexpr TCharText cFits866[] = {
    {0x00A1, u"\uFFFF\uFFFF"sv}, {0x00A5, u"\uFFFF\u2502\025"sv}, {0x00A9, u"c\uFFFF"sv},
    {0x00AC, u"\u2510"sv}, {0x00B1, u"+\uFFFF\uFFFF"sv}, {0x00B5, u"\u0447\024"sv},
    {0x00B8, u"\uFFFF\uFFFF\uFFFF"sv}, {0x00C6, u"\uFFFF"sv}, {0x00D0, u"\uFFFF"sv}, {0x00E6, u"\uFFFF"sv},
    {0x0131, u"\uFFFF"sv}, {0x0152, u"\uFFFF\uFFFF"sv}, {0x0189, u"\uFFFF"sv}, {0x0191, u"\uFFFF\uFFFF"sv},
    {0x01B6, u"\uFFFF"sv}, {0x0261, u"\uFFFF"sv}, {0x02B9, u"\uFFFF\uFFFF"sv}, {0x02BC, u"\uFFFF"sv},
    {0x02C4, u"\uFFFF"sv}, {0x02C6, u"\uFFFF"sv}, {0x02C8, u"\uFFFF"sv}, {0x02CB, u"\uFFFF"sv},
    {0x02CD, u"\uFFFF"sv}, {0x02DC, u"\uFFFF"sv}, {0x0300, u"\uFFFF"sv}, {0x0302, u"\uFFFF\uFFFF"sv},
    {0x030E, u"\uFFFF"sv}, {0x0331, u"\uFFFF\uFFFF"sv},
    {0x2000, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv}, {0x2010, u"\uFFFF\uFFFF"sv}, {0x201A, u"'"sv},
    {0x2020, u"\u253C\u256A\007"sv}, {0x2026, u":"sv}, {0x2030, u"%"sv}, {0x2032, u"\uFFFF"sv},
    {0x2035, u"\uFFFF"sv}, {0x203C, u"\023"sv}, {0x2190, u"\033\030\032\031\035\022"sv}, {0x21A8, u"\027"sv},
    {0x221F, u"\034"sv}, {0x2302, u"\177"sv}, {0x25AC, u"\026"sv}, {0x25B2, u"\036"sv}, {0x25BA, u"\020"sv},
    {0x25BC, u"\037"sv}, {0x25C4, u"\021"sv}, {0x25CB, u"\011"sv}, {0x25D8, u"\010\012"sv},
    {0x263A, u"\001\002\017"sv}, {0x2640, u"\014"sv}, {0x2642, u"\013"sv}, {0x2660, u"\006"sv},
    {0x2663, u"\005"sv}, {0x2665, u"\003\004"sv}, {0x266A, u"\015\016"sv},
};

constexpr TCharText cTexts869[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177\200\201\202\203\204\205"sv},
    {0x0087, u"\207\u00B7"sv}, {0x0093, u"\223\224"sv}, {0x00EF, u"\u0384"sv},
};

constexpr TCharText cFits869[] = {
    {0x00A4, u"oY"sv}, {0x00B4, u"\u0384\u03BC"sv}, {0x0191, u"Ff"sv}, {0x030D, u"\u0384"sv},
    {0x037E, u";"sv}, {0x2013, u"\026\026"sv}, {0x201A, u"\u2019"sv}, {0x2020, u"++"sv},
};

constexpr TCharText cLenient874[] = {
    {0x00DB, u"\uF8C1\uF8C2\uF8C3\uF8C4"sv}, {0x00FC, u"\uF8C5\uF8C6\uF8C7\uF8C8"sv},
};

constexpr TCharText cFits874[] = {
    {0x037E, u"\uFFFF"sv}, {0x2500, u"\u0E24"sv}, {0x2502, u"\u0E13"sv}, {0x250C, u"\u0E3A"sv},
    {0x2510, u"\u0E1F"sv}, {0x2514, u"\u0E20"sv}, {0x2518, u"\u0E39"sv}, {0x2550, u"\u0E2D\u0E1A"sv},
    {0x2554, u"\u0E29"sv}, {0x2557, u"\u0E1B"sv}, {0x255A, u"\u0E28"sv}, {0x255D, u"\u0E1C"sv},
    {0x2584, u"\uF8C2"sv}, {0xF8C1, u"\uF8C1\uF8C2\uF8C3\uF8C4\uF8C5\uF8C6\uF8C7\uF8C8"sv},
};

constexpr TCharText cTexts875[] = {
    {0x00DC, u"\032"sv}, {0x00E1, u"\032"sv}, {0x00EC, u"\032\032"sv}, {0x00FC, u"\032\032"sv},
};

constexpr TCharText cFits875[] = {
    {0x03D5, u"\u03C6"sv},
};

constexpr TCharText cTexts932[] = {
    {0x001A, u"\032"sv}, {0x001C, u"\034"sv}, {0x007F, u"\177\200"sv},
};

constexpr TCharText cLenient932[] = {
    {0x00A0, u"\uF8F0"sv}, {0x00FD, u"\uF8F1\uF8F2\uF8F3"sv},
};

constexpr TCodeRange cPreferred932[] = {
    {0xFA40, 0xFA49}, {0xFA55, 0xFA57}, {0xFA5C, 0xFA7E}, {0xFA80, 0xFAFC}, {0xFB40, 0xFB7E},
    {0xFB80, 0xFBFC}, {0xFC40, 0xFC4B},
};

constexpr TCharText cFits932[] = {
    {0x00A5, u"\\"sv}, {0x00A9, u"c"sv}, {0x00FD, u"yty"sv}, {0x3094, u"\u30F4"sv},
    {0xF8F0, u"\uF8F0\uF8F1\uF8F2\uF8F3"sv},
};

constexpr TCharText cTexts936[] = {
    {0x00FF, u"\uFFFF"sv},
};

constexpr TCharText cLenient936[] = {
    {0x00FF, u"\uF8F5"sv},
};

constexpr TCharText cFits936[] = {
    {0x00A1, u"\uFFFF"sv}, {0x00AC, u"\uFFFF"sv}, {0x00AE, u"\uFFFF\u02C9"sv}, {0x00B4, u"\u2032"sv},
    {0x00B8, u"\uFFFF"sv},
    {0x00C0, u"\u00E0\u00E1\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\u00E8\u00E9\u00EA\uFFFF\u00EC\u00ED"sv},
    {0x00CE, u"\uFFFF\uFFFF"sv}, {0x00D1, u"\uFFFF\u00F2\u00F3\uFFFF\uFFFF\uFFFF"sv},
    {0x00D8, u"\uFFFF\u00F9\u00FA\uFFFF\u00FC"sv}, {0x00DF, u"\uFFFF"sv},
    {0x00E3, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv}, {0x00EB, u"\uFFFF"sv}, {0x00EE, u"\uFFFF\uFFFF"sv},
    {0x00F1, u"\uFFFF"sv}, {0x00F4, u"\uFFFF\uFFFF\uFFFF"sv}, {0x00F8, u"\uFFFF"sv}, {0x00FB, u"\uFFFF"sv},
    {0x00FF, u"\uFFFF\u0101"sv}, {0x0112, u"\u0113"sv}, {0x011A, u"\u011B"sv}, {0x012A, u"\u012B"sv},
    {0x014C, u"\u014D"sv}, {0x016A, u"\u016B"sv}, {0x01C1, u"\u2225"sv}, {0x01CD, u"\u01CE"sv},
    {0x01CF, u"\u01D0"sv}, {0x01D1, u"\u01D2"sv}, {0x01D3, u"\u01D4"sv}, {0x01D5, u"\u01D6"sv},
    {0x01D7, u"\u01D8"sv}, {0x01D9, u"\u01DA"sv}, {0x01DB, u"\u01DC"sv}, {0x2024, u"\uFFFF"sv},
    {0x2216, u"\uFFFF"sv}, {0x223C, u"\uFF5E"sv}, {0x2263, u"\uFFFF"sv}, {0x2307, u"\uFFFF"sv},
    {0x2641, u"\uFFFF"sv}, {0x301C, u"\uFFFF"sv}, {0x3030, u"\uFFFF"sv}, {0x3236, u"\u8D22"sv},
    {0x3238, u"\u52B3"sv}, {0x323B, u"\u5B66\u76D1"sv}, {0x323E, u"\u8D44\u534F"sv}, {0x3296, u"\u8D22"sv},
    {0x3298, u"\u52B3"sv}, {0x329C, u"\u9002\u4F18\uFFFF"sv}, {0x32A0, u"\u9879"sv}, {0x32A2, u"\u5199"sv},
    {0x32A4, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\u533B"sv}, {0x32AB, u"\u5B66\u76D1"sv},
    {0x32AE, u"\u8D44\u534F"sv}, {0xF8F5, u"\uF8F5"sv}, {0xFF64, u"\uFFFF"sv},
};

constexpr TCharText cTexts949[] = {
    {0x00FF, u"\uFFFF"sv},
};

constexpr TCharText cLenient949[] = {
    {0x00FF, u"\uF8F7"sv},
};

constexpr TCharText cFits949[] = {
    {0x1100, u"\u3131\u3132\u3134\u3137\u3138\u3139\u3141\u3142\u3143\u3145\u3146\u3147\u3148\u3149"sv},
    {0x110E, u"\u314A\u314B\u314C\u314D\u314E"sv}, {0x1114, u"\u3165\u3166"sv}, {0x111A, u"\u316D"sv},
    {0x111C, u"\u316E\u3171\u3172"sv}, {0x1120, u"\u3173\u3144\u3174\u3175"sv}, {0x1127, u"\u3176"sv},
    {0x1129, u"\u3177"sv}, {0x112B, u"\u3178\u3179\u317A\u317B\u317C"sv}, {0x1132, u"\u317D"sv},
    {0x1136, u"\u317E"sv}, {0x113C, u"\u3145\u3146\u3145\u3146\u317F"sv}, {0x1145, u"\u3182\u3183\u3180"sv},
    {0x114C, u"\u3147"sv}, {0x114E, u"\u3148\u3149\u3148\u3149"sv}, {0x1154, u"\u314A\u314A"sv},
    {0x1157, u"\u3184\u3185\u3186"sv}, {0x115F, u"\u3164"sv},
    {0x1161, u"\u314F\u3150\u3151\u3152\u3153\u3154\u3155\u3156\u3157\u3158\u3159\u315A\u315B\u315C"sv},
    {0x116F, u"\u315D\u315E\u315F\u3160\u3161\u3162\u3163"sv}, {0x1184, u"\u3187\u3188"sv},
    {0x1188, u"\u3189"sv}, {0x1191, u"\u318A\u318B"sv}, {0x1194, u"\u318C"sv}, {0x119E, u"\u318D"sv},
    {0x11A1, u"\u318E"sv},
    {0x11A8, u"\u3131\u3132\u3133\u3134\u3135\u3136\u3137\u3139\u313A\u313B\u313C\u313D\u313E\u313F"sv},
    {0x11B6, u"\u3140\u3141\u3142\u3144\u3145\u3146\u3147\u3148\u314A\u314B\u314C\u314D\u314E"sv},
    {0x11C6, u"\u3166\u3167\u3168"sv}, {0x11CC, u"\u3169"sv}, {0x11CE, u"\u316A"sv}, {0x11D3, u"\u316B"sv},
    {0x11D7, u"\u316C"sv}, {0x11D9, u"\u316D"sv}, {0x11DC, u"\u316E\u316F"sv}, {0x11DF, u"\u3170"sv},
    {0x11E6, u"\u3178\u317A\u317C"sv}, {0x11EA, u"\u317D\u317F"sv}, {0x11EE, u"\u3180"sv},
    {0x11F0, u"\u3147\u3182\u3183"sv}, {0x11F4, u"\u3184"sv}, {0x11F9, u"\u3186"sv}, {0xF8F7, u"\uF8F7"sv},
};

constexpr TCharText cTexts950[] = {
    {0x00FF, u"\uFFFF"sv},
};

constexpr TCharText cLenient950[] = {
    {0x00FF, u"\uF8F8"sv},
};

constexpr TCodeRange cPreferred950[] = {
    {0xA451, 0xA451}, {0xA4CA, 0xA4CA}, {0xF9E9, 0xF9EB}, {0xF9F9, 0xF9F9},
};

constexpr TCharText cFits950[] = {
    {0x00A9, u"c"sv}, {0xF8F8, u"\uF8F8"sv},
};

constexpr TCharText cTexts1026[] = {
    {0x009A, u"\u00AA"sv},
};

constexpr TCharText cTexts1047[] = {
    {0x0015, u"\012"sv}, {0x0025, u"\205"sv},
};

constexpr TCharText cFits1250[] = {
    {0x00AF, u"\u2014"sv}, {0x00E8, u"e"sv}, {0x02BB, u"\u2018"sv}, {0x02C9, u"\u017B"sv},
    {0x0304, u"\u017B\u017B"sv}, {0x03BC, u"\u00B5"sv}, {0x2024, u"\u2022"sv}, {0x2033, u"\u201D"sv},
    {0x2035, u"`"sv}, {0x203C, u"!"sv}, {0x2070, u"\u00B0"sv}, {0x20A4, u"\u0141"sv}, {0x212B, u"\u0139"sv},
    {0x2190, u"\u2039^\u203A\u02C7-|"sv}, {0x21A8, u"|"sv}, {0x2205, u"\u0158"sv}, {0x2213, u"\u00B1"sv},
    {0x2219, u"\u2022"sv}, {0x221F, u"L"sv}, {0x22C5, u"\u00B7"sv}, {0x2302, u"\u00A6"sv},
    {0x2500, u"\u00A6"sv}, {0x2502, u"-"sv}, {0x250C, u"-"sv}, {0x2510, u"\u00AC"sv}, {0x2514, u"L"sv},
    {0x2518, u"-"sv}, {0x251C, u"+"sv}, {0x2524, u"+"sv}, {0x252C, u"T"sv}, {0x2534, u"+"sv},
    {0x253C, u"+"sv}, {0x2550, u"=\u00A6"sv}, {0x2554, u"-"sv}, {0x2557, u"\u00AC"sv}, {0x255A, u"L"sv},
    {0x255D, u"-"sv}, {0x2560, u"\u00A6"sv}, {0x2563, u"\u00A6"sv}, {0x2566, u"T"sv}, {0x2569, u"\u00A6"sv},
    {0x256C, u"+"sv}, {0x2580, u"-"sv}, {0x2584, u"-"sv}, {0x2588, u"-"sv}, {0x2591, u"---"sv},
    {0x25A0, u"\u00A6"sv}, {0x25AC, u"-"sv}, {0x25B2, u"^"sv}, {0x25BA, u">"sv}, {0x25BC, u"\u02C7"sv},
    {0x25C4, u"<"sv}, {0x25CB, u"0"sv}, {0x25D8, u"\u20220"sv}, {0x263A, u"\u02D8\u02D80"sv},
    {0x2640, u"+"sv}, {0x2642, u">"sv}, {0x2660, u"\u00A6"sv}, {0x2663, u"\u00A6"sv},
    {0x2665, u"\u00A6\u00A6"sv}, {0x266A, u"dd"sv}, {0x275B, u"\u2018\u2019\u201C\u201D"sv},
    {0x301D, u"\u201C\u201D\u201E"sv}, {0x30FB, u"\u00B7\u2014"sv},
};

constexpr TCharText cFits1251[] = {
    {0x203C, u"!"sv}, {0x2190, u"<^>v-\u00A6"sv}, {0x21A8, u"\u00A6"sv}, {0x2219, u"\u2022v"sv},
    {0x221F, u"L"sv}, {0x2302, u"\u00A6"sv}, {0x2500, u"-"sv}, {0x2502, u"\u00A6"sv}, {0x250C, u"-"sv},
    {0x2510, u"\u00AC"sv}, {0x2514, u"L"sv}, {0x2518, u"-"sv}, {0x251C, u"+"sv}, {0x2524, u"+"sv},
    {0x252C, u"T"sv}, {0x2534, u"+"sv}, {0x253C, u"+"sv},
    {0x2550, u"=\u00A6-\u0433\u0433\u00AC\u00AC\u00ACLLL---\u00A6\u00A6\u00A6\u00A6\u00A6\u00A6TTT"sv},
    {0x2567, u"\u00A6\u00A6\u00A6+++"sv}, {0x2580, u"-"sv}, {0x2584, u"-"sv}, {0x2588, u"-"sv},
    {0x258C, u"\u00A6"sv}, {0x2590, u"\u00A6---"sv}, {0x25A0, u"\u00A6"sv}, {0x25AC, u"-"sv},
    {0x25B2, u"^"sv}, {0x25BA, u">"sv}, {0x25BC, u"\u040E"sv}, {0x25C4, u"<"sv}, {0x25CB, u"0"sv},
    {0x25D8, u"\u20220"sv}, {0x263A, u"OO0"sv}, {0x2640, u"+"sv}, {0x2642, u">"sv}, {0x2660, u"\u00A6"sv},
    {0x2663, u"\u00A6"sv}, {0x2665, u"\u00A6\u00A6"sv}, {0x266A, u"dd"sv},
};

constexpr TCharText cFits1252[] = {
    {0x0110, u"\u00D0"sv}, {0x0189, u"\u00D0"sv}, {0x01A9, u"\uFFFF"sv}, {0x01B6, u"z"sv}, {0x01C0, u"|"sv},
    {0x0278, u"\uFFFF"sv}, {0x02B9, u"'"sv}, {0x02C9, u"\u00AF"sv}, {0x02CB, u"`"sv}, {0x0300, u"`"sv},
    {0x0398, u"T"sv}, {0x2017, u"="sv}, {0x2024, u"\u00B7"sv}, {0x2032, u"'"sv}, {0x2035, u"`"sv},
    {0x203C, u"\uFFFF"sv}, {0x2070, u"\u00B0"sv}, {0x2078, u"8"sv}, {0x2081, u"123"sv}, {0x20A1, u"\u00A2"sv},
    {0x20DD, u"\uFFFF"sv}, {0x2126, u"\uFFFF"sv}, {0x2190, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0x21A8, u"\uFFFF"sv}, {0x2211, u"\uFFFF"sv}, {0x2216, u"\\"sv}, {0x2219, u"\u00B7v"sv},
    {0x221F, u"\uFFFF"sv}, {0x2223, u"|"sv}, {0x2248, u"\u02DC"sv}, {0x2302, u"\u00A6"sv}, {0x2500, u"-"sv},
    {0x2502, u"\u00A6"sv}, {0x250C, u"+"sv}, {0x2510, u"+"sv}, {0x2514, u"+"sv}, {0x2518, u"+"sv},
    {0x251C, u"+"sv}, {0x2524, u"\u00A6"sv}, {0x252C, u"-"sv}, {0x2534, u"-"sv}, {0x253C, u"+"sv},
    {0x2550, u"-\u00A6++++++++++++\u00A6\u00A6\u00A6\u00A6\u00A6\u00A6------+++"sv}, {0x2580, u"\u00AF"sv},
    {0x2584, u"_"sv}, {0x2588, u"\u00A6"sv}, {0x258C, u"\u00A6"sv}, {0x2590, u"\u00A6\u00A6\u00A6\u00A6"sv},
    {0x25A0, u"\u00A6"sv}, {0x25AC, u"\uFFFF"sv}, {0x25B2, u"\uFFFF"sv}, {0x25BA, u"\uFFFF"sv},
    {0x25BC, u"\uFFFF"sv}, {0x25C4, u"\uFFFF"sv}, {0x25CB, u"\uFFFF"sv}, {0x25D8, u"\uFFFF\uFFFF"sv},
    {0x263A, u"\uFFFF\uFFFF\u00A4"sv}, {0x2640, u"\uFFFF"sv}, {0x2642, u"\uFFFF"sv}, {0x2660, u"\uFFFF"sv},
    {0x2663, u"\uFFFF"sv}, {0x2665, u"\uFFFF\uFFFF"sv}, {0x266A, u"\uFFFF\uFFFF"sv}, {0x2713, u"\uFFFF"sv},
    {0x2758, u"|"sv}, {0x3007, u"\uFFFF"sv},
};

constexpr TCharText cTexts1253[] = {
    {0x00AA, u"\uFFFF"sv},
};

constexpr TCharText cLenient1253[] = {
    {0x00AA, u"\uF8F9"sv}, {0x00D2, u"\uF8FA"sv}, {0x00FF, u"\uF8FB"sv},
};

constexpr TCharText cFits1253[] = {
    {0x00B4, u"/"sv}, {0x0191, u"\u0192"sv}, {0x030D, u"\u0384"sv}, {0x037E, u";"sv},
    {0x2219, u"\uFFFF\uFFFF"sv}, {0x2552, u"\uFFFF"sv}, {0x2554, u"-\uFFFF\uFFFF"sv},
    {0x2558, u"\uFFFF\uFFFF"sv}, {0x255B, u"\uFFFF\uFFFF"sv}, {0x255E, u"\uFFFF\uFFFF"sv},
    {0x2561, u"\uFFFF\uFFFF"sv}, {0x2564, u"\uFFFF\uFFFF"sv}, {0x2567, u"\uFFFF\uFFFF"sv},
    {0x256A, u"\uFFFF\uFFFF"sv}, {0x258C, u"\uFFFF"sv}, {0x2590, u"\uFFFF"sv}, {0x25BC, u"\u0385"sv},
    {0xF8F9, u"\uF8F9\uF8FA\uF8FB"sv},
};

constexpr TCharText cFits1254[] = {
    {0x00DD, u"Y"sv}, {0x00FD, u"y"sv}, {0x0102, u"Aa"sv}, {0x010E, u"DdDd"sv}, {0x011A, u"Ee"sv},
    {0x0139, u"Ll"sv}, {0x013D, u"Ll"sv}, {0x0147, u"Nn"sv}, {0x0150, u"Oo"sv}, {0x0154, u"Rr"sv},
    {0x0158, u"Rr"sv}, {0x0162, u"TtTt"sv}, {0x016E, u"UuUu"sv}, {0x0189, u"D"sv}, {0x0191, u"\u0192"sv},
    {0x02C7, u"^"sv}, {0x02C9, u"\u00AF"sv}, {0x02D8, u"^'"sv}, {0x0303, u"\u02DC\u00AF\u00AF\u02C6\u00B7"sv},
    {0x030A, u"\u00A7"sv}, {0x030C, u"\u02C6"sv}, {0x030E, u"\u00A8"sv}, {0x037E, u"\uFFFF"sv},
    {0x2033, u"\u00A8"sv}, {0x2080, u"\u00B00\u00B2\u00B3"sv}, {0x20A4, u"\u00A3"sv}, {0x212B, u"\u00C5"sv},
    {0x2193, u"v"sv}, {0x2205, u"\u00D8"sv}, {0x25BC, u"\u00A1"sv}, {0x263A, u"OO"sv}, {0x301B, u"="sv},
    {0x301D, u"\"\""sv},
};

constexpr TCharText cTexts1255[] = {
    {0x00CA, u"\u05BA"sv},
};

constexpr TCharText cLenient1255[] = {
    {0x00D9, u"\uF88D\uF88E\uF88F\uF890\uF891\uF892\uF893"sv}, {0x00FB, u"\uF894\uF895"sv},
    {0x00FF, u"\uF896"sv},
};

constexpr TCharText cFits1255[] = {
    {0x00A4, u"\u20AA"sv}, {0x0191, u"F"sv},
    {0xF88D, u"\uF88D\uF88E\uF88F\uF890\uF891\uF892\uF893\uF894\uF895\uF896"sv},
};

constexpr TCharText cFits1256[] = {
    {0x00C0, u"A"sv}, {0x00C2, u"A"sv}, {0x00C7, u"CEEEE"sv}, {0x00CE, u"II"sv}, {0x00D4, u"O"sv},
    {0x00D9, u"U"sv}, {0x00DB, u"UU"sv}, {0x0191, u"F"sv}, {0x0660, u"0123456789"sv}, {0x06CC, u"\u064A"sv},
    {0xFB56, u"\u067E\u067E\u067E\u067E"sv}, {0xFB66, u"\u0679\u0679\u0679\u0679"sv},
    {0xFB7A, u"\u0686\u0686\u0686\u0686"sv},
    {0xFB88, u"\u0688\u0688\u0698\u0698\u0691\u0691\u06A9\u06A9\u06A9\u06A9\u06AF\u06AF\u06AF\u06AF"sv},
    {0xFB9E, u"\u06BA\u06BA"sv}, {0xFBA6, u"\u06C1\u06C1\u06C1\u06C1\u06BE\u06BE\u06BE\u06BE\u06D2\u06D2"sv},
};

constexpr TCharText cLenient1257[] = {
    {0x00A1, u"\uF8FC"sv}, {0x00A5, u"\uF8FD"sv},
};

constexpr TCharText cFits1257[] = {
    {0xF8FC, u"\uF8FC\uF8FD"sv},
};

constexpr TCharText cFits1258[] = {
    {0xFF01, u"!\"#$%&'()*+,-./0123456789:;<=>"sv},
    {0xFF20, u"@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~"sv},
};

constexpr TCodeRow cRows1361[] = {
    {0x8442, 16, 0x11A8}, {0x8453, 11, 0x11B8}, {0x8861, 17, 0xAC00}, {0x8873, 11, 0xAC11},
    {0x8881, 17, 0xAC1C}, {0x8893, 11, 0xAC2D}, {0x88A1, 17, 0xAC38}, {0x88B3, 11, 0xAC49},
    {0x88C1, 17, 0xAC54}, {0x88D3, 11, 0xAC65}, {0x88E1, 17, 0xAC70}, {0x88F3, 11, 0xAC81},
    {0x8941, 17, 0xAC8C}, {0x8953, 11, 0xAC9D}, {0x8961, 17, 0xACA8}, {0x8973, 11, 0xACB9},
    {0x8981, 17, 0xACC4}, {0x8993, 11, 0xACD5}, {0x89A1, 17, 0xACE0}, {0x89B3, 11, 0xACF1},
    {0x89C1, 17, 0xACFC}, {0x89D3, 11, 0xAD0D}, {0x89E1, 17, 0xAD18}, {0x89F3, 11, 0xAD29},
    {0x8A41, 17, 0xAD34}, {0x8A53, 11, 0xAD45}, {0x8A61, 17, 0xAD50}, {0x8A73, 11, 0xAD61},
    {0x8A81, 17, 0xAD6C}, {0x8A93, 11, 0xAD7D}, {0x8AA1, 17, 0xAD88}, {0x8AB3, 11, 0xAD99},
    {0x8AC1, 17, 0xADA4}, {0x8AD3, 11, 0xADB5}, {0x8AE1, 17, 0xADC0}, {0x8AF3, 11, 0xADD1},
    {0x8B41, 17, 0xADDC}, {0x8B53, 11, 0xADED}, {0x8B61, 17, 0xADF8}, {0x8B73, 11, 0xAE09},
    {0x8B81, 17, 0xAE14}, {0x8B93, 11, 0xAE25}, {0x8BA1, 17, 0xAE30}, {0x8BB3, 11, 0xAE41},
    {0x8C61, 17, 0xAE4C}, {0x8C73, 11, 0xAE5D}, {0x8C81, 17, 0xAE68}, {0x8C93, 11, 0xAE79},
    {0x8CA1, 17, 0xAE84}, {0x8CB3, 11, 0xAE95}, {0x8CC1, 17, 0xAEA0}, {0x8CD3, 11, 0xAEB1},
    {0x8CE1, 17, 0xAEBC}, {0x8CF3, 11, 0xAECD}, {0x8D41, 17, 0xAED8}, {0x8D53, 11, 0xAEE9},
    {0x8D61, 17, 0xAEF4}, {0x8D73, 11, 0xAF05}, {0x8D81, 17, 0xAF10}, {0x8D93, 11, 0xAF21},
    {0x8DA1, 17, 0xAF2C}, {0x8DB3, 11, 0xAF3D}, {0x8DC1, 17, 0xAF48}, {0x8DD3, 11, 0xAF59},
    {0x8DE1, 17, 0xAF64}, {0x8DF3, 11, 0xAF75}, {0x8E41, 17, 0xAF80}, {0x8E53, 11, 0xAF91},
    {0x8E61, 17, 0xAF9C}, {0x8E73, 11, 0xAFAD}, {0x8E81, 17, 0xAFB8}, {0x8E93, 11, 0xAFC9},
    {0x8EA1, 17, 0xAFD4}, {0x8EB3, 11, 0xAFE5}, {0x8EC1, 17, 0xAFF0}, {0x8ED3, 11, 0xB001},
    {0x8EE1, 17, 0xB00C}, {0x8EF3, 11, 0xB01D}, {0x8F41, 17, 0xB028}, {0x8F53, 11, 0xB039},
    {0x8F61, 17, 0xB044}, {0x8F73, 11, 0xB055}, {0x8F81, 17, 0xB060}, {0x8F93, 11, 0xB071},
    {0x8FA1, 17, 0xB07C}, {0x8FB3, 11, 0xB08D}, {0x9061, 17, 0xB098}, {0x9073, 11, 0xB0A9},
    {0x9081, 17, 0xB0B4}, {0x9093, 11, 0xB0C5}, {0x90A1, 17, 0xB0D0}, {0x90B3, 11, 0xB0E1},
    {0x90C1, 17, 0xB0EC}, {0x90D3, 11, 0xB0FD}, {0x90E1, 17, 0xB108}, {0x90F3, 11, 0xB119},
    {0x9141, 17, 0xB124}, {0x9153, 11, 0xB135}, {0x9161, 17, 0xB140}, {0x9173, 11, 0xB151},
    {0x9181, 17, 0xB15C}, {0x9193, 11, 0xB16D}, {0x91A1, 17, 0xB178}, {0x91B3, 11, 0xB189},
    {0x91C1, 17, 0xB194}, {0x91D3, 11, 0xB1A5}, {0x91E1, 17, 0xB1B0}, {0x91F3, 11, 0xB1C1},
    {0x9241, 17, 0xB1CC}, {0x9253, 11, 0xB1DD}, {0x9261, 17, 0xB1E8}, {0x9273, 11, 0xB1F9},
    {0x9281, 17, 0xB204}, {0x9293, 11, 0xB215}, {0x92A1, 17, 0xB220}, {0x92B3, 11, 0xB231},
    {0x92C1, 17, 0xB23C}, {0x92D3, 11, 0xB24D}, {0x92E1, 17, 0xB258}, {0x92F3, 11, 0xB269},
    {0x9341, 17, 0xB274}, {0x9353, 11, 0xB285}, {0x9361, 17, 0xB290}, {0x9373, 11, 0xB2A1},
    {0x9381, 17, 0xB2AC}, {0x9393, 11, 0xB2BD}, {0x93A1, 17, 0xB2C8}, {0x93B3, 11, 0xB2D9},
    {0x9461, 17, 0xB2E4}, {0x9473, 11, 0xB2F5}, {0x9481, 17, 0xB300}, {0x9493, 11, 0xB311},
    {0x94A1, 17, 0xB31C}, {0x94B3, 11, 0xB32D}, {0x94C1, 17, 0xB338}, {0x94D3, 11, 0xB349},
    {0x94E1, 17, 0xB354}, {0x94F3, 11, 0xB365}, {0x9541, 17, 0xB370}, {0x9553, 11, 0xB381},
    {0x9561, 17, 0xB38C}, {0x9573, 11, 0xB39D}, {0x9581, 17, 0xB3A8}, {0x9593, 11, 0xB3B9},
    {0x95A1, 17, 0xB3C4}, {0x95B3, 11, 0xB3D5}, {0x95C1, 17, 0xB3E0}, {0x95D3, 11, 0xB3F1},
    {0x95E1, 17, 0xB3FC}, {0x95F3, 11, 0xB40D}, {0x9641, 17, 0xB418}, {0x9653, 11, 0xB429},
    {0x9661, 17, 0xB434}, {0x9673, 11, 0xB445}, {0x9681, 17, 0xB450}, {0x9693, 11, 0xB461},
    {0x96A1, 17, 0xB46C}, {0x96B3, 11, 0xB47D}, {0x96C1, 17, 0xB488}, {0x96D3, 11, 0xB499},
    {0x96E1, 17, 0xB4A4}, {0x96F3, 11, 0xB4B5}, {0x9741, 17, 0xB4C0}, {0x9753, 11, 0xB4D1},
    {0x9761, 17, 0xB4DC}, {0x9773, 11, 0xB4ED}, {0x9781, 17, 0xB4F8}, {0x9793, 11, 0xB509},
    {0x97A1, 17, 0xB514}, {0x97B3, 11, 0xB525}, {0x9861, 17, 0xB530}, {0x9873, 11, 0xB541},
    {0x9881, 17, 0xB54C}, {0x9893, 11, 0xB55D}, {0x98A1, 17, 0xB568}, {0x98B3, 11, 0xB579},
    {0x98C1, 17, 0xB584}, {0x98D3, 11, 0xB595}, {0x98E1, 17, 0xB5A0}, {0x98F3, 11, 0xB5B1},
    {0x9941, 17, 0xB5BC}, {0x9953, 11, 0xB5CD}, {0x9961, 17, 0xB5D8}, {0x9973, 11, 0xB5E9},
    {0x9981, 17, 0xB5F4}, {0x9993, 11, 0xB605}, {0x99A1, 17, 0xB610}, {0x99B3, 11, 0xB621},
    {0x99C1, 17, 0xB62C}, {0x99D3, 11, 0xB63D}, {0x99E1, 17, 0xB648}, {0x99F3, 11, 0xB659},
    {0x9A41, 17, 0xB664}, {0x9A53, 11, 0xB675}, {0x9A61, 17, 0xB680}, {0x9A73, 11, 0xB691},
    {0x9A81, 17, 0xB69C}, {0x9A93, 11, 0xB6AD}, {0x9AA1, 17, 0xB6B8}, {0x9AB3, 11, 0xB6C9},
    {0x9AC1, 17, 0xB6D4}, {0x9AD3, 11, 0xB6E5}, {0x9AE1, 17, 0xB6F0}, {0x9AF3, 11, 0xB701},
    {0x9B41, 17, 0xB70C}, {0x9B53, 11, 0xB71D}, {0x9B61, 17, 0xB728}, {0x9B73, 11, 0xB739},
    {0x9B81, 17, 0xB744}, {0x9B93, 11, 0xB755}, {0x9BA1, 17, 0xB760}, {0x9BB3, 11, 0xB771},
    {0x9C61, 17, 0xB77C}, {0x9C73, 11, 0xB78D}, {0x9C81, 17, 0xB798}, {0x9C93, 11, 0xB7A9},
    {0x9CA1, 17, 0xB7B4}, {0x9CB3, 11, 0xB7C5}, {0x9CC1, 17, 0xB7D0}, {0x9CD3, 11, 0xB7E1},
    {0x9CE1, 17, 0xB7EC}, {0x9CF3, 11, 0xB7FD}, {0x9D41, 17, 0xB808}, {0x9D53, 11, 0xB819},
    {0x9D61, 17, 0xB824}, {0x9D73, 11, 0xB835}, {0x9D81, 17, 0xB840}, {0x9D93, 11, 0xB851},
    {0x9DA1, 17, 0xB85C}, {0x9DB3, 11, 0xB86D}, {0x9DC1, 17, 0xB878}, {0x9DD3, 11, 0xB889},
    {0x9DE1, 17, 0xB894}, {0x9DF3, 11, 0xB8A5}, {0x9E41, 17, 0xB8B0}, {0x9E53, 11, 0xB8C1},
    {0x9E61, 17, 0xB8CC}, {0x9E73, 11, 0xB8DD}, {0x9E81, 17, 0xB8E8}, {0x9E93, 11, 0xB8F9},
    {0x9EA1, 17, 0xB904}, {0x9EB3, 11, 0xB915}, {0x9EC1, 17, 0xB920}, {0x9ED3, 11, 0xB931},
    {0x9EE1, 17, 0xB93C}, {0x9EF3, 11, 0xB94D}, {0x9F41, 17, 0xB958}, {0x9F53, 11, 0xB969},
    {0x9F61, 17, 0xB974}, {0x9F73, 11, 0xB985}, {0x9F81, 17, 0xB990}, {0x9F93, 11, 0xB9A1},
    {0x9FA1, 17, 0xB9AC}, {0x9FB3, 11, 0xB9BD}, {0xA061, 17, 0xB9C8}, {0xA073, 11, 0xB9D9},
    {0xA081, 17, 0xB9E4}, {0xA093, 11, 0xB9F5}, {0xA0A1, 17, 0xBA00}, {0xA0B3, 11, 0xBA11},
    {0xA0C1, 17, 0xBA1C}, {0xA0D3, 11, 0xBA2D}, {0xA0E1, 17, 0xBA38}, {0xA0F3, 11, 0xBA49},
    {0xA141, 17, 0xBA54}, {0xA153, 11, 0xBA65}, {0xA161, 17, 0xBA70}, {0xA173, 11, 0xBA81},
    {0xA181, 17, 0xBA8C}, {0xA193, 11, 0xBA9D}, {0xA1A1, 17, 0xBAA8}, {0xA1B3, 11, 0xBAB9},
    {0xA1C1, 17, 0xBAC4}, {0xA1D3, 11, 0xBAD5}, {0xA1E1, 17, 0xBAE0}, {0xA1F3, 11, 0xBAF1},
    {0xA241, 17, 0xBAFC}, {0xA253, 11, 0xBB0D}, {0xA261, 17, 0xBB18}, {0xA273, 11, 0xBB29},
    {0xA281, 17, 0xBB34}, {0xA293, 11, 0xBB45}, {0xA2A1, 17, 0xBB50}, {0xA2B3, 11, 0xBB61},
    {0xA2C1, 17, 0xBB6C}, {0xA2D3, 11, 0xBB7D}, {0xA2E1, 17, 0xBB88}, {0xA2F3, 11, 0xBB99},
    {0xA341, 17, 0xBBA4}, {0xA353, 11, 0xBBB5}, {0xA361, 17, 0xBBC0}, {0xA373, 11, 0xBBD1},
    {0xA381, 17, 0xBBDC}, {0xA393, 11, 0xBBED}, {0xA3A1, 17, 0xBBF8}, {0xA3B3, 11, 0xBC09},
    {0xA461, 17, 0xBC14}, {0xA473, 11, 0xBC25}, {0xA481, 17, 0xBC30}, {0xA493, 11, 0xBC41},
    {0xA4A1, 17, 0xBC4C}, {0xA4B3, 11, 0xBC5D}, {0xA4C1, 17, 0xBC68}, {0xA4D3, 11, 0xBC79},
    {0xA4E1, 17, 0xBC84}, {0xA4F3, 11, 0xBC95}, {0xA541, 17, 0xBCA0}, {0xA553, 11, 0xBCB1},
    {0xA561, 17, 0xBCBC}, {0xA573, 11, 0xBCCD}, {0xA581, 17, 0xBCD8}, {0xA593, 11, 0xBCE9},
    {0xA5A1, 17, 0xBCF4}, {0xA5B3, 11, 0xBD05}, {0xA5C1, 17, 0xBD10}, {0xA5D3, 11, 0xBD21},
    {0xA5E1, 17, 0xBD2C}, {0xA5F3, 11, 0xBD3D}, {0xA641, 17, 0xBD48}, {0xA653, 11, 0xBD59},
    {0xA661, 17, 0xBD64}, {0xA673, 11, 0xBD75}, {0xA681, 17, 0xBD80}, {0xA693, 11, 0xBD91},
    {0xA6A1, 17, 0xBD9C}, {0xA6B3, 11, 0xBDAD}, {0xA6C1, 17, 0xBDB8}, {0xA6D3, 11, 0xBDC9},
    {0xA6E1, 17, 0xBDD4}, {0xA6F3, 11, 0xBDE5}, {0xA741, 17, 0xBDF0}, {0xA753, 11, 0xBE01},
    {0xA761, 17, 0xBE0C}, {0xA773, 11, 0xBE1D}, {0xA781, 17, 0xBE28}, {0xA793, 11, 0xBE39},
    {0xA7A1, 17, 0xBE44}, {0xA7B3, 11, 0xBE55}, {0xA861, 17, 0xBE60}, {0xA873, 11, 0xBE71},
    {0xA881, 17, 0xBE7C}, {0xA893, 11, 0xBE8D}, {0xA8A1, 17, 0xBE98}, {0xA8B3, 11, 0xBEA9},
    {0xA8C1, 17, 0xBEB4}, {0xA8D3, 11, 0xBEC5}, {0xA8E1, 17, 0xBED0}, {0xA8F3, 11, 0xBEE1},
    {0xA941, 17, 0xBEEC}, {0xA953, 11, 0xBEFD}, {0xA961, 17, 0xBF08}, {0xA973, 11, 0xBF19},
    {0xA981, 17, 0xBF24}, {0xA993, 11, 0xBF35}, {0xA9A1, 17, 0xBF40}, {0xA9B3, 11, 0xBF51},
    {0xA9C1, 17, 0xBF5C}, {0xA9D3, 11, 0xBF6D}, {0xA9E1, 17, 0xBF78}, {0xA9F3, 11, 0xBF89},
    {0xAA41, 17, 0xBF94}, {0xAA53, 11, 0xBFA5}, {0xAA61, 17, 0xBFB0}, {0xAA73, 11, 0xBFC1},
    {0xAA81, 17, 0xBFCC}, {0xAA93, 11, 0xBFDD}, {0xAAA1, 17, 0xBFE8}, {0xAAB3, 11, 0xBFF9},
    {0xAAC1, 17, 0xC004}, {0xAAD3, 11, 0xC015}, {0xAAE1, 17, 0xC020}, {0xAAF3, 11, 0xC031},
    {0xAB41, 17, 0xC03C}, {0xAB53, 11, 0xC04D}, {0xAB61, 17, 0xC058}, {0xAB73, 11, 0xC069},
    {0xAB81, 17, 0xC074}, {0xAB93, 11, 0xC085}, {0xABA1, 17, 0xC090}, {0xABB3, 11, 0xC0A1},
    {0xAC61, 17, 0xC0AC}, {0xAC73, 11, 0xC0BD}, {0xAC81, 17, 0xC0C8}, {0xAC93, 11, 0xC0D9},
    {0xACA1, 17, 0xC0E4}, {0xACB3, 11, 0xC0F5}, {0xACC1, 17, 0xC100}, {0xACD3, 11, 0xC111},
    {0xACE1, 17, 0xC11C}, {0xACF3, 11, 0xC12D}, {0xAD41, 17, 0xC138}, {0xAD53, 11, 0xC149},
    {0xAD61, 17, 0xC154}, {0xAD73, 11, 0xC165}, {0xAD81, 17, 0xC170}, {0xAD93, 11, 0xC181},
    {0xADA1, 17, 0xC18C}, {0xADB3, 11, 0xC19D}, {0xADC1, 17, 0xC1A8}, {0xADD3, 11, 0xC1B9},
    {0xADE1, 17, 0xC1C4}, {0xADF3, 11, 0xC1D5}, {0xAE41, 17, 0xC1E0}, {0xAE53, 11, 0xC1F1},
    {0xAE61, 17, 0xC1FC}, {0xAE73, 11, 0xC20D}, {0xAE81, 17, 0xC218}, {0xAE93, 11, 0xC229},
    {0xAEA1, 17, 0xC234}, {0xAEB3, 11, 0xC245}, {0xAEC1, 17, 0xC250}, {0xAED3, 11, 0xC261},
    {0xAEE1, 17, 0xC26C}, {0xAEF3, 11, 0xC27D}, {0xAF41, 17, 0xC288}, {0xAF53, 11, 0xC299},
    {0xAF61, 17, 0xC2A4}, {0xAF73, 11, 0xC2B5}, {0xAF81, 17, 0xC2C0}, {0xAF93, 11, 0xC2D1},
    {0xAFA1, 17, 0xC2DC}, {0xAFB3, 11, 0xC2ED}, {0xB061, 17, 0xC2F8}, {0xB073, 11, 0xC309},
    {0xB081, 17, 0xC314}, {0xB093, 11, 0xC325}, {0xB0A1, 17, 0xC330}, {0xB0B3, 11, 0xC341},
    {0xB0C1, 17, 0xC34C}, {0xB0D3, 11, 0xC35D}, {0xB0E1, 17, 0xC368}, {0xB0F3, 11, 0xC379},
    {0xB141, 17, 0xC384}, {0xB153, 11, 0xC395}, {0xB161, 17, 0xC3A0}, {0xB173, 11, 0xC3B1},
    {0xB181, 17, 0xC3BC}, {0xB193, 11, 0xC3CD}, {0xB1A1, 17, 0xC3D8}, {0xB1B3, 11, 0xC3E9},
    {0xB1C1, 17, 0xC3F4}, {0xB1D3, 11, 0xC405}, {0xB1E1, 17, 0xC410}, {0xB1F3, 11, 0xC421},
    {0xB241, 17, 0xC42C}, {0xB253, 11, 0xC43D}, {0xB261, 17, 0xC448}, {0xB273, 11, 0xC459},
    {0xB281, 17, 0xC464}, {0xB293, 11, 0xC475}, {0xB2A1, 17, 0xC480}, {0xB2B3, 11, 0xC491},
    {0xB2C1, 17, 0xC49C}, {0xB2D3, 11, 0xC4AD}, {0xB2E1, 17, 0xC4B8}, {0xB2F3, 11, 0xC4C9},
    {0xB341, 17, 0xC4D4}, {0xB353, 11, 0xC4E5}, {0xB361, 17, 0xC4F0}, {0xB373, 11, 0xC501},
    {0xB381, 17, 0xC50C}, {0xB393, 11, 0xC51D}, {0xB3A1, 17, 0xC528}, {0xB3B3, 11, 0xC539},
    {0xB461, 17, 0xC544}, {0xB473, 11, 0xC555}, {0xB481, 17, 0xC560}, {0xB493, 11, 0xC571},
    {0xB4A1, 17, 0xC57C}, {0xB4B3, 11, 0xC58D}, {0xB4C1, 17, 0xC598}, {0xB4D3, 11, 0xC5A9},
    {0xB4E1, 17, 0xC5B4}, {0xB4F3, 11, 0xC5C5}, {0xB541, 17, 0xC5D0}, {0xB553, 11, 0xC5E1},
    {0xB561, 17, 0xC5EC}, {0xB573, 11, 0xC5FD}, {0xB581, 17, 0xC608}, {0xB593, 11, 0xC619},
    {0xB5A1, 17, 0xC624}, {0xB5B3, 11, 0xC635}, {0xB5C1, 17, 0xC640}, {0xB5D3, 11, 0xC651},
    {0xB5E1, 17, 0xC65C}, {0xB5F3, 11, 0xC66D}, {0xB641, 17, 0xC678}, {0xB653, 11, 0xC689},
    {0xB661, 17, 0xC694}, {0xB673, 11, 0xC6A5}, {0xB681, 17, 0xC6B0}, {0xB693, 11, 0xC6C1},
    {0xB6A1, 17, 0xC6CC}, {0xB6B3, 11, 0xC6DD}, {0xB6C1, 17, 0xC6E8}, {0xB6D3, 11, 0xC6F9},
    {0xB6E1, 17, 0xC704}, {0xB6F3, 11, 0xC715}, {0xB741, 17, 0xC720}, {0xB753, 11, 0xC731},
    {0xB761, 17, 0xC73C}, {0xB773, 11, 0xC74D}, {0xB781, 17, 0xC758}, {0xB793, 11, 0xC769},
    {0xB7A1, 17, 0xC774}, {0xB7B3, 11, 0xC785}, {0xB861, 17, 0xC790}, {0xB873, 11, 0xC7A1},
    {0xB881, 17, 0xC7AC}, {0xB893, 11, 0xC7BD}, {0xB8A1, 17, 0xC7C8}, {0xB8B3, 11, 0xC7D9},
    {0xB8C1, 17, 0xC7E4}, {0xB8D3, 11, 0xC7F5}, {0xB8E1, 17, 0xC800}, {0xB8F3, 11, 0xC811},
    {0xB941, 17, 0xC81C}, {0xB953, 11, 0xC82D}, {0xB961, 17, 0xC838}, {0xB973, 11, 0xC849},
    {0xB981, 17, 0xC854}, {0xB993, 11, 0xC865}, {0xB9A1, 17, 0xC870}, {0xB9B3, 11, 0xC881},
    {0xB9C1, 17, 0xC88C}, {0xB9D3, 11, 0xC89D}, {0xB9E1, 17, 0xC8A8}, {0xB9F3, 11, 0xC8B9},
    {0xBA41, 17, 0xC8C4}, {0xBA53, 11, 0xC8D5}, {0xBA61, 17, 0xC8E0}, {0xBA73, 11, 0xC8F1},
    {0xBA81, 17, 0xC8FC}, {0xBA93, 11, 0xC90D}, {0xBAA1, 17, 0xC918}, {0xBAB3, 11, 0xC929},
    {0xBAC1, 17, 0xC934}, {0xBAD3, 11, 0xC945}, {0xBAE1, 17, 0xC950}, {0xBAF3, 11, 0xC961},
    {0xBB41, 17, 0xC96C}, {0xBB53, 11, 0xC97D}, {0xBB61, 17, 0xC988}, {0xBB73, 11, 0xC999},
    {0xBB81, 17, 0xC9A4}, {0xBB93, 11, 0xC9B5}, {0xBBA1, 17, 0xC9C0}, {0xBBB3, 11, 0xC9D1},
    {0xBC61, 17, 0xC9DC}, {0xBC73, 11, 0xC9ED}, {0xBC81, 17, 0xC9F8}, {0xBC93, 11, 0xCA09},
    {0xBCA1, 17, 0xCA14}, {0xBCB3, 11, 0xCA25}, {0xBCC1, 17, 0xCA30}, {0xBCD3, 11, 0xCA41},
    {0xBCE1, 17, 0xCA4C}, {0xBCF3, 11, 0xCA5D}, {0xBD41, 17, 0xCA68}, {0xBD53, 11, 0xCA79},
    {0xBD61, 17, 0xCA84}, {0xBD73, 11, 0xCA95}, {0xBD81, 17, 0xCAA0}, {0xBD93, 11, 0xCAB1},
    {0xBDA1, 17, 0xCABC}, {0xBDB3, 11, 0xCACD}, {0xBDC1, 17, 0xCAD8}, {0xBDD3, 11, 0xCAE9},
    {0xBDE1, 17, 0xCAF4}, {0xBDF3, 11, 0xCB05}, {0xBE41, 17, 0xCB10}, {0xBE53, 11, 0xCB21},
    {0xBE61, 17, 0xCB2C}, {0xBE73, 11, 0xCB3D}, {0xBE81, 17, 0xCB48}, {0xBE93, 11, 0xCB59},
    {0xBEA1, 17, 0xCB64}, {0xBEB3, 11, 0xCB75}, {0xBEC1, 17, 0xCB80}, {0xBED3, 11, 0xCB91},
    {0xBEE1, 17, 0xCB9C}, {0xBEF3, 11, 0xCBAD}, {0xBF41, 17, 0xCBB8}, {0xBF53, 11, 0xCBC9},
    {0xBF61, 17, 0xCBD4}, {0xBF73, 11, 0xCBE5}, {0xBF81, 17, 0xCBF0}, {0xBF93, 11, 0xCC01},
    {0xBFA1, 17, 0xCC0C}, {0xBFB3, 11, 0xCC1D}, {0xC061, 17, 0xCC28}, {0xC073, 11, 0xCC39},
    {0xC081, 17, 0xCC44}, {0xC093, 11, 0xCC55}, {0xC0A1, 17, 0xCC60}, {0xC0B3, 11, 0xCC71},
    {0xC0C1, 17, 0xCC7C}, {0xC0D3, 11, 0xCC8D}, {0xC0E1, 17, 0xCC98}, {0xC0F3, 11, 0xCCA9},
    {0xC141, 17, 0xCCB4}, {0xC153, 11, 0xCCC5}, {0xC161, 17, 0xCCD0}, {0xC173, 11, 0xCCE1},
    {0xC181, 17, 0xCCEC}, {0xC193, 11, 0xCCFD}, {0xC1A1, 17, 0xCD08}, {0xC1B3, 11, 0xCD19},
    {0xC1C1, 17, 0xCD24}, {0xC1D3, 11, 0xCD35}, {0xC1E1, 17, 0xCD40}, {0xC1F3, 11, 0xCD51},
    {0xC241, 17, 0xCD5C}, {0xC253, 11, 0xCD6D}, {0xC261, 17, 0xCD78}, {0xC273, 11, 0xCD89},
    {0xC281, 17, 0xCD94}, {0xC293, 11, 0xCDA5}, {0xC2A1, 17, 0xCDB0}, {0xC2B3, 11, 0xCDC1},
    {0xC2C1, 17, 0xCDCC}, {0xC2D3, 11, 0xCDDD}, {0xC2E1, 17, 0xCDE8}, {0xC2F3, 11, 0xCDF9},
    {0xC341, 17, 0xCE04}, {0xC353, 11, 0xCE15}, {0xC361, 17, 0xCE20}, {0xC373, 11, 0xCE31},
    {0xC381, 17, 0xCE3C}, {0xC393, 11, 0xCE4D}, {0xC3A1, 17, 0xCE58}, {0xC3B3, 11, 0xCE69},
    {0xC461, 17, 0xCE74}, {0xC473, 11, 0xCE85}, {0xC481, 17, 0xCE90}, {0xC493, 11, 0xCEA1},
    {0xC4A1, 17, 0xCEAC}, {0xC4B3, 11, 0xCEBD}, {0xC4C1, 17, 0xCEC8}, {0xC4D3, 11, 0xCED9},
    {0xC4E1, 17, 0xCEE4}, {0xC4F3, 11, 0xCEF5}, {0xC541, 17, 0xCF00}, {0xC553, 11, 0xCF11},
    {0xC561, 17, 0xCF1C}, {0xC573, 11, 0xCF2D}, {0xC581, 17, 0xCF38}, {0xC593, 11, 0xCF49},
    {0xC5A1, 17, 0xCF54}, {0xC5B3, 11, 0xCF65}, {0xC5C1, 17, 0xCF70}, {0xC5D3, 11, 0xCF81},
    {0xC5E1, 17, 0xCF8C}, {0xC5F3, 11, 0xCF9D}, {0xC641, 17, 0xCFA8}, {0xC653, 11, 0xCFB9},
    {0xC661, 17, 0xCFC4}, {0xC673, 11, 0xCFD5}, {0xC681, 17, 0xCFE0}, {0xC693, 11, 0xCFF1},
    {0xC6A1, 17, 0xCFFC}, {0xC6B3, 11, 0xD00D}, {0xC6C1, 17, 0xD018}, {0xC6D3, 11, 0xD029},
    {0xC6E1, 17, 0xD034}, {0xC6F3, 11, 0xD045}, {0xC741, 17, 0xD050}, {0xC753, 11, 0xD061},
    {0xC761, 17, 0xD06C}, {0xC773, 11, 0xD07D}, {0xC781, 17, 0xD088}, {0xC793, 11, 0xD099},
    {0xC7A1, 17, 0xD0A4}, {0xC7B3, 11, 0xD0B5}, {0xC861, 17, 0xD0C0}, {0xC873, 11, 0xD0D1},
    {0xC881, 17, 0xD0DC}, {0xC893, 11, 0xD0ED}, {0xC8A1, 17, 0xD0F8}, {0xC8B3, 11, 0xD109},
    {0xC8C1, 17, 0xD114}, {0xC8D3, 11, 0xD125}, {0xC8E1, 17, 0xD130}, {0xC8F3, 11, 0xD141},
    {0xC941, 17, 0xD14C}, {0xC953, 11, 0xD15D}, {0xC961, 17, 0xD168}, {0xC973, 11, 0xD179},
    {0xC981, 17, 0xD184}, {0xC993, 11, 0xD195}, {0xC9A1, 17, 0xD1A0}, {0xC9B3, 11, 0xD1B1},
    {0xC9C1, 17, 0xD1BC}, {0xC9D3, 11, 0xD1CD}, {0xC9E1, 17, 0xD1D8}, {0xC9F3, 11, 0xD1E9},
    {0xCA41, 17, 0xD1F4}, {0xCA53, 11, 0xD205}, {0xCA61, 17, 0xD210}, {0xCA73, 11, 0xD221},
    {0xCA81, 17, 0xD22C}, {0xCA93, 11, 0xD23D}, {0xCAA1, 17, 0xD248}, {0xCAB3, 11, 0xD259},
    {0xCAC1, 17, 0xD264}, {0xCAD3, 11, 0xD275}, {0xCAE1, 17, 0xD280}, {0xCAF3, 11, 0xD291},
    {0xCB41, 17, 0xD29C}, {0xCB53, 11, 0xD2AD}, {0xCB61, 17, 0xD2B8}, {0xCB73, 11, 0xD2C9},
    {0xCB81, 17, 0xD2D4}, {0xCB93, 11, 0xD2E5}, {0xCBA1, 17, 0xD2F0}, {0xCBB3, 11, 0xD301},
    {0xCC61, 17, 0xD30C}, {0xCC73, 11, 0xD31D}, {0xCC81, 17, 0xD328}, {0xCC93, 11, 0xD339},
    {0xCCA1, 17, 0xD344}, {0xCCB3, 11, 0xD355}, {0xCCC1, 17, 0xD360}, {0xCCD3, 11, 0xD371},
    {0xCCE1, 17, 0xD37C}, {0xCCF3, 11, 0xD38D}, {0xCD41, 17, 0xD398}, {0xCD53, 11, 0xD3A9},
    {0xCD61, 17, 0xD3B4}, {0xCD73, 11, 0xD3C5}, {0xCD81, 17, 0xD3D0}, {0xCD93, 11, 0xD3E1},
    {0xCDA1, 17, 0xD3EC}, {0xCDB3, 11, 0xD3FD}, {0xCDC1, 17, 0xD408}, {0xCDD3, 11, 0xD419},
    {0xCDE1, 17, 0xD424}, {0xCDF3, 11, 0xD435}, {0xCE41, 17, 0xD440}, {0xCE53, 11, 0xD451},
    {0xCE61, 17, 0xD45C}, {0xCE73, 11, 0xD46D}, {0xCE81, 17, 0xD478}, {0xCE93, 11, 0xD489},
    {0xCEA1, 17, 0xD494}, {0xCEB3, 11, 0xD4A5}, {0xCEC1, 17, 0xD4B0}, {0xCED3, 11, 0xD4C1},
    {0xCEE1, 17, 0xD4CC}, {0xCEF3, 11, 0xD4DD}, {0xCF41, 17, 0xD4E8}, {0xCF53, 11, 0xD4F9},
    {0xCF61, 17, 0xD504}, {0xCF73, 11, 0xD515}, {0xCF81, 17, 0xD520}, {0xCF93, 11, 0xD531},
    {0xCFA1, 17, 0xD53C}, {0xCFB3, 11, 0xD54D}, {0xD061, 17, 0xD558}, {0xD073, 11, 0xD569},
    {0xD081, 17, 0xD574}, {0xD093, 11, 0xD585}, {0xD0A1, 17, 0xD590}, {0xD0B3, 11, 0xD5A1},
    {0xD0C1, 17, 0xD5AC}, {0xD0D3, 11, 0xD5BD}, {0xD0E1, 17, 0xD5C8}, {0xD0F3, 11, 0xD5D9},
    {0xD141, 17, 0xD5E4}, {0xD153, 11, 0xD5F5}, {0xD161, 17, 0xD600}, {0xD173, 11, 0xD611},
    {0xD181, 17, 0xD61C}, {0xD193, 11, 0xD62D}, {0xD1A1, 17, 0xD638}, {0xD1B3, 11, 0xD649},
    {0xD1C1, 17, 0xD654}, {0xD1D3, 11, 0xD665}, {0xD1E1, 17, 0xD670}, {0xD1F3, 11, 0xD681},
    {0xD241, 17, 0xD68C}, {0xD253, 11, 0xD69D}, {0xD261, 17, 0xD6A8}, {0xD273, 11, 0xD6B9},
    {0xD281, 17, 0xD6C4}, {0xD293, 11, 0xD6D5}, {0xD2A1, 17, 0xD6E0}, {0xD2B3, 11, 0xD6F1},
    {0xD2C1, 17, 0xD6FC}, {0xD2D3, 11, 0xD70D}, {0xD2E1, 17, 0xD718}, {0xD2F3, 11, 0xD729},
    {0xD341, 17, 0xD734}, {0xD353, 11, 0xD745}, {0xD361, 17, 0xD750}, {0xD373, 11, 0xD761},
    {0xD381, 17, 0xD76C}, {0xD393, 11, 0xD77D}, {0xD3A1, 17, 0xD788}, {0xD3B3, 11, 0xD799},
    {0xD831, 78, 0xE000}, {0xD891, 110, 0xE04E}, {0xD944, 10, 0x3008}, {0xDA31, 59, 0xFF01},
    {0xDA6D, 18, 0xFF3D}, {0xDA91, 15, 0xFF4F}, {0xDAE8, 5, 0x112B}, {0xDB31, 10, 0x2170},
    {0xDB40, 10, 0x2160}, {0xDB51, 17, 0x0391}, {0xDB62, 7, 0x03A3}, {0xDB71, 14, 0x03B1},
    {0xDB94, 7, 0x03C3}, {0xDBDD, 8, 0x2543}, {0xDC3B, 10, 0x3399}, {0xDC4F, 10, 0x33B0}, {0xDC59, 5, 0x3380},
    {0xDC5E, 6, 0x33BA}, {0xDC64, 5, 0x3390}, {0xDCB1, 28, 0x3260}, {0xDCCD, 26, 0x24D0},
    {0xDCE7, 15, 0x2460}, {0xDD41, 28, 0x3200}, {0xDD5D, 26, 0x249C}, {0xDD77, 8, 0x2474},
    {0xDD91, 7, 0x247C}, {0xDDA1, 83, 0x3041}, {0xDE31, 78, 0x30A1}, {0xDE91, 8, 0x30EF}, {0xDEA1, 6, 0x0410},
    {0xDEA8, 26, 0x0416}, {0xDED1, 6, 0x0430}, {0xDED8, 26, 0x0436}, {0xE3DB, 6, 0xF90E}, {0xE3E2, 5, 0xF914},
    {0xE437, 5, 0xF928}, {0xE456, 6, 0xF933}, {0xE45D, 11, 0xF939}, {0xE474, 8, 0xF94A}, {0xE492, 6, 0xF952},
};

constexpr TCharText cTexts1361[] = {
    {0x0080, u"\200\201\202\203"sv}, {0x8461, u"\u1161"sv}, {0x8481, u"\u1162"sv}, {0x84A1, u"\u1163"sv},
    {0x84C1, u"\u1164"sv}, {0x84E1, u"\u1165"sv}, {0x8541, u"\u1166"sv}, {0x8561, u"\u1167"sv},
    {0x8581, u"\u1168"sv}, {0x85A1, u"\u1169"sv}, {0x85C1, u"\u116A"sv}, {0x85E1, u"\u116B"sv},
    {0x8641, u"\u116C"sv}, {0x8661, u"\u116D"sv}, {0x8681, u"\u116E"sv}, {0x86A1, u"\u116F"sv},
    {0x86C1, u"\u1170"sv}, {0x86E1, u"\u1171"sv}, {0x8741, u"\u1172"sv}, {0x8761, u"\u1173"sv},
    {0x8781, u"\u1174"sv}, {0x87A1, u"\u1175"sv}, {0x8841, u"\u1100"sv}, {0x8C41, u"\u1101"sv},
    {0x9041, u"\u1102"sv}, {0x9441, u"\u1103"sv}, {0x9841, u"\u1104"sv}, {0x9C41, u"\u1105"sv},
    {0xA041, u"\u1106"sv}, {0xA441, u"\u1107"sv}, {0xA841, u"\u1108"sv}, {0xAC41, u"\u1109"sv},
    {0xB041, u"\u110A"sv}, {0xB441, u"\u110B"sv}, {0xB841, u"\u110C"sv}, {0xBC41, u"\u110D"sv},
    {0xC041, u"\u110E"sv}, {0xC441, u"\u110F"sv}, {0xC841, u"\u1110"sv}, {0xCC41, u"\u1111"sv},
    {0xD041, u"\u1112"sv},
    {0xD931, u"\u3000\u3001\u3002\u00B7\u2025\u2026\u00A8\u3003\u00AD\u2015\u2225\uFF3C\u223C\u2018"sv},
    {0xD93F, u"\u2019\u201C\u201D\u3014\u3015"sv},
    {0xD94E, u"\u00B1\u00D7\u00F7\u2260\u2264\u2265\u221E\u2234\u00B0\u2032\u2033\u2103\u212B\uFFE0"sv},
    {0xD95C, u"\uFFE1\uFFE5\u2642\u2640\u2220\u22A5\u2312\u2202\u2207\u2261\u2252\u00A7\u203B\u2606"sv},
    {0xD96A, u"\u2605\u25CB\u25CF\u25CE\u25C7\u25C6\u25A1\u25A0\u25B3\u25B2\u25BD\u25BC\u2192\u2190"sv},
    {0xD978, u"\u2191\u2193\u2194\u3013\u226A\u226B\u221A"sv},
    {0xD991, u"\u223D\u221D\u2235\u222B\u222C\u2208\u220B\u2286\u2287\u2282\u2283\u222A\u2229\u2227"sv},
    {0xD99F, u"\u2228\uFFE2\u21D2\u21D4\u2200\u2203\u00B4\uFF5E\u02C7\u02D8\u02DD\u02DA\u02D9\u00B8"sv},
    {0xD9AD, u"\u02DB\u00A1\u00BF\u02D0\u222E\u2211\u220F\u00A4\u2109\u2030\u25C1\u25C0\u25B7\u25B6"sv},
    {0xD9BB, u"\u2664\u2660\u2661\u2665\u2667\u2663\u2299\u25C8\u25A3\u25D0\u25D1\u2592\u25A4\u25A5"sv},
    {0xD9C9, u"\u25A8\u25A7\u25A6\u25A9\u2668\u260F\u260E\u261C\u261E\u00B6\u2020\u2021\u2195\u2197"sv},
    {0xD9D7, u"\u2199\u2196\u2198\u266D\u2669\u266A\u266C\u327F\u321C\u2116\u33C7\u2122\u33C2\u33D8"sv},
    {0xD9E5, u"\u2121\u20AC\u00AE"sv}, {0xDA6C, u"\uFFE6"sv}, {0xDAA0, u"\uFFE3"sv},
    {0xDAD4, u"\u115F\u1114\u1115\u11C7\u11C8\u11CC\u11CE\u11D3\u11D7\u11D9\u111C\u11DD\u11DF\u111D"sv},
    {0xDAE2, u"\u111E\u1120\u1122\u1123\u1127\u1128"sv},
    {0xDAED, u"\u1132\u1136\u1140\u1147\u114C\u1145\u1146\u1157\u1158\u1159\u1184\u1185\u1188\u1191"sv},
    {0xDAFB, u"\u1192\u1194\u119E\u11A1"sv}, {0xDB91, u"\u03BF\u03C0\u03C1"sv},
    {0xDBA1, u"\u2500\u2502\u250C\u2510\u2518\u2514\u251C\u252C\u2524\u2534\u253C\u2501\u2503\u250F"sv},
    {0xDBAF, u"\u2513\u251B\u2517\u2523\u2533\u252B\u253B\u254B\u2520\u252F\u2528\u2537\u253F\u251D"sv},
    {0xDBBD, u"\u2530\u2525\u2538\u2542\u2512\u2511\u251A\u2519\u2516\u2515\u250E\u250D\u251E\u251F"sv},
    {0xDBCB, u"\u2521\u2522\u2526\u2527\u2529\u252A\u252D\u252E\u2531\u2532\u2535\u2536\u2539\u253A"sv},
    {0xDBD9, u"\u253D\u253E\u2540\u2541"sv},
    {0xDC31, u"\u3395\u3396\u3397\u2113\u3398\u33C4\u33A3\u33A4\u33A5\u33A6"sv},
    {0xDC45, u"\u33CA\u338D\u338E\u338F\u33CF\u3388\u3389\u33C8\u33A7\u33A8"sv},
    {0xDC69, u"\u2126\u33C0\u33C1\u338A\u338B\u338C\u33D6\u33C5\u33AD\u33AE\u33AF\u33DB\u33A9\u33AA"sv},
    {0xDC77, u"\u33AB\u33AC\u33DD\u33D0\u33D3\u33C3\u33C9\u33DC"sv}, {0xDC91, u"\u33C6"sv},
    {0xDCA1, u"\u00C6\u00D0\u00AA\u0126"sv}, {0xDCA6, u"\u0132"sv},
    {0xDCA8, u"\u013F\u0141\u00D8\u0152\u00BA\u00DE\u0166\u014A"sv},
    {0xDCF6, u"\u00BD\u2153\u2154\u00BC\u00BE\u215B\u215C\u215D\u215E"sv},
    {0xDD31, u"\u00E6\u0111\u00F0\u0127\u0131\u0133\u0138\u0140\u0142\u00F8\u0153\u00DF\u00FE\u0167"sv},
    {0xDD3F, u"\u014B\u0149"sv}, {0xDD98, u"\u00B9\u00B2\u00B3\u2074\u207F\u2081\u2082\u2083\u2084"sv},
    {0xDEA7, u"\u0401"sv}, {0xDED7, u"\u0451"sv},
    {0xE031, u"\u4F3D\u4F73\u5047\u50F9\u52A0\u53EF\u5475\u54E5\u5609\u5AC1\u5BB6\u6687\u67B6\u67B7"sv},
    {0xE03F, u"\u67EF\u6B4C\u73C2\u75C2\u7A3C\u82DB\u8304\u8857\u8888\u8A36\u8CC8\u8DCF\u8EFB\u8FE6"sv},
    {0xE04D, u"\u99D5\u523B\u5374\u5404\u606A\u6164\u6BBC\u73CF\u811A\u89BA\u89D2\u95A3\u4F83\u520A"sv},
    {0xE05B, u"\u58BE\u5978\u59E6\u5E72\u5E79\u61C7\u63C0\u6746\u67EC\u687F\u6F97\u764E\u770B\u78F5"sv},
    {0xE069, u"\u7A08\u7AFF\u7C21\u809D\u826E\u8271\u8AEB\u9593\u4E6B\u559D\u66F7\u6E34\u78A3\u7AED"sv},
    {0xE077, u"\u845B\u8910\u874E\u97A8\u52D8\u574E\u582A\u5D4C"sv},
    {0xE091, u"\u611F\u61BE\u6221\u6562\u67D1\u6A44\u6E1B\u7518\u75B3\u76E3\u77B0\u7D3A\u90AF\u9451"sv},
    {0xE09F, u"\u9452\u9F95\u5323\u5CAC\u7532\u80DB\u9240\u9598\u525B\u5808\u59DC\u5CA1\u5D17\u5EB7"sv},
    {0xE0AD, u"\u5F3A\u5F4A\u6177\u6C5F\u757A\u7586\u7CE0\u7D73\u7DB1\u7F8C\u8154\u8221\u8591\u8941"sv},
    {0xE0BB, u"\u8B1B\u92FC\u964D\u9C47\u4ECB\u4EF7\u500B\u51F1\u584F\u6137\u613E\u6168\u6539\u69EA"sv},
    {0xE0C9, u"\u6F11\u75A5\u7686\u76D6\u7B87\u82A5\u84CB\uF900\u93A7\u958B\u5580\u5BA2\u5751\uF901"sv},
    {0xE0D7, u"\u7CB3\u7FB9\u91B5\u5028\u53BB\u5C45\u5DE8\u62D2\u636E\u64DA\u64E7\u6E20\u70AC\u795B"sv},
    {0xE0E5, u"\u8DDD\u8E1E\uF902\u907D\u9245\u92F8\u4E7E\u4EF6\u5065\u5DFE\u5EFA\u6106\u6957\u8171"sv},
    {0xE0F3, u"\u8654\u8E47\u9375\u9A2B\u4E5E\u5091\u6770\u6840\u5109\u528D\u5292\u6AA2"sv},
    {0xE131, u"\u77BC\u9210\u9ED4\u52AB\u602F\u8FF2\u5048\u61A9\u63ED\u64CA\u683C\u6A84\u6FC0\u8188"sv},
    {0xE13F, u"\u89A1\u9694\u5805\u727D\u72AC\u7504\u7D79\u7E6D\u80A9\u898B\u8B74\u9063\u9D51\u6289"sv},
    {0xE14D, u"\u6C7A\u6F54\u7D50\u7F3A\u8A23\u517C\u614A\u7B9D\u8B19\u9257\u938C\u4EAC\u4FD3\u501E"sv},
    {0xE15B, u"\u50BE\u5106\u52C1\u52CD\u537F\u5770\u5883\u5E9A\u5F91\u6176\u61AC\u64CE\u656C\u666F"sv},
    {0xE169, u"\u66BB\u66F4\u6897\u6D87\u7085\u70F1\u749F\u74A5\u74CA\u75D9\u786C\u78EC\u7ADF\u7AF6"sv},
    {0xE177, u"\u7D45\u7D93\u8015\u803F\u811B\u8396\u8B66\u8F15"sv},
    {0xE191, u"\u9015\u93E1\u9803\u9838\u9A5A\u9BE8\u4FC2\u5553\u583A\u5951\u5B63\u5C46\u60B8\u6212"sv},
    {0xE19F, u"\u6842\u68B0\u68E8\u6EAA\u754C\u7678\u78CE\u7A3D\u7CFB\u7E6B\u7E7C\u8A08\u8AA1\u8C3F"sv},
    {0xE1AD, u"\u968E\u9DC4\u53E4\u53E9\u544A\u5471\u56FA\u59D1\u5B64\u5C3B\u5EAB\u62F7\u6537\u6545"sv},
    {0xE1BB, u"\u6572\u66A0\u67AF\u69C1\u6CBD\u75FC\u7690\u777E\u7A3F\u7F94\u8003\u80A1\u818F\u82E6"sv},
    {0xE1C9, u"\u82FD\u83F0\u85C1\u8831\u88B4\u8AA5\uF903\u8F9C\u932E\u96C7\u9867\u9AD8\u9F13\u54ED"sv},
    {0xE1D7, u"\u659B\u66F2\u688F\u7A40\u8C37\u9D60\u56F0\u5764\u5D11\u6606\u68B1\u68CD\u6EFE\u7428"sv},
    {0xE1E5, u"\u889E\u9BE4\u6C68\uF904\u9AA8\u4F9B\u516C\u5171\u529F\u5B54\u5DE5\u6050\u606D\u62F1"sv},
    {0xE1F3, u"\u63A7\u653B\u73D9\u7A7A\u86A3\u8CA2\u978F\u4E32\u5BE1\u6208\u679C\u74DC"sv},
    {0xE231, u"\u79D1\u83D3\u8A87\u8AB2\u8DE8\u904E\u934B\u9846\u5ED3\u69E8\u85FF\u90ED\uF905\u51A0"sv},
    {0xE23F, u"\u5B98\u5BEC\u6163\u68FA\u6B3E\u704C\u742F\u74D8\u7BA1\u7F50\u83C5\u89C0\u8CAB\u95DC"sv},
    {0xE24D, u"\u9928\u522E\u605D\u62EC\u9002\u4F8A\u5149\u5321\u58D9\u5EE3\u66E0\u6D38\u709A\u72C2"sv},
    {0xE25B, u"\u73D6\u7B50\u80F1\u945B\u5366\u639B\u7F6B\u4E56\u5080\u584A\u58DE\u602A\u6127\u62D0"sv},
    {0xE269, u"\u69D0\u9B41\u5B8F\u7D18\u80B1\u8F5F\u4EA4\u50D1\u54AC\u55AC\u5B0C\u5DA0\u5DE7\u652A"sv},
    {0xE277, u"\u654E\u6821\u6A4B\u72E1\u768E\u77EF\u7D5E\u7FF9"sv},
    {0xE291, u"\u81A0\u854E\u86DF\u8F03\u8F4E\u90CA\u9903\u9A55\u9BAB\u4E18\u4E45\u4E5D\u4EC7\u4FF1"sv},
    {0xE29F, u"\u5177\u52FE\u5340\u53E3\u53E5\u548E\u5614\u5775\u57A2\u5BC7\u5D87\u5ED0\u61FC\u62D8"sv},
    {0xE2AD, u"\u6551\u67B8\u67E9\u69CB\u6B50\u6BC6\u6BEC\u6C42\u6E9D\u7078\u72D7\u7396\u7403\u77BF"sv},
    {0xE2BB, u"\u77E9\u7A76\u7D7F\u8009\u81FC\u8205\u820A\u82DF\u8862\u8B33\u8CFC\u8EC0\u9011\u90B1"sv},
    {0xE2C9, u"\u9264\u92B6\u99D2\u9A45\u9CE9\u9DD7\u9F9C\u570B\u5C40\u83CA\u97A0\u97AB\u9EB4\u541B"sv},
    {0xE2D7, u"\u7A98\u7FA4\u88D9\u8ECD\u90E1\u5800\u5C48\u6398\u7A9F\u5BAE\u5F13\u7A79\u7AAE\u828E"sv},
    {0xE2E5, u"\u8EAC\u5026\u5238\u52F8\u5377\u5708\u62F3\u6372\u6B0A\u6DC3\u7737\u53A5\u7357\u8568"sv},
    {0xE2F3, u"\u8E76\u95D5\u673A\u6AC3\u6F70\u8A6D\u8ECC\u994B\uF906\u6677\u6B78\u8CB4"sv},
    {0xE331, u"\u9B3C\uF907\u53EB\u572D\u594E\u63C6\u69FB\u73EA\u7845\u7ABA\u7AC5\u7CFE\u8475\u898F"sv},
    {0xE33F, u"\u8D73\u9035\u95A8\u52FB\u5747\u7547\u7B60\u83CC\u921E\uF908\u6A58\u514B\u524B\u5287"sv},
    {0xE34D, u"\u621F\u68D8\u6975\u9699\u50C5\u52A4\u52E4\u61C3\u65A4\u6839\u69FF\u747E\u7B4B\u82B9"sv},
    {0xE35B, u"\u83EB\u89B2\u8B39\u8FD1\u9949\uF909\u4ECA\u5997\u64D2\u6611\u6A8E\u7434\u7981\u79BD"sv},
    {0xE369, u"\u82A9\u887E\u887F\u895F\uF90A\u9326\u4F0B\u53CA\u6025\u6271\u6C72\u7D1A\u7D66\u4E98"sv},
    {0xE377, u"\u5162\u77DC\u80AF\u4F01\u4F0E\u5176\u5180\u55DC"sv},
    {0xE391, u"\u5668\u573B\u57FA\u57FC\u5914\u5947\u5993\u5BC4\u5C90\u5D0E\u5DF1\u5E7E\u5FCC\u6280"sv},
    {0xE39F, u"\u65D7\u65E3\u671E\u671F\u675E\u68CB\u68C4\u6A5F\u6B3A\u6C23\u6C7D\u6C82\u6DC7\u7398"sv},
    {0xE3AD, u"\u7426\u742A\u7482\u74A3\u7578\u757F\u7881\u78EF\u7941\u7947\u7948\u797A\u7B95\u7D00"sv},
    {0xE3BB, u"\u7DBA\u7F88\u8006\u802D\u808C\u8A18\u8B4F\u8C48\u8D77\u9321\u9324\u98E2\u9951\u9A0E"sv},
    {0xE3C9, u"\u9A0F\u9A65\u9E92\u7DCA\u4F76\u5409\u62EE\u6854\u91D1\u55AB\u513A\uF90B\uF90C\u5A1C"sv},
    {0xE3D7, u"\u61E6\uF90D\u62CF\u62FF"sv}, {0xE3E1, u"\u90A3"sv},
    {0xE3E7, u"\u8AFE\uF919\uF91A\uF91B\uF91C\u6696\uF91D\u7156\uF91E\uF91F\u96E3\uF920\u634F\u637A"sv},
    {0xE3F5, u"\u5357\uF921\u678F\u6960\u6E73\uF922\u7537\uF923\uF924\uF925"sv},
    {0xE431, u"\u7D0D\uF926\uF927\u8872\u56CA\u5A18"sv},
    {0xE43C, u"\u4E43\uF92D\u5167\u5948\u67F0\u8010\uF92E\u5973\u5E74\u649A\u79CA\u5FF5\u606C\u62C8"sv},
    {0xE44A, u"\u637B\u5BE7\u5BD7\u52AA\uF92F\u5974\u5F29\u6012\uF930\uF931\uF932\u7459"sv},
    {0xE45C, u"\u99D1"sv},
    {0xE468, u"\u6FC3\uF944\uF945\u81BF\u8FB2\u60F1\uF946\uF947\u8166\uF948\uF949\u5C3F"sv},
    {0xE47C, u"\u5AE9\u8A25\u677B"sv}, {0xE491, u"\u7D10"sv},
    {0xE498, u"\u80FD\uF958\uF959\u5C3C\u6CE5\u533F\u6EBA\u591A\u8336\u4E39\u4EB6\u4F46\u55AE\u5718"sv},
    {0xE4A6, u"\u58C7\u5F56\u65B7\u65E6\u6A80\u6BB5\u6E4D\u77ED\u7AEF\u7C1E\u7DDE\u86CB\u8892\u9132"sv},
    {0xE4B4, u"\u935B\u64BB\u6FBE\u737A\u75B8\u9054\u5556\u574D\u61BA\u64D4\u66C7\u6DE1\u6E5B\u6F6D"sv},
    {0xE4C2, u"\u6FB9\u75F0\u8043\u81BD\u8541\u8983\u8AC7\u8B5A\u931F\u6C93\u7553\u7B54\u8E0F\u905D"sv},
    {0xE4D0, u"\u5510\u5802\u5858\u5E62\u6207\u649E\u68E0\u7576\u7CD6\u87B3\u9EE8\u4EE3\u5788\u576E"sv},
    {0xE4DE, u"\u5927\u5C0D\u5CB1\u5E36\u5F85\u6234\u64E1\u73B3\u81FA\u888B\u8CB8\u968A\u9EDB\u5B85"sv},
    {0xE4EC, u"\u5FB7\u60B3\u5012\u5200\u5230\u5716\u5835\u5857\u5C0E\u5C60\u5CF6\u5D8B\u5EA6\u5F92"sv},
    {0xE4FA, u"\u60BC\u6311\u6389\u6417\u6843"sv},
    {0xE531, u"\u68F9\u6AC2\u6DD8\u6E21\u6ED4\u6FE4\u71FE\u76DC\u7779\u79B1\u7A3B\u8404\u89A9\u8CED"sv},
    {0xE53F, u"\u8DF3\u8E48\u9003\u9014\u9053\u90FD\u934D\u9676\u97DC\u6BD2\u7006\u7258\u72A2\u7368"sv},
    {0xE54D, u"\u7763\u79BF\u7BE4\u7E9B\u8B80\u58A9\u60C7\u6566\u65FD\u66BE\u6C8C\u711E\u71C9\u8C5A"sv},
    {0xE55B, u"\u9813\u4E6D\u7A81\u4EDD\u51AC\u51CD\u52D5\u540C\u61A7\u6771\u6850\u68DF\u6D1E\u6F7C"sv},
    {0xE569, u"\u75BC\u77B3\u7AE5\u80F4\u8463\u9285\u515C\u6597\u675C\u6793\u75D8\u7AC7\u8373\uF95A"sv},
    {0xE577, u"\u8C46\u9017\u982D\u5C6F\u81C0\u829A\u9041\u906F"sv},
    {0xE591, u"\u920D\u5F97\u5D9D\u6A59\u71C8\u767B\u7B49\u85E4\u8B04\u9127\u9A30\u5587\u61F6\uF95B"sv},
    {0xE59F, u"\u7669\u7F85\u863F\u87BA\u88F8\u908F\uF95C\u6D1B\u70D9\u73DE\u7D61\u843D\uF95D\u916A"sv},
    {0xE5AD, u"\u99F1\uF95E\u4E82\u5375\u6B04\u6B12\u703E\u721B\u862D\u9E1E\u524C\u8FA3\u5D50\u64E5"sv},
    {0xE5BB, u"\u652C\u6B16\u6FEB\u7C43\u7E9C\u85CD\u8964\u89BD\u62C9\u81D8\u881F\u5ECA\u6717\u6D6A"sv},
    {0xE5C9, u"\u72FC\u7405\u746F\u8782\u90DE\u4F86\u5D0D\u5FA0\u840A\u51B7\u63A0\u7565\u4EAE\u5006"sv},
    {0xE5D7, u"\u5169\u51C9\u6881\u6A11\u7CAE\u7CB1\u7CE7\u826F\u8AD2\u8F1B\u91CF\u4FB6\u5137\u52F5"sv},
    {0xE5E5, u"\u5442\u5EEC\u616E\u623E\u65C5\u6ADA\u6FFE\u792A\u85DC\u8823\u95AD\u9A62\u9A6A\u9E97"sv},
    {0xE5F3, u"\u9ECE\u529B\u66C6\u6B77\u701D\u792B\u8F62\u9742\u6190\u6200\u6523\u6F23"sv},
    {0xE631, u"\u7149\u7489\u7DF4\u806F\u84EE\u8F26\u9023\u934A\u51BD\u5217\u52A3\u6D0C\u70C8\u88C2"sv},
    {0xE63F, u"\u5EC9\u6582\u6BAE\u6FC2\u7C3E\u7375\u4EE4\u4F36\u56F9\uF95F\u5CBA\u5DBA\u601C\u73B2"sv},
    {0xE64D, u"\u7B2D\u7F9A\u7FCE\u8046\u901E\u9234\u96F6\u9748\u9818\u9F61\u4F8B\u6FA7\u79AE\u91B4"sv},
    {0xE65B, u"\u96B7\u52DE\uF960\u6488\u64C4\u6AD3\u6F5E\u7018\u7210\u76E7\u8001\u8606\u865C\u8DEF"sv},
    {0xE669, u"\u8F05\u9732\u9B6F\u9DFA\u9E75\u788C\u797F\u7DA0\u83C9\u9304\u9E7F\u9E93\u8AD6\u58DF"sv},
    {0xE677, u"\u5F04\u6727\u7027\u74CF\u7C60\u807E\u5121\u7028"sv},
    {0xE691, u"\u7262\u78CA\u8CC2\u8CDA\u8CF4\u96F7\u4E86\u50DA\u5BEE\u5ED6\u6599\u71CE\u7642\u77AD"sv},
    {0xE69F, u"\u804A\u84FC\u907C\u9B27\u9F8D\u58D8\u5A41\u5C62\u6A13\u6DDA\u6F0F\u763B\u7D2F\u7E37"sv},
    {0xE6AD, u"\u851E\u8938\u93E4\u964B\u5289\u65D2\u67F3\u69B4\u6D41\u6E9C\u700F\u7409\u7460\u7559"sv},
    {0xE6BB, u"\u7624\u786B\u8B2C\u985E\u516D\u622E\u9678\u4F96\u502B\u5D19\u6DEA\u7DB8\u8F2A\u5F8B"sv},
    {0xE6C9, u"\u6144\u6817\uF961\u9686\u52D2\u808B\u51DC\u51CC\u695E\u7A1C\u7DBE\u83F1\u9675\u4FDA"sv},
    {0xE6D7, u"\u5229\u5398\u540F\u550E\u5C65\u60A7\u674E\u68A8\u6D6C\u7281\u72F8\u7406\u7483\uF962"sv},
    {0xE6E5, u"\u75E2\u7C6C\u7F79\u7FB8\u8389\u88CF\u88E1\u91CC\u91D0\u96E2\u9BC9\u541D\u6F7E\u71D0"sv},
    {0xE6F3, u"\u7498\u85FA\u8EAA\u96A3\u9C57\u9E9F\u6797\u6DCB\u7433\u81E8\u9716\u782C"sv},
    {0xE731, u"\u7ACB\u7B20\u7C92\u6469\u746A\u75F2\u78BC\u78E8\u99AC\u9B54\u9EBB\u5BDE\u5E55\u6F20"sv},
    {0xE73F, u"\u819C\u83AB\u9088\u4E07\u534D\u5A29\u5DD2\u5F4E\u6162\u633D\u6669\u66FC\u6EFF\u6F2B"sv},
    {0xE74D, u"\u7063\u779E\u842C\u8513\u883B\u8F13\u9945\u9C3B\u551C\u62B9\u672B\u6CAB\u8309\u896A"sv},
    {0xE75B, u"\u977A\u4EA1\u5984\u5FD8\u5FD9\u671B\u7DB2\u7F54\u8292\u832B\u83BD\u8F1E\u9099\u57CB"sv},
    {0xE769, u"\u59B9\u5A92\u5BD0\u6627\u679A\u6885\u6BCF\u7164\u7F75\u8CB7\u8CE3\u9081\u9B45\u8108"sv},
    {0xE777, u"\u8C8A\u964C\u9A40\u9EA5\u5B5F\u6C13\u731B\u76F2"sv},
    {0xE791, u"\u76DF\u840C\u51AA\u8993\u514D\u5195\u52C9\u68C9\u6C94\u7704\u7720\u7DBF\u7DEC\u9762"sv},
    {0xE79F, u"\u9EB5\u6EC5\u8511\u51A5\u540D\u547D\u660E\u669D\u6927\u6E9F\u76BF\u7791\u8317\u84C2"sv},
    {0xE7AD, u"\u879F\u9169\u9298\u9CF4\u8882\u4FAE\u5192\u52DF\u59C6\u5E3D\u6155\u6478\u6479\u66AE"sv},
    {0xE7BB, u"\u67D0\u6A21\u6BCD\u6BDB\u725F\u7261\u7441\u7738\u77DB\u8017\u82BC\u8305\u8B00\u8B28"sv},
    {0xE7C9, u"\u8C8C\u6728\u6C90\u7267\u76EE\u7766\u7A46\u9DA9\u6B7F\u6C92\u5922\u6726\u8499\u536F"sv},
    {0xE7D7, u"\u5893\u5999\u5EDF\u63CF\u6634\u6773\u6E3A\u732B\u7AD7\u82D7\u9328\u52D9\u5DEB\u61AE"sv},
    {0xE7E5, u"\u61CB\u620A\u62C7\u64AB\u65E0\u6959\u6B66\u6BCB\u7121\u73F7\u755D\u7E46\u821E\u8302"sv},
    {0xE7F3, u"\u856A\u8AA3\u8CBF\u9727\u9D61\u58A8\u9ED8\u5011\u520E\u543B\u554F\u6587"sv},
    {0xE831, u"\u6C76\u7D0A\u7D0B\u805E\u868A\u9580\u96EF\u52FF\u6C95\u7269\u5473\u5A9A\u5C3E\u5D4B"sv},
    {0xE83F, u"\u5F4C\u5FAE\u672A\u68B6\u6963\u6E3C\u6E44\u7709\u7C73\u7F8E\u8587\u8B0E\u8FF7\u9761"sv},
    {0xE84D, u"\u9EF4\u5CB7\u60B6\u610D\u61AB\u654F\u65FB\u65FC\u6C11\u6CEF\u739F\u73C9\u7DE1\u9594"sv},
    {0xE85B, u"\u5BC6\u871C\u8B10\u525D\u535A\u62CD\u640F\u64B2\u6734\u6A38\u6CCA\u73C0\u749E\u7B94"sv},
    {0xE869, u"\u7C95\u7E1B\u818A\u8236\u8584\u8FEB\u96F9\u99C1\u4F34\u534A\u53CD\u53DB\u62CC\u642C"sv},
    {0xE877, u"\u6500\u6591\u69C3\u6CEE\u6F58\u73ED\u7554\u7622"sv},
    {0xE891, u"\u76E4\u76FC\u78D0\u78FB\u792C\u7D46\u822C\u87E0\u8FD4\u9812\u98EF\u52C3\u62D4\u64A5"sv},
    {0xE89F, u"\u6E24\u6F51\u767C\u8DCB\u91B1\u9262\u9AEE\u9B43\u5023\u508D\u574A\u59A8\u5C28\u5E47"sv},
    {0xE8AD, u"\u5F77\u623F\u653E\u65B9\u65C1\u6609\u678B\u699C\u6EC2\u78C5\u7D21\u80AA\u8180\u822B"sv},
    {0xE8BB, u"\u82B3\u84A1\u868C\u8A2A\u8B17\u90A6\u9632\u9F90\u500D\u4FF3\uF963\u57F9\u5F98\u62DC"sv},
    {0xE8C9, u"\u6392\u676F\u6E43\u7119\u76C3\u80CC\u80DA\u88F4\u88F5\u8919\u8CE0\u8F29\u914D\u966A"sv},
    {0xE8D7, u"\u4F2F\u4F70\u5E1B\u67CF\u6822\u767D\u767E\u9B44\u5E61\u6A0A\u7169\u71D4\u756A\uF964"sv},
    {0xE8E5, u"\u7E41\u8543\u85E9\u98DC\u4F10\u7B4F\u7F70\u95A5\u51E1\u5E06\u68B5\u6C3E\u6C4E\u6CDB"sv},
    {0xE8F3, u"\u72AF\u7BC4\u8303\u6CD5\u743A\u50FB\u5288\u58C1\u64D8\u6A97\u74A7\u7656"sv},
    {0xE931, u"\u78A7\u8617\u95E2\u9739\uF965\u535E\u5F01\u8B8A\u8FA8\u8FAF\u908A\u5225\u77A5\u9C49"sv},
    {0xE93F, u"\u9F08\u4E19\u5002\u5175\u5C5B\u5E77\u661E\u663A\u67C4\u68C5\u70B3\u7501\u75C5\u79C9"sv},
    {0xE94D, u"\u7ADD\u8F27\u9920\u9A08\u4FDD\u5821\u5831\u5BF6\u666E\u6B65\u6D11\u6E7A\u6F7D\u73E4"sv},
    {0xE95B, u"\u752B\u83E9\u88DC\u8913\u8B5C\u8F14\u4F0F\u50D5\u5310\u535C\u5B93\u5FA9\u670D\u798F"sv},
    {0xE969, u"\u8179\u832F\u8514\u8907\u8986\u8F39\u8F3B\u99A5\u9C12\u672C\u4E76\u4FF8\u5949\u5C01"sv},
    {0xE977, u"\u5CEF\u5CF0\u6367\u68D2\u70FD\u71A2\u742B\u7E2B"sv},
    {0xE991, u"\u84EC\u8702\u9022\u92D2\u9CF3\u4E0D\u4ED8\u4FEF\u5085\u5256\u526F\u5426\u5490\u57E0"sv},
    {0xE99F, u"\u592B\u5A66\u5B5A\u5B75\u5BCC\u5E9C\uF966\u6276\u6577\u65A7\u6D6E\u6EA5\u7236\u7B26"sv},
    {0xE9AD, u"\u7C3F\u7F36\u8150\u8151\u819A\u8240\u8299\u83A9\u8A03\u8CA0\u8CE6\u8CFB\u8D74\u8DBA"sv},
    {0xE9BB, u"\u90E8\u91DC\u961C\u9644\u99D9\u9CE7\u5317\u5206\u5429\u5674\u58B3\u5954\u596E\u5FFF"sv},
    {0xE9C9, u"\u61A4\u626E\u6610\u6C7E\u711A\u76C6\u7C89\u7CDE\u7D1B\u82AC\u8CC1\u96F0\uF967\u4F5B"sv},
    {0xE9D7, u"\u5F17\u5F7F\u62C2\u5D29\u670B\u68DA\u787C\u7E43\u9D6C\u4E15\u5099\u5315\u532A\u5351"sv},
    {0xE9E5, u"\u5983\u5A62\u5E87\u60B2\u618A\u6249\u6279\u6590\u6787\u69A7\u6BD4\u6BD6\u6BD7\u6BD8"sv},
    {0xE9F3, u"\u6CB8\uF968\u7435\u75FA\u7812\u7891\u79D5\u79D8\u7C83\u7DCB\u7FE1\u80A5"sv},
    {0xEA31, u"\u813E\u81C2\u83F2\u871A\u88E8\u8AB9\u8B6C\u8CBB\u9119\u975E\u98DB\u9F3B\u56AC\u5B2A"sv},
    {0xEA3F, u"\u5F6C\u658C\u6AB3\u6BAF\u6D5C\u6FF1\u7015\u725D\u73AD\u8CA7\u8CD3\u983B\u6191\u6C37"sv},
    {0xEA4D, u"\u8058\u9A01\u4E4D\u4E8B\u4E9B\u4ED5\u4F3A\u4F3C\u4F7F\u4FDF\u50FF\u53F2\u53F8\u5506"sv},
    {0xEA5B, u"\u55E3\u56DB\u58EB\u5962\u5A11\u5BEB\u5BFA\u5C04\u5DF3\u5E2B\u5F99\u601D\u6368\u659C"sv},
    {0xEA69, u"\u65AF\u67F6\u67FB\u68AD\u6B7B\u6C99\u6CD7\u6E23\u7009\u7345\u7802\u793E\u7940\u7960"sv},
    {0xEA77, u"\u79C1\u7BE9\u7D17\u7D72\u8086\u820D\u838E\u84D1"sv},
    {0xEA91, u"\u86C7\u88DF\u8A50\u8A5E\u8B1D\u8CDC\u8D66\u8FAD\u90AA\u98FC\u99DF\u9E9D\u524A\uF969"sv},
    {0xEA9F, u"\u6714\uF96A\u5098\u522A\u5C71\u6563\u6C55\u73CA\u7523\u759D\u7B97\u849C\u9178\u9730"sv},
    {0xEAAD, u"\u4E77\u6492\u6BBA\u715E\u85A9\u4E09\uF96B\u6749\u68EE\u6E17\u829F\u8518\u886B\u63F7"sv},
    {0xEABB, u"\u6F81\u9212\u98AF\u4E0A\u50B7\u50CF\u511F\u5546\u55AA\u5617\u5B40\u5C19\u5CE0\u5E38"sv},
    {0xEAC9, u"\u5E8A\u5EA0\u5EC2\u60F3\u6851\u6A61\u6E58\u723D\u7240\u72C0\u76F8\u7965\u7BB1\u7FD4"sv},
    {0xEAD7, u"\u88F3\u89F4\u8A73\u8C61\u8CDE\u971C\u585E\u74BD\u8CFD\u55C7\uF96C\u7A61\u7D22\u8272"sv},
    {0xEAE5, u"\u7272\u751F\u7525\uF96D\u7B19\u5885\u58FB\u5DBC\u5E8F\u5EB6\u5F90\u6055\u6292\u637F"sv},
    {0xEAF3, u"\u654D\u6691\u66D9\u66F8\u6816\u68F2\u7280\u745E\u7B6E\u7D6E\u7DD6\u7F72"sv},
    {0xEB31, u"\u80E5\u8212\u85AF\u897F\u8A93\u901D\u92E4\u9ECD\u9F20\u5915\u596D\u5E2D\u60DC\u6614"sv},
    {0xEB3F, u"\u6673\u6790\u6C50\u6DC5\u6F5F\u77F3\u78A9\u84C6\u91CB\u932B\u4ED9\u50CA\u5148\u5584"sv},
    {0xEB4D, u"\u5B0B\u5BA3\u6247\u657E\u65CB\u6E32\u717D\u7401\u7444\u7487\u74BF\u766C\u79AA\u7DDA"sv},
    {0xEB5B, u"\u7E55\u7FA8\u817A\u81B3\u8239\u861A\u87EC\u8A75\u8DE3\u9078\u9291\u9425\u994D\u9BAE"sv},
    {0xEB69, u"\u5368\u5C51\u6954\u6CC4\u6D29\u6E2B\u820C\u859B\u893B\u8A2D\u8AAA\u96EA\u9F67\u5261"sv},
    {0xEB77, u"\u66B9\u6BB2\u7E96\u87FE\u8D0D\u9583\u965D\u651D"sv},
    {0xEB91, u"\u6D89\u71EE\uF96E\u57CE\u59D3\u5BAC\u6027\u60FA\u6210\u661F\u665F\u7329\u73F9\u76DB"sv},
    {0xEB9F, u"\u7701\u7B6C\u8056\u8072\u8165\u8AA0\u9192\u4E16\u52E2\u6B72\u6D17\u7A05\u7B39\u7D30"sv},
    {0xEBAD, u"\uF96F\u8CB0\u53EC\u562F\u5851\u5BB5\u5C0F\u5C11\u5DE2\u6240\u6383\u6414\u662D\u68B3"sv},
    {0xEBBB, u"\u6CBC\u6D88\u6EAF\u701F\u70A4\u71D2\u7526\u758F\u758E\u7619\u7B11\u7BE0\u7C2B\u7D20"sv},
    {0xEBC9, u"\u7D39\u852C\u856D\u8607\u8A34\u900D\u9061\u90B5\u92B7\u97F6\u9A37\u4FD7\u5C6C\u675F"sv},
    {0xEBD7, u"\u6D91\u7C9F\u7E8C\u8B16\u8D16\u901F\u5B6B\u5DFD\u640D\u84C0\u905C\u98E1\u7387\u5B8B"sv},
    {0xEBE5, u"\u609A\u677E\u6DDE\u8A1F\u8AA6\u9001\u980C\u5237\uF970\u7051\u788E\u9396\u8870\u91D7"sv},
    {0xEBF3, u"\u4FEE\u53D7\u55FD\u56DA\u5782\u58FD\u5AC2\u5B88\u5CAB\u5CC0\u5E25\u6101"sv},
    {0xEC31, u"\u620D\u624B\u6388\u641C\u6536\u6578\u6A39\u6B8A\u6C34\u6D19\u6F31\u71E7\u72E9\u7378"sv},
    {0xEC3F, u"\u7407\u74B2\u7626\u7761\u79C0\u7A57\u7AEA\u7CB9\u7D8F\u7DAC\u7E61\u7F9E\u8129\u8331"sv},
    {0xEC4D, u"\u8490\u84DA\u85EA\u8896\u8AB0\u8B90\u8F38\u9042\u9083\u916C\u9296\u92B9\u968B\u96A7"sv},
    {0xEC5B, u"\u96A8\u96D6\u9700\u9808\u9996\u9AD3\u9B1A\u53D4\u587E\u5919\u5B70\u5BBF\u6DD1\u6F5A"sv},
    {0xEC69, u"\u719F\u7421\u74B9\u8085\u83FD\u5DE1\u5F87\u5FAA\u6042\u65EC\u6812\u696F\u6A53\u6B89"sv},
    {0xEC77, u"\u6D35\u6DF3\u73E3\u76FE\u77AC\u7B4D\u7D14\u8123"sv},
    {0xEC91, u"\u821C\u8340\u84F4\u8563\u8A62\u8AC4\u9187\u931E\u9806\u99B4\u620C\u8853\u8FF0\u9265"sv},
    {0xEC9F, u"\u5D07\u5D27\u5D69\u745F\u819D\u8768\u6FD5\u62FE\u7FD2\u8936\u8972\u4E1E\u4E58\u50E7"sv},
    {0xECAD, u"\u52DD\u5347\u627F\u6607\u7E69\u8805\u965E\u4F8D\u5319\u5636\u59CB\u5AA4\u5C38\u5C4E"sv},
    {0xECBB, u"\u5C4D\u5E02\u5F11\u6043\u65BD\u662F\u6642\u67BE\u67F4\u731C\u77E2\u793A\u7FC5\u8494"sv},
    {0xECC9, u"\u84CD\u8996\u8A66\u8A69\u8AE1\u8C55\u8C7A\u57F4\u5BD4\u5F0F\u606F\u62ED\u690D\u6B96"sv},
    {0xECD7, u"\u6E5C\u7184\u7BD2\u8755\u8B58\u8EFE\u98DF\u98FE\u4F38\u4F81\u4FE1\u547B\u5A20\u5BB8"sv},
    {0xECE5, u"\u613C\u65B0\u6668\u71FC\u7533\u795E\u7D33\u814E\u81E3\u8398\u85AA\u85CE\u8703\u8A0A"sv},
    {0xECF3, u"\u8EAB\u8F9B\uF971\u8FC5\u5931\u5BA4\u5BE6\u6089\u5BE9\u5C0B\u5FC3\u6C81"sv},
    {0xED31, u"\uF972\u6DF1\u700B\u751A\u82AF\u8AF6\u4EC0\u5341\uF973\u96D9\u6C0F\u4E9E\u4FC4\u5152"sv},
    {0xED3F, u"\u555E\u5A25\u5CE8\u6211\u7259\u82BD\u83AA\u86FE\u8859\u8A1D\u963F\u96C5\u9913\u9D09"sv},
    {0xED4D, u"\u9D5D\u580A\u5CB3\u5DBD\u5E44\u60E1\u6115\u63E1\u6A02\u6E25\u9102\u9354\u984E\u9C10"sv},
    {0xED5B, u"\u9F77\u5B89\u5CB8\u6309\u664F\u6848\u773C\u96C1\u978D\u9854\u9B9F\u65A1\u8B01\u8ECB"sv},
    {0xED69, u"\u95BC\u5535\u5CA9\u5DD6\u5EB5\u6697\u764C\u83F4\u95C7\u58D3\u62BC\u72CE\u9D28\u4EF0"sv},
    {0xED77, u"\u592E\u600F\u663B\u6B83\u79E7\u9D26\u5393\u54C0"sv},
    {0xED91, u"\u57C3\u5D16\u611B\u66D6\u6DAF\u788D\u827E\u9698\u9744\u5384\u627C\u6396\u6DB2\u7E0A"sv},
    {0xED9F, u"\u814B\u984D\u6AFB\u7F4C\u9DAF\u9E1A\u4E5F\u503B\u51B6\u591C\u60F9\u63F6\u6930\u723A"sv},
    {0xEDAD, u"\u8036\uF974\u91CE\u5F31\uF975\uF976\u7D04\u82E5\u846F\u84BB\u85E5\u8E8D\uF977\u4F6F"sv},
    {0xEDBB, u"\uF978\uF979\u58E4\u5B43\u6059\u63DA\u6518\u656D\u6698\uF97A\u694A\u6A23\u6D0B\u7001"sv},
    {0xEDC9, u"\u716C\u75D2\u760D\u79B3\u7A70\uF97B\u7F8A\uF97C\u8944\uF97D\u8B93\u91C0\u967D\uF97E"sv},
    {0xEDD7, u"\u990A\u5704\u5FA1\u65BC\u6F01\u7600\u79A6\u8A9E\u99AD\u9B5A\u9F6C\u5104\u61B6\u6291"sv},
    {0xEDE5, u"\u6A8D\u81C6\u5043\u5830\u5F66\u7109\u8A00\u8AFA\u5B7C\u8616\u4FFA\u513C\u56B4\u5944"sv},
    {0xEDF3, u"\u63A9\u6DF9\u5DAA\u696D\u5186\u4E88\u4F59\uF97F\uF980\uF981\u5982\uF982"sv},
    {0xEE31, u"\uF983\u6B5F\u6C5D\uF984\u74B5\u7916\uF985\u8207\u8245\u8339\u8F3F\u8F5D\uF986\u9918"sv},
    {0xEE3F, u"\uF987\uF988\uF989\u4EA6\uF98A\u57DF\u5F79\u6613\uF98B\uF98C\u75AB\u7E79\u8B6F\uF98D"sv},
    {0xEE4D, u"\u9006\u9A5B\u56A5\u5827\u59F8\u5A1F\u5BB4\uF98E\u5EF6\uF98F\uF990\u6350\u633B\uF991"sv},
    {0xEE5B, u"\u693D\u6C87\u6CBF\u6D8E\u6D93\u6DF5\u6F14\uF992\u70DF\u7136\u7159\uF993\u71C3\u71D5"sv},
    {0xEE69, u"\uF994\u784F\u786F\uF995\u7B75\u7DE3\uF996\u7E2F\uF997\u884D\u8EDF\uF998\uF999\uF99A"sv},
    {0xEE77, u"\u925B\uF99B\u9CF6\uF99C\uF99D\uF99E\u6085\u6D85"sv},
    {0xEE91, u"\uF99F\u71B1\uF9A0\uF9A1\u95B1\u53AD\uF9A2\uF9A3\uF9A4\u67D3\uF9A5\u708E\u7130\u7430"sv},
    {0xEE9F, u"\u8276\u82D2\uF9A6\u95BB\u9AE5\u9E7D\u66C4\uF9A7\u71C1\u8449\uF9A8\uF9A9\u584B\uF9AA"sv},
    {0xEEAD, u"\uF9AB\u5DB8\u5F71\uF9AC\u6620\u668E\u6979\u69AE\u6C38\u6CF3\u6E36\u6F41\u6FDA\u701B"sv},
    {0xEEBB, u"\u702F\u7150\u71DF\u7370\uF9AD\u745B\uF9AE\u74D4\u76C8\u7A4E\u7E93\uF9AF\uF9B0\u82F1"sv},
    {0xEEC9, u"\u8A60\u8FCE\uF9B1\u9348\uF9B2\u9719\uF9B3\uF9B4\u4E42\u502A\uF9B5\u5208\u53E1\u66F3"sv},
    {0xEED7, u"\u6C6D\u6FCA\u730A\u777F\u7A62\u82AE\u85DD\u8602\uF9B6\u88D4\u8A63\u8B7D\u8C6B\uF9B7"sv},
    {0xEEE5, u"\u92B3\uF9B8\u9713\u9810\u4E94\u4F0D\u4FC9\u50B2\u5348\u543E\u5433\u55DA\u5862\u58BA"sv},
    {0xEEF3, u"\u5967\u5A1B\u5BE4\u609F\uF9B9\u61CA\u6556\u65FF\u6664\u68A7\u6C5A\u6FB3"sv},
    {0xEF31, u"\u70CF\u71AC\u7352\u7B7D\u8708\u8AA4\u9C32\u9F07\u5C4B\u6C83\u7344\u7389\u923A\u6EAB"sv},
    {0xEF3F, u"\u7465\u761F\u7A69\u7E15\u860A\u5140\u58C5\u64C1\u74EE\u7515\u7670\u7FC1\u9095\u96CD"sv},
    {0xEF4D, u"\u9954\u6E26\u74E6\u7AA9\u7AAA\u81E5\u86D9\u8778\u8A1B\u5A49\u5B8C\u5B9B\u68A1\u6900"sv},
    {0xEF5B, u"\u6D63\u73A9\u7413\u742C\u7897\u7DE9\u7FEB\u8118\u8155\u839E\u8C4C\u962E\u9811\u66F0"sv},
    {0xEF69, u"\u5F80\u65FA\u6789\u6C6A\u738B\u502D\u5A03\u6B6A\u77EE\u5916\u5D6C\u5DCD\u7325\u754F"sv},
    {0xEF77, u"\uF9BA\uF9BB\u50E5\u51F9\u582F\u592D\u5996\u59DA"sv},
    {0xEF91, u"\u5BE5\uF9BC\uF9BD\u5DA2\u62D7\u6416\u6493\u64FE\uF9BE\u66DC\uF9BF\u6A48\uF9C0\u71FF"sv},
    {0xEF9F, u"\u7464\uF9C1\u7A88\u7AAF\u7E47\u7E5E\u8000\u8170\uF9C2\u87EF\u8981\u8B20\u9059\uF9C3"sv},
    {0xEFAD, u"\u9080\u9952\u617E\u6B32\u6D74\u7E1F\u8925\u8FB1\u4FD1\u50AD\u5197\u52C7\u57C7\u5889"sv},
    {0xEFBB, u"\u5BB9\u5EB8\u6142\u6995\u6D8C\u6E67\u6EB6\u7194\u7462\u7528\u752C\u8073\u8338\u84C9"sv},
    {0xEFC9, u"\u8E0A\u9394\u93DE\uF9C4\u4E8E\u4F51\u5076\u512A\u53C8\u53CB\u53F3\u5B87\u5BD3\u5C24"sv},
    {0xEFD7, u"\u611A\u6182\u65F4\u725B\u7397\u7440\u76C2\u7950\u7991\u79B9\u7D06\u7FBD\u828B\u85D5"sv},
    {0xEFE5, u"\u865E\u8FC2\u9047\u90F5\u91EA\u9685\u96E8\u96E9\u52D6\u5F67\u65ED\u6631\u682F\u715C"sv},
    {0xEFF3, u"\u7A36\u90C1\u980A\u4E91\uF9C5\u6A52\u6B9E\u6F90\u7189\u8018\u82B8\u8553"sv},
    {0xF031, u"\u904B\u9695\u96F2\u97FB\u851A\u9B31\u4E90\u718A\u96C4\u5143\u539F\u54E1\u5713\u5712"sv},
    {0xF03F, u"\u57A3\u5A9B\u5AC4\u5BC3\u6028\u613F\u63F4\u6C85\u6D39\u6E72\u6E90\u7230\u733F\u7457"sv},
    {0xF04D, u"\u82D1\u8881\u8F45\u9060\uF9C6\u9662\u9858\u9D1B\u6708\u8D8A\u925E\u4F4D\u5049\u50DE"sv},
    {0xF05B, u"\u5371\u570D\u59D4\u5A01\u5C09\u6170\u6690\u6E2D\u7232\u744B\u7DEF\u80C3\u840E\u8466"sv},
    {0xF069, u"\u853F\u875F\u885B\u8918\u8B02\u9055\u97CB\u9B4F\u4E73\u4F91\u5112\u516A\uF9C7\u552F"sv},
    {0xF077, u"\u55A9\u5B7A\u5BA5\u5E7C\u5E7D\u5EBE\u60A0\u60DF"sv},
    {0xF091, u"\u6108\u6109\u63C4\u6538\u6709\uF9C8\u67D4\u67DA\uF9C9\u6961\u6962\u6CB9\u6D27\uF9CA"sv},
    {0xF09F, u"\u6E38\uF9CB\u6FE1\u7336\u7337\uF9CC\u745C\u7531\uF9CD\u7652\uF9CE\uF9CF\u7DAD\u81FE"sv},
    {0xF0AD, u"\u8438\u88D5\u8A98\u8ADB\u8AED\u8E30\u8E42\u904A\u903E\u907A\u9149\u91C9\u936E\uF9D0"sv},
    {0xF0BB, u"\uF9D1\u5809\uF9D2\u6BD3\u8089\u80B2\uF9D3\uF9D4\u5141\u596B\u5C39\uF9D5\uF9D6\u6F64"sv},
    {0xF0C9, u"\u73A7\u80E4\u8D07\uF9D7\u9217\u958F\uF9D8\uF9D9\uF9DA\uF9DB\u807F\u620E\u701C\u7D68"sv},
    {0xF0D7, u"\u878D\uF9DC\u57A0\u6069\u6147\u6BB7\u8ABE\u9280\u96B1\u4E59\u541F\u6DEB\u852D\u9670"sv},
    {0xF0E5, u"\u97F3\u98EE\u63D6\u6CE3\u9091\u51DD\u61C9\u81BA\u9DF9\u4F9D\u501A\u5100\u5B9C\u610F"sv},
    {0xF0F3, u"\u61FF\u64EC\u6905\u6BC5\u7591\u77E3\u7FA9\u8264\u858F\u87FB\u8863\u8ABC"sv},
    {0xF131, u"\u8B70\u91AB\u4E8C\u4EE5\u4F0A\uF9DD\uF9DE\u5937\u59E8\uF9DF\u5DF2\u5F1B\u5F5B\u6021"sv},
    {0xF13F, u"\uF9E0\uF9E1\uF9E2\uF9E3\u723E\u73E5\uF9E4\u7570\u75CD\uF9E5\u79FB\uF9E6\u800C\u8033"sv},
    {0xF14D, u"\u8084\u82E1\u8351\uF9E7\uF9E8\u8CBD\u8CB3\u9087\uF9E9\uF9EA\u98F4\u990C\uF9EB\uF9EC"sv},
    {0xF15B, u"\u7037\u76CA\u7FCA\u7FCC\u7FFC\u8B1A\u4EBA\u4EC1\u5203\u5370\uF9ED\u54BD\u56E0\u59FB"sv},
    {0xF169, u"\u5BC5\u5F15\u5FCD\u6E6E\uF9EE\uF9EF\u7D6A\u8335\uF9F0\u8693\u8A8D\uF9F1\u976D\u9777"sv},
    {0xF177, u"\uF9F2\uF9F3\u4E00\u4F5A\u4F7E\u58F9\u65E5\u6EA2"sv},
    {0xF191, u"\u9038\u93B0\u99B9\u4EFB\u58EC\u598A\u59D9\u6041\uF9F4\uF9F5\u7A14\uF9F6\u834F\u8CC3"sv},
    {0xF19F, u"\u5165\u5344\uF9F7\uF9F8\uF9F9\u4ECD\u5269\u5B55\u82BF\u4ED4\u523A\u54A8\u59C9\u59FF"sv},
    {0xF1AD, u"\u5B50\u5B57\u5B5C\u6063\u6148\u6ECB\u7099\u716E\u7386\u74F7\u75B5\u78C1\u7D2B\u8005"sv},
    {0xF1BB, u"\u81EA\u8328\u8517\u85C9\u8AEE\u8CC7\u96CC\u4F5C\u52FA\u56BC\u65AB\u6628\u707C\u70B8"sv},
    {0xF1C9, u"\u7235\u7DBD\u828D\u914C\u96C0\u9D72\u5B71\u68E7\u6B98\u6F7A\u76DE\u5C91\u66AB\u6F5B"sv},
    {0xF1D7, u"\u7BB4\u7C2A\u8836\u96DC\u4E08\u4ED7\u5320\u5834\u58BB\u58EF\u596C\u5C07\u5E33\u5E84"sv},
    {0xF1E5, u"\u5F35\u638C\u66B2\u6756\u6A1F\u6AA3\u6B0C\u6F3F\u7246\uF9FA\u7350\u748B\u7AE0\u7CA7"sv},
    {0xF1F3, u"\u8178\u81DF\u81E7\u838A\u846C\u8523\u8594\u85CF\u88DD\u8D13\u91AC\u9577"sv},
    {0xF231, u"\u969C\u518D\u54C9\u5728\u5BB0\u624D\u6750\u683D\u6893\u6E3D\u6ED3\u707D\u7E21\u88C1"sv},
    {0xF23F, u"\u8CA1\u8F09\u9F4B\u9F4E\u722D\u7B8F\u8ACD\u931A\u4F47\u4F4E\u5132\u5480\u59D0\u5E95"sv},
    {0xF24D, u"\u62B5\u6775\u696E\u6A17\u6CAE\u6E1A\u72D9\u732A\u75BD\u7BB8\u7D35\u82E7\u83F9\u8457"sv},
    {0xF25B, u"\u85F7\u8A5B\u8CAF\u8E87\u9019\u90B8\u96CE\u9F5F\u52E3\u540A\u5AE1\u5BC2\u6458\u6575"sv},
    {0xF269, u"\u6EF4\u72C4\uF9FB\u7684\u7A4D\u7B1B\u7C4D\u7E3E\u7FDF\u837B\u8B2B\u8CCA\u8D64\u8DE1"sv},
    {0xF277, u"\u8E5F\u8FEA\u8FF9\u9069\u93D1\u4F43\u4F7A\u50B3"sv},
    {0xF291, u"\u5168\u5178\u524D\u526A\u5861\u587C\u5960\u5C08\u5C55\u5EDB\u609B\u6230\u6813\u6BBF"sv},
    {0xF29F, u"\u6C08\u6FB1\u714E\u7420\u7530\u7538\u7551\u7672\u7B4C\u7B8B\u7BAD\u7BC6\u7E8F\u8A6E"sv},
    {0xF2AD, u"\u8F3E\u8F49\u923F\u9293\u9322\u942B\u96FB\u985A\u986B\u991E\u5207\u622A\u6298\u6D59"sv},
    {0xF2BB, u"\u7664\u7ACA\u7BC0\u7D76\u5360\u5CBE\u5E97\u6F38\u70B9\u7C98\u9711\u9B8E\u9EDE\u63A5"sv},
    {0xF2C9, u"\u647A\u8776\u4E01\u4E95\u4EAD\u505C\u5075\u5448\u59C3\u5B9A\u5E40\u5EAD\u5EF7\u5F81"sv},
    {0xF2D7, u"\u60C5\u633A\u653F\u6574\u65CC\u6676\u6678\u67FE\u6968\u6A89\u6B63\u6C40\u6DC0\u6DE8"sv},
    {0xF2E5, u"\u6E1F\u6E5E\u701E\u70A1\u738E\u73FD\u753A\u775B\u7887\u798E\u7A0B\u7A7D\u7CBE\u7D8E"sv},
    {0xF2F3, u"\u8247\u8A02\u8AEA\u8C9E\u912D\u914A\u91D8\u9266\u92CC\u9320\u9706\u9756"sv},
    {0xF331, u"\u975C\u9802\u9F0E\u5236\u5291\u557C\u5824\u5E1D\u5F1F\u608C\u63D0\u68AF\u6FDF\u796D"sv},
    {0xF33F, u"\u7B2C\u81CD\u85BA\u88FD\u8AF8\u8E44\u918D\u9664\u969B\u973D\u984C\u9F4A\u4FCE\u5146"sv},
    {0xF34D, u"\u51CB\u52A9\u5632\u5F14\u5F6B\u63AA\u64CD\u65E9\u6641\u66FA\u66F9\u671D\u689D\u68D7"sv},
    {0xF35B, u"\u69FD\u6F15\u6F6E\u7167\u71E5\u722A\u74AA\u773A\u7956\u795A\u79DF\u7A20\u7A95\u7C97"sv},
    {0xF369, u"\u7CDF\u7D44\u7E70\u8087\u85FB\u86A4\u8A54\u8ABF\u8D99\u8E81\u9020\u906D\u91E3\u963B"sv},
    {0xF377, u"\u96D5\u9CE5\u65CF\u7C07\u8DB3\u93C3\u5B58\u5C0A"sv},
    {0xF391, u"\u5352\u62D9\u731D\u5027\u5B97\u5F9E\u60B0\u616B\u68D5\u6DD9\u742E\u7A2E\u7D42\u7D9C"sv},
    {0xF39F, u"\u7E31\u816B\u8E2A\u8E35\u937E\u9418\u4F50\u5750\u5DE6\u5EA7\u632B\u7F6A\u4E3B\u4F4F"sv},
    {0xF3AD, u"\u4F8F\u505A\u59DD\u80C4\u546A\u5468\u55FE\u594F\u5B99\u5DDE\u5EDA\u665D\u6731\u67F1"sv},
    {0xF3BB, u"\u682A\u6CE8\u6D32\u6E4A\u6F8D\u70B7\u73E0\u7587\u7C4C\u7D02\u7D2C\u7DA2\u821F\u86DB"sv},
    {0xF3C9, u"\u8A3B\u8A85\u8D70\u8E8A\u8F33\u9031\u914E\u9152\u9444\u99D0\u7AF9\u7CA5\u4FCA\u5101"sv},
    {0xF3D7, u"\u51C6\u57C8\u5BEF\u5CFB\u6659\u6A3D\u6D5A\u6E96\u6FEC\u710C\u756F\u7AE3\u8822\u9021"sv},
    {0xF3E5, u"\u9075\u96CB\u99FF\u8301\u4E2D\u4EF2\u8846\u91CD\u537D\u6ADB\u696B\u6C41\u847A\u589E"sv},
    {0xF3F3, u"\u618E\u66FE\u62EF\u70DD\u7511\u75C7\u7E52\u84B8\u8B49\u8D08\u4E4B\u53EA"sv},
    {0xF431, u"\u54AB\u5730\u5740\u5FD7\u6301\u6307\u646F\u652F\u65E8\u667A\u679D\u67B3\u6B62\u6C60"sv},
    {0xF43F, u"\u6C9A\u6F2C\u77E5\u7825\u7949\u7957\u7D19\u80A2\u8102\u81F3\u829D\u82B7\u8718\u8A8C"sv},
    {0xF44D, u"\uF9FC\u8D04\u8DBE\u9072\u76F4\u7A19\u7A37\u7E54\u8077\u5507\u55D4\u5875\u632F\u6422"sv},
    {0xF45B, u"\u6649\u664B\u686D\u699B\u6B84\u6D25\u6EB1\u73CD\u7468\u74A1\u755B\u75B9\u76E1\u771E"sv},
    {0xF469, u"\u778B\u79E6\u7E09\u7E1D\u81FB\u852F\u8897\u8A3A\u8CD1\u8EEB\u8FB0\u9032\u93AD\u9663"sv},
    {0xF477, u"\u9673\u9707\u4F84\u53F1\u59EA\u5AC9\u5E19\u684E"sv},
    {0xF491, u"\u74C6\u75BE\u79E9\u7A92\u81A3\u86ED\u8CEA\u8DCC\u8FED\u659F\u6715\uF9FD\u57F7\u6F57"sv},
    {0xF49F, u"\u7DDD\u8F2F\u93F6\u96C6\u5FB5\u61F2\u6F84\u4E14\u4F98\u501F\u53C9\u55DF\u5D6F\u5DEE"sv},
    {0xF4AD, u"\u6B21\u6B64\u78CB\u7B9A\uF9FE\u8E49\u8ECA\u906E\u6349\u643E\u7740\u7A84\u932F\u947F"sv},
    {0xF4BB, u"\u9F6A\u64B0\u6FAF\u71E6\u74A8\u74DA\u7AC4\u7C12\u7E82\u7CB2\u7E98\u8B9A\u8D0A\u947D"sv},
    {0xF4C9, u"\u9910\u994C\u5239\u5BDF\u64E6\u672D\u7D2E\u50ED\u53C3\u5879\u6158\u6159\u61FA\u65AC"sv},
    {0xF4D7, u"\u7AD9\u8B92\u8B96\u5009\u5021\u5275\u5531\u5A3C\u5EE0\u5F70\u6134\u655E\u660C\u6636"sv},
    {0xF4E5, u"\u66A2\u69CD\u6EC4\u6F32\u7316\u7621\u7A93\u8139\u8259\u83D6\u84BC\u50B5\u57F0\u5BC0"sv},
    {0xF4F3, u"\u5BE8\u5F69\u63A1\u7826\u7DB5\u83DC\u8521\u91C7\u91F5\u518A\u67F5\u7B56"sv},
    {0xF531, u"\u8CAC\u51C4\u59BB\u60BD\u8655\u501C\uF9FF\u5254\u5C3A\u617D\u621A\u62D3\u64F2\u65A5"sv},
    {0xF53F, u"\u6ECC\u7620\u810A\u8E60\u965F\u96BB\u4EDF\u5343\u5598\u5929\u5DDD\u64C5\u6CC9\u6DFA"sv},
    {0xF54D, u"\u7394\u7A7F\u821B\u85A6\u8CE4\u8E10\u9077\u91E7\u95E1\u9621\u97C6\u51F8\u54F2\u5586"sv},
    {0xF55B, u"\u5FB9\u64A4\u6F88\u7DB4\u8F1F\u8F4D\u9435\u50C9\u5C16\u6CBE\u6DFB\u751B\u77BB\u7C3D"sv},
    {0xF569, u"\u7C64\u8A79\u8AC2\u581E\u59BE\u5E16\u6377\u7252\u758A\u776B\u8ADC\u8CBC\u8F12\u5EF3"sv},
    {0xF577, u"\u6674\u6DF8\u807D\u83C1\u8ACB\u9751\u9BD6\uFA00"sv},
    {0xF591, u"\u5243\u66FF\u6D95\u6EEF\u7DE0\u8AE6\u902E\u905E\u9AD4\u521D\u527F\u54E8\u6194\u6284"sv},
    {0xF59F, u"\u62DB\u68A2\u6912\u695A\u6A35\u7092\u7126\u785D\u7901\u790E\u79D2\u7A0D\u8096\u8278"sv},
    {0xF5AD, u"\u82D5\u8349\u8549\u8C82\u8D85\u9162\u918B\u91AE\u4FC3\u56D1\u71ED\u77D7\u8700\u89F8"sv},
    {0xF5BB, u"\u5BF8\u5FD6\u6751\u90A8\u53E2\u585A\u5BF5\u60A4\u6181\u6460\u7E3D\u8070\u8525\u9283"sv},
    {0xF5C9, u"\u64AE\u50AC\u5D14\u6700\u589C\u62BD\u63A8\u690E\u6978\u6A1E\u6E6B\u76BA\u79CB\u82BB"sv},
    {0xF5D7, u"\u8429\u8ACF\u8DA8\u8FFD\u9112\u914B\u919C\u9310\u9318\u939A\u96DB\u9A36\u9C0D\u4E11"sv},
    {0xF5E5, u"\u755C\u795D\u7AFA\u7B51\u7BC9\u7E2E\u84C4\u8E59\u8E74\u8EF8\u9010\u6625\u693F\u7443"sv},
    {0xF5F3, u"\u51FA\u672E\u9EDC\u5145\u5FE0\u6C96\u87F2\u885D\u8877\u60B4\u81B5\u8403"sv},
    {0xF631, u"\u8D05\u53D6\u5439\u5634\u5A36\u5C31\u708A\u7FE0\u805A\u8106\u81ED\u8DA3\u9189\u9A5F"sv},
    {0xF63F, u"\u9DF2\u5074\u4EC4\u53A0\u60FB\u6E2C\u5C64\u4F88\u5024\u55E4\u5CD9\u5E5F\u6065\u6894"sv},
    {0xF64D, u"\u6CBB\u6DC4\u71BE\u75D4\u75F4\u7661\u7A1A\u7A49\u7DC7\u7DFB\u7F6E\u81F4\u86A9\u8F1C"sv},
    {0xF65B, u"\u96C9\u99B3\u9F52\u5247\u52C5\u98ED\u89AA\u4E03\u67D2\u6F06\u4FB5\u5BE2\u6795\u6C88"sv},
    {0xF669, u"\u6D78\u741B\u7827\u91DD\u937C\u87C4\u79E4\u7A31\u5FEB\u4ED6\u54A4\u553E\u58AE\u59A5"sv},
    {0xF677, u"\u60F0\u6253\u62D6\u6736\u6955\u8235\u9640\u99B1"sv},
    {0xF691, u"\u99DD\u502C\u5353\u5544\u577C\uFA01\u6258\uFA02\u64E2\u666B\u67DD\u6FC1\u6FEF\u7422"sv},
    {0xF69F, u"\u7438\u8A17\u9438\u5451\u5606\u5766\u5F48\u619A\u6B4E\u7058\u70AD\u7DBB\u8A95\u596A"sv},
    {0xF6AD, u"\u812B\u63A2\u7708\u803D\u8CAA\u5854\u642D\u69BB\u5B95\u5E11\u6E6F\uFA03\u8569\u514C"sv},
    {0xF6BB, u"\u53F0\u592A\u6020\u614B\u6B86\u6C70\u6CF0\u7B1E\u80CE\u82D4\u8DC6\u90B0\u98B1\uFA04"sv},
    {0xF6C9, u"\u64C7\u6FA4\u6491\u6504\u514E\u5410\u571F\u8A0E\u615F\u6876\uFA05\u75DB\u7B52\u7D71"sv},
    {0xF6D7, u"\u901A\u5806\u69CC\u817F\u892A\u9000\u9839\u5078\u5957\u59AC\u6295\u900F\u9B2A\u615D"sv},
    {0xF6E5, u"\u7279\u95D6\u5761\u5A46\u5DF4\u628A\u64AD\u64FA\u6777\u6CE2\u6D3E\u722C\u7436\u7834"sv},
    {0xF6F3, u"\u7F77\u82AD\u8DDB\u9817\u5224\u5742\u677F\u7248\u74E3\u8CA9\u8FA6\u9211"sv},
    {0xF731, u"\u962A\u516B\u53ED\u634C\u4F69\u5504\u6096\u6557\u6C9B\u6D7F\u724C\u72FD\u7A17\u8987"sv},
    {0xF73F, u"\u8C9D\u5F6D\u6F8E\u70F9\u81A8\u610E\u4FBF\u504F\u6241\u7247\u7BC7\u7DE8\u7FE9\u904D"sv},
    {0xF74D, u"\u97AD\u9A19\u8CB6\u576A\u5E73\u67B0\u840D\u8A55\u5420\u5B16\u5E63\u5EE2\u5F0A\u6583"sv},
    {0xF75B, u"\u80BA\u853D\u9589\u965B\u4F48\u5305\u530D\u530F\u5486\u54FA\u5703\u5E03\u6016\u629B"sv},
    {0xF769, u"\u62B1\u6355\uFA06\u6CE1\u6D66\u75B1\u7832\u80DE\u812F\u82DE\u8461\u84B2\u888D\u8912"sv},
    {0xF777, u"\u900B\u92EA\u98FD\u9B91\u5E45\u66B4\u66DD\u7011"sv},
    {0xF791, u"\u7206\uFA07\u4FF5\u527D\u5F6A\u6153\u6753\u6A19\u6F02\u74E2\u7968\u8868\u8C79\u98C7"sv},
    {0xF79F, u"\u98C4\u9A43\u54C1\u7A1F\u6953\u8AF7\u8C4A\u98A8\u99AE\u5F7C\u62AB\u75B2\u76AE\u88AB"sv},
    {0xF7AD, u"\u907F\u9642\u5339\u5F3C\u5FC5\u6CCC\u73CC\u7562\u758B\u7B46\u82FE\u999D\u4E4F\u903C"sv},
    {0xF7BB, u"\u4E0B\u4F55\u53A6\u590F\u5EC8\u6630\u6CB3\u7455\u8377\u8766\u8CC0\u9050\u971E\u9C15"sv},
    {0xF7C9, u"\u58D1\u5B78\u8650\u8B14\u9DB4\u5BD2\u6068\u608D\u65F1\u6C57\u6F22\u6FA3\u701A\u7F55"sv},
    {0xF7D7, u"\u7FF0\u9591\u9592\u9650\u97D3\u5272\u8F44\u51FD\u542B\u54B8\u5563\u558A\u6ABB\u6DB5"sv},
    {0xF7E5, u"\u7DD8\u8266\u929C\u9677\u9E79\u5408\u54C8\u76D2\u86E4\u95A4\u95D4\u965C\u4EA2\u4F09"sv},
    {0xF7F3, u"\u59EE\u5AE6\u5DF7\u6052\u6297\u676D\u6841\u6C86\u6E2F\u7F38\u809B\u822A"sv},
    {0xF831, u"\uFA08\uFA09\u9805\u4EA5\u5055\u54B3\u5793\u595A\u5B69\u5BB3\u61C8\u6977\u6D77\u7023"sv},
    {0xF83F, u"\u87F9\u89E3\u8A72\u8AE7\u9082\u99ED\u9AB8\u52BE\u6838\u5016\u5E78\u674F\u8347\u884C"sv},
    {0xF84D, u"\u4EAB\u5411\u56AE\u73E6\u9115\u97FF\u9909\u9957\u9999\u5653\u589F\u865B\u8A31\u61B2"sv},
    {0xF85B, u"\u6AF6\u737B\u8ED2\u6B47\u96AA\u9A57\u5955\u7200\u8D6B\u9769\u4FD4\u5CF4\u5F26\u61F8"sv},
    {0xF869, u"\u665B\u6CEB\u70AB\u7384\u73B9\u73FE\u7729\u774D\u7D43\u7D62\u7E23\u8237\u8852\uFA0A"sv},
    {0xF877, u"\u8CE2\u9249\u986F\u5B51\u7A74\u8840\u9801\u5ACC"sv},
    {0xF891, u"\u4FE0\u5354\u593E\u5CFD\u633E\u6D79\u72F9\u8105\u8107\u83A2\u92CF\u9830\u4EA8\u5144"sv},
    {0xF89F, u"\u5211\u578B\u5F62\u6CC2\u6ECE\u7005\u7050\u70AF\u7192\u73E9\u7469\u834A\u87A2\u8861"sv},
    {0xF8AD, u"\u9008\u90A2\u93A3\u99A8\u516E\u5F57\u60E0\u6167\u66B3\u8559\u8E4A\u91AF\u978B\u4E4E"sv},
    {0xF8BB, u"\u4E92\u547C\u58D5\u58FA\u597D\u5CB5\u5F27\u6236\u6248\u660A\u6667\u6BEB\u6D69\u6DCF"sv},
    {0xF8C9, u"\u6E56\u6EF8\u6F94\u6FE0\u6FE9\u705D\u72D0\u7425\u745A\u74E0\u7693\u795C\u7CCA\u7E1E"sv},
    {0xF8D7, u"\u80E1\u82A6\u846B\u84BF\u864E\u865F\u8774\u8B77\u8C6A\u93AC\u9800\u9865\u60D1\u6216"sv},
    {0xF8E5, u"\u9177\u5A5A\u660F\u6DF7\u6E3E\u743F\u9B42\u5FFD\u60DA\u7B0F\u54C4\u5F18\u6C5E\u6CD3"sv},
    {0xF8F3, u"\u6D2A\u70D8\u7D05\u8679\u8A0C\u9D3B\u5316\u548C\u5B05\u6A3A\u706B\u7575"sv},
    {0xF931, u"\u798D\u79BE\u82B1\u83EF\u8A71\u8B41\u8CA8\u9774\uFA0B\u64F4\u652B\u78BA\u78BB\u7A6B"sv},
    {0xF93F, u"\u4E38\u559A\u5950\u5BA6\u5E7B\u60A3\u63DB\u6B61\u6665\u6853\u6E19\u7165\u74B0\u7D08"sv},
    {0xF94D, u"\u9084\u9A69\u9C25\u6D3B\u6ED1\u733E\u8C41\u95CA\u51F0\u5E4C\u5FA8\u604D\u60F6\u6130"sv},
    {0xF95B, u"\u614C\u6643\u6644\u69A5\u6CC1\u6E5F\u6EC9\u6F62\u714C\u749C\u7687\u7BC1\u7C27\u8352"sv},
    {0xF969, u"\u8757\u9051\u968D\u9EC3\u532F\u56DE\u5EFB\u5F8A\u6062\u6094\u61F7\u6666\u6703\u6A9C"sv},
    {0xF977, u"\u6DEE\u6FAE\u7070\u736A\u7E6A\u81BE\u8334\u86D4"sv},
    {0xF991, u"\u8AA8\u8CC4\u5283\u7372\u5B96\u6A6B\u9404\u54EE\u5686\u5B5D\u6548\u6585\u66C9\u689F"sv},
    {0xF99F, u"\u6D8D\u6DC6\u723B\u80B4\u9175\u9A4D\u4FAF\u5019\u539A\u540E\u543C\u5589\u55C5\u5E3F"sv},
    {0xF9AD, u"\u5F8C\u673D\u7166\u73DD\u9005\u52DB\u52F3\u5864\u58CE\u7104\u718F\u71FB\u85B0\u8A13"sv},
    {0xF9BB, u"\u6688\u85A8\u55A7\u6684\u714A\u8431\u5349\u5599\u6BC1\u5F59\u5FBD\u63EE\u6689\u7147"sv},
    {0xF9C9, u"\u8AF1\u8F1D\u9EBE\u4F11\u643A\u70CB\u7566\u8667\u6064\u8B4E\u9DF8\u5147\u51F6\u5308"sv},
    {0xF9D7, u"\u6D36\u80F8\u9ED1\u6615\u6B23\u7098\u75D5\u5403\u5C79\u7D07\u8A16\u6B20\u6B3D\u6B46"sv},
    {0xF9E5, u"\u5438\u6070\u6D3D\u7FD5\u8208\u50D6\u51DE\u559C\u566B\u56CD\u59EC\u5B09\u5E0C\u6199"sv},
    {0xF9F3, u"\u6198\u6231\u665E\u66E6\u7199\u71B9\u71BA\u72A7\u79A7\u7A00\u7FB2\u8A70"sv},
};

constexpr TCharText cLenient1361[] = {
    {0x00D4, u"\uF8EC\uF8ED\uF8EE\uF8EF"sv}, {0x00DF, u"\uF8F0"sv},
    {0x00FA, u"\uF8F1\uF8F2\uF8F3\uF8F4\uF8F5\uF8F6"sv},
};

constexpr TCharText cFits1361[] = {
    {0x20A9, u"\\"sv},
    {0x3131, u"\u1100\u1101\u11AA\u1102\u11AC\u11AD\u1103\u1104\u1105\u11B0\u11B1\u11B2\u11B3\u11B4"sv},
    {0x313F, u"\u11B5\u11B6\u1106\u1107\u1108\u11B9\u1109\u110A\u110B\u110C\u110D\u110E\u110F\u1110"sv},
    {0x314D, u"\u1111\u1112\u1161\u1162\u1163\u1164\u1165\u1166\u1167\u1168\u1169\u116A\u116B\u116C"sv},
    {0x315B, u"\u116D\u116E\u116F\u1170\u1171\u1172\u1173\u1174\u1175\u115F\u1114\u1115\u11C7\u11C8"sv},
    {0x3169, u"\u11CC\u11CE\u11D3\u11D7\u11D9\u111C\u11DD\u11DF\u111D\u111E\u1120\u1122\u1123\u1127"sv},
    {0x3177, u"\u1128\u112B\u112C\u112D\u112E\u112F\u1132\u1136\u1140\u1147\u114C\u1145\u1146\u1157"sv},
    {0x3185, u"\u1158\u1159\u1184\u1185\u1188\u1191\u1192\u1194\u119E\u11A1"sv},
    {0xF8EC, u"\uF8EC\uF8ED\uF8EE\uF8EF\uF8F0\uF8F1\uF8F2\uF8F3\uF8F4\uF8F5\uF8F6"sv},
    {0xFFA0, u"\u115F\u1100\u1101\u11AA\u1102\u11AC\u11AD\u1103\u1104\u1105\u11B0\u11B1\u11B2\u11B3"sv},
    {0xFFAE, u"\u11B4\u11B5\u11B6\u1106\u1107\u1108\u11B9\u1109\u110A\u110B\u110C\u110D\u110E\u110F"sv},
    {0xFFBC, u"\u1110\u1111\u1112"sv}, {0xFFC2, u"\u1161\u1162\u1163\u1164\u1165\u1166"sv},
    {0xFFCA, u"\u1167\u1168\u1169\u116A\u116B\u116C"sv}, {0xFFD2, u"\u116D\u116E\u116F\u1170\u1171\u1172"sv},
    {0xFFDA, u"\u1173\u1174\u1175"sv},
};

constexpr TCharText cTexts10000[] = {
    {0x00BD, u"\u2126"sv}, {0x00F0, u"\uFFFF"sv},
};

constexpr TCharText cLenient10000[] = {
    {0x00F0, u"\uF8FF"sv},
};

constexpr TCharText cFits10000[] = {
    {0xF8FF, u"\uF8FF"sv},
};

constexpr TCodeRow cRows10001[] = {
    {0x8540, 20, 0x2460}, {0x859F, 10, 0x2160}, {0x85B3, 10, 0x2170}, {0x8793, 5, 0x32A4},
};

constexpr TCharText cTexts10001[] = {
    {0x00A0, u"\u00A0"sv}, {0x00FD, u"\u00A9\u2122\u2026"sv}, {0x8640, u"\u339C"sv}, {0x8642, u"\u339D"sv},
    {0x8646, u"\u33A1"sv}, {0x8648, u"\u339E"sv}, {0x864A, u"\u338E"sv}, {0x864C, u"\u338F\u33C4"sv},
    {0x869B, u"\u2116\u33CD\u2121"sv}, {0x86D3, u"\u2192\u2190\u2191\u2193"sv},
    {0x8740, u"\u65E5\u6708\u706B\u6C34\u6728\u91D1\u571F\u796D\u795D\u81EA\u81F3\u3239\u547C\u3231"sv},
    {0x874E, u"\u8CC7\u540D\u3232\u5B66\u8CA1\u793E\u7279\u76E3\u4F01\u5354\u52B4"sv},
    {0x8791, u"\u5927\u5C0F"sv},
    {0x8798, u"\u533B\u8CA1\u512A\u52B4\u5370\u63A7\u79D8\u3349\u3322\u334D\u3314"sv},
    {0x87A7, u"\u3303\u3336\u3318"sv}, {0x87AB, u"\u3327\u3351\u334A"sv}, {0x87AF, u"\u3357\u330D"sv},
    {0x87B2, u"\u3323\u3326\u333B\u332B"sv}, {0x87E5, u"\u337E\u337D\u337C\u337B"sv},
    {0x8840, u"\u222E\u221F\u22BF"sv},
};

constexpr TCodeRange cPreferred10001[] = {
    {0x8793, 0x8797}, {0x879F, 0x87A2}, {0x87A7, 0x87A9}, {0x87AB, 0x87AD}, {0x87AF, 0x87B0},
    {0x87B2, 0x87B5}, {0x87E5, 0x87E8}, {0x88E3, 0x88E3}, {0x88F3, 0x88F3}, {0x89CE, 0x89CE},
    {0x8A77, 0x8A77}, {0x8AC4, 0x8AC4}, {0x8AE9, 0x8AE9}, {0x8BA6, 0x8BA6}, {0x8BE0, 0x8BE0},
    {0x8C8E, 0x8C8E}, {0x8CC4, 0x8CC4}, {0x8D54, 0x8D54}, {0x8DD5, 0x8DD5}, {0x8DE0, 0x8DE0},
    {0x8E8A, 0x8E8A}, {0x8E91, 0x8E91}, {0x8EA9, 0x8EA9}, {0x8ED0, 0x8ED0}, {0x8F6A, 0x8F6A},
    {0x8FAC, 0x8FAC}, {0x9085, 0x9085}, {0x91E5, 0x91E5}, {0x9379, 0x9379}, {0x93C1, 0x93C1},
    {0x93FA, 0x93FA}, {0x94E9, 0x94E9}, {0x96BC, 0x96BC}, {0x96D8, 0x96D8}, {0x9744, 0x9744},
    {0x984A, 0x984A}, {0xFA55, 0xFA57}, {0xFA5C, 0xFA7E}, {0xFA80, 0xFAFC}, {0xFB40, 0xFB7E},
    {0xFB80, 0xFBFC}, {0xFC40, 0xFC4B},
};

constexpr TCharText cFits10001[] = {
    {0x00A1, u"!\uFFE0\uFFE1"sv}, {0x00A5, u"\uFFE5|"sv}, {0x00AA, u"a\u226A\uFFE2-R\uFFE3"sv},
    {0x00B2, u"23"sv}, {0x00B5, u"\u03BC"sv}, {0x00B7, u"\u30FB\uFF0C1o\u226B"sv},
    {0x00C0, u"AAAAAAACEEEEIIIIDNOOOOO"sv}, {0x00D8, u"OUUUUYTsaaaaaaaceeeeiiiidnooooo"sv},
    {0x00F8, u"ouuuu\u00A9\u2122\u2026"sv}, {0x2211, u"\u03A3"sv},
};

constexpr TCodeRow cRows10002[] = {
    {0x8140, 63, 0xE000}, {0x81A1, 94, 0xE03F}, {0x8240, 63, 0xE09D}, {0x82A1, 94, 0xE0DC},
    {0x8340, 63, 0xE13A}, {0x83A1, 94, 0xE179}, {0x8440, 63, 0xE1D7}, {0x84A1, 94, 0xE216},
    {0x8540, 63, 0xE274}, {0x85A1, 94, 0xE2B3}, {0x8640, 63, 0xE311}, {0x86A1, 94, 0xE350},
    {0x8740, 63, 0xE3AE}, {0x87A1, 94, 0xE3ED}, {0x8840, 63, 0xE44B}, {0x88A1, 94, 0xE48A},
    {0x8940, 63, 0xE4E8}, {0x89A1, 94, 0xE527}, {0x8A40, 63, 0xE585}, {0x8AA1, 94, 0xE5C4},
    {0x8B40, 63, 0xE622}, {0x8BA1, 94, 0xE661}, {0x8C40, 63, 0xE6BF}, {0x8CA1, 94, 0xE6FE},
    {0x8D40, 63, 0xE75C}, {0x8DA1, 94, 0xE79B}, {0x8E40, 63, 0xE7F9}, {0x8EA1, 94, 0xE838},
    {0x8F40, 63, 0xE896}, {0x8FA1, 94, 0xE8D5}, {0x9040, 63, 0xE933}, {0x90A1, 94, 0xE972},
    {0x9140, 63, 0xE9D0}, {0x91A1, 94, 0xEA0F}, {0x9240, 63, 0xEA6D}, {0x92A1, 94, 0xEAAC},
    {0x9340, 63, 0xEB0A}, {0x93A1, 94, 0xEB49}, {0x9440, 63, 0xEBA7}, {0x94A1, 94, 0xEBE6},
    {0x9540, 63, 0xEC44}, {0x95A1, 94, 0xEC83}, {0x9640, 63, 0xECE1}, {0x96A1, 94, 0xED20},
    {0x9740, 63, 0xED7E}, {0x97A1, 94, 0xEDBD}, {0x9840, 63, 0xEE1B}, {0x98A1, 94, 0xEE5A},
    {0x9940, 63, 0xEEB8}, {0x99A1, 94, 0xEEF7}, {0x9A40, 63, 0xEF55}, {0x9AA1, 94, 0xEF94},
    {0x9B40, 63, 0xEFF2}, {0x9BA1, 94, 0xF031}, {0x9C40, 63, 0xF08F}, {0x9CA1, 94, 0xF0CE},
    {0x9D40, 63, 0xF12C}, {0x9DA1, 94, 0xF16B}, {0x9E40, 63, 0xF1C9}, {0x9EA1, 94, 0xF208},
    {0x9F40, 63, 0xF266}, {0x9FA1, 94, 0xF2A5}, {0xA040, 63, 0xF303}, {0xA0A1, 94, 0xF342},
    {0xC6A1, 94, 0xF3A0}, {0xC740, 63, 0xF3FE}, {0xC7A1, 94, 0xF43D}, {0xC840, 63, 0xF49B},
    {0xC8A1, 94, 0xF4DA}, {0xFA40, 63, 0xF538}, {0xFAA1, 94, 0xF577}, {0xFB40, 63, 0xF5D5},
    {0xFBA1, 94, 0xF614}, {0xFC40, 63, 0xF672}, {0xFCA1, 94, 0xF6B1},
};

constexpr TCharText cTexts10002[] = {
    {0x00FD, u"\u00A9\u2122\u2026"sv}, {0xA3E1, u"\uFFFF"sv},
};

constexpr TCodeRange cPreferred10002[] = {
    {0x00FF, 0x00FF}, {0xA451, 0xA451}, {0xA4CA, 0xA4CA}, {0xF9E9, 0xF9EB}, {0xF9F9, 0xF9F9},
};

constexpr TCharText cFits10002[] = {
    {0x00A8, u"\u2025"sv}, {0x00B4, u"\u2019"sv}, {0x00B8, u"\uFE50"sv}, {0x00F0, u"e"sv},
    {0x0305, u"\u00AF"sv}, {0x2015, u"\u2500\u2225"sv}, {0x2022, u"\u2027"sv}, {0x2024, u"\u02D9"sv},
    {0x2033, u"\u3003"sv}, {0x203E, u"\uFFE3"sv}, {0x20A9, u"\uFFFF"sv}, {0x2211, u"\uFFFF"sv},
    {0x2216, u"\uFE68"sv}, {0x2218, u"\u00B0"sv}, {0x2263, u"\u2261"sv}, {0x2307, u"\uFE34"sv},
    {0x2609, u"\u2299"sv}, {0x2641, u"\u2295"sv}, {0x301C, u"\uFF5E"sv}, {0x3030, u"\uFE4B"sv},
    {0xF900, u"\u8C48\u66F4\u8ECA\u8CC8\u6ED1\u4E32\u53E5\u9F9C\u9F9C\u5951\u91D1\u5587\u5948\u61F6"sv},
    {0xF90E, u"\u7669\u7F85\u863F\u87BA\u88F8\u908F\u6A02\u6D1B\u70D9\u73DE\u843D\u916A\u99F1\u4E82"sv},
    {0xF91C, u"\u5375\u6B04\u721B\u862D\u9E1E\u5D50\u6FEB\u85CD\u8964\u62C9\u81D8\u881F\u5ECA\u6717"sv},
    {0xF92A, u"\u6D6A\u72FC"sv},
    {0xF92D, u"\u4F86\u51B7\u52DE\u64C4\u6AD3\u7210\u76E7\u8001\u8606\u865C\u8DEF\u9732\u9B6F\u9DFA"sv},
    {0xF93B, u"\u788C\u797F\u7DA0\u83C9\u9304\u9E7F\u8AD6\u58DF\u5F04\u7C60\u807E\u7262\u78CA\u8CC2"sv},
    {0xF949, u"\u96F7\u58D8\u5C62\u6A13\u6DDA\u6F0F\u7D2F\u7E37\u964B\u52D2\u808B\u51DC\u51CC\u7A1C"sv},
    {0xF957, u"\u7DBE\u83F1\u9675\u8B80\u62CF\u6A02\u8AFE\u4E39\u5BE7\u6012\u7387\u7570\u5317\u78FB"sv},
    {0xF965, u"\u4FBF\u5FA9\u4E0D\u6CCC\u6578\u7D22\u53C3\u585E\u7701\u8449\u8AAA\u6BBA\u8FB0\u6C88"sv},
    {0xF973, u"\u62FE\u82E5\u63A0\u7565\u4EAE\u5169"sv},
    {0xF97A, u"\u6881\u7CE7\u826F\u8AD2\u91CF\u52F5\u5442\u5973\u5EEC\u65C5\u6FFE\u792A\u95AD\u9A6A"sv},
    {0xF988, u"\u9E97\u9ECE\u529B\u66C6\u6B77\u8F62\u5E74\u6190\u6200\u649A\u6F23\u7149\u7489"sv},
    {0xF996, u"\u7DF4\u806F\u8F26\u84EE\u9023\u934A\u5217\u52A3\u54BD\u70C8\u88C2\u8AAA\u5EC9\u5FF5"sv},
    {0xF9A4, u"\u637B\u6BAE\u7C3E\u7375\u4EE4\u56F9\u5BE7\u5DBA\u601C\u73B2\u7469\u7F9A\u8046\u9234"sv},
    {0xF9B2, u"\u96F6\u9748\u9818\u4F8B\u79AE\u91B4\u96B8\u60E1\u4E86\u50DA\u5BEE\u5C3F\u6599\u6A02"sv},
    {0xF9C0, u"\u71CE\u7642\u84FC\u907C\u9F8D\u6688\u962E\u5289\u677B\u67F3\u6D41\u6E9C\u7409\u7559"sv},
    {0xF9CE, u"\u786B\u7D10\u985E\u516D\u622E\u9678\u502B\u5D19\u6DEA\u8F2A\u5F8B\u6144\u6817\u7387"sv},
    {0xF9DC, u"\u9686\u5229\u540F\u5C65\u6613\u674E\u68A8\u6CE5\u7406\u75E2\u7F79"sv},
    {0xF9E8, u"\u88E1\u91CC\u96E2\u533F\u6EBA\u541D\u71D0\u7498\u85FA"sv},
    {0xF9F2, u"\u9C57\u9E9F\u6797\u6DCB\u81E8\u7ACB\u7B20\u7C92\u72C0\u7099\u8B58\u4EC0\u8336\u523A"sv},
    {0xFA00, u"\u5207\u5EA6\u62D3\u7CD6\u5B85\u6D1E\u66B4\u8F3B\u884C\u964D\u898B\u5ED3"sv},
    {0xFA16, u"\u8C6C"sv}, {0xFF02, u"\u201D"sv}, {0xFF07, u"\u2019"sv}, {0xFF3B, u"\u3014"sv},
    {0xFF3D, u"\u3015\uFE3F"sv}, {0xFF40, u"\u2018"sv}, {0xFF64, u"\uFE51"sv},
};

constexpr TCodeRow cRows10003[] = {
    {0x0081, 31, 0x0081}, {0xA141, 26, 0xFFFF}, {0xA161, 26, 0xFFFF}, {0xA181, 32, 0xFFFF},
    {0xA241, 26, 0xFFFF}, {0xA261, 26, 0xFFFF}, {0xA281, 32, 0xFFFF}, {0xA341, 26, 0xFFFF},
    {0xA361, 26, 0xFFFF}, {0xA381, 32, 0xFFFF}, {0xA441, 26, 0xFFFF}, {0xA461, 26, 0xFFFF},
    {0xA481, 32, 0xFFFF}, {0xA541, 26, 0xFFFF}, {0xA561, 26, 0xFFFF}, {0xA581, 32, 0xFFFF},
    {0xA641, 26, 0xFFFF}, {0xA661, 26, 0xFFFF}, {0xA681, 32, 0xFFFF}, {0xA741, 26, 0xFFFF},
    {0xA761, 26, 0xFFFF}, {0xA781, 32, 0xFFFF}, {0xA841, 26, 0xFFFF}, {0xA861, 26, 0xFFFF},
    {0xA881, 32, 0xFFFF}, {0xA941, 26, 0xFFFF}, {0xA961, 26, 0xFFFF}, {0xA981, 32, 0xFFFF},
    {0xAA41, 26, 0xFFFF}, {0xAA61, 26, 0xFFFF}, {0xAA81, 32, 0xFFFF}, {0xAB41, 26, 0xFFFF},
    {0xAB61, 26, 0xFFFF}, {0xAB81, 32, 0xFFFF}, {0xAC41, 26, 0xFFFF}, {0xAC61, 26, 0xFFFF},
    {0xAC81, 32, 0xFFFF}, {0xB041, 26, 0xFFFF}, {0xB061, 26, 0xFFFF}, {0xB081, 32, 0xFFFF},
    {0xB141, 26, 0xFFFF}, {0xB161, 26, 0xFFFF}, {0xB181, 32, 0xFFFF}, {0xB241, 26, 0xFFFF},
    {0xB261, 26, 0xFFFF}, {0xB281, 32, 0xFFFF}, {0xB341, 26, 0xFFFF}, {0xB361, 26, 0xFFFF},
    {0xB381, 32, 0xFFFF}, {0xB441, 26, 0xFFFF}, {0xB461, 26, 0xFFFF}, {0xB481, 32, 0xFFFF},
    {0xB541, 26, 0xFFFF}, {0xB561, 26, 0xFFFF}, {0xB581, 32, 0xFFFF}, {0xB641, 26, 0xFFFF},
    {0xB661, 26, 0xFFFF}, {0xB681, 32, 0xFFFF}, {0xB741, 26, 0xFFFF}, {0xB761, 26, 0xFFFF},
    {0xB781, 32, 0xFFFF}, {0xB841, 26, 0xFFFF}, {0xB861, 26, 0xFFFF}, {0xB881, 32, 0xFFFF},
    {0xB941, 26, 0xFFFF}, {0xB961, 26, 0xFFFF}, {0xB981, 32, 0xFFFF}, {0xBA41, 26, 0xFFFF},
    {0xBA61, 26, 0xFFFF}, {0xBA81, 32, 0xFFFF}, {0xBB41, 26, 0xFFFF}, {0xBB61, 26, 0xFFFF},
    {0xBB81, 32, 0xFFFF}, {0xBC41, 26, 0xFFFF}, {0xBC61, 26, 0xFFFF}, {0xBC81, 32, 0xFFFF},
    {0xBD41, 26, 0xFFFF}, {0xBD61, 26, 0xFFFF}, {0xBD81, 32, 0xFFFF}, {0xBE41, 26, 0xFFFF},
    {0xBE61, 26, 0xFFFF}, {0xBE81, 32, 0xFFFF}, {0xBF41, 26, 0xFFFF}, {0xBF61, 26, 0xFFFF},
    {0xBF81, 32, 0xFFFF}, {0xC041, 26, 0xFFFF}, {0xC061, 26, 0xFFFF}, {0xC081, 32, 0xFFFF},
    {0xC141, 26, 0xFFFF}, {0xC161, 26, 0xFFFF}, {0xC181, 32, 0xFFFF}, {0xC241, 26, 0xFFFF},
    {0xC261, 26, 0xFFFF}, {0xC281, 32, 0xFFFF}, {0xC341, 26, 0xFFFF}, {0xC361, 26, 0xFFFF},
    {0xC381, 32, 0xFFFF}, {0xC441, 26, 0xFFFF}, {0xC461, 26, 0xFFFF}, {0xC481, 32, 0xFFFF},
    {0xC541, 26, 0xFFFF}, {0xC561, 26, 0xFFFF}, {0xC581, 32, 0xFFFF}, {0xC641, 18, 0xFFFF},
};

constexpr TCharText cTexts10003[] = {
    {0x00C9, u"\000"sv}, {0xA2E6, u"\uFFFF\uFFFF"sv}, {0xB4D3, u"\uB2D6"sv},
};

constexpr TCharText cLenient10003[] = {
    {0x00A0, u"\uF8E6"sv}, {0x00AD, u"\uF8E7\uF8E8\uF8E9"sv}, {0x00FE, u"\uF8EA\uF8EB"sv},
};

constexpr TCharText cFits10003[] = {
    {0x00A5, u"\uFFE5"sv}, {0x00A9, u"\u24D2"sv}, {0x00AF, u"\uFFFF"sv}, {0x0110, u"\u0111"sv},
    {0x20A9, u"\\"sv},
    {0x24B6, u"\u24D0\u24D1\u24D2\u24D3\u24D4\u24D5\u24D6\u24D7\u24D8\u24D9\u24DA\u24DB\u24DC\u24DD"sv},
    {0x24C4, u"\u24DE\u24DF\u24E0\u24E1\u24E2\u24E3\u24E4\u24E5\u24E6\u24E7\u24E8\u24E9"sv},
    {0x3094, u"\uFFFF"sv},
    {0x3192, u"\u4E00\u4E8C\u4E09\u56DB\u4E0A\u4E2D\u4E0B\u7532\u4E59\u4E19\u4E01\u5929\u5730\u4EBA"sv},
    {0x3220, u"\u4E00\u4E8C\u4E09\u56DB\u4E94\u516D\u4E03\u516B\u4E5D\u5341\u6708\u706B\u6C34\u6728"sv},
    {0x322E, u"\u91D1\u571F\u65E5\u682A\u6709\u793E\u540D\u7279\u8CA1\u795D\u52DE\u4EE3\u547C\u5B78"sv},
    {0x323C, u"\u76E3\u4F01\u8CC7\u5354\u796D\u4F11\u81EA\u81F3"sv},
    {0x3280, u"\u4E00\u4E8C\u4E09\u56DB\u4E94\u516D\u4E03\u516B\u4E5D\u5341\u6708\u706B\u6C34\u6728"sv},
    {0x328E, u"\u91D1\u571F\u65E5\u682A\u6709\u793E\u540D\u7279\u8CA1\u795D\u52DE\u79D8\u7537\u5973"sv},
    {0x329C, u"\u9069\u512A\u5370\u6CE8\u9805\u4F11\u5BEB\u6B63\u4E0A\u4E2D\u4E0B\u5DE6\u53F3\u91AB"sv},
    {0x32AA, u"\u5B97\u5B78\u76E3\u4F01\u8CC7\u5354\u591C"sv},
    {0xF8E6, u"\uF8E6\uF8E7\uF8E8\uF8E9\uF8EA\uF8EB"sv}, {0xFA0C, u"\u5140"sv}, {0xFA10, u"\u585A"sv},
    {0xFA12, u"\u6674"sv}, {0xFA15, u"\u51DE"sv}, {0xFA17, u"\u76CA"sv},
    {0xFA19, u"\u795E\u7965\u798F\u9756\u7CBE\u7FBD"sv}, {0xFA22, u"\u8AF8"sv}, {0xFA25, u"\u9038\u90FD"sv},
    {0xFA2A, u"\u98EF\u98FC\u9928\u9DB4"sv},
    {0xFFA0, u"\u3164\u3131\u3132\u3133\u3134\u3135\u3136\u3137\u3138\u3139\u313A\u313B\u313C\u313D"sv},
    {0xFFAE, u"\u313E\u313F\u3140\u3141\u3142\u3143\u3144\u3145\u3146\u3147\u3148\u3149\u314A\u314B"sv},
    {0xFFBC, u"\u314C\u314D\u314E"sv}, {0xFFC2, u"\u314F\u3150\u3151\u3152\u3153\u3154"sv},
    {0xFFCA, u"\u3155\u3156\u3157\u3158\u3159\u315A"sv}, {0xFFD2, u"\u315B\u315C\u315D\u315E\u315F\u3160"sv},
    {0xFFDA, u"\u3161\u3162\u3163"sv},
};

constexpr TCharText cTexts10004[] = {
    {0x0080, u"\u00C4\u00A0\u00C7\u00C9\u00D1\u00D6\u00DC\u00E1\u00E0\u00E2\u00E4\u06BA\u00AB\u00E7"sv},
    {0x008E, u"\u00E9\u00E8\u00EA\u00EB\u00ED\u2026\u00EE\u00EF\u00F1\u00F3\u00BB\u00F4\u00F6\u00F7"sv},
    {0x009C, u"\u00FA\u00F9\u00FB\u00FC\uFFFF"sv}, {0x00A4, u"\uFFFF\u066A"sv}, {0x00AD, u"\uFFFF"sv},
    {0x00B0, u"\u0660\u0661\u0662\u0663\u0664\u0665\u0666\u0667\u0668\u0669"sv}, {0x00C0, u"\u066D"sv},
    {0x00F3, u"\u067E\u0679\u0686\u06D5\u06A4\u06AF\u0688\u0691"sv}, {0x00FE, u"\u0698\u06D2"sv},
};

constexpr TCharText cLenient10004[] = {
    {0x00A0, u"\uF827\uF828\uF829\uF82A\uF82B"sv}, {0x00A6, u"\uF82C\uF82D\uF82E\uF82F\uF830\uF831"sv},
    {0x00AD, u"\uF832\uF833\uF834"sv}, {0x00BA, u"\uF835"sv}, {0x00BC, u"\uF836\uF837\uF838"sv},
    {0x00DB, u"\uF839\uF83A\uF83B\uF83C\uF83D"sv}, {0x00FB, u"\uF83E\uF83F\uF840"sv},
};

constexpr TCharText cFits10004[] = {
    {0xF827, u"\uF827\uF828\uF829\uF82A\uF82B\uF82C\uF82D\uF82E\uF82F\uF830\uF831\uF832\uF833\uF834"sv},
    {0xF835, u"\uF835\uF836\uF837\uF838\uF839\uF83A\uF83B\uF83C\uF83D\uF83E\uF83F\uF840"sv},
};

constexpr TCharText cTexts10005[] = {
    {0x0080, u"\u00C4\u00C5\u00C7\u00C9\u00D1\u00D6\u00DC\u00E1\u00E0\u00E2\u00E4\u00E3\u00E5\u00E7"sv},
    {0x008E, u"\u00E9\u00E8\u00EA\u00EB\u00ED\u00EC\u00EE\u00EF\u00F1\u00F3\u00F2\u00F4\u00F6\u00F5"sv},
    {0x009C, u"\u00FA\u00F9\u00FB\u00FC\uFFFF"sv}, {0x00A2, u"\uFFFF\uFFFF"sv},
    {0x00A5, u"\uFFFF\u20AA\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0x00B3, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0x00C1, u"\u201E"sv}, {0x00C5, u"\u05BD\u05BC"sv},
    {0x00C9, u"\u2026\u00A0\u05B8\u05B7\u05B5\u05B6\u05B4\u2013\u2014\u201C\u201D\u2018\u2019"sv},
    {0x00D8, u"\u05BE\u05B0\u05B2\u05B1\u05BB\u05C1\u05B8\u05B3"sv}, {0x00FD, u"\uFFFF\uFFFF"sv},
};

constexpr TCharText cLenient10005[] = {
    {0x00A0, u"\uF7FC\uF7FD\uF7FE\uF7FF"sv}, {0x00A5, u"\uF800"sv},
    {0x00A7, u"\uF801\uF802\uF803\uF804\uF805\uF806\uF807\uF808\uF809\uF80A\uF80B\uF80C\uF80D\uF80E"sv},
    {0x00B5, u"\uF80F\uF810\uF811\uF812\uF813\uF814\uF815\uF816\uF817\uF818\uF819\uF81A"sv},
    {0x00C2, u"\uF81B\uF81C\uF81D"sv}, {0x00C7, u"\uF81E\uF81F"sv}, {0x00D6, u"\uF820\uF821"sv},
    {0x00FB, u"\uF822\uF823\uF824\uF825\uF826"sv},
};

constexpr TCharText cFits10005[] = {
    {0xF7FC, u"\uF7FC\uF7FD\uF7FE\uF7FF\uF800\uF801\uF802\uF803\uF804\uF805\uF806\uF807\uF808\uF809"sv},
    {0xF80A, u"\uF80A\uF80B\uF80C\uF80D\uF80E\uF80F\uF810\uF811\uF812\uF813\uF814\uF815\uF816\uF817"sv},
    {0xF818, u"\uF818\uF819\uF81A\uF81B\uF81C\uF81D\uF81E\uF81F\uF820\uF821\uF822\uF823\uF824\uF825"sv},
    {0xF826, u"\uF826"sv},
};

constexpr TCharText cTexts10006[] = {
    {0x009C, u"\u00AD"sv}, {0x00AF, u"\u0387"sv}, {0x00FF, u"\uFFFF"sv},
};

constexpr TCharText cLenient10006[] = {
    {0x00FF, u"\uF8A0"sv},
};

constexpr TCharText cFits10006[] = {
    {0xF8A0, u"\uF8A0"sv},
};

constexpr TCharText cTexts10007[] = {
    {0x00A2, u"\u00A2"sv}, {0x00B6, u"\u2202"sv}, {0x00FF, u"\u00A4"sv},
};

constexpr TCodeRow cRows10008[] = {
    {0x0081, 13, 0xFFFF}, {0x0090, 16, 0xFFFF}, {0xA2A1, 16, 0xFFFF}, {0xA4F4, 11, 0xFFFF},
    {0xA5F7, 8, 0xFFFF}, {0xA6B9, 8, 0xFFFF}, {0xA6D9, 38, 0xFFFF}, {0xA7C2, 15, 0xFFFF},
    {0xA7F2, 13, 0xFFFF}, {0xA8BB, 10, 0xFFFF}, {0xA8EA, 21, 0xFFFF}, {0xA9F0, 15, 0xFFFF},
    {0xD7FA, 5, 0xFFFF},
};

constexpr TCharText cTexts10008[] = {
    {0x00AA, u"\000\000\000\000\000\000"sv}, {0xA1AC, u"\u2225"sv}, {0xA2E3, u"\uFFFF\uFFFF"sv},
    {0xA2EF, u"\uFFFF\uFFFF"sv}, {0xA2FD, u"\uFFFF\uFFFF"sv}, {0xA3A7, u"\uFF07"sv},
    {0xA9A1, u"\uFFFF\uFFFF\uFFFF"sv},
};

constexpr TCharText cLenient10008[] = {
    {0x0081, u"\uF8D8\uF8D9\uF8DA\uF8DB\uF8DC\uF8DD\uF8DE\uF8DF\uF8E0\uF8E1\uF8E2\uF8E3\uF8E4\uF8E5"sv},
    {0x008F, u"\uF8E6\uF8E7\uF8E8\uF8E9\uF8EA\uF8EB\uF8EC\uF8ED\uF8EE\uF8EF\uF8F0\uF8F1\uF8F2\uF8F3"sv},
    {0x009D, u"\uF8F4\uF8F5\uF8F6\uF8F7"sv}, {0x00F8, u"\uF8F8\uF8F9\uF8FA\uF8FB\uF8FC\uF8FD\uF8FE\uF8FF"sv},
};

constexpr TCharText cFits10008[] = {
    {0xF8D8, u"\uF8D8\uF8D9\uF8DA\uF8DB\uF8DC\uF8DD\uF8DE\uF8DF\uF8E0\uF8E1\uF8E2\uF8E3\uF8E4\uF8E5"sv},
    {0xF8E6, u"\uF8E6\uF8E7\uF8E8\uF8E9\uF8EA\uF8EB\uF8EC\uF8ED\uF8EE\uF8EF\uF8F0\uF8F1\uF8F2\uF8F3"sv},
    {0xF8F4, u"\uF8F4\uF8F5\uF8F6\uF8F7\uF8F8\uF8F9\uF8FA\uF8FB\uF8FC\uF8FD\uF8FE\uF8FF"sv},
};

constexpr TCharText cTexts10010[] = {
    {0x00AE, u"\u0102\u015E"sv}, {0x00BE, u"\u0103\u015F"sv}, {0x00DB, u"\u00A4"sv},
    {0x00DE, u"\u0162\u0163"sv},
};

constexpr TCharText cLenient10010[] = {
    {0x00F0, u"\uF8FF"sv},
};

constexpr TCharText cFits10010[] = {
    {0xF8FF, u"\uF8FF"sv},
};

constexpr TCharText cTexts10017[] = {
    {0x00FF, u"\u00A4"sv},
};

constexpr TCharText cTexts10021[] = {
    {0x007F, u"\000\u00AB\u00BB\u2026\u0E48\u0E49\u0E4A\u0E4B\u0E4C\u0E48\u0E49\u0E4A\u0E4B\u0E4C"sv},
    {0x008D, u"\u201C\u201D\u0E4D\000\u2022\u0E31\u0E47\u0E34\u0E35\u0E36\u0E37\u0E48\u0E49\u0E4A"sv},
    {0x009B, u"\u0E4B\u0E4C\u2018\u2019\000"sv}, {0x00DB, u"\uFEFF\u200B\u2013\u2014"sv},
    {0x00EE, u"\u2122"sv}, {0x00FA, u"\u00AE\u00A9\000\000\000\000"sv},
};

constexpr TCodeRange cPreferred10021[] = {
    {0x00D1, 0x00D1}, {0x00D4, 0x00D7}, {0x00E7, 0x00ED},
};

constexpr TCharText cTexts10079[] = {
    {0x00A0, u"\u00DD"sv}, {0x00DB, u"\u00A4\u00D0\u00F0\u00DE\u00FE\u00FD"sv},
};

constexpr TCharText cLenient10079[] = {
    {0x00F0, u"\uF8FF"sv},
};

constexpr TCharText cFits10079[] = {
    {0xF8FF, u"\uF8FF"sv},
};

constexpr TCharText cTexts10081[] = {
    {0x00BD, u"\u2126"sv}, {0x00F0, u"\uFFFF"sv}, {0x00F5, u"\uFFFF"sv},
};

constexpr TCharText cLenient10081[] = {
    {0x00F0, u"\uF8FF"sv}, {0x00F5, u"\uF8A0"sv},
};

constexpr TCharText cFits10081[] = {
    {0xF8A0, u"\uF8A0"sv}, {0xF8FF, u"\uF8FF"sv},
};

constexpr TCharText cTexts10082[] = {
    {0x00A9, u"\u0160"sv}, {0x00AE, u"\u017D"sv}, {0x00B4, u"\u2206"sv}, {0x00B9, u"\u0161"sv},
    {0x00BE, u"\u017E"sv}, {0x00C6, u"\u0106"sv}, {0x00C8, u"\u010C"sv}, {0x00D0, u"\u0110"sv},
    {0x00D8, u"\uFFFF\u00A9"sv}, {0x00DB, u"\u00A4"sv}, {0x00DE, u"\u00C6\u00BB\u2013"sv},
    {0x00E6, u"\u0107"sv}, {0x00E8, u"\u010D"sv}, {0x00F0, u"\u0111"sv}, {0x00F9, u"\u03C0\u00CB"sv},
    {0x00FD, u"\u00CA\u00E6"sv},
};

constexpr TCharText cLenient10082[] = {
    {0x00D8, u"\uF8FF"sv},
};

constexpr TCharText cFits10082[] = {
    {0xF8FF, u"\uF8FF"sv},
};

constexpr TCharText cTexts20105[] = {
    {0x0024, u"\u00A4"sv}, {0x007E, u"\u203E\u2207"sv},
};

constexpr TCharText cTexts20106[] = {
    {0x0040, u"\u00A7"sv}, {0x005B, u"\u00C4\u00D6\u00DC"sv}, {0x007B, u"\u00E4\u00F6\u00FC\u00DF"sv},
};

constexpr TCharText cTexts20107[] = {
    {0x0024, u"\u00A4"sv}, {0x0040, u"\u00C9"sv}, {0x005B, u"\u00C4\u00D6\u00C5\u00DC"sv},
    {0x0060, u"\u00E9"sv}, {0x007B, u"\u00E4\u00F6\u00E5\u00FC"sv},
};

constexpr TCharText cTexts20108[] = {
    {0x0023, u"\u00A7"sv}, {0x005B, u"\u00C6\u00D8\u00C5"sv}, {0x007B, u"\u00E6\u00F8\u00E5|"sv},
};

constexpr TCharText cTexts20127[] = {
    {0x0080, u"\000\001\002\003\004\005\006\007\010\011\012\013\014\015\016\017\020\021\022\023\024"sv},
    {0x0095, u"\025\026\027\030\031\032\033\034\035\036\037 !\"#$%&'()*+,-./0123456789:;<=>"sv},
    {0x00C0, u"@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~\177"sv},
};

constexpr TCharText cFits20127[] = {
    {0x00A0, u" "sv}, {0x00AD, u"-"sv},
};

constexpr TCharText cTexts20269[] = {
    {0x0023, u"\uFFFF\uFFFF"sv}, {0x005E, u"\uFFFF"sv}, {0x0060, u"\uFFFF"sv},
    {0x007E, u"\uFFFF\uFFFF\200\201\202\203\204\205\206\207\210\211\212\213\214\215\216\217\220\221"sv},
    {0x0092, u"\222\223\224\225\226\227\230\231\232\233\234\235"sv},
    {0x00A0, u"\u00A0\u00A1\u00A2\u00A3$\u00A5#\u00A7\u00A4\u2018\u201C\u00AB\u2190\u2191\u2192"sv},
    {0x00AF, u"\u2193\u00B0\u00B1\u00B2\u00B3\u00D7\u00B5\u00B6\u00B7\u00F7\u2019\u201D\u00BB\u00BC"sv},
    {0x00BD, u"\u00BD"sv}, {0x00BF, u"\u00BF"sv}, {0x00C1, u"`\u00B4^~\u00AF\u0306"sv}, {0x00C8, u"\u0308"sv},
    {0x00CA, u"\u030A\u0327\u0332\u030B\u0328\u030C\u2015\u00B9\u00AE\u00A9\u2122\u2669"sv},
    {0x00DC, u"\u215B\u215C\u215D\u215E\u2126\u00C6\u00D0"sv}, {0x00E4, u"\u0126"sv},
    {0x00E6, u"\u0132\u013F\u0141\u00D8\u0152\u00BA\u00DE\u0166\u014A\u0149\u0138\u00E6\u0111\u00F0"sv},
    {0x00F4, u"\u0127\u0131\u0133\u0140\u0142\u00F8\u0153\u00DF\u00FE\u0167"sv},
};

constexpr TCharText cLenient20269[] = {
    {0x007F, u"\uF8F6"sv}, {0x00BE, u"\uF8F7"sv}, {0x00C7, u"\uF8F8"sv},
    {0x00D6, u"\uF8F9\uF8FA\uF8FB\uF8FC"sv}, {0x00E3, u"\uF8FD"sv}, {0x00FE, u"\uF8FE\uF8FF"sv},
};

constexpr TCharText cTexts20420[] = {
    {0x0042, u"\uFE7C"sv}, {0x0045, u"\uFFFF\uFE80\uFE81"sv}, {0x0049, u"\uFE83"sv}, {0x0052, u"\uFE85"sv},
    {0x0055, u"\uFE8B\uFE8D"sv}, {0x0058, u"\uFE8F"sv}, {0x0062, u"\uFE93\uFE95"sv}, {0x0065, u"\uFE99"sv},
    {0x0067, u"\uFE9D"sv}, {0x0069, u"\uFEA1"sv}, {0x0071, u"\uFEA5"sv},
    {0x0073, u"\uFEA9\uFEAB\uFEAD\uFEAF\uFFFF"sv}, {0x0080, u"\uFFFF"sv}, {0x008B, u"\uFFFF"sv},
    {0x008D, u"\uFFFF"sv}, {0x008F, u"\uFEC3\uFEC7"sv}, {0x009A, u"\uFEC9"sv}, {0x009E, u"\uFECD"sv},
    {0x00AB, u"\uFED1"sv}, {0x00AD, u"\uFED5"sv}, {0x00AF, u"\uFED9"sv}, {0x00B1, u"\uFEDD"sv},
    {0x00BB, u"\uFEE1"sv}, {0x00BD, u"\uFEE5"sv}, {0x00BF, u"\uFEE9"sv}, {0x00CF, u"\uFEED"sv},
    {0x00DA, u"\uFEEF"sv}, {0x00DC, u"\uFEF1"sv}, {0x00E1, u"\u2007"sv},
};

constexpr TCharText cLenient20420[] = {
    {0x0045, u"\uF8FC"sv}, {0x0077, u"\uF8F6"sv}, {0x0080, u"\uF8F5"sv}, {0x008B, u"\uF8F4"sv},
    {0x008D, u"\uF8F7"sv},
};

constexpr TCharText cFits20866[] = {
    {0x00A4, u"\uFFFF"sv},
    {0xFF01, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF0F, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF1D, u"\uFFFF\uFFFF"sv},
    {0xFF20, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF2E, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF3C, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF4A, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
    {0xFF58, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv},
};

constexpr TCharText cTexts20924[] = {
    {0x004A, u"\u00DD"sv}, {0x006A, u"\u0160"sv}, {0x009D, u"\u017E"sv}, {0x009F, u"\u20AC"sv},
    {0x00B0, u"\u00A2"sv}, {0x00B7, u"\u0152\u0153\uFFFF\u00AC\u0161"sv}, {0x00BE, u"\u017D"sv},
};

constexpr TCodeRow cRows20932[] = {
    {0x0080, 14, 0xFFFF}, {0x0090, 16, 0xFFFF}, {0x8EE0, 5, 0xFFFF}, {0xADA1, 20, 0x2460},
    {0xADB5, 10, 0x2160}, {0xADE5, 5, 0x32A4}, {0xF32B, 10, 0xFFFF}, {0xF42E, 19, 0xFFFF},
    {0xF444, 6, 0xFFFF}, {0xF44B, 7, 0xFFFF}, {0xF453, 10, 0xFFFF}, {0xF45E, 5, 0xFFFF}, {0xF464, 12, 0xFFFF},
    {0xF471, 8, 0xFFFF},
};

constexpr TCharText cTexts20932[] = {
    {0xA1BD, u"\u2015"sv}, {0xA1F1, u"\u00A2\u00A3"sv}, {0xA237, u"\uFFFF"sv}, {0xA271, u"\uFFFF"sv},
    {0xA2CC, u"\u00AC"sv},
    {0xADC0, u"\u3349\u3314\u3322\u334D\u3318\u3327\u3303\u3336\u3351\u3357\u330D\u3326\u3323\u332B"sv},
    {0xADCE, u"\u334A\u333B\u339C\u339D\u339E\u338E\u338F\u33C4\u33A1"sv},
    {0xADDF, u"\u337B\u301E\u301F\u2116\u33CD\u2121"sv}, {0xADEA, u"\u3231\u3232\u3239\u337E\u337D\u337C"sv},
    {0xADF3, u"\u222E\u2211"sv}, {0xADF8, u"\u221F\u22BF"sv},
    {0xF337, u"\uFFFF\uFFFF\uFFFF\u70BB\u4EFC\u50F4\u51EC\u5307\u5324\uFA0E\u548A\u5759\uFA0F\uFA10"sv},
    {0xF345, u"\u589E\u5BEC\u5CF5\u5D53\uFA11\u5FB7\u6085\u6120\u654E"sv},
    {0xF34F, u"\u6665\uFA12\uF929\u6801\uFA13\uFA14\u6A6B\u6AE2\u6DF8\u6DF2\u7028\uFA15\uFA16\u7501"sv},
    {0xF35D, u"\u7682\u769E\uFA17\u7930\uFA18\uFA19\uFA1A\uFA1B\u7AE7\uFA1C\uFA1D\u7DA0\u7DD6\uFA1E"sv},
    {0xF36B, u"\u8362\uFA1F\u85B0\uFA20\uFA21\u8807\uFA22\u8B7F\u8CF4\u8D76\uFA23\uFA24\uFA25\u90DE"sv},
    {0xF379, u"\uFA26\u9115\uFA27\uFA28\u9592\uF9DC"sv},
    {0xF421, u"\uFA29\u973B\uFFFF\u9751\uFA2A\uFA2B\uFA2C\u999E\u9AD9\u9B72\uFA2D\u9ED1"sv},
    {0xF442, u"\uFFFF"sv}, {0xF463, u"\u974D"sv},
};

constexpr TCharText cLenient20936[] = {
    {0x0081, u"\uF8D8\uF8D9\uF8DA\uF8DB\uF8DC\uF8DD\uF8DE\uF8DF\uF8E0\uF8E1\uF8E2\uF8E3\uF8E4\uF8E5"sv},
    {0x008F, u"\uF8E6\uF8E7\uF8E8\uF8E9\uF8EA\uF8EB\uF8EC\uF8ED\uF8EE\uF8EF\uF8F0\uF8F1\uF8F2\uF8F3"sv},
    {0x009D, u"\uF8F4\uF8F5\uF8F6\uF8F7"sv}, {0x00F8, u"\uF8F8\uF8F9\uF8FA\uF8FB\uF8FC\uF8FD\uF8FE\uF8FF"sv},
};

constexpr TCodeRange cPreferred20936[] = {
    {0xA1CE, 0xA1CE},
};

constexpr TCodeRow cRows20949[] = {
    {0x0081, 31, 0x0081}, {0xA141, 26, 0xFFFF}, {0xA161, 26, 0xFFFF}, {0xA181, 32, 0xFFFF},
    {0xA241, 26, 0xFFFF}, {0xA261, 26, 0xFFFF}, {0xA281, 32, 0xFFFF}, {0xA341, 26, 0xFFFF},
    {0xA361, 26, 0xFFFF}, {0xA381, 32, 0xFFFF}, {0xA441, 26, 0xFFFF}, {0xA461, 26, 0xFFFF},
    {0xA481, 32, 0xFFFF}, {0xA541, 26, 0xFFFF}, {0xA561, 26, 0xFFFF}, {0xA581, 32, 0xFFFF},
    {0xA641, 26, 0xFFFF}, {0xA661, 26, 0xFFFF}, {0xA681, 32, 0xFFFF}, {0xA741, 26, 0xFFFF},
    {0xA761, 26, 0xFFFF}, {0xA781, 32, 0xFFFF}, {0xA841, 26, 0xFFFF}, {0xA861, 26, 0xFFFF},
    {0xA881, 32, 0xFFFF}, {0xA941, 26, 0xFFFF}, {0xA961, 26, 0xFFFF}, {0xA981, 32, 0xFFFF},
    {0xAA41, 26, 0xFFFF}, {0xAA61, 26, 0xFFFF}, {0xAA81, 32, 0xFFFF}, {0xAB41, 26, 0xFFFF},
    {0xAB61, 26, 0xFFFF}, {0xAB81, 32, 0xFFFF}, {0xAC41, 26, 0xFFFF}, {0xAC61, 26, 0xFFFF},
    {0xAC81, 32, 0xFFFF}, {0xB041, 26, 0xFFFF}, {0xB061, 26, 0xFFFF}, {0xB081, 32, 0xFFFF},
    {0xB141, 26, 0xFFFF}, {0xB161, 26, 0xFFFF}, {0xB181, 32, 0xFFFF}, {0xB241, 26, 0xFFFF},
    {0xB261, 26, 0xFFFF}, {0xB281, 32, 0xFFFF}, {0xB341, 26, 0xFFFF}, {0xB361, 26, 0xFFFF},
    {0xB381, 32, 0xFFFF}, {0xB441, 26, 0xFFFF}, {0xB461, 26, 0xFFFF}, {0xB481, 32, 0xFFFF},
    {0xB541, 26, 0xFFFF}, {0xB561, 26, 0xFFFF}, {0xB581, 32, 0xFFFF}, {0xB641, 26, 0xFFFF},
    {0xB661, 26, 0xFFFF}, {0xB681, 32, 0xFFFF}, {0xB741, 26, 0xFFFF}, {0xB761, 26, 0xFFFF},
    {0xB781, 32, 0xFFFF}, {0xB841, 26, 0xFFFF}, {0xB861, 26, 0xFFFF}, {0xB881, 32, 0xFFFF},
    {0xB941, 26, 0xFFFF}, {0xB961, 26, 0xFFFF}, {0xB981, 32, 0xFFFF}, {0xBA41, 26, 0xFFFF},
    {0xBA61, 26, 0xFFFF}, {0xBA81, 32, 0xFFFF}, {0xBB41, 26, 0xFFFF}, {0xBB61, 26, 0xFFFF},
    {0xBB81, 32, 0xFFFF}, {0xBC41, 26, 0xFFFF}, {0xBC61, 26, 0xFFFF}, {0xBC81, 32, 0xFFFF},
    {0xBD41, 26, 0xFFFF}, {0xBD61, 26, 0xFFFF}, {0xBD81, 32, 0xFFFF}, {0xBE41, 26, 0xFFFF},
    {0xBE61, 26, 0xFFFF}, {0xBE81, 32, 0xFFFF}, {0xBF41, 26, 0xFFFF}, {0xBF61, 26, 0xFFFF},
    {0xBF81, 32, 0xFFFF}, {0xC041, 26, 0xFFFF}, {0xC061, 26, 0xFFFF}, {0xC081, 32, 0xFFFF},
    {0xC141, 26, 0xFFFF}, {0xC161, 26, 0xFFFF}, {0xC181, 32, 0xFFFF}, {0xC241, 26, 0xFFFF},
    {0xC261, 26, 0xFFFF}, {0xC281, 32, 0xFFFF}, {0xC341, 26, 0xFFFF}, {0xC361, 26, 0xFFFF},
    {0xC381, 32, 0xFFFF}, {0xC441, 26, 0xFFFF}, {0xC461, 26, 0xFFFF}, {0xC481, 32, 0xFFFF},
    {0xC541, 26, 0xFFFF}, {0xC561, 26, 0xFFFF}, {0xC581, 32, 0xFFFF}, {0xC641, 18, 0xFFFF},
};

constexpr TCharText cTexts20949[] = {
    {0x00C9, u"\000"sv},
};

constexpr TCharText cLenient20949[] = {
    {0x00A0, u"\uF8E6"sv}, {0x00AD, u"\uF8E7\uF8E8\uF8E9"sv}, {0x00FE, u"\uF8EA\uF8EB"sv},
};

constexpr TCharText cFits20949[] = {
    {0xF8E6, u"\uF8E6\uF8E7\uF8E8\uF8E9\uF8EA\uF8EB"sv},
};

constexpr TCharText cTexts21866[] = {
    {0x00AE, u"\u045E"sv}, {0x00BE, u"\u040E"sv},
};

constexpr TCharText cFits28591[] = {
    {0x0100, u"AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi"sv}, {0x0134, u"JjKk"sv},
    {0x0139, u"LlLlLl"sv}, {0x0141, u"LlNnNnNn"sv},
    {0x014C, u"OoOoOoOoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZz"sv}, {0x0180, u"b"sv}, {0x0189, u"D"sv},
    {0x0192, u"f"sv}, {0x0197, u"I"sv}, {0x019A, u"l"sv}, {0x019F, u"OOo"sv}, {0x01AB, u"t"sv},
    {0x01AE, u"TUu"sv}, {0x01B6, u"z"sv}, {0x01CD, u"AaIiOoUuUuUuUuUu"sv}, {0x01DE, u"Aa"sv},
    {0x01E4, u"GgGgKkOoOo"sv}, {0x01F0, u"j"sv}, {0x0261, u"g"sv}, {0x02B9, u"'\""sv}, {0x02BC, u"'"sv},
    {0x02C4, u"^"sv}, {0x02C6, u"^"sv}, {0x02C8, u"'"sv}, {0x02CB, u"`"sv}, {0x02CD, u"_"sv},
    {0x02DC, u"~"sv}, {0x0300, u"`"sv}, {0x0302, u"^~"sv}, {0x030E, u"\""sv}, {0x0331, u"__"sv},
    {0x2000, u"       "sv}, {0x2010, u"--"sv}, {0x2013, u"--"sv}, {0x2018, u"'',"sv}, {0x201C, u"\"\"\""sv},
    {0x2022, u"."sv}, {0x2026, u"."sv}, {0x2032, u"'"sv}, {0x2035, u"`"sv}, {0x2039, u"<>"sv},
    {0x2122, u"T"sv},
};

constexpr TCharText cFits28592[] = {
    {0x00DB, u"U"sv}, {0x00FB, u"u"sv},
};

constexpr TCharText cLenient28593[] = {
    {0x00A5, u"\uF7F5"sv}, {0x00AE, u"\uF7F6"sv}, {0x00BE, u"\uF7F7"sv}, {0x00C3, u"\uF7F8"sv},
    {0x00D0, u"\uF7F9"sv}, {0x00E3, u"\uF7FA"sv}, {0x00F0, u"\uF7FB"sv},
};

constexpr TCharText cFits28593[] = {
    {0x00A1, u"!c"sv}, {0x00A5, u"Y|"sv}, {0x00A9, u"Ca<"sv}, {0x00AE, u"R"sv}, {0x00B9, u"1o>"sv},
    {0x00C3, u"A"sv}, {0x00C5, u"AA"sv}, {0x00D5, u"O"sv}, {0x00D8, u"O"sv}, {0x00E3, u"a"sv},
    {0x00E5, u"aa"sv}, {0x00F5, u"o"sv}, {0x00F8, u"o"sv}, {0x00FF, u"y"sv},
    {0xF7F5, u"\uF7F5\uF7F6\uF7F7\uF7F8\uF7F9\uF7FA\uF7FB"sv},
};

constexpr TCharText cFits28594[] = {
    {0x00B2, u"23"sv}, {0x00B7, u"."sv}, {0x00C0, u"A"sv}, {0x00C7, u"CE"sv}, {0x00CA, u"E"sv},
    {0x00CC, u"I"sv}, {0x00CF, u"I"sv}, {0x00D1, u"NOO"sv}, {0x00D9, u"U"sv}, {0x00E0, u"a"sv},
    {0x00E7, u"ce"sv}, {0x00EA, u"e"sv}, {0x00EC, u"i"sv}, {0x00EF, u"i"sv}, {0x00F1, u"noo"sv},
    {0x00F9, u"u"sv},
};

constexpr TCharText cFits28595[] = {
    {0x00A4, u"$"sv}, {0x00B8, u","sv}, {0x00C1, u"AA"sv}, {0x00C4, u"A"sv}, {0x00C9, u"E"sv},
    {0x00CB, u"E"sv}, {0x00CD, u"II"sv}, {0x00D4, u"O"sv}, {0x00D6, u"O"sv}, {0x00DA, u"UUU"sv},
    {0x00E1, u"aa"sv}, {0x00E4, u"a"sv}, {0x00E9, u"e"sv}, {0x00EB, u"e"sv}, {0x00ED, u"ii"sv},
    {0x00F4, u"o"sv}, {0x00F6, u"o"sv}, {0x00FA, u"uuu"sv},
};

constexpr TCharText cLenient28596[] = {
    {0x00A1, u"\uF7C8\uF7C9\uF7CA"sv}, {0x00A5, u"\uF7CB\uF7CC\uF7CD\uF7CE\uF7CF\uF7D0\uF7D1"sv},
    {0x00AE, u"\uF7D2\uF7D3\uF7D4\uF7D5\uF7D6\uF7D7\uF7D8\uF7D9\uF7DA\uF7DB\uF7DC\uF7DD\uF7DE"sv},
    {0x00BC, u"\uF7DF\uF7E0\uF7E1"sv}, {0x00C0, u"\uF7E2"sv}, {0x00DB, u"\uF7E3\uF7E4\uF7E5\uF7E6\uF7E7"sv},
    {0x00F3, u"\uF7E8\uF7E9\uF7EA\uF7EB\uF7EC\uF7ED\uF7EE\uF7EF\uF7F0\uF7F1\uF7F2\uF7F3\uF7F4"sv},
};

constexpr TCharText cFits28596[] = {
    {0xF7C8, u"\uF7C8\uF7C9\uF7CA\uF7CB\uF7CC\uF7CD\uF7CE\uF7CF\uF7D0\uF7D1\uF7D2\uF7D3\uF7D4\uF7D5"sv},
    {0xF7D6, u"\uF7D6\uF7D7\uF7D8\uF7D9\uF7DA\uF7DB\uF7DC\uF7DD\uF7DE\uF7DF\uF7E0\uF7E1\uF7E2\uF7E3"sv},
    {0xF7E4, u"\uF7E4\uF7E5\uF7E6\uF7E7\uF7E8\uF7E9\uF7EA\uF7EB\uF7EC\uF7ED\uF7EE\uF7EF\uF7F0\uF7F1"sv},
    {0xF7F2, u"\uF7F2\uF7F3\uF7F4"sv},
};

constexpr TCharText cTexts28597[] = {
    {0x00A1, u"\u02BD\u02BC"sv}, {0x00B4, u"\u0384"sv}, {0x00B7, u"\u00B7"sv},
};

constexpr TCharText cLenient28597[] = {
    {0x00A4, u"\uF7C2\uF7C3"sv}, {0x00AA, u"\uF7C4"sv}, {0x00AE, u"\uF7C5"sv}, {0x00D2, u"\uF7C6"sv},
    {0x00FF, u"\uF7C7"sv},
};

constexpr TCharText cFits28597[] = {
    {0xF7C2, u"\uF7C2\uF7C3\uF7C4\uF7C5\uF7C6\uF7C7"sv},
};

constexpr TCharText cTexts28598[] = {
    {0x00B7, u"\u00B7"sv},
};

constexpr TCharText cLenient28598[] = {
    {0x00A1, u"\uF79C"sv},
    {0x00BF, u"\uF79D\uF79E\uF79F\uF7A0\uF7A1\uF7A2\uF7A3\uF7A4\uF7A5\uF7A6\uF7A7\uF7A8\uF7A9\uF7AA"sv},
    {0x00CD, u"\uF7AB\uF7AC\uF7AD\uF7AE\uF7AF\uF7B0\uF7B1\uF7B2\uF7B3\uF7B4\uF7B5\uF7B6\uF7B7\uF7B8"sv},
    {0x00DB, u"\uF7B9\uF7BA\uF7BB\uF7BC"sv}, {0x00FB, u"\uF7BD\uF7BE\uF7BF\uF7C0\uF7C1"sv},
};

constexpr TCharText cFits28598[] = {
    {0xF79C, u"\uF79C\uF79D\uF79E\uF79F\uF7A0\uF7A1\uF7A2\uF7A3\uF7A4\uF7A5\uF7A6\uF7A7\uF7A8\uF7A9"sv},
    {0xF7AA, u"\uF7AA\uF7AB\uF7AC\uF7AD\uF7AE\uF7AF\uF7B0\uF7B1\uF7B2\uF7B3\uF7B4\uF7B5\uF7B6\uF7B7"sv},
    {0xF7B8, u"\uF7B8\uF7B9\uF7BA\uF7BB\uF7BC\uF7BD\uF7BE\uF7BF\uF7C0\uF7C1"sv},
};

constexpr TCharText cFits28599[] = {
    {0x00D0, u"D"sv}, {0x00DD, u"Y"sv}, {0x00FD, u"y"sv},
};

constexpr TCharText cFits28603[] = {
    {0x00AA, u"a"sv}, {0x00BA, u"o"sv}, {0x0110, u"\uFFFF\uFFFF"sv}, {0x0126, u"\uFFFF\uFFFF"sv},
    {0x0166, u"\uFFFF\uFFFF"sv}, {0x017F, u"s\uFFFF"sv}, {0x0197, u"\uFFFF"sv}, {0x019A, u"\uFFFF"sv},
    {0x019F, u"\uFFFF"sv}, {0x01AB, u"\uFFFF"sv}, {0x01AE, u"\uFFFF"sv},
    {0x01D5, u"\u00DC\u00FC\u00DC\u00FC\u00DC\u00FC\u00DC\u00FC"sv},
    {0x01DE, u"\u00C4\u00E4Aa\u00C6\u00E6\uFFFF\uFFFF"sv}, {0x01F4, u"Gg"sv},
    {0x01F8, u"Nn\u00C5\u00E5\u00C6\u00E6\u00D8\u00F8AaAaEeEeIiIiOoOoRrRrUuUuSsTt"sv}, {0x021E, u"Hh"sv},
    {0x0226, u"AaEe\u00D6\u00F6\u00D5\u00F5OoOoYy"sv}, {0x02B0, u"h"sv}, {0x02B2, u"jr"sv}, {0x02B7, u"wy"sv},
    {0x02E1, u"lsx"sv}, {0x037E, u";"sv}, {0x0387, u"\u00B7"sv},
    {0x1E00, u"AaBbBbBbCcDdDdDdDdDd\u0112\u0113\u0112\u0113EeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMmM"sv},
    {0x1E41, u"mMmNnNnNnNn\u00D5\u00F5\u00D5\u00F5\u014C\u014D\u014C\u014DPpPpRrRrRrRrSsSs\u015A"sv},
    {0x1E65, u"\u015B\u0160\u0161SsTtTtTtTtUuUuUuUu\u016A\u016BVvVvWwWwWwWwWwXxXxYyZzZzZzhtwy"sv},
    {0x1E9B, u"s"sv},
    {0x1EA0, u"AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIiOoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyY"sv},
    {0x1EF5, u"yYyYy"sv}, {0x1FEF, u"`"sv}, {0x2000, u"           "sv}, {0x2013, u"\uFFFF\uFFFF"sv},
    {0x2018, u"\uFFFF"sv}, {0x201A, u"\uFFFF"sv}, {0x2022, u"\uFFFF"sv}, {0x2024, u"."sv},
    {0x2026, u"\uFFFF"sv}, {0x202F, u" \uFFFF"sv}, {0x2039, u"\uFFFF\uFFFF"sv}, {0x203C, u"\uFFFF"sv},
    {0x205F, u" "sv}, {0x2070, u"0i"sv}, {0x2074, u"456789+"sv}, {0x207C, u"=()n0123456789+"sv},
    {0x208C, u"=()"sv}, {0x2102, u"C"sv}, {0x210A, u"gHHHh"sv}, {0x2110, u"IILl"sv}, {0x2115, u"N"sv},
    {0x2119, u"PQRRR"sv}, {0x2122, u"\uFFFF"sv}, {0x2124, u"Z"sv}, {0x2128, u"Z"sv}, {0x212A, u"K\u00C5BC"sv},
    {0x212F, u"eEF"sv}, {0x2133, u"Mo"sv}, {0x2139, u"i"sv}, {0x2145, u"Ddeij"sv}, {0x2160, u"I"sv},
    {0x2164, u"V"sv}, {0x2169, u"X"sv}, {0x216C, u"LCDMi"sv}, {0x2174, u"v"sv}, {0x2179, u"x"sv},
    {0x217C, u"lcdm"sv}, {0x2190, u"\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF\uFFFF"sv}, {0x21A8, u"\uFFFF"sv},
    {0x221F, u"\uFFFF"sv}, {0x2260, u"="sv}, {0x226E, u"<>"sv}, {0x2302, u"\uFFFF"sv},
    {0x2460, u"123456789"sv}, {0x24B6, u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0"sv},
    {0x25AC, u"\uFFFF"sv}, {0x25B2, u"\uFFFF"sv}, {0x25BA, u"\uFFFF"sv}, {0x25BC, u"\uFFFF"sv},
    {0x25C4, u"\uFFFF"sv}, {0x25CB, u"\uFFFF"sv}, {0x25D8, u"\uFFFF\uFFFF"sv},
    {0x263A, u"\uFFFF\uFFFF\uFFFF"sv}, {0x2640, u"\uFFFF"sv}, {0x2642, u"\uFFFF"sv}, {0x2660, u"\uFFFF"sv},
    {0x2663, u"\uFFFF"sv}, {0x2665, u"\uFFFF\uFFFF"sv}, {0x266A, u"\uFFFF\uFFFF"sv}, {0x3000, u" "sv},
    {0xFB29, u"+"sv}, {0xFE33, u"__(){}"sv}, {0xFE4D, u"___,"sv}, {0xFE52, u"."sv}, {0xFE54, u";:"sv},
    {0xFE57, u"!"sv}, {0xFE59, u"(){}"sv}, {0xFE5F, u"#&*+-<>="sv}, {0xFE68, u"\\$%@"sv},
    {0xFFE0, u"\u00A2\u00A3\u00AC"sv}, {0xFFE4, u"\u00A6"sv},
};

constexpr TCharText cFits28605[] = {
    {0x00A6, u"|"sv}, {0x0110, u"\u00D0\uFFFF"sv}, {0x0138, u"k"sv}, {0x014A, u"Nn"sv}, {0x0168, u"Tt"sv},
};

constexpr TCharText cLenient38598[] = {
    {0x00A1, u"\uF79C"sv},
    {0x00BF, u"\uF79D\uF79E\uF79F\uF7A0\uF7A1\uF7A2\uF7A3\uF7A4\uF7A5\uF7A6\uF7A7\uF7A8\uF7A9\uF7AA"sv},
    {0x00CD, u"\uF7AB\uF7AC\uF7AD\uF7AE\uF7AF\uF7B0\uF7B1\uF7B2\uF7B3\uF7B4\uF7B5\uF7B6\uF7B7\uF7B8"sv},
    {0x00DB, u"\uF7B9\uF7BA\uF7BB\uF7BC"sv}, {0x00FB, u"\uF7BD\uF7BE\uF7BF\uF7C0\uF7C1"sv},
};

constexpr TCharText cLenient51936[] = {
    {0x00FF, u"\uF8F5"sv},
};

constexpr TCodeRow cRows51949[] = {
    {0xC9A1, 94, 0xE000}, {0xFEA1, 94, 0xE05E},
};

constexpr TCharText cLenient51949[] = {
    {0x00FF, u"\uF8F7"sv},
};

} // namespace

constexpr TPageData cPageData[] = {
    {37, 0, "ibm-37", ""sv, 0x6F, 0x003F, 1257, {}, {}, {}, {}, {}, cFits37},
    {437, 0, "ibm-437", ""sv, 0x3F, 0x003F, 852, {}, cTexts437, {}, {}, {}, cFits437},
    {500, 0, "ibm-500", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {708, 0, "ibm-1089", ""sv, 0x3F, 0x003F, 720, {}, cTexts708, cLenient708, {}, {}, cFits708},
    {720, 0, "ibm-720", ""sv, 0x3F, 0x003F, 1257, {}, cTexts720, {}, {}, {}, cFits720},
    {737, 0, "ibm-737", ""sv, 0x3F, 0x003F, 1257, {}, cTexts737, {}, {}, {}, cFits737},
    {775, 0, "ibm-775", ""sv, 0x3F, 0x003F, 852, {}, cTexts775, {}, {}, {}, cFits775},
    {850, 0, "ibm-850", ""sv, 0x3F, 0x003F, 437, {}, cTexts850, {}, {}, {}, cFits850},
    {852, 0, "ibm-852", ""sv, 0x3F, 0x003F, 857, {}, cTexts852, {}, {}, {}, cFits852},
    {855, 0, "ibm-855", ""sv, 0x3F, 0x003F, 20866, {}, cTexts855, {}, {}, {}, cFits855},
    {857, 0, "ibm-857", ""sv, 0x3F, 0x003F, 866, {}, cTexts857, cLenient857, {}, {}, cFits857},
    {858, 0, "ibm-858", ""sv, 0x3F, 0x003F, 850, {}, cTexts858, {}, {}, {}, {}},
    {860, 0, "ibm-860", ""sv, 0x3F, 0x003F, 865, {}, cTexts860, {}, {}, {}, cFits860},
    {861, 0, "ibm-861", ""sv, 0x3F, 0x003F, 437, {}, cTexts861, {}, {}, {}, cFits861},
    {862, 0, "ibm-862", ""sv, 0x3F, 0x003F, 437, {}, cTexts862, {}, {}, {}, cFits862},
    {863, 0, "ibm-863", ""sv, 0x3F, 0x003F, 865, {}, cTexts863, {}, {}, {}, cFits863},
    {864, 0, "ibm-864", ""sv, 0x3F, 0x003F, 0, {}, cTexts864, cLenient864, {}, {}, cFits864},
    {865, 0, "ibm-865", ""sv, 0x3F, 0x003F, 861, {}, cTexts865, {}, {}, {}, cFits865},
    {866, 0, "ibm-866", ""sv, 0x3F, 0x003F, 20127, {}, cTexts866, {}, {}, {}, cFits866},
    {869, 0, "ibm-869", ""sv, 0x3F, 0x003F, 20866, {}, cTexts869, {}, {}, {}, cFits869},
    {870, 0, "ibm-870", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {874, 0, "ibm-1162", ""sv, 0x3F, 0x003F, 737, {}, {}, cLenient874, {}, {}, cFits874},
    {875, 0, "ibm-875", ""sv, 0x6F, 0x003F, 37, {}, cTexts875, {}, {}, {}, cFits875},
    {932, 0, "ibm-943_P15A-2003", "\x81\x9F\xE0\xFC"sv, 0x3F, 0x30FB, 10001, {}, cTexts932, cLenient932, cPreferred932, {}, cFits932},
    {936, 0, "windows-936-2000", "\x81\xFE"sv, 0x3F, 0x003F, 10002, {}, cTexts936, cLenient936, {}, {}, cFits936},
    {949, 0, "windows-949-2000", "\x81\xFE"sv, 0x3F, 0x003F, 10003, {}, cTexts949, cLenient949, {}, {}, cFits949},
    {950, 0, "windows-950-2000", "\x81\xFE"sv, 0x3F, 0x003F, 10002, {}, cTexts950, cLenient950, cPreferred950, {}, cFits950},
    {1026, 0, "ibm-1026", ""sv, 0x6F, 0x003F, 37, {}, cTexts1026, {}, {}, {}, {}},
    {1047, 0, "ibm-1047", ""sv, 0x6F, 0x003F, 37, {}, cTexts1047, {}, {}, {}, {}},
    {1140, 0, "ibm-1140", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1141, 0, "ibm-1141", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1142, 0, "ibm-1142", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1143, 0, "ibm-1143", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1144, 0, "ibm-1144", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1145, 0, "ibm-1145", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1146, 0, "ibm-1146", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1147, 0, "ibm-1147", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1148, 0, "ibm-1148", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1149, 0, "ibm-1149", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {1250, 0, "ibm-5346", ""sv, 0x3F, 0x003F, 775, {}, {}, {}, {}, {}, cFits1250},
    {1251, 0, "ibm-5347", ""sv, 0x3F, 0x003F, 866, {}, {}, {}, {}, {}, cFits1251},
    {1252, 0, "ibm-5348", ""sv, 0x3F, 0x003F, 850, {}, {}, {}, {}, {}, cFits1252},
    {1253, 0, "ibm-5349", ""sv, 0x3F, 0x003F, 1251, {}, cTexts1253, cLenient1253, {}, {}, cFits1253},
    {1254, 0, "ibm-5350", ""sv, 0x3F, 0x003F, 1250, {}, {}, {}, {}, {}, cFits1254},
    {1255, 0, "ibm-9447", ""sv, 0x3F, 0x003F, 1257, {}, cTexts1255, cLenient1255, {}, {}, cFits1255},
    {1256, 0, "ibm-9448", ""sv, 0x3F, 0x003F, 720, {}, {}, {}, {}, {}, cFits1256},
    {1257, 0, "ibm-9449", ""sv, 0x3F, 0x003F, 1258, {}, {}, cLenient1257, {}, {}, cFits1257},
    {1258, 0, "ibm-5354", ""sv, 0x3F, 0x003F, 0, {}, {}, {}, {}, {}, cFits1258},
    {1361, 0, "US-ASCII", "\x84\xD3\xD8\xDE\xE0\xF9"sv, 0x3F, 0x003F, 0, cRows1361, cTexts1361, cLenient1361, {}, {}, cFits1361},
    {10000, 0, "macos-0_2-10.2", ""sv, 0x3F, 0x003F, 0, {}, cTexts10000, cLenient10000, {}, {}, cFits10000},
    {10001, 932, nullptr, "\x81\x9F\xE0\xFC"sv, 0x3F, 0x30FB, 0, cRows10001, cTexts10001, {}, cPreferred10001, {}, cFits10001},
    {10002, 950, nullptr, "\x81\xFC"sv, 0x3F, 0x003F, 949, cRows10002, cTexts10002, {}, cPreferred10002, {}, cFits10002},
    {10003, 949, nullptr, "\xA1\xAC\xB0\xC8\xCA\xFD"sv, 0x3F, 0x003F, 932, cRows10003, cTexts10003, cLenient10003, {}, {}, cFits10003},
    {10004, 0, "ibm-1089", ""sv, 0x3F, 0x003F, 708, {}, cTexts10004, cLenient10004, {}, {}, cFits10004},
    {10005, 0, "ibm-5012", ""sv, 0x3F, 0x003F, 0, {}, cTexts10005, cLenient10005, {}, {}, cFits10005},
    {10006, 0, "macos-6_2-10.4", ""sv, 0x3F, 0x003F, 0, {}, cTexts10006, cLenient10006, {}, {}, cFits10006},
    {10007, 0, "macos-7_3-10.2", ""sv, 0x3F, 0x003F, 0, {}, cTexts10007, {}, {}, {}, {}},
    {10008, 0, "ibm-1383_P110-1999", "\xA1\xA9\xB0\xF7"sv, 0x3F, 0x003F, 0, cRows10008, cTexts10008, cLenient10008, {}, {}, cFits10008},
    {10010, 10000, nullptr, ""sv, 0x3F, 0x003F, 0, {}, cTexts10010, cLenient10010, {}, {}, cFits10010},
    {10017, 0, "macos-7_3-10.2", ""sv, 0x3F, 0x003F, 0, {}, cTexts10017, {}, {}, {}, {}},
    {10021, 0, "ibm-1162", ""sv, 0x3F, 0x003F, 0, {}, cTexts10021, {}, cPreferred10021, {}, {}},
    {10029, 0, "macos-29-10.2", ""sv, 0x3F, 0x003F, 0, {}, {}, {}, {}, {}, {}},
    {10079, 10000, nullptr, ""sv, 0x3F, 0x003F, 0, {}, cTexts10079, cLenient10079, {}, {}, cFits10079},
    {10081, 0, "macos-35-10.2", ""sv, 0x3F, 0x003F, 0, {}, cTexts10081, cLenient10081, {}, {}, cFits10081},
    {10082, 10000, nullptr, ""sv, 0x3F, 0x003F, 0, {}, cTexts10082, cLenient10082, {}, {}, cFits10082},
    {20105, 0, "US-ASCII", ""sv, 0x3F, 0x003F, 20127, {}, cTexts20105, {}, {}, {}, {}},
    {20106, 0, "US-ASCII", ""sv, 0x3F, 0x003F, 20127, {}, cTexts20106, {}, {}, {}, {}},
    {20107, 0, "US-ASCII", ""sv, 0x3F, 0x003F, 20127, {}, cTexts20107, {}, {}, {}, {}},
    {20108, 0, "US-ASCII", ""sv, 0x3F, 0x003F, 20127, {}, cTexts20108, {}, {}, {}, {}},
    {20127, 0, "US-ASCII", ""sv, 0x3F, 0x003F, 28595, {}, cTexts20127, {}, {}, {}, cFits20127},
    {20269, 0, "US-ASCII", ""sv, 0x3F, 0x003F, 20127, {}, cTexts20269, cLenient20269, {}, {}, {}},
    {20273, 0, "ibm-273", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20277, 0, "ibm-277", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20278, 0, "ibm-278", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20280, 0, "ibm-280", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20284, 0, "ibm-284", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20285, 0, "ibm-285", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20290, 0, "ibm-290", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20297, 0, "ibm-297", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20420, 0, "ibm-420", ""sv, 0x6F, 0x003F, 37, {}, cTexts20420, cLenient20420, {}, {}, {}},
    {20424, 0, "ibm-424", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20838, 0, "ibm-838", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20866, 0, "ibm-878", ""sv, 0x3F, 0x003F, 866, {}, {}, {}, {}, {}, cFits20866},
    {20871, 0, "ibm-871", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {20924, 1047, nullptr, ""sv, 0x6F, 0x003F, 37, {}, cTexts20924, {}, {}, {}, {}},
    {20932, 0, "ibm-954_P101-2007", "\x8E\x8E\xA1\xFE"sv, 0x3F, 0x30FB, 0, cRows20932, cTexts20932, {}, {}, {}, {}},
    {20936, 10008, nullptr, "\xA1\xF7"sv, 0x3F, 0x003F, 936, {}, {}, cLenient20936, cPreferred20936, {}, {}},
    {20949, 949, nullptr, "\xA1\xAC\xB0\xC8\xCA\xFD"sv, 0x3F, 0x003F, 10003, cRows20949, cTexts20949, cLenient20949, {}, {}, cFits20949},
    {21025, 0, "ibm-1025", ""sv, 0x6F, 0x003F, 37, {}, {}, {}, {}, {}, {}},
    {21866, 0, "ibm-1168", ""sv, 0x3F, 0x003F, 20866, {}, cTexts21866, {}, {}, {}, {}},
    {28591, 0, "ISO-8859-1", ""sv, 0x3F, 0x003F, 1255, {}, {}, {}, {}, {}, cFits28591},
    {28592, 0, "ibm-912", ""sv, 0x3F, 0x003F, 28594, {}, {}, {}, {}, {}, cFits28592},
    {28593, 0, "ibm-913", ""sv, 0x3F, 0x003F, 28599, {}, {}, cLenient28593, {}, {}, cFits28593},
    {28594, 0, "ibm-914", ""sv, 0x3F, 0x003F, 28593, {}, {}, {}, {}, {}, cFits28594},
    {28595, 0, "ibm-915", ""sv, 0x3F, 0x003F, 28594, {}, {}, {}, {}, {}, cFits28595},
    {28596, 0, "ibm-1089", ""sv, 0x3F, 0x003F, 20127, {}, {}, cLenient28596, {}, {}, cFits28596},
    {28597, 0, "ibm-813", ""sv, 0x3F, 0x003F, 20127, {}, cTexts28597, cLenient28597, {}, {}, cFits28597},
    {28598, 0, "ibm-916", ""sv, 0x3F, 0x003F, 20127, {}, cTexts28598, cLenient28598, {}, {}, cFits28598},
    {28599, 0, "ibm-920", ""sv, 0x3F, 0x003F, 28591, {}, {}, {}, {}, {}, cFits28599},
    {28600, 0, "iso-8859_10-1998", ""sv, 0x3F, 0x003F, 28599, {}, {}, {}, {}, {}, {}},
    {28601, 0, "iso-8859_11-2001", ""sv, 0x3F, 0x003F, 28599, {}, {}, {}, {}, {}, {}},
    {28603, 0, "ibm-921", ""sv, 0x3F, 0x003F, 866, {}, {}, {}, {}, {}, cFits28603},
    {28604, 0, "iso-8859_14-1998", ""sv, 0x3F, 0x003F, 28599, {}, {}, {}, {}, {}, {}},
    {28605, 0, "ibm-923", ""sv, 0x3F, 0x003F, 28591, {}, {}, {}, {}, {}, cFits28605},
    {38598, 28598, nullptr, ""sv, 0x3F, 0x003F, 28598, {}, {}, cLenient38598, {}, {}, {}},
    {51936, 936, nullptr, "\x81\xFE"sv, 0x3F, 0x003F, 936, {}, {}, cLenient51936, {}, {}, {}},
    {51949, 20949, nullptr, "\x81\xFE"sv, 0x3F, 0x003F, 949, cRows51949, {}, cLenient51949, {}, {}, {}},
};

const std::span<const TPageData> CodePageData = cPageData;

} // namespace qz::platform::detail
