// Whole files, directories and their names.
//
//     if (const auto Entries = ListDirectory(u"/var/log"))
//         for (const TDirEntry& Entry : *Entries)
//             Show(Entry.Name);
//
// Paths are UTF-16. On Linux each byte of a name that is not valid UTF-8 becomes a lone surrogate, U+DC00
// plus the byte, so that every listed name can be opened. On Windows paths may exceed 248 units. A path that
// contains a NUL fails (EINVAL, ERROR_INVALID_NAME). Interrupted system calls are repeated. Any thread.
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
    bool IsDirectory;    // of a link: whether its target is one
    std::uint64_t Size;  // in bytes; 0 for a directory and a broken link
};

// The characters that separate the names of a path, the preferred one first; and the one after a drive
// letter, 0 if there are no drives.
QZ_API std::u16string_view PathSeparators() noexcept;
QZ_API char16_t DriveSeparator() noexcept;

// Whether file systems usually ignore the case of names.
QZ_API bool FileNamesIgnoreCase() noexcept;

// Whether APath exists and is a file, or a directory. False for a path that cannot be accessed.
QZ_API bool FileExists(std::u16string_view APath);
QZ_API bool DirectoryExists(std::u16string_view APath);

// The entries of APath, in no particular order, without "." and "..".
QZ_API TResult<std::vector<TDirEntry>> ListDirectory(std::u16string_view APath);

// The path from its root, with the current directory before a relative one. On Windows also without "." and
// "..". The path itself if the current directory cannot be determined.
QZ_API std::u16string WholePath(std::u16string_view APath);

// The directory for temporary files, without a trailing separator.
QZ_API std::u16string TempDirectory();

// Creates one directory; its parent must exist. Fails if the name exists.
QZ_API TResult<> MakeDirectory(std::u16string_view APath);

// Removes a file or a link, never a directory.
QZ_API TResult<> RemoveFile(std::u16string_view APath);
QZ_API TResult<> RemoveEmptyDirectory(std::u16string_view APath);

// Renames a file or directory within one file system; open handles stay valid. Fails if the new name exists
// (EEXIST, ERROR_ALREADY_EXISTS). The check is atomic where the file system supports it.
QZ_API TResult<> RenameEntry(std::u16string_view APath, std::u16string_view ANewPath);

// All bytes of a file, also of one that reports no size, such as those under /proc. Fails where a TFileHandle
// denies reading (ETXTBSY, ERROR_SHARING_VIOLATION).
QZ_API TResult<std::vector<std::byte>> ReadWholeFile(std::u16string_view APath);

// Replaces the content of the file by APieces, one after the other. Readers see the old or the new content,
// never a part: the bytes go to a new file in the same directory, which then takes the name, the owner, the
// access rights and, on Linux, the user's attributes. Some files are written in place, so a failure may leave
// a part: a link, a device or a pipe, a file with several names, a file whose owner and rights cannot be
// kept, one that is open elsewhere (on Windows), and one in a directory that accepts no new file. Fails, and
// changes nothing, for a file that the caller may not write or that a TFileHandle denies to writers. Does not
// flush to the disk.
QZ_API TResult<> WriteWholeFile(std::u16string_view APath,
                                std::span<const std::span<const std::byte>> APieces);
inline TResult<> WriteWholeFile(std::u16string_view APath, std::span<const std::byte> ABytes) {
    return WriteWholeFile(APath, std::span(&ABytes, 1));
}

} // namespace qz::platform
