#include <qz/platform/CodePages.h>

#include <climits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

using namespace std::string_view_literals;

constexpr bool cOnWindows = QZ_TESTS_ON_WINDOWS != 0;
const std::u16string cRefused = u"refused";

std::span<const std::byte> BytesOf(std::string_view ABytes) {
    return std::as_bytes(std::span(ABytes));
}

// Measures, converts with just the room that it takes, and compares the two lengths.
std::u16string Decoded(uint32_t APage, std::string_view ABytes, TDecoding ADecoding = TDecoding::Lenient) {
    const TResult<size_t> Length = CodePageToUtf16(APage, BytesOf(ABytes), {}, ADecoding);
    if (!Length)
        return cRefused;
    std::u16string Result(*Length, u'#');
    const TResult<size_t> Written = CodePageToUtf16(APage, BytesOf(ABytes), Result, ADecoding);
    EXPECT_TRUE(Written && *Written == *Length) << APage;
    return Result;
}

std::string Encoded(uint32_t APage, std::u16string_view AText, TComposing AComposing = TComposing::Plain) {
    const TResult<size_t> Length = Utf16ToCodePage(APage, AText, {}, AComposing);
    std::string Result(*Length, '#');
    const TResult<size_t> Written = Utf16ToCodePage(APage, AText, Result, AComposing);
    EXPECT_TRUE(Length && Written && *Written == *Length) << APage;
    return Result;
}

// CodePagesDigest holds each page to its table; here stand pieces of text, and what spans several characters.
TEST(CodePages, ConvertsBothWays) {
    struct TCase {
        uint32_t Page;
        std::string_view Bytes;
        std::u16string_view Text;
    };
    const TCase Cases[] = {
        {1252, "", u""},
        {932, "", u""},
        {37, "\xC1\x81\xF1", u"Aa1"},
        {932, "\x83\x65\x83\x58\x83\x67\xB1", u"テストｱ"},
        {65001, "\xC3\xA4\xF0\x9F\x98\x80", u"ä\xD83D\xDE00"},
        {1252, "a\0b"sv, u"a\0b"sv},
        // Longer than the blocks that are converted at once, and whatever is behind them.
        {1252, "sixteen letters.sixteen lett\xE9rs.\x80 \x81\x9F",
         u"sixteen letters.sixteen lettérs.€ \x81Ÿ"},
        {1251, "sixteen letters.sixteen \xE6\xE6tters.tail", u"sixteen letters.sixteen жжtters.tail"},
        {936, "sixteen letters.sixteen \xB2\xE2tters. and \xCA\xD4",
         u"sixteen letters.sixteen 测tters. and 试"},
    };
    for (const TCase& Case : Cases) {
        EXPECT_EQ(Decoded(Case.Page, Case.Bytes), Case.Text) << Case.Page;
        EXPECT_EQ(Encoded(Case.Page, Case.Text), Case.Bytes) << Case.Page;
    }
}

TEST(CodePages, DecodesWhatMeansNothingOnlyLeniently) {
    struct TCase {
        uint32_t Page;
        std::string_view Bytes;
        std::u16string_view Lenient;
        bool Strict;
    };
    const TCase Cases[] = {
        {1253, "a\xAAz", u"a\xF8F9z", false},    // a place of its own for what the page leaves free
        {932, "\x83\x65\x83", u"テ・", false},   // the end cuts a character off
        {932, "a\x83\0b"sv, u"a・\0b"sv, false}, // a zero is no trail byte
        {932, "\x83\xFFz", u"・z", false},       // any other is
        {65001, "a\xC3", u"a\xFFFD", true},      // knows no strictness
    };
    for (const TCase& Case : Cases) {
        EXPECT_EQ(Decoded(Case.Page, Case.Bytes), Case.Lenient) << Case.Page;
        EXPECT_EQ(Decoded(Case.Page, Case.Bytes, TDecoding::Strict), Case.Strict ? Case.Lenient : cRefused)
            << Case.Page;
    }
}

