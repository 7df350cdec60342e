#include "Places.h"

#include <qz/platform/Environment.h>
#include <qz/platform/Files.h>

#include <algorithm>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/files/FileNames.h>

using namespace qz;

namespace {

constexpr std::uint64_t cLargestDefault = 16 << 20;

struct TPlace {
    std::u16string_view Directory;
    std::u16string_view Ending; // of the names
};

constexpr TPlace cUnixPlaces[] = {{u"/usr/share/common-licenses/", u""},
                                  {u"/var/log/", u".log"},
                                  {u"/etc/", u"services"},
                                  {u"/etc/", u".conf"}};
// Below the directory of Windows.
constexpr TPlace cWindowsPlaces[] = {
    {u"", u".ini"}, {u"", u".log"}, {u"inf\\", u".inf"}, {u"System32\\drivers\\etc\\", u""}};

std::vector<platform::TDirEntry> EntriesOf(const UnicodeString& ADirectory) {
    return *platform::ListDirectory(ADirectory); // none where it fails
}

void AddLargest(const UnicodeString& ADirectory, std::u16string_view AEnding,
                std::vector<UnicodeString>& AFiles) {
    std::uint64_t Size = 0;
    UnicodeString Name;
    for (const platform::TDirEntry& Entry : EntriesOf(ADirectory)) {
        if (!Entry.IsDirectory && Entry.Size > Size && Entry.Size <= cLargestDefault &&
            EndsText(AEnding, Entry.Name)) {
            Size = Entry.Size;
            Name = Entry.Name;
        }
    }
    if (Size != 0)
        AFiles.push_back(ADirectory + Name);
}

} // namespace

std::vector<UnicodeString> TextFilesOfThisMachine() {
    std::vector<UnicodeString> Result;
    if (const auto Windows = platform::GetEnvironment(u"SystemRoot")) {
        for (const TPlace& Place : cWindowsPlaces)
            AddLargest(IncludeTrailingPathDelimiter(*Windows) + Place.Directory, Place.Ending, Result);
    } else {
        for (const TPlace& Place : cUnixPlaces)
            AddLargest(Place.Directory, Place.Ending, Result);
    }
    return Result;
}

std::vector<TWrittenFile> FilesBelow(const UnicodeString& ADirectory) {
    std::vector<TWrittenFile> Result;
    for (const platform::TDirEntry& Entry : EntriesOf(ADirectory)) {
        const UnicodeString Path = ADirectory + Entry.Name;
        if (!Entry.IsDirectory) {
            Result.push_back({Path, static_cast<std::int64_t>(Entry.Size)});
            continue;
        }
        const std::vector<TWrittenFile> Below = FilesBelow(IncludeTrailingPathDelimiter(Path));
        Result.insert(Result.end(), Below.begin(), Below.end());
    }
    std::ranges::sort(Result, {}, &TWrittenFile::Path);
    return Result;
}
