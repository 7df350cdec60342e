#include "platform/CodePages.h"

#include <string>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

std::u16string Decoded(uint32_t APage, std::string_view ABytes) {
    std::u16string Result = u"left over";
    TError Error{1};
    EXPECT_TRUE(CodePageToUtf16(APage, std::as_bytes(std::span(ABytes)), Result, Error)) << APage;
    EXPECT_EQ(Error.Code, 0) << APage;
    return Result;
}

std::string Encoded(uint32_t APage, std::u16string_view AText) {
    std::string Result = "left over";
    TError Error{1};
    EXPECT_TRUE(Utf16ToCodePage(APage, AText, Result, Error)) << APage;
    EXPECT_EQ(Error.Code, 0) << APage;
    return Result;
}

TEST(CodePages, ConvertsBothWays) {
    struct TCase {
        uint32_t Page;
        std::string Bytes;
        std::u16string Text;
    };
    const TCase Cases[] = {
        {1252, "", u""},
        {1252, "\x80uro \xE4", u"€uro ä"},
        {1251, "\xC6\xE6", u"Жж"},
        {1250, "\xB9\x9C", u"ąś"},
        {437, "\x84\xE1", u"äß"},
        {850, "\x84\xE1", u"äß"},
        {28591, "\xA4\xE9", u"¤é"},
        {28605, "\xA4\xE9", u"€é"},
        {20866, "\xF6\xD6", u"Жж"},
        {932, "\x83\x65\x83\x58\x83\x67\xB1", u"テストｱ"},
        {936, "\xB2\xE2\xCA\xD4", u"测试"},
        {949, "\xC5\xD7\xBD\xBA\xC6\xAE", u"테스트"},
        {950, "\xB4\xFA\xB8\xD5", u"測試"},
        {65001, "\xC3\xA4\xF0\x9F\x98\x80", u"ä\xD83D\xDE00"},
        {1252, std::string("a\0b", 3), std::u16string(u"a\0b", 3)},
        {932, std::string(3000, '\xB1'), std::u16string(3000, u'ｱ')},
        // Each unit gives two bytes, which is more than the first guess at the size.
        {936, std::string(3000, '\xB2'), std::u16string(1500, u'膊')},
    };
    for (const TCase& Case : Cases) {
        EXPECT_EQ(Decoded(Case.Page, Case.Bytes), Case.Text) << Case.Page;
        EXPECT_EQ(Encoded(Case.Page, Case.Text), Case.Bytes) << Case.Page;
    }
}

TEST(CodePages, ReplacesWhatHasNoCounterpart) {
    EXPECT_EQ(Encoded(1252, u"aЖb"), "a?b");
    EXPECT_EQ(Encoded(932, u"aéb").substr(0, 1), "a");
    EXPECT_EQ(Encoded(1252, u"x\xD800y").substr(0, 1), "x");
    EXPECT_EQ(Decoded(65001, "a\xFF"), u"a\xFFFD");
    EXPECT_FALSE(Decoded(932, "a\x83").empty());
    // Nothing of the text before must show in the next.
    EXPECT_EQ(Decoded(932, "b"), u"b");
}

TEST(CodePages, RefusesUnknownPages) {
    for (const uint32_t Page : {1200u, 1201u, 12000u, 12001u, 4711u, 70000u}) {
        for (const std::string_view Bytes : {"", "abc"}) {
            std::u16string Text = u"left over";
            std::string Out = "left over";
            TError Error;
            EXPECT_FALSE(CodePageToUtf16(Page, std::as_bytes(std::span(Bytes)), Text, Error)) << Page;
            EXPECT_NE(Error.Code, 0);
            EXPECT_EQ(Text, u"");
            Error.Code = 0;
            EXPECT_FALSE(Utf16ToCodePage(Page, std::u16string(Bytes.begin(), Bytes.end()), Out, Error))
                << Page;
            EXPECT_NE(Error.Code, 0);
            EXPECT_EQ(Out, "");
        }
    }
}

TEST(CodePages, PageZeroIsTheSystems) {
    EXPECT_NE(SystemCodePage(), 0u);
    EXPECT_EQ(Encoded(0, u"aé"), Encoded(SystemCodePage(), u"aé"));
    EXPECT_EQ(Decoded(0, "abc"), u"abc");
}

} // namespace
} // namespace qz::platform