TEST(CodePages, EncodesWhatThePageLacksByItsNearest) {
    struct TCase {
        uint32_t Page;
        std::u16string_view Text;
        std::string_view Plain, Composite;
    };
    const TCase Cases[] = {
        {1252, u"\xD83D\xDE00z", "??z", "??z"},
        {1252,
         u"e\x301"
         u"a\x308z",
         "e\xB4"
         "a\xA8z",
         "\xE9\xE4z"},
        {1252, u"e\x323\x302", "e?^", "?^"},             // there is, but the page lacks it
        {1252, u"u\x308\x301", "u\xA8\xB4", "\xFC\xB4"}, // one mark only
        {1258, u"ê\x301", "\xEA\xEC", "?"},
        {932, u"は\x309Az", "\x82\xCD?z", "\x82\xCFz"},
        {949, u"\x1100\x1161", "\xA4\xA1\xA4\xBF", "\xA4\xA1\xA4\xBF"}, // syllables are not made
        {65001, u"e\x301", "e\xCC\x81", "e\xCC\x81"},
    };
    for (const TCase& Case : Cases) {
        EXPECT_EQ(Encoded(Case.Page, Case.Text), Case.Plain) << Case.Page;
        EXPECT_EQ(Encoded(Case.Page, Case.Text, TComposing::Composite), Case.Composite) << Case.Page;
    }
}

TEST(CodePages, RefusesATargetThatIsTooSmall) {
    const int cTooSmall = ErrorOfSmallTarget().Code;
    char16_t Text[3];
    char Bytes[3];
    for (const uint32_t Page : {1252u, 932u, 65001u}) {
        for (const TDecoding Decoding : {TDecoding::Lenient, TDecoding::Strict})
            EXPECT_EQ(CodePageToUtf16(Page, BytesOf("abcd"), Text, Decoding).Code(), cTooSmall) << Page;
        for (const TComposing Composing : {TComposing::Plain, TComposing::Composite})
            EXPECT_EQ(Utf16ToCodePage(Page, u"\xFF71\xFF71\xFF71\xFF71", Bytes, Composing).Code(), cTooSmall);
    }
    EXPECT_EQ(Utf16ToCodePage(932, u"テテ", Bytes, TComposing::Plain).Code(), cTooSmall);
}

TEST(CodePages, RefusesUnknownPagesAndTooMuchText) {
    char Byte = 'a';
    for (const uint32_t Page : {1u, 2u, 3u, 1200u, 1201u, 12000u, 12001u, 4711u, 70000u}) {
        for (const size_t Length : {0u, 1u}) {
            EXPECT_FALSE(CodePageToUtf16(Page, BytesOf({&Byte, Length}), {}, TDecoding::Lenient)) << Page;
            EXPECT_FALSE(Utf16ToCodePage(Page, std::u16string(Length, u'a'), {}, TComposing::Plain)) << Page;
        }
        EXPECT_EQ(CodePageMaxCharSize(Page), 0u) << Page;
    }
    const std::span TooMuch(reinterpret_cast<const std::byte*>(&Byte), size_t{INT_MAX} + 1); // never read
    EXPECT_FALSE(CodePageToUtf16(1252, TooMuch, {}, TDecoding::Lenient));
    EXPECT_EQ(Decoded(0, "abc"), u"abc"); // the page of the system
}

TEST(CodePages, StateStaysWithinOneConversion) {
    struct TCase {
        uint32_t Page;
        std::string_view Bytes;
        std::u16string_view Text;
    };
    const TCase Cases[] = {
        {50220, "a\x1B$B%F\x1B(B", u"aテ"},
        {54936, "\xB2\xE2\x81\x30\x84\x36", u"测\xA5"},
        {57004, "\xB3", u"க"},
        {65000, "+bUs-", u"测"},
    };
    for (const TCase& Case : Cases) {
        if (CodePageMaxCharSize(Case.Page) == 0)
            continue; // not every Windows has them all
        EXPECT_EQ(Decoded(Case.Page, Case.Bytes), Case.Text) << Case.Page;
        EXPECT_EQ(Decoded(Case.Page, Encoded(Case.Page, Case.Text)), Case.Text) << Case.Page;
        // Longer than what the converter is given at a time.
        std::u16string Long;
        for (int I = 0; I < 3000; ++I)
            Long += Case.Text;
        EXPECT_EQ(Decoded(Case.Page, Encoded(Case.Page, Long)), Long) << Case.Page;
    }
    EXPECT_TRUE(cOnWindows || CodePageMaxCharSize(50220) == 5);
}

} // namespace
} // namespace qz::platform
