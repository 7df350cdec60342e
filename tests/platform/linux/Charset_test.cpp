#include <qz/platform/linux/Charset.h>

#include <string>

#include <gtest/gtest.h>

#include <qz/platform/CodePages.h>

namespace qz::platform {
namespace {

TEST(Charset, HasACodePageThatConverts) {
    const std::pair<const char*, uint32_t> Cases[] = {
        {"utf8", 65001},        {"ANSI_X3.4-1968", 65001}, {"", 65001},
        {"NO-SUCH-SET", 65001}, {"iso885915", 28605},      {"ISO-8859-12", 65001},
        {"CP1252", 1252},       {"windows-1251", 1251},    {"eucJP", 20932},
        {"SJIS", 932},          {"GB2312", 51936},         {"KOI8-U", 21866},
        {"TIS-620", 874},       {"CP12x", 65001},
    };
    for (const auto& [Name, Page] : Cases) {
        EXPECT_EQ(detail::CodePageOfCharset(Name), Page) << Name;
        char Byte = '\0';
        EXPECT_EQ(*Utf16ToCodePage(Page, u"x", {&Byte, 1}, TComposing::Plain), 1u) << Name;
        EXPECT_EQ(Byte, 'x') << Name;
    }
}

} // namespace
} // namespace qz::platform
