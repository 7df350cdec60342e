#include <qz/platform/Files.h>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"
#include <qz/platform/windows/LongPath.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {
namespace {

TEST(FilesWindows, LongPathsGetTheirPrefix) {
    const std::u16string Long(260, u'x');
    struct TCase {
        std::u16string Path, Expected;
    };
    const TCase Cases[] = {
        {u"C:\\short", u"C:\\short"},
        {u"NUL", u"NUL"},
        {u"C:/a/../" + Long, u"\\\\?\\C:\\" + Long},
        {u"\\\\server\\share\\" + Long, u"\\\\?\\UNC\\server\\share\\" + Long},
        {u"\\\\?\\C:\\" + Long, u"\\\\?\\C:\\" + Long},
    };
    for (const TCase& Case : Cases)
        EXPECT_EQ(detail::SystemPath(Case.Path), Case.Expected);
    EXPECT_TRUE(detail::SystemPath(Long)->starts_with(u"\\\\?\\"));
}

TEST(FilesWindows, DevicesAreWrittenInPlace) {
    const std::vector<std::byte> Bytes(5000);
    EXPECT_TRUE(WriteWholeFile(u"NUL", Bytes));
    const auto Content = ReadWholeFile(u"NUL");
    EXPECT_TRUE(Content && Content->empty());
}

} // namespace
} // namespace qz::platform
