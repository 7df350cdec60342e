#include <qz/platform/Files.h>

#include <cstdio>

#include <io.h>
#include <share.h>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "tests/support/TemporaryDirectory.h"
#include <qz/platform/windows/LongPath.h>
#include <qz/platform/windows/WideText.h>

namespace qz::platform {
namespace {

constexpr int cAccessDenied = 5;
constexpr int cSharingViolation = 32;

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

TEST(FilesWindows, FileInUseKeepsItsContent) {
    const TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"file";
    const std::vector<std::byte> Old(10, std::byte{'o'});
    const std::vector<std::byte> New(20, std::byte{'n'});
    ASSERT_TRUE(WriteWholeFile(Path, Old));
    std::FILE* User = _wfsopen(detail::Wide(Path), L"rb", _SH_DENYWR);
    ASSERT_NE(User, nullptr);
    EXPECT_EQ(WriteWholeFile(Path, New).Code(), cSharingViolation);
    std::fclose(User);

    ASSERT_EQ(_wchmod(detail::Wide(Path), _S_IREAD), 0);
    EXPECT_EQ(WriteWholeFile(Path, New).Code(), cAccessDenied);
    ASSERT_EQ(_wchmod(detail::Wide(Path), _S_IREAD | _S_IWRITE), 0);

    EXPECT_EQ(*ReadWholeFile(Path), Old);
    EXPECT_EQ(ListDirectory(Directory.Path())->size(), 1u);
}

TEST(FilesWindows, DevicesAreWrittenInPlace) {
    const std::vector<std::byte> Bytes(5000);
    EXPECT_TRUE(WriteWholeFile(u"NUL", Bytes));
    const auto Content = ReadWholeFile(u"NUL");
    EXPECT_TRUE(Content && Content->empty());
}

} // namespace
} // namespace qz::platform
