// In a file that comes before the other tests of code pages, so that the pages have no tables yet.
#include <barrier>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/AtOnce.h"
#include <qz/platform/CodePages.h>

namespace qz::platform {
namespace {

std::u16string RoundTrip(uint32_t APage, std::u16string_view AText) {
    std::string Bytes(AText.size() * 2, '\0');
    Bytes.resize(*Utf16ToCodePage(APage, AText, Bytes, TComposing::Plain));
    std::u16string Result(Bytes.size(), u'\0');
    const auto Source = std::as_bytes(std::span(Bytes));
    Result.resize(*CodePageToUtf16(APage, Source, Result, TDecoding::Strict));
    return Result;
}

TEST(CodePagesAtOnce, ManyThreadsMayComeFirst) {
    std::barrier Start(8);
    AtOnce(8, [&Start](int) {
        Start.arrive_and_wait();
        for (const uint32_t Page : {866u, 932u, 21866u, 936u, 1251u, 65001u})
            EXPECT_EQ(RoundTrip(Page, u"Жж and ASCII"), u"Жж and ASCII") << Page;
    });
}

} // namespace
} // namespace qz::platform
