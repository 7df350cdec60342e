#include <qz/platform/linux/Charset.h>

#include <string>

#include <gtest/gtest.h>

#include <qz/platform/CodePages.h>

namespace qz::platform {
namespace {

TEST(Charset, HasACodePageThatConverts) {
    struct TCase {
        const char* Name;
        uint32_t Page;
    };
    const TCase Cases[] = {
        {"UTF-8", 65001},     {"utf8", 65001},        {"ANSI_X3.4-1968", 65001},
        {"", 65001},          {"NO-SUCH-SET", 65001}, {"ISO-8859-1", 28591},
        {"iso885915", 28605}, {"ISO-8859-13", 28603}, {"ISO-8859-12", 65001},
        {"CP1252", 1252},     {"windows-1251", 1251}, {"IBM850", 850},
        {"EUC-JP", 20932},    {"eucJP", 20932},       {"SJIS", 932},
        {"GBK", 936},         {"GB18030", 54936},     {"GB2312", 51936},
        {"BIG5", 950},        {"EUC-KR", 949},        {"KOI8-R", 20866},
        {"KOI8-U", 21866},    {"TIS-620", 874},       {"CP12x", 65001},
    };
    for (const TCase& Case : Cases) {
        EXPECT_EQ(detail::CodePageOfCharset(Case.Name), Case.Page) << Case.Name;
        char Byte = '\0';
        EXPECT_EQ(*Utf16ToCodePage(Case.Page, u"x", {&Byte, 1}, TComposing::Plain), 1u) << Case.Name;
        EXPECT_EQ(Byte, 'x') << Case.Name;
    }
}

} // namespace
} // namespace qz::platform
