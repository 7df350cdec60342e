#include "platform/Files.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "../TemporaryDirectory.h"
#include "platform/windows/LongPath.h"
#include "platform/windows/WideText.h"

namespace qz::platform {
namespace {

TEST(FilesWindows, LongPathsGetTheirPrefix) {
    const std::u16string Long(260, u'x');
    struct TCase {
        std::u16string Path;
        std::u16string Expected;
    };
    const TCase Cases[] = {
        {u"C:\\short", u"C:\\short"},
        {u"relative", u"relative"},
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
    TError Error;
    ASSERT_TRUE(WriteWholeFile(Path, Old, Error));
    HANDLE User =
        CreateFileW(detail::Wide(Path), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(User, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(WriteWholeFile(Path, New, Error));
    EXPECT_EQ(Error.Code, ERROR_SHARING_VIOLATION);
    CloseHandle(User);

    ASSERT_TRUE(SetFileAttributesW(detail::Wide(Path), FILE_ATTRIBUTE_READONLY));
    EXPECT_FALSE(WriteWholeFile(Path, New, Error));
    EXPECT_EQ(Error.Code, ERROR_ACCESS_DENIED);
    ASSERT_TRUE(SetFileAttributesW(detail::Wide(Path), FILE_ATTRIBUTE_NORMAL));

    std::vector<std::byte> Content;
    std::vector<TDirEntry> Entries;
    EXPECT_TRUE(ReadWholeFile(Path, Content, Error) && Content == Old);
    EXPECT_TRUE(ListDirectory(Directory.Path(), Entries, Error) && Entries.size() == 1);
}

TEST(FilesWindows, DevicesAreWrittenInPlace) {
    const std::vector<std::byte> Bytes(5000);
    std::vector<std::byte> Content(1);
    TError Error;
    EXPECT_TRUE(WriteWholeFile(u"NUL", Bytes, Error)) << Error.Code;
    EXPECT_TRUE(ReadWholeFile(u"NUL", Content, Error)) << Error.Code;
    EXPECT_TRUE(Content.empty());
}

} // namespace
} // namespace qz::platform
