// When a file was created, last written and last read.
//
//     const TResult<TFileTimes> Times = ReadFileTimes(u"app.log");
//     const bool HasChanged = Times && Times->LastWrite > Times->Created;
//
// Times count 100 nanoseconds since 1601-01-01 00:00:00 UTC. A time outside their range gives the nearest
// one. Paths are as in Files.h. Any thread.
//
// Linux stores the creation time of a file but cannot change it. SetFileCreated stores the new time in the
// extended attribute "user.qzcommon.created": three decimal numbers, the time set, the inode number, and the
// creation time that the system stores (0 if none). ReadFileTimes uses the attribute only while the last two
// match the file, so a copy of the file has its own creation time, as on Windows. A file system without
// creation times gives the earlier one of the last write and the last status change.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <qz/platform/Error.h>
#include <qz/platform/Export.h>

namespace qz::platform {

struct TFileTimes {
    std::int64_t Created;
    std::int64_t LastWrite;
    std::int64_t LastAccess;
    bool IsDirectory;
};

// Needs no right on the file, except that on Linux a time that was set is visible only to those who may read
// the file. Links are followed on Linux; Windows gives the times of the link. A pattern such as "*.txt" fails
// on Windows with ERROR_INVALID_NAME.
QZ_API TResult<TFileTimes> ReadFileTimes(std::u16string_view APath);

// Sets the creation time of a file, not of a directory. Follows links. Linux needs read and write permission
// and a file system with extended attributes; otherwise EACCES, EROFS, ENOTSUP or similar. Fails with EIO if
// the time cannot be read back. On Linux the time belongs to the file by its inode number and its real
// creation time, so that a copy does not have it. A file system that changes one of them drops the time: an
// overlay whose lower layer held the file when it was set and is changed or mounted again, and a restored
// backup.
QZ_API TResult<> SetFileCreated(std::u16string_view APath, std::int64_t ATime);

// Fails for a time before 1601, with the system's code for an invalid argument.
QZ_API TResult<> CheckFileTime(std::int64_t ATime) noexcept;

// Local time by the system's special rule for file times. Windows adds the current offset, so a time on the
// other side of a daylight saving change is an hour off. Nothing on Linux, which has no such rule, and for a
// time before 1601.
QZ_API std::optional<std::int64_t> LocalFileTime(std::int64_t ATime) noexcept;

// A date and a time of day as DOS stores them, in steps of two seconds.
struct TDosTime {
    std::uint16_t Date; // the year after 1980, the month and the day in 7, 4 and 5 bits
    std::uint16_t Time; // hours, minutes and half the seconds in 5, 6 and 5 bits

    friend bool operator==(const TDosTime&, const TDosTime&) = default;
};

// A local file time, rounded up to two seconds. Nothing outside 1980 to 2107 and for a time that rounds up to
// 2108. On Windows FileTimeToDosDateTime answers.
QZ_API std::optional<TDosTime> DosTimeOf(std::int64_t ALocalTime) noexcept;

} // namespace qz::platform
