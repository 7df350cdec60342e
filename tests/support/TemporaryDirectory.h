// A directory of a test's own, empty at first and gone with all that is in it at the end.
#pragma once

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include <qz/platform/Files.h>
#include <qz/platform/Threads.h>

namespace qz::platform {

class TTemporaryDirectory {
public:
    TTemporaryDirectory() {
        const std::string Name = "/qz-test-" + std::to_string(CurrentThreadId()) + "-" +
            std::to_string(TickCount64()) + "-" + std::to_string(reinterpret_cast<uintptr_t>(this));
        FPath = TempDirectory() + std::u16string(Name.begin(), Name.end());
        EXPECT_TRUE(MakeDirectory(FPath));
    }
    TTemporaryDirectory(const TTemporaryDirectory&) = delete;
    TTemporaryDirectory& operator=(const TTemporaryDirectory&) = delete;
    ~TTemporaryDirectory() { EXPECT_TRUE(Remove(FPath)); }

    const std::u16string& Path() const { return FPath; }

    std::u16string operator/(std::u16string_view AName) const { return (FPath + u'/').append(AName); }

private:
    static TResult<> Remove(const std::u16string& ADirectory) {
        const auto Entries = ListDirectory(ADirectory);
        for (const TDirEntry& Entry : *Entries) {
            const std::u16string Path = (ADirectory + u'/').append(Entry.Name);
            if (!RemoveFile(Path) && Entry.IsDirectory)
                std::ignore = Remove(Path);
        }
        return RemoveEmptyDirectory(ADirectory);
    }

    std::u16string FPath;
};

} // namespace qz::platform
