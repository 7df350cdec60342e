// Whole files, directories and their names.
//
//     if (const auto Entries = ListDirectory(u"/var/log"))
//         for (const TDirEntry& Entry : *Entries)
//             Show(Entry.Name);
//
// Paths are UTF-16. On Linux a byte of a name that isn't valid UTF-8 is carried as a lone surrogate, U+DC00
// plus the byte, so that each name that a listing gives can be opened again. On Windows any path may be
// longer than 248 units. A path with a NUL in it is refused (EINVAL, ERROR_INVALID_NAME). Interrupted calls
// go on. Any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <qz/platform/Error.h>
#include <qz/platform/Export.h>

namespace qz::platform {

struct TDirEntry {
    std::u16string Name; // without its directory
    bool IsDirectory;    // a link counts as what it leads to
    std::uint64_t Size;  // in bytes, 0 for a directory and for a link that leads nowhere
};

// What may stand between the names of a path, the usual one first, and behind a drive; 0 where there are no drives.
QZ_API std::u16string_view PathSeparators() noexcept;
QZ_API char16_t DriveSeparator() noexcept;

// Whether names that differ in the case of letters alone are usually those of one file.
QZ_API bool FileNamesIgnoreCase() noexcept;

// Whether APath is there and is, or is not, a directory. A path that can't be asked about isn't there.
QZ_API bool FileExists(std::u16string_view APath);
QZ_API bool DirectoryExists(std::u16string_view APath);

// The entries of APath, in no particular order, without "." and "..".
QZ_API TResult<std::vector<TDirEntry>> ListDirectory(std::u16string_view APath);

// The directory for temporary files, without a separator at its end.
QZ_API std::u16string TempDirectory();

// One directory; its parent must be there. Fails where the name is taken.
QZ_API TResult<> MakeDirectory(std::u16string_view APath);

// Removes a file or a link, never a directory. RemoveEmptyDirectory is for those.
QZ_API TResult<> RemoveFile(std::u16string_view APath);
QZ_API TResult<> RemoveEmptyDirectory(std::u16string_view APath);

// Gives a file or directory another name on the same file system; what has it open keeps it. Fails where the new name is taken
// (EEXIST, ERROR_ALREADY_EXISTS), also by somebody who takes it at this moment, as far as the file system can tell.
QZ_API TResult<> RenameEntry(std::u16string_view APath, std::u16string_view ANewPath);

// All bytes of a file, also of one that reports no size, such as those under /proc. Fails where a TFileHandle denies
// reading (ETXTBSY, ERROR_SHARING_VIOLATION).
QZ_API TResult<std::vector<std::byte>> ReadWholeFile(std::u16string_view APath);

// Makes APieces, one behind the other, the whole content of the file. Readers find the old content or the new
// one, never a part of it: the bytes go to a new file beside it, which then takes its name, its owner, its access
// rights and, on Linux, the attributes that users gave it. Written in place, and so perhaps in part, are a link, a
// device or a pipe, a file of several names, one that can't be replaced with its owner and rights kept, one that
// others have open (on Windows), and one in a directory that takes no new file. A file that the caller may not
// write, or that a TFileHandle denies to writers, is left alone. On failure the old content is untouched, unless it
// was being written in place. Not flushed to the disk.
QZ_API TResult<> WriteWholeFile(std::u16string_view APath,
                                std::span<const std::span<const std::byte>> APieces);
inline TResult<> WriteWholeFile(std::u16string_view APath, std::span<const std::byte> ABytes) {
    return WriteWholeFile(APath, std::span(&ABytes, 1));
}

} // namespace qz::platform
