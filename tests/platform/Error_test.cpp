#include <qz/platform/Error.h>

#include <string_view>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

constexpr int cFileNotFound = 2; // ENOENT and ERROR_FILE_NOT_FOUND alike

TEST(Error, TextIsOneTidyLine) {
    for (int Code = 1; Code < 1300; ++Code) {
        const std::u16string Text = ErrorText(Code);
        ASSERT_FALSE(Text.empty()) << Code;
        EXPECT_EQ(Text.find_first_of(u"\r\n"), std::u16string::npos) << Code;
        EXPECT_EQ(std::u16string_view(u". ").find(Text.back()), std::u16string_view::npos) << Code;
    }
    EXPECT_NE(ErrorText(cFileNotFound), ErrorText(cFileNotFound + 1));
    EXPECT_EQ(ErrorText(987654321), u"Unknown error 987654321");
}

TEST(Error, TextKeepsTheLastError) {
    SetLastError(77);
    ErrorText(987654321);
    ErrorText(cFileNotFound);
    EXPECT_EQ(LastError(), 77);
    SetLastError(0);
    EXPECT_EQ(LastError(), 0);
}

} // namespace
} // namespace qz::platform
