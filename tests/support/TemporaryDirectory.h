// A directory of a test's own, empty at first and gone with all that is in it at the end.
#pragma once

#include <string>
#include <string_view>
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
        TError Error;
        EXPECT_TRUE(MakeDirectory(FPath, Error)) << Error.Code;
    }
    TTemporaryDirectory(const TTemporaryDirectory&) = delete;
    TTemporaryDirectory& operator=(const TTemporaryDirectory&) = delete;
    ~TTemporaryDirectory() {
        TError Error;
        EXPECT_TRUE(Remove(FPath, Error)) << Error.Code;
    }

    const std::u16string& Path() const { return FPath; }

    std::u16string operator/(std::u16string_view AName) const { return (FPath + u'/').append(AName); }

private:
    static bool Remove(const std::u16string& ADirectory, TError& AError) {
        std::vector<TDirEntry> Entries;
        ListDirectory(ADirectory, Entries, AError);
        for (const TDirEntry& Entry : Entries) {
            const std::u16string Path = (ADirectory + u'/').append(Entry.Name);
            if (!RemoveFile(Path, AError) && Entry.IsDirectory)
                Remove(Path, AError);
        }
        return RemoveEmptyDirectory(ADirectory, AError);
    }

    std::u16string FPath;
};

} // namespace qz::platform
