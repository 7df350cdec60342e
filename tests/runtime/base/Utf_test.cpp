#include <qz/runtime/base/Utf.h>

#include <gtest/gtest.h>

#include <string>

using namespace std::string_literals;

namespace qz {
namespace {

struct TUtf8Case {
    const char* Name;
    std::string Narrow;
    std::u16string Wide;
};

// Ill-formed text is replaced by maximal subparts, as in chapter 3.9 of the Unicode Standard.
const TUtf8Case cIllFormed[] = {
    {"stray continuation", "a\x80z", u"a\uFFFDz"},
    {"lead before lead", "\xC3\xC3\xA4", u"\uFFFD\u00E4"},
    {"overlong of four", "\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"surrogate", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
    {"above the last", "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"table 3-8", "\xF0\x80\x80\x41\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41",
     u"\uFFFD\uFFFD\uFFFD\u0041\uFFFD\uFFFD\uFFFD\uFFFD\u0041"},
};

const TUtf8Case cWellFormed[] = {
    {"empty", "", u""},
    {"zero", "a\0b"s, u"a\0b"s},
    {"edges of one and two bytes", "\x7F\xC2\x80\xDF\xBF", u"\x7F\u0080\u07FF"},
    {"edges of three bytes", "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", u"\u0800\uD7FF\uE000\uFFFF"},
    {"edges of four bytes", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\U00010000\U0010FFFF"},
};

TEST(Utf, ReadsAndWritesUtf8) {
    const auto Check = [](const TUtf8Case& ACase) {
        SCOPED_TRACE(ACase.Name);
        EXPECT_EQ(Utf8ToUtf16(ACase.Narrow), ACase.Wide);
        EXPECT_EQ(Utf8ToUtf16Length(ACase.Narrow), ACase.Wide.size());
        std::size_t Pos = 0, WidePos = 0;
        while (Pos < ACase.Narrow.size())
            EXPECT_EQ(NextCodePoint(std::string_view(ACase.Narrow), Pos),
                      NextCodePoint(std::u16string_view(ACase.Wide), WidePos));
        EXPECT_EQ(WidePos, ACase.Wide.size());
    };
    for (const TUtf8Case& Case : cIllFormed)
        Check(Case);
    for (const TUtf8Case& Case : cWellFormed) {
        Check(Case);
        EXPECT_EQ(Utf16ToUtf8(Case.Wide), Case.Narrow);
        EXPECT_EQ(Utf16ToUtf8Length(Case.Wide), Case.Narrow.size());
    }
}

} // namespace
} // namespace qz
